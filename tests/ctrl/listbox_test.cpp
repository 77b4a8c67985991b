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

LRESULT textOf(List& list, int nIndex, const wchar_t* expected)
{
    return expectText(
        list, nIndex, expected, [](List& l, int i, CString_E& text) { return l.GetText(i, text); },
        std::mem_fn(&List::GetTextLen), LB_GETTEXT);
}

/// The selected rows as digits.
LRESULT selectedRows(List& list, int nMax)
{
    int rows[9] = {};
    const int n = list.GetSelItems(nMax, rows);
    return std::accumulate(rows, rows + n, 0, [](int all, int row) { return 10 * all + row; });
}

// clang-format off
const Step<List> kSingle[] = {
    {__LINE__, [](List& l) -> LRESULT { return l.AddString(L"ABC"); }, 0, "ABC @-1"},
    {__LINE__, [](List& l) -> LRESULT { return send(l, LB_ADDSTRING, 0, nullptr); }, 1, "ABC, @-1"},
    {__LINE__, [](List& l) -> LRESULT { return l.InsertString(0, L"xyz"); }, 0, "xyz,ABC, @-1"},
    {__LINE__, [](List& l) -> LRESULT { return send(l, LB_INSERTSTRING, -1, L"abd"); }, 3, "xyz,ABC,,abd @-1"},
    {__LINE__, [](List& l) -> LRESULT { return l.InsertString(5, L"no") + l.InsertString(-2, L"no"); }, 2 * LB_ERR, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.DeleteString(2); }, 3, "xyz,ABC,abd @-1"},
    {__LINE__, [](List& l) -> LRESULT { return l.DeleteString(3) + send(l, LB_DELETESTRING, -1, nullptr); }, 2 * LB_ERR, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.SetCurSel(1); }, 1, "xyz,ABC*,abd @1"},
    {__LINE__, [](List& l) -> LRESULT { return l.GetSel(1) - l.GetSel(0) + l.GetSel(3); }, 0, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return selectedRows(l, 9) + selectedRows(l, 0) + selectedRows(l, -1); }, 1, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.SetCurSel(-1); }, LB_ERR, "xyz,ABC,abd @-1"},
    {__LINE__, [](List& l) -> LRESULT { return send(l, LB_SETCURSEL, 3, nullptr); }, LB_ERR, "xyz,ABC,abd @-1"},
    {__LINE__, [](List& l) -> LRESULT { return l.GetSelCount(); }, LB_ERR, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.SetSel(1) + l.SetSel(-1) + l.SelItemRange(TRUE, 0, 1); }, 3 * LB_ERR, "xyz,ABC,abd @-1"},
    {__LINE__, [](List& l) -> LRESULT { return l.FindString(-1, L"aB"); }, 1, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.FindString(1, L"aB"); }, 2, nullptr}, // behind the start
    {__LINE__, [](List& l) -> LRESULT { return send(l, LB_FINDSTRING, 2, L"ab"); }, 1, nullptr}, // from the top again
    {__LINE__, [](List& l) -> LRESULT { return l.FindString(0, L"x"); }, 0, nullptr}, // the start comes last
    {__LINE__, [](List& l) -> LRESULT { return l.FindString(99, L"ab"); }, 1, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.FindString(0, L"none"); }, LB_ERR, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.FindStringExact(0, L"ab"); }, LB_ERR, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return send(l, LB_FINDSTRINGEXACT, 2, L"abc"); }, 1, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.SelectString(1, L"ABC"); }, 1, "xyz,ABC*,abd @1"}, // the start itself
    {__LINE__, [](List& l) -> LRESULT { return l.SelectString(2, L"ABC"); }, LB_ERR, "xyz,ABC*,abd @1"},
    {__LINE__, [](List& l) -> LRESULT { return send(l, LB_SELECTSTRING, -1, L"abc"); }, LB_ERR, "xyz,ABC*,abd @1"},
    {__LINE__, [](List& l) -> LRESULT { return l.SetCaretIndex(2) + l.GetCaretIndex(); }, 2, "xyz,ABC*,abd @2"},
    {__LINE__, [](List& l) -> LRESULT { return l.SetCurSel(1), l.DeleteString(1); }, 2, "xyz,abd @-1"},
    {__LINE__, [](List& l) -> LRESULT { return LRESULT(l.GetItemData(0)) + LRESULT(l.GetItemData(2)); }, -2, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return LPARAM(l.GetItemDataPtr(0)) + send(l, LB_SETITEMDATA, 2, L""); }, LB_ERR, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.SetItemData(0, 1UL << 40); }, LB_OKAY, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return send(l, LB_GETITEMDATA, 0, nullptr); }, 1LL << 40, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.SetItemDataPtr(1, &l), l.GetItemDataPtr(1) == &l; }, TRUE, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return textOf(l, 1, L"abd"); }, 3, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return textOf(l, 2, L""); }, LB_ERR, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.SetItemHeight(1, 44), l.GetItemHeight(1); }, 44, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.SetItemHeight(9, 44) + l.GetItemHeight(9); }, 2 * LB_ERR, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.InitStorage(7, 0) + send(l, LB_INITSTORAGE, 8, nullptr); }, 15, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.SetTopIndex(9) + l.SetTopIndex(0); }, LB_ERR, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.SetTabStops(), l.SetHorizontalExtent(9), l.SetTabStops(4); }, FALSE, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.GetListBoxInfo(); }, 0, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.SetCurSel(1), l.GetCurSel(); }, 1, "xyz,abd* @1"},
};

const Step<List> kSeveral[] = {
    {__LINE__, [](List& l) -> LRESULT { return l.SetSel(3), l.SetSel(1); }, LB_OKAY, "a,b*,c,d* @-1"},
    {__LINE__, [](List& l) -> LRESULT { return l.GetSelCount(); }, 2, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return selectedRows(l, 9) * 10 + selectedRows(l, 1); }, 131, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.GetSelItems(9, nullptr); }, 0, nullptr},
    {__LINE__, [](List& l) -> LRESULT { return l.SetSel(1, FALSE) + l.SetSel(4); }, LB_ERR, "a,b,c,d* @-1"},
    {__LINE__, [](List& l) -> LRESULT { return l.SendMessage(LB_SELITEMRANGE, TRUE, MAKELPARAM(1, 2)); }, LB_OKAY, "a,b*,c*,d* @-1"},
    {__LINE__, [](List& l) -> LRESULT { return l.SendMessage(LB_SELITEMRANGEEX, 9, 2); }, LB_OKAY, "a,b*,c,d @-1"},
    {__LINE__, [](List& l) -> LRESULT { return l.SendMessage(LB_SELITEMRANGEEX, 2, 9); }, LB_OKAY, "a,b*,c*,d* @-1"},
    {__LINE__, [](List& l) -> LRESULT { return l.SendMessage(LB_SETSEL, TRUE, -1); }, LB_OKAY, "a*,b*,c*,d* @-1"},
    {__LINE__, [](List& l) -> LRESULT { return l.SelItemRange(FALSE, -5, 99); }, LB_OKAY, "a,b,c,d @-1"},
};

const Step<List> kFailures[] = {
    {__LINE__, [](List& l) -> LRESULT { return l.GetCount(); }, LB_ERR, ""},
    {__LINE__, [](List& l) -> LRESULT { return l.GetCurSel(); }, LB_ERR, ""},
    {__LINE__, [](List& l) -> LRESULT { return l.SetCurSel(-1); }, LB_ERR, ""},
    {__LINE__, [](List& l) -> LRESULT { return l.AddString(L"a") + l.InsertString(0, L"a"); }, 2 * LB_ERR, ""},
    {__LINE__, [](List& l) -> LRESULT { return l.ResetContent(), l.DeleteString(0); }, LB_ERR, ""},
    {__LINE__, [](List& l) -> LRESULT { return l.FindString(0, L"") + l.SelectString(0, L""); }, 2 * LB_ERR, ""},
    {__LINE__, [](List& l) -> LRESULT { CString_E text(L"a"); return l.GetText(0, text) + l.GetTextLen(0) + text.GetLength(); }, 2 * LB_ERR, ""},
    {__LINE__, [](List& l) -> LRESULT { return LRESULT(l.GetItemData(0)) + l.SetItemData(0, 1); }, -2, ""},
    {__LINE__, [](List& l) -> LRESULT { return l.GetSelCount() + l.GetSelItems(1, nullptr) + l.SetSel(-1); }, 3 * LB_ERR, ""},
    {__LINE__, [](List& l) -> LRESULT { tagRECT rect; return l.GetItemRect(0, &rect) + l.GetTopIndex(); }, 2 * LB_ERR, ""},
};
// clang-format on

TEST(ListBox, EveryMember)
{
    for (const bool bMade : {true, false}) {
        SCOPED_TRACE(bMade ? "made" : "found");
        FormWith<List, QListWidget> form(bMade, LBS_STANDARD);
        const auto state = [&] { return stateOf(*form.widget); };
        runSteps(form.control, kSingle, state);
        const QSignalSpy row(form.widget, &QListWidget::currentRowChanged);
        form.control.ResetContent();
        EXPECT_EQ(form.control.GetCount(), 0);
        EXPECT_EQ(row.size(), 0);

        form.widget->setSelectionMode(QAbstractItemView::MultiSelection);
        form.widget->addItems({"a"_q, "b"_q, "c"_q, "d"_q});
        runSteps(form.control, kSeveral, state);
        QPointer<QWidget> cell = new QWidget;
        form.widget->setItemWidget(form.widget->item(1), cell);
        EXPECT_EQ(form.control.DeleteString(1), 3);
        EXPECT_TRUE(waitUntil([&] { return !cell; }));
        EXPECT_TRUE(qobject_cast<List*>(CWnd_E::FromHandle(std::make_unique<QListWidget>().get())));
    }
    expectFailures<QListWidget>(kFailures);
}

TEST(ListBox, IsMadeByItsStyle)
{
    for (const auto& [dwStyle, mode] : {Row<DWORD, QAbstractItemView::SelectionMode>{
                                            LBS_MULTIPLESEL, QAbstractItemView::MultiSelection},
                                        {LBS_STANDARD, QAbstractItemView::SingleSelection},
                                        {LBS_EXTENDEDSEL, QAbstractItemView::SingleSelection}}) {
        FormWith<List, QListWidget> form(true, dwStyle);
        EXPECT_EQ(form.widget->selectionMode(), mode);
        EXPECT_EQ(form.control.GetStyle(), dwStyle);
        EXPECT_TRUE(
            form.widget->findChildren<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly).empty());
    }
}

TEST(CheckListBox, EveryMember)
{
    for (const bool bMade : {true, false}) {
        FormWith<CCheckListBox_E, QListWidget> form(bMade, LBS_STANDARD);
        CCheckListBox_E& list = form.control;
        list.AddString(L"a");
        list.SendMessage(LB_INSERTSTRING, 0, textParam(L"b"));
        form.widget->addItem("c"_q); // as from a form
        EXPECT_EQ(form.widget->item(1)->data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
        for (const auto& [nSet, state, nGot] : {Row<int, Qt::CheckState, int>{0, Qt::Unchecked, 0},
                                                {1, Qt::Checked, 1},
                                                {2, Qt::PartiallyChecked, 2},
                                                {-1, Qt::PartiallyChecked, 2}}) {
            list.SetCheck(1, nSet);
            EXPECT_EQ(form.widget->item(1)->checkState(), state);
            EXPECT_EQ(list.GetCheck(1), nGot);
            EXPECT_EQ(list.GetCheck(2), 0);
        }
        list.SetCheck(3, 1);
        EXPECT_EQ(list.GetCheck(3), 2);
        EXPECT_TRUE(list.IsEnabled(0));
        list.Enable(0, FALSE);
        EXPECT_FALSE(list.IsEnabled(0) || list.IsEnabled(3));
        EXPECT_FALSE(form.widget->item(0)->flags().testFlag(Qt::ItemIsEnabled));
        EXPECT_EQ(list.GetCheckStyle(), BS_AUTOCHECKBOX);
        for (const auto& [nStyle, bUser, bTristate] :
             {Row<UINT, bool, bool>{BS_CHECKBOX, false, false},
              {BS_3STATE, false, false},
              {BS_AUTO3STATE, true, true},
              {BS_AUTOCHECKBOX, true, false}}) {
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
    EXPECT_EQ(std::tuple(unbound.GetCheck(0), unbound.GetCheckStyle()), std::tuple(2, 0U));
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
