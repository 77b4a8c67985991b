// Not part of the public interface. The engine behind CString_E::Format: a format is walked once,
// each conversion is parsed into a FormatSpec and written into a TextSink.
#pragma once

#include <cstdarg>
#include <cstdint>
#include <memory>
#include <string_view>

namespace vx::detail {

/// Collects wide text; what fits on the stack allocates nothing.
class TextSink
{
public:
    TextSink() = default;
    TextSink(const TextSink&) = delete;
    TextSink& operator=(const TextSink&) = delete;

    const wchar_t* data() const { return m_data; }
    std::size_t size() const { return m_size; }

    void append(std::wstring_view text);
    void append(wchar_t ch, std::size_t count);
    /// Room for @p count more characters, which the caller writes.
    wchar_t* extend(std::size_t count);

private:
    void grow(std::size_t atLeast);

    static constexpr std::size_t kOnStack = 256;
    std::size_t m_size = 0;
    std::size_t m_capacity = kOnStack;
    wchar_t m_stack[kOnStack];
    std::unique_ptr<wchar_t[]> m_heap;
    wchar_t* m_data = m_stack;
};

enum class ArgSize : unsigned char
{
    Default,
    Short,  // h
    Long,   // l: 32 bits for a number
    Wide,   // w
    Bits32, // I32
    Bits64, // I64, ll, and I: the size of a pointer
};

/// One parsed conversion.
struct FormatSpec
{
    bool left = false;
    bool plus = false;
    bool space = false;
    bool alternate = false;
    bool zero = false;
    int width = 0;
    int precision = -1; // -1: none given
    ArgSize size = ArgSize::Default;
    wchar_t conversion = 0;
};

/// The arguments still to be taken; a struct because `va_list` may be an array.
struct ArgCursor
{
    va_list args;
};

/// Parses behind a '%', takes "*" from @p cursor and returns the place behind the conversion.
const wchar_t* parseSpec(const wchar_t* p, FormatSpec& spec, ArgCursor& cursor);

/// Writes @p digits with the sign or base in @p prefix, padded to the width, with zeros behind the
/// prefix if @p zeroFill is set.
void writeNumber(TextSink& sink, const FormatSpec& spec, std::string_view prefix,
                 std::string_view digits, bool zeroFill);
void writeInteger(TextSink& sink, const FormatSpec& spec, std::uint64_t magnitude, bool negative);
void writePointer(TextSink& sink, const FormatSpec& spec, std::uintptr_t value);
void writeFloat(TextSink& sink, const FormatSpec& spec, double value);

/// Formats into @p sink; see CString_E::Format() for the conversions.
void formatText(TextSink& sink, const wchar_t* format, va_list args);

} // namespace vx::detail
