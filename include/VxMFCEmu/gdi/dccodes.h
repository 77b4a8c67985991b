/// @file dccodes.h
/// The numbers that device contexts understand: modes, raster operations, text and edge flags.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

/// @{
/// A background mode.
inline constexpr int TRANSPARENT = 1;
inline constexpr int OPAQUE = 2;
/// @}

/// @{
/// An object of the stock.
inline constexpr int WHITE_BRUSH = 0;
inline constexpr int LTGRAY_BRUSH = 1;
inline constexpr int GRAY_BRUSH = 2;
inline constexpr int DKGRAY_BRUSH = 3;
inline constexpr int BLACK_BRUSH = 4;
inline constexpr int NULL_BRUSH = 5;
inline constexpr int HOLLOW_BRUSH = NULL_BRUSH;
inline constexpr int WHITE_PEN = 6;
inline constexpr int BLACK_PEN = 7;
inline constexpr int NULL_PEN = 8;
inline constexpr int OEM_FIXED_FONT = 10;
inline constexpr int ANSI_FIXED_FONT = 11;
inline constexpr int ANSI_VAR_FONT = 12;
inline constexpr int SYSTEM_FONT = 13;
inline constexpr int DEVICE_DEFAULT_FONT = 14;
inline constexpr int DEFAULT_PALETTE = 15;
inline constexpr int SYSTEM_FIXED_FONT = 16;
inline constexpr int DEFAULT_GUI_FONT = 17;
/// @}

/// @{
/// A ternary raster operation, for BitBlt() and PatBlt().
inline constexpr DWORD SRCCOPY = 0x00CC0020;
inline constexpr DWORD SRCPAINT = 0x00EE0086;
inline constexpr DWORD SRCAND = 0x008800C6;
inline constexpr DWORD SRCINVERT = 0x00660046;
inline constexpr DWORD SRCERASE = 0x00440328;
inline constexpr DWORD NOTSRCCOPY = 0x00330008;
inline constexpr DWORD NOTSRCERASE = 0x001100A6;
inline constexpr DWORD MERGECOPY = 0x00C000CA;
inline constexpr DWORD MERGEPAINT = 0x00BB0226;
inline constexpr DWORD PATCOPY = 0x00F00021;
inline constexpr DWORD PATPAINT = 0x00FB0A09;
inline constexpr DWORD PATINVERT = 0x005A0049;
inline constexpr DWORD DSTINVERT = 0x00550009;
inline constexpr DWORD BLACKNESS = 0x00000042;
inline constexpr DWORD WHITENESS = 0x00FF0062;
/// @}

/// @{
/// A binary raster operation, for SetROP2().
inline constexpr int R2_BLACK = 1;
inline constexpr int R2_NOTMERGEPEN = 2;
inline constexpr int R2_MASKNOTPEN = 3;
inline constexpr int R2_NOTCOPYPEN = 4;
inline constexpr int R2_MASKPENNOT = 5;
inline constexpr int R2_NOT = 6;
inline constexpr int R2_XORPEN = 7;
inline constexpr int R2_NOTMASKPEN = 8;
inline constexpr int R2_MASKPEN = 9;
inline constexpr int R2_NOTXORPEN = 10;
inline constexpr int R2_NOP = 11;
inline constexpr int R2_MERGENOTPEN = 12;
inline constexpr int R2_COPYPEN = 13;
inline constexpr int R2_MERGEPENNOT = 14;
inline constexpr int R2_MERGEPEN = 15;
inline constexpr int R2_WHITE = 16;
/// @}

/// @{
/// A mapping mode.
inline constexpr int MM_TEXT = 1;
inline constexpr int MM_LOMETRIC = 2;
inline constexpr int MM_HIMETRIC = 3;
inline constexpr int MM_LOENGLISH = 4;
inline constexpr int MM_HIENGLISH = 5;
inline constexpr int MM_TWIPS = 6;
inline constexpr int MM_ISOTROPIC = 7;
inline constexpr int MM_ANISOTROPIC = 8;
/// @}

/// @{
/// A stretching mode, or a direction of arcs.
inline constexpr int BLACKONWHITE = 1;
inline constexpr int WHITEONBLACK = 2;
inline constexpr int COLORONCOLOR = 3;
inline constexpr int HALFTONE = 4;
inline constexpr int AD_COUNTERCLOCKWISE = 1;
inline constexpr int AD_CLOCKWISE = 2;
/// @}

/// @{
/// A text format, for ToQtTextFlag().
inline constexpr UINT DT_TOP = 0x0;
inline constexpr UINT DT_LEFT = 0x0;
inline constexpr UINT DT_CENTER = 0x1;
inline constexpr UINT DT_RIGHT = 0x2;
inline constexpr UINT DT_VCENTER = 0x4;
inline constexpr UINT DT_BOTTOM = 0x8;
inline constexpr UINT DT_WORDBREAK = 0x10;
inline constexpr UINT DT_SINGLELINE = 0x20;
inline constexpr UINT DT_EXPANDTABS = 0x40;
inline constexpr UINT DT_TABSTOP = 0x80;
inline constexpr UINT DT_NOCLIP = 0x100;
inline constexpr UINT DT_EXTERNALLEADING = 0x200;
inline constexpr UINT DT_CALCRECT = 0x400;
inline constexpr UINT DT_NOPREFIX = 0x800;
inline constexpr UINT DT_INTERNAL = 0x1000;
inline constexpr UINT DT_EDITCONTROL = 0x2000;
inline constexpr UINT DT_PATH_ELLIPSIS = 0x4000;
inline constexpr UINT DT_END_ELLIPSIS = 0x8000;
inline constexpr UINT DT_MODIFYSTRING = 0x10000;
inline constexpr UINT DT_RTLREADING = 0x20000;
inline constexpr UINT DT_WORD_ELLIPSIS = 0x40000;
inline constexpr UINT DT_HIDEPREFIX = 0x100000;
/// @}

/// @{
/// A text alignment or an output option.
inline constexpr UINT TA_NOUPDATECP = 0;
inline constexpr UINT TA_UPDATECP = 1;
inline constexpr UINT TA_LEFT = 0;
inline constexpr UINT TA_RIGHT = 2;
inline constexpr UINT TA_CENTER = 6;
inline constexpr UINT TA_TOP = 0;
inline constexpr UINT TA_BOTTOM = 8;
inline constexpr UINT TA_BASELINE = 24;
inline constexpr UINT ETO_OPAQUE = 0x2;
inline constexpr UINT ETO_CLIPPED = 0x4;
/// @}

/// @{
/// A border or an edge of a rectangle, or how it is drawn.
inline constexpr UINT BDR_RAISEDOUTER = 0x1;
inline constexpr UINT BDR_SUNKENOUTER = 0x2;
inline constexpr UINT BDR_RAISEDINNER = 0x4;
inline constexpr UINT BDR_SUNKENINNER = 0x8;
inline constexpr UINT EDGE_RAISED = BDR_RAISEDOUTER | BDR_RAISEDINNER;
inline constexpr UINT EDGE_SUNKEN = BDR_SUNKENOUTER | BDR_SUNKENINNER;
inline constexpr UINT EDGE_ETCHED = BDR_SUNKENOUTER | BDR_RAISEDINNER;
inline constexpr UINT EDGE_BUMP = BDR_RAISEDOUTER | BDR_SUNKENINNER;
inline constexpr UINT BF_LEFT = 0x1;
inline constexpr UINT BF_TOP = 0x2;
inline constexpr UINT BF_RIGHT = 0x4;
inline constexpr UINT BF_BOTTOM = 0x8;
inline constexpr UINT BF_TOPLEFT = BF_TOP | BF_LEFT;
inline constexpr UINT BF_TOPRIGHT = BF_TOP | BF_RIGHT;
inline constexpr UINT BF_BOTTOMLEFT = BF_BOTTOM | BF_LEFT;
inline constexpr UINT BF_BOTTOMRIGHT = BF_BOTTOM | BF_RIGHT;
inline constexpr UINT BF_RECT = BF_LEFT | BF_TOP | BF_RIGHT | BF_BOTTOM;
inline constexpr UINT BF_MIDDLE = 0x800;
inline constexpr UINT BF_SOFT = 0x1000;
inline constexpr UINT BF_ADJUST = 0x2000;
inline constexpr UINT BF_FLAT = 0x4000;
inline constexpr UINT BF_MONO = 0x8000;
/// @}

/// @{
/// A device capability, or a value of one.
inline constexpr int TECHNOLOGY = 2;
inline constexpr int HORZSIZE = 4;
inline constexpr int VERTSIZE = 6;
inline constexpr int HORZRES = 8;
inline constexpr int VERTRES = 10;
inline constexpr int BITSPIXEL = 12;
inline constexpr int PLANES = 14;
inline constexpr int LOGPIXELSX = 88;
inline constexpr int LOGPIXELSY = 90;
inline constexpr int DT_RASDISPLAY = 1;
/// @}
