#include <VxMFCEmu/ctrl/sliderctrl.h>

#include "ctrl/vxcontroltable_p.h"
#include "wnd/vxgeometryconvert_p.h"

#include <QtWidgets/QSlider>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSlider>

#include <climits>
#include <numeric>

IMPLEMENT_DYNCREATE_LIST_E(CSliderCtrl_E, CWnd_E, QSlider, &QSlider::staticMetaObject,
                           &QAbstractSlider::staticMetaObject)

namespace {

using namespace vx::detail;

using Row = ControlMessage<CSliderCtrl_E>;

constexpr char kTics[] = "sliderTics";
constexpr char kSelection[] = "sliderSelection";

struct OpenSlider : QSlider
{
    using QSlider::initStyleOption;
};

/// The tics between the first and the last.
QVector<int> innerTics(const QAbstractSlider& slider)
{
    auto tics = slider.property(kTics).value<QVector<int>>();
    const auto isOutside = [&slider](int nTic) {
        return nTic <= slider.minimum() || nTic >= slider.maximum();
    };
    tics.erase(std::remove_if(tics.begin(), tics.end(), isOutside), tics.end());
    return tics;
}

/// Painting takes its time for each tic of the range, also for those on one pixel.
constexpr LONGLONG kMostTics = 1000;

/// Has the widget draw the tics that are set, or its own choice by pages when @p dwStyle or its
/// form wants that; those at the ends alone when they are too many.
void fitTics(QSlider& slider, DWORD dwStyle)
{
    const LONGLONG distance = LONGLONG{slider.maximum()} - slider.minimum();
    const bool bOwn = !slider.property(kTics).isValid();
    const bool bAsked = slider.tickInterval() <= 0 && slider.tickPosition() != QSlider::NoTicks;
    if (bOwn && !(dwStyle & TBS_AUTOTICKS) && !bAsked)
        return;
    LONGLONG interval = bOwn ? std::max(slider.pageStep(), 1) : distance;
    const auto tics = innerTics(slider);
    for (const int nTic : tics)
        interval = std::gcd(interval, LONGLONG{nTic} - slider.minimum());
    if (interval > 0 && distance / interval > kMostTics)
        slider.setTickInterval(static_cast<int>(std::min<LONGLONG>(distance, INT_MAX)));
    else
        slider.setTickInterval(bOwn ? 0 : static_cast<int>(std::min<LONGLONG>(interval, INT_MAX)));
}

void showTics(QSlider& slider, DWORD dwStyle)
{
    fitTics(slider, dwStyle);
    slider.setTickPosition(dwStyle & TBS_NOTICKS ? QSlider::NoTicks
                           : dwStyle & TBS_BOTH  ? QSlider::TicksBothSides
                           : dwStyle & TBS_TOP   ? QSlider::TicksAbove
                                                 : QSlider::TicksBelow);
}

void setTics(CSliderCtrl_E& control, QAbstractSlider& slider, const QVector<int>& tics)
{
    slider.setProperty(kTics, QVariant::fromValue(tics));
    if (auto* const pSlider = qobject_cast<QSlider*>(&slider))
        showTics(*pSlider, control.GetStyle());
}

tagRECT partRect(const CSliderCtrl_E& control, QStyle::SubControl part)
{
    const auto* const pSlider = widgetOf<QSlider>(control);
    if (!pSlider)
        return {};
    QStyleOptionSlider option;
    (pSlider->*(&OpenSlider::initStyleOption))(&option);
    return toRect(pSlider->style()->subControlRect(QStyle::CC_Slider, &option, part, pSlider));
}

/// Makes a change after which other tics may be too many.
template <typename Change>
void changeScale(const CSliderCtrl_E& control, Change change)
{
    if (auto* const pSlider = widgetOf<QAbstractSlider>(control))
        change(*pSlider);
    if (auto* const pSlider = widgetOf<QSlider>(control))
        fitTics(*pSlider, control.GetStyle());
}

/// Changes one end of the selection.
LRESULT setSelectionEnd(CSliderCtrl_E& slider, bool bStart, int nPos)
{
    int nMin = 0;
    int nMax = 0;
    slider.GetSelection(nMin, nMax);
    if (bStart)
        slider.SetSelection(nPos, std::max(nPos, nMax));
    else
        slider.SetSelection(std::min(nMin, nPos), nPos);
    return 0;
}

LRESULT getSelectionEnd(CSliderCtrl_E& slider, bool bStart)
{
    int nMin = 0;
    int nMax = 0;
    slider.GetSelection(nMin, nMax);
    return bStart ? nMin : nMax;
}

// clang-format off
constexpr Row kMessages[] = {
    {TBM_GETPOS,         [](auto& slider, WPARAM, LPARAM) -> LRESULT { return slider.GetPos(); }},
    {TBM_SETPOS,         [](auto& slider, WPARAM, LPARAM l) -> LRESULT { return slider.SetPos(intIn(l)), 0; }},
    {TBM_SETPOSNOTIFY,   [](auto& slider, WPARAM, LPARAM l) -> LRESULT { return slider.SetPos(intIn(l)), 0; }},
    {TBM_GETRANGEMIN,    [](auto& slider, WPARAM, LPARAM) -> LRESULT { return slider.GetRangeMin(); }},
    {TBM_GETRANGEMAX,    [](auto& slider, WPARAM, LPARAM) -> LRESULT { return slider.GetRangeMax(); }},
    {TBM_SETRANGE,       [](auto& slider, WPARAM, LPARAM l) -> LRESULT { return slider.SetRange(lowWord(l), highWord(l)), 0; }},
    {TBM_SETRANGEMIN,    [](auto& slider, WPARAM, LPARAM l) -> LRESULT { return slider.SetRangeMin(intIn(l)), 0; }},
    {TBM_SETRANGEMAX,    [](auto& slider, WPARAM, LPARAM l) -> LRESULT { return slider.SetRangeMax(intIn(l)), 0; }},
    {TBM_GETTIC,         [](auto& slider, WPARAM w, LPARAM) -> LRESULT { return slider.GetTic(intIn(w)); }},
    {TBM_SETTIC,         [](auto& slider, WPARAM, LPARAM l) -> LRESULT { return slider.SetTic(intIn(l)); }},
    {TBM_CLEARTICS,      [](auto& slider, WPARAM, LPARAM) -> LRESULT { return slider.ClearTics(), 0; }},
    {TBM_GETNUMTICS,     [](auto& slider, WPARAM, LPARAM) -> LRESULT { return slider.GetNumTics(); }},
    {TBM_SETTICFREQ,     [](auto& slider, WPARAM w, LPARAM) -> LRESULT { return slider.SetTicFreq(intIn(w)), 0; }},
    {TBM_SETSEL,         [](auto& slider, WPARAM, LPARAM l) -> LRESULT { return slider.SetSelection(lowWord(l), highWord(l)), 0; }},
    {TBM_SETSELSTART,    [](auto& slider, WPARAM, LPARAM l) { return setSelectionEnd(slider, true, intIn(l)); }},
    {TBM_SETSELEND,      [](auto& slider, WPARAM, LPARAM l) { return setSelectionEnd(slider, false, intIn(l)); }},
    {TBM_GETSELSTART,    [](auto& slider, WPARAM, LPARAM) { return getSelectionEnd(slider, true); }},
    {TBM_GETSELEND,      [](auto& slider, WPARAM, LPARAM) { return getSelectionEnd(slider, false); }},
    {TBM_CLEARSEL,       [](auto& slider, WPARAM, LPARAM) -> LRESULT { return slider.ClearSel(), 0; }},
    {TBM_SETPAGESIZE,    [](auto& slider, WPARAM, LPARAM l) -> LRESULT { return slider.SetPageSize(intIn(l)); }},
    {TBM_GETPAGESIZE,    [](auto& slider, WPARAM, LPARAM) -> LRESULT { return slider.GetPageSize(); }},
    {TBM_SETLINESIZE,    [](auto& slider, WPARAM, LPARAM l) -> LRESULT { return slider.SetLineSize(intIn(l)); }},
    {TBM_GETLINESIZE,    [](auto& slider, WPARAM, LPARAM) -> LRESULT { return slider.GetLineSize(); }},
    {TBM_GETTHUMBRECT,   [](auto& slider, WPARAM, LPARAM l) -> LRESULT { return slider.GetThumbRect(pointerIn<RECT>(l)), 0; }},
    {TBM_GETCHANNELRECT, [](auto& slider, WPARAM, LPARAM l) -> LRESULT { return slider.GetChannelRect(pointerIn<RECT>(l)), 0; }},
};
// clang-format on

} // namespace

BOOL CSliderCtrl_E::AttachDefault(QWidget* pParent)
{
    const bool bVertical = (m_dwStyle & TBS_VERT) != 0;
    auto* const pSlider = new QSlider(bVertical ? Qt::Vertical : Qt::Horizontal, pParent);
    pSlider->setInvertedAppearance(bVertical);
    pSlider->setInvertedControls(bVertical);
    return Attach(pSlider, pParent, false);
}

BOOL CSliderCtrl_E::Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent)
{
    if (!CWnd_E::Create(dwStyle, rect, pParent))
        return FALSE;
    if (auto* const pSlider = widgetOf<QSlider>(*this); pSlider && dwStyle & TBS_AUTOTICKS)
        showTics(*pSlider, dwStyle);
    return TRUE;
}

BOOL CSliderCtrl_E::Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID)
{
    return createWithId(*this, pParent, nID,
                        [&](QWidget* pWidget) { return Create(dwStyle, rect, pWidget); });
}

void CSliderCtrl_E::SetRange(int nMin, int nMax, BOOL)
{
    changeScale(*this, [=](auto& slider) { slider.setRange(nMin, nMax); });
}

void CSliderCtrl_E::SetRangeMin(int nMin, BOOL)
{
    changeScale(*this, [=](auto& slider) { slider.setMinimum(nMin); });
}

void CSliderCtrl_E::SetRangeMax(int nMax, BOOL)
{
    changeScale(*this, [=](auto& slider) { slider.setMaximum(nMax); });
}

void CSliderCtrl_E::GetRange(int& nMin, int& nMax) const
{
    nMin = GetRangeMin();
    nMax = GetRangeMax();
}

int CSliderCtrl_E::GetRangeMin() const
{
    return askWidget<QAbstractSlider>(*this, 0, [](auto& slider) { return slider.minimum(); });
}

int CSliderCtrl_E::GetRangeMax() const
{
    return askWidget<QAbstractSlider>(*this, 0, [](auto& slider) { return slider.maximum(); });
}

// The widget takes the absolute value of a step, which the lowest int does not have.
int CSliderCtrl_E::SetLineSize(int nSize)
{
    return askWidget<QAbstractSlider>(*this, 0, [nSize](auto& slider) {
        const int nPrevious = slider.singleStep();
        slider.setSingleStep(std::max(nSize, -INT_MAX));
        return nPrevious;
    });
}

int CSliderCtrl_E::GetLineSize() const
{
    return askWidget<QAbstractSlider>(*this, 0, [](auto& slider) { return slider.singleStep(); });
}

int CSliderCtrl_E::SetPageSize(int nSize)
{
    return askWidget<QAbstractSlider>(*this, 0, [this, nSize](auto& slider) {
        const int nPrevious = slider.pageStep();
        changeScale(*this, [=](auto& it) { it.setPageStep(std::max(nSize, -INT_MAX)); });
        return nPrevious;
    });
}

int CSliderCtrl_E::GetPageSize() const
{
    return askWidget<QAbstractSlider>(*this, 0, [](auto& slider) { return slider.pageStep(); });
}

void CSliderCtrl_E::SetPos(int nPos)
{
    if (auto* const pSlider = widgetOf<QAbstractSlider>(*this))
        pSlider->setSliderPosition(nPos);
}

int CSliderCtrl_E::GetPos() const
{
    return askWidget<QAbstractSlider>(*this, 0,
                                      [](auto& slider) { return slider.sliderPosition(); });
}

BOOL CSliderCtrl_E::SetTic(int nTic)
{
    return askWidget<QAbstractSlider>(*this, FALSE, [this, nTic](auto& slider) {
        if (nTic < slider.minimum() || nTic > slider.maximum())
            return FALSE;
        auto tics = innerTics(slider);
        const auto it = std::lower_bound(tics.begin(), tics.end(), nTic);
        if (it == tics.end() || *it != nTic)
            tics.insert(it, nTic);
        setTics(*this, slider, tics);
        return TRUE;
    });
}

void CSliderCtrl_E::ClearTics(BOOL)
{
    if (auto* const pSlider = widgetOf<QAbstractSlider>(*this))
        setTics(*this, *pSlider, {});
}

UINT CSliderCtrl_E::GetNumTics() const
{
    return askWidget<QAbstractSlider>(*this, UINT{0}, [this](auto& slider) {
        return m_dwStyle & TBS_NOTICKS ? 0 : innerTics(slider).size() + 2;
    });
}

int CSliderCtrl_E::GetTic(int nTic) const
{
    return askWidget<QAbstractSlider>(
        *this, -1, [nTic](auto& slider) { return innerTics(slider).value(nTic, -1); });
}

// Intended: tics stand where SetTic() sets them.
void CSliderCtrl_E::SetTicFreq(int) {}

void CSliderCtrl_E::SetSelection(int nMin, int nMax)
{
    if (auto* const pSlider = widgetOf<QAbstractSlider>(*this))
        pSlider->setProperty(kSelection,
                             QPoint(qBound(pSlider->minimum(), nMin, pSlider->maximum()),
                                    qBound(pSlider->minimum(), nMax, pSlider->maximum())));
}

void CSliderCtrl_E::GetSelection(int& nMin, int& nMax) const
{
    const auto* const pSlider = widgetOf<QAbstractSlider>(*this);
    const QPoint selection = pSlider ? pSlider->property(kSelection).toPoint() : QPoint();
    nMin = selection.x();
    nMax = selection.y();
}

void CSliderCtrl_E::ClearSel(BOOL)
{
    if (auto* const pSlider = widgetOf<QAbstractSlider>(*this))
        pSlider->setProperty(kSelection, QVariant());
}

void CSliderCtrl_E::GetThumbRect(tagRECT* pRect) const
{
    if (pRect)
        *pRect = partRect(*this, QStyle::SC_SliderHandle);
}

void CSliderCtrl_E::GetChannelRect(tagRECT* pRect) const
{
    if (pRect)
        *pRect = partRect(*this, QStyle::SC_SliderGroove);
}

BOOL CSliderCtrl_E::OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return answerFromTable(kMessages, *this, message, wParam, lParam, pResult);
}
