#include <VxMFCEmu/gdi.h>

namespace {

/// A logical palette of grey entries, in memory of its own.
std::vector<BYTE> greys(WORD count)
{
    std::vector<BYTE> memory(sizeof(tagLOGPALETTE) + count * sizeof(PALETTEENTRY));
    memcpy(memory.data() + offsetof(tagLOGPALETTE, palNumEntries), &count, sizeof(count));
    for (std::size_t i = 0; i < count; ++i)
        memset(memory.data() + offsetof(tagLOGPALETTE, palPalEntry) + 4 * i, static_cast<int>(i),
               3);
    return memory;
}

BOOL create(CPalette_E& palette, WORD count)
{
    return palette.CreatePalette(reinterpret_cast<const tagLOGPALETTE*>(greys(count).data()));
}

TEST(Palettes, AppendCutAndFillUp)
{
    CPalette_E palette;
    EXPECT_EQ(palette.CreatePalette(nullptr), 0);
    EXPECT_EQ(create(palette, 0), 1);
    EXPECT_EQ(palette.GetEntryCount(), 0);
    EXPECT_EQ(create(palette, 3), 1);
    EXPECT_EQ(create(palette, 2), 1);
    EXPECT_EQ(palette.GetEntryCount(), 5);
    EXPECT_EQ(palette.Entries()[3].peRed, 0) << "appended";
    EXPECT_EQ(palette.GetSafeHandle(), nullptr);
    EXPECT_FALSE(palette.DeleteObject());
    EXPECT_TRUE(palette.ResizePalette(100000));
    EXPECT_EQ(palette.GetEntryCount(), 100000);
    EXPECT_EQ(palette.Entries()[99999].peBlue, 0);
    EXPECT_TRUE(palette.ResizePalette(0));
    EXPECT_EQ(palette.GetNearestPaletteIndex(RGB(1, 1, 1)), 0U);
    EXPECT_FALSE(palette.CreateHalftonePalette(nullptr));
}

TEST(Palettes, GetCountsAndSetWrites)
{
    CPalette_E palette;
    create(palette, 10);
    PALETTEENTRY entries[4] = {{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 9, 9, 9}, {9, 9, 9, 9}};
    const struct
    {
        int line;
        UINT start, count, got, set;
    } rows[] = {
        {__LINE__, 0, 4, 4, 4},  {__LINE__, 8, 4, 2, 2},           {__LINE__, 9, 0xFFFFFFFF, 1, 1},
        {__LINE__, 10, 4, 0, 0}, {__LINE__, 12, 1, 0xFFFFFFFE, 0}, // counts below zero
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(palette.GetPaletteEntries(row.start, row.count, entries), row.got);
        EXPECT_EQ(entries[0].peRed, 1) << "copies nothing";
        EXPECT_EQ(palette.SetPaletteEntries(row.start, row.count, entries), row.set);
    }
    palette.AnimatePalette(0, 4, entries);
    EXPECT_EQ(palette.GetPaletteEntries(0, 1, nullptr), 0U);
    EXPECT_EQ(palette.SetPaletteEntries(0, 1, nullptr), 0U);
    EXPECT_EQ(palette.Entries()[0].peFlags, 4);
    EXPECT_EQ(palette.Entries()[4].peRed, 4) << "untouched";
    EXPECT_EQ(palette.Entries()[9].peBlue, 3);
}

TEST(Palettes, FirstOfTheNearestWins)
{
    CPalette_E palette;
    create(palette, 9);
    const PALETTEENTRY red{200, 10, 10, 0};
    palette.SetPaletteEntries(3, 1, &red);
    palette.SetPaletteEntries(7, 1, &red);
    EXPECT_EQ(palette.GetNearestPaletteIndex(RGB(200, 10, 10)), 3U);
    EXPECT_EQ(palette.GetNearestPaletteIndex(RGB(255, 0, 0)), 3U);
    EXPECT_EQ(palette.GetNearestPaletteIndex(RGB(255, 255, 255)), 3U) << "545 against 741";
    EXPECT_EQ(palette.GetNearestPaletteIndex(0xFF000505), 5U) << "the top byte is none";
}

} // namespace
