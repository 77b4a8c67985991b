/// @file textmetrics.h
/// The measures of a font, for CDC_E::GetTextMetrics().
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

/// Lengths in pixels.
struct tagTEXTMETRICW
{
    LONG tmHeight;           ///< ascent and descent
    LONG tmAscent;           ///< above the base line
    LONG tmDescent;          ///< below the base line
    LONG tmInternalLeading;  ///< what the height has beyond the size of the font
    LONG tmExternalLeading;  ///< between two lines
    LONG tmAveCharWidth;     ///< pixels
    LONG tmMaxCharWidth;     ///< pixels
    LONG tmWeight;           ///< 700 for bold fonts, 400 for others
    LONG tmOverhang;         ///< 0
    LONG tmDigitizedAspectX; ///< pixels per inch
    LONG tmDigitizedAspectY; ///< pixels per inch
    WCHAR tmFirstChar;       ///< the whole of Unicode: missing characters come from other fonts
    WCHAR tmLastChar;        ///< see tmFirstChar
    WCHAR tmDefaultChar;     ///< U+FFFD
    WCHAR tmBreakChar;       ///< the blank
    BYTE tmItalic;           ///< not 0 for italic
    BYTE tmUnderlined;       ///< not 0 for underlined
    BYTE tmStruckOut;        ///< not 0 for struck out
    BYTE tmPitchAndFamily;   ///< TMPF_FIXED_PITCH, which despite its name is set for the others
    BYTE tmCharSet;          ///< a *_CHARSET
};
using TEXTMETRIC = tagTEXTMETRICW;    ///< its usual name
using TEXTMETRICW = tagTEXTMETRICW;   ///< its usual name
using LPTEXTMETRIC = tagTEXTMETRICW*; ///< a pointer to one

/// A bit of the pitch: set for proportional fonts, whatever its name says.
inline constexpr BYTE TMPF_FIXED_PITCH = 1;
