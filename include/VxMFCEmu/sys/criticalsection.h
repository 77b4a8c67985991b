/// @file criticalsection.h
/// Critical sections.
///
/// Differs from Win32: a critical section is a POSIX mutex with default attributes, so a thread
/// that enters it twice waits for itself for ever; and the functions return error numbers, 0 for
/// success and EINVAL for null.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

#include <pthread.h>

using CRITICAL_SECTION = pthread_mutex_t;
using LPCRITICAL_SECTION = CRITICAL_SECTION*;

VXMFC_EXPORT int InitializeCriticalSection_E(LPCRITICAL_SECTION pSection);
/// Waits until no other thread is inside.
VXMFC_EXPORT int EnterCriticalSection_E(LPCRITICAL_SECTION pSection);
VXMFC_EXPORT int LeaveCriticalSection_E(LPCRITICAL_SECTION pSection);
/// EBUSY while a thread is inside.
VXMFC_EXPORT int DeleteCriticalSection_E(LPCRITICAL_SECTION pSection);
