#include "collectiontest.h"

namespace {

/// A key of an application, of few hashes, that compares without regard to its sign.
struct Key
{
    int number;
};

} // namespace

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

// How the keys of a map are made, and what they are in the map beside it.
struct NumberKeys
{
    using Map = CMap_E<int, int, CString_E, LPCWSTR>;
    static int key(int number) { return number * 64; }
    static int number(int key) { return key / 64; }
};
struct TextKeys
{
    using Map = CMap_E<CString_E, LPCWSTR, CString_E, LPCWSTR>;
    static CString_E key(int number) { return QString::number(number); }
    static int number(const CString_E& key) { return QString(VxQString(key)).toInt(); }
};
struct RealKeys
{
    using Map = CMap_E<double, double, CString_E, LPCWSTR>;
    static double key(int number) { return number == 0 ? -0.0 : number / 8.0; }
    static int number(double key) { return static_cast<int>(key * 8); }
};
struct OwnKeys
{
    using Map = CMap_E<Key, const Key&, CString_E, const CString_E&>;
    static Key key(int number) { return {number % 2 ? number : -number}; }
    static int number(const Key& key) { return std::abs(key.number); }
};

template <typename Keys>
class MapOf : public testing::Test
{
};
using AllKeys = testing::Types<NumberKeys, TextKeys, RealKeys, OwnKeys>;
TYPED_TEST_SUITE(MapOf, AllKeys);

TYPED_TEST(MapOf, AgreesWithAStandardMap)
{
    using Keys = TypeParam;
    typename Keys::Map map(4);
    std::map<int, CString_E> expected;
    std::mt19937 random(17);
    for (int step = 0; step < 20000; ++step) {
        const int number = static_cast<int>(random() % 700);
        const auto key = Keys::key(number);
        const auto value = elementOf<CString_E>(random());
        const auto found = expected.find(number);
        CString_E was = L"none";
        ASSERT_EQ(map.Lookup(key, was) != FALSE, found != expected.end());
        ASSERT_EQ(was, found != expected.end() ? found->second : CString_E(L"none"));
        auto* const pair = map.PLookup(key);
        ASSERT_EQ(pair != nullptr, found != expected.end());
        switch (random() % 5) {
        case 0:
            map.SetAt(key, value);
            expected[number] = value;
            break;
        case 1:
            map[key] += L"+";
            expected[number] += L"+";
            break;
        case 2:
            if (pair) {
                pair->value = value;
                expected[number] = value;
            }
            break;
        default:
            ASSERT_EQ(map.RemoveKey(key) != FALSE, expected.erase(number) != 0);
        }
        ASSERT_EQ(map.GetCount(), static_cast<INT_PTR>(expected.size()));
    }
    std::map<int, CString_E> walked, paired;
    for (auto* pair = map.PGetFirstAssoc(); pair; pair = map.PGetNextAssoc(pair))
        EXPECT_TRUE(paired.emplace(Keys::number(pair->key), pair->value).second);
    EXPECT_EQ(paired, expected);
    for (POSITION position = map.GetStartPosition(); position;) { // what was given may go
        auto key = Keys::key(0);
        CString_E value;
        map.GetNextAssoc(position, key, value);
        EXPECT_TRUE(walked.emplace(Keys::number(key), value).second);
        EXPECT_TRUE(map.RemoveKey(key));
    }
    EXPECT_EQ(walked, expected);
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(map.PGetFirstAssoc(), nullptr);
    EXPECT_EQ(map.PGetNextAssoc(nullptr), nullptr);
}

TEST(Map, TableOfBuckets)
{
    CMap_E<int, int, int, int> map;
    EXPECT_EQ(map.GetHashTableSize(), 17U);
    map.InitHashTable(5, FALSE);
    EXPECT_EQ(map.GetHashTableSize(), 5U);
    EXPECT_EQ(map.GetStartPosition(), nullptr);
    EXPECT_FALSE(map.RemoveKey(1));
    for (int i = 0; i < 1000; ++i)
        map.SetAt(i, i);
    EXPECT_GE(map.GetHashTableSize(), 500U) << "grown with its content";
    for (const UINT size : {0U, 1U, 3001U}) {
        map.InitHashTable(size);
        EXPECT_EQ(map.GetHashTableSize(), std::max(size, 1U));
        for (int i = 0, value = -1; i < 1000; ++i)
            ASSERT_TRUE(map.Lookup(i, value) && value == i);
    }
    map.RemoveAll();
    EXPECT_EQ(map[3], 0);
    POSITION none = nullptr;
    int key = 7, value = 7;
    map.GetNextAssoc(none, key, value);
    EXPECT_EQ(key + value, 14);
}

TEST(Map, EqualKeysOfAnyKindHaveOneHash)
{
    CString_E text = L"Text";
    wchar_t buffer[] = L"Text";
    const UINT hash = HashKey<LPCWSTR>(L"Text");
    EXPECT_EQ(HashKey<const CString_E&>(text), hash);
    EXPECT_EQ(HashKey<CString_E>(text), hash);
    EXPECT_EQ(HashKey<LPWSTR>(buffer), hash);
    EXPECT_EQ(HashKey<LPCSTR>("Text"), hash);
    EXPECT_NE(HashKey<LPCWSTR>(L"text"), hash);
    EXPECT_EQ(HashKey<LPCWSTR>(nullptr), HashKey<LPCWSTR>(L""));
    EXPECT_EQ(HashKey<double>(0.0), HashKey<double>(-0.0));
    EXPECT_NE(HashKey<void*>(&text), HashKey<void*>(&text + 1));
    EXPECT_NE(HashKey<ULONGLONG>(1ULL << 40), HashKey<ULONGLONG>(1ULL << 41));
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
    EXPECT_EQ(key, asked);
    EXPECT_EQ(map[L""], L"empty");
    EXPECT_EQ(map.HashKey(L"one"), HashKey<LPCWSTR>(L"one"));
}

class Part : public CObject_E
{
public:
    int m_number = 0;
};

template <typename Base>
class TypedOver : public testing::Test
{
public:
    static constexpr bool isMap = std::is_base_of_v<CMapStringToPtr_E, Base>;
};
using ArrayBases = testing::Types<CPtrArray_E, CObArray_E>;
TYPED_TEST_SUITE(TypedOver, ArrayBases);

TYPED_TEST(TypedOver, Arrays)
{
    Part first, second, third;
    CTypedPtrArray_E<TypeParam, Part*> array, other;
    array.Add(&first);
    array.SetAtGrow(1, &third);
    array[0]->m_number = 5;
    array[1] = &second;
    array.ElementAt(1)->m_number = 6;
    array.InsertAt(0, &third);
    other.Copy(array);
    array.Append(other);
    array.InsertAt(1, &other);
    const auto& constant = array;
    const Part* const expected[] = {&third,  &third, &first, &second, &first,
                                    &second, &third, &first, &second};
    ASSERT_EQ(array.GetSize(), 9);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(constant[i], expected[i]) << i;
    EXPECT_EQ(first.m_number + second.m_number, 11);
    EXPECT_EQ(qobject_cast<CObject_E*>(&array)->GetClassName(),
              std::string(TypeParam::staticMetaObject.className()));
}

template <typename List>
void walkTyped()
{
    Part first, second;
    List list, other;
    list.AddTail(&second);
    const POSITION head = list.AddHead(&first);
    other.AddTail(&list);
    list.GetTail()->m_number = 2;
    list.GetAt(head) = &second;
    const List& constant = list;
    POSITION position = constant.GetHeadPosition();
    EXPECT_EQ(constant.GetNext(position), &second);
    EXPECT_EQ(list.GetNext(position)->m_number, 2);
    list.SetAt(head, &first);
    EXPECT_EQ(list.RemoveHead(), &first);
    EXPECT_EQ(list.RemoveTail(), &second);
    EXPECT_EQ(other.GetHead(), &first);
    EXPECT_EQ(other.GetCount(), 2);
}
TEST(Typed, Lists)
{
    walkTyped<CTypedPtrList_E<CPtrList_E, Part*>>();
    walkTyped<CTypedPtrList_E<CObList_E, Part*>>();
    CTypedPtrList_E<CObList_E, CObList_E*> lists;
    CObList_E inner;
    inner.AddTail(&lists);
    lists.AddTail(&inner);
    EXPECT_EQ(lists.GetHead(), &inner) << "an element, not a list of elements";
}

template <typename Map, typename Key>
void fillTyped(Key key)
{
    Part part;
    Map map;
    map.SetAt(key, &part);
    map[key]->m_number = 4;
    Part* found = nullptr;
    ASSERT_TRUE(map.Lookup(key, found));
    EXPECT_EQ(found->m_number, 4);
    Key walked{};
    POSITION position = map.GetStartPosition();
    map.GetNextAssoc(position, walked, found);
    EXPECT_EQ(walked, key);
    EXPECT_EQ(position, nullptr);
    EXPECT_TRUE(map.RemoveKey(key));
    EXPECT_FALSE(map.Lookup(key, found));
}
TEST(Typed, Maps)
{
    Part key;
    fillTyped<CTypedPtrMap_E<CMapPtrToPtr_E, Part*, Part*>>(&key);
    fillTyped<CTypedPtrMap_E<CMapWordToPtr_E, WORD, Part*>>(WORD{9});
    fillTyped<CTypedPtrMap_E<CMapWordToOb_E, WORD, Part*>>(WORD{9});
    fillTyped<CTypedPtrMap_E<CMapStringToPtr_E, CString_E, Part*>>(CString_E(L"k"));
    fillTyped<CTypedPtrMap_E<CMapStringToOb_E, CString_E, Part*>>(CString_E(L"k"));
    CTypedPtrMap_E<CMapPtrToWord_E, Part*, WORD> words;
    words[&key] = 3;
    WORD word = 0;
    EXPECT_TRUE(words.Lookup(&key, word) && word == 3);
}

} // namespace
