// CProgressCtrl_E over progress bars.
#include "controls.h"

namespace {

using namespace vxtest;

struct Ends
{
    int low, high;
};

TEST(Progress, ByMessages)
{
    static Ends ends;
    // clang-format off
    runSteps<CProgressCtrl_E, QProgressBar>(0, {
        {PBM_SETRANGE, 0, MAKELPARAM(0, 60000), MAKELONG(0, 100)}, {PBM_GETRANGE, TRUE, 0, 0}, {PBM_GETRANGE, FALSE, at(&ends), 60000},
        {PBM_SETRANGE32, WPARAM(-1000), 1000, MAKELONG(0, 60000)}, {PBM_GETSTEP, 0, 0, 10}, {PBM_GETRANGE, TRUE, 0, -1000},
    });
    // clang-format on
    EXPECT_EQ(ends.high, 60000);
}

TEST(Progress, Members)
{
    forMadeAndFound<CProgressCtrl_E, QProgressBar>(PBS_VERTICAL, [](CProgressCtrl_E& bar) {
        auto* const pBar = qobject_cast<QProgressBar*>(bar.GetSafeHwnd());
        if (!bar.IsTemporary()) {
            EXPECT_EQ(pBar->orientation(), Qt::Vertical);
            EXPECT_EQ(bar.GetPos(), 0);
        }
        pBar->setValue(0);
        bar.SetRange(-10, 90);
        int low = 0, high = 0;
        bar.GetRange(&low, &high);
        EXPECT_EQ(std::tie(low, high), std::make_tuple(-10, 90));
        EXPECT_EQ(bar.SetPos(30), 0);
        EXPECT_EQ(bar.SetPos(91), 30);
        EXPECT_EQ(bar.OffsetPos(-5), 30) << "outside of the range nothing changed";
        EXPECT_EQ(bar.StepIt(), 25);
        EXPECT_EQ(bar.SetStep(7), 10);
        EXPECT_EQ(bar.StepIt(), 35);
        EXPECT_EQ(bar.OffsetPos(INT_MAX), 42);
        EXPECT_EQ(bar.GetPos(), 42);
        EXPECT_EQ(bar.SetStep(INT_MIN), 7);
        EXPECT_EQ(bar.StepIt(), 42);
        EXPECT_TRUE(bar.SetMarquee(TRUE) && bar.SetMarquee(TRUE));
        EXPECT_EQ(pBar->maximum(), pBar->minimum());
        bar.SetRange(-20, 80);
        EXPECT_EQ(pBar->maximum(), pBar->minimum()) << "it goes on";
        bar.GetRange(&low, &high);
        EXPECT_EQ(std::tie(low, high), std::make_tuple(-20, 80));
        EXPECT_TRUE(bar.SetMarquee(FALSE));
        EXPECT_EQ(pBar->maximum(), 80);
        EXPECT_EQ(bar.SetBarColor(RGB(200, 10, 20)), CLR_DEFAULT);
        EXPECT_EQ(pBar->palette().color(QPalette::Highlight), QColor(200, 10, 20));
        EXPECT_EQ(bar.SendMessage(PBM_SETBARCOLOR, 0, CLR_DEFAULT), RGB(200, 10, 20));
        EXPECT_EQ(pBar->palette().color(QPalette::Highlight),
                  QApplication::palette(pBar).color(QPalette::Highlight));
        EXPECT_EQ(bar.SetBkColor(0), CLR_DEFAULT);
        EXPECT_EQ(bar.SendMessage(PBM_GETBKCOLOR), 0);
        EXPECT_EQ(bar.SendMessage(PBM_GETBARCOLOR), CLR_DEFAULT);
        EXPECT_EQ(bar.SetBkColor(CLR_DEFAULT), 0U);
    });
}

TEST(Progress, TheStepStaysWithTheBar)
{
    QProgressBar bar;
    bar.setValue(0);
    EXPECT_EQ(SendMessage_E(&bar, PBM_SETSTEP, 3), 10);
    EXPECT_EQ(SendMessage_E(&bar, PBM_GETSTEP), 3);
    EXPECT_EQ(SendMessage_E(&bar, PBM_STEPIT), 0);
    EXPECT_EQ(SendMessage_E(&bar, PBM_DELTAPOS, WPARAM(-1)), 3);
    EXPECT_EQ(SendMessage_E(&bar, PBM_GETPOS), 2);
    EXPECT_EQ(SendMessage_E(&bar, PBM_SETMARQUEE, TRUE, 50), TRUE);
}

TEST(Progress, SettingThePositionLetsEventsThrough)
{
    QWidget parent;
    CProgressCtrl_E bar;
    ASSERT_TRUE(bar.Create(0, kPlace, &parent));
    int nSeen = -1;
    QTimer::singleShot(0, &parent, [&] { nSeen = bar.GetPos(); });
    bar.OffsetPos(1);
    EXPECT_EQ(nSeen, -1);
    bar.SetPos(40);
    EXPECT_EQ(nSeen, 40);
}

TEST(Progress, WithoutAUsableWidget)
{
    forUnusable<CProgressCtrl_E>([](CProgressCtrl_E& bar) {
        int low = 1, high = 2;
        bar.SetRange(1, 2);
        bar.GetRange(&low, &high);
        bar.GetRange(nullptr, nullptr);
        EXPECT_EQ(low | high | bar.SetPos(4) | bar.OffsetPos(4) | bar.StepIt() | bar.GetPos(), 0);
        EXPECT_EQ(bar.SetStep(4), 0);
        EXPECT_EQ(bar.GetStep(), 4) << "the step waits for the widget";
        EXPECT_FALSE(bar.SetMarquee(TRUE));
        EXPECT_EQ(bar.SetBarColor(1) | bar.SetBkColor(1), 0U);
    });
}

} // namespace
