// Not part of the public interface. What the exception classes share.
#pragma once

#include <VxMFCEmu/types.h>

#include <algorithm>
#include <cstddef>

namespace vx::detail {

/// Copies text with its terminator as far as @p capacity characters go. The message of an exception
/// that just fills the buffer stays without a terminator, which is intended.
inline void copyBounded(wchar_t* buffer, UINT capacity, const wchar_t* text, std::size_t length)
{
    std::copy_n(text, std::min<std::size_t>(capacity, length + 1), buffer);
}

inline void clearHelpContext(UINT* pnHelpContext)
{
    if (pnHelpContext)
        *pnHelpContext = 0;
}

/// The all-or-nothing copy of the exceptions that name a file.
inline BOOL copyWhole(wchar_t* buffer, UINT capacity, const wchar_t* text, std::size_t length)
{
    if (length > capacity)
        return FALSE;
    copyBounded(buffer, capacity, text, length);
    return TRUE;
}

} // namespace vx::detail
