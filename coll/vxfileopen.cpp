#include "coll/vxfileopen_p.h"

#include <VxMFCEmu/coll/filehandle.h>
#include <VxMFCEmu/sys/errorcodes.h>

#include "coll/vxfileio_p.h"
#include "coll/vxoserror_p.h"

#include <cerrno>
#include <mutex>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using vx::detail::kSharingMarks;
using vx::detail::OpenRequest;
using vx::detail::osErrorOf;

bool reads(const OpenRequest& request) { return (request.access & (GENERIC_READ | GENERIC_ALL)); }
bool writes(const OpenRequest& request) { return (request.access & (GENERIC_WRITE | GENERIC_ALL)); }
bool empties(const OpenRequest& request)
{
    return request.disposition == CREATE_ALWAYS || request.disposition == TRUNCATE_EXISTING;
}
bool makes(const OpenRequest& request)
{
    return request.disposition != OPEN_EXISTING && request.disposition != TRUNCATE_EXISTING;
}

/// What an open file does or forbids; each has a region of the file in which every open file that
/// does so has locked a byte.
enum Mark : int
{
    Reading,
    Writing,
    ForbidsReading,
    ForbidsWriting
};
constexpr off_t kMarksOfAKind = 1 << 20;

struct flock region(Mark mark, short type, off_t first, off_t count)
{
    struct flock lock = {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = kSharingMarks + mark * kMarksOfAKind + first;
    lock.l_len = count;
    return lock;
}

/// A file that is only written cannot be locked together with others, so each takes the first byte
/// that it can have. False where the file system has no locks.
bool setMark(int fd, Mark mark, bool readable)
{
    for (off_t i = 0; i < kMarksOfAKind; ++i) {
        struct flock lock = region(mark, readable ? F_RDLCK : F_WRLCK, i, 1);
        if (::fcntl(fd, F_OFD_SETLK, &lock) == 0)
            return true;
        if (errno != EAGAIN && errno != EACCES)
            return false;
    }
    return false;
}

/// Whether another open file has set the mark.
bool isMarked(int fd, Mark mark)
{
    struct flock lock = region(mark, F_WRLCK, 0, kMarksOfAKind);
    return ::fcntl(fd, F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

/// Sets the marks, then looks at those of others, so that of two processes one at least sees the
/// other's.
bool mayShare(int fd, const OpenRequest& request)
{
    static std::mutex oneAtATime;
    const std::lock_guard<std::mutex> guard(oneAtATime);
    const struct
    {
        bool wanted;
        Mark own;
        Mark excludes;
    } rows[] = {
        {reads(request), Reading, ForbidsReading},
        {writes(request), Writing, ForbidsWriting},
        {(request.share & FILE_SHARE_READ) == 0, ForbidsReading, Reading},
        {(request.share & FILE_SHARE_WRITE) == 0, ForbidsWriting, Writing},
    };
    const bool readable = reads(request) || !writes(request);
    for (const auto& row : rows) {
        if (row.wanted && !setMark(fd, row.own, readable))
            return true;
    }
    for (const auto& row : rows) {
        if (row.wanted && isMarked(fd, row.excludes))
            return false;
    }
    return !empties(request) || !isMarked(fd, ForbidsWriting);
}

int systemFlags(const OpenRequest& request)
{
    const int access = !writes(request) ? O_RDONLY : reads(request) ? O_RDWR : O_WRONLY;
    return access | O_CLOEXEC | O_NOCTTY |
           ((request.flags & FILE_FLAG_WRITE_THROUGH) != 0 ? O_SYNC : 0);
}

int openUninterrupted(const QByteArray& name, int flags)
{
    int fd;
    do {
        fd = ::open(name.constData(), flags, 0666);
    } while (fd < 0 && errno == EINTR);
    return fd;
}

LONG openDescriptor(const QByteArray& name, const OpenRequest& request,
                    vx::detail::OpenedFile& opened)
{
    const int flags = systemFlags(request);
    opened = {-1, true};
    if (makes(request)) {
        opened.fd = openUninterrupted(name, flags | O_CREAT | O_EXCL);
        opened.bExisted = opened.fd < 0;
        if (opened.fd >= 0)
            return NO_ERROR;
        if (errno == EEXIST && request.disposition == CREATE_NEW)
            return ERROR_FILE_EXISTS;
        if (errno != EEXIST)
            return osErrorOf(errno, name);
    }
    opened.fd = openUninterrupted(name, flags);
    if (opened.fd < 0 && errno == ENOENT && makes(request)) { // a link that leads nowhere
        opened.fd = openUninterrupted(name, flags | O_CREAT);
        opened.bExisted = false;
    }
    return opened.fd < 0 ? osErrorOf(errno, name) : NO_ERROR;
}

/// What is left to do with an open descriptor.
LONG prepare(const QByteArray& name, const OpenRequest& request,
             const vx::detail::OpenedFile& opened)
{
    struct stat info;
    if (::fstat(opened.fd, &info) != 0)
        return osErrorOf(errno);
    if (S_ISDIR(info.st_mode))
        return ERROR_ACCESS_DENIED;
    if (!S_ISREG(info.st_mode))
        return NO_ERROR;
    // The system lets its administrator write what nobody may write.
    if (opened.bExisted && (writes(request) || empties(request)) && (info.st_mode & 0222U) == 0)
        return ERROR_ACCESS_DENIED;
    // Without access the file is only asked about, and that nobody forbids.
    if ((reads(request) || writes(request)) && !mayShare(opened.fd, request))
        return ERROR_SHARING_VIOLATION;
    if (opened.bExisted && empties(request) && info.st_size != 0 &&
        (writes(request) ? ::ftruncate(opened.fd, 0) : ::truncate(name.constData(), 0)) != 0)
        return osErrorOf(errno);
    if (!opened.bExisted && (request.flags & FILE_ATTRIBUTE_READONLY) != 0)
        ::fchmod(opened.fd, info.st_mode & 0555U);
    return NO_ERROR;
}

} // namespace

void vx::detail::closeFile(int fd) noexcept
{
    releaseLocks(fd);
    ::close(fd);
}

LONG vx::detail::openFile(const QByteArray& name, const OpenRequest& request, OpenedFile& opened)
{
    if (name.isEmpty())
        return ERROR_PATH_NOT_FOUND;
    if (request.disposition < CREATE_NEW || request.disposition > TRUNCATE_EXISTING ||
        (request.disposition == TRUNCATE_EXISTING && !writes(request)))
        return ERROR_INVALID_PARAMETER;
    LONG error = openDescriptor(name, request, opened);
    if (error != NO_ERROR)
        return error;
    error = prepare(name, request, opened);
    if (error != NO_ERROR)
        closeFile(opened.fd);
    return error;
}
