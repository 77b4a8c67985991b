// Not part of the public interface. Whether a window's class overrides PreTranslateMessage().
#pragma once

class CWnd_E;

namespace vx::detail {

/// Remembers what CWnd_E's own PreTranslateMessage() is; called by its constructor, where the
/// object is a plain CWnd_E still.
void notePlainWindow(const CWnd_E& plain);

/// Whether the PreTranslateMessage() of @p window is not CWnd_E's own. True where that cannot be
/// told.
bool seesMessages(const CWnd_E& window);

} // namespace vx::detail
