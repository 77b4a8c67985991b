#include "coll/vxoserror_p.h"

#include <VxMFCEmu/sys/errorcodes.h>

#include <algorithm>
#include <cerrno>
#include <iterator>

#include <sys/stat.h>

namespace {

struct Row
{
    int nErrno;
    LONG lOsError;
};

// clang-format off
constexpr Row kRows[] = {
    {0,            NO_ERROR},
    {EPERM,        ERROR_ACCESS_DENIED},
    {ENOENT,       ERROR_FILE_NOT_FOUND},
    {EINTR,        ERROR_OPERATION_ABORTED},
    {EIO,          ERROR_CRC},
    {ENXIO,        ERROR_NOT_READY},
    {EBADF,        ERROR_INVALID_HANDLE},
    {EAGAIN,       ERROR_LOCK_VIOLATION},
    {ENOMEM,       ERROR_NOT_ENOUGH_MEMORY},
    {EACCES,       ERROR_ACCESS_DENIED},
    {EFAULT,       ERROR_NOACCESS},
    {EBUSY,        ERROR_BUSY},
    {EEXIST,       ERROR_ALREADY_EXISTS},
    {EXDEV,        ERROR_NOT_SAME_DEVICE},
    {ENODEV,       ERROR_NOT_READY},
    {ENOTDIR,      ERROR_PATH_NOT_FOUND},
    {EISDIR,       ERROR_ACCESS_DENIED},
    {EINVAL,       ERROR_INVALID_PARAMETER},
    {ENFILE,       ERROR_TOO_MANY_OPEN_FILES},
    {EMFILE,       ERROR_TOO_MANY_OPEN_FILES},
    {ETXTBSY,      ERROR_SHARING_VIOLATION}, // a program that runs
    {EFBIG,        ERROR_DISK_FULL},
    {ENOSPC,       ERROR_DISK_FULL},
    {ESPIPE,       ERROR_SEEK},
    {EROFS,        ERROR_WRITE_PROTECT},
    {EPIPE,        ERROR_BROKEN_PIPE},
    {ENAMETOOLONG, ERROR_FILENAME_EXCED_RANGE},
    {ENOSYS,       ERROR_NOT_SUPPORTED},
    {ENOTEMPTY,    ERROR_DIR_NOT_EMPTY},
    {ELOOP,        ERROR_CANT_RESOLVE_FILENAME},
    {EOPNOTSUPP,   ERROR_NOT_SUPPORTED},
    {EDQUOT,       ERROR_DISK_FULL},
};
// clang-format on
static_assert(std::size(kRows) == 32);

bool folderIsThere(QByteArray path)
{
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    const int slash = path.lastIndexOf('/');
    if (slash <= 0)
        return true;
    struct stat info;
    return ::stat(path.left(slash).constData(), &info) == 0 && S_ISDIR(info.st_mode);
}

} // namespace

namespace vx::detail {

LONG osErrorOf(int nErrno) noexcept
{
    const auto* const row = std::find_if(std::begin(kRows), std::end(kRows),
                                         [=](const Row& r) { return r.nErrno == nErrno; });
    return row == std::end(kRows) ? ERROR_GEN_FAILURE : row->lOsError;
}

LONG osErrorOf(int nErrno, const QByteArray& path) noexcept
{
    return nErrno == ENOENT && (path.isEmpty() || !folderIsThere(path)) ? ERROR_PATH_NOT_FOUND
                                                                        : osErrorOf(nErrno);
}

BOOL failWith(LONG lOsError) noexcept
{
    errno = lOsError;
    return FALSE;
}

} // namespace vx::detail
