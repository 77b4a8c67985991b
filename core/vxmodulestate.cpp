#include <VxMFCEmu/core/modulestate.h>

#include <VxMFCEmu/core/handlemap.h>
#include <VxMFCEmu/sys/memory.h>

// Objects of any unit may take their handles out of the maps while they die at unload; the
// priority makes the states outlive them. What the states stand on comes before: the registry, the
// slot table, and what temporary objects look at when they die with their map.
__attribute__((init_priority(102))) AFX_MODULE_STATE_E afxModuleState(FALSE);
__attribute__((init_priority(102))) AFX_MODULE_THREAD_STATE_E gdiThreadState;

AFX_MODULE_STATE_E::AFX_MODULE_STATE_E(BOOL bDLL) : m_bDLL(bDLL) {}

AFX_MODULE_THREAD_STATE_E::~AFX_MODULE_THREAD_STATE_E()
{
    for (CHandleMap_E** ppMap :
         {&m_pmapHWND, &m_pmapHMENU, &m_pmapHDC, &m_pmapHGDIOBJ, &m_pmapHIMAGELIST}) {
        // Known to the destructors of its temporary objects until it is gone.
        delete *ppMap;
        *ppMap = nullptr;
    }
    if (m_pToolTip)
        m_pToolTip->DestroyToolTipCtrl();
    LocalFree_E(m_pLastInfo);
}

AFX_MODULE_STATE_E* AfxGetModuleState_E() { return &afxModuleState; }

AFX_MODULE_THREAD_STATE_E* AfxGetModuleThreadState_E() { return &gdiThreadState; }

AFX_MODULE_STATE_E* AfxGetStaticModuleState_E() { return nullptr; }

HINSTANCE AfxGetResourceHandle_E() { return nullptr; }

void AfxSetResourceHandle_E(HINSTANCE) {}
