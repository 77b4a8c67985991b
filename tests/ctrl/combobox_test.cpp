// Combo boxes: their text, their list that drops down, that they keep silent, and their images.
#include "controls.h"

#include <VxCustomUI.h>

#include <QtTest/QSignalSpy>

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
        {CB_SETMINVISIBLE, -1, FALSE}, {CB_GETMINVISIBLE, 5}, {CB_SHOWDROPDOWN, 1, TRUE},
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
        for (const auto& [nStart, nEnd, line, lines, set] : kSelections) {
            box.SetEditSel(1, 1);
            box.SetEditSel(nStart, nEnd);
            EXPECT_EQ(box.GetEditSel(), set) << nStart;
        }
        box.SetWindowText(L"last");
        box.SetEditSel(0, 1);
        box.Copy();
        box.SetEditSel(1, -1);
        box.Paste();
        box.SetEditSel(0, 1);
        box.Cut();
        EXPECT_EQ(pCombo->currentText(), "l"_q);
        EXPECT_EQ(index.size(), 0);
        box.Clear();
        EXPECT_EQ(index.size(), 1) << "the one member that is heard";
    });
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
        EXPECT_TRUE(pCombo && pCombo->isEditable() == bEditable);
        EXPECT_EQ(box.GetStyle(), dwKept);
    }
    VxCUIComboBox companion;
    companion.setMaxCount(1);
    // clang-format off
    runSteps(&companion, {
        {CB_ADDSTRING, 0, at(L"a"), 0}, {CB_ADDSTRING, 0, at(L"b"), CB_ERRSPACE},
        {CB_INSERTSTRING, 0, at(L"b"), CB_ERRSPACE}, {CB_INSERTSTRING, 2, at(L"b"), CB_ERR},
        {"a"_q},
    });
    // clang-format on
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

COMBOBOXEXITEM item(INT_PTR iItem, const wchar_t* text, int nImage, LPARAM lParam)
{
    const UINT mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_INDENT | CBEIF_LPARAM;
    return {mask, iItem, const_cast<wchar_t*>(text), 4, nImage, 0, 0, 3, lParam};
}

/// Text, data and the colour of the image of each item.
QString stateOf(const QComboBox& combo)
{
    QStringList items;
    for (int i = 0; i < combo.count(); ++i) {
        const QIcon icon = combo.itemIcon(i);
        items += combo.itemText(i) + combo.itemData(i).toString() +
                 (icon.isNull() ? ""_q : icon.pixmap(8, 8).toImage().pixelColor(4, 4).name());
    }
    return items.join(u',');
}

TEST(ComboBoxEx, ItemsHaveTextDataAndImage)
{
    QWidget parent;
    QComboBox found;
    found.setEditable(true);
    CComboBoxEx_E boxes[2];
    ASSERT_TRUE(boxes[0].Create(CBS_DROPDOWN, kPlace, &parent) && boxes[1].SubclassWindow(&found));
    for (CComboBoxEx_E& box : boxes) {
        QComboBox& combo = *qobject_cast<QComboBox*>(box.GetSafeHwnd());
        const QSignalSpy index(&combo, qOverload<int>(&QComboBox::currentIndexChanged));
        CBitmap_E bitmaps[2];
        CImageList_E images;
        for (const int i : {0, 1}) {
            auto* const pImage = new QImage(8, 8, QImage::Format_RGB32);
            pImage->fill(i ? Qt::blue : Qt::red);
            bitmaps[i].Attach(pImage);
            images.Add(&bitmaps[i], static_cast<CBitmap_E*>(nullptr));
        }

        const COMBOBOXEXITEM first = item(-1, L"first", 0, -7), second = item(0, L"second", 1, 8);
        EXPECT_EQ(box.InsertItem(&first), 0);
        EXPECT_EQ(box.SendMessage(CBEM_INSERTITEM, 0, at(&second)), 0);
        EXPECT_EQ(stateOf(combo), "second8,first-7"_q);
        EXPECT_EQ(box.SetImageList(&images), nullptr);
        EXPECT_EQ(box.GetImageList(), &images);
        EXPECT_EQ(stateOf(combo), "second8#0000ff,first-7#ff0000"_q);

        wchar_t text[4] = L"";
        COMBOBOXEXITEM got = item(1, text, 9, 9);
        EXPECT_EQ(box.SendMessage(CBEM_GETITEM, 0, at(&got)), TRUE);
        EXPECT_STREQ(text, L"fir"); // as much as there is room for
        EXPECT_EQ(std::tuple(got.iImage, got.iIndent, got.lParam), std::tuple(0, 3, -7LL));
        COMBOBOXEXITEM change = item(1, L"new", 1, 9), typed = item(-1, L"typed", 0, 0);
        change.mask = CBEIF_TEXT | CBEIF_IMAGE;
        EXPECT_TRUE(box.SetItem(&change) && box.SetItem(&typed));
        EXPECT_EQ(stateOf(combo), "second8#0000ff,new-7#0000ff"_q);
        typed.pszText = text;
        EXPECT_TRUE(box.GetItem(&typed) && !box.HasEditChanged());
        EXPECT_STREQ(text, L"typ");

        for (COMBOBOXEXITEM bad : {item(3, L"", 0, 0), item(-2, L"", 0, 0)})
            EXPECT_TRUE(!box.SetItem(&bad) && !box.GetItem(&bad) && box.InsertItem(&bad) == -1);
        runSteps(&combo, {{CBEM_INSERTITEM, -1},
                          {CBEM_SETITEM, 0},
                          {CBEM_GETITEM, 0},
                          {CBEM_HASEDITCHANGED, 0}});
        const COMBOBOXEXITEM callback = item(2, reinterpret_cast<wchar_t*>(-1), -1, 0);
        EXPECT_EQ(box.InsertItem(&callback), 2);
        EXPECT_EQ(box.DeleteItem(0), 2);
        EXPECT_EQ(box.SetImageList(nullptr), &images);
        EXPECT_EQ(stateOf(combo), "new-7,0"_q);
        EXPECT_EQ(index.size(), 0);
    }
}

} // namespace
