// The same picture drawn through a device context and by hand with a painter.
#include "gdi/gditest.h"

namespace {

QRect corners(int l, int t, int r, int b) { return {QPoint(l, t), QPoint(r, b)}; }

QImage canvas(QImage::Format format)
{
    QImage image(60, 50, format);
    image.fill(Qt::white);
    QPainter(&image).fillRect(20, 20, 40, 30, QColor(200, 120, 40)); // something to combine with
    return image;
}

using Case = Row<int, std::function<void(CDC_E&)>, std::function<void(QPainter&)>>;

CRgn_E& lShape()
{
    static CRgn_E region;
    if (!region.GetSafeHandle())
        region.Attach(new QRegion(QRegion(5, 5, 30, 10) + QRegion(5, 15, 10, 20)));
    return region;
}
const QRegion& lRegion() { return valueOf<QRegion>(lShape()); }

CBrush_E& green()
{
    static CBrush_E brush(RGB(0, 160, 0));
    return brush;
}
const QColor kGreen(0, 160, 0);

void fillPath(QPainter& p, const QBrush& brush)
{
    QPainterPath path;
    path.addRegion(lRegion());
    p.fillPath(path, brush);
}

tagRECT rect(int l, int t, int r, int b) { return {l, t, r, b}; }

const tagPOINT kPoints[] = {{3, 3}, {40, 8}, {10, 40}, {30, 2}, {35, 45}, {50, 10}, {55, 48}};
const auto* const kQPoints = reinterpret_cast<const QPoint*>(kPoints);

const QString kText = QStringLiteral("Two\nlines");
constexpr wchar_t kWide[] = L"Two\nlines";

using C = CDC_E;
using P = QPainter;

// The image is turned: logical (x, y) is at (60 - x, 50 - y), or y alone runs against the device.
void turn(CDC_E& dc, bool inX = false)
{
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetViewportExt(inX ? -60 : 60, -50);
    dc.SetViewportOrg(inX ? 60 : 0, 50);
}

QImage arrow() // looks different when it is mirrored
{
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(Qt::yellow);
    QPainter(&image).drawLine(0, 0, 9, 3);
    return image;
}

// clang-format off
const Case kCases[] = {
    // Lines and shapes
    {__LINE__, [](C& c) { c.Rectangle(4, 5, 30, 20); auto r = rect(32, 22, 50, 40); c.Rectangle(&r); },
               [](P& p) { p.drawRect(corners(4, 5, 29, 19)); p.drawRect(corners(32, 22, 49, 39)); }},
    {__LINE__, [](C& c) { auto r = rect(4, 5, 30, 20); c.Ellipse(&r); c.Ellipse(20, 22, 30, 20); },
               [](P& p) { p.drawEllipse(corners(4, 5, 29, 19)); p.drawEllipse(corners(20, 22, 49, 41)); }},
    {__LINE__, [](C& c) { c.Polyline(kPoints, 4); c.Polygon(kPoints + 3, 4); },
               [](P& p) { p.drawPolyline(kQPoints, 4); p.drawPolygon(kQPoints + 3, 4, Qt::OddEvenFill); }},
    {__LINE__, [](C& c) { c.SetPolyFillMode(WINDING); c.SelectObject(&green()); c.Polygon(kPoints, 7); },
               [](P& p) { p.setBrush(kGreen); p.drawPolygon(kQPoints, 7, Qt::WindingFill); }},
    {__LINE__, [](C& c) { c.MoveTo(3, 3); c.PolyBezierTo(kPoints + 1, 6); c.PolylineTo(kPoints, 2); c.LineTo(0, 49); },
               [](P& p) { QPainterPath b(kQPoints[0]);
                          b.cubicTo(kQPoints[1], kQPoints[2], kQPoints[3]); b.cubicTo(kQPoints[4], kQPoints[5], kQPoints[6]); p.drawPath(b);
                          p.drawLine(55, 48, 3, 3); p.drawLine(3, 3, 40, 8); p.drawLine(40, 8, 0, 49); }},
    {__LINE__, [](C& c) { c.Arc(10, 10, 30, 30, 40, 20, 20, 0); c.Pie(30, 20, 50, 40, 20, 30, 40, 60); },
               [](P& p) { p.drawArc(10, 10, 20, 20, 0, 90 * 16); p.drawPie(30, 20, 20, 20, 180 * 16, 90 * 16); }},
    {__LINE__, [](C& c) { c.SetArcDirection(AD_CLOCKWISE); c.Chord(10, 10, 30, 30, 40, 20, 20, 0); c.RoundRect(4, 5, 30, 20, 8, 6); },
               [](P& p) { p.drawChord(10, 10, 20, 20, 90 * 16, 270 * 16); p.drawRoundedRect(corners(4, 5, 29, 19), 4, 3); }},
    {__LINE__, [](C& c) { c.SelectObject(QPen(Qt::blue, 3)); c.SetPixel(8, 8, Qt::red); c.MoveTo(0, 0); c.LineTo(20, 0); },
               [](P& p) { p.setPen(Qt::red); p.drawPoint(8, 8); p.setPen(Qt::blue); p.drawLine(0, 0, 20, 0); }},
    {__LINE__, [](C& c) { auto r = rect(5, 6, 40, 30); c.DrawEdge(&r, EDGE_RAISED, BF_TOP | BF_RIGHT); r.left = 9; c.DrawEdge(&r, 0, BF_LEFT | BF_BOTTOM); },
               [](P& p) { p.drawLine(5, 6, 40, 6); p.drawLine(40, 30, 40, 6); p.drawLine(9, 6, 9, 30); p.drawLine(9, 30, 40, 30); }},
    // Stock objects. Those that there are none of leave what was.
    {__LINE__, [](C& c) { for (int n = -1; n <= SYSTEM_FONT; ++n) { EXPECT_EQ(c.SelectStockObject(n), nullptr); c.Rectangle(4 * n, 0, 4 * n + 4, 9); } },
               [](P& p) { const Qt::GlobalColor brushes[] = {Qt::white, Qt::lightGray, Qt::gray, Qt::darkGray, Qt::black};
                          for (int n = 0; n <= SYSTEM_FONT; ++n) { p.setBrush(brushes[qMin(n, 4)]); p.setPen(n == WHITE_PEN ? Qt::white : Qt::black); p.drawRect(corners(4 * n, 0, 4 * n + 3, 8)); } }},
    // Fills
    {__LINE__, [](C& c) { c.FillSolidRect(5, 6, 20, 10, kGreen); auto r = rect(30, 6, 40, 16); c.FillSolidRect(&r, RGB(255, 0, 0)); c.FillRect(&r, nullptr); },
               [](P& p) { p.fillRect(corners(5, 6, 24, 15), kGreen); p.fillRect(corners(30, 6, 39, 15), Qt::red); }},
    {__LINE__, [](C& c) { c.Draw3dRect(5, 6, 20, 10, Qt::red, Qt::blue); },
               [](P& p) { p.fillRect(5, 6, 19, 1, Qt::red); p.fillRect(5, 6, 1, 9, Qt::red); p.fillRect(24, 6, 1, 10, Qt::blue); p.fillRect(5, 15, 20, 1, Qt::blue); }},
    {__LINE__, [](C& c) { auto r = rect(5, 6, 25, 16); c.FrameRect(&r, &green()); c.Rectangle(30, 6, 40, 16); },
               [](P& p) { p.setBrush(kGreen); p.drawRect(corners(5, 6, 24, 15)); p.drawRect(corners(30, 6, 39, 15)); }},
    {__LINE__, [](C& c) { c.SelectObject(&green()); c.PatBlt(5, 6, 9, 9, BLACKNESS); c.PatBlt(20, 6, 9, 9, WHITENESS); c.PatBlt(5, 30, 9, 9, PATCOPY); c.PatBlt(30, 6, 20, 20, PATINVERT); },
               [](P& p) { p.setBrush(Qt::black); p.drawRect(5, 6, 9, 9); p.setBrush(Qt::white); p.drawRect(20, 6, 9, 9); p.setBrush(kGreen); p.drawRect(5, 30, 9, 9);
                          p.setCompositionMode(P::RasterOp_SourceXorDestination); p.drawRect(30, 6, 20, 20); }},
    // A region is filled rectangle by rectangle; the pixels are those of the path of them all.
    {__LINE__, [](C& c) { c.OffsetClipRgn(7, 3); c.SelectObject(QBrush(Qt::red, Qt::DiagCrossPattern)); c.PaintRgn(&lShape()); },
               [](P& p) { p.translate(7, 3); fillPath(p, QBrush(Qt::red, Qt::DiagCrossPattern)); }},
    {__LINE__, [](C& c) { c.m_painter.scale(1.3, 0.7); c.FillRgn(&lShape(), &green()); c.PaintRgn(&lShape()); },
               [](P& p) { p.scale(1.3, 0.7); fillPath(p, kGreen); }},
    {__LINE__, [](C& c) { c.FrameRgn(&lShape(), &green(), 3, 2); },
               [](P& p) { p.fillRect(2, 3, 36, 34, kGreen); p.drawImage(5, 5, canvas(QImage::Format_RGB32), 5, 5, 30, 30); }},
    {__LINE__, [](C& c) { c.InvertRgn(&lShape()); c.FillSolidRect(0, 0, 60, 50, Qt::red); },
               [](P& p) { p.setClipRegion(lRegion()); p.fillRect(0, 0, 60, 50, Qt::white); p.fillRect(0, 0, 60, 50, Qt::cyan); }},
    // Text, in its colour whatever the pen. A plain pen is left behind; the format holds Qt flags.
    {__LINE__, [](C& c) { c.SelectObject(QPen(Qt::blue, 3)); c.SetTextColor(RGB(255, 0, 0)); auto r = rect(2, 2, 50, 40); c.DrawText(kWide, -1, &r, Qt::AlignRight); c.Rectangle(1, 1, 58, 48); },
               [](P& p) { p.setPen(Qt::red); p.drawText(corners(2, 2, 49, 39), Qt::AlignRight, kText); p.setPen(Qt::blue); p.drawRect(corners(1, 1, 57, 47)); }},
    {__LINE__, [](C& c) { auto r = rect(2, 2, 50, 40); c.SelectObject(QPen(Qt::blue, 3)); DrawTextA(&c, kWide, 3, &r, 0); DrawTextW(&c, L"Whole", 1, &r, Qt::AlignBottom); c.LineTo(30, 49); },
               [](P& p) { p.setPen(Qt::blue); p.drawText(corners(2, 2, 49, 39), 0, QStringLiteral("Two")); p.drawText(corners(2, 2, 49, 39), Qt::AlignBottom, QStringLiteral("Whole")); p.drawLine(0, 0, 30, 49); }},
    {__LINE__, [](C& c) { auto r = rect(0, 0, 60, 50); c.SetTextColor(RGB(0, 0, 0)); c.SelectObject(QPen(Qt::NoPen)); c.DrawText(kWide, -1, &r, 0); c.SelectObject(QPen(Qt::transparent)); c.DrawText(kWide, -1, &r, Qt::AlignRight); },
               [](P& p) { p.drawText(corners(0, 0, 59, 49), 0, kText); p.drawText(corners(0, 0, 59, 49), Qt::AlignRight, kText); }},
    {__LINE__, [](C& c) { c.SetBkMode(OPAQUE); c.SetBkColor(RGB(255, 255, 0)); c.SetTextColor(RGB(0, 0, 255)); c.TextOut(4, 5, L"abcdef", 3); c.LineTo(9, 49); },
               [](P& p) { p.setBackgroundMode(Qt::OpaqueMode); p.setBackground(Qt::yellow); p.setPen(Qt::blue); p.drawText(4, 5 + p.fontMetrics().ascent(), QStringLiteral("abc")); p.setPen(Qt::black); p.drawLine(0, 0, 9, 49); }},
    {__LINE__, [](C& c) { c.SetTextAlign(TA_CENTER | TA_BASELINE); c.TextOut(30, 20, CString_E(L"ab")); c.SetTextAlign(TA_RIGHT | TA_BOTTOM); c.TextOut(30, 45, CString_E(L"ab")); },
               [](P& p) { const int w = p.fontMetrics().horizontalAdvance(QStringLiteral("ab")); p.drawText(30 - w / 2, 20, QStringLiteral("ab")); p.drawText(30 - w, 45 - p.fontMetrics().descent(), QStringLiteral("ab")); }},
    {__LINE__, [](C& c) { const int dx[] = {20, 9}; auto r = rect(2, 2, 25, 40); c.SetBkColor(RGB(255, 255, 0)); c.ExtTextOut(4, 5, ETO_OPAQUE | ETO_CLIPPED, &r, L"WW", 2, dx); c.SetTextAlign(TA_UPDATECP); c.MoveTo(1, 30); c.ExtTextOut(0, 0, 0, nullptr, L"ab", 2, dx); c.LineTo(59, 30); },
               [](P& p) { p.fillRect(2, 2, 23, 38, Qt::yellow); p.setClipRect(2, 2, 23, 38); const int a = p.fontMetrics().ascent(); p.drawText(4, 5 + a, QStringLiteral("W")); p.drawText(24, 5 + a, QStringLiteral("W"));
                          p.setClipping(false); p.drawText(1, 30 + a, QStringLiteral("a")); p.drawText(21, 30 + a, QStringLiteral("b")); p.drawLine(30, 30, 59, 30); }},
    // Clip
    {__LINE__, [](C& c) { c.SelectObject(&lShape()); c.ExcludeClipRect(0, 0, 20, 30); c.FillSolidRect(0, 0, 60, 50, kGreen); },
               [](P& p) { p.setClipRegion(lRegion() & QRect(0, 0, 20, 30)); p.fillRect(0, 0, 60, 50, kGreen); }},
    {__LINE__, [](C& c) { c.SelectClipRgn(&lShape()); c.IntersectClipRect(8, 8, 20, 30); c.OffsetClipRgn(4, 4); c.FillSolidRect(0, 0, 60, 50, kGreen); c.SelectClipRgn(nullptr); c.LineTo(30, 30); },
               [](P& p) { p.setClipRegion(lRegion() & QRect(8, 8, 12, 22)); p.translate(4, 4); p.fillRect(0, 0, 60, 50, kGreen); p.setClipping(false); p.drawLine(0, 0, 30, 30); }},
    {__LINE__, [](C& c) { QWidget w; w.setGeometry(0, 0, 20, 30); CWnd_E wnd; wnd.SubclassWindow(&w); c.ExcludeUpdateRgn(&wnd); c.FillSolidRect(0, 0, 60, 50, kGreen); },
               [](P& p) { p.setClipRegion(QRegion(0, 0, 60, 50) - QRegion(0, 0, 20, 30)); p.fillRect(0, 0, 60, 50, kGreen); }},
    // Coordinates
    {__LINE__, [](C& c) { c.SetViewportOrg(10, 5); c.SaveDC(); c.SetWindowOrg(-3, -4); c.LineTo(20, 20); c.RestoreDC(17); c.LineTo(20, 0); },
               [](P& p) { p.drawLine(13, 9, 33, 29); p.drawLine(30, 25, 30, 5); }},
    // Text, icons and images where an axis runs against the device
    {__LINE__, [](C& c) { turn(c); auto r = rect(2, 48, 50, 10); c.DrawText(kWide, -1, &r, Qt::AlignRight); c.TextOut(4, 20, L"ab", 2); c.MoveTo(9, 9); c.LineTo(20, 9); },
               [](P& p) { p.drawText(corners(2, 2, 49, 39), Qt::AlignRight, kText); p.drawText(4, 30 + p.fontMetrics().ascent(), QStringLiteral("ab")); p.drawLine(9, 41, 20, 41); }},
    {__LINE__, [](C& c) { QImage i = arrow(); C m(&i); turn(c); c.StretchBlt(5, 5, 20, 30, &m, 0, 0, 10, 10, SRCCOPY); c.StretchBlt(30, 35, 20, -30, &m, 0, 0, 10, 10, SRCCOPY); c.TransparentBlt(50, 10, 10, 10, &m, 0, 0, 10, 10, RGB(255, 255, 0)); },
               [](P& p) { p.drawImage(QRect(5, 15, 20, 30), arrow().mirrored(false, true)); p.drawImage(QRect(30, 15, 20, 30), arrow());
                          const QImage i = arrow().mirrored(false, true);
                          for (int n = 0; n < 100; ++n) { if (i.pixelColor(n % 10, n / 10) == QColor(Qt::black)) p.drawPoint(50 + n % 10, 30 + n / 10); } }},
    {__LINE__, [](C& c) { turn(c, true); c.BitBlt(30, 20, 30, 30, &c, 20, 10, SRCCOPY); QPixmap x = QPixmap::fromImage(arrow().scaled(32, 32)); QIcon icon(x); c.DrawIcon(30, 40, &icon); },
               [](P& p) { p.drawImage(0, 0, canvas(QImage::Format_RGB32), 10, 10, 30, 30); p.drawImage(30, 10, arrow().scaled(32, 32)); }},
    // Images
    {__LINE__, [](C& c) { QImage i = arrow(); C m(&i); c.StretchBlt(0, 0, 60, 50, &m, 0, 0, 0, 10, SRCCOPY); c.TransparentBlt(0, 0, 60, 50, &m, 0, 0, 10, 0, 0); c.BitBlt(0, 0, 0, 9, &m, 0, 0, SRCCOPY); c.LineTo(5, 5); },
               [](P& p) { p.drawLine(0, 0, 5, 5); }},
    // What lies outside of the source is not drawn.
    {__LINE__, [](C& c) { c.BitBlt(0, 0, 60, 50, &c, 10, -5, SRCCOPY); }, // scrolls
               [](P& p) { p.drawImage(0, 5, canvas(QImage::Format_RGB32), 10, 0, 50, 45); }},
    {__LINE__, [](C& c) { QImage i = arrow(); C m(&i); c.StretchBlt(49, 40, -20, -10, &m, 5, -10, 10, 20, SRCCOPY); c.TransparentBlt(5, 5, 40, 10, &m, -5, 0, 20, 10, RGB(9, 9, 9)); },
               [](P& p) { p.drawImage(QRect(39, 30, 10, 5), arrow().copy(5, 0, 5, 10).mirrored(true, true)); p.drawImage(QRect(15, 5, 20, 10), arrow()); }},
    {__LINE__, [](C& c) { Bitmap b(10, 10, Qt::white); C m; m.CreateCompatibleDC(&c); m.SelectObject(&green()); m.SelectObject(&b); m.Rectangle(2, 2, 9, 9); c.StretchBlt(30, 2, 20, 30, &m, 0, 0, 10, 10, SRCCOPY); },
               [](P& p) { QImage i(10, 10, QImage::Format_RGB32); i.fill(Qt::white); { P q(&i); q.setBrush(kGreen); q.drawRect(corners(2, 2, 8, 8)); } p.drawImage(QRect(30, 2, 20, 30), i); }},
    {__LINE__, [](C& c) { c.SelectObject(&green()); c.BitBlt(5, 5, 9, 9, nullptr, 0, 0, PATCOPY); c.BitBlt(15, 5, 9, 30, nullptr, 0, 0, DSTINVERT); c.BitBlt(25, 5, 9, 30, nullptr, 0, 0, BLACKNESS); },
               [](P& p) { p.fillRect(5, 5, 9, 9, kGreen); p.fillRect(25, 5, 9, 30, Qt::black); p.setCompositionMode(P::RasterOp_NotDestination); p.fillRect(15, 5, 9, 30, Qt::red); }},
    {__LINE__, [](C& c) { QPixmap x(32, 32); x.fill(Qt::red); QIcon icon(x); c.DrawIcon(4, 4, &icon); auto r = rect(10, 10, 40, 40); c.DrawFocusRect(&r); c.LineTo(9, 49); c.DrawFocusRect(&r); },
               [](P& p) { p.fillRect(4, 4, 32, 32, Qt::red); p.drawLine(0, 0, 9, 49); }},
};
// clang-format on

TEST(DcPixels, AreThoseOfThePainter)
{
    for (int n = 0; n < 3 * int(std::size(kCases)); ++n) {
        const auto& [line, draw, byHand] = kCases[n / 3];
        SCOPED_TRACE(line);
        constexpr QImage::Format kFormats[] = {QImage::Format_RGB32, QImage::Format_RGBX8888,
                                               QImage::Format_ARGB32};
        const QImage before = canvas(kFormats[n % 3]);
        QImage drawn = before, expected = before;
        CDC_E dc(&drawn);
        draw(dc);
        dc.DeleteDC();
        QPainter painter(&expected);
        byHand(painter);
        painter.end();
        EXPECT_EQ(drawn, expected) << kFormats[n % 3];
        EXPECT_NE(drawn, before) << "something was drawn at all";
    }
}

// The bits of pattern, source or pen, and destination.
constexpr COLORREF p = RGB(0x5A, 0x99, 0x66), s = RGB(0xF0, 0x55, 0x33), d = RGB(0xCC, 0x0F, 0xAA);

// The number of an operation has a bit for each of the eight cases.
COLORREF mixed(DWORD bits)
{
    COLORREF result = 0;
    for (DWORD n = 0; n < 8; ++n) {
        if (bits >> n & 1)
            result |= (n & 4 ? p : ~p) & (n & 2 ? s : ~s) & (n & 1 ? d : ~d);
    }
    return result & 0xFFFFFF;
}

TEST(DcRasterOps, AreAsNamed)
{
    for (int rop = R2_BLACK; rop <= R2_WHITE; ++rop) {
        SCOPED_TRACE(rop);
        Canvas c;
        c.dc.FillSolidRect(0, 0, 1, 1, d);
        EXPECT_EQ(c.dc.SetROP2(rop), R2_COPYPEN);
        c.dc.FillSolidRect(0, 0, 1, 1, s);
        EXPECT_EQ(c.dc.GetPixel(0, 0), mixed(DWORD(rop - R2_BLACK) * 0x11)); // whatever the pattern
        expectAll(rop, {c.dc.SetROP2(99), c.dc.GetROP2()});
    }
    for (const DWORD rop :
         {SRCCOPY, SRCPAINT, SRCAND, SRCINVERT, SRCERASE, NOTSRCCOPY, NOTSRCERASE, MERGECOPY,
          MERGEPAINT, PATCOPY, PATPAINT, PATINVERT, DSTINVERT, BLACKNESS, WHITENESS}) {
        SCOPED_TRACE(rop);
        Canvas from, to;
        CBrush_E brush(p);
        from.dc.FillSolidRect(0, 0, 1, 1, s);
        to.dc.FillSolidRect(0, 0, 1, 1, d);
        to.dc.SelectObject(&brush);
        EXPECT_EQ(to.dc.BitBlt(0, 0, 1, 1, &from.dc, 0, 0, rop), TRUE);
        EXPECT_EQ(to.dc.GetPixel(0, 0), mixed(rop >> 16U));
        EXPECT_EQ(to.dc.BitBlt(0, 0, 1, 1, &from.dc, 0, 0, 0x12345678), FALSE);
    }
}

// Each format: the pixels in the rectangle alone, made opaque.
TEST(DcInvertRect, InvertsEveryFormat)
{
    for (const auto format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied,
                              QImage::Format_RGBX8888, QImage::Format_Mono}) {
        SCOPED_TRACE(format);
        QImage image(9, 9, format);
        image.fill(format == QImage::Format_Mono ? Qt::color0 : Qt::red);
        image.setPixel(4, 4, format == QImage::Format_Mono ? 1 : qRgba(10, 20, 30, 255));
        QImage expected = image.convertToFormat(QImage::Format_ARGB32);
        tagRECT rect{1, 1, 7, 20};
        CDC_E dc(&image);
        dc.SetViewportOrg(1, 2);
        dc.InvertRect(&rect);
        dc.DeleteDC();
        EXPECT_EQ(CRect_E(rect), CRect_E(2, 3, 8, 22)) << "Intended: the caller sees the device's";
        QImage inside = expected.copy(2, 3, 6, 6);
        inside.invertPixels();
        QPainter(&expected).drawImage(2, 3, inside);
        EXPECT_EQ(image.convertToFormat(QImage::Format_ARGB32), expected);
    }
}

} // namespace
