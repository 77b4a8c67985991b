// What can be done with a descriptor. Each gives the Win32 error number, 0 for success.
#pragma once

#include <VxMFCEmu/types.h>

#include <cstddef>

namespace vx::detail {

/// Both store how many bytes it were, also on failure; reading gets fewer only at the end.
LONG readBytes(int fd, void* pBuffer, std::size_t nCount, std::size_t& nDone) noexcept;
LONG writeBytes(int fd, const void* pBuffer, std::size_t nCount, std::size_t& nDone) noexcept;
/// @p nFrom is 0, 1 or 2 for begin, position and end.
LONG seekTo(int fd, LONGLONG nOffset, UINT nFrom, ULONGLONG& nPosition) noexcept;
LONG lengthOf(int fd, ULONGLONG& nLength) noexcept;
LONG setLength(int fd, ULONGLONG nLength) noexcept;
/// A range that reaches up to the marks of sharing is cut off there.
LONG setRangeLock(int fd, ULONGLONG nFirst, ULONGLONG nCount, bool bLock) noexcept;
/// Drops every lock of an open file, the marks of sharing too.
void releaseLocks(int fd) noexcept;
/// Waits for the disk.
LONG syncToDisk(int fd) noexcept;

/// What became of a call that needs the file to be open for reading or writing (`O_RDONLY`,
/// `O_WRONLY`): the system does not tell a wrong mode from a wrong descriptor.
LONG errorOfUse(int fd, int nErrno, int access) noexcept;

} // namespace vx::detail
