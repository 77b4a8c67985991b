// Private: what a device context draws on when that is not simply an image of its user.
#pragma once

#include <VxMFCEmu/gdi/bitmap.h>

#include <QtCore/QPointer>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>

#include <memory>

class QPainter;

namespace vx::detail {

/// Goes after the painter has ended.
class DcDevice
{
public:
    DcDevice() = default;
    virtual ~DcDevice() = default;
    DcDevice(const DcDevice&) = delete;
    DcDevice& operator=(const DcDevice&) = delete;
};

/// Whether a painter can begin on @p widget: in a paint event, unless another one is at work where
/// that event paints. Qt would let the second one end the first one's painting.
bool canPaintOn(const QWidget& widget);

/// A widget that is being painted: ends the painter when the widget dies first.
class PaintedWidget : public DcDevice
{
public:
    PaintedWidget(QWidget* pWidget, QPainter& painter);
    ~PaintedWidget() override;

private:
    QMetaObject::Connection m_connection;
};

/// A copy of what the window shows of a widget; what changed in it goes back to the window.
class ClientSurface : public DcDevice
{
public:
    explicit ClientSurface(QWidget* pWidget);
    ~ClientSurface() override;

    /// The painter that begins on it changes this copy only.
    QImage& image() { return m_image; }

private:
    QPointer<QWidget> m_widget;
    QImage m_image;
    QImage m_before; // null when the widget is not shown
};

/// The bitmap of a memory device context. The painter paints on the bitmap's own image.
class MemoryDevice : public DcDevice
{
public:
    MemoryDevice();

    /// What to paint on.
    QImage& image() { return *m_pImage; }
    /// The bitmap selected now: an object of its handle, or the 1 x 1 one when that has died.
    CBitmap_E* selected();
    /// Paint on @p hBitmap from now on, once the painter has ended.
    void select(HBITMAP hBitmap) { m_pImage = static_cast<QImage*>(hBitmap); }

private:
    CBitmap_E m_stock;
    QImage* m_pImage = nullptr;
};

/// Deletes the image of a bitmap; while a painter is at work on it, it becomes an orphan.
void freeBitmapImage(HBITMAP hBitmap);
/// Deletes the orphans that nobody paints on any longer. For when a painter has ended.
void freeOrphans();

/// The image that @p painter draws into, also that of a window behind a widget; null for devices
/// that have no pixels to look at.
QImage* pixelsOf(const QPainter& painter);

/// One row of pixels, which the painter may be writing to just now: unlike QImage::scanLine() this
/// never makes a copy for the image.
uchar* rowOf(QImage& image, int y);

} // namespace vx::detail
