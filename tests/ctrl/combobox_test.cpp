// Combo boxes: each member and message over both kinds of widget, without a signal.
#include "ctrl/items.h"
#include "support/xinput.h"

#include <VxCustomUI.h>

#include <QtTest/QSignalSpy>

#include <X11/keysym.h>

namespace {

using namespace vxtest;

using Box = CComboBox_E;
using Form = FormWith<Box, QComboBox>;

/// Items, selection and, of a box that can be typed into, its text.
QString stateOf(const QComboBox& combo)
{
    QStringList items;
    for (int i = 0; i < combo.count(); ++i)
        items += combo.itemText(i);
    return "%1 @%2 %3"_q.arg(items.join(u',')).arg(combo.currentIndex()).arg(combo.currentText());
}

LRESULT textOf(Box& box, int nIndex, const wchar_t* expected)
{
    return expectText(
        box, nIndex, expected, [](Box& b, int i, CString_E& text) { return b.GetLBText(i, text); },
        std::mem_fn(&Box::GetLBTextLen), CB_GETLBTEXT);
}

// clang-format off
const Step<Box> kEditable[] = {
    {__LINE__, [](Box& b) -> LRESULT { return b.SetWindowText(L"typed"), b.GetCount(); }, 0, " @-1 typed"},
    {__LINE__, [](Box& b) -> LRESULT { return b.AddString(L"ABC"); }, 0, "ABC @-1 typed"},
    {__LINE__, [](Box& b) -> LRESULT { return send(b, CB_ADDSTRING, 0, L"1"); }, 1, "ABC,1 @-1 typed"},
    {__LINE__, [](Box& b) -> LRESULT { return b.AddString(nullptr); }, 2, "ABC,1, @-1 typed"},
    {__LINE__, [](Box& b) -> LRESULT { return b.DeleteString(2); }, 2, "ABC,1 @-1 typed"},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetCurSel(1); }, 1, "ABC,1 @1 1"},
    {__LINE__, [](Box& b) -> LRESULT { return b.AddString(L"abd"); }, 2, "ABC,1,abd @1 1"},
    {__LINE__, [](Box& b) -> LRESULT { return b.InsertString(0, L"xyz"); }, 0, "xyz,ABC,1,abd @2 1"},
    {__LINE__, [](Box& b) -> LRESULT { return send(b, CB_INSERTSTRING, -1, L"2.9"); }, 4, "xyz,ABC,1,abd,2.9 @2 1"},
    {__LINE__, [](Box& b) -> LRESULT { return b.InsertString(6, L"no"); }, CB_ERR, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.InsertString(-2, L"no"); }, CB_ERR, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetWindowText(L"own"), b.DeleteString(0); }, 4, "ABC,1,abd,2.9 @1 own"},
    {__LINE__, [](Box& b) -> LRESULT { return b.DeleteString(4); }, CB_ERR, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return send(b, CB_DELETESTRING, -1, nullptr); }, CB_ERR, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.FindString(0, L"ab"); }, 0, nullptr}, // start and case
    {__LINE__, [](Box& b) -> LRESULT { return b.FindString(1, L"ab"); }, 2, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.FindString(3, L"ab"); }, CB_ERR, nullptr}, // no way round
    {__LINE__, [](Box& b) -> LRESULT { return send(b, CB_FINDSTRING, -5, L"2."); }, 3, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.FindStringExact(0, L"ab"); }, CB_ERR, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return send(b, CB_FINDSTRINGEXACT, 1, L"ABD"); }, 2, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.FindStringExact(99, L"abd"); }, CB_ERR, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.SelectString(3, L"abc"); }, 0, "ABC,1,abd,2.9 @0 ABC"},
    {__LINE__, [](Box& b) -> LRESULT { return send(b, CB_SELECTSTRING, 0, L"2.5"); }, 3, "ABC,1,abd,2.9 @3 2.9"},
    {__LINE__, [](Box& b) -> LRESULT { return b.SelectString(0, L"3.9"); }, CB_ERR, "ABC,1,abd,2.9 @3 2.9"},
    {__LINE__, [](Box& b) -> LRESULT { return b.SelectString(0, L"ab"); }, CB_ERR, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetWindowText(L"abd"), b.GetCurSel(); }, 2, "ABC,1,abd,2.9 @2 abd"},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetWindowText(L"ABD"), b.GetCurSel(); }, 2, "ABC,1,abd,2.9 @2 ABD"},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetItemData(2, ~0UL - 1); }, CB_OKAY, "ABC,1,abd,2.9 @2 ABD"},
    {__LINE__, [](Box& b) -> LRESULT { return LRESULT(b.GetItemData(2)); }, -2, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return LRESULT(b.GetItemData(0)); }, 0, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return send(b, CB_GETITEMDATA, 9, nullptr); }, -1, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return send(b, CB_SETITEMDATA, 9, L""); }, CB_ERR, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetItemDataPtr(0, &b), b.GetItemDataPtr(0) == &b; }, TRUE, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return LPARAM(b.GetItemDataPtr(1)) + LPARAM(b.GetItemDataPtr(9)); }, 0, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return textOf(b, 3, L"2.9"); }, 3, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return textOf(b, -1, L""); }, CB_ERR, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.GetLBText(0, nullptr); }, 0, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.SendMessage(CB_GETEDITSEL); }, 0, nullptr}, // the cursor at the start
    {__LINE__, [](Box& b) -> LRESULT { return b.SetEditSel(1, -1), b.GetEditSel(); }, MAKELPARAM(1, 3), nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.SendMessage(CB_SETEDITSEL, 0, MAKELPARAM(0, 2)), b.GetEditSel(); }, MAKELPARAM(0, 2), nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.Copy(), b.SetEditSel(2, 99), b.Cut(), b.Paste(), b.Paste(), 0; }, 0, "ABC,1,abd,2.9 @2 ABDD"},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetEditSel(-1, 2), b.GetEditBox()->hasSelectedText(); }, FALSE, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.LimitText(7), b.GetEditBox()->maxLength(); }, 7, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetItemHeight(0, 31), b.GetItemHeight(-1); }, 31, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.GetItemHeight(0) > 0 && b.GetItemHeight(4) == CB_ERR; }, TRUE, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return send(b, CB_SETCUEBANNER, 0, L"which?"), b.GetCueBanner() == L"which?"; }, TRUE, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return send(b, CB_SETDROPPEDWIDTH, 333, nullptr) + b.GetDroppedWidth(); }, 666, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetMinVisibleItems(5) + b.SetMinVisibleItems(0) + b.GetMinVisible(); }, 6, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetTopIndex(1) + b.SetTopIndex(4); }, CB_ERR, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.InitStorage(7, 0) + send(b, CB_INITSTORAGE, 8, nullptr); }, 15, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return send(b, CB_SHOWDROPDOWN, 1, nullptr) + b.GetDroppedState(); }, TRUE, nullptr},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetCurSel(99); }, CB_ERR, "ABC,1,abd,2.9 @-1 "},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetCurSel(1), b.DeleteString(1); }, 3, "ABC,abd,2.9 @-1 "},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetCurSel(1), b.ResetContent(), 0; }, 0, " @-1 "},
};

const Step<Box> kFailures[] = {
    {__LINE__, [](Box& b) -> LRESULT { return b.GetCount(); }, CB_ERR, ""},
    {__LINE__, [](Box& b) -> LRESULT { return b.GetCurSel(); }, CB_ERR, ""},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetCurSel(0); }, CB_ERR, ""},
    {__LINE__, [](Box& b) -> LRESULT { return b.AddString(L"a"); }, CB_ERR, ""},
    {__LINE__, [](Box& b) -> LRESULT { return b.DeleteString(0); }, CB_ERR, ""},
    {__LINE__, [](Box& b) -> LRESULT { return b.FindString(0, L""); }, CB_ERR, ""},
    {__LINE__, [](Box& b) -> LRESULT { return b.SelectString(0, L""); }, CB_ERR, ""},
    {__LINE__, [](Box& b) -> LRESULT { CString_E text(L"a"); return b.GetLBText(0, text) + b.GetLBTextLen(0) + text.GetLength(); }, 2 * CB_ERR, ""},
    {__LINE__, [](Box& b) -> LRESULT { return LRESULT(b.GetItemData(0)); }, -1, ""},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetItemDataPtr(0, nullptr); }, CB_ERR, ""},
    {__LINE__, [](Box& b) -> LRESULT { return LPARAM(b.GetItemDataPtr(0)); }, 0, ""},
    {__LINE__, [](Box& b) -> LRESULT { return LPARAM(b.GetEditBox()); }, 0, ""},
    {__LINE__, [](Box& b) -> LRESULT { return int(b.GetEditSel()); }, CB_ERR, ""},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetItemHeight(0, 9) + b.GetItemHeight(-1); }, 2 * CB_ERR, ""},
    {__LINE__, [](Box& b) -> LRESULT { return b.SetDroppedWidth(9) + b.GetDroppedWidth(); }, 2 * CB_ERR, ""},
    {__LINE__, [](Box& b) -> LRESULT { return b.ResetContent(), b.Clear(), b.SetWindowText(L"a"), b.GetDroppedState(); }, FALSE, ""},
};
// clang-format on

TEST(ComboBox, EveryMemberKeepsSilent)
{
    for (const bool bMade : {true, false}) {
        SCOPED_TRACE(bMade ? "made" : "found");
        Form form(bMade, CBS_DROPDOWN);
        form.widget->setEditable(true);
        const QSignalSpy index(form.widget, qOverload<int>(&QComboBox::currentIndexChanged));
        const QSignalSpy text(form.widget, &QComboBox::currentTextChanged);
        const QSignalSpy edit(form.widget, &QComboBox::editTextChanged);
        // Cut() and Paste() are as if the user did them.
        const auto state = [&] { return stateOf(*form.widget); };
        runSteps(form.control, kEditable, state);
        EXPECT_EQ(index.size(), 0);
        EXPECT_EQ(edit.size(), text.size());
        for (const QList<QVariant>& arguments : edit)
            EXPECT_TRUE("AB ABD ABDD"_q.contains(arguments[0].toString()));
        form.control.AddString(L"last");
        form.control.SetCurSel(0);
        form.control.Clear();
        EXPECT_EQ(index.size(), 1); // the one member that is heard
    }
}

TEST(ComboBox, IsMadeByItsStyle)
{
    for (const auto& [dwStyle, bEditable, dwKept] :
         {Row<DWORD, bool, DWORD>{CBS_DROPDOWN | WS_VSCROLL, true, CBS_DROPDOWN},
          {CBS_SIMPLE, true, CBS_SIMPLE},
          {0, true, 0},
          {CBS_DROPDOWNLIST | WS_HSCROLL | WS_VSCROLL, false, CBS_DROPDOWNLIST | WS_HSCROLL}}) {
        Form form(true, dwStyle);
        EXPECT_TRUE(qobject_cast<VxCUIComboBox*>(form.widget));
        EXPECT_EQ(form.widget->geometry(), QRect(10, 10, 200, 30));
        EXPECT_EQ(form.widget->isEditable(), bEditable);
        EXPECT_EQ(form.control.GetStyle(), dwKept);
    }
    QWidget parent;
    CWnd_E window;
    window.SubclassWindow(&parent);
    CComboBox_E box;
    EXPECT_EQ(box.Create(CBS_DROPDOWNLIST, {0, 0, 9, 9}, &window, 4711), 1);
    EXPECT_EQ(box.GetParent(), &window);
    VxCUIComboBox companion;
    EXPECT_TRUE(qobject_cast<CComboBox_E*>(CWnd_E::FromHandle(&companion)));
    EXPECT_EQ(SendMessage_E(&companion, CB_ADDSTRING, 0, textParam(L"a")), 0);
}

TEST(ComboBox, WithoutALineEdit)
{
    Form form(true, CBS_DROPDOWNLIST);
    Box& box = form.control;
    for (const wchar_t* text : {L"red", L"Red", L"green"})
        box.AddString(text);
    EXPECT_EQ(form.widget->currentIndex(), -1);
    box.SetWindowText(L"Red");
    EXPECT_EQ(box.GetCurSel(), 1);
    box.SetWindowText(L"RED");
    EXPECT_EQ(box.GetCurSel(), 1);
    CString_E text;
    box.GetWindowText(text);
    EXPECT_STREQ(text.GetString(), L"Red");
    EXPECT_EQ(box.SetItemHeight(0, 20), CB_ERR);
    EXPECT_EQ(box.SetEditSel(0, 1), CB_ERR);
    EXPECT_EQ(box.LimitText(3), CB_ERR);
    EXPECT_EQ(box.SendMessage(CB_GETEDITSEL), CB_ERR);
    wchar_t cue[4] = L"";
    EXPECT_TRUE(box.SetCueBanner(L"which?") && box.GetCueBanner(cue, 4));
    EXPECT_STREQ(cue, L"whi");
    COMBOBOXINFO info{};
    EXPECT_TRUE(box.GetComboBoxInfo(&info) && !box.GetComboBoxInfo(nullptr));
    EXPECT_EQ(info.hwndItem, nullptr);
    EXPECT_LT(info.rcItem.left, info.rcButton.left);
}

TEST(ComboBox, FailsWithoutItsWidget)
{
    expectFailures<QComboBox>(kFailures);
    tagRECT rect{1, 1, 1, 1};
    CComboBox_E().GetDroppedControlRect(&rect);
    EXPECT_EQ(rect.right, 0);
}

TEST(ComboBox, RealInputDropsSelectsAndTypes)
{
    VXTEST_NEEDS_X11();
    Form form(true, CBS_DROPDOWN | WS_VISIBLE);
    Box& box = form.control;
    for (const wchar_t* text : {L"alpha", L"beta", L"gamma"})
        box.AddString(text);
    const QSignalSpy index(form.widget, qOverload<int>(&QComboBox::currentIndexChanged));
    ASSERT_TRUE(showAndActivate(&form.form));
    const tagRECT closed = [&box] {
        tagRECT rect;
        return box.GetDroppedControlRect(&rect), rect;
    }();
    movePointer(form.widget, {form.widget->width() - 8, form.widget->height() / 2});
    clickButton(1);
    ASSERT_TRUE(waitUntil([&] { return box.GetDroppedState() != FALSE; }));
    EXPECT_GT(closed.bottom - closed.top, form.widget->height());
    COMBOBOXINFO info{};
    EXPECT_TRUE(box.GetComboBoxInfo(&info));
    EXPECT_EQ(info.stateButton, STATE_SYSTEM_PRESSED);
    QAbstractItemView* const pView = form.widget->view();
    movePointer(pView->viewport(), pView->visualRect(form.widget->model()->index(1, 0)).center());
    // The list takes no click right after it has dropped, nor before the pointer moves in it.
    ASSERT_TRUE(waitUntil([pView] { return pView->currentIndex().row() == 1; }));
    typeKey(XK_Return);
    ASSERT_TRUE(waitUntil([&] { return box.GetDroppedState() == FALSE; }));
    EXPECT_EQ(box.GetCurSel(), 1);
    EXPECT_EQ(index.size(), 1);
    form.widget->setFocus();
    form.widget->lineEdit()->selectAll();
    typeKey(XK_g);
    typeKey(XK_Return);
    EXPECT_TRUE(waitUntil([&] { return form.widget->currentText() == "g"_q; })); // not completed
    EXPECT_EQ(box.GetCount(), 3);
}

} // namespace
