/// @file textmetrics.h
/// The measures of a font, for CDC_E::GetTextMetrics().
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

/// Lengths in pixels.
struct tagTEXTMETRICW
{
    LONG tmHeight; ///< ascent and descent
    LONG tmAscent;
    LONG tmDescent;
    LONG tmInternalLeading; ///< what the height has beyond the size of the font
    LONG tmExternalLeading; ///< between two lines
    LONG tmAveCharWidth;
    LONG tmMaxCharWidth;
    LONG tmWeight; ///< 700 for bold fonts, 400 for others
    LONG tmOverhang;
    LONG tmDigitizedAspectX; ///< pixels per inch
    LONG tmDigitizedAspectY;
    WCHAR tmFirstChar; ///< the whole of Unicode: missing characters come from other fonts
    WCHAR tmLastChar;
    WCHAR tmDefaultChar;
    WCHAR tmBreakChar;
    BYTE tmItalic;
    BYTE tmUnderlined;
    BYTE tmStruckOut;
    BYTE tmPitchAndFamily; ///< TMPF_FIXED_PITCH, which despite its name is set for the others
    BYTE tmCharSet;
};
using TEXTMETRIC = tagTEXTMETRICW;
using TEXTMETRICW = tagTEXTMETRICW;
using LPTEXTMETRIC = tagTEXTMETRICW*;

inline constexpr BYTE TMPF_FIXED_PITCH = 1;
