/// @file nodepool.h
/// Memory of the nodes of lists and maps.
///
/// Threads: not guarded; one thread at a time.
#pragma once

#include <VxMFCEmu/core/fixedalloc.h>

#include <algorithm>
#include <new>
#include <utility>

namespace vx::detail {

/// Makes nodes of one type in blocks. A node's elements are ended by its collection; the node
/// itself is only memory.
template <class Node>
class NodePool
{
public:
    /// Takes memory for @p nBlockSize nodes at a time; below 2 means 64.
    explicit NodePool(INT_PTR nBlockSize)
        : m_alloc(sizeof(Node), static_cast<UINT>(std::clamp<INT_PTR>(nBlockSize, 0, 0xFFFF)))
    {
    }

    /// A new node, to whose elements @p fill gives their values.
    template <class Fill, class... Args>
    Node* Make(const Fill& fill, Args&&... args)
    {
        static_assert(alignof(Node) <= alignof(std::max_align_t));
        void* const pMemory = m_alloc.Alloc();
        try {
            auto* const pNode = ::new (pMemory) Node(std::forward<Args>(args)...);
            fill(*pNode);
            return pNode;
        } catch (...) {
            m_alloc.Free(pMemory);
            throw;
        }
    }
    void Free(Node* pNode) { m_alloc.Free(pNode); }
    void FreeAll() { m_alloc.FreeAll(); }

private:
    CFixedAllocNoSync_E m_alloc;
};

} // namespace vx::detail
