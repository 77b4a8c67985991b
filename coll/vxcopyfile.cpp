#include "coll/vxcopyfile_p.h"

#include <VxMFCEmu/coll/filehandle.h>
#include <VxMFCEmu/sys/errorcodes.h>

#include "coll/vxfileio_p.h"
#include "coll/vxfilename_p.h"
#include "coll/vxfileopen_p.h"
#include "coll/vxoserror_p.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace vx::detail;

namespace {

class Descriptor
{
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    ~Descriptor()
    {
        if (m_fd >= 0)
            closeFile(m_fd);
    }
    Q_DISABLE_COPY_MOVE(Descriptor)

    int Get() const { return m_fd; }

private:
    const int m_fd;
};

LONG copyThroughMemory(int from, int to)
{
    std::array<char, 0x10000> buffer;
    std::size_t nRead = 0, nWritten = 0;
    LONG error;
    do {
        error = readBytes(from, buffer.data(), buffer.size(), nRead);
        if (error == NO_ERROR)
            error = writeBytes(to, buffer.data(), nRead, nWritten);
    } while (error == NO_ERROR && nRead != 0);
    return error;
}

LONG copyBytes(int from, int to)
{
    constexpr std::size_t kAtOnce = 1U << 30U;
    bool bBegun = false;
    ssize_t n;
    while ((n = ::sendfile(to, from, nullptr, kAtOnce)) > 0 || (n < 0 && errno == EINTR))
        bBegun = bBegun || n > 0;
    if (n == 0)
        return NO_ERROR;
    // Not every file can be sent: those of /proc cannot.
    return !bBegun && (errno == EINVAL || errno == ENOSYS) ? copyThroughMemory(from, to)
                                                           : osErrorOf(errno);
}

/// Contents, attributes and the time of the last writing.
LONG copyAll(int from, int to)
{
    struct stat info;
    if (::fstat(from, &info) != 0)
        return osErrorOf(errno);
    const LONG error = copyBytes(from, to);
    if (error != NO_ERROR)
        return error;
    const timespec times[] = {{0, UTIME_NOW}, info.st_mtim};
    // They cannot be set where the file is somebody else's.
    const auto isDone = [](int result) { return result == 0 || errno == EPERM; };
    return isDone(::fchmod(to, info.st_mode & 0777U)) && isDone(::futimens(to, times))
               ? NO_ERROR
               : osErrorOf(errno);
}

/// Into a new file beside the target that takes its place when all is well; a link stays in its
/// place. Into the target itself, which is open, where the folder lets nobody make a file.
LONG replaceFile(int from, const QByteArray& to, int toFd)
{
    const QByteArray target = resolvedName(to);
    // A name of its own, for one with an end to it could be too long.
    QByteArray name = folderOf(target) + ".XXXXXX";
    const Descriptor copy(::mkostemp(name.data(), O_CLOEXEC));
    if (copy.Get() < 0) {
        if (errno != EACCES && errno != EROFS && errno != EPERM)
            return osErrorOf(errno, name);
        return ::ftruncate(toFd, 0) == 0 ? copyAll(from, toFd) : osErrorOf(errno);
    }
    LONG error = copyAll(from, copy.Get());
    if (error == NO_ERROR && ::rename(name.constData(), target.constData()) != 0)
        error = osErrorOf(errno, target);
    if (error != NO_ERROR)
        ::unlink(name.constData());
    return error;
}

} // namespace

LONG vx::detail::copyFile(const QByteArray& from, const QByteArray& to, bool bFailIfExists)
{
    OpenedFile opened;
    constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE;
    LONG error = openFile(from, {GENERIC_READ, shareAll, OPEN_EXISTING, 0}, opened);
    if (error != NO_ERROR)
        return error;
    const Descriptor source(opened.fd);
    error = openFile(to, {GENERIC_WRITE, 0, bFailIfExists ? CREATE_NEW : OPEN_ALWAYS, 0}, opened);
    if (error != NO_ERROR)
        return error;
    const Descriptor target(opened.fd);
    struct stat info;
    const bool bReplace =
        opened.bExisted && ::fstat(target.Get(), &info) == 0 && S_ISREG(info.st_mode);
    error = bReplace          ? replaceFile(source.Get(), to, target.Get())
            : opened.bExisted ? copyBytes(source.Get(), target.Get()) // a device
                              : copyAll(source.Get(), target.Get());
    if (error != NO_ERROR && !opened.bExisted)
        ::unlink(resolvedName(to).constData());
    return error;
}
