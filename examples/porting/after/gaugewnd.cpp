#include "gaugewnd.h"

// clang-format off
//! [window source]
IMPLEMENT_DYNAMIC_E(CGaugeWnd, CWnd_E, QWidget)

BEGIN_MESSAGE_MAP_E(CGaugeWnd, CWnd_E)
    ON_WM_SIZE_E()
    ON_WM_LBUTTONDOWN_E()
    ON_WM_CONTEXTMENU_E()
    ON_MESSAGE_E(WM_GAUGE_SETLEVEL, &CGaugeWnd::OnSetLevel)
END_MESSAGE_MAP_E()

void CGaugeWnd::OnSize(UINT nType, int cx, int cy)
{
    CWnd_E::OnSize(nType, cx, cy);
    m_nWidth = cx;
}

void CGaugeWnd::OnLButtonDown(UINT, CPoint_E point)
{
    SendMessage(WM_GAUGE_SETLEVEL, static_cast<WPARAM>(100 * point.x / m_nWidth));
}

void CGaugeWnd::OnContextMenu_E(CWnd_E*, CPoint_E point)
{
    // The position is that in the window already.
    SendMessage(WM_GAUGE_SETLEVEL, static_cast<WPARAM>(100 * point.x / m_nWidth));
}

LRESULT CGaugeWnd::OnSetLevel(WPARAM wParam, LPARAM)
{
    const int nOld = m_nLevel;
    m_nLevel = static_cast<int>(wParam);
    Invalidate();
    return nOld;
}
//! [window source]
