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
    return pMutex && pthread_mutex_unlock(&pMutex->mutex) == 0;
}

namespace vx::detail {

namespace {

int sleep(VxHandle& handle, MutexObject& mutex, DWORD dwMilliseconds)
{
    const Sleeper sleeper(handle);
    if (dwMilliseconds == INFINITE)
        return pthread_mutex_lock(&mutex.mutex);
    const timespec deadline = deadlineIn(dwMilliseconds);
    return pthread_mutex_timedlock(&mutex.mutex, &deadline);
}

} // namespace

DWORD wait(VxHandle& handle, MutexObject& mutex, DWORD dwMilliseconds)
{
    int nError = pthread_mutex_trylock(&mutex.mutex);
    if (nError == EBUSY)
        nError = sleep(handle, mutex, dwMilliseconds);
    if (nError != 0) {
        errno = nError;
        return waitFailure(nError);
    }
    return WAIT_OBJECT_0;
}

bool close(MutexObject& mutex) { return pthread_mutex_destroy(&mutex.mutex) == 0; }

} // namespace vx::detail
