#include "coll/vxfileio_p.h"

#include <VxMFCEmu/sys/errorcodes.h>

#include "coll/vxfileopen_p.h"
#include "coll/vxoserror_p.h"

#include <algorithm>
#include <cerrno>
#include <limits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vx::detail {

LONG errorOfUse(int fd, int nErrno, int access) noexcept
{
    const int flags = ::fcntl(fd, F_GETFL);
    const int open = flags & O_ACCMODE;
    return flags >= 0 && open != O_RDWR && open != access ? ERROR_ACCESS_DENIED : osErrorOf(nErrno);
}

LONG readBytes(int fd, void* pBuffer, std::size_t nCount, std::size_t& nDone) noexcept
{
    nDone = 0;
    while (nDone < nCount) {
        const ssize_t n = ::read(fd, static_cast<char*>(pBuffer) + nDone, nCount - nDone);
        if (n == 0)
            break;
        if (n > 0)
            nDone += static_cast<std::size_t>(n);
        else if (errno != EINTR)
            return errorOfUse(fd, errno, O_RDONLY);
    }
    return NO_ERROR;
}

LONG writeBytes(int fd, const void* pBuffer, std::size_t nCount, std::size_t& nDone) noexcept
{
    nDone = 0;
    while (nDone < nCount) {
        const ssize_t n = ::write(fd, static_cast<const char*>(pBuffer) + nDone, nCount - nDone);
        if (n == 0)
            return ERROR_WRITE_FAULT;
        if (n > 0)
            nDone += static_cast<std::size_t>(n);
        else if (errno != EINTR)
            return errorOfUse(fd, errno, O_WRONLY);
    }
    return NO_ERROR;
}

LONG seekTo(int fd, LONGLONG nOffset, UINT nFrom, ULONGLONG& nPosition) noexcept
{
    static constexpr int whence[] = {SEEK_SET, SEEK_CUR, SEEK_END};
    if (nFrom >= std::size(whence))
        return ERROR_INVALID_PARAMETER;
    const off_t position = ::lseek(fd, nOffset, whence[nFrom]);
    if (position < 0)
        return errno == EINVAL ? ERROR_NEGATIVE_SEEK : osErrorOf(errno);
    nPosition = static_cast<ULONGLONG>(position);
    return NO_ERROR;
}

LONG lengthOf(int fd, ULONGLONG& nLength) noexcept
{
    struct stat info;
    if (::fstat(fd, &info) != 0)
        return osErrorOf(errno);
    nLength = static_cast<ULONGLONG>(info.st_size);
    return NO_ERROR;
}

LONG setLength(int fd, ULONGLONG nLength) noexcept
{
    if (nLength > static_cast<ULONGLONG>(std::numeric_limits<off_t>::max()))
        return ERROR_INVALID_PARAMETER;
    return ::ftruncate(fd, static_cast<off_t>(nLength)) == 0 ? NO_ERROR
                                                             : errorOfUse(fd, errno, O_WRONLY);
}

LONG setRangeLock(int fd, ULONGLONG nFirst, ULONGLONG nCount, bool bLock) noexcept
{
    constexpr auto limit = static_cast<ULONGLONG>(kSharingMarks);
    if (nFirst >= limit)
        return ERROR_INVALID_PARAMETER;
    if (nCount == 0) // for the system that would be all up to the end
        return NO_ERROR;
    const bool bReadOnly = (::fcntl(fd, F_GETFL) & O_ACCMODE) == O_RDONLY;
    struct flock lock = {};
    lock.l_type = static_cast<short>(!bLock ? F_UNLCK : bReadOnly ? F_RDLCK : F_WRLCK);
    lock.l_whence = SEEK_SET;
    lock.l_start = static_cast<off_t>(nFirst);
    lock.l_len = static_cast<off_t>(std::min(nCount, limit - nFirst));
    if (::fcntl(fd, F_OFD_SETLK, &lock) == 0)
        return NO_ERROR;
    return errno == EACCES ? ERROR_LOCK_VIOLATION : osErrorOf(errno);
}

void releaseLocks(int fd) noexcept
{
    struct flock lock = {};
    lock.l_type = F_UNLCK;
    lock.l_whence = SEEK_SET; // a length of 0 reaches to the end
    ::fcntl(fd, F_OFD_SETLK, &lock);
}

LONG syncToDisk(int fd) noexcept
{
    if ((::fcntl(fd, F_GETFL) & O_ACCMODE) == O_RDONLY)
        return ERROR_ACCESS_DENIED;
    // A device may have nothing to wait for.
    return ::fsync(fd) == 0 || errno == EINVAL || errno == EROFS ? NO_ERROR : osErrorOf(errno);
}

} // namespace vx::detail
