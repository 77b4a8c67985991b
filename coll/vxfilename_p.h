// File names as the system takes them.
#pragma once

#include <VxMFCEmu/text/vxqstring.h>

#include <QtCore/QFile>

namespace vx::detail {

/// The name with "/" as separator.
inline QString localFileName(const wchar_t* lpszFileName)
{
    return VxQString(CString_E(lpszFileName).ToUnixSeperator());
}

/// The same in bytes.
inline QByteArray localFileBytes(const wchar_t* lpszFileName)
{
    return QFile::encodeName(localFileName(lpszFileName));
}

} // namespace vx::detail
