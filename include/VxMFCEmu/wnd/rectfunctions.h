/// @file rectfunctions.h
/// The Win32 rectangle functions over `tagRECT`. Right and bottom are exclusive; a rectangle
/// without a positive width and height is empty. Coordinates wrap around as they do on Win32.
///
/// Differs from Win32: every function, IsRectEmpty_E() too, answers FALSE to a null pointer and
/// then leaves the target alone.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

namespace vx::detail {

constexpr LONG wrappingAdd(LONG a, LONG b) noexcept
{
    return static_cast<LONG>(static_cast<ULONG>(a) + static_cast<ULONG>(b));
}
constexpr LONG wrappingSub(LONG a, LONG b) noexcept
{
    return static_cast<LONG>(static_cast<ULONG>(a) - static_cast<ULONG>(b));
}
constexpr LONG lower(LONG a, LONG b) noexcept { return a < b ? a : b; }
constexpr LONG higher(LONG a, LONG b) noexcept { return a > b ? a : b; }
constexpr bool isEmpty(const tagRECT& rc) noexcept
{
    return rc.right <= rc.left || rc.bottom <= rc.top;
}
constexpr bool isSame(const tagRECT& a, const tagRECT& b) noexcept
{
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}
constexpr tagRECT overlap(const tagRECT& a, const tagRECT& b) noexcept
{
    const tagRECT rc{higher(a.left, b.left), higher(a.top, b.top), lower(a.right, b.right),
                     lower(a.bottom, b.bottom)};
    return isEmpty(a) || isEmpty(b) || isEmpty(rc) ? tagRECT{0, 0, 0, 0} : rc;
}

} // namespace vx::detail

/// Stores the four coordinates.
constexpr BOOL SetRect_E(LPRECT prc, int left, int top, int right, int bottom) noexcept
{
    if (!prc)
        return FALSE;
    *prc = {left, top, right, bottom};
    return TRUE;
}

/// Stores four zeros.
constexpr BOOL SetRectEmpty_E(LPRECT prc) noexcept { return SetRect_E(prc, 0, 0, 0, 0); }

/// Copies @p prcSrc to @p prcDst.
constexpr BOOL CopyRect_E(LPRECT prcDst, LPCRECT prcSrc) noexcept
{
    if (!prcDst || !prcSrc)
        return FALSE;
    *prcDst = *prcSrc;
    return TRUE;
}

/// Moves each vertical side out by @p dx and each horizontal side by @p dy; negative values shrink,
/// also past empty.
constexpr BOOL InflateRect_E(LPRECT prc, int dx, int dy) noexcept
{
    if (!prc)
        return FALSE;
    *prc = {vx::detail::wrappingSub(prc->left, dx), vx::detail::wrappingSub(prc->top, dy),
            vx::detail::wrappingAdd(prc->right, dx), vx::detail::wrappingAdd(prc->bottom, dy)};
    return TRUE;
}

/// Moves the rectangle by @p dx and @p dy.
constexpr BOOL OffsetRect_E(LPRECT prc, int dx, int dy) noexcept
{
    if (!prc)
        return FALSE;
    *prc = {vx::detail::wrappingAdd(prc->left, dx), vx::detail::wrappingAdd(prc->top, dy),
            vx::detail::wrappingAdd(prc->right, dx), vx::detail::wrappingAdd(prc->bottom, dy)};
    return TRUE;
}

/// Whether the rectangle has no area.
constexpr BOOL IsRectEmpty_E(LPCRECT prc) noexcept { return prc && vx::detail::isEmpty(*prc); }

/// Whether the coordinates are the same; two empty rectangles at different places are not.
constexpr BOOL EqualRect_E(LPCRECT prc1, LPCRECT prc2) noexcept
{
    return prc1 && prc2 && vx::detail::isSame(*prc1, *prc2);
}

/// Whether the point lies inside: on the left and top sides yes, on the right and bottom sides no.
constexpr BOOL PtInRect_E(LPCRECT prc, tagPOINT pt) noexcept
{
    return prc && pt.x >= prc->left && pt.x < prc->right && pt.y >= prc->top && pt.y < prc->bottom;
}

/// Stores the common area of two rectangles; FALSE and four zeros when there is none. The target
/// may be one of the sources.
constexpr BOOL IntersectRect_E(LPRECT prcDst, LPCRECT prcSrc1, LPCRECT prcSrc2) noexcept
{
    if (!prcDst || !prcSrc1 || !prcSrc2)
        return FALSE;
    *prcDst = vx::detail::overlap(*prcSrc1, *prcSrc2);
    return !vx::detail::isEmpty(*prcDst);
}

/// Stores the smallest rectangle around both; an empty source does not count. FALSE and four zeros
/// when both are empty. The target may be one of the sources.
constexpr BOOL UnionRect_E(LPRECT prcDst, LPCRECT prcSrc1, LPCRECT prcSrc2) noexcept
{
    if (!prcDst || !prcSrc1 || !prcSrc2)
        return FALSE;
    const tagRECT a = *prcSrc1;
    const tagRECT b = *prcSrc2;
    if (vx::detail::isEmpty(a) && vx::detail::isEmpty(b)) {
        SetRectEmpty_E(prcDst);
        return FALSE;
    }
    if (vx::detail::isEmpty(a) || vx::detail::isEmpty(b)) {
        *prcDst = vx::detail::isEmpty(a) ? b : a;
        return TRUE;
    }
    *prcDst = {vx::detail::lower(a.left, b.left), vx::detail::lower(a.top, b.top),
               vx::detail::higher(a.right, b.right), vx::detail::higher(a.bottom, b.bottom)};
    return TRUE;
}

/// Stores the first rectangle less the second where the rest is a rectangle again, which it is when
/// the second covers the first from side to side; otherwise the first unchanged. FALSE and an empty
/// rectangle when nothing is left. The target may be one of the sources.
constexpr BOOL SubtractRect_E(LPRECT prcDst, LPCRECT prcSrc1, LPCRECT prcSrc2) noexcept
{
    if (!prcDst || !prcSrc1 || !prcSrc2)
        return FALSE;
    tagRECT rest = *prcSrc1;
    const tagRECT common = vx::detail::overlap(rest, *prcSrc2);
    if (vx::detail::isEmpty(rest) || EqualRect_E(&common, &rest)) {
        SetRectEmpty_E(prcDst);
        return FALSE;
    }
    if (!vx::detail::isEmpty(common)) {
        if (common.top == rest.top && common.bottom == rest.bottom) {
            if (common.left == rest.left)
                rest.left = common.right;
            else if (common.right == rest.right)
                rest.right = common.left;
        } else if (common.left == rest.left && common.right == rest.right) {
            if (common.top == rest.top)
                rest.top = common.bottom;
            else if (common.bottom == rest.bottom)
                rest.bottom = common.top;
        }
    }
    *prcDst = rest;
    return TRUE;
}
