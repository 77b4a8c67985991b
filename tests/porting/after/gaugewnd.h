#pragma once

#include <VxMFCEmu/VxMFCEmu.h>

//! [window class]
const UINT WM_GAUGE_SETLEVEL = WM_USER + 1; // wParam is the level, the result the one before

class CGaugeWnd : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CGaugeWnd)

public:
    CGaugeWnd() : m_nLevel(0), m_nWidth(0), m_bFocused(FALSE) {}

    int m_nLevel;
    int m_nWidth;
    BOOL m_bFocused;

protected:
    void OnSize(UINT nType, int cx, int cy);
    void OnLButtonDown(UINT nFlags, CPoint_E point);
    void OnSetFocus_E(CWnd_E* pOldWnd);
    LRESULT OnSetLevel(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP_E()
};
//! [window class]
