// Controls under real clicks and keys, and what scroll handlers get.
#include "controls.h"
#include "support/xinput.h"

#include <QtTest/QSignalSpy>

#include <X11/keysym.h>

namespace {

using namespace vxtest;

/// A window that an X server shows.
struct RealInput : testing::Test
{
    void SetUp() override
    {
        VXTEST_NEEDS_X11();
        form.resize(300, 300);
        ASSERT_TRUE(showAndActivate(&form));
    }
    static void clickAt(const QWidget* pWidget, const QPoint& point)
    {
        movePointer(pWidget, point);
        clickButton(1);
    }
    static void type(std::initializer_list<unsigned long> keys)
    {
        std::for_each(keys.begin(), keys.end(), typeKey);
    }
    /// Waits for a position, a state, a selection and the like.
    template <typename Member, typename Control>
    static void expectSoon(Member member, const Control& control, int nExpected)
    {
        EXPECT_TRUE(waitUntil([&] { return int((control.*member)()) == nExpected; }))
            << (control.*member)() << " instead of " << nExpected;
    }
    QDialog form;
};

TEST_F(RealInput, FocusOfButtonsAndEdits)
{
    CButton_E push;
    CEdit_E edit;
    ASSERT_TRUE(push.Create(L"push", WS_VISIBLE, kPlace, &form));
    push.SendMessage(BM_SETSTATE, TRUE);
    EXPECT_EQ(push.GetState(), 8U);
    push.SetState(FALSE);
    EXPECT_EQ(push.SendMessage(BM_GETSTATE), 0);
    ASSERT_TRUE(edit.Create(WS_VISIBLE, {0, 60, 200, 90}, &form));
    edit.SetFocus();
    type({XK_a, XK_b, XK_Return, XK_c});
    EXPECT_TRUE(waitUntil([&] { return edit.LineLength() == 3; }));
    edit.SetSel(0, -1); // without ES_NOHIDESEL, but with the focus
    EXPECT_EQ(edit.GetSel(), MAKELONG(0, 3));
}

TEST_F(RealInput, ComboBoxes)
{
    CComboBox_E box;
    ASSERT_TRUE(box.Create(CBS_DROPDOWN | WS_VISIBLE, kPlace, &form));
    for (const wchar_t* text : {L"alpha", L"beta", L"gamma"})
        box.AddString(text);
    auto* const pCombo = qobject_cast<QComboBox*>(box.GetSafeHwnd());
    const QSignalSpy index(pCombo, qOverload<int>(&QComboBox::currentIndexChanged));
    tagRECT dropped{};
    box.SendMessage(CB_GETDROPPEDCONTROLRECT, 0, at(&dropped));
    EXPECT_GT(dropped.bottom - dropped.top, pCombo->height());
    clickAt(pCombo, {pCombo->width() - 8, pCombo->height() / 2});
    expectSoon(&CComboBox_E::GetDroppedState, box, TRUE);
    const QAbstractItemView* const pView = pCombo->view();
    movePointer(pView->viewport(), pView->visualRect(pCombo->model()->index(1, 0)).center());
    ASSERT_TRUE(waitUntil([pView] { return pView->currentIndex().row() == 1; }));
    typeKey(XK_Return); // the list takes no click right after it has dropped
    expectSoon(&CComboBox_E::GetDroppedState, box, FALSE);
    EXPECT_EQ(box.GetCurSel(), 1);
    EXPECT_EQ(index.size(), 1);
    pCombo->setFocus();
    pCombo->lineEdit()->selectAll();
    type({XK_g, XK_Return});
    EXPECT_TRUE(waitUntil([&] { return pCombo->currentText() == "g"_q; })); // not completed
    EXPECT_EQ(box.GetCount(), 3) << "nor inserted";
}

TEST_F(RealInput, Dates)
{
    CDateTimeCtrl_E control;
    ASSERT_TRUE(control.Create(WS_VISIBLE, {10, 10, 150, 40}, &form));
    clickAt(control, {control.GetSafeHwnd()->width() - 8, 15});
    ASSERT_TRUE(waitUntil([&] { return control.GetMonthCal()->isVisible(); }));
    control.CloseMonthCal();
    EXPECT_TRUE(waitUntil([&] { return !control.GetMonthCal()->isVisible(); }));
}

TEST_F(RealInput, Sliders)
{
    CSliderCtrl_E slider;
    ASSERT_TRUE(slider.Create(WS_VISIBLE | TBS_VERT, {10, 10, 40, 210}, &form));
    slider.SetFocus();
    typeKey(XK_Down); // Intended: down is up in numbers, as the lowest position is at the top
    expectSoon(&CSliderCtrl_E::GetPos, slider, 1);
    RECT thumb{};
    slider.GetThumbRect(&thumb);
    EXPECT_LT(thumb.top, 20);
}

class ScrolledWnd : public CWnd_E
{
public:
    void OnVScroll_E(UINT, UINT nPos, CScrollBar_E* pBar)
    {
        m_nPos = nPos;
        m_pSender = pBar;
    }
    UINT m_nPos = 0;
    CScrollBar_E* m_pSender = nullptr;
    DECLARE_MESSAGE_MAP_E()
};

BEGIN_MESSAGE_MAP_E(ScrolledWnd, CWnd_E)
ON_WM_VSCROLL_E()
END_MESSAGE_MAP_E()

TEST_F(RealInput, ScrollBars)
{
    ScrolledWnd window;
    ASSERT_TRUE(window.Create(WS_VSCROLL, {0, 0, 200, 200}, nullptr));
    ASSERT_TRUE(showAndActivate(window));
    auto* const pOwn = window.GetSafeHwnd()->findChild<QScrollBar*>();
    movePointer(pOwn, {pOwn->width() / 2, 4});
    clickButton(5);
    EXPECT_TRUE(waitUntil([&] { return window.m_nPos > 0; }));
    EXPECT_EQ(window.m_nPos, UINT(pOwn->value()));
    EXPECT_EQ(window.m_pSender, qobject_cast<CScrollBar_E*>(CWnd_E::FromHandle(pOwn)));
    ClearTempObjectPool();
}

} // namespace
