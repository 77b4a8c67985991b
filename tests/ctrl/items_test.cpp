// What combo boxes and list boxes share: their items by message, made and found.
#include "controls.h"

namespace {

using namespace vxtest;

/// The numbers that the messages have for one kind of control.
struct Numbers
{
    UINT add, insert, remove, count, select, selected, text, length, find, findExact, choose;
    UINT setData, data, setTop, top, height, reset;
};
constexpr Numbers kList{LB_ADDSTRING,   LB_INSERTSTRING,    LB_DELETESTRING, LB_GETCOUNT,
                        LB_SETCURSEL,   LB_GETCURSEL,       LB_GETTEXT,      LB_GETTEXTLEN,
                        LB_FINDSTRING,  LB_FINDSTRINGEXACT, LB_SELECTSTRING, LB_SETITEMDATA,
                        LB_GETITEMDATA, LB_SETTOPINDEX,     LB_GETTOPINDEX,  LB_GETITEMHEIGHT,
                        LB_RESETCONTENT};
constexpr Numbers kCombo{CB_ADDSTRING,   CB_INSERTSTRING,    CB_DELETESTRING, CB_GETCOUNT,
                         CB_SETCURSEL,   CB_GETCURSEL,       CB_GETLBTEXT,    CB_GETLBTEXTLEN,
                         CB_FINDSTRING,  CB_FINDSTRINGEXACT, CB_SELECTSTRING, CB_SETITEMDATA,
                         CB_GETITEMDATA, CB_SETTOPINDEX,     CB_GETTOPINDEX,  CB_GETITEMHEIGHT,
                         CB_RESETCONTENT};

template <typename Control, typename Widget>
void checkItems(const Numbers& n, int (Control::*pGetText)(int, CString_E&) const)
{
    wchar_t text[8] = L"";
    // Which of the results: of a list box or of a combo box.
    const auto of = [](LRESULT list, LRESULT combo) {
        return std::is_same_v<Widget, QListWidget> ? list : combo;
    };
    // clang-format off
    const Steps steps = {
        {n.add, 0, at(L"ABC"), 0}, {n.add, 1}, {n.insert, 0, at(L"xyz"), 0},
        {n.insert, -1, at(L"abd"), 3}, {"xyz,ABC,,abd"_q}, {n.insert, 5, at(L"no"), -1},
        {n.insert, -2, at(L"no"), -1}, {n.remove, 2, 3}, {n.remove, 3, -1}, {n.count, 3},
        {n.text, 2, at(text), 3}, {n.text, -1, at(text), -1}, {text, "abd"_q},
        {n.length, 2, 3}, {n.length, 3, -1}, {n.select, 1, 1}, {n.selected, 1},
        {"xyz,ABC*,abd"_q}, {n.select, -1, -1}, {n.select, 3, -1}, {n.selected, -1},
        // A list is searched behind the start and around, a combo box from the start itself
        {n.find, -1, at(L"aB"), 1}, {n.find, 1, at(L"ab"), of(2, 1)},
        {n.find, 2, at(L"ab"), of(1, 2)}, {n.find, 0, at(L"x"), 0},
        {n.find, 99, at(L"ab"), of(1, -1)}, {n.find, 3, at(L"none"), -1},
        {n.findExact, 0, at(L"ab"), -1}, {n.findExact, 2, at(L"abc"), of(1, -1)},
        {n.findExact, 0, at(L"abc"), 1},
        // The one from the start and by case, the other all and by either
        {n.choose, 1, at(L"ABC"), 1}, {"xyz,ABC*,abd"_q}, {n.choose, 2, at(L"ABC"), of(-1, 1)},
        {n.choose, -1, at(L"abd"), 2}, {n.choose, 0, at(L"abc"), of(-1, 1)}, {n.select, 1, 1},
        {n.remove, 1, 2}, {"xyz,abd"_q}, {n.data, of(-1, 0)}, {n.data, 2, -1}, {n.setData, 2, -1},
        {n.setData, 0, 5L << 32, 0}, {n.data, 5L << 32}, {n.setData, 1, -2, 0}, {n.data, 1, -2},
        {n.setTop, 0}, {n.setTop, 2, -1}, {n.top, 0}, {n.height, 2, -1}, {n.reset, 0}, {n.count, 0},
    };
    // clang-format on
    runSteps<Control, Widget>(CBS_DROPDOWNLIST, steps);
    Widget widget;
    Control control;
    control.SubclassWindow(&widget);
    control.AddString(L"last");
    CString_E str(L"before");
    EXPECT_EQ((control.*pGetText)(0, str), 4);
    EXPECT_STREQ(str.GetString(), L"last");
    EXPECT_EQ((control.*pGetText)(1, str), -1);
    EXPECT_TRUE(str.IsEmpty());
    control.SetItemDataPtr(0, &control);
    EXPECT_EQ(control.GetItemDataPtr(0), &control);
    EXPECT_EQ(control.GetItemDataPtr(1), nullptr);
}

TEST(Items, OfListBoxes) { checkItems<CListBox_E, QListWidget>(kList, &CListBox_E::GetText); }

TEST(Items, OfComboBoxes) { checkItems<CComboBox_E, QComboBox>(kCombo, &CComboBox_E::GetLBText); }

TEST(HeaderCtrl, CountsTheSectionsOfItsModel)
{
    QTableWidget table(2, 3);
    auto* const pFound = qobject_cast<CHeaderCtrl_E*>(CWnd_E::FromHandle(table.horizontalHeader()));
    ASSERT_TRUE(pFound);
    EXPECT_EQ(pFound->GetItemCount(), 3);
    CHeaderCtrl_E made;
    EXPECT_EQ(made.GetItemCount(), -1);
    ASSERT_TRUE(made.Create(WS_CHILD, kPlace, nullptr, kItem));
    EXPECT_EQ(made.GetItemCount(), 0);
}

} // namespace
