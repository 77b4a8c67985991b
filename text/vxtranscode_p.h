// Not part of the public interface. Between UTF-32 (wide text), UTF-8 and UTF-16.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

class QString;

namespace vx::detail {

/// Intended: a Windows name, mostly unknown to libc.
inline constexpr char kSimplifiedChinese[] = "chs";

/// Throws `std::range_error` ("wstring_convert::from_bytes") for invalid UTF-8: broken, overlong or
/// cut-off sequences, surrogates, values above 0x10FFFF.
std::wstring utf8ToWide(std::string_view bytes);
/// At most @p maxCount characters; each invalid byte becomes U+FFFD.
std::wstring utf8ToWideLossy(std::string_view bytes, std::size_t maxCount);
/// Writes the bytes of the leading ASCII characters and returns their number, which may be rounded
/// down.
std::size_t narrowAscii(std::wstring_view text, char* out);
/// A terminated array from new[], owned by the caller. Throws `std::range_error`
/// ("wstring_convert::to_bytes") for surrogates and values above 0x10FFFF.
char* wideToUtf8(std::wstring_view text);

/// A lone surrogate becomes U+FFFD.
std::wstring qStringToWide(const QString& text);
/// As `QString::fromUcs4` of the whole text.
QString wideToQString(std::wstring_view text);

} // namespace vx::detail
