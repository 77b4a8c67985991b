#include <VxMFCEmu/gdi.h>

namespace {

const QRegion& regionOf(const CRgn_E& rgn) { return *static_cast<QRegion*>(rgn.GetSafeHandle()); }

class Regions : public testing::Test
{
public:
    Regions()
    {
        m_a.CreateRectRgn(0, 0, 9, 9);
        m_b.CreateRectRgn(5, 5, 14, 14);
    }
    CRgn_E m_a;
    CRgn_E m_b;
};

TEST_F(Regions, ShapesIncludeTheirCorners)
{
    const tagRECT rect{0, 0, 10, 10};
    CRgn_E rgn;
    tagRECT box{};
    EXPECT_TRUE(rgn.SetRectRgn(&rect));
    EXPECT_EQ(rgn.GetRgnBox(&box), SIMPLEREGION);
    EXPECT_EQ(CRect_E(box), CRect_E(0, 0, 11, 11));
    EXPECT_TRUE(rgn.PtInRegion({10, 10}));
    EXPECT_FALSE(rgn.PtInRegion(11, 10));

    CRgn_E ellipse;
    EXPECT_TRUE(ellipse.CreateEllipticRgnIndirect(&rect));
    EXPECT_EQ(regionOf(ellipse), QRegion(0, 0, 11, 11, QRegion::Ellipse));

    CRgn_E round;
    EXPECT_TRUE(round.CreateRoundRectRgn(0, 0, 100, 60, 20, 10));
    EXPECT_FALSE(round.PtInRegion(1, 1));
    EXPECT_TRUE(round.PtInRegion(50, 0));
    EXPECT_TRUE(round.PtInRegion(5, 10));
    EXPECT_FALSE(round.PtInRegion(5, 2)) << "the corner is 20 wide and 10 high";

    // A star that crosses itself: its middle is a hole, whatever the mode.
    const tagPOINT star[] = {{50, 0}, {80, 90}, {5, 35}, {95, 35}, {20, 90}};
    CRgn_E polygon;
    EXPECT_TRUE(polygon.CreatePolygonRgn(star, 5, WINDING));
    EXPECT_TRUE(polygon.PtInRegion(50, 20));
    EXPECT_FALSE(polygon.PtInRegion(50, 50));
}

TEST_F(Regions, CombineComputesBeforeItReplaces)
{
    const QRegion a = regionOf(m_a);
    const QRegion b = regionOf(m_b);
    const struct
    {
        int mode;
        QRegion expected;
    } rows[] = {
        {RGN_AND, a & b},  {RGN_OR, a | b},   {RGN_XOR, a ^ b},
        {RGN_DIFF, a - b}, {RGN_COPY, a | b}, // no copy of the first
        {0, QRegion()},    {6, QRegion()},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.mode);
        CRgn_E left;
        left.SetRectRgn(0, 0, 9, 9);
        EXPECT_TRUE(left.CombineRgn(&left, &m_b, row.mode));
        EXPECT_EQ(regionOf(left), row.expected);
        CRgn_E right;
        right.SetRectRgn(5, 5, 14, 14);
        EXPECT_TRUE(right.CombineRgn(&m_a, &right, row.mode));
        EXPECT_EQ(regionOf(right), row.expected);
    }
    CRgn_E empty;
    EXPECT_TRUE(empty.CombineRgn(&m_a, nullptr, RGN_DIFF)) << "null is the empty region";
    EXPECT_EQ(regionOf(empty), a);
}

TEST_F(Regions, CopySharesTheHandle)
{
    auto copy = std::make_unique<CRgn_E>();
    EXPECT_FALSE(m_a.EqualRgn(&m_b));
    EXPECT_TRUE(copy->CreateRectRgn(1, 1, 2, 2));
    EXPECT_TRUE(copy->CopyRgn(&m_a));
    EXPECT_TRUE(copy->CopyRgn(&m_a)) << "again, and from itself";
    EXPECT_TRUE(copy->CopyRgn(copy.get()));
    EXPECT_TRUE(copy->EqualRgn(&m_a));
    EXPECT_EQ(copy->OffsetRgn(100, 0), 0U);
    EXPECT_TRUE(m_a.PtInRegion(105, 5)) << "moved through the other object";
    EXPECT_TRUE(copy->SetRectRgn(0, 0, 1, 1));
    EXPECT_TRUE(m_a.PtInRegion(105, 5)) << "replaced in one object only";
    copy->CopyRgn(&m_a);
    EXPECT_TRUE(m_a.DeleteObject());
    EXPECT_TRUE(copy->PtInRegion(105, 5));
    m_a.CopyRgn(copy.get());
    copy.reset();
    EXPECT_TRUE(m_a.PtInRegion(105, 5));
    EXPECT_FALSE(m_b.CopyRgn(nullptr));
    EXPECT_FALSE(m_b.CopyRgn(std::make_unique<CRgn_E>().get()));
    EXPECT_TRUE(m_b.PtInRegion(5, 5));
    EXPECT_FALSE(m_b.EqualRgn(nullptr));
}

TEST_F(Regions, FromPathTakesTheClip)
{
    QImage image(20, 20, QImage::Format_RGB32);
    CDC_E dc(&image);
    CDC_E inactive;
    dc.SelectClipRgn(&m_b);
    CRgn_E rgn;
    EXPECT_TRUE(rgn.CreateFromPath(&inactive));
    EXPECT_TRUE(regionOf(rgn).isEmpty());
    EXPECT_TRUE(rgn.SetRectRgn(0, 0, 1, 1));
    rgn.DeleteObject();
    EXPECT_TRUE(rgn.CreateFromPath(&dc));
    EXPECT_EQ(regionOf(rgn), regionOf(m_b));
    EXPECT_FALSE(rgn.CreateFromPath(nullptr));
    EXPECT_EQ(regionOf(rgn), regionOf(m_b));
}

TEST_F(Regions, FailuresAndStubs)
{
    CRgn_E empty;
    tagRECT box{1, 2, 3, 4};
    const tagPOINT points[] = {{0, 0}};
    const int counts[] = {1};
    EXPECT_EQ(empty.OffsetRgn(1, 1), 0xFFFFFFFFU);
    EXPECT_EQ(empty.GetRgnBox(&box), 0);
    EXPECT_EQ(box.right, 3);
    EXPECT_FALSE(empty.PtInRegion(0, 0));
    EXPECT_FALSE(empty.RectInRegion(&box));
    EXPECT_FALSE(empty.CreateRectRgnIndirect(nullptr));
    EXPECT_FALSE(empty.CreateEllipticRgnIndirect(nullptr));
    EXPECT_FALSE(empty.SetRectRgn(nullptr));
    EXPECT_FALSE(empty.CreatePolygonRgn(nullptr, 3, ALTERNATE));
    EXPECT_FALSE(empty.CreatePolygonRgn(points, -1, ALTERNATE));
    EXPECT_EQ(empty.CreatePolyPolygonRgn(points, counts, 1, ALTERNATE), 1);
    EXPECT_EQ(empty.CreateFromData(nullptr, 0, nullptr), 0);
    EXPECT_EQ(empty.GetRegionData(nullptr, 0), 0xFFFFFFFFU);
    EXPECT_EQ(empty.m_hObject, nullptr);
    EXPECT_EQ(m_a.GetRgnBox(nullptr), 0);
    EXPECT_FALSE(m_a.RectInRegion(nullptr));
    const tagRECT touching{9, 9, 20, 20};
    const tagRECT beside{-5, 0, 0, 5};
    EXPECT_TRUE(m_a.RectInRegion(&touching));
    EXPECT_FALSE(m_a.RectInRegion(&beside)) << "its right edge does not count";
}

} // namespace
