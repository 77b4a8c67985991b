/// @file sys.h
/// System services: the Win32 functions without windows.
#pragma once

#include <VxMFCEmu/sys/criticalsection.h>
#include <VxMFCEmu/sys/errorcodes.h>
#include <VxMFCEmu/sys/memory.h>
#include <VxMFCEmu/sys/profile.h>
#include <VxMFCEmu/sys/registry.h>
#include <VxMFCEmu/sys/registrytypes.h>
#include <VxMFCEmu/sys/tls.h>
