// Exchange of what buttons, lists, sliders and calendars hold.
#include "dlg/vxddx_p.h"
#include "wnd/vxcombotext_p.h"

#include <VxMFCEmu/dlg/ddx.h>
#include <VxMFCEmu/text/vxqstring.h>
#include <VxMFCEmu/wnd/window.h>

#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>

namespace {

using vx::detail::beginExchange;
using vx::detail::changeCombo;
using vx::detail::showComboText;

template <typename Control>
void exchangeCheck(CDataExchange_E* pDX, Control* pControl, int& value)
{
    if (!beginExchange(pDX, pControl))
        return;
    if (pDX->m_bSaveAndValidate)
        value = pControl->isChecked() ? 1 : 0;
    else
        pControl->setChecked(value != 0);
}

void exchangePosition(CDataExchange_E* pDX, QAbstractSlider* pControl, int& value)
{
    if (!beginExchange(pDX, pControl))
        return;
    if (pDX->m_bSaveAndValidate)
        value = pControl->value();
    else
        pControl->setValue(value);
}

void exchangeListText(CDataExchange_E* pDX, QListWidget* pControl, CString_E& value,
                      Qt::MatchFlag match)
{
    if (!beginExchange(pDX, pControl))
        return;
    if (pDX->m_bSaveAndValidate) {
        const QListWidgetItem* const pItem = pControl->currentItem();
        value = pItem ? pItem->text() : QString();
        return;
    }
    const QSignalBlocker quiet(pControl);
    const auto items = pControl->findItems(VxQString(value), match);
    pControl->setCurrentItem(items.isEmpty() ? nullptr : items.first());
}

} // namespace

void DDX_Check(CDataExchange_E* pDX, QAbstractButton* pControl, int& value)
{
    exchangeCheck(pDX, pControl, value);
}

void DDX_Check(CDataExchange_E* pDX, QGroupBox* pControl, int& value)
{
    exchangeCheck(pDX, pControl, value);
}

void DDX_Radio(CDataExchange_E* pDX, QRadioButton* pControl, int& value)
{
    if (!beginExchange(pDX, pControl))
        return;
    int i = 0;
    QRadioButton* pButton = pControl;
    do {
        if (pDX->m_bSaveAndValidate && pButton->isChecked()) {
            value = i;
            return;
        }
        if (!pDX->m_bSaveAndValidate && i == value)
            pButton->setChecked(true);
        pButton = qobject_cast<QRadioButton*>(pButton->nextInFocusChain());
        ++i;
    } while (pButton && pButton != pControl);
}

void DDX_CBIndex(CDataExchange_E* pDX, QComboBox* pControl, int& value)
{
    if (!beginExchange(pDX, pControl))
        return;
    if (pDX->m_bSaveAndValidate)
        value = pControl->currentIndex();
    else
        changeCombo(*pControl, [&] { pControl->setCurrentIndex(value); });
}

void DDX_CBString(CDataExchange_E* pDX, QComboBox* pControl, CString_E& value)
{
    if (!beginExchange(pDX, pControl))
        return;
    if (pDX->m_bSaveAndValidate) {
        value = pControl->currentText();
        return;
    }
    showComboText(*pControl, VxQString(value));
}

void DDX_CBString(CDataExchange_E* pDX, QLineEdit* pControl, CString_E& value)
{
    if (!beginExchange(pDX, pControl))
        return;
    if (pDX->m_bSaveAndValidate) {
        value = pControl->text();
        return;
    }
    pControl->setText(VxQString(value));
    pControl->setCursorPosition(0);
}

void DDX_CBStringExact(CDataExchange_E* pDX, QComboBox* pControl, CString_E& value)
{
    DDX_CBString(pDX, pControl, value);
}

void DDX_LBIndex(CDataExchange_E* pDX, QListWidget* pControl, int& value)
{
    if (!beginExchange(pDX, pControl))
        return;
    if (pDX->m_bSaveAndValidate) {
        value = pControl->currentRow();
        return;
    }
    const QSignalBlocker quiet(pControl);
    pControl->setCurrentRow(value);
}

void DDX_LBString(CDataExchange_E* pDX, QListWidget* pControl, CString_E& value)
{
    exchangeListText(pDX, pControl, value, Qt::MatchStartsWith);
}

void DDX_LBStringExact(CDataExchange_E* pDX, QListWidget* pControl, CString_E& value)
{
    exchangeListText(pDX, pControl, value, Qt::MatchFixedString);
}

void DDX_Scroll(CDataExchange_E* pDX, QScrollBar* pControl, int& value)
{
    exchangePosition(pDX, pControl, value);
}

void DDX_Slider(CDataExchange_E* pDX, QSlider* pControl, int& value)
{
    exchangePosition(pDX, pControl, value);
}

void DDX_DateTimeCtrl(CDataExchange_E* pDX, QDateTimeEdit* pControl, QDateTime& value)
{
    if (!beginExchange(pDX, pControl))
        return;
    if (pDX->m_bSaveAndValidate)
        value = pControl->dateTime();
    else if (value.isValid())
        pControl->setDateTime(value);
}

void DDX_DateTimeCtrl(CDataExchange_E* pDX, QDateTimeEdit* pControl, CString_E& value)
{
    if (!beginExchange(pDX, pControl))
        return;
    if (pDX->m_bSaveAndValidate) {
        value = pControl->text();
        return;
    }
    const QDateTime dateTime =
        pControl->locale().toDateTime(VxQString(value), pControl->displayFormat());
    if (dateTime.isValid())
        pControl->setDateTime(dateTime);
}

void DDX_MonthCalCtrl(CDataExchange_E* pDX, QCalendarWidget* pControl, QDate& value)
{
    if (!beginExchange(pDX, pControl))
        return;
    if (pDX->m_bSaveAndValidate)
        value = pControl->selectedDate();
    else if (value.isValid())
        pControl->setSelectedDate(value);
}

void DDX_Control(CDataExchange_E* pDX, QWidget* pControl, CWnd_E& rControl)
{
    // Once bound, it is not the control that a failure is about.
    if (!rControl.GetSafeHwnd() && beginExchange(pDX, pControl))
        rControl.SubclassWindow(pControl);
}
