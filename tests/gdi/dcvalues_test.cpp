// What the members of a device context return and keep.
#include "gdi/gditest.h"

namespace {

struct DcValues : testing::Test, Canvas
{
};

TEST_F(DcValues, Colors)
{
    dc.SelectObject(QPen(Qt::blue));
    expectAll(RGB(0, 0, 255), {dc.GetTextColor(), dc.SetTextColor(RGB(1, 2, 3))}); // of the pen
    EXPECT_EQ(dc.SetTextColor(1), RGB(1, 2, 3));
    expectAll(RGB(0xCD, 0, 0),
              {dc.SetTextColor(256), dc.SetTextColor(-1), dc.SetTextColor(CLR_NONE)});
    EXPECT_EQ(dc.GetTextColor(), QColor(Qt::blue));
    EXPECT_EQ(dc.SetBkColor(RGB(9, 8, 7)), QColor(Qt::white));
    EXPECT_EQ(dc.SetBkColor(255), QColor(9, 8, 7));
    expectAll(RGB(0xCD, 0xCD, 0xCD), {dc.SetBkColor(256), dc.GetBkColor()});
    dc.SetTextColor(Qt::green); // no index
    EXPECT_EQ(dc.SetTextColor(0x0000FFUL), Qt::green);

    // Colours compare by what they are.
    dc.SetTextColor(RGB(255, 0, 0));
    const auto text = [this] { return dc.GetTextColor(); };
    const QColor red(Qt::red);
    const VxColor own = RGB(255, 0, 0);
    expectAll(true, {text() == Qt::red, Qt::red == text(), text() != Qt::blue, text() == 255,
                     text() == red, red == text(), text() != dc.GetBkColor(), own == text(),
                     own != Qt::blue, red == own});
    expectAll(RGB(255, 0, 0), {red.isValid() ? text() : RGB(1, 2, 3)}); // has one meaning
}

TEST_F(DcValues, PalettesReplaceTheColorTable)
{
    const auto colorAt = [this](int n) {
        dc.SetTextColor(RGB(1, 2, 3));
        dc.SetTextColor(n);
        return COLORREF(dc.GetTextColor());
    };
    EXPECT_EQ(colorAt(0), RGB(0x21, 0x28, 0x30));
    CPalette_E palette;
    EXPECT_EQ(dc.SelectPalette(&palette, FALSE), &dc.m_palette);
    for (const UINT count : {3U, 1000U}) { // padded with white
        palette.ResizePalette(count);
        dc.SelectPalette(&palette, TRUE);
        EXPECT_EQ(colorAt(2), 0U);
        EXPECT_EQ(colorAt(255), count == 3 ? RGB(255, 255, 255) : 0);
        EXPECT_EQ(colorAt(256), RGB(1, 2, 3));
    }
    dc.SelectPalette(nullptr, FALSE);
    EXPECT_EQ(colorAt(1), RGB(0xCD, 0, 0));
}

// Intended: of the background mode Qt's numbers go out, those of Win32 come in.
TEST_F(DcValues, ModesAreSavedWithThePainter)
{
    expectZeros({dc.SetBkMode(TRANSPARENT), dc.SetBkMode(OPAQUE)});
    EXPECT_EQ(dc.GetBkMode(), 1);
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SaveDC();
    dc.SetMapMode(MM_TEXT);
    for (int restored = 0; restored < 2; ++restored) { // the second time nothing was saved
        dc.RestoreDC(-1);
        EXPECT_EQ(dc.GetMapMode(), MM_ANISOTROPIC);
    }
}

TEST_F(DcValues, OfOriginsAndExtents)
{
    EXPECT_EQ(dc.SetMapMode(MM_LOENGLISH), MM_TEXT);
    tagPOINT inch{100, -100}, points[] = {{0, 0}, {5, 5}};
    dc.LPtoDP(&inch);
    EXPECT_EQ(CPoint_E(inch), (CPoint_E(image.logicalDpiX(), image.logicalDpiY())));
    EXPECT_EQ(dc.SetMapMode(MM_TEXT), MM_LOENGLISH);
    dc.SetViewportOrg(10, 20);
    EXPECT_EQ(dc.OffsetViewportOrg(1, 1), (CPoint_E(10, 20)));
    dc.OffsetWindowOrg(1, 2);
    dc.LPtoDP(points, 2);
    EXPECT_EQ(CPoint_E(points[1]), (CPoint_E(15, 24)));
    dc.DPtoLP(points, 2);
    EXPECT_EQ(CPoint_E(points[0]), (CPoint_E(0, 0)));
    CRect_E rect(0, 0, 5, 5);
    CSize_E size(5, 5);
    dc.LPtoDP(&rect);
    dc.LPtoDP(&size);
    EXPECT_TRUE(rect == CRect_E(10, 19, 15, 24) && size == CSize_E(15, 24)); // as a point
    dc.SetWindowExt(3, 3);
    EXPECT_EQ(dc.GetWindowExt(), CSize_E(60, 50)); // counts in two modes only
    dc.SetMapMode(MM_ISOTROPIC);
    dc.SetWindowExt(100, 100);
    dc.SetViewportExt(60, -50);
    EXPECT_EQ(dc.GetViewportExt(), CSize_E(50, -50));
    EXPECT_EQ(dc.SetMapMode(0), 0);
}

TEST_F(DcValues, OfTheClip)
{
    CRect_E box;
    dc.SetViewportOrg(-5, 0);
    dc.IntersectClipRect(50, 10, 90, 20); // beyond the image
    EXPECT_EQ(dc.GetClipBox(&box), SIMPLEREGION);
    EXPECT_EQ(box, CRect_E(50, 10, 65, 20));
    expectAll(TRUE, {dc.PtVisible(64, 19), dc.RectVisible(&box), !dc.PtVisible(65, 19)});
    dc.IntersectClipRect(30, 30, 40, 40);
    EXPECT_EQ(dc.GetClipBox(&box), NULLREGION);
}

TEST_F(DcValues, OfTextMeasured)
{
    const QFontMetrics metrics(dc.m_painter.font());
    const CSize_E size = dc.GetOutputTextExtent(L"Width", 3);
    EXPECT_EQ(size, CSize_E(metrics.horizontalAdvance(QStringLiteral("Wid")), metrics.height()));
    tagRECT rect{0, 0, 50, 50};
    EXPECT_EQ(dc.DrawText(L"two\nlines", -1, &rect, static_cast<int>(DT_CALCRECT)),
              metrics.height()); // of one
    expectZeros({DrawTextA(nullptr, L"x", 1, &rect, 0), dc.GetTextExtent(nullptr, 5).cx});
    TEXTMETRIC measures{};
    EXPECT_TRUE(dc.GetTextMetrics(&measures));
    EXPECT_EQ(measures.tmHeight, metrics.height());
}

TEST(DrawText, QtFlagsOfWin32Flags)
{
    constexpr Row<UINT, int> kRows[] = {
        {DT_VCENTER | DT_RIGHT, Qt::AlignVCenter | Qt::AlignRight},
        {DT_SINGLELINE | DT_NOPREFIX, Qt::TextSingleLine | Qt::TextHideMnemonic},
        {DT_CENTER | DT_WORDBREAK,
         Qt::AlignCenter | Qt::TextWordWrap}, // Intended: in both directions
        {DT_BOTTOM | DT_EXPANDTABS | DT_NOCLIP | DT_CALCRECT | DT_END_ELLIPSIS, 0},
    };
    forRows(kRows, [](UINT flags, int expected) { EXPECT_EQ(ToQtTextFlag(flags), expected); });
}

} // namespace
