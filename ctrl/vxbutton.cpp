#include <VxMFCEmu/ctrl/button.h>

#include "ctrl/vxcontroltable_p.h"
#include "ctrl/vximagehandle_p.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

IMPLEMENT_DYNCREATE_LIST_E(CButton_E, CWnd_E, QAbstractButton, &QAbstractButton::staticMetaObject,
                           &QGroupBox::staticMetaObject)

namespace {

using namespace vx::detail;

using Row = ControlMessage<CButton_E>;

constexpr DWORD kStyleMask = 0xFFFF;

/// What the type in a style word asks for.
enum class Kind
{
    Push,
    Check,
    Radio,
    Group
};

Kind kindOf(DWORD dwStyle)
{
    switch (dwStyle & BS_TYPEMASK) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_3STATE:
    case BS_AUTO3STATE:
        return Kind::Check;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
        return Kind::Radio;
    case BS_GROUPBOX:
        return Kind::Group;
    default:
        return Kind::Push;
    }
}

Kind kindOf(const QWidget* pWidget)
{
    return qobject_cast<const QCheckBox*>(pWidget)      ? Kind::Check
           : qobject_cast<const QRadioButton*>(pWidget) ? Kind::Radio
           : qobject_cast<const QGroupBox*>(pWidget)    ? Kind::Group
                                                        : Kind::Push;
}

QWidget* makeWidget(Kind kind, QWidget* pParent)
{
    switch (kind) {
    case Kind::Check:
        return new QCheckBox(pParent);
    case Kind::Radio:
        return new QRadioButton(pParent);
    case Kind::Group:
        return new QGroupBox(pParent);
    case Kind::Push:
        break;
    }
    return new QPushButton(pParent);
}

bool hasThreeStates(DWORD dwStyle)
{
    const DWORD type = dwStyle & BS_TYPEMASK;
    return type == BS_3STATE || type == BS_AUTO3STATE;
}

DWORD withType(DWORD dwStyle, DWORD type) { return (dwStyle & ~BS_TYPEMASK) | type; }

/// The style with the type of a widget that exists.
DWORD styleOf(const QWidget* pWidget, DWORD dwStyle)
{
    switch (kindOf(pWidget)) {
    case Kind::Check:
        // Intended: a form's check box with three states counts as one with two.
        return hasThreeStates(dwStyle) ? dwStyle : withType(dwStyle, BS_AUTOCHECKBOX);
    case Kind::Radio:
        return (dwStyle & BS_TYPEMASK) == BS_AUTORADIOBUTTON ? dwStyle
                                                             : withType(dwStyle, BS_RADIOBUTTON);
    case Kind::Group:
        return withType(dwStyle, BS_GROUPBOX);
    case Kind::Push:
        break;
    }
    return dwStyle;
}

void applyStyle(QWidget* pWidget, DWORD dwStyle)
{
    if (auto* const pBox = qobject_cast<QCheckBox*>(pWidget))
        pBox->setTristate(hasThreeStates(dwStyle));
    if (auto* const pPush = qobject_cast<QPushButton*>(pWidget)) {
        pPush->setDefault((dwStyle & BS_TYPEMASK) == BS_DEFPUSHBUTTON);
        pPush->setFlat((dwStyle & BS_FLAT) != 0);
    } else if (dwStyle & BS_LEFTTEXT) {
        pWidget->setLayoutDirection(Qt::RightToLeft);
    } else {
        pWidget->unsetLayoutDirection();
    }
}

/// By value of BST_UNCHECKED, BST_CHECKED and BST_INDETERMINATE.
constexpr Qt::CheckState kCheckStates[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};

QCheckBox* threeStateBox(const CButton_E& button)
{
    return hasThreeStates(button.GetStyle()) ? widgetOf<QCheckBox>(button) : nullptr;
}

// clang-format off
constexpr Row kMessages[] = {
    {BM_GETCHECK, [](auto& button, WPARAM, LPARAM) -> LRESULT { return button.GetCheck(); }},
    {BM_SETCHECK, [](auto& button, WPARAM w, LPARAM) -> LRESULT { return button.SetCheck(intIn(w)), 0; }},
    {BM_GETSTATE, [](auto& button, WPARAM, LPARAM) -> LRESULT { return button.GetState(); }},
    {BM_SETSTATE, [](auto& button, WPARAM w, LPARAM) -> LRESULT { return button.SetState(w != 0), 0; }},
    {BM_SETSTYLE, [](auto& button, WPARAM w, LPARAM l) -> LRESULT { return button.SetButtonStyle(static_cast<UINT>(w), l != 0), 0; }},
    {BM_CLICK,    [](auto& button, WPARAM, LPARAM) -> LRESULT { return button.Click(), 0; }},
    {BM_GETIMAGE, [](auto& button, WPARAM w, LPARAM) { return imageHandle(button, w); }},
    {BM_SETIMAGE, [](auto& button, WPARAM w, LPARAM l) { return setImageHandle(button, w, l); }},
};
// clang-format on

} // namespace

BOOL CButton_E::AttachDefault(QWidget* pParent)
{
    QWidget* const pWidget = makeWidget(kindOf(m_dwStyle), pParent);
    applyStyle(pWidget, m_dwStyle);
    return Attach(pWidget, pParent, false);
}

BOOL CButton_E::OnAttach()
{
    m_dwStyle = styleOf(GetSafeHwnd(), m_dwStyle);
    return CWnd_E::OnAttach();
}

BOOL CButton_E::Create(LPCWSTR lpszCaption, DWORD dwStyle, const tagRECT& rect, QWidget* pParent)
{
    return createWithText(*this, lpszCaption, dwStyle, rect, pParent);
}

BOOL CButton_E::Create(LPCWSTR lpszCaption, DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent,
                       UINT nID)
{
    return createWithId(*this, pParent, nID, [&](QWidget* pWidget) {
        return Create(lpszCaption, dwStyle, rect, pWidget);
    });
}

int CButton_E::GetCheck() const
{
    if (const auto* const pBox = threeStateBox(*this)) {
        const auto* const pState =
            std::find(std::begin(kCheckStates), std::end(kCheckStates), pBox->checkState());
        return static_cast<int>(pState - std::begin(kCheckStates));
    }
    return askWidget<QAbstractButton>(*this, 0, [](auto& button) { return button.isChecked(); });
}

void CButton_E::SetCheck(int nCheck)
{
    if (auto* const pBox = threeStateBox(*this)) {
        if (nCheck >= BST_UNCHECKED && nCheck <= BST_INDETERMINATE)
            pBox->setCheckState(kCheckStates[nCheck]);
    } else if (auto* const pButton = widgetOf<QAbstractButton>(*this)) {
        pButton->setChecked(nCheck != BST_UNCHECKED);
    }
}

UINT CButton_E::GetState() const
{
    return askWidget<QAbstractButton>(
        *this, 0U, [](auto& button) { return button.hasFocus() ? BST_FOCUS : 0; });
}

void CButton_E::SetState(BOOL bHighlight)
{
    auto* const pButton = widgetOf<QAbstractButton>(*this);
    if (pButton && bHighlight)
        pButton->setFocus();
    else if (pButton)
        pButton->clearFocus();
}

void CButton_E::Click()
{
    if (auto* const pButton = widgetOf<QAbstractButton>(*this))
        pButton->click();
}

UINT CButton_E::GetButtonStyle() const { return GetSafeHwnd() ? GetStyle() & kStyleMask : 0; }

void CButton_E::SetButtonStyle(UINT nStyle, BOOL)
{
    QWidget* const pWidget = GetSafeHwnd();
    if (!pWidget)
        return;
    DWORD dwStyle = (m_dwStyle & ~kStyleMask) | (nStyle & kStyleMask);
    if (kindOf(dwStyle) != kindOf(pWidget))
        dwStyle = withType(dwStyle, m_dwStyle & BS_TYPEMASK);
    m_dwStyle = dwStyle;
    applyStyle(pWidget, dwStyle);
}

QIcon CButton_E::SetIcon(const QIcon& icon)
{
    return askWidget<QAbstractButton>(*this, QIcon(), [&icon](auto& button) {
        QIcon previous = button.icon();
        button.setIcon(icon);
        return previous;
    });
}

QIcon CButton_E::GetIcon() const
{
    return askWidget<QAbstractButton>(*this, QIcon(), [](auto& button) { return button.icon(); });
}

QPixmap CButton_E::SetBitmap(const QPixmap& bitmap)
{
    return askWidget<QAbstractButton>(*this, QPixmap(), [&bitmap](auto& button) {
        QPixmap previous = button.icon().pixmap(button.iconSize());
        button.setIcon(QIcon(bitmap));
        if (!bitmap.isNull())
            button.setIconSize(bitmap.size());
        return previous;
    });
}

QPixmap CButton_E::GetBitmap() const
{
    return askWidget<QAbstractButton>(
        *this, QPixmap(), [](auto& button) { return button.icon().pixmap(button.iconSize()); });
}

BOOL CButton_E::GetIdealSize(tagSIZE* pSize) const
{
    return askWidget<QAbstractButton>(*this, FALSE, [pSize](auto& button) {
        const QSize size = button.sizeHint();
        if (pSize)
            *pSize = {size.width(), size.height()};
        return pSize != nullptr;
    });
}

BOOL CButton_E::OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return answerFromTable(kMessages, *this, message, wParam, lParam, pResult);
}
