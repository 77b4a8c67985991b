// The members that are free functions for the bound widget.
#include <VxMFCEmu/wnd/window.h>

#include <VxMFCEmu/dlg/messagebox.h>
#include <VxMFCEmu/wnd/windowfunctions.h>

#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace {

HWND handleOf(const CWnd_E* pWindow) { return pWindow ? pWindow->GetSafeHwnd() : nullptr; }

QRect centreAreaOf(const QWidget* pOther, const QWidget* pWindow)
{
    if (pOther)
        return {pOther->mapToGlobal(QPoint(0, 0)), pOther->size()};
    const QScreen* const pScreen = QGuiApplication::screenAt(pWindow->mapToGlobal(QPoint(0, 0)));
    return (pScreen ? pScreen : QGuiApplication::primaryScreen())->availableGeometry();
}

} // namespace

// clang-format off
void CWnd_E::GetWindowText(CString_E& rString) { GetWindowText_E(GetSafeHwnd(), rString); }
void CWnd_E::SetWindowText(const wchar_t* lpszString) { SetWindowText_E(GetSafeHwnd(), lpszString); }
int CWnd_E::GetWindowText(wchar_t* lpszString, int nMaxCount) const { return GetWindowText_E(GetSafeHwnd(), lpszString, nMaxCount); }
int CWnd_E::GetWindowTextLength() const { return GetWindowTextLength_E(GetSafeHwnd()); }

BOOL CWnd_E::SetDlgItemText(int nID, const wchar_t* lpszString) { return SetDlgItemText_E(GetSafeHwnd(), nID, lpszString); }
BOOL CWnd_E::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned) { return SetDlgItemInt_E(GetSafeHwnd(), nID, nValue, bSigned); }
int CWnd_E::GetDlgItemText(int nID, wchar_t* lpszString, int nMaxCount) const { return GetDlgItemText_E(GetSafeHwnd(), nID, lpszString, nMaxCount); }
int CWnd_E::GetDlgItemText(int nID, CString_E& rString) const { return GetDlgItemText_E(GetSafeHwnd(), nID, rString); }
UINT CWnd_E::GetDlgItemInt(int nID, BOOL* pbTranslated, BOOL bSigned) const { return GetDlgItemInt_E(GetSafeHwnd(), nID, pbTranslated, bSigned); }
UINT CWnd_E::IsDlgButtonChecked(int nID) const { return IsDlgButtonChecked_E(GetSafeHwnd(), nID); }
void CWnd_E::CheckDlgButton(int nID, UINT nCheck) { CheckDlgButton_E(GetSafeHwnd(), nID, nCheck); }
void CWnd_E::CheckRadioButton(int nFirst, int nLast, int nCheck) { CheckRadioButton_E(GetSafeHwnd(), nFirst, nLast, nCheck); }

BOOL CWnd_E::ShowWindow(int nCmdShow) { return ShowWindow_E(GetSafeHwnd(), nCmdShow); }
BOOL CWnd_E::IsWindowVisible() const { return IsWindowVisible_E(GetSafeHwnd()); }
BOOL CWnd_E::IsWindowEnabled() const { return IsWindowEnabled_E(GetSafeHwnd()); }
BOOL CWnd_E::EnableWindow(BOOL bEnable) { return EnableWindow_E(GetSafeHwnd(), bEnable); }
BOOL CWnd_E::CloseWindow() { return CloseWindow_E(GetSafeHwnd()); }
BOOL CWnd_E::UpdateWindow() { return UpdateWindow_E(GetSafeHwnd()); }
UINT_PTR CWnd_E::SetTimer(UINT_PTR nIDEvent, UINT uElapse, TIMERPROC pfnTimer) { return SetTimer_E(GetSafeHwnd(), nIDEvent, uElapse, pfnTimer); }
BOOL CWnd_E::KillTimer(UINT_PTR nIDEvent) { return KillTimer_E(GetSafeHwnd(), nIDEvent); }
int CWnd_E::MessageBox(const wchar_t* lpszText, const wchar_t* lpszCaption, UINT nType) { return MessageBox_E(GetSafeHwnd(), lpszText, lpszCaption, nType); }

BOOL CWnd_E::GetWindowRect(tagRECT* pRect) const { return GetWindowRect_E(GetSafeHwnd(), pRect); }
BOOL CWnd_E::GetClientRect(tagRECT* pRect) const { return GetClientRect_E(GetSafeHwnd(), pRect); }
BOOL CWnd_E::MoveWindow(int x, int y, int cx, int cy, BOOL bRepaint) { return MoveWindow_E(GetSafeHwnd(), x, y, cx, cy, bRepaint); }
BOOL CWnd_E::MoveWindow(const tagRECT* pRect, BOOL bRepaint) { return MoveWindow_E(GetSafeHwnd(), pRect, bRepaint); }
BOOL CWnd_E::SetWindowPos(const CWnd_E* pInsertAfter, int x, int y, int cx, int cy, UINT nFlags) { return SetWindowPos_E(GetSafeHwnd(), handleOf(pInsertAfter), x, y, cx, cy, nFlags); }
BOOL CWnd_E::ClientToScreen(tagPOINT* pPoint) const { return ClientToScreen_E(GetSafeHwnd(), pPoint); }
BOOL CWnd_E::ClientToScreen(tagRECT* pRect) const { return ClientToScreen_E(GetSafeHwnd(), pRect); }
BOOL CWnd_E::ScreenToClient(tagPOINT* pPoint) const { return ScreenToClient_E(GetSafeHwnd(), pPoint); }
BOOL CWnd_E::ScreenToClient(tagRECT* pRect) const { return ScreenToClient_E(GetSafeHwnd(), pRect); }
int CWnd_E::MapWindowPoints(CWnd_E* pTo, tagPOINT* pPoints, UINT nCount) const { return MapWindowPoints_E(GetSafeHwnd(), handleOf(pTo), pPoints, nCount); }
int CWnd_E::MapWindowPoints(CWnd_E* pTo, tagRECT* pRect) const { return MapWindowPoints_E(GetSafeHwnd(), handleOf(pTo), pRect); }
BOOL CWnd_E::MapDialogRect(tagRECT* pRect) const { return MapDialogRect_E(GetSafeHwnd(), pRect); }
UINT CWnd_E::GetDpiForWindow() const { return GetDpiForWindow_E(GetSafeHwnd()); }

CWnd_E* CWnd_E::GetParent() const { return FromHandle(GetParent_E(GetSafeHwnd())); }
CWnd_E* CWnd_E::SetParent(CWnd_E* pNewParent) { return FromHandle(SetParent_E(GetSafeHwnd(), handleOf(pNewParent))); }
CWnd_E* CWnd_E::GetTopWindow() const { return FromHandle(GetTopWindow_E(GetSafeHwnd())); }
BOOL CWnd_E::IsChild(const CWnd_E* pWnd) const { return IsChild_E(GetSafeHwnd(), handleOf(pWnd)); }
CWnd_E* CWnd_E::SetFocus() { return FromHandle(SetFocus_E(GetSafeHwnd())); }
CWnd_E* CWnd_E::SetActiveWindow() { return FromHandle(SetActiveWindow_E(GetSafeHwnd())); }
CWnd_E* CWnd_E::SetCapture() { return FromHandle(SetCapture_E(GetSafeHwnd())); }
CWnd_E* CWnd_E::GetFocus() { return FromHandle(GetFocus_E()); }
CWnd_E* CWnd_E::GetActiveWindow() { return FromHandle(GetActiveWindow_E()); }
CWnd_E* CWnd_E::GetCapture() { return FromHandle(GetCapture_E()); }
CWnd_E* CWnd_E::GetDesktopWindow() { return FromHandle(GetDesktopWindow_E()); }
CWnd_E* CWnd_E::WindowFromPoint(tagPOINT point) { return FromHandle(WindowFromPoint_E(point)); }
// clang-format on

void CWnd_E::Invalidate(BOOL bErase) { InvalidateRect(nullptr, bErase); }

void CWnd_E::InvalidateRect(const tagRECT* pRect, BOOL)
{
    QWidget* const pWidget = GetSafeHwnd();
    if (!pWidget)
        return;
    if (pRect)
        pWidget->update(pRect->left, pRect->top, pRect->right - pRect->left,
                        pRect->bottom - pRect->top);
    else
        pWidget->update();
}

void CWnd_E::CenterWindow(CWnd_E* pOther)
{
    QWidget* const pWidget = GetSafeHwnd();
    if (!pWidget)
        return;
    const QWidget* const pAround = pOther ? pOther->GetSafeHwnd() : pWidget->parentWidget();
    QRect frame = pWidget->frameGeometry();
    frame.moveCenter(centreAreaOf(pAround, pWidget).center());
    QPoint corner = frame.topLeft();
    if (!pWidget->isWindow())
        corner = pWidget->parentWidget()->mapFromGlobal(corner);
    pWidget->move(corner);
}
