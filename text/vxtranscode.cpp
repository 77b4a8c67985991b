#include "text/vxtranscode_p.h"

#include <QtCore/QString>
#include <QtCore/QtEndian>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <memory>
#include <stdexcept>

#ifdef __SSE2__
#    include <emmintrin.h>
#endif

namespace vx::detail {
namespace {

constexpr std::size_t kLongest = 4; // bytes of one character in UTF-8
constexpr wchar_t kReplacement = 0xFFFD;

constexpr std::uint32_t codeOf(wchar_t ch) { return static_cast<std::uint32_t>(ch); }

constexpr bool isSurrogate(std::uint32_t code) { return code - 0xD800U < 0x800U; }

// The six bits that a continuation byte carries; more than kTailMax for any other byte.
constexpr std::uint32_t tailBits(unsigned char byte) { return byte ^ 0x80U; }
constexpr std::uint32_t kTailMax = 0x3F;

struct Sequence
{
    std::uint32_t code;
    std::size_t length; // 0 when invalid
};

// The sequence at the start of a text of which @p left bytes, at least one, are left.
inline Sequence decode(const unsigned char* p, std::size_t left)
{
    constexpr Sequence kInvalid = {0, 0};
    const std::uint32_t lead = *p;
    if (lead < 0x80)
        return {lead, 1};
    if (lead < 0xC2 || left < 2)
        return kInvalid;
    const std::uint32_t first = tailBits(p[1]);
    if (lead < 0xE0)
        return first > kTailMax ? kInvalid : Sequence{((lead & 0x1FU) << 6) | first, 2};
    if (left < 3)
        return kInvalid;
    const std::uint32_t second = tailBits(p[2]);
    if (lead < 0xF0) {
        const std::uint32_t code = ((lead & 0x0FU) << 12) | (first << 6) | second;
        const bool valid = (first | second) <= kTailMax && code >= 0x800 && !isSurrogate(code);
        return valid ? Sequence{code, 3} : kInvalid;
    }
    if (lead > 0xF4 || left < 4)
        return kInvalid;
    const std::uint32_t third = tailBits(p[3]);
    const std::uint32_t code = ((lead & 0x07U) << 18) | (first << 12) | (second << 6) | third;
    const bool valid = (first | second | third) <= kTailMax && code >= 0x10000 && code <= 0x10FFFF;
    return valid ? Sequence{code, 4} : kInvalid;
}

// The two that follow vectorise: whole blocks without an early way out, narrow sums.

constexpr std::size_t kBlock = 240; // whole vectors, and counts stay in a byte

// Whether @p bitsOf gives one of @p bits for any unit.
template <typename Unit, typename BitsOf>
bool anyHas(Unit bits, const Unit* p, std::size_t n, BitsOf bitsOf)
{
    for (; n > 0; n -= std::min(n, kBlock)) {
        const std::size_t block = std::min(n, kBlock);
        Unit found = 0;
        for (std::size_t i = 0; i < block; ++i)
            found = static_cast<Unit>(found | bitsOf(p[i]));
        if (found & bits)
            return true;
        p += block;
    }
    return false;
}

bool isAscii(const unsigned char* p, std::size_t n)
{
    return !anyHas<unsigned char>(0x80, p, n, [](unsigned char byte) { return byte; });
}

std::size_t countStarts(const unsigned char* p, std::size_t n)
{
    std::size_t count = 0;
    for (; n > 0; n -= std::min(n, kBlock)) {
        const std::size_t block = std::min(n, kBlock);
        unsigned char starts = 0;
        for (std::size_t i = 0; i < block; ++i)
            starts = static_cast<unsigned char>(starts + ((p[i] & 0xC0U) != 0x80U ? 1U : 0U));
        count += starts;
        p += block;
    }
    return count;
}

#ifdef __x86_64__
// Stores of twice the width: they are what bounds it.
[[gnu::target("avx2"), gnu::flatten]] std::wstring widenAvx2(const unsigned char* p, std::size_t n)
{
    return std::wstring(p, p + n);
}
#endif

// A character a byte; each is written once, where resize() would fill with zeros first.
std::wstring widen(const unsigned char* p, std::size_t n)
{
#ifdef __x86_64__
    if (__builtin_cpu_supports("avx2"))
        return widenAvx2(p, n);
#endif
    return std::wstring(p, p + n);
}

} // namespace

std::size_t narrowAscii(std::wstring_view text, char* out)
{
    std::size_t done = 0;
#ifdef __SSE2__
    constexpr std::size_t kStep = 16;
    const __m128i notAscii = _mm_set1_epi32(~0x7F);
    for (; text.size() - done >= kStep; done += kStep) {
        const auto* const p = reinterpret_cast<const __m128i*>(text.data() + done);
        const __m128i a = _mm_loadu_si128(p);
        const __m128i b = _mm_loadu_si128(p + 1);
        const __m128i c = _mm_loadu_si128(p + 2);
        const __m128i d = _mm_loadu_si128(p + 3);
        const __m128i all = _mm_or_si128(_mm_or_si128(a, b), _mm_or_si128(c, d));
        const __m128i wrong = _mm_and_si128(all, notAscii);
        if (_mm_movemask_epi8(_mm_cmpeq_epi32(wrong, _mm_setzero_si128())) != 0xFFFF)
            return done;
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out + done),
                         _mm_packus_epi16(_mm_packs_epi32(a, b), _mm_packs_epi32(c, d)));
    }
#endif
    for (; done < text.size() && codeOf(text[done]) < 0x80; ++done)
        out[done] = static_cast<char>(text[done]);
    return done;
}

namespace {

// The bytes of a character, the first one lowest.

constexpr std::uint32_t tail(std::uint32_t code, unsigned shift)
{
    return 0x80U | ((code >> shift) & 0x3FU);
}

constexpr std::uint32_t twoBytes(std::uint32_t code)
{
    return (0xC0U | (code >> 6)) | (tail(code, 0) << 8);
}

constexpr std::uint32_t threeBytes(std::uint32_t code)
{
    return (0xE0U | (code >> 12)) | (tail(code, 6) << 8) | (tail(code, 0) << 16);
}

constexpr std::uint32_t fourBytes(std::uint32_t code)
{
    return (0xF0U | (code >> 18)) | (tail(code, 12) << 8) | (tail(code, 6) << 16) |
           (tail(code, 0) << 24);
}

// Writes whole words: up to kSlack bytes beyond what it returns.
constexpr std::size_t kSlack = 1;

char* encode(const wchar_t* p, const wchar_t* end, char* out)
{
    while (p != end) {
        const std::uint32_t code = codeOf(*p++);
        if (code < 0x80) {
            *out++ = static_cast<char>(code);
        } else if (code < 0x800) {
            qToLittleEndian(static_cast<quint16>(twoBytes(code)), out);
            out += 2;
        } else if (code <= 0xFFFF && !isSurrogate(code)) {
            qToLittleEndian(threeBytes(code), out);
            out += 3;
        } else if (code > 0xFFFF && code <= 0x10FFFF) {
            qToLittleEndian(fourBytes(code), out);
            out += 4;
        } else {
            throw std::range_error("wstring_convert::to_bytes");
        }
    }
    return out;
}

const unsigned char* bytesOf(std::string_view text)
{
    return reinterpret_cast<const unsigned char*>(text.data());
}

} // namespace

std::wstring utf8ToWide(std::string_view bytes)
{
    const unsigned char* p = bytesOf(bytes);
    const unsigned char* const end = p + bytes.size();
    if (isAscii(p, bytes.size()))
        return widen(p, bytes.size());
    std::wstring text(countStarts(p, bytes.size()), L'\0');
    wchar_t* out = text.data();
    const auto take = [&](std::size_t left) {
        const Sequence sequence = decode(p, left);
        if (sequence.length == 0)
            throw std::range_error("wstring_convert::from_bytes");
        *out++ = static_cast<wchar_t>(sequence.code);
        p += sequence.length;
    };
    while (static_cast<std::size_t>(end - p) >= kLongest)
        take(kLongest); // a constant, which takes the tests of the length away
    while (p != end)
        take(static_cast<std::size_t>(end - p));
    return text;
}

std::wstring utf8ToWideLossy(std::string_view bytes, std::size_t maxCount)
{
    std::wstring text;
    const unsigned char* p = bytesOf(bytes);
    const unsigned char* const end = p + bytes.size();
    while (p != end && text.size() < maxCount) {
        const Sequence sequence = decode(p, static_cast<std::size_t>(end - p));
        text.push_back(sequence.length ? static_cast<wchar_t>(sequence.code) : kReplacement);
        p += std::max<std::size_t>(sequence.length, 1);
    }
    return text;
}

char* wideToUtf8(std::wstring_view text)
{
    // A text that begins in ASCII mostly stays so: only then is the small array tried first.
    const std::wstring_view start = text.substr(0, 16);
    const bool tryAscii =
        std::all_of(start.begin(), start.end(), [](wchar_t ch) { return codeOf(ch) < 0x80; });
    std::unique_ptr<char[]> bytes(new char[(tryAscii ? 1 : kLongest) * text.size() + kSlack + 1]);
    const std::size_t ascii = tryAscii ? narrowAscii(text, bytes.get()) : 0;
    char* out = bytes.get() + ascii;
    if (ascii != text.size()) {
        text.remove_prefix(ascii);
        if (tryAscii) {
            std::unique_ptr<char[]> larger(new char[ascii + kLongest * text.size() + kSlack + 1]);
            out = std::copy_n(bytes.get(), ascii, larger.get());
            bytes = std::move(larger);
        }
        out = encode(text.data(), text.data() + text.size(), out);
    }
    *out = '\0';
    return bytes.release();
}

std::wstring qStringToWide(const QString& text)
{
    const auto* p = reinterpret_cast<const char16_t*>(text.constData());
    const auto n = static_cast<std::size_t>(text.size());
    const auto isHalf = [](char16_t unit) { return (unit & 0xF800U) == 0xD800U ? 1U : 0U; };
    if (!anyHas<char16_t>(1, p, n, isHalf))
        return std::wstring(p, p + n);
    std::wstring wide(n, L'\0');
    wchar_t* out = wide.data();
    for (const auto* const end = p + n; p != end;) {
        std::uint32_t code = *p++;
        if (isSurrogate(code)) {
            const bool isPair = code < 0xDC00 && p != end && QChar::isLowSurrogate(*p);
            code = isPair ? QChar::surrogateToUcs4(static_cast<char16_t>(code), *p) : kReplacement;
            p += isPair ? 1 : 0;
        }
        *out++ = static_cast<wchar_t>(code);
    }
    wide.resize(static_cast<std::size_t>(out - wide.data()));
    return wide;
}

QString wideToQString(std::wstring_view text)
{
    const std::size_t n = text.size();
    if (n == 0)
        return QString(0, Qt::Uninitialized); // empty, not null
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
