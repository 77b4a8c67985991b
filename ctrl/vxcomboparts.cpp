#include <VxMFCEmu/ctrl/combobox.h>

#include "ctrl/vxcomboitems_p.h"
#include "wnd/vxgeometryconvert_p.h"

#include <VxMFCEmu/wnd/windowtext.h>

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QStyleOptionComboBox>

namespace {

using namespace vx::detail;

template <typename Result, typename Ask>
Result askEdit(const CComboBox_E& box, Result failure, Ask ask)
{
    QLineEdit* const pEdit = box.GetEditBox();
    return pEdit ? static_cast<Result>(ask(*pEdit)) : failure;
}

/// Where the style draws a part of the box.
tagRECT partOf(const QComboBox& combo, QStyle::SubControl part)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    option.frame = combo.hasFrame();
    return toRect(combo.style()->subControlRect(QStyle::CC_ComboBox, &option, part, &combo));
}

QString cueOf(const QComboBox& combo)
{
    const QLineEdit* const pEdit = combo.lineEdit();
    return pEdit ? pEdit->placeholderText() : combo.placeholderText();
}

int droppedHeight(const QComboBox& combo)
{
    const int nRows = std::min(combo.count(), combo.maxVisibleItems());
    return nRows > 0 ? nRows * combo.view()->sizeHintForRow(0) : 0;
}

} // namespace

QLineEdit* CComboBox_E::GetEditBox() const
{
    return askWidget<QComboBox>(*this, static_cast<QLineEdit*>(nullptr),
                                [](auto& combo) { return combo.lineEdit(); });
}

DWORD CComboBox_E::GetEditSel() const
{
    return askEdit(*this, static_cast<DWORD>(CB_ERR), [](auto& edit) {
        if (!edit.hasSelectedText())
            return MAKELONG(edit.cursorPosition(), edit.cursorPosition());
        return MAKELONG(edit.selectionStart(), edit.selectionEnd());
    });
}

BOOL CComboBox_E::SetEditSel(int nStartChar, int nEndChar)
{
    return askEdit(*this, CB_ERR, [&](auto& edit) {
        const int nLength = edit.text().size();
        const int nStart = std::min(nStartChar, nLength);
        const int nEnd = nEndChar < 0 ? nLength : std::min(nEndChar, nLength);
        if (nStart < 0)
            edit.deselect();
        else
            edit.setSelection(nStart, nEnd - nStart);
        return TRUE;
    });
}

BOOL CComboBox_E::LimitText(int nMaxChars)
{
    return askEdit(*this, CB_ERR,
                   [&](auto&) { return SetEditLimitText_E(GetSafeHwnd(), nMaxChars); });
}

void CComboBox_E::Copy()
{
    if (QLineEdit* const pEdit = GetEditBox())
        pEdit->copy();
}

void CComboBox_E::Cut()
{
    if (QLineEdit* const pEdit = GetEditBox())
        pEdit->cut();
}

void CComboBox_E::Paste()
{
    if (QLineEdit* const pEdit = GetEditBox())
        pEdit->paste();
}

BOOL CComboBox_E::SetCueBanner(const wchar_t* lpszText)
{
    return askWidget<QComboBox>(*this, FALSE, [lpszText](auto& combo) {
        if (QLineEdit* const pEdit = combo.lineEdit())
            pEdit->setPlaceholderText(VxQString(lpszText));
        else
            combo.setPlaceholderText(VxQString(lpszText));
        return TRUE;
    });
}

CString_E CComboBox_E::GetCueBanner() const
{
    return askWidget<QComboBox>(*this, QString(), cueOf);
}

BOOL CComboBox_E::GetCueBanner(wchar_t* lpszText, int cchText) const
{
    return askWidget<QComboBox>(*this, FALSE, [&](auto& combo) {
        copyTerminated(cueOf(combo), lpszText, cchText);
        return lpszText && cchText > 0;
    });
}

void CComboBox_E::ShowDropDown(BOOL) {}

BOOL CComboBox_E::GetDroppedState() const
{
    return askWidget<QComboBox>(*this, FALSE,
                                [](auto& combo) { return combo.view()->isVisible(); });
}

int CComboBox_E::SetDroppedWidth(UINT nWidth)
{
    return askWidget<QComboBox>(*this, CB_ERR, [nWidth](auto& combo) {
        combo.view()->setFixedWidth(clampExtent(nWidth));
        return combo.view()->width();
    });
}

int CComboBox_E::GetDroppedWidth() const
{
    return askWidget<QComboBox>(*this, CB_ERR, [](auto& combo) { return combo.view()->width(); });
}

void CComboBox_E::GetDroppedControlRect(tagRECT* pRect) const
{
    if (!pRect)
        return;
    const QRect rect = askWidget<QComboBox>(*this, QRect(), [](auto& combo) {
        const QRect box(combo.mapToGlobal(QPoint()), combo.size());
        return combo.view()->isVisible() ? box | combo.view()->window()->frameGeometry()
                                         : box.adjusted(0, 0, 0, droppedHeight(combo));
    });
    *pRect = toRect(rect);
}

int CComboBox_E::SetItemHeight(int, UINT cyItemHeight)
{
    return askEdit(*this, CB_ERR, [cyItemHeight](auto& edit) {
        edit.setFixedHeight(clampExtent(cyItemHeight));
        return CB_OKAY;
    });
}

int CComboBox_E::GetItemHeight(int nIndex) const
{
    return askWidget<QComboBox>(*this, CB_ERR, [nIndex](auto& combo) {
        if (nIndex != -1)
            return hasRow(combo, nIndex) ? combo.view()->sizeHintForRow(nIndex) : CB_ERR;
        return combo.lineEdit() ? combo.lineEdit()->height() : combo.height();
    });
}

int CComboBox_E::GetTopIndex() const
{
    return askWidget<QComboBox>(*this, CB_ERR, [](auto& combo) {
        return std::max(combo.view()->indexAt(QPoint(0, 0)).row(), 0);
    });
}

int CComboBox_E::SetTopIndex(int nIndex)
{
    return askItem(*this, nIndex, CB_ERR, [nIndex](auto& combo) {
        const auto index =
            combo.model()->index(nIndex, combo.modelColumn(), combo.rootModelIndex());
        combo.view()->scrollTo(index, QAbstractItemView::PositionAtTop);
        return CB_OKAY;
    });
}

BOOL CComboBox_E::SetMinVisibleItems(int nMinVisibleItems)
{
    return askWidget<QComboBox>(*this, FALSE, [nMinVisibleItems](auto& combo) {
        if (nMinVisibleItems > 0)
            combo.setMaxVisibleItems(nMinVisibleItems);
        return nMinVisibleItems > 0;
    });
}

int CComboBox_E::GetMinVisible() const
{
    return askWidget<QComboBox>(*this, 0, [](auto& combo) { return combo.maxVisibleItems(); });
}

BOOL CComboBox_E::GetComboBoxInfo(COMBOBOXINFO* pInfo) const
{
    return askWidget<QComboBox>(*this, FALSE, [pInfo](auto& combo) {
        if (!pInfo)
            return FALSE;
        *pInfo = {sizeof(COMBOBOXINFO),
                  partOf(combo, QStyle::SC_ComboBoxEditField),
                  partOf(combo, QStyle::SC_ComboBoxArrow),
                  combo.view()->isVisible() ? STATE_SYSTEM_PRESSED : 0,
                  &combo,
                  combo.lineEdit(),
                  combo.view()};
        return TRUE;
    });
}
