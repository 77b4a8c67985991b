// Private: what goes with the painting of a window. Carried out in gdi, which draws.
#pragma once

class CWnd_E;
class QWidget;

namespace vx::detail {

/// Sends @p window WM_ERASEBKGND with a device context over @p widget, which is being painted.
void eraseBackground(CWnd_E& window, QWidget& widget);

/// Sends @p window a WM_CTLCOLOR message before each control in it is painted, and gives the
/// control the colours that come back.
void colorControls(CWnd_E& window);

} // namespace vx::detail
