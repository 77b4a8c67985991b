/// @file threads.h
/// Sleeping, the tick count, and the ids of thread and process.
///
/// Differs from Win32: see the functions.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

#include <pthread.h>

/// Sleeps; 0 returns at once. Differs from Win32: INFINITE is a number like others, above
/// 4,294,967 milliseconds the time wraps around, and a signal ends it early.
VXMFC_EXPORT void Sleep_E(DWORD dwMilliseconds);
/// Milliseconds of the monotonic clock. Differs from Win32: 64 bits, which do not wrap around.
VXMFC_EXPORT ULONGLONG GetTickCount();
/// Differs from Win32: the calling thread's `pthread_t`, which does not fit into a DWORD.
VXMFC_EXPORT pthread_t GetCurrentThreadId();
/// The number of this process.
VXMFC_EXPORT DWORD GetCurrentProcessId();
