// Not part of the public interface. How deep objects in objects may go.
#pragma once

#include <cstddef>

namespace vx::detail {

/// How much of its stack the calling thread has left, in bytes; the greatest number where that is
/// not known.
std::size_t stackLeft();

/// Whether the calling thread has little stack left. Also false where that is not known, as on a
/// stack that the program made itself.
bool stackIsLow();

} // namespace vx::detail
