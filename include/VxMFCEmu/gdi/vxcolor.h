/// @file vxcolor.h
/// A colour as drawing members take and give it: from a COLORREF or a `QColor`, to either.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/gdi/colorref.h>

#include <type_traits>

/// A `QColor` that converts from and to COLORREF, 0x00BBGGRR. A number is a COLORREF, also one that
/// it is compared with; a `Qt::GlobalColor` is that colour.
class VxColor : public QColor
{
public:
    /// Any type of integer.
    template <typename T>
    using IfNumber = std::enable_if_t<std::is_integral_v<T>, bool>;
    /// Whether a type can stand for a colour.
    template <typename T>
    static constexpr bool isColor()
    {
        return std::is_integral_v<T> || std::is_base_of_v<QColor, T> ||
               std::is_same_v<T, Qt::GlobalColor>;
    }
    /// One operand is a VxColor and the other a colour of any kind. Both as they are: a conversion
    /// of either would be ambiguous.
    template <typename A, typename B>
    using IfComparable = std::enable_if_t<(std::is_base_of_v<VxColor, A> && isColor<B>()) ||
                                              (std::is_base_of_v<VxColor, B> && isColor<A>()),
                                          bool>;

    VxColor() = default;
    /// @{
    /// The same colour.
    VxColor(const QColor& color) : QColor(color) {}
    VxColor(Qt::GlobalColor color) : QColor(color) {}
    /// @}
    /// A COLORREF, 0x00BBGGRR. Not a `QRgb`: wrap that one in a `QColor`.
    template <typename T, IfNumber<T> = true>
    VxColor(T value) : QColor(vx::detail::toQColor(static_cast<COLORREF>(value)))
    {
    }

    /// The colour as 0x00BBGGRR, without its alpha.
    operator COLORREF() const { return vx::detail::toColorRef(*this); }

    /// @{
    /// Compares with a number as COLORREF, with other colours as `QColor`.
    template <typename A, typename B, IfComparable<A, B> = true>
    friend bool operator==(const A& a, const B& b)
    {
        if constexpr (std::is_integral_v<A> || std::is_integral_v<B>)
            return static_cast<COLORREF>(a) == static_cast<COLORREF>(b);
        else
            return QColor(a) == QColor(b);
    }
    template <typename A, typename B, IfComparable<A, B> = true>
    friend bool operator!=(const A& a, const B& b)
    {
        return !(a == b);
    }
    /// @}
};

/// A colour as a member gives it. No number becomes one by itself, so that
/// `b ? dc.GetTextColor() : RGB(1, 2, 3)` has one meaning: a COLORREF.
class VxColorResult : public VxColor
{
public:
    VxColorResult() = default;
    /// @{
    /// The same colour.
    VxColorResult(const VxColor& color) : VxColor(color) {}
    VxColorResult(const QColor& color) : VxColor(color) {}
    VxColorResult(Qt::GlobalColor color) : VxColor(color) {}
    template <typename T, IfNumber<T> = true>
    explicit VxColorResult(T value) : VxColor(value)
    {
    }
    /// @}

    /// A COLORREF.
    template <typename T, IfNumber<T> = true>
    VxColorResult& operator=(T value)
    {
        return *this = VxColorResult(value);
    }
};
