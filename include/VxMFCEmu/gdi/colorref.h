/// @file colorref.h
/// Colours as Win32 counts them: 0x00BBGGRR, red in the low byte.
#pragma once

#include <VxMFCEmu/types.h>

#include <QtGui/QColor>

/// @{
/// No colour, or the default one.
inline constexpr COLORREF CLR_NONE = 0xFFFFFFFF;
inline constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;
inline constexpr COLORREF CLR_DEFAULT = 0xFF000000;
/// @}

/// @{
/// One part of a colour.
constexpr BYTE GetRValue(COLORREF color) noexcept { return static_cast<BYTE>(color & 0xFFU); }
constexpr BYTE GetGValue(COLORREF color) noexcept { return static_cast<BYTE>(color >> 8 & 0xFFU); }
constexpr BYTE GetBValue(COLORREF color) noexcept { return static_cast<BYTE>(color >> 16 & 0xFFU); }
/// @}

/// The colour of three parts, of each of which the low byte counts.
constexpr COLORREF RGB(int red, int green, int blue) noexcept
{
    return static_cast<COLORREF>((red & 0xFF) | (green & 0xFF) << 8 | (blue & 0xFF) << 16);
}

namespace vx::detail {

/// The opaque colour of the three low bytes.
inline QColor toQColor(COLORREF color)
{
    return {GetRValue(color), GetGValue(color), GetBValue(color)};
}

/// Alpha is dropped.
inline COLORREF toColorRef(const QColor& color)
{
    return RGB(color.red(), color.green(), color.blue());
}

} // namespace vx::detail
