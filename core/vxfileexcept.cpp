#include <VxMFCEmu/core/exceptions.h>

#include "core/vxerrormaps_p.h"
#include "core/vxexceptmessage_p.h"

namespace {

const wchar_t* nameOrPlaceholder(const CString_E& strName)
{
    return strName.IsEmpty() ? L"AFX_IDS_UNNAMED_FILE" : strName.GetString();
}

BOOL copyMessage(const CString_E& strMessage, wchar_t* lpszError, UINT nMaxError)
{
    return vx::detail::copyWhole(lpszError, nMaxError, strMessage.GetString(),
                                 static_cast<std::size_t>(strMessage.GetLength()));
}

} // namespace

CFileException_E::~CFileException_E() = default;
CArchiveException_E::~CArchiveException_E() = default;

BOOL CFileException_E::GetErrorMessage(wchar_t* lpszError, UINT nMaxError,
                                       UINT* pnHelpContext) const
{
    vx::detail::clearHelpContext(pnHelpContext);
    if (!lpszError || nMaxError == 0)
        return FALSE;
    CString_E strMessage;
    strMessage.Format(L"cause: %d, error: %d, file: %s\n", m_cause, m_lOsError,
                      nameOrPlaceholder(m_strFileName));
    return copyMessage(strMessage, lpszError, nMaxError);
}

int CFileException_E::ErrnoToException(int nErrno)
{
    constexpr int count = static_cast<int>(vx::detail::kErrnoCauses.size());
    if (nErrno < 1 || nErrno > count)
        return genericException;
    return vx::detail::kErrnoCauses[static_cast<std::size_t>(nErrno - 1)];
}

int CFileException_E::OsErrorToException(LONG lOsError)
{
    const auto index =
        static_cast<std::size_t>(lOsError); // a negative number lies beyond the table
    if (index >= vx::detail::kCauseOfOsError.size())
        return genericException;
    return vx::detail::kCauseOfOsError[index];
}

void CFileException_E::ThrowErrno(int nErrno, const wchar_t* lpszFileName)
{
    if (nErrno != 0)
        AfxThrowFileException_E(ErrnoToException(nErrno), 0, lpszFileName);
}

void CFileException_E::ThrowOsError(LONG lOsError, const wchar_t* lpszFileName)
{
    if (lOsError != 0)
        AfxThrowFileException_E(OsErrorToException(lOsError), lOsError, lpszFileName);
}

BOOL CArchiveException_E::GetErrorMessage(wchar_t* lpszError, UINT nMaxError,
                                          UINT* pnHelpContext) const
{
    vx::detail::clearHelpContext(pnHelpContext);
    if (!lpszError || nMaxError == 0)
        return FALSE;
    CString_E strMessage;
    strMessage.Format(L"cause: %d, file: %s\n", m_cause, nameOrPlaceholder(m_strFileName));
    return copyMessage(strMessage, lpszError, nMaxError);
}

void AfxThrowFileException_E(int cause, LONG lOsError, const wchar_t* lpszFileName)
{
    throw new CFileException_E(cause, lOsError, lpszFileName);
}

void AfxThrowArchiveException_E(int cause, const wchar_t* lpszArchiveName)
{
    throw new CArchiveException_E(cause, lpszArchiveName);
}
