// Private: how many objects hold a GDI handle, and how its value is freed.
#pragma once

#include <VxMFCEmu/gdi/gdiobject.h>

namespace vx::detail {

using FreeHandleFn = void (*)(HGDIOBJ);

/// Changes whenever an object gets or loses a handle or temporary objects go.
extern unsigned long gdiGeneration;

/// Notes one more object that holds @p h. A type of value is learnt from the first holder that
/// knows it and remembered until the value is freed, also while nobody holds it.
void holdHandle(HGDIOBJ h, CGdiObject_E* pHolder, FreeHandleFn pfnFree);
/// Notes that it does no longer. Returns the last of the other holders; null when there is none.
CGdiObject_E* releaseHandle(HGDIOBJ h, CGdiObject_E* pHolder);
/// Whether more than one object holds @p h.
bool isSharedHandle(HGDIOBJ h);
/// Frees the value of @p h unless an object holds it: as remembered, else by @p pfnFree if that is
/// not null.
void freeUnheldHandle(HGDIOBJ h, FreeHandleFn pfnFree);

/// Makes @p h one whose value belongs to the library and that no object frees.
void lendHandle(HGDIOBJ h);
/// Ends that. An object that took hold of it becomes the owner and false is returned.
bool reclaimHandle(HGDIOBJ h, FreeHandleFn pfnFree);

/// Destroys the copies that selectedobject.h speaks of.
void deleteHeldValues();

template <typename Value>
void freeValue(HGDIOBJ h)
{
    delete static_cast<Value*>(h);
}

/// The handle of @p pObject; null for null.
inline HGDIOBJ handleOf(const CGdiObject_E* pObject)
{
    return pObject ? pObject->m_hObject : nullptr;
}

/// The value that the handle of @p pObject is; null for null and for an empty object.
template <typename Value>
Value* valueOf(const CGdiObject_E* pObject)
{
    return static_cast<Value*>(handleOf(pObject));
}

} // namespace vx::detail
