// Lines, curves and outlined shapes.
#include "gdi/vxdc_p.h"

#include "gdi/vxdcdevice_p.h"

#include <QtGui/QPainterPath>
#include <QtGui/QPolygon>

#include <algorithm>
#include <cmath>
#include <iterator>

using namespace vx::detail;

namespace {

// The points of both have the same layout: drawing needs no copy of them.
static_assert(sizeof(QPoint) == sizeof(tagPOINT));
const QPoint* asQtPoints(const tagPOINT* pPoints)
{
    return reinterpret_cast<const QPoint*>(pPoints);
}

QPainterPath bezierPath(const QPoint& start, const tagPOINT* pPoints, int nCount)
{
    QPainterPath path(start);
    for (int i = 0; i + 2 < nCount; i += 3)
        path.cubicTo(fromPoint(pPoints[i]), fromPoint(pPoints[i + 1]), fromPoint(pPoints[i + 2]));
    return path;
}

/// Angle of the ray from the middle of @p rect through @p point, in sixteenths of a degree, on an
/// ellipse that has been made a circle.
int angleOf(const QRect& rect, const tagPOINT& point)
{
    const QPointF center = QRectF(rect).center();
    const double x = (point.x - center.x()) / rect.width();
    const double y = (center.y() - point.y) / rect.height();
    constexpr double kSixteenths = 16 * 180 / 3.14159265358979323846;
    return static_cast<int>(std::lround(std::atan2(y, x) * kSixteenths));
}

constexpr int kFullCircle = 360 * 16;

} // namespace

BOOL CDC_E::Polyline(const tagPOINT* pPoints, int nCount)
{
    if (!pPoints || nCount < 2 || !m_painter.isActive())
        return FALSE;
    m_painter.drawPolyline(asQtPoints(pPoints), nCount);
    return TRUE;
}

BOOL CDC_E::PolylineTo(const tagPOINT* pPoints, int nCount)
{
    if (!pPoints || nCount < 1 || !m_painter.isActive())
        return FALSE;
    QPolygon points;
    points << QPoint(m_x, m_y);
    std::copy_n(asQtPoints(pPoints), nCount, std::back_inserter(points));
    m_painter.drawPolyline(points);
    return MoveTo(pPoints[nCount - 1]);
}

BOOL CDC_E::PolyBezier(const tagPOINT* pPoints, int nCount)
{
    if (!pPoints || nCount < 4 || nCount % 3 != 1 || !m_painter.isActive())
        return FALSE;
    m_painter.strokePath(bezierPath(fromPoint(pPoints[0]), pPoints + 1, nCount - 1),
                         m_painter.pen());
    return TRUE;
}

BOOL CDC_E::PolyBezierTo(const tagPOINT* pPoints, int nCount)
{
    if (!pPoints || nCount < 3 || nCount % 3 != 0 || !m_painter.isActive())
        return FALSE;
    m_painter.strokePath(bezierPath({m_x, m_y}, pPoints, nCount), m_painter.pen());
    return MoveTo(pPoints[nCount - 1]);
}

BOOL CDC_E::Polygon(const tagPOINT* pPoints, int nCount)
{
    if (!pPoints || nCount < 2 || !m_painter.isActive())
        return FALSE;
    m_painter.drawPolygon(asQtPoints(pPoints), nCount,
                          m_modes.polyFill == WINDING ? Qt::WindingFill : Qt::OddEvenFill);
    return TRUE;
}

BOOL CDC_E::Rectangle(int l, int t, int r, int b)
{
    const tagRECT rect{l, t, r, b};
    return Rectangle(&rect);
}

BOOL CDC_E::Rectangle(const tagRECT* pRect)
{
    if (!pRect)
        return FALSE;
    const QRect rect = fromRect(*pRect);
    m_painter.drawRects(&rect, 1);
    return TRUE;
}

BOOL CDC_E::Ellipse(const tagRECT* pRect)
{
    if (!pRect)
        return FALSE;
    m_painter.drawEllipse(fromRect(*pRect));
    return TRUE;
}

BOOL CDC_E::Ellipse(int x, int y, int cx, int cy)
{
    m_painter.drawEllipse(extentRect(x, y, cx, cy)); // Intended: an extent, unlike in Rectangle().
    return TRUE;
}

BOOL CDC_E::RoundRect(int l, int t, int r, int b, int cx, int cy)
{
    const tagRECT rect{l, t, r, b};
    return RoundRect(&rect, {cx, cy});
}

BOOL CDC_E::RoundRect(const tagRECT* pRect, tagPOINT point)
{
    if (!pRect || !m_painter.isActive())
        return FALSE;
    m_painter.drawRoundedRect(boundedRect(*pRect), point.x / 2.0, point.y / 2.0);
    return TRUE;
}

BOOL CDC_E::DrawArcKind(ArcKind kind, const tagRECT* pRect, tagPOINT start, tagPOINT end)
{
    const QRect rect = pRect ? boundedRect(*pRect).normalized() : QRect();
    if (rect.isEmpty() || !m_painter.isActive())
        return FALSE;
    const bool clockwise = m_modes.arc == AD_CLOCKWISE;
    const int from = angleOf(rect, clockwise ? end : start);
    const int to = angleOf(rect, clockwise ? start : end);
    const int span = (to - from + 2 * kFullCircle) % kFullCircle;
    const int angle = span == 0 ? kFullCircle : span;
    switch (kind) {
    case ArcKind::Arc:
        m_painter.drawArc(rect, from, angle);
        break;
    case ArcKind::Pie:
        m_painter.drawPie(rect, from, angle);
        break;
    case ArcKind::Chord:
        m_painter.drawChord(rect, from, angle);
        break;
    }
    return TRUE;
}

BOOL CDC_E::Arc(int l, int t, int r, int b, int xStart, int yStart, int xEnd, int yEnd)
{
    const tagRECT rect{l, t, r, b};
    return Arc(&rect, {xStart, yStart}, {xEnd, yEnd});
}

BOOL CDC_E::Arc(const tagRECT* pRect, tagPOINT start, tagPOINT end)
{
    return DrawArcKind(ArcKind::Arc, pRect, start, end);
}

BOOL CDC_E::Pie(int l, int t, int r, int b, int xStart, int yStart, int xEnd, int yEnd)
{
    const tagRECT rect{l, t, r, b};
    return Pie(&rect, {xStart, yStart}, {xEnd, yEnd});
}

BOOL CDC_E::Pie(const tagRECT* pRect, tagPOINT start, tagPOINT end)
{
    return DrawArcKind(ArcKind::Pie, pRect, start, end);
}

BOOL CDC_E::Chord(int l, int t, int r, int b, int xStart, int yStart, int xEnd, int yEnd)
{
    const tagRECT rect{l, t, r, b};
    return Chord(&rect, {xStart, yStart}, {xEnd, yEnd});
}

BOOL CDC_E::Chord(const tagRECT* pRect, tagPOINT start, tagPOINT end)
{
    return DrawArcKind(ArcKind::Chord, pRect, start, end);
}

VxColorResult CDC_E::SetPixel(int x, int y, const VxColor& color)
{
    const QColor previous = m_painter.pen().color();
    m_painter.setPen(color);
    m_painter.drawPoint(x, y);
    m_painter.setPen(previous); // Intended: width and style of the pen are lost.
    return color;
}

COLORREF CDC_E::GetPixel(int x, int y) const
{
    const QImage* const pImage = pixelsOf(m_painter);
    if (!pImage || !PtVisible(x, y))
        return CLR_INVALID;
    const QPoint at = m_painter.deviceTransform().map(QPoint(x, y));
    return pImage->valid(at) ? toColorRef(pImage->pixelColor(at)) : CLR_INVALID;
}

BOOL CDC_E::DrawEdge(tagRECT* pRect, UINT nEdge, UINT nFlags)
{
    return DrawEdge_E(this, pRect, nEdge, nFlags);
}

BOOL DrawEdge_E(CDC_E* pDC, tagRECT* pRect, UINT, UINT nFlags)
{
    if (!pDC || !pRect)
        return FALSE;
    const struct
    {
        UINT flag;
        QLine line;
    } sides[] = {
        {BF_TOP, {pRect->left, pRect->top, pRect->right, pRect->top}},
        {BF_BOTTOM, {pRect->left, pRect->bottom, pRect->right, pRect->bottom}},
        {BF_LEFT, {pRect->left, pRect->top, pRect->left, pRect->bottom}},
        {BF_RIGHT, {pRect->right, pRect->bottom, pRect->right, pRect->top}},
    };
    for (const auto& side : sides) {
        if (nFlags & side.flag)
            pDC->m_painter.drawLine(side.line);
    }
    return TRUE;
}
