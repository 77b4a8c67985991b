#include <VxMFCEmu/ctrl/checklistbox.h>

#include "ctrl/vxlistitems_p.h"

IMPLEMENT_DYNCREATE_E(CCheckListBox_E, CListBox_E, QListWidget)

namespace {

using namespace vx::detail;

constexpr char kCheckStyle[] = "checkStyle";

void applyStyle(QListWidgetItem& item, UINT nStyle)
{
    const bool bAuto = nStyle == BS_AUTOCHECKBOX || nStyle == BS_AUTO3STATE;
    Qt::ItemFlags flags = item.flags();
    flags.setFlag(Qt::ItemIsUserCheckable, bAuto);
    flags.setFlag(Qt::ItemIsUserTristate, nStyle == BS_AUTO3STATE);
    item.setFlags(flags);
    if (item.data(Qt::CheckStateRole).isNull())
        item.setCheckState(Qt::Unchecked);
}

Qt::CheckState checkState(int nCheck)
{
    switch (nCheck) {
    case BST_UNCHECKED:
        return Qt::Unchecked;
    case BST_CHECKED:
        return Qt::Checked;
    default:
        return Qt::PartiallyChecked;
    }
}

} // namespace

void CCheckListBox_E::SetCheckStyle(UINT nStyle)
{
    auto* const pList = widgetOf<QListWidget>(*this);
    if (!pList)
        return;
    pList->setProperty(kCheckStyle, nStyle);
    const QSignalBlocker quiet(pList);
    for (int nRow = 0; nRow < pList->count(); ++nRow)
        applyStyle(*pList->item(nRow), nStyle);
}

UINT CCheckListBox_E::GetCheckStyle() const
{
    return askWidget<QListWidget>(*this, 0U, [](auto& list) {
        const QVariant style = list.property(kCheckStyle);
        return style.isValid() ? style.toUInt() : BS_AUTOCHECKBOX;
    });
}

void CCheckListBox_E::SetCheck(int nIndex, int nCheck)
{
    askListItem(*this, nIndex, false, [nCheck](auto&, auto& item) {
        item.setCheckState(checkState(nCheck));
        return true;
    });
}

int CCheckListBox_E::GetCheck(int nIndex) const
{
    return askListItem<int>(*this, nIndex, BST_INDETERMINATE, [](auto&, auto& item) {
        switch (item.checkState()) {
        case Qt::Unchecked:
            return BST_UNCHECKED;
        case Qt::Checked:
            return BST_CHECKED;
        default:
            return BST_INDETERMINATE;
        }
    });
}

void CCheckListBox_E::Enable(int nIndex, BOOL bEnabled)
{
    askListItem(*this, nIndex, false, [bEnabled](auto&, auto& item) {
        Qt::ItemFlags flags = item.flags();
        item.setFlags(flags.setFlag(Qt::ItemIsEnabled, bEnabled != FALSE));
        return true;
    });
}

BOOL CCheckListBox_E::IsEnabled(int nIndex) const
{
    return askListItem(*this, nIndex, FALSE,
                       [](auto&, auto& item) { return item.flags().testFlag(Qt::ItemIsEnabled); });
}

QListWidgetItem* CCheckListBox_E::MakeItem(const QString& strText) const
{
    QListWidgetItem* const pItem = CListBox_E::MakeItem(strText);
    applyStyle(*pItem, GetCheckStyle());
    return pItem;
}
