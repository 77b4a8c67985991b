#include <VxMFCEmu/wnd/controlmessages.h>
#include <VxMFCEmu/wnd/resourceids.h>
#include <VxMFCEmu/wnd/wincodes.h>
#include <VxMFCEmu/wnd/windowtext.h>
#include <VxMFCEmu/wnd/windowtree.h>

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTextEdit>

#include <climits>

namespace {

/// Unchecks a button, also the only checked one of an exclusive group, which Qt would not let go.
void uncheck(QAbstractButton* pButton)
{
    const QPointer<QAbstractButton> pAlive(pButton);
    const QPointer<QButtonGroup> pGroup(pButton->group());
    const bool bGroup = pGroup && pGroup->exclusive();
    const bool bAuto = pButton->autoExclusive();
    if (bGroup)
        pGroup->setExclusive(false);
    pButton->setAutoExclusive(false);
    pButton->setChecked(false);
    if (pAlive)
        pAlive->setAutoExclusive(bAuto);
    if (bGroup && pGroup)
        pGroup->setExclusive(true);
}

void setCheck(QAbstractButton* pButton, UINT uCheck)
{
    auto* const pBox = qobject_cast<QCheckBox*>(pButton);
    if (uCheck == BST_UNCHECKED)
        uncheck(pButton);
    else if (uCheck == BST_INDETERMINATE && pBox && pBox->isTristate())
        pBox->setCheckState(Qt::PartiallyChecked);
    else if (pBox)
        pBox->setCheckState(Qt::Checked);
    else
        pButton->setChecked(true);
}

QLineEdit* lineEditOf(QWidget* pWidget)
{
    if (const auto* const pCombo = qobject_cast<QComboBox*>(pWidget))
        return pCombo->lineEdit();
    if (qobject_cast<QAbstractSpinBox*>(pWidget))
        return pWidget->findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
    return qobject_cast<QLineEdit*>(pWidget);
}

/// The bar of a scroll area, or one that lies directly in a plain widget.
QScrollBar* scrollBarOf(QWidget* pWidget, Qt::Orientation orientation)
{
    if (const auto* const pArea = qobject_cast<QAbstractScrollArea*>(pWidget)) {
        return orientation == Qt::Horizontal ? pArea->horizontalScrollBar()
                                             : pArea->verticalScrollBar();
    }
    const auto bars = pWidget->findChildren<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly);
    for (QScrollBar* const pBar : bars) {
        if (pBar->orientation() == orientation)
            return pBar;
    }
    return nullptr;
}

bool enableBar(QScrollBar* pBar, bool bEnable)
{
    if (!pBar || pBar->isEnabled() == bEnable)
        return false;
    pBar->setEnabled(bEnable);
    return true;
}

} // namespace

UINT IsDlgButtonChecked_E(HWND hDlg, int nIDButton)
{
    HWND hItem = GetDlgItem_E(hDlg, nIDButton);
    if (const auto* const pBox = qobject_cast<QCheckBox*>(hItem))
        return pBox->checkState() == Qt::PartiallyChecked ? BST_INDETERMINATE : pBox->isChecked();
    const auto* const pButton = qobject_cast<QAbstractButton*>(hItem);
    return pButton && pButton->isChecked() ? BST_CHECKED : BST_UNCHECKED;
}

BOOL CheckDlgButton_E(HWND hDlg, int nIDButton, UINT uCheck)
{
    auto* const pButton = qobject_cast<QAbstractButton*>(GetDlgItem_E(hDlg, nIDButton));
    if (pButton)
        setCheck(pButton, uCheck);
    return pButton != nullptr;
}

BOOL CheckRadioButton_E(HWND hDlg, int nIDFirstButton, int nIDLastButton, int nIDCheckButton)
{
    if (!hDlg)
        return FALSE;
    const QPointer<QWidget> pAlive(hDlg);
    const auto nLast = static_cast<UINT>(nIDLastButton);
    const auto nCheck = static_cast<UINT>(nIDCheckButton);
    // The ids that exist, since the range may be wide.
    const QMap<UINT, QString>& ids = GetResourceIDMap();
    for (auto it = ids.lowerBound(static_cast<UINT>(nIDFirstButton));
         it != ids.end() && it.key() <= nLast; ++it) {
        if (it.key() != nCheck && pAlive)
            CheckDlgButton_E(hDlg, static_cast<int>(it.key()), BST_UNCHECKED);
    }
    if (pAlive)
        CheckDlgButton_E(hDlg, nIDCheckButton, BST_CHECKED);
    return TRUE;
}

BOOL SetEditLimitText_E(HWND hWnd, int nMax)
{
    QLineEdit* const pEdit = lineEditOf(hWnd);
    if (pEdit)
        pEdit->setMaxLength(nMax > 0 ? nMax : INT_MAX);
    return pEdit != nullptr;
}

BOOL SetEditSelectAll_E(HWND hWnd)
{
    if (QLineEdit* const pLine = lineEditOf(hWnd))
        pLine->selectAll();
    else if (auto* const pText = qobject_cast<QTextEdit*>(hWnd))
        pText->selectAll();
    else if (auto* const pPlain = qobject_cast<QPlainTextEdit*>(hWnd))
        pPlain->selectAll();
    else
        return FALSE;
    return TRUE;
}

BOOL EnableScrollBar_E(HWND hWnd, UINT uSBFlags, UINT uArrows)
{
    if (!hWnd)
        return FALSE;
    const bool bEnable = uArrows != ESB_DISABLE_BOTH;
    if (uSBFlags == SB_CTL)
        return enableBar(qobject_cast<QScrollBar*>(hWnd), bEnable);
    bool bChanged = false;
    if (uSBFlags == SB_HORZ || uSBFlags == SB_BOTH)
        bChanged = enableBar(scrollBarOf(hWnd, Qt::Horizontal), bEnable);
    if (uSBFlags == SB_VERT || uSBFlags == SB_BOTH)
        bChanged = enableBar(scrollBarOf(hWnd, Qt::Vertical), bEnable) || bChanged;
    return bChanged;
}
