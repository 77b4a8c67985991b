/// @file types.h
/// The Win32 types that every subsystem shares.
///
/// Differs from Win32: a window handle is a `QWidget*`; text is `wchar_t` of 32 bits (UTF-32), so
/// one character is one code point; `WPARAM` and `LPARAM` are 64 bits wide.
#pragma once

#include <VxMFCEmu/export.h>

#include <cstddef>
#include <cstdint>

class QMenu;
class QWidget;

#ifndef TRUE
#    define TRUE 1 ///< a BOOL that holds
#endif
#ifndef FALSE
#    define FALSE 0 ///< a BOOL that does not hold
#endif
#ifndef NULL
#    define NULL 0 ///< the null pointer
#endif

/// @{
/// A type of numbers, as wide as on Win32.
using BOOL = int;
using INT = int;
using LONG = int;
using SHORT = short;
using BYTE = unsigned char;
using WORD = unsigned short;
using USHORT = unsigned short;
using UINT = unsigned int;
using DWORD = unsigned int;
using ULONG = unsigned int;
using COLORREF = unsigned int;
using LONGLONG = long long;
using ULONGLONG = unsigned long long;
using HRESULT = int;
using SCODE = int;
/// @}

/// @{
/// A type that holds a pointer, or a parameter of a message.
using WPARAM = unsigned long;
using LPARAM = long long;
using LRESULT = long long;
using UINT_PTR = unsigned long;
using INT_PTR = long;
using LONG_PTR = long;
using DWORD_PTR = unsigned long;
using ULONG_PTR = unsigned long;
using SIZE_T = std::size_t;
/// @}

/// @{
/// A type of characters, or a pointer to text.
using CHAR = char;
using WCHAR = wchar_t;
using TCHAR = wchar_t;
using LPSTR = char*;
using LPCSTR = const char*;
using LPWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
using LPTSTR = wchar_t*;
using LPCTSTR = const wchar_t*;
/// @}

/// @{
/// A pointer type.
using LPVOID = void*;
using LPCVOID = const void*;
using LPBYTE = BYTE*;
using LPDWORD = DWORD*;
using PLONG = LONG*;
using LPBOOL = BOOL*;
/// @}

/// @{
/// A handle type.
using HWND = QWidget*;
using HMENU = QMenu*;
using HANDLE = void*;
using HGLOBAL = void*;
using HLOCAL = void*;
using HINSTANCE = void*;
using HMODULE = void*;
using HDC = void*;
using HGDIOBJ = void*;
using HBRUSH = void*;
using HPEN = void*;
using HFONT = void*;
using HBITMAP = void*;
using HPALETTE = void*;
using HRGN = void*;
using HICON = void*;
using HCURSOR = void*;
using HIMAGELIST = void*;
using HDROP = void*;
using HKEY = void*;
/// @}

#define VXMFC_WIDE(x) L##x ///< see _T
/// Wide text literal, as Win32 sources write it; of a macro such as __FILE__ too.
#ifndef _T
#    define _T(x) VXMFC_WIDE(x)
#endif
#ifndef TEXT
#    define TEXT(x) VXMFC_WIDE(x) ///< a wide text literal
#endif

/// A point in pixels.
struct tagPOINT
{
    LONG x; ///< from the left
    LONG y; ///< from the top
};
using POINT = tagPOINT;    ///< its usual name
using LPPOINT = tagPOINT*; ///< a pointer to one

/// A size in pixels.
struct tagSIZE
{
    LONG cx; ///< width
    LONG cy; ///< height
};
using SIZE = tagSIZE;    ///< its usual name
using LPSIZE = tagSIZE*; ///< a pointer to one

/// A rectangle in pixels; right and bottom are exclusive.
struct tagRECT
{
    LONG left;   ///< included
    LONG top;    ///< included
    LONG right;  ///< excluded
    LONG bottom; ///< excluded
};
using RECT = tagRECT;           ///< its usual name
using LPRECT = tagRECT*;        ///< a pointer to one
using LPCRECT = const tagRECT*; ///< a pointer to a constant one

/// A time in units of 100 nanoseconds since 1601.
struct _FILETIME
{
    DWORD dwLowDateTime;  ///< the lower 32 bits
    DWORD dwHighDateTime; ///< the upper 32 bits
};
using FILETIME = _FILETIME;    ///< its usual name
using PFILETIME = _FILETIME*;  ///< a pointer to one
using LPFILETIME = _FILETIME*; ///< a pointer to one

/// One window message, as message functions and `PreTranslateMessage` see it.
struct tagMSG
{
    HWND hwnd;     ///< the window the message is for
    UINT message;  ///< message number
    WPARAM wParam; ///< meaning depends on the message
    LPARAM lParam; ///< meaning depends on the message
    DWORD time;    ///< seconds since 1970 (differs from Win32, which counts milliseconds)
    tagPOINT pt;   ///< cursor position in screen coordinates
};
using MSG = tagMSG;    ///< its usual name
using LPMSG = tagMSG*; ///< a pointer to one

/// What `OnCreate` is told of the window being made: its style; the rest is 0.
struct tagCREATESTRUCTW
{
    LPVOID lpCreateParams; ///< 0
    HINSTANCE hInstance;   ///< 0
    HMENU hMenu;           ///< 0
    HWND hwndParent;       ///< 0
    int cy;                ///< 0
    int cx;                ///< 0
    int y;                 ///< 0
    int x;                 ///< 0
    UINT style;            ///< WS_* that the window was created with
    LPCWSTR lpszName;      ///< 0
    LPCWSTR lpszClass;     ///< 0
    DWORD dwExStyle;       ///< 0
};
using CREATESTRUCT = tagCREATESTRUCTW;    ///< its usual name
using CREATESTRUCTW = tagCREATESTRUCTW;   ///< its usual name
using LPCREATESTRUCT = tagCREATESTRUCTW*; ///< a pointer to one

/// @{
/// The lower or upper half of the lowest bits.
constexpr WORD LOWORD(std::uint64_t value) noexcept { return static_cast<WORD>(value & 0xFFFFU); }
constexpr WORD HIWORD(std::uint64_t value) noexcept
{
    return static_cast<WORD>((value >> 16) & 0xFFFFU);
}
constexpr BYTE LOBYTE(std::uint64_t value) noexcept { return static_cast<BYTE>(value & 0xFFU); }
constexpr BYTE HIBYTE(std::uint64_t value) noexcept
{
    return static_cast<BYTE>((value >> 8) & 0xFFU);
}
/// @}

/// @{
/// Packs two 16-bit halves into 32 bits, @p low in the low half.
template <typename Low, typename High>
constexpr DWORD MAKELONG(Low low, High high) noexcept
{
    return static_cast<DWORD>(static_cast<WORD>(low)) |
           (static_cast<DWORD>(static_cast<WORD>(high)) << 16);
}
template <typename Low, typename High>
constexpr WPARAM MAKEWPARAM(Low low, High high) noexcept
{
    return MAKELONG(low, high);
}
template <typename Low, typename High>
constexpr LPARAM MAKELPARAM(Low low, High high) noexcept
{
    return MAKELONG(low, high);
}
template <typename Low, typename High>
constexpr LRESULT MAKELRESULT(Low low, High high) noexcept
{
    return MAKELONG(low, high);
}
/// @}

/// @{
/// Signed coordinates packed in an `LPARAM`.
constexpr int GET_X_LPARAM(LPARAM value) noexcept
{
    return static_cast<short>(LOWORD(static_cast<std::uint64_t>(value)));
}
constexpr int GET_Y_LPARAM(LPARAM value) noexcept
{
    return static_cast<short>(HIWORD(static_cast<std::uint64_t>(value)));
}
/// @}
