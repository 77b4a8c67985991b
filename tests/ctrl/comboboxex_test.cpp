// Combo boxes with images: items by struct, with text, data and image.
#include "controls.h"

#include <QtTest/QSignalSpy>

namespace {

using namespace vxtest;

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
