// CScrollBar_E over scroll bars, and the one that scroll handlers get.
#include "controls.h"
#include "support/xinput.h"

#include <X11/keysym.h>

namespace {

using namespace vxtest;

TEST(ScrollBar, ByMessages)
{
    static int low, high;
    static SCROLLINFO set{0, SIF_ALL, 0, 109, 10, 1000, 7};
    static SCROLLINFO got{0, SIF_ALL, 0, 0, 0, 0, 0};
    static SCROLLINFO rangeOnly{0, SIF_RANGE, -50, 49, 0, 3, 0};
    static SCROLLINFO page{0, SIF_PAGE, 0, 0, UINT_MAX, 0, 0};
    static SCROLLINFO nothing{0, SIF_RANGE | SIF_PAGE | SIF_DISABLENOSCROLL, 5, -5, 0, 0, 0};
    // clang-format off
    runSteps<CScrollBar_E, QScrollBar>(0, {
        {SBM_SETPOS, 30, TRUE, 0}, {SBM_SETPOS, -1, TRUE, 30}, {SBM_GETPOS, 0, 0, 0}, {SBM_SETRANGE, 0, 100, 0}, {SBM_SETPOS, 100, TRUE, 0},
        {SBM_SETRANGEREDRAW, 0, 50, 100}, // the position that it had to leave
        {SBM_GETRANGE, 0, 0, 0}, {SBM_GETRANGE, at(&low), at(&high), 0}, {SBM_ENABLE_ARROWS, ESB_DISABLE_BOTH, 0, TRUE}, {"enabled", true},
        {SBM_SETSCROLLINFO, TRUE, at(&set), 100}, // the thumb covers the last nine
        {SBM_GETSCROLLINFO, 0, at(&got), TRUE},
        {SBM_SETSCROLLINFO, TRUE, at(&rangeOnly), 40}, // the page stays
        {SBM_SETSCROLLINFO, TRUE, at(&page), -50}, {SBM_SETSCROLLINFO, TRUE, at(&nothing), 5}, {"enabled", false}, {SBM_SETSCROLLINFO, TRUE, 0, 5},
        {SBM_GETSCROLLINFO, 0, 0, FALSE},
    });
    // clang-format on
    EXPECT_EQ(std::tie(low, high), std::make_tuple(0, 50));
    EXPECT_EQ(std::tie(got.nMin, got.nMax, got.nPage, got.nPos, got.nTrackPos),
              std::make_tuple(0, 109, 10U, 100, 100));
}

TEST(ScrollBar, Members)
{
    forMadeAndFound<CScrollBar_E, QScrollBar>(SBS_VERT | WS_VSCROLL, [](CScrollBar_E& bar) {
        auto* const pBar = qobject_cast<QScrollBar*>(bar.GetSafeHwnd());
        EXPECT_EQ(pBar->orientation(), Qt::Vertical);
        EXPECT_TRUE(pBar->findChildren<QScrollBar*>().isEmpty());
        pBar->setRange(5, 20);
        bar.SetScrollRange(0, 1000); // Intended: nothing, as the other
        int low = 1, high = 2;
        bar.GetScrollRange(&low, &high);
        EXPECT_EQ(std::tie(low, high), std::make_tuple(1, 2));
        EXPECT_EQ(bar.GetScrollLimit(), 20);
        for (const bool bShow : {false, true}) {
            bar.ShowScrollBar(bShow);
            EXPECT_NE(pBar->isHidden(), bShow);
        }
    });
    QWidget parent;
    CScrollBar_E both; // Intended: only WS_VSCROLL is left out
    ASSERT_TRUE(both.Create(WS_HSCROLL | WS_VSCROLL, kPlace, &parent));
    EXPECT_EQ(both.GetStyle(), WS_HSCROLL);
    EXPECT_EQ(qobject_cast<QScrollBar*>(both.GetSafeHwnd())->orientation(), Qt::Horizontal);
}

class ScrolledWnd : public CWnd_E
{
public:
    void OnVScroll_E(UINT, UINT nPos, CScrollBar_E* pBar)
    {
        m_nPos = nPos;
        m_pSender = pBar; // of another class for a slider
        auto* const pReal = qobject_cast<CScrollBar_E*>(static_cast<CWnd_E*>(m_pSender));
        m_nBarPos = pReal ? pReal->GetScrollPos() : -1;
    }
    UINT m_nPos = 0;
    void* m_pSender = nullptr;
    int m_nBarPos = 0;
    DECLARE_MESSAGE_MAP_E()
};

BEGIN_MESSAGE_MAP_E(ScrolledWnd, CWnd_E)
ON_WM_VSCROLL_E()
END_MESSAGE_MAP_E()

TEST(ScrollBar, WhatScrollHandlersGet)
{
    QWidget widget;
    ScrolledWnd window;
    window.SubclassWindow(&widget);
    QScrollBar found;
    found.setValue(21);
    CScrollBar_E made;
    CSliderCtrl_E slider;
    ASSERT_TRUE(made.Create(SBS_VERT, kPlace, &widget) && slider.Create(0, kPlace, &widget));
    for (const auto& [pBar, nPos] :
         {Row<QWidget*, int>{&found, 21}, {made, 0}, {slider, -1}, {nullptr, -1}}) {
        window.SendMessage(WM_VSCROLL, SB_LINEDOWN, at(pBar));
        EXPECT_EQ(window.m_pSender, static_cast<void*>(CWnd_E::FromHandle(pBar)));
        EXPECT_EQ(window.m_nBarPos, nPos);
    }
    EXPECT_EQ(window.GetScrollBarCtrl(SB_VERT), nullptr);
    ClearTempObjectPool();
}

TEST(ScrollBar, RealScrolling)
{
    VXTEST_NEEDS_X11();
    ScrolledWnd window;
    ASSERT_TRUE(window.Create(WS_VSCROLL, {0, 0, 200, 200}, nullptr));
    ASSERT_TRUE(showAndActivate(window.GetSafeHwnd()));
    auto* const pOwn = window.GetSafeHwnd()->findChild<QScrollBar*>();
    movePointer(pOwn, {pOwn->width() / 2, 4});
    clickButton(5);
    EXPECT_TRUE(waitUntil([&] { return window.m_nBarPos > 0; }));
    EXPECT_EQ(window.m_nPos, UINT(window.m_nBarPos));
    EXPECT_EQ(window.m_pSender, CWnd_E::FromHandle(pOwn));
    CScrollBar_E bar;
    ASSERT_TRUE(bar.Create(WS_VISIBLE, {10, 10, 150, 30}, window.GetSafeHwnd()));
    bar.SetFocus();
    typeKey(XK_End);
    EXPECT_TRUE(waitUntil([&] { return bar.GetScrollPos() == bar.GetScrollLimit(); }));
    ClearTempObjectPool();
}

} // namespace
