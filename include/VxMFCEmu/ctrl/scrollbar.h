/// @file scrollbar.h
/// CScrollBar_E: a scroll bar that is a control of its own.
///
/// Handlers of WM_HSCROLL and WM_VSCROLL with the suffix `_E` get one for the bar that was used.
/// When that is a slider, they get the address of its CSliderCtrl_E, to be compared or cast back.
///
/// Differs from MFC: SetScrollRange() and GetScrollRange() do nothing, SetScrollInfo() and
/// GetScrollInfo() are there for that; EnableScrollBar() changes nothing. The control sends its
/// parent no messages: connect to the widget's signals. A control of another class and one without
/// a widget give 0 and change nothing.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/wnd/window.h>

/// A scroll bar control.
class VXMFC_EXPORT CScrollBar_E : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CScrollBar_E)

    BOOL AttachDefault(QWidget* pParent) override;
    using CWnd_E::Create;
    /// @{
    /// Makes the bar below @p pParent, at @p rect in its coordinates; SBS_VERT makes it stand.
    /// WS_VSCROLL is left out of the style.
    BOOL Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent);
    BOOL Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID);
    /// @}

    /// The position.
    int GetScrollPos() const;
    /// Moves the bar, which the widget keeps within its range, and returns the previous position.
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE);
    /// Shows or hides the bar.
    void ShowScrollBar(BOOL bShow = TRUE);
    /// TRUE with a widget, whatever the flags; changes nothing.
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH);
    /// Nothing.
    void SetScrollRange(int nMin, int nMax, BOOL bRedraw = TRUE);
    /// Nothing: leaves the variables alone.
    void GetScrollRange(int* pMin, int* pMax) const;
    /// Sets what the mask names; with SIF_DISABLENOSCROLL a bar that has nowhere to go is disabled.
    /// Sends no scroll messages. FALSE for null.
    BOOL SetScrollInfo(const SCROLLINFO* pInfo, BOOL bRedraw = TRUE);
    /// Gives what @p nMask names; FALSE for null.
    BOOL GetScrollInfo(SCROLLINFO* pInfo, UINT nMask = SIF_ALL) const;
    /// The highest position that can be scrolled to.
    int GetScrollLimit() const;

    BOOL OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
