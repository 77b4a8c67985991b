// Copying images from one device context to another.
#include "gdi/vxdc_p.h"

#include "gdi/vxdcdevice_p.h"

#include <QtGui/QIcon>

#include <algorithm>
#include <optional>

using namespace vx::detail;

namespace {

using Mode = QPainter::CompositionMode;
constexpr int kNone = -1;

/// A raster operation in up to two steps: the source is drawn with one mode and the brush, or
/// black where any brush does, is filled in with another.
struct BlitRow
{
    DWORD rop;
    int sourceMode;
    int brushMode;
    bool anyBrush;
};

// clang-format off
constexpr BlitRow kBlitRows[] = {
    {SRCCOPY,     Mode::CompositionMode_Source,                  kNone, false},
    {SRCPAINT,    Mode::RasterOp_SourceOrDestination,            kNone, false},
    {SRCAND,      Mode::RasterOp_SourceAndDestination,           kNone, false},
    {SRCINVERT,   Mode::RasterOp_SourceXorDestination,           kNone, false},
    {SRCERASE,    Mode::RasterOp_SourceAndNotDestination,        kNone, false},
    {NOTSRCCOPY,  Mode::RasterOp_NotSource,                      kNone, false},
    {NOTSRCERASE, Mode::RasterOp_NotSourceAndNotDestination,     kNone, false},
    {MERGEPAINT,  Mode::RasterOp_NotSourceOrDestination,         kNone, false},
    {MERGECOPY,   Mode::CompositionMode_Source,                  Mode::RasterOp_SourceAndDestination, false},
    {PATPAINT,    Mode::RasterOp_NotSourceOrDestination,         Mode::RasterOp_SourceOrDestination, false},
    {PATCOPY,     kNone,                                         Mode::CompositionMode_SourceOver, false},
    {PATINVERT,   kNone,                                         Mode::RasterOp_SourceXorDestination, false},
    {DSTINVERT,   kNone,                                         Mode::RasterOp_NotDestination, true},
    {BLACKNESS,   kNone,                                         Mode::RasterOp_ClearDestination, true},
    {WHITENESS,   kNone,                                         Mode::RasterOp_SetDestination, true},
};
// clang-format on
static_assert(std::size(kBlitRows) == 15);

/// Part of an image.
struct Source
{
    QImage image;
    QRect rect;
};

/// Makes the image a copy of the part alone.
void takePart(Source& source)
{
    source.image = source.image.copy(source.rect);
    source.rect.moveTo(0, 0);
}

/// The pixels of a rectangle of @p pDC, inside of its image or not; none when it has no image.
std::optional<Source> sourceOf(CDC_E* pDC, const QRect& rect)
{
    const QImage* const pPixels = pDC ? pixelsOf(pDC->m_painter) : nullptr;
    if (!pPixels)
        return std::nullopt;
    // Without a reference of its own, since the painter of pDC goes on writing to the image.
    QImage view(pPixels->constBits(), pPixels->width(), pPixels->height(), pPixels->bytesPerLine(),
                pPixels->format());
    view.setColorTable(pPixels->colorTable());
    return Source{std::move(view), pDC->m_painter.deviceTransform().mapRect(rect)};
}

/// The image with its own alpha, or with none: the fourth byte of formats without alpha is
/// nobody's, and Qt takes it for alpha in a conversion.
QImage withTrueAlpha(const QImage& image)
{
    if (image.hasAlphaChannel())
        return image.convertToFormat(QImage::Format_ARGB32);
    return image.convertToFormat(QImage::Format_RGB32).convertToFormat(QImage::Format_ARGB32);
}

/// A rectangle as the members for images take it.
struct Extent
{
    Extent(int nX, int nY, int nCx, int nCy)
        : x(bounded(nX)), y(bounded(nY)), cx(bounded(nCx)), cy(bounded(nCy))
    {
    }
    /// With the signs that it has on the device.
    Extent on(const UprightScope& upright) const
    {
        return {upright.x(x), upright.y(y), upright.x(cx), upright.y(cy)};
    }
    /// The same place with positive extents.
    QRect rect() const { return {x + qMin(0, cx), y + qMin(0, cy), qAbs(cx), qAbs(cy)}; }

    int x;
    int y;
    int cx;
    int cy;
};

Extent onDevice(CDC_E& dc, const Extent& extent) { return extent.on(UprightScope(dc.m_painter)); }

/// Whether an image is mirrored in x and in y.
std::pair<bool, bool> mirroring(const Extent& target, const Extent& source)
{
    return {(target.cx < 0) != (source.cx < 0), (target.cy < 0) != (source.cy < 0)};
}

void mirror(Source& source, std::pair<bool, bool> axes)
{
    if (!axes.first && !axes.second)
        return;
    takePart(source);
    source.image = source.image.mirrored(axes.first, axes.second);
}

/// Takes what lies outside of its image off @p source, and returns the part of @p target that shows
/// the rest. Copies of the part would have black there.
QRectF crop(Source& source, const QRectF& target, std::pair<bool, bool> mirrored)
{
    const QRect all = source.rect;
    source.rect &= source.image.rect();
    if (source.rect.isEmpty() || source.rect == all)
        return target;
    const QRect part = source.rect.translated(-all.topLeft());
    const qreal x = target.width() / all.width();
    const qreal y = target.height() / all.height();
    const int left = mirrored.first ? all.width() - part.width() - part.x() : part.x();
    const int top = mirrored.second ? all.height() - part.height() - part.y() : part.y();
    return {target.x() + left * x, target.y() + top * y, part.width() * x, part.height() * y};
}

} // namespace

BOOL CDC_E::BitBlt(int x, int y, int cx, int cy, CDC_E* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
{
    return StretchBlt(x, y, cx, cy, pSrcDC, xSrc, ySrc, cx, cy, dwRop);
}

BOOL CDC_E::StretchBlt(int x, int y, int cx, int cy, CDC_E* pSrcDC, int xSrc, int ySrc, int cxSrc,
                       int cySrc, DWORD dwRop)
{
    const auto* const pRow = std::find_if(std::begin(kBlitRows), std::end(kBlitRows),
                                          [dwRop](const BlitRow& row) { return row.rop == dwRop; });
    if (pRow == std::end(kBlitRows) || !m_painter.isActive())
        return FALSE;
    const Extent to = onDevice(*this, {x, y, cx, cy});
    const Extent from(xSrc, ySrc, cxSrc, cySrc);
    QRectF target = to.rect();
    std::optional<Source> source;
    if (pRow->sourceMode != kNone) {
        source = sourceOf(pSrcDC, from.rect());
        if (!source)
            return FALSE;
        const auto axes = mirroring(to, onDevice(*pSrcDC, from));
        target = crop(*source, target, axes);
        if (source->rect.isEmpty()) // Qt would take all of the image
            return TRUE;
        if (pSrcDC == this)
            takePart(*source);
        const QImage* const pTarget = pixelsOf(m_painter);
        if (pTarget && pTarget->hasAlphaChannel() &&
            source->image.format() == QImage::Format_RGBX8888) {
            takePart(*source);
            source->image = withTrueAlpha(source->image);
        }
        mirror(*source, axes);
    }
    const PainterState state(m_painter);
    const UprightScope upright(m_painter);
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform, m_modes.stretch == HALFTONE);
    if (source) {
        m_painter.setCompositionMode(static_cast<Mode>(pRow->sourceMode));
        m_painter.drawImage(target, source->image, source->rect);
    }
    if (pRow->brushMode != kNone) {
        m_painter.setCompositionMode(static_cast<Mode>(pRow->brushMode));
        m_painter.fillRect(target, pRow->anyBrush ? QBrush(Qt::black) : m_painter.brush());
    }
    return TRUE;
}

BOOL CDC_E::TransparentBlt(int x, int y, int cx, int cy, CDC_E* pSrcDC, int xSrc, int ySrc,
                           int cxSrc, int cySrc, COLORREF crTransparent)
{
    const Extent from(xSrc, ySrc, cxSrc, cySrc);
    std::optional<Source> source = sourceOf(pSrcDC, from.rect());
    if (!source || !m_painter.isActive())
        return FALSE;
    const Extent to = onDevice(*this, {x, y, cx, cy});
    const auto axes = mirroring(to, onDevice(*pSrcDC, from));
    const QRectF target = crop(*source, to.rect(), axes);
    if (source->rect.isEmpty())
        return TRUE;
    takePart(*source);
    QImage& image = source->image;
    image = withTrueAlpha(image);
    const QRgb transparent = toQColor(crTransparent).rgb() & RGB_MASK;
    for (int row = 0; row < image.height(); ++row) {
        auto* const pRow = reinterpret_cast<QRgb*>(image.scanLine(row));
        std::replace_if(
            pRow, pRow + image.width(),
            [transparent](QRgb pixel) { return (pixel & RGB_MASK) == transparent; }, QRgb{0});
    }
    mirror(*source, axes);
    const CompositionScope scope(m_painter, Mode::CompositionMode_SourceOver);
    const UprightScope upright(m_painter);
    m_painter.drawImage(target, image, source->rect);
    return TRUE;
}

BOOL CDC_E::DrawIcon(int x, int y, HICON hIcon)
{
    if (!hIcon || !m_painter.isActive())
        return FALSE;
    constexpr int kIconSize = 32;
    const UprightScope upright(m_painter);
    static_cast<const QIcon*>(hIcon)->paint(&m_painter, upright.x(x), upright.y(y), kIconSize,
                                            kIconSize);
    return TRUE;
}
