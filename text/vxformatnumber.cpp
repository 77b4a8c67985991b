#include "text/vxformat_p.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <string>

#include <locale.h>

namespace vx::detail {
namespace {

constexpr std::string_view kLowerDigits = "0123456789abcdef";
constexpr std::string_view kUpperDigits = "0123456789ABCDEF";

bool isUpper(const FormatSpec& spec) { return spec.conversion >= L'A' && spec.conversion <= L'Z'; }

std::string_view signPrefix(const FormatSpec& spec, bool negative)
{
    return negative ? "-" : spec.plus ? "+" : spec.space ? " " : "";
}

// The digits of a number, written backwards into the end of a buffer.
class Digits
{
public:
    Digits(std::uint64_t value, unsigned base, bool upper)
    {
        const std::string_view digits = upper ? kUpperDigits : kLowerDigits;
        // Dividing by a constant is much cheaper than by a variable.
        if (base == 10) {
            for (; value != 0; value /= 10)
                *--m_first = digits[value % 10];
        } else {
            const unsigned shift = base == 16 ? 4 : 3;
            for (; value != 0; value >>= shift)
                *--m_first = digits[value & (base - 1)];
        }
    }
    std::string_view view() const
    {
        return {m_first, static_cast<std::size_t>(m_buffer.data() + m_buffer.size() - m_first)};
    }

private:
    std::array<char, 24> m_buffer; // 22 octal digits hold 64 bits
    char* m_first = m_buffer.data() + m_buffer.size();
};

// printf in the C locale, for this thread only and whatever the process's locale is.
template <typename... Args>
int printInCLocale(char* buffer, std::size_t size, const char* format, Args... args)
{
    static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", nullptr);
    const locale_t previous = uselocale(cLocale);
    const int length = std::snprintf(buffer, size, format, args...);
    uselocale(previous);
    return length;
}

// Room for the digits of a float: on the stack unless a great precision is asked for.
class FloatBuffer
{
public:
    explicit FloatBuffer(int precision)
        : m_size(kRoom + static_cast<std::size_t>(std::max(precision, 0)))
    {
        if (m_size > sizeof m_stack)
            m_heap.reset(new char[m_size]);
    }
    char* data() { return m_heap ? m_heap.get() : m_stack; }
    std::size_t size() const { return m_size; }

private:
    static constexpr std::size_t kRoom = 340; // 309 digits before the point; exponent and point
    std::size_t m_size;
    char m_stack[kRoom + 60];
    std::unique_ptr<char[]> m_heap;
};

// The number without its sign, in lower case. The standard's to_chars gives printf's digits; not
// for the "#" form, nor for hexadecimal numbers, whose first digit it may choose in another way.
std::size_t floatDigits(FloatBuffer& buffer, const FormatSpec& spec, double magnitude)
{
    const wchar_t kind = isUpper(spec) ? spec.conversion + (L'a' - L'A') : spec.conversion;
    const int precision = spec.precision < 0 && kind != L'a' ? 6 : spec.precision;
    if (kind == L'a' || spec.alternate) {
        const char format[] = {'%', spec.alternate ? '#' : '-', '.',
                               '*', static_cast<char>(kind),    0};
        return static_cast<std::size_t>(
            printInCLocale(buffer.data(), buffer.size(), format, precision, magnitude));
    }
    const auto form = kind == L'f'   ? std::chars_format::fixed
                      : kind == L'e' ? std::chars_format::scientific
                                     : std::chars_format::general;
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, form, precision);
    return static_cast<std::size_t>(result.ptr - buffer.data());
}

} // namespace

void writeNumber(TextSink& sink, const FormatSpec& spec, std::string_view prefix,
                 std::string_view digits, bool zeroFill)
{
    const std::size_t length = prefix.size() + digits.size();
    const auto width = static_cast<std::size_t>(spec.width);
    const std::size_t fill = width > length ? width - length : 0;
    if (!spec.left && !zeroFill)
        sink.append(L' ', fill);
    wchar_t* out = sink.extend(length + (zeroFill ? fill : 0));
    for (const char ch : prefix)
        *out++ = static_cast<wchar_t>(ch);
    for (std::size_t i = 0; zeroFill && i < fill; ++i)
        *out++ = L'0';
    for (const char ch : digits)
        *out++ = static_cast<wchar_t>(ch);
    if (spec.left && !zeroFill)
        sink.append(L' ', fill);
}

void writeInteger(TextSink& sink, const FormatSpec& spec, std::uint64_t magnitude, bool negative)
{
    const bool isHex = spec.conversion == L'x' || spec.conversion == L'X';
    const bool isOctal = spec.conversion == L'o';
    const bool isSigned = spec.conversion == L'd' || spec.conversion == L'i';
    const Digits digits(magnitude, isHex ? 16 : isOctal ? 8 : 10, isUpper(spec));

    std::string_view prefix = isSigned ? signPrefix(spec, negative) : std::string_view();
    if (isHex && spec.alternate && magnitude != 0)
        prefix = isUpper(spec) ? "0X" : "0x";

    const std::string_view view = digits.view();
    std::size_t wanted = spec.precision < 0 ? 1 : static_cast<std::size_t>(spec.precision);
    if (isOctal && spec.alternate)
        wanted = std::max(wanted, view.size() + 1);
    if (view.size() >= wanted) {
        writeNumber(sink, spec, prefix, view, spec.zero && !spec.left && spec.precision < 0);
        return;
    }
    const std::string padded = std::string(wanted - view.size(), '0').append(view);
    writeNumber(sink, spec, prefix, padded, spec.zero && !spec.left && spec.precision < 0);
}

void writePointer(TextSink& sink, const FormatSpec& spec, std::uintptr_t value)
{
    FormatSpec hex;
    hex.left = spec.left;
    hex.width = spec.width;
    hex.precision = 2 * static_cast<int>(sizeof value);
    hex.conversion = L'X';
    writeInteger(sink, hex, value, false);
}

void writeFloat(TextSink& sink, const FormatSpec& spec, double value)
{
    std::string prefix(signPrefix(spec, std::signbit(value)));
    if (!std::isfinite(value)) {
        const bool nan = std::isnan(value);
        writeNumber(sink, spec, prefix,
                    isUpper(spec) ? (nan ? "NAN" : "INF") : (nan ? "nan" : "inf"), false);
        return;
    }
    FloatBuffer buffer(spec.precision);
    std::string_view digits(buffer.data(), floatDigits(buffer, spec, std::fabs(value)));
    if (isUpper(spec)) {
        for (std::size_t i = 0; i < digits.size(); ++i) {
            char& ch = buffer.data()[i];
            ch = ch >= 'a' && ch <= 'z' ? static_cast<char>(ch - 'a' + 'A') : ch;
        }
    }
    if (digits.size() > 2 && (digits[1] == 'x' || digits[1] == 'X')) { // zeros go behind the base
        prefix.append(digits.substr(0, 2));
        digits.remove_prefix(2);
    }
    writeNumber(sink, spec, prefix, digits, spec.zero && !spec.left);
}

} // namespace vx::detail
