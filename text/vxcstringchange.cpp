// Changing in place, and the changed copies for other platforms.
#include <VxMFCEmu/text/cstring.h>

#include <algorithm>
#include <cwctype>
#include <functional>

using vx::detail::orEmpty;

CString_E& CString_E::MakeUpper()
{
    for (wchar_t& ch : m_text)
        ch = static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(ch)));
    return *this;
}

CString_E& CString_E::MakeLower()
{
    for (wchar_t& ch : m_text)
        ch = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(ch)));
    return *this;
}

CString_E& CString_E::MakeReverse()
{
    std::reverse(m_text.begin(), m_text.end());
    return *this;
}

int CString_E::Replace(wchar_t chOld, wchar_t chNew)
{
    int count = 0;
    for (wchar_t& ch : m_text) {
        if (ch == chOld) {
            ch = chNew;
            ++count;
        }
    }
    return count;
}

int CString_E::Replace(const wchar_t* old, const wchar_t* replacement)
{
    const std::wstring_view from(orEmpty(old));
    const std::wstring_view to(orEmpty(replacement));
    if (from.empty())
        return 0;
    const std::size_t first = m_text.find(from);
    if (first == std::wstring::npos)
        return 0;
    const std::size_t second = m_text.find(from, first + from.size());
    if (second == std::wstring::npos) {
        m_text.replace(first, from.size(), to);
        return 1;
    }
    // In place, text is only moved towards the start; what is still read must not lie in it.
    const bool inPlace = to.size() <= from.size() && !PointsInto(old) && !PointsInto(replacement);
    return inPlace ? ReplaceInPlace(from, to, first) : ReplaceGrowing(from, to, first);
}

bool CString_E::PointsInto(const wchar_t* p) const noexcept
{
    const std::less_equal<> notAfter;
    return notAfter(m_text.data(), p) && notAfter(p, m_text.data() + m_text.size());
}

int CString_E::ReplaceInPlace(std::wstring_view old, std::wstring_view replacement, std::size_t hit)
{
    int count = 0;
    wchar_t* const text = m_text.data();
    wchar_t* out = text + hit;
    while (hit != std::wstring::npos) {
        out = std::copy(replacement.begin(), replacement.end(), out);
        ++count;
        const std::size_t kept = hit + old.size();
        hit = m_text.find(old, kept);
        out = std::copy(text + kept, text + std::min(hit, m_text.size()), out);
    }
    m_text.resize(static_cast<std::size_t>(out - text));
    return count;
}

int CString_E::ReplaceGrowing(std::wstring_view old, std::wstring_view replacement, std::size_t hit)
{
    int count = 0;
    std::wstring result;
    result.reserve(m_text.size() + 2 * replacement.size());
    result.append(m_text, 0, hit);
    while (hit != std::wstring::npos) {
        result.append(replacement);
        ++count;
        const std::size_t kept = hit + old.size();
        hit = m_text.find(old, kept);
        result.append(m_text, kept, hit - kept);
    }
    m_text = std::move(result);
    return count;
}

int CString_E::Remove(wchar_t ch)
{
    const auto end = std::remove(m_text.begin(), m_text.end(), ch);
    const auto removed = static_cast<int>(m_text.end() - end);
    m_text.erase(end, m_text.end());
    return removed;
}

int CString_E::Insert(int nIndex, wchar_t ch)
{
    m_text.insert(static_cast<std::size_t>(nIndex), 1, ch);
    return GetLength();
}

int CString_E::Insert(int nIndex, const wchar_t* p)
{
    m_text.insert(static_cast<std::size_t>(nIndex), orEmpty(p));
    return GetLength();
}

int CString_E::Delete(int nIndex, int nCount)
{
    m_text.erase(static_cast<std::size_t>(nIndex), clampCount(nCount));
    return GetLength();
}

CString_E& CString_E::TrimLeftOf(std::wstring_view set)
{
    m_text.erase(0, std::min(m_text.find_first_not_of(set), m_text.size()));
    return *this;
}

CString_E& CString_E::TrimRightOf(std::wstring_view set)
{
    // Without any character to keep, npos + 1 is 0.
    m_text.resize(m_text.find_last_not_of(set) + 1);
    return *this;
}

CString_E& CString_E::TrimOf(std::wstring_view set)
{
    // Both ends are found first: the set may be a part of the text.
    const std::size_t end = m_text.find_last_not_of(set) + 1;
    const std::size_t start = std::min(m_text.find_first_not_of(set), end);
    m_text.resize(end);
    m_text.erase(0, start);
    return *this;
}

namespace {

template <typename Text>
CString_E replaced(CString_E text, Text from, Text to)
{
    text.Replace(from, to);
    return text;
}

} // namespace

CString_E CString_E::ToWinReturn() const { return replaced(*this, L"\n", L"\r\n"); }
CString_E CString_E::ToUnixReturn() const { return replaced(*this, L"\r\n", L"\n"); }
CString_E CString_E::ToWinSeperator() const { return replaced(*this, L'/', L'\\'); }
CString_E CString_E::ToUnixSeperator() const { return replaced(*this, L'\\', L'/'); }
