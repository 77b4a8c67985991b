#include "support/test.h"

/// A key of an application, of few hashes, that compares without regard to its sign.
struct Key
{
    int number;
};
template <>
UINT HashKey<const Key&>(const Key& key)
{
    return static_cast<UINT>(std::abs(key.number)) % 3;
}
template <>
BOOL CompareElements<Key, Key>(const Key* pElement1, const Key* pElement2)
{
    return std::abs(pElement1->number) == std::abs(pElement2->number);
}

namespace {

template <typename Map>
class MapOf : public testing::Test
{
public:
    static typename Map::BASE_KEY keyOf(int number)
    {
        if constexpr (std::is_same_v<typename Map::BASE_KEY, CString_E>)
            return QString::number(number);
        else
            return {++s_nMade % 2 ? number : -number};
    }
    static inline int s_nMade = 0;
};
using Maps =
    testing::Types<CMap_E<CString_E, LPCWSTR, int, int>, CMap_E<CString_E, CString_E, int, int>,
                   CMap_E<Key, const Key&, int, const int&>>;
TYPED_TEST_SUITE(MapOf, Maps);

TYPED_TEST(MapOf, AgreesWithAnUnorderedMap)
{
    TypeParam map(4);
    std::unordered_map<int, int> expected;
    std::mt19937 random(17);
    for (int step = 0; step < 20000; ++step) {
        const int number = static_cast<int>(random() % 700);
        const auto key = this->keyOf(number);
        const auto found = expected.find(number);
        const bool there = found != expected.end();
        int was = -1;
        ASSERT_EQ(map.Lookup(key, was) != FALSE, there);
        ASSERT_EQ(was, there ? found->second : -1);
        auto* const pair = map.PLookup(key);
        ASSERT_EQ(pair && pair->value == was, there);
        if (const int value = number + 1000 * (step % 2); step % 3 == 0)
            map.SetAt(key, expected[number] = value);
        else if (step % 3 == 1)
            map[this->keyOf(number)] = expected[number] = value;
        else
            ASSERT_EQ(map.RemoveKey(this->keyOf(number)), expected.erase(number) != 0);
        ASSERT_EQ(map.GetCount(), static_cast<INT_PTR>(expected.size()));
    }
    std::unordered_map<int, int> walked, paired;
    for (auto* pair = map.PGetFirstAssoc(); pair; pair = map.PGetNextAssoc(pair))
        paired[pair->value % 1000] = pair->value;
    EXPECT_EQ(paired, expected);
    for (POSITION position = map.GetStartPosition(); position;) { // what was given may go
        auto key = this->keyOf(0);
        int value = 0;
        map.GetNextAssoc(position, key, value);
        const auto wanted = this->keyOf(value % 1000);
        ASSERT_TRUE(CompareElements(&key, &wanted));
        walked[value % 1000] = value;
        EXPECT_TRUE(map.RemoveKey(key));
    }
    EXPECT_EQ(walked, expected);
    EXPECT_TRUE(map.IsEmpty() && !map.PGetFirstAssoc() && !map.PGetNextAssoc(nullptr));
}

TEST(Map, TableOfBuckets)
{
    CMap_E<int, int, int, int> map;
    EXPECT_EQ(map.GetHashTableSize(), 17U);
    map.InitHashTable(5, FALSE);
    EXPECT_EQ(map.GetHashTableSize(), 5U);
    EXPECT_TRUE(!map.GetStartPosition() && !map.RemoveKey(1));
    for (int i = 0; i < 1000; ++i)
        map.SetAt(i, i);
    EXPECT_GE(map.GetHashTableSize(), 500U) << "grown with its content";
    for (const UINT size : {0U, 3001U}) {
        map.InitHashTable(size);
        EXPECT_EQ(map.GetHashTableSize(), std::max(size, 1U));
        for (int i = 0, value = -1; i < 1000; ++i)
            ASSERT_TRUE(map.Lookup(i, value) && value == i);
    }
    map.RemoveAll();
    EXPECT_EQ(map[3], 0);
    POSITION none = nullptr;
    int key = 7;
    map.GetNextAssoc(none, key, key);
    EXPECT_EQ(key, 7);
}

TEST(Map, FromStrings)
{
    CMapStringToString_E map;
    map.SetAt(L"one", L"1");
    map.SetAt(nullptr, L"empty");
    LPCWSTR key = nullptr;
    const std::wstring asked = L"one";
    ASSERT_TRUE(map.LookupKey(asked.c_str(), key));
    EXPECT_EQ(key, asked);
    EXPECT_NE(key, asked.c_str()) << "the map's own";
    EXPECT_FALSE(map.LookupKey(L"One", key));
    EXPECT_EQ(map[L""], L"empty");
    const UINT hash = map.HashKey(L"one"); // of equal keys of any kind
    EXPECT_EQ(HashKey<LPCWSTR>(key), hash);
    EXPECT_EQ(HashKey<const CString_E&>(L"one"), hash);
    EXPECT_EQ(HashKey<LPCSTR>("one"), hash);
    EXPECT_NE(HashKey<LPCSTR>("One"), hash);
    EXPECT_EQ(HashKey<double>(0.0), HashKey<double>(-0.0));
}

template <typename Array, typename List>
void holdTyped()
{
    CByteArray_E first, second;
    CTypedPtrArray_E<Array, CByteArray_E*> array;
    array.Add(&first);
    array.InsertAt(0, &array);
    array.Append(array);
    array[1] = &second;
    array.ElementAt(1)->SetSize(6);
    CTypedPtrList_E<List, CByteArray_E*> list;
    const POSITION tail = list.AddTail(array[1]);
    list.AddHead(&list);
    list.GetAt(tail) = &first;
    POSITION position = list.GetHeadPosition();
    EXPECT_EQ(list.GetNext(position)->GetSize(), 6);
    EXPECT_EQ(std::as_const(list).GetNext(position), std::as_const(array)[3]);
    EXPECT_EQ(list.RemoveTail(), &first);
}
template <typename Map, typename Key>
void mapTyped(Key key)
{
    CByteArray_E object;
    CTypedPtrMap_E<Map, Key, CByteArray_E*> map;
    map.SetAt(key, nullptr);
    map[key] = &object;
    CByteArray_E* found = nullptr;
    EXPECT_TRUE(map.Lookup(key, found) && found == &object);
    Key walked{};
    POSITION position = map.GetStartPosition();
    map.GetNextAssoc(position, walked, found = nullptr);
    EXPECT_TRUE(walked == key && found == &object && !position);
    EXPECT_TRUE(map.RemoveKey(key) && !map.Lookup(key, found));
}
TEST(Typed, CollectionsOfPointers)
{
    holdTyped<CPtrArray_E, CPtrList_E>();
    holdTyped<CObArray_E, CObList_E>();
    CTypedPtrList_E<CObList_E, CObList_E*> lists;
    CObList_E inner;
    lists.AddTail(&inner);
    EXPECT_EQ(lists.GetCount(), 1) << "an element, not a list of elements";
    mapTyped<CMapPtrToPtr_E, CObject_E*>(&lists);
    mapTyped<CMapWordToPtr_E>(WORD{9});
    mapTyped<CMapWordToOb_E>(WORD{9});
    mapTyped<CMapStringToPtr_E>(CString_E(L"k"));
    mapTyped<CMapStringToOb_E>(CString_E(L"k"));
    CTypedPtrMap_E<CMapPtrToWord_E, CObject_E*, WORD> words;
    words[&lists] = 3;
    WORD word = 0;
    EXPECT_TRUE(words.Lookup(&lists, word) && word == 3);
}

} // namespace
