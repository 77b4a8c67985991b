#include <VxMFCEmu/core/plex.h>

#include <VxMFCEmu/core/exceptions.h>

#include <cstdlib>

CPlex_E* CPlex_E::Create(CPlex_E*& pHead, std::size_t nMax, std::size_t cbElement)
{
    std::size_t size = 0;
    if (__builtin_mul_overflow(nMax, cbElement, &size) ||
        __builtin_add_overflow(size, sizeof(CPlex_E), &size))
        AfxThrowMemoryException_E();
    auto* const pBlock = static_cast<CPlex_E*>(std::malloc(size));
    if (!pBlock)
        AfxThrowMemoryException_E();
    pBlock->pNext = pHead;
    pHead = pBlock;
    return pBlock;
}

void CPlex_E::FreeDataChain()
{
    for (CPlex_E* pBlock = this; pBlock;) {
        CPlex_E* const pNextBlock = pBlock->pNext;
        std::free(pBlock);
        pBlock = pNextBlock;
    }
}
