// The record behind the handle of an event, a mutex or a semaphore.
#pragma once

#include "sys/vxsemaphorecount_p.h"

#include <VxMFCEmu/sys/handle.h>

#include <pthread.h>
#include <semaphore.h>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <ctime>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

namespace vx::detail {

struct MutexObject
{
    pthread_mutex_t mutex;
};

/// Opening counts nothing, so a record is the only one of its semaphore.
struct SemaphoreObject
{
    SemaphoreObject(std::string utf8Name, int nInitialCount, int nMaximumCount)
        : name(std::move(utf8Name)), count(nInitialCount), nMaximum(nMaximumCount)
    {
    }

    const std::string name;
    sem_t* pSemaphore = SEM_FAILED;
    SemaphoreCount count;
    const long nMaximum;
};

struct EventObject
{
    pthread_cond_t condition;
    pthread_mutex_t mutex;
    bool bManualReset = false;
    /// Not 0 when signalled.
    std::atomic<std::int64_t> nSignals{0};
};

/// The index is the kind of the handle; without an object the creation failed.
using Object = std::variant<std::monostate, MutexObject, SemaphoreObject, EventObject>;

template <typename Kind>
inline constexpr std::uint32_t kindOf = 0;
template <>
inline constexpr std::uint32_t kindOf<MutexObject> = 1;
template <>
inline constexpr std::uint32_t kindOf<SemaphoreObject> = 2;
template <>
inline constexpr std::uint32_t kindOf<EventObject> = 3;

} // namespace vx::detail

struct VxHandle
{
    /// The index of the object, at the place where other kinds of handles, a file's for one, have
    /// another value: it is looked at before anything else is. 0 without an object, and in the end.
    std::atomic<std::uint32_t> kind{0};
    /// Its owner, until it is closed, and the threads that sleep on it: the last one frees it.
    std::atomic<int> nHolders{1};
    vx::detail::Object object;
};

namespace vx::detail {

/// The record of a handle; null for null and INVALID_HANDLE_VALUE.
inline VxHandle* recordOf(HANDLE hObject)
{
    return reinterpret_cast<std::intptr_t>(hObject) == -1 ? nullptr
                                                          : static_cast<VxHandle*>(hObject);
}

/// The object of a handle, if it is of that kind.
template <typename Kind>
Kind* objectOf(HANDLE hObject)
{
    static_assert(std::is_same_v<std::variant_alternative_t<kindOf<Kind>, Object>, Kind>);
    VxHandle* const pHandle = recordOf(hObject);
    if (!pHandle || pHandle->kind.load(std::memory_order_relaxed) != kindOf<Kind>)
        return nullptr;
    if (pHandle->object.index() != kindOf<Kind>)
        __builtin_unreachable(); // the kind is the index: no need to test both
    return std::get_if<Kind>(&pHandle->object);
}

template <typename Kind>
VxHandle* openHandle(const wchar_t* lpName)
{
    const auto it = g_mapVxHandle.constFind(lpName);
    if (it == g_mapVxHandle.constEnd()) {
        errno = ENOENT;
        return nullptr;
    }
    if (!objectOf<Kind>(*it)) {
        errno = ENXIO;
        return nullptr;
    }
    return *it;
}

/// The handle of that name, or a new one whose object @p init makes; where it does not, the handle
/// stays without an object.
template <typename Kind, typename Init>
VxHandle* createHandle(const wchar_t* lpName, Init init)
{
    if (VxHandle* const pOpen = openHandle<Kind>(lpName)) {
        errno = ERROR_ALREADY_EXISTS;
        return pOpen;
    }
    auto* const pHandle = new VxHandle;
    init(pHandle->object);
    pHandle->kind = static_cast<std::uint32_t>(pHandle->object.index());
    g_mapVxHandle.insert(lpName, pHandle);
    return pHandle;
}

/// Frees the record and ends the system's object when this was the last holder.
void letGo(VxHandle* pHandle);

/// Keeps the record of a thread that goes to sleep: whoever closes the handle meanwhile neither
/// waits for the thread nor takes the object away under it.
class Sleeper
{
public:
    explicit Sleeper(VxHandle& handle) : m_handle(handle) { ++m_handle.nHolders; }
    ~Sleeper() { letGo(&m_handle); }
    Sleeper(const Sleeper&) = delete;
    Sleeper& operator=(const Sleeper&) = delete;

private:
    VxHandle& m_handle;
};

/// What WaitForSingleObject() gives for each kind.
DWORD wait(VxHandle& handle, MutexObject& mutex, DWORD dwMilliseconds);
DWORD wait(VxHandle& handle, SemaphoreObject& semaphore, DWORD dwMilliseconds);
DWORD wait(VxHandle& handle, EventObject& event, DWORD dwMilliseconds);
/// The result of a wait that failed with that error number.
DWORD waitFailure(int nError);

/// What closing the handle does at once; false when the object cannot be ended.
bool close(MutexObject& mutex);
bool close(SemaphoreObject& semaphore);
bool close(EventObject& event);
/// What it does when nobody sleeps on the object any more. A mutex that somebody slept on is locked
/// for good.
void end(SemaphoreObject& semaphore);
void end(EventObject& event);

} // namespace vx::detail
