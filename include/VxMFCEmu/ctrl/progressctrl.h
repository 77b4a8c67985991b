/// @file progressctrl.h
/// CProgressCtrl_E: a progress bar.
///
/// Differs from MFC: SetPos() processes pending events, so that the bar shows during long loops
/// that never get back to the event loop; a handler may run, and the control may be gone, before
/// it returns. A position outside of the range changes nothing. A control of another class and one
/// without a widget give 0 and change nothing.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/wnd/window.h>

/// A progress bar.
class VXMFC_EXPORT CProgressCtrl_E : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CProgressCtrl_E)

    BOOL AttachDefault(QWidget* pParent) override;
    using CWnd_E::Create;
    /// @{
    /// Makes the bar below @p pParent, at @p rect in its coordinates; PBS_VERTICAL makes it stand.
    BOOL Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent);
    BOOL Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID);
    /// @}

    /// Sets the range.
    void SetRange(short nLower, short nUpper);
    /// While SetMarquee() is on, the range counts from its end on.
    void SetRange32(int nLower, int nUpper);
    /// Either pointer may be null.
    void GetRange(int* pLower, int* pUpper) const;
    /// Sets the position, has pending events processed and returns the previous position.
    int SetPos(int nPos);
    /// The position.
    int GetPos() const;
    /// Adds to the position and returns the previous one.
    int OffsetPos(int nOffset);
    /// Stores the step of StepIt(), 10 at first, and returns the previous one; 0 without a widget.
    int SetStep(int nStep);
    /// The step of StepIt().
    int GetStep() const;
    /// Adds the step to the position and returns the previous one.
    int StepIt();
    /// Shows that something goes on, without a position, until it is switched off again; the
    /// widget sets the pace. TRUE with a widget.
    BOOL SetMarquee(BOOL bMarquee, int nInterval = 0);
    /// @{
    /// Set the colour of the bar and of what lies behind it, as far as the widget's style uses it,
    /// and return the previous one; CLR_DEFAULT stands for the style's own.
    COLORREF SetBarColor(COLORREF color);
    COLORREF SetBkColor(COLORREF color);
    /// @}
    /// @{
    /// What SetBarColor() or SetBkColor() has set.
    COLORREF GetBarColor() const;
    COLORREF GetBkColor() const;
    /// @}

    BOOL OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    int m_nStep = 10;
};
