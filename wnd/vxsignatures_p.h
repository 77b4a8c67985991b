// Not part of the public interface. How each signature number calls a handler.
#pragma once

#include <VxMFCEmu/wnd/messagemap.h>

namespace vx::detail {

/// Calls the handlers of @p entry for a message. FALSE when the message counts as unhandled; then
/// @p result is left alone. @p pWindow may be gone afterwards.
BOOL callHandler(CWnd_E* pWindow, const AFX_MSGMAP_ENTRY_E& entry, WPARAM wParam, LPARAM lParam,
                 LRESULT& result);

} // namespace vx::detail
