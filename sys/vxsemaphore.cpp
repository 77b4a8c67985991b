#include <VxMFCEmu/sys/semaphore.h>
#include <VxMFCEmu/sys/wait.h>
#include <VxMFCEmu/text/vxqstring.h>

#include "sys/vxdeadline_p.h"
#include "sys/vxhandle_p.h"

#include <algorithm>

#include <fcntl.h>

using vx::detail::SemaphoreObject;

HANDLE CreateSemaphore(LPSECURITY_ATTRIBUTES, int lInitialCount, int lMaximumCount, LPCWSTR lpName)
{
    return vx::detail::createHandle<SemaphoreObject>(lpName, [=](vx::detail::Object& object) {
        if (!lpName || lInitialCount < 0 || lMaximumCount < 1)
            return;
        auto& semaphore = object.emplace<SemaphoreObject>(VxQString(lpName).toUtf8().toStdString(),
                                                          lInitialCount, lMaximumCount);
        errno = 0;
        semaphore.pSemaphore =
            sem_open(semaphore.name.c_str(), O_CREAT, 0700, static_cast<unsigned>(lInitialCount));
    });
}

HANDLE CreateSemaphoreEx(LPSECURITY_ATTRIBUTES pAttributes, int lInitialCount, int lMaximumCount,
                         LPCWSTR lpName, DWORD, DWORD)
{
    return CreateSemaphore(pAttributes, lInitialCount, lMaximumCount, lpName);
}

HANDLE OpenSemaphore(DWORD, BOOL, int, LPCWSTR lpName)
{
    return vx::detail::openHandle<SemaphoreObject>(lpName);
}

BOOL ReleaseSemaphore(HANDLE hSemaphore, int lReleaseCount, long* lpPreviousCount)
{
    auto* const pSemaphore = vx::detail::objectOf<SemaphoreObject>(hSemaphore);
    if (!pSemaphore || lReleaseCount < 1)
        return FALSE;
    const long nCount = pSemaphore->count.atMost();
    const long nRoom = pSemaphore->nMaximum - lReleaseCount;
    if (nCount > nRoom && pSemaphore->count.atLeast() > nRoom)
        return FALSE;
    if (lpPreviousCount)
        *lpPreviousCount = nCount;
    // Intended: up to the number, not by the number; and a unit that is refused counts. Waiters
    // that take units meanwhile do not prolong it: they would be given units that nobody released.
    for (long nUnits = std::max(1L, lReleaseCount - nCount); nUnits > 0; --nUnits) {
        // Before the post, so that a thread that takes the unit finds it counted.
        pSemaphore->count.up();
        if (pSemaphore->pSemaphore == SEM_FAILED || sem_post(pSemaphore->pSemaphore) != 0)
            return FALSE;
    }
    return TRUE;
}

namespace vx::detail {

namespace {

/// Apart, so that a wait without a time-out stays a short function.
[[gnu::noinline]] int timedAcquire(sem_t* pSemaphore, DWORD dwMilliseconds)
{
    const int nError = errno;
    if (sem_trywait(pSemaphore) == 0)
        return 0;
    errno = nError;
    const timespec deadline = deadlineIn(dwMilliseconds);
    return sem_timedwait(pSemaphore, &deadline);
}

} // namespace

DWORD wait(SemaphoreObject& semaphore, DWORD dwMilliseconds)
{
    if (semaphore.pSemaphore == SEM_FAILED)
        return WAIT_FAILED;
    if (dwMilliseconds == INFINITE) {
        if (sem_wait(semaphore.pSemaphore) != 0)
            return WAIT_FAILED;
    } else if (timedAcquire(semaphore.pSemaphore, dwMilliseconds) != 0) {
        return errno == ETIMEDOUT ? WAIT_TIMEOUT : WAIT_FAILED;
    }
    if (semaphore.count.atMost() > 0)
        semaphore.count.down();
    return WAIT_OBJECT_0;
}

bool destroy(SemaphoreObject& semaphore)
{
    if (semaphore.pSemaphore == SEM_FAILED)
        return false;
    if (semaphore.count.atMost() == 0)
        sem_post(semaphore.pSemaphore);
    sem_close(semaphore.pSemaphore);
    sem_unlink(semaphore.name.c_str());
    return true;
}

} // namespace vx::detail
