/// @file securityattributes.h
/// The security attributes that functions which make objects take.
///
/// Differs from Win32: they are ignored everywhere.
#pragma once

#include <VxMFCEmu/types.h>

/// Ignored wherever it is taken.
struct _SECURITY_ATTRIBUTES
{
    DWORD nLength;               ///< ignored
    LPVOID lpSecurityDescriptor; ///< ignored
    BOOL bInheritHandle;         ///< ignored
};
using SECURITY_ATTRIBUTES = _SECURITY_ATTRIBUTES;    ///< its usual name
using PSECURITY_ATTRIBUTES = _SECURITY_ATTRIBUTES*;  ///< a pointer to one
using LPSECURITY_ATTRIBUTES = _SECURITY_ATTRIBUTES*; ///< a pointer to one
