#include <VxMFCEmu/core/notrackobject.h>

#include <VxMFCEmu/core/exceptions.h>

#include <VxMFCEmu/sys/memory.h>

CNoTrackObject_E::~CNoTrackObject_E() = default;

void* CNoTrackObject_E::operator new(std::size_t nSize)
{
    void* const p = LocalAlloc_E(LPTR, nSize);
    if (!p)
        AfxThrowMemoryException_E();
    return p;
}

void CNoTrackObject_E::operator delete(void* p) noexcept { LocalFree_E(p); }
