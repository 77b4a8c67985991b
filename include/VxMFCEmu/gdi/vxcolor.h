/// @file vxcolor.h
/// A colour as drawing members take and give it: from a COLORREF or a `QColor`, to either.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/gdi/colorref.h>

#include <type_traits>

/// A `QColor` that converts to COLORREF, 0x00BBGGRR, and is made of one on request only: so that
/// `b ? dc.GetTextColor() : RGB(1, 2, 3)` has one meaning, a COLORREF. A number that it is compared
/// with is a COLORREF.
class VxColor : public QColor
{
public:
    template <typename T>
    using IfNumber = std::enable_if_t<std::is_integral_v<T>, bool>;
    template <typename T>
    using IfColor = std::enable_if_t<std::is_integral_v<T> || std::is_base_of_v<QColor, T> ||
                                         std::is_same_v<T, Qt::GlobalColor>,
                                     bool>;
    template <typename T>
    using IfOther = std::enable_if_t<!std::is_base_of_v<VxColor, T>, bool>;

    VxColor() = default;
    VxColor(const QColor& color) : QColor(color) {}
    VxColor(Qt::GlobalColor color) : QColor(color) {}
    /// A COLORREF, 0x00BBGGRR. Not a `QRgb`: wrap that one in a `QColor`.
    template <typename T, IfNumber<T> = true>
    explicit VxColor(T value) : QColor(vx::detail::toQColor(static_cast<COLORREF>(value)))
    {
    }

    operator COLORREF() const { return vx::detail::toColorRef(*this); }

    // One for each kind of operand: a conversion of either side would be ambiguous.
    template <typename T, IfColor<T> = true>
    friend bool operator==(const VxColor& a, const T& b)
    {
        if constexpr (std::is_integral_v<T>)
            return static_cast<COLORREF>(a) == static_cast<COLORREF>(b);
        else
            return static_cast<const QColor&>(a) == QColor(b);
    }
    template <typename T, IfColor<T> = true>
    friend bool operator!=(const VxColor& a, const T& b)
    {
        return !(a == b);
    }
    template <typename T, IfColor<T> = true, IfOther<T> = true>
    friend bool operator==(const T& a, const VxColor& b)
    {
        return b == a;
    }
    template <typename T, IfColor<T> = true, IfOther<T> = true>
    friend bool operator!=(const T& a, const VxColor& b)
    {
        return !(b == a);
    }
};

/// A colour as an argument: what VxColor is made of, and a COLORREF as it is.
class VxColorArg : public VxColor
{
public:
    using VxColor::VxColor;
    VxColorArg(const VxColor& color) : VxColor(color) {}
    template <typename T, IfNumber<T> = true>
    VxColorArg(T value) : VxColor(value)
    {
    }
};
