// Objects that die or change under a device context, idle time, and arguments beyond all bounds.
#include <VxMFCEmu/VxMFCEmu.h>

#include "support/waiting.h"

#include <gmock/gmock.h>

#include <climits>

namespace {

struct Image
{
    QImage image{60, 50, QImage::Format_RGB32};
    CDC_E dc{&image};
    Image() { image.fill(Qt::white); }
};

TEST(DcSafety, ABitmapMayDieUnderAnyContext)
{
    auto bitmap = std::make_unique<CBitmap_E>();
    bitmap->CreateCompatibleBitmap(nullptr, 20, 10);
    CDC_E dc(static_cast<QImage*>(bitmap->m_hObject));
    bitmap.reset();
    dc.FillSolidRect(0, 0, 20, 10, RGB(1, 2, 3));
    EXPECT_EQ(dc.GetPixel(19, 9), RGB(1, 2, 3));
    CDC_E memory;
    CBitmap_E second;
    second.CreateCompatibleBitmap(nullptr, 20, 10);
    memory.CreateCompatibleDC(nullptr);
    memory.SelectObject(&second);
    memory.m_painter.end(); // by the caller
    second.DeleteObject();
    second.CreateCompatibleBitmap(nullptr, 20, 10);
    EXPECT_NE(memory.SelectObject(&second), nullptr);
    memory.FillSolidRect(0, 0, 20, 10, RGB(4, 5, 6));
    EXPECT_EQ(memory.GetPixel(19, 9), RGB(4, 5, 6));
}

TEST(DcSafety, SavedAttributesOutliveTheChoiceOfABitmap)
{
    CBitmap_E bitmap;
    bitmap.CreateCompatibleBitmap(nullptr, 20, 10);
    CRgn_E clip;
    clip.CreateRectRgn(0, 0, 4, 4);
    CDC_E dc;
    dc.SaveDC(); // without a device: not saved
    dc.CreateCompatibleDC(nullptr);
    dc.SelectObject(QPen(Qt::red));
    dc.SelectClipRgn(&clip);
    dc.SaveDC();
    dc.SelectClipRgn(nullptr);
    dc.SelectObject(QPen(Qt::green));
    dc.SetMapMode(MM_LOMETRIC);
    dc.SaveDC();
    dc.SelectObject(QPen(Qt::blue));
    dc.SelectObject(&bitmap);
    const struct
    {
        Qt::GlobalColor pen;
        int mode;
        bool clipped;
    } rows[] = {
        {Qt::blue, MM_LOMETRIC, false}, {Qt::green, MM_LOMETRIC, false}, {Qt::red, MM_TEXT, true}};
    for (const auto& row : rows) {
        EXPECT_EQ(dc.m_painter.pen(), QPen(row.pen));
        EXPECT_EQ(dc.GetMapMode(), row.mode);
        EXPECT_EQ(dc.GetViewportExt().cy < 0, row.mode == MM_LOMETRIC);
        EXPECT_EQ(dc.m_painter.hasClipping(), row.clipped);
        dc.RestoreDC(-1);
    }
    EXPECT_EQ(dc.GetWindowExt(), CSize_E(20, 10)); // of the bitmap
    EXPECT_FALSE(dc.PtVisible(5, 5));
}

// Such an object owns what it made, and frees it.
TEST(DcSafety, TemporaryObjectMayBecomeAnOwner)
{
    CPen_E other(PS_SOLID, 1, RGB(1, 1, 1));
    HGDIOBJ const h = other.Detach();
    CPen_E* const pTemporary = CPen_E::FromHandle(h);
    ASSERT_TRUE(pTemporary->CreatePen(PS_SOLID, 1, RGB(1, 2, 3)));
    HGDIOBJ const hNew = *pTemporary;
    CPen_E* const pSecond = CPen_E::FromHandle(h);
    EXPECT_NE(pSecond, pTemporary);
    EXPECT_EQ(pTemporary->m_hObject, hNew);
    EXPECT_EQ(CPen_E::FromHandle(hNew), pTemporary);
    CGdiObject_E::DeleteTempMap();
    EXPECT_EQ(afxMapHGDIOBJ_E()->LookupPermanent(hNew), nullptr);
    other.Attach(h);
}

TEST(DcSafety, TemporaryObjectsEndAtIdleTime)
{
    Image i;
    int handle = 0;
    CPen_E pen(PS_SOLID, 1, RGB(1, 2, 3));
    for (int round = 0; round < 2; ++round) { // the second one is cleaned up too
        i.dc.SelectObject(QPen(Qt::darkCyan));
        const HGDIOBJ h = *i.dc.SelectObject(&pen);
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
        EXPECT_EQ(i.dc.m_painter.pen(), QPen(QColor(1, 2, 3)));
    }
}

// Nothing to see: the sanitizer watches, and each of these comes back.
TEST(DcSafety, ArgumentsBeyondAllBounds)
{
    Image i;
    QImage image(9, 9, QImage::Format_RGB32);
    CDC_E source(&image);
    CBrush_E brush(RGB(1, 2, 3));
    i.dc.SelectObject(QPen(Qt::NoPen));
    for (const int n : {INT_MAX, INT_MIN, INT_MAX - 1, 1 << 30}) {
        for (const int m : {INT_MAX, INT_MIN, 1, 0, -1}) {
            const tagRECT rect{n, m, m, n};
            i.dc.Ellipse(n, n, m, m);
            i.dc.FillSolidRect(n, m, n, m, RGB(1, 2, 3));
            i.dc.PatBlt(n, m, n, m, PATCOPY);
            i.dc.BitBlt(n, m, n, m, &source, m, n, SRCCOPY);
            i.dc.StretchBlt(0, 0, 5, 5, &source, n, m, n, m, SRCCOPY);
            i.dc.TransparentBlt(n, m, m, n, &source, 0, 0, 9, 9, 0);
            i.dc.Draw3dRect(&rect, RGB(1, 2, 3), RGB(1, 2, 3));
            i.dc.Pie(&rect, {n, m}, {m, n});
            i.dc.RoundRect(&rect, {n, m});
            i.dc.DrawFocusRect(&rect);
            const int widths[] = {n, n, m};
            for (const UINT align : {TA_UPDATECP, TA_CENTER | TA_BOTTOM, TA_RIGHT | TA_UPDATECP}) {
                i.dc.SetTextAlign(align);
                i.dc.TextOut(n, m, L"abc", 3);
                i.dc.ExtTextOut(m, n, 0, nullptr, L"abc", 3, widths);
            }
            i.dc.SetViewportOrg(n, m);
            i.dc.SetWindowOrg(m, n);
            i.dc.OffsetWindowOrg(n, n);
            i.dc.SetMapMode(MM_ANISOTROPIC);
            i.dc.SetViewportExt(n, m);
            i.dc.SetWindowExt(m, n);
            i.dc.SetMapMode(MM_TEXT);
            i.dc.SetViewportOrg(0, 0);
            i.dc.SetWindowOrg(0, 0);
            CRgn_E region;
            tagRECT box{};
            EXPECT_FALSE(region.CreateEllipticRgn(n, m, ~n, ~m));
            EXPECT_FALSE(region.CreateRoundRectRgn(m, n, 5, 5, 3, 3));
            EXPECT_TRUE(region.CreateRectRgnIndirect(&rect));
            EXPECT_EQ(region.GetRgnBox(&box), SIMPLEREGION);
            region.RectInRegion(&rect);
            i.dc.FrameRgn(&region, &brush, m, n);
        }
    }
    EXPECT_EQ(i.dc.SetWindowExt(60, 50), CSize_E(60, 50));
    EXPECT_EQ(i.dc.SetViewportOrg(INT_MAX, INT_MIN), (CPoint_E(0, 0)));
    EXPECT_EQ(i.dc.GetViewportOrg(), (CPoint_E(1 << 27, -(1 << 27))));
}

TEST(DcSafety, ShapesFailWithoutADevice)
{
    CDC_E dc;
    const tagPOINT points[] = {{0, 0}, {5, 0}, {5, 5}, {0, 5}};
    const tagRECT rect{0, 0, 9, 9};
    const BOOL results[] = {
        dc.Polyline(points, 4),     dc.PolylineTo(points, 4), dc.PolyBezier(points, 4),
        dc.PolyBezierTo(points, 3), dc.Polygon(points, 4),    dc.RoundRect(&rect, {2, 2}),
        dc.Arc(&rect, {}, {}),      dc.Pie(&rect, {}, {}),    dc.Chord(&rect, {}, {})};
    EXPECT_THAT(results, testing::Each(FALSE));
    EXPECT_EQ(dc.Rectangle(&rect), 1);
    EXPECT_EQ(dc.LineTo(3, 3), 1);
}

TEST(DcSafety, ObjectsAreSelectedByTheirClass)
{
    Image i;
    CPen_E pen(PS_SOLID, 1, RGB(1, 2, 3));
    CBrush_E brush(RGB(4, 5, 6));
    CFont_E font;
    font.setPixelSize(31);
    CRgn_E region;
    region.CreateRectRgn(0, 0, 3, 3);
    CBitmap_E bitmap;
    CPalette_E palette;
    CGdiObject_E* const pStock = i.dc.SelectStockObject(BLACK_PEN);
    const QPen previous = i.dc.m_painter.pen();
    CGdiObject_E* const pPrevious = i.dc.SelectObject(static_cast<CGdiObject_E*>(&pen));
    EXPECT_EQ(*static_cast<QPen*>(pPrevious->m_hObject), previous);
    for (CGdiObject_E* p :
         {pStock, static_cast<CGdiObject_E*>(&font), static_cast<CGdiObject_E*>(&region),
          static_cast<CGdiObject_E*>(&bitmap), static_cast<CGdiObject_E*>(&palette)})
        EXPECT_EQ(i.dc.SelectObject(p), nullptr);
    EXPECT_NE(i.dc.SelectObject(static_cast<CGdiObject_E*>(&brush)), nullptr);
    EXPECT_EQ(i.dc.m_painter.pen(), QPen(QColor(1, 2, 3)));
    EXPECT_EQ(i.dc.m_painter.brush(), QBrush(QColor(4, 5, 6)));
    EXPECT_EQ(i.dc.m_painter.font().pixelSize(), 31);
    EXPECT_EQ(i.dc.m_painter.clipRegion(), QRegion(0, 0, 4, 4));
}

TEST(DcSafety, DerivedContextHandlesItsAttributes)
{
    struct Recording : CDC_E
    {
        void SetAttribDC(HDC h) override { log.push_back(h); }
        void ReleaseAttribDC() override { log.push_back(nullptr); }
        std::vector<HDC> log;
    } dc;
    int target = 0;
    EXPECT_TRUE(dc.Attach(&target));
    EXPECT_EQ(dc.m_hAttribDC, nullptr);
    EXPECT_EQ(dc.Detach(), &target);
    EXPECT_THAT(dc.log, testing::ElementsAre(&target, nullptr));
}

TEST(DcSafety, ColorsCompareByWhatTheyAre)
{
    Image i;
    i.dc.SetTextColor(RGB(255, 0, 0));
    const QColor red(Qt::red);
    EXPECT_TRUE(i.dc.GetTextColor() == Qt::red && Qt::red == i.dc.GetTextColor());
    EXPECT_TRUE(i.dc.GetTextColor() == 255 && 255 == i.dc.GetTextColor());
    EXPECT_TRUE(i.dc.GetTextColor() == red && red == i.dc.GetTextColor());
    EXPECT_TRUE(i.dc.GetTextColor() != Qt::blue && i.dc.GetTextColor() != i.dc.GetBkColor());
    const bool known = i.dc.GetBkMode() == 0;
    const COLORREF color = known ? i.dc.GetTextColor() : RGB(1, 2, 3);
    EXPECT_EQ(color, RGB(255, 0, 0));
    VxColor own = RGB(1, 2, 3);
    EXPECT_TRUE(own == QColor(1, 2, 3) && QColor(1, 2, 3) == own && own == RGB(1, 2, 3));
    own = RGB(255, 0, 0);
    EXPECT_TRUE(own == i.dc.GetTextColor() && i.dc.GetTextColor() == own && own != Qt::blue);
    auto result = i.dc.GetTextColor();
    result = RGB(0, 0, 255);
    std::vector<VxColor> colors{own, result};
    colors.push_back(RGB(0, 255, 0));
    EXPECT_EQ(colors, std::vector<VxColor>({Qt::red, 0xFF0000, QColor(Qt::green)}));
    i.dc.SetTextColor(Qt::green); // no index
    i.dc.SetBkColor(Qt::yellow);
    EXPECT_EQ(i.dc.SetTextColor(0x0000FFUL), Qt::green);
    EXPECT_EQ(i.dc.SetBkColor(0xFF0000UL), Qt::yellow);
    EXPECT_TRUE(i.dc.GetTextColor() == Qt::red && i.dc.GetBkColor() == Qt::blue);
    CRgn_E none;
    EXPECT_TRUE(none.CreateFromPath(&i.dc)); // empty without a clip
    tagRECT box{1, 1, 1, 1};
    none.GetRgnBox(&box);
    EXPECT_EQ(CRect_E(box), CRect_E(0, 0, 0, 0));
}

} // namespace
