/// @file semaphore.h
/// Semaphores, which are named POSIX semaphores with a count kept beside them. Names and handles:
/// see handle.h; waiting: see wait.h.
///
/// Differs from Win32:
/// - Only named semaphores are supported. One without a name, or with counts that are not valid,
///   gives a handle that cannot be waited for, released or closed.
/// - The system knows the semaphore under the UTF-8 text of its name, unchanged: objects of the
///   same text share the units, though each keeps a count of its own, and one that the system
///   already knows does not start from the initial count. This goes for other processes too. An
///   initial count above the maximum is accepted. A name that the system refuses (empty, or
///   with a second "/") gives a handle whose waits give WAIT_FAILED.
/// - Releasing adds units until the count has reached the number given, one at least.
/// - Closing gives a last unit when there is none, and takes the name away from the system.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/sys/handle.h>
#include <VxMFCEmu/sys/securityattributes.h>

/// The semaphore of that name, or a new one.
VXMFC_EXPORT HANDLE CreateSemaphore(LPSECURITY_ATTRIBUTES pAttributes, int lInitialCount,
                                    int lMaximumCount, LPCWSTR lpName);
/// The same; flags and access are ignored.
VXMFC_EXPORT HANDLE CreateSemaphoreEx(LPSECURITY_ATTRIBUTES pAttributes, int lInitialCount,
                                      int lMaximumCount, LPCWSTR lpName, DWORD dwFlags,
                                      DWORD dwDesiredAccess);
/// The semaphore of that name; the other arguments are ignored. Null with the last error ENOENT
/// when there is nothing of that name, ENXIO when it is no semaphore. Differs from Win32: there is
/// a third argument.
VXMFC_EXPORT HANDLE OpenSemaphore(DWORD dwDesiredAccess, BOOL bInheritHandle, int lMaximumCount,
                                  LPCWSTR lpName);
/// Adds units and stores the count before it, if @p lpPreviousCount is not null. FALSE, changing
/// nothing, when there is no such semaphore, when @p lReleaseCount is below 1 and when the count
/// would exceed the maximum; FALSE as well when the system refuses a unit.
///
/// Differs from Win32: units are added one by one until the count is at least @p lReleaseCount, so
/// that a count of 1 and 3 to release add two, and a count of 2 and 1 to release add one. The
/// previous count is a `long`, which LONG is not.
VXMFC_EXPORT BOOL ReleaseSemaphore(HANDLE hSemaphore, int lReleaseCount, long* lpPreviousCount);
