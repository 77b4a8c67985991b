/// @file tls.h
/// Thread-local storage slots.
///
/// Differs from Win32: TlsSetValue_E() returns 0 for success.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

/// What TlsAlloc_E() returns when there is no slot left.
inline constexpr DWORD TLS_OUT_OF_INDEXES = 0xFFFFFFFFU;

/// A new slot, null in every thread; nothing is done with its values when a thread ends.
/// TLS_OUT_OF_INDEXES when there is none left.
VXMFC_EXPORT DWORD TlsAlloc_E();
/// The calling thread's value; null when it has none and for a slot that does not exist.
VXMFC_EXPORT LPVOID TlsGetValue_E(DWORD dwTlsIndex);
/// Sets the calling thread's value. Differs from Win32: 0 means success, anything else is the error
/// number.
VXMFC_EXPORT int TlsSetValue_E(DWORD dwTlsIndex, LPVOID pValue);
/// Gives a slot back; FALSE when it does not exist.
VXMFC_EXPORT BOOL TlsFree_E(DWORD dwTlsIndex);
