#include <VxMFCEmu/coll/file.h>

#include <VxMFCEmu/core/exceptions.h>

#include "coll/vxfilename_p.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

IMPLEMENT_DYNAMIC_E(CFile_E, CObject_E, QFile)

using vx::detail::localFileName;

namespace {

constexpr UINT kAccessMask = 0x0003;

void fillError(CFileException_E* pError, int nErrno, const wchar_t* lpszFileName)
{
    if (!pError)
        return;
    pError->m_cause = CFileException_E::ErrnoToException(nErrno);
    pError->m_lOsError = nErrno;
    pError->m_strFileName = lpszFileName;
}

[[noreturn]] void throwErrno(int nErrno, const wchar_t* lpszFileName)
{
    AfxThrowFileException_E(CFileException_E::ErrnoToException(nErrno), nErrno, lpszFileName);
}

/// What the call that just failed left; Qt does not always set it.
int lastErrno() { return errno != 0 ? errno : EIO; }

QIODevice::OpenMode deviceMode(UINT nOpenFlags)
{
    switch (nOpenFlags & kAccessMask) {
    case CFile_E::modeRead:
        return QIODevice::ReadOnly;
    case CFile_E::modeWrite:
        return QIODevice::WriteOnly;
    default:
        return QIODevice::ReadWrite;
    }
}

int systemFlags(UINT nOpenFlags)
{
    static constexpr int access[] = {O_RDONLY, O_WRONLY, O_RDWR, O_RDWR};
    int flags = access[nOpenFlags & kAccessMask] | O_CLOEXEC;
    if ((nOpenFlags & CFile_E::modeCreate) != 0)
        flags |= O_CREAT | ((nOpenFlags & CFile_E::modeNoTruncate) != 0 ? 0 : O_TRUNC);
    if ((nOpenFlags & CFile_E::osWriteThrough) != 0)
        flags |= O_SYNC;
    return flags;
}

/// Opens by the system's own call: Qt would empty every file that is only written.
int openDescriptor(const QString& name, UINT nOpenFlags)
{
    if (name.isEmpty()) {
        errno = ENOENT;
        return -1;
    }
    const int fd = ::open(QFile::encodeName(name).constData(), systemFlags(nOpenFlags), 0666);
    struct stat info;
    if (fd >= 0 && ::fstat(fd, &info) == 0 && S_ISDIR(info.st_mode)) {
        ::close(fd);
        errno = EACCES;
        return -1;
    }
    return fd;
}

} // namespace

CFile_E::CFile_E() = default;

// Through the other constructor, so that the destructor runs when opening throws.
CFile_E::CFile_E(const wchar_t* lpszFileName, UINT nOpenFlags) : CFile_E()
{
    if (!OpenFile(lpszFileName, nOpenFlags, nullptr, QIODevice::Unbuffered))
        throwErrno(lastErrno(), lpszFileName);
}

CFile_E::~CFile_E()
{
    // Deleted at once where it is owned: a file may live in a thread without an event loop.
    QObject* const pImp = IsExternalImpObj() ? nullptr : GetImpQObject();
    Detach();
    delete pImp;
}

BOOL CFile_E::AttachDefault(QObject* pParent) { return Attach(new QFile(pParent), pParent, false); }

BOOL CFile_E::Open(const wchar_t* lpszFileName, UINT nOpenFlags, CFileException_E* pError)
{
    return OpenFile(lpszFileName, nOpenFlags, pError, QIODevice::Unbuffered);
}

BOOL CFile_E::OpenFile(const wchar_t* lpszFileName, UINT nOpenFlags, CFileException_E* pError,
                       QIODevice::OpenMode extra)
{
    CFile_E::Abort();
    if (!GetImpQObject())
        CFile_E::AttachDefault(nullptr);
    const QString name = localFileName(lpszFileName);
    const int fd = openDescriptor(name, nOpenFlags);
    if (fd < 0) {
        const int error = errno;
        fillError(pError, error, lpszFileName);
        errno = error;
        return FALSE;
    }
    QFile* const pFile = FileOrNull();
    pFile->setFileName(name);
    if (!pFile->open(fd, deviceMode(nOpenFlags) | extra, QFileDevice::AutoCloseHandle)) {
        fillError(pError, EIO, lpszFileName);
        errno = EIO;
        return FALSE;
    }
    m_strFileName = QFileInfo(name).absoluteFilePath();
    return TRUE;
}

UINT CFile_E::Read(void* lpBuf, UINT nCount)
{
    QFile& file = File(QIODevice::ReadOnly);
    if (nCount == 0)
        return 0;
    if (!lpBuf)
        AfxThrowInvalidArgException_E();
    errno = 0;
    const qint64 nRead = file.read(static_cast<char*>(lpBuf), nCount);
    if (nRead < 0)
        ThrowError(lastErrno());
    return static_cast<UINT>(nRead);
}

void CFile_E::Write(const void* lpBuf, UINT nCount)
{
    QFile& file = File(QIODevice::WriteOnly);
    if (nCount == 0)
        return;
    if (!lpBuf)
        AfxThrowInvalidArgException_E();
    errno = 0;
    if (file.write(static_cast<const char*>(lpBuf), nCount) != static_cast<qint64>(nCount))
        ThrowError(lastErrno());
}

ULONGLONG CFile_E::Seek(LONGLONG lOff, UINT nFrom)
{
    QFile& file = File();
    if (nFrom > end)
        AfxThrowInvalidArgException_E();
    const LONGLONG base = nFrom == begin ? 0 : nFrom == current ? file.pos() : file.size();
    LONGLONG target;
    if (__builtin_add_overflow(base, lOff, &target) || target < 0 || !file.seek(target))
        AfxThrowFileException_E(CFileException_E::badSeek, EINVAL, m_strFileName.GetString());
    return static_cast<ULONGLONG>(target);
}

ULONGLONG CFile_E::GetPosition() const { return static_cast<ULONGLONG>(File().pos()); }

ULONGLONG CFile_E::GetLength() const { return static_cast<ULONGLONG>(File().size()); }

void CFile_E::SetLength(ULONGLONG dwNewLen)
{
    QFile& file = File(QIODevice::WriteOnly);
    const auto length = static_cast<qint64>(dwNewLen);
    errno = 0;
    if (length < 0 || !file.resize(length) || !file.seek(length))
        ThrowError(length < 0 ? EINVAL : lastErrno());
}

void CFile_E::Flush()
{
    errno = 0;
    if (QFile* const pFile = FileOrNull(); pFile && pFile->isOpen() && !pFile->flush())
        ThrowError(lastErrno());
}

void CFile_E::Close()
{
    QFile* const pFile = FileOrNull();
    if (!pFile || !pFile->isOpen())
        return;
    errno = 0;
    const int error = pFile->flush() ? 0 : lastErrno();
    const CString_E strFileName = m_strFileName;
    CFile_E::Abort();
    if (error != 0)
        throwErrno(error, strFileName.GetString());
}

void CFile_E::Abort()
{
    if (QFile* const pFile = FileOrNull())
        pFile->close();
    m_strFileName.Empty();
}

CString_E CFile_E::GetFileName() const { return QFileInfo(VxQString(m_strFileName)).fileName(); }

CString_E CFile_E::GetFileTitle() const
{
    return QFileInfo(VxQString(m_strFileName)).completeBaseName();
}

void CFile_E::Remove(const wchar_t* lpszFileName)
{
    if (::unlink(QFile::encodeName(localFileName(lpszFileName)).constData()) != 0)
        throwErrno(errno, lpszFileName);
}

void CFile_E::Rename(const wchar_t* lpszOldName, const wchar_t* lpszNewName)
{
    const QString oldName = localFileName(lpszOldName);
    const QString newName = localFileName(lpszNewName);
    if (!QFileInfo::exists(oldName) || newName.isEmpty())
        throwErrno(ENOENT, lpszOldName);
    if (QFileInfo::exists(newName))
        throwErrno(EEXIST, lpszNewName);
    errno = 0;
    if (!QFile::rename(oldName, newName))
        throwErrno(lastErrno(), lpszOldName);
}

QFile* CFile_E::FileOrNull() const { return static_cast<QFile*>(GetImpQObject()); }

QFile& CFile_E::File(QIODevice::OpenMode mode) const
{
    QFile* const pFile = FileOrNull();
    if (!pFile || !pFile->isOpen())
        ThrowError(EBADF);
    if ((pFile->openMode() & mode) != mode)
        ThrowError(EACCES);
    return *pFile;
}

void CFile_E::ThrowError(int nErrno) const { throwErrno(nErrno, m_strFileName.GetString()); }
