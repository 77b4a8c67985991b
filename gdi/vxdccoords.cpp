// Coordinates: mapping modes, origins and extents, and what the device is like.
#include "gdi/vxdc_p.h"

#include <cmath>

using namespace vx::detail;

namespace {

/// Logical units to an inch of the modes with a fixed scale; 0 of the others.
constexpr int kUnitsPerInch[] = {0, 0, 254, 2540, 100, 1000, 1440, 0, 0};
static_assert(std::size(kUnitsPerInch) == MM_ANISOTROPIC + 1);

CSize_E toSize(const QSize& size) { return {size.width(), size.height()}; }

/// @p viewport made smaller in one direction, so that a unit is as long in both.
QSize isotropic(const QSize& window, const QSize& viewport)
{
    const double x = std::abs(double(viewport.width()) / window.width());
    const double y = std::abs(double(viewport.height()) / window.height());
    if (x > y)
        return {qRound(viewport.width() * y / x), viewport.height()};
    return {viewport.width(), qRound(viewport.height() * x / y)};
}

QRect boundedExtent(const QPoint& origin, const QSize& size)
{
    return {bounded(origin.x()), bounded(origin.y()), bounded(size.width()),
            bounded(size.height())};
}

void mapPoint(const QTransform& transform, LONG& x, LONG& y) { transform.map(x, y, &x, &y); }

void mapRect(const QTransform& transform, tagRECT* pRect)
{
    if (!pRect)
        return;
    mapPoint(transform, pRect->left, pRect->top);
    mapPoint(transform, pRect->right, pRect->bottom);
}

void mapSize(const QTransform& transform, tagSIZE* pSize)
{
    if (pSize)
        mapPoint(transform, pSize->cx, pSize->cy);
}

void mapPoints(const QTransform& transform, tagPOINT* pPoints, int nCount)
{
    for (int i = 0; pPoints && i < nCount; ++i)
        mapPoint(transform, pPoints[i].x, pPoints[i].y);
}

/// The identity without a device.
QTransform deviceTransform(const QPainter& painter)
{
    return painter.isActive() ? painter.deviceTransform() : QTransform();
}

} // namespace

int CDC_E::SetMapMode(int nMapMode)
{
    if (nMapMode < MM_TEXT || nMapMode > MM_ANISOTROPIC)
        return 0;
    const int previous = std::exchange(m_modes.map, nMapMode);
    const QPaintDevice* const pDevice = m_painter.isActive() ? m_painter.device() : nullptr;
    if (!pDevice)
        return previous;
    if (nMapMode == MM_TEXT) {
        const QSize size(pDevice->width(), pDevice->height());
        SetScale(size, size);
    } else if (const int units = kUnitsPerInch[nMapMode]) {
        SetScale({units, units}, {pDevice->logicalDpiX(), -pDevice->logicalDpiY()});
    } else if (nMapMode == MM_ISOTROPIC) {
        SetScale(m_painter.window().size(), m_painter.viewport().size());
    }
    return previous;
}

void CDC_E::SetScale(const QSize& window, const QSize& viewport)
{
    // Qt divides by the size of the window.
    if (window.width() == 0 || window.height() == 0)
        return;
    const bool fits =
        m_modes.map == MM_ISOTROPIC && viewport.width() != 0 && viewport.height() != 0;
    m_painter.setWindow(boundedExtent(m_painter.window().topLeft(), window));
    m_painter.setViewport(boundedExtent(m_painter.viewport().topLeft(),
                                        fits ? isotropic(window, viewport) : viewport));
}

CPoint_E CDC_E::GetViewportOrg() const { return toPoint(m_painter.viewport().topLeft()); }

CPoint_E CDC_E::SetViewportOrg(int x, int y)
{
    const CPoint_E previous = GetViewportOrg();
    m_painter.setViewport(boundedExtent({x, y}, m_painter.viewport().size()));
    return previous;
}

CPoint_E CDC_E::OffsetViewportOrg(int x, int y)
{
    const QPoint origin = m_painter.viewport().topLeft();
    return SetViewportOrg(wrappingAdd(origin.x(), x), wrappingAdd(origin.y(), y));
}

CSize_E CDC_E::GetViewportExt() const { return toSize(m_painter.viewport().size()); }

CSize_E CDC_E::SetViewportExt(int cx, int cy)
{
    const CSize_E previous = GetViewportExt();
    if (m_modes.map >= MM_ISOTROPIC)
        SetScale(m_painter.window().size(), {cx, cy});
    return previous;
}

CPoint_E CDC_E::GetWindowOrg() const { return toPoint(m_painter.window().topLeft()); }

CPoint_E CDC_E::SetWindowOrg(int x, int y)
{
    const CPoint_E previous = GetWindowOrg();
    m_painter.setWindow(boundedExtent({x, y}, m_painter.window().size()));
    return previous;
}

CPoint_E CDC_E::OffsetWindowOrg(int x, int y)
{
    const QPoint origin = m_painter.window().topLeft();
    return SetWindowOrg(wrappingAdd(origin.x(), x), wrappingAdd(origin.y(), y));
}

CSize_E CDC_E::GetWindowExt() const { return toSize(m_painter.window().size()); }

CSize_E CDC_E::SetWindowExt(int cx, int cy)
{
    const CSize_E previous = GetWindowExt();
    if (m_modes.map >= MM_ISOTROPIC)
        SetScale({cx, cy}, m_painter.viewport().size());
    return previous;
}

void CDC_E::LPtoDP(tagPOINT* pPoints, int nCount) const
{
    mapPoints(deviceTransform(m_painter), pPoints, nCount);
}

void CDC_E::LPtoDP(tagRECT* pRect) const { mapRect(deviceTransform(m_painter), pRect); }

void CDC_E::LPtoDP(tagSIZE* pSize) const { mapSize(deviceTransform(m_painter), pSize); }

void CDC_E::DPtoLP(tagPOINT* pPoints, int nCount) const
{
    mapPoints(deviceTransform(m_painter).inverted(), pPoints, nCount);
}

void CDC_E::DPtoLP(tagRECT* pRect) const { mapRect(deviceTransform(m_painter).inverted(), pRect); }

void CDC_E::DPtoLP(tagSIZE* pSize) const { mapSize(deviceTransform(m_painter).inverted(), pSize); }

int CDC_E::GetDeviceCaps(int nIndex) const
{
    const QPaintDevice* const pDevice = m_painter.isActive() ? m_painter.device() : nullptr;
    if (!pDevice)
        return 0;
    switch (nIndex) {
    case TECHNOLOGY:
        return DT_RASDISPLAY;
    case HORZSIZE:
        return pDevice->widthMM();
    case VERTSIZE:
        return pDevice->heightMM();
    case HORZRES:
        return pDevice->width();
    case VERTRES:
        return pDevice->height();
    case BITSPIXEL:
        return pDevice->depth();
    case PLANES:
        return 1;
    case LOGPIXELSX:
        return pDevice->logicalDpiX();
    case LOGPIXELSY:
        return pDevice->logicalDpiY();
    default:
        return 0;
    }
}
