/// @file bstr.h
/// Length-prefixed strings, as automation records carry them.
///
/// A `BSTR` points at terminated wide text that the length in bytes precedes, in 32 bits.
///
/// Differs from Win32: characters are 32 bits wide, so the byte length is four times the character
/// count. Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

/// Terminated wide text with its length in bytes in front.
using BSTR = wchar_t*;

/// A copy of @p pszText, owned by the caller (SysFreeString_E()); null for null and when memory is
/// out.
VXMFC_EXPORT BSTR SysAllocString_E(const wchar_t* pszText);
/// The same of @p nLength characters, which may include zeros; null @p pText leaves them zero.
VXMFC_EXPORT BSTR SysAllocStringLen_E(const wchar_t* pText, UINT nLength);
/// Frees a string; null is ignored.
VXMFC_EXPORT void SysFreeString_E(BSTR bstr);
/// Length in characters; 0 for null.
VXMFC_EXPORT UINT SysStringLen_E(BSTR bstr);
/// Length in bytes; 0 for null.
VXMFC_EXPORT UINT SysStringByteLen_E(BSTR bstr);
