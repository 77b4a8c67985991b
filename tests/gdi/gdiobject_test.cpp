// How GDI objects hold, share and free their handles, the same for every class.
#include "gdi/gditest.h"

#include <sys/wait.h>

namespace {

BOOL create(CPen_E& pen) { return pen.CreatePen(PS_SOLID, 3, RGB(1, 2, 3)); }
BOOL create(CBrush_E& brush) { return brush.CreateSolidBrush(RGB(1, 2, 3)); }
BOOL create(CBitmap_E& bitmap) { return bitmap.CreateCompatibleBitmap(nullptr, 4, 4); }
BOOL create(CRgn_E& rgn) { return rgn.CreateEllipticRgn(0, 0, 30, 30); }
BOOL create(CFont_E& font) { return font.CreatePointFont(120, L"Sans"); }

struct FreshMap : testing::Test
{
    ~FreshMap() override { CGdiObject_E::DeleteTempMap(); }
};

TEST(TemporaryObjects, DestructorMaySetOthersAside)
{
    using Life = ConstructDestruct_E<CGdiObject_E>;
    static char handles[9];
    static int destroyed = 0;
    static CHandleMap_E map(
        RUNTIME_CLASS_E(CGdiObject_E), &Life::Construct,
        [](CObject_E* pObject) {
            for (char& handle : handles)
                map.SetAside(&handle);
            Life::Destruct(pObject);
            ++destroyed;
        },
        vx::detail::offsetOfMember(&CGdiObject_E::m_hObject));
    for (char& handle : handles)
        map.FromHandle(&handle);
    map.DeleteTemp();
    EXPECT_EQ(destroyed, 9);
}

// Temporary objects that are left die with the library, after everything else.
TEST(GdiObjectDeathTest, TemporaryObjectsMayBeLeftAtExit)
{
    EXPECT_EXIT(
        {
            static QPen pens[50];
            for (QPen& pen : pens)
                CPen_E::FromHandle(&pen)->CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
            std::exit(0);
        },
        // The leak check of a forked child reports other threads' memory.
        [](int status) { return WIFEXITED(status); },
        testing::Not(testing::HasSubstr("ERROR: AddressSanitizer")));
}

template <typename T>
class GdiObject : public FreshMap
{
};
using Kinds = testing::Types<CPen_E, CBrush_E, CBitmap_E, CRgn_E, CFont_E>;
TYPED_TEST_SUITE(GdiObject, Kinds);

TYPED_TEST(GdiObject, IsEmptyUntilCreatedAndOnceDeleted)
{
    TypeParam object;
    create(object);
    const HGDIOBJ old = object;
    EXPECT_TRUE(create(object));
    EXPECT_TRUE(CGdiObject_E::FromHandle(old)->DeleteObject()) << "let go, not freed";
    EXPECT_EQ(TypeParam::FromHandle(object), &object);
    CGdiObject_E& base = object;
    EXPECT_TRUE(base.DeleteObject());
    expectZeros({base.DeleteObject(), base.Attach(nullptr), base.GetObject(100, &object)});
}

TYPED_TEST(GdiObject, TemporaryObjectsHaveTheirClassAndFreeNothing)
{
    TypeParam object;
    create(object);
    HGDIOBJ const h = object.Detach();
    CGdiObject_E* const any = CGdiObject_E::FromHandle(h);
    TypeParam* const temporary = TypeParam::FromHandle(h);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(any, temporary);
    CGdiObject_E::DeleteTempMap();
    EXPECT_TRUE(object.Attach(h));
    // A temporary object deletes for good, but not what another object holds.
    object.Detach();
    CGdiObject_E* const second = CGdiObject_E::FromHandle(h);
    object.Attach(h);
    EXPECT_TRUE(second->DeleteObject());
}

TYPED_TEST(GdiObject, SharedHandleGoesWithTheLastHolder)
{
    auto first = std::make_unique<TypeParam>();
    create(*first);
    TypeParam second;
    CGdiObject_E untyped;
    second.Attach(first->m_hObject);
    untyped.Attach(first->m_hObject);
    EXPECT_TRUE(second.DeleteObject());
    untyped.Attach(untyped.m_hObject);
    first.reset();
    EXPECT_EQ(CGdiObject_E::FromHandle(untyped.m_hObject), &untyped);
    EXPECT_TRUE(untyped.DeleteObject());
}

struct Selection : FreshMap, Canvas
{
    Selection() { dc.SelectObject(QPen(Qt::darkYellow, 5)); }
    CPen_E* select(CPen_E* pPen) { return dc.SelectObject(pPen); }
    /// The object for a value that the painter has.
    CPen_E* objectOf(const QPen& value)
    {
        dc.SelectObject(value);
        return select(nullptr);
    }
    QPen current() const { return dc.m_painter.pen(); }
};

// Such an object owns what it made, and frees it.
TEST_F(FreshMap, TemporaryObjectMayBecomeAnOwner)
{
    CPen_E other(PS_SOLID, 1, RGB(1, 1, 1));
    HGDIOBJ const h = other.Detach();
    CPen_E* const pTemporary = CPen_E::FromHandle(h);
    EXPECT_TRUE(pTemporary->CreatePen(PS_SOLID, 1, RGB(1, 2, 3)));
    HGDIOBJ const hNew = *pTemporary;
    EXPECT_EQ(CPen_E::FromHandle(hNew), pTemporary);
    CGdiObject_E::DeleteTempMap();
    EXPECT_EQ(afxMapHGDIOBJ_E()->LookupPermanent(hNew), nullptr);
    other.Attach(h);
}

TEST_F(Selection, PreviousObjectHoldsThePreviousValue)
{
    CPen_E red(PS_SOLID, 1, RGB(255, 0, 0)), dots(PS_DOT, 2, RGB(0, 255, 0)), nothing;
    const QPen initial = current();
    CPen_E* const first = select(&red);
    EXPECT_EQ(valueOf<QPen>(*first), initial);
    EXPECT_EQ(select(&dots), &red) << "the object itself while it is there";
    EXPECT_EQ(select(&nothing), &dots) << "nothing is selected";
    EXPECT_EQ(select(first), &dots);
    EXPECT_EQ(current(), initial) << "long since, others were selected";
    EXPECT_EQ(select(&red), first);
    EXPECT_EQ(dc.SelectObject(initial), valueOf<QPen>(red)) << "by value";
    EXPECT_EQ(select(&dots), first) << "one object for equal values";
    first->DeleteObject();
    EXPECT_EQ(valueOf<QPen>(*CPen_E::FromHandle(objectOf(initial)->m_hObject)), initial);
}

TEST_F(Selection, SelectedObjectMayDieOrChange)
{
    auto pen = std::make_unique<CPen_E>(PS_DASH, 4, RGB(1, 2, 3));
    CPen_E other(PS_SOLID, 1, RGB(0, 0, 0));
    select(pen.get());
    const QPen dashed = current();
    pen.reset();
    EXPECT_EQ(valueOf<QPen>(*select(&other)), dashed);
    other.DeleteObject();
    other.CreatePen(PS_DOT, 7, RGB(7, 7, 7));
    EXPECT_EQ(valueOf<QPen>(*select(nullptr)), current());
    CPen_E* const held = objectOf(dashed);
    CPen_E owner;
    owner.Attach(held->Detach());
    CGdiObject_E::DeleteTempMap();
    EXPECT_EQ(valueOf<QPen>(owner), dashed) << "whoever takes hold of a copy owns it";
}

TEST_F(Selection, OfEveryClass)
{
    CPen_E pen(PS_SOLID, 1, RGB(1, 2, 3));
    CBrush_E brush(RGB(4, 5, 6));
    CFont_E font;
    font.setPixelSize(31);
    RectRgn region(0, 0, 3, 3);
    CPalette_E palette;
    EXPECT_EQ(CPen_E::FromHandle(brush), nullptr) << "the handle is one of another class";
    EXPECT_TRUE(CGdiObject_E::FromHandle(this)->DeleteObject()) << "of unknown type: not freed";
    CGdiObject_E* const objects[] = {&pen, &brush, &font, &region, &palette, nullptr};
    for (CGdiObject_E* const p : objects)
        EXPECT_EQ(dc.SelectObject(p) != nullptr, p == &pen || p == &brush);
    EXPECT_EQ(current(), QPen(QColor(1, 2, 3)));
    EXPECT_EQ(dc.m_painter.brush(), QBrush(QColor(4, 5, 6)));
    EXPECT_EQ(dc.m_painter.clipRegion(), QRegion(0, 0, 4, 4));
    EXPECT_EQ(dc.SelectObject(QFont()).pixelSize(), 31);
}

} // namespace
