// Private: clean-ups that wait for idle time.
#pragma once

namespace vx::detail {

/// Calls @p pfnCleanUp once at the next idle time without a running host command, however often it
/// is asked for until then. Without an event loop nothing happens. GUI thread only.
void cleanUpAtIdle(void (*pfnCleanUp)());

} // namespace vx::detail
