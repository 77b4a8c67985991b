#include <VxMFCEmu/coll/filehandle.h>

#include <VxMFCEmu/coll/file.h>
#include <VxMFCEmu/sys/errorcodes.h>

#include "coll/vxfilehandles_p.h"
#include "coll/vxfileio_p.h"
#include "coll/vxfilename_p.h"
#include "coll/vxfileopen_p.h"
#include "coll/vxoserror_p.h"

#include <QtCore/QFileInfo>

#include <cerrno>
#include <limits>
#include <memory>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

using namespace vx::detail;

namespace {

/// A file that a handle stands for and nothing else.
class HandleFile : public CFile_E
{
public:
    HandleFile(int fd, const QString& name, bool bDeleteOnClose)
    {
        m_strFileName = QFileInfo(name).absoluteFilePath();
        if (bDeleteOnClose)
            m_deleted = resolvedName(QFile::encodeName(name));
        Adopt(fd, true);
    }
    ~HandleFile() override
    {
        forgetFileHandle(this);
        DeleteFile();
    }

    void Close() override
    {
        DeleteFile();
        CFile_E::Close();
    }
    void Abort() override
    {
        DeleteFile();
        CFile_E::Abort();
    }

private:
    /// Deletes the file that is about to be closed, if that was asked for.
    void DeleteFile()
    {
        struct stat own, named;
        const QByteArray name = std::exchange(m_deleted, {});
        if (!name.isEmpty() && ::fstat(static_cast<int>(m_hFile), &own) == 0 &&
            ::lstat(name.constData(), &named) == 0 && own.st_dev == named.st_dev &&
            own.st_ino == named.st_ino)
            ::unlink(name.constData());
    }

    QByteArray m_deleted; // the name to delete; empty for none
};

/// Does @p work with the descriptor behind a handle; the work gives a Win32 error number.
template <typename Work>
BOOL withDescriptor(HANDLE hFile, Work work)
{
    CFile_E* const pFile = fileOfHandle(hFile);
    if (!pFile || pFile->m_hFile == CFile_E::hFileNull)
        return failWith(ERROR_INVALID_HANDLE);
    return succeeded(work(static_cast<int>(pFile->m_hFile)));
}

/// Reads or writes; @p transfer is readBytes() or writeBytes().
template <typename Buffer, typename Transfer>
BOOL transferBytes(HANDLE hFile, Buffer lpBuffer, DWORD nCount, LPDWORD lpDone,
                   LPOVERLAPPED lpOverlapped, Transfer transfer)
{
    std::size_t nDone = 0;
    const BOOL bSuccess = withDescriptor(hFile, [&](int fd) -> LONG {
        if (!lpBuffer && nCount != 0)
            return ERROR_NOACCESS;
        if (lpOverlapped) {
            const auto offset = static_cast<ULONGLONG>(lpOverlapped->OffsetHigh) << 32U;
            ULONGLONG position;
            const LONG error = seekTo(fd, static_cast<LONGLONG>(offset | lpOverlapped->Offset),
                                      FILE_BEGIN, position);
            if (error != NO_ERROR)
                return error;
        }
        return transfer(fd, lpBuffer, nCount, nDone);
    });
    if (lpDone)
        *lpDone = static_cast<DWORD>(nDone);
    if (lpOverlapped)
        lpOverlapped->InternalHigh = nDone;
    return bSuccess;
}

/// The lower half of a 64-bit result; the last error tells it from a failure.
DWORD lowerHalf(ULONGLONG value)
{
    errno = NO_ERROR;
    return static_cast<DWORD>(value);
}

} // namespace

HANDLE CreateFile_E(LPCWSTR lpFileName, DWORD dwDesiredAccess, DWORD dwShareMode,
                    LPSECURITY_ATTRIBUTES, DWORD dwCreationDisposition, DWORD dwFlagsAndAttributes,
                    HANDLE)
{
    const QString name = localFileName(lpFileName);
    const OpenRequest request = {dwDesiredAccess, dwShareMode, dwCreationDisposition,
                                 dwFlagsAndAttributes};
    OpenedFile opened;
    const LONG error = openFile(QFile::encodeName(name), request, opened);
    if (error != NO_ERROR) {
        errno = error;
        return INVALID_HANDLE_VALUE;
    }
    auto pFile = std::make_unique<HandleFile>(
        opened.fd, name, (dwFlagsAndAttributes & FILE_FLAG_DELETE_ON_CLOSE) != 0);
    rememberFileHandle(pFile.get(), true);
    const bool bAlways =
        dwCreationDisposition == CREATE_ALWAYS || dwCreationDisposition == OPEN_ALWAYS;
    errno = bAlways && opened.bExisted ? ERROR_ALREADY_EXISTS : NO_ERROR;
    return static_cast<CFile_E*>(pFile.release());
}

BOOL CloseHandle_E(HANDLE hFile)
{
    bool bOwned = false;
    CFile_E* const pFile = fileOfHandle(hFile, bOwned);
    if (!pFile || pFile->m_hFile == CFile_E::hFileNull)
        return failWith(ERROR_INVALID_HANDLE);
    pFile->Abort(); // The file is closed even when what is buffered cannot be written.
    if (bOwned)
        delete pFile;
    return TRUE;
}

BOOL ReadFile_E(HANDLE hFile, LPVOID lpBuffer, DWORD nNumberOfBytesToRead,
                LPDWORD lpNumberOfBytesRead, LPOVERLAPPED lpOverlapped)
{
    DWORD nRead = 0;
    const BOOL bSuccess =
        transferBytes(hFile, lpBuffer, nNumberOfBytesToRead, &nRead, lpOverlapped, readBytes);
    if (lpNumberOfBytesRead)
        *lpNumberOfBytesRead = nRead;
    if (bSuccess && lpOverlapped && nRead == 0 && nNumberOfBytesToRead != 0)
        return failWith(ERROR_HANDLE_EOF);
    return bSuccess;
}

BOOL WriteFile_E(HANDLE hFile, LPCVOID lpBuffer, DWORD nNumberOfBytesToWrite,
                 LPDWORD lpNumberOfBytesWritten, LPOVERLAPPED lpOverlapped)
{
    return transferBytes(hFile, lpBuffer, nNumberOfBytesToWrite, lpNumberOfBytesWritten,
                         lpOverlapped, writeBytes);
}

DWORD SetFilePointer_E(HANDLE hFile, LONG lDistanceToMove, PLONG lpDistanceToMoveHigh,
                       DWORD dwMoveMethod)
{
    ULONGLONG position = 0;
    const BOOL bSuccess = withDescriptor(hFile, [&](int fd) -> LONG {
        LONGLONG distance = lDistanceToMove;
        if (lpDistanceToMoveHigh)
            distance = static_cast<LONGLONG>(
                static_cast<ULONGLONG>(static_cast<DWORD>(*lpDistanceToMoveHigh)) << 32U |
                static_cast<DWORD>(lDistanceToMove));
        ULONGLONG before = 0;
        LONG error = seekTo(fd, 0, FILE_CURRENT, before);
        if (error == NO_ERROR)
            error = seekTo(fd, distance, dwMoveMethod, position);
        if (error == NO_ERROR && !lpDistanceToMoveHigh &&
            position > std::numeric_limits<DWORD>::max()) {
            seekTo(fd, static_cast<LONGLONG>(before), FILE_BEGIN, position);
            error = ERROR_INVALID_PARAMETER;
        }
        return error;
    });
    if (!bSuccess)
        return INVALID_SET_FILE_POINTER;
    if (lpDistanceToMoveHigh)
        *lpDistanceToMoveHigh = static_cast<LONG>(position >> 32U);
    return lowerHalf(position);
}

BOOL SetFilePointerEx_E(HANDLE hFile, LARGE_INTEGER liDistanceToMove,
                        PLARGE_INTEGER lpNewFilePointer, DWORD dwMoveMethod)
{
    return withDescriptor(hFile, [&](int fd) {
        ULONGLONG position = 0;
        const LONG error = seekTo(fd, liDistanceToMove.QuadPart, dwMoveMethod, position);
        if (error == NO_ERROR && lpNewFilePointer)
            lpNewFilePointer->QuadPart = static_cast<LONGLONG>(position);
        return error;
    });
}

DWORD GetFileSize_E(HANDLE hFile, LPDWORD lpFileSizeHigh)
{
    LARGE_INTEGER size = {};
    if (!GetFileSizeEx_E(hFile, &size))
        return INVALID_FILE_SIZE;
    if (lpFileSizeHigh)
        *lpFileSizeHigh = static_cast<DWORD>(size.QuadPart >> 32);
    return lowerHalf(static_cast<ULONGLONG>(size.QuadPart));
}

BOOL GetFileSizeEx_E(HANDLE hFile, PLARGE_INTEGER lpFileSize)
{
    return withDescriptor(hFile, [=](int fd) -> LONG {
        if (!lpFileSize)
            return ERROR_INVALID_PARAMETER;
        ULONGLONG length = 0;
        const LONG error = lengthOf(fd, length);
        lpFileSize->QuadPart = static_cast<LONGLONG>(length);
        return error;
    });
}

BOOL SetEndOfFile_E(HANDLE hFile)
{
    return withDescriptor(hFile, [](int fd) {
        ULONGLONG position = 0;
        const LONG error = seekTo(fd, 0, FILE_CURRENT, position);
        return error == NO_ERROR ? setLength(fd, position) : error;
    });
}

BOOL FlushFileBuffers_E(HANDLE hFile)
{
    return withDescriptor(hFile, [](int fd) { return syncToDisk(fd); });
}
