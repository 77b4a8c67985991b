#include <VxMFCEmu/wnd/windowstate.h>

#include <VxMFCEmu/wnd/winstyles.h>

#include "wnd/vxlivewidgets_p.h"

#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace {

constexpr char kLastPosProperty[] = "lastPos";

/// Handlers of the widget's own events may delete it, hence the guards here and below.
void showWidget(const QPointer<QWidget>& pWidget)
{
    pWidget->setVisible(true);
    if (!pWidget || !pWidget->isWindow())
        return;
    if (const QVariant lastPos = pWidget->property(kLastPosProperty); lastPos.isValid()) {
        pWidget->move(lastPos.toPoint());
        if (!pWidget)
            return;
        pWidget->setProperty(kLastPosProperty, QVariant());
    }
    if (!pWidget->isActiveWindow())
        QCoreApplication::processEvents();
}

void hideWidget(const QPointer<QWidget>& pWidget)
{
    const QPoint pos = pWidget->pos();
    pWidget->setVisible(false);
    if (pWidget && pWidget->isWindow())
        pWidget->setProperty(kLastPosProperty, pos);
}

} // namespace

BOOL ShowWindow_E(HWND hWnd, int nCmdShow)
{
    if (!hWnd)
        return FALSE;
    if (nCmdShow == SW_SHOWNORMAL || nCmdShow == SW_SHOW)
        showWidget(hWnd);
    else if (nCmdShow == SW_HIDE)
        hideWidget(hWnd);
    return TRUE;
}

BOOL IsWindow_E(HWND hWnd) { return vx::detail::liveWidgetAt(hWnd) != nullptr; }

BOOL IsWindowVisible_E(HWND hWnd) { return hWnd && hWnd->isVisible(); }

BOOL IsWindowEnabled_E(HWND hWnd) { return hWnd && !hWnd->testAttribute(Qt::WA_ForceDisabled); }

BOOL EnableWindow_E(HWND hWnd, BOOL bEnable)
{
    if (!hWnd)
        return FALSE;
    const BOOL bWasDisabled = !IsWindowEnabled_E(hWnd);
    hWnd->setEnabled(bEnable != FALSE);
    return bWasDisabled;
}

BOOL CloseWindow_E(HWND hWnd)
{
    if (!hWnd)
        return FALSE;
    hWnd->setWindowState(hWnd->windowState() | Qt::WindowMinimized);
    return TRUE;
}

BOOL UpdateWindow_E(HWND hWnd)
{
    if (!hWnd)
        return FALSE;
    hWnd->repaint();
    return TRUE;
}

HWND SetFocus_E(HWND hWnd)
{
    const QPointer<QWidget> pPrevious(GetFocus_E());
    if (!hWnd) {
        if (pPrevious)
            pPrevious->clearFocus();
        return nullptr;
    }
    const QPointer<QWidget> pTarget(hWnd);
    hWnd->setFocus(Qt::OtherFocusReason);
    if (pTarget && !pTarget->isActiveWindow())
        pTarget->activateWindow();
    return pPrevious;
}

HWND GetFocus_E() { return QApplication::focusWidget(); }

HWND SetActiveWindow_E(HWND hWnd)
{
    if (!hWnd)
        return nullptr;
    const QPointer<QWidget> pPrevious(GetActiveWindow_E());
    hWnd->activateWindow();
    return pPrevious;
}

HWND GetActiveWindow_E() { return QApplication::activeWindow(); }

HWND SetCapture_E(HWND hWnd)
{
    if (!hWnd)
        return nullptr;
    const HWND hPrevious = GetCapture_E();
    if (hPrevious != hWnd)
        hWnd->grabMouse();
    return hPrevious;
}

HWND GetCapture_E() { return QWidget::mouseGrabber(); }

BOOL ReleaseCapture_E()
{
    if (QWidget* const pGrabber = QWidget::mouseGrabber())
        pGrabber->releaseMouse();
    return TRUE;
}
