// Opening files as Win32 does, sharing included.
#pragma once

#include <VxMFCEmu/types.h>

#include <QtCore/QByteArray>

namespace vx::detail {

/// What the Win32 call says; the values are those of CreateFile_E().
struct OpenRequest
{
    DWORD access;
    DWORD share;
    DWORD disposition;
    DWORD flags;
};

struct OpenedFile
{
    int fd;
    bool bExisted;
};

/// Opens or makes a file and gives the Win32 error number. What others forbid is found out before a
/// file is emptied.
LONG openFile(const QByteArray& name, const OpenRequest& request, OpenedFile& opened);

/// Closes what openFile() opened; its marks go at once, even while a forked process has it.
void closeFile(int fd) noexcept;

/// Where the marks of sharing begin in a file, in bytes; what is locked lies below.
inline constexpr long long kSharingMarks = 1LL << 62;

} // namespace vx::detail
