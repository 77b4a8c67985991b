#include "coll/vxfileinfo_p.h"

#include <VxMFCEmu/coll/fileattributes.h>
#include <VxMFCEmu/sys/errorcodes.h>

#include "coll/vxoserror_p.h"

#include <cerrno>

#include <fcntl.h>

namespace {

constexpr LONGLONG kTicksPerSecond = 10'000'000;
constexpr LONGLONG kSecondsFrom1601To1970 = 11'644'473'600;

timespec timeOf(const struct statx_timestamp& time) { return {time.tv_sec, time.tv_nsec}; }

bool isHidden(const QByteArray& path)
{
    const QByteArray name = path.mid(path.lastIndexOf('/') + 1);
    return name.startsWith('.') && name != "." && name != "..";
}

LONG query(int fd, const char* path, int flags, const QByteArray& name,
           vx::detail::FileInfo& info) noexcept
{
    struct statx found;
    if (::statx(fd, path, flags, STATX_BASIC_STATS | STATX_BTIME, &found) != 0)
        return vx::detail::osErrorOf(errno, name);
    info.mode = found.stx_mode;
    info.size = S_ISREG(found.stx_mode) ? found.stx_size : 0;
    info.created = timeOf((found.stx_mask & STATX_BTIME) != 0 ? found.stx_btime : found.stx_ctime);
    info.written = timeOf(found.stx_mtime);
    info.accessed = timeOf(found.stx_atime);
    info.attributes = isHidden(name) ? FILE_ATTRIBUTE_HIDDEN : 0;
    if (S_ISDIR(found.stx_mode))
        info.attributes |= FILE_ATTRIBUTE_DIRECTORY;
    else if (S_ISCHR(found.stx_mode) || S_ISBLK(found.stx_mode))
        info.attributes |= FILE_ATTRIBUTE_DEVICE;
    else if ((found.stx_mode & 0222U) == 0)
        info.attributes |= FILE_ATTRIBUTE_READONLY;
    return NO_ERROR;
}

} // namespace

namespace vx::detail {

LONG fileInfo(const QByteArray& name, FileInfo& info, bool bLinks) noexcept
{
    const LONG error = query(AT_FDCWD, name.constData(), 0, name, info);
    return error == NO_ERROR || !bLinks
               ? error
               : query(AT_FDCWD, name.constData(), AT_SYMLINK_NOFOLLOW, name, info);
}

LONG fileInfo(int fd, const QByteArray& name, FileInfo& info) noexcept
{
    return query(fd, "", AT_EMPTY_PATH, name, info);
}

LONG setReadOnly(const QByteArray& name, bool bReadOnly) noexcept
{
    FileInfo info{};
    if (const LONG error = fileInfo(name, info); error != NO_ERROR)
        return error;
    if (S_ISDIR(info.mode) || ((info.mode & 0222U) == 0) == bReadOnly)
        return NO_ERROR;
    const mode_t mode = bReadOnly ? info.mode & ~0222U : info.mode | S_IWUSR;
    return ::chmod(name.constData(), mode & 07777U) == 0 ? NO_ERROR : osErrorOf(errno);
}

FILETIME fileTimeOf(const timespec& time) noexcept
{
    const auto ticks = static_cast<ULONGLONG>(
        (time.tv_sec + kSecondsFrom1601To1970) * kTicksPerSecond + time.tv_nsec / 100);
    return {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32U)};
}

LONGLONG secondsOf(const FILETIME& time) noexcept
{
    const auto ticks = static_cast<LONGLONG>(static_cast<ULONGLONG>(time.dwHighDateTime) << 32U |
                                             time.dwLowDateTime);
    return ticks / kTicksPerSecond - kSecondsFrom1601To1970;
}

} // namespace vx::detail
