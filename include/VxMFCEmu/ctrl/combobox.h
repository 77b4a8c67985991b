/// @file combobox.h
/// CComboBox_E: a combo box.
///
/// Differs from MFC: CBS_SORT is not honoured; FindString() and FindStringExact() take their start
/// in and do not wrap around; SelectString() wants the whole text, or a number less than 1 away;
/// Clear() drops the items, with the widget's signals; ShowDropDown() does nothing; a CBS_SIMPLE
/// box drops down as well. The rectangle of Create() is that of the closed box. A box that Create()
/// made takes what is typed as it is: it neither completes it nor adds it to the list.
///
/// Except for Clear(), no member makes the widget emit a signal. A control of another class and one
/// without a widget give CB_ERR, or what a member says, and change nothing. Texts may be null,
/// which counts as empty.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/wnd/controlmessages.h>
#include <VxMFCEmu/wnd/window.h>

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

/// The parts of a combo box.
struct tagCOMBOBOXINFO
{
    DWORD cbSize;      ///< size of this record
    tagRECT rcItem;    ///< of the text, in the box's coordinates
    tagRECT rcButton;  ///< of the button that drops the list
    DWORD stateButton; ///< STATE_SYSTEM_PRESSED while the list is dropped, else 0
    HWND hwndCombo;    ///< the box
    HWND hwndItem;     ///< the line edit; null for a box without
    HWND hwndList;     ///< the list that drops down
};
using COMBOBOXINFO = tagCOMBOBOXINFO;   ///< its usual name
using PCOMBOBOXINFO = tagCOMBOBOXINFO*; ///< a pointer to one

/// The state of a pressed button.
inline constexpr DWORD STATE_SYSTEM_PRESSED = 0x00000008;

/// A combo box.
class VXMFC_EXPORT CComboBox_E : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CComboBox_E)

    BOOL AttachDefault(QWidget* pParent) override;
    using CWnd_E::Create;
    /// @{
    /// Makes the box below @p pParent, at @p rect in its coordinates; it can be typed into unless
    /// the style is CBS_DROPDOWNLIST. WS_VSCROLL is dropped: the list scrolls by itself.
    BOOL Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent);
    BOOL Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID);
    /// @}

    // Items

    /// The number of items; CB_ERR without a widget.
    int GetCount() const;
    /// Index of the selected item; -1 for none.
    int GetCurSel() const;
    /// Selects an item, none for an index that is not there. Returns the new selection.
    int SetCurSel(int nSelect);
    /// Appends an item, which leaves the selection alone, and returns its index.
    int AddString(const wchar_t* lpszString);
    /// Inserts an item, at the end for -1, and returns its index; CB_ERR beyond the end,
    /// CB_ERRSPACE in a box that is full. The same item stays selected.
    int InsertString(int nIndex, const wchar_t* lpszString);
    /// Returns the number of items left; CB_ERR without that item. No item is selected once the
    /// selected one is gone.
    int DeleteString(UINT nIndex);
    /// Deletes all items, without a signal.
    void ResetContent();
    /// Drops the items as ResetContent() does, with the widget's signals.
    void Clear();
    /// The first item, from @p nStartAfter itself on, that begins with the text in any case; CB_ERR
    /// when there is none.
    int FindString(int nStartAfter, const wchar_t* lpszString) const;
    /// The same for items that equal the text in any case.
    int FindStringExact(int nIndexStart, const wchar_t* lpszFind) const;
    /// Selects the first item of all that equals the text in any case or, when both are numbers, is
    /// less than 1 away from it, and returns its index; CB_ERR when there is none.
    int SelectString(int nStartAfter, const wchar_t* lpszString);
    /// @{
    /// Length of an item's text, which goes to a buffer that must hold it; CB_ERR without that
    /// item.
    int GetLBText(int nIndex, wchar_t* lpszText) const;
    int GetLBText(int nIndex, CString_E& rString) const;
    int GetLBTextLen(int nIndex) const;
    /// @}
    /// Gives an item a number; CB_ERR without that item.
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    /// An item's number, 0 when it was given none; -1 without that item.
    DWORD_PTR GetItemData(int nIndex) const;
    /// @{
    /// The same for a pointer, which takes the number's place; null without one.
    int SetItemDataPtr(int nIndex, void* pData);
    void* GetItemDataPtr(int nIndex) const;
    /// @}
    /// Nothing to prepare: returns @p nItems.
    int InitStorage(int nItems, UINT nBytes);

    // The text that can be typed into

    void SetWindowText(const wchar_t* lpszString) override;
    /// The box's line edit, owned by the widget; null for a box that cannot be typed into.
    QLineEdit* GetEditBox() const;
    /// Start of the selection in the low word, its end in the high word; CB_ERR without a line
    /// edit.
    DWORD GetEditSel() const;
    /// Selects up to before @p nEndChar, to the end for -1; a start of -1 selects nothing. CB_ERR
    /// without a line edit.
    BOOL SetEditSel(int nStartChar, int nEndChar);
    /// Limits what can be typed, to no limit for 0; CB_ERR without a line edit.
    BOOL LimitText(int nMaxChars);
    /// @{
    /// Copies, cuts or pastes text in the line edit.
    void Copy();
    void Cut();
    void Paste();
    /// @}
    /// Shows a text while the box is empty; FALSE without a widget.
    BOOL SetCueBanner(const wchar_t* lpszText);
    /// @{
    /// The text shown while the box is empty.
    BOOL GetCueBanner(wchar_t* lpszText, int cchText) const;
    CString_E GetCueBanner() const;
    /// @}

    // The list that drops down

    /// Does nothing: the user drops the list.
    void ShowDropDown(BOOL bShowIt = TRUE);
    /// Whether the list is dropped.
    BOOL GetDroppedState() const;
    /// Fixes the width of the list and returns it.
    int SetDroppedWidth(UINT nWidth);
    /// The width of the list.
    int GetDroppedWidth() const;
    /// The box with its list dropped, in screen coordinates.
    void GetDroppedControlRect(tagRECT* pRect) const;
    /// Fixes the height of the line edit, whatever the index; CB_ERR without one.
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    /// Height of an item, of the text in the box for -1; CB_ERR without that item.
    int GetItemHeight(int nIndex) const;
    /// The first item in sight of the dropped list.
    int GetTopIndex() const;
    /// Scrolls the list; 0, or CB_ERR without that item.
    int SetTopIndex(int nIndex);
    /// How many items the list shows at once; FALSE for less than one.
    BOOL SetMinVisibleItems(int nMinVisibleItems);
    /// How many items the list shows at once.
    int GetMinVisible() const;
    /// FALSE without a combo box and for null.
    BOOL GetComboBoxInfo(COMBOBOXINFO* pInfo) const;

    BOOL OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
