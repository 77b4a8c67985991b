#include <VxMFCEmu/core/exceptions.h>
#include <VxMFCEmu/core/lasterror.h>

#include "core/vxexceptmessage_p.h"

#include <cstring>

IMPLEMENT_DYNAMIC_E(COleException_E, CException_E, QObject)

namespace {

constexpr DWORD kHelpContextBase = 0x60000;
constexpr UINT kNoHelpID = 0xFFFFFFFFU;
constexpr std::size_t kStatusCodeOffset = sizeof(CException_E);

/// What stands where COleException_E keeps its status code.
SCODE statusCodePosition(const CException_E& e)
{
    // The code has two bytes; those behind it are nobody's.
    if (const auto* pDispatch = dynamic_cast<const COleDispatchException_E*>(&e))
        return pDispatch->m_wCode;
    SCODE sc;
    std::memcpy(&sc, reinterpret_cast<const char*>(&e) + kStatusCodeOffset, sizeof sc);
    return sc;
}

BSTR copyUnlessEmpty(const CString_E& str)
{
    return str.IsEmpty() ? nullptr : SysAllocString_E(str.GetString());
}

void describeFailure(EXCEPINFO& info, const wchar_t* lpszDescription, int nCode)
{
    info.bstrDescription = SysAllocString_E(lpszDescription);
    info.wCode = static_cast<WORD>(nCode);
}

} // namespace

COleException_E::~COleException_E() = default;
COleDispatchException_E::~COleDispatchException_E() = default;

BOOL COleException_E::GetErrorMessage(wchar_t* lpszError, UINT nMaxError, UINT* pnHelpContext) const
{
    vx::detail::clearHelpContext(pnHelpContext);
    if (!lpszError || nMaxError == 0)
        return FALSE;
    wchar_t message[64];
    constexpr DWORD room = static_cast<DWORD>(std::size(message)) - 1;
    const DWORD length =
        FormatMessage_E(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                        static_cast<DWORD>(m_sc), 0, message, room, nullptr);
    vx::detail::copyBounded(lpszError, nMaxError, message, length);
    return length > 0;
}

SCODE COleException_E::Process(const CException_E* pAnyException)
{
    if (!pAnyException)
        return E_UNEXPECTED;
    // Intended: the shared meta object makes the first test succeed for every exception.
    if (pAnyException->IsKindOf(RUNTIME_CLASS_E(COleException_E)))
        return statusCodePosition(*pAnyException);
    return pAnyException->IsKindOf(RUNTIME_CLASS_E(CException_E)) ? E_OUTOFMEMORY : E_UNEXPECTED;
}

COleDispatchException_E::COleDispatchException_E(const wchar_t* lpszDescription, UINT nHelpID,
                                                 WORD wCode)
    : m_wCode(wCode),
      m_strDescription(lpszDescription),
      m_dwHelpContext(nHelpID == 0 ? 0 : nHelpID + kHelpContextBase)
{
}

BOOL COleDispatchException_E::GetErrorMessage(wchar_t* lpszError, UINT nMaxError,
                                              UINT* pnHelpContext) const
{
    vx::detail::clearHelpContext(pnHelpContext);
    if (!lpszError || nMaxError == 0)
        return FALSE;
    vx::detail::copyBounded(lpszError, nMaxError, m_strDescription.GetString(),
                            static_cast<std::size_t>(m_strDescription.GetLength()));
    return TRUE;
}

void COleDispatchException_E::Process(EXCEPINFO* pInfo, const CException_E* pAnyException)
{
    if (!pInfo)
        return;
    *pInfo = {};
    if (const auto* pDispatch = dynamic_cast<const COleDispatchException_E*>(pAnyException)) {
        pInfo->wCode = pDispatch->m_wCode;
        pInfo->dwHelpContext = pDispatch->m_dwHelpContext;
        pInfo->scode = static_cast<SCODE>(pDispatch->m_scError);
        pInfo->bstrHelpFile = copyUnlessEmpty(pDispatch->m_strHelpFile);
        pInfo->bstrSource = copyUnlessEmpty(pDispatch->m_strSource);
    } else if (dynamic_cast<const CMemoryException_E*>(pAnyException)) {
        describeFailure(*pInfo, L"AFX_IDP_FAILED_MEMORY_ALLOC", -3830);
    } else {
        describeFailure(*pInfo, L"AFX_IDP_INTERNAL_FAILURE", -3832);
    }
    // Intended: the description of a dispatch exception is left out.
    if (!pInfo->bstrDescription)
        pInfo->bstrDescription = SysAllocString_E(L"");
    if (!pInfo->bstrHelpFile && pInfo->dwHelpContext != 0)
        pInfo->bstrHelpFile = SysAllocString_E(L"");
}

void AfxThrowOleException_E(int sc)
{
    auto* pException = new COleException_E;
    pException->m_sc = sc;
    throw pException;
}

void AfxThrowOleException_E(long sc) { AfxThrowOleException_E(static_cast<int>(sc)); }

void AfxCheckError_E(long sc)
{
    if (sc < 0)
        AfxThrowOleException_E(sc);
}

void AfxThrowOleDispatchException_E(WORD wCode, const wchar_t* lpszDescription, UINT nHelpID)
{
    throw new COleDispatchException_E(lpszDescription, nHelpID, wCode);
}

void AfxThrowOleDispatchException_E(WORD wCode, UINT nDescriptionID, UINT nHelpID)
{
    // Intended: string resources are not consulted.
    throw new COleDispatchException_E(L"AfxThrowOleDispatchException",
                                      nHelpID == kNoHelpID ? nDescriptionID : nHelpID, wCode);
}
