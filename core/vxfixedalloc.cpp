#include <VxMFCEmu/core/fixedalloc.h>

#include <VxMFCEmu/core/plex.h>

#include <algorithm>
#include <cstring>
#include <utility>

CFixedAllocNoSync_E::CFixedAllocNoSync_E(UINT nAllocSize, UINT nBlockSize)
    : m_nAllocSize(std::max(nAllocSize, static_cast<UINT>(sizeof(void*)))),
      m_nBlockSize(nBlockSize < 2 ? DefaultBlockSize : nBlockSize)
{
}

void* CFixedAllocNoSync_E::Alloc()
{
    if (!m_pNodeFree) {
        auto* const pFirst =
            static_cast<char*>(CPlex_E::Create(m_pBlocks, m_nBlockSize, m_nAllocSize)->data());
        for (std::size_t i = m_nBlockSize; i-- > 0;)
            Free(pFirst + i * m_nAllocSize);
    }
    void* const pNode = m_pNodeFree;
    std::memcpy(&m_pNodeFree, pNode, sizeof(m_pNodeFree));
    return pNode;
}

void CFixedAllocNoSync_E::Free(void* p)
{
    if (!p)
        return;
    // Copied, not assigned: elements of an odd size are not aligned for a pointer.
    std::memcpy(p, &m_pNodeFree, sizeof(m_pNodeFree));
    m_pNodeFree = p;
}

void CFixedAllocNoSync_E::FreeAll()
{
    m_pNodeFree = nullptr;
    if (CPlex_E* const pBlocks = std::exchange(m_pBlocks, nullptr))
        pBlocks->FreeDataChain();
}
