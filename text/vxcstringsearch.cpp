// Comparison, spans and tokens.
#include <VxMFCEmu/text/cstring.h>

#include <cwctype>
#include <locale>
#include <stdexcept>

using vx::detail::orEmpty;

namespace {

wchar_t lowered(wchar_t ch)
{
    return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(ch)));
}

std::wstring lowered(std::wstring_view text)
{
    std::wstring result(text);
    for (wchar_t& ch : result)
        ch = lowered(ch);
    return result;
}

const std::locale& environmentLocale()
{
    static const std::locale locale = [] {
        try {
            return std::locale("");
        } catch (const std::runtime_error&) { // an environment that names no installed locale
            return std::locale::classic();
        }
    }();
    return locale;
}

int collate(std::wstring_view a, std::wstring_view b)
{
    return std::use_facet<std::collate<wchar_t>>(environmentLocale())
        .compare(a.data(), a.data() + a.size(), b.data(), b.data() + b.size());
}

} // namespace

int CString_E::CompareNoCase(const wchar_t* p) const
{
    const std::wstring_view other(orEmpty(p));
    const std::size_t common = std::min(m_text.size(), other.size());
    for (std::size_t i = 0; i < common; ++i) {
        const wchar_t a = lowered(m_text[i]);
        const wchar_t b = lowered(other[i]);
        if (a != b)
            return a < b ? -1 : 1;
    }
    return m_text.size() == other.size() ? 0 : m_text.size() < other.size() ? -1 : 1;
}

int CString_E::Collate(const wchar_t* p) const { return collate(m_text, orEmpty(p)); }

int CString_E::CollateNoCase(const wchar_t* p) const
{
    return collate(lowered(std::wstring_view(m_text)), lowered(std::wstring_view(orEmpty(p))));
}

CString_E CString_E::SpanIncluding(const wchar_t* set) const
{
    return CString_E(m_text, 0, m_text.find_first_not_of(orEmpty(set)));
}

CString_E CString_E::SpanExcluding(const wchar_t* set) const
{
    return CString_E(m_text, 0, m_text.find_first_of(orEmpty(set)));
}

CString_E CString_E::Tokenize(const wchar_t* tokens, int& iStart) const
{
    const wchar_t* const separators = orEmpty(tokens);
    const std::size_t first =
        iStart < 0 ? std::wstring::npos
                   : m_text.find_first_not_of(separators, static_cast<std::size_t>(iStart));
    if (first == std::wstring::npos) {
        iStart = -1;
        return {};
    }
    const std::size_t end = std::min(m_text.find_first_of(separators, first), m_text.size());
    iStart = static_cast<int>(end) + 1;
    return CString_E(m_text, first, end - first);
}
