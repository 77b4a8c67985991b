/// @file resourcename.h
/// The resource base name: which plug-in is calling.
#pragma once

#include <VxMFCEmu/types.h>

#include <QtCore/QString>

/// The resource base name of the calling plug-in: of the first frame on the call stack, within 16,
/// that belongs to none of the three emulation libraries, the module's file name without its folder
/// and a leading "lib", cut at the first ".". "/x/libGizmo.so.2" and "/x/Gizmo" both give "Gizmo".
/// Empty when there is no such frame.
///
/// A function that ends in a call of this library may have handed its frame over (a tail call, with
/// optimisation): then the next frame counts, which is the wrong one when that belongs to another
/// module. Use the result, or compile such a function with -fno-optimize-sibling-calls.
VXMFC_EXPORT QString GetMfyResourceName();

/// Whether @p strModule, a module's file name without folder and extension, names one of the three
/// emulation libraries; with or without "lib", case-sensitive.
VXMFC_EXPORT bool isCurrentLibrary(const QString& strModule);
