// Progress bars, scroll bars and sliders.
#include "controls.h"

#include <QtTest/QSignalSpy>

namespace {

using namespace vxtest;

TEST(Progress, ByMessages)
{
    int ends[2] = {};
    // clang-format off
    runSteps<CProgressCtrl_E, QProgressBar>(0, {
        {PBM_SETRANGE, 0, MAKELPARAM(5, 60000), MAKELONG(0, 100)}, {PBM_GETPOS, 4},
        {PBM_GETRANGE, TRUE, 5}, {PBM_GETRANGE, FALSE, at(ends), 60000},
        {PBM_SETRANGE32, -10, 90, MAKELONG(5, 60000)}, {PBM_GETRANGE, TRUE, -10}, {"minimum", -10},
        {"maximum", 90}, {PBM_SETPOS, 30, 4}, {PBM_SETPOS, 91, 30},
        {PBM_DELTAPOS, -5, 30}, // outside of the range nothing changed
        {PBM_STEPIT, 25}, {PBM_GETSTEP, 10}, {PBM_SETSTEP, 7, 10}, {PBM_STEPIT, 35},
        {PBM_DELTAPOS, INT_MAX, 42}, {PBM_GETPOS, 42}, {PBM_SETSTEP, INT_MIN, 7}, {PBM_STEPIT, 42},
        {"value", 42}, {PBM_SETMARQUEE, TRUE, 50, TRUE}, {PBM_SETMARQUEE, TRUE, TRUE},
        {"minimum", 0}, {"maximum", 0}, {PBM_SETRANGE32, -20, 80, MAKELONG(-10, 90)},
        {"maximum", 0}, // it goes on
        {PBM_GETRANGE, FALSE, 80}, {PBM_SETMARQUEE, FALSE, TRUE}, {"minimum", -20}, {"maximum", 80},
        {PBM_SETRANGE32, -20, 70, MAKELONG(-20, 80)}, {"maximum", 70},
        {PBM_SETBKCOLOR, CLR_DEFAULT}, {PBM_GETBKCOLOR, 0}, {PBM_GETBARCOLOR, CLR_DEFAULT},
        {PBM_SETBKCOLOR, 0, CLR_DEFAULT, 0},
    });
    // clang-format on
    EXPECT_EQ(ends[1], 60000);
}

TEST(Progress, Members)
{
    forMadeAndFound<CProgressCtrl_E, QProgressBar>(PBS_VERTICAL, [](CProgressCtrl_E& bar) {
        auto* const pBar = qobject_cast<QProgressBar*>(bar.GetSafeHwnd());
        EXPECT_EQ(pBar->orientation() == Qt::Vertical, !bar.IsTemporary());
        EXPECT_EQ(bar.GetPos(), bar.IsTemporary() ? -1 : 0);
        bar.SetRange(-10, 90);
        EXPECT_EQ(pBar->minimum(), -10);
        EXPECT_EQ(bar.SetBarColor(RGB(200, 10, 20)), CLR_DEFAULT);
        EXPECT_EQ(pBar->palette().color(QPalette::Highlight), QColor(200, 10, 20));
        EXPECT_EQ(bar.SetBarColor(CLR_DEFAULT), RGB(200, 10, 20));
        EXPECT_EQ(pBar->palette().color(QPalette::Highlight),
                  QApplication::palette(pBar).color(QPalette::Highlight));
        int nSeen = -1;
        QTimer::singleShot(0, pBar, [&] { nSeen = bar.GetPos(); });
        bar.OffsetPos(1);
        EXPECT_EQ(nSeen, -1);
        bar.SetPos(40);
        EXPECT_EQ(nSeen, 40) << "setting the position lets events through";
    });
}

TEST(ScrollBar, ByMessages)
{
    int low = 0, high = 0;
    SCROLLINFO got{0, SIF_ALL, 0, 0, 0, 0, 0}, set{0, SIF_ALL, 0, 109, 10, 1000, 7};
    SCROLLINFO range{0, SIF_RANGE, -50, 49, 0, 3, 0}, page{0, SIF_PAGE, 0, 0, UINT_MAX, 0, 0};
    SCROLLINFO nothing{0, SIF_RANGE | SIF_PAGE | SIF_DISABLENOSCROLL, 5, -5, 0, 0, 0};
    // clang-format off
    runSteps<CScrollBar_E, QScrollBar>(0, {
        {SBM_SETPOS, 30, TRUE, 0}, {SBM_SETPOS, -1, TRUE, 30}, {SBM_GETPOS, 0},
        {SBM_SETRANGE, 0, 100, 0}, {SBM_SETPOS, 100, TRUE, 0}, {SBM_SETRANGE, 0, 100, 0},
        {SBM_SETRANGEREDRAW, 0, 50, 100}, // the position that it had to leave
        {SBM_GETRANGE, 0}, {SBM_GETRANGE, at(&low), at(&high), 0},
        {SBM_ENABLE_ARROWS, ESB_DISABLE_BOTH, TRUE}, {"enabled", true},
        {SBM_SETSCROLLINFO, TRUE, at(&set), 100}, // the thumb covers the last nine
        {SBM_GETSCROLLINFO, 0, at(&got), TRUE},
        {SBM_SETSCROLLINFO, TRUE, at(&range), 40}, // the page stays
        {SBM_SETSCROLLINFO, TRUE, at(&page), -50}, {SBM_SETSCROLLINFO, TRUE, at(&nothing), 5},
        {"enabled", false}, {SBM_SETSCROLLINFO, TRUE, 5}, {SBM_GETSCROLLINFO, FALSE},
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

TEST(Slider, ByMessages)
{
    RECT thumb{}, channel{};
    // clang-format off
    runSteps<CSliderCtrl_E, QSlider>(TBS_AUTOTICKS, {
        {TBM_SETRANGE, TRUE, MAKELPARAM(-10, 90), 0}, {TBM_GETRANGEMIN, -10}, {TBM_GETRANGEMAX, 90},
        {TBM_SETPOS, TRUE, 33, 0}, {TBM_GETPOS, 33}, {TBM_SETPOSNOTIFY, 0, 1000, 0},
        {TBM_GETPOS, 90}, {TBM_SETRANGEMIN, FALSE, 0}, {TBM_SETRANGEMAX, FALSE, 60, 0},
        {TBM_GETPOS, 60}, {TBM_SETLINESIZE, 0, 2, 1}, {TBM_SETLINESIZE, 0, INT_MIN, 2},
        {TBM_SETLINESIZE, 0, 3, INT_MAX}, {TBM_GETLINESIZE, 3}, {TBM_SETPAGESIZE, 0, 20, 10},
        {TBM_GETPAGESIZE, 20}, {TBM_GETNUMTICS, 2}, {TBM_SETTIC, 0, 40, TRUE},
        {TBM_SETTIC, 0, 15, TRUE}, {TBM_SETTIC, 0, 15, TRUE}, {TBM_SETTIC, TRUE},
        {TBM_SETTIC, 0, 60, TRUE}, // the first and the last are there anyway
        {TBM_SETTIC, 0, 61, FALSE}, {TBM_SETTIC, 0, -1, FALSE}, {TBM_SETTICFREQ, 1, 0},
        {TBM_GETNUMTICS, 4}, {TBM_GETTIC, 15}, {TBM_GETTIC, 1, 40}, {TBM_GETTIC, 2, -1},
        {TBM_GETTIC, -1, -1}, {TBM_CLEARTICS, 0}, {TBM_GETNUMTICS, 2}, {TBM_GETSELEND, 0},
        {TBM_SETSEL, TRUE, MAKELPARAM(-5, 20), 0}, {TBM_GETSELSTART, 0}, {TBM_GETSELEND, 20},
        {TBM_SETSELSTART, 0, 30, 0}, {TBM_GETSELEND, 30}, {TBM_SETSELEND, 0, 1000, 0},
        {TBM_GETSELSTART, 30}, {TBM_GETSELEND, 60}, {TBM_CLEARSEL, 0}, {TBM_GETSELEND, 0},
        {TBM_GETTHUMBRECT, 0, at(&thumb), 0}, {TBM_GETCHANNELRECT, 0, at(&channel), 0},
        {TBM_GETTHUMBRECT, 0}, {TBM_GETCHANNELRECT, 0},
    });
    // clang-format on
    EXPECT_TRUE(thumb.right > thumb.left && channel.bottom > channel.top);
}

TEST(Slider, WhatShows)
{
    // clang-format off
    runSteps<CSliderCtrl_E, QSlider>(TBS_VERT, {
        {"orientation", Qt::Vertical}, // a form's stands by default
        {TBM_SETRANGE, TRUE, MAKELPARAM(0, 100), 0}, {"tickPosition", QSlider::NoTicks},
        {TBM_SETTIC, 0, 20, TRUE}, {TBM_SETTIC, 0, 50, TRUE}, {TBM_SETTIC, 0, 100, TRUE},
        {"tickInterval", 10}, {"tickPosition", QSlider::TicksBelow}, {TBM_CLEARTICS, 0},
        {TBM_SETTICFREQ, 5, 0}, {"tickInterval", 100}, // Intended: tics stand where they are set
        {TBM_SETRANGEMIN, 0, INT_MIN, 0}, {TBM_SETRANGEMAX, 0, INT_MAX, 0}, {TBM_SETTIC, TRUE},
        {"tickInterval", INT_MAX}, // not each of its 4294967295 positions
        {TBM_SETRANGEMIN, 0, -1, 0}, {TBM_SETRANGEMAX, 0, 3, 0}, {"tickInterval", 1},
        {TBM_SETRANGEMAX, 0, 1000, 0}, {"tickInterval", 1001},
    });
    // clang-format on
    QWidget parent;
    CSliderCtrl_E sliders[3];
    QSlider* made[3];
    const DWORD styles[] = {TBS_VERT | TBS_TOP, TBS_AUTOTICKS, TBS_NOTICKS};
    for (const int i : {0, 1, 2}) {
        ASSERT_TRUE(sliders[i].Create(styles[i], kPlace, &parent));
        made[i] = qobject_cast<QSlider*>(sliders[i].GetSafeHwnd());
        EXPECT_EQ(made[i]->invertedAppearance(), i == 0);
        sliders[i].SetRange(0, 1000000);
    }
    int nMin = -1, nMax = -1;
    sliders[0].GetRange(nMin, nMax);
    EXPECT_EQ(nMin + nMax, 1000000);
    sliders[0].SetTic(50);
    EXPECT_EQ(made[0]->tickPosition(), QSlider::TicksAbove);
    EXPECT_EQ(made[1]->tickInterval(), 1000000);
    sliders[1].SetPageSize(1000);
    EXPECT_EQ(made[1]->tickInterval(), 0) << "the widget's own choice";
    sliders[2].SetTic(50);
    EXPECT_EQ(sliders[2].GetNumTics(), 0U);
    EXPECT_EQ(made[2]->tickPosition(), QSlider::NoTicks);

    made[0]->setTracking(false);
    const QSignalSpy moved(made[0], &QSlider::valueChanged);
    sliders[0].SetPos(17);
    EXPECT_EQ(sliders[0].GetPos(), 17) << "the slider's position, not yet the value";
    EXPECT_EQ(moved.count(), 0);
}

} // namespace
