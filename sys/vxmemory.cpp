#include <VxMFCEmu/sys/memory.h>

#include <malloc.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

HGLOBAL GlobalAlloc_E(UINT, SIZE_T nBytes)
{
    // At least one byte, so that an empty block is one of its own with every allocator.
    return nBytes <= PTRDIFF_MAX ? std::calloc(std::max<SIZE_T>(nBytes, 1), 1) : nullptr;
}

HLOCAL LocalAlloc_E(UINT uFlags, SIZE_T nBytes) { return GlobalAlloc_E(uFlags, nBytes); }

LPVOID GlobalLock_E(HGLOBAL hMem) { return hMem; }

HGLOBAL GlobalHandle_E(LPCVOID pMem) { return const_cast<LPVOID>(pMem); }

BOOL GlobalUnlock_E(HGLOBAL) { return TRUE; }

HGLOBAL GlobalFree_E(HGLOBAL hMem)
{
    std::free(hMem);
    return nullptr;
}

HLOCAL LocalFree_E(HLOCAL hMem) { return GlobalFree_E(hMem); }

HGLOBAL GlobalReAlloc_E(HGLOBAL hMem, SIZE_T nBytes, UINT uFlags)
{
    void* const pNew = GlobalAlloc_E(uFlags, nBytes);
    if (!pNew || !hMem)
        return pNew;
    // The new block may be the longer one: nothing is read beyond the old.
    std::memcpy(pNew, hMem, std::min(nBytes, malloc_usable_size(hMem)));
    GlobalFree_E(hMem);
    return pNew;
}

HLOCAL LocalReAlloc_E(HLOCAL hMem, SIZE_T nBytes, UINT uFlags)
{
    return GlobalReAlloc_E(hMem, nBytes, uFlags);
}
