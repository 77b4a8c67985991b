// Bitmaps that are selected, objects that die or change under a device context, and misuse.
#include "gdi/gditest.h"

namespace {

/// A memory device context and a bitmap for it.
struct Memory : testing::Test
{
    Memory() { dc.CreateCompatibleDC(nullptr); }
    QImage& image() const { return valueOf<QImage>(bitmap); }

    Bitmap bitmap{20, 10, Qt::white};
    CDC_E dc;
};

TEST_F(Memory, BitmapsMayChangeAndDie)
{
    CBitmap_E other;
    EXPECT_EQ(dc.CreateCompatibleDC(nullptr), FALSE) << "is one";
    dc.SelectObject(QPen(Qt::red));
    CBitmap_E* const pStock = dc.SelectObject(&bitmap);
    dc.LineTo(30, 0);
    EXPECT_EQ(image().pixelColor(19, 0), QColor(Qt::red)) << "in place, with the pen set before";
    bitmap.DeleteObject(); // while it is selected
    dc.LineTo(0, 9);
    EXPECT_EQ(dc.GetPixel(0, 9), RGB(255, 0, 0));
    other.CreateBitmap(4, 4, 1, 1, nullptr);
    EXPECT_EQ(dc.SelectObject(&other), pStock) << "stands in for the dead one";
    EXPECT_EQ(dc.SelectObject(pStock), &other);
    other.DeleteObject();
    other.CreateBitmap(4, 4, 1, 4, nullptr); // a format Qt does not paint on
    EXPECT_EQ(dc.SelectObject(&other), nullptr);
    bitmap.CreateCompatibleBitmap(nullptr, 20, 10);
    dc.SelectObject(&bitmap);
    dc.m_painter.end(); // by the caller
    bitmap.DeleteObject();
    bitmap.CreateCompatibleBitmap(nullptr, 20, 10);
    EXPECT_NE(dc.SelectObject(&bitmap), nullptr);
    EXPECT_TRUE(dc.DeleteDC() && !dc.DeleteDC());
}

TEST_F(Memory, SelectedBitmapMayBeLookedAtAndIsOpaque)
{
    const std::vector<quint32> pixels(200, 0x00040506);
    const uchar* const pBits = image().constBits();
    CBitmap_E* const pStock = dc.SelectObject(&bitmap);
    tagBITMAP info{};
    bitmap.GetBitmap(&info);
    CBrush_E pattern(&bitmap);
    CImageList_E list;
    list.Add(&bitmap, RGB(1, 2, 3));
    dc.FillSolidRect(0, 0, 9, 9, RGB(9, 8, 7));
    EXPECT_EQ(image().pixelColor(3, 3), QColor(9, 8, 7));
    EXPECT_TRUE(info.bmBits == pBits && image().constBits() == pBits);
    EXPECT_EQ(bitmap.SetBitmapBits(800, pixels.data()), 800U);
    EXPECT_EQ(dc.GetPixel(3, 3), RGB(6, 5, 4));
    CDC_E other;
    other.CreateCompatibleDC(nullptr);
    EXPECT_EQ(other.SelectObject(&bitmap), nullptr) << "one device context at a time";
    dc.SelectObject(pStock);

    // The fourth byte of a pixel without alpha is nobody's, and 0 in what Win32 sources hand over.
    bitmap.SetBitmapBits(800, pixels.data());
    EXPECT_EQ(static_cast<const void*>(image().constBits()), pixels.data());
    dc.SelectObject(&bitmap);
    QImage target(8, 8, QImage::Format_ARGB32);
    target.fill(Qt::white);
    CDC_E onTarget(&target);
    EXPECT_TRUE(onTarget.BitBlt(0, 0, 4, 4, &dc, 0, 0, SRCCOPY));
    EXPECT_TRUE(onTarget.TransparentBlt(4, 4, 4, 4, &dc, 0, 0, 4, 4, RGB(0, 0, 0)));
    dc.DeleteDC();
    list.Add(&bitmap, RGB(1, 2, 3));
    for (const QRgb pixel : {target.pixel(1, 1), target.pixel(5, 5), image().pixel(1, 1)})
        EXPECT_EQ(pixel, qRgb(6, 5, 4));
}

TEST_F(Memory, SavedAttributesOutliveTheChoiceOfABitmap)
{
    RectRgn clip(0, 0, 4, 4);
    dc.DeleteDC();
    dc.SaveDC(); // without a device: not saved
    dc.CreateCompatibleDC(nullptr);
    dc.SelectObject(QPen(Qt::red));
    dc.SelectClipRgn(&clip);
    dc.SaveDC();
    dc.SelectClipRgn(nullptr);
    dc.SelectObject(QPen(Qt::green));
    dc.SetMapMode(MM_LOMETRIC);
    dc.SelectObject(&bitmap);
    EXPECT_EQ(dc.m_painter.pen(), QPen(Qt::green));
    EXPECT_TRUE(dc.GetViewportExt().cy < 0 && !dc.m_painter.hasClipping());
    dc.RestoreDC(-1);
    EXPECT_EQ(dc.m_painter.pen(), QPen(Qt::red));
    EXPECT_EQ(dc.GetMapMode(), MM_TEXT);
    EXPECT_EQ(dc.GetWindowExt(), CSize_E(20, 10)); // of the bitmap
    EXPECT_FALSE(dc.PtVisible(5, 5));
}

TEST(DcSafety, TemporaryObjectsEndAtIdleTime)
{
    Canvas c;
    int handle = 0;
    CPen_E pen(PS_SOLID, 1, RGB(1, 2, 3));
    for (int round = 0; round < 2; ++round) { // the second one is cleaned up too
        c.dc.SelectObject(QPen(Qt::darkCyan));
        const HGDIOBJ h = *c.dc.SelectObject(&pen);
        CDC_E::FromHandle(&handle);
        CImageList_E::FromHandle(&handle);
        EXPECT_NE(afxMapHGDIOBJ_E()->LookupTemporary(h), nullptr);
        EXPECT_TRUE(vxtest::waitUntil([h, &handle] {
            QTimer::singleShot(1, [] {}); // to wait for
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            return !afxMapHGDIOBJ_E()->LookupTemporary(h) &&
                   !afxMapHDC_E()->LookupTemporary(&handle) &&
                   !afxMapHIMAGELIST_E(FALSE)->LookupTemporary(&handle);
        }));
        EXPECT_EQ(c.dc.m_painter.pen(), QPen(QColor(1, 2, 3)));
    }
}

// Nothing to see: the sanitizer watches, and each of these comes back.
TEST(DcSafety, ArgumentsBeyondAllBounds)
{
    Canvas c, source;
    CDC_E& dc = c.dc;
    CBrush_E brush(RGB(1, 2, 3));
    dc.SelectObject(QPen(Qt::NoPen));
    for (const int n : {INT_MAX, INT_MIN, INT_MAX - 1, 1 << 30}) {
        for (const int m : {INT_MAX, INT_MIN, 1, 0, -1}) {
            const tagRECT rect{n, m, m, n};
            dc.BitBlt(n, m, n, m, &source.dc, m, n, SRCCOPY);
            dc.StretchBlt(0, 0, 5, 5, &source.dc, n, m, n, m, SRCCOPY);
            dc.Draw3dRect(&rect, RGB(1, 2, 3), RGB(1, 2, 3));
            dc.Pie(&rect, {n, m}, {m, n});
            const int widths[] = {n, n, m};
            for (const UINT align : {TA_CENTER | TA_BOTTOM, TA_RIGHT | TA_UPDATECP}) {
                dc.SetTextAlign(align);
                dc.ExtTextOut(m, n, 0, nullptr, L"abc", 3, widths);
            }
            dc.SaveDC();
            dc.SetViewportOrg(n, m);
            dc.SetMapMode(MM_ANISOTROPIC);
            dc.SetWindowExt(m, n);
            dc.RestoreDC(-1);
            CRgn_E region;
            expectZeros({region.CreateEllipticRgn(n, m, ~n, ~m),
                         region.CreateRoundRectRgn(m, n, 5, 5, 3, 3)});
            EXPECT_TRUE(region.CreateRectRgnIndirect(&rect));
            dc.FrameRgn(&region, &brush, m, n);
        }
    }
    EXPECT_EQ(dc.SetViewportOrg(INT_MAX, INT_MIN), (CPoint_E(0, 0)));
    EXPECT_EQ(dc.GetViewportOrg(), (CPoint_E(1 << 27, -(1 << 27))));
}

// Windows sources ask null objects.
__attribute__((no_sanitize("undefined"))) HDC handleOfNone()
{
    const CDC_E* const volatile pNone = nullptr;
    return pNone->GetSafeHdc();
}

TEST(DcHandles, AttachAndDetach)
{
    struct Recording : CDC_E
    {
        void SetAttribDC(HDC h) override { log.push_back(h); }
        void ReleaseAttribDC() override { log.push_back(m_hDC); }
        std::vector<HDC> log;
    } derived;
    int target = 0;
    EXPECT_TRUE(!derived.Attach(nullptr) && derived.Attach(&target));
    EXPECT_EQ(CDC_E::FromHandle(&target), &derived);
    EXPECT_EQ(derived.Detach(), &target);
    EXPECT_THAT(derived.log, testing::ElementsAre(&target, &target));
    EXPECT_EQ(handleOfNone(), nullptr);
}

// Without a painter, or on a device that has died, nothing may crash or be reported; most results
// are the same on an image.
TEST(DcResults, WithAndWithoutADevice)
{
    Canvas image;
    auto pWidget = std::make_unique<QWidget>();
    CDC_E none, noImage(static_cast<QImage*>(nullptr)), dead(pWidget.get());
    CClientDC_E noWindow(static_cast<CWnd_E*>(nullptr));
    CPaintDC_E noPaint(static_cast<CWnd_E*>(nullptr));
    pWidget.reset();
    CPen_E pen(PS_SOLID, 1, RGB(1, 2, 3));
    CBrush_E brush(RGB(1, 2, 3));
    RectRgn region(0, 0, 3, 3);
    CRgn_E empty;
    tagRECT rect{0, 0, 5, 5}, *const pNone = nullptr;
    const std::reference_wrapper<CDC_E> all[] = {none, noImage, noWindow, noPaint, dead, image.dc};
    for (CDC_E& dc : all) {
        EXPECT_NE(dc.SelectObject(&pen), nullptr);
        dc.SelectObject(&brush);
        dc.InvertRect(&rect);
        dc.SetWindowExt(0, 0);
        dc.ExtTextOut(0, 0, ETO_OPAQUE, nullptr, nullptr, 5, nullptr);
        EXPECT_EQ(dc.SetPixel(1, 1, Qt::red), QColor(Qt::red));
        expectZeros({dc.SaveDC(), dc.Rectangle(pNone), dc.Polygon(nullptr, 4),
                     dc.BitBlt(0, 0, 3, 3, nullptr, 0, 0, SRCCOPY), dc.DrawIcon(0, 0, nullptr),
                     dc.GetTextMetrics(nullptr), dc.DrawEdge(nullptr, EDGE_RAISED, BF_RECT),
                     GetDeviceCaps_E(&dc, LOGPIXELSX), dc.SelectClipRgn(nullptr),
                     dc.SelectClipRgn(&empty), dc.ExcludeUpdateRgn(nullptr), dc.PaintRgn(&empty),
                     dc.InvertRgn(&region), dc.GetClipBox(nullptr), dc.RectVisible(nullptr)});
        expectAll(1, {dc.RestoreDC(-1), dc.RestoreDC(-1), dc.SetMapMode(MM_LOMETRIC),
                      dc.LineTo({3, 4}), dc.Rectangle(&rect), dc.PatBlt(0, 0, 3, 3, 99),
                      dc.FillRgn(&region, &brush), dc.DrawText(L"text", 4, nullptr, 0) > 0,
                      dc.DrawText(nullptr, 4, &rect, 0) > 0});
        expectAll(GDI_ERROR, {dc.SelectObject(&empty), dc.SelectClipRgn(&empty, RGN_AND)});
        EXPECT_EQ(dc.GetCurrentPosition(), CPoint_E(3, 4));
    }
    constexpr tagPOINT kPoints[] = {{0, 0}, {5, 0}, {5, 5}, {0, 5}};
    expectZeros({none.Polyline(kPoints, 4), none.PolyBezier(kPoints, 4), none.RoundRect(&rect, {}),
                 none.Pie(&rect, {}, {}), none.BitBlt(0, 0, 3, 3, &dead, 0, 0, SRCCOPY),
                 none.TransparentBlt(0, 0, 3, 3, &image.dc, 0, 0, 3, 3, 0),
                 none.TextOut(0, 0, L"a", 1), none.GetClipBox(&rect), none.GetDeviceCaps(HORZRES)});
    EXPECT_EQ(none.GetPixel(0, 0), CLR_INVALID);
    std::vector<int> caps;
    for (const int nIndex : {TECHNOLOGY, HORZSIZE, VERTSIZE, HORZRES, VERTRES, BITSPIXEL, PLANES,
                             LOGPIXELSX, LOGPIXELSY, -1})
        caps.push_back(image.dc.GetDeviceCaps(nIndex));
    const QImage& device = image.image;
    EXPECT_THAT(caps,
                testing::ElementsAre(DT_RASDISPLAY, device.widthMM(), device.heightMM(), 60, 50, 32,
                                     1, device.logicalDpiX(), device.logicalDpiY(), 0));
}

} // namespace
