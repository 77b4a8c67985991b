// Not part of the public interface.
#pragma once

class QAbstractButton;

namespace vx::detail {

/// Unchecks a button, also the only checked one of an exclusive group, which Qt would not let go.
void uncheck(QAbstractButton* pButton);

} // namespace vx::detail
