// Construction from other encodings, the UTF-8 form, and buffers.
#include <VxMFCEmu/text/cstring.h>

#include "text/vxtranscode_p.h"

#include <algorithm>
#include <cwchar>

namespace {

std::wstring decodeUtf8(const char* p) { return p ? vx::detail::utf8ToWide(p) : std::wstring(); }

} // namespace

CString_E::CString_E(const QString& str) : m_text(vx::detail::qStringToWide(str)) {}

CString_E::CString_E(const char* p) : m_text(decodeUtf8(p)) {}

CString_E& CString_E::operator=(const QString& str)
{
    m_text = vx::detail::qStringToWide(str);
    return *this;
}

CString_E& CString_E::operator=(const char* p)
{
    m_text = decodeUtf8(p);
    return *this;
}

CString_E& CString_E::operator+=(const QString& str)
{
    m_text += vx::detail::qStringToWide(str);
    return *this;
}

void CString_E::FreeUtf8() noexcept { delete[] m_pUtf8; }

const char* CString_E::Utf8Ptr() const
{
    char* const fresh = vx::detail::wideToUtf8(m_text);
    delete[] std::exchange(m_pUtf8, fresh);
    return fresh;
}

wchar_t* CString_E::GetBuffer(int nMin)
{
    const std::size_t length = m_text.size();
    const std::size_t room = std::max(clampCount(nMin), length);
    // Without a zero there, something was written through an earlier buffer.
    const std::size_t written =
        m_text.data()[length] == L'\0' ? length : wcsnlen(m_text.data(), m_text.capacity());
    if (room > m_text.capacity()) {
        std::wstring larger;
        larger.reserve(room);
        larger.assign(m_text, 0, length);
        std::copy(m_text.data() + length, m_text.data() + written, larger.data() + length);
        m_text.swap(larger);
    }
    // Zeros show ReleaseBuffer() where writing ended.
    for (std::size_t i = written; i <= room; ++i)
        m_text.data()[i] = L'\0';
    return m_text.data();
}

wchar_t* CString_E::GetBufferSetLength(int n)
{
    m_text.resize(clampCount(n));
    return m_text.data();
}

void CString_E::ReleaseBuffer(int n)
{
    // Intended: the length before writing is the limit for n, whatever the buffer's.
    if (n < -1 || n > GetLength())
        return;
    if (n >= 0)
        m_text.resize(static_cast<std::size_t>(n));
    const std::size_t limit = n >= 0 ? m_text.size() : m_text.capacity();
    const std::size_t length = wcsnlen(m_text.data(), limit);
    if (length <= m_text.size())
        m_text.resize(length);
    else // resize() would clear what was written behind the old length
        m_text = std::wstring(m_text.data(), length);
}
