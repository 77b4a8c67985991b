/// @file sliderctrl.h
/// CSliderCtrl_E: a slider.
///
/// Differs from MFC: tics that SetTic() sets show as the widget's evenly spaced ones, at the widest
/// distance that meets them all; SetTicFreq() does nothing. A selection is kept and given back, not
/// shown. A slider that Create() makes upright has its lowest position at the top; one of a form
/// has it where the form says. A slider attached to a dial or another widget of that kind has no
/// rectangles. A control of another class and one without a widget give the failure value and
/// change nothing.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/wnd/window.h>

/// A slider.
class VXMFC_EXPORT CSliderCtrl_E : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CSliderCtrl_E)

    BOOL AttachDefault(QWidget* pParent) override;
    using CWnd_E::Create;
    /// @{
    /// Makes the slider below @p pParent, at @p rect in its coordinates. TBS_VERT makes it stand,
    /// TBS_AUTOTICKS shows tics at the side that TBS_TOP and TBS_BOTH name.
    BOOL Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent);
    BOOL Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID);
    /// @}

    /// @{
    /// The lowest and the highest position.
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE);
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE);
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE);
    void GetRange(int& nMin, int& nMax) const;
    int GetRangeMin() const;
    int GetRangeMax() const;
    /// @}
    /// Sets the step of the arrow keys and returns the previous one.
    int SetLineSize(int nSize);
    /// The step of the arrow keys.
    int GetLineSize() const;
    /// Sets the step of the page keys and returns the previous one.
    int SetPageSize(int nSize);
    /// The step of the page keys.
    int GetPageSize() const;
    /// Moves the slider; the widget keeps it within the range.
    void SetPos(int nPos);
    /// The position.
    int GetPos() const;

    /// Sets a tic; the first and the last position have theirs anyway. FALSE outside of the range.
    BOOL SetTic(int nTic);
    /// Takes away the tics but the first and the last.
    void ClearTics(BOOL bRedraw = FALSE);
    /// The number of tics with the first and the last; 0 for TBS_NOTICKS.
    UINT GetNumTics() const;
    /// The position of a tic, from 0 on without the first and the last; -1 when there is none.
    int GetTic(int nTic) const;
    /// Nothing.
    void SetTicFreq(int nFreq);

    /// Keeps a selection, cut to the range.
    void SetSelection(int nMin, int nMax);
    /// 0 and 0 while there is none.
    void GetSelection(int& nMin, int& nMax) const;
    /// Ends the selection.
    void ClearSel(BOOL bRedraw = FALSE);

    /// @{
    /// The rectangles of the thumb and of the groove, in the slider's coordinates; empty on
    /// failure. Null is allowed.
    void GetThumbRect(tagRECT* pRect) const;
    void GetChannelRect(tagRECT* pRect) const;
    /// @}

    BOOL OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
