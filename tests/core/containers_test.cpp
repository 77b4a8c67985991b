#include "support/test.h"

#include <cstring>

namespace {

void* key(std::uintptr_t value) { return reinterpret_cast<void*>(value); }

TEST(Plex, LinksBlocksAtTheHead)
{
    CPlex_E* head = nullptr;
    CPlex_E* const first = CPlex_E::Create(head, 3, 5);
    CPlex_E* const second = CPlex_E::Create(head, 0, 8);
    EXPECT_EQ(head, second);
    EXPECT_EQ(second->pNext, first);
    EXPECT_EQ(first->pNext, nullptr);
    std::memset(first->data(), 1, 15);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(first->data()) % alignof(std::max_align_t), 0U);
    EXPECT_ANY_THROW(CPlex_E::Create(head, SIZE_MAX / 4, 8));
    EXPECT_ANY_THROW(CPlex_E::Create(head, SIZE_MAX, 1));
    EXPECT_EQ(head, second);
    head->FreeDataChain();
}

TEST(FixedAlloc, SmallRequestsBecomeTheLeast)
{
    // wanted size and block, what they become
    const Row<UINT, UINT, UINT, UINT> rows[] = {
        {3, 1, 8, 64}, {8, 2, 8, 2}, {0, 0, 8, 64}, {9, 3, 9, 3}};
    for (const auto& [size, block, allocSize, blockSize] : rows) {
        const CFixedAllocNoSync_E alloc(size, block);
        EXPECT_EQ(alloc.GetAllocSize(), allocSize) << size;
        EXPECT_EQ(alloc.GetBlockSize(), blockSize) << size;
    }
}

TEST(FixedAlloc, LowestAddressFirstThenTheOneFreedLast)
{
    for (const UINT size : {8U, 13U, 24U}) {
        CFixedAllocNoSync_E alloc(size, 4);
        auto* const first = static_cast<char*>(alloc.Alloc());
        EXPECT_EQ(alloc.Alloc(), first + size);
        EXPECT_EQ(alloc.Alloc(), first + 2 * size);
        EXPECT_EQ(alloc.Alloc(), first + 3 * size);
        void* const other = alloc.Alloc();
        EXPECT_TRUE(other < first || other >= first + 4 * size) << "a second block";
        alloc.Free(first + size);
        alloc.Free(nullptr);
        alloc.Free(first);
        EXPECT_EQ(alloc.Alloc(), first);
        EXPECT_EQ(alloc.Alloc(), first + size);
        alloc.FreeAll();
        alloc.FreeAll();
        EXPECT_NE(alloc.Alloc(), nullptr);
    }
}

struct Element
{
    int value = 0;
    Element* next = nullptr;
};

TEST(SimpleList, UnlinksTheElementAndClearsItsLink)
{
    CSimpleList_E list(offsetof(Element, next));
    Element a, b, c;
    EXPECT_EQ(list.Remove(&a), FALSE);
    for (Element* element : {&c, &b, &a})
        list.AddHead(element);
    list.AddHead(nullptr);
    EXPECT_EQ(list.GetHead(), &a);
    EXPECT_EQ(list.GetNext(&b), &c);
    EXPECT_EQ(list.Remove(&b), TRUE);
    EXPECT_EQ(b.next, nullptr);
    EXPECT_EQ(a.next, &c);
    EXPECT_EQ(list.Remove(&b), FALSE);
    EXPECT_EQ(list.Remove(&a), TRUE);
    EXPECT_EQ(list.Remove(&c), TRUE);
    EXPECT_TRUE(list.IsEmpty());
}

TEST(NoTrackObject, LivesInZeroedMemory)
{
    void* const memory = CNoTrackObject_E::operator new(64);
    std::memset(memory, 0xFF, 64);
    CNoTrackObject_E::operator delete(memory);
    auto* const zeroed = static_cast<unsigned char*>(CNoTrackObject_E::operator new(64));
    EXPECT_EQ(std::count(zeroed, zeroed + 64, 0), 64);
    CNoTrackObject_E::operator delete(zeroed);
    CNoTrackObject_E::operator delete(nullptr);
    EXPECT_ANY_THROW(CNoTrackObject_E::operator new(SIZE_MAX));
}

TEST(MapPtrToPtr, AgreesWithAStandardMap)
{
    CMapPtrToPtr_E map(4);
    std::map<void*, void*> expected;
    std::mt19937 random(7);
    for (int step = 0; step < 20000; ++step) {
        void* const k = key(random() % 900 * 16);
        void* const v = key(random());
        const auto action = random() % 5;
        if (action > 2)
            ASSERT_EQ(map.RemoveKey(k), expected.erase(k) ? TRUE : FALSE);
        else
            expected[k] = v;
        if (action == 2)
            map[k] = v;
        else if (action < 2)
            map.SetAt(k, v);
        ASSERT_EQ(map.GetCount(), static_cast<INT_PTR>(expected.size()));
    }
    std::map<void*, void*> walked;
    for (POSITION position = map.GetStartPosition(); position;) {
        void *k = nullptr, *v = nullptr;
        map.GetNextAssoc(position, k, v);
        EXPECT_TRUE(walked.emplace(k, v).second);
        map.RemoveKey(k);
    }
    EXPECT_EQ(walked, expected);
    EXPECT_TRUE(map.IsEmpty());
}

TEST(MapPtrToPtr, TableOfBuckets)
{
    CMapPtrToPtr_E map;
    EXPECT_EQ(map.GetHashTableSize(), 17U);
    map.InitHashTable(7, FALSE);
    EXPECT_EQ(map.GetHashTableSize(), 7U);
    void* value = key(5);
    EXPECT_EQ(map.Lookup(nullptr, value), FALSE);
    EXPECT_EQ(value, key(5)) << "a miss leaves the value alone";
    EXPECT_EQ(map.RemoveKey(nullptr), FALSE);
    EXPECT_EQ(map.GetStartPosition(), nullptr);
    map.SetAt(nullptr, key(1));
    EXPECT_EQ(map.GetHashTableSize(), 7U);
    for (std::uintptr_t i = 1; i <= 100; ++i)
        map.SetAt(key(i * 16), key(i));
    EXPECT_GE(map.GetHashTableSize(), 50U) << "grown with its content";
    map.InitHashTable(0);
    for (std::uintptr_t i = 1; i <= 100; ++i) {
        ASSERT_EQ(map.Lookup(key(i * 16), value), TRUE);
        ASSERT_EQ(value, key(i));
    }
    map.RemoveAll();
    EXPECT_EQ(map.GetCount(), 0);
    EXPECT_EQ(map[key(3)], nullptr) << "entered as null";
    EXPECT_EQ(map.GetCount(), 1);
    POSITION none = nullptr;
    map.GetNextAssoc(none, value, value);
    EXPECT_EQ(none, nullptr);
}

} // namespace
