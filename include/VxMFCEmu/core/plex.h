/// @file plex.h
/// The chain of raw memory blocks below the fixed allocator and the collections.
///
/// Threads: not guarded; one thread at a time.
#pragma once

#include <VxMFCEmu/types.h>

/// The head of one block; its elements follow it in memory.
struct VXMFC_EXPORT CPlex_E
{
    /// The block made before this one.
    alignas(std::max_align_t) CPlex_E* pNext;

    /// The first element, aligned for any type.
    void* data() { return this + 1; }

    /// Allocates a block of @p nMax elements of @p cbElement bytes, uninitialised, and links it at
    /// the head of the chain @p pHead, which owns it. Throws the memory exception when that is too
    /// much.
    static CPlex_E* Create(CPlex_E*& pHead, std::size_t nMax, std::size_t cbElement);
    /// Frees this block and every one after it.
    void FreeDataChain();
};
