/// @file securityattributes.h
/// The security attributes that functions which make objects take.
///
/// Differs from Win32: they are ignored everywhere.
#pragma once

#include <VxMFCEmu/types.h>

struct _SECURITY_ATTRIBUTES
{
    DWORD nLength;
    LPVOID lpSecurityDescriptor;
    BOOL bInheritHandle;
};
using SECURITY_ATTRIBUTES = _SECURITY_ATTRIBUTES;
using PSECURITY_ATTRIBUTES = _SECURITY_ATTRIBUTES*;
using LPSECURITY_ATTRIBUTES = _SECURITY_ATTRIBUTES*;
