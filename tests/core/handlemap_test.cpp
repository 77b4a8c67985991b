#include "support/test.h"

namespace {

int alive = 0;

struct Holder : CObject_E
{
    Holder() { ++alive; }
    ~Holder() override
    {
        --alive;
        EXPECT_EQ(first, nullptr) << "cleared before the destructor runs";
    }
    void* first = nullptr;
    void* second = nullptr;
    char more[200] = {};
};

void* handle(std::uintptr_t n) { return reinterpret_cast<void*>(n * 16); }

CHandleMap_E* makeMap(int handles)
{
    return vx::detail::makeHandleMap<Holder>(RUNTIME_CLASS_E(CObject_E), &Holder::first, handles);
}

TEST(HandleMap, TemporaryObjectsAreKeptUntilDeleted)
{
    const std::unique_ptr<CHandleMap_E> map(makeMap(1));
    EXPECT_EQ(map->FromHandle(nullptr), nullptr);
    EXPECT_EQ(map->LookupTemporary(handle(1)), nullptr);
    auto* const object = static_cast<Holder*>(map->FromHandle(handle(1)));
    EXPECT_EQ(object->first, handle(1));
    EXPECT_EQ(object->second, nullptr) << "one handle";
    object->first = nullptr;
    EXPECT_EQ(map->FromHandle(handle(1)), object);
    EXPECT_EQ(object->first, handle(1)) << "rewritten";
    EXPECT_EQ(map->LookupTemporary(handle(1)), object);
    EXPECT_EQ(map->LookupPermanent(handle(1)), nullptr);
    map->RemoveHandle(handle(1));
    EXPECT_EQ(map->LookupTemporary(handle(1)), object) << "removes permanent entries only";
    map->DeleteTemp();
    EXPECT_EQ(alive, 0);
    EXPECT_EQ(map->LookupTemporary(handle(1)), nullptr);
}

TEST(HandleMap, PermanentEntriesWinAndAreOverwritten)
{
    const std::unique_ptr<CHandleMap_E> map(makeMap(2));
    CObject_E* const temporary = map->FromHandle(handle(2));
    EXPECT_EQ(static_cast<Holder*>(temporary)->second, handle(2)) << "two handles";
    CObject_E one, two;
    map->SetPermanent(handle(2), &one);
    EXPECT_EQ(map->FromHandle(handle(2)), &one);
    map->SetPermanent(handle(2), &two);
    EXPECT_EQ(map->LookupPermanent(handle(2)), &two);
    map->DeleteTemp();
    EXPECT_EQ(map->FromHandle(handle(2)), &two);
    map->RemoveHandle(handle(2));
    EXPECT_NE(map->FromHandle(handle(2)), &two);
}

TEST(HandleMap, ManyObjectsDoNotOverlapAndDieWithTheMap)
{
    std::unique_ptr<CHandleMap_E> map(makeMap(2));
    const auto object = [&](std::uintptr_t i) {
        return static_cast<Holder*>(map->FromHandle(handle(i)));
    };
    for (std::uintptr_t i = 1; i <= 500; ++i)
        object(i)->more[199] = static_cast<char>(i % 100);
    EXPECT_EQ(alive, 500);
    for (std::uintptr_t i = 1; i <= 500; ++i) {
        ASSERT_EQ(object(i)->first, handle(i));
        ASSERT_EQ(object(i)->second, handle(i));
        ASSERT_EQ(object(i)->more[199], static_cast<char>(i % 100));
    }
    map.reset();
    EXPECT_EQ(alive, 0);
}

struct Failing : CObject_E
{
    Failing() { throw 1; }
    void* handle = nullptr;
};

TEST(HandleMap, AFailedConstructionLeavesNothingBehind)
{
    const std::unique_ptr<CHandleMap_E> map(
        vx::detail::makeHandleMap<Failing>(RUNTIME_CLASS_E(CObject_E), &Failing::handle));
    EXPECT_THROW(map->FromHandle(handle(1)), int);
    EXPECT_EQ(map->LookupTemporary(handle(1)), nullptr);
}

template <typename T>
class HandleHolder : public testing::Test
{
};
using Holders = testing::Types<CDC_E, CGdiObject_E, CImageList_E>;
TYPED_TEST_SUITE(HandleHolder, Holders);

void* handleOf(const CDC_E* object) { return object->GetSafeHdc(); }
template <typename T>
void* handleOf(const T* object)
{
    return object->GetSafeHandle();
}

TYPED_TEST(HandleHolder, AttachAndTemporary)
{
    EXPECT_EQ(TypeParam::FromHandle(nullptr), nullptr);
    {
        TypeParam object;
        EXPECT_EQ(handleOf(&object), nullptr);
        EXPECT_EQ(object.Attach(nullptr), FALSE);
        EXPECT_EQ(object.Attach(handle(3)), TRUE);
        EXPECT_EQ(TypeParam::FromHandle(handle(3)), &object);
        EXPECT_EQ(object.Attach(handle(4)), TRUE);
        EXPECT_NE(TypeParam::FromHandle(handle(3)), &object);
        EXPECT_EQ(object.Detach(), handle(4));
        EXPECT_EQ(object.Detach(), nullptr);
        object.Attach(handle(4));
    }
    TypeParam* const temporary = TypeParam::FromHandle(handle(4));
    EXPECT_EQ(handleOf(temporary), handle(4));
    EXPECT_EQ(TypeParam::FromHandle(handle(4)), temporary);
    TypeParam::DeleteTempMap();
}

TEST(DeviceContext, BothHandlesFollow)
{
    CDC_E dc;
    dc.Attach(handle(5));
    EXPECT_EQ(dc.m_hAttribDC, handle(5));
    dc.Detach();
    EXPECT_EQ(dc.m_hAttribDC, nullptr);
    EXPECT_EQ(CDC_E::FromHandle(handle(6))->m_hAttribDC, handle(6));
    CDC_E::DeleteTempMap();
}

} // namespace
