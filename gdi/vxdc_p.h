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

/// Coordinates in which x grows to the right and y downwards on the device, for a scope: text,
/// icons and images stand upright there. Differs from the logical ones in signs only.
class UprightScope
{
public:
    explicit UprightScope(QPainter& painter)
        : m_painter(painter),
          m_x(isNegative(painter.window().width()) == isNegative(painter.viewport().width()) ? 1
                                                                                             : -1),
          m_y(isNegative(painter.window().height()) == isNegative(painter.viewport().height()) ? 1
                                                                                               : -1)
    {
        if (!isSame())
            m_painter.scale(m_x, m_y);
    }
    ~UprightScope()
    {
        if (!isSame())
            m_painter.scale(m_x, m_y);
    }
    UprightScope(const UprightScope&) = delete;
    UprightScope& operator=(const UprightScope&) = delete;

    /// Logical coordinates to those of the scope, and back.
    int x(int value) const { return m_x < 0 ? wrappingSub(0, value) : value; }
    int y(int value) const { return m_y < 0 ? wrappingSub(0, value) : value; }
    tagRECT rect(const tagRECT& rc) const
    {
        return {x(rc.left), y(rc.top), x(rc.right), y(rc.bottom)};
    }

private:
    static bool isNegative(int extent) { return extent < 0; }
    bool isSame() const { return m_x > 0 && m_y > 0; }

    QPainter& m_painter;
    int m_x;
    int m_y;
};

/// No device reaches farther, on Win32 neither: sums of such coordinates do not overflow.
inline constexpr int kFarthest = 1 << 27;
inline int bounded(int coordinate) { return qBound(-kFarthest, coordinate, kFarthest); }

/// The pixels of a rectangle, as far as the farthest ones.
inline QRect boundedRect(const tagRECT& rc)
{
    return fromRect({bounded(rc.left), bounded(rc.top), bounded(rc.right), bounded(rc.bottom)});
}

/// The pixels of an extent. One that ends beyond what can be counted wraps around.
inline QRect extentRect(int x, int y, int cx, int cy)
{
    return fromRect({x, y, wrappingAdd(x, cx), wrappingAdd(y, cy)});
}

/// The bounds of the device in logical coordinates; empty without one.
QRect logicalBounds(const QPainter& painter);

} // namespace vx::detail
