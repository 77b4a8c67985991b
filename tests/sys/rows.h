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

} // namespace vxtest

using vxtest::Results;
using vxtest::semaphoreName;
using vxtest::waitOn;
