/// @file modulestate.h
/// The module state and the module thread state, one of each in the process.
///
/// Differs from MFC: despite its name there is no module thread state per thread, and resource
/// handles are not used (string tables and control ids are found by the calling plug-in's name).
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/core/notrackobject.h>
#include <VxMFCEmu/core/simplelist.h>
#include <VxMFCEmu/core/threadlocal.h>

#include <VxMFCEmu/text/cstring.h>

class CHandleMap_E;
class CWnd_E;
struct tagTOOLINFOW;

/// The shared tool-tip control as the thread state knows it; the control class derives from this.
class VXMFC_EXPORT VxToolTip
{
public:
    /// Destroys the control and frees its memory.
    virtual void DestroyToolTipCtrl() = 0;

protected:
    VxToolTip() = default;
    ~VxToolTip() = default;
    /// @{
    /// For derived classes.
    VxToolTip(const VxToolTip&) = default;
    VxToolTip& operator=(const VxToolTip&) = default;
    /// @}
};

/// What the library keeps about the module.
class VXMFC_EXPORT AFX_MODULE_STATE_E : public CNoTrackObject_E
{
public:
    /// The state of a library, or with FALSE of a program.
    explicit AFX_MODULE_STATE_E(BOOL bDLL);

    BOOL m_bDLL;                   ///< whether this is a library
    BOOL m_bSystem = FALSE;        ///< only kept
    CSimpleList_E m_classList;     ///< class records; empty, as records are not linked here
    UINT m_nState = 1;             ///< this and the fields below are only kept
    CString_E m_strName;           ///< only kept
    CThreadLocalObject_E m_thread; ///< only kept
    UINT m_nReserved1 = 0;         ///< not used
    UINT m_nReserved2 = 0;         ///< not used
};

/// What the library keeps about the GUI thread.
class VXMFC_EXPORT AFX_MODULE_THREAD_STATE_E : public CNoTrackObject_E
{
public:
    AFX_MODULE_THREAD_STATE_E() = default;
    /// Destroys the handle maps with their temporary objects, the tool-tip control and its record.
    ~AFX_MODULE_THREAD_STATE_E() override;
    AFX_MODULE_THREAD_STATE_E(const AFX_MODULE_THREAD_STATE_E&) = delete;
    AFX_MODULE_THREAD_STATE_E& operator=(const AFX_MODULE_THREAD_STATE_E&) = delete;

    // The handle maps are owned, null until first needed, and made by the functions named here.
    CHandleMap_E* m_pmapHWND = nullptr;       ///< afxMapHWND_E()
    CHandleMap_E* m_pmapHMENU = nullptr;      ///< afxMapHMENU_E()
    CHandleMap_E* m_pmapHDC = nullptr;        ///< afxMapHDC_E()
    CHandleMap_E* m_pmapHGDIOBJ = nullptr;    ///< afxMapHGDIOBJ_E()
    CHandleMap_E* m_pmapHIMAGELIST = nullptr; ///< afxMapHIMAGELIST_E()

    VxToolTip* m_pToolTip = nullptr;     ///< the shared tool-tip control, owned
    CWnd_E* m_pLastHit = nullptr;        ///< window last asked for a tool tip, not owned
    int m_nLastHit = -1;                 ///< what was hit in it
    tagTOOLINFOW* m_pLastInfo = nullptr; ///< owned, made with LocalAlloc_E()
    int m_nLastStatus = -1;              ///< not used by the library
};

/// @{
/// One of the two objects that the functions below give.
extern VXMFC_EXPORT AFX_MODULE_STATE_E afxModuleState;
extern VXMFC_EXPORT AFX_MODULE_THREAD_STATE_E gdiThreadState;
/// @}

/// The module state.
VXMFC_EXPORT AFX_MODULE_STATE_E* AfxGetModuleState_E();
/// The module thread state, the same in every thread.
VXMFC_EXPORT AFX_MODULE_THREAD_STATE_E* AfxGetModuleThreadState_E();
/// Always null.
VXMFC_EXPORT AFX_MODULE_STATE_E* AfxGetStaticModuleState_E();
/// Always null.
VXMFC_EXPORT HINSTANCE AfxGetResourceHandle_E();
/// Does nothing.
VXMFC_EXPORT void AfxSetResourceHandle_E(HINSTANCE hInstResource);
