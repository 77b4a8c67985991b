#include <VxMFCEmu/ctrl/datetimectrl.h>

#include "ctrl/vxcontroltable_p.h"

#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QDateTimeEdit>

IMPLEMENT_DYNCREATE_E(CDateTimeCtrl_E, CWnd_E, QDateTimeEdit)

namespace {

using namespace vx::detail;

using Row = ControlMessage<CDateTimeCtrl_E>;

// What the widget has for limits while there are none.
const QDate kFirstDate(1752, 9, 14);
const QDate kLastDate(9999, 12, 31);

QDate dateOf(const _SYSTEMTIME& time) { return {time.wYear, time.wMonth, time.wDay}; }

void storeDate(const QDate& date, _SYSTEMTIME* pTime)
{
    if (!pTime)
        return;
    pTime->wYear = static_cast<WORD>(date.year());
    pTime->wMonth = static_cast<WORD>(date.month());
    pTime->wDay = static_cast<WORD>(date.day());
}

/// One run of the same letter in the widget's way of writing formats.
QString formatPart(QChar letter, int nCount)
{
    switch (letter.unicode()) {
    case u't':
        return QStringLiteral("AP");
    case u'g':
        return {};
    case u'y':
        return nCount <= 2 ? QStringLiteral("yy") : QStringLiteral("yyyy");
    case u'd':
    case u'M':
        return {std::min(nCount, 4), letter};
    case u'h':
    case u'H':
    case u'm':
    case u's':
        return {std::min(nCount, 2), letter};
    default:
        break;
    }
    // Letters that mean something to the widget only.
    return letter.isLetter() ? u'\'' + QString(nCount, letter) + u'\'' : QString(nCount, letter);
}

QString displayFormat(const QString& strFormat)
{
    QString strResult;
    for (int i = 0, nEnd = 0; i < strFormat.size(); i = nEnd) {
        const QChar letter = strFormat[i];
        if (letter == u'\'') {
            const int nClosing = strFormat.indexOf(u'\'', i + 1);
            nEnd = nClosing < 0 ? strFormat.size() : nClosing + 1;
            strResult += strFormat.midRef(i, nEnd - i);
            continue;
        }
        for (nEnd = i; nEnd < strFormat.size() && strFormat[nEnd] == letter;)
            ++nEnd;
        strResult += formatPart(letter, nEnd - i);
    }
    return strResult;
}

QString formatOfStyle(const QLocale& locale, DWORD dwStyle)
{
    if ((dwStyle & DTS_TIMEFORMAT) == DTS_TIMEFORMAT)
        return locale.timeFormat(QLocale::LongFormat).remove(QLatin1Char('t')).trimmed();
    return locale.dateFormat(dwStyle & DTS_LONGDATEFORMAT ? QLocale::LongFormat
                                                          : QLocale::ShortFormat);
}

/// While only a time shows, setting anything else narrows the range to the one date.
void setWithin(QDateTimeEdit& edit, const QDateTime& value, const QDate& first, const QDate& last)
{
    edit.setDateTime(value);
    edit.setDateRange(first, last);
}

/// Shows another format, which has to show something of the date or the time. The widget would
/// forget the time for a format of dates.
BOOL setFormat(QDateTimeEdit& edit, const QString& strFormat)
{
    const QSignalBlocker quiet(edit);
    const QDateTime shown = edit.dateTime();
    const QDate first = edit.minimumDate();
    const QDate last = edit.maximumDate();
    edit.setDisplayFormat(strFormat);
    setWithin(edit, shown, first, last);
    return edit.displayFormat() == strFormat; // one that shows nothing is not taken
}

LRESULT setSystemTime(CDateTimeCtrl_E& control, WPARAM wParam, LPARAM lParam)
{
    return wParam == GDT_VALID ? control.SetTime(pointerIn<_SYSTEMTIME>(lParam)) : FALSE;
}

LRESULT getRange(CDateTimeCtrl_E& control, WPARAM, LPARAM lParam)
{
    auto* const pRange = pointerIn<_SYSTEMTIME>(lParam);
    return control.GetRange(pRange, pRange ? pRange + 1 : nullptr);
}

LRESULT setRange(CDateTimeCtrl_E& control, WPARAM wParam, LPARAM lParam)
{
    const auto* const pRange = pointerIn<_SYSTEMTIME>(lParam);
    return control.SetRange(pRange && wParam & GDTR_MIN ? pRange : nullptr,
                            pRange && wParam & GDTR_MAX ? pRange + 1 : nullptr);
}

LRESULT getMonthCal(CDateTimeCtrl_E& control, WPARAM, LPARAM)
{
    return reinterpret_cast<std::intptr_t>(static_cast<QWidget*>(control.GetMonthCal()));
}

// clang-format off
constexpr Row kMessages[] = {
    {DTM_GETSYSTEMTIME, [](auto& control, WPARAM, LPARAM l) -> LRESULT { return control.GetTime(pointerIn<_SYSTEMTIME>(l)); }},
    {DTM_SETSYSTEMTIME, setSystemTime},
    {DTM_GETRANGE,      getRange},
    {DTM_SETRANGE,      setRange},
    {DTM_GETMONTHCAL,   getMonthCal},
    {DTM_CLOSEMONTHCAL, [](auto& control, WPARAM, LPARAM) -> LRESULT { return control.CloseMonthCal(), 0; }},
    {DTM_GETIDEALSIZE,  [](auto& control, WPARAM, LPARAM l) -> LRESULT { return control.GetIdealSize(pointerIn<SIZE>(l)); }},
    {DTM_SETFORMAT,     [](auto& control, WPARAM, LPARAM l) -> LRESULT { return control.SetFormat(pointerIn<wchar_t>(l)); }},
};
// clang-format on

} // namespace

BOOL CDateTimeCtrl_E::AttachDefault(QWidget* pParent)
{
    return attachNew<QDateTimeEdit>(*this, pParent);
}

BOOL CDateTimeCtrl_E::OnAttach()
{
    if (!CWnd_E::OnAttach())
        return FALSE;
    if (auto* const pEdit = widgetOf<QDateTimeEdit>(*this))
        pEdit->setCalendarPopup(true);
    return TRUE;
}

BOOL CDateTimeCtrl_E::Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent)
{
    if (!CWnd_E::Create(dwStyle, rect, pParent))
        return FALSE;
    if (auto* const pEdit = widgetOf<QDateTimeEdit>(*this)) {
        pEdit->setDateTime(QDateTime::currentDateTime());
        setFormat(*pEdit, formatOfStyle(pEdit->locale(), dwStyle));
        pEdit->setCalendarPopup(!(dwStyle & DTS_UPDOWN));
    }
    return TRUE;
}

BOOL CDateTimeCtrl_E::Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID)
{
    return createWithId(*this, pParent, nID,
                        [&](QWidget* pWidget) { return Create(dwStyle, rect, pWidget); });
}

BOOL CDateTimeCtrl_E::SetTime(const _SYSTEMTIME* pTime)
{
    return askWidget<QDateTimeEdit>(*this, FALSE, [pTime](auto& edit) {
        if (!pTime)
            return FALSE;
        if (const QDate day = dateOf(*pTime); day.isValid())
            setWithin(edit, {day, edit.time()}, edit.minimumDate(), edit.maximumDate());
        return TRUE;
    });
}

DWORD CDateTimeCtrl_E::GetTime(_SYSTEMTIME* pTime) const
{
    if (const auto* const pEdit = widgetOf<QDateTimeEdit>(*this))
        storeDate(pEdit->date(), pTime);
    return GDT_VALID; // Intended: also when there is nothing to tell
}

BOOL CDateTimeCtrl_E::SetFormat(const wchar_t* pszFormat)
{
    const QString strFormat = displayFormat(VxQString(pszFormat));
    return askWidget<QDateTimeEdit>(*this, FALSE, [&strFormat](auto& edit) {
        return setFormat(edit, strFormat.isEmpty()
                                   ? formatOfStyle(edit.locale(), DTS_SHORTDATEFORMAT)
                                   : strFormat);
    });
}

BOOL CDateTimeCtrl_E::SetRange(const _SYSTEMTIME* pMin, const _SYSTEMTIME* pMax)
{
    const QDate first = pMin ? dateOf(*pMin) : kFirstDate;
    const QDate last = pMax ? dateOf(*pMax) : kLastDate;
    return askWidget<QDateTimeEdit>(*this, FALSE, [&](auto& edit) {
        if (!first.isValid() || !last.isValid())
            return FALSE;
        edit.setDateRange(first, last);
        return TRUE;
    });
}

DWORD CDateTimeCtrl_E::GetRange(_SYSTEMTIME* pMin, _SYSTEMTIME* pMax) const
{
    return askWidget<QDateTimeEdit>(*this, DWORD{0}, [=](auto& edit) {
        DWORD dwLimits = 0;
        if (edit.minimumDate() != kFirstDate) {
            storeDate(edit.minimumDate(), pMin);
            dwLimits |= GDTR_MIN;
        }
        if (edit.maximumDate() != kLastDate) {
            storeDate(edit.maximumDate(), pMax);
            dwLimits |= GDTR_MAX;
        }
        return dwLimits;
    });
}

QCalendarWidget* CDateTimeCtrl_E::GetMonthCal() const
{
    auto* const pEdit = widgetOf<QDateTimeEdit>(*this);
    return pEdit ? pEdit->calendarWidget() : nullptr;
}

void CDateTimeCtrl_E::CloseMonthCal() const
{
    const QCalendarWidget* const pCalendar = GetMonthCal();
    if (pCalendar && pCalendar->window()->windowType() == Qt::Popup)
        pCalendar->window()->close();
}

BOOL CDateTimeCtrl_E::GetIdealSize(tagSIZE* pSize) const
{
    return askWidget<QDateTimeEdit>(*this, FALSE, [pSize](auto& edit) {
        if (pSize)
            *pSize = {edit.sizeHint().width(), edit.sizeHint().height()};
        return pSize != nullptr;
    });
}

BOOL CDateTimeCtrl_E::OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return answerFromTable(kMessages, *this, message, wParam, lParam, pResult);
}
