#include <VxMFCEmu/ctrl/combobox.h>

#include "ctrl/vxcomboitems_p.h"
#include "wnd/vxcombotext_p.h"

#include <VxCustomUI.h>

#include <cmath>

IMPLEMENT_DYNCREATE_E(CComboBox_E, CWnd_E, QComboBox)

namespace {

using namespace vx::detail;

/// The text of a row as QComboBox::itemText() has it, without asking for the kind of the box anew.
auto itemTexts(const QComboBox& combo)
{
    return [pModel = combo.model(), nColumn = combo.modelColumn(),
            root = combo.rootModelIndex()](int nRow) {
        return pModel->index(nRow, nColumn, root).data(Qt::DisplayRole).toString();
    };
}

int find(const CComboBox_E& box, int nStart, const wchar_t* lpszString, bool bWhole)
{
    return askWidget<QComboBox>(box, CB_ERR, [&](auto& combo) {
        return bWhole ? findRow(nStart, combo.count(), itemTexts(combo), equalTo(lpszString))
                      : findRow(nStart, combo.count(), itemTexts(combo), beginningWith(lpszString));
    });
}

/// Whether an item's text counts as the one that is looked for.
class SelectedBy
{
public:
    explicit SelectedBy(const wchar_t* lpszString)
        : m_strText(VxQString(lpszString)), m_dNumber(m_strText.toDouble(&m_bNumber))
    {
    }
    bool operator()(const QString& strItem) const
    {
        if (strItem.compare(m_strText, Qt::CaseInsensitive) == 0)
            return true;
        bool bNumber = false;
        const double dItem = m_bNumber ? strItem.toDouble(&bNumber) : 0;
        // Intended: the difference counts in whole numbers, so that 2.5 finds 2.9.
        return bNumber && std::fabs(dItem - m_dNumber) < 1;
    }

private:
    QString m_strText;
    bool m_bNumber = false;
    double m_dNumber;
};

} // namespace

BOOL CComboBox_E::AttachDefault(QWidget* pParent)
{
    return attachNew<VxCUIComboBox>(*this, pParent);
}

BOOL CComboBox_E::Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent)
{
    if (!CWnd_E::Create(dwStyle & ~WS_VSCROLL, rect, pParent))
        return FALSE;
    auto* const pCombo = widgetOf<QComboBox>(*this);
    if (pCombo && (dwStyle & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST) {
        pCombo->setEditable(true);
        pCombo->setInsertPolicy(QComboBox::NoInsert);
        pCombo->setCompleter(nullptr);
    }
    return TRUE;
}

BOOL CComboBox_E::Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID)
{
    return createWithId(*this, pParent, nID,
                        [&](QWidget* pWidget) { return Create(dwStyle, rect, pWidget); });
}

int CComboBox_E::GetCount() const
{
    return askWidget<QComboBox>(*this, CB_ERR, [](auto& combo) { return combo.count(); });
}

int CComboBox_E::GetCurSel() const
{
    return askWidget<QComboBox>(*this, CB_ERR, [](auto& combo) { return combo.currentIndex(); });
}

int CComboBox_E::SetCurSel(int nSelect)
{
    return askWidget<QComboBox>(*this, CB_ERR, [nSelect](auto& combo) {
        const QSignalBlocker quiet(&combo);
        combo.setCurrentIndex(nSelect);
        return combo.currentIndex();
    });
}

int CComboBox_E::AddString(const wchar_t* lpszString) { return InsertString(-1, lpszString); }

int CComboBox_E::InsertString(int nIndex, const wchar_t* lpszString)
{
    return askWidget<QComboBox>(*this, CB_ERR, [&](auto& combo) {
        const int nCount = combo.count();
        const int nRow = insertionRow(nIndex, nCount);
        if (nRow < 0)
            return CB_ERR;
        if (nCount >= combo.maxCount())
            return CB_ERRSPACE;
        const QuietItems quiet(combo);
        combo.insertItem(nRow, VxQString(lpszString));
        if (nCount == 0)
            combo.setCurrentIndex(-1); // the widget selects the first item of all
        return nIndex == -1 ? combo.count() - 1 : nRow;
    });
}

int CComboBox_E::DeleteString(UINT nIndex)
{
    return askWidget<QComboBox>(*this, CB_ERR, [nIndex](auto& combo) {
        const int nRow = static_cast<int>(nIndex);
        if (!hasRow(combo, nRow))
            return CB_ERR;
        const bool isCurrent = nRow == combo.currentIndex();
        if (isCurrent && combo.currentText() == combo.itemText(nRow)) {
            const QSignalBlocker quiet(&combo);
            const QSignalBlocker quietEdit(combo.lineEdit());
            combo.setCurrentIndex(-1); // its text goes with it
        }
        const QuietItems quiet(combo); // what the user has typed stays
        if (isCurrent)
            combo.setCurrentIndex(-1);
        combo.removeItem(nRow);
        return combo.count();
    });
}

void CComboBox_E::ResetContent()
{
    auto* const pCombo = widgetOf<QComboBox>(*this);
    const QSignalBlocker quiet(pCombo);
    Clear();
}

void CComboBox_E::Clear()
{
    if (auto* const pCombo = widgetOf<QComboBox>(*this))
        pCombo->clear();
}

int CComboBox_E::FindString(int nStartAfter, const wchar_t* lpszString) const
{
    return find(*this, nStartAfter, lpszString, false);
}

int CComboBox_E::FindStringExact(int nIndexStart, const wchar_t* lpszFind) const
{
    return find(*this, nIndexStart, lpszFind, true);
}

int CComboBox_E::SelectString(int, const wchar_t* lpszString)
{
    return askWidget<QComboBox>(*this, CB_ERR, [&](auto& combo) {
        const int nRow = findRow(0, combo.count(), itemTexts(combo), SelectedBy(lpszString));
        if (nRow >= 0)
            SetCurSel(nRow);
        return nRow;
    });
}

int CComboBox_E::GetLBText(int nIndex, wchar_t* lpszText) const
{
    return askItem(*this, nIndex, CB_ERR,
                   [&](auto& combo) { return copyWhole(combo.itemText(nIndex), lpszText); });
}

int CComboBox_E::GetLBText(int nIndex, CString_E& rString) const
{
    rString = askWidget<QComboBox>(*this, QString(),
                                   [nIndex](auto& combo) { return combo.itemText(nIndex); });
    return askItem(*this, nIndex, CB_ERR, [&](auto&) { return rString.GetLength(); });
}

int CComboBox_E::GetLBTextLen(int nIndex) const
{
    return askItem(*this, nIndex, CB_ERR,
                   [nIndex](auto& combo) { return lengthOf(combo.itemText(nIndex)); });
}

int CComboBox_E::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    return askItem(*this, nIndex, CB_ERR, [&](auto& combo) {
        const QuietItems quiet(combo);
        combo.setItemData(nIndex, storedData(dwItemData));
        return CB_OKAY;
    });
}

DWORD_PTR CComboBox_E::GetItemData(int nIndex) const
{
    return askItem(*this, nIndex, kNoData,
                   [nIndex](auto& combo) { return dataIn(combo.itemData(nIndex)); });
}

int CComboBox_E::SetItemDataPtr(int nIndex, void* pData)
{
    return SetItemData(nIndex, dataOf(pData));
}

void* CComboBox_E::GetItemDataPtr(int nIndex) const { return pointerOf(GetItemData(nIndex)); }

int CComboBox_E::InitStorage(int nItems, UINT)
{
    return askWidget<QComboBox>(*this, CB_ERR, [nItems](auto&) { return nItems; });
}

void CComboBox_E::SetWindowText(const wchar_t* lpszString)
{
    if (auto* const pCombo = widgetOf<QComboBox>(*this))
        showComboText(*pCombo, VxQString(lpszString));
}
