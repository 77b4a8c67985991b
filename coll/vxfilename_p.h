// File names as the system takes them.
#pragma once

#include <VxMFCEmu/text/vxqstring.h>

namespace vx::detail {

/// The name with "/" as separator.
inline QString localFileName(const wchar_t* lpszFileName)
{
    return VxQString(CString_E(lpszFileName).ToUnixSeperator());
}

} // namespace vx::detail
