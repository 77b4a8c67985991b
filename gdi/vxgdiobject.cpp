#include <VxMFCEmu/gdi/gdiobject.h>

#include "gdi/vxhandleobject_p.h"

#include <VxMFCEmu/core/modulestate.h>

IMPLEMENT_DYNAMIC_E(CGdiObject_E, CObject_E, QObject)

CGdiObject_E::~CGdiObject_E() { Detach(); }

HGDIOBJ CGdiObject_E::GetSafeHandle() const
{
    return vx::detail::safeHandle(this, &CGdiObject_E::m_hObject);
}

CGdiObject_E* CGdiObject_E::FromHandle(HGDIOBJ h)
{
    return static_cast<CGdiObject_E*>(afxMapHGDIOBJ_E(TRUE)->FromHandle(h));
}

BOOL CGdiObject_E::Attach(HGDIOBJ h)
{
    return vx::detail::attachHandle(this, &CGdiObject_E::m_hObject, h, &afxMapHGDIOBJ_E);
}

HGDIOBJ CGdiObject_E::Detach()
{
    return vx::detail::detachHandle(this, &CGdiObject_E::m_hObject, &afxMapHGDIOBJ_E);
}

void CGdiObject_E::DeleteTempMap() { vx::detail::deleteTemp(afxMapHGDIOBJ_E(FALSE)); }

CHandleMap_E* afxMapHGDIOBJ_E(BOOL bCreate)
{
    CHandleMap_E*& pMap = AfxGetModuleThreadState_E()->m_pmapHGDIOBJ;
    if (!pMap && bCreate)
        pMap = vx::detail::makeHandleMap<CGdiObject_E>(RUNTIME_CLASS_E(CGdiObject_E),
                                                       &CGdiObject_E::m_hObject);
    return pMap;
}
