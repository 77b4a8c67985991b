#include <VxMFCEmu/gdi.h>

#include "gdi/zeros.h"

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
    tagRECT box{};
    EXPECT_TRUE(m_a.SetRectRgn(&rect));
    EXPECT_EQ(m_a.GetRgnBox(&box), SIMPLEREGION);
    EXPECT_EQ(CRect_E(box), CRect_E(0, 0, 11, 11));
    CRgn_E ellipse;
    EXPECT_TRUE(ellipse.CreateEllipticRgnIndirect(&rect));
    EXPECT_EQ(regionOf(ellipse), QRegion(0, 0, 11, 11, QRegion::Ellipse));

    const tagPOINT star[] = {{50, 0}, {80, 90}, {5, 35}, {95, 35}, {20, 90}};
    CRgn_E polygon; // crosses itself: its middle is a hole, whatever the mode
    CRgn_E round;   // its corners are 20 wide and 10 high
    EXPECT_TRUE(polygon.CreatePolygonRgn(star, 5, WINDING));
    EXPECT_TRUE(round.CreateRoundRectRgn(0, 0, 100, 60, 20, 10));
    const struct
    {
        int line;
        const CRgn_E& rgn;
        tagPOINT point;
        BOOL inside;
    } rows[] = {
        {__LINE__, m_a, {10, 10}, TRUE},     {__LINE__, m_a, {11, 10}, FALSE},
        {__LINE__, round, {50, 0}, TRUE},    {__LINE__, round, {5, 10}, TRUE},
        {__LINE__, round, {1, 1}, FALSE},    {__LINE__, round, {5, 2}, FALSE},
        {__LINE__, polygon, {50, 20}, TRUE}, {__LINE__, polygon, {50, 50}, FALSE},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.rgn.PtInRegion(row.point), row.inside) << row.line;
}

TEST_F(Regions, CombineComputesBeforeItReplaces)
{
    const QRegion a = regionOf(m_a);
    const QRegion b = regionOf(m_b);
    const struct
    {
        int mode;
        QRegion expected;
    } rows[] = {{RGN_AND, a & b},  {RGN_OR, a | b}, {RGN_XOR, a ^ b}, {RGN_DIFF, a - b},
                {RGN_COPY, a | b}, // no copy of the first
                {0, {}},           {6, {}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.mode);
        CRgn_E left;
        CRgn_E right;
        left.SetRectRgn(0, 0, 9, 9);
        right.SetRectRgn(5, 5, 14, 14);
        EXPECT_TRUE(left.CombineRgn(&left, &m_b, row.mode));
        EXPECT_EQ(regionOf(left), row.expected);
        EXPECT_TRUE(right.CombineRgn(&m_a, &right, row.mode));
        EXPECT_EQ(regionOf(right), row.expected);
    }
    EXPECT_TRUE(m_b.CombineRgn(&m_a, nullptr, RGN_DIFF)) << "null is the empty region";
    EXPECT_EQ(regionOf(m_b), a);
}

TEST_F(Regions, CopySharesTheHandle)
{
    auto copy = std::make_unique<CRgn_E>();
    const auto moved = [](const CRgn_E& rgn) { return rgn.PtInRegion(105, 5); };
    EXPECT_TRUE(copy->CreateRectRgn(1, 1, 2, 2));
    EXPECT_TRUE(copy->CopyRgn(&m_a));
    EXPECT_TRUE(copy->CopyRgn(&m_a)) << "again, and from itself";
    EXPECT_TRUE(copy->CopyRgn(copy.get()));
    EXPECT_TRUE(copy->EqualRgn(&m_a));
    EXPECT_EQ(copy->OffsetRgn(100, 0), 0U);
    EXPECT_TRUE(moved(m_a)) << "through the other object";
    EXPECT_TRUE(copy->SetRectRgn(0, 0, 1, 1));
    EXPECT_TRUE(moved(m_a)) << "replaced in one object only";
    copy->CopyRgn(&m_a);
    EXPECT_TRUE(m_a.DeleteObject());
    EXPECT_TRUE(moved(*copy));
    m_a.CopyRgn(copy.get());
    copy.reset();
    EXPECT_TRUE(moved(m_a));
    CRgn_E empty;
    expectZeros(
        {m_b.CopyRgn(nullptr), m_b.CopyRgn(&empty), m_b.EqualRgn(nullptr), m_b.EqualRgn(&m_a)});
    EXPECT_TRUE(m_b.PtInRegion(5, 5)) << "kept";
}

TEST_F(Regions, FromPathTakesTheClip)
{
    QImage image(20, 20, QImage::Format_RGB32);
    CDC_E dc(&image);
    CDC_E inactive;
    dc.SelectClipRgn(&m_b);
    EXPECT_TRUE(m_a.CombineRgn(nullptr, nullptr, RGN_OR));
    m_a.DeleteObject();
    EXPECT_TRUE(m_a.CreateFromPath(&dc));
    EXPECT_FALSE(m_a.CreateFromPath(nullptr));
    EXPECT_EQ(regionOf(m_a), regionOf(m_b));
    CRgn_E none;
    EXPECT_TRUE(none.CreateFromPath(&inactive));
    EXPECT_TRUE(regionOf(none).isEmpty());
}

TEST_F(Regions, FailuresAndStubs)
{
    CRgn_E empty;
    tagRECT box{1, 2, 3, 4};
    const tagPOINT points[] = {{0, 0}};
    const int counts[] = {1};
    expectZeros({empty.GetRgnBox(&box), empty.PtInRegion(0, 0), empty.RectInRegion(&box),
                 empty.CreateRectRgnIndirect(nullptr), empty.CreateEllipticRgnIndirect(nullptr),
                 empty.SetRectRgn(nullptr), empty.CreatePolygonRgn(nullptr, 3, ALTERNATE),
                 empty.CreatePolygonRgn(points, -1, ALTERNATE), m_a.GetRgnBox(nullptr),
                 empty.CreateFromData(nullptr, 0, nullptr), m_a.RectInRegion(nullptr)});
    EXPECT_EQ(empty.OffsetRgn(1, 1), 0xFFFFFFFFU);
    EXPECT_EQ(empty.GetRegionData(nullptr, 0), 0xFFFFFFFFU);
    EXPECT_EQ(empty.CreatePolyPolygonRgn(points, counts, 1, ALTERNATE), 1);
    EXPECT_EQ(empty.m_hObject, nullptr);
    const tagRECT touching{9, 9, 20, 20};
    const tagRECT beside{-5, 0, 0, 5};
    EXPECT_TRUE(m_a.RectInRegion(&touching));
    EXPECT_FALSE(m_a.RectInRegion(&beside)) << "its right edge does not count";
}

} // namespace
