// The tables of the drawing subsystem against listings in other forms.
#include "gdi/gditest.h"
#include "gdi/vxdefaultpalette_p.h"

namespace {

TEST(GdiTables, Colors)
{
    // The hue wheel follows no formula: its 256 entries are known by their digest.
    const auto& palette = vx::detail::kDefaultPalette;
    const QByteArray bytes(reinterpret_cast<const char*>(palette.data()), sizeof(palette));
    EXPECT_EQ(QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex(),
              "c61f438040a55eedb0672c5ad3fe2ed5");

    const std::map<int, COLORREF> listed = {
        {4, 0xF0F0F0},  {5, 0xFFFFFF},  {13, 0xD77800}, {14, 0xFFFFFF}, {15, 0xF0F0F0},
        {16, 0xA0A0A0}, {17, 0x6D6D6D}, {20, 0xFFFFFF}, {24, 0xE1FFFF},
    };
    for (int i = -1; i < 40; ++i) // black where there is no other colour
        EXPECT_EQ(GetSysColor_E(i), listed.count(i) ? listed.at(i) : 0U) << i;
}

TEST(GdiTables, StylesOfPensAndBrushes)
{
    for (int style = PS_SOLID; style <= PS_NULL; ++style) {
        const auto expected = Qt::PenStyle((style + 1) % 6); // NoPen comes first there
        EXPECT_EQ(CPen_E::mapToQtPenStyle(style), expected);
        EXPECT_EQ(CPen_E::mapToMfcPenStyle(expected), style);
    }
    for (const int other : {-1, PS_INSIDEFRAME, PS_GEOMETRIC | PS_DASH})
        EXPECT_EQ(CPen_E::mapToQtPenStyle(other), Qt::NoPen) << other;
    EXPECT_EQ(CPen_E::mapToMfcPenStyle(Qt::CustomDashLine), PS_NULL);

    constexpr Row<Qt::BrushStyle, UINT, ULONG_PTR> kListed[] = {
        {Qt::HorPattern, 2, 0},   {Qt::VerPattern, 2, 1},   {Qt::FDiagPattern, 2, 2},
        {Qt::BDiagPattern, 2, 3}, {Qt::CrossPattern, 2, 4}, {Qt::DiagCrossPattern, 2, 5},
        {Qt::NoBrush, 1, 6},      {Qt::SolidPattern, 0, 6}, {Qt::TexturePattern, 3, 6},
        {Qt::Dense4Pattern, 0, 6}};
    forRows(kListed, [](Qt::BrushStyle qtStyle, UINT style, ULONG_PTR hatch) {
        const bool hatched = style == BS_HATCHED; // or else the hatch is none
        EXPECT_EQ(CBrush_E::mapToHatchStyle(qtStyle), std::pair(style, hatched ? hatch : 0));
        EXPECT_EQ(CBrush_E::mapToBrushStyle(int(hatch)), hatched ? qtStyle : Qt::NoBrush);
    });
    EXPECT_EQ(CBrush_E::mapToBrushStyle(-1), Qt::NoBrush);
}

TEST(GdiTables, BitDepths)
{
    using I = QImage;
    constexpr Row<int, I::Format> kListed[] = {
        {1, I::Format_Mono},     {4, I::Format_Indexed8},  {8, I::Format_Grayscale8},
        {16, I::Format_RGB16},   {32, I::Format_RGBX8888}, {24, I::Format_Invalid},
        {-1, I::Format_Invalid}, {0, I::Format_Invalid},   {64, I::Format_Invalid},
    };
    forRows(kListed, [](int depth, I::Format expected) {
        I::Format format = I::Format_Invalid;
        EXPECT_EQ(bitDepthIsCorrrect(depth, format), expected != I::Format_Invalid);
        EXPECT_EQ(format, expected);
    });
}

} // namespace
