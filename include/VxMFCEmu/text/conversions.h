/// @file conversions.h
/// Conversions through libc's locales.
///
/// Differs from Win32: a code page is given by the name of a locale. The name "chs" that the last
/// two pass is usually unknown to libc; then the process's own locale converts.
///
/// Threads: any. Another locale is set for the calling thread alone, for the time of the call; a
/// thread that has a locale of its own (`uselocale`) converts in that.
#pragma once

#include <VxMFCEmu/export.h>

#include <string>

/// @p s up to its first zero character in the encoding of @p locale, or of the present locale when
/// that is null or unknown; empty when a character has no encoding there.
VXMFC_EXPORT std::string WideCharToMultiByte_E(const std::wstring& s, const char* locale);
/// The reverse; empty for bytes that the encoding does not know.
VXMFC_EXPORT std::wstring MultiByteToWideChar_E(const std::string& s, const char* locale);

/// @p p in the encoding of locale "chs"; throws `std::logic_error` for null.
VXMFC_EXPORT std::string _W2A(const wchar_t* p);
/// The number at the start of @p p, read in the present locale's way; 0 when there is none. Throws
/// `std::logic_error` for null.
VXMFC_EXPORT double _wtof(const wchar_t* p);
