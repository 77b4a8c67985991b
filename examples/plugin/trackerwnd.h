#pragma once

#include <VxMFCEmu/VxMFCEmu.h>

/// Sent to the panel: lParam is a CString_E* with one line of the report.
constexpr UINT WM_TRACKER_REPORT = WM_APP + 1;
/// Posted to the tracker: wParam is a number to report.
constexpr UINT WM_TRACKER_PING = WM_APP + 2;

/// Sends the parent of @p window a line for its report.
void SendReport(const CWnd_E& window, const CString_E& strLine);

/// The area that handles messages and reports each one to its parent.
class CTrackerWnd : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CTrackerWnd)

    void OnMouseMove(UINT nFlags, CPoint_E point);
    void OnLButtonDown(UINT nFlags, CPoint_E point);
    void OnRButtonDown(UINT nFlags, CPoint_E point);
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint_E point);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSize(UINT nType, int cx, int cy);
    BOOL OnSetCursor_E(CWnd_E* pWnd, UINT nHitTest, UINT nMessage);
    LRESULT OnPing(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP_E()

private:
    void Report(const wchar_t* lpszFormat, ...);

    bool m_bCursorSeen = false;
};
