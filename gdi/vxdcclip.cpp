// The clip of a device context.
#include "gdi/vxdc_p.h"

#include <VxMFCEmu/wnd/window.h>

#include <QtWidgets/QWidget>

using namespace vx::detail;

namespace {

/// What can be drawn on, in logical coordinates.
QRegion visibleRegion(const QPainter& painter)
{
    const QRegion bounds = logicalBounds(painter);
    return painter.hasClipping() ? painter.clipRegion() & bounds : bounds;
}

} // namespace

QRect vx::detail::logicalBounds(const QPainter& painter)
{
    const QPaintDevice* const pDevice = painter.isActive() ? painter.device() : nullptr;
    if (!pDevice)
        return {};
    const QRect bounds(0, 0, pDevice->width(), pDevice->height());
    return painter.combinedTransform().inverted().mapRect(bounds);
}

UINT CDC_E::SelectObject(CRgn_E* pRgn) { return SelectClipRgn(pRgn, Qt::ReplaceClip); }

int CDC_E::SelectClipRgn(CRgn_E* pRgn)
{
    if (SelectClipRgn(pRgn, Qt::ReplaceClip) == GDI_ERROR)
        m_painter.setClipping(false);
    return 0;
}

UINT CDC_E::SelectClipRgn(CRgn_E* pRgn, int nMode)
{
    const auto* const pRegion = valueOf<QRegion>(pRgn);
    if (!pRegion)
        return GDI_ERROR;
    m_painter.setClipRegion(*pRegion, static_cast<Qt::ClipOperation>(nMode));
    return 0;
}

int CDC_E::ExcludeClipRect(int l, int t, int r, int b)
{
    const tagRECT rect{l, t, r, b};
    return ExcludeClipRect(&rect);
}

int CDC_E::ExcludeClipRect(const tagRECT* pRect)
{
    if (pRect)
        m_painter.setClipRect(fromRect(*pRect), Qt::IntersectClip); // Intended: not taken out.
    return 0;
}

int CDC_E::IntersectClipRect(int l, int t, int r, int b)
{
    const tagRECT rect{l, t, r, b};
    return IntersectClipRect(&rect);
}

int CDC_E::IntersectClipRect(const tagRECT* pRect)
{
    if (pRect)
        m_painter.setClipRegion(fromRect(*pRect), Qt::IntersectClip); // corners, like all others
    return 0;
}

int CDC_E::OffsetClipRgn(int x, int y)
{
    m_painter.translate(x, y); // Intended: drawing moves too.
    return 0;
}

int CDC_E::ExcludeUpdateRgn(CWnd_E* pWnd)
{
    const QWidget* const pWidget = pWnd ? pWnd->GetSafeHwnd() : nullptr;
    if (!pWidget)
        return 0;
    // Without a clip everything is visible, and stays so but for the window.
    const QRegion clip =
        m_painter.hasClipping() ? m_painter.clipRegion() : logicalBounds(m_painter);
    m_painter.setClipRegion(clip - pWidget->geometry());
    return 0;
}

int CDC_E::GetClipBox(tagRECT* pRect) const
{
    if (!pRect || !m_painter.isActive())
        return 0;
    const QRegion region = visibleRegion(m_painter);
    *pRect = toRect(region.boundingRect());
    if (region.isEmpty())
        return NULLREGION;
    return region.rectCount() == 1 ? SIMPLEREGION : COMPLEXREGION;
}

BOOL CDC_E::PtVisible(int x, int y) const
{
    return visibleRegion(m_painter).contains(QPoint(x, y));
}

BOOL CDC_E::RectVisible(const tagRECT* pRect) const
{
    return pRect && visibleRegion(m_painter).intersects(fromRect(*pRect));
}
