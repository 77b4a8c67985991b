// The tables of the drawing subsystem against listings in other forms.
#include <VxMFCEmu/gdi.h>

#include "gdi/vxdefaultpalette_p.h"

namespace {

constexpr const char* kPalette =
    R"(212830 CD0000 CDCD00 00CD00 00CDCD 0000CD CD00CD FFFFFF B2B2B2 F2F2F2 CD0000 CD7F7F D70000 D75252 B10000 B13F3F
7E0000 7E2626 580000 581313 CD3F00 CD9F7F D72900 D76752 B11F00 B14F3F 7E1300 7E2F26 580900 581713 CD7F00 CDBF7F
D75200 D77C52 B13F00 B15F3F 7E2600 7E3926 581300 581C13 CDBF00 CDDF7F D77C00 D79152 B15F00 B16F3F 7E3900 7E4226
581C00 582113 CDCD00 CDCD7F D7D700 D7D752 B1B100 B1B13F 7E7E00 7E7E26 585800 585813 BFCD00 DFCD7F 7CD700 91D752
5FB100 6FB13F 397E00 427E26 1C5800 215813 7FCD00 BFCD7F 52D700 7CD752 3FB100 5FB13F 267E00 397E26 135800 1C5813
3FCD00 9FCD7F 29D700 67D752 1FB100 4FB13F 137E00 2F7E26 095800 175813 00CD00 7FCD7F 00D700 52D752 00B100 3FB13F
007E00 267E26 005800 135813 00CD3F 7FCD9F 00D729 52D767 00B11F 3FB14F 007E13 267E2F 005809 135817 00CD7F 7FCDBF
00D752 52D77C 00B13F 3FB15F 007E26 267E39 005813 13581C 00CDBF 7FCDDF 00D77C 52D791 00B15F 3FB16F 007E39 267E42
00581C 135858 00CDCD 7FCDCD 00D7A5 52D7D7 00B1B1 3FB1B1 007E7E 267E7E 005858 135858 00BFCD 7FDFCD 007CD7 5291D7
005FB1 3F6FB1 00397E 26427E 001C58 135858 007FCD 7FBFCD 0052D7 527CD7 003FB1 3F5FB1 00267E 26397E 001358 131C58
003FCD 7F9FCD 0029D7 5267D7 001FB1 3F4FB1 00137E 262F7E 000958 131758 0000CD 7F7FCD 0000D7 5252D7 0000B1 3F3FB1
00007E 26267E 000058 131358 3F00CD 9F7FCD 2900D7 6752D7 1F00B1 4F3FB1 13007E 2F267E 090058 171358 7F00CD BF7FCD
5200D7 7C52D7 3F00B1 5F3FB1 26007E 39267E 130058 1C1358 BF00CD DF7FCD 7C00D7 9152D7 5F00B1 6F3FB1 39007E 42267E
1C0058 581358 CD00CD CD7FCD A500D7 A552D7 B100B1 B13FB1 7E007E 7E267E 580058 581358 CD00BF CD7FDF D7007C D75291
B1005F B13F6F 7E0039 7E2642 58001C 581358 CD007F CD7FBF D70052 D7527C B1003F B13F5F 7E0026 7E2639 580013 58131C
CD003F CD7F9F D70029 D75267 B1001F B13F4F 7E0013 7E262F 580009 581317 3D3D3D 656565 989898 CBCBCB F4F4F4 CDCDCD)";

TEST(GdiTables, DefaultPalette)
{
    const QStringList listed = QString::fromLatin1(kPalette).simplified().split(QLatin1Char(' '));
    ASSERT_EQ(listed.size(), 256);
    for (int i = 0; i < 256; ++i) {
        const auto& [red, green, blue, flags] = vx::detail::defaultPalette()[std::size_t(i)];
        EXPECT_EQ(qRgba(red, green, blue, flags), listed[i].toUInt(nullptr, 16)) << i;
    }
}

TEST(GdiTables, SystemColors)
{
    const std::map<int, COLORREF> listed = {{4, 0x00F0F0F0},  {5, 0x00FFFFFF},  {13, 0x00D77800},
                                            {14, 0x00FFFFFF}, {15, 0x00F0F0F0}, {16, 0x00A0A0A0},
                                            {17, 0x006D6D6D}, {20, 0x00FFFFFF}, {24, 0x00E1FFFF}};
    for (int i = -1; i < 40; ++i) // black where there is no other colour
        EXPECT_EQ(GetSysColor_E(i), listed.count(i) ? listed.at(i) : 0U) << i;
    EXPECT_EQ(GetSysColor_E(COLOR_3DDKSHADOW), 0U);
}

TEST(GdiTables, PenStyles)
{
    const int listed[][2] = {{0, Qt::SolidLine},   {1, Qt::DashLine},       {2, Qt::DotLine},
                             {3, Qt::DashDotLine}, {4, Qt::DashDotDotLine}, {5, Qt::NoPen}};
    for (const auto& [style, qtStyle] : listed) {
        EXPECT_EQ(CPen_E::mapToQtPenStyle(style), qtStyle);
        EXPECT_EQ(CPen_E::mapToMfcPenStyle(Qt::PenStyle(qtStyle)), style);
    }
    for (int other : {-1, PS_INSIDEFRAME, PS_ALTERNATE, PS_GEOMETRIC | PS_DASH})
        EXPECT_EQ(CPen_E::mapToQtPenStyle(other), Qt::NoPen) << other;
    EXPECT_EQ(CPen_E::mapToMfcPenStyle(Qt::CustomDashLine), 5);
}

TEST(GdiTables, BrushStyles)
{
    const int listed[][3] = {{Qt::HorPattern, 2, 0},     {Qt::VerPattern, 2, 1},
                             {Qt::FDiagPattern, 2, 2},   {Qt::BDiagPattern, 2, 3},
                             {Qt::CrossPattern, 2, 4},   {Qt::DiagCrossPattern, 2, 5},
                             {Qt::NoBrush, 1, 0},        {Qt::SolidPattern, 0, 0},
                             {Qt::TexturePattern, 3, 0}, {Qt::Dense4Pattern, 0, 0}};
    for (const auto& [qtStyle, style, hatch] : listed) {
        EXPECT_EQ(CBrush_E::mapToHatchStyle(Qt::BrushStyle(qtStyle)),
                  (std::pair<UINT, ULONG_PTR>(style, hatch)));
        EXPECT_EQ(CBrush_E::mapToBrushStyle(style == 2 ? hatch : 6), style == 2 ? qtStyle : 0);
    }
    EXPECT_EQ(CBrush_E::mapToBrushStyle(-1), Qt::NoBrush);
}

TEST(GdiTables, BitDepths)
{
    const std::map<int, int> listed = {{1, QImage::Format_Mono},
                                       {4, QImage::Format_Indexed8},
                                       {8, QImage::Format_Grayscale8},
                                       {16, QImage::Format_RGB16},
                                       {32, QImage::Format_RGBX8888}};
    for (int depth = -1; depth <= 64; ++depth) {
        QImage::Format format = QImage::Format_Invalid;
        EXPECT_EQ(bitDepthIsCorrrect(depth, format), listed.count(depth) == 1) << depth;
        EXPECT_EQ(format, listed.count(depth) ? listed.at(depth) : QImage::Format_Invalid);
    }
}

} // namespace
