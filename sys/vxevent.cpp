#include <VxMFCEmu/sys/event.h>
#include <VxMFCEmu/sys/wait.h>

#include "sys/vxdeadline_p.h"
#include "sys/vxhandle_p.h"

using vx::detail::EventObject;

namespace vx::detail {

namespace {

bool init(EventObject& event)
{
    if (pthread_cond_init(&event.condition, nullptr) != 0)
        return false;
    if (pthread_mutex_init(&event.mutex, nullptr) == 0)
        return true;
    pthread_cond_destroy(&event.condition);
    return false;
}

/// One exchange does what stepping towards 0 until the count reads 0 would do.
void interLockedSetFalse(std::atomic<std::int64_t>& nSignals) { nSignals.exchange(0); }

/// Sleeps until woken, or until the deadline if there is one.
DWORD sleep(EventObject& event, const timespec* pDeadline)
{
    if (pthread_mutex_lock(&event.mutex) != 0)
        return !pDeadline ? WAIT_FAILED : errno == EINTR ? WAIT_TIMEOUT : waitFailure(errno);
    if (pDeadline)
        errno = 0;
    const int nError = pDeadline ? pthread_cond_timedwait(&event.condition, &event.mutex, pDeadline)
                                 : pthread_cond_wait(&event.condition, &event.mutex);
    pthread_mutex_unlock(&event.mutex);
    if (nError == 0)
        return WAIT_OBJECT_0;
    if (!pDeadline)
        return WAIT_FAILED;
    errno = nError;
    return waitFailure(nError);
}

DWORD take(EventObject& event)
{
    // Setters take no lock: what they did before is visible through the count alone.
    if (event.bManualReset)
        static_cast<void>(event.nSignals.load());
    else
        interLockedSetFalse(event.nSignals);
    return WAIT_OBJECT_0;
}

} // namespace

DWORD wait(VxHandle& handle, EventObject& event, DWORD dwMilliseconds)
{
    const bool bTimed = dwMilliseconds != INFINITE;
    timespec deadline{};
    bool bSignalled = event.nSignals.load() != 0;
    if (!bSignalled && bTimed) {
        deadline = deadlineIn(dwMilliseconds);
        // Once more, so as not to sleep through what was set while the clock was read.
        bSignalled = event.nSignals.load() != 0;
    }
    if (bSignalled)
        return take(event);
    const Sleeper sleeper(handle);
    const DWORD dwResult = sleep(event, bTimed ? &deadline : nullptr);
    // Intended: no loop. A wake-up is a signal, whatever the count has become meanwhile.
    return dwResult == WAIT_OBJECT_0 ? take(event) : dwResult;
}

bool close(EventObject&) { return true; }

void end(EventObject& event)
{
    pthread_cond_destroy(&event.condition);
    pthread_mutex_destroy(&event.mutex);
}

} // namespace vx::detail

HANDLE CreateEvent(LPSECURITY_ATTRIBUTES, BOOL bManualReset, BOOL bInitialState, LPCWSTR lpName)
{
    return vx::detail::createHandle<EventObject>(lpName, [=](vx::detail::Object& object) {
        auto& event = object.emplace<EventObject>();
        if (!vx::detail::init(event)) {
            object.emplace<std::monostate>();
            return;
        }
        event.bManualReset = bManualReset != 0;
        event.nSignals = bInitialState;
    });
}

HANDLE CreateEventEx(LPSECURITY_ATTRIBUTES pAttributes, LPCWSTR lpName, DWORD, DWORD)
{
    // Intended: the flags are ignored.
    return CreateEvent(pAttributes, TRUE, TRUE, lpName);
}

HANDLE OpenEvent(DWORD, BOOL, LPCWSTR lpName)
{
    return vx::detail::openHandle<EventObject>(lpName);
}

BOOL SetEvent(HANDLE hEvent)
{
    auto* const pEvent = vx::detail::objectOf<EventObject>(hEvent);
    if (!pEvent)
        return FALSE;
    pEvent->nSignals.fetch_add(1);
    return (pEvent->bManualReset ? pthread_cond_broadcast(&pEvent->condition)
                                 : pthread_cond_signal(&pEvent->condition)) == 0;
}

BOOL ResetEvent(HANDLE hEvent)
{
    if (auto* const pEvent = vx::detail::objectOf<EventObject>(hEvent))
        vx::detail::interLockedSetFalse(pEvent->nSignals);
    return FALSE; // Intended: also after a reset.
}

BOOL PulseEvent(HANDLE hEvent)
{
    SetEvent(hEvent);
    return ResetEvent(hEvent);
}
