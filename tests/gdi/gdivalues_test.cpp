// What pens, brushes, bitmaps and palettes are made of.
#include <VxMFCEmu/gdi.h>

#include "gdi/zeros.h"

namespace {

template <typename T>
T& valueOf(const CGdiObject_E& object)
{
    return *static_cast<T*>(object.GetSafeHandle());
}

TEST(Pens, AreMadeFromStyleWidthAndColor)
{
    const tagLOGBRUSH logBrush{BS_SOLID, 0x112233, 0};
    const tagLOGPEN logPen{PS_DASHDOT, {4, 9}, 0x112233};
    CPen_E pens[] = {{PS_DASHDOT, 4, 0x112233U}, {PS_DASHDOT, 4, &logBrush}, {}};
    pens[2].CreatePenIndirect(&logPen);
    const COLORREF colors[] = {0x112233, 0x332211, 0x112233}; // the second one in the other order
    for (int i = 0; i < 3; ++i) {
        tagLOGPEN out{};
        EXPECT_EQ(pens[i].GetLogPen(&out), 1);
        EXPECT_EQ(QVector<UINT>({out.lopnStyle, out.lopnColor, 4, 0}),
                  QVector<UINT>({3, colors[i], UINT(out.lopnWidth.x), UINT(out.lopnWidth.y)}));
        const QPen expected(QBrush(vx::detail::toQColor(colors[i])), 4, Qt::DashDotLine);
        EXPECT_EQ(valueOf<QPen>(pens[i]), expected);
    }
    const HGDIOBJ h = pens[0];
    tagLOGPEN out{};
    expectZeros({pens[0].CreatePenIndirect(nullptr), pens[0].GetLogPen(nullptr),
                 pens[0].CreatePen(PS_SOLID, 1, static_cast<tagLOGBRUSH*>(nullptr)),
                 pens[0].GetExtLogPen(nullptr), CPen_E().GetLogPen(&out)});
    EXPECT_EQ(pens[0].m_hObject, h) << "failures keep it";
}

TEST(Brushes, AreMadeInAllForms)
{
    CBitmap_E bitmap;
    CBitmap_E empty;
    bitmap.CreateCompatibleBitmap(nullptr, 8, 8);
    const tagLOGBRUSH solid{BS_SOLID, 0x112233, 5};
    const tagLOGBRUSH hatched{BS_HATCHED, 0x112233, HS_CROSS};
    CBrush_E indirect[2];
    EXPECT_TRUE(indirect[0].CreateBrushIndirect(&solid) &&
                indirect[1].CreateBrushIndirect(&hatched));
    const struct
    {
        int line;
        const CBrush_E& brush;
        tagLOGBRUSH expected;
    } rows[] = {
        {__LINE__, CBrush_E(0x112233U), {BS_SOLID, 0x112233, 0}},
        {__LINE__, CBrush_E(HS_FDIAGONAL, 0x112233), {BS_HATCHED, 0x112233, 2}},
        {__LINE__, CBrush_E(77, 0x112233), {BS_NULL, 0x112233, 0}},
        {__LINE__, CBrush_E(&bitmap), {BS_PATTERN, 0, 0}},
        {__LINE__, indirect[0], {BS_SOLID, 0x112233, 0}},
        {__LINE__, indirect[1], {BS_HATCHED, 0x112233, 4}},
    };
    tagLOGBRUSH out{};
    for (const auto& row : rows) {
        EXPECT_EQ(row.brush.GetLogBrush(&out), 1);
        EXPECT_TRUE(out.lbStyle == row.expected.lbStyle && out.lbHatch == row.expected.lbHatch &&
                    out.lbColor == row.expected.lbColor)
            << row.line;
    }
    const HGDIOBJ h = indirect[0];
    expectZeros({indirect[0].CreatePatternBrush(nullptr), indirect[0].CreatePatternBrush(&empty),
                 indirect[0].CreateBrushIndirect(nullptr), indirect[0].GetLogBrush(nullptr),
                 CBrush_E(&empty).GetLogBrush(&out)});
    for (const UINT style : {BS_NULL, BS_PATTERN, BS_DIBPATTERN}) {
        const tagLOGBRUSH other{style, 0, 0};
        EXPECT_FALSE(indirect[0].CreateBrushIndirect(&other)) << style;
    }
    EXPECT_EQ(indirect[0].m_hObject, h);
}

TEST(Brushes, SystemColorBrushIsTheMainFramesBackground)
{
    CBrush_E none;
    EXPECT_TRUE(none.CreateSysColorBrush(COLOR_BTNFACE));
    EXPECT_EQ(valueOf<QBrush>(none), QBrush());
    QMainWindow frame;
    frame.setObjectName(QStringLiteral("CTolmMainFrame"));
    QPalette palette(Qt::cyan);
    palette.setColor(QPalette::Disabled, QPalette::Window, Qt::magenta);
    frame.setPalette(palette);
    for (const bool enabled : {true, false}) {
        frame.setEnabled(enabled);
        CBrush_E brush;
        EXPECT_TRUE(brush.CreateSysColorBrush(COLOR_HIGHLIGHT));
        EXPECT_EQ(valueOf<QBrush>(brush),
                  palette.brush(enabled ? QPalette::Active : QPalette::Disabled, QPalette::Window));
    }
}

TEST(Bitmaps, AreMadeAndLoaded)
{
    CBitmap_E bitmap;
    const tagBITMAP form{0, 5, 3, 0, 1, 16, nullptr};
    ASSERT_TRUE(bitmap.CreateBitmapIndirect(&form));
    tagBITMAP out{};
    EXPECT_EQ(bitmap.GetBitmap(&out), 1);
    EXPECT_EQ(QVector<int>({out.bmType, out.bmWidth, out.bmHeight, out.bmWidthBytes, out.bmPlanes,
                            out.bmBitsPixel}),
              QVector<int>({0, 5, 3, 12, 1, 16}));
    EXPECT_EQ(out.bmBits, valueOf<QImage>(bitmap).bits());
    const HGDIOBJ h = bitmap;
    expectZeros({bitmap.CreateBitmap(16, 16, 1, 24, &out), bitmap.CreateBitmapIndirect(nullptr),
                 bitmap.CreateBitmap(0, 16, 1, 32, nullptr), bitmap.LoadBitmap(L"/no/such.png"),
                 bitmap.CreateCompatibleBitmap(nullptr, 4, -4), bitmap.LoadBitmap(nullptr),
                 bitmap.GetBitmap(nullptr)});
    EXPECT_EQ(bitmap.m_hObject, h);
    EXPECT_EQ(bitmap.SetBitmapDimension(70, 90), CSize_E(5, 3));
    EXPECT_EQ(bitmap.GetBitmapDimension(), CSize_E(5, 3));
    EXPECT_EQ(CBitmap_E().GetBitmapDimension(), CSize_E(0, 0));

    QTemporaryDir folder;
    CBitmap_E other;
    EXPECT_TRUE(other.CreateDiscardableBitmap(nullptr, 2, 2));
    valueOf<QImage>(other).fill(QColor(1, 2, 3));
    for (const char* suffix : {"png", "bmp"}) {
        const QString path = folder.filePath(QStringLiteral("ä.%1").arg(QLatin1String(suffix)));
        ASSERT_TRUE(valueOf<QImage>(other).save(path));
        CBitmap_E loaded;
        EXPECT_TRUE(loaded.LoadBitmap(path.toStdWString().c_str())) << suffix;
        EXPECT_EQ(valueOf<QImage>(loaded).pixelColor(1, 1), QColor(1, 2, 3)) << suffix;
    }
}

TEST(Bitmaps, BitsAreCountedTwiceCopiedOnceAndSetInPlace)
{
    CBitmap_E bitmap;
    bitmap.CreateBitmap(4, 2, 1, 32, nullptr);
    valueOf<QImage>(bitmap).fill(QColor(10, 20, 30));
    std::vector<BYTE> bits(200, 0xEE);
    EXPECT_EQ(bitmap.GetBitmapBits(6, bits.data()), 6U);
    EXPECT_EQ(bits[5], 20);
    EXPECT_EQ(bits[6], 0xEE);
    EXPECT_EQ(bitmap.GetBitmapBits(200, bits.data()), 128U) << "4 x 2 x 16";
    EXPECT_EQ(bits[31], 255);
    EXPECT_EQ(bits[32], 0xEE) << "there are 32";

    const auto last = [&bitmap] { return valueOf<QImage>(bitmap).pixelColor(3, 1); };
    std::vector<quint32> pixels(8, 0xFF030201);
    EXPECT_EQ(bitmap.SetBitmapBits(100, pixels.data()), 32U);
    EXPECT_EQ(last(), QColor(1, 2, 3));
    pixels[7] = 0xFF060504;
    EXPECT_EQ(last(), QColor(4, 5, 6)) << "the caller's memory";
    const std::vector<quint32> few(7, 0xFF090807);
    EXPECT_EQ(bitmap.SetBitmapBits(28, few.data()), 28U) << "less than the image takes";
    EXPECT_EQ(last(), QColor(Qt::black));
    expectZeros({bitmap.SetBitmapBits(16, nullptr), bitmap.GetBitmapBits(10, nullptr),
                 CBitmap_E().SetBitmapBits(16, few.data()),
                 CBitmap_E().GetBitmapBits(10, bits.data())});
}

/// Appends @p count grey entries.
BOOL append(CPalette_E& palette, WORD count)
{
    std::vector<PALETTEENTRY> memory(count + 1U);
    memcpy(&memory[0].peBlue, &count, sizeof(count)); // the version and the count come first
    for (std::size_t i = 1; i <= count; ++i)
        memset(&memory[i], static_cast<int>(i - 1), 3);
    return palette.CreatePalette(reinterpret_cast<const tagLOGPALETTE*>(memory.data()));
}

TEST(Palettes, AppendCutAndFillUp)
{
    CPalette_E palette;
    EXPECT_TRUE(append(palette, 0) && append(palette, 3) && append(palette, 2));
    EXPECT_EQ(palette.GetEntryCount(), 5);
    EXPECT_EQ(palette.Entries()[4].peRed, 1) << "appended";
    EXPECT_TRUE(palette.ResizePalette(100000));
    EXPECT_EQ(palette.GetEntryCount(), 100000);
    EXPECT_EQ(palette.Entries()[99999].peBlue, 0);
    EXPECT_TRUE(palette.ResizePalette(0));
    expectZeros({palette.CreatePalette(nullptr), palette.GetEntryCount(), palette.DeleteObject(),
                 palette.GetNearestPaletteIndex(RGB(1, 1, 1)),
                 palette.CreateHalftonePalette(nullptr)});
}

TEST(Palettes, GetCountsSetWritesAndTheFirstNearestWins)
{
    CPalette_E palette;
    append(palette, 10);
    PALETTEENTRY entries[4] = {{1, 2, 3, 4}, {200, 10, 10, 0}, {9, 9, 9, 9}, {200, 10, 10, 0}};
    const struct
    {
        UINT start, count, got, set;
    } rows[] = {{0, 4, 4, 4},
                {8, 4, 2, 2},
                {9, 0xFFFFFFFF, 1, 1},
                {10, 4, 0, 0},
                {12, 1, 0xFFFFFFFE, 0}}; // the difference, whatever it is
    for (const auto& row : rows) {
        SCOPED_TRACE(row.start);
        EXPECT_EQ(palette.GetPaletteEntries(row.start, row.count, entries), row.got);
        EXPECT_EQ(entries[0].peRed, 1) << "copies nothing";
        EXPECT_EQ(palette.SetPaletteEntries(row.start, row.count, entries), row.set);
    }
    palette.AnimatePalette(4, 4, entries);
    expectZeros(
        {palette.GetPaletteEntries(0, 1, nullptr), palette.SetPaletteEntries(0, 1, nullptr)});
    EXPECT_EQ(palette.Entries()[0].peFlags, 4);
    EXPECT_EQ(palette.Entries()[4].peRed, 4) << "untouched";
    EXPECT_EQ(palette.GetNearestPaletteIndex(RGB(200, 10, 10)), 1U) << "3 has it too";
    EXPECT_EQ(palette.GetNearestPaletteIndex(RGB(255, 255, 255)), 1U) << "545 against 738";
    EXPECT_EQ(palette.GetNearestPaletteIndex(0xFF000505), 5U) << "the top byte is none";
}

} // namespace
