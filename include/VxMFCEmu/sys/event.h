/// @file event.h
/// Events. Names and handles: see handle.h; waiting: see wait.h.
///
/// Differs from Win32:
/// - SetEvent() counts, and the event is signalled while the count is not 0; whatever brings an
///   event back drops the whole count.
/// - ResetEvent() and PulseEvent() return FALSE, always: do not test it.
/// - CreateEventEx() ignores its flags.
/// - Setting takes no lock. A SetEvent() that falls between the moment in which a waiter finds the
///   event not signalled and the one in which it sleeps does not wake it; the waiter sleeps until
///   the next SetEvent() or its time-out, and the next wait finds the event signalled. Where this
///   matters, wait with a time-out and again.
/// - A wake-up counts as signalled, a spurious one too. Threads that find an auto-reset event
///   signalled at the same moment may all pass.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/sys/handle.h>
#include <VxMFCEmu/sys/securityattributes.h>

/// The event of that name, or a new one, signalled when @p bInitialState is not 0.
VXMFC_EXPORT HANDLE CreateEvent(LPSECURITY_ATTRIBUTES pAttributes, BOOL bManualReset,
                                BOOL bInitialState, LPCWSTR lpName);
/// The event of that name, or a new one. Differs from Win32: a new one is always a manual-reset
/// event and signalled; flags and access are ignored.
VXMFC_EXPORT HANDLE CreateEventEx(LPSECURITY_ATTRIBUTES pAttributes, LPCWSTR lpName, DWORD dwFlags,
                                  DWORD dwDesiredAccess);
/// The event of that name; access and inheritance are ignored. Null with the last error ENOENT when
/// there is nothing of that name, ENXIO when it is no event.
VXMFC_EXPORT HANDLE OpenEvent(DWORD dwDesiredAccess, BOOL bInheritHandle, LPCWSTR lpName);

/// Signals an event and wakes all waiters of a manual-reset event, one of an auto-reset event.
/// FALSE when there is no such event.
VXMFC_EXPORT BOOL SetEvent(HANDLE hEvent);
/// Makes an event not signalled. Differs from Win32: always FALSE.
VXMFC_EXPORT BOOL ResetEvent(HANDLE hEvent);
/// SetEvent() and then ResetEvent(). Differs from Win32: always FALSE.
VXMFC_EXPORT BOOL PulseEvent(HANDLE hEvent);
