#include "text/vxtranscode_p.h"

#include <QtCore/QString>

#include <algorithm>
#include <array>
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

// The six bits that a continuation byte carries.
constexpr std::uint32_t bitsOf(unsigned char byte) { return byte & 0x3FU; }

constexpr bool areContinuations(std::initializer_list<unsigned char> bytes)
{
    unsigned char wrong = 0;
    for (const unsigned char byte : bytes)
        wrong |= byte ^ 0x80U;
    return (wrong & 0xC0U) == 0;
}

struct Sequence
{
    std::uint32_t code;
    std::size_t length; // 0 when invalid
};

// The sequence at the start of a text that is not empty.
inline Sequence decode(const unsigned char* p, const unsigned char* end)
{
    constexpr Sequence kInvalid = {0, 0};
    const unsigned char lead = *p;
    const auto left = static_cast<std::size_t>(end - p);
    if (lead < 0x80)
        return {lead, 1};
    if (lead < 0xE0) {
        if (lead < 0xC2 || left < 2 || !areContinuations({p[1]}))
            return kInvalid;
        return {((lead & 0x1FU) << 6) | bitsOf(p[1]), 2};
    }
    if (lead < 0xF0) {
        if (left < 3 || !areContinuations({p[1], p[2]}))
            return kInvalid;
        const std::uint32_t code = ((lead & 0x0FU) << 12) | (bitsOf(p[1]) << 6) | bitsOf(p[2]);
        return code < 0x800 || isSurrogate(code) ? kInvalid : Sequence{code, 3};
    }
    if (lead > 0xF4 || left < 4 || !areContinuations({p[1], p[2], p[3]}))
        return kInvalid;
    const std::uint32_t code =
        ((lead & 0x07U) << 18) | (bitsOf(p[1]) << 12) | (bitsOf(p[2]) << 6) | bitsOf(p[3]);
    return code < 0x10000 || code > 0x10FFFF ? kInvalid : Sequence{code, 4};
}

// Reads 64 bytes a step.
bool isAscii(const unsigned char* p, std::size_t n)
{
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    for (std::array<std::uint64_t, 8> words; n >= sizeof words;
         p += sizeof words, n -= sizeof words) {
        std::memcpy(words.data(), p, sizeof words);
        std::uint64_t all = 0;
        for (const std::uint64_t word : words)
            all |= word;
        if (all & kHighBits)
            return false;
    }
    unsigned char all = 0;
    for (std::size_t i = 0; i < n; ++i)
        all |= p[i];
    return all < 0x80;
}

// Vectorises: no early way out, narrow sums.

std::size_t countStarts(const unsigned char* p, std::size_t n)
{
    constexpr std::size_t kBlock = 255; // sums stay in a byte
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

// Writes the bytes of the leading ASCII characters and returns their number, which may be rounded
// down.
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

constexpr char leadByte(std::uint32_t mark, std::uint32_t bits)
{
    return static_cast<char>(mark | bits);
}

constexpr char tailByte(std::uint32_t code, unsigned shift)
{
    return static_cast<char>(0x80U | ((code >> shift) & 0x3FU));
}

// Runs of one length are the rule, and a loop with a fixed stride for each is what makes this fast.
char* encode(const wchar_t* p, const wchar_t* end, char* out)
{
    while (p != end) {
        for (; p != end && codeOf(*p) < 0x80; ++p)
            *out++ = static_cast<char>(*p);
        for (; p != end && codeOf(*p) - 0x80U < 0x780U; ++p, out += 2) {
            out[0] = leadByte(0xC0, codeOf(*p) >> 6);
            out[1] = tailByte(codeOf(*p), 0);
        }
        for (; p != end && codeOf(*p) - 0x800U < 0xF800U; ++p, out += 3) {
            if (isSurrogate(codeOf(*p)))
                throw std::range_error("wstring_convert::to_bytes");
            out[0] = leadByte(0xE0, codeOf(*p) >> 12);
            out[1] = tailByte(codeOf(*p), 6);
            out[2] = tailByte(codeOf(*p), 0);
        }
        for (; p != end && codeOf(*p) > 0xFFFF; ++p, out += 4) {
            if (codeOf(*p) > 0x10FFFF)
                throw std::range_error("wstring_convert::to_bytes");
            out[0] = leadByte(0xF0, codeOf(*p) >> 18);
            out[1] = tailByte(codeOf(*p), 12);
            out[2] = tailByte(codeOf(*p), 6);
            out[3] = tailByte(codeOf(*p), 0);
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
        return std::wstring(p, end); // writes each character once, where resize() fills with zeros
    std::wstring text(countStarts(p, bytes.size()), L'\0');
    for (wchar_t* out = text.data(); p != end;) {
        // Runs of one length are the rule; what ends a run is decoded with all tests.
        for (; p != end && *p < 0x80; ++p)
            *out++ = static_cast<wchar_t>(*p);
        for (; end - p >= 2 && p[0] - 0xC2U < 0x1EU && areContinuations({p[1]}); p += 2)
            *out++ = static_cast<wchar_t>(((p[0] & 0x1FU) << 6) | bitsOf(p[1]));
        // Of the other leads of three bytes, E0 and ED do not go with every second byte.
        for (; end - p >= 3 && p[0] - 0xE1U < 0x0CU && areContinuations({p[1], p[2]}); p += 3)
            *out++ =
                static_cast<wchar_t>(((p[0] & 0x0FU) << 12) | (bitsOf(p[1]) << 6) | bitsOf(p[2]));
        if (p == end)
            break;
        const Sequence sequence = decode(p, end);
        if (sequence.length == 0)
            throw std::range_error("wstring_convert::from_bytes");
        *out++ = static_cast<wchar_t>(sequence.code);
        p += sequence.length;
    }
    return text;
}

std::wstring utf8ToWideLossy(std::string_view bytes, std::size_t maxCount)
{
    std::wstring text;
    const unsigned char* p = bytesOf(bytes);
    const unsigned char* const end = p + bytes.size();
    while (p != end && text.size() < maxCount) {
        const Sequence sequence = decode(p, end);
        text.push_back(sequence.length ? static_cast<wchar_t>(sequence.code) : kReplacement);
        p += std::max<std::size_t>(sequence.length, 1);
    }
    return text;
}

char* wideToUtf8(std::wstring_view text)
{
    const std::size_t n = text.size();
    std::unique_ptr<char[]> bytes(new char[n + 1]);
    const std::size_t ascii = narrowAscii(text, bytes.get());
    char* out = bytes.get() + ascii;
    if (ascii != n) {
        text.remove_prefix(ascii);
        std::unique_ptr<char[]> larger(new char[ascii + kLongest * text.size() + 1]);
        out = std::copy_n(bytes.get(), ascii, larger.get());
        bytes = std::move(larger);
        out = encode(text.data(), text.data() + text.size(), out);
    }
    *out = '\0';
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
    std::wstring wide(n, L'\0');
    wide.resize(static_cast<std::size_t>(text.toWCharArray(wide.data())));
    return wide;
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
