// Not part of the public interface. Images that messages bring to a control as handles: a bitmap's
// is a QImage, an icon's a QIcon, and both stay the sender's.
#pragma once

#include "ctrl/vxcontroltable_p.h"

#include <QtCore/QVariant>
#include <QtGui/QIcon>
#include <QtGui/QImage>
#include <QtGui/QPixmap>

namespace vx::detail {

/// Where the widget keeps the handle of a kind of image; null for kinds that it has none of.
constexpr const char* imageProperty(WPARAM kind)
{
    return kind == IMAGE_BITMAP ? "vxBitmapHandle" : kind == IMAGE_ICON ? "vxIconHandle" : nullptr;
}

inline LRESULT imageHandle(const CWnd_E& control, WPARAM kind)
{
    const char* const pszProperty = imageProperty(kind);
    return pszProperty && control.GetSafeHwnd()
               ? control.GetSafeHwnd()->property(pszProperty).toLongLong()
               : 0;
}

/// Shows the image, none for a null handle, and returns the handle of the one before.
template <typename Control>
LRESULT setImageHandle(Control& control, WPARAM kind, LPARAM handle)
{
    if (!control.GetSafeHwnd() || !imageProperty(kind))
        return 0;
    const LRESULT previous = imageHandle(control, kind);
    if (kind == IMAGE_BITMAP) {
        const auto* const pImage = pointerIn<const QImage>(handle);
        control.SetBitmap(pImage ? QPixmap::fromImage(*pImage) : QPixmap());
    } else {
        const auto* const pIcon = pointerIn<const QIcon>(handle);
        control.SetIcon(pIcon ? *pIcon : QIcon());
    }
    control.GetSafeHwnd()->setProperty(imageProperty(kind), handle ? QVariant(handle) : QVariant());
    return previous;
}

} // namespace vx::detail
