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
#    define TRUE 1
#endif
#ifndef FALSE
#    define FALSE 0
#endif
#ifndef NULL
#    define NULL 0
#endif

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

using WPARAM = unsigned long;
using LPARAM = long long;
using LRESULT = long long;
using UINT_PTR = unsigned long;
using INT_PTR = long;
using LONG_PTR = long;
using DWORD_PTR = unsigned long;
using ULONG_PTR = unsigned long;
using SIZE_T = std::size_t;

using CHAR = char;
using WCHAR = wchar_t;
using TCHAR = wchar_t;
using LPSTR = char*;
using LPCSTR = const char*;
using LPWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
using LPTSTR = wchar_t*;
using LPCTSTR = const wchar_t*;

using LPVOID = void*;
using LPCVOID = const void*;
using LPBYTE = BYTE*;
using LPDWORD = DWORD*;
using PLONG = LONG*;
using LPBOOL = BOOL*;

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

#define VXMFC_WIDE(x) L##x
/// Wide text literal, as Win32 sources write it; of a macro such as __FILE__ too.
#ifndef _T
#    define _T(x) VXMFC_WIDE(x)
#endif
#ifndef TEXT
#    define TEXT(x) VXMFC_WIDE(x)
#endif

/// A point in pixels.
struct tagPOINT
{
    LONG x;
    LONG y;
};
using POINT = tagPOINT;
using LPPOINT = tagPOINT*;

/// A size in pixels.
struct tagSIZE
{
    LONG cx;
    LONG cy;
};
using SIZE = tagSIZE;
using LPSIZE = tagSIZE*;

/// A rectangle in pixels; right and bottom are exclusive.
struct tagRECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};
using RECT = tagRECT;
using LPRECT = tagRECT*;
using LPCRECT = const tagRECT*;

/// A time in units of 100 nanoseconds since 1601.
struct _FILETIME
{
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
};
using FILETIME = _FILETIME;
using PFILETIME = _FILETIME*;
using LPFILETIME = _FILETIME*;

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
using MSG = tagMSG;
using LPMSG = tagMSG*;

/// What `OnCreate` is told of the window being made.
struct tagCREATESTRUCTW
{
    LPVOID lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy;
    int cx;
    int y;
    int x;
    UINT style;
    LPCWSTR lpszName;
    LPCWSTR lpszClass;
    DWORD dwExStyle;
};
using CREATESTRUCT = tagCREATESTRUCTW;
using CREATESTRUCTW = tagCREATESTRUCTW;
using LPCREATESTRUCT = tagCREATESTRUCTW*;

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

/// Signed coordinates packed in an `LPARAM`.
constexpr int GET_X_LPARAM(LPARAM value) noexcept
{
    return static_cast<short>(LOWORD(static_cast<std::uint64_t>(value)));
}
constexpr int GET_Y_LPARAM(LPARAM value) noexcept
{
    return static_cast<short>(HIWORD(static_cast<std::uint64_t>(value)));
}
