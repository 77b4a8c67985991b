/// @file core.h
/// The runtime core: object model, class records, module state, handle maps, exceptions, diagnostics.
#pragma once

#include <VxMFCEmu/core/cmdtarget.h>
#include <VxMFCEmu/core/object.h>
#include <VxMFCEmu/core/runtimeclass.h>
