// Not part of the public interface. What the objects that hold a GDI handle have in common.
#pragma once

#include "wnd/vxidle_p.h"

#include <VxMFCEmu/core/handlemap.h>

namespace vx::detail {

/// A handle of an object, null for a null object pointer. Windows sources ask null objects; the
/// pointer goes through a volatile so that the compiler, which takes `this` for non-null, keeps the
/// test.
template <typename T>
void* safeHandle(const T* pObject, void* T::*pHandle)
{
    const T* const volatile pOpaque = pObject;
    const T* const pTested = pOpaque;
    return pTested ? pTested->*pHandle : nullptr;
}

/// Takes the handle of @p pObject out of the map, clears and returns it.
template <typename T>
void* detachHandle(T* pObject, void* T::*pHandle, CHandleMap_E* (*pfnMap)(BOOL))
{
    void* const h = std::exchange(pObject->*pHandle, nullptr);
    CHandleMap_E* const pMap = h ? pfnMap(FALSE) : nullptr;
    if (pMap && pMap->LookupTemporary(h) == pObject)
        pMap->SetAside(h); // it may become the owner of another handle
    // Another object may have been attached to the same handle meanwhile.
    if (pMap && pMap->LookupPermanent(h) == pObject)
        pMap->RemoveHandle(h);
    return h;
}

/// Binds @p h to @p pObject: the handle it had before is let go.
template <typename T>
bool attachHandle(T* pObject, void* T::*pHandle, void* h, CHandleMap_E* (*pfnMap)(BOOL))
{
    if (!h)
        return false;
    detachHandle(pObject, pHandle, pfnMap);
    pfnMap(TRUE)->SetPermanent(h, pObject);
    pObject->*pHandle = h;
    return true;
}

/// The object of @p h; a temporary one goes with @p pfnDeleteTemp at the next idle time.
inline CObject_E* objectOf(void* h, CHandleMap_E* pMap, void (*pfnDeleteTemp)())
{
    if (CObject_E* const pPermanent = pMap->LookupPermanent(h))
        return pPermanent;
    const bool made = h && !pMap->LookupTemporary(h);
    CObject_E* const pObject = pMap->FromHandle(h);
    if (made)
        cleanUpAtIdle(pfnDeleteTemp);
    return pObject;
}

inline void deleteTemp(CHandleMap_E* pMap)
{
    if (pMap)
        pMap->DeleteTemp();
}

} // namespace vx::detail
