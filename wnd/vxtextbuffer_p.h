// Not part of the public interface.
#pragma once

#include <VxMFCEmu/text/cstring.h>

#include <algorithm>

namespace vx::detail {

/// Copies what fits of a text with its terminator; the number of characters copied, 0 without room.
inline int copyTerminated(const CString_E& strText, LPWSTR pszText, int nMaxCount)
{
    if (!pszText || nMaxCount <= 0)
        return 0;
    const int nLength = std::min(strText.GetLength(), nMaxCount - 1);
    std::copy_n(strText.GetString(), nLength, pszText);
    pszText[nLength] = L'\0';
    return nLength;
}

} // namespace vx::detail
