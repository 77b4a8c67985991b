#include <VxMFCEmu/ctrl/progressctrl.h>

#include "ctrl/vxcontroltable_p.h"

#include <VxMFCEmu/gdi/colorref.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QProgressBar>

IMPLEMENT_DYNCREATE_E(CProgressCtrl_E, CWnd_E, QProgressBar)

namespace {

using namespace vx::detail;

using Row = ControlMessage<CProgressCtrl_E>;

constexpr char kRangeBeforeMarquee[] = "rangeBeforeMarquee";
/// The step once more, for messages to a bar that no control is bound to.
constexpr char kStep[] = "progressStep";

/// As PBM_GETRANGE fills it.
struct ProgressRange
{
    int nLow;
    int nHigh;
};

LRESULT setRange(CProgressCtrl_E& bar, int nLower, int nUpper)
{
    ProgressRange old{};
    bar.GetRange(&old.nLow, &old.nHigh);
    bar.SetRange32(nLower, nUpper);
    return MAKELRESULT(old.nLow, old.nHigh);
}

LRESULT getRange(CProgressCtrl_E& bar, WPARAM bLow, LPARAM lParam)
{
    ProgressRange range{};
    bar.GetRange(&range.nLow, &range.nHigh);
    if (auto* const pRange = pointerIn<ProgressRange>(lParam))
        *pRange = range;
    return bLow ? range.nLow : range.nHigh;
}

constexpr char kBarColor[] = "barColor";
constexpr char kBackColor[] = "backColor";

COLORREF colorOf(const CProgressCtrl_E& control, const char* pszName)
{
    return askWidget<QProgressBar>(control, COLORREF{0}, [pszName](auto& bar) {
        const QVariant color = bar.property(pszName);
        return color.isValid() ? color.toUInt() : CLR_DEFAULT;
    });
}

/// Sets one colour, which @p pszName keeps, and gives the previous one.
COLORREF setColor(const CProgressCtrl_E& control, QPalette::ColorRole role, const char* pszName,
                  COLORREF color)
{
    return askWidget<QProgressBar>(control, COLORREF{0}, [&](auto& bar) {
        const bool bDefault = color == CLR_DEFAULT;
        const COLORREF previous = colorOf(control, pszName);
        bar.setProperty(pszName, bDefault ? QVariant() : QVariant(color));
        QPalette palette = bar.palette();
        palette.setColor(role,
                         bDefault ? QApplication::palette(&bar).color(role) : toQColor(color));
        bar.setPalette(palette);
        return previous;
    });
}

// clang-format off
constexpr Row kMessages[] = {
    {PBM_SETRANGE,   [](auto& bar, WPARAM, LPARAM l) { return setRange(bar, intIn(l & 0xFFFF), intIn((l >> 16) & 0xFFFF)); }},
    {PBM_SETRANGE32, [](auto& bar, WPARAM w, LPARAM l) { return setRange(bar, intIn(w), intIn(l)); }},
    {PBM_GETRANGE,   getRange},
    {PBM_SETPOS,     [](auto& bar, WPARAM w, LPARAM) -> LRESULT { return bar.SetPos(intIn(w)); }},
    {PBM_GETPOS,     [](auto& bar, WPARAM, LPARAM) -> LRESULT { return bar.GetPos(); }},
    {PBM_DELTAPOS,   [](auto& bar, WPARAM w, LPARAM) -> LRESULT { return bar.OffsetPos(intIn(w)); }},
    {PBM_SETSTEP,    [](auto& bar, WPARAM w, LPARAM) -> LRESULT { return bar.SetStep(intIn(w)); }},
    {PBM_GETSTEP,    [](auto& bar, WPARAM, LPARAM) -> LRESULT { return bar.GetStep(); }},
    {PBM_STEPIT,     [](auto& bar, WPARAM, LPARAM) -> LRESULT { return bar.StepIt(); }},
    {PBM_SETMARQUEE, [](auto& bar, WPARAM w, LPARAM l) -> LRESULT { return bar.SetMarquee(w != 0, intIn(l)); }},
    {PBM_SETBARCOLOR, [](auto& bar, WPARAM, LPARAM l) -> LRESULT { return bar.SetBarColor(static_cast<COLORREF>(l)); }},
    {PBM_SETBKCOLOR,  [](auto& bar, WPARAM, LPARAM l) -> LRESULT { return bar.SetBkColor(static_cast<COLORREF>(l)); }},
    {PBM_GETBARCOLOR, [](auto& bar, WPARAM, LPARAM) -> LRESULT { return bar.GetBarColor(); }},
    {PBM_GETBKCOLOR,  [](auto& bar, WPARAM, LPARAM) -> LRESULT { return bar.GetBkColor(); }},
};
// clang-format on

} // namespace

BOOL CProgressCtrl_E::AttachDefault(QWidget* pParent)
{
    auto* const pBar = new QProgressBar(pParent);
    pBar->setValue(0);
    return Attach(pBar, pParent, false);
}

BOOL CProgressCtrl_E::Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent)
{
    if (!CWnd_E::Create(dwStyle, rect, pParent))
        return FALSE;
    if (auto* const pBar = widgetOf<QProgressBar>(*this); pBar && dwStyle & PBS_VERTICAL)
        pBar->setOrientation(Qt::Vertical);
    return TRUE;
}

BOOL CProgressCtrl_E::Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID)
{
    return createWithId(*this, pParent, nID,
                        [&](QWidget* pWidget) { return Create(dwStyle, rect, pWidget); });
}

void CProgressCtrl_E::SetRange(short nLower, short nUpper) { SetRange32(nLower, nUpper); }

void CProgressCtrl_E::SetRange32(int nLower, int nUpper)
{
    auto* const pBar = widgetOf<QProgressBar>(*this);
    if (pBar && pBar->property(kRangeBeforeMarquee).isValid())
        pBar->setProperty(kRangeBeforeMarquee, QPoint(nLower, std::max(nLower, nUpper)));
    else if (pBar)
        pBar->setRange(nLower, nUpper);
}

void CProgressCtrl_E::GetRange(int* pLower, int* pUpper) const
{
    const QPoint range = askWidget<QProgressBar>(*this, QPoint(), [](auto& bar) {
        const QVariant kept = bar.property(kRangeBeforeMarquee);
        return kept.isValid() ? kept.toPoint() : QPoint(bar.minimum(), bar.maximum());
    });
    if (pLower)
        *pLower = range.x();
    if (pUpper)
        *pUpper = range.y();
}

int CProgressCtrl_E::SetPos(int nPos)
{
    auto* const pBar = widgetOf<QProgressBar>(*this);
    if (!pBar)
        return 0;
    const int nPrevious = pBar->value();
    pBar->setValue(nPos);
    QCoreApplication::processEvents();
    return nPrevious;
}

int CProgressCtrl_E::GetPos() const
{
    return askWidget<QProgressBar>(*this, 0, [](auto& bar) { return bar.value(); });
}

int CProgressCtrl_E::OffsetPos(int nOffset)
{
    return askWidget<QProgressBar>(*this, 0, [nOffset](auto& bar) {
        const int nPrevious = bar.value();
        bar.setValue(wrappingAdd(nPrevious, nOffset));
        return nPrevious;
    });
}

int CProgressCtrl_E::SetStep(int nStep)
{
    const int nPrevious = GetStep();
    m_nStep = nStep;
    return askWidget<QProgressBar>(*this, 0, [=](auto& bar) {
        bar.setProperty(kStep, nStep);
        return nPrevious;
    });
}

int CProgressCtrl_E::GetStep() const
{
    const auto* const pBar = widgetOf<QProgressBar>(*this);
    const QVariant step = pBar ? pBar->property(kStep) : QVariant();
    return step.isValid() ? step.toInt() : m_nStep;
}

int CProgressCtrl_E::StepIt() { return OffsetPos(GetStep()); }

COLORREF CProgressCtrl_E::SetBarColor(COLORREF color)
{
    return setColor(*this, QPalette::Highlight, kBarColor, color);
}

COLORREF CProgressCtrl_E::GetBarColor() const { return colorOf(*this, kBarColor); }

COLORREF CProgressCtrl_E::SetBkColor(COLORREF color)
{
    return setColor(*this, QPalette::Base, kBackColor, color);
}

COLORREF CProgressCtrl_E::GetBkColor() const { return colorOf(*this, kBackColor); }

BOOL CProgressCtrl_E::SetMarquee(BOOL bMarquee, int)
{
    return askWidget<QProgressBar>(*this, FALSE, [bMarquee](auto& bar) {
        const QVariant range = bar.property(kRangeBeforeMarquee);
        if (bMarquee && !range.isValid()) {
            bar.setProperty(kRangeBeforeMarquee, QPoint(bar.minimum(), bar.maximum()));
            bar.setRange(0, 0);
        } else if (!bMarquee && range.isValid()) {
            bar.setProperty(kRangeBeforeMarquee, QVariant());
            bar.setRange(range.toPoint().x(), range.toPoint().y());
        }
        return TRUE;
    });
}

BOOL CProgressCtrl_E::OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return answerFromTable(kMessages, *this, message, wParam, lParam, pResult);
}
