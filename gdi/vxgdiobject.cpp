#include "gdi/vxgdiobject_p.h"

#include "gdi/vxhandleobject_p.h"

#include <VxMFCEmu/core/modulestate.h>

IMPLEMENT_DYNAMIC_E(CGdiObject_E, CObject_E, QObject)

CGdiObject_E::~CGdiObject_E()
{
    // The class is forgotten by now, but not how a handle that it was attached to is freed.
    vx::detail::freeUnheldHandle(Detach(), nullptr);
}

HGDIOBJ CGdiObject_E::GetSafeHandle() const
{
    return vx::detail::safeHandle(this, &CGdiObject_E::m_hObject);
}

CGdiObject_E* CGdiObject_E::FromHandle(HGDIOBJ h)
{
    return static_cast<CGdiObject_E*>(
        vx::detail::objectOf(h, afxMapHGDIOBJ_E(TRUE), &CGdiObject_E::DeleteTempMap));
}

BOOL CGdiObject_E::Attach(HGDIOBJ h)
{
    if (!h)
        return FALSE;
    if (h == m_hObject && afxMapHGDIOBJ_E(TRUE)->LookupPermanent(h) == this)
        return TRUE;
    Detach();
    vx::detail::attachHandle(this, &CGdiObject_E::m_hObject, h, &afxMapHGDIOBJ_E);
    vx::detail::holdHandle(h, this, HandleDeleter());
    ++vx::detail::gdiGeneration;
    return TRUE;
}

HGDIOBJ CGdiObject_E::Detach()
{
    if (!m_hObject)
        return nullptr;
    // A temporary object does not count among the holders.
    CHandleMap_E* const pMap = afxMapHGDIOBJ_E(FALSE);
    const bool holds = !(pMap && pMap->LookupTemporary(m_hObject) == this);
    const HGDIOBJ h = vx::detail::detachHandle(this, &CGdiObject_E::m_hObject, &afxMapHGDIOBJ_E);
    CGdiObject_E* const pHeir = holds ? vx::detail::releaseHandle(h, this) : nullptr;
    if (pHeir && !pMap->LookupPermanent(h))
        pMap->SetPermanent(h, pHeir);
    ++vx::detail::gdiGeneration;
    return h;
}

BOOL CGdiObject_E::DeleteObject()
{
    if (!GetSafeHandle())
        return FALSE;
    const FreeHandleFn pfnFree = HandleDeleter();
    vx::detail::freeUnheldHandle(Detach(), pfnFree);
    return TRUE;
}

int CGdiObject_E::GetObject(int, LPVOID) const { return 0; }

CGdiObject_E::FreeHandleFn CGdiObject_E::HandleDeleter() const { return nullptr; }

void CGdiObject_E::DeleteTempMap()
{
    vx::detail::deleteTemp(afxMapHGDIOBJ_E(FALSE));
    vx::detail::deleteHeldValues();
    ++vx::detail::gdiGeneration;
}

CHandleMap_E* afxMapHGDIOBJ_E(BOOL bCreate)
{
    CHandleMap_E*& pMap = AfxGetModuleThreadState_E()->m_pmapHGDIOBJ;
    if (!pMap && bCreate) {
        using Life = ConstructDestruct_E<CGdiObject_E>;
        pMap = new CHandleMap_E(RUNTIME_CLASS_E(CGdiObject_E), &Life::Construct, &Life::Destruct,
                                vx::detail::offsetOfMember(&CGdiObject_E::m_hObject), 1,
                                vx::detail::kMaxGdiObjectSize);
    }
    return pMap;
}
