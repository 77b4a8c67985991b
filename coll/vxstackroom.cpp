#include "coll/vxstackroom_p.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include <pthread.h>

namespace {

constexpr std::size_t kReserve = 128 * 1024;

struct StackBounds
{
    std::uintptr_t lowest = 0;
    std::uintptr_t enough = 0; // from here on
};

StackBounds measure()
{
    StackBounds bounds;
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0)
        return bounds;
    void* pLowest;
    std::size_t size;
    if (pthread_attr_getstack(&attributes, &pLowest, &size) == 0) {
        bounds.lowest = reinterpret_cast<std::uintptr_t>(pLowest);
        bounds.enough = bounds.lowest + std::min(kReserve, size / 4);
    }
    pthread_attr_destroy(&attributes);
    return bounds;
}

} // namespace

bool vx::detail::stackIsLow()
{
    thread_local const StackBounds bounds = measure();
    const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
    return here >= bounds.lowest && here < bounds.enough;
}
