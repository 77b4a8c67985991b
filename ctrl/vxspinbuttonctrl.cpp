#include <VxMFCEmu/ctrl/spinbuttonctrl.h>

#include "core/vxqtinternals_p.h"
#include "ctrl/vxcontroltable_p.h"
#include "ctrl/vxlineselection_p.h"
#include "wnd/vxlivewidgets_p.h"

#include <VxCustomUI.h>

#include <climits>

IMPLEMENT_DYNCREATE_LIST_E(CSpinButtonCtrl_E, CWnd_E, QSpinBox, &QSpinBox::staticMetaObject,
                           &QDoubleSpinBox::staticMetaObject)

namespace {

using namespace vx::detail;

using Row = ControlMessage<CSpinButtonCtrl_E>;

/// Opens up the line edit of plain spin boxes, as the companion's are.
struct OpenSpinBox : QAbstractSpinBox
{
    using QAbstractSpinBox::lineEdit;
    using QAbstractSpinBox::setLineEdit;
};

int truncated(double value)
{
    return static_cast<int>(std::clamp<double>(value, INT_MIN, INT_MAX));
}

/// The result of @p ask for the spin box of either class.
template <typename Result, typename Ask>
Result askSpin(const CSpinButtonCtrl_E& spin, Result failure, Ask ask)
{
    if (auto* const pBox = widgetOf<QSpinBox>(spin))
        return ask(*pBox);
    return askWidget<QDoubleSpinBox>(spin, failure, ask);
}

template <typename Change>
void changeSpin(const CSpinButtonCtrl_E& spin, Change change)
{
    askSpin(spin, 0, [&change](auto& box) { return change(box), 0; });
}

/// The spin box when it is one of numbers: dates have none of what the members are about.
QAbstractSpinBox* spinBoxOf(const CSpinButtonCtrl_E& spin)
{
    return askSpin(spin, static_cast<QAbstractSpinBox*>(nullptr),
                   [](auto& box) -> QAbstractSpinBox* { return &box; });
}

QLineEdit* lineEditOf(const QAbstractSpinBox* pBox) { return (pBox->*(&OpenSpinBox::lineEdit))(); }

void setLineEdit(QAbstractSpinBox* pBox, QLineEdit* pEdit)
{
    (pBox->*(&OpenSpinBox::setLineEdit))(pEdit);
    pBox->setSpecialValueText(pBox->specialValueText()); // has the value shown in it
    pEdit->show();
}

/// Gives a spin box whose buddy is being destroyed a line edit of its own.
void replaceLostBuddy(QAbstractSpinBox* pBox)
{
    forgetLineEdit(pBox);
    auto* const pEdit = new QLineEdit(pBox);
    setLineEdit(pBox, pEdit);
    // The spin box itself deletes the buddy when somebody else sets a line edit.
    const auto dropUnused = [pBox, pEdit] {
        if (lineEditOf(pBox) != pEdit)
            pEdit->deleteLater();
    };
    QMetaObject::invokeMethod(pEdit, dropUnused, Qt::QueuedConnection);
}

LRESULT getRange32(CSpinButtonCtrl_E& spin, WPARAM wParam, LPARAM lParam)
{
    int nLower = 0;
    int nUpper = 0;
    spin.GetRange32(nLower, nUpper);
    if (auto* const pLower = pointerIn<int>(wParam))
        *pLower = nLower;
    if (auto* const pUpper = pointerIn<int>(lParam))
        *pUpper = nUpper;
    return 0;
}

LRESULT getPos(CSpinButtonCtrl_E& spin, WPARAM, LPARAM)
{
    BOOL bError = FALSE;
    const int nPos = spin.GetPos32(&bError);
    return MAKELRESULT(nPos, bError);
}

LRESULT setBuddy(CSpinButtonCtrl_E& spin, WPARAM wParam, LPARAM)
{
    spin.SetBuddy(qobject_cast<QLineEdit*>(liveWidgetAt(pointerIn<void>(wParam))));
    return 0;
}

// clang-format off
constexpr Row kMessages[] = {
    {UDM_SETRANGE,   [](auto& spin, WPARAM, LPARAM l) -> LRESULT { return spin.SetRange(highWord(l), lowWord(l)), 0; }},
    {UDM_GETRANGE,   [](auto& spin, WPARAM, LPARAM) -> LRESULT { return spin.GetRange(); }},
    {UDM_SETRANGE32, [](auto& spin, WPARAM w, LPARAM l) -> LRESULT { return spin.SetRange32(intIn(w), intIn(l)), 0; }},
    {UDM_GETRANGE32, getRange32},
    {UDM_SETPOS,     [](auto& spin, WPARAM, LPARAM l) -> LRESULT { return spin.SetPos(lowWord(l)); }},
    {UDM_GETPOS,     getPos},
    {UDM_SETPOS32,   [](auto& spin, WPARAM, LPARAM l) -> LRESULT { return spin.SetPos32(intIn(l)); }},
    {UDM_GETPOS32,   [](auto& spin, WPARAM, LPARAM l) -> LRESULT { return spin.GetPos32(pointerIn<BOOL>(l)); }},
    {UDM_SETACCEL,   [](auto& spin, WPARAM w, LPARAM l) -> LRESULT { return spin.SetAccel(intIn(w), pointerIn<UDACCEL>(l)); }},
    {UDM_GETACCEL,   [](auto& spin, WPARAM w, LPARAM l) -> LRESULT { return spin.GetAccel(intIn(w), pointerIn<UDACCEL>(l)); }},
    {UDM_SETBUDDY,   setBuddy},
    {UDM_GETBUDDY,   [](auto& spin, WPARAM, LPARAM) -> LRESULT { return reinterpret_cast<std::intptr_t>(spin.GetBuddy()); }},
    {UDM_SETBASE,    [](auto& spin, WPARAM w, LPARAM) -> LRESULT { return spin.SetBase(intIn(w)); }},
    {UDM_GETBASE,    [](auto& spin, WPARAM, LPARAM) -> LRESULT { return spin.GetBase(); }},
};
// clang-format on

} // namespace

BOOL CSpinButtonCtrl_E::AttachDefault(QWidget* pParent)
{
    return m_dwStyle & VXUDS_DOUBLE ? attachNew<VxCUIDoubleSpinBox>(*this, pParent)
                                    : attachNew<VxCUISpinBox>(*this, pParent);
}

BOOL CSpinButtonCtrl_E::Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent)
{
    if (!CWnd_E::Create(dwStyle, rect, pParent))
        return FALSE;
    changeSpin(*this, [dwStyle](auto& box) { box.setWrapping((dwStyle & UDS_WRAP) != 0); });
    return TRUE;
}

BOOL CSpinButtonCtrl_E::Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID)
{
    return createWithId(*this, pParent, nID,
                        [&](QWidget* pWidget) { return Create(dwStyle, rect, pWidget); });
}

void CSpinButtonCtrl_E::SetRange(short nLower, short nUpper) { SetRange32(nLower, nUpper); }

void CSpinButtonCtrl_E::SetRange32(int nLower, int nUpper)
{
    changeSpin(*this, [=](auto& box) { box.setRange(nLower, nUpper); });
}

DWORD CSpinButtonCtrl_E::GetRange() const
{
    int nLower = 0;
    int nUpper = 0;
    GetRange32(nLower, nUpper);
    return MAKELONG(nUpper, nLower);
}

void CSpinButtonCtrl_E::GetRange(int& nLower, int& nUpper) const { GetRange32(nLower, nUpper); }

void CSpinButtonCtrl_E::GetRange32(int& nLower, int& nUpper) const
{
    nLower = askSpin(*this, 0, [](auto& box) { return truncated(box.minimum()); });
    nUpper = askSpin(*this, 0, [](auto& box) { return truncated(box.maximum()); });
}

int CSpinButtonCtrl_E::SetPos(int nPos) { return SetPos32(nPos); }

int CSpinButtonCtrl_E::SetPos32(int nPos)
{
    return askSpin(*this, -1, [nPos](auto& box) {
        if (nPos < box.minimum() || nPos > box.maximum())
            return -1;
        const int nPrevious = truncated(box.value());
        box.setValue(nPos);
        return nPrevious;
    });
}

int CSpinButtonCtrl_E::GetPos() const { return GetPos32(); }

int CSpinButtonCtrl_E::GetPos32(BOOL* pbError) const
{
    BOOL bError = TRUE;
    const int nPos = askSpin(*this, -1, [&bError](auto& box) {
        bError = FALSE;
        return truncated(box.value());
    });
    if (pbError)
        *pbError = bError;
    return nPos;
}

BOOL CSpinButtonCtrl_E::SetAccel(int nAccel, const UDACCEL* pAccel)
{
    auto* const pBox = spinBoxOf(*this);
    if (!pBox || nAccel <= 0)
        return pBox != nullptr;
    pBox->setAccelerated(true);
    if (auto* const pWhole = qobject_cast<QSpinBox*>(pBox); pWhole && pAccel)
        pWhole->setSingleStep(static_cast<int>(std::min<UINT>(pAccel->nInc, INT_MAX)));
    return TRUE;
}

UINT CSpinButtonCtrl_E::GetAccel(int nAccel, UDACCEL* pAccel) const
{
    return askSpin(*this, UINT{0}, [=](auto& box) -> UINT {
        if (nAccel > 0 && pAccel)
            *pAccel = {0, static_cast<UINT>(truncated(box.singleStep()))};
        return 1;
    });
}

void CSpinButtonCtrl_E::SetBuddy(QLineEdit* pBuddy)
{
    auto* const pBox = spinBoxOf(*this);
    // Taken away from another one's, it would leave that one with a dangling pointer.
    if (!pBox || !pBuddy || pBuddy->isAncestorOf(pBox) ||
        qobject_cast<QAbstractSpinBox*>(pBuddy->parent()) ||
        qobject_cast<QComboBox*>(pBuddy->parent()))
        return;
    if (const QLineEdit* const pOld = lineEditOf(pBox); pOld && pOld != pBuddy)
        QObject::disconnect(pOld, &QObject::destroyed, pBox, nullptr);
    setLineEdit(pBox, pBuddy);
    QObject::disconnect(pBuddy, &QObject::destroyed, pBox, nullptr);
    QObject::connect(pBuddy, &QObject::destroyed, pBox, [pBox] {
        // A spin box that is being destroyed takes its buddy along, and is no spin box any more.
        if (qobject_cast<QAbstractSpinBox*>(static_cast<QObject*>(pBox)))
            replaceLostBuddy(pBox);
    });
}

CWnd_E* CSpinButtonCtrl_E::SetBuddy(CWnd_E* pWndBuddy)
{
    SetBuddy(pWndBuddy ? widgetOf<QLineEdit>(*pWndBuddy) : nullptr);
    return nullptr;
}

void CSpinButtonCtrl_E::SetBuddy(std::nullptr_t) {}

QLineEdit* CSpinButtonCtrl_E::GetBuddy() const
{
    const auto* const pBox = spinBoxOf(*this);
    return pBox ? lineEditOf(pBox) : nullptr;
}

int CSpinButtonCtrl_E::SetBase(int nBase)
{
    return askWidget<QSpinBox>(*this, -1, [nBase](auto& box) {
        if (nBase < 2 || nBase > 36)
            return 0;
        const int nPrevious = box.displayIntegerBase();
        box.setDisplayIntegerBase(nBase);
        return nPrevious;
    });
}

int CSpinButtonCtrl_E::GetBase() const
{
    return askWidget<QSpinBox>(*this, -1, [](auto& box) { return box.displayIntegerBase(); });
}

void CSpinButtonCtrl_E::SetDecimals(int nDecimals)
{
    if (auto* const pBox = widgetOf<QDoubleSpinBox>(*this))
        pBox->setDecimals(nDecimals);
}

int CSpinButtonCtrl_E::GetDecimals() const
{
    return askWidget<QDoubleSpinBox>(*this, 0, [](auto& box) { return box.decimals(); });
}

void CSpinButtonCtrl_E::GetSel(int& nStart, int& nEnd) const
{
    getLineSelection(GetBuddy(), nStart, nEnd);
}

void CSpinButtonCtrl_E::SetSel(int nStart, int nEnd, BOOL)
{
    setLineSelection(GetBuddy(), m_dwStyle, nStart, nEnd);
}

void CSpinButtonCtrl_E::GetWindowText(CString_E& rString)
{
    GetWindowText_E(spinBoxOf(*this), rString);
}

void CSpinButtonCtrl_E::SetWindowText(const wchar_t* lpszString)
{
    SetWindowText_E(spinBoxOf(*this), lpszString);
}

BOOL CSpinButtonCtrl_E::OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam,
                                         LRESULT* pResult)
{
    return answerFromTable(kMessages, *this, message, wParam, lParam, pResult);
}
