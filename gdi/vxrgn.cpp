#include <VxMFCEmu/gdi/rgn.h>

#include "gdi/vxgdiobject_p.h"
#include "wnd/vxgeometryconvert_p.h"

#include <VxMFCEmu/gdi/dc.h>

#include <QtGui/QPainterPath>
#include <QtGui/QRegion>

IMPLEMENT_DYNAMIC_E(CRgn_E, CGdiObject_E, QObject)

namespace {

using vx::detail::valueOf;

// Intended: the right and the bottom edge belong to the region.
QRect withCorners(int x1, int y1, int x2, int y2) { return {QPoint(x1, y1), QPoint(x2, y2)}; }

/// A region is made of rows: one as high as numbers go would take minutes and all memory.
constexpr int kFarthestCorner = 1 << 20;

bool canBeRows(const QRect& bounds)
{
    constexpr QRect kLimits(QPoint(-kFarthestCorner, -kFarthestCorner),
                            QPoint(kFarthestCorner, kFarthestCorner));
    return kLimits.contains(bounds.topLeft()) && kLimits.contains(bounds.bottomRight());
}

QRegion regionOf(const CRgn_E* pRgn)
{
    const auto* const pRegion = valueOf<const QRegion>(pRgn);
    return pRegion ? *pRegion : QRegion();
}

QRegion combined(const QRegion& a, const QRegion& b, int nMode)
{
    switch (nMode) {
    case RGN_AND:
        return a.intersected(b);
    case RGN_OR:
    case RGN_COPY: // Intended: no copy of the first region, the union of both.
        return a.united(b);
    case RGN_XOR:
        return a.xored(b);
    case RGN_DIFF:
        return a.subtracted(b);
    default:
        return {};
    }
}

} // namespace

CRgn_E* CRgn_E::FromHandle(HRGN hRgn) { return vx::detail::gdiObjectFromHandle<CRgn_E>(hRgn); }

BOOL CRgn_E::CreateRectRgn(int x1, int y1, int x2, int y2)
{
    return Attach(new QRegion(withCorners(x1, y1, x2, y2)));
}

BOOL CRgn_E::CreateRectRgnIndirect(const tagRECT* lpRect)
{
    return lpRect ? CreateRectRgn(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom) : FALSE;
}

BOOL CRgn_E::CreateEllipticRgn(int x1, int y1, int x2, int y2)
{
    const QRect rect = withCorners(x1, y1, x2, y2);
    return canBeRows(rect) ? Attach(new QRegion(rect, QRegion::Ellipse)) : FALSE;
}

BOOL CRgn_E::CreateEllipticRgnIndirect(const tagRECT* lpRect)
{
    return lpRect ? CreateEllipticRgn(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom)
                  : FALSE;
}

BOOL CRgn_E::CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3)
{
    const QRect rect = withCorners(x1, y1, x2, y2);
    if (!canBeRows(rect))
        return FALSE;
    QPainterPath path;
    path.addRoundedRect(rect, x3, y3, Qt::AbsoluteSize);
    return Attach(new QRegion(path.toFillPolygon().toPolygon(), Qt::OddEvenFill));
}

BOOL CRgn_E::CreatePolygonRgn(const tagPOINT* lpPoints, int nCount, int)
{
    if (!lpPoints || nCount <= 0)
        return FALSE;
    QPolygon polygon;
    polygon.reserve(nCount);
    for (int i = 0; i < nCount; ++i)
        polygon.append(vx::detail::fromPoint(lpPoints[i]));
    if (!canBeRows(polygon.boundingRect()))
        return FALSE;
    return Attach(new QRegion(polygon, Qt::OddEvenFill));
}

BOOL CRgn_E::CreatePolyPolygonRgn(const tagPOINT*, const int*, int, int) { return 1; }

BOOL CRgn_E::CreateFromPath(CDC_E* pDC)
{
    if (!pDC)
        return FALSE;
    const QPainter& painter = pDC->m_painter;
    return Attach(painter.isActive() ? new QRegion(painter.clipRegion()) : new QRegion);
}

BOOL CRgn_E::CreateFromData(const tagXFORM*, int, const tagRGNDATA*) { return 0; }

BOOL CRgn_E::SetRegion(const QRegion& region)
{
    auto* const pOld = valueOf<QRegion>(this);
    if (!pOld || vx::detail::isSharedHandle(pOld))
        return Attach(new QRegion(region)); // the other objects keep the old one
    *pOld = region;
    return TRUE;
}

BOOL CRgn_E::SetRectRgn(int x1, int y1, int x2, int y2)
{
    return SetRegion(withCorners(x1, y1, x2, y2));
}

BOOL CRgn_E::SetRectRgn(const tagRECT* lpRect)
{
    return lpRect ? SetRectRgn(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom) : FALSE;
}

BOOL CRgn_E::CombineRgn(const CRgn_E* pRgn1, const CRgn_E* pRgn2, int nCombineMode)
{
    return SetRegion(combined(regionOf(pRgn1), regionOf(pRgn2), nCombineMode));
}

BOOL CRgn_E::CopyRgn(const CRgn_E* pRgnSrc)
{
    HRGN const hRgn = vx::detail::handleOf(pRgnSrc);
    if (hRgn && hRgn != m_hObject)
        DeleteObject();
    return Attach(hRgn);
}

BOOL CRgn_E::EqualRgn(const CRgn_E* pRgn) const { return m_hObject == vx::detail::handleOf(pRgn); }

UINT CRgn_E::OffsetRgn(int x, int y)
{
    auto* const pRegion = valueOf<QRegion>(this);
    if (!pRegion)
        return GDI_ERROR;
    pRegion->translate(x, y);
    return 0;
}

UINT CRgn_E::OffsetRgn(tagPOINT point) { return OffsetRgn(point.x, point.y); }

int CRgn_E::GetRgnBox(tagRECT* lpRect) const
{
    const auto* const pRegion = valueOf<const QRegion>(this);
    if (!pRegion || !lpRect)
        return 0;
    *lpRect = vx::detail::toRect(pRegion->boundingRect());
    return SIMPLEREGION;
}

BOOL CRgn_E::PtInRegion(int x, int y) const { return regionOf(this).contains(QPoint(x, y)); }

BOOL CRgn_E::PtInRegion(tagPOINT point) const { return PtInRegion(point.x, point.y); }

BOOL CRgn_E::RectInRegion(const tagRECT* lpRect) const
{
    return lpRect && regionOf(this).contains(vx::detail::fromRect(*lpRect));
}

UINT CRgn_E::GetRegionData(tagRGNDATA*, int) const { return GDI_ERROR; }

CGdiObject_E::FreeHandleFn CRgn_E::HandleDeleter() const { return &vx::detail::freeValue<QRegion>; }
