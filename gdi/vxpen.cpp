#include <VxMFCEmu/gdi/pen.h>

#include "gdi/vxgdiobject_p.h"

#include <VxMFCEmu/gdi/brush.h>
#include <VxMFCEmu/gdi/colorref.h>

#include <QtGui/QPen>

IMPLEMENT_DYNAMIC_E(CPen_E, CGdiObject_E, QObject)

namespace {

struct StyleRow
{
    int nPenStyle;
    Qt::PenStyle style;
};

constexpr StyleRow kStyles[] = {
    {PS_SOLID, Qt::SolidLine},
    {PS_DASH, Qt::DashLine},
    {PS_DOT, Qt::DotLine},
    {PS_DASHDOT, Qt::DashDotLine},
    {PS_DASHDOTDOT, Qt::DashDotDotLine},
};

QPen* makePen(int nPenStyle, int nWidth, const QColor& color)
{
    auto* const pPen = new QPen(CPen_E::mapToQtPenStyle(nPenStyle));
    pPen->setWidth(nWidth);
    pPen->setColor(color);
    return pPen;
}

} // namespace

CPen_E::CPen_E(int nPenStyle, int nWidth, COLORREF crColor)
{
    CreatePen(nPenStyle, nWidth, crColor);
}

CPen_E::CPen_E(int nPenStyle, int nWidth, const tagLOGBRUSH* pLogBrush, int nStyleCount,
               const UINT* lpStyle)
{
    CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle);
}

CPen_E* CPen_E::FromHandle(HPEN hPen) { return vx::detail::gdiObjectFromHandle<CPen_E>(hPen); }

BOOL CPen_E::CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
{
    return Attach(makePen(nPenStyle, nWidth, vx::detail::toQColor(crColor)));
}

BOOL CPen_E::CreatePen(int nPenStyle, int nWidth, const tagLOGBRUSH* pLogBrush, int, const UINT*)
{
    // Intended: the colour is taken as 0x00RRGGBB here.
    return pLogBrush ? Attach(makePen(nPenStyle, nWidth, QColor(QRgb{pLogBrush->lbColor}))) : FALSE;
}

BOOL CPen_E::CreatePenIndirect(const tagLOGPEN* pLogPen)
{
    return pLogPen ? CreatePen(static_cast<int>(pLogPen->lopnStyle), pLogPen->lopnWidth.x,
                               pLogPen->lopnColor)
                   : FALSE;
}

int CPen_E::GetLogPen(tagLOGPEN* pLogPen) const
{
    const auto* const pPen = vx::detail::valueOf<QPen>(this);
    if (!pPen || !pLogPen)
        return 0;
    *pLogPen = {static_cast<UINT>(mapToMfcPenStyle(pPen->style())),
                {pPen->width(), 0},
                vx::detail::toColorRef(pPen->color())};
    return 1;
}

int CPen_E::GetExtLogPen(tagEXTLOGPEN*) const { return 0; }

Qt::PenStyle CPen_E::mapToQtPenStyle(int nPenStyle)
{
    for (const StyleRow& row : kStyles) {
        if (row.nPenStyle == nPenStyle)
            return row.style;
    }
    return Qt::NoPen;
}

int CPen_E::mapToMfcPenStyle(Qt::PenStyle style)
{
    for (const StyleRow& row : kStyles) {
        if (row.style == style)
            return row.nPenStyle;
    }
    return PS_NULL;
}

CGdiObject_E::FreeHandleFn CPen_E::HandleDeleter() const { return &vx::detail::freeValue<QPen>; }
