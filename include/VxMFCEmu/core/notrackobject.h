/// @file notrackobject.h
/// Base of the objects kept in thread-local and process-local storage.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

/// An object on zero-filled local memory, with a virtual destructor.
class VXMFC_EXPORT CNoTrackObject_E
{
public:
    CNoTrackObject_E() = default;
    virtual ~CNoTrackObject_E();
    /// @{
    /// For derived classes.
    CNoTrackObject_E(const CNoTrackObject_E&) = default;
    CNoTrackObject_E& operator=(const CNoTrackObject_E&) = default;
    /// @}

    /// Zero-filled memory from LocalAlloc_E(); throws the memory exception when there is none.
    static void* operator new(std::size_t nSize);
    /// Gives the memory back; null is ignored.
    static void operator delete(void* p) noexcept;
};
