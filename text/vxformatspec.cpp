#include "text/vxformat_p.h"

#include <algorithm>

namespace vx::detail {
namespace {

// A width or precision beyond this is a mistake, and would only ask for gigabytes.
constexpr int kMaxField = 1'000'000;

const wchar_t* parseFlags(const wchar_t* p, FormatSpec& spec)
{
    for (;; ++p) {
        switch (*p) {
        case L'-':
            spec.left = true;
            break;
        case L'+':
            spec.plus = true;
            break;
        case L' ':
            spec.space = true;
            break;
        case L'#':
            spec.alternate = true;
            break;
        case L'0':
            spec.zero = true;
            break;
        default:
            return p;
        }
    }
}

// Digits or "*"; without either the field is 0.
const wchar_t* parseField(const wchar_t* p, int& field, ArgCursor& cursor)
{
    if (*p == L'*') {
        field = std::clamp(va_arg(cursor.args, int), -kMaxField, kMaxField);
        return p + 1;
    }
    field = 0;
    for (; *p >= L'0' && *p <= L'9'; ++p)
        field = std::min(field * 10 + static_cast<int>(*p - L'0'), kMaxField);
    return p;
}

const wchar_t* parseSize(const wchar_t* p, ArgSize& size)
{
    switch (*p) {
    case L'h':
        size = ArgSize::Short;
        return p + 1;
    case L'w':
        size = ArgSize::Wide;
        return p + 1;
    case L'l':
        size = p[1] == L'l' ? ArgSize::Bits64 : ArgSize::Long;
        return p + (p[1] == L'l' ? 2 : 1);
    case L'I':
        size = ArgSize::Bits64;
        if (p[1] == L'6' && p[2] == L'4')
            return p + 3;
        if (p[1] != L'3' || p[2] != L'2')
            return p + 1;
        size = ArgSize::Bits32;
        return p + 3;
    default:
        return p;
    }
}

} // namespace

const wchar_t* parseSpec(const wchar_t* p, FormatSpec& spec, ArgCursor& cursor)
{
    p = parseFlags(p, spec);
    p = parseField(p, spec.width, cursor);
    if (spec.width < 0) {
        spec.left = true;
        spec.width = -spec.width;
    }
    if (*p == L'.')
        p = parseField(p + 1, spec.precision, cursor);
    p = parseSize(p, spec.size);
    spec.conversion = *p;
    return *p ? p + 1 : p;
}

} // namespace vx::detail
