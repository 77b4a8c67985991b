#include <VxMFCEmu/coll/array.h>
#include <VxMFCEmu/coll/list.h>
#include <VxMFCEmu/coll/map.h>

#include <cstdlib>
#include <limits>

namespace vx::detail {

namespace {

constexpr INT_PTR kMostCount = std::numeric_limits<INT_PTR>::max();

/// The FNV-1a hash, of whole characters.
template <class Char>
UINT hashOf(const Char* psz) noexcept
{
    UINT nHash = 2166136261U;
    for (; psz && *psz; ++psz)
        nHash = (nHash ^ static_cast<UINT>(*psz)) * 16777619U;
    return nHash;
}

} // namespace

UINT hashText(const wchar_t* psz) noexcept { return hashOf(psz); }
UINT hashText(const char* psz) noexcept { return hashOf(psz); }

void serializeUnits(CArchive_E& ar, wchar_t* pElements, INT_PTR nCount)
{
    for (wchar_t* const pEnd = pElements + nCount; pElements != pEnd; ++pElements) {
        auto unit = static_cast<WORD>(static_cast<UINT>(*pElements));
        if (ar.IsLoading()) {
            ar >> unit;
            *pElements = unit;
            continue;
        }
        if (*pElements != static_cast<wchar_t>(unit))
            AfxThrowNotSupportedException_E();
        ar << unit;
    }
}

void serializeBytes(CArchive_E& ar, void* pElements, std::size_t nBytes)
{
    constexpr std::size_t nMost = 1U << 30;
    for (auto* pBytes = static_cast<BYTE*>(pElements); nBytes != 0;) {
        const auto nNow = static_cast<UINT>(std::min(nBytes, nMost));
        if (ar.IsStoring())
            ar.Write(pBytes, nNow);
        else
            ar.EnsureRead(pBytes, nNow);
        pBytes += nNow;
        nBytes -= nNow;
    }
}

void* resizeBlock(void* p, INT_PTR nCount, std::size_t cbElement)
{
    std::size_t size = 0;
    if (__builtin_mul_overflow(static_cast<std::size_t>(nCount), cbElement, &size) ||
        size > static_cast<std::size_t>(kMostCount))
        AfxThrowMemoryException_E();
    void* const pNew = std::realloc(p, size);
    if (!pNew)
        AfxThrowMemoryException_E();
    return pNew;
}

INT_PTR grownCapacity(INT_PTR nNeeded, INT_PTR nPresent, INT_PTR nGrowBy) noexcept
{
    constexpr INT_PTR nLeast = 4;
    INT_PTR nGrown = 0;
    if (__builtin_add_overflow(nPresent, std::max({nPresent, nGrowBy, nLeast}), &nGrown))
        return kMostCount;
    // The first allocation is exact, for arrays of a size that is set once.
    return nPresent == 0 && nGrowBy == 0 && nNeeded > 1 ? nNeeded : std::max(nNeeded, nGrown);
}

INT_PTR addCounts(INT_PTR n1, INT_PTR n2)
{
    INT_PTR nSum = 0;
    if (__builtin_add_overflow(n1, n2, &nSum))
        AfxThrowMemoryException_E();
    return nSum;
}

ListLink* LinkChain::At(INT_PTR nIndex) const
{
    if (nIndex < 0 || nIndex >= m_nCount)
        return nullptr;
    ListLink* pLink = m_pHead;
    if (nIndex <= m_nCount / 2) {
        for (; nIndex > 0; --nIndex)
            pLink = pLink->pNext;
    } else {
        pLink = m_pTail;
        for (INT_PTR nBack = m_nCount - 1; nBack > nIndex; --nBack)
            pLink = pLink->pPrev;
    }
    return pLink;
}

void HashTable::SetSize(UINT nSize, bool bAllocNow)
{
    nSize = std::max(nSize, 1U);
    if (bAllocNow || m_nCount != 0) {
        Rehash(nSize);
        return;
    }
    Clear();
    m_nSize = nSize;
}

void HashTable::Remove(HashLink* pLink)
{
    HashLink** ppLink = &m_ppBuckets[IndexOf(pLink->nHash)];
    while (*ppLink != pLink)
        ppLink = &(*ppLink)->pNext;
    *ppLink = pLink->pNext;
    --m_nCount;
}

void HashTable::Clear()
{
    std::free(std::exchange(m_ppBuckets, nullptr));
    m_nCount = 0;
}

HashLink* HashTable::FirstFrom(UINT nBucket) const
{
    for (; nBucket < m_nSize; ++nBucket) {
        if (m_ppBuckets[nBucket])
            return m_ppBuckets[nBucket];
    }
    return nullptr;
}

void HashTable::Grow()
{
    if (!m_ppBuckets)
        Rehash(m_nSize);
    else if (m_nSize < (1U << 30))
        Rehash(2 * m_nSize + 1);
}

void HashTable::Rehash(UINT nSize)
{
    // NOLINTNEXTLINE(bugprone-sizeof-expression): the table holds pointers.
    auto** const ppNew = static_cast<HashLink**>(std::calloc(nSize, sizeof(HashLink*)));
    if (!ppNew)
        AfxThrowMemoryException_E();
    HashLink** const ppOld = std::exchange(m_ppBuckets, ppNew);
    const UINT nOldSize = std::exchange(m_nSize, nSize);
    m_nCount = 0;
    for (UINT nBucket = 0; ppOld && nBucket < nOldSize; ++nBucket) {
        for (HashLink* pLink = ppOld[nBucket]; pLink;)
            Insert(std::exchange(pLink, pLink->pNext));
    }
    std::free(ppOld);
}

} // namespace vx::detail
