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

    EXPECT_EQ(GetSysColor_E(COLOR_HIGHLIGHT), 0xD77800U);
    expectZeros({GetSysColor_E(-1), GetSysColor_E(COLOR_WINDOWTEXT), GetSysColor_E(1000)});
}

TEST(GdiTables, StylesOfPensAndBrushes)
{
    for (int style = PS_SOLID; style <= PS_NULL; ++style) {
        const auto expected = Qt::PenStyle((style + 1) % 6); // NoPen comes first there
        EXPECT_EQ(CPen_E::mapToQtPenStyle(style), expected);
        EXPECT_EQ(CPen_E::mapToMfcPenStyle(expected), style);
    }
    EXPECT_EQ(CPen_E::mapToQtPenStyle(PS_GEOMETRIC | PS_DASH), Qt::NoPen);
    EXPECT_EQ(CPen_E::mapToMfcPenStyle(Qt::CustomDashLine), PS_NULL);

    constexpr Row<Qt::BrushStyle, UINT, ULONG_PTR> kListed[] = {
        {Qt::HorPattern, 2, 0},   {Qt::VerPattern, 2, 1},     {Qt::FDiagPattern, 2, 2},
        {Qt::BDiagPattern, 2, 3}, {Qt::CrossPattern, 2, 4},   {Qt::DiagCrossPattern, 2, 5},
        {Qt::NoBrush, 1, 6},      {Qt::TexturePattern, 3, 6}, {Qt::Dense4Pattern, 0, 6}};
    forRows(kListed, [](Qt::BrushStyle qtStyle, UINT style, ULONG_PTR hatch) {
        const bool hatched = style == BS_HATCHED; // or else the hatch is none
        EXPECT_EQ(CBrush_E::mapToHatchStyle(qtStyle), std::pair(style, hatched ? hatch : 0));
        EXPECT_EQ(CBrush_E::mapToBrushStyle(int(hatch)), hatched ? qtStyle : Qt::NoBrush);
    });
}

} // namespace
