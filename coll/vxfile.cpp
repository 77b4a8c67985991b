#include <VxMFCEmu/coll/file.h>

#include <VxMFCEmu/coll/filefunctions.h>
#include <VxMFCEmu/coll/filehandle.h>
#include <VxMFCEmu/core/exceptions.h>
#include <VxMFCEmu/sys/errorcodes.h>

#include "coll/vxfilehandles_p.h"
#include "coll/vxfileio_p.h"
#include "coll/vxfilename_p.h"
#include "coll/vxfileopen_p.h"
#include "coll/vxoserror_p.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

IMPLEMENT_DYNAMIC_E(CFile_E, CObject_E, QFile)

using namespace vx::detail;

namespace {

constexpr UINT kAccessMask = 0x0003;
constexpr UINT kShareMask = 0x0070;

OpenRequest requestOf(UINT nOpenFlags)
{
    static constexpr DWORD access[] = {GENERIC_READ, GENERIC_WRITE, GENERIC_READ | GENERIC_WRITE,
                                       GENERIC_READ | GENERIC_WRITE};
    static constexpr DWORD share[] = {
        0, 0, FILE_SHARE_READ, FILE_SHARE_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, 0, 0, 0};
    const bool bCreate = (nOpenFlags & CFile_E::modeCreate) != 0;
    const bool bKeep = (nOpenFlags & CFile_E::modeNoTruncate) != 0;
    return {access[nOpenFlags & kAccessMask], share[(nOpenFlags & kShareMask) >> 4U],
            !bCreate ? OPEN_EXISTING
            : bKeep  ? OPEN_ALWAYS
                     : CREATE_ALWAYS,
            (nOpenFlags & CFile_E::osWriteThrough) != 0 ? FILE_FLAG_WRITE_THROUGH : 0};
}

QIODevice::OpenMode deviceMode(int fd)
{
    switch (::fcntl(fd, F_GETFL) & O_ACCMODE) {
    case O_RDONLY:
        return QIODevice::ReadOnly;
    case O_WRONLY:
        return QIODevice::WriteOnly;
    default:
        return QIODevice::ReadWrite;
    }
}

QFile* deviceOf(const CFile_E& file) { return static_cast<QFile*>(file.GetImpQObject()); }

} // namespace

CFile_E::CFile_E() = default;

CFile_E::CFile_E(INT_PTR hFile)
{
    if (hFile != hFileNull)
        Adopt(static_cast<int>(hFile), false);
}

// Through the other constructor, so that the destructor runs when opening throws.
CFile_E::CFile_E(const wchar_t* lpszFileName, UINT nOpenFlags) : CFile_E()
{
    CFileException_E::ThrowOsError(OpenFile(lpszFileName, nOpenFlags), lpszFileName);
}

CFile_E::~CFile_E()
{
    ReleaseFile(m_bCloseOnDelete);
    if (m_bIsHandle)
        forgetFileHandle(this);
    // Deleted at once where it is owned: a file may live in a thread without an event loop.
    QObject* const pImp = IsExternalImpObj() ? nullptr : GetImpQObject();
    Detach();
    delete pImp;
}

BOOL CFile_E::AttachDefault(QObject* pParent) { return Attach(new QFile(pParent), pParent, false); }

CFile_E::operator HANDLE() const
{
    if (m_hFile == hFileNull)
        return INVALID_HANDLE_VALUE;
    auto* const pThis = const_cast<CFile_E*>(this);
    if (!m_bIsHandle)
        rememberFileHandle(pThis, false);
    m_bIsHandle = true;
    return pThis;
}

BOOL CFile_E::Open(const wchar_t* lpszFileName, UINT nOpenFlags, CFileException_E* pError)
{
    return ReportOpen(OpenFile(lpszFileName, nOpenFlags), lpszFileName, pError);
}

BOOL CFile_E::ReportOpen(LONG lOsError, const wchar_t* lpszFileName, CFileException_E* pError)
{
    if (lOsError != NO_ERROR && pError) {
        pError->m_cause = CFileException_E::OsErrorToException(lOsError);
        pError->m_lOsError = lOsError;
        pError->m_strFileName = lpszFileName;
    }
    return succeeded(lOsError);
}

LONG CFile_E::OpenFile(const wchar_t* lpszFileName, UINT nOpenFlags)
{
    ReleaseFile(m_bCloseOnDelete);
    const QString name = localFileName(lpszFileName);
    OpenedFile opened;
    const LONG error = openFile(QFile::encodeName(name), requestOf(nOpenFlags), opened);
    if (error == NO_ERROR) {
        m_strFileName = QFileInfo(name).absoluteFilePath();
        Adopt(opened.fd, true);
    }
    return error;
}

void CFile_E::Adopt(int fd, bool bCloseOnDelete)
{
    if (!GetImpQObject())
        CFile_E::AttachDefault(nullptr);
    QFile* const pFile = deviceOf(*this);
    pFile->setFileName(VxQString(m_strFileName));
    pFile->open(fd, deviceMode(fd) | QIODevice::Unbuffered, QFileDevice::DontCloseHandle);
    m_hFile = fd;
    m_bCloseOnDelete = bCloseOnDelete;
    m_nProcess = ::getpid();
}

void CFile_E::AdoptHandle(HANDLE hFile)
{
    const CFile_E* const pFile = fileOfHandle(hFile);
    if (!pFile || pFile->m_hFile == hFileNull)
        AfxThrowFileException_E(CFileException_E::invalidFile, ERROR_INVALID_HANDLE);
    m_strFileName = pFile->m_strFileName;
    Adopt(static_cast<int>(pFile->m_hFile), false);
    m_hBorrowed = hFile;
}

LONG CFile_E::ReleaseFile(bool bClose)
{
    if (QFile* const pFile = deviceOf(*this))
        pFile->close();
    if (bClose)
        ReleaseLocks();
    const auto fd = static_cast<int>(std::exchange(m_hFile, hFileNull));
    const HANDLE hBorrowed = std::exchange(m_hBorrowed, nullptr);
    m_pSharers.reset();
    m_bCloseOnDelete = false;
    m_ranges.clear();
    m_strFileName.Empty();
    if (fd == hFileNull || !bClose)
        return NO_ERROR;
    if (hBorrowed)
        return CloseHandle_E(hBorrowed) ? NO_ERROR : errno;
    return ::close(fd) == 0 ? NO_ERROR : osErrorOf(errno);
}

void CFile_E::ReleaseLocks()
{
    const bool bLast = !m_pSharers || m_pSharers->fetch_sub(1) == 1;
    m_pSharers.reset();
    // A forked process must leave alone what its parent has locked, and a descriptor that came from
    // elsewhere may have duplicates that nobody knows.
    if (bLast && m_bCloseOnDelete && m_hFile != hFileNull && m_nProcess == ::getpid())
        releaseLocks(static_cast<int>(m_hFile));
}

CFile_E* CFile_E::Duplicate() const
{
    auto pFile = std::make_unique<CFile_E>();
    DuplicateTo(pFile.get());
    return pFile.release();
}

void CFile_E::DuplicateTo(CFile_E* pFile) const
{
    const int fd = ::fcntl(Descriptor(), F_DUPFD_CLOEXEC, 0);
    Check(fd < 0 ? osErrorOf(errno) : NO_ERROR);
    pFile->m_strFileName = m_strFileName;
    pFile->Adopt(fd, true);
    if (!m_pSharers)
        m_pSharers = std::make_shared<std::atomic<int>>(1);
    m_pSharers->fetch_add(1);
    pFile->m_pSharers = m_pSharers;
}

UINT CFile_E::Read(void* lpBuf, UINT nCount)
{
    const int fd = Descriptor();
    if (nCount == 0)
        return 0;
    if (!lpBuf)
        AfxThrowInvalidArgException_E();
    std::size_t nDone;
    Check(readBytes(fd, lpBuf, nCount, nDone));
    return static_cast<UINT>(nDone);
}

void CFile_E::Write(const void* lpBuf, UINT nCount)
{
    const int fd = Descriptor();
    if (nCount == 0)
        return;
    if (!lpBuf)
        AfxThrowInvalidArgException_E();
    std::size_t nDone;
    Check(writeBytes(fd, lpBuf, nCount, nDone));
}

ULONGLONG CFile_E::Seek(LONGLONG lOff, UINT nFrom)
{
    const int fd = Descriptor();
    if (nFrom > end)
        AfxThrowInvalidArgException_E();
    ULONGLONG nPosition = 0;
    Check(seekTo(fd, lOff, nFrom, nPosition));
    return nPosition;
}

ULONGLONG CFile_E::GetPosition() const
{
    ULONGLONG nPosition = 0;
    Check(seekTo(Descriptor(), 0, current, nPosition));
    return nPosition;
}

ULONGLONG CFile_E::GetLength() const
{
    ULONGLONG nLength = 0;
    Check(lengthOf(Descriptor(), nLength));
    return nLength;
}

void CFile_E::SetLength(ULONGLONG dwNewLen)
{
    Check(vx::detail::setLength(Descriptor(), dwNewLen));
    Seek(static_cast<LONGLONG>(dwNewLen), begin);
}

void CFile_E::LockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    const int fd = Descriptor();
    // The system lets an open file lock again what it has locked itself.
    const bool bOverlaps = std::any_of(m_ranges.cbegin(), m_ranges.cend(), [=](const Range& r) {
        return dwCount > 0 && r.count > 0 &&
               (dwPos < r.first ? r.first - dwPos < dwCount : dwPos - r.first < r.count);
    });
    Check(bOverlaps ? ERROR_LOCK_VIOLATION : setRangeLock(fd, dwPos, dwCount, true));
    m_ranges.push_back({dwPos, dwCount});
}

void CFile_E::UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    const int fd = Descriptor();
    const auto range = std::find_if(m_ranges.cbegin(), m_ranges.cend(), [=](const Range& r) {
        return r.first == dwPos && r.count == dwCount;
    });
    Check(range == m_ranges.cend() ? ERROR_NOT_LOCKED : setRangeLock(fd, dwPos, dwCount, false));
    m_ranges.erase(range);
}

void CFile_E::Flush() {}

void CFile_E::Close()
{
    const CString_E strFileName = m_strFileName;
    CFileException_E::ThrowOsError(ReleaseFile(true), strFileName.GetString());
}

void CFile_E::Abort() { ReleaseFile(true); }

CString_E CFile_E::GetFileName() const { return QFileInfo(VxQString(m_strFileName)).fileName(); }

CString_E CFile_E::GetFileTitle() const
{
    return QFileInfo(VxQString(m_strFileName)).completeBaseName();
}

void CFile_E::Remove(const wchar_t* lpszFileName)
{
    if (!DeleteFile_E(lpszFileName))
        CFileException_E::ThrowOsError(errno, lpszFileName);
}

void CFile_E::Rename(const wchar_t* lpszOldName, const wchar_t* lpszNewName)
{
    if (!MoveFile_E(lpszOldName, lpszNewName))
        CFileException_E::ThrowOsError(errno, lpszOldName);
}

int CFile_E::Descriptor() const
{
    if (m_hFile == hFileNull)
        AfxThrowFileException_E(CFileException_E::invalidFile, ERROR_INVALID_HANDLE,
                                m_strFileName.GetString());
    return static_cast<int>(m_hFile);
}

void CFile_E::Check(LONG lOsError) const
{
    if (lOsError != NO_ERROR)
        CFileException_E::ThrowOsError(lOsError, m_strFileName.GetString());
}
