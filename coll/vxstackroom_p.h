// Not part of the public interface. How deep objects in objects may go.
#pragma once

namespace vx::detail {

/// Whether the calling thread has little stack left. Also false where that is not known, as on a
/// stack that the program made itself.
bool stackIsLow();

} // namespace vx::detail
