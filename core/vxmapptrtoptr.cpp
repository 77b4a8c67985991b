#include <VxMFCEmu/core/mapptrtoptr.h>

#include <VxMFCEmu/core/exceptions.h>

#include <cstdlib>

IMPLEMENT_DYNAMIC_E(CMapPtrToPtr_E, CObject_E, QObject)

struct CMapPtrToPtr_E::Assoc
{
    Assoc* pNext;
    void* key;
    void* value;
};

namespace {

UINT blockSizeOf(INT_PTR nBlockSize)
{
    return static_cast<UINT>(qBound<INT_PTR>(0, nBlockSize, 0xFFFF));
}

} // namespace

CMapPtrToPtr_E::CMapPtrToPtr_E(INT_PTR nBlockSize) : m_alloc(sizeof(Assoc), blockSizeOf(nBlockSize))
{
}

CMapPtrToPtr_E::~CMapPtrToPtr_E() { RemoveAll(); }

BOOL CMapPtrToPtr_E::Lookup(void* key, void*& rValue) const
{
    const Assoc* const pAssoc = Find(key);
    if (pAssoc)
        rValue = pAssoc->value;
    return pAssoc != nullptr;
}

void*& CMapPtrToPtr_E::operator[](void* key)
{
    if (Assoc* const pFound = Find(key))
        return pFound->value;
    if (!m_pHashTable)
        MakeTable(m_nHashTableSize);
    else if (m_nCount >= m_nHashTableSize && m_nHashTableSize < (1U << 30))
        MakeTable(2 * m_nHashTableSize + 1);
    Assoc*& pHead = m_pHashTable[BucketOf(key)];
    pHead = new (m_alloc.Alloc()) Assoc{pHead, key, nullptr};
    ++m_nCount;
    return pHead->value;
}

BOOL CMapPtrToPtr_E::RemoveKey(void* key)
{
    if (!m_pHashTable)
        return FALSE;
    for (Assoc** ppLink = &m_pHashTable[BucketOf(key)]; *ppLink; ppLink = &(*ppLink)->pNext) {
        if (Assoc* const pAssoc = *ppLink; pAssoc->key == key) {
            *ppLink = pAssoc->pNext;
            m_alloc.Free(pAssoc);
            --m_nCount;
            return TRUE;
        }
    }
    return FALSE;
}

void CMapPtrToPtr_E::RemoveAll()
{
    std::free(std::exchange(m_pHashTable, nullptr));
    m_nCount = 0;
    m_alloc.FreeAll();
}

POSITION CMapPtrToPtr_E::GetStartPosition() const
{
    return reinterpret_cast<POSITION>(FirstFrom(0));
}

void CMapPtrToPtr_E::GetNextAssoc(POSITION& rNextPosition, void*& rKey, void*& rValue) const
{
    const auto* const pAssoc = reinterpret_cast<const Assoc*>(rNextPosition);
    if (!pAssoc)
        return;
    rKey = pAssoc->key;
    rValue = pAssoc->value;
    rNextPosition = reinterpret_cast<POSITION>(
        pAssoc->pNext ? pAssoc->pNext : FirstFrom(BucketOf(pAssoc->key) + 1));
}

void CMapPtrToPtr_E::InitHashTable(UINT hashSize, BOOL bAllocNow)
{
    hashSize = qMax(hashSize, 1U);
    if (bAllocNow || m_nCount > 0) {
        MakeTable(hashSize);
        return;
    }
    std::free(std::exchange(m_pHashTable, nullptr));
    m_nHashTableSize = hashSize;
}

UINT CMapPtrToPtr_E::BucketOf(const void* key) const
{
    // Blocks of the heap lie 16 bytes apart: the low bits tell nothing.
    return static_cast<UINT>((reinterpret_cast<std::uintptr_t>(key) >> 4) % m_nHashTableSize);
}

CMapPtrToPtr_E::Assoc* CMapPtrToPtr_E::Find(const void* key) const
{
    if (!m_pHashTable)
        return nullptr;
    Assoc* pAssoc = m_pHashTable[BucketOf(key)];
    while (pAssoc && pAssoc->key != key)
        pAssoc = pAssoc->pNext;
    return pAssoc;
}

CMapPtrToPtr_E::Assoc* CMapPtrToPtr_E::FirstFrom(UINT nBucket) const
{
    if (m_nCount == 0)
        return nullptr;
    for (; nBucket < m_nHashTableSize; ++nBucket) {
        if (m_pHashTable[nBucket])
            return m_pHashTable[nBucket];
    }
    return nullptr;
}

void CMapPtrToPtr_E::MakeTable(UINT nSize)
{
    // NOLINTNEXTLINE(bugprone-sizeof-expression): the table holds pointers.
    auto** const pTable = static_cast<Assoc**>(std::calloc(nSize, sizeof(Assoc*)));
    if (!pTable)
        AfxThrowMemoryException_E();
    Assoc** const pOld = std::exchange(m_pHashTable, pTable);
    const UINT nOldSize = std::exchange(m_nHashTableSize, nSize);
    for (UINT nBucket = 0; pOld && nBucket < nOldSize; ++nBucket) {
        for (Assoc* pAssoc = pOld[nBucket]; pAssoc;) {
            Assoc* const pNext = pAssoc->pNext;
            Assoc*& pHead = m_pHashTable[BucketOf(pAssoc->key)];
            pAssoc->pNext = std::exchange(pHead, pAssoc);
            pAssoc = pNext;
        }
    }
    std::free(pOld);
}

CTypeLibCacheMap_E::~CTypeLibCacheMap_E() = default;
