#include <VxMFCEmu/core/extensionmodule.h>

#include <VxMFCEmu/core/modulestate.h>
#include <VxMFCEmu/core/threadslots.h>

static_assert(sizeof(CDynLinkLibrary_E) == 72, "plug-ins are built against this layout");

IMPLEMENT_DYNAMIC_E(CDynLinkLibrary_E, CCmdTarget_E, QObject)

BOOL AfxInitExtensionModule_E(AFX_EXTENSION_MODULE_E& state, HMODULE hModule)
{
    if (state.bInitialized) {
        AfxInitLocalData_E(hModule);
        return TRUE;
    }
    state.bInitialized = TRUE;
    state.hModule = hModule;
    state.hResource = hModule;
    state.pFirstSharedClass =
        static_cast<CRuntimeClass_E*>(AfxGetModuleState_E()->m_classList.GetHead());
    return TRUE;
}

void AfxTermExtensionModule_E(AFX_EXTENSION_MODULE_E& state, BOOL)
{
    if (state.bInitialized)
        AfxTermLocalData_E(state.hModule, TRUE);
}

CDynLinkLibrary_E::CDynLinkLibrary_E(const AFX_EXTENSION_MODULE_E& state, BOOL bSystem)
    : m_hModule(state.hModule), m_bSystem(bSystem)
{
}

CDynLinkLibrary_E::CDynLinkLibrary_E(HINSTANCE hModule, HINSTANCE) : m_hModule(hModule) {}
