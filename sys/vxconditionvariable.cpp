#include <VxMFCEmu/sys/conditionvariable.h>

#include "sys/vxdeadline_p.h"

#include <cerrno>

static_assert(sizeof(SRWLOCK) >= sizeof(CRITICAL_SECTION), "a lock stands in for a section");

int InitializeConditionVariable(PCONDITION_VARIABLE pCondition)
{
    return pCondition ? pthread_cond_init(pCondition, nullptr) : EINVAL;
}

int WakeConditionVariable(PCONDITION_VARIABLE pCondition)
{
    return pCondition ? pthread_cond_signal(pCondition) : EINVAL;
}

int WakeAllConditionVariable(PCONDITION_VARIABLE pCondition)
{
    return pCondition ? pthread_cond_broadcast(pCondition) : EINVAL;
}

BOOL SleepConditionVariableCS(PCONDITION_VARIABLE pCondition, LPCRITICAL_SECTION pSection,
                              DWORD dwMilliseconds)
{
    // Intended: 1 is failure, 0 success.
    if (!pCondition || !pSection)
        return 1;
    if (dwMilliseconds == INFINITE)
        return pthread_cond_wait(pCondition, pSection) != 0;
    const timespec deadline = vx::detail::deadlineIn(dwMilliseconds);
    return pthread_cond_timedwait(pCondition, pSection, &deadline) != 0;
}

BOOL SleepConditionVariableSRW(PCONDITION_VARIABLE pCondition, PSRWLOCK pLock, DWORD dwMilliseconds,
                               ULONG)
{
    // Intended: the same call, whatever it leaves of the lock.
    return SleepConditionVariableCS(pCondition, reinterpret_cast<LPCRITICAL_SECTION>(pLock),
                                    dwMilliseconds);
}
