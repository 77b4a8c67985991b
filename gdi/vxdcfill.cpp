// Filling rectangles and regions, and inverting what is there.
#include "gdi/vxdc_p.h"

#include "gdi/vxdcdevice_p.h"

#include <VxMFCEmu/gdi/brush.h>

#include <QtGui/QPainterPath>

#include <algorithm>

using namespace vx::detail;

namespace {

/// Whether the rectangles of a region, drawn one by one, cover the same pixels as one path of them
/// all: on a grid that only moves, and with a brush that takes no notice of the shape.
bool canFillByRectangles(const QPainter& painter, const QBrush& brush)
{
    const QTransform& transform = painter.deviceTransform();
    const QGradient* const pGradient = brush.gradient();
    return transform.type() <= QTransform::TxTranslate &&
           transform.dx() == qRound(transform.dx()) && transform.dy() == qRound(transform.dy()) &&
           !painter.testRenderHint(QPainter::Antialiasing) &&
           (!pGradient || pGradient->coordinateMode() == QGradient::LogicalMode);
}

void fillRegion(QPainter& painter, const QRegion& region, const QBrush& brush)
{
    if (!painter.isActive() || brush.style() == Qt::NoBrush)
        return;
    // One rectangle is the same either way.
    if (region.rectCount() == 1) {
        painter.fillRect(region.boundingRect(), brush);
        return;
    }
    if (canFillByRectangles(painter, brush)) {
        for (const QRect& rect : region)
            painter.fillRect(rect, brush);
        return;
    }
    QPainterPath path;
    for (const QRect& rect : region)
        path.addRect(rect);
    painter.fillPath(path, brush);
}

/// Draws a rectangle with a brush that is put back afterwards.
void drawWithBrush(QPainter& painter, const QRect& rect, Qt::GlobalColor color)
{
    const QBrush previous = painter.brush();
    painter.setBrush(color);
    painter.drawRects(&rect, 1);
    painter.setBrush(previous);
}

void drawWithMode(QPainter& painter, const QRect& rect, QPainter::CompositionMode mode)
{
    const CompositionScope scope(painter, mode);
    painter.drawRects(&rect, 1);
}

QRgb inverted(QRgb pixel) { return ~pixel | 0xFF000000U; }

/// Whether a pixel of @p format is 32 bits with the colours, as they are, below the alpha byte.
bool hasPlainPixels(QImage::Format format)
{
    switch (format) {
    case QImage::Format_RGB32:
    case QImage::Format_ARGB32:
    case QImage::Format_RGBX8888:
    case QImage::Format_RGBA8888:
        return Q_BYTE_ORDER == Q_LITTLE_ENDIAN;
    default:
        return false;
    }
}

void invertPixel(QImage& image, int x, int y)
{
    const QRgb color = inverted(image.pixel(x, y));
    if (image.colorCount() == 0) {
        image.setPixel(x, y, color);
        return;
    }
    const int nIndex = image.colorTable().indexOf(color);
    if (nIndex >= 0)
        image.setPixel(x, y, static_cast<uint>(nIndex));
}

/// Replaces each pixel of @p rect, which lies in @p image, by its opaque inverse.
void invertPixels(QImage& image, const QRect& rect)
{
    const bool plain = hasPlainPixels(image.format());
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        if (plain) {
            auto* const pRow = reinterpret_cast<QRgb*>(rowOf(image, y)) + rect.left();
            std::transform(pRow, pRow + rect.width(), pRow, &inverted);
            continue;
        }
        for (int x = rect.left(); x <= rect.right(); ++x)
            invertPixel(image, x, y);
    }
}

} // namespace

void CDC_E::FillSolidRect(int x, int y, int cx, int cy, const VxColor& color)
{
    m_painter.fillRect(extentRect(x, y, cx, cy), static_cast<const QColor&>(color));
}

void CDC_E::FillSolidRect(const tagRECT* pRect, const VxColor& color)
{
    if (pRect)
        m_painter.fillRect(fromRect(*pRect), static_cast<const QColor&>(color));
}

void CDC_E::FillRect(const tagRECT* pRect, CBrush_E* pBrush)
{
    const auto* const pValue = valueOf<QBrush>(pBrush);
    if (pRect && pValue)
        m_painter.fillRect(fromRect(*pRect), *pValue);
}

void CDC_E::Draw3dRect(int x, int y, int cx, int cy, const VxColor& topLeft,
                       const VxColor& bottomRight)
{
    FillSolidRect(x, y, wrappingSub(cx, 1), 1, topLeft);
    FillSolidRect(x, y, 1, wrappingSub(cy, 1), topLeft);
    // An extent of -1 is the column or row before.
    FillSolidRect(wrappingAdd(x, cx), y, -1, cy, bottomRight);
    FillSolidRect(x, wrappingAdd(y, cy), cx, -1, bottomRight);
}

void CDC_E::Draw3dRect(const tagRECT* pRect, const VxColor& topLeft, const VxColor& bottomRight)
{
    if (pRect)
        Draw3dRect(pRect->left, pRect->top, wrappingSub(pRect->right, pRect->left),
                   wrappingSub(pRect->bottom, pRect->top), topLeft, bottomRight);
}

void CDC_E::DrawFocusRect(const tagRECT* pRect)
{
    if (!pRect || !m_painter.isActive())
        return;
    const PainterState state(m_painter);
    m_painter.setCompositionMode(QPainter::RasterOp_NotDestination);
    m_painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawRect(boundedRect(*pRect).adjusted(0, 0, -1, -1));
}

void CDC_E::FrameRect(const tagRECT* pRect, CBrush_E* pBrush)
{
    if (!valueOf<QBrush>(pBrush))
        return;
    SelectObject(pBrush); // Intended: it stays, and the rectangle is filled with it.
    Rectangle(pRect);
}

BOOL CDC_E::PatBlt(int x, int y, int cx, int cy, DWORD dwRop)
{
    const QRect rect = extentRect(x, y, cx, cy);
    switch (dwRop) {
    case BLACKNESS:
        drawWithBrush(m_painter, rect, Qt::black);
        break;
    case WHITENESS:
        drawWithBrush(m_painter, rect, Qt::white);
        break;
    case DSTINVERT:
        drawWithMode(m_painter, rect, QPainter::RasterOp_NotDestination);
        break;
    case PATINVERT:
        drawWithMode(m_painter, rect, QPainter::RasterOp_SourceXorDestination);
        break;
    default:
        m_painter.drawRects(&rect, 1);
        break;
    }
    return TRUE;
}

void CDC_E::InvertRect(tagRECT* pRect)
{
    if (!pRect)
        return;
    LPtoDP(pRect); // Intended: the caller sees it.
    QImage* const pImage = pixelsOf(m_painter);
    const int deviceType = pImage ? m_painter.device()->devType() : QInternal::UnknownDevice;
    const QRect rect = pImage ? fromRect(*pRect) & pImage->rect() : QRect();
    if (deviceType == QInternal::Image) {
        invertPixels(*pImage, rect);
    } else if (deviceType == QInternal::Widget && !rect.isEmpty()) {
        // Drawn, for the clip: the image is that of the whole window.
        QImage area = pImage->copy(rect);
        invertPixels(area, area.rect());
        const PainterState state(m_painter);
        m_painter.setWorldMatrixEnabled(false);
        m_painter.setViewTransformEnabled(false);
        m_painter.setCompositionMode(QPainter::CompositionMode_Source);
        m_painter.drawImage(m_painter.deviceTransform().inverted().map(rect.topLeft()), area);
    }
}

BOOL CDC_E::FillRgn(CRgn_E* pRgn, CBrush_E* pBrush)
{
    const auto* const pRegion = valueOf<QRegion>(pRgn);
    const auto* const pValue = valueOf<QBrush>(pBrush);
    if (!pRegion || !pValue)
        return FALSE;
    fillRegion(m_painter, *pRegion, *pValue);
    return TRUE;
}

BOOL CDC_E::PaintRgn(CRgn_E* pRgn)
{
    const auto* const pRegion = valueOf<QRegion>(pRgn);
    if (!pRegion)
        return FALSE;
    fillRegion(m_painter, *pRegion, m_painter.brush());
    return TRUE;
}

BOOL CDC_E::FrameRgn(CRgn_E* pRgn, CBrush_E* pBrush, int nWidth, int nHeight)
{
    const auto* const pRegion = valueOf<QRegion>(pRgn);
    const auto* const pValue = valueOf<QBrush>(pBrush);
    if (!pRegion || !pValue)
        return FALSE;
    if (pRegion->isEmpty()) // nothing has no bounds
        return TRUE;
    const QRect inner = boundedRect(toRect(pRegion->boundingRect()));
    const int cx = bounded(nWidth);
    const int cy = bounded(nHeight);
    const QRect outer = inner.adjusted(-cx, -cy, cx, cy);
    // Intended: bands on the outside of the bounds.
    for (const QRect& band : {QRect(outer.left(), inner.top(), cx, inner.height()),
                              QRect(inner.right() + 1, inner.top(), cx, inner.height()),
                              QRect(outer.left(), outer.top(), outer.width(), cy),
                              QRect(outer.left(), inner.bottom() + 1, outer.width(), cy)}) {
        if (band.isValid())
            m_painter.fillRect(band, *pValue);
    }
    return TRUE;
}

BOOL CDC_E::InvertRgn(CRgn_E* pRgn)
{
    if (const auto* const pRegion = valueOf<QRegion>(pRgn)) {
        // Intended: the clip and the mode stay, and the result is that of a failure.
        m_painter.setClipRegion(*pRegion, Qt::IntersectClip);
        m_painter.setCompositionMode(QPainter::RasterOp_NotSource);
        m_painter.fillRect(m_painter.window(), QBrush(Qt::black));
    }
    return FALSE;
}
