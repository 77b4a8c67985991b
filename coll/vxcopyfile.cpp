#include "coll/vxcopyfile_p.h"

#include <VxMFCEmu/coll/filehandle.h>
#include <VxMFCEmu/sys/errorcodes.h>

#include "coll/vxfileopen_p.h"
#include "coll/vxoserror_p.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

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
            ::close(m_fd);
    }
    Q_DISABLE_COPY_MOVE(Descriptor)

    int Get() const { return m_fd; }

private:
    const int m_fd;
};

LONG copyBytes(int from, int to)
{
    constexpr std::size_t kAtOnce = 1U << 30U;
    ssize_t n;
    do {
        n = ::sendfile(to, from, nullptr, kAtOnce);
    } while (n > 0 || (n < 0 && errno == EINTR));
    return n == 0 ? NO_ERROR : osErrorOf(errno);
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
    return ::fchmod(to, info.st_mode & 0777U) == 0 && ::futimens(to, times) == 0 ? NO_ERROR
                                                                                 : osErrorOf(errno);
}

/// The file beside which the copy is made: a link's target stays in its place.
QByteArray resolved(const QByteArray& name)
{
    const std::unique_ptr<char, decltype(&std::free)> path(::realpath(name.constData(), nullptr),
                                                           &std::free);
    return path ? QByteArray(path.get()) : name;
}

/// Into a new file beside the target that takes its place when all is well.
LONG replaceFile(int from, const QByteArray& to)
{
    const QByteArray target = resolved(to);
    QByteArray name = target + ".XXXXXX";
    const Descriptor copy(::mkostemp(name.data(), O_CLOEXEC));
    if (copy.Get() < 0)
        return osErrorOf(errno, name);
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
    error = bReplace          ? replaceFile(source.Get(), to)
            : opened.bExisted ? copyBytes(source.Get(), target.Get()) // a device
                              : copyAll(source.Get(), target.Get());
    if (error != NO_ERROR && !opened.bExisted)
        ::unlink(to.constData());
    return error;
}
