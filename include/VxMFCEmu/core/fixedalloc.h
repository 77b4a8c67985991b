/// @file fixedalloc.h
/// An allocator of elements of one size, without locking.
///
/// Threads: not guarded; one thread at a time.
#pragma once

#include <VxMFCEmu/types.h>

struct CPlex_E;

/// Hands out elements of one size from blocks that it frees all at once.
class VXMFC_EXPORT CFixedAllocNoSync_E
{
public:
    /// Elements of @p nAllocSize bytes, at least 8, in blocks of @p nBlockSize; below 2 means 64.
    explicit CFixedAllocNoSync_E(UINT nAllocSize, UINT nBlockSize = DefaultBlockSize);
    /// Frees every block, with the elements still in use.
    ~CFixedAllocNoSync_E() { FreeAll(); }
    CFixedAllocNoSync_E(const CFixedAllocNoSync_E&) = delete;
    CFixedAllocNoSync_E& operator=(const CFixedAllocNoSync_E&) = delete;

    /// Size of one element in bytes.
    UINT GetAllocSize() const { return m_nAllocSize; }
    /// Number of elements in one block.
    UINT GetBlockSize() const { return m_nBlockSize; }

    /// An uninitialised element, owned by this allocator: the one freed last, otherwise the lowest
    /// of a new block. Throws the memory exception when there is none left.
    void* Alloc();
    /// Takes an element of this allocator back; null is ignored.
    void Free(void* p);
    /// Frees every block.
    void FreeAll();

private:
    static constexpr UINT DefaultBlockSize = 64;

    UINT m_nAllocSize;
    UINT m_nBlockSize;
    CPlex_E* m_pBlocks = nullptr;
    void* m_pNodeFree = nullptr;
};
