#include <VxMFCEmu/core/exceptions.h>

#include "core/vxexceptmessage_p.h"

// A reported exception shows a message box; this is where the runtime core meets the dialogs.
#include <VxMFCEmu/dlg/messagebox.h>

#include <cwchar>
#include <iterator>
#include <mutex>

IMPLEMENT_DYNAMIC_E(CException_E, CObject_E, QObject)

namespace {

constexpr UINT kNotSupportedText = 61473;
constexpr UINT kResourceText = 61474;
constexpr UINT kMemoryText = 61475;
constexpr UINT kUserText = 61476;
constexpr UINT kInvalidArgText = 61477;
constexpr UINT kNoMessageText = 61472;
constexpr UINT kReportLength = 512;

} // namespace

// Static initialisers anywhere may throw these: they come right after the registry.
#define VXMFC_EARLY __attribute__((init_priority(102)))
VXMFC_EARLY CNotSupportedException_E _simpleNotSupportedException(FALSE, kNotSupportedText);
VXMFC_EARLY CResourceException_E _simpleResourceException(FALSE, kResourceText);
VXMFC_EARLY CMemoryException_E _simpleMemoryException(FALSE, kMemoryText);
VXMFC_EARLY CUserException_E _simpleUserException(FALSE, kUserText);
VXMFC_EARLY CInvalidArgException_E _simpleInvalidArgException(FALSE, kInvalidArgText);
#undef VXMFC_EARLY

CException_E::~CException_E() = default;
CSimpleException_E::~CSimpleException_E() = default;
CMemoryException_E::~CMemoryException_E() = default;
CNotSupportedException_E::~CNotSupportedException_E() = default;
CInvalidArgException_E::~CInvalidArgException_E() = default;
CResourceException_E::~CResourceException_E() = default;
CUserException_E::~CUserException_E() = default;

BOOL CException_E::GetErrorMessage(wchar_t* lpszError, UINT nMaxError, UINT* pnHelpContext) const
{
    vx::detail::clearHelpContext(pnHelpContext);
    if (lpszError && nMaxError > 0)
        *lpszError = L'\0';
    return FALSE;
}

BOOL CException_E::GetErrorMessage(wchar_t* lpszError, UINT nMaxError, UINT* pnHelpContext)
{
    return static_cast<const CException_E*>(this)->GetErrorMessage(lpszError, nMaxError,
                                                                   pnHelpContext);
}

int CException_E::ReportError(UINT nType, UINT nMessageID)
{
    wchar_t message[kReportLength + 1] = {};
    UINT nHelpContext = 0;
    if (GetErrorMessage(message, kReportLength, &nHelpContext))
        return AfxMessageBox_E(message, nType, nHelpContext);
    return AfxMessageBox_E(nMessageID == 0 ? kNoMessageText : nMessageID, nType, nHelpContext);
}

void CException_E::Delete()
{
    if (m_bAutoDelete > 0)
        delete this;
}

BOOL CSimpleException_E::GetErrorMessage(wchar_t* lpszError, UINT nMaxError,
                                         UINT* pnHelpContext) const
{
    vx::detail::clearHelpContext(pnHelpContext);
    if (!lpszError || nMaxError == 0)
        return FALSE;
    InitString();
    vx::detail::copyBounded(lpszError, nMaxError, m_szMessage, std::wcslen(m_szMessage));
    return m_bLoaded;
}

void CSimpleException_E::InitString() const
{
    // The shared exceptions are asked by any thread that caught one.
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    if (m_bInitialized)
        return;
    m_bInitialized = TRUE;
    m_bLoaded = TRUE;
    // Intended: string resources are not consulted.
    static constexpr wchar_t kMessage[] = L"CException";
    std::copy(std::begin(kMessage), std::end(kMessage), m_szMessage);
}

void AfxThrowMemoryException_E() { throw &_simpleMemoryException; }
void AfxThrowNotSupportedException_E() { throw &_simpleNotSupportedException; }
void AfxThrowInvalidArgException_E() { throw &_simpleInvalidArgException; }
void AfxThrowResourceException_E() { throw &_simpleResourceException; }
void AfxThrowUserException_E() { throw &_simpleUserException; }
