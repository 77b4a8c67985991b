#include <VxMFCEmu/coll/file.h>
#include <VxMFCEmu/coll/filehandle.h>
#include <VxMFCEmu/core/exceptions.h>
#include <VxMFCEmu/sys/handle.h>

#include "coll/vxfilename_p.h"

#include <QtCore/QFile>

#include <cerrno>
#include <memory>

#include <fcntl.h>
#include <unistd.h>

namespace {

UINT accessFlags(DWORD dwDesiredAccess)
{
    const bool bRead = (dwDesiredAccess & (GENERIC_READ | GENERIC_ALL)) != 0;
    const bool bWrite = (dwDesiredAccess & (GENERIC_WRITE | GENERIC_ALL)) != 0;
    return !bWrite ? CFile_E::modeRead : bRead ? CFile_E::modeReadWrite : CFile_E::modeWrite;
}

/// How the file is opened once it is known to be there or was just made.
UINT dispositionFlags(DWORD dwCreationDisposition)
{
    switch (dwCreationDisposition) {
    case CREATE_ALWAYS:
        return CFile_E::modeCreate;
    case OPEN_ALWAYS:
        return CFile_E::modeCreate | CFile_E::modeNoTruncate;
    default:
        return 0;
    }
}

/// Makes an empty file; false with `errno` when there is one or it cannot be made.
bool makeFile(const QByteArray& name)
{
    const int fd = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd >= 0)
        ::close(fd);
    return fd >= 0;
}

HANDLE failure(int nError)
{
    errno = nError;
    return INVALID_HANDLE_VALUE;
}

} // namespace

HANDLE CreateFile_E(LPCWSTR lpFileName, DWORD dwDesiredAccess, DWORD, LPSECURITY_ATTRIBUTES,
                    DWORD dwCreationDisposition, DWORD, HANDLE)
{
    const UINT access = accessFlags(dwDesiredAccess);
    const bool bTruncate = dwCreationDisposition == TRUNCATE_EXISTING;
    if (dwCreationDisposition < CREATE_NEW || dwCreationDisposition > TRUNCATE_EXISTING ||
        (bTruncate && access == CFile_E::modeRead))
        return failure(EINVAL);

    const QByteArray name = QFile::encodeName(vx::detail::localFileName(lpFileName));
    const bool bMayMake = dwCreationDisposition != OPEN_EXISTING && !bTruncate;
    const bool bMade = bMayMake && makeFile(name);
    if (bMayMake && !bMade && (errno != EEXIST || dwCreationDisposition == CREATE_NEW))
        return failure(errno);

    auto pFile = std::make_unique<CFile_E>();
    if (!pFile->Open(lpFileName, access | dispositionFlags(dwCreationDisposition)) ||
        (bTruncate && ::truncate(name.constData(), 0) != 0)) {
        const int nError = errno;
        pFile.reset();
        return failure(nError);
    }
    errno = bMayMake && !bMade ? static_cast<int>(ERROR_ALREADY_EXISTS) : 0;
    return pFile.release();
}

BOOL CloseHandle_E(HANDLE hFile)
{
    if (!hFile || hFile == INVALID_HANDLE_VALUE)
        return FALSE;
    const std::unique_ptr<CFile_E> pFile(static_cast<CFile_E*>(hFile));
    try {
        pFile->Close();
    } catch (CException_E* pException) {
        pException->Delete(); // The file is closed all the same.
    }
    return TRUE;
}
