#include <VxMFCEmu/gdi.h>

namespace {

tagLOGFONT logFont(int height, int weight = FW_NORMAL, const wchar_t* face = L"DejaVu Sans")
{
    tagLOGFONT lf{height, 0, 0, 0, weight, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, {}};
    wcsncpy(lf.lfFaceName, face, LF_FACESIZE);
    return lf;
}

bool operator==(const tagLOGFONT& a, const tagLOGFONT& b) { return !memcmp(&a, &b, sizeof(a)); }

TEST(Fonts, HeightIsOfTheLineOrOfTheCharacters)
{
    for (const int height : {8, 16, 33, 100}) {
        CFont_E line;
        CFont_E characters;
        const tagLOGFONT positive = logFont(height);
        const tagLOGFONT negative = logFont(-height);
        EXPECT_TRUE(line.CreateFontIndirect(&positive));
        EXPECT_TRUE(characters.CreateFontIndirect(&negative));
        EXPECT_EQ(characters.pixelSize(), height);
        EXPECT_LE(QFontMetrics(line).height(), height);
        QFont larger = line;
        larger.setPixelSize(line.pixelSize() + 1);
        EXPECT_GT(QFontMetrics(larger).height(), height);
    }
    CFont_E font;
    for (const int height : {INT_MAX, INT_MIN, 1, -1, 0}) {
        const tagLOGFONT extreme = logFont(height);
        EXPECT_TRUE(font.CreateFontIndirect(&extreme)) << height;
        HGDIOBJ const h = font.Detach();
        EXPECT_TRUE(CGdiObject_E::FromHandle(h)->DeleteObject());
    }
    CGdiObject_E::DeleteTempMap();
    EXPECT_EQ(font.pointSizeF(), QFont().pointSizeF()) << "0 is the default size";
}

TEST(Fonts, WeightsMapToTheScaleOfQt)
{
    const struct
    {
        int lfWeight;
        int weight;
    } rows[] = {{FW_DONTCARE, 50}, {100, 0},  {200, 12}, {300, 25}, {400, 50}, {500, 57},
                {600, 63},         {700, 75}, {800, 81}, {900, 87}, {720, 75}, {5000, 87}};
    for (const auto& row : rows) {
        CFont_E font;
        const tagLOGFONT lf = logFont(-12, row.lfWeight);
        font.CreateFontIndirect(&lf);
        EXPECT_EQ(font.weight(), row.weight) << row.lfWeight;
    }
}

TEST(Fonts, KeepWhatTheyWereMadeFrom)
{
    CFont_E font;
    EXPECT_TRUE(font.CreateFont(20, 9, 450, 451, FW_BOLD, 1, 1, 1, GREEK_CHARSET, OUT_TT_PRECIS,
                                CLIP_LH_ANGLES, NONANTIALIASED_QUALITY, FF_ROMAN | VARIABLE_PITCH,
                                L"A face whose name is far longer than there is room for"));
    tagLOGFONT expected{20,
                        9,
                        450,
                        451,
                        FW_BOLD,
                        1,
                        1,
                        1,
                        GREEK_CHARSET,
                        OUT_TT_PRECIS,
                        CLIP_LH_ANGLES,
                        NONANTIALIASED_QUALITY,
                        FF_ROMAN | VARIABLE_PITCH,
                        L"A face whose name is far longer"};
    tagLOGFONT out{};
    EXPECT_EQ(font.GetLogFont(&out), 1);
    EXPECT_TRUE(out == expected);
    EXPECT_TRUE(font.italic() && font.underline() && font.strikeOut());
    EXPECT_EQ(font.styleHint(), QFont::Serif);
    EXPECT_EQ(font.styleStrategy(), QFont::NoAntialias);
    EXPECT_NE(font.stretch(), QFont(font.family()).stretch());

    font.setItalic(false); // as a QFont
    font.setPixelSize(31);
    EXPECT_EQ(font.GetLogFont(&out), 1);
    EXPECT_EQ(std::make_tuple(out.lfHeight, out.lfItalic, out.lfWeight, out.lfEscapement),
              std::make_tuple(-31, 0, FW_BOLD, 450));
    tagLOGFONT own = out;
    EXPECT_TRUE(font.CreateFontIndirect(&own));
    EXPECT_EQ(font.pixelSize(), 31);
    EXPECT_TRUE(CGdiObject_E::FromHandle(font.Detach()) != &font);
    EXPECT_EQ(font.GetLogFont(&out), 0);
}

TEST(Fonts, PointSizesAreTenths)
{
    CFont_E font;
    EXPECT_TRUE(font.CreatePointFont(95, L"DejaVu Sans"));
    EXPECT_DOUBLE_EQ(font.pointSizeF(), 9.5);
    EXPECT_EQ(font.family(), QStringLiteral("DejaVu Sans"));
    tagLOGFONT out{};
    font.GetLogFont(&out);
    EXPECT_EQ(out.lfHeight,
              -qRound(9.5 * QGuiApplication::primaryScreen()->logicalDotsPerInchY() / 72));
    HGDIOBJ const h = font;
    const tagLOGFONT lf = logFont(0);
    EXPECT_FALSE(font.CreatePointFont(0, L""));
    EXPECT_FALSE(font.CreatePointFontIndirect(&lf));
    EXPECT_FALSE(font.CreatePointFontIndirect(nullptr));
    EXPECT_FALSE(font.CreateFontIndirect(nullptr));
    EXPECT_EQ(font.GetLogFont(nullptr), 0);
    EXPECT_EQ(font.m_hObject, h);
    CFont_E null;
    EXPECT_TRUE(null.CreatePointFont(100, nullptr));
    EXPECT_EQ(null.family(), QFont().family());
}

TEST(Fonts, HandleIsAFont)
{
    CFont_E owner;
    owner.Attach(new QFont(QStringLiteral("DejaVu Sans"), 17));
    EXPECT_EQ(owner.pointSize(), 17);
    tagLOGFONT out{};
    EXPECT_EQ(owner.GetLogFont(&out), 1);
    EXPECT_STREQ(out.lfFaceName, L"DejaVu Sans");
    EXPECT_EQ(out.lfWeight, FW_NORMAL);
    HGDIOBJ const h = owner.Detach();
    EXPECT_EQ(CFont_E::FromHandle(h)->pointSize(), 17) << "the temporary object too";
    EXPECT_TRUE(CFont_E::FromHandle(h)->DeleteObject());
    CGdiObject_E::DeleteTempMap();
}

} // namespace
