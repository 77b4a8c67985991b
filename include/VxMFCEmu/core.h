/// @file core.h
/// The runtime core: object model, class records, module state, handle maps, exceptions,
/// diagnostics.
#pragma once

#include <VxMFCEmu/core/bstr.h>
#include <VxMFCEmu/core/cmdtarget.h>
#include <VxMFCEmu/core/dumpcontext.h>
#include <VxMFCEmu/core/exceptions.h>
#include <VxMFCEmu/core/extensionmodule.h>
#include <VxMFCEmu/core/fixedalloc.h>
#include <VxMFCEmu/core/handlemap.h>
#include <VxMFCEmu/core/lasterror.h>
#include <VxMFCEmu/core/log.h>
#include <VxMFCEmu/core/mapptrtoptr.h>
#include <VxMFCEmu/core/memorystate.h>
#include <VxMFCEmu/core/modulestate.h>
#include <VxMFCEmu/core/notrackobject.h>
#include <VxMFCEmu/core/object.h>
#include <VxMFCEmu/core/plex.h>
#include <VxMFCEmu/core/position.h>
#include <VxMFCEmu/core/runtimeclass.h>
#include <VxMFCEmu/core/simplelist.h>
#include <VxMFCEmu/core/threadlocal.h>
#include <VxMFCEmu/core/threadslots.h>
