#include <VxMFCEmu/coll/filefind.h>

#include <VxMFCEmu/coll/filefunctions.h>
#include <VxMFCEmu/coll/filehandle.h>
#include <VxMFCEmu/sys/errorcodes.h>

#include "coll/vxfileinfo_p.h"
#include "coll/vxfilename_p.h"
#include "coll/vxoserror_p.h"

#include <QtCore/QFileInfo>

#include <cwchar>
#include <utility>

IMPLEMENT_DYNAMIC_E(CFileFind_E, CObject_E, QObject)

namespace {

BOOL copyTime(bool bFound, const FILETIME& time, FILETIME* pTimeStamp)
{
    if (!bFound || !pTimeStamp)
        return FALSE;
    *pTimeStamp = time;
    return TRUE;
}

BOOL copyTime(bool bFound, const FILETIME& time, std::time_t& refTime)
{
    if (bFound)
        refTime = vx::detail::secondsOf(time);
    return bFound;
}

} // namespace

CFileFind_E::CFileFind_E() = default;

CFileFind_E::~CFileFind_E() { Close(); }

BOOL CFileFind_E::FindFile(const wchar_t* pstrName, DWORD)
{
    Close();
    const wchar_t* const name = pstrName ? pstrName : L"*.*";
    const HANDLE hContext = FindFirstFile_E(name, &m_next);
    if (hContext == INVALID_HANDLE_VALUE)
        return FALSE;
    m_hContext = hContext;
    m_bMore = true;
    const QString path = vx::detail::localFileName(name);
    const QString folder = path.left(path.lastIndexOf(QLatin1Char('/')) + 1);
    m_strRoot = QFileInfo(folder.isEmpty() ? QStringLiteral("./") : folder).absolutePath();
    if (m_strRoot != L"/")
        m_strRoot += L'/';
    return TRUE;
}

BOOL CFileFind_E::FindNextFile()
{
    if (!m_hContext)
        return vx::detail::failWith(ERROR_INVALID_HANDLE);
    if (m_bMore) {
        m_found = m_next;
        m_bFound = true;
        m_bMore = FindNextFile_E(m_hContext, &m_next) != FALSE;
    }
    return m_bMore || vx::detail::failWith(ERROR_NO_MORE_FILES);
}

void CFileFind_E::Close()
{
    if (m_hContext)
        FindClose_E(std::exchange(m_hContext, nullptr));
    m_found = {};
    m_strRoot.Empty();
    m_bFound = m_bMore = false;
}

ULONGLONG CFileFind_E::GetLength() const
{
    return static_cast<ULONGLONG>(m_found.nFileSizeHigh) << 32U | m_found.nFileSizeLow;
}

CString_E CFileFind_E::GetFileName() const { return m_found.cFileName; }

CString_E CFileFind_E::GetFileTitle() const
{
    const CString_E strName = m_found.cFileName;
    const int dot = strName.ReverseFind(L'.');
    return dot < 0 || IsDots() ? strName : strName.Left(dot);
}

CString_E CFileFind_E::GetFilePath() const
{
    return m_bFound ? m_strRoot + m_found.cFileName : CString_E();
}

CString_E CFileFind_E::GetFileURL() const
{
    return m_bFound ? CString_E(L"file://") + m_strRoot + m_found.cFileName : CString_E();
}

CString_E CFileFind_E::GetRoot() const { return m_strRoot; }

BOOL CFileFind_E::GetCreationTime(FILETIME* pTimeStamp) const
{
    return copyTime(m_bFound, m_found.ftCreationTime, pTimeStamp);
}

BOOL CFileFind_E::GetCreationTime(std::time_t& refTime) const
{
    return copyTime(m_bFound, m_found.ftCreationTime, refTime);
}

BOOL CFileFind_E::GetLastAccessTime(FILETIME* pTimeStamp) const
{
    return copyTime(m_bFound, m_found.ftLastAccessTime, pTimeStamp);
}

BOOL CFileFind_E::GetLastAccessTime(std::time_t& refTime) const
{
    return copyTime(m_bFound, m_found.ftLastAccessTime, refTime);
}

BOOL CFileFind_E::GetLastWriteTime(FILETIME* pTimeStamp) const
{
    return copyTime(m_bFound, m_found.ftLastWriteTime, pTimeStamp);
}

BOOL CFileFind_E::GetLastWriteTime(std::time_t& refTime) const
{
    return copyTime(m_bFound, m_found.ftLastWriteTime, refTime);
}

BOOL CFileFind_E::MatchesMask(DWORD dwMask) const
{
    return (m_found.dwFileAttributes & dwMask) != 0;
}

BOOL CFileFind_E::IsDots() const
{
    return std::wcscmp(m_found.cFileName, L".") == 0 || std::wcscmp(m_found.cFileName, L"..") == 0;
}
