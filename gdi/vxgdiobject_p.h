// Private: temporary GDI objects of the class that is asked for.
#pragma once

#include "gdi/vxgdihandles_p.h"

#include <VxMFCEmu/core/handlemap.h>

#include <new>

namespace vx::detail {

/// The most memory that a temporary GDI object takes.
inline constexpr std::size_t kMaxGdiObjectSize = 256;

/// The object of @p h as one of class @p T; null for null and for a handle attached to an object of
/// another class. A temporary object of another class is made anew in its place.
template <typename T>
T* gdiObjectFromHandle(HGDIOBJ h)
{
    static_assert(sizeof(T) <= kMaxGdiObjectSize);
    CGdiObject_E* const pObject = CGdiObject_E::FromHandle(h);
    if (T* const pTyped = dynamic_cast<T*>(pObject))
        return pTyped;
    if (!pObject || afxMapHGDIOBJ_E(TRUE)->LookupPermanent(h))
        return nullptr;
    pObject->m_hObject = nullptr;
    pObject->~CGdiObject_E();
    T* const pTyped = new (static_cast<void*>(pObject)) T;
    pTyped->m_hObject = h;
    ++gdiGeneration;
    return pTyped;
}

} // namespace vx::detail
