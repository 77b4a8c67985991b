#include <VxMFCEmu/dlg/ddv.h>

#include <VxMFCEmu/text/vxqstring.h>
#include <VxMFCEmu/wnd/controlmessages.h>
#include <VxMFCEmu/wnd/sendmessage.h>
#include <VxMFCEmu/wnd/windowtext.h>

#include <QtCore/QLocale>
#include <QtWidgets/QAbstractSlider>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QDateTimeEdit>

#include <algorithm>
#include <climits>

namespace {

QString shown(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}
QString shown(float number)
{
    // The shortest text that reads back as the same float; as a double it would have 17 digits.
    int precision = 1;
    QString strText = QString::number(static_cast<double>(number), 'g', precision);
    while (strText.toFloat() != number && precision < 9)
        strText = QString::number(static_cast<double>(number), 'g', ++precision);
    return strText;
}
QString shown(const QDateTime& moment) { return moment.toString(Qt::ISODate); }
QString shown(const QDate& day) { return day.toString(Qt::ISODate); }
template <typename Integer>
QString shown(Integer number)
{
    return QString::number(number);
}

template <typename Number>
void checkRange(CDataExchange_E* pDX, const Number& value, const Number& low, const Number& high)
{
    if (!pDX || !pDX->m_bSaveAndValidate || high < low || (low <= value && value <= high))
        return;
    const QString strMessage = std::is_integral_v<Number>
                                   ? QStringLiteral("请填入一个%1和%2之间的整数。")
                                   : QStringLiteral("请填入一个%1和%2之间的数字。");
    pDX->Fail(strMessage.arg(shown(low), shown(high)));
}

template <typename Moment>
bool isEmpty(const Moment* pMin, const Moment* pMax)
{
    return pMin && pMax && *pMax < *pMin;
}

template <typename Moment>
void checkMoment(CDataExchange_E* pDX, const Moment& value, const Moment* pMin, const Moment* pMax)
{
    if (!pDX || !pDX->m_bSaveAndValidate || isEmpty(pMin, pMax))
        return;
    if ((!pMin || *pMin <= value) && (!pMax || value <= *pMax))
        return;
    const auto limit = [](const Moment* pLimit) { return pLimit ? shown(*pLimit) : QString(); };
    pDX->Fail(QStringLiteral("请填入一个%1和%2之间的日期。").arg(limit(pMin), limit(pMax)));
}

} // namespace

void DDV_MaxChars(CDataExchange_E* pDX, const CString_E& value, int nChars)
{
    if (!pDX || nChars <= 0)
        return;
    if (pDX->m_bSaveAndValidate && value.GetLength() > nChars)
        pDX->Fail(QStringLiteral("请填入不多于%1个的字符。").arg(nChars));
    // Qt counts UTF-16 units, and would cut through a character that has two.
    const int nUnits = VxQString(value.Left(nChars)).size();
    const int nLimit = std::max(nChars, nUnits);
    if (!SetEditLimitText_E(pDX->m_pLastControl, nLimit)) // an edit of several lines, perhaps
        SendMessage_E(pDX->m_pLastControl, EM_SETLIMITTEXT, static_cast<WPARAM>(nLimit), 0);
}

// clang-format off
void DDV_MinMaxByte(CDataExchange_E* pDX, BYTE value, BYTE minVal, BYTE maxVal) { checkRange(pDX, value, minVal, maxVal); }
void DDV_MinMaxShort(CDataExchange_E* pDX, short value, short minVal, short maxVal) { checkRange(pDX, value, minVal, maxVal); }
void DDV_MinMaxInt(CDataExchange_E* pDX, int value, int minVal, int maxVal) { checkRange(pDX, value, minVal, maxVal); }
void DDV_MinMaxLong(CDataExchange_E* pDX, long value, long minVal, long maxVal) { checkRange(pDX, value, minVal, maxVal); }
void DDV_MinMaxUInt(CDataExchange_E* pDX, UINT value, UINT minVal, UINT maxVal) { checkRange(pDX, value, minVal, maxVal); }
void DDV_MinMaxDWord(CDataExchange_E* pDX, DWORD value, DWORD minVal, DWORD maxVal) { checkRange(pDX, value, minVal, maxVal); }
void DDV_MinMaxLongLong(CDataExchange_E* pDX, LONGLONG value, LONGLONG minVal, LONGLONG maxVal) { checkRange(pDX, value, minVal, maxVal); }
void DDV_MinMaxULongLong(CDataExchange_E* pDX, ULONGLONG value, ULONGLONG minVal, ULONGLONG maxVal) { checkRange(pDX, value, minVal, maxVal); }
void DDV_MinMaxFloat(CDataExchange_E* pDX, float value, float minVal, float maxVal) { checkRange(pDX, value, minVal, maxVal); }
void DDV_MinMaxDouble(CDataExchange_E* pDX, const double& value, double minVal, double maxVal) { checkRange(pDX, value, minVal, maxVal); }
// clang-format on

void DDV_MinMaxSlider(CDataExchange_E* pDX, DWORD value, DWORD minVal, DWORD maxVal)
{
    checkRange(pDX, value, minVal, maxVal);
    auto* const pSlider = pDX ? qobject_cast<QAbstractSlider*>(pDX->m_pLastControl) : nullptr;
    if (!pSlider || maxVal < minVal)
        return;
    const auto position = [](DWORD n) { return static_cast<int>(std::min<DWORD>(n, INT_MAX)); };
    pSlider->setRange(position(minVal), position(maxVal));
    // The value came before the range, and may have been outside the one there was.
    if (!pDX->m_bSaveAndValidate)
        pSlider->setValue(position(value));
}

void DDV_MinMaxDateTime(CDataExchange_E* pDX, const QDateTime& value, const QDateTime* pMin,
                        const QDateTime* pMax)
{
    checkMoment(pDX, value, pMin, pMax);
    auto* const pEdit = pDX ? qobject_cast<QDateTimeEdit*>(pDX->m_pLastControl) : nullptr;
    if (!pEdit || isEmpty(pMin, pMax))
        return;
    if (pMin)
        pEdit->setMinimumDateTime(*pMin);
    if (pMax)
        pEdit->setMaximumDateTime(*pMax);
    if (!pDX->m_bSaveAndValidate)
        pEdit->setDateTime(value);
}

void DDV_MinMaxMonth(CDataExchange_E* pDX, const QDate& value, const QDate* pMin, const QDate* pMax)
{
    checkMoment(pDX, value, pMin, pMax);
    auto* const pCalendar = pDX ? qobject_cast<QCalendarWidget*>(pDX->m_pLastControl) : nullptr;
    if (!pCalendar || isEmpty(pMin, pMax))
        return;
    if (pMin)
        pCalendar->setMinimumDate(*pMin);
    if (pMax)
        pCalendar->setMaximumDate(*pMax);
    if (!pDX->m_bSaveAndValidate)
        pCalendar->setSelectedDate(value);
}
