/// @file windowfunctions.h
/// The Win32 functions over windows, where a window is a `QWidget*`.
#pragma once

#include <VxMFCEmu/wnd/rectfunctions.h>
#include <VxMFCEmu/wnd/windowgeometry.h>
#include <VxMFCEmu/wnd/windowstate.h>
#include <VxMFCEmu/wnd/windowtext.h>
#include <VxMFCEmu/wnd/windowtree.h>
