// The arguments that a handler got, as text.
#pragma once

#include "support/test.h"

namespace vxtest {

constexpr WPARAM kW = 0xFFFFFFFF8001FFFE;
constexpr LPARAM kL = static_cast<LPARAM>(0xFFFFFFFF8002FFFD);

/// A number in hex by its size, a point as "(x y)"; the widget @p own is "w", its window "E:w".
template <typename T>
QString argText(const QWidget* own, T value)
{
    if constexpr (std::is_same_v<T, CPoint_E>)
        return "(%1 %2)"_q.arg(value.x).arg(value.y);
    else if constexpr (std::is_same_v<T, CWnd_E*>)
        return "E:"_q + (value ? argText(own, value->GetSafeHwnd()) : QString());
    else if constexpr (std::is_same_v<T, CScrollBar_E*>)
        return argText(own, reinterpret_cast<CWnd_E*>(value));
    else if constexpr (std::is_pointer_v<T>)
        return static_cast<const void*>(value) == own
                   ? "w"_q
                   : argText(own, reinterpret_cast<WPARAM>(value));
    else
        return QString::number(static_cast<std::make_unsigned_t<T>>(value), 16);
}

/// @p name and the arguments, each after a space.
template <typename... Args>
QString callText(const char* name, [[maybe_unused]] const QWidget* own, Args... args)
{
    return QStringList({QString::fromLatin1(name), argText(own, args)...}).join(u' ').trimmed();
}

/// What handlers give in tests: each type of result keeps another part of it.
constexpr LRESULT kGiven = 0x12345678FFFFFFF9;
constexpr LRESULT kInt = -7;
constexpr LRESULT kUint = 0xFFFFFFF9;

template <typename Result>
Result given(LRESULT value)
{
    if constexpr (std::is_pointer_v<Result>)
        return reinterpret_cast<Result>(value);
    else
        return static_cast<Result>(value);
}

} // namespace vxtest
