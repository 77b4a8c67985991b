/// @file font.h
/// Fonts.
///
/// Differs from Win32: a font object is a `QFont` as well, so that it can be handed to any Qt call.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/gdi/gdiobject.h>

#include <QtGui/QFont>

/// Size of a face name, with the terminator.
inline constexpr int LF_FACESIZE = 32;

/// @{
/// A weight of a font.
inline constexpr int FW_DONTCARE = 0;
inline constexpr int FW_THIN = 100;
inline constexpr int FW_EXTRALIGHT = 200;
inline constexpr int FW_ULTRALIGHT = 200;
inline constexpr int FW_LIGHT = 300;
inline constexpr int FW_NORMAL = 400;
inline constexpr int FW_REGULAR = 400;
inline constexpr int FW_MEDIUM = 500;
inline constexpr int FW_SEMIBOLD = 600;
inline constexpr int FW_DEMIBOLD = 600;
inline constexpr int FW_BOLD = 700;
inline constexpr int FW_EXTRABOLD = 800;
inline constexpr int FW_ULTRABOLD = 800;
inline constexpr int FW_HEAVY = 900;
inline constexpr int FW_BLACK = 900;
/// @}

/// @{
/// A character set.
inline constexpr BYTE ANSI_CHARSET = 0;
inline constexpr BYTE DEFAULT_CHARSET = 1;
inline constexpr BYTE SYMBOL_CHARSET = 2;
inline constexpr BYTE SHIFTJIS_CHARSET = 128;
inline constexpr BYTE HANGUL_CHARSET = 129;
inline constexpr BYTE GB2312_CHARSET = 134;
inline constexpr BYTE CHINESEBIG5_CHARSET = 136;
inline constexpr BYTE GREEK_CHARSET = 161;
inline constexpr BYTE TURKISH_CHARSET = 162;
inline constexpr BYTE HEBREW_CHARSET = 177;
inline constexpr BYTE ARABIC_CHARSET = 178;
inline constexpr BYTE BALTIC_CHARSET = 186;
inline constexpr BYTE RUSSIAN_CHARSET = 204;
inline constexpr BYTE THAI_CHARSET = 222;
inline constexpr BYTE EASTEUROPE_CHARSET = 238;
inline constexpr BYTE OEM_CHARSET = 255;
/// @}

/// @{
/// An output precision.
inline constexpr BYTE OUT_DEFAULT_PRECIS = 0;
inline constexpr BYTE OUT_STRING_PRECIS = 1;
inline constexpr BYTE OUT_CHARACTER_PRECIS = 2;
inline constexpr BYTE OUT_STROKE_PRECIS = 3;
inline constexpr BYTE OUT_TT_PRECIS = 4;
inline constexpr BYTE OUT_DEVICE_PRECIS = 5;
inline constexpr BYTE OUT_RASTER_PRECIS = 6;
inline constexpr BYTE OUT_TT_ONLY_PRECIS = 7;
inline constexpr BYTE OUT_OUTLINE_PRECIS = 8;
/// @}

/// @{
/// A clip precision.
inline constexpr BYTE CLIP_DEFAULT_PRECIS = 0;
inline constexpr BYTE CLIP_CHARACTER_PRECIS = 1;
inline constexpr BYTE CLIP_STROKE_PRECIS = 2;
inline constexpr BYTE CLIP_LH_ANGLES = 0x10;
inline constexpr BYTE CLIP_TT_ALWAYS = 0x20;
inline constexpr BYTE CLIP_EMBEDDED = 0x80;
/// @}

/// @{
/// A quality of a font.
inline constexpr BYTE DEFAULT_QUALITY = 0;
inline constexpr BYTE DRAFT_QUALITY = 1;
inline constexpr BYTE PROOF_QUALITY = 2;
inline constexpr BYTE NONANTIALIASED_QUALITY = 3;
inline constexpr BYTE ANTIALIASED_QUALITY = 4;
inline constexpr BYTE CLEARTYPE_QUALITY = 5;
/// @}

/// @{
/// A pitch or a family of fonts.
inline constexpr BYTE DEFAULT_PITCH = 0;
inline constexpr BYTE FIXED_PITCH = 1;
inline constexpr BYTE VARIABLE_PITCH = 2;
inline constexpr BYTE FF_DONTCARE = 0x00;
inline constexpr BYTE FF_ROMAN = 0x10;
inline constexpr BYTE FF_SWISS = 0x20;
inline constexpr BYTE FF_MODERN = 0x30;
inline constexpr BYTE FF_SCRIPT = 0x40;
inline constexpr BYTE FF_DECORATIVE = 0x50;
/// @}

class CDC_E;

/// What a font is made from.
struct tagLOGFONT
{
    LONG lfHeight;         ///< pixels: > 0 of a line, < 0 of the characters alone, 0 the default
    LONG lfWidth;          ///< average width of a character in pixels, 0 as the font has it
    LONG lfEscapement;     ///< tenths of a degree; kept, not drawn
    LONG lfOrientation;    ///< kept only
    LONG lfWeight;         ///< FW_THIN to FW_BLACK
    BYTE lfItalic;         ///< not 0 for italic
    BYTE lfUnderline;      ///< not 0 for underlined
    BYTE lfStrikeOut;      ///< not 0 for struck out
    BYTE lfCharSet;        ///< kept only, as are the two precisions
    BYTE lfOutPrecision;   ///< OUT_*
    BYTE lfClipPrecision;  ///< CLIP_*
    BYTE lfQuality;        ///< *_QUALITY
    BYTE lfPitchAndFamily; ///< chooses the font when there is none of that name
    WCHAR lfFaceName[LF_FACESIZE]; ///< name of the family
};
using LOGFONT = tagLOGFONT;    ///< its usual name
using LOGFONTW = tagLOGFONT;   ///< its usual name
using LPLOGFONT = tagLOGFONT*; ///< a pointer to one

/// A font. Its handle is a `QFont` of its own; the object itself is that font too, and the one that
/// is drawn with.
class VXMFC_EXPORT CFont_E : public CGdiObject_E, public QFont
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CFont_E)

    /// An empty object, as `QFont` the default font.
    CFont_E() = default;

    /// FromHandle() of the base, as an object of this class.
    static CFont_E* FromHandle(HFONT hFont);
    /// Binds @p hFont and becomes equal to it; FALSE for null.
    BOOL Attach(HFONT hFont);

    /// CreateFontIndirect() of a description with these fields. A null face name is an empty one.
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                    BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                    BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily,
                    LPCWSTR lpszFacename);
    /// FALSE for null.
    BOOL CreateFontIndirect(const tagLOGFONT* lpLogFont);
    /// A font of @p nPointSize tenths of a point, which the device it is drawn on turns into
    /// pixels. @p pDC is ignored. FALSE for a size that is not positive.
    BOOL CreatePointFont(int nPointSize, LPCWSTR lpszFaceName, CDC_E* pDC = nullptr);
    /// The same with lfHeight in tenths of a point.
    BOOL CreatePointFontIndirect(const tagLOGFONT* lpLogFont, CDC_E* pDC = nullptr);

    /// Describes the font: what it was made from or, for one that came otherwise or has been
    /// changed as a `QFont` since, what can be read from that. 0 for an empty object and for null,
    /// else 1.
    int GetLogFont(tagLOGFONT* pLogFont) const;

protected:
    FreeHandleFn HandleDeleter() const override;

private:
    BOOL Create(const tagLOGFONT& logFont, const QFont& font);

    tagLOGFONT m_logFont{}; ///< what the font was made from
    bool m_hasLogFont = false;
};
