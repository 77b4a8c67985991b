#include "support/test.h"

#include <cstring>

namespace {

void* key(std::uintptr_t value) { return reinterpret_cast<void*>(value); }

TEST(Plex, LinksBlocksAtTheHead)
{
    CPlex_E* head = nullptr;
    CPlex_E* const first = CPlex_E::Create(head, 3, 5);
    EXPECT_EQ(CPlex_E::Create(head, 0, 8), head);
    EXPECT_ANY_THROW(CPlex_E::Create(head, SIZE_MAX / 4, 8));
    EXPECT_ANY_THROW(CPlex_E::Create(head, SIZE_MAX, 1));
    EXPECT_EQ(head->pNext, first);
    head->FreeDataChain();
}

TEST(FixedAlloc, LowestAddressFirstThenTheOneFreedLast)
{
    // wanted size and block, what they become
    const Row<UINT, UINT, UINT, UINT> rows[] = {{3, 1, 8, 64}, {8, 2, 8, 2}, {13, 4, 13, 4}};
    forRows(rows, [](UINT wantedSize, UINT wantedBlock, UINT size, UINT block) {
        CFixedAllocNoSync_E alloc(wantedSize, wantedBlock);
        EXPECT_TRUE(alloc.GetAllocSize() == size && alloc.GetBlockSize() == block);
        auto* const first = static_cast<char*>(alloc.Alloc());
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(first) % alignof(std::max_align_t), 0U);
        for (UINT i = 1; i < block; ++i)
            EXPECT_EQ(std::memset(alloc.Alloc(), 1, size), first + i * size);
        void* const other = alloc.Alloc();
        EXPECT_TRUE(other < first || other >= first + block * size) << "a second block";
        for (void* freed : {first + size, static_cast<char*>(nullptr), first})
            alloc.Free(freed);
        EXPECT_EQ(alloc.Alloc(), first);
        EXPECT_EQ(alloc.Alloc(), first + size);
        alloc.Free(first);
        alloc.Free(first + size);
        alloc.FreeAll();
        alloc.FreeAll();
        auto* const fresh = static_cast<char*>(alloc.Alloc());
        EXPECT_EQ(alloc.Alloc(), fresh + size) << "what was free is forgotten";
    });
}

TEST(SimpleList, UnlinksTheElementAndClearsItsLink)
{
    CSimpleList_E list(sizeof(void*));
    void *a[2], *b[2], *c[2]; // the link is the second word
    EXPECT_FALSE(list.Remove(a));
    for (void** element : {c, b, a, static_cast<void**>(nullptr)})
        list.AddHead(element);
    EXPECT_TRUE(list.GetHead() == a && list.GetNext(b) == c);
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
    EXPECT_ANY_THROW(CNoTrackObject_E::operator new(SIZE_MAX));
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

TEST(MapPtrToPtr, MissesAndTheTableOfBuckets)
{
    CMapPtrToPtr_E map;
    EXPECT_EQ(map.GetHashTableSize(), 17U);
    map.InitHashTable(7, FALSE);
    void* value = key(5);
    POSITION none = map.GetStartPosition();
    EXPECT_FALSE(map.Lookup(nullptr, value) || map.RemoveKey(nullptr) || none);
    map.GetNextAssoc(none, value, value);
    EXPECT_EQ(value, key(5)) << "a miss leaves the value alone";
    map.SetAt(key(3), key(1));
    EXPECT_EQ(map.GetHashTableSize(), 7U);
    map.RemoveAll();
    EXPECT_EQ(map[key(3)], nullptr) << "entered as null";
    EXPECT_EQ(map.GetCount(), 1);
}

} // namespace
