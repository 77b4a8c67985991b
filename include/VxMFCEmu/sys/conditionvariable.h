/// @file conditionvariable.h
/// Condition variables.
///
/// Differs from Win32: a condition variable is a POSIX one. Initialising and waking return error
/// numbers, 0 for success and EINVAL for null. A sleep returns 0 when it was woken and 1 when it
/// was not, the reverse of Win32.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/sys/criticalsection.h>
#include <VxMFCEmu/sys/srwlock.h>
#include <VxMFCEmu/sys/wait.h>

/// @{
/// A condition variable of the system.
using CONDITION_VARIABLE = pthread_cond_t;
using PCONDITION_VARIABLE = CONDITION_VARIABLE*;
/// @}

/// A condition variable that needs no InitializeConditionVariable().
inline constexpr CONDITION_VARIABLE CONDITION_VARIABLE_INIT = PTHREAD_COND_INITIALIZER;

/// The lock is held shared.
inline constexpr ULONG CONDITION_VARIABLE_LOCKMODE_SHARED = 0x1;

/// Makes a condition variable usable; EINVAL for null.
VXMFC_EXPORT int InitializeConditionVariable(PCONDITION_VARIABLE pCondition);
/// Wakes one sleeper.
VXMFC_EXPORT int WakeConditionVariable(PCONDITION_VARIABLE pCondition);
/// Wakes all sleepers.
VXMFC_EXPORT int WakeAllConditionVariable(PCONDITION_VARIABLE pCondition);

/// Leaves the section, sleeps until woken or until @p dwMilliseconds have passed on the wall clock,
/// and enters it again. Differs from Win32: 0 when woken, 1 after the time-out, on failure and for
/// null. As on Win32, a wake-up may be spurious.
VXMFC_EXPORT BOOL SleepConditionVariableCS(PCONDITION_VARIABLE pCondition,
                                           LPCRITICAL_SECTION pSection, DWORD dwMilliseconds);
/// The same with the lock standing in for the section; flags are ignored.
///
/// Differs from Win32: the lock's memory is taken for that of a critical section, which lets the
/// lock go but does not leave a reader/writer lock behind. Do not release or acquire the lock after
/// the sleep before InitializeSRWLock() has renewed it. Use SleepConditionVariableCS() in new code.
VXMFC_EXPORT BOOL SleepConditionVariableSRW(PCONDITION_VARIABLE pCondition, PSRWLOCK pLock,
                                            DWORD dwMilliseconds, ULONG dwFlags);
