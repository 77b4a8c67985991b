#include <VxMFCEmu/core/bstr.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <limits>

namespace {

using Prefix = std::uint32_t;
constexpr std::size_t kLongest = std::numeric_limits<Prefix>::max() / sizeof(wchar_t);

} // namespace

BSTR SysAllocString_E(const wchar_t* pszText)
{
    if (!pszText)
        return nullptr;
    const std::size_t length = std::wcslen(pszText);
    return length > kLongest ? nullptr : SysAllocStringLen_E(pszText, static_cast<UINT>(length));
}

BSTR SysAllocStringLen_E(const wchar_t* pText, UINT nLength)
{
    if (nLength > kLongest)
        return nullptr;
    const auto bytes = static_cast<Prefix>(nLength * sizeof(wchar_t));
    auto* const pBlock = static_cast<char*>(std::calloc(1, sizeof bytes + bytes + sizeof(wchar_t)));
    if (!pBlock)
        return nullptr;
    std::memcpy(pBlock, &bytes, sizeof bytes);
    auto* const bstr = reinterpret_cast<BSTR>(pBlock + sizeof bytes);
    if (pText)
        std::copy_n(pText, nLength, bstr);
    return bstr;
}

void SysFreeString_E(BSTR bstr)
{
    if (bstr)
        std::free(reinterpret_cast<char*>(bstr) - sizeof(Prefix));
}

UINT SysStringLen_E(BSTR bstr)
{
    return SysStringByteLen_E(bstr) / static_cast<UINT>(sizeof(wchar_t));
}

UINT SysStringByteLen_E(BSTR bstr)
{
    Prefix bytes = 0;
    if (bstr)
        std::memcpy(&bytes, reinterpret_cast<const char*>(bstr) - sizeof bytes, sizeof bytes);
    return bytes;
}
