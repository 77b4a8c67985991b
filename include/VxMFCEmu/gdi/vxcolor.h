/// @file vxcolor.h
/// A colour as drawing members take and give it: from a COLORREF or a `QColor`, to either.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

#include <QtGui/QColor>

#include <type_traits>

class VxColor : public QColor
{
public:
    VxColor() = default;
    VxColor(const QColor& color) : QColor(color) {}
    VxColor(Qt::GlobalColor color) : QColor(color) {}
    /// A COLORREF, 0x00BBGGRR. Not a `QRgb`: wrap that one in a `QColor`.
    template <typename T, typename = std::enable_if_t<std::is_integral_v<T>>>
    VxColor(T value) : QColor(part(value, 0), part(value, 8), part(value, 16))
    {
    }

    operator COLORREF() const
    {
        return static_cast<COLORREF>(red()) | static_cast<COLORREF>(green()) << 8 |
               static_cast<COLORREF>(blue()) << 16;
    }
    bool operator==(const QColor& other) const { return QColor::operator==(other); }
    bool operator!=(const QColor& other) const { return QColor::operator!=(other); }
    bool operator==(COLORREF other) const { return static_cast<COLORREF>(*this) == other; }
    bool operator!=(COLORREF other) const { return !(*this == other); }

private:
    template <typename T>
    static int part(T value, int shift)
    {
        return static_cast<int>((static_cast<COLORREF>(value) >> shift) & 0xFFU);
    }
};
