#include <VxMFCEmu/gdi/imagelist.h>

#include "gdi/vxhandleobject_p.h"

#include <VxMFCEmu/core/modulestate.h>

IMPLEMENT_DYNAMIC_E(CImageList_E, CObject_E, QObject)

CImageList_E::~CImageList_E() { Detach(); }

HIMAGELIST CImageList_E::GetSafeHandle() const
{
    return vx::detail::safeHandle(this, &CImageList_E::m_hImageList);
}

CImageList_E* CImageList_E::FromHandle(HIMAGELIST h)
{
    return static_cast<CImageList_E*>(
        vx::detail::objectOf(h, afxMapHIMAGELIST_E(TRUE), &CImageList_E::DeleteTempMap));
}

CImageList_E* CImageList_E::FromHandlePermanent(HIMAGELIST h)
{
    return static_cast<CImageList_E*>(afxMapHIMAGELIST_E(TRUE)->LookupPermanent(h));
}

BOOL CImageList_E::Attach(HIMAGELIST h)
{
    return vx::detail::attachHandle(this, &CImageList_E::m_hImageList, h, &afxMapHIMAGELIST_E);
}

HIMAGELIST CImageList_E::Detach()
{
    return vx::detail::detachHandle(this, &CImageList_E::m_hImageList, &afxMapHIMAGELIST_E);
}

void CImageList_E::DeleteTempMap() { vx::detail::deleteTemp(afxMapHIMAGELIST_E(FALSE)); }

CHandleMap_E* afxMapHIMAGELIST_E(BOOL bCreate)
{
    CHandleMap_E*& pMap = AfxGetModuleThreadState_E()->m_pmapHIMAGELIST;
    if (!pMap && bCreate)
        pMap = vx::detail::makeHandleMap<CImageList_E>(RUNTIME_CLASS_E(CImageList_E),
                                                       &CImageList_E::m_hImageList);
    return pMap;
}
