// Private: what the sources of the device context share.
#pragma once

#include "gdi/vxgdihandles_p.h"
#include "wnd/vxgeometryconvert_p.h"

#include <VxMFCEmu/gdi/dc.h>

namespace vx::detail {

/// Restores all attributes of a painter at the end of a scope.
class PainterState
{
public:
    explicit PainterState(QPainter& painter) : m_painter(painter) { m_painter.save(); }
    ~PainterState() { m_painter.restore(); }
    PainterState(const PainterState&) = delete;
    PainterState& operator=(const PainterState&) = delete;

private:
    QPainter& m_painter;
};

/// Sets a composition mode for a scope.
class CompositionScope
{
public:
    CompositionScope(QPainter& painter, QPainter::CompositionMode mode)
        : m_painter(painter), m_previous(painter.compositionMode())
    {
        m_painter.setCompositionMode(mode);
    }
    ~CompositionScope() { m_painter.setCompositionMode(m_previous); }
    CompositionScope(const CompositionScope&) = delete;
    CompositionScope& operator=(const CompositionScope&) = delete;

private:
    QPainter& m_painter;
    QPainter::CompositionMode m_previous;
};

/// The bounds of the device in logical coordinates; empty without one.
QRect logicalBounds(const QPainter& painter);

} // namespace vx::detail
