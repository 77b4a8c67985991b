#include "gdi/vxdcdevice_p.h"

#include <VxMFCEmu/core/handlemap.h>

#include <QtGui/QBackingStore>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QWindow>

#include <algorithm>
#include <cstring>
#include <vector>

namespace vx::detail {

namespace {

QImage* asImage(QPaintDevice* pDevice)
{
    return pDevice && pDevice->devType() == QInternal::Image ? static_cast<QImage*>(pDevice)
                                                             : nullptr;
}

/// Whether @p pWidget or one inside it, in the same window, is in a paint event.
bool isInPaintEvent(const QWidget* pWidget)
{
    if (pWidget->testAttribute(Qt::WA_WState_InPaintEvent))
        return true;
    const QObjectList& children = pWidget->children();
    return std::any_of(children.cbegin(), children.cend(), [](const QObject* pObject) {
        const auto* const pChild =
            pObject->isWidgetType() ? static_cast<const QWidget*>(pObject) : nullptr;
        return pChild && !pChild->isWindow() && isInPaintEvent(pChild);
    });
}

/// Whether any widget of a window is being painted. All share the store: the painting of one must
/// not be begun or ended under that of another.
bool isBeingPainted(QBackingStore& store, const QWidget* pWindow)
{
    const QPaintDevice* const pDevice = store.paintDevice();
    return (pDevice && pDevice->paintingActive()) || isInPaintEvent(pWindow);
}

/// Shows what the store of @p pWidget's window has in @p region, in coordinates of that window.
void flushStore(QWidget* pWidget, const QRegion& region)
{
    QBackingStore* const pStore = pWidget->backingStore();
    const QWidget* const pNative =
        pWidget->internalWinId() ? pWidget : pWidget->nativeParentWidget();
    if (!pStore || !pWidget->isVisible() || !pNative || !pNative->windowHandle())
        return;
    const QPoint offset = pNative->mapTo(pWidget->window(), QPoint());
    pStore->flush(region.translated(-offset), pNative->windowHandle(), offset);
}

/// The image behind a window, while it may be read and written.
class WindowPixels
{
public:
    explicit WindowPixels(const QWidget* pWidget)
        : m_pStore(pWidget->isVisible() ? pWidget->backingStore() : nullptr)
    {
        if (!m_pStore || m_pStore->size().isEmpty())
            return;
        // Without a region nothing is cleared.
        m_begun = !isBeingPainted(*m_pStore, pWidget->window());
        if (m_begun)
            m_pStore->beginPaint(QRegion());
        QImage* const pImage = asImage(m_pStore->paintDevice());
        if (pImage && pImage->depth() == 32)
            m_pImage = pImage;
    }
    ~WindowPixels()
    {
        if (m_begun)
            m_pStore->endPaint();
    }
    WindowPixels(const WindowPixels&) = delete;
    WindowPixels& operator=(const WindowPixels&) = delete;

    /// Null when there is none, or none of 32 bits.
    QImage* image() const { return m_pImage; }

    /// Shows @p region, in coordinates of the top-level window.
    void flush(QWidget* pWidget, const QRegion& region)
    {
        if (std::exchange(m_begun, false)) {
            m_pStore->endPaint();
            flushStore(pWidget, region);
            return;
        }
        // At the end of the paint event Qt shows only what it asked for.
        QMetaObject::invokeMethod(
            pWidget, [pWidget, region] { flushStore(pWidget, region); }, Qt::QueuedConnection);
    }

private:
    QBackingStore* m_pStore;
    QImage* m_pImage = nullptr;
    bool m_begun = false;
};

QRect scaled(const QRect& rect, qreal ratio)
{
    return QRectF(rect.x() * ratio, rect.y() * ratio, rect.width() * ratio, rect.height() * ratio)
        .toAlignedRect();
}

/// Copies the pixels of @p rect that differ between @p before and @p after; returns their bounds.
QRect copyChanges(const QImage& before, const QImage& after, const QRect& rect, QImage& target,
                  const QPoint& offset)
{
    QRect changed;
    const auto width = static_cast<std::size_t>(rect.width());
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const auto* const pOld = reinterpret_cast<const QRgb*>(before.constScanLine(y)) + rect.x();
        const auto* const pNew = reinterpret_cast<const QRgb*>(after.constScanLine(y)) + rect.x();
        if (std::memcmp(pOld, pNew, width * sizeof(QRgb)) == 0)
            continue;
        auto* const pTarget =
            reinterpret_cast<QRgb*>(rowOf(target, y + offset.y())) + rect.x() + offset.x();
        for (std::size_t x = 0; x < width; ++x)
            pTarget[x] = pOld[x] == pNew[x] ? pTarget[x] : pNew[x];
        changed |= QRect(rect.x(), y, rect.width(), 1);
    }
    return changed;
}

} // namespace

QImage* pixelsOf(const QPainter& painter)
{
    const QPaintEngine* const pEngine = painter.isActive() ? painter.paintEngine() : nullptr;
    return pEngine ? asImage(pEngine->paintDevice()) : nullptr;
}

uchar* rowOf(QImage& image, int y) { return const_cast<uchar*>(image.constScanLine(y)); }

bool canPaintOn(const QWidget& widget)
{
    if (!widget.testAttribute(Qt::WA_WState_InPaintEvent))
        return false;
    // The painter counts on the device that the event paints on: the window's or a grabbed image.
    struct Access : QWidget
    {
        using QWidget::redirected;
        using QWidget::sharedPainter;
    };
    const QPaintDevice* const pDevice = (widget.*&Access::redirected)(nullptr);
    // QWidget::render() lends its painter, on which others may be stacked.
    return !pDevice || !pDevice->paintingActive() || (widget.*&Access::sharedPainter)();
}

PaintedWidget::PaintedWidget(QWidget* pWidget, QPainter& painter)
    : m_connection(QObject::connect(pWidget, &QObject::destroyed, [&painter] { painter.end(); }))
{
}

PaintedWidget::~PaintedWidget() { QObject::disconnect(m_connection); }

ClientSurface::ClientSurface(QWidget* pWidget) : m_widget(pWidget)
{
    const WindowPixels window(pWidget);
    if (const QImage* const pImage = window.image()) {
        const qreal ratio = pImage->devicePixelRatio();
        const QRect place(pWidget->mapTo(pWidget->window(), QPoint()), pWidget->size());
        m_before = pImage->copy(scaled(place, ratio));
        m_before.setDevicePixelRatio(ratio);
    }
    if (!m_before.isNull()) {
        m_image = m_before;
        return;
    }
    m_image = QImage(pWidget->size().expandedTo(QSize(1, 1)), QImage::Format_RGB32);
    m_image.fill(pWidget->palette().color(pWidget->backgroundRole()));
}

ClientSurface::~ClientSurface()
{
    if (!m_widget || m_before.isNull())
        return;
    WindowPixels window(m_widget);
    QImage* const pTarget = window.image();
    // The window may have got another image meanwhile.
    if (!pTarget || pTarget->format() != m_image.format() ||
        pTarget->devicePixelRatio() != m_image.devicePixelRatio())
        return;
    const qreal ratio = pTarget->devicePixelRatio();
    const QPoint inWindow = m_widget->mapTo(m_widget->window(), QPoint());
    const QPoint offset = scaled(QRect(inWindow, QSize(1, 1)), ratio).topLeft();
    const QRect bounds = m_image.rect() & pTarget->rect().translated(-offset);
    QRegion changed;
    for (const QRect& visible : m_widget->visibleRegion()) {
        const QRect rect = scaled(visible, ratio) & bounds;
        changed += copyChanges(m_before, m_image, rect, *pTarget, offset);
    }
    if (changed.isEmpty())
        return;
    const QRect shown = scaled(changed.boundingRect(), 1 / ratio);
    window.flush(m_widget, shown.translated(inWindow));
}

namespace {

/// Images whose bitmaps went while a painter was at work on them. Objects with static storage may
/// look here at unload, and the temporary ones of the handle maps' state after them.
__attribute__((init_priority(101))) std::vector<std::unique_ptr<QImage>> orphans;

} // namespace

MemoryDevice::MemoryDevice()
{
    m_stock.CreateBitmap(1, 1, 1, 32, nullptr);
    select(m_stock.GetSafeHandle());
}

CBitmap_E* MemoryDevice::selected()
{
    const CHandleMap_E* const pMap = afxMapHGDIOBJ_E(TRUE);
    CObject_E* pObject = pMap->LookupPermanent(m_pImage);
    if (!pObject)
        pObject = pMap->LookupTemporary(m_pImage);
    const bool orphan = std::any_of(orphans.cbegin(), orphans.cend(),
                                    [this](const auto& p) { return p.get() == m_pImage; });
    auto* const pBitmap = orphan ? nullptr : dynamic_cast<CBitmap_E*>(pObject);
    return pBitmap ? pBitmap : &m_stock;
}

void freeBitmapImage(HBITMAP hBitmap)
{
    std::unique_ptr<QImage> image(static_cast<QImage*>(hBitmap));
    if (image && image->paintingActive())
        orphans.push_back(std::move(image));
}

void freeOrphans()
{
    if (orphans.empty())
        return;
    orphans.erase(std::remove_if(orphans.begin(), orphans.end(),
                                 [](const auto& p) { return !p->paintingActive(); }),
                  orphans.end());
}

} // namespace vx::detail
