#include "gaugewnd.h"

// clang-format off
//! [window source]
IMPLEMENT_DYNAMIC(CGaugeWnd, CWnd)

BEGIN_MESSAGE_MAP(CGaugeWnd, CWnd)
    ON_WM_SIZE()
    ON_WM_LBUTTONDOWN()
    ON_WM_CONTEXTMENU()
    ON_MESSAGE(WM_GAUGE_SETLEVEL, &CGaugeWnd::OnSetLevel)
END_MESSAGE_MAP()

void CGaugeWnd::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    m_nWidth = cx;
}

void CGaugeWnd::OnLButtonDown(UINT, CPoint point)
{
    SendMessage(WM_GAUGE_SETLEVEL, (WPARAM)(100 * point.x / m_nWidth));
}

void CGaugeWnd::OnContextMenu(CWnd*, CPoint point)
{
    ScreenToClient(&point);
    SendMessage(WM_GAUGE_SETLEVEL, (WPARAM)(100 * point.x / m_nWidth));
}

LRESULT CGaugeWnd::OnSetLevel(WPARAM wParam, LPARAM)
{
    int nOld = m_nLevel;
    m_nLevel = (int)wParam;
    Invalidate();
    return nOld;
}
//! [window source]
