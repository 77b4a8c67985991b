// List boxes, with and without check boxes: selection, places and checks.
#include "controls.h"

#include <QtTest/QSignalSpy>

namespace {

using namespace vxtest;

TEST(ListBox, Selection)
{
    int rows[4] = {};
    // clang-format off
    const Steps one = {
        {LB_SETCURSEL, 1, 1}, {LB_GETSEL, 1, 1}, {LB_GETSEL, 0, 0}, {LB_GETSEL, 4, -1},
        {LB_GETSELITEMS, -1, at(rows), 0}, {LB_GETSELCOUNT, -1}, {LB_SETSEL, TRUE, 2, -1},
        {LB_SETSEL, TRUE, -1, -1}, {LB_SETCARETINDEX, 2, 0}, {LB_GETCARETINDEX, 2},
        {LB_SETCARETINDEX, 4, -1}, {"a,b*,c,d"_q},
        {LB_SETITEMHEIGHT, 1, 44, 0}, {LB_GETITEMHEIGHT, 1, 44}, {LB_SETITEMHEIGHT, 9, 44, -1},
        {LB_SETTABSTOPS, 1, 0}, {LB_SETHORIZONTALEXTENT, 500, 0}, {LB_GETLISTBOXINFO, 0},
    };
    const Steps several = {
        {LB_SETSEL, FALSE, -1, 0}, {LB_SETSEL, TRUE, 3, 0}, {LB_SETSEL, TRUE, 1, 0},
        {LB_SETSEL, TRUE, 4, -1}, {"a,b*,c,d*"_q}, {LB_GETSELCOUNT, 2},
        {LB_GETSELITEMS, 9, at(rows), 2}, {LB_GETSELITEMS, 9, 0, 0}, {LB_SETSEL, FALSE, 1, 0},
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
        pList->setSelectionMode(QAbstractItemView::MultiSelection);
        runSteps(pList, several);
        EXPECT_EQ(10 * rows[0] + rows[1], 13);

        QPointer<QWidget> cell = new QWidget;
        pList->setItemWidget(pList->item(1), cell);
        // clang-format off
        runSteps(pList, {
            {LB_DELETESTRING, 1, 3}, {LB_SETSEL, TRUE, 0}, {LB_SETCARETINDEX, 2, 0},
            {LB_DELETESTRING, 2, 2}, {"a*,c"_q}, // selected as before
        });
        // clang-format on
        EXPECT_TRUE(waitUntil([&] { return !cell; }));
        pList->setSelectionMode(QAbstractItemView::NoSelection);
        runSteps(pList, {{LB_GETSELCOUNT, 1}, {LB_SETSEL, -1}, {LB_SETCURSEL, 0}});
        const QSignalSpy row(pList, &QListWidget::currentRowChanged);
        list.ResetContent();
        EXPECT_EQ(row.size(), 0);
    });
}

TEST(ListBox, StylePlacesAndSorting)
{
    CListBox_E list;
    ASSERT_TRUE(list.Create(LBS_MULTIPLESEL | WS_VSCROLL, kPlace, static_cast<QWidget*>(nullptr)));
    auto* const pList = qobject_cast<QListWidget*>(list.GetSafeHwnd());
    EXPECT_EQ(pList->selectionMode(), QAbstractItemView::MultiSelection);
    EXPECT_EQ(list.GetStyle(), LBS_MULTIPLESEL | WS_VSCROLL);
    EXPECT_FALSE(pList->findChild<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly));

    list.AddString(L"a");
    list.AddString(L"b");
    list.ShowWindow(SW_SHOW);
    tagRECT first{}, rect{};
    EXPECT_EQ(list.GetItemRect(0, &first) + list.GetItemRect(1, &rect), 0);
    EXPECT_EQ(rect.top, first.bottom); // exclusive
    EXPECT_EQ(list.SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(rect.left, rect.bottom - 1)), 1);
    EXPECT_EQ(list.SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(rect.left, rect.bottom)), 0x1FFFF);
    QListWidget sorted; // by its form
    sorted.setSortingEnabled(true);
    // clang-format off
    runSteps(&sorted, {
        {LB_ADDSTRING, 0, at(L"m"), 0}, {LB_ADDSTRING, 0, at(L"a"), 0},
        {LB_INSERTSTRING, 0, at(L"z"), 2}, {LB_ADDSTRING, 0, at(L"b"), 1},
        {LB_INSERTSTRING, 9, at(L"n"), -1},
    });
    // clang-format on
}

TEST(CheckListBox, ChecksAndStyles)
{
    QListWidget widget;
    CCheckListBox_E list;
    ASSERT_TRUE(list.SubclassWindow(&widget));
    list.AddString(L"a");
    list.InsertString(0, L"b");
    widget.addItem("c"_q); // as from a form
    const QListWidgetItem& item = *widget.item(1);
    EXPECT_EQ(item.data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
    for (const int nSet : {1, 2, 0, -1}) {
        list.SetCheck(1, nSet);
        EXPECT_EQ(list.GetCheck(1), nSet < 0 ? 2 : nSet);
    }
    EXPECT_EQ(item.checkState(), Qt::PartiallyChecked);
    list.SetCheck(3, 1);
    EXPECT_TRUE(list.GetCheck(2) == 0 && list.GetCheck(3) == 2);
    list.Enable(0, FALSE);
    EXPECT_TRUE(list.IsEnabled(1) && !list.IsEnabled(0) && !list.IsEnabled(3));
    EXPECT_EQ(list.GetCheckStyle(), BS_AUTOCHECKBOX);
    constexpr auto three = Qt::ItemIsUserCheckable | Qt::ItemIsUserTristate;
    for (const auto& [nStyle, flags] : {Row<UINT, Qt::ItemFlags>{BS_3STATE, {}},
                                        {BS_AUTO3STATE, three},
                                        {BS_AUTOCHECKBOX, Qt::ItemIsUserCheckable}}) {
        list.SetCheckStyle(nStyle);
        EXPECT_EQ(list.GetCheckStyle(), nStyle);
        for (const int nRow : {2, list.AddString(L"new")})
            EXPECT_EQ(widget.item(nRow)->flags() & three, flags) << nStyle;
    }
    EXPECT_EQ(list.GetCheck(1), 2); // kept
}

} // namespace
