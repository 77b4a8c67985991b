/// @file palette.h
/// Colour palettes.
///
/// Differs from Win32: a palette is its entries; it has no handle. GetPaletteEntries() only counts.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/gdi/gdiobject.h>

#include <vector>

/// @{
/// A flag of a palette entry.
inline constexpr BYTE PC_RESERVED = 1;
inline constexpr BYTE PC_EXPLICIT = 2;
inline constexpr BYTE PC_NOCOLLAPSE = 4;
/// @}

class CDC_E;

/// One colour, in 32 bits.
struct tagPALETTEENTRY
{
    BYTE peRed;   ///< 0 to 255
    BYTE peGreen; ///< 0 to 255
    BYTE peBlue;  ///< 0 to 255
    BYTE peFlags; ///< PC_*
};
using PALETTEENTRY = tagPALETTEENTRY;    ///< its usual name
using LPPALETTEENTRY = tagPALETTEENTRY*; ///< a pointer to one
static_assert(sizeof(PALETTEENTRY) == 4);

/// What a palette is made from.
struct tagLOGPALETTE
{
    WORD palVersion;                ///< not used
    WORD palNumEntries;             ///< number of entries that follow
    tagPALETTEENTRY palPalEntry[1]; ///< the first of palNumEntries entries
};
using LOGPALETTE = tagLOGPALETTE;    ///< its usual name
using LPLOGPALETTE = tagLOGPALETTE*; ///< a pointer to one

/// A palette.
class VXMFC_EXPORT CPalette_E : public CGdiObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CPalette_E)

    /// FromHandle() of the base, as an object of this class.
    static CPalette_E* FromHandle(HPALETTE hPalette);

    /// Appends the entries of @p pLogPalette to those there are (intended); 0 for null, else 1.
    BOOL CreatePalette(const tagLOGPALETTE* pLogPalette);
    /// Does nothing; returns 0.
    BOOL CreateHalftonePalette(CDC_E* pDC);
    /// The number of entries.
    int GetEntryCount() const;
    /// Copies nothing (intended). Returns @p nNumEntries, or the number of entries less @p
    /// nStartIndex when there are fewer; 0 for null and for a start at the end. From a start
    /// beyond the end the difference wraps around (intended).
    UINT GetPaletteEntries(UINT nStartIndex, UINT nNumEntries,
                           tagPALETTEENTRY* lpPaletteColors) const;
    /// Overwrites entries, up to the last one; returns how many. 0 for null.
    UINT SetPaletteEntries(UINT nStartIndex, UINT nNumEntries,
                           const tagPALETTEENTRY* lpPaletteColors);
    /// Does nothing.
    void AnimatePalette(UINT nStartIndex, UINT nNumEntries, const tagPALETTEENTRY* lpPaletteColors);
    /// Cuts the palette or fills it up with (0, 0, 0, 0); FALSE beyond 2^24 entries.
    BOOL ResizePalette(UINT nNumEntries);
    /// The first of the entries with the smallest sum of the differences in red, green and blue; 0
    /// for an empty palette.
    UINT GetNearestPaletteIndex(COLORREF crColor) const;

    /// The entries.
    const std::vector<PALETTEENTRY>& Entries() const { return m_entries; }

private:
    std::vector<PALETTEENTRY> m_entries;
};
