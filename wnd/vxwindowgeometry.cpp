#include <VxMFCEmu/wnd/windowgeometry.h>

#include <VxMFCEmu/sys/muldiv.h>
#include <VxMFCEmu/wnd/rectfunctions.h>
#include <VxMFCEmu/wnd/winstyles.h>

#include "wnd/vxgeometryconvert_p.h"

#include <QtCore/QPointer>
#include <QtGui/QCursor>
#include <QtGui/QFontMetrics>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDesktopWidget>
#include <QtWidgets/QWidget>

using vx::detail::fromPoint;
using vx::detail::toPoint;
using vx::detail::toRect;

namespace {

/// Position of the client area on the screen; null is the screen itself.
QPoint clientOrigin(const QWidget* pWidget)
{
    return pWidget ? pWidget->mapToGlobal(QPoint(0, 0)) : QPoint(0, 0);
}

BOOL offsetPoint(LPPOINT ppt, const QPoint& by)
{
    ppt->x = vx::detail::wrappingAdd(ppt->x, by.x());
    ppt->y = vx::detail::wrappingAdd(ppt->y, by.y());
    return TRUE;
}

bool isPlaceOfItsOwn(HWND hWndInsertAfter)
{
    return hWndInsertAfter == HWND_BOTTOM || hWndInsertAfter == HWND_TOPMOST ||
           hWndInsertAfter == HWND_NOTOPMOST;
}

void restack(QWidget* pWidget, HWND hWndInsertAfter)
{
    if (hWndInsertAfter == HWND_BOTTOM)
        pWidget->lower();
    else if (hWndInsertAfter == HWND_TOPMOST)
        pWidget->raise();
    else if (hWndInsertAfter != HWND_NOTOPMOST)
        pWidget->stackUnder(hWndInsertAfter);
}

/// The letters that Win32 takes the average character width from.
constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr int kAlphabetLength = 52;
static_assert(sizeof(kAlphabet) == kAlphabetLength + 1);

} // namespace

BOOL GetWindowRect_E(HWND hWnd, LPRECT prc)
{
    if (!hWnd || !prc)
        return FALSE;
    *prc =
        toRect(hWnd->isWindow() ? hWnd->frameGeometry() : QRect(clientOrigin(hWnd), hWnd->size()));
    return TRUE;
}

BOOL GetClientRect_E(HWND hWnd, LPRECT prc)
{
    if (!hWnd || !prc)
        return FALSE;
    *prc = toRect(hWnd->rect());
    return TRUE;
}

BOOL MoveWindow_E(HWND hWnd, int x, int y, int cx, int cy, BOOL bRepaint)
{
    const QPointer<QWidget> pAlive(hWnd);
    const BOOL bMoved = SetWindowPos_E(hWnd, nullptr, x, y, cx, cy, 0);
    if (pAlive && bRepaint)
        pAlive->update();
    return bMoved;
}

BOOL MoveWindow_E(HWND hWnd, LPCRECT prc, BOOL bRepaint)
{
    using vx::detail::wrappingSub;
    return prc && MoveWindow_E(hWnd, prc->left, prc->top, wrappingSub(prc->right, prc->left),
                               wrappingSub(prc->bottom, prc->top), bRepaint);
}

BOOL SetWindowPos_E(HWND hWnd, HWND hWndInsertAfter, int x, int y, int cx, int cy, UINT uFlags)
{
    if (!hWnd)
        return FALSE;
    // Handlers of the events below may delete the window, or the other one.
    const QPointer<QWidget> pAlive(hWnd);
    const bool isSibling = hWndInsertAfter && !isPlaceOfItsOwn(hWndInsertAfter);
    const QPointer<QWidget> pSibling(isSibling ? hWndInsertAfter : nullptr);
    const auto wants = [&pAlive, uFlags](UINT flag) { return pAlive && (uFlags & flag) != 0; };
    const auto lets = [&pAlive, uFlags](UINT flag) { return pAlive && (uFlags & flag) == 0; };
    if (lets(SWP_NOSIZE))
        hWnd->resize(cx, cy);
    if (lets(SWP_NOMOVE))
        hWnd->move(x, y);
    if (wants(SWP_NOACTIVATE) && hWnd->hasFocus())
        hWnd->clearFocus();
    if (wants(SWP_SHOWWINDOW))
        hWnd->show();
    if (wants(SWP_HIDEWINDOW))
        hWnd->hide();
    if (hWndInsertAfter && isSibling == !pSibling.isNull() &&
        lets(SWP_NOOWNERZORDER | SWP_NOZORDER))
        restack(hWnd, hWndInsertAfter);
    return TRUE;
}

BOOL ClientToScreen_E(HWND hWnd, LPPOINT ppt)
{
    return hWnd && ppt && offsetPoint(ppt, clientOrigin(hWnd));
}

BOOL ClientToScreen_E(HWND hWnd, LPRECT prc)
{
    const QPoint origin = clientOrigin(hWnd);
    return hWnd && OffsetRect_E(prc, origin.x(), origin.y());
}

BOOL ScreenToClient_E(HWND hWnd, LPPOINT ppt)
{
    return hWnd && ppt && offsetPoint(ppt, -clientOrigin(hWnd));
}

BOOL ScreenToClient_E(HWND hWnd, LPRECT prc)
{
    const QPoint origin = clientOrigin(hWnd);
    return hWnd && OffsetRect_E(prc, -origin.x(), -origin.y());
}

int MapWindowPoints_E(HWND hWndFrom, HWND hWndTo, LPPOINT ppt, UINT nCount)
{
    if (!ppt)
        return 0;
    const QPoint by = clientOrigin(hWndFrom) - clientOrigin(hWndTo);
    for (UINT i = 0; i < nCount; ++i)
        offsetPoint(ppt + i, by);
    return static_cast<int>(MAKELONG(by.x(), by.y()));
}

int MapWindowPoints_E(HWND hWndFrom, HWND hWndTo, LPRECT prc)
{
    if (!prc)
        return 0;
    const QPoint by = clientOrigin(hWndFrom) - clientOrigin(hWndTo);
    OffsetRect_E(prc, by.x(), by.y());
    return static_cast<int>(MAKELONG(by.x(), by.y()));
}

BOOL MapDialogRect_E(HWND hDlg, LPRECT prc)
{
    if (!hDlg || !prc)
        return FALSE;
    const QFontMetrics metrics(hDlg->font());
    const int letters = metrics.horizontalAdvance(QLatin1String(kAlphabet));
    const int baseX = (letters + kAlphabetLength / 2) / kAlphabetLength;
    const int baseY = metrics.height();
    *prc = {MulDiv_E(prc->left, baseX, 4), MulDiv_E(prc->top, baseY, 8),
            MulDiv_E(prc->right, baseX, 4), MulDiv_E(prc->bottom, baseY, 8)};
    return TRUE;
}

HWND WindowFromPoint_E(tagPOINT pt)
{
    QWidget* pWidget = qApp ? QApplication::widgetAt(fromPoint(pt)) : nullptr;
    while (pWidget && !pWidget->isEnabled())
        pWidget = pWidget->isWindow() ? nullptr : pWidget->parentWidget();
    return pWidget;
}

UINT GetDpiForWindow_E(HWND hWnd) { return hWnd ? static_cast<UINT>(hWnd->logicalDpiX()) : 0; }

BOOL GetCursorPos_E(LPPOINT ppt)
{
    if (!ppt || !qApp)
        return FALSE;
    *ppt = toPoint(QCursor::pos());
    return TRUE;
}

BOOL SetCursorPos_E(int x, int y)
{
    if (!qApp)
        return FALSE;
    QCursor::setPos(x, y);
    return TRUE;
}

HWND GetDesktopWindow_E() { return qApp ? QApplication::desktop() : nullptr; }
