// Waiting in GUI tests: always on a predicate, with a limit.
#pragma once

#include <functional>

namespace vxtest {

/// Runs the event loop until @p done holds; false when it does not within @p limitMs milliseconds.
bool waitUntil(const std::function<bool()>& done, int limitMs = 5000);

/// Delivers what is posted, without waiting.
void deliverPosted();

} // namespace vxtest
