#include "support/test.h"

#include <cstring>

namespace {

void* key(std::uintptr_t value) { return reinterpret_cast<void*>(value); }

TEST(Plex, SizesThatOverflowThrow)
{
    CPlex_E* head = nullptr;
    EXPECT_ANY_THROW(CPlex_E::Create(head, SIZE_MAX / 4, 8));
    EXPECT_ANY_THROW(CPlex_E::Create(head, SIZE_MAX, 1));
}

TEST(FixedAlloc, LowestAddressFirstThenTheOneFreedLast)
{
    const CFixedAllocNoSync_E raised(3, 1);
    EXPECT_TRUE(raised.GetAllocSize() == 8 && raised.GetBlockSize() == 64);
    CFixedAllocNoSync_E alloc(13, 4);
    auto* const first = static_cast<char*>(alloc.Alloc());
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(first) % alignof(std::max_align_t), 0U);
    for (int i = 1; i < 4; ++i)
        EXPECT_EQ(std::memset(alloc.Alloc(), 1, 13), first + i * 13);
    void* const other = alloc.Alloc();
    EXPECT_TRUE(other < first || other >= first + 4 * 13) << "a second block";
    alloc.Free(first + 13);
    alloc.Free(nullptr);
    alloc.Free(first);
    EXPECT_EQ(alloc.Alloc(), first);
    EXPECT_EQ(alloc.Alloc(), first + 13);
    alloc.Free(first);
    alloc.FreeAll();
    auto* const fresh = static_cast<char*>(alloc.Alloc());
    EXPECT_EQ(alloc.Alloc(), fresh + 13) << "what was free is forgotten";
}

TEST(SimpleList, UnlinksTheElementAndClearsItsLink)
{
    CSimpleList_E list(sizeof(void*));
    void *a[2], *b[2], *c[2]; // the link is the second word
    EXPECT_FALSE(list.Remove(a));
    for (void** element : {c, b, a, static_cast<void**>(nullptr)})
        list.AddHead(element);
    EXPECT_TRUE(list.Remove(b) && !b[1] && a[1] == c && !list.Remove(b));
    EXPECT_TRUE(list.Remove(a) && list.Remove(c) && list.IsEmpty());
}

TEST(NoTrackObject, LivesInZeroedMemory)
{
    void* const memory = CNoTrackObject_E::operator new(64);
    std::memset(memory, 0xFF, 64);
    CNoTrackObject_E::operator delete(memory);
    auto* const zeroed = static_cast<unsigned char*>(CNoTrackObject_E::operator new(64));
    EXPECT_EQ(std::count(zeroed, zeroed + 64, 0), 64);
    CNoTrackObject_E::operator delete(zeroed);
}

TEST(MapPtrToPtr, AgreesWithAStandardMap)
{
    CMapPtrToPtr_E map(4);
    std::map<void*, void*> expected;
    std::mt19937 random(7);
    void *k = nullptr, *found = nullptr;
    for (int step = 0; step < 20000; ++step) {
        k = key(random() % 900 * 16);
        ASSERT_EQ(map.Lookup(k, found), static_cast<BOOL>(expected.count(k)));
        if (random() % 5 > 2)
            ASSERT_EQ(map.RemoveKey(k), static_cast<BOOL>(expected.erase(k)));
        else
            map.SetAt(k, expected[k] = key(random()));
        if (step == 10000)
            map.InitHashTable(0);
        ASSERT_EQ(map.GetCount(), static_cast<INT_PTR>(expected.size()));
    }
    EXPECT_GE(map.GetHashTableSize(), expected.size()) << "grown with its content";
    for (POSITION position = map.GetStartPosition(); position; map.RemoveKey(k)) {
        map.GetNextAssoc(position, k, found);
        EXPECT_EQ(expected.at(k), found);
        expected.erase(k);
    }
    EXPECT_TRUE(map.IsEmpty() && expected.empty());
}

TEST(MapPtrToPtr, MissesLeaveTheValueAlone)
{
    CMapPtrToPtr_E map;
    map.InitHashTable(7, FALSE);
    void* value = key(5);
    POSITION none = map.GetStartPosition();
    EXPECT_FALSE(map.Lookup(nullptr, value) || map.RemoveKey(nullptr) || none);
    map.GetNextAssoc(none, value, value);
    EXPECT_EQ(value, key(5));
    EXPECT_EQ(map[key(3)], nullptr) << "entered as null";
    EXPECT_TRUE(map.GetCount() == 1 && map.GetHashTableSize() == 7);
}

} // namespace
