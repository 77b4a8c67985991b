/// @file wait.h
/// Waiting for an event, a mutex or a semaphore.
///
/// Differs from Win32: files, threads and processes cannot be waited for; there is one handle a
/// wait.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

/// Time-out of a wait that has none.
inline constexpr DWORD INFINITE = 0xFFFFFFFF;

/// @{
/// A result of waiting.
inline constexpr DWORD WAIT_OBJECT_0 = 0x00000000;
inline constexpr DWORD WAIT_ABANDONED = 0x00000080;
inline constexpr DWORD WAIT_TIMEOUT = 0x00000102;
inline constexpr DWORD WAIT_FAILED = 0xFFFFFFFF;
/// @}

/// Waits until the event is signalled, the mutex is free or the semaphore has a unit, and takes it:
/// WAIT_OBJECT_0. WAIT_TIMEOUT after @p dwMilliseconds, counted on the wall clock, so that setting
/// the clock changes the wait. WAIT_FAILED for null, for an object whose creation failed, and when
/// the system call fails, as it does for a semaphore when a signal arrives.
///
/// The last error is the failed call's code; without such a call, as for null, it stays as it was.
/// Anything but an open handle of these kinds is undefined, but for INVALID_HANDLE_VALUE. Differs
/// from Win32: a mutex whose owner ended gives no WAIT_ABANDONED.
VXMFC_EXPORT DWORD WaitForSingleObject(HANDLE hHandle, DWORD dwMilliseconds);
