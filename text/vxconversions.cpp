#include <VxMFCEmu/text/conversions.h>

#include "text/vxtranscode_p.h"

#include <array>
#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <locale.h> // newlocale and uselocale, which <clocale> does not promise
#include <map>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <type_traits>

namespace {

constexpr auto kUnconvertible = static_cast<std::size_t>(-1);

struct FreeLocale
{
    void operator()(locale_t locale) const { freelocale(locale); }
};
using Locale = std::unique_ptr<std::remove_pointer_t<locale_t>, FreeLocale>;

Locale openLocale(const char* name) { return Locale(newlocale(LC_ALL_MASK, name, nullptr)); }

// Locales stay open, and unknown names are remembered: libc looks for a name in several files.
class OpenLocales
{
public:
    locale_t Find(const char* name)
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_locales.find(name);
        if (found != m_locales.end())
            return found->second.get();
        return m_locales.emplace(name, openLocale(name)).first->second.get();
    }

private:
    std::mutex m_mutex;
    std::map<std::string, Locale, std::less<>> m_locales; // null for an unknown name
};

OpenLocales g_openLocales;

// What the C library looks for and does not find is none of the caller's business.
class LastErrorKeeper
{
public:
    LastErrorKeeper() = default;
    ~LastErrorKeeper() { errno = m_nError; }
    LastErrorKeeper(const LastErrorKeeper&) = delete;
    LastErrorKeeper& operator=(const LastErrorKeeper&) = delete;

private:
    const int m_nError = errno;
};

// Converts as after `setlocale(LC_ALL, name)`, without making other threads do so too.
class LocaleScope
{
public:
    explicit LocaleScope(const char* name)
    {
        // A thread with a locale of its own does not see the process's one, whatever that is.
        if (!name || uselocale(nullptr) != LC_GLOBAL_LOCALE)
            return;
        locale_t locale = nullptr;
        if (*name) {
            locale = g_openLocales.Find(name);
        } else { // the environment's, which may change
            m_own = openLocale(name);
            locale = m_own.get();
        }
        if (locale)
            m_previous = uselocale(locale);
    }
    ~LocaleScope()
    {
        if (m_previous)
            uselocale(m_previous);
    }
    LocaleScope(const LocaleScope&) = delete;
    LocaleScope& operator=(const LocaleScope&) = delete;

private:
    Locale m_own;
    locale_t m_previous = nullptr;
};

// Both directions: converts once, into a buffer for a result of @p most characters, the greatest
// length that it can have.
template <typename Target, typename Source, typename Convert>
std::basic_string<Target> convert(const Source* source, std::size_t most, Convert convertText)
{
    std::array<Target, 1024> small; // NOLINT(cppcoreguidelines-pro-type-member-init): written below
    std::unique_ptr<Target[]> large;
    if (most >= small.size())
        large.reset(new Target[most + 1]);
    Target* const buffer = large ? large.get() : small.data();
    const std::size_t length = convertText(buffer, source, most + 1);
    return length == kUnconvertible ? std::basic_string<Target>()
                                    : std::basic_string<Target>(buffer, length);
}

} // namespace

std::string WideCharToMultiByte_E(const std::wstring& s, const char* locale)
{
    const LastErrorKeeper keeper;
    const LocaleScope scope(locale);
    return convert<char>(s.c_str(), s.size() * MB_CUR_MAX, std::wcstombs);
}

std::wstring MultiByteToWideChar_E(const std::string& s, const char* locale)
{
    const LastErrorKeeper keeper;
    const LocaleScope scope(locale);
    return convert<wchar_t>(s.c_str(), s.size(), std::mbstowcs);
}

std::string _W2A(const wchar_t* p)
{
    if (!p)
        throw std::logic_error("_W2A: null text");
    return WideCharToMultiByte_E(p, vx::detail::kSimplifiedChinese);
}

double _wtof(const wchar_t* p)
{
    const LastErrorKeeper keeper;
    double value = 0;
    // NOLINTNEXTLINE(cert-err34-c): what cannot be read leaves the 0
    return std::sscanf(_W2A(p).c_str(), "%lf", &value) == 1 ? value : 0;
}
