#include <VxMFCEmu/gdi/palette.h>

#include "gdi/vxgdiobject_p.h"

#include <VxMFCEmu/gdi/colorref.h>

#include <cstdlib>
#include <new>
#include <stdexcept>

IMPLEMENT_DYNAMIC_E(CPalette_E, CGdiObject_E, QObject)

CPalette_E* CPalette_E::FromHandle(HPALETTE hPalette)
{
    return vx::detail::gdiObjectFromHandle<CPalette_E>(hPalette);
}

BOOL CPalette_E::CreatePalette(const tagLOGPALETTE* pLogPalette)
{
    if (!pLogPalette)
        return 0;
    const PALETTEENTRY* const pFirst = pLogPalette->palPalEntry;
    m_entries.insert(m_entries.end(), pFirst, pFirst + pLogPalette->palNumEntries);
    return 1;
}

BOOL CPalette_E::CreateHalftonePalette(CDC_E*) { return 0; }

int CPalette_E::GetEntryCount() const { return static_cast<int>(m_entries.size()); }

UINT CPalette_E::GetPaletteEntries(UINT nStartIndex, UINT nNumEntries,
                                   tagPALETTEENTRY* lpPaletteColors) const
{
    if (!lpPaletteColors)
        return 0;
    // Intended: counts only, and from beyond the end the difference wraps around.
    const bool bBeyond = std::size_t{nStartIndex} + nNumEntries > m_entries.size();
    return bBeyond ? static_cast<UINT>(m_entries.size()) - nStartIndex : nNumEntries;
}

UINT CPalette_E::SetPaletteEntries(UINT nStartIndex, UINT nNumEntries,
                                   const tagPALETTEENTRY* lpPaletteColors)
{
    if (!lpPaletteColors || nStartIndex >= m_entries.size())
        return 0;
    const UINT nCount = qMin(nNumEntries, static_cast<UINT>(m_entries.size()) - nStartIndex);
    std::copy_n(lpPaletteColors, nCount, m_entries.begin() + nStartIndex);
    return nCount;
}

void CPalette_E::AnimatePalette(UINT, UINT, const tagPALETTEENTRY*) {}

BOOL CPalette_E::ResizePalette(UINT nNumEntries)
{
    constexpr UINT kMostEntries = 1U << 24; // as many as there are colours
    if (nNumEntries > kMostEntries)
        return 0;
    m_entries.resize(nNumEntries);
    return 1;
}

UINT CPalette_E::GetNearestPaletteIndex(COLORREF crColor) const
{
    const auto distance = [crColor](const PALETTEENTRY& entry) {
        return std::abs(GetRValue(crColor) - entry.peRed) +
               std::abs(GetGValue(crColor) - entry.peGreen) +
               std::abs(GetBValue(crColor) - entry.peBlue);
    };
    std::size_t nearest = 0;
    int smallest = 3 * 256;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const int d = distance(m_entries[i]);
        if (d < smallest) {
            smallest = d;
            nearest = i;
        }
    }
    return static_cast<UINT>(nearest);
}
