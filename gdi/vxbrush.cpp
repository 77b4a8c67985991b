#include <VxMFCEmu/gdi/brush.h>

#include "gdi/vxgdiobject_p.h"

#include <VxMFCEmu/gdi/bitmap.h>
#include <VxMFCEmu/gdi/colorref.h>
#include <VxMFCEmu/wnd/hostwindows.h>

#include <QtGui/QBrush>
#include <QtWidgets/QWidget>

IMPLEMENT_DYNAMIC_E(CBrush_E, CGdiObject_E, QObject)

namespace {

struct StyleRow
{
    Qt::BrushStyle style;
    UINT lbStyle;
    int nHatch;
};

constexpr StyleRow kStyles[] = {
    {Qt::HorPattern, BS_HATCHED, HS_HORIZONTAL},
    {Qt::VerPattern, BS_HATCHED, HS_VERTICAL},
    {Qt::FDiagPattern, BS_HATCHED, HS_FDIAGONAL},
    {Qt::BDiagPattern, BS_HATCHED, HS_BDIAGONAL},
    {Qt::CrossPattern, BS_HATCHED, HS_CROSS},
    {Qt::DiagCrossPattern, BS_HATCHED, HS_DIAGCROSS},
    {Qt::NoBrush, BS_NULL, 0},
    {Qt::SolidPattern, BS_SOLID, 0},
    {Qt::TexturePattern, BS_PATTERN, 0},
};

} // namespace

CBrush_E::CBrush_E(COLORREF crColor) { CreateSolidBrush(crColor); }

CBrush_E::CBrush_E(int nHatch, COLORREF crColor) { CreateHatchBrush(nHatch, crColor); }

CBrush_E::CBrush_E(CBitmap_E* pBitmap) { CreatePatternBrush(pBitmap); }

CBrush_E* CBrush_E::FromHandle(HBRUSH hBrush)
{
    return vx::detail::gdiObjectFromHandle<CBrush_E>(hBrush);
}

BOOL CBrush_E::CreateSolidBrush(COLORREF crColor)
{
    return Attach(new QBrush(vx::detail::toQColor(crColor)));
}

BOOL CBrush_E::CreateHatchBrush(int nHatch, COLORREF crColor)
{
    return Attach(new QBrush(vx::detail::toQColor(crColor), mapToBrushStyle(nHatch)));
}

BOOL CBrush_E::CreatePatternBrush(CBitmap_E* pBitmap)
{
    const auto* const pImage = vx::detail::valueOf<QImage>(pBitmap);
    return pImage ? Attach(new QBrush(*pImage)) : FALSE;
}

BOOL CBrush_E::CreateBrushIndirect(const tagLOGBRUSH* pLogBrush)
{
    if (pLogBrush && pLogBrush->lbStyle == BS_SOLID)
        return CreateSolidBrush(pLogBrush->lbColor);
    if (pLogBrush && pLogBrush->lbStyle == BS_HATCHED)
        return CreateHatchBrush(static_cast<int>(pLogBrush->lbHatch), pLogBrush->lbColor);
    return FALSE;
}

BOOL CBrush_E::CreateSysColorBrush(int)
{
    // Intended: the index is not looked at.
    const QWidget* const pFrame = TolmGetMainFrame();
    return Attach(pFrame ? new QBrush(pFrame->palette().window()) : new QBrush);
}

int CBrush_E::GetLogBrush(tagLOGBRUSH* pLogBrush) const
{
    const auto* const pBrush = vx::detail::valueOf<QBrush>(this);
    if (!pBrush || !pLogBrush)
        return 0;
    const auto [lbStyle, lbHatch] = mapToHatchStyle(pBrush->style());
    *pLogBrush = {lbStyle, vx::detail::toColorRef(pBrush->color()), lbHatch};
    return 1;
}

Qt::BrushStyle CBrush_E::mapToBrushStyle(int nHatch)
{
    for (const StyleRow& row : kStyles) {
        if (row.lbStyle == BS_HATCHED && row.nHatch == nHatch)
            return row.style;
    }
    return Qt::NoBrush;
}

std::pair<UINT, ULONG_PTR> CBrush_E::mapToHatchStyle(Qt::BrushStyle style)
{
    for (const StyleRow& row : kStyles) {
        if (row.style == style)
            return {row.lbStyle, static_cast<ULONG_PTR>(row.nHatch)};
    }
    return {0, 0};
}

CGdiObject_E::FreeHandleFn CBrush_E::HandleDeleter() const
{
    return &vx::detail::freeValue<QBrush>;
}
