#include <VxMFCEmu/ctrl/comboboxex.h>

#include "ctrl/vxcomboitems_p.h"

#include <VxMFCEmu/gdi/imagelist.h>

#include <QtGui/QImage>

IMPLEMENT_DYNCREATE_E(CComboBoxEx_E, CComboBox_E, QComboBox)

namespace {

using namespace vx::detail;

using Row = ControlMessage<CComboBoxEx_E>;

constexpr char kImageList[] = "imageList";
constexpr int kImageRole = Qt::UserRole + 1;
constexpr int kNoImage = -1;
/// Of the text that can be typed into.
constexpr INT_PTR kEditItem = -1;

/// The members that an item of the widget keeps as numbers of its own.
struct NumberRow
{
    UINT mask;
    int role;
    int COMBOBOXEXITEM::*pMember;
};

constexpr NumberRow kNumbers[] = {
    {CBEIF_IMAGE, kImageRole, &COMBOBOXEXITEM::iImage},
    {CBEIF_SELECTEDIMAGE, kImageRole + 1, &COMBOBOXEXITEM::iSelectedImage},
    {CBEIF_OVERLAY, kImageRole + 2, &COMBOBOXEXITEM::iOverlay},
    {CBEIF_INDENT, kImageRole + 3, &COMBOBOXEXITEM::iIndent},
};

/// Null for what is no text: call-backs give -1.
const wchar_t* textIn(const COMBOBOXEXITEM& item)
{
    const bool bCallback = reinterpret_cast<std::intptr_t>(item.pszText) == -1;
    return item.mask & CBEIF_TEXT && !bCallback ? item.pszText : nullptr;
}

QIcon iconFrom(const CImageList_E* pImageList, int nImage)
{
    tagIMAGEINFO info{};
    if (!pImageList || !pImageList->GetImageInfo(nImage, &info))
        return {};
    return QIcon(QPixmap::fromImage(*static_cast<const QImage*>(info.hbmImage)));
}

void showImage(QComboBox& combo, int nRow, const CImageList_E* pImageList)
{
    const QVariant image = combo.itemData(nRow, kImageRole);
    combo.setItemIcon(nRow, iconFrom(pImageList, image.isValid() ? image.toInt() : kNoImage));
}

/// Stores what the mask names, but for the text.
void store(QComboBox& combo, int nRow, const COMBOBOXEXITEM& item, const CImageList_E* pImageList)
{
    const QuietItems quiet(combo);
    for (const NumberRow& row : kNumbers) {
        if (item.mask & row.mask)
            combo.setItemData(nRow, item.*row.pMember, row.role);
    }
    if (item.mask & CBEIF_LPARAM)
        combo.setItemData(nRow, storedData(static_cast<DWORD_PTR>(item.lParam)));
    if (item.mask & CBEIF_IMAGE)
        showImage(combo, nRow, pImageList);
}

/// The row that an item means; -1 when it is not there.
int rowOf(const QComboBox& combo, INT_PTR iItem)
{
    return iItem >= 0 && iItem < combo.count() ? static_cast<int>(iItem) : -1;
}

LRESULT windowResult(QWidget* pWidget) { return reinterpret_cast<LRESULT>(pWidget); }

LRESULT listResult(const CImageList_E* pImageList)
{
    return reinterpret_cast<LRESULT>(pImageList ? pImageList->GetSafeHandle() : nullptr);
}

// clang-format off
constexpr Row kMessages[] = {
    {CBEM_SETIMAGELIST,    [](auto& box, WPARAM, LPARAM l) { return listResult(box.SetImageList(CImageList_E::FromHandlePermanent(pointerIn<void>(l)))); }},
    {CBEM_GETIMAGELIST,    [](auto& box, WPARAM, LPARAM) { return listResult(box.GetImageList()); }},
    {CBEM_GETCOMBOCONTROL, [](auto& box, WPARAM, LPARAM) { return windowResult(box.GetSafeHwnd()); }},
    {CBEM_GETEDITCONTROL,  [](auto& box, WPARAM, LPARAM) { return windowResult(box.GetEditBox()); }},
    {CBEM_HASEDITCHANGED,  answerPlain<&CComboBoxEx_E::HasEditChanged, CComboBoxEx_E>},
    {CBEM_INSERTITEM,      [](auto& box, WPARAM, LPARAM l) -> LRESULT { return box.InsertItem(pointerIn<COMBOBOXEXITEM>(l)); }},
    {CBEM_SETITEM,         [](auto& box, WPARAM, LPARAM l) -> LRESULT { return box.SetItem(pointerIn<COMBOBOXEXITEM>(l)); }},
    {CBEM_GETITEM,         [](auto& box, WPARAM, LPARAM l) -> LRESULT { return box.GetItem(pointerIn<COMBOBOXEXITEM>(l)); }},
};
// clang-format on

} // namespace

int CComboBoxEx_E::InsertItem(const COMBOBOXEXITEM* pCBItem)
{
    auto* const pCombo = widgetOf<QComboBox>(*this);
    if (!pCombo || !pCBItem || pCBItem->iItem < -1 || pCBItem->iItem > pCombo->count())
        return CB_ERR;
    const int nRow = InsertString(static_cast<int>(pCBItem->iItem), textIn(*pCBItem));
    if (nRow >= 0)
        store(*pCombo, nRow, *pCBItem, GetImageList());
    return nRow;
}

BOOL CComboBoxEx_E::SetItem(const COMBOBOXEXITEM* pCBItem)
{
    return askWidget<QComboBox>(*this, FALSE, [&](auto& combo) {
        if (!pCBItem)
            return FALSE;
        if (pCBItem->iItem == kEditItem) {
            if (pCBItem->mask & CBEIF_TEXT)
                SetWindowText(textIn(*pCBItem));
            return combo.isEditable() ? TRUE : FALSE;
        }
        const int nRow = rowOf(combo, pCBItem->iItem);
        if (nRow < 0)
            return FALSE;
        store(combo, nRow, *pCBItem, GetImageList());
        if (pCBItem->mask & CBEIF_TEXT) {
            const QSignalBlocker quiet(&combo);
            combo.setItemText(nRow, VxQString(textIn(*pCBItem)));
        }
        return TRUE;
    });
}

BOOL CComboBoxEx_E::GetItem(COMBOBOXEXITEM* pCBItem) const
{
    return askWidget<QComboBox>(*this, FALSE, [pCBItem](auto& combo) {
        const bool bEdit = pCBItem && pCBItem->iItem == kEditItem;
        if (!pCBItem || (bEdit && !combo.isEditable()) ||
            (!bEdit && rowOf(combo, pCBItem->iItem) < 0))
            return FALSE;
        const int nRow = bEdit ? combo.currentIndex() : rowOf(combo, pCBItem->iItem);
        if (pCBItem->mask & CBEIF_TEXT) {
            copyTerminated(bEdit ? combo.currentText() : combo.itemText(nRow), pCBItem->pszText,
                           pCBItem->cchTextMax);
        }
        for (const NumberRow& row : kNumbers) {
            if (pCBItem->mask & row.mask)
                pCBItem->*row.pMember = combo.itemData(nRow, row.role).toInt();
        }
        if (pCBItem->mask & CBEIF_LPARAM)
            pCBItem->lParam = combo.itemData(nRow).toLongLong();
        return TRUE;
    });
}

int CComboBoxEx_E::DeleteItem(UINT iIndex) { return DeleteString(iIndex); }

CImageList_E* CComboBoxEx_E::SetImageList(CImageList_E* pImageList)
{
    CImageList_E* const pBefore = GetImageList();
    if (auto* const pCombo = widgetOf<QComboBox>(*this)) {
        pCombo->setProperty(kImageList, QVariant::fromValue(QPointer<CImageList_E>(pImageList)));
        const QuietItems quiet(*pCombo);
        for (int nRow = 0; nRow < pCombo->count(); ++nRow)
            showImage(*pCombo, nRow, pImageList);
    }
    return pBefore;
}

CImageList_E* CComboBoxEx_E::GetImageList() const
{
    return askWidget<QComboBox>(*this, static_cast<CImageList_E*>(nullptr), [](auto& combo) {
        return combo.property(kImageList).template value<QPointer<CImageList_E>>().data();
    });
}

BOOL CComboBoxEx_E::HasEditChanged() const
{
    const QLineEdit* const pEdit = GetEditBox();
    return pEdit && pEdit->isModified();
}

BOOL CComboBoxEx_E::OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return answerFromTable(kMessages, *this, message, wParam, lParam, pResult) ||
           CComboBox_E::OnControlMessage(message, wParam, lParam, pResult);
}
