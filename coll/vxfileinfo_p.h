// What is known of a file by its name.
#pragma once

#include <VxMFCEmu/types.h>

#include <QtCore/QByteArray>

#include <sys/stat.h>

namespace vx::detail {

/// Attributes as Win32 has them, times of the system.
struct FileInfo
{
    DWORD attributes; ///< FILE_ATTRIBUTE_*, 0 when there are none
    ULONGLONG size;
    mode_t mode;
    timespec created; ///< of the last change where the time of the making is not kept
    timespec written;
    timespec accessed;
};

/// Gives the Win32 error number. A link stands for what it leads to, itself when that is missing
/// and
/// @p bLinks is set.
LONG fileInfo(const QByteArray& name, FileInfo& info, bool bLinks = false) noexcept;
/// The same of an open file, called @p name.
LONG fileInfo(int fd, const QByteArray& name, FileInfo& info) noexcept;
/// Makes a file read-only or not; folders are left alone. Gives the Win32 error number.
LONG setReadOnly(const QByteArray& name, bool bReadOnly) noexcept;

FILETIME fileTimeOf(const timespec& time) noexcept;
/// Seconds since 1970.
LONGLONG secondsOf(const FILETIME& time) noexcept;

} // namespace vx::detail
