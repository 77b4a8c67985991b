// Fonts made from heights, weights and faces, and told back.
#include "gdi/gditest.h"

namespace {

struct Font : CFont_E
{
    explicit Font(int height, int weight = FW_NORMAL)
    {
        const tagLOGFONT lf{height, 0, 0, 0, weight, 0, 0, 0, 1, 0, 0, 0, 0, L"DejaVu Sans"};
        EXPECT_TRUE(CreateFontIndirect(&lf));
    }
};

// A height is that of the line or, negative, of the characters; weights map to the scale of Qt.
TEST(Fonts, HeightsAndWeights)
{
    for (const int height : {8, 33}) {
        QFont line = Font(height);
        EXPECT_EQ(Font(-height).pixelSize(), height);
        EXPECT_LE(QFontMetrics(line).height(), height);
        line.setPixelSize(line.pixelSize() + 1);
        EXPECT_GT(QFontMetrics(line).height(), height);
    }
    for (const int height : {INT_MAX, INT_MIN, 1, -1, 0})
        EXPECT_EQ(Font(height).pointSizeF() == QFont().pointSizeF(), height == 0) << height;

    constexpr Row<int, int> kRows[] = {
        {FW_DONTCARE, 50}, {100, 0}, {300, 25}, {700, 75}, {720, 75}, {5000, 87},
    };
    forRows(kRows, [](int win, int qt) { EXPECT_EQ(Font(-12, win).weight(), qt); });
}

TEST(Fonts, KeepWhatTheyWereMadeFrom)
{
    CFont_E font;
    EXPECT_TRUE(font.CreateFont(20, 9, 450, 451, FW_BOLD, 1, 1, 1, GREEK_CHARSET, OUT_TT_PRECIS,
                                CLIP_LH_ANGLES, NONANTIALIASED_QUALITY, FF_ROMAN,
                                L"A face whose name is far longer than there is room for"));
    tagLOGFONT out{};
    EXPECT_EQ(font.GetLogFont(&out), 1);
    EXPECT_STREQ(out.lfFaceName, L"A face whose name is far longer");
    EXPECT_EQ(std::tuple(out.lfHeight, out.lfWidth, out.lfOrientation, out.lfCharSet),
              std::tuple(20, 9, 451, GREEK_CHARSET));
    EXPECT_TRUE(font.italic() && font.underline() && font.strikeOut());
    EXPECT_EQ(font.styleHint(), QFont::Serif);
    EXPECT_EQ(font.styleStrategy(), QFont::NoAntialias);
    EXPECT_NE(font.stretch(), QFont(font.family()).stretch());
    font.setItalic(false); // as a QFont
    font.setPixelSize(31);
    font.GetLogFont(&out);
    EXPECT_EQ(std::tuple(out.lfHeight, out.lfItalic, out.lfWeight, out.lfEscapement),
              std::tuple(-31, 0, FW_BOLD, 450));
}

TEST(Fonts, PointSizesAreTenthsAndFailuresKeepTheHandle)
{
    CFont_E font;
    EXPECT_TRUE(font.CreatePointFont(95, L"DejaVu Sans"));
    EXPECT_DOUBLE_EQ(font.pointSizeF(), 9.5);
    tagLOGFONT out{};
    font.GetLogFont(&out);
    EXPECT_EQ(out.lfHeight,
              -qRound(9.5 * QGuiApplication::primaryScreen()->logicalDotsPerInchY() / 72));
    const HGDIOBJ h = font;
    expectZeros({font.CreatePointFont(0, L""), font.CreatePointFontIndirect(nullptr),
                 font.CreateFontIndirect(nullptr), CFont_E().GetLogFont(&out)});
    EXPECT_EQ(font.m_hObject, h);
    EXPECT_DOUBLE_EQ(CFont_E::FromHandle(font.Detach())->pointSizeF(), 9.5) << "the temporary one";
    CFont_E attached;
    attached.Attach(h);
    EXPECT_EQ(attached.GetLogFont(&out), 1);
    EXPECT_STREQ(out.lfFaceName, L"DejaVu Sans");
    EXPECT_TRUE(attached.CreatePointFont(100, nullptr));
    EXPECT_EQ(attached.family(), QFont().family());
    EXPECT_TRUE(CFont_E::FromHandle(h)->DeleteObject());
    CGdiObject_E::DeleteTempMap();
}

} // namespace
