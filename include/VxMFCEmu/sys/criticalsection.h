/// @file criticalsection.h
/// Critical sections.
///
/// Differs from Win32: a critical section is a POSIX mutex with default attributes, so a thread
/// that enters it twice waits for itself for ever; and the functions return error numbers, 0 for
/// success and EINVAL for null.
///
/// The functions are inline, so that they cost what the mutex costs; the library exports them too.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

#include <pthread.h>

#include <cerrno>

/// @{
/// A mutex of the system.
using CRITICAL_SECTION = pthread_mutex_t;
using LPCRITICAL_SECTION = CRITICAL_SECTION*;
/// @}

/// Makes a critical section usable.
VXMFC_EXPORT inline int InitializeCriticalSection_E(LPCRITICAL_SECTION pSection)
{
    return pSection ? pthread_mutex_init(pSection, nullptr) : EINVAL;
}
/// Waits until no other thread is inside.
VXMFC_EXPORT inline int EnterCriticalSection_E(LPCRITICAL_SECTION pSection)
{
    return pSection ? pthread_mutex_lock(pSection) : EINVAL;
}
/// Lets the next thread in.
VXMFC_EXPORT inline int LeaveCriticalSection_E(LPCRITICAL_SECTION pSection)
{
    return pSection ? pthread_mutex_unlock(pSection) : EINVAL;
}
/// EBUSY while a thread is inside.
VXMFC_EXPORT inline int DeleteCriticalSection_E(LPCRITICAL_SECTION pSection)
{
    return pSection ? pthread_mutex_destroy(pSection) : EINVAL;
}
