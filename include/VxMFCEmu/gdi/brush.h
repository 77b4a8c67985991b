/// @file brush.h
/// Brushes.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/gdi/gdiobject.h>

#include <utility>

/// @{
/// A brush style.
inline constexpr UINT BS_SOLID = 0;
inline constexpr UINT BS_NULL = 1;
inline constexpr UINT BS_HOLLOW = 1;
inline constexpr UINT BS_HATCHED = 2;
inline constexpr UINT BS_PATTERN = 3;
inline constexpr UINT BS_INDEXED = 4;
inline constexpr UINT BS_DIBPATTERN = 5;
inline constexpr UINT BS_DIBPATTERNPT = 6;
inline constexpr UINT BS_PATTERN8X8 = 7;
inline constexpr UINT BS_DIBPATTERN8X8 = 8;
inline constexpr UINT BS_MONOPATTERN = 9;
/// @}

/// @{
/// A hatch style.
inline constexpr int HS_HORIZONTAL = 0;
inline constexpr int HS_VERTICAL = 1;
inline constexpr int HS_FDIAGONAL = 2;
inline constexpr int HS_BDIAGONAL = 3;
inline constexpr int HS_CROSS = 4;
inline constexpr int HS_DIAGCROSS = 5;
/// @}

class CBitmap_E;

/// What a brush is made from.
struct tagLOGBRUSH
{
    UINT lbStyle;      ///< BS_SOLID, BS_HATCHED, ...
    COLORREF lbColor;  ///< of a solid or hatched brush
    ULONG_PTR lbHatch; ///< HS_HORIZONTAL, ... of a hatched brush
};
using LOGBRUSH = tagLOGBRUSH;    ///< its usual name
using LPLOGBRUSH = tagLOGBRUSH*; ///< a pointer to one

/// A brush; its handle is a `QBrush`.
class VXMFC_EXPORT CBrush_E : public CGdiObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CBrush_E)

    /// An empty object.
    CBrush_E() = default;
    /// As CreateSolidBrush().
    explicit CBrush_E(COLORREF crColor);
    /// As CreateHatchBrush().
    CBrush_E(int nHatch, COLORREF crColor);
    /// As CreatePatternBrush().
    explicit CBrush_E(CBitmap_E* pBitmap);

    /// FromHandle() of the base, as an object of this class.
    static CBrush_E* FromHandle(HBRUSH hBrush);

    /// Makes a brush of one colour.
    BOOL CreateSolidBrush(COLORREF crColor);
    /// A brush that draws nothing for an unknown hatch.
    BOOL CreateHatchBrush(int nHatch, COLORREF crColor);
    /// A brush of the image that @p pBitmap has now. 0 for a null or empty bitmap.
    BOOL CreatePatternBrush(CBitmap_E* pBitmap);
    /// Makes solid and hatched brushes; 0 for null and for any other style.
    BOOL CreateBrushIndirect(const tagLOGBRUSH* pLogBrush);
    /// The window background of the host's main frame, whatever @p nIndex (intended); a brush that
    /// draws nothing without a main frame.
    BOOL CreateSysColorBrush(int nIndex);

    /// Describes the brush; 0 for an empty object and for null, else 1.
    int GetLogBrush(tagLOGBRUSH* pLogBrush) const;

    /// `Qt::NoBrush` for an unknown hatch.
    static Qt::BrushStyle mapToBrushStyle(int nHatch);
    /// lbStyle and lbHatch; (0, 0) for a style that Win32 has none for.
    static std::pair<UINT, ULONG_PTR> mapToHatchStyle(Qt::BrushStyle style);

protected:
    FreeHandleFn HandleDeleter() const override;
};
