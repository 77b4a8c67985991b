// How GDI objects hold, share and free their handles, the same for every class.
#include <VxMFCEmu/core/handlemap.h>
#include <VxMFCEmu/gdi.h>

#include "gdi/zeros.h"

#include <gmock/gmock.h>

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

CHandleMap_E* pDying = nullptr;
int destroyed = 0;

TEST(TemporaryObjects, DestructorMaySetOthersAside)
{
    const auto destroy = [](CObject_E* pObject) {
        for (std::uintptr_t n = 1; n <= 9; ++n)
            pDying->SetAside(reinterpret_cast<HGDIOBJ>(n * 16));
        ConstructDestruct_E<CGdiObject_E>::Destruct(pObject);
        ++destroyed;
    };
    CHandleMap_E map(RUNTIME_CLASS_E(CGdiObject_E), &ConstructDestruct_E<CGdiObject_E>::Construct,
                     destroy, vx::detail::offsetOfMember(&CGdiObject_E::m_hObject));
    pDying = &map;
    for (std::uintptr_t n = 1; n <= 9; ++n)
        map.FromHandle(reinterpret_cast<HGDIOBJ>(n * 16));
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
    EXPECT_EQ(object.GetSafeHandle(), nullptr);
    ASSERT_TRUE(create(object));
    const HGDIOBJ old = object;
    ASSERT_TRUE(create(object));
    EXPECT_NE(CGdiObject_E::FromHandle(old), &object) << "let go, not freed";
    EXPECT_TRUE(CGdiObject_E::FromHandle(old)->DeleteObject());
    EXPECT_EQ(TypeParam::FromHandle(object), &object);
    EXPECT_EQ(object.GetObject(100, &object), 0);
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS_E(CGdiObject_E)));
    CGdiObject_E& base = object;
    EXPECT_TRUE(base.DeleteObject());
    expectZeros({base.DeleteObject(), base.Attach(nullptr)});
    EXPECT_EQ(object.Detach(), nullptr);
}

TYPED_TEST(GdiObject, TemporaryObjectsHaveTheirClassAndFreeNothing)
{
    TypeParam object;
    create(object);
    HGDIOBJ const h = object.Detach();
    CGdiObject_E* const any = CGdiObject_E::FromHandle(h);
    TypeParam* const temporary = TypeParam::FromHandle(h);
    EXPECT_EQ(temporary, any);
    EXPECT_NE(dynamic_cast<TypeParam*>(any), nullptr);
    EXPECT_EQ(temporary->m_hObject, h);
    CGdiObject_E::DeleteTempMap();
    EXPECT_TRUE(object.Attach(h));
    EXPECT_EQ(CGdiObject_E::FromHandle(h), &object);
    // A temporary object deletes for good, but not what another object holds.
    HGDIOBJ const shared = object.Detach();
    CGdiObject_E* const second = CGdiObject_E::FromHandle(shared);
    object.Attach(shared);
    EXPECT_TRUE(second->DeleteObject());
    EXPECT_EQ(object.m_hObject, shared);
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
    EXPECT_EQ(CGdiObject_E::FromHandle(untyped.m_hObject), &untyped);
    untyped.Attach(untyped.m_hObject);
    first.reset();
    EXPECT_EQ(CGdiObject_E::FromHandle(untyped.m_hObject), &untyped);
    EXPECT_TRUE(untyped.DeleteObject());
}

TEST(GdiObjects, HandleOfAnotherClassGivesNoObject)
{
    CBrush_E brush(RGB(9, 9, 9));
    EXPECT_EQ(CPen_E::FromHandle(brush), nullptr);
    EXPECT_EQ(CBrush_E::FromHandle(nullptr), nullptr);
    int nobody = 0;
    EXPECT_TRUE(CGdiObject_E::FromHandle(&nobody)->DeleteObject()) << "of unknown type: not freed";
    CGdiObject_E::DeleteTempMap();
}

class Selection : public FreshMap
{
public:
    Selection() : m_dc(&m_image) { m_dc.SelectObject(QPen(Qt::darkYellow, 5)); }

    CPen_E* select(CPen_E* pPen) { return m_dc.SelectObject(pPen); }
    /// The object for a value that the painter has.
    CPen_E* objectOf(const QPen& value)
    {
        m_dc.SelectObject(value);
        return select(nullptr);
    }
    QPen current() const { return m_dc.m_painter.pen(); }
    static QPen valueOf(const CPen_E* pPen) { return *static_cast<QPen*>(pPen->m_hObject); }

    QImage m_image{8, 8, QImage::Format_RGB32};
    CDC_E m_dc;
};

TEST_F(Selection, PreviousObjectHoldsThePreviousValue)
{
    CPen_E red(PS_SOLID, 1, RGB(255, 0, 0));
    CPen_E dots(PS_DOT, 2, RGB(0, 255, 0));
    const QPen initial = current();
    CPen_E* const first = select(&red);
    EXPECT_EQ(valueOf(first), initial);
    EXPECT_EQ(CGdiObject_E::FromHandle(first->m_hObject), first);
    EXPECT_EQ(select(&dots), &red) << "the object itself while it is there";
    EXPECT_EQ(select(first), &dots);
    EXPECT_EQ(current(), initial) << "long since, others were selected";
    EXPECT_EQ(select(&red), first);
    m_dc.SelectObject(initial); // by value
    EXPECT_EQ(select(&dots), first) << "one object for equal values";
    first->DeleteObject();
    EXPECT_EQ(valueOf(CPen_E::FromHandle(objectOf(initial)->m_hObject)), initial);
}

TEST_F(Selection, SelectedObjectMayDieOrChange)
{
    auto pen = std::make_unique<CPen_E>(PS_DASH, 4, RGB(1, 2, 3));
    CPen_E other(PS_SOLID, 1, RGB(0, 0, 0));
    select(pen.get());
    const QPen dashed = current();
    pen.reset();
    EXPECT_EQ(valueOf(select(&other)), dashed);
    other.DeleteObject();
    other.CreatePen(PS_DOT, 7, RGB(7, 7, 7));
    EXPECT_EQ(valueOf(select(nullptr)), current());
    CPen_E* const held = objectOf(dashed);
    CPen_E owner;
    owner.Attach(held->Detach());
    CGdiObject_E::DeleteTempMap();
    EXPECT_EQ(valueOf(&owner), dashed) << "whoever takes hold of a copy owns it";
    select(objectOf(dashed));
    CGdiObject_E::DeleteTempMap();
    EXPECT_EQ(valueOf(select(nullptr)), current());
}

} // namespace
