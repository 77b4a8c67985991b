#include <VxMFCEmu/sys/wait.h>

#include "sys/vxhandle_p.h"

QMap<const wchar_t*, VxHandle*> g_mapVxHandle;

namespace vx::detail {

namespace {

/// What a mutex or an event calls an owner that ended.
constexpr int kAbandoned = 36;

bool close(std::monostate) { return false; }

void forget(const VxHandle* pHandle)
{
    for (auto it = g_mapVxHandle.begin(); it != g_mapVxHandle.end();)
        it = *it == pHandle ? g_mapVxHandle.erase(it) : std::next(it);
}

} // namespace

DWORD waitFailure(int nError)
{
    switch (nError) {
    case kAbandoned:
        return WAIT_ABANDONED;
    case ETIMEDOUT:
        return WAIT_TIMEOUT;
    default:
        return WAIT_FAILED;
    }
}

void letGo(VxHandle* pHandle)
{
    if (--pHandle->nHolders > 0)
        return;
    if (auto* const pSemaphore = std::get_if<SemaphoreObject>(&pHandle->object))
        end(*pSemaphore);
    else if (auto* const pEvent = std::get_if<EventObject>(&pHandle->object))
        end(*pEvent);
    delete pHandle;
}

} // namespace vx::detail

DWORD WaitForSingleObject(HANDLE hHandle, DWORD dwMilliseconds)
{
    using namespace vx::detail;
    if (auto* const pMutex = objectOf<MutexObject>(hHandle)) // std::visit() is an indirect call
        return wait(*recordOf(hHandle), *pMutex, dwMilliseconds);
    if (auto* const pSemaphore = objectOf<SemaphoreObject>(hHandle))
        return wait(*recordOf(hHandle), *pSemaphore, dwMilliseconds);
    if (auto* const pEvent = objectOf<EventObject>(hHandle))
        return wait(*recordOf(hHandle), *pEvent, dwMilliseconds);
    return WAIT_FAILED;
}

BOOL VxCloseHandle(HANDLE hObject)
{
    using namespace vx::detail;
    VxHandle* const pHandle = recordOf(hObject);
    if (!pHandle || pHandle->kind < kindOf<MutexObject> || pHandle->kind > kindOf<EventObject>)
        return FALSE;
    // Intended: what cannot be ended is freed and stays in the map.
    if (std::visit([](auto& object) { return close(object); }, pHandle->object))
        forget(pHandle);
    pHandle->kind = 0;
    letGo(pHandle);
    return TRUE;
}
