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
    // Waiters may for a moment have taken more units than are counted.
    const long nCount = std::max(0L, pSemaphore->count.atMost());
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

/// Takes a unit that is there. That there is none is no error to be left behind.
bool takeAtOnce(SemaphoreObject& semaphore)
{
    const int nError = errno;
    if (sem_trywait(semaphore.pSemaphore) == 0)
        return true;
    errno = nError;
    return false;
}

/// For when no unit is counted. One may be there all the same: another process may have given it.
int acquire(SemaphoreObject& semaphore, DWORD dwMilliseconds)
{
    if (takeAtOnce(semaphore))
        return 0;
    if (dwMilliseconds == INFINITE)
        return sem_wait(semaphore.pSemaphore);
    const timespec deadline = deadlineIn(dwMilliseconds);
    return sem_timedwait(semaphore.pSemaphore, &deadline);
}

[[gnu::noinline]] DWORD sleepAndTake(VxHandle& handle, DWORD dwMilliseconds)
{
    const Sleeper sleeper(handle);
    auto& semaphore = *std::get_if<SemaphoreObject>(&handle.object);
    if (acquire(semaphore, dwMilliseconds) != 0)
        return dwMilliseconds != INFINITE && errno == ETIMEDOUT ? WAIT_TIMEOUT : WAIT_FAILED;
    if (semaphore.count.atMost() > 0)
        semaphore.count.down();
    return WAIT_OBJECT_0;
}

} // namespace

DWORD wait(VxHandle& handle, SemaphoreObject& semaphore, DWORD dwMilliseconds)
{
    if (semaphore.pSemaphore == SEM_FAILED)
        return WAIT_FAILED;
    if (semaphore.count.atMost() <= 0 || !takeAtOnce(semaphore))
        return sleepAndTake(handle, dwMilliseconds);
    semaphore.count.down();
    return WAIT_OBJECT_0;
}

bool close(SemaphoreObject& semaphore)
{
    if (semaphore.pSemaphore == SEM_FAILED)
        return false;
    if (semaphore.count.atMost() == 0)
        sem_post(semaphore.pSemaphore);
    sem_unlink(semaphore.name.c_str());
    return true;
}

void end(SemaphoreObject& semaphore)
{
    if (semaphore.pSemaphore != SEM_FAILED)
        sem_close(semaphore.pSemaphore);
}

} // namespace vx::detail
