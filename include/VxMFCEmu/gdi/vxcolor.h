/// @file vxcolor.h
/// A colour as drawing members take and give it: from a COLORREF or a `QColor`, to either.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/gdi/colorref.h>

#include <type_traits>

/// A `QColor` that converts from and to COLORREF, 0x00BBGGRR.
class VxColor : public QColor
{
public:
    VxColor() = default;
    VxColor(const QColor& color) : QColor(color) {}
    VxColor(Qt::GlobalColor color) : QColor(color) {}
    /// A COLORREF, 0x00BBGGRR. Not a `QRgb`: wrap that one in a `QColor`.
    template <typename T, typename = std::enable_if_t<std::is_integral_v<T>>>
    VxColor(T value) : QColor(vx::detail::toQColor(static_cast<COLORREF>(value)))
    {
    }

    operator COLORREF() const { return vx::detail::toColorRef(*this); }
    bool operator==(const QColor& other) const { return QColor::operator==(other); }
    bool operator!=(const QColor& other) const { return QColor::operator!=(other); }
    bool operator==(COLORREF other) const { return static_cast<COLORREF>(*this) == other; }
    bool operator!=(COLORREF other) const { return !(*this == other); }
};
