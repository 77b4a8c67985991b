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

TEST(Array, AgreesWithAVector)
{
    CArray_E<CString_E> array, other;
    std::vector<CString_E> expected, copy;
    std::mt19937 random(11);
    for (int step = 0; step < 5000; ++step) {
        const auto size = static_cast<INT_PTR>(expected.size());
        const auto at = static_cast<INT_PTR>(random()) % (size + 1);
        const auto count = std::min<INT_PTR>(size - at, at % 4);
        const auto here = expected.begin() + at;
        const CString_E fresh = QString::number(random() % 50);
        // Mostly an element of the array itself, which moves when the array grows.
        const CString_E& given = at < size && step % 3 ? array[at] : fresh;
        const CString_E value = given;
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
        changes[size > 100 ? 8 : random() % std::size(changes)]();
        ASSERT_TRUE(std::equal(expected.begin(), expected.end(), array.GetData(),
                               array.GetData() + array.GetSize()))
            << step;
    }
}

TEST(List, AgreesWithAVectorAndKeepsItsPositions)
{
    CList_E<CString_E> list(3);
    std::vector<CString_E> expected;
    std::mt19937 random(11);
    std::vector<POSITION> places;
    for (int step = 0; step < 5000; ++step) {
        const auto size = static_cast<INT_PTR>(expected.size());
        const auto at = static_cast<INT_PTR>(random()) % (size + 1);
        const POSITION position = list.FindIndex(at); // none at the end
        const CString_E value = QString::number(random() % 50);
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
            changes[random() % 4]();
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
        ASSERT_EQ(list.Find(value), list.FindIndex(found - expected.begin()));
    }
}

TEST(Sequences, RefuseWhatIsNotThere)
{
    using Wrong = CInvalidArgException_E*;
    CArray_E<int> array;
    array.SetSize(3);
    for (const INT_PTR index : {INT_PTR{-1}, INT_PTR{4}, PTRDIFF_MAX}) {
        EXPECT_THROW(array[index] = 1, Wrong);
        EXPECT_THROW(array.RemoveAt(2, index), Wrong);
    }
    EXPECT_THROW(array.RemoveAt(-1, 0), Wrong);
    EXPECT_THROW(array.SetSize(-1), Wrong);
    EXPECT_THROW(array.InsertAt(-1, 1), Wrong);
    EXPECT_THROW(array.InsertAt(0, nullptr), Wrong);
    EXPECT_THROW(array.SetSize(PTRDIFF_MAX / 2), CMemoryException_E*);
    EXPECT_THROW(array.SetAtGrow(PTRDIFF_MAX, 1), CMemoryException_E*);
    array.InsertAt(5, 7); // behind the end: what is between is made by default
    EXPECT_EQ(std::vector<int>(array.GetData(), array.GetData() + array.GetSize()),
              (std::vector<int>{0, 0, 0, 0, 0, 7}));
    CPtrList_E list;
    POSITION none = nullptr;
    EXPECT_THROW(list.GetHead(), Wrong);
    EXPECT_THROW(list.RemoveAt(none), Wrong);
    EXPECT_THROW(list.GetNext(none), Wrong);
}

TEST(Sequences, WholeListsInTheirOrder)
{
    CStringList_E list, other;
    list.AddTail(L"b");
    other.AddTail(L"x");
    other.AddTail(L"a");
    list.AddHead(&other);
    list.AddTail(&list);
    list.AddHead(&list);
    EXPECT_EQ(list.Find(L"a", list.FindIndex(1)), list.FindIndex(4));
    CString_E text;
    while (!list.IsEmpty())
        text += list.RemoveHead();
    EXPECT_EQ(text, L"xabxabxabxab");
}

TEST(Map, AgreesWithAnUnorderedMap)
{
    auto keyOf = [made = 0](int number) mutable { return Handle{++made % 2 ? number : -number}; };
    CMap_E<Handle, const Handle&, int, const int&> map(4);
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
        ASSERT_EQ(map.PLookup(key) != nullptr, there);
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
    map.InitHashTable(5, FALSE);
    EXPECT_TRUE(map.GetHashTableSize() == 5 && !map.GetStartPosition() && !map.RemoveKey(1));
    for (int i = 0; i < 1000; ++i)
        map.SetAt(i, i);
    EXPECT_GE(map.GetHashTableSize(), 500U) << "grown with its content";
    map.InitHashTable(0);
    EXPECT_EQ(map.GetHashTableSize(), 1U);
    EXPECT_EQ(map[999], 999);
    map.RemoveAll();
    EXPECT_TRUE(map.IsEmpty() && map[3] == 0);
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
    EXPECT_EQ(HashKey<const CString_E&>(L"one"), map.HashKey(L"one")); // of equal keys of any kind
    EXPECT_EQ(HashKey<LPCSTR>("one"), map.HashKey(L"one"));
    EXPECT_EQ(HashKey<double>(0.0), HashKey<double>(-0.0));
}

TEST(Typed, CollectionsOfPointers)
{
    CByteArray_E first, second;
    second.SetSize(6);
    CTypedPtrArray_E<CObArray_E, CByteArray_E*> array;
    array.Add(&first);
    array[0] = &second;
    CTypedPtrList_E<CPtrList_E, CByteArray_E*> list;
    list.AddTail(&first);
    list.AddHead(&list);
    list.GetHead() = array.GetAt(0);
    POSITION position = list.GetHeadPosition();
    EXPECT_EQ(list.GetNext(position)->GetSize(), 6);
    EXPECT_EQ(list.GetNext(position), &first);
    CTypedPtrList_E<CObList_E, CObList_E*> lists;
    CObList_E inner;
    lists.AddTail(&inner);
    EXPECT_EQ(lists.GetCount(), 1) << "an element, not a list of elements";

    CTypedPtrMap_E<CMapStringToOb_E, CString_E, CByteArray_E*> map;
    map.SetAt(L"k", nullptr);
    map[L"k"] = &first;
    CString_E key;
    CByteArray_E* found = nullptr;
    position = map.GetStartPosition();
    map.GetNextAssoc(position, key, found);
    EXPECT_TRUE(key == L"k" && found == &first && !position);
    EXPECT_TRUE(map.Lookup(L"k", found) && map.RemoveKey(L"k") && !map.Lookup(L"k", found));
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
    }
    EXPECT_EQ(closed.size(), 195U + 5U + 2U);
    CArray_E<AssignedOnly, int> assigned;
    for (int i = 0; i < 20; ++i)
        assigned.Add(i);
    assigned.RemoveAt(0, 5);
    EXPECT_EQ(assigned[0].m_value + assigned[14].m_value, 5 + 19);
}

} // namespace
