// Not part of the public interface.
//
// vxQEventToMsg() in two stages, for those who may not need the second.
#pragma once

#include <VxMFCEmu/types.h>

class QEvent;
class QObject;

namespace vx::detail {

/// Fills message, wParam, lParam and hwnd of @p msg; false as vxQEventToMsg() says. Asks nothing of
/// the X server but for releases in a window's frame, which have no position of their own.
bool translateEvent(QObject* receiver, QEvent* e, tagMSG* msg);

/// Fills time and pt of @p msg. The cursor position may cost a round trip to the X server.
void stampMessage(tagMSG* msg);

} // namespace vx::detail
