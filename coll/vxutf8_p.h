// UTF-8 as files of text have it: what is wrong in it becomes U+FFFD.
#pragma once

#include <cstddef>

namespace vx::detail {

inline constexpr wchar_t kReplacement = 0xFFFD;

/// How many bytes the character that begins with @p lead has; 1 for what begins none.
constexpr int utf8Length(unsigned char lead)
{
    return lead < 0xC2 || lead > 0xF4 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

/// The character at @p p and how many bytes it took: one byte alone when it is wrong.
inline wchar_t decodeCharacter(const char* p, std::size_t nBytes, int& nTaken)
{
    static constexpr unsigned smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(*p);
    nTaken = 1;
    if (lead < 0x80)
        return lead;
    const int length = utf8Length(lead);
    if (length == 1 || static_cast<std::size_t>(length) > nBytes)
        return kReplacement;
    unsigned code = lead & (0xFFU >> (length + 1));
    for (int i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(p[i]);
        if ((next & 0xC0U) != 0x80U)
            return kReplacement;
        code = code << 6U | (next & 0x3FU);
    }
    if (code < smallest[length] || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000))
        return kReplacement;
    nTaken = length;
    return static_cast<wchar_t>(code);
}

inline constexpr std::size_t kLongestCharacter = 4;

/// Writes a character, at most kLongestCharacter bytes, and returns the place behind it.
inline char* encodeCharacter(char* p, char32_t code)
{
    if (code < 0x80) {
        *p++ = static_cast<char>(code);
        return p;
    }
    if (code > 0x10FFFF || (code >= 0xD800 && code < 0xE000))
        code = static_cast<char32_t>(kReplacement);
    const unsigned tails = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    *p++ = static_cast<char>((0xF80U >> tails & 0xFFU) | code >> 6U * tails);
    for (unsigned i = tails; i-- > 0;)
        *p++ = static_cast<char>(0x80U | ((code >> 6U * i) & 0x3FU));
    return p;
}

} // namespace vx::detail
