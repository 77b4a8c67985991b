#pragma once

#include <VxMFCEmu/VxMFCEmu.h>

//! [window class]
const UINT WM_GAUGE_SETLEVEL = WM_USER + 1; // wParam is the level, the result the one before

class CGaugeWnd : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CGaugeWnd)

public:
    CGaugeWnd() : m_nLevel(0), m_nWidth(0) {}

    int m_nLevel;
    int m_nWidth;

protected:
    void OnSize(UINT nType, int cx, int cy);
    void OnLButtonDown(UINT nFlags, CPoint_E point);
    void OnContextMenu_E(CWnd_E* pWnd, CPoint_E point);
    LRESULT OnSetLevel(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP_E()
};
//! [window class]
