// CString_E::Format beside swprintf: formats of up to three arguments, each of the type that its
// conversion takes. Where swprintf has no such conversion it gets the one that means the same.
#include "inputreader.h"
#include "require.h"

#include <VxMFCEmu/text.h>

#include <deque>
#include <iterator>
#include <variant>
#include <vector>

namespace {

using Argument = std::variant<int, long long, double, const void*>;

enum class Kind
{
    Signed,
    Unsigned,
    Float,
    WideText,
    NarrowText,
    Character,
    Pointer,
    Unknown,
};

struct Conversion
{
    const wchar_t* ours;
    const wchar_t* theirs;
    Kind kind;
    bool is64 = false;
};

constexpr Conversion kConversions[] = {
    {L"d", L"d", Kind::Signed},
    {L"i", L"i", Kind::Signed},
    {L"hd", L"hd", Kind::Signed},
    {L"I32d", L"d", Kind::Signed},
    {L"ld", L"d", Kind::Signed, true}, // a long has 32 bits in a format, whatever was given
    {L"lld", L"lld", Kind::Signed, true},
    {L"I64i", L"lli", Kind::Signed, true},
    {L"Id", L"lld", Kind::Signed, true},
    {L"u", L"u", Kind::Unsigned},
    {L"o", L"o", Kind::Unsigned},
    {L"x", L"x", Kind::Unsigned},
    {L"X", L"X", Kind::Unsigned},
    {L"hu", L"hu", Kind::Unsigned},
    {L"hX", L"hX", Kind::Unsigned},
    {L"lo", L"o", Kind::Unsigned, true},
    {L"llx", L"llx", Kind::Unsigned, true},
    {L"I64X", L"llX", Kind::Unsigned, true},
    {L"Iu", L"llu", Kind::Unsigned, true},
    {L"f", L"f", Kind::Float},
    {L"F", L"F", Kind::Float},
    {L"e", L"e", Kind::Float},
    {L"E", L"E", Kind::Float},
    {L"g", L"g", Kind::Float},
    {L"G", L"G", Kind::Float},
    {L"a", L"a", Kind::Float},
    {L"lA", L"A", Kind::Float},
    {L"s", L"ls", Kind::WideText},
    {L"ls", L"ls", Kind::WideText},
    {L"wS", L"ls", Kind::WideText},
    {L"S", L"s", Kind::NarrowText},
    {L"hs", L"s", Kind::NarrowText},
    {L"c", L"lc", Kind::Character},
    {L"lc", L"lc", Kind::Character},
    {L"p", L"llX", Kind::Pointer, true},
    {L"n", nullptr, Kind::Unknown},
    {L"k", nullptr, Kind::Unknown},
    {L"hy", nullptr, Kind::Unknown},
};

class Formats
{
public:
    explicit Formats(InputReader input) : m_input(input)
    {
        while (!m_input.isEmpty() && m_arguments.size() < kMaxArguments) {
            addLiteral();
            addConversion(kConversions[m_input.choose(std::size(kConversions))]);
        }
        m_arguments.resize(kMaxArguments);
    }

    void compare() const
    {
        std::visit(
            [this](auto a, auto b, auto c) {
                static wchar_t buffer[1 << 14];
                const int length =
                    std::swprintf(buffer, std::size(buffer), m_theirs.c_str(), a, b, c);
                VXMFC_REQUIRE(length >= 0);
                CString_E text;
                text.Format(m_ours.c_str(), a, b, c);
                VXMFC_REQUIRE(text.GetLength() == length);
                VXMFC_REQUIRE(
                    std::wmemcmp(text.GetString(), buffer, static_cast<std::size_t>(length)) == 0);
            },
            m_arguments[0], m_arguments[1], m_arguments[2]);
    }

private:
    static constexpr std::size_t kMaxArguments = 3;
    static constexpr int kMaxField = 900; // more than the longest number has digits

    void addBoth(const std::wstring& text)
    {
        m_ours += text;
        m_theirs += text;
    }

    void addLiteral()
    {
        for (std::size_t n = m_input.choose(4); n > 0; --n) {
            const auto ch = static_cast<wchar_t>(m_input.take<std::uint16_t>());
            if (ch != L'\0')
                addBoth(ch == L'%' ? L"%%" : std::wstring(1, ch));
        }
    }

    // What swprintf leaves open for a kind is left out.
    std::wstring flags(Kind kind)
    {
        const auto bits = m_input.take<std::uint8_t>();
        std::wstring text;
        const bool isNumber = kind <= Kind::Float;
        for (unsigned bit = 0; bit < (isNumber ? 5U : 1U); ++bit) {
            if (bits & (1U << bit))
                text += L"-+ 0#"[bit];
        }
        return text;
    }

    // A width or the number behind a point; behind '*' it is an argument, and may be negative.
    std::wstring field(bool mayBeArgument)
    {
        const int value = m_input.take<std::int16_t>() % kMaxField;
        if (!mayBeArgument || m_arguments.size() + 1 >= kMaxArguments || !m_input.choose(2))
            return std::to_wstring(std::abs(value));
        m_arguments.emplace_back(value);
        return L"*";
    }

    void addConversion(const Conversion& conversion)
    {
        const Kind kind = conversion.kind;
        const auto shape = m_input.take<std::uint8_t>();
        std::wstring spec = flags(kind);
        if (shape & 1U)
            spec += field(kind != Kind::Unknown);
        if (kind == Kind::Pointer) { // always all digits
            m_ours += L'%' + spec + conversion.ours;
            m_theirs += L'%' + spec + L".16" + conversion.theirs;
            m_arguments.emplace_back(m_input.take<long long>());
            return;
        }
        if ((shape & 2U) && kind != Kind::Character)
            spec += L'.' + ((shape & 4U) ? std::wstring() : field(kind != Kind::Unknown));
        m_ours += L'%' + spec + conversion.ours;
        if (kind == Kind::Unknown) {
            m_theirs += L"%%" + spec + conversion.ours;
            return;
        }
        m_theirs += L'%' + spec + conversion.theirs;
        addArgument(conversion);
    }

    void addArgument(const Conversion& conversion)
    {
        switch (conversion.kind) {
        case Kind::Float:
            m_arguments.emplace_back(m_input.take<double>());
            break;
        case Kind::WideText:
            m_arguments.emplace_back(static_cast<const void*>(wideText()));
            break;
        case Kind::NarrowText:
            m_arguments.emplace_back(static_cast<const void*>(narrowText()));
            break;
        case Kind::Character:
            m_arguments.emplace_back(static_cast<int>(m_input.take<std::uint16_t>()));
            break;
        default:
            if (conversion.is64)
                m_arguments.emplace_back(m_input.take<long long>());
            else
                m_arguments.emplace_back(m_input.take<int>());
        }
    }

    const wchar_t* wideText()
    {
        const std::string bytes = m_input.takeUntil('\n');
        std::wstring& text = m_wide.emplace_back();
        for (const char byte : bytes)
            text.push_back(static_cast<wchar_t>(static_cast<unsigned char>(byte) * 257));
        return text.c_str();
    }

    const char* narrowText() // ASCII, which each locale converts alike
    {
        std::string& text = m_narrow.emplace_back(m_input.takeUntil('\n'));
        for (char& byte : text)
            byte = static_cast<char>(byte & 0x7F);
        return text.c_str();
    }

    InputReader m_input;
    std::wstring m_ours;
    std::wstring m_theirs;
    std::vector<Argument> m_arguments;
    std::deque<std::wstring> m_wide;
    std::deque<std::string> m_narrow;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t kLongest = 512; // keeps the texts inside the buffer of swprintf
    if (size <= kLongest)
        Formats({data, size}).compare();
    return 0;
}
