/// @file VxMFCEmu.h
/// The whole library.
#pragma once

#include <VxMFCEmu/version.h>

#include <VxMFCEmu/text.h>

#include <VxMFCEmu/core.h>

#include <VxMFCEmu/coll.h>
#include <VxMFCEmu/sys.h>

#include <VxMFCEmu/wnd.h>

#include <VxMFCEmu/gdi.h>

#include <VxMFCEmu/dlg.h>

#include <VxMFCEmu/ctrl.h>
