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

TEST_F(RealInput, Buttons)
{
    CButton_E box, push;
    ASSERT_TRUE(box.Create(L"three", BS_AUTO3STATE | WS_VISIBLE, kPlace, &form));
    ASSERT_TRUE(push.Create(L"push", WS_VISIBLE, {5, 50, 105, 80}, &form));
    for (const int nState : {2, 1, 0}) {
        clickAt(box, {10, 15});
        expectSoon(&CButton_E::GetCheck, box, nState);
    }
    push.SetState(TRUE);
    EXPECT_EQ(push.GetState(), 8U);
    EXPECT_EQ(box.SendMessage(BM_GETSTATE), 0);
    push.SendMessage(BM_SETSTATE, FALSE);
    EXPECT_EQ(push.GetState(), 0U);
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
    box.GetDroppedControlRect(&dropped);
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
    EXPECT_EQ(box.GetCount(), 3);
}

TEST_F(RealInput, CheckListBoxes)
{
    CCheckListBox_E list;
    ASSERT_TRUE(list.Create(WS_VISIBLE, {10, 10, 210, 210}, &form));
    for (const wchar_t* text : {L"a", L"b", L"c"})
        list.AddString(text);
    tagRECT rect{}, first{};
    EXPECT_EQ(list.GetItemRect(1, &rect) + list.GetItemRect(0, &first), 0);
    EXPECT_EQ(rect.top, first.bottom); // exclusive
    BOOL bOutside = TRUE;
    const CPoint_E inside((rect.left + rect.right) / 2, rect.bottom - 1);
    EXPECT_TRUE(list.ItemFromPoint(inside, bOutside) == 1 && !bOutside);
    EXPECT_TRUE(list.ItemFromPoint({1, 190}, bOutside) == -1 && bOutside);
    // clang-format off
    runSteps(list, {
        {LB_ITEMFROMPOINT, 0, MAKELPARAM(inside.x, inside.y), 1}, {LB_GETITEMRECT, 1, LB_ERR},
    });
    // clang-format on
    clickAt(list.GetSafeHwnd()->findChild<QWidget*>("qt_scrollarea_viewport"_q),
            {inside.x, inside.y});
    expectSoon(&CListBox_E::GetCurSel, list, 1);
    EXPECT_EQ(list.GetCheck(1), 0);
    type({XK_space, XK_Down});
    expectSoon(&CListBox_E::GetCurSel, list, 2);
    EXPECT_EQ(list.GetCheck(1), 1);
    list.SetCheckStyle(BS_CHECKBOX);
    type({XK_space, XK_Up});
    expectSoon(&CListBox_E::GetCurSel, list, 1);
    EXPECT_EQ(list.GetCheck(2), 0);
}

TEST_F(RealInput, Dates)
{
    CDateTimeCtrl_E control;
    ASSERT_TRUE(control.Create(WS_VISIBLE, {10, 10, 150, 40}, &form));
    SYSTEMTIME time{2024, 2, 4, 29, 0, 0, 0, 0};
    control.SetTime(&time);
    control.SetFormat(L"yyyy'-'MM'-'dd");
    control.SetFocus();
    typeKey(XK_Up);
    EXPECT_TRUE(waitUntil([&] { return control.GetTime(&time), time.wYear == 2025; }));
    clickAt(control, {control.GetSafeHwnd()->width() - 8, 15});
    ASSERT_TRUE(waitUntil([&] { return control.GetMonthCal()->isVisible(); }));
    control.CloseMonthCal();
    EXPECT_TRUE(waitUntil([&] { return !control.GetMonthCal()->isVisible(); }));
}

TEST_F(RealInput, Edits)
{
    CEdit_E line, text;
    ASSERT_TRUE(line.Create(WS_VISIBLE, {0, 0, 200, 60}, &form));
    ASSERT_TRUE(text.Create(WS_VISIBLE | ES_MULTILINE, {0, 70, 200, 150}, &form));
    for (CEdit_E* const pEdit : {&line, &text}) {
        pEdit->SetFocus();
        type({XK_a, XK_b, XK_Return, XK_c, XK_Left});
        const int nLines = pEdit == &text ? 2 : 1;
        EXPECT_TRUE(waitUntil([&] {
            return pEdit->GetSel() == MAKELONG(nLines + 1, nLines + 1) &&
                   pEdit->LineLength() == nLines + 2;
        }));
        EXPECT_EQ(pEdit->GetLineCount(), nLines);
        EXPECT_TRUE(pEdit->GetModify() && pEdit->CanUndo());
        pEdit->SetSel(0, -1); // it has the focus
        EXPECT_EQ(pEdit->GetSel(), MAKELONG(0, nLines + 2));
    }
}

TEST_F(RealInput, Sliders)
{
    CSliderCtrl_E slider;
    ASSERT_TRUE(slider.Create(WS_VISIBLE | TBS_VERT, {10, 10, 40, 210}, &form));
    slider.SetPageSize(25);
    slider.SetFocus();
    typeKey(XK_Down); // Intended: down is up in numbers, as the lowest position is at the top
    expectSoon(&CSliderCtrl_E::GetPos, slider, 1);
    RECT thumb{};
    slider.GetThumbRect(&thumb);
    EXPECT_LT(thumb.top, 20);
    typeKey(XK_Next);
    expectSoon(&CSliderCtrl_E::GetPos, slider, 26);
    slider.GetThumbRect(&thumb);
    const QPoint grip((thumb.left + thumb.right) / 2, (thumb.top + thumb.bottom) / 2);
    movePointer(slider.GetSafeHwnd(), grip);
    setButton(1, true);
    movePointer(slider.GetSafeHwnd(), grip + QPoint(0, 300));
    setButton(1, false);
    expectSoon(&CSliderCtrl_E::GetPos, slider, slider.GetRangeMax());
}

TEST_F(RealInput, SpinBoxes)
{
    CSpinButtonCtrl_E spin;
    ASSERT_TRUE(spin.Create(WS_VISIBLE | UDS_WRAP, kPlace, &form));
    spin.SetRange(0, 50);
    auto* const pBox = qobject_cast<QSpinBox*>(spin.GetSafeHwnd());
    spin.SetFocus();
    QStyleOptionSpinBox option;
    option.initFrom(pBox);
    option.subControls = QStyle::SC_All;
    constexpr auto up = QStyle::SC_SpinBoxUp;
    clickAt(pBox, pBox->style()->subControlRect(QStyle::CC_SpinBox, &option, up, pBox).center());
    expectSoon(&CSpinButtonCtrl_E::GetPos, spin, 1);
    spin.SetPos(0);
    typeKey(XK_Down); // repeats itself when the release is late
    EXPECT_TRUE(waitUntil([&] { return spin.GetPos() > 25; })) << spin.GetPos();
    spin.SetSel(0, -1);
    type({XK_2, XK_3});
    expectSoon(&CSpinButtonCtrl_E::GetPos, spin, 23);
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

TEST_F(RealInput, ScrollBars)
{
    ScrolledWnd window;
    ASSERT_TRUE(window.Create(WS_VSCROLL, {0, 0, 200, 200}, nullptr));
    ASSERT_TRUE(showAndActivate(window));
    auto* const pOwn = window.GetSafeHwnd()->findChild<QScrollBar*>();
    movePointer(pOwn, {pOwn->width() / 2, 4});
    clickButton(5);
    EXPECT_TRUE(waitUntil([&] { return window.m_nBarPos > 0; }));
    EXPECT_EQ(window.m_nPos, UINT(window.m_nBarPos));
    EXPECT_EQ(window.m_pSender, CWnd_E::FromHandle(pOwn));
    CScrollBar_E bar;
    ASSERT_TRUE(bar.Create(WS_VISIBLE, {10, 10, 150, 30}, window));
    bar.SetFocus();
    typeKey(XK_End);
    expectSoon(&CScrollBar_E::GetScrollPos, bar, bar.GetScrollLimit());

    QScrollBar found;
    found.setValue(21);
    CScrollBar_E made;
    CSliderCtrl_E slider;
    ASSERT_TRUE(made.Create(SBS_VERT, kPlace, &form) && slider.Create(0, kPlace, &form));
    for (const auto& [pBar, nPos] :
         {Row<QWidget*, int>{&found, 21}, {made, 0}, {slider, -1}, {nullptr, -1}}) {
        window.SendMessage(WM_VSCROLL, SB_LINEDOWN, at(pBar));
        EXPECT_EQ(window.m_pSender, static_cast<void*>(CWnd_E::FromHandle(pBar)));
        EXPECT_EQ(window.m_nBarPos, nPos);
    }
    EXPECT_EQ(window.GetScrollBarCtrl(SB_VERT), nullptr);
    ClearTempObjectPool();
}

} // namespace
