// List boxes, with and without check boxes: selection, places and checks.
#include "controls.h"
#include "support/xinput.h"

#include <QtTest/QSignalSpy>

#include <X11/keysym.h>

namespace {

using namespace vxtest;

TEST(ListBox, Selection)
{
    int rows[4] = {};
    // clang-format off
    const Steps one = {
        {LB_SETCURSEL, 1, 1}, {LB_GETSEL, 1, 1}, {LB_GETSEL, 0, 0}, {LB_GETSEL, 4, -1},
        {LB_GETSELITEMS, 9, at(rows), 1}, {LB_GETSELITEMS, -1, at(rows), 0}, {LB_GETSELCOUNT, -1},
        {LB_SETSEL, TRUE, 2, -1}, {LB_SETSEL, TRUE, -1, -1},
        {LB_SELITEMRANGE, TRUE, MAKELPARAM(0, 1), -1}, {LB_SETCARETINDEX, 2, 0},
        {LB_GETCARETINDEX, 2}, {LB_SETCARETINDEX, 4, -1}, {"a,b*,c,d"_q},
        {LB_SETITEMHEIGHT, 1, 44, 0}, {LB_GETITEMHEIGHT, 1, 44}, {LB_SETITEMHEIGHT, 9, 44, -1},
        {LB_SETTABSTOPS, 1, 0}, {LB_SETHORIZONTALEXTENT, 500, 0}, {LB_GETLISTBOXINFO, 0},
    };
    const Steps several = {
        {LB_SETSEL, FALSE, -1, 0}, {LB_SETSEL, TRUE, 3, 0}, {LB_SETSEL, TRUE, 1, 0},
        {LB_SETSEL, TRUE, 4, -1}, {"a,b*,c,d*"_q}, {LB_GETSELCOUNT, 2},
        {LB_GETSELITEMS, 9, at(rows), 2}, {LB_GETSELITEMS, 1, at(rows), 1},
        {LB_GETSELITEMS, 9, 0, 0}, {LB_SETSEL, FALSE, 1, 0},
        {LB_SELITEMRANGE, TRUE, MAKELPARAM(1, 2), 0}, {"a,b*,c*,d*"_q},
        {LB_SELITEMRANGEEX, 9, 2, 0}, {"a,b*,c,d"_q}, {LB_SELITEMRANGEEX, 2, 9, 0},
        {"a,b*,c*,d*"_q}, {LB_SETSEL, TRUE, -1, 0}, {LB_GETSELCOUNT, 4},
        {LB_SELITEMRANGE, FALSE, MAKELPARAM(-5, 99), 0}, {"a,b,c,d"_q},
    };
    // clang-format on
    forMadeAndFound<CListBox_E, QListWidget>(LBS_STANDARD, [&](CListBox_E& list) {
        auto* const pList = qobject_cast<QListWidget*>(list.GetSafeHwnd());
        pList->addItems({"a"_q, "b"_q, "c"_q, "d"_q});
        runSteps(pList, one);
        EXPECT_FALSE(list.SetTabStops(4));
        pList->setSelectionMode(QAbstractItemView::MultiSelection);
        runSteps(pList, several);
        EXPECT_EQ(10 * rows[0] + rows[1], 13);

        QPointer<QWidget> cell = new QWidget;
        pList->setItemWidget(pList->item(1), cell);
        EXPECT_EQ(list.DeleteString(1), 3);
        EXPECT_TRUE(waitUntil([&] { return !cell; }));
        list.SetSel(0);
        list.SetCaretIndex(2);
        EXPECT_EQ(list.DeleteString(2), 2);
        EXPECT_EQ(itemsOf(pList), "a*,c"_q) << "selected as before";
        pList->setSelectionMode(QAbstractItemView::NoSelection);
        EXPECT_EQ(list.GetSelCount(), 1);
        EXPECT_EQ(list.SetSel(0), -1);
        list.SetCurSel(0);
        const QSignalSpy row(pList, &QListWidget::currentRowChanged);
        list.ResetContent();
        EXPECT_EQ(row.size(), 0);
    });
}

TEST(ListBox, SortedByItsForm)
{
    QListWidget list;
    list.setSortingEnabled(true);
    // clang-format off
    const Steps steps = {
        {LB_ADDSTRING, 0, at(L"m"), 0}, {LB_ADDSTRING, 0, at(L"a"), 0},
        {LB_INSERTSTRING, 0, at(L"z"), 2}, {LB_ADDSTRING, 0, at(L"b"), 1},
        {LB_INSERTSTRING, 9, at(L"n"), -1},
    };
    // clang-format on
    runSteps(&list, steps);
}

TEST(ListBox, IsMadeByItsStyle)
{
    QWidget parent;
    for (const DWORD dwStyle : {LBS_MULTIPLESEL, LBS_STANDARD}) {
        CListBox_E list;
        ASSERT_TRUE(list.Create(dwStyle, kPlace, &parent));
        auto* const pList = qobject_cast<QListWidget*>(list.GetSafeHwnd());
        EXPECT_EQ(pList->selectionMode(), dwStyle == LBS_STANDARD
                                              ? QAbstractItemView::SingleSelection
                                              : QAbstractItemView::MultiSelection);
        EXPECT_EQ(list.GetStyle(), dwStyle);
        EXPECT_FALSE(pList->findChild<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly));
    }
}

constexpr Qt::CheckState kChecks[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};

TEST(CheckListBox, EveryMember)
{
    QWidget parent;
    QListWidget found;
    CCheckListBox_E lists[2];
    ASSERT_TRUE(lists[0].Create(LBS_STANDARD, kPlace, &parent) && lists[1].SubclassWindow(&found));
    for (CCheckListBox_E& list : lists) {
        auto* const pList = qobject_cast<QListWidget*>(list.GetSafeHwnd());
        list.AddString(L"a");
        list.InsertString(0, L"b");
        pList->addItem("c"_q); // as from a form
        EXPECT_EQ(pList->item(1)->data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
        for (const int nSet : {0, 1, 2, -1}) {
            list.SetCheck(1, nSet);
            const int nGot = nSet < 0 ? 2 : nSet;
            EXPECT_EQ(list.GetCheck(1), nGot);
            EXPECT_EQ(pList->item(1)->checkState(), kChecks[nGot]);
        }
        list.SetCheck(3, 1);
        EXPECT_EQ(list.GetCheck(2), 0);
        EXPECT_EQ(list.GetCheck(3), 2);
        EXPECT_TRUE(list.IsEnabled(0));
        list.Enable(0, FALSE);
        EXPECT_FALSE(list.IsEnabled(0) || list.IsEnabled(3));
        EXPECT_FALSE(pList->item(0)->flags().testFlag(Qt::ItemIsEnabled));
        EXPECT_EQ(list.GetCheckStyle(), BS_AUTOCHECKBOX);
        for (const UINT nStyle : {BS_CHECKBOX, BS_3STATE, BS_AUTO3STATE, BS_AUTOCHECKBOX}) {
            SCOPED_TRACE(nStyle);
            list.SetCheckStyle(nStyle);
            EXPECT_EQ(list.GetCheckStyle(), nStyle);
            const bool bThree = nStyle == BS_AUTO3STATE;
            for (const int nRow : {2, list.AddString(L"new")}) {
                const Qt::ItemFlags flags = pList->item(nRow)->flags();
                EXPECT_EQ(flags.testFlag(Qt::ItemIsUserCheckable),
                          bThree || nStyle == BS_AUTOCHECKBOX);
                EXPECT_EQ(flags.testFlag(Qt::ItemIsUserTristate), bThree);
            }
        }
        EXPECT_EQ(list.GetCheck(1), 2); // kept
    }
}

TEST(CheckListBox, RealInputSelectsAndChecks)
{
    VXTEST_NEEDS_X11();
    QWidget form;
    CCheckListBox_E list;
    ASSERT_TRUE(list.Create(WS_VISIBLE, {10, 10, 210, 210}, &form));
    for (const wchar_t* text : {L"a", L"b", L"c"})
        list.AddString(text);
    ASSERT_TRUE(showAndActivate(&form));
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

    movePointer(list.GetSafeHwnd()->findChild<QWidget*>("qt_scrollarea_viewport"_q),
                {inside.x, inside.y});
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
