#include <VxMFCEmu/ctrl/scrollbar.h>

#include "ctrl/vxcontroltable_p.h"

#include <QtCore/QVariant>
#include <QtWidgets/QScrollBar>

#include <climits>

IMPLEMENT_DYNCREATE_E(CScrollBar_E, CWnd_E, QScrollBar)

namespace {

using namespace vx::detail;

using Row = ControlMessage<CScrollBar_E>;

/// The page that SetScrollInfo() has set. The widget's own does not tell: it has one from the
/// start, and its highest position does not depend on it.
constexpr char kPage[] = "scrollPage";

/// The positions at the end that a page takes away, since the thumb covers them.
LONGLONG covered(const QAbstractSlider& bar)
{
    return std::max(bar.property(kPage).toLongLong() - 1, 0LL);
}

int rangeEnd(const QAbstractSlider& bar)
{
    return static_cast<int>(std::min<LONGLONG>(bar.maximum() + covered(bar), INT_MAX));
}

void setRangeAndPage(QAbstractSlider& bar, int nMin, int nMax, LONGLONG nPage)
{
    nMax = std::max(nMin, nMax);
    nPage = std::clamp<LONGLONG>(nPage, 0, std::min<LONGLONG>(LONGLONG{nMax} - nMin + 1, INT_MAX));
    bar.setProperty(kPage, nPage);
    if (nPage > 0)
        bar.setPageStep(static_cast<int>(nPage));
    bar.setRange(nMin, static_cast<int>(nMax - covered(bar)));
}

LRESULT setRange(CScrollBar_E& bar, WPARAM wParam, LPARAM lParam)
{
    SCROLLINFO info{};
    info.fMask = SIF_RANGE;
    info.nMin = intIn(wParam);
    info.nMax = intIn(lParam);
    const int nPrevious = bar.GetScrollPos();
    bar.SetScrollInfo(&info);
    return bar.GetScrollPos() != nPrevious ? nPrevious : 0;
}

LRESULT getRange(CScrollBar_E& bar, WPARAM wParam, LPARAM lParam)
{
    SCROLLINFO info{};
    bar.GetScrollInfo(&info, SIF_RANGE);
    if (auto* const pMin = pointerIn<int>(wParam))
        *pMin = info.nMin;
    if (auto* const pMax = pointerIn<int>(lParam))
        *pMax = info.nMax;
    return 0;
}

LRESULT setScrollInfo(CScrollBar_E& bar, WPARAM, LPARAM lParam)
{
    bar.SetScrollInfo(pointerIn<SCROLLINFO>(lParam));
    return bar.GetScrollPos();
}

LRESULT getScrollInfo(CScrollBar_E& bar, WPARAM, LPARAM lParam)
{
    auto* const pInfo = pointerIn<SCROLLINFO>(lParam);
    return bar.GetScrollInfo(pInfo, pInfo ? pInfo->fMask : 0);
}

// clang-format off
constexpr Row kMessages[] = {
    {SBM_SETPOS,         [](auto& bar, WPARAM w, LPARAM) -> LRESULT { return bar.SetScrollPos(intIn(w)); }},
    {SBM_GETPOS,         [](auto& bar, WPARAM, LPARAM) -> LRESULT { return bar.GetScrollPos(); }},
    {SBM_SETRANGE,       setRange},
    {SBM_SETRANGEREDRAW, setRange},
    {SBM_GETRANGE,       getRange},
    {SBM_ENABLE_ARROWS,  [](auto& bar, WPARAM w, LPARAM) -> LRESULT { return bar.EnableScrollBar(static_cast<UINT>(w)); }},
    {SBM_SETSCROLLINFO,  setScrollInfo},
    {SBM_GETSCROLLINFO,  getScrollInfo},
};
// clang-format on

} // namespace

BOOL CScrollBar_E::AttachDefault(QWidget* pParent)
{
    const auto orientation = m_dwStyle & SBS_VERT ? Qt::Vertical : Qt::Horizontal;
    return Attach(new QScrollBar(orientation, pParent), pParent, false);
}

BOOL CScrollBar_E::Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent)
{
    // Intended: only this bit goes; with WS_HSCROLL the base class adds a bar to the bar.
    return CWnd_E::Create(dwStyle & ~WS_VSCROLL, rect, pParent);
}

BOOL CScrollBar_E::Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID)
{
    return createWithId(*this, pParent, nID,
                        [&](QWidget* pWidget) { return Create(dwStyle, rect, pWidget); });
}

int CScrollBar_E::GetScrollPos() const
{
    return askWidget<QAbstractSlider>(*this, 0, [](auto& bar) { return bar.sliderPosition(); });
}

int CScrollBar_E::SetScrollPos(int nPos, BOOL)
{
    return askWidget<QAbstractSlider>(*this, 0, [nPos](auto& bar) {
        const int nPrevious = bar.sliderPosition();
        bar.setSliderPosition(nPos);
        return nPrevious;
    });
}

void CScrollBar_E::ShowScrollBar(BOOL bShow)
{
    if (auto* const pBar = widgetOf<QAbstractSlider>(*this))
        pBar->setVisible(bShow != 0);
}

BOOL CScrollBar_E::EnableScrollBar(UINT)
{
    return askWidget<QAbstractSlider>(*this, FALSE, [](auto&) { return TRUE; });
}

// Intended: both do nothing.
void CScrollBar_E::SetScrollRange(int, int, BOOL) {}

void CScrollBar_E::GetScrollRange(int*, int*) const {}

BOOL CScrollBar_E::SetScrollInfo(const SCROLLINFO* pInfo, BOOL)
{
    const QPointer<QAbstractSlider> bar(widgetOf<QAbstractSlider>(*this));
    if (!bar || !pInfo)
        return FALSE;
    const SCROLLINFO info = *pInfo; // what listens to the changes may take it away
    if (info.fMask & (SIF_RANGE | SIF_PAGE)) {
        const bool bRange = (info.fMask & SIF_RANGE) != 0;
        setRangeAndPage(*bar, bRange ? info.nMin : bar->minimum(),
                        bRange ? info.nMax : rangeEnd(*bar),
                        info.fMask & SIF_PAGE ? info.nPage : bar->property(kPage).toLongLong());
    }
    if (bar && info.fMask & SIF_POS)
        bar->setValue(info.nPos);
    if (bar && info.fMask & SIF_DISABLENOSCROLL)
        bar->setEnabled(bar->maximum() > bar->minimum());
    return TRUE;
}

BOOL CScrollBar_E::GetScrollInfo(SCROLLINFO* pInfo, UINT nMask) const
{
    const auto* const pBar = widgetOf<QAbstractSlider>(*this);
    if (!pBar || !pInfo)
        return FALSE;
    if (nMask & SIF_RANGE) {
        pInfo->nMin = pBar->minimum();
        pInfo->nMax = rangeEnd(*pBar);
    }
    if (nMask & SIF_PAGE)
        pInfo->nPage = pBar->property(kPage).toUInt();
    if (nMask & SIF_POS)
        pInfo->nPos = pBar->value();
    if (nMask & SIF_TRACKPOS)
        pInfo->nTrackPos = pBar->sliderPosition();
    return TRUE;
}

int CScrollBar_E::GetScrollLimit() const
{
    return askWidget<QAbstractSlider>(*this, 0, [](auto& bar) { return bar.maximum(); });
}

BOOL CScrollBar_E::OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return answerFromTable(kMessages, *this, message, wParam, lParam, pResult);
}
