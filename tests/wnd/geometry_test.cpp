#include "support/test.h"

#include <climits>

TEST(Geometry, SetOperations)
{
    const CRect_E a(0, 0, 10, 10);
    const CRect_E none;
    // other, intersection, union, rest; whether there is an intersection and a rest
    const Row<CRect_E, CRect_E, CRect_E, CRect_E, BOOL, BOOL> rows[] = {
        {{10, 0, 20, 10}, none, {0, 0, 20, 10}, a, FALSE, TRUE}, // sides touch
        {{-5, -5, 4, 20}, {0, 0, 4, 10}, {-5, -5, 10, 20}, {4, 0, 10, 10}, TRUE, TRUE},
        {{0, 6, 10, 10}, {0, 6, 10, 10}, a, {0, 0, 10, 6}, TRUE, TRUE},
        {{3, 0, 6, 10}, {3, 0, 6, 10}, a, a, TRUE, TRUE}, // a hole in the middle
        {{-1, -1, 11, 11}, a, {-1, -1, 11, 11}, none, TRUE, FALSE},
        {{5, 5, 5, 50}, none, a, a, FALSE, TRUE}, // an empty one counts nowhere
    };
    forRows(rows, [&](const CRect_E& other, const CRect_E& intersection, const CRect_E& all,
                      const CRect_E& rest, BOOL meets, BOOL hasRest) {
        CRect_E rc(1, 2, 3, 4);
        EXPECT_EQ(rc.IntersectRect(a, other), meets);
        EXPECT_EQ(rc, intersection);
        EXPECT_EQ(rc.UnionRect(other, a), TRUE);
        EXPECT_EQ(rc, all);
        rc = a;
        EXPECT_EQ(rc.SubtractRect(rc, other), hasRest);
        EXPECT_EQ(rc, rest);
    });
    CRect_E rc(1, 2, 3, 4);
    EXPECT_TRUE(!rc.UnionRect(none, CRect_E(5, 5, 5, 9)) && rc == none);
}

TEST(Geometry, NullPointersGiveFalse)
{
    RECT rc{1, 2, 3, 4};
    RECT* const null = nullptr;
    EXPECT_FALSE(SetRect_E(null, 1, 2, 3, 4) || CopyRect_E(&rc, null) || OffsetRect_E(null, 1, 1));
    EXPECT_FALSE(IntersectRect_E(&rc, null, &rc) || UnionRect_E(&rc, &rc, null) ||
                 SubtractRect_E(null, &rc, &rc) || EqualRect_E(null, null));
    EXPECT_EQ(CRect_E(rc), CRect_E(1, 2, 3, 4));
}

TEST(Geometry, RectanglesAreHalfOpen)
{
    const CRect_E rc(-2, -3, 4, 5), crossed(4, 5, -2, -3), empty(1, 1, 1, 1);
    EXPECT_TRUE(rc.PtInRect(CPoint_E(-2, -3)) && rc.PtInRect(CPoint_E(3, 4)));
    EXPECT_FALSE(rc.PtInRect(CPoint_E(4, 4)) || rc.PtInRect(CPoint_E(3, 5)));
    EXPECT_TRUE(crossed.IsRectEmpty() && !empty.IsRectNull());
}

TEST(Geometry, MovingGrowingAndCoordinatesThatWrapAround)
{
    CRect_E rc(CPoint_E(10, 20), CSize_E(30, 40));
    rc.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(rc, CRect_E(9, 18, 43, 64));
    rc.DeflateRect(CRect_E(1, 2, 3, 4));
    rc.DeflateRect(20, 0); // narrower than twice 20: the sides cross
    EXPECT_EQ(rc, CRect_E(30, 20, 20, 60));
    rc.NormalizeRect();
    rc.MoveToXY(-1, -2);
    EXPECT_EQ(rc, CRect_E(-1, -2, 9, 38));
    EXPECT_EQ(rc.CenterPoint(), CPoint_E(4, 18));
    rc -= CPoint_E(1, 1);
    EXPECT_EQ(rc | CRect_E(0, 0, 1, 50), CRect_E(-2, -3, 8, 50));
    EXPECT_EQ(rc.MulDiv(3, 2), CRect_E(-3, -4, 12, 55));

    EXPECT_EQ(CPoint_E(MAKELPARAM(-5, 7)) - CPoint_E(1, 2), CSize_E(-6, 5));
    EXPECT_EQ(CSize_E(MAKELONG(-1, 3)), CSize_E(-1, 3));
    EXPECT_EQ(-CPoint_E(INT_MIN, 1), CPoint_E(INT_MIN, -1));
    CRect_E wide(INT_MIN, 0, INT_MAX, 1);
    EXPECT_EQ(wide.Width(), -1);
    wide.OffsetRect(1, 0);
    EXPECT_EQ(wide, CRect_E(INT_MIN + 1, 0, INT_MIN, 1));
}
