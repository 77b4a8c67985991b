/// @file srwlock.h
/// Slim reader/writer locks.
///
/// Differs from Win32: a lock is a POSIX read-write lock, and the functions return error numbers, 0
/// for success and EINVAL for null. So a TryAcquire that got the lock returns 0. Every release,
/// also the shared one of a reader among others, destroys the lock object after unlocking it; with
/// the GNU C library it can be used on without initialising it again.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

#include <pthread.h>

/// @{
/// A read-write lock of the system.
using SRWLOCK = pthread_rwlock_t;
using PSRWLOCK = SRWLOCK*;
/// @}

/// A lock that needs no InitializeSRWLock().
inline constexpr SRWLOCK SRWLOCK_INIT = PTHREAD_RWLOCK_INITIALIZER;

/// Makes a lock usable; EINVAL for null.
VXMFC_EXPORT int InitializeSRWLock(PSRWLOCK pLock);
/// Waits until nobody holds the lock; EDEADLK when the calling thread itself holds it exclusively.
VXMFC_EXPORT int AcquireSRWLockExclusive(PSRWLOCK pLock);
/// Waits until nobody holds the lock exclusively; EDEADLK when the calling thread itself does.
VXMFC_EXPORT int AcquireSRWLockShared(PSRWLOCK pLock);
/// Differs from Win32: 0 means that the lock was acquired, EBUSY that it was not.
VXMFC_EXPORT int TryAcquireSRWLockExclusive(PSRWLOCK pLock);
/// Differs from Win32: 0 means that the lock was acquired, EBUSY that it was not.
VXMFC_EXPORT int TryAcquireSRWLockShared(PSRWLOCK pLock);
/// Unlocks the lock and destroys it.
VXMFC_EXPORT int ReleaseSRWLockExclusive(PSRWLOCK pLock);
/// The same as ReleaseSRWLockExclusive().
VXMFC_EXPORT int ReleaseSRWLockShared(PSRWLOCK pLock);
