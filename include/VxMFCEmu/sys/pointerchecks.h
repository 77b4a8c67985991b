/// @file pointerchecks.h
/// The IsBad*Ptr functions.
///
/// Differs from Win32: no memory is looked at; in the main a pointer is bad when it is null.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

/// TRUE for null and, differing from Win32, for a size of 0 whatever the pointer.
VXMFC_EXPORT BOOL IsBadReadPtr_E(LPCVOID lp, UINT_PTR ucb);
/// TRUE for null and, differing from Win32, for null with a size of 0 too.
VXMFC_EXPORT BOOL IsBadWritePtr_E(LPVOID lp, UINT_PTR ucb);
/// TRUE for null, unless @p ucchMax is 0.
VXMFC_EXPORT BOOL IsBadStringPtr_E(LPCWSTR lpsz, UINT_PTR ucchMax);
