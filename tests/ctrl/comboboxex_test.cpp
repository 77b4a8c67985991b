// Combo boxes with images: items by struct, with text, data and image.
#include "ctrl/items.h"

#include <QtTest/QSignalSpy>

namespace {

using namespace vxtest;

COMBOBOXEXITEM item(INT_PTR iItem, const wchar_t* text, int nImage, LPARAM lParam)
{
    return {CBEIF_TEXT | CBEIF_IMAGE | CBEIF_INDENT | CBEIF_LPARAM,
            iItem,
            const_cast<wchar_t*>(text),
            0,
            nImage,
            0,
            0,
            3,
            lParam};
}

QRgb iconColour(const QComboBox& combo, int nRow)
{
    const QIcon icon = combo.itemIcon(nRow);
    return icon.isNull() ? 0 : icon.pixmap(8, 8).toImage().pixel(4, 4);
}

TEST(ComboBoxEx, ItemsHaveTextDataAndImage)
{
    for (const bool bMade : {true, false}) {
        SCOPED_TRACE(bMade ? "made" : "found");
        FormWith<CComboBoxEx_E, QComboBox> form(bMade, CBS_DROPDOWN);
        CComboBoxEx_E& box = form.control;
        QComboBox& combo = *form.widget;
        combo.setEditable(true);
        const QSignalSpy index(&combo, qOverload<int>(&QComboBox::currentIndexChanged));
        CBitmap_E red, blue;
        CImageList_E images;
        for (const auto& [pBitmap, colour] :
             {std::pair{&red, Qt::red}, std::pair{&blue, Qt::blue}}) {
            QImage image(8, 8, QImage::Format_RGB32);
            image.fill(colour);
            pBitmap->Attach(new QImage(image));
            images.Add(pBitmap, static_cast<CBitmap_E*>(nullptr));
        }

        COMBOBOXEXITEM first = item(-1, L"first", 0, -7), second = item(0, L"second", 1, 8);
        EXPECT_EQ(box.InsertItem(&first), 0);
        EXPECT_EQ(box.SendMessage(CBEM_INSERTITEM, 0, LPARAM(&second)), 0);
        EXPECT_EQ(combo.currentIndex(), -1);
        EXPECT_EQ(iconColour(combo, 0), 0U);
        EXPECT_EQ(box.SetImageList(&images), nullptr);
        EXPECT_EQ(box.GetImageList(), &images);
        EXPECT_EQ(iconColour(combo, 0), QColor(Qt::blue).rgb());
        EXPECT_EQ(iconColour(combo, 1), QColor(Qt::red).rgb());
        EXPECT_EQ(box.GetItemData(1), DWORD_PTR(-7));

        wchar_t text[4] = L"";
        COMBOBOXEXITEM got = item(1, text, 0, 0);
        got.cchTextMax = 4;
        EXPECT_EQ(box.SendMessage(CBEM_GETITEM, 0, LPARAM(&got)), TRUE);
        EXPECT_STREQ(text, L"fir");
        EXPECT_EQ(std::tuple(got.iImage, got.iIndent, got.lParam), std::tuple(0, 3, -7LL));

        COMBOBOXEXITEM change = item(1, L"changed", 1, 9);
        change.mask = CBEIF_TEXT | CBEIF_IMAGE;
        EXPECT_TRUE(box.SetItem(&change));
        EXPECT_EQ(combo.itemText(1), "changed"_q);
        EXPECT_EQ(iconColour(combo, 1), QColor(Qt::blue).rgb());
        EXPECT_EQ(box.GetItemData(1), DWORD_PTR(-7)); // not in the mask

        COMBOBOXEXITEM typed = item(-1, L"typed", 0, 0);
        EXPECT_TRUE(box.SetItem(&typed));
        EXPECT_EQ(combo.currentText(), "typed"_q);
        typed.pszText = text;
        typed.cchTextMax = 4;
        EXPECT_TRUE(box.GetItem(&typed));
        EXPECT_STREQ(text, L"typ");
        EXPECT_FALSE(box.HasEditChanged());
        EXPECT_EQ(box.SendMessage(CBEM_GETEDITCONTROL), LRESULT(combo.lineEdit()));

        for (COMBOBOXEXITEM bad : {item(2, L"", 0, 0), item(-2, L"", 0, 0)}) {
            EXPECT_FALSE(box.SetItem(&bad));
            EXPECT_FALSE(box.GetItem(&bad));
        }
        const COMBOBOXEXITEM beyond = item(3, L"", 0, 0);
        EXPECT_EQ(box.InsertItem(&beyond), CB_ERR);
        for (const UINT message : {CBEM_INSERTITEM, CBEM_SETITEM, CBEM_GETITEM})
            EXPECT_LE(box.SendMessage(message), 0);
        const COMBOBOXEXITEM callback = item(2, reinterpret_cast<wchar_t*>(-1), -1, 0);
        EXPECT_EQ(box.InsertItem(&callback), 2);
        EXPECT_EQ(combo.itemText(2), QString());
        EXPECT_EQ(box.DeleteItem(0), 2);
        EXPECT_EQ(box.DeleteItem(2), CB_ERR);
        EXPECT_EQ(box.SetImageList(nullptr), &images);
        EXPECT_EQ(iconColour(combo, 0), 0U);
        EXPECT_EQ(index.size(), 0);
    }
    COMBOBOXEXITEM lost = item(0, L"a", 0, 0);
    CComboBoxEx_E unbound;
    EXPECT_EQ(unbound.InsertItem(&lost), CB_ERR);
    EXPECT_FALSE(unbound.SetItem(&lost) || unbound.GetItem(&lost) || unbound.GetImageList());
}

} // namespace
