// List boxes, with and without check boxes: each member and message over both kinds of widget.
#include "ctrl/items.h"
#include "support/xinput.h"

#include <QtTest/QSignalSpy>

#include <X11/keysym.h>

namespace {

using namespace vxtest;

using List = CListBox_E;

/// Items, the selected ones marked, and the current row.
QString stateOf(const QListWidget& list)
{
    QStringList items;
    for (int i = 0; i < list.count(); ++i)
        items += list.item(i)->text() + (list.item(i)->isSelected() ? "*"_q : ""_q);
    return "%1 @%2"_q.arg(items.join(u',')).arg(list.currentRow());
}

/// An item's text by member and message: whether both gave the expected one, and its length.
Results textOf(List& l, int nIndex, const wchar_t* expected)
{
    CString_E text(L"before");
    wchar_t buffer[16] = L"";
    const int length = l.GetText(nIndex, text);
    return {text == expected, length == send(l, LB_GETTEXT, nIndex, buffer),
            CString_E(buffer) == expected, length == l.GetTextLen(nIndex), length};
}

/// The selected rows as digits.
int selectedRows(List& list, int nMax)
{
    int rows[9] = {};
    const int n = list.GetSelItems(nMax, rows);
    return std::accumulate(rows, rows + n, 0, [](int all, int row) { return 10 * all + row; });
}

// clang-format off
const Step<List> kSingle[] = {
    // Items
    {__LINE__, [](List& l) -> Results { return {l.AddString(L"ABC"), send(l, LB_ADDSTRING, 0)}; }, "0 1", "ABC, @-1"},
    {__LINE__, [](List& l) -> Results { return {l.InsertString(0, L"xyz"), send(l, LB_INSERTSTRING, -1, L"abd")}; }, "0 3", "xyz,ABC,,abd @-1"},
    {__LINE__, [](List& l) -> Results { return {l.InsertString(5, L"no"), l.InsertString(-2, L"no")}; }, "-1 -1", "xyz,ABC,,abd @-1"},
    {__LINE__, [](List& l) -> Results { return {l.DeleteString(2), l.DeleteString(3), send(l, LB_DELETESTRING, -1), l.GetCount()}; }, "3 -1 -1 3", "xyz,ABC,abd @-1"},
    {__LINE__, [](List& l) -> Results { return textOf(l, 2, L"abd"); }, "1 1 1 1 3", nullptr},
    {__LINE__, [](List& l) -> Results { return textOf(l, 3, L""); }, "1 1 1 1 -1", nullptr},
    // Selection
    {__LINE__, [](List& l) -> Results { return {l.SetCurSel(1), l.GetSel(1), l.GetSel(0), l.GetSel(3), selectedRows(l, 9), selectedRows(l, -1)}; }, "1 1 0 -1 1 0", "xyz,ABC*,abd @1"},
    {__LINE__, [](List& l) -> Results { return {l.SetCurSel(-1), l.SetCurSel(3)}; }, "-1 -1", "xyz,ABC,abd @-1"},
    {__LINE__, [](List& l) -> Results { return {l.GetSelCount(), l.SetSel(1), l.SetSel(-1), l.SelItemRange(TRUE, 0, 1)}; }, "-1 -1 -1 -1", "xyz,ABC,abd @-1"},
    // Searches: FindString() behind the start and around, SelectString() from the start itself
    {__LINE__, [](List& l) -> Results { return {l.FindString(-1, L"aB"), l.FindString(1, L"ab"), send(l, LB_FINDSTRING, 2, L"ab"), l.FindString(0, L"x"), l.FindString(99, L"ab"), l.FindString(0, L"none")}; }, "1 2 1 0 1 -1", nullptr},
    {__LINE__, [](List& l) -> Results { return {l.FindStringExact(0, L"ab"), send(l, LB_FINDSTRINGEXACT, 2, L"abc")}; }, "-1 1", nullptr},
    {__LINE__, [](List& l) -> Results { return {l.SelectString(1, L"ABC"), l.SelectString(2, L"ABC"), send(l, LB_SELECTSTRING, -1, L"abc")}; }, "1 -1 -1", "xyz,ABC*,abd @1"},
    {__LINE__, [](List& l) -> Results { return {l.SetCaretIndex(2), l.GetCaretIndex(), l.SetCaretIndex(3)}; }, "0 2 -1", "xyz,ABC*,abd @2"},
    {__LINE__, [](List& l) -> Results { return {send(l, LB_SETCURSEL, 1), l.DeleteString(1)}; }, "1 2", "xyz,abd @-1"},
    // Data
    {__LINE__, [](List& l) -> Results { return {l.GetItemData(0), l.GetItemData(2), !l.GetItemDataPtr(0), send(l, LB_SETITEMDATA, 2)}; }, "-1 -1 1 -1", nullptr},
    {__LINE__, [](List& l) -> Results { return {l.SetItemData(0, 5UL << 32), send(l, LB_GETITEMDATA, 0), l.SetItemDataPtr(1, &l), l.GetItemDataPtr(1) == &l}; }, "0 21474836480 0 1", nullptr},
    // Place
    {__LINE__, [](List& l) -> Results { return {l.SetItemHeight(1, 44), l.GetItemHeight(1), l.SetItemHeight(9, 44), l.GetItemHeight(9), l.SetTopIndex(9), l.SetTopIndex(0)}; }, "0 44 -1 -1 -1 0", nullptr},
    {__LINE__, [](List& l) -> Results { return {send(l, LB_SETTABSTOPS, 0), send(l, LB_SETHORIZONTALEXTENT, 500), send(l, LB_GETLISTBOXINFO, 0)}; }, "0 0 0", nullptr},
    {__LINE__, [](List& l) -> Results { return {send(l, LB_GETCOUNT, 0), send(l, LB_SETCURSEL, 0), send(l, LB_GETCURSEL, 0), send(l, LB_GETSEL, 0), send(l, LB_GETSEL, 9), send(l, LB_GETSELCOUNT, 0), send(l, LB_GETTEXTLEN, 0)}; }, "2 0 0 1 -1 -1 3", nullptr},
    {__LINE__, [](List& l) -> Results { return {l.InitStorage(7, 0), l.SetTabStops(4), l.GetListBoxInfo(), l.SetCurSel(1)}; }, "7 0 0 1", "xyz,abd* @1"},
};

const Step<List> kSeveral[] = {
    {__LINE__, [](List& l) -> Results { return {l.SetSel(3), l.SetSel(1), l.GetSelCount(), selectedRows(l, 9), selectedRows(l, 1), l.GetSelItems(9, nullptr)}; }, "0 0 2 13 1 0", "a,b*,c,d* @-1"},
    {__LINE__, [](List& l) -> Results { int rows[2] = {-1, -1}; return {send(l, LB_GETSELCOUNT, 0), send(l, LB_GETSELITEMS, 2, rows), rows[0], rows[1], send(l, LB_GETSELITEMS, 2)}; }, "2 2 1 3 0", nullptr},
    {__LINE__, [](List& l) -> Results { return {l.SetSel(1, FALSE), l.SetSel(4)}; }, "0 -1", "a,b,c,d* @-1"},
    {__LINE__, [](List& l) -> Results { return {l.SendMessage(LB_SELITEMRANGE, TRUE, MAKELPARAM(1, 2)), l.SendMessage(LB_SELITEMRANGEEX, 9, 2)}; }, "0 0", "a,b*,c,d @-1"},
    {__LINE__, [](List& l) -> Results { return {l.SendMessage(LB_SELITEMRANGEEX, 2, 9)}; }, "0", "a,b*,c*,d* @-1"},
    {__LINE__, [](List& l) -> Results { return {l.SendMessage(LB_SETSEL, TRUE, -1), l.GetSelCount(), l.SelItemRange(FALSE, -5, 99)}; }, "0 4 0", "a,b,c,d @-1"},
};

const Step<List> kFailures[] = {
    {__LINE__, [](List& l) -> Results { return {l.GetCount(), l.GetCurSel(), l.SetCurSel(-1), l.AddString(L"a"), l.InsertString(0, L"a"), l.DeleteString(0)}; }, "-1 -1 -1 -1 -1 -1", nullptr},
    {__LINE__, [](List& l) -> Results { return {l.FindString(0, L""), l.SelectString(0, L""), l.GetItemData(0), l.SetItemData(0, 1), l.GetText(0, nullptr), l.GetTextLen(0)}; }, "-1 -1 -1 -1 -1 -1", nullptr},
    {__LINE__, [](List& l) -> Results { return {(l.ResetContent(), l.GetSelCount()), l.GetSelItems(1, nullptr), l.SetSel(-1), l.GetItemRect(0, nullptr), l.GetTopIndex()}; }, "-1 -1 -1 -1 -1", nullptr},
};
// clang-format on

TEST(ListBox, EveryMember)
{
    expectFailures<QListWidget>(kFailures);
    for (const bool bMade : {true, false}) {
        SCOPED_TRACE(bMade ? "made" : "found");
        FormWith<List, QListWidget> form(bMade, LBS_STANDARD);
        const auto state = [&] { return stateOf(*form.widget); };
        runSteps(form.control, kSingle, state);
        const QSignalSpy row(form.widget, &QListWidget::currentRowChanged);
        EXPECT_EQ(send(form.control, LB_RESETCONTENT, 0), LB_OKAY);
        EXPECT_EQ(form.control.GetCount() + row.size(), 0);

        form.widget->setSelectionMode(QAbstractItemView::MultiSelection);
        form.widget->addItems({"a"_q, "b"_q, "c"_q, "d"_q});
        runSteps(form.control, kSeveral, state);
        QPointer<QWidget> cell = new QWidget;
        form.widget->setItemWidget(form.widget->item(1), cell);
        EXPECT_EQ(form.control.DeleteString(1), 3);
        EXPECT_TRUE(waitUntil([&] { return !cell; }));
        form.control.SetSel(-1, FALSE);
        form.control.SetSel(0);
        form.control.SetCaretIndex(2);
        EXPECT_EQ(form.control.DeleteString(2), 2);
        EXPECT_EQ(form.control.GetSel(0), 1) << "selected as before";
    }
}

TEST(ListBox, SortedByItsForm)
{
    FormWith<List, QListWidget> form(false, 0);
    form.widget->setSortingEnabled(true);
    List& list = form.control;
    const Results rows{list.AddString(L"m"), list.AddString(L"a"), list.InsertString(0, L"z"),
                       send(list, LB_ADDSTRING, 0, L"b"), list.InsertString(9, L"no")};
    EXPECT_EQ(rows.text, "0 0 2 1 -1"_q);
    form.widget->setSelectionMode(QAbstractItemView::NoSelection);
    EXPECT_EQ(Results(list.GetSelCount(), list.SetSel(0)).text, "0 -1"_q);
}

TEST(ListBox, IsMadeByItsStyle)
{
    using Mode = Row<DWORD, QAbstractItemView::SelectionMode>;
    for (const auto& [dwStyle, mode] : {Mode{LBS_MULTIPLESEL, QAbstractItemView::MultiSelection},
                                        Mode{LBS_STANDARD, QAbstractItemView::SingleSelection}}) {
        FormWith<List, QListWidget> form(true, dwStyle);
        EXPECT_EQ(form.widget->selectionMode(), mode);
        EXPECT_EQ(form.control.GetStyle(), dwStyle);
        EXPECT_FALSE(form.widget->findChild<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly));
    }
    QListWidget plain;
    EXPECT_EQ(SendMessage_E(&plain, LB_ADDSTRING, 0, 0), 0);
}

TEST(CheckListBox, EveryMember)
{
    for (const bool bMade : {true, false}) {
        FormWith<CCheckListBox_E, QListWidget> form(bMade, LBS_STANDARD);
        CCheckListBox_E& list = form.control;
        list.AddString(L"a");
        send(list, LB_INSERTSTRING, 0, L"b");
        form.widget->addItem("c"_q); // as from a form
        EXPECT_EQ(form.widget->item(1)->data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
        using Check = Row<int, Qt::CheckState, int>;
        for (const auto& [nSet, state, nGot] :
             {Check{0, Qt::Unchecked, 0}, Check{1, Qt::Checked, 1},
              Check{2, Qt::PartiallyChecked, 2}, Check{-1, Qt::PartiallyChecked, 2}}) {
            list.SetCheck(1, nSet);
            EXPECT_EQ(form.widget->item(1)->checkState(), state);
            EXPECT_EQ(list.GetCheck(1), nGot);
        }
        list.SetCheck(3, 1);
        EXPECT_EQ(Results(list.GetCheck(2), list.GetCheck(3), list.IsEnabled(0)).text, "0 2 1"_q);
        list.Enable(0, FALSE);
        EXPECT_FALSE(list.IsEnabled(0) || list.IsEnabled(3));
        EXPECT_FALSE(form.widget->item(0)->flags().testFlag(Qt::ItemIsEnabled));
        EXPECT_EQ(list.GetCheckStyle(), BS_AUTOCHECKBOX);
        using Style = Row<UINT, bool, bool>;
        for (const auto& [nStyle, bUser, bTristate] :
             {Style{BS_CHECKBOX, false, false}, Style{BS_3STATE, false, false},
              Style{BS_AUTO3STATE, true, true}, Style{BS_AUTOCHECKBOX, true, false}}) {
            list.SetCheckStyle(nStyle);
            EXPECT_EQ(list.GetCheckStyle(), nStyle);
            for (const int nRow : {2, list.AddString(L"new")}) {
                const Qt::ItemFlags flags = form.widget->item(nRow)->flags();
                EXPECT_EQ(flags.testFlag(Qt::ItemIsUserCheckable), bUser);
                EXPECT_EQ(flags.testFlag(Qt::ItemIsUserTristate), bTristate);
            }
        }
        EXPECT_EQ(list.GetCheck(1), 2); // kept
    }
    CCheckListBox_E unbound;
    unbound.SetCheckStyle(BS_3STATE);
    EXPECT_EQ(Results(unbound.GetCheck(0), unbound.GetCheckStyle()).text, "2 0"_q);
}

TEST(CheckListBox, RealInputSelectsAndChecks)
{
    VXTEST_NEEDS_X11();
    FormWith<CCheckListBox_E, QListWidget> form(true, WS_VISIBLE);
    CCheckListBox_E& list = form.control;
    form.widget->resize(200, 200);
    for (const wchar_t* text : {L"a", L"b", L"c"})
        list.AddString(text);
    ASSERT_TRUE(showAndActivate(&form.form));
    tagRECT rect{}, first{};
    EXPECT_EQ(list.GetItemRect(1, &rect) + list.GetItemRect(0, &first), 0);
    EXPECT_EQ(rect.top, first.bottom); // exclusive
    EXPECT_EQ(list.SendMessage(LB_GETITEMRECT, 1, 0), LB_ERR);
    BOOL bOutside = TRUE;
    const CPoint_E inside((rect.left + rect.right) / 2, rect.bottom - 1);
    EXPECT_EQ(list.ItemFromPoint(inside, bOutside), 1);
    EXPECT_FALSE(bOutside);
    EXPECT_EQ(list.ItemFromPoint({1, 190}, bOutside), -1);
    EXPECT_TRUE(bOutside);
    EXPECT_EQ(list.SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(inside.x, inside.y)), 1);

    movePointer(form.widget->viewport(), {inside.x, inside.y});
    clickButton(1);
    EXPECT_TRUE(waitUntil([&] { return list.GetCurSel() == 1; }));
    EXPECT_EQ(list.GetCheck(1), 0);
    typeKey(XK_space);
    EXPECT_TRUE(waitUntil([&] { return list.GetCheck(1) == 1; }));
    typeKey(XK_Down);
    EXPECT_TRUE(waitUntil([&] { return list.GetCurSel() == 2; }));
    list.SetCheckStyle(BS_CHECKBOX);
    typeKey(XK_space);
    typeKey(XK_Up);
    EXPECT_TRUE(waitUntil([&] { return list.GetCurSel() == 1; }));
    EXPECT_EQ(list.GetCheck(2), 0);
}

} // namespace
