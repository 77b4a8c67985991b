/// @file sys.h
/// System services: the Win32 functions without windows.
#pragma once

#include <VxMFCEmu/sys/conditionvariable.h>
#include <VxMFCEmu/sys/criticalsection.h>
#include <VxMFCEmu/sys/errorcodes.h>
#include <VxMFCEmu/sys/event.h>
#include <VxMFCEmu/sys/handle.h>
#include <VxMFCEmu/sys/memory.h>
#include <VxMFCEmu/sys/muldiv.h>
#include <VxMFCEmu/sys/mutex.h>
#include <VxMFCEmu/sys/pointerchecks.h>
#include <VxMFCEmu/sys/profile.h>
#include <VxMFCEmu/sys/registry.h>
#include <VxMFCEmu/sys/registrytypes.h>
#include <VxMFCEmu/sys/securityattributes.h>
#include <VxMFCEmu/sys/semaphore.h>
#include <VxMFCEmu/sys/srwlock.h>
#include <VxMFCEmu/sys/systemtime.h>
#include <VxMFCEmu/sys/threads.h>
#include <VxMFCEmu/sys/tls.h>
#include <VxMFCEmu/sys/wait.h>
