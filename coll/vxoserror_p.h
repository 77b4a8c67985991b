// The Win32 numbers of the errors that the system reports.
#pragma once

#include <VxMFCEmu/types.h>

#include <QtCore/QByteArray>

namespace vx::detail {

/// The Win32 error number; 0 for 0, ERROR_GEN_FAILURE for what has none.
LONG osErrorOf(int nErrno) noexcept;
/// The same for what happened to a file: a file that is missing is told from a missing folder.
LONG osErrorOf(int nErrno, const QByteArray& path) noexcept;

/// The last call's failure in Win32's way: sets the last error and gives FALSE.
BOOL failWith(LONG lOsError) noexcept;
/// TRUE for 0, otherwise as failWith().
inline BOOL succeeded(LONG lOsError) noexcept { return lOsError == 0 || failWith(lOsError); }

} // namespace vx::detail
