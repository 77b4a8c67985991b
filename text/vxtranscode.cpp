#include "text/vxtranscode_p.h"

#include <QtCore/QString>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <memory>
#include <stdexcept>

namespace vx::detail {
namespace {

constexpr wchar_t kReplacement = 0xFFFD;

constexpr std::uint32_t codeOf(wchar_t ch) { return static_cast<std::uint32_t>(ch); }

constexpr bool isSurrogate(std::uint32_t code) { return code - 0xD800U < 0x800U; }

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

// Length of a sequence by its first byte; 0 for a byte that starts none.
std::size_t lengthByLead(unsigned char lead)
{
    if (lead < 0x80)
        return 1;
    if (lead < 0xC2 || lead > 0xF4)
        return 0;
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

// Length of the valid sequence at the start of a text that is not empty; 0 when there is none.
std::size_t validLength(const char* p, const char* end)
{
    const auto lead = static_cast<unsigned char>(*p);
    const std::size_t length = lengthByLead(lead);
    if (length < 2 || static_cast<std::size_t>(end - p) < length)
        return length == 1 ? 1 : 0;
    if (!std::all_of(p + 1, p + length, isContinuation))
        return 0;
    // Overlong forms, surrogates and values above 0x10FFFF show in the second byte.
    const auto second = static_cast<unsigned char>(p[1]);
    const bool invalid = (lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
                         (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F);
    return invalid ? 0 : length;
}

// The code point of a valid sequence.
wchar_t decode(const char* p)
{
    const auto byte = [p](int i) { return static_cast<wchar_t>(static_cast<unsigned char>(p[i])); };
    const auto tail = [&byte](int i) { return byte(i) & 0x3F; };
    if (byte(0) < 0x80)
        return byte(0);
    if (byte(0) < 0xE0)
        return ((byte(0) & 0x1F) << 6) | tail(1);
    if (byte(0) < 0xF0)
        return ((byte(0) & 0x0F) << 12) | (tail(1) << 6) | tail(2);
    return ((byte(0) & 0x07) << 18) | (tail(1) << 12) | (tail(2) << 6) | tail(3);
}

const char* skipAscii(const char* p, const char* end)
{
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    for (std::uint64_t eight = 0; end - p >= 8; p += 8) {
        std::memcpy(&eight, p, sizeof eight);
        if (eight & kHighBits)
            break;
    }
    while (p != end && static_cast<unsigned char>(*p) < 0x80)
        ++p;
    return p;
}

// Number of code points; throws for invalid text.
std::size_t countCodePoints(std::string_view bytes)
{
    const char* p = bytes.data();
    const char* const end = p + bytes.size();
    std::size_t surplus = 0;
    while ((p = skipAscii(p, end)) != end) {
        do {
            const std::size_t length = validLength(p, end);
            if (length == 0)
                throw std::range_error("wstring_convert::from_bytes");
            surplus += length - 1;
            p += length;
        } while (p != end && static_cast<unsigned char>(*p) >= 0x80);
    }
    return bytes.size() - surplus;
}

// Decodes while a string is being constructed from it, so that each character is written once: a
// resize() would fill the text with zeros first. Its distance is known from counting.
template <typename Decoder>
class CodePointIterator
{
public:
    using iterator_category = std::random_access_iterator_tag;
    using value_type = wchar_t;
    using difference_type = std::ptrdiff_t;
    using pointer = const wchar_t*;
    using reference = wchar_t;

    CodePointIterator(Decoder decoder, std::ptrdiff_t index) : m_decoder(decoder), m_index(index) {}
    wchar_t operator*() const { return m_decoder.value(); }
    CodePointIterator& operator++() { return m_decoder.advance(), ++m_index, *this; }
    bool operator==(const CodePointIterator& other) const { return m_index == other.m_index; }
    bool operator!=(const CodePointIterator& other) const { return m_index != other.m_index; }
    difference_type operator-(const CodePointIterator& other) const
    {
        return m_index - other.m_index;
    }

private:
    Decoder m_decoder;
    std::ptrdiff_t m_index;
};

template <typename Decoder>
std::wstring decodeAll(Decoder decoder, std::size_t count)
{
    using Iterator = CodePointIterator<Decoder>;
    return std::wstring(Iterator(decoder, 0),
                        Iterator(decoder, static_cast<std::ptrdiff_t>(count)));
}

struct Utf8Decoder
{
    const char* p;
    wchar_t value() const { return decode(p); }
    void advance() { p += lengthByLead(static_cast<unsigned char>(*p)); }
};

struct Utf16Decoder
{
    const char16_t* p;
    const char16_t* end;

    bool atPair() const
    {
        return QChar::isHighSurrogate(*p) && p + 1 != end && QChar::isLowSurrogate(p[1]);
    }
    wchar_t value() const
    {
        if (!isSurrogate(*p))
            return *p;
        return atPair() ? static_cast<wchar_t>(QChar::surrogateToUcs4(*p, p[1])) : kReplacement;
    }
    void advance() { p += atPair() ? 2 : 1; }
};

// Bytes of the text in UTF-8; throws for what is no code point.
std::size_t utf8Size(std::wstring_view text)
{
    constexpr std::size_t kBlock = 1U << 16; // 32-bit sums vectorise best and cannot overflow
    std::size_t size = text.size();
    for (std::size_t start = 0; start < text.size(); start += kBlock) {
        const wchar_t* const p = text.data() + start;
        const std::size_t n = std::min(kBlock, text.size() - start);
        std::uint32_t extra = 0;
        std::uint32_t invalid = 0;
        for (std::size_t i = 0; i < n; ++i) {
            const std::uint32_t code = codeOf(p[i]);
            extra += (code > 0x7F ? 1U : 0U) + (code > 0x7FF ? 1U : 0U) + (code > 0xFFFF ? 1U : 0U);
            invalid |= (code > 0x10FFFF ? 1U : 0U) | (isSurrogate(code) ? 1U : 0U);
        }
        if (invalid)
            throw std::range_error("wstring_convert::to_bytes");
        size += extra;
    }
    return size;
}

char* encode(std::uint32_t code, char* out)
{
    const auto put = [&out](std::uint32_t byte) { *out++ = static_cast<char>(byte); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0 | (code >> 6));
        put(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        put(0xE0 | (code >> 12));
        put(0x80 | ((code >> 6) & 0x3F));
        put(0x80 | (code & 0x3F));
    } else {
        put(0xF0 | (code >> 18));
        put(0x80 | ((code >> 12) & 0x3F));
        put(0x80 | ((code >> 6) & 0x3F));
        put(0x80 | (code & 0x3F));
    }
    return out;
}

} // namespace

std::wstring utf8ToWide(std::string_view bytes)
{
    const std::size_t count = countCodePoints(bytes);
    if (count == bytes.size())
        return std::wstring(bytes.begin(), bytes.end());
    return decodeAll(Utf8Decoder{bytes.data()}, count);
}

std::wstring utf8ToWideLossy(std::string_view bytes, std::size_t maxCount)
{
    std::wstring text;
    const char* p = bytes.data();
    const char* const end = p + bytes.size();
    while (p != end && text.size() < maxCount) {
        const std::size_t length = validLength(p, end);
        text.push_back(length ? decode(p) : kReplacement);
        p += length ? length : 1;
    }
    return text;
}

char* wideToUtf8(std::wstring_view text)
{
    const std::size_t size = utf8Size(text);
    std::unique_ptr<char[]> bytes(new char[size + 1]);
    char* out = bytes.get();
    if (size == text.size()) {
        for (std::size_t i = 0; i < size; ++i)
            out[i] = static_cast<char>(text[i]);
    } else {
        for (const wchar_t ch : text)
            out = encode(codeOf(ch), out);
    }
    bytes[size] = '\0';
    return bytes.release();
}

std::wstring qStringToWide(const QString& text)
{
    const auto* const p = reinterpret_cast<const char16_t*>(text.constData());
    const auto n = static_cast<std::size_t>(text.size());
    unsigned surrogates = 0;
    for (std::size_t i = 0; i < n; ++i)
        surrogates |= isSurrogate(p[i]) ? 1U : 0U;
    if (!surrogates)
        return std::wstring(p, p + n);
    std::size_t count = 0;
    for (Utf16Decoder decoder{p, p + n}; decoder.p != decoder.end; decoder.advance())
        ++count;
    return decodeAll(Utf16Decoder{p, p + n}, count);
}

QString wideToQString(std::wstring_view text)
{
    const std::size_t n = text.size();
    if (n == 0)
        return {};
    // At the start Qt takes these for byte order marks.
    if (codeOf(text[0]) == 0xFEFF || codeOf(text[0]) == 0xFFFE0000)
        return QString::fromUcs4(reinterpret_cast<const uint*>(text.data()), static_cast<int>(n));
    unsigned pairs = 0;
    for (const wchar_t ch : text)
        pairs += codeOf(ch) > 0xFFFF ? 1U : 0U;
    QString result(static_cast<int>(n + pairs), Qt::Uninitialized);
    auto* out = reinterpret_cast<char16_t*>(result.data());
    if (pairs == 0) {
        for (std::size_t i = 0; i < n; ++i)
            out[i] = static_cast<char16_t>(text[i]);
        return result;
    }
    for (const wchar_t ch : text) {
        const std::uint32_t code = codeOf(ch);
        if (code > 0xFFFF) {
            *out++ = QChar::highSurrogate(code);
            *out++ = QChar::lowSurrogate(code);
        } else {
            *out++ = static_cast<char16_t>(code);
        }
    }
    return result;
}

} // namespace vx::detail
