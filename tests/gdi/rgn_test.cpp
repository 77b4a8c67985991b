// Regions: their shapes, and what becomes of two of them.
#include "gdi/gditest.h"

namespace {

const QRegion& regionOf(const CRgn_E& rgn) { return valueOf<QRegion>(rgn); }

struct Regions : testing::Test
{
    RectRgn m_a{0, 0, 9, 9}, m_b{5, 5, 14, 14};
    CRgn_E m_empty;
};

TEST_F(Regions, ShapesIncludeTheirCorners)
{
    constexpr tagRECT kRect{0, 0, 10, 10}, kTouching{10, 10, 20, 20}, kBeside{-5, 0, 0, 5};
    CRect_E box;
    m_a.SetRectRgn(&kRect);
    EXPECT_EQ(m_a.GetRgnBox(&box), SIMPLEREGION);
    EXPECT_EQ(box, CRect_E(0, 0, 11, 11));
    EXPECT_TRUE(m_a.RectInRegion(&kTouching));
    EXPECT_FALSE(m_a.RectInRegion(&kBeside)) << "its right edge does not count";
    EXPECT_TRUE(m_empty.CreateEllipticRgnIndirect(&kRect));
    EXPECT_EQ(regionOf(m_empty), QRegion(0, 0, 11, 11, QRegion::Ellipse));

    constexpr tagPOINT kStar[] = {{50, 0}, {80, 90}, {5, 35}, {95, 35}, {20, 90}};
    CRgn_E polygon; // crosses itself: its middle is a hole, whatever the mode
    CRgn_E round;   // its corners are 20 wide and 10 high
    expectAll(TRUE, {polygon.CreatePolygonRgn(kStar, 5, WINDING),
                     round.CreateRoundRectRgn(0, 0, 100, 60, 20, 10)});
    expectAll(TRUE, {m_a.PtInRegion(10, 10), round.PtInRegion(50, 0), round.PtInRegion(5, 10),
                     polygon.PtInRegion({50, 20})});
    expectZeros({m_a.PtInRegion(11, 10), round.PtInRegion(5, 2), polygon.PtInRegion({50, 50})});
}

TEST_F(Regions, CombineComputesBeforeItReplaces)
{
    const QRegion a = regionOf(m_a), b = regionOf(m_b);
    // Intended: RGN_COPY makes no copy of the first.
    const std::pair<int, QRegion> rows[] = {
        {RGN_AND, a & b},  {RGN_OR, a | b},   {RGN_XOR, a ^ b},
        {RGN_DIFF, a - b}, {RGN_COPY, a | b}, {6, {}},
    };
    for (const auto& [mode, expected] : rows) {
        SCOPED_TRACE(mode);
        RectRgn left(0, 0, 9, 9), right(5, 5, 14, 14);
        EXPECT_TRUE(left.CombineRgn(&left, &m_b, mode) && right.CombineRgn(&m_a, &right, mode));
        EXPECT_TRUE(regionOf(left) == expected && regionOf(right) == expected);
    }
    EXPECT_TRUE(m_b.CombineRgn(&m_a, nullptr, RGN_DIFF)) << "null is the empty region";
    EXPECT_EQ(regionOf(m_b), a);
}

TEST_F(Regions, CopySharesTheHandle)
{
    RectRgn copy(1, 1, 2, 2);
    EXPECT_TRUE(copy.CopyRgn(&m_a) && copy.CopyRgn(&copy)) << "from itself";
    EXPECT_TRUE(copy.EqualRgn(&m_a));
    EXPECT_EQ(copy.OffsetRgn({100, 0}), 0U);
    EXPECT_TRUE(m_a.PtInRegion(105, 5)) << "through the other object";
    EXPECT_TRUE(copy.SetRectRgn(0, 0, 1, 1));
    EXPECT_TRUE(m_a.PtInRegion(105, 5)) << "replaced in one object only";
    expectZeros({m_b.CopyRgn(nullptr), m_b.CopyRgn(&m_empty), m_b.EqualRgn(&m_a)});
    EXPECT_TRUE(copy.CopyRgn(&m_b) && m_b.DeleteObject() && copy.PtInRegion(5, 5)) << "kept";
}

TEST_F(Regions, FromPathTakesTheClip)
{
    Canvas c;
    c.dc.SelectClipRgn(&m_b);
    EXPECT_TRUE(m_empty.CreateFromPath(&c.dc));
    EXPECT_EQ(regionOf(m_empty), regionOf(m_b));
    CDC_E inactive;
    CRgn_E none;
    EXPECT_TRUE(none.CreateFromPath(&inactive));
    EXPECT_EQ(regionOf(none), QRegion());
}

TEST_F(Regions, FailuresAndStubs)
{
    tagRECT box{1, 2, 3, 4};
    const tagPOINT point{0, 0};
    CRgn_E& e = m_empty;
    expectZeros({e.GetRgnBox(&box), e.PtInRegion(0, 0), e.CreateRectRgnIndirect(nullptr),
                 e.CreatePolygonRgn(&point, -1, ALTERNATE), e.CreateFromPath(nullptr),
                 e.CreateFromData(nullptr, 0, nullptr)});
    expectAll(GDI_ERROR, {e.OffsetRgn(1, 1), e.GetRegionData(nullptr, 0)});
    EXPECT_EQ(e.CreatePolyPolygonRgn(&point, nullptr, 1, ALTERNATE), 1);
}

} // namespace
