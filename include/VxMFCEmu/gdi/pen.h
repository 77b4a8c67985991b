/// @file pen.h
/// Pens.
///
/// Differs from Win32: a pen of a style other than the five line styles draws nothing, geometric
/// and cosmetic pens of a line style included.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/gdi/gdiobject.h>

/// @{
/// A part of the style of a pen.
inline constexpr int PS_SOLID = 0;
inline constexpr int PS_DASH = 1;
inline constexpr int PS_DOT = 2;
inline constexpr int PS_DASHDOT = 3;
inline constexpr int PS_DASHDOTDOT = 4;
inline constexpr int PS_NULL = 5;
inline constexpr int PS_INSIDEFRAME = 6;
inline constexpr int PS_USERSTYLE = 7;
inline constexpr int PS_ALTERNATE = 8;
inline constexpr int PS_STYLE_MASK = 0x0000000F;
inline constexpr int PS_ENDCAP_ROUND = 0x00000000;
inline constexpr int PS_ENDCAP_SQUARE = 0x00000100;
inline constexpr int PS_ENDCAP_FLAT = 0x00000200;
inline constexpr int PS_ENDCAP_MASK = 0x00000F00;
inline constexpr int PS_JOIN_ROUND = 0x00000000;
inline constexpr int PS_JOIN_BEVEL = 0x00001000;
inline constexpr int PS_JOIN_MITER = 0x00002000;
inline constexpr int PS_JOIN_MASK = 0x0000F000;
inline constexpr int PS_COSMETIC = 0x00000000;
inline constexpr int PS_GEOMETRIC = 0x00010000;
inline constexpr int PS_TYPE_MASK = 0x000F0000;
/// @}

struct tagLOGBRUSH;
struct tagEXTLOGPEN;

/// What a pen is made from.
struct tagLOGPEN
{
    UINT lopnStyle;     ///< PS_SOLID to PS_NULL
    tagPOINT lopnWidth; ///< x is the width in pixels, y is not used
    COLORREF lopnColor; ///< the colour
};
using LOGPEN = tagLOGPEN;    ///< its usual name
using LPLOGPEN = tagLOGPEN*; ///< a pointer to one

/// A pen; its handle is a `QPen`.
class VXMFC_EXPORT CPen_E : public CGdiObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CPen_E)

    /// An empty object.
    CPen_E() = default;
    /// As CreatePen() of the same arguments.
    CPen_E(int nPenStyle, int nWidth, COLORREF crColor);
    /// As CreatePen() of the same arguments.
    CPen_E(int nPenStyle, int nWidth, const tagLOGBRUSH* pLogBrush, int nStyleCount = 0,
           const UINT* lpStyle = nullptr);

    /// FromHandle() of the base, as an object of this class.
    static CPen_E* FromHandle(HPEN hPen);

    /// Makes a pen of @p nWidth pixels.
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
    /// The same in the colour of @p pLogBrush, which is read as 0x00RRGGBB: red and blue trade
    /// places (intended). The style entries are ignored. FALSE for a null brush.
    BOOL CreatePen(int nPenStyle, int nWidth, const tagLOGBRUSH* pLogBrush, int nStyleCount = 0,
                   const UINT* lpStyle = nullptr);
    /// FALSE for null.
    BOOL CreatePenIndirect(const tagLOGPEN* pLogPen);

    /// Describes the pen; 0 for an empty object and for null, else 1.
    int GetLogPen(tagLOGPEN* pLogPen) const;
    /// Always 0.
    int GetExtLogPen(tagEXTLOGPEN* pLogPen) const;

    /// `Qt::NoPen` for every style but PS_SOLID to PS_DASHDOTDOT.
    static Qt::PenStyle mapToQtPenStyle(int nPenStyle);
    /// PS_NULL for every style but the five line styles.
    static int mapToMfcPenStyle(Qt::PenStyle style);

protected:
    FreeHandleFn HandleDeleter() const override;
};
