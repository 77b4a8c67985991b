#include "trackerwnd.h"

#include <cstdarg>

void SendReport(const CWnd_E& window, const CString_E& strLine)
{
    if (const CWnd_E* const pParent = window.GetParent())
        pParent->SendMessage(WM_TRACKER_REPORT, 0, reinterpret_cast<LPARAM>(&strLine));
}

IMPLEMENT_DYNAMIC_E(CTrackerWnd, CWnd_E, QWidget)

BEGIN_MESSAGE_MAP_E(CTrackerWnd, CWnd_E)
ON_WM_MOUSEMOVE_E()
ON_WM_LBUTTONDOWN_E()
ON_WM_RBUTTONDOWN_E()
ON_WM_MOUSEWHEEL_E()
ON_WM_KEYDOWN_E()
ON_WM_CHAR_E()
ON_WM_SIZE_E()
ON_WM_SETCURSOR_E()
ON_MESSAGE_E(WM_TRACKER_PING, &CTrackerWnd::OnPing)
END_MESSAGE_MAP_E()

void CTrackerWnd::OnMouseMove(UINT nFlags, CPoint_E point)
{
    Report(L"WM_MOUSEMOVE %d,%d", point.x, point.y);
    CWnd_E::OnMouseMove(nFlags, point);
}

void CTrackerWnd::OnLButtonDown(UINT nFlags, CPoint_E point)
{
    SetFocus();
    Report(L"WM_LBUTTONDOWN %d,%d flags %u", point.x, point.y, nFlags);
}

void CTrackerWnd::OnRButtonDown(UINT nFlags, CPoint_E point)
{
    Report(L"WM_RBUTTONDOWN %d,%d flags %u", point.x, point.y, nFlags);
}

BOOL CTrackerWnd::OnMouseWheel(UINT, short zDelta, CPoint_E)
{
    Report(L"WM_MOUSEWHEEL %d", zDelta);
    return TRUE;
}

void CTrackerWnd::OnKeyDown(UINT nChar, UINT, UINT) { Report(L"WM_KEYDOWN 0x%02X", nChar); }

void CTrackerWnd::OnChar(UINT nChar, UINT, UINT) { Report(L"WM_CHAR '%c'", nChar); }

void CTrackerWnd::OnSize(UINT nType, int cx, int cy)
{
    Report(L"WM_SIZE %d,%d", cx, cy);
    CWnd_E::OnSize(nType, cx, cy);
}

BOOL CTrackerWnd::OnSetCursor_E(CWnd_E* pWnd, UINT, UINT)
{
    if (!m_bCursorSeen)
        Report(L"WM_SETCURSOR %ls", pWnd == this ? L"for the tracker" : L"for another window");
    m_bCursorSeen = true;
    GetSafeHwnd()->setCursor(Qt::CrossCursor);
    return TRUE;
}

LRESULT CTrackerWnd::OnPing(WPARAM wParam, LPARAM)
{
    Report(L"WM_TRACKER_PING %u", static_cast<UINT>(wParam));
    return 0;
}

void CTrackerWnd::Report(const wchar_t* lpszFormat, ...)
{
    CString_E strLine;
    va_list args;
    va_start(args, lpszFormat);
    strLine.FormatV(lpszFormat, args);
    va_end(args);
    SendReport(*this, strLine);
}
