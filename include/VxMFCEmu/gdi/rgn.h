/// @file rgn.h
/// Regions.
///
/// Differs from Win32: rectangles and ellipses include their right and bottom edges, so that they
/// are one column and one row larger; every combination returns TRUE instead of the kind of region.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/gdi/gdiobject.h>

/// @{
/// How two regions are combined.
inline constexpr int RGN_AND = 1;
inline constexpr int RGN_OR = 2;
inline constexpr int RGN_XOR = 3;
inline constexpr int RGN_DIFF = 4;
inline constexpr int RGN_COPY = 5;
inline constexpr int RGN_MIN = RGN_AND;
inline constexpr int RGN_MAX = RGN_COPY;
/// @}

/// @{
/// A kind of region.
inline constexpr int NULLREGION = 1;
inline constexpr int SIMPLEREGION = 2;
inline constexpr int COMPLEXREGION = 3;
/// @}

/// @{
/// A way of filling polygons.
inline constexpr int ALTERNATE = 1;
inline constexpr int WINDING = 2;
/// @}

/// A failure.
inline constexpr DWORD GDI_ERROR = 0xFFFFFFFF;

class CDC_E;
class QRegion;
struct tagRGNDATA;
struct tagXFORM;

/// A region; its handle is a `QRegion`. Null regions count as empty ones.
class VXMFC_EXPORT CRgn_E : public CGdiObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CRgn_E)

    /// An empty object.
    CRgn_E() = default;

    /// FromHandle() of the base, as an object of this class.
    static CRgn_E* FromHandle(HRGN hRgn);

    /// The pixels from (@p x1, @p y1) to (@p x2, @p y2), both included (intended).
    BOOL CreateRectRgn(int x1, int y1, int x2, int y2);
    /// The same of the coordinates of a rectangle; FALSE for null.
    BOOL CreateRectRgnIndirect(const tagRECT* lpRect);
    /// The ellipse within those pixels. FALSE beyond 2^20 in any direction, as for the two shapes
    /// that follow: a region is made of rows.
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2);
    /// The same of the coordinates of a rectangle; FALSE for null.
    BOOL CreateEllipticRgnIndirect(const tagRECT* lpRect);
    /// The rectangle with corners of radii @p x3 and @p y3.
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3);
    /// The polygon, filled odd-even whatever @p nMode (intended). FALSE as well for null and for a
    /// count that is not positive.
    BOOL CreatePolygonRgn(const tagPOINT* lpPoints, int nCount, int nMode);
    /// Returns 1 and makes no region.
    BOOL CreatePolyPolygonRgn(const tagPOINT* lpPoints, const int* lpPolyCounts, int nCount,
                              int nPolyFillMode);
    /// The clip region of @p pDC, empty without a clip; FALSE for null.
    BOOL CreateFromPath(CDC_E* pDC);
    /// Returns 0 and makes no region.
    BOOL CreateFromData(const tagXFORM* lpXForm, int nCount, const tagRGNDATA* pRgnData);

    /// @{
    /// Replaces the region by a rectangle as of CreateRectRgn(). The handle stays unless another
    /// object shares it, whose region is left alone. FALSE for null.
    BOOL SetRectRgn(int x1, int y1, int x2, int y2);
    BOOL SetRectRgn(const tagRECT* lpRect);
    /// @}
    /// Replaces the region by the combination of two, either of which may be this one. RGN_COPY
    /// gives their union (intended), an unknown mode the empty region. Of the handle SetRectRgn()
    /// tells.
    BOOL CombineRgn(const CRgn_E* pRgn1, const CRgn_E* pRgn2, int nCombineMode);
    /// Shares the handle of @p pRgnSrc (intended): what one object changes in place, the other
    /// sees; the last of them frees it. FALSE for an empty region.
    BOOL CopyRgn(const CRgn_E* pRgnSrc);
    /// Whether both objects have the same handle, or none.
    BOOL EqualRgn(const CRgn_E* pRgn) const;
    /// @{
    /// Moves the region; returns 0, or 0xFFFFFFFF without a handle.
    UINT OffsetRgn(int x, int y);
    UINT OffsetRgn(tagPOINT point);
    /// @}
    /// The bounding rectangle. Returns SIMPLEREGION; 0 for an empty object and for null.
    int GetRgnBox(tagRECT* lpRect) const;
    /// @{
    /// Whether a pixel belongs to the region.
    BOOL PtInRegion(int x, int y) const;
    BOOL PtInRegion(tagPOINT point) const;
    /// @}
    /// Whether any pixel of the rectangle is in the region.
    BOOL RectInRegion(const tagRECT* lpRect) const;
    /// Always 0xFFFFFFFF.
    UINT GetRegionData(tagRGNDATA* lpRgnData, int nDataSize) const;

protected:
    FreeHandleFn HandleDeleter() const override;

private:
    BOOL SetRegion(const QRegion& region);
};
