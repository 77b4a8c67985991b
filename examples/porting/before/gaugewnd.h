#pragma once

#include "oldnames.h"

//! [window class]
const UINT WM_GAUGE_SETLEVEL = WM_USER + 1; // wParam is the level, the result the one before

class CGaugeWnd : public CWnd
{
    DECLARE_DYNAMIC(CGaugeWnd)

public:
    CGaugeWnd() : m_nLevel(0), m_nWidth(0) {}

    int m_nLevel;
    int m_nWidth;

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg LRESULT OnSetLevel(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};
//! [window class]
