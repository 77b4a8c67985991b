// CSliderCtrl_E over sliders.
#include "controls.h"
#include "support/xinput.h"

#include <QtTest/QSignalSpy>

#include <X11/keysym.h>

namespace {

using namespace vxtest;

TEST(Slider, ByMessages)
{
    static RECT thumb, channel;
    // clang-format off
    runSteps<CSliderCtrl_E, QSlider>(TBS_AUTOTICKS, {
        {TBM_SETRANGE, TRUE, MAKELPARAM(-10, 90), 0}, {TBM_GETRANGEMIN, 0, 0, -10}, {TBM_GETRANGEMAX, 0, 0, 90},
        {TBM_SETPOS, TRUE, 33, 0}, {TBM_GETPOS, 0, 0, 33}, {TBM_SETPOSNOTIFY, 0, 1000, 0}, {TBM_GETPOS, 0, 0, 90},
        {TBM_SETRANGEMIN, FALSE, 0, 0}, {TBM_SETRANGEMAX, FALSE, 60, 0}, {TBM_GETPOS, 0, 0, 60}, {TBM_SETLINESIZE, 0, 2, 1},
        {TBM_SETLINESIZE, 0, INT_MIN, 2}, {TBM_SETLINESIZE, 0, 3, INT_MAX}, {TBM_GETLINESIZE, 0, 0, 3},
        {TBM_SETPAGESIZE, 0, 20, 10}, {TBM_GETPAGESIZE, 0, 0, 20}, {TBM_GETNUMTICS, 0, 0, 2}, {TBM_SETTIC, 0, 40, TRUE},
        {TBM_SETTIC, 0, 15, TRUE}, {TBM_SETTIC, 0, 15, TRUE},
        {TBM_SETTIC, 0, 60, TRUE}, // the last one is there anyway
        {TBM_SETTIC, 0, 61, FALSE}, {TBM_SETTIC, 0, -1, FALSE}, {TBM_SETTICFREQ, 1, 0, 0}, {TBM_GETNUMTICS, 0, 0, 4},
        {TBM_GETTIC, 0, 0, 15}, {TBM_GETTIC, 1, 0, 40}, {TBM_GETTIC, 2, 0, -1}, {TBM_GETTIC, -1, 0, -1},
        {TBM_CLEARTICS, 0, 0, 0}, {TBM_GETNUMTICS, 0, 0, 2}, {TBM_GETSELEND, 0, 0, 0}, {TBM_SETSEL, TRUE, MAKELPARAM(-5, 20), 0},
        {TBM_GETSELSTART, 0, 0, 0}, {TBM_GETSELEND, 0, 0, 20}, {TBM_SETSELSTART, 0, 30, 0}, {TBM_GETSELEND, 0, 0, 30},
        {TBM_SETSELEND, 0, 1000, 0}, {TBM_GETSELSTART, 0, 0, 30}, {TBM_GETSELEND, 0, 0, 60}, {TBM_CLEARSEL, 0, 0, 0},
        {TBM_GETSELEND, 0, 0, 0}, {TBM_GETTHUMBRECT, 0, at(&thumb), 0}, {TBM_GETCHANNELRECT, 0, at(&channel), 0},
        {TBM_GETTHUMBRECT, 0, 0, 0}, {TBM_GETCHANNELRECT, 0, 0, 0},
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

TEST(Slider, RealSliding)
{
    VXTEST_NEEDS_X11();
    QDialog form;
    CSliderCtrl_E slider;
    ASSERT_TRUE(slider.Create(WS_VISIBLE | TBS_VERT, {10, 10, 40, 210}, &form));
    slider.SetPageSize(25);
    ASSERT_TRUE(showAndActivate(&form));
    slider.SetFocus();
    typeKey(XK_Down); // Intended: down is up in numbers, as the lowest position is at the top
    EXPECT_TRUE(waitUntil([&] { return slider.GetPos() == 1; })) << slider.GetPos();
    RECT thumb{};
    slider.GetThumbRect(&thumb);
    EXPECT_LT(thumb.top, 20);
    typeKey(XK_Next);
    EXPECT_TRUE(waitUntil([&] { return slider.GetPos() == 26; })) << slider.GetPos();
    slider.GetThumbRect(&thumb);
    const QPoint grip((thumb.left + thumb.right) / 2, (thumb.top + thumb.bottom) / 2);
    movePointer(slider.GetSafeHwnd(), grip);
    setButton(1, true);
    movePointer(slider.GetSafeHwnd(), grip + QPoint(0, 300));
    setButton(1, false);
    EXPECT_TRUE(waitUntil([&] { return slider.GetPos() == slider.GetRangeMax(); }));
}

} // namespace
