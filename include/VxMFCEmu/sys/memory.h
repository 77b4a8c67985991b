/// @file memory.h
/// Global and local memory.
///
/// Differs from Win32: a handle is the address of the data itself, so that locking gives it back;
/// blocks are zero-filled whatever the flags say, and global and local memory are the same.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

/// @{
/// A flag of global memory; ignored.
inline constexpr UINT GMEM_FIXED = 0x0000;
inline constexpr UINT GMEM_MOVEABLE = 0x0002;
inline constexpr UINT GMEM_NOCOMPACT = 0x0010;
inline constexpr UINT GMEM_NODISCARD = 0x0020;
inline constexpr UINT GMEM_ZEROINIT = 0x0040;
inline constexpr UINT GMEM_MODIFY = 0x0080;
inline constexpr UINT GMEM_DISCARDABLE = 0x0100;
inline constexpr UINT GMEM_NOT_BANKED = 0x1000;
inline constexpr UINT GMEM_SHARE = 0x2000;
inline constexpr UINT GMEM_DDESHARE = 0x2000;
inline constexpr UINT GMEM_NOTIFY = 0x4000;
inline constexpr UINT GHND = GMEM_MOVEABLE | GMEM_ZEROINIT;
inline constexpr UINT GPTR = GMEM_FIXED | GMEM_ZEROINIT;
/// @}

/// @{
/// A flag of local memory; ignored.
inline constexpr UINT LMEM_FIXED = 0x0000;
inline constexpr UINT LMEM_MOVEABLE = 0x0002;
inline constexpr UINT LMEM_NOCOMPACT = 0x0010;
inline constexpr UINT LMEM_NODISCARD = 0x0020;
inline constexpr UINT LMEM_ZEROINIT = 0x0040;
inline constexpr UINT LMEM_MODIFY = 0x0080;
inline constexpr UINT LMEM_DISCARDABLE = 0x0F00;
inline constexpr UINT LHND = LMEM_MOVEABLE | LMEM_ZEROINIT;
inline constexpr UINT LPTR = LMEM_FIXED | LMEM_ZEROINIT;
/// @}

/// A new block of @p nBytes zero bytes, owned by the caller; null when there is no memory. The
/// flags are ignored.
VXMFC_EXPORT HGLOBAL GlobalAlloc_E(UINT uFlags, SIZE_T nBytes);
/// The same as GlobalAlloc_E().
VXMFC_EXPORT HLOCAL LocalAlloc_E(UINT uFlags, SIZE_T nBytes);

/// The block itself.
VXMFC_EXPORT LPVOID GlobalLock_E(HGLOBAL hMem);
/// The block itself.
VXMFC_EXPORT HGLOBAL GlobalHandle_E(LPCVOID pMem);
/// Always TRUE. Differs from Win32: there is no lock count.
VXMFC_EXPORT BOOL GlobalUnlock_E(HGLOBAL hMem);

/// Frees the block; null is ignored. Always null.
VXMFC_EXPORT HGLOBAL GlobalFree_E(HGLOBAL hMem);
/// The same as GlobalFree_E().
VXMFC_EXPORT HLOCAL LocalFree_E(HLOCAL hMem);

/// Moves the block to a new one of @p nBytes, which holds what fits of the old data and zeros after
/// it; owned by the caller in its place. A null block is allocated. Null when there is no memory;
/// the old block stays as it is. Differs from Win32: the block always moves, and the flags are
/// ignored.
VXMFC_EXPORT HGLOBAL GlobalReAlloc_E(HGLOBAL hMem, SIZE_T nBytes, UINT uFlags);
/// The same as GlobalReAlloc_E().
VXMFC_EXPORT HLOCAL LocalReAlloc_E(HLOCAL hMem, SIZE_T nBytes, UINT uFlags);
