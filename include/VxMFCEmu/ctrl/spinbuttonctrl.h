/// @file spinbuttonctrl.h
/// CSpinButtonCtrl_E: a spin box, of whole numbers or of decimal ones.
///
/// Differs from MFC: the buttons and the edit are one widget; a buddy becomes part of it. Positions
/// are numbers, of which those of a decimal spin box are cut to integers where members give them. A
/// position outside of the range is refused, not moved into it. Only the first acceleration counts.
/// A control of another class and one without a widget give the failure value and change nothing.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/wnd/window.h>

#include <cstddef>

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

/// In the style word, makes a spin box of decimal numbers.
inline constexpr DWORD VXUDS_DOUBLE = 0x00000200;

/// A spin box.
class VXMFC_EXPORT CSpinButtonCtrl_E : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CSpinButtonCtrl_E)

    BOOL AttachDefault(QWidget* pParent) override;
    using CWnd_E::Create;
    /// @{
    /// Makes the spin box below @p pParent, at @p rect in its coordinates; UDS_WRAP makes it wrap
    /// around.
    BOOL Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent);
    BOOL Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID);
    /// @}

    /// @{
    /// Sets the range.
    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper);
    /// @}
    /// The upper limit in the low word, the lower one in the high word; 0 on failure.
    DWORD GetRange() const;
    /// @{
    /// Gives the limits.
    void GetRange(int& nLower, int& nUpper) const;
    void GetRange32(int& nLower, int& nUpper) const;
    /// @}
    /// @{
    /// Sets a position within the range and returns the previous one; -1, changing nothing, for one
    /// outside of it.
    int SetPos(int nPos);
    int SetPos32(int nPos);
    /// @}
    /// -1 on failure.
    int GetPos() const;
    /// The same; @p pbError, which may be null, tells whether it failed.
    int GetPos32(BOOL* pbError = nullptr) const;
    /// Has the steps grow while a button is held, when there is an acceleration; a spin box of
    /// whole numbers takes the first one's increment as its step. TRUE with a widget.
    BOOL SetAccel(int nAccel, const UDACCEL* pAccel);
    /// The number of accelerations, of which it stores the first if there is room.
    UINT GetAccel(int nAccel, UDACCEL* pAccel) const;
    /// Puts @p pBuddy, which the spin box owns from then on, in the place of its line edit, which
    /// is deleted. Nothing for null, for the edit of another spin box or a combo box and for one
    /// around the spin box. When the buddy is destroyed, the spin box gets a new line edit.
    void SetBuddy(QLineEdit* pBuddy);
    /// The same with the line edit of a window; null, since the previous buddy is gone.
    CWnd_E* SetBuddy(CWnd_E* pWndBuddy);
    /// Does nothing.
    void SetBuddy(std::nullptr_t);
    /// The line edit of the spin box.
    QLineEdit* GetBuddy() const;
    /// Shows whole numbers to this base and returns the previous one; -1 for a decimal spin box, 0
    /// for a base below 2 or above 36.
    int SetBase(int nBase);
    /// The base of the numbers shown.
    int GetBase() const;
    /// Nothing for a spin box of whole numbers, of which GetDecimals() is 0.
    void SetDecimals(int nDecimals);
    /// The number of decimals.
    int GetDecimals() const;

    /// The selection of the line edit; the cursor position twice when nothing is selected.
    void GetSel(int& nStart, int& nEnd) const;
    /// Selects in the line edit: (-1, any) nothing, with the cursor at the end, (0, -1) all.
    /// Without the style ES_NOHIDESEL nothing unless the spin box has the focus.
    void SetSel(int nStart, int nEnd, BOOL bNoScroll = FALSE);
    using CWnd_E::GetWindowText;
    /// The value as text, without prefix and suffix.
    void GetWindowText(CString_E& rString) override;
    /// Sets the value that the text spells; a text that is no number is 0.
    void SetWindowText(const wchar_t* lpszString) override;

    BOOL OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
