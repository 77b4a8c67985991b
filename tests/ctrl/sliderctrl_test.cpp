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
        {TBM_GETTIC, 0, 0, 15}, {TBM_GETTIC, 1, 0, 40}, {TBM_GETTIC, 2, 0, -1}, {TBM_GETTIC, WPARAM(-1), 0, -1},
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
    forMadeAndFound<CSliderCtrl_E, QSlider>(TBS_VERT | TBS_TOP, [](CSliderCtrl_E& slider) {
        auto* const pSlider = qobject_cast<QSlider*>(slider.GetSafeHwnd());
        EXPECT_EQ(pSlider->orientation(), Qt::Vertical) << "a form's stands by default";
        EXPECT_EQ(pSlider->invertedAppearance(), !slider.IsTemporary());
        slider.SetRange(0, 100);
        EXPECT_EQ(pSlider->tickPosition(), QSlider::NoTicks);
        for (const int nTic : {20, 50, 100})
            slider.SetTic(nTic);
        EXPECT_EQ(pSlider->tickInterval(), 10);
        EXPECT_EQ(pSlider->tickPosition(),
                  slider.IsTemporary() ? QSlider::TicksBelow : QSlider::TicksAbove);
        slider.ClearTics();
        EXPECT_EQ(pSlider->tickInterval(), 100);
        slider.SetTicFreq(5);
        EXPECT_EQ(pSlider->tickInterval(), 100);
        slider.SetRange(INT_MIN, INT_MAX);
        EXPECT_TRUE(slider.SetTic(0));
        EXPECT_EQ(pSlider->tickInterval(), INT_MAX) << "not each of its 4294967295 positions";
        slider.SetRange(-1, 3);
        EXPECT_EQ(pSlider->tickInterval(), 1);
        slider.SetRangeMax(1000);
        EXPECT_EQ(pSlider->tickInterval(), 1001);
        pSlider->setTracking(false);
        QSignalSpy moved(pSlider, &QSlider::valueChanged);
        slider.SetPos(17);
        EXPECT_EQ(slider.GetPos(), 17) << "the slider's position, not yet the value";
        EXPECT_EQ(moved.count(), 0);
    });
    CSliderCtrl_E automatic;
    QWidget window;
    ASSERT_TRUE(automatic.Create(TBS_AUTOTICKS, kPlace, &window));
    const auto* const pAutomatic = qobject_cast<QSlider*>(automatic.GetSafeHwnd());
    automatic.SetRange(0, 1000000);
    EXPECT_EQ(pAutomatic->tickInterval(), 1000000);
    automatic.SetPageSize(1000);
    EXPECT_EQ(pAutomatic->tickInterval(), 0) << "the widget's own choice";
    CSliderCtrl_E plain;
    QWidget parent;
    ASSERT_TRUE(plain.Create(TBS_NOTICKS, kPlace, &parent));
    plain.SetTic(50);
    EXPECT_EQ(plain.GetNumTics(), 0U);
    EXPECT_EQ(qobject_cast<QSlider*>(plain.GetSafeHwnd())->tickPosition(), QSlider::NoTicks);
}

TEST(Slider, WithoutAUsableWidget)
{
    forUnusable<CSliderCtrl_E>([](CSliderCtrl_E& slider) {
        int first = 1, second = 2;
        RECT rect{1, 1, 1, 1};
        slider.SetRange(1, 5);
        slider.SetRangeMin(1);
        slider.SetRangeMax(1);
        slider.GetRange(first, second);
        EXPECT_EQ(first | second, 0);
        slider.SetPos(3);
        slider.SetSelection(1, 2);
        slider.ClearSel();
        slider.ClearTics();
        slider.GetSelection(first, second);
        EXPECT_EQ(first | second | slider.GetPos(), 0);
        EXPECT_EQ(slider.SetLineSize(3) | slider.SetPageSize(3), 0);
        EXPECT_EQ(slider.GetLineSize() | slider.GetPageSize(), 0);
        EXPECT_FALSE(slider.SetTic(0));
        EXPECT_EQ(slider.GetNumTics(), 0U);
        EXPECT_EQ(slider.GetTic(0), -1);
        slider.GetThumbRect(&rect);
        EXPECT_EQ(rect.right, 0);
    });
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
