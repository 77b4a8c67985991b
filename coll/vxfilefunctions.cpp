#include <VxMFCEmu/coll/filefunctions.h>

#include <VxMFCEmu/sys/errorcodes.h>

#include "coll/vxcopyfile_p.h"
#include "coll/vxfileinfo_p.h"
#include "coll/vxfilename_p.h"
#include "coll/vxoserror_p.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

using namespace vx::detail;

namespace {

/// Where there is a file of the new name, this is not atomic on old file systems.
int renameToNew(const char* from, const char* to)
{
    if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return -1;
    struct stat info;
    if (::lstat(to, &info) == 0) {
        errno = EEXIST;
        return -1;
    }
    return ::rename(from, to);
}

LONG deleteFile(const QByteArray& name)
{
    FileInfo info;
    const LONG error = fileInfo(name, info, true);
    if (error != NO_ERROR)
        return error;
    // The system would delete a read-only file, and some tell a folder by EPERM.
    if ((info.attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0)
        return ERROR_ACCESS_DENIED;
    return ::unlink(name.constData()) == 0 ? NO_ERROR : osErrorOf(errno, name);
}

/// For another file system: a file is copied and deleted.
LONG moveByCopying(const QByteArray& from, const QByteArray& to, const FileInfo& info,
                   bool bReplace)
{
    if (S_ISDIR(info.mode))
        return ERROR_NOT_SAME_DEVICE;
    const LONG error = copyFile(from, to, !bReplace);
    if (error != NO_ERROR)
        return error == ERROR_FILE_EXISTS ? ERROR_ALREADY_EXISTS : error;
    ::unlink(from.constData()); // Intended: one that must stay is no failure, as on Windows.
    return NO_ERROR;
}

bool isSame(const struct stat& a, const struct stat& b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

/// Whether two names are two links to a file: renaming leaves them both. One name can be written in
/// two ways, and then it is one link.
bool areTwoLinks(const QByteArray& a, const QByteArray& b)
{
    struct stat first, second;
    if (::lstat(a.constData(), &first) != 0 || ::lstat(b.constData(), &second) != 0 ||
        !isSame(first, second) || S_ISDIR(first.st_mode) || first.st_nlink < 2)
        return false;
    const QByteArray folderA = folderOf(a), folderB = folderOf(b);
    if (a.mid(folderA.size()) != b.mid(folderB.size()))
        return true;
    return ::stat(folderA.isEmpty() ? "." : folderA.constData(), &first) == 0 &&
           ::stat(folderB.isEmpty() ? "." : folderB.constData(), &second) == 0 &&
           !isSame(first, second);
}

LONG moveFile(const QByteArray& from, const QByteArray& to, DWORD dwFlags)
{
    if ((dwFlags & MOVEFILE_DELAY_UNTIL_REBOOT) != 0)
        return ERROR_NOT_SUPPORTED;
    FileInfo info;
    const LONG error = fileInfo(from, info, true);
    if (error != NO_ERROR)
        return error;
    if (to.isEmpty())
        return ERROR_PATH_NOT_FOUND;
    const bool bReplace = (dwFlags & MOVEFILE_REPLACE_EXISTING) != 0;
    FileInfo target;
    if (bReplace && fileInfo(to, target) == NO_ERROR &&
        (target.attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0)
        return ERROR_ACCESS_DENIED;
    const int result = !bReplace               ? renameToNew(from.constData(), to.constData())
                       : areTwoLinks(from, to) ? ::unlink(from.constData())
                                               : ::rename(from.constData(), to.constData());
    if (result == 0)
        return NO_ERROR;
    if (errno == EXDEV && (dwFlags & MOVEFILE_COPY_ALLOWED) != 0)
        return moveByCopying(from, to, info, bReplace);
    return osErrorOf(errno, to);
}

} // namespace

BOOL DeleteFile_E(LPCWSTR lpFileName) { return succeeded(deleteFile(localFileBytes(lpFileName))); }

BOOL MoveFile_E(LPCWSTR lpExistingFileName, LPCWSTR lpNewFileName)
{
    return MoveFileEx_E(lpExistingFileName, lpNewFileName, MOVEFILE_COPY_ALLOWED);
}

BOOL MoveFileEx_E(LPCWSTR lpExistingFileName, LPCWSTR lpNewFileName, DWORD dwFlags)
{
    return succeeded(
        moveFile(localFileBytes(lpExistingFileName), localFileBytes(lpNewFileName), dwFlags));
}

BOOL CopyFile_E(LPCWSTR lpExistingFileName, LPCWSTR lpNewFileName, BOOL bFailIfExists)
{
    return succeeded(copyFile(localFileBytes(lpExistingFileName), localFileBytes(lpNewFileName),
                              bFailIfExists != FALSE));
}

DWORD GetFileAttributes_E(LPCWSTR lpFileName)
{
    FileInfo info;
    if (!succeeded(fileInfo(localFileBytes(lpFileName), info)))
        return INVALID_FILE_ATTRIBUTES;
    return info.attributes != 0 ? info.attributes : FILE_ATTRIBUTE_NORMAL;
}

BOOL SetFileAttributes_E(LPCWSTR lpFileName, DWORD dwFileAttributes)
{
    return succeeded(
        setReadOnly(localFileBytes(lpFileName), (dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0));
}

BOOL CreateDirectory_E(LPCWSTR lpPathName, LPSECURITY_ATTRIBUTES)
{
    const QByteArray name = localFileBytes(lpPathName);
    return ::mkdir(name.constData(), 0777) == 0 || failWith(osErrorOf(errno, name));
}

BOOL RemoveDirectory_E(LPCWSTR lpPathName)
{
    const QByteArray name = localFileBytes(lpPathName);
    if (::rmdir(name.constData()) == 0)
        return TRUE;
    FileInfo info;
    const LONG error = osErrorOf(errno, name);
    return failWith(errno == ENOTDIR && fileInfo(name, info) == NO_ERROR ? ERROR_DIRECTORY
                    : errno == EEXIST                                    ? ERROR_DIR_NOT_EMPTY
                                                                         : error);
}
