#include "archiving.h"

// A handle that the collections close, as an application may ask for with its own helpers. As a key
// it has few hashes and compares without regard to its sign.
struct Handle
{
    int number;
};
static std::multiset<int> closed;
template <>
void DestructElements<Handle>(Handle* pElements, INT_PTR nCount)
{
    std::for_each_n(pElements, nCount, [](Handle& handle) { closed.insert(handle.number); });
}
template <>
void DumpElements<Handle>(CDumpContext_E& dc, const Handle* pElements, INT_PTR nCount)
{
    std::for_each_n(pElements, nCount, [&dc](Handle handle) { dc << handle.number << L";"; });
}
template <>
UINT HashKey<const Handle&>(const Handle& key)
{
    return static_cast<UINT>(std::abs(key.number)) % 3;
}
template <>
BOOL CompareElements<Handle, Handle>(const Handle* pElement1, const Handle* pElement2)
{
    return std::abs(pElement1->number) == std::abs(pElement2->number);
}

namespace {

/// Assigned only, never copied: it is a QObject.
class AssignedOnly : public CObject_E
{
public:
    AssignedOnly& operator=(const AssignedOnly& other) { return m_value = other.m_value, *this; }
    AssignedOnly& operator=(int value) { return m_value = value, *this; }
    int m_value = 0;
};

template <typename Element>
class SequenceOf : public testing::Test
{
public:
    std::mt19937 random{11};
};
using Elements = testing::Types<int, CString_E>;
TYPED_TEST_SUITE(SequenceOf, Elements);

TYPED_TEST(SequenceOf, ArrayAgreesWithAVector)
{
    CArray_E<TypeParam> array, other;
    std::vector<TypeParam> expected, copy;
    for (int step = 0; step < 5000; ++step) {
        const auto size = static_cast<INT_PTR>(expected.size());
        const auto at = static_cast<INT_PTR>(this->random()) % (size + 1);
        const auto count = std::min<INT_PTR>(size - at, at % 4);
        const auto here = expected.begin() + at;
        const TypeParam fresh = elementOf<TypeParam>(this->random() % 50);
        // Mostly an element of the array itself, which moves when the array grows.
        const TypeParam& given = at < size && step % 3 ? array[at] : fresh;
        const TypeParam value = given;
        const std::function<void()> changes[] = {
            [&] { array.Add(given), expected.push_back(value); },
            [&] { array.InsertAt(at, given, 3), expected.insert(here, 3, value); },
            [&] {
                array.SetAtGrow(at + 2, given);
                expected.resize(static_cast<std::size_t>(std::max(size, at + 3)));
                expected[static_cast<std::size_t>(at + 2)] = value;
            },
            [&] { array.RemoveAt(at, count), expected.erase(here, here + count); },
            [&] { array.InsertAt(at, &array), expected.insert(here, copy.begin(), copy.end()); },
            [&] { array.InsertAt(at, &other), expected.insert(here, copy.begin(), copy.end()); },
            [&] { array.Append(array), expected.insert(expected.end(), copy.begin(), copy.end()); },
            [&] { array.SetSize(at, count * 5), expected.erase(here, expected.end()); },
            [&] { array.SetSize(at), expected.erase(here, expected.end()), array.FreeExtra(); }};
        copy = expected;
        other.Copy(array);
        changes[size > 100 ? 8 : this->random() % std::size(changes)]();
        ASSERT_TRUE(std::equal(expected.begin(), expected.end(), array.GetData(),
                               array.GetData() + array.GetSize()))
            << step;
    }
}

TYPED_TEST(SequenceOf, ListAgreesWithAVectorAndKeepsItsPositions)
{
    CList_E<TypeParam> list(3);
    std::vector<TypeParam> expected;
    std::vector<POSITION> places;
    for (int step = 0; step < 5000; ++step) {
        const auto size = static_cast<INT_PTR>(expected.size());
        const auto at = static_cast<INT_PTR>(this->random()) % (size + 1);
        const POSITION position = list.FindIndex(at); // none at the end
        const auto value = elementOf<TypeParam>(this->random() % 50);
        const auto add = [&](POSITION made, INT_PTR index) {
            places.insert(places.begin() + index, made);
            expected.insert(expected.begin() + index, value);
        };
        // Before nothing is the head, after nothing the tail.
        const std::function<void()> changes[] = {
            [&] { add(list.AddHead(value), 0); }, [&] { add(list.AddTail(value), size); },
            [&] { add(list.InsertBefore(position, value), position ? at : 0); },
            [&] { add(list.InsertAfter(position, value), position ? at + 1 : size); }};
        if (!position || step % 2) {
            changes[this->random() % 4]();
        } else {
            list.RemoveAt(position);
            places.erase(places.begin() + at);
            expected.erase(expected.begin() + at);
        }
        POSITION next = list.GetHeadPosition(), back = list.GetTailPosition();
        for (std::size_t i = 0, last = places.size() - 1; i < places.size(); ++i) {
            ASSERT_TRUE(next == places[i] && list.GetNext(next) == expected[i]) << step;
            ASSERT_TRUE(back == places[last - i] && list.GetPrev(back) == expected[last - i])
                << step;
        }
        const auto found = std::find(expected.begin(), expected.end(), value);
        const POSITION first = list.Find(value);
        ASSERT_EQ(first, list.FindIndex(found - expected.begin()));
        ASSERT_EQ(first && list.Find(value, first),
                  std::count(expected.begin(), expected.end(), value) > 1);
    }
}

TEST(Sequences, RefuseWhatIsNotThere)
{
    using Wrong = CInvalidArgException_E*;
    CArray_E<int> array;
    array.SetSize(3);
    for (const INT_PTR index : {INT_PTR{-1}, INT_PTR{4}, PTRDIFF_MAX}) {
        EXPECT_THROW(array[index] = 1, Wrong);
        EXPECT_THROW(array.SetAt(index, 1), Wrong);
        EXPECT_THROW(array.RemoveAt(index, 0), Wrong);
        EXPECT_THROW(array.RemoveAt(2, index), Wrong);
    }
    CPtrList_E list;
    POSITION none = nullptr;
    // clang-format off
    const std::function<void()> uses[] = {
        [&] { std::as_const(array).GetAt(3); }, [&] { array.InsertAt(0, nullptr); },
        [&] { array.SetAtGrow(-1, 1); }, [&] { array.SetSize(-1); }, [&] { array.InsertAt(-1, 1); },
        [&] { array.InsertAt(0, 1, -1); }, [&] { list.GetHead(); }, [&] { list.RemoveTail(); },
        [&] { list.SetAt(none, &list); }, [&] { list.RemoveAt(none); }, [&] { list.GetNext(none); },
        [&] { list.AddHead(static_cast<CPtrList_E*>(nullptr)); },
    };
    // clang-format on
    for (const auto& use : uses)
        EXPECT_THROW(use(), Wrong) << &use - uses;
    EXPECT_THROW(array.SetSize(PTRDIFF_MAX / 2), CMemoryException_E*);
    EXPECT_THROW(array.SetAtGrow(PTRDIFF_MAX, 1), CMemoryException_E*);
    EXPECT_THROW(array.InsertAt(1, 1, PTRDIFF_MAX), CMemoryException_E*);
    array.InsertAt(5, 7); // behind the end: what is between is made by default
    EXPECT_EQ(std::vector<int>(array.GetData(), array.GetData() + array.GetSize()),
              (std::vector<int>{0, 0, 0, 0, 0, 7}));
}

TEST(Sequences, WholeListsInTheirOrder)
{
    CStringList_E list, other;
    list.AddTail(L"b");
    other.AddTail(L"a");
    other.AddHead(L"x");
    list.AddHead(&other);
    list.AddTail(&list);
    list.AddHead(&list);
    CString_E text;
    for (POSITION position = list.GetHeadPosition(); position;)
        text += list.GetNext(position);
    EXPECT_EQ(text, L"xabxabxabxab");
    EXPECT_TRUE(list.RemoveHead() == L"x" && list.RemoveTail() == L"b");
    EXPECT_EQ(list.GetHead() + list.GetTail(), L"aa");
}

template <typename Map>
class MapOf : public testing::Test
{
};
using Maps =
    testing::Types<CMap_E<CString_E, LPCWSTR, int, int>, CMap_E<CString_E, CString_E, int, int>,
                   CMap_E<Handle, const Handle&, int, const int&>>;
TYPED_TEST_SUITE(MapOf, Maps);

TYPED_TEST(MapOf, AgreesWithAnUnorderedMap)
{
    using Key = typename TypeParam::BASE_KEY;
    int made = 0;
    const auto keyOf = [&](int number) -> Key {
        if constexpr (std::is_same_v<Key, CString_E>)
            return QString::number(number);
        else
            return {++made % 2 ? number : -number};
    };
    TypeParam map(4);
    std::unordered_map<int, int> expected;
    std::mt19937 random(17);
    for (int step = 0; step < 20000; ++step) {
        const int number = static_cast<int>(random() % 700);
        const auto key = keyOf(number);
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
            map[keyOf(number)] = expected[number] = value;
        else
            ASSERT_EQ(map.RemoveKey(keyOf(number)), expected.erase(number) != 0);
        ASSERT_EQ(map.GetCount(), static_cast<INT_PTR>(expected.size()));
    }
    std::unordered_map<int, int> paired;
    for (auto* pair = map.PGetFirstAssoc(); pair; pair = map.PGetNextAssoc(pair))
        paired[pair->value % 1000] = pair->value;
    EXPECT_EQ(paired, expected);
    for (POSITION position = map.GetStartPosition(); position;) { // what was given may go
        auto key = keyOf(0);
        int value = 0;
        map.GetNextAssoc(position, key, value);
        const auto wanted = keyOf(value % 1000);
        ASSERT_TRUE(CompareElements(&key, &wanted) && paired[value % 1000] == value);
        EXPECT_TRUE(map.RemoveKey(key));
    }
    EXPECT_TRUE(map.IsEmpty() && !map.PGetFirstAssoc() && !map.PGetNextAssoc(nullptr));
}

TEST(Map, TableOfBuckets)
{
    CMap_E<int, int, int, int> map;
    EXPECT_EQ(map.GetHashTableSize(), 17U);
    map.InitHashTable(5, FALSE);
    EXPECT_TRUE(map.GetHashTableSize() == 5 && !map.GetStartPosition() && !map.RemoveKey(1));
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
    POSITION none = nullptr;
    int key = 7;
    map.GetNextAssoc(none, key, key);
    EXPECT_TRUE(key == 7 && map[3] == 0);
}

TEST(Map, FromStrings)
{
    CMapStringToString_E map;
    map.SetAt(L"one", L"1");
    map.SetAt(nullptr, L"empty");
    const std::wstring asked = L"one";
    LPCWSTR key = asked.c_str();
    EXPECT_TRUE(map.LookupKey(asked.c_str(), key) && !map.LookupKey(L"One", key));
    EXPECT_TRUE(key == asked && key != asked.c_str()) << "the map's own";
    EXPECT_EQ(map[L""], L"empty");
    const UINT hash = map.HashKey(L"one"); // of equal keys of any kind
    EXPECT_TRUE(HashKey<LPCWSTR>(key) == hash && HashKey<const CString_E&>(L"one") == hash);
    EXPECT_TRUE(HashKey<LPCSTR>("one") == hash && HashKey<LPCSTR>("One") != hash);
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

TEST(Collections, UseTheHelpersOfTheApplication)
{
    closed.clear();
    {
        CArray_E<Handle> array;
        for (int i = 1; i <= 200; ++i)
            array.Add({i});
        EXPECT_TRUE(closed.empty()) << "growing closes nothing";
        array.RemoveAt(2, 195);
        EXPECT_TRUE(closed.count(3) == 1 && closed.count(197) == 1 && closed.size() == 195);
        CList_E<Handle> list;
        list.AddTail({1000});
        CMap_E<int, int, Handle, const Handle&> map;
        map.SetAt(5, {1001});
        CMemFile_E file;
        CDumpContext_E dc(&file);
        dc.SetDepth(1);
        for (const CObject_E* p : std::initializer_list<const CObject_E*>{&array, &list, &map})
            p->Dump(dc);
        const QByteArray bytes = bytesOf(file);
        const std::wstring text(reinterpret_cast<const wchar_t*>(bytes.data()),
                                static_cast<std::size_t>(bytes.size()) / sizeof(wchar_t));
        for (const wchar_t* const part :
             {L"with 5 elements\n1;2;198;199;200;\n", L"1 elements\n1000;\n", L"\n\t[] = 1001;\n"})
            EXPECT_NE(text.find(part), std::wstring::npos) << part;
    }
    EXPECT_EQ(closed.size(), 195U + 5U + 2U);
    CArray_E<AssignedOnly, int> assigned;
    for (int i = 0; i < 20; ++i)
        assigned.Add(i);
    assigned.RemoveAt(0, 5);
    assigned.InsertAt(1, 99);
    EXPECT_EQ(assigned[0].m_value + assigned[1].m_value + assigned[15].m_value, 5 + 99 + 19);
}

} // namespace
