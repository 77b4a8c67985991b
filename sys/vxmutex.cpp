#include <VxMFCEmu/sys/mutex.h>
#include <VxMFCEmu/sys/wait.h>

#include "sys/vxdeadline_p.h"
#include "sys/vxhandle_p.h"

using vx::detail::MutexObject;

HANDLE CreateMutex(LPSECURITY_ATTRIBUTES, BOOL bInitialOwner, LPCWSTR lpName)
{
    return vx::detail::createHandle<MutexObject>(lpName, [=](vx::detail::Object& object) {
        auto& mutex = object.emplace<MutexObject>();
        if (pthread_mutex_init(&mutex.mutex, nullptr) != 0) {
            object.emplace<std::monostate>();
        } else if (bInitialOwner != 0) {
            static_cast<void>(pthread_mutex_trylock(&mutex.mutex)); // Nobody else has it yet.
            mutex.owner = pthread_self();
        }
    });
}

HANDLE CreateMutexEx(LPSECURITY_ATTRIBUTES pAttributes, LPCWSTR lpName, DWORD dwFlags, DWORD)
{
    // Intended: any flag, not CREATE_MUTEX_INITIAL_OWNER alone.
    return CreateMutex(pAttributes, dwFlags != 0, lpName);
}

HANDLE OpenMutex(DWORD, BOOL, LPCWSTR lpName)
{
    return vx::detail::openHandle<MutexObject>(lpName);
}

BOOL ReleaseMutex(HANDLE hMutex)
{
    auto* const pMutex = vx::detail::objectOf<MutexObject>(hMutex);
    if (!pMutex || pthread_mutex_unlock(&pMutex->mutex) != 0)
        return FALSE;
    pMutex->owner.store(0, std::memory_order_relaxed);
    return TRUE;
}

namespace vx::detail {

DWORD wait(MutexObject& mutex, DWORD dwMilliseconds)
{
    const bool bTimed = dwMilliseconds != INFINITE;
    int nError = bTimed ? pthread_mutex_trylock(&mutex.mutex) : pthread_mutex_lock(&mutex.mutex);
    if (bTimed && nError == EBUSY) {
        const timespec deadline = deadlineIn(dwMilliseconds);
        nError = pthread_mutex_timedlock(&mutex.mutex, &deadline);
    }
    if (nError != 0) {
        errno = nError;
        return waitFailure(nError);
    }
    mutex.owner.store(pthread_self(), std::memory_order_relaxed);
    return WAIT_OBJECT_0;
}

bool destroy(MutexObject& mutex) { return pthread_mutex_destroy(&mutex.mutex) == 0; }

} // namespace vx::detail
