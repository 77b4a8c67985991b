#include <VxMFCEmu/gdi.h>

namespace {

TEST(Pens, AreMadeFromStyleWidthAndColor)
{
    const tagLOGBRUSH logBrush{BS_SOLID, 0x00112233, 0};
    const tagLOGPEN logPen{PS_DASHDOT, {4, 9}, 0x00112233};
    CPen_E plain(PS_DASHDOT, 4, 0x00112233);
    CPen_E swapped(PS_DASHDOT, 4, &logBrush);
    CPen_E indirect;
    EXPECT_TRUE(indirect.CreatePenIndirect(&logPen));
    const struct
    {
        int line;
        const CPen_E& pen;
        COLORREF color;
    } rows[] = {
        {__LINE__, plain, 0x00112233},
        {__LINE__, swapped, 0x00332211}, // read in the other order
        {__LINE__, indirect, 0x00112233},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        tagLOGPEN out{};
        EXPECT_EQ(row.pen.GetLogPen(&out), 1);
        EXPECT_EQ(out.lopnStyle, 3U);
        EXPECT_EQ(out.lopnWidth.x, 4);
        EXPECT_EQ(out.lopnWidth.y, 0);
        EXPECT_EQ(out.lopnColor, row.color);
        QPen expected(vx::detail::toQColor(row.color));
        expected.setWidth(4);
        expected.setStyle(Qt::DashDotLine);
        EXPECT_EQ(*static_cast<QPen*>(row.pen.GetSafeHandle()), expected);
    }
}

TEST(Pens, FailuresKeepTheHandle)
{
    CPen_E pen(PS_SOLID, 1, RGB(0, 0, 0));
    HGDIOBJ const h = pen;
    EXPECT_FALSE(pen.CreatePenIndirect(nullptr));
    EXPECT_FALSE(pen.CreatePen(PS_SOLID, 1, static_cast<const tagLOGBRUSH*>(nullptr)));
    EXPECT_EQ(pen.GetLogPen(nullptr), 0);
    EXPECT_EQ(pen.GetExtLogPen(nullptr), 0);
    EXPECT_EQ(pen.m_hObject, h);
    tagLOGPEN out{};
    EXPECT_EQ(CPen_E().GetLogPen(&out), 0);
}

TEST(Brushes, AreMadeInAllForms)
{
    CBitmap_E bitmap;
    bitmap.CreateCompatibleBitmap(nullptr, 8, 8);
    const tagLOGBRUSH solid{BS_SOLID, 0x00112233, 5};
    const tagLOGBRUSH hatched{BS_HATCHED, 0x00112233, HS_CROSS};
    CBrush_E indirectSolid;
    EXPECT_TRUE(indirectSolid.CreateBrushIndirect(&solid));
    CBrush_E indirectHatched;
    EXPECT_TRUE(indirectHatched.CreateBrushIndirect(&hatched));
    const struct
    {
        int line;
        const CBrush_E& brush;
        UINT style;
        ULONG_PTR hatch;
        COLORREF color;
    } rows[] = {
        {__LINE__, CBrush_E(0x00112233), BS_SOLID, 0, 0x00112233},
        {__LINE__, CBrush_E(HS_FDIAGONAL, 0x00112233), BS_HATCHED, 2, 0x00112233},
        {__LINE__, CBrush_E(77, 0x00112233), BS_NULL, 0, 0x00112233},
        {__LINE__, CBrush_E(&bitmap), BS_PATTERN, 0, 0},
        {__LINE__, indirectSolid, BS_SOLID, 0, 0x00112233},
        {__LINE__, indirectHatched, BS_HATCHED, 4, 0x00112233},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        tagLOGBRUSH out{99, 99, 99};
        EXPECT_EQ(row.brush.GetLogBrush(&out), 1);
        EXPECT_EQ(out.lbStyle, row.style);
        EXPECT_EQ(out.lbHatch, row.hatch);
        EXPECT_EQ(out.lbColor, row.color);
    }
}

TEST(Brushes, FailuresKeepTheHandle)
{
    CBrush_E brush(RGB(0, 0, 0));
    HGDIOBJ const h = brush;
    CBitmap_E empty;
    EXPECT_FALSE(brush.CreatePatternBrush(nullptr));
    EXPECT_FALSE(brush.CreatePatternBrush(&empty));
    EXPECT_FALSE(brush.CreateBrushIndirect(nullptr));
    for (UINT style : {BS_NULL, BS_PATTERN, BS_DIBPATTERN}) {
        const tagLOGBRUSH other{style, 0, 0};
        EXPECT_FALSE(brush.CreateBrushIndirect(&other)) << style;
    }
    EXPECT_EQ(brush.GetLogBrush(nullptr), 0);
    EXPECT_EQ(brush.m_hObject, h);
    tagLOGBRUSH out{};
    EXPECT_EQ(CBrush_E(&empty).GetLogBrush(&out), 0);
}

TEST(Brushes, SystemColorBrushIsTheMainFramesBackground)
{
    CBrush_E none;
    EXPECT_TRUE(none.CreateSysColorBrush(COLOR_BTNFACE));
    EXPECT_EQ(*static_cast<QBrush*>(none.m_hObject), QBrush());

    QMainWindow frame;
    frame.setObjectName(QStringLiteral("CTolmMainFrame"));
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::Window, Qt::cyan);
    palette.setColor(QPalette::Inactive, QPalette::Window, Qt::cyan);
    palette.setColor(QPalette::Disabled, QPalette::Window, Qt::magenta);
    frame.setPalette(palette);
    for (const bool enabled : {true, false}) {
        frame.setEnabled(enabled);
        CBrush_E brush;
        EXPECT_TRUE(brush.CreateSysColorBrush(COLOR_HIGHLIGHT));
        EXPECT_EQ(static_cast<QBrush*>(brush.m_hObject)->color(),
                  QColor(enabled ? Qt::cyan : Qt::magenta));
    }
}

} // namespace
