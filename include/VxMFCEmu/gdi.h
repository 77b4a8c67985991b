/// @file gdi.h
/// Drawing: the device context and the GDI objects.
#pragma once

#include <VxMFCEmu/gdi/dc.h>
#include <VxMFCEmu/gdi/gdiobject.h>
#include <VxMFCEmu/gdi/imagelist.h>
