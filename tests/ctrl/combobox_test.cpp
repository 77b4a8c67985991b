// Combo boxes: their text, their list that drops down, and that they keep silent.
#include "controls.h"
#include "support/xinput.h"

#include <VxCustomUI.h>

#include <QtTest/QSignalSpy>

#include <X11/keysym.h>

namespace {

using namespace vxtest;

using Box = CComboBox_E;

struct EditableBox : QComboBox
{
    explicit EditableBox(QWidget* pParent) : QComboBox(pParent) { setEditable(true); }
};

TEST(ComboBox, Editable)
{
    wchar_t cue[4] = L"";
    DWORD ends[2] = {};
    tagRECT rect{};
    COMBOBOXINFO info{};
    // clang-format off
    const Steps steps = {
        // What is typed stays when items come and go
        {WM_SETTEXT, 0, at(L"typed"), TRUE}, {CB_ADDSTRING, 0, at(L"ABC"), 0},
        {CB_ADDSTRING, 0, at(L"1"), 1}, {"ABC,1 @typed"_q}, {CB_SETCURSEL, 1, 1},
        {CB_ADDSTRING, 0, at(L"abd"), 2}, {CB_INSERTSTRING, 0, at(L"xyz"), 0},
        {CB_ADDSTRING, 0, at(L"2.9"), 4}, {"xyz,ABC,1*,abd,2.9 @1"_q},
        {WM_SETTEXT, 0, at(L"own"), TRUE}, {CB_DELETESTRING, 4}, {"ABC,1*,abd,2.9 @own"_q},
        {CB_SELECTSTRING, 0, at(L"2.5"), 3}, // Intended: the numbers differ by less than 1
        {CB_SELECTSTRING, 0, at(L"3.9"), -1}, {CB_SELECTSTRING, 0, at(L"ab"), -1},
        {"currentText", "2.9"_q}, {WM_SETTEXT, 0, at(L"abd"), TRUE}, {CB_GETCURSEL, 2},
        {WM_SETTEXT, 0, at(L"ABD"), TRUE}, {CB_GETCURSEL, 2}, {"currentText", "ABD"_q},
        // The line edit
        {CB_SETEDITSEL, 0, MAKELPARAM(1, -1), TRUE}, {CB_SETITEMDATA, 2, 7, 0},
        {"currentText", "ABD"_q}, {CB_GETEDITSEL, at(&ends[0]), at(&ends[1]), MAKELONG(1, 3)},
        {CB_SETEDITSEL, 0, MAKELPARAM(0, 2), TRUE}, {CB_GETEDITSEL, MAKELONG(0, 2)},
        {CB_SETEDITSEL, 0, MAKELPARAM(-1, 2), TRUE}, {CB_GETEDITSEL, MAKELONG(2, 2)},
        {CB_LIMITTEXT, 7, TRUE}, {CB_SETCUEBANNER, 0, at(L"which?"), TRUE},
        {CB_GETCUEBANNER, at(cue), 4, TRUE}, {cue, "whi"_q}, {CB_GETCUEBANNER, 0, 4, FALSE},
        // The list that drops down
        {CB_SETITEMHEIGHT, 0, 31, 0}, {CB_GETITEMHEIGHT, -1, 31}, {CB_SETDROPPEDWIDTH, 333, 333},
        {CB_GETDROPPEDWIDTH, 333}, {CB_SETMINVISIBLE, 5, TRUE}, {CB_SETMINVISIBLE, FALSE},
        {CB_GETMINVISIBLE, 5}, {CB_SHOWDROPDOWN, 1, TRUE},
        {CB_GETDROPPEDSTATE, FALSE}, // Intended: it does not drop
        {CB_GETDROPPEDCONTROLRECT, 0, at(&rect), TRUE}, {CB_GETDROPPEDCONTROLRECT, FALSE},
        {CB_GETCOMBOBOXINFO, 0, at(&info), TRUE}, {CB_GETCOMBOBOXINFO, FALSE},
        // The selection goes, and the text of the item with it
        {CB_SETCURSEL, 99, -1}, {"currentText", ""_q}, {CB_SETCURSEL, 1, 1},
        {CB_DELETESTRING, 1, 3}, {"ABC,abd,2.9 @"_q}, {CB_SETCURSEL, 1, 1},
        {WM_SETTEXT, 0, at(L"typed"), TRUE}, {CB_DELETESTRING, 1, 2}, {"ABC,2.9 @typed"_q},
        {CB_SETCURSEL, 1, 1}, {CB_RESETCONTENT, 0}, {" @"_q},
    };
    // clang-format on
    forMadeAndFound<Box, EditableBox>(CBS_DROPDOWN, [&](Box& box) {
        auto* const pCombo = qobject_cast<QComboBox*>(box.GetSafeHwnd());
        const QSignalSpy index(pCombo, qOverload<int>(&QComboBox::currentIndexChanged));
        const QSignalSpy edit(pCombo, &QComboBox::editTextChanged);
        runSteps(pCombo, steps);
        EXPECT_EQ(index.size() + edit.size(), 0);
        EXPECT_EQ(ends[0] + 10 * ends[1], 31U);
        EXPECT_LT(info.rcItem.left, info.rcButton.left);
        EXPECT_EQ(pCombo->lineEdit()->maxLength(), 7);
        EXPECT_TRUE(box.GetCueBanner() == L"which?");
        box.LimitText(0);
        EXPECT_GT(pCombo->lineEdit()->maxLength(), 9999);

        box.AddString(L"last");
        box.SetCurSel(0);
        EXPECT_GT(box.GetItemHeight(0), 0);
        box.SetWindowText(L"123456");
        for (const Selection& row : kSelections) {
            box.SetEditSel(1, 1);
            box.SetEditSel(row.nStart, row.nEnd);
            EXPECT_EQ(box.GetEditSel(), row.combo) << row.nStart;
        }
        box.SetWindowText(L"last");
        box.SetEditSel(1, -1);
        box.Copy();
        box.SetEditSel(9, 9);
        box.Paste();
        EXPECT_EQ(pCombo->currentText(), "lastast"_q);
        box.SetEditSel(1, -1);
        box.Cut();
        EXPECT_EQ(pCombo->currentText(), "l"_q);
        EXPECT_EQ(index.size(), 0);
        box.Clear();
        EXPECT_EQ(index.size(), 1) << "the one member that is heard";
    });
}

TEST(ComboBox, Full)
{
    QComboBox combo;
    combo.setMaxCount(1);
    // clang-format off
    const Steps steps = {
        {CB_ADDSTRING, 0, at(L"a"), 0}, {CB_ADDSTRING, 0, at(L"b"), CB_ERRSPACE},
        {CB_INSERTSTRING, 0, at(L"b"), CB_ERRSPACE}, {CB_INSERTSTRING, 2, at(L"b"), CB_ERR},
        {"a"_q},
    };
    // clang-format on
    runSteps(&combo, steps);
}

TEST(ComboBox, IsMadeByItsStyle)
{
    QWidget parent;
    for (const auto& [dwStyle, bEditable, dwKept] :
         {Row<DWORD, bool, DWORD>{CBS_DROPDOWN | WS_VSCROLL, true, CBS_DROPDOWN},
          {CBS_SIMPLE, true, CBS_SIMPLE},
          {CBS_DROPDOWNLIST | WS_HSCROLL | WS_VSCROLL, false, CBS_DROPDOWNLIST | WS_HSCROLL}}) {
        Box box;
        ASSERT_TRUE(box.Create(dwStyle, kPlace, &parent));
        auto* const pCombo = qobject_cast<VxCUIComboBox*>(box.GetSafeHwnd());
        ASSERT_TRUE(pCombo);
        EXPECT_EQ(pCombo->isEditable(), bEditable);
        EXPECT_EQ(box.GetStyle(), dwKept);
    }
    VxCUIComboBox companion;
    const std::unique_ptr<CObject_E> made(CObject_E::FromImpMetaObject(companion.metaObject()));
    EXPECT_TRUE(qobject_cast<Box*>(made.get()));
    EXPECT_EQ(SendMessage_E(&companion, CB_ADDSTRING, 0, 0), 0);
}

TEST(ComboBox, WithoutALineEdit)
{
    wchar_t text[8] = L"";
    // clang-format off
    const Steps steps = {
        {CB_ADDSTRING, 0, at(L"red"), 0}, {CB_ADDSTRING, 0, at(L"Red"), 1},
        {WM_SETTEXT, 0, at(L"Red"), TRUE}, {WM_SETTEXT, 0, at(L"RED"), CB_ERR},
        {WM_GETTEXT, 8, at(text), 3}, {text, "Red"_q}, {WM_GETTEXTLENGTH, 3},
        {CB_SETITEMHEIGHT, 0, 20, CB_ERR}, {CB_SETEDITSEL, 0, 1, CB_ERR}, {CB_GETEDITSEL, CB_ERR},
        {CB_SETCUEBANNER, 0, at(L"which?"), TRUE}, {CB_GETCUEBANNER, at(text), 4, TRUE},
        {text, "whi"_q},
    };
    // clang-format on
    runSteps<Box, QComboBox>(CBS_DROPDOWNLIST, steps);
}

TEST(ComboBox, RealInputDropsSelectsAndTypes)
{
    VXTEST_NEEDS_X11();
    QWidget form;
    form.resize(300, 300);
    CComboBox_E box;
    ASSERT_TRUE(box.Create(CBS_DROPDOWN | WS_VISIBLE, kPlace, &form));
    for (const wchar_t* text : {L"alpha", L"beta", L"gamma"})
        box.AddString(text);
    auto* const pCombo = qobject_cast<QComboBox*>(box.GetSafeHwnd());
    const QSignalSpy index(pCombo, qOverload<int>(&QComboBox::currentIndexChanged));
    ASSERT_TRUE(showAndActivate(&form));
    tagRECT dropped{};
    box.GetDroppedControlRect(&dropped);
    EXPECT_GT(dropped.bottom - dropped.top, pCombo->height());
    movePointer(pCombo, {pCombo->width() - 8, pCombo->height() / 2});
    clickButton(1);
    ASSERT_TRUE(waitUntil([&] { return box.GetDroppedState() != FALSE; }));
    const QAbstractItemView* const pView = pCombo->view();
    movePointer(pView->viewport(), pView->visualRect(pCombo->model()->index(1, 0)).center());
    ASSERT_TRUE(waitUntil([pView] { return pView->currentIndex().row() == 1; }));
    typeKey(XK_Return); // the list takes no click right after it has dropped
    ASSERT_TRUE(waitUntil([&] { return box.GetDroppedState() == FALSE; }));
    EXPECT_EQ(box.GetCurSel(), 1);
    EXPECT_EQ(index.size(), 1);
    pCombo->setFocus();
    pCombo->lineEdit()->selectAll();
    typeKey(XK_g);
    typeKey(XK_Return);
    EXPECT_TRUE(waitUntil([&] { return pCombo->currentText() == "g"_q; })); // not completed
    EXPECT_EQ(box.GetCount(), 3);
}

} // namespace
