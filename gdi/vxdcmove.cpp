// A memory device context goes from one bitmap to another and keeps what has been set.
#include "gdi/vxdc_p.h"

#include "gdi/vxdcdevice_p.h"

#include <algorithm>
#include <optional>

using namespace vx::detail;

namespace {

/// What a painter forgets when it ends.
class Attributes
{
public:
    explicit Attributes(const QPainter& p)
        : m_pen(p.pen()),
          m_brush(p.brush()),
          m_background(p.background()),
          m_font(p.font()),
          m_backgroundMode(p.backgroundMode()),
          m_mode(p.compositionMode()),
          m_hints(p.renderHints()),
          m_brushOrigin(p.brushOrigin()),
          m_opacity(p.opacity()),
          m_layout(p.layoutDirection()),
          m_transform(p.worldTransform()),
          m_window(p.window()),
          m_viewport(p.viewport())
    {
        if (p.hasClipping())
            m_clip = p.clipRegion();
    }

    /// With @p deviceSized the extents are those of the device.
    void apply(QPainter& p, bool deviceSized) const
    {
        const QSize device(p.device()->width(), p.device()->height());
        p.setPen(m_pen);
        p.setBrush(m_brush);
        p.setBackground(m_background);
        p.setFont(m_font);
        p.setBackgroundMode(m_backgroundMode);
        p.setCompositionMode(m_mode);
        p.setRenderHints(p.renderHints(), false);
        p.setRenderHints(m_hints);
        p.setBrushOrigin(m_brushOrigin);
        p.setOpacity(m_opacity);
        p.setLayoutDirection(m_layout);
        p.setWorldTransform(m_transform);
        p.setWindow(deviceSized ? QRect(m_window.topLeft(), device) : m_window);
        p.setViewport(deviceSized ? QRect(m_viewport.topLeft(), device) : m_viewport);
        if (m_clip)
            p.setClipRegion(*m_clip); // in the coordinates set before
        else
            p.setClipping(false);
    }

private:
    QPen m_pen;
    QBrush m_brush;
    QBrush m_background;
    QFont m_font;
    Qt::BGMode m_backgroundMode;
    QPainter::CompositionMode m_mode;
    QPainter::RenderHints m_hints;
    QPoint m_brushOrigin;
    qreal m_opacity;
    Qt::LayoutDirection m_layout;
    QTransform m_transform;
    QRect m_window;
    QRect m_viewport;
    std::optional<QRegion> m_clip;
};

} // namespace

// An attribute set or saved before a bitmap is selected holds for the bitmap too.
void CDC_E::MoveOnto(MemoryDevice* pMemory, HBITMAP hBitmap)
{
    QPainter& p = m_painter;
    if (!p.isActive()) { // ended by the caller: nothing to keep
        m_savedModes.clear();
        pMemory->select(hBitmap);
        p.begin(&pMemory->image());
        return;
    }
    std::vector<Attributes> states{Attributes(p)}; // the current ones, then those saved last first
    for (std::size_t i = 0; i < m_savedModes.size(); ++i) {
        p.restore();
        states.emplace_back(p);
    }
    p.end();
    pMemory->select(hBitmap);
    freeOrphans();
    p.begin(&pMemory->image());
    for (const Modes& saved : m_savedModes) {
        states.back().apply(p, saved.map == MM_TEXT);
        states.pop_back();
        p.save();
    }
    states.back().apply(p, m_modes.map == MM_TEXT);
}
