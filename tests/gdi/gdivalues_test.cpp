// What pens, brushes, bitmaps and palettes are made of.
#include "gdi/gditest.h"

namespace {

TEST(Pens, AreMadeFromStyleWidthAndColor)
{
    const tagLOGBRUSH logBrush{BS_SOLID, 0x112233, 0};
    const tagLOGPEN logPen{PS_DASHDOT, {4, 9}, 0x112233};
    CPen_E pen, reversed(PS_DASHDOT, 4, &logBrush);
    pen.CreatePenIndirect(&logPen);
    EXPECT_EQ(valueOf<QPen>(pen), QPen(QColor(0x33, 0x22, 0x11), 4, Qt::DashDotLine));
    EXPECT_EQ(valueOf<QPen>(reversed).color(), QColor(0x11, 0x22, 0x33)) << "Intended";
    tagLOGPEN out{};
    EXPECT_EQ(pen.GetLogPen(&out), 1);
    EXPECT_TRUE(out.lopnStyle == PS_DASHDOT && out.lopnWidth.x == 4 && out.lopnColor == 0x112233);
    const HGDIOBJ h = pen;
    expectZeros({pen.CreatePenIndirect(nullptr), CPen_E().GetLogPen(&out),
                 pen.CreatePen(PS_SOLID, 1, static_cast<tagLOGBRUSH*>(nullptr))});
    EXPECT_EQ(pen.m_hObject, h) << "failures keep it";
}

TEST(Brushes, AreMadeInAllForms)
{
    Bitmap bitmap(8, 8, Qt::red);
    CBitmap_E empty;
    const tagLOGBRUSH solid{BS_SOLID, 0x112233, 0}, hatched{BS_HATCHED, 0x112233, HS_CROSS},
        pattern{BS_PATTERN, 0, 0};
    CBrush_E brushes[] = {{77, 0x112233}, CBrush_E(&bitmap), {}, {}};
    EXPECT_TRUE(brushes[2].CreateBrushIndirect(&solid) && brushes[3].CreateBrushIndirect(&hatched));
    const tagLOGBRUSH expected[] = {
        {BS_NULL, 0x112233, 0}, {BS_PATTERN, 0, 0}, solid, {BS_HATCHED, 0x112233, 4}};
    tagLOGBRUSH out{};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(brushes[i].GetLogBrush(&out), 1);
        EXPECT_EQ(memcmp(&out, &expected[i], sizeof(out)), 0) << i;
    }
    CBrush_E& brush = brushes[2];
    const HGDIOBJ h = brush;
    expectZeros({brush.CreatePatternBrush(&empty), brush.CreateBrushIndirect(nullptr),
                 brush.CreateBrushIndirect(&pattern), CBrush_E(&empty).GetLogBrush(&out)});
    EXPECT_EQ(brush.m_hObject, h);
}

// Intended: whatever the index.
TEST(Brushes, SystemColorBrushIsTheMainFramesBackground)
{
    CBrush_E brush;
    EXPECT_TRUE(brush.CreateSysColorBrush(COLOR_BTNFACE));
    EXPECT_EQ(valueOf<QBrush>(brush), QBrush()) << "there is none";
    QMainWindow frame;
    frame.setObjectName(QStringLiteral("CTolmMainFrame"));
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::magenta);
    frame.setPalette(palette);
    brush.DeleteObject();
    EXPECT_TRUE(brush.CreateSysColorBrush(COLOR_HIGHLIGHT));
    EXPECT_EQ(valueOf<QBrush>(brush), QBrush(Qt::magenta));
}

TEST(Bitmaps, AreMadeAndLoaded)
{
    CBitmap_E bitmap;
    const tagBITMAP form{0, 5, 3, 0, 1, 16, nullptr};
    EXPECT_TRUE(bitmap.CreateBitmapIndirect(&form));
    tagBITMAP out{};
    EXPECT_EQ(bitmap.GetBitmap(&out), 1);
    EXPECT_EQ(std::tuple(out.bmWidth, out.bmHeight, out.bmWidthBytes, out.bmBitsPixel),
              std::tuple(5, 3, 12, 16));
    const HGDIOBJ h = bitmap;
    expectZeros({bitmap.CreateBitmap(16, 16, 1, 24, &out), bitmap.CreateBitmapIndirect(nullptr),
                 bitmap.CreateCompatibleBitmap(nullptr, 4, -4), bitmap.LoadBitmap(L"/no/such.png"),
                 CBitmap_E().GetBitmap(&out)});
    EXPECT_EQ(bitmap.m_hObject, h);
    EXPECT_EQ(bitmap.SetBitmapDimension(70, 90), CSize_E(5, 3));
    EXPECT_EQ(bitmap.GetBitmapDimension(), CSize_E(5, 3)) << "Intended: it keeps its size";

    QTemporaryDir folder;
    const QString path = folder.filePath("ä.bmp"_q);
    EXPECT_TRUE(valueOf<QImage>(Bitmap(2, 2, QColor(1, 2, 3))).save(path));
    bitmap.DeleteObject();
    ASSERT_TRUE(bitmap.LoadBitmap(path.toStdWString().c_str()));
    EXPECT_EQ(valueOf<QImage>(bitmap).pixelColor(1, 1), QColor(1, 2, 3));
}

TEST(Bitmaps, BitsAreCountedTwiceCopiedOnceAndSetInPlace)
{
    Bitmap bitmap(4, 2, QColor(10, 20, 30));
    std::vector<BYTE> bits(200, 0xEE);
    EXPECT_EQ(bitmap.GetBitmapBits(6, bits.data()), 6U);
    EXPECT_EQ(bits[6], 0xEE);
    EXPECT_EQ(bitmap.GetBitmapBits(200, bits.data()), 128U) << "Intended: 4 x 2 x 16";
    EXPECT_TRUE(bits[31] == 255 && bits[32] == 0xEE) << "there are 32";

    const auto last = [&bitmap] { return valueOf<QImage>(bitmap).pixelColor(3, 1); };
    std::vector<quint32> pixels(8, 0xFF030201);
    EXPECT_EQ(bitmap.SetBitmapBits(100, pixels.data()), 32U);
    EXPECT_EQ(last(), QColor(1, 2, 3));
    pixels[7] = 0xFF060504;
    EXPECT_EQ(last(), QColor(4, 5, 6)) << "the caller's memory";
    EXPECT_EQ(bitmap.SetBitmapBits(28, pixels.data()), 28U) << "less than the image takes";
    EXPECT_EQ(last(), QColor(Qt::black));
    expectZeros({bitmap.SetBitmapBits(16, nullptr), CBitmap_E().GetBitmapBits(10, bits.data())});
}

TEST(Palettes, AppendCountAndWriteEntries)
{
    CPalette_E palette;
    expectZeros({palette.CreatePalette(nullptr), palette.ResizePalette(0xFFFFFFFF),
                 palette.GetNearestPaletteIndex(RGB(1, 1, 1))});
    for (BYTE grey = 0; grey < 10; ++grey) {
        const tagLOGPALETTE one{0x300, 1, {{grey, grey, grey, 0}}};
        EXPECT_EQ(palette.CreatePalette(&one), 1);
    }
    EXPECT_EQ(palette.GetEntryCount(), 10);
    PALETTEENTRY entries[4] = {{1, 2, 3, 4}, {200, 10, 10, 0}, {9, 9, 9, 9}, {200, 10, 10, 0}};
    // Intended: the difference, whatever it is.
    constexpr Row<UINT, UINT, UINT, UINT> kRows[] = {
        {0, 4, 4, 4}, {8, 4, 2, 2}, {9, 0xFFFFFFFF, 1, 1}, {10, 4, 0, 0}, {12, 1, 0xFFFFFFFE, 0}};
    forRows(kRows, [&](UINT start, UINT count, UINT got, UINT set) {
        EXPECT_EQ(palette.GetPaletteEntries(start, count, entries), got);
        EXPECT_EQ(entries[0].peRed, 1) << "copies nothing";
        EXPECT_EQ(palette.SetPaletteEntries(start, count, entries), set);
    });
    EXPECT_EQ(palette.Entries()[0].peFlags, 4);
    EXPECT_EQ(palette.Entries()[4].peRed, 4) << "untouched";
    EXPECT_EQ(palette.GetNearestPaletteIndex(RGB(200, 10, 10)), 1U) << "3 has it too";
    EXPECT_EQ(palette.GetNearestPaletteIndex(RGB(255, 255, 255)), 1U) << "545 against 738";
    EXPECT_EQ(palette.GetNearestPaletteIndex(0xFF000505), 5U) << "the top byte is none";
}

} // namespace
