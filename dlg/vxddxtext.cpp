// Exchange of window texts, and of numbers as text.
#include "dlg/vxddx_p.h"

#include <VxMFCEmu/dlg/ddx.h>
#include <VxMFCEmu/text/vxqstring.h>
#include <VxMFCEmu/wnd/windowtext.h>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

using vx::detail::beginExchange;

void setTextIfOther(QWidget* pControl, const CString_E& strText)
{
    CString_E strShown;
    GetWindowText_E(pControl, strShown);
    if (strShown.GetLength() != strText.GetLength() || strShown != strText)
        SetWindowText_E(pControl, strText);
}

template <typename Number>
QString toText(Number number)
{
    if constexpr (std::is_floating_point_v<Number>)
        return QString::number(static_cast<double>(number), 'g', 6);
    else
        return QString::number(number);
}

/// A whole number without anything around it, within the type's range.
template <typename Integer>
bool parse(const QString& strText, Integer& number)
{
    const QByteArray text = strText.toLatin1();
    const char* pBegin = text.constBegin();
    const char* const pEnd = text.constEnd();
    if (text.startsWith('+') && !text.startsWith("+-"))
        ++pBegin;
    Integer parsed = 0;
    const auto [pStop, error] = std::from_chars(pBegin, pEnd, parsed);
    if (error != std::errc() || pStop != pEnd)
        return false;
    number = parsed;
    return true;
}

bool parse(const QString& strText, double& number)
{
    bool ok = false;
    const double parsed = strText.toDouble(&ok);
    if (ok && std::isfinite(parsed))
        number = parsed;
    return ok && std::isfinite(parsed);
}

bool parse(const QString& strText, float& number)
{
    bool ok = false;
    const float parsed = strText.toFloat(&ok);
    if (ok && std::isfinite(parsed))
        number = parsed;
    return ok && std::isfinite(parsed);
}

template <typename Number>
void DDX_TextWithFormat(CDataExchange_E* pDX, QWidget* pControl, Number& value)
{
    if (!beginExchange(pDX, pControl))
        return;
    if (!pDX->m_bSaveAndValidate) {
        setTextIfOther(pControl, CString_E(toText(value)));
        return;
    }
    CString_E strText;
    GetWindowText_E(pControl, strText);
    if (!parse(VxQString(strText), value))
        pDX->Fail(L"请输入正确的数值！");
}

} // namespace

void DDX_Text(CDataExchange_E* pDX, QWidget* pControl, CString_E& value)
{
    if (!beginExchange(pDX, pControl))
        return;
    if (pDX->m_bSaveAndValidate)
        GetWindowText_E(pControl, value);
    else
        setTextIfOther(pControl, value);
}

void DDX_Text(CDataExchange_E* pDX, QWidget* pControl, LPTSTR pszValue, int nMaxLen)
{
    if (!beginExchange(pDX, pControl) || !pszValue || nMaxLen <= 0)
        return;
    if (pDX->m_bSaveAndValidate)
        GetWindowText_E(pControl, pszValue, nMaxLen);
    else
        setTextIfOther(pControl, CString_E(pszValue));
}

// clang-format off
void DDX_Text(CDataExchange_E* pDX, QWidget* pControl, BYTE& value) { DDX_TextWithFormat(pDX, pControl, value); }
void DDX_Text(CDataExchange_E* pDX, QWidget* pControl, short& value) { DDX_TextWithFormat(pDX, pControl, value); }
void DDX_Text(CDataExchange_E* pDX, QWidget* pControl, int& value) { DDX_TextWithFormat(pDX, pControl, value); }
void DDX_Text(CDataExchange_E* pDX, QWidget* pControl, UINT& value) { DDX_TextWithFormat(pDX, pControl, value); }
void DDX_Text(CDataExchange_E* pDX, QWidget* pControl, long& value) { DDX_TextWithFormat(pDX, pControl, value); }
void DDX_Text(CDataExchange_E* pDX, QWidget* pControl, unsigned long& value) { DDX_TextWithFormat(pDX, pControl, value); }
void DDX_Text(CDataExchange_E* pDX, QWidget* pControl, LONGLONG& value) { DDX_TextWithFormat(pDX, pControl, value); }
void DDX_Text(CDataExchange_E* pDX, QWidget* pControl, ULONGLONG& value) { DDX_TextWithFormat(pDX, pControl, value); }
void DDX_Text(CDataExchange_E* pDX, QWidget* pControl, float& value) { DDX_TextWithFormat(pDX, pControl, value); }
void DDX_Text(CDataExchange_E* pDX, QWidget* pControl, double& value) { DDX_TextWithFormat(pDX, pControl, value); }
// clang-format on
