#include "coll/vxstackroom_p.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

#include <pthread.h>

namespace {

constexpr std::size_t kReserve = 0x20000;

struct StackBounds
{
    std::uintptr_t lowest = 0;
    std::size_t size = 0; // 0: not known
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
        bounds.size = size;
    }
    pthread_attr_destroy(&attributes);
    return bounds;
}

const StackBounds& boundsHere()
{
    thread_local const StackBounds bounds = measure();
    return bounds;
}

} // namespace

std::size_t vx::detail::stackLeft()
{
    const StackBounds& bounds = boundsHere();
    const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
    const std::uintptr_t left = here - bounds.lowest;
    return left < bounds.size ? left : std::numeric_limits<std::size_t>::max();
}

bool vx::detail::stackIsLow() { return stackLeft() < std::min(kReserve, boundsHere().size / 4); }
