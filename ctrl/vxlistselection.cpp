#include <VxMFCEmu/ctrl/listbox.h>

#include "ctrl/vxlistitems_p.h"
#include "wnd/vxgeometryconvert_p.h"

#include <QtWidgets/QScrollBar>

namespace {

using namespace vx::detail;

/// The selected rows, from the top.
std::vector<int> selectedRows(const QListWidget& list)
{
    std::vector<int> rows;
    const QModelIndexList indexes = list.selectionModel()->selectedIndexes();
    rows.reserve(static_cast<std::size_t>(indexes.size()));
    for (const QModelIndex& index : indexes)
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void selectRows(const QListWidget& list, int nFirst, int nLast, bool bSelect)
{
    const QAbstractItemModel* const pModel = list.model();
    list.selectionModel()->select({pModel->index(nFirst, 0), pModel->index(nLast, 0)},
                                  bSelect ? QItemSelectionModel::Select
                                          : QItemSelectionModel::Deselect);
}

} // namespace

int CListBox_E::GetCurSel() const
{
    return askWidget<QListWidget>(*this, LB_ERR, [](auto& list) { return list.currentRow(); });
}

int CListBox_E::SetCurSel(int nSelect)
{
    return askWidget<QListWidget>(*this, LB_ERR, [nSelect](auto& list) {
        list.setCurrentRow(nSelect);
        return list.currentRow() == nSelect ? nSelect : LB_ERR;
    });
}

int CListBox_E::SelectString(int nStartAfter, const wchar_t* lpszItem)
{
    return askWidget<QListWidget>(*this, LB_ERR, [&](auto& list) {
        // Intended: the start itself counts, and the case too, unlike in FindString().
        const int nRow = findRow(
            nStartAfter, list.count(), [&list](int i) { return list.item(i)->text(); },
            [strText = VxQString(lpszItem)](const QString& str) { return str == strText; });
        if (nRow >= 0)
            list.setCurrentRow(nRow);
        return nRow;
    });
}

int CListBox_E::GetSel(int nIndex) const
{
    return askListItem(*this, nIndex, LB_ERR, [](auto&, auto& item) { return item.isSelected(); });
}

int CListBox_E::SetSel(int nIndex, BOOL bSelect)
{
    if (nIndex == -1)
        return SelItemRange(bSelect, 0, INT_MAX);
    return askListItem(*this, nIndex, LB_ERR, [&](auto& list, auto&) {
        if (!selectsSeveral(list))
            return LB_ERR;
        selectRows(list, nIndex, nIndex, bSelect != FALSE);
        return LB_OKAY;
    });
}

int CListBox_E::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem)
{
    return askWidget<QListWidget>(*this, LB_ERR, [&](auto& list) {
        if (!selectsSeveral(list))
            return LB_ERR;
        const int nFirst = std::max(nFirstItem, 0);
        const int nLast = std::min(nLastItem, list.count() - 1);
        if (nFirst <= nLast)
            selectRows(list, nFirst, nLast, bSelect != FALSE);
        return LB_OKAY;
    });
}

int CListBox_E::GetSelCount() const
{
    return askWidget<QListWidget>(*this, LB_ERR, [](auto& list) {
        return list.selectionMode() == QAbstractItemView::SingleSelection
                   ? LB_ERR
                   : list.selectionModel()->selectedIndexes().size();
    });
}

int CListBox_E::GetSelItems(int nMaxItems, int* rgIndex) const
{
    return askWidget<QListWidget>(*this, LB_ERR, [&](auto& list) {
        const std::vector<int> rows = selectedRows(list);
        const int nItems = std::min(rgIndex ? nMaxItems : 0, static_cast<int>(rows.size()));
        std::copy_n(rows.begin(), std::max(nItems, 0), rgIndex);
        return std::max(nItems, 0);
    });
}

int CListBox_E::GetCaretIndex() const { return GetCurSel(); }

int CListBox_E::SetCaretIndex(int nIndex, BOOL)
{
    return askListItem(*this, nIndex, LB_ERR, [nIndex](auto& list, auto&) {
        list.setCurrentRow(nIndex, QItemSelectionModel::NoUpdate);
        return LB_OKAY;
    });
}

int CListBox_E::GetItemRect(int nIndex, tagRECT* pRect) const
{
    return askListItem(*this, nIndex, LB_ERR, [pRect](auto& list, auto& item) {
        if (pRect)
            *pRect = toRect(list.visualItemRect(&item));
        return pRect ? LB_OKAY : LB_ERR;
    });
}

int CListBox_E::ItemFromPoint(CPoint_E pt, BOOL& bOutside) const
{
    const int nRow = askWidget<QListWidget>(
        *this, LB_ERR, [&pt](auto& list) { return list.row(list.itemAt(fromPoint(pt))); });
    bOutside = nRow < 0;
    return nRow;
}

int CListBox_E::GetTopIndex() const
{
    return askWidget<QListWidget>(
        *this, LB_ERR, [](auto& list) { return std::max(list.indexAt(QPoint(0, 0)).row(), 0); });
}

int CListBox_E::SetTopIndex(int nIndex)
{
    return askListItem(*this, nIndex, LB_ERR, [](auto& list, auto& item) {
        list.scrollToItem(&item, QAbstractItemView::PositionAtTop);
        return LB_OKAY;
    });
}

int CListBox_E::GetItemHeight(int nIndex) const
{
    return askListItem(*this, nIndex, LB_ERR,
                       [nIndex](auto& list, auto&) { return list.sizeHintForRow(nIndex); });
}

int CListBox_E::SetItemHeight(int nIndex, UINT cyItemHeight)
{
    return askListItem(*this, nIndex, LB_ERR, [&](auto& list, auto& item) {
        const int nWidth = list.sizeHintForIndex(list.model()->index(nIndex, 0)).width();
        item.setSizeHint({nWidth, clampExtent(cyItemHeight)});
        return LB_OKAY;
    });
}

void CListBox_E::SetHorizontalExtent(int) {}

void CListBox_E::SetTabStops() {}

BOOL CListBox_E::SetTabStops(int) { return FALSE; }

BOOL CListBox_E::SetTabStops(int, int*) { return FALSE; }

int CListBox_E::GetHorizontalExtent() const
{
    return askWidget<QListWidget>(*this, 0, [](auto& list) {
        return list.horizontalScrollBar()->maximum() + list.viewport()->width();
    });
}

DWORD CListBox_E::GetListBoxInfo() const { return 0; }
