// The attributes of a device context: selected objects, colours and modes.
#include "gdi/vxdc_p.h"

#include <VxMFCEmu/gdi/bitmap.h>
#include <VxMFCEmu/gdi/brush.h>
#include <VxMFCEmu/gdi/font.h>
#include <VxMFCEmu/gdi/pen.h>

#include <algorithm>

using namespace vx::detail;

namespace {

constexpr Qt::GlobalColor kStockBrushes[] = {Qt::white, Qt::lightGray, Qt::gray, Qt::darkGray,
                                             Qt::black};
static_assert(std::size(kStockBrushes) == BLACK_BRUSH + 1);

// clang-format off
constexpr struct
{
    int rop;
    QPainter::CompositionMode mode;
} kDrawModes[] = {
    {R2_BLACK,       QPainter::RasterOp_ClearDestination},
    {R2_NOTMERGEPEN, QPainter::RasterOp_NotSourceAndNotDestination},
    {R2_MASKNOTPEN,  QPainter::RasterOp_NotSourceAndDestination},
    {R2_NOTCOPYPEN,  QPainter::RasterOp_NotSource},
    {R2_MASKPENNOT,  QPainter::RasterOp_SourceAndNotDestination},
    {R2_NOT,         QPainter::RasterOp_NotDestination},
    {R2_XORPEN,      QPainter::RasterOp_SourceXorDestination},
    {R2_NOTMASKPEN,  QPainter::RasterOp_NotSourceOrNotDestination},
    {R2_MASKPEN,     QPainter::RasterOp_SourceAndDestination},
    {R2_NOTXORPEN,   QPainter::RasterOp_NotSourceXorDestination},
    {R2_NOP,         QPainter::CompositionMode_Destination},
    {R2_MERGENOTPEN, QPainter::RasterOp_NotSourceOrDestination},
    {R2_COPYPEN,     QPainter::CompositionMode_SourceOver},
    {R2_MERGEPENNOT, QPainter::RasterOp_SourceOrNotDestination},
    {R2_MERGEPEN,    QPainter::RasterOp_SourceOrDestination},
    {R2_WHITE,       QPainter::RasterOp_SetDestination},
};
// clang-format on
static_assert(std::size(kDrawModes) == 16);

/// Sets @p mode when it is one of first to last; returns the previous one, or 0.
int exchangeMode(int& mode, int next, int first, int last)
{
    return next < first || next > last ? 0 : std::exchange(mode, next);
}

/// Whether @p nIndex names an entry of a colour table. Entries beyond 255 are never used.
bool isIndex(const QVector<PALETTEENTRY>& table, int nIndex)
{
    return nIndex >= 0 && nIndex <= 255 && nIndex < table.size();
}

COLORREF colorOf(const PALETTEENTRY& entry)
{
    return RGB(entry.peRed, entry.peGreen, entry.peBlue);
}

} // namespace

int CDC_E::SaveDC()
{
    m_painter.save();
    if (m_painter.isActive()) // or else the painter has saved nothing
        m_savedModes.push_back(m_modes);
    return 0;
}

BOOL CDC_E::RestoreDC(int)
{
    m_painter.restore();
    if (!m_savedModes.empty()) {
        m_modes = m_savedModes.back();
        m_savedModes.pop_back();
    }
    return TRUE;
}

CGdiObject_E* CDC_E::SelectStockObject(int nIndex)
{
    if (nIndex >= WHITE_BRUSH && nIndex <= BLACK_BRUSH)
        m_painter.setBrush(QColor(kStockBrushes[nIndex]));
    else if (nIndex == WHITE_PEN || nIndex == BLACK_PEN)
        m_painter.setPen(QPen(QColor(nIndex == WHITE_PEN ? Qt::white : Qt::black)));
    return nullptr; // Intended: the previous object cannot be had from here.
}

QFont CDC_E::SelectObject(CFont_E* pFont)
{
    return pFont ? SelectObject(static_cast<const QFont&>(*pFont)) : m_painter.font();
}

QFont CDC_E::SelectObject(const QFont& font)
{
    QFont previous = m_painter.font();
    m_painter.setFont(font);
    return previous;
}

QPen CDC_E::SelectObject(const QPen& pen)
{
    QPen previous = m_painter.pen();
    m_painter.setPen(pen);
    return previous;
}

QBrush CDC_E::SelectObject(const QBrush& brush)
{
    QBrush previous = m_painter.brush();
    m_painter.setBrush(brush);
    return previous;
}

CPen_E* CDC_E::SelectObject(CPen_E* pPen)
{
    CPen_E* const pPrevious = m_selectedPen.objectOf(m_painter.pen());
    if (const auto* const pValue = valueOf<QPen>(pPen)) {
        m_painter.setPen(*pValue);
        m_selectedPen.note(pPen);
    }
    return pPrevious;
}

CBrush_E* CDC_E::SelectObject(CBrush_E* pBrush)
{
    CBrush_E* const pPrevious = m_selectedBrush.objectOf(m_painter.brush());
    if (const auto* const pValue = valueOf<QBrush>(pBrush)) {
        m_painter.setBrush(*pValue);
        m_selectedBrush.note(pBrush);
    }
    return pPrevious;
}

CGdiObject_E* CDC_E::SelectObject(CGdiObject_E* pObject)
{
    if (auto* const pPen = dynamic_cast<CPen_E*>(pObject))
        return SelectObject(pPen);
    if (auto* const pBrush = dynamic_cast<CBrush_E*>(pObject))
        return SelectObject(pBrush);
    if (auto* const pBitmap = dynamic_cast<CBitmap_E*>(pObject))
        return SelectObject(pBitmap);
    if (auto* const pFont = dynamic_cast<CFont_E*>(pObject))
        SelectObject(pFont);
    else if (auto* const pRgn = dynamic_cast<CRgn_E*>(pObject))
        SelectObject(pRgn);
    return nullptr;
}

VxColorResult CDC_E::GetBkColor() const { return m_painter.background().color(); }

VxColorResult CDC_E::SetBkColor(COLORREF crColor) { return SetBkColor(toQColor(crColor)); }

VxColorResult CDC_E::SetBkColor(int nIndex)
{
    return isIndex(m_colorTable, nIndex) ? SetBkColor(colorOf(m_colorTable.at(nIndex)))
                                         : GetBkColor();
}

VxColorResult CDC_E::SetBkColor(const QColor& color)
{
    VxColorResult previous = GetBkColor();
    m_painter.setBackground(color);
    return previous;
}

VxColorResult CDC_E::GetTextColor() const
{
    return m_textColor == CLR_NONE ? VxColorResult(m_painter.pen().color())
                                   : VxColorResult(m_textColor);
}

VxColorResult CDC_E::SetTextColor(COLORREF crColor)
{
    VxColorResult previous = GetTextColor();
    m_textColor = crColor;
    return previous;
}

VxColorResult CDC_E::SetTextColor(int nIndex)
{
    return isIndex(m_colorTable, nIndex) ? SetTextColor(colorOf(m_colorTable.at(nIndex)))
                                         : GetTextColor();
}

VxColorResult CDC_E::SetTextColor(const QColor& color) { return SetTextColor(toColorRef(color)); }

int CDC_E::GetBkMode() const { return m_painter.backgroundMode(); }

int CDC_E::SetBkMode(int nBkMode)
{
    const int previous = GetBkMode(); // Intended: Qt's number, not that of Win32.
    m_painter.setBackgroundMode(nBkMode == TRANSPARENT ? Qt::TransparentMode : Qt::OpaqueMode);
    return previous;
}

int CDC_E::GetROP2() const
{
    const QPainter::CompositionMode mode = m_painter.compositionMode();
    const auto* const pRow = std::find_if(std::begin(kDrawModes), std::end(kDrawModes),
                                          [mode](const auto& row) { return row.mode == mode; });
    return pRow == std::end(kDrawModes) ? R2_COPYPEN : pRow->rop;
}

int CDC_E::SetROP2(int nDrawMode)
{
    const int previous = GetROP2();
    if (nDrawMode >= R2_BLACK && nDrawMode <= R2_WHITE)
        m_painter.setCompositionMode(kDrawModes[nDrawMode - R2_BLACK].mode);
    return previous;
}

int CDC_E::SetPolyFillMode(int nPolyFillMode)
{
    return exchangeMode(m_modes.polyFill, nPolyFillMode, ALTERNATE, WINDING);
}

int CDC_E::SetStretchBltMode(int nStretchMode)
{
    return exchangeMode(m_modes.stretch, nStretchMode, BLACKONWHITE, HALFTONE);
}

int CDC_E::SetArcDirection(int nArcDirection)
{
    return exchangeMode(m_modes.arc, nArcDirection, AD_COUNTERCLOCKWISE, AD_CLOCKWISE);
}

UINT CDC_E::SetTextAlign(UINT nFlags) { return std::exchange(m_modes.textAlign, nFlags); }

CPoint_E CDC_E::GetBrushOrg() const { return toPoint(m_painter.brushOrigin()); }

CPoint_E CDC_E::SetBrushOrg(int x, int y)
{
    const CPoint_E previous = GetBrushOrg();
    m_painter.setBrushOrigin(x, y);
    return previous;
}
