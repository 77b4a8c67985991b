// What the members of a device context return and keep; misuse of them.
#include <VxMFCEmu/VxMFCEmu.h>

#include "gdi/vxdefaultpalette_p.h"

#include <gmock/gmock.h>

namespace {

struct Image
{
    QImage image{60, 50, QImage::Format_RGB32};
    CDC_E dc{&image};
    Image() { image.fill(Qt::white); }
};

TEST(DcValues, OfMembersWithFixedResults)
{
    Image i;
    CRgn_E region;
    CRgn_E empty;
    CBrush_E brush(RGB(1, 2, 3));
    tagRECT rect{1, 2, 3, 4};
    region.CreateRectRgn(0, 0, 5, 5);
    EXPECT_EQ(i.dc.SaveDC(), 0);
    EXPECT_EQ(i.dc.RestoreDC(-1), 1);
    EXPECT_EQ(i.dc.MoveTo(1, 2), 1);
    EXPECT_EQ(i.dc.LineTo({3, 4}), 1);
    EXPECT_EQ(i.dc.GetCurrentPosition(), (CPoint_E(3, 4)));
    EXPECT_EQ(i.dc.Rectangle(&rect), 1);
    EXPECT_EQ(i.dc.PatBlt(0, 0, 3, 3, 99), 1);
    EXPECT_EQ(i.dc.SetPixel(1, 1, Qt::red), QColor(Qt::red));
    EXPECT_EQ(i.dc.FillRgn(&region, &brush), 1);
    EXPECT_EQ(i.dc.FillRgn(&empty, &brush), 0);
    EXPECT_EQ(i.dc.PaintRgn(nullptr), 0);
    EXPECT_EQ(i.dc.FrameRgn(&region, nullptr, 1, 1), 0);
    EXPECT_EQ(i.dc.InvertRgn(&empty), 0);
    EXPECT_EQ(i.dc.SelectObject(&region), 0U);
    EXPECT_EQ(i.dc.SelectObject(&empty), 0xFFFFFFFF);
    EXPECT_EQ(i.dc.SelectClipRgn(&empty, RGN_AND), 0xFFFFFFFF);
    EXPECT_EQ(i.dc.SelectClipRgn(&empty), 0);
    EXPECT_EQ(DrawEdge_E(nullptr, &rect, EDGE_RAISED, BF_RECT), 0);
    EXPECT_EQ(DrawEdge_E(&i.dc, &rect, EDGE_RAISED, BF_RECT), 1);
    EXPECT_EQ(GetDC_E(nullptr), nullptr);
    EXPECT_EQ(ReleaseDC_E(nullptr, &i), 0);
    EXPECT_EQ(GetDeviceCaps_E(&i, LOGPIXELSX), 0);
    EXPECT_EQ(i.dc.GetDeviceCaps(HORZRES), 60);
    EXPECT_EQ(i.dc.GetDeviceCaps(LOGPIXELSX), i.image.logicalDpiX());
}

// Intended: Qt's numbers go out, those of Win32 come in.
TEST(DcValues, BackgroundModeIsThatOfQt)
{
    Image i;
    EXPECT_EQ(i.dc.SetBkMode(TRANSPARENT), 0);
    EXPECT_EQ(i.dc.SetBkMode(OPAQUE), 0);
    EXPECT_EQ(i.dc.GetBkMode(), 1);
    EXPECT_EQ(i.dc.SetBkMode(7), 1);
}

TEST(DcValues, ColorsByValueAndByIndex)
{
    Image i;
    i.dc.SelectObject(QPen(Qt::blue));
    EXPECT_EQ(i.dc.GetTextColor(), QColor(Qt::blue)); // of the pen while there is none
    EXPECT_EQ(i.dc.SetTextColor(RGB(1, 2, 3)), QColor(Qt::blue));
    EXPECT_EQ(i.dc.SetTextColor(1), RGB(1, 2, 3));
    EXPECT_EQ(i.dc.SetTextColor(300), RGB(0xCD, 0, 0));
    EXPECT_EQ(i.dc.SetTextColor(-1), QColor(0xCD, 0, 0));
    EXPECT_EQ(i.dc.GetTextColor(), QColor(0xCD, 0, 0));
    EXPECT_EQ(i.dc.SetTextColor(CLR_NONE), QColor(0xCD, 0, 0));
    EXPECT_EQ(i.dc.GetTextColor(), QColor(Qt::blue));
    EXPECT_EQ(i.dc.SetBkColor(RGB(9, 8, 7)), QColor(Qt::white));
    EXPECT_EQ(i.dc.SetBkColor(255), QColor(9, 8, 7));
    EXPECT_EQ(i.dc.SetBkColor(256), QColor(0xCD, 0xCD, 0xCD));
    EXPECT_EQ(i.dc.GetBkColor(), QColor(0xCD, 0xCD, 0xCD));
    CDC_E none;
    EXPECT_EQ(none.SetTextColor(RGB(1, 1, 1)), none.SetTextColor(CLR_NONE) /* black */);
}

TEST(DcValues, PalettesReplaceTheColorTable)
{
    Image i;
    const auto colorAt = [&](int n) {
        i.dc.SetTextColor(RGB(1, 2, 3));
        i.dc.SetTextColor(n);
        return COLORREF(i.dc.GetTextColor());
    };
    for (int n = 0; n < 256; ++n) {
        const auto& entry = vx::detail::defaultPalette()[static_cast<std::size_t>(n)];
        EXPECT_EQ(colorAt(n), RGB(entry.peRed, entry.peGreen, entry.peBlue)) << n;
    }
    CPalette_E palette;
    EXPECT_EQ(i.dc.SelectPalette(&palette, FALSE), &i.dc.m_palette);
    EXPECT_EQ(colorAt(0), RGB(255, 255, 255)); // 0 entries are padded with white
    for (const UINT count : {3U, 100000U}) {
        palette.ResizePalette(count);
        i.dc.SelectPalette(&palette, TRUE);
        EXPECT_EQ(colorAt(2), 0U);
        EXPECT_EQ(colorAt(255), count == 3 ? RGB(255, 255, 255) : 0);
        EXPECT_EQ(colorAt(256), RGB(1, 2, 3));
    }
    i.dc.SelectPalette(nullptr, FALSE);
    EXPECT_EQ(colorAt(1), RGB(0xCD, 0, 0));
}

TEST(DcValues, StockObjects)
{
    const Qt::GlobalColor brushes[] = {Qt::white, Qt::lightGray, Qt::gray, Qt::darkGray, Qt::black};
    Image i;
    for (int n = 0; n <= BLACK_BRUSH; ++n) {
        EXPECT_EQ(i.dc.SelectStockObject(n), nullptr);
        EXPECT_EQ(i.dc.m_painter.brush(), QBrush(brushes[n]));
    }
    for (const int n : {NULL_BRUSH, NULL_PEN, SYSTEM_FONT, 99, -1})
        EXPECT_EQ(i.dc.SelectStockObject(n), nullptr);
    EXPECT_EQ(i.dc.m_painter.brush(), QBrush(Qt::black));
    i.dc.SelectStockObject(WHITE_PEN);
    EXPECT_EQ(i.dc.m_painter.pen(), QPen(Qt::white));
    i.dc.SelectStockObject(BLACK_PEN);
    EXPECT_EQ(i.dc.m_painter.pen(), QPen(Qt::black));
}

TEST(DcSelect, PreviousObjectRestoresWhatWas)
{
    Image i;
    const QPen first(Qt::green, 3, Qt::DashLine);
    EXPECT_EQ(i.dc.SelectObject(first), QPen(Qt::black));
    CPen_E red(PS_SOLID, 1, RGB(255, 0, 0));
    auto blue = std::make_unique<CPen_E>(PS_SOLID, 2, RGB(0, 0, 255));
    CPen_E nothing;
    CPen_E* const pFirst = i.dc.SelectObject(&red);
    EXPECT_EQ(*static_cast<QPen*>(pFirst->GetSafeHandle()), first);
    EXPECT_EQ(i.dc.SelectObject(blue.get()), &red);
    EXPECT_EQ(i.dc.SelectObject(&nothing), blue.get());
    EXPECT_EQ(i.dc.m_painter.pen().width(), 2);
    blue.reset(); // while it is selected
    CPen_E* const pBlue = i.dc.SelectObject(pFirst);
    EXPECT_EQ(i.dc.m_painter.pen(), first);
    i.dc.SelectObject(pBlue);
    EXPECT_EQ(i.dc.m_painter.pen(), QPen(QBrush(Qt::blue), 2));
    CBrush_E brush(RGB(1, 2, 3));
    CBrush_E* const pNone = i.dc.SelectObject(&brush);
    EXPECT_EQ(i.dc.SelectObject(pNone), &brush);
    EXPECT_EQ(i.dc.m_painter.brush(), QBrush());
    EXPECT_NE(i.dc.SelectObject(static_cast<CBrush_E*>(nullptr)), nullptr);
    CFont_E font;
    font.setPixelSize(33);
    const QFont old = i.dc.SelectObject(&font);
    EXPECT_EQ(i.dc.SelectObject(old).pixelSize(), 33);
    EXPECT_EQ(i.dc.SelectObject(static_cast<CFont_E*>(nullptr)), old);
}

TEST(DcSelect, BitmapsOfMemoryDeviceContexts)
{
    CDC_E memory;
    CBitmap_E empty;
    auto bitmap = std::make_unique<CBitmap_E>();
    bitmap->CreateCompatibleBitmap(nullptr, 20, 10);
    EXPECT_EQ(memory.SelectObject(bitmap.get()), nullptr); // no memory device context yet
    EXPECT_EQ(memory.CreateCompatibleDC(nullptr), TRUE);
    EXPECT_EQ(memory.CreateCompatibleDC(nullptr), FALSE);
    EXPECT_GT(memory.GetTextExtent(L"text", 4).cx, 0);
    memory.SelectObject(QPen(Qt::red));
    CBitmap_E* const pStock = memory.SelectObject(bitmap.get());
    ASSERT_NE(pStock, nullptr);
    EXPECT_EQ(memory.SelectObject(&empty), nullptr);
    memory.LineTo(30, 0);
    auto* const pImage = static_cast<QImage*>(bitmap->GetSafeHandle());
    EXPECT_EQ(pImage->pixelColor(19, 0), QColor(Qt::red)); // in place, with the pen set before
    tagRECT box{};
    EXPECT_EQ(memory.GetClipBox(&box), SIMPLEREGION);
    EXPECT_EQ(CRect_E(box), CRect_E(0, 0, 20, 10));
    bitmap.reset(); // while it is selected
    memory.LineTo(0, 9);
    EXPECT_EQ(memory.GetPixel(0, 9), RGB(255, 0, 0));
    CBitmap_E other;
    other.CreateBitmap(4, 4, 1, 1, nullptr);
    EXPECT_EQ(memory.SelectObject(&other), pStock); // stands in for the dead one
    EXPECT_EQ(memory.SelectObject(pStock), &other);
    other.DeleteObject();
    other.CreateBitmap(4, 4, 1, 4, nullptr); // a format Qt does not paint on
    EXPECT_EQ(memory.SelectObject(&other), nullptr);
    EXPECT_EQ(memory.DeleteDC(), TRUE);
    EXPECT_EQ(memory.DeleteDC(), FALSE);
}

TEST(DcSelect, ASelectedBitmapMayBeLookedAt)
{
    CDC_E memory;
    memory.CreateCompatibleDC(nullptr);
    CBitmap_E bitmap;
    bitmap.CreateCompatibleBitmap(nullptr, 8, 8);
    const auto* const pImage = static_cast<QImage*>(bitmap.m_hObject);
    CBitmap_E* const pStock = memory.SelectObject(&bitmap);
    tagBITMAP info{};
    bitmap.GetBitmap(&info);
    CBrush_E pattern(&bitmap);
    CImageList_E list;
    list.Add(&bitmap, RGB(1, 2, 3));
    memory.FillSolidRect(0, 0, 9, 9, RGB(9, 8, 7));
    EXPECT_EQ(pImage->pixelColor(3, 3), QColor(9, 8, 7));
    EXPECT_EQ(info.bmBits, pImage->constBits());
    const std::vector<quint32> pixels(64, 0x00040506);
    EXPECT_EQ(bitmap.SetBitmapBits(256, pixels.data()), 256U);
    EXPECT_EQ(memory.GetPixel(3, 3), RGB(6, 5, 4));
    CDC_E other;
    other.CreateCompatibleDC(nullptr);
    EXPECT_EQ(other.SelectObject(&bitmap), nullptr) << "one device context at a time";
    EXPECT_EQ(memory.SelectObject(pStock), &bitmap);
}

// The fourth byte of a pixel without alpha is nobody's, and 0 in what Win32 sources hand over.
TEST(DcSelect, PixelsWithoutAlphaAreOpaque)
{
    const std::vector<quint32> pixels(16, 0x00040506);
    CBitmap_E bitmap;
    bitmap.CreateCompatibleBitmap(nullptr, 4, 4);
    bitmap.SetBitmapBits(64, pixels.data());
    tagBITMAP info{};
    bitmap.GetBitmap(&info);
    EXPECT_EQ(info.bmBits, pixels.data());
    CDC_E memory;
    memory.CreateCompatibleDC(nullptr);
    memory.SelectObject(&bitmap);
    QImage target(8, 8, QImage::Format_ARGB32);
    target.fill(Qt::white);
    CDC_E dc(&target);
    EXPECT_TRUE(dc.BitBlt(0, 0, 4, 4, &memory, 0, 0, SRCCOPY));
    EXPECT_TRUE(dc.TransparentBlt(4, 4, 4, 4, &memory, 0, 0, 4, 4, RGB(0, 0, 0)));
    EXPECT_EQ(target.pixelColor(1, 1), QColor(6, 5, 4));
    EXPECT_EQ(target.pixelColor(5, 5), QColor(6, 5, 4));
    memory.DeleteDC();
    CImageList_E list;
    list.Add(&bitmap, RGB(1, 2, 3));
    EXPECT_EQ(static_cast<QImage*>(bitmap.m_hObject)->pixelColor(1, 1), QColor(6, 5, 4));
}

TEST(DcSelect, ModesAreSavedWithThePainter)
{
    Image i;
    i.dc.SetMapMode(MM_ANISOTROPIC);
    i.dc.SaveDC();
    i.dc.SetMapMode(MM_TEXT);
    i.dc.RestoreDC(-1);
    EXPECT_EQ(i.dc.GetMapMode(), MM_ANISOTROPIC);
    i.dc.RestoreDC(-1); // nothing was saved
    EXPECT_EQ(i.dc.GetMapMode(), MM_ANISOTROPIC);
}

TEST(DcCoordinates, OriginsAndExtents)
{
    Image i;
    CDC_E& dc = i.dc;
    EXPECT_EQ(dc.SetViewportOrg(10, 20), (CPoint_E(0, 0)));
    EXPECT_EQ(dc.OffsetViewportOrg(1, 1), (CPoint_E(10, 20)));
    EXPECT_EQ(dc.GetViewportOrg(), (CPoint_E(11, 21)));
    EXPECT_EQ(dc.SetWindowOrg(1, 2), (CPoint_E(0, 0)));
    tagPOINT points[] = {{0, 0}, {5, 5}};
    dc.LPtoDP(points, 2);
    EXPECT_EQ(CPoint_E(points[1]), (CPoint_E(15, 24)));
    dc.DPtoLP(points, 2);
    dc.DPtoLP(points, -1);
    dc.DPtoLP(static_cast<tagPOINT*>(nullptr), 2);
    EXPECT_EQ(CPoint_E(points[0]), (CPoint_E(0, 0)));
    tagRECT rect{0, 0, 5, 5};
    dc.LPtoDP(&rect);
    EXPECT_EQ(CRect_E(rect), CRect_E(10, 19, 15, 24));
    tagSIZE size{5, 5};
    dc.LPtoDP(&size);
    EXPECT_EQ(CSize_E(size), CSize_E(15, 24)); // mapped as a point
    EXPECT_EQ(dc.SetWindowExt(3, 3), CSize_E(60, 50));
    EXPECT_EQ(dc.GetWindowExt(), CSize_E(60, 50)); // counts in two modes only
    EXPECT_EQ(dc.SetMapMode(MM_ISOTROPIC), MM_TEXT);
    dc.SetWindowExt(100, 100);
    dc.SetViewportExt(60, -50);
    EXPECT_EQ(dc.GetViewportExt(), CSize_E(50, -50));
    EXPECT_EQ(dc.SetMapMode(MM_LOENGLISH), MM_ISOTROPIC);
    EXPECT_EQ(dc.SetMapMode(0), 0);
    dc.SetViewportOrg(0, 0);
    dc.SetWindowOrg(0, 0);
    tagPOINT inch{100, -100};
    dc.LPtoDP(&inch);
    EXPECT_EQ(CPoint_E(inch), (CPoint_E(i.image.logicalDpiX(), i.image.logicalDpiY())));
    EXPECT_EQ(dc.SetMapMode(MM_TEXT), MM_LOENGLISH);
    EXPECT_EQ(dc.GetViewportExt(), CSize_E(60, 50));
}

TEST(DcClip, BoxAndVisibility)
{
    Image i;
    tagRECT box{};
    i.dc.SetViewportOrg(-5, 0);
    EXPECT_EQ(i.dc.GetClipBox(&box), SIMPLEREGION);
    EXPECT_EQ(CRect_E(box), CRect_E(5, 0, 65, 50));
    i.dc.IntersectClipRect(10, 10, 20, 20);
    EXPECT_EQ(i.dc.GetClipBox(&box), SIMPLEREGION);
    EXPECT_EQ(CRect_E(box), CRect_E(10, 10, 20, 20));
    EXPECT_TRUE(i.dc.PtVisible(19, 19));
    EXPECT_FALSE(i.dc.PtVisible(20, 19));
    EXPECT_EQ(i.dc.GetPixel(20, 19), CLR_INVALID);
    EXPECT_TRUE(i.dc.RectVisible(&box));
    i.dc.IntersectClipRect(30, 30, 40, 40);
    EXPECT_EQ(i.dc.GetClipBox(&box), NULLREGION);
}

TEST(DcText, Measures)
{
    Image i;
    const QFontMetrics metrics(i.dc.m_painter.font());
    const CSize_E size = i.dc.GetOutputTextExtent(L"Width", 3);
    EXPECT_EQ(size, CSize_E(metrics.horizontalAdvance(QStringLiteral("Wid")), metrics.height()));
    EXPECT_EQ(i.dc.GetOutputTextExtent(CString_E(L"Wid")), size);
    EXPECT_EQ(i.dc.GetTextExtent(nullptr, 5).cx, 0);
    tagRECT rect{0, 0, 50, 50};
    EXPECT_EQ(i.dc.DrawText(L"two\nlines", -1, &rect, static_cast<int>(DT_CALCRECT)),
              metrics.height()); // of one
    EXPECT_EQ(CRect_E(rect), CRect_E(0, 0, 50, 50));
    EXPECT_EQ(DrawTextA(nullptr, L"x", 1, &rect, 0), 0);
    TEXTMETRIC measures{};
    EXPECT_TRUE(i.dc.GetTextMetrics(&measures));
    EXPECT_EQ(measures.tmHeight, metrics.height());
    EXPECT_EQ(measures.tmAscent, metrics.ascent());
}

TEST(DcText, HasItsColorWhateverThePen)
{
    for (const QPen& pen : {QPen(Qt::NoPen), QPen(QColor(0, 0, 0, 0))}) {
        Image i;
        i.dc.SelectObject(pen);
        i.dc.SetTextColor(RGB(0, 0, 0));
        tagRECT rect{0, 0, 60, 50};
        i.dc.DrawText(L"MMMM", -1, &rect, 0);
        QImage white = i.image;
        white.fill(Qt::white);
        EXPECT_NE(i.image, white);
    }
}

TEST(DcText, QtFlagsOfWin32Flags)
{
    const std::pair<UINT, int> rows[] = {
        {0, 0},
        {DT_VCENTER, Qt::AlignVCenter},
        {DT_VCENTER | DT_RIGHT, Qt::AlignVCenter | Qt::AlignRight},
        {DT_RIGHT, Qt::AlignRight},
        {DT_SINGLELINE, Qt::TextSingleLine},
        {DT_NOPREFIX, Qt::TextHideMnemonic},
        {DT_CENTER | DT_SINGLELINE, Qt::AlignCenter | Qt::TextSingleLine},
        {DT_WORDBREAK, Qt::TextWordWrap},
        {DT_BOTTOM | DT_EXPANDTABS | DT_NOCLIP | DT_CALCRECT | DT_END_ELLIPSIS, 0},
    };
    for (const auto& [flags, expected] : rows)
        EXPECT_EQ(ToQtTextFlag(flags), expected) << flags;
}

// Windows sources ask null objects.
__attribute__((no_sanitize("undefined"))) HDC handleOfNone()
{
    const CDC_E* const volatile pNone = nullptr;
    return pNone->GetSafeHdc();
}

TEST(DcHandles, AttachAndDetach)
{
    int target = 0;
    CDC_E dc;
    EXPECT_EQ(dc.Attach(nullptr), FALSE);
    EXPECT_EQ(dc.Attach(&target), TRUE);
    EXPECT_EQ(dc.m_hAttribDC, &target);
    EXPECT_EQ(CDC_E::FromHandle(&target), &dc);
    EXPECT_EQ(dc.Detach(), &target);
    EXPECT_EQ(dc.m_hAttribDC, nullptr);
    EXPECT_NE(CDC_E::FromHandle(&target), &dc);
    CDC_E::DeleteTempMap();
    EXPECT_EQ(handleOfNone(), nullptr);
}

// Nothing here may crash or be reported; no painter is there, or its device has died.
TEST(DcMisuse, WithoutADevice)
{
    QWidget* const pNone = nullptr;
    CDC_E a;
    CDC_E b(static_cast<QImage*>(nullptr));
    CDC_E c(pNone);
    CClientDC_E d(static_cast<CWnd_E*>(nullptr));
    auto pWidget = std::make_unique<QWidget>();
    CDC_E e(pWidget.get());
    pWidget.reset();
    for (CDC_E* pDC : {&a, &b, &c, static_cast<CDC_E*>(&d), &e}) {
        CPen_E pen(PS_SOLID, 1, RGB(1, 2, 3));
        CRgn_E region;
        region.CreateRectRgn(0, 0, 3, 3);
        CBrush_E brush(RGB(1, 2, 3));
        tagRECT rect{0, 0, 5, 5};
        EXPECT_NE(pDC->SelectObject(&pen), nullptr);
        pDC->SelectObject(&brush);
        pDC->SaveDC();
        pDC->RestoreDC(1);
        pDC->RestoreDC(1);
        pDC->LineTo(4, 4);
        pDC->Rectangle(static_cast<tagRECT*>(nullptr));
        pDC->Ellipse(&rect);
        pDC->FillRgn(&region, &brush);
        pDC->InvertRect(&rect);
        pDC->InvertRect(nullptr);
        pDC->InvertRgn(&region);
        pDC->SelectClipRgn(nullptr);
        pDC->ExcludeUpdateRgn(nullptr);
        pDC->DrawText(L"text", 4, nullptr, 0);
        pDC->DrawText(nullptr, 4, &rect, 0);
        pDC->ExtTextOut(0, 0, ETO_OPAQUE, nullptr, nullptr, 5, nullptr);
        pDC->SetMapMode(MM_LOMETRIC);
        pDC->SetWindowExt(0, 0);
        pDC->LPtoDP(&rect);
        pDC->DPtoLP(&rect);
        pDC->SetPixel(1, 1, RGB(1, 2, 3));
        pDC->BitBlt(0, 0, 3, 3, nullptr, 0, 0, SRCCOPY);
        pDC->TransparentBlt(0, 0, 3, 3, pDC, 0, 0, 3, 3, 0);
        pDC->DrawIcon(0, 0, nullptr);
        pDC->Polygon(nullptr, 4);
        pDC->FrameRect(&rect, nullptr);
        pDC->DrawFocusRect(nullptr);
        pDC->SelectPalette(nullptr, TRUE);
        pDC->GetClipBox(nullptr);
        pDC->GetTextMetrics(nullptr);
    }
    EXPECT_EQ(a.GetPixel(0, 0), CLR_INVALID);
}

} // namespace
