#include <VxMFCEmu/core/handlemap.h>

#include <cstring>
#include <utility>

namespace {

constexpr UINT kObjectsPerBlock = 64;
constexpr INT_PTR kPermanentBlock = 10;
constexpr INT_PTR kTemporaryBlock = 4;
constexpr UINT kTemporaryBuckets = 7;

UINT elementSize(const CRuntimeClass_E* pClass, std::size_t nObjectSize)
{
    return static_cast<UINT>(qMax(static_cast<std::size_t>(pClass->GetObjectSize()), nObjectSize));
}

CObject_E* lookup(const CMapPtrToPtr_E& map, void* h)
{
    void* pObject = nullptr;
    return map.Lookup(h, pObject) ? static_cast<CObject_E*>(pObject) : nullptr;
}

} // namespace

CHandleMap_E::CHandleMap_E(CRuntimeClass_E* pClass, ObjectFn pfnConstruct, ObjectFn pfnDestruct,
                           std::size_t nOffset, int nHandles, std::size_t nObjectSize)
    : m_alloc(elementSize(pClass, nObjectSize), kObjectsPerBlock),
      m_pfnConstructObject(pfnConstruct),
      m_pfnDestructObject(pfnDestruct),
      m_permanentMap(kPermanentBlock),
      m_temporaryMap(kTemporaryBlock),
      m_pClass(pClass),
      m_nOffset(nOffset),
      m_nHandles(qBound(1, nHandles, 2))
{
    m_temporaryMap.InitHashTable(kTemporaryBuckets, FALSE);
}

CHandleMap_E::~CHandleMap_E() { DeleteTemp(); }

CObject_E* CHandleMap_E::FromHandle(void* h)
{
    if (!h)
        return nullptr;
    if (CObject_E* const pPermanent = LookupPermanent(h))
        return pPermanent;
    CObject_E* pObject = LookupTemporary(h);
    if (!pObject) {
        void*& entry = m_temporaryMap[h];
        try {
            pObject = static_cast<CObject_E*>(m_alloc.Alloc());
            m_pfnConstructObject(pObject);
        } catch (...) {
            m_alloc.Free(pObject);
            m_temporaryMap.RemoveKey(h);
            throw;
        }
        entry = pObject;
    }
    WriteHandle(pObject, h);
    return pObject;
}

void CHandleMap_E::SetPermanent(void* h, CObject_E* pObject) { m_permanentMap.SetAt(h, pObject); }

void CHandleMap_E::RemoveHandle(void* h) { m_permanentMap.RemoveKey(h); }

CObject_E* CHandleMap_E::LookupPermanent(void* h) const { return lookup(m_permanentMap, h); }

CObject_E* CHandleMap_E::LookupTemporary(void* h) const { return lookup(m_temporaryMap, h); }

void CHandleMap_E::SetAside(void* h)
{
    if (CObject_E* const pObject = LookupTemporary(h)) {
        m_setAside.push_back(pObject);
        m_temporaryMap.RemoveKey(h);
    }
}

void CHandleMap_E::DeleteTemp()
{
    // A destructor may ask for another temporary object, or set one aside: no position in the map
    // outlives it.
    while (!m_temporaryMap.IsEmpty() || !m_setAside.empty()) {
        for (CObject_E* const pObject : std::exchange(m_setAside, {}))
            m_pfnDestructObject(pObject);
        if (POSITION position = m_temporaryMap.GetStartPosition()) {
            void* h = nullptr;
            void* pEntry = nullptr;
            m_temporaryMap.GetNextAssoc(position, h, pEntry);
            m_temporaryMap.RemoveKey(h);
            auto* const pObject = static_cast<CObject_E*>(pEntry);
            // Bound to its own handle, it must be forgotten there too.
            if (CObject_E::GetOwner(pObject->GetImpQObject()) == pObject)
                pObject->Detach();
            ClearHandle(pObject, h);
            m_pfnDestructObject(pObject);
        }
    }
    m_temporaryMap.RemoveAll();
    m_alloc.FreeAll();
}

void CHandleMap_E::WriteHandle(CObject_E* pObject, void* h) const
{
    for (int i = 0; i < m_nHandles; ++i)
        std::memcpy(HandleField(pObject, i), &h, sizeof(h));
}

void CHandleMap_E::ClearHandle(CObject_E* pObject, const void* h) const
{
    void* const pNone = nullptr;
    for (int i = 0; i < m_nHandles; ++i) {
        // An object that has been attached to another handle meanwhile keeps and frees that one.
        if (std::memcmp(HandleField(pObject, i), &h, sizeof(h)) == 0)
            std::memcpy(HandleField(pObject, i), &pNone, sizeof(pNone));
    }
}

char* CHandleMap_E::HandleField(CObject_E* pObject, int nIndex) const
{
    return reinterpret_cast<char*>(pObject) + m_nOffset +
           static_cast<std::size_t>(nIndex) * sizeof(void*);
}
