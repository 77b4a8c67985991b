/// @file gdi.h
/// Drawing: the device context and the GDI objects.
#pragma once

#include <VxMFCEmu/gdi/bitmap.h>
#include <VxMFCEmu/gdi/brush.h>
#include <VxMFCEmu/gdi/colorref.h>
#include <VxMFCEmu/gdi/dc.h>
#include <VxMFCEmu/gdi/dccodes.h>
#include <VxMFCEmu/gdi/drawtext.h>
#include <VxMFCEmu/gdi/font.h>
#include <VxMFCEmu/gdi/gdiobject.h>
#include <VxMFCEmu/gdi/imagelist.h>
#include <VxMFCEmu/gdi/paintdc.h>
#include <VxMFCEmu/gdi/palette.h>
#include <VxMFCEmu/gdi/pen.h>
#include <VxMFCEmu/gdi/rgn.h>
#include <VxMFCEmu/gdi/selectedobject.h>
#include <VxMFCEmu/gdi/syscolors.h>
#include <VxMFCEmu/gdi/textmetrics.h>
#include <VxMFCEmu/gdi/vxcolor.h>
