// Not part of the public interface. The calling plug-in, found faster.
#pragma once

#include <QtCore/QString>

namespace vx::detail {

/// GetMfyResourceName() for a function that returns to @p pReturnAddress: when this is in a plug-in
/// already, the call stack need not be walked.
QString resourceNameFrom(const void* pReturnAddress);

} // namespace vx::detail
