// File names as the system takes them.
#pragma once

#include <VxMFCEmu/text/vxqstring.h>

#include <QtCore/QFile>

#include <cstdlib>
#include <memory>

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

/// The absolute name of what a name leads to, links followed; the name itself when nothing is
/// there.
inline QByteArray resolvedName(const QByteArray& name)
{
    const std::unique_ptr<char, decltype(&std::free)> path(::realpath(name.constData(), nullptr),
                                                           &std::free);
    return path ? QByteArray(path.get()) : name;
}

/// The folder part of a name, with "/" at its end; empty when there is none.
inline QByteArray folderOf(const QByteArray& name) { return name.left(name.lastIndexOf('/') + 1); }

} // namespace vx::detail
