/// @file cstringoperators.h
/// Concatenation and comparison of strings. Comes with cstring.h.
///
/// One side is a `CString_E`; the other may be one too, wide text (null as empty), a character,
/// narrow text in UTF-8 or a `QString`. Comparison is ordinal. Templates, because the conversions
/// of `CString_E` to two kinds of pointers would make plain overloads ambiguous.
#pragma once

#include <VxMFCEmu/text/cstring.h>

#include <QtCore/QString>

namespace vx::detail {

/// A view of one side; narrow text and `QString` are converted first.
template <typename T>
class TextOperand
{
public:
    static constexpr bool isString = std::is_base_of_v<CString_E, T>;
    static constexpr bool isChar = std::is_same_v<T, wchar_t> || std::is_same_v<T, char>;
    static constexpr bool isWide = !isString && std::is_convertible_v<const T&, const wchar_t*>;
    static constexpr bool isConverted =
        !isString && !isWide &&
        (std::is_convertible_v<const T&, const char*> || std::is_base_of_v<QString, T>);
    static constexpr bool value = isString || isChar || isWide || isConverted;

    explicit TextOperand(const T& operand) : m_stored(toStored(operand)) {}
    std::wstring_view view() const
    {
        if constexpr (isChar)
            return {&m_stored, 1};
        else if constexpr (isWide)
            return m_stored;
        else
            return {m_stored.GetString(), static_cast<std::size_t>(m_stored.GetLength())};
    }

private:
    using Stored = std::conditional_t<
        isChar, wchar_t,
        std::conditional_t<isWide, const wchar_t*,
                           std::conditional_t<isString, const CString_E&, CString_E>>>;
    static Stored toStored(const T& operand)
    {
        if constexpr (isWide)
            return orEmpty(operand);
        else if constexpr (std::is_same_v<T, char>)
            return static_cast<unsigned char>(operand);
        else if constexpr (std::is_base_of_v<QString, T>)
            return CString_E(static_cast<const QString&>(operand));
        else if constexpr (isConverted)
            return CString_E(static_cast<const char*>(operand));
        else
            return operand;
    }

    Stored m_stored;
};

/// @p Result when @p L and @p R may be combined; looks at nothing else when neither is a string.
template <typename L, typename R, typename Result>
using ForTextOperands =
    std::enable_if_t<std::conjunction_v<std::disjunction<std::is_base_of<CString_E, L>,
                                                         std::is_base_of<CString_E, R>>,
                                        TextOperand<L>, TextOperand<R>>,
                     Result>;

template <typename L, typename R>
int compareText(const L& left, const R& right)
{
    return TextOperand<L>(left).view().compare(TextOperand<R>(right).view());
}
template <typename L, typename R>
bool equalText(const L& left, const R& right)
{
    return TextOperand<L>(left).view() == TextOperand<R>(right).view();
}

} // namespace vx::detail

/// Joins two texts of which one is a CString_E.
template <typename L, typename R>
vx::detail::ForTextOperands<L, R, CString_E> operator+(const L& left, const R& right)
{
    const vx::detail::TextOperand<L> l(left);
    const vx::detail::TextOperand<R> r(right);
    CString_E result;
    vx::detail::concatenate(result, l.view(), r.view());
    return result;
}
/// A temporary on the left is appended to, so that chains copy nothing twice.
template <typename R>
vx::detail::ForTextOperands<CString_E, R, CString_E> operator+(CString_E&& left, const R& right)
{
    const vx::detail::TextOperand<R> r(right);
    vx::detail::concatenate(left, r.view(), {});
    return std::move(left);
}

/// @{
/// Compares two texts of which one is a CString_E, code point by code point.
template <typename L, typename R>
vx::detail::ForTextOperands<L, R, bool> operator==(const L& left, const R& right)
{
    return vx::detail::equalText(left, right);
}
template <typename L, typename R>
vx::detail::ForTextOperands<L, R, bool> operator!=(const L& left, const R& right)
{
    return !vx::detail::equalText(left, right);
}
template <typename L, typename R>
vx::detail::ForTextOperands<L, R, bool> operator<(const L& left, const R& right)
{
    return vx::detail::compareText(left, right) < 0;
}
template <typename L, typename R>
vx::detail::ForTextOperands<L, R, bool> operator>(const L& left, const R& right)
{
    return vx::detail::compareText(left, right) > 0;
}
template <typename L, typename R>
vx::detail::ForTextOperands<L, R, bool> operator<=(const L& left, const R& right)
{
    return vx::detail::compareText(left, right) <= 0;
}
template <typename L, typename R>
vx::detail::ForTextOperands<L, R, bool> operator>=(const L& left, const R& right)
{
    return vx::detail::compareText(left, right) >= 0;
}
/// @}
