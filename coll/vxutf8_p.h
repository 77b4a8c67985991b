// UTF-8 as files of text have it: what is wrong in it becomes U+FFFD.
#pragma once

#include <cstddef>
#include <string>

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

/// Appends a character.
inline void encodeCharacter(std::string& text, wchar_t character)
{
    auto code = static_cast<unsigned>(character);
    if (code < 0x80) {
        text += static_cast<char>(code);
        return;
    }
    if (code > 0x10FFFF || (code >= 0xD800 && code < 0xE000))
        code = kReplacement;
    const auto tail = [&](unsigned shift) {
        text += static_cast<char>(0x80U | ((code >> shift) & 0x3FU));
    };
    if (code < 0x800) {
        text += static_cast<char>(0xC0U | code >> 6U);
    } else if (code < 0x10000) {
        text += static_cast<char>(0xE0U | code >> 12U);
        tail(6);
    } else {
        text += static_cast<char>(0xF0U | code >> 18U);
        tail(12);
        tail(6);
    }
    tail(0);
}

} // namespace vx::detail
