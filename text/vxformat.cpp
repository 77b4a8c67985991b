#include "text/vxformat_p.h"

#include "text/vxtranscode_p.h"

#include <algorithm>
#include <cstring>
#include <cwchar>

namespace vx::detail {
namespace {

constexpr std::wstring_view kNull = L"(null)";

std::uint64_t takeUnsigned(const FormatSpec& spec, ArgCursor& cursor)
{
    switch (spec.size) {
    case ArgSize::Bits64:
        return va_arg(cursor.args, unsigned long long);
    case ArgSize::Short:
        return static_cast<unsigned short>(va_arg(cursor.args, unsigned));
    default:
        return va_arg(cursor.args, unsigned);
    }
}

std::int64_t takeSigned(const FormatSpec& spec, ArgCursor& cursor)
{
    switch (spec.size) {
    case ArgSize::Bits64:
        return va_arg(cursor.args, long long);
    case ArgSize::Short:
        return static_cast<short>(va_arg(cursor.args, int));
    default:
        return va_arg(cursor.args, int);
    }
}

// Capital C and S are the other kind of text, unless a size says which.
bool isNarrow(const FormatSpec& spec)
{
    if (spec.size == ArgSize::Default || spec.size == ArgSize::Bits32)
        return spec.conversion == L'C' || spec.conversion == L'S';
    return spec.size == ArgSize::Short;
}

void writeText(TextSink& sink, const FormatSpec& spec, std::wstring_view text)
{
    const auto width = static_cast<std::size_t>(spec.width);
    const std::size_t fill = width > text.size() ? width - text.size() : 0;
    if (!spec.left)
        sink.append(L' ', fill);
    sink.append(text);
    if (spec.left)
        sink.append(L' ', fill);
}

void writeChar(TextSink& sink, const FormatSpec& spec, ArgCursor& cursor)
{
    const int code = va_arg(cursor.args, int);
    auto wide = static_cast<wchar_t>(code);
    if (isNarrow(spec)) { // alone, a byte above 127 is no character
        const auto byte = static_cast<unsigned char>(code);
        wide = byte < 0x80 ? byte : L'\uFFFD';
    }
    writeText(sink, spec, {&wide, 1});
}

// The text need not be terminated when the precision ends it.
void writeString(TextSink& sink, const FormatSpec& spec, ArgCursor& cursor)
{
    const auto limit = spec.precision < 0 ? SIZE_MAX : static_cast<std::size_t>(spec.precision);
    const void* const text = va_arg(cursor.args, const void*);
    if (!text) {
        writeText(sink, spec, kNull.substr(0, limit));
    } else if (isNarrow(spec)) {
        const auto* const bytes = static_cast<const char*>(text);
        // A character has four bytes at most.
        const std::size_t size =
            limit < SIZE_MAX / 4 ? strnlen(bytes, limit * 4) : std::strlen(bytes);
        writeText(sink, spec, utf8ToWideLossy({bytes, size}, limit));
    } else {
        const auto* const wide = static_cast<const wchar_t*>(text);
        writeText(sink, spec, {wide, limit == SIZE_MAX ? std::wcslen(wide) : wcsnlen(wide, limit)});
    }
}

// Writes one conversion; false for an unknown one.
bool convert(TextSink& sink, const FormatSpec& spec, ArgCursor& cursor)
{
    switch (spec.conversion) {
    case L'd':
    case L'i': {
        const std::int64_t value = takeSigned(spec, cursor);
        const auto bits = static_cast<std::uint64_t>(value);
        writeInteger(sink, spec, value < 0 ? 0 - bits : bits, value < 0);
        return true;
    }
    case L'u':
    case L'o':
    case L'x':
    case L'X':
        writeInteger(sink, spec, takeUnsigned(spec, cursor), false);
        return true;
    case L'f':
    case L'F':
    case L'e':
    case L'E':
    case L'g':
    case L'G':
    case L'a':
    case L'A':
        writeFloat(sink, spec, va_arg(cursor.args, double));
        return true;
    case L'c':
    case L'C':
        writeChar(sink, spec, cursor);
        return true;
    case L's':
    case L'S':
        writeString(sink, spec, cursor);
        return true;
    case L'p':
        writePointer(sink, spec, reinterpret_cast<std::uintptr_t>(va_arg(cursor.args, void*)));
        return true;
    case L'%':
        sink.append(L"%");
        return true;
    default:
        return false;
    }
}

} // namespace

void TextSink::append(std::wstring_view text)
{
    if (!text.empty())
        std::wmemcpy(extend(text.size()), text.data(), text.size());
}

void TextSink::append(wchar_t ch, std::size_t count)
{
    if (count != 0)
        std::wmemset(extend(count), ch, count);
}

wchar_t* TextSink::extend(std::size_t count)
{
    if (m_capacity - m_size < count)
        grow(m_size + count);
    wchar_t* const end = m_data + m_size;
    m_size += count;
    return end;
}

void TextSink::grow(std::size_t atLeast)
{
    m_capacity = std::max(atLeast, 2 * m_capacity);
    std::unique_ptr<wchar_t[]> larger(new wchar_t[m_capacity]);
    std::wmemcpy(larger.get(), m_data, m_size);
    m_heap = std::move(larger);
    m_data = m_heap.get();
}

void formatText(TextSink& sink, const wchar_t* format, va_list args)
{
    ArgCursor cursor;
    va_copy(cursor.args, args);
    for (const wchar_t* p = format; *p;) {
        const wchar_t* const percent = wcschrnul(p, L'%');
        sink.append({p, static_cast<std::size_t>(percent - p)});
        if (!*percent)
            break;
        FormatSpec spec;
        p = parseSpec(percent + 1, spec, cursor);
        if (!convert(sink, spec, cursor))
            sink.append({percent, static_cast<std::size_t>(p - percent)});
    }
    va_end(cursor.args);
}

} // namespace vx::detail
