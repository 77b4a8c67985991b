/// @file extensionmodule.h
/// Extension modules: plug-ins that share the classes of this library.
///
/// Differs from MFC: extension modules are not linked into a chain; nothing looks for resources
/// there.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/core/cmdtarget.h>

class COleObjectFactory_E;

/// What an extension module keeps about itself, usually in a static object of all zeros.
struct AFX_EXTENSION_MODULE_E
{
    BOOL bInitialized;                        ///< not 0 once it is filled in
    HMODULE hModule;                          ///< the module
    HMODULE hResource;                        ///< the module
    CRuntimeClass_E* pFirstSharedClass;       ///< head of the list of class records
    COleObjectFactory_E* pFirstSharedFactory; ///< not used
};

/// Fills @p state for the module @p hModule; when that has been done already, gives the
/// thread-local slots without a module to it. Always TRUE.
VXMFC_EXPORT BOOL AfxInitExtensionModule_E(AFX_EXTENSION_MODULE_E& state, HMODULE hModule);
/// Deletes the module's thread-local values of every thread, whatever @p bAll says.
VXMFC_EXPORT void AfxTermExtensionModule_E(AFX_EXTENSION_MODULE_E& state, BOOL bAll = FALSE);

/// One extension module. Has no meta object of its own: IsKindOf() takes it for a CCmdTarget_E.
class VXMFC_EXPORT CDynLinkLibrary_E : public CCmdTarget_E
{
    DECLARE_DYNAMIC_E(CDynLinkLibrary_E)

    /// Keeps what @p state says.
    explicit CDynLinkLibrary_E(const AFX_EXTENSION_MODULE_E& state, BOOL bSystem = FALSE);
    /// Keeps @p hModule only.
    CDynLinkLibrary_E(HINSTANCE hModule, HINSTANCE hResource);

    HMODULE m_hModule;                       ///< the module
    HMODULE m_hResource = nullptr;           ///< kept only
    CDynLinkLibrary_E* m_pNextDLL = nullptr; ///< not used
    BOOL m_bSystem = FALSE;                  ///< kept only
};
