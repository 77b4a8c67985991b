// Time-outs as POSIX takes them.
#pragma once

#include <VxMFCEmu/types.h>

#include <ctime>

namespace vx::detail {

/// The time of the wall clock in @p dwMilliseconds milliseconds.
inline timespec deadlineIn(DWORD dwMilliseconds)
{
    constexpr long kSecond = 1'000'000'000;
    timespec time{};
    clock_gettime(CLOCK_REALTIME, &time);
    time.tv_sec += dwMilliseconds / 1000;
    time.tv_nsec += static_cast<long>(dwMilliseconds % 1000) * 1'000'000;
    if (time.tv_nsec >= kSecond) {
        time.tv_nsec -= kSecond;
        ++time.tv_sec;
    }
    return time;
}

} // namespace vx::detail
