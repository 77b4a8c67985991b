#include <VxMFCEmu/text/conversions.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace {

constexpr auto kUnconvertible = static_cast<std::size_t>(-1);
constexpr char kSimplifiedChinese[] = "chs"; // Intended: a Windows name, mostly unknown to libc

// Runs the process in another locale, if libc knows it.
class LocaleScope
{
public:
    explicit LocaleScope(const char* locale) : m_saved(std::setlocale(LC_ALL, nullptr))
    {
        std::setlocale(LC_ALL, locale);
    }
    ~LocaleScope() { std::setlocale(LC_ALL, m_saved.c_str()); }
    LocaleScope(const LocaleScope&) = delete;
    LocaleScope& operator=(const LocaleScope&) = delete;

private:
    std::string m_saved;
};

// Both directions: asks for the length, then converts into a zero-filled buffer with room to end.
template <typename Target, typename Source, typename Convert>
std::basic_string<Target> convertIn(const char* locale, const Source* source, Convert convert)
{
    const LocaleScope scope(locale);
    const std::size_t length = convert(nullptr, source, 0);
    if (length == kUnconvertible)
        return {};
    std::basic_string<Target> buffer(length + 1, Target());
    convert(buffer.data(), source, length + 1);
    return buffer.c_str();
}

} // namespace

std::string WideCharToMultiByte_E(const std::wstring& s, const char* locale)
{
    return convertIn<char>(locale, s.c_str(), std::wcstombs);
}

std::wstring MultiByteToWideChar_E(const std::string& s, const char* locale)
{
    return convertIn<wchar_t>(locale, s.c_str(), std::mbstowcs);
}

std::string _W2A(const wchar_t* p)
{
    if (!p)
        throw std::logic_error("_W2A: null text");
    return WideCharToMultiByte_E(p, kSimplifiedChinese);
}

double _wtof(const wchar_t* p)
{
    double value = 0;
    // NOLINTNEXTLINE(cert-err34-c): what cannot be read leaves the 0
    return std::sscanf(_W2A(p).c_str(), "%lf", &value) == 1 ? value : 0;
}
