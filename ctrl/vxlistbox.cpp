#include <VxMFCEmu/ctrl/listbox.h>

#include "ctrl/vxlistitems_p.h"

#include <QtCore/QSignalBlocker>

IMPLEMENT_DYNCREATE_E(CListBox_E, CWnd_E, QListWidget)

namespace {

using namespace vx::detail;

/// The first row after @p nStart, or else of all, whose text @p matches.
template <typename Matches>
int findAround(const QListWidget& list, int nStart, Matches matches)
{
    const auto textOf = [&list](int nRow) { return list.item(nRow)->text(); };
    const int nCount = list.count();
    const int nNext = nStart < 0 || nStart >= nCount ? 0 : nStart + 1;
    const int nRow = findRow(nNext, nCount, textOf, matches);
    return nRow >= 0 ? nRow : findRow(0, nNext, textOf, matches);
}

/// Inserts an item and returns its row, which is another one in a list that sorts its items.
int insertInto(QListWidget& list, int nRow, QListWidgetItem* pItem)
{
    list.insertItem(nRow, pItem);
    return list.isSortingEnabled() ? list.row(pItem) : nRow;
}

} // namespace

BOOL CListBox_E::AttachDefault(QWidget* pParent) { return attachNew<QListWidget>(*this, pParent); }

BOOL CListBox_E::Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent)
{
    if (!CWnd_E::Create(dwStyle & ~(WS_VSCROLL | WS_HSCROLL), rect, pParent))
        return FALSE;
    m_dwStyle |= dwStyle;
    if (auto* const pList = widgetOf<QListWidget>(*this); pList && dwStyle & LBS_MULTIPLESEL)
        pList->setSelectionMode(QAbstractItemView::MultiSelection);
    return TRUE;
}

BOOL CListBox_E::Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID)
{
    return createWithId(*this, pParent, nID,
                        [&](QWidget* pWidget) { return Create(dwStyle, rect, pWidget); });
}

QListWidgetItem* CListBox_E::MakeItem(const QString& strText) const
{
    return new QListWidgetItem(strText);
}

int CListBox_E::GetCount() const
{
    return askWidget<QListWidget>(*this, LB_ERR, [](auto& list) { return list.count(); });
}

int CListBox_E::AddString(const wchar_t* lpszItem)
{
    return askWidget<QListWidget>(*this, LB_ERR, [&](auto& list) {
        return insertInto(list, list.count(), MakeItem(VxQString(lpszItem)));
    });
}

int CListBox_E::InsertString(int nIndex, const wchar_t* lpszItem)
{
    return askWidget<QListWidget>(*this, LB_ERR, [&](auto& list) {
        const int nRow = insertionRow(nIndex, list.count());
        return nRow < 0 ? LB_ERR : insertInto(list, nRow, MakeItem(VxQString(lpszItem)));
    });
}

int CListBox_E::DeleteString(UINT nIndex)
{
    const int nRow = static_cast<int>(nIndex);
    return askListItem(*this, nRow, LB_ERR, [nRow](auto& list, auto& item) {
        if (list.currentRow() == nRow) {
            const QSignalBlocker quiet(&list);
            // The widget would go on to the next item. What else is selected stays so.
            list.setCurrentRow(-1, QItemSelectionModel::NoUpdate);
        }
        list.removeItemWidget(&item);
        delete &item;
        return list.count();
    });
}

void CListBox_E::ResetContent()
{
    if (auto* const pList = widgetOf<QListWidget>(*this)) {
        const QSignalBlocker quiet(pList);
        pList->clear();
    }
}

int CListBox_E::GetText(int nIndex, wchar_t* lpszBuffer) const
{
    return askListItem(*this, nIndex, LB_ERR, [lpszBuffer](auto&, auto& item) {
        return copyWhole(item.text(), lpszBuffer);
    });
}

int CListBox_E::GetText(int nIndex, CString_E& rString) const
{
    rString.Empty();
    return askListItem(*this, nIndex, LB_ERR, [&rString](auto&, auto& item) {
        rString = item.text();
        return rString.GetLength();
    });
}

int CListBox_E::GetTextLen(int nIndex) const
{
    return askListItem(*this, nIndex, LB_ERR,
                       [](auto&, auto& item) { return lengthOf(item.text()); });
}

int CListBox_E::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    return askListItem(*this, nIndex, LB_ERR, [dwItemData](auto& list, auto& item) {
        const QSignalBlocker quiet(&list); // itemChanged() tells of what can be seen
        item.setData(Qt::UserRole, storedData(dwItemData));
        return LB_OKAY;
    });
}

DWORD_PTR CListBox_E::GetItemData(int nIndex) const
{
    return askListItem(*this, nIndex, kNoData, [](auto&, auto& item) {
        const QVariant stored = item.data(Qt::UserRole);
        return stored.isValid() ? dataIn(stored) : kNoData;
    });
}

int CListBox_E::SetItemDataPtr(int nIndex, void* pData)
{
    return SetItemData(nIndex, dataOf(pData));
}

void* CListBox_E::GetItemDataPtr(int nIndex) const { return pointerOf(GetItemData(nIndex)); }

int CListBox_E::InitStorage(int nItems, UINT)
{
    return askWidget<QListWidget>(*this, LB_ERR, [nItems](auto&) { return nItems; });
}

int CListBox_E::FindString(int nStartAfter, const wchar_t* lpszItem) const
{
    return askWidget<QListWidget>(*this, LB_ERR, [&](auto& list) {
        return findAround(list, nStartAfter, beginningWith(lpszItem));
    });
}

int CListBox_E::FindStringExact(int nIndexStart, const wchar_t* lpszFind) const
{
    return askWidget<QListWidget>(*this, LB_ERR, [&](auto& list) {
        return findAround(list, nIndexStart, equalTo(lpszFind));
    });
}
