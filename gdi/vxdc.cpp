#include <VxMFCEmu/gdi/dc.h>

#include "gdi/vxhandleobject_p.h"

#include <VxMFCEmu/core/modulestate.h>

CDC_E::~CDC_E() { vx::detail::detachHandle(this, &CDC_E::m_hDC, &afxMapHDC_E); }

void CDC_E::SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }

void CDC_E::ReleaseAttribDC() { m_hAttribDC = nullptr; }

HDC CDC_E::GetSafeHdc() const { return vx::detail::safeHandle(this, &CDC_E::m_hDC); }

CDC_E* CDC_E::FromHandle(HDC hDC)
{
    return static_cast<CDC_E*>(afxMapHDC_E(TRUE)->FromHandle(hDC));
}

BOOL CDC_E::Attach(HDC hDC)
{
    if (!vx::detail::attachHandle(this, &CDC_E::m_hDC, hDC, &afxMapHDC_E))
        return FALSE;
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC_E::Detach()
{
    const HDC hDC = vx::detail::detachHandle(this, &CDC_E::m_hDC, &afxMapHDC_E);
    ReleaseAttribDC();
    return hDC;
}

void CDC_E::DeleteTempMap() { vx::detail::deleteTemp(afxMapHDC_E(FALSE)); }

CHandleMap_E* afxMapHDC_E(BOOL bCreate)
{
    // The record is that of CObject_E, a smaller class: the blocks are sized by CDC_E.
    static_assert(sizeof(CDC_E) > sizeof(CObject_E));
    CHandleMap_E*& pMap = AfxGetModuleThreadState_E()->m_pmapHDC;
    if (!pMap && bCreate)
        pMap = vx::detail::makeHandleMap<CDC_E>(RUNTIME_CLASS_E(CObject_E), &CDC_E::m_hDC, 2);
    return pMap;
}
