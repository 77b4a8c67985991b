#include <VxMFCEmu/wnd/windowtext.h>

#include <VxMFCEmu/text/cstring.h>
#include <VxMFCEmu/text/vxqstring.h>
#include <VxMFCEmu/wnd/windowtree.h>

#include "wnd/vxcombotext_p.h"
#include "wnd/vxtextbuffer_p.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTextEdit>

#include <algorithm>
#include <climits>
#include <cmath>

namespace {

/// How a class of widgets keeps its text.
struct TextRow
{
    const QMetaObject* meta;
    QString (*get)(const QWidget*);
    bool (*set)(QWidget*, const QString&);
};

template <typename Widget, auto Get, auto Set>
constexpr TextRow textRow()
{
    return {&Widget::staticMetaObject,
            [](const QWidget* p) -> QString { return (static_cast<const Widget*>(p)->*Get)(); },
            [](QWidget* p, const QString& strText) {
                (static_cast<Widget*>(p)->*Set)(strText);
                return true;
            }};
}

bool setComboText(QWidget* pWidget, const QString& strText)
{
    auto& combo = static_cast<QComboBox&>(*pWidget);
    vx::detail::showComboText(combo, strText);
    return combo.isEditable() || combo.currentText() == strText;
}

bool setSpinText(QWidget* pWidget, const QString& strText)
{
    // Intended: a text that is no number sets 0.
    if (auto* const pWhole = qobject_cast<QSpinBox*>(pWidget)) {
        pWhole->setValue(strText.toInt());
        return true;
    }
    if (auto* const pDecimal = qobject_cast<QDoubleSpinBox*>(pWidget)) {
        const double value = strText.toDouble();
        pDecimal->setValue(std::isfinite(value) ? value : 0);
        return true;
    }
    // Others take their value from their line edit, which they do not give away.
    auto* const pEdit = pWidget->findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
    if (pEdit)
        pEdit->setText(strText);
    return pEdit != nullptr;
}

/// A number without what is shown around and in it.
QString spinText(const QWidget* pWidget)
{
    if (const auto* const pWhole = qobject_cast<const QSpinBox*>(pWidget))
        return QString::number(pWhole->value());
    if (const auto* const pDecimal = qobject_cast<const QDoubleSpinBox*>(pWidget))
        return QString::number(pDecimal->value(), 'f', pDecimal->decimals());
    return static_cast<const QAbstractSpinBox*>(pWidget)->text();
}

QString comboText(const QWidget* pWidget)
{
    return static_cast<const QComboBox*>(pWidget)->currentText();
}

/// The first row whose class a widget inherits counts; the last one takes them all.
constexpr TextRow kTextRows[] = {
    textRow<QAbstractButton, &QAbstractButton::text, &QAbstractButton::setText>(),
    textRow<QLineEdit, &QLineEdit::text, &QLineEdit::setText>(),
    textRow<QLabel, &QLabel::text, &QLabel::setText>(),
    {&QComboBox::staticMetaObject, comboText, setComboText},
    textRow<QGroupBox, &QGroupBox::title, &QGroupBox::setTitle>(),
    {&QAbstractSpinBox::staticMetaObject, spinText, setSpinText},
    textRow<QTextEdit, &QTextEdit::toPlainText, &QTextEdit::setPlainText>(),
    textRow<QPlainTextEdit, &QPlainTextEdit::toPlainText, &QPlainTextEdit::setPlainText>(),
    textRow<QWidget, &QWidget::windowTitle, &QWidget::setWindowTitle>(),
};

const TextRow& textRowOf(const QWidget* pWidget)
{
    const QMetaObject* const pMeta = pWidget->metaObject();
    return *std::find_if(std::begin(kTextRows), std::prev(std::end(kTextRows)),
                         [pMeta](const TextRow& row) { return pMeta->inherits(row.meta); });
}

QString textOf(const QWidget* pWidget)
{
    return pWidget ? textRowOf(pWidget).get(pWidget) : QString();
}

/// A number at the start of @p strText; false without digits and outside @p low to @p high.
bool parseNumber(const QString& strText, LONGLONG low, LONGLONG high, LONGLONG& value)
{
    auto at = strText.begin();
    while (at != strText.end() && at->isSpace())
        ++at;
    const bool bNegative = low < 0 && at != strText.end() && *at == QLatin1Char('-');
    if (bNegative)
        ++at;
    const auto digits = at;
    value = 0;
    for (; at != strText.end() && *at >= QLatin1Char('0') && *at <= QLatin1Char('9'); ++at) {
        const int digit = at->unicode() - u'0';
        value = value * 10 + (bNegative ? -digit : digit);
        if (value < low || value > high)
            return false;
    }
    return at != digits;
}

} // namespace

BOOL SetWindowText_E(HWND hWnd, LPCWSTR pszText)
{
    return hWnd && textRowOf(hWnd).set(hWnd, VxQString(pszText));
}

int GetWindowText_E(HWND hWnd, CString_E& strText)
{
    strText = textOf(hWnd);
    return strText.GetLength();
}

int GetWindowText_E(HWND hWnd, LPWSTR pszText, int nMaxCount)
{
    return vx::detail::copyTerminated(CString_E(textOf(hWnd)), pszText, nMaxCount);
}

int GetWindowTextLength_E(HWND hWnd) { return textOf(hWnd).toUcs4().size(); }

BOOL SetDlgItemText_E(HWND hDlg, int nID, LPCWSTR pszText)
{
    return SetWindowText_E(GetDlgItem_E(hDlg, nID), pszText);
}

int GetDlgItemText_E(HWND hDlg, int nID, CString_E& strText)
{
    return GetWindowText_E(GetDlgItem_E(hDlg, nID), strText);
}

int GetDlgItemText_E(HWND hDlg, int nID, LPWSTR pszText, int nMaxCount)
{
    return GetWindowText_E(GetDlgItem_E(hDlg, nID), pszText, nMaxCount);
}

BOOL SetDlgItemInt_E(HWND hDlg, int nID, UINT nValue, BOOL bSigned)
{
    HWND hItem = GetDlgItem_E(hDlg, nID);
    const QString strNumber =
        bSigned ? QString::number(static_cast<int>(nValue)) : QString::number(nValue);
    return hItem && textRowOf(hItem).set(hItem, strNumber);
}

UINT GetDlgItemInt_E(HWND hDlg, int nID, LPBOOL pTranslated, BOOL bSigned)
{
    LONGLONG value = 0;
    const bool bDone = bSigned
                           ? parseNumber(textOf(GetDlgItem_E(hDlg, nID)), INT_MIN, INT_MAX, value)
                           : parseNumber(textOf(GetDlgItem_E(hDlg, nID)), 0, UINT_MAX, value);
    if (pTranslated)
        *pTranslated = bDone;
    return bDone ? static_cast<UINT>(value) : 0;
}
