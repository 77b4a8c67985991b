/// @file listbox.h
/// CListBox_E: a list box.
///
/// Differs from MFC: LBS_SORT is not honoured, LBS_MULTIPLESEL is the only style that sets how
/// items are selected; FindString() wraps around and looks at its start last, SelectString() wants
/// the exact text and takes its start in; an item that was never given data has -1;
/// ItemFromPoint() knows no nearest item. A height belongs to one item. Owner drawing, tab stops,
/// columns and files are not done.
///
/// Only DeleteString(), ResetContent() and SetItemData() keep the widget's signals back. A control
/// of another class and one without a widget give LB_ERR, or what a member says, and change
/// nothing. Texts may be null, which counts as empty.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/wnd/controlmessages.h>
#include <VxMFCEmu/wnd/window.h>

QT_BEGIN_NAMESPACE
class QListWidgetItem;
QT_END_NAMESPACE

/// A list box.
class VXMFC_EXPORT CListBox_E : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CListBox_E)

    BOOL AttachDefault(QWidget* pParent) override;
    using CWnd_E::Create;
    /// @{
    /// Makes the list below @p pParent, at @p rect in its coordinates; LBS_MULTIPLESEL lets each
    /// item be selected on its own. WS_VSCROLL and WS_HSCROLL add nothing: the list has its own
    /// scroll bars.
    BOOL Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent);
    BOOL Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID);
    /// @}

    // Items

    /// The number of items; LB_ERR without a widget.
    int GetCount() const;
    /// Appends an item and returns its index, which is another one in a list that its form sorts.
    int AddString(const wchar_t* lpszItem);
    /// Inserts an item, at the end for -1, and returns its index; LB_ERR beyond the end.
    int InsertString(int nIndex, const wchar_t* lpszItem);
    /// Deletes an item with the widget that is shown in it, and returns the number of items left;
    /// LB_ERR without that item. No item is current once the current one is gone.
    int DeleteString(UINT nIndex);
    /// Deletes all items.
    void ResetContent();
    /// @{
    /// Length of an item's text, which goes to a buffer that must hold it; LB_ERR without that
    /// item.
    int GetText(int nIndex, wchar_t* lpszBuffer) const;
    int GetText(int nIndex, CString_E& rString) const;
    int GetTextLen(int nIndex) const;
    /// @}
    /// Gives an item a number; LB_ERR without that item.
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    /// An item's number; -1 when it was given none and without that item.
    DWORD_PTR GetItemData(int nIndex) const;
    /// @{
    /// The same for a pointer, which takes the number's place; null without one.
    int SetItemDataPtr(int nIndex, void* pData);
    void* GetItemDataPtr(int nIndex) const;
    /// @}
    /// Nothing to prepare: returns @p nItems.
    int InitStorage(int nItems, UINT nBytes);
    /// The next item after @p nStartAfter, from the top again behind the last one, that begins with
    /// the text in any case; LB_ERR when there is none.
    int FindString(int nStartAfter, const wchar_t* lpszItem) const;
    /// The same for items that equal the text in any case.
    int FindStringExact(int nIndexStart, const wchar_t* lpszFind) const;

    // Selection

    /// Index of the current item; -1 for none.
    int GetCurSel() const;
    /// Makes an item current, none for an index that is not there. Returns the index when that item
    /// is current then, else LB_ERR.
    int SetCurSel(int nSelect);
    /// Makes the first item, from @p nStartAfter itself on, that equals the text exactly the
    /// current one and returns its index; LB_ERR when there is none.
    int SelectString(int nStartAfter, const wchar_t* lpszItem);
    /// Above 0 when the item is selected; LB_ERR without it.
    int GetSel(int nIndex) const;
    /// Selects an item or not, all of them for -1; LB_ERR without it and when only one can be.
    int SetSel(int nIndex, BOOL bSelect = TRUE);
    /// The same for the items of a range, whose ends may lie outside of the list.
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem);
    /// Number of selected items; LB_ERR in a list for a single selection.
    int GetSelCount() const;
    /// Writes the indexes of the first @p nMaxItems selected items, from the top, and returns how
    /// many these are.
    int GetSelItems(int nMaxItems, int* rgIndex) const;
    /// The item with the keyboard's focus.
    int GetCaretIndex() const;
    /// Moves the keyboard's focus without selecting; LB_ERR without that item.
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE);

    // Place

    /// Where an item is in the list's area; right and bottom are exclusive. LB_ERR without that
    /// item.
    int GetItemRect(int nIndex, tagRECT* pRect) const;
    /// The item at a point; -1 for none, which sets @p bOutside too.
    int ItemFromPoint(CPoint_E pt, BOOL& bOutside) const;
    /// The first item in sight.
    int GetTopIndex() const;
    /// Scrolls the list; 0, or LB_ERR without that item.
    int SetTopIndex(int nIndex);
    /// The height of an item in pixels; LB_ERR without that item.
    int GetItemHeight(int nIndex) const;
    /// 0, or LB_ERR without that item.
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    /// @{
    /// Do nothing: the list measures its items.
    void SetHorizontalExtent(int cxExtent);
    void SetTabStops();
    BOOL SetTabStops(int cxEachStop);
    BOOL SetTabStops(int nTabStops, int* rgTabStops);
    /// @}
    /// The width of what the list can be scrolled over.
    int GetHorizontalExtent() const;
    /// Does nothing and returns 0.
    DWORD GetListBoxInfo() const;

    BOOL OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

protected:
    /// A new item of this kind of list, owned by the caller.
    virtual QListWidgetItem* MakeItem(const QString& strText) const;
};
