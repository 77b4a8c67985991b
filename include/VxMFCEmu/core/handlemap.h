/// @file handlemap.h
/// From handles to the objects that wrap them.
///
/// A *permanent* entry names an object that somebody else owns. A *temporary* object is made by the
/// map for a handle that nobody has wrapped, in memory of the map, and lives until DeleteTemp().
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/core/fixedalloc.h>
#include <VxMFCEmu/core/mapptrtoptr.h>
#include <VxMFCEmu/core/memberoffset.h>
#include <VxMFCEmu/core/object.h>

#include <new>
#include <vector>

/// Makes and destroys an object of class @p T in memory that a map provides.
template <typename T>
struct ConstructDestruct_E
{
    /// Runs the default constructor in place; null is ignored.
    static void Construct(CObject_E* pObject)
    {
        if (pObject)
            new (static_cast<void*>(pObject)) T;
    }
    /// Runs the destructor without freeing the memory; null is ignored.
    static void Destruct(CObject_E* pObject)
    {
        if (pObject)
            static_cast<T*>(pObject)->~T();
    }
};

/// The map of one kind of handle.
class VXMFC_EXPORT CHandleMap_E
{
public:
    /// A step of the life of an object in memory of the map.
    using ObjectFn = void (*)(CObject_E*);

    /// Temporary objects are made by @p pfnConstruct and destroyed by @p pfnDestruct; their
    /// @p nHandles handle fields (1 or 2, side by side) begin @p nOffset bytes into the object.
    /// They take as much memory as @p pClass says, or @p nObjectSize bytes when that is more: for a
    /// class without a record of its own.
    CHandleMap_E(CRuntimeClass_E* pClass, ObjectFn pfnConstruct, ObjectFn pfnDestruct,
                 std::size_t nOffset, int nHandles = 1, std::size_t nObjectSize = 0);
    /// Destroys the temporary objects.
    ~CHandleMap_E();
    CHandleMap_E(const CHandleMap_E&) = delete;
    CHandleMap_E& operator=(const CHandleMap_E&) = delete;

    /// The object of @p h: the permanent one, or else a temporary one, owned by the map, with its
    /// handle fields set to @p h. Null for null; throws the memory exception when none can be made.
    CObject_E* FromHandle(void* h);
    /// Names @p pObject, owned by the caller, as the permanent object of @p h.
    void SetPermanent(void* h, CObject_E* pObject);
    /// Forgets the permanent object of @p h; a temporary one stays.
    void RemoveHandle(void* h);
    /// The permanent object of @p h; null when there is none.
    CObject_E* LookupPermanent(void* h) const;
    /// The temporary object of @p h; null when there is none.
    CObject_E* LookupTemporary(void* h) const;
    /// Takes the temporary object of @p h, which lets that handle go, out of the map: it lives
    /// until DeleteTemp(), with whatever handle it gets meanwhile. Nothing when there is none.
    void SetAside(void* h);
    /// Clears the handles of the temporary objects, destroys them and frees their memory. Not to be
    /// called from the destructor of one of them.
    void DeleteTemp();

private:
    void WriteHandle(CObject_E* pObject, void* h) const;
    void ClearHandle(CObject_E* pObject, const void* h) const;
    char* HandleField(CObject_E* pObject, int nIndex) const;

    CFixedAllocNoSync_E m_alloc;
    ObjectFn m_pfnConstructObject;
    ObjectFn m_pfnDestructObject;
    CMapPtrToPtr_E m_permanentMap;
    CMapPtrToPtr_E m_temporaryMap;
    std::vector<CObject_E*> m_setAside; // temporary objects that have let their handle go
    [[maybe_unused]] CRuntimeClass_E* m_pClass;
    std::size_t m_nOffset;
    int m_nHandles;
};

namespace vx::detail {

/// A new map, owned by the caller, of objects of class @p T that keep their handle in @p pHandle.
template <typename T, typename Class, typename Member>
CHandleMap_E* makeHandleMap(CRuntimeClass_E* pClass, Member Class::*pHandle, int nHandles = 1)
{
    Member T::*const pField = pHandle;
    return new CHandleMap_E(pClass, &ConstructDestruct_E<T>::Construct,
                            &ConstructDestruct_E<T>::Destruct, offsetOfMember(pField), nHandles,
                            sizeof(T));
}

} // namespace vx::detail
