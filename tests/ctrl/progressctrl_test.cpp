// CProgressCtrl_E over progress bars.
#include "controls.h"

namespace {

using namespace vxtest;

TEST(Progress, ByMessages)
{
    static int ends[2];
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

} // namespace
