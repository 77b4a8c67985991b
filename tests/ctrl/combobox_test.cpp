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

/// Items, selection and text.
QString stateOf(const QComboBox& combo)
{
    QStringList items;
    for (int i = 0; i < combo.count(); ++i)
        items += combo.itemText(i);
    return "%1 @%2 %3"_q.arg(items.join(u',')).arg(combo.currentIndex()).arg(combo.currentText());
}

/// An item's text by member and message: whether both gave the expected one, and its length.
Results textOf(Box& b, int nIndex, const wchar_t* expected)
{
    CString_E text(L"before");
    wchar_t buffer[16] = L"";
    const int length = b.GetLBText(nIndex, text);
    return {text == expected, length == send(b, CB_GETLBTEXT, nIndex, buffer),
            CString_E(buffer) == expected, length == b.GetLBTextLen(nIndex), length};
}

// clang-format off
const Step<Box> kEditable[] = {
    // Items
    {__LINE__, [](Box& b) -> Results { return {(b.SetWindowText(L"typed"), b.GetCount()), b.GetCurSel()}; }, "0 -1", " @-1 typed"},
    {__LINE__, [](Box& b) -> Results { return {b.AddString(L"ABC"), send(b, CB_ADDSTRING, 0, L"1"), b.AddString(nullptr)}; }, "0 1 2", "ABC,1, @-1 typed"},
    {__LINE__, [](Box& b) -> Results { return {b.DeleteString(2), b.SetCurSel(1), b.AddString(L"abd")}; }, "2 1 2", "ABC,1,abd @1 1"},
    {__LINE__, [](Box& b) -> Results { return {b.InsertString(0, L"xyz"), send(b, CB_INSERTSTRING, -1, L"2.9")}; }, "0 4", "xyz,ABC,1,abd,2.9 @2 1"},
    {__LINE__, [](Box& b) -> Results { return {b.InsertString(6, L"no"), b.InsertString(-2, L"no")}; }, "-1 -1", "xyz,ABC,1,abd,2.9 @2 1"},
    {__LINE__, [](Box& b) -> Results { return {(b.SetWindowText(L"own"), b.DeleteString(0)), b.DeleteString(4), send(b, CB_DELETESTRING, -1)}; }, "4 -1 -1", "ABC,1,abd,2.9 @1 own"},
    {__LINE__, [](Box& b) -> Results { return textOf(b, 3, L"2.9"); }, "1 1 1 1 3", nullptr},
    {__LINE__, [](Box& b) -> Results { return textOf(b, -1, L""); }, "1 1 1 1 -1", nullptr},
    {__LINE__, [](Box& b) -> Results { return textOf(b, 4, L""); }, "1 1 1 1 -1", nullptr},
    // Searches: FindString() from the start itself, in any case, and not around
    {__LINE__, [](Box& b) -> Results { return {b.FindString(0, L"ab"), b.FindString(1, L"ab"), b.FindString(3, L"ab"), send(b, CB_FINDSTRING, -5, L"2.")}; }, "0 2 -1 3", nullptr},
    {__LINE__, [](Box& b) -> Results { return {b.FindStringExact(0, L"ab"), send(b, CB_FINDSTRINGEXACT, 1, L"ABD"), b.FindStringExact(99, L"abd")}; }, "-1 2 -1", nullptr},
    {__LINE__, [](Box& b) -> Results { return {b.SelectString(3, L"abc")}; }, "0", "ABC,1,abd,2.9 @0 ABC"},
    {__LINE__, [](Box& b) -> Results { return {send(b, CB_SELECTSTRING, 0, L"2.5"), b.SelectString(0, L"3.9"), b.SelectString(0, L"ab")}; }, "3 -1 -1", "ABC,1,abd,2.9 @3 2.9"},
    {__LINE__, [](Box& b) -> Results { return {(b.SetWindowText(L"abd"), b.GetCurSel()), (b.SetWindowText(L"ABD"), b.GetCurSel())}; }, "2 2", "ABC,1,abd,2.9 @2 ABD"},
    // Data
    {__LINE__, [](Box& b) -> Results { return {send(b, CB_GETEDITSEL, 0), b.SetItemData(2, ~0UL - 1), b.GetItemData(2), b.GetItemData(0), b.GetEditSel()}; }, "0 0 -2 0 0", "ABC,1,abd,2.9 @2 ABD"},
    {__LINE__, [](Box& b) -> Results { return {send(b, CB_GETITEMDATA, 9), send(b, CB_SETITEMDATA, 9), b.SetItemDataPtr(0, &b), b.GetItemDataPtr(0) == &b, !b.GetItemDataPtr(1), !b.GetItemDataPtr(9)}; }, "-1 -1 0 1 1 1", nullptr},
    // The line edit
    {__LINE__, [](Box& b) -> Results { return {b.SetEditSel(1, -1), b.GetEditSel() == MAKELONG(1, 3), send(b, CB_SETEDITSEL, 0, reinterpret_cast<void*>(MAKELPARAM(0, 2))), b.GetEditSel() == MAKELONG(0, 2)}; }, "1 1 1 1", nullptr},
    {__LINE__, [](Box& b) -> Results { return {(b.Copy(), b.SetEditSel(2, 99)), (b.Cut(), b.Paste(), b.Paste(), b.SetEditSel(-1, 2)), b.GetEditBox()->hasSelectedText()}; }, "1 1 0", "ABC,1,abd,2.9 @2 ABDD"},
    {__LINE__, [](Box& b) -> Results { return {b.LimitText(7), b.GetEditBox()->maxLength(), send(b, CB_SETCUEBANNER, 0, L"which?"), b.GetCueBanner() == L"which?"}; }, "1 7 1 1", nullptr},
    {__LINE__, [](Box& b) -> Results { return {send(b, CB_LIMITTEXT, 0), b.GetEditBox()->maxLength() > 9999, send(b, CB_GETCOUNT, 0), send(b, CB_GETLBTEXTLEN, 3), send(b, CB_GETLBTEXTLEN, 4)}; }, "1 1 4 3 -1", nullptr},
    {__LINE__, [](Box& b) -> Results { return {send(b, CB_SETCURSEL, 3), send(b, CB_GETCURSEL, 0), send(b, CB_SETCURSEL, -1), send(b, CB_GETCURSEL, 0), b.SetCurSel(2)}; }, "3 3 -1 -1 2", nullptr},
    // The list that drops down
    {__LINE__, [](Box& b) -> Results { return {b.SetItemHeight(0, 31), b.GetItemHeight(-1), b.GetItemHeight(0) > 0, b.GetItemHeight(4)}; }, "0 31 1 -1", nullptr},
    {__LINE__, [](Box& b) -> Results { return {send(b, CB_SETDROPPEDWIDTH, 333), b.GetDroppedWidth(), b.SetMinVisibleItems(5), b.SetMinVisibleItems(0), b.GetMinVisible()}; }, "333 333 1 0 5", nullptr},
    {__LINE__, [](Box& b) -> Results { return {b.SetTopIndex(1), b.SetTopIndex(4), b.InitStorage(7, 0), send(b, CB_SHOWDROPDOWN, 1), (b.ShowDropDown(), b.GetDroppedState())}; }, "0 -1 7 1 0", nullptr},
    // The selection goes
    {__LINE__, [](Box& b) -> Results { return {b.SetCurSel(99)}; }, "-1", "ABC,1,abd,2.9 @-1 "},
    {__LINE__, [](Box& b) -> Results { return {b.SetCurSel(1), b.DeleteString(1)}; }, "1 3", "ABC,abd,2.9 @-1 "},
    {__LINE__, [](Box& b) -> Results { return {b.SetCurSel(1), (b.GetEditBox()->setText("typed"_q), b.DeleteString(1))}; }, "1 2", "ABC,2.9 @-1 typed"},
    {__LINE__, [](Box& b) -> Results { return {b.SetCurSel(1), send(b, CB_RESETCONTENT, 0)}; }, "1 0", " @-1 "},
};

const Step<Box> kFailures[] = {
    {__LINE__, [](Box& b) -> Results { return {b.GetCount(), b.GetCurSel(), b.SetCurSel(0), b.AddString(L"a"), b.DeleteString(0), b.FindString(0, L""), b.SelectString(0, L"")}; }, "-1 -1 -1 -1 -1 -1 -1", nullptr},
    {__LINE__, [](Box& b) -> Results { return {b.GetItemData(0), b.SetItemDataPtr(0, &b), !b.GetItemDataPtr(0), b.GetLBText(0, nullptr), b.GetLBTextLen(0)}; }, "-1 -1 1 -1 -1", nullptr},
    {__LINE__, [](Box& b) -> Results { return {!b.GetEditBox(), static_cast<int>(b.GetEditSel()), b.SetEditSel(0, 1), b.LimitText(9), b.GetCueBanner().IsEmpty()}; }, "1 -1 -1 -1 1", nullptr},
    {__LINE__, [](Box& b) -> Results { return {b.SetItemHeight(0, 9), b.GetItemHeight(-1), b.SetDroppedWidth(9), b.GetDroppedWidth(), b.GetDroppedState()}; }, "-1 -1 -1 -1 0", nullptr},
    {__LINE__, [](Box& b) -> Results { return b.ResetContent(), b.Clear(), b.SetWindowText(L"a"), b.Cut(), Results{}; }, "", nullptr},
};
// clang-format on

TEST(ComboBox, EveryMemberKeepsSilent)
{
    expectFailures<QComboBox>(kFailures);
    for (const bool bMade : {true, false}) {
        SCOPED_TRACE(bMade ? "made" : "found");
        Form form(bMade, CBS_DROPDOWN);
        form.widget->setEditable(true);
        const QSignalSpy index(form.widget, qOverload<int>(&QComboBox::currentIndexChanged));
        const QSignalSpy edit(form.widget, &QComboBox::editTextChanged);
        runSteps(form.control, kEditable, [&] { return stateOf(*form.widget); });
        EXPECT_EQ(index.size(), 0);
        EXPECT_EQ(edit.size(), 4); // of Cut(), Paste() and what is typed, not of the members
        form.control.AddString(L"last");
        form.control.SetCurSel(0);
        form.control.Clear();
        EXPECT_EQ(index.size(), 1); // the one member that is heard
    }
}

TEST(ComboBox, Full)
{
    Form form(false, 0);
    form.widget->setMaxCount(1);
    EXPECT_EQ(form.control.AddString(L"a"), 0);
    EXPECT_EQ(form.control.AddString(L"b"), CB_ERRSPACE);
    EXPECT_EQ(send(form.control, CB_INSERTSTRING, 0, L"b"), CB_ERRSPACE);
    EXPECT_EQ(send(form.control, CB_INSERTSTRING, 2, L"b"), CB_ERR);
    EXPECT_EQ(stateOf(*form.widget), "a @-1 "_q);
}

TEST(ComboBox, IsMadeByItsStyle)
{
    for (const auto& [dwStyle, bEditable, dwKept] :
         {Row<DWORD, bool, DWORD>{CBS_DROPDOWN | WS_VSCROLL, true, CBS_DROPDOWN},
          {CBS_SIMPLE, true, CBS_SIMPLE},
          {CBS_DROPDOWNLIST | WS_HSCROLL | WS_VSCROLL, false, CBS_DROPDOWNLIST | WS_HSCROLL}}) {
        Form form(true, dwStyle);
        EXPECT_TRUE(qobject_cast<VxCUIComboBox*>(form.widget));
        EXPECT_EQ(form.widget->geometry(), QRect(10, 10, 200, 30));
        EXPECT_EQ(form.widget->isEditable(), bEditable);
        EXPECT_EQ(form.control.GetStyle(), dwKept);
    }
    VxCUIComboBox companion;
    const std::unique_ptr<CObject_E> made(CObject_E::FromImpMetaObject(companion.metaObject()));
    EXPECT_TRUE(qobject_cast<Box*>(made.get()));
    EXPECT_EQ(SendMessage_E(&companion, CB_ADDSTRING, 0, 0), 0);
}

TEST(ComboBox, WithoutALineEdit)
{
    Form form(true, CBS_DROPDOWNLIST);
    Box& box = form.control;
    for (const wchar_t* text : {L"red", L"Red", L"green"})
        box.AddString(text);
    box.SetWindowText(L"Red");
    box.SetWindowText(L"RED");
    CString_E text;
    box.GetWindowText(text);
    EXPECT_STREQ(text.GetString(), L"Red");
    EXPECT_EQ(
        Results(box.SetItemHeight(0, 20), box.SetEditSel(0, 1), send(box, CB_GETEDITSEL, 0)).text,
        "-1 -1 -1"_q);
    wchar_t cue[4] = L"";
    EXPECT_TRUE(box.SetCueBanner(L"which?") && box.GetCueBanner(cue, 4));
    EXPECT_STREQ(cue, L"whi");
    COMBOBOXINFO info{};
    EXPECT_TRUE(box.GetComboBoxInfo(&info) && !box.GetComboBoxInfo(nullptr));
    EXPECT_LT(info.rcItem.left, info.rcButton.left);
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
    tagRECT dropped{};
    box.GetDroppedControlRect(&dropped);
    EXPECT_GT(dropped.bottom - dropped.top, form.widget->height());
    movePointer(form.widget, {form.widget->width() - 8, form.widget->height() / 2});
    clickButton(1);
    ASSERT_TRUE(waitUntil([&] { return box.GetDroppedState() != FALSE; }));
    const QAbstractItemView* const pView = form.widget->view();
    movePointer(pView->viewport(), pView->visualRect(form.widget->model()->index(1, 0)).center());
    ASSERT_TRUE(waitUntil([pView] { return pView->currentIndex().row() == 1; }));
    typeKey(XK_Return); // the list takes no click right after it has dropped
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
