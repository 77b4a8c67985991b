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

std::unique_ptr<CHandleMap_E> makeMap(int handles)
{
    return std::unique_ptr<CHandleMap_E>(
        vx::detail::makeHandleMap<Holder>(RUNTIME_CLASS_E(CObject_E), &Holder::first, handles));
}

TEST(HandleMap, TemporaryObjectsAreKeptAndPermanentOnesWin)
{
    const auto map = makeMap(1);
    EXPECT_TRUE(!map->FromHandle(nullptr) && !map->LookupTemporary(handle(1)));
    auto* const object = static_cast<Holder*>(map->FromHandle(handle(1)));
    EXPECT_EQ(object->second, nullptr) << "one handle";
    object->first = nullptr;
    EXPECT_EQ(map->FromHandle(handle(1)), object);
    EXPECT_EQ(object->first, handle(1)) << "rewritten";
    CObject_E permanent;
    map->SetPermanent(handle(1), &permanent);
    EXPECT_EQ(map->FromHandle(handle(1)), &permanent);
    map->SetPermanent(handle(2), &permanent);
    map->RemoveHandle(handle(1));
    EXPECT_EQ(map->FromHandle(handle(1)), object) << "removes permanent entries only";
    map->DeleteTemp();
    EXPECT_TRUE(alive == 0 && !map->LookupTemporary(handle(1)));
    EXPECT_EQ(map->LookupPermanent(handle(2)), &permanent);
}

TEST(HandleMap, ManyObjectsDoNotOverlapAndDieWithTheMap)
{
    auto map = makeMap(2);
    for (const bool made : {false, true}) {
        for (std::uintptr_t i = 1; i <= 500; ++i) {
            auto* const object = static_cast<Holder*>(map->FromHandle(handle(i)));
            ASSERT_TRUE(object->first == handle(i) && object->second == handle(i));
            ASSERT_EQ(object->more[199], made ? static_cast<char>(i % 100) : 0);
            object->more[199] = static_cast<char>(i % 100);
        }
        EXPECT_EQ(alive, 500);
    }
    map.reset();
    EXPECT_EQ(alive, 0);
}

TEST(HandleHolder, AttachAndTemporary)
{
    {
        CImageList_E list;
        EXPECT_TRUE(!list.Attach(nullptr) && list.Attach(handle(3)) && list.Attach(handle(4)));
        EXPECT_NE(CImageList_E::FromHandle(handle(3)), &list);
        EXPECT_EQ(CImageList_E::FromHandle(handle(4)), &list);
        EXPECT_TRUE(list.Detach() == handle(4) && !list.Detach());
        list.Attach(handle(4));
    }
    EXPECT_EQ(CImageList_E::FromHandle(handle(4))->Detach(), handle(4)) << "a temporary one";
    CImageList_E::DeleteTempMap();
    EXPECT_EQ(CDC_E::FromHandle(handle(6))->m_hAttribDC, handle(6)) << "both handles";
    CDC_E::DeleteTempMap();
}

} // namespace
