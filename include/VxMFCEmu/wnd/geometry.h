/// @file geometry.h
/// Points, sizes and rectangles as value classes over `tagPOINT`, `tagSIZE` and `tagRECT`.
///
/// The classes add no members, so that an array or a pointer of one serves as one of the struct.
/// Coordinates wrap around where they leave the range of 32 bits.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/sys/muldiv.h>
#include <VxMFCEmu/wnd/rectfunctions.h>

class CArchive_E;
class CPoint_E;
class CRect_E;

/// A size.
class CSize_E : public tagSIZE
{
public:
    constexpr CSize_E() noexcept : tagSIZE{0, 0} {}
    /// @{
    /// A size, of the coordinates of a point too.
    constexpr CSize_E(int initCX, int initCY) noexcept : tagSIZE{initCX, initCY} {}
    constexpr CSize_E(tagSIZE size) noexcept : tagSIZE(size) {}
    constexpr CSize_E(tagPOINT pt) noexcept : tagSIZE{pt.x, pt.y} {}
    /// @}
    /// The low 16 bits, signed, are the width and the high 16 bits the height.
    constexpr explicit CSize_E(DWORD dwSize) noexcept
        : tagSIZE{static_cast<SHORT>(LOWORD(dwSize)), static_cast<SHORT>(HIWORD(dwSize))}
    {
    }

    /// @{
    /// Compares, changes or sets both parts.
    constexpr bool operator==(tagSIZE size) const noexcept
    {
        return cx == size.cx && cy == size.cy;
    }
    constexpr bool operator!=(tagSIZE size) const noexcept { return !(*this == size); }
    constexpr CSize_E& operator+=(tagSIZE size) noexcept { return SetSize(*this + size); }
    constexpr CSize_E& operator-=(tagSIZE size) noexcept { return SetSize(*this - size); }
    constexpr void SetSize(int cxNew, int cyNew) noexcept { SetSize(CSize_E(cxNew, cyNew)); }
    /// @}

    /// @{
    /// Both parts added, taken away or negated.
    constexpr CSize_E operator+(tagSIZE size) const noexcept
    {
        return {vx::detail::wrappingAdd(cx, size.cx), vx::detail::wrappingAdd(cy, size.cy)};
    }
    constexpr CSize_E operator-(tagSIZE size) const noexcept
    {
        return {vx::detail::wrappingSub(cx, size.cx), vx::detail::wrappingSub(cy, size.cy)};
    }
    constexpr CSize_E operator-() const noexcept { return CSize_E() - *this; }
    /// @}

    /// @{
    /// @p pt moved by the size, or what is left of the size without it.
    constexpr CPoint_E operator+(tagPOINT pt) const noexcept;
    constexpr CPoint_E operator-(tagPOINT pt) const noexcept;
    /// @}
    constexpr CRect_E operator+(const tagRECT* prc) const noexcept;
    /// @p prc moved back by the size; four zeros moved for null.
    constexpr CRect_E operator-(const tagRECT* prc) const noexcept;

private:
    constexpr CSize_E& SetSize(CSize_E size) noexcept { return *this = size; }
};

/// A point.
class CPoint_E : public tagPOINT
{
public:
    constexpr CPoint_E() noexcept : tagPOINT{0, 0} {}
    /// @{
    /// A point, at a size from the origin too.
    constexpr CPoint_E(int initX, int initY) noexcept : tagPOINT{initX, initY} {}
    constexpr CPoint_E(tagPOINT pt) noexcept : tagPOINT(pt) {}
    constexpr CPoint_E(tagSIZE size) noexcept : tagPOINT{size.cx, size.cy} {}
    /// @}
    /// The coordinates packed in an `LPARAM`: 16 bits each, signed, x in the low half.
    constexpr explicit CPoint_E(LPARAM dwPoint) noexcept
        : tagPOINT{GET_X_LPARAM(dwPoint), GET_Y_LPARAM(dwPoint)}
    {
    }

    /// @{
    /// Moves or sets the point.
    constexpr void Offset(int xOffset, int yOffset) noexcept
    {
        x = vx::detail::wrappingAdd(x, xOffset);
        y = vx::detail::wrappingAdd(y, yOffset);
    }
    constexpr void Offset(tagPOINT pt) noexcept { Offset(pt.x, pt.y); }
    constexpr void Offset(tagSIZE size) noexcept { Offset(size.cx, size.cy); }
    constexpr void SetPoint(int xNew, int yNew) noexcept { *this = CPoint_E(xNew, yNew); }
    /// @}

    /// @{
    /// Compares or moves the point.
    constexpr bool operator==(tagPOINT pt) const noexcept { return x == pt.x && y == pt.y; }
    constexpr bool operator!=(tagPOINT pt) const noexcept { return !(*this == pt); }
    constexpr CPoint_E& operator+=(tagSIZE size) noexcept { return *this = *this + size; }
    constexpr CPoint_E& operator-=(tagSIZE size) noexcept { return *this = *this - size; }
    constexpr CPoint_E& operator+=(tagPOINT pt) noexcept { return *this = *this + pt; }
    constexpr CPoint_E& operator-=(tagPOINT pt) noexcept { return *this = CPoint_E(*this - pt); }
    /// @}

    /// @{
    /// The point moved, or mirrored at the origin.
    constexpr CPoint_E operator+(tagSIZE size) const noexcept
    {
        return CSize_E(size) + CSize_E(*this);
    }
    constexpr CPoint_E operator-(tagSIZE size) const noexcept { return CSize_E(*this) - size; }
    constexpr CPoint_E operator-() const noexcept { return -CSize_E(*this); }
    constexpr CPoint_E operator+(tagPOINT pt) const noexcept { return *this + CSize_E(pt); }
    /// @}
    /// The distance between two points is a size.
    constexpr CSize_E operator-(tagPOINT pt) const noexcept { return CSize_E(*this) - CSize_E(pt); }
    /// @{
    /// @p prc moved by the point, or back by it; four zeros moved for null.
    constexpr CRect_E operator+(const tagRECT* prc) const noexcept;
    constexpr CRect_E operator-(const tagRECT* prc) const noexcept;
    /// @}
};

/// A rectangle. Members that have a Win32 function of the same name do what that function does.
class CRect_E : public tagRECT
{
public:
    constexpr CRect_E() noexcept : tagRECT{0, 0, 0, 0} {}
    /// @{
    /// A rectangle of four coordinates.
    constexpr CRect_E(int l, int t, int r, int b) noexcept : tagRECT{l, t, r, b} {}
    constexpr CRect_E(const tagRECT& rc) noexcept : tagRECT(rc) {}
    /// @}
    /// Four zeros for null.
    constexpr CRect_E(LPCRECT prc) noexcept : tagRECT(prc ? *prc : tagRECT{0, 0, 0, 0}) {}
    /// @{
    /// A rectangle by its corners, or by one and its size.
    constexpr CRect_E(tagPOINT pt, tagSIZE size) noexcept : CRect_E(pt, CPoint_E(pt) + size) {}
    constexpr CRect_E(tagPOINT topLeft, tagPOINT bottomRight) noexcept
        : tagRECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y}
    {
    }
    /// @}

    /// @{
    /// What lies between the sides; negative when they are swapped.
    constexpr int Width() const noexcept { return vx::detail::wrappingSub(right, left); }
    constexpr int Height() const noexcept { return vx::detail::wrappingSub(bottom, top); }
    constexpr CSize_E Size() const noexcept { return {Width(), Height()}; }
    /// @}
    // A point that lies where the first or the last two members do, so that it can be assigned to.
    /// @{
    /// The corner; to be assigned to, unless the rectangle is constant.
    CPoint_E& TopLeft() noexcept { return *reinterpret_cast<CPoint_E*>(&left); }
    CPoint_E& BottomRight() noexcept { return *reinterpret_cast<CPoint_E*>(&right); }
    constexpr CPoint_E TopLeft() const noexcept { return {left, top}; }
    constexpr CPoint_E BottomRight() const noexcept { return {right, bottom}; }
    /// @}
    /// The middle, with halves cut towards zero.
    constexpr CPoint_E CenterPoint() const noexcept
    {
        return {static_cast<int>((LONGLONG{left} + right) / 2),
                static_cast<int>((LONGLONG{top} + bottom) / 2)};
    }
    /// Swaps the left and the right side.
    constexpr void SwapLeftRight() noexcept { *this = CRect_E(right, top, left, bottom); }

    /// @{
    /// The rectangle itself.
    constexpr operator LPRECT() noexcept { return this; }
    constexpr operator LPCRECT() const noexcept { return this; }
    /// @}

    /// As the function of this name with the suffix `_E`.
    constexpr BOOL IsRectEmpty() const noexcept { return IsRectEmpty_E(this); }
    /// Whether all four coordinates are zero.
    constexpr BOOL IsRectNull() const noexcept { return *this == tagRECT{0, 0, 0, 0}; }
    /// @{
    /// As the function of this name with the suffix `_E`.
    constexpr BOOL PtInRect(tagPOINT pt) const noexcept { return PtInRect_E(this, pt); }
    constexpr BOOL EqualRect(LPCRECT prc) const noexcept { return EqualRect_E(this, prc); }
    /// @}

    /// @{
    /// Sets the four coordinates.
    constexpr void SetRect(int l, int t, int r, int b) noexcept { SetRect_E(this, l, t, r, b); }
    constexpr void SetRect(tagPOINT topLeft, tagPOINT bottomRight) noexcept
    {
        *this = CRect_E(topLeft, bottomRight);
    }
    constexpr void SetRectEmpty() noexcept { SetRectEmpty_E(this); }
    constexpr void CopyRect(LPCRECT prc) noexcept { CopyRect_E(this, prc); }
    /// @}

    /// @{
    /// Moves the sides outwards or inwards; nothing for null.
    constexpr void InflateRect(int dx, int dy) noexcept { InflateRect_E(this, dx, dy); }
    constexpr void InflateRect(tagSIZE size) noexcept { InflateRect(size.cx, size.cy); }
    constexpr void InflateRect(LPCRECT prc) noexcept
    {
        if (prc)
            InflateRect(prc->left, prc->top, prc->right, prc->bottom);
    }
    constexpr void InflateRect(int l, int t, int r, int b) noexcept
    {
        *this = CRect_E(TopLeftValue() - CSize_E(l, t), BottomRightValue() + CSize_E(r, b));
    }
    constexpr void DeflateRect(int dx, int dy) noexcept { DeflateRect(dx, dy, dx, dy); }
    constexpr void DeflateRect(tagSIZE size) noexcept { DeflateRect(size.cx, size.cy); }
    constexpr void DeflateRect(LPCRECT prc) noexcept
    {
        if (prc)
            DeflateRect(prc->left, prc->top, prc->right, prc->bottom);
    }
    constexpr void DeflateRect(int l, int t, int r, int b) noexcept
    {
        *this = CRect_E(TopLeftValue() + CSize_E(l, t), BottomRightValue() - CSize_E(r, b));
    }
    /// @}

    /// @{
    /// Moves the rectangle.
    constexpr void OffsetRect(int dx, int dy) noexcept { OffsetRect_E(this, dx, dy); }
    constexpr void OffsetRect(tagSIZE size) noexcept { OffsetRect(size.cx, size.cy); }
    constexpr void OffsetRect(tagPOINT pt) noexcept { OffsetRect(pt.x, pt.y); }
    constexpr void MoveToX(int x) noexcept { OffsetRect(vx::detail::wrappingSub(x, left), 0); }
    constexpr void MoveToY(int y) noexcept { OffsetRect(0, vx::detail::wrappingSub(y, top)); }
    constexpr void MoveToXY(int x, int y) noexcept
    {
        MoveToX(x);
        MoveToY(y);
    }
    constexpr void MoveToXY(tagPOINT pt) noexcept { MoveToXY(pt.x, pt.y); }
    /// @}
    /// Swaps sides until width and height are not negative.
    constexpr void NormalizeRect() noexcept
    {
        *this = CRect_E(vx::detail::lower(left, right), vx::detail::lower(top, bottom),
                        vx::detail::higher(left, right), vx::detail::higher(top, bottom));
    }

    /// @{
    /// As the function of this name with the suffix `_E`.
    constexpr BOOL IntersectRect(LPCRECT prc1, LPCRECT prc2) noexcept
    {
        return IntersectRect_E(this, prc1, prc2);
    }
    constexpr BOOL UnionRect(LPCRECT prc1, LPCRECT prc2) noexcept
    {
        return UnionRect_E(this, prc1, prc2);
    }
    constexpr BOOL SubtractRect(LPCRECT prc1, LPCRECT prc2) noexcept
    {
        return SubtractRect_E(this, prc1, prc2);
    }
    /// @}
    /// Each coordinate multiplied and divided, see MulDiv_E().
    CRect_E MulDiv(int nMultiplier, int nDivisor) const
    {
        return {MulDiv_E(left, nMultiplier, nDivisor), MulDiv_E(top, nMultiplier, nDivisor),
                MulDiv_E(right, nMultiplier, nDivisor), MulDiv_E(bottom, nMultiplier, nDivisor)};
    }

    /// @{
    /// Compares or changes the rectangle, as the operator without `=` does.
    constexpr bool operator==(const tagRECT& rc) const noexcept
    {
        return vx::detail::isSame(*this, rc);
    }
    constexpr bool operator!=(const tagRECT& rc) const noexcept { return !(*this == rc); }
    constexpr CRect_E& operator+=(tagPOINT pt) noexcept { return *this = *this + pt; }
    constexpr CRect_E& operator+=(tagSIZE size) noexcept { return *this = *this + size; }
    constexpr CRect_E& operator+=(LPCRECT prc) noexcept { return *this = *this + prc; }
    constexpr CRect_E& operator-=(tagPOINT pt) noexcept { return *this = *this - pt; }
    constexpr CRect_E& operator-=(tagSIZE size) noexcept { return *this = *this - size; }
    constexpr CRect_E& operator-=(LPCRECT prc) noexcept { return *this = *this - prc; }
    constexpr CRect_E& operator&=(const tagRECT& rc) noexcept { return *this = *this & rc; }
    constexpr CRect_E& operator|=(const tagRECT& rc) noexcept { return *this = *this | rc; }
    /// @}

    /// @{
    /// The rectangle moved.
    constexpr CRect_E operator+(tagPOINT pt) const noexcept { return *this + CSize_E(pt); }
    constexpr CRect_E operator-(tagPOINT pt) const noexcept { return *this - CSize_E(pt); }
    constexpr CRect_E operator+(tagSIZE size) const noexcept
    {
        return {TopLeftValue() + size, BottomRightValue() + size};
    }
    constexpr CRect_E operator-(tagSIZE size) const noexcept { return *this + -CSize_E(size); }
    /// @}
    /// Inflated by the coordinates of @p prc; unchanged for null.
    constexpr CRect_E operator+(LPCRECT prc) const noexcept
    {
        CRect_E rc(*this);
        rc.InflateRect(prc);
        return rc;
    }
    /// Deflated by the coordinates of @p prc; unchanged for null.
    constexpr CRect_E operator-(LPCRECT prc) const noexcept
    {
        CRect_E rc(*this);
        rc.DeflateRect(prc);
        return rc;
    }
    /// The common area.
    constexpr CRect_E operator&(const tagRECT& rc) const noexcept
    {
        return vx::detail::overlap(*this, rc);
    }
    /// The smallest rectangle around both.
    constexpr CRect_E operator|(const tagRECT& rc) const noexcept
    {
        CRect_E both;
        both.UnionRect(this, &rc);
        return both;
    }

private:
    constexpr CPoint_E TopLeftValue() const noexcept { return {left, top}; }
    constexpr CPoint_E BottomRightValue() const noexcept { return {right, bottom}; }
};

constexpr CPoint_E CSize_E::operator+(tagPOINT pt) const noexcept
{
    return CPoint_E(*this + CSize_E(pt));
}
constexpr CPoint_E CSize_E::operator-(tagPOINT pt) const noexcept
{
    return CPoint_E(*this - CSize_E(pt));
}
/// @p prc moved by the size; four zeros moved for null.
constexpr CRect_E CSize_E::operator+(const tagRECT* prc) const noexcept
{
    return CRect_E(prc) + *this;
}
constexpr CRect_E CSize_E::operator-(const tagRECT* prc) const noexcept
{
    return CRect_E(prc) - *this;
}
constexpr CRect_E CPoint_E::operator+(const tagRECT* prc) const noexcept
{
    return CRect_E(prc) + CSize_E(*this);
}
constexpr CRect_E CPoint_E::operator-(const tagRECT* prc) const noexcept
{
    return CRect_E(prc) - CSize_E(*this);
}

static_assert(sizeof(CPoint_E) == sizeof(tagPOINT) && sizeof(CSize_E) == sizeof(tagSIZE) &&
              sizeof(CRect_E) == sizeof(tagRECT));

/// @{
/// Two or four LONGs, in the order of the members.
VXMFC_EXPORT CArchive_E& operator<<(CArchive_E& ar, tagPOINT point);
VXMFC_EXPORT CArchive_E& operator<<(CArchive_E& ar, tagSIZE size);
VXMFC_EXPORT CArchive_E& operator<<(CArchive_E& ar, const tagRECT& rect);
VXMFC_EXPORT CArchive_E& operator>>(CArchive_E& ar, tagPOINT& point);
VXMFC_EXPORT CArchive_E& operator>>(CArchive_E& ar, tagSIZE& size);
VXMFC_EXPORT CArchive_E& operator>>(CArchive_E& ar, tagRECT& rect);
/// @}
