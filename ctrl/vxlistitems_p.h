// Not part of the public interface. How the sources of the list boxes reach the items.
#pragma once

#include "ctrl/vxitems_p.h"

#include <QtWidgets/QListWidget>

namespace vx::detail {

/// The result of @p ask for the list and its item in the row, @p failure without them.
template <typename Result, typename Ask>
Result askListItem(const CWnd_E& control, int nRow, Result failure, Ask ask)
{
    auto* const pList = widgetOf<QListWidget>(control);
    QListWidgetItem* const pItem = pList ? pList->item(nRow) : nullptr;
    return pItem ? static_cast<Result>(ask(*pList, *pItem)) : failure;
}

inline bool selectsSeveral(const QListWidget& list)
{
    return list.selectionMode() != QAbstractItemView::SingleSelection &&
           list.selectionMode() != QAbstractItemView::NoSelection;
}

} // namespace vx::detail
