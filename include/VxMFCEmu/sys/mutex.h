/// @file mutex.h
/// Mutexes. Names and handles: see handle.h; waiting: see wait.h.
///
/// Differs from Win32: a mutex is not recursive, its owner waits for it like everybody else; any
/// thread may release it; and one whose owner ended stays locked.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/sys/handle.h>
#include <VxMFCEmu/sys/securityattributes.h>

/// The mutex is made locked.
inline constexpr DWORD CREATE_MUTEX_INITIAL_OWNER = 0x00000001;

/// The mutex of that name, or a new one, owned by the calling thread when @p bInitialOwner is not
/// 0.
VXMFC_EXPORT HANDLE CreateMutex(LPSECURITY_ATTRIBUTES pAttributes, BOOL bInitialOwner,
                                LPCWSTR lpName);
/// The same. Differs from Win32: any flag means CREATE_MUTEX_INITIAL_OWNER; access is ignored.
VXMFC_EXPORT HANDLE CreateMutexEx(LPSECURITY_ATTRIBUTES pAttributes, LPCWSTR lpName, DWORD dwFlags,
                                  DWORD dwDesiredAccess);
/// The mutex of that name; access and inheritance are ignored. Null with the last error ENOENT when
/// there is nothing of that name, ENXIO when it is no mutex.
VXMFC_EXPORT HANDLE OpenMutex(DWORD dwDesiredAccess, BOOL bInheritHandle, LPCWSTR lpName);
/// Unlocks a mutex; FALSE when there is no such mutex. Differs from Win32: the owner is not tested,
/// and after a release too many the mutex cannot be destroyed, see VxCloseHandle().
VXMFC_EXPORT BOOL ReleaseMutex(HANDLE hMutex);
