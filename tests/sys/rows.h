// What the tests of threads and of what they wait for share.
#pragma once

#include "support/test.h"

#include <unistd.h>

namespace vxtest {

/// What calls gave, in the order in which they stand.
using Results = std::vector<long long>;

inline constexpr auto waitOn = WaitForSingleObject;

/// A name for a semaphore that no other process uses. Each call has a buffer of its own.
inline std::wstring semaphoreName() { return L"/vxmfc-test-" + std::to_wstring(getpid()); }

/// Calls @p work in so many threads at once, with their numbers.
inline void inThreads(int count, const std::function<void(int)>& work)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i)
        threads.emplace_back(work, i);
    for (std::thread& thread : threads)
        thread.join();
}

/// What the sanitizer reports by itself, whatever the test finds.
#if defined(__SANITIZE_THREAD__)
inline constexpr bool kThreadSanitizer = true;
#else
inline constexpr bool kThreadSanitizer = false;
#endif

} // namespace vxtest

using vxtest::inThreads;
using vxtest::Results;
using vxtest::semaphoreName;
using vxtest::waitOn;
