#include "support/test.h"

#include <list>

// A handle that the collections close, as an application may ask for with its own helpers.
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
    static Element elementOf(std::size_t number)
    {
        if constexpr (std::is_same_v<Element, CString_E>)
            return CString_E(static_cast<wchar_t>(number + L'A'), 9);
        else
            return static_cast<Element>(number);
    }
    std::mt19937 random{11};
};
using Elements = testing::Types<int, CString_E>;
TYPED_TEST_SUITE(SequenceOf, Elements);

TYPED_TEST(SequenceOf, ArrayAgreesWithAVector)
{
    using Vector = std::vector<TypeParam>;
    CArray_E<TypeParam> array, other;
    Vector expected, copy;
    const auto over = [](Vector& vector, INT_PTR at) -> TypeParam& {
        vector.resize(std::max(vector.size(), static_cast<std::size_t>(at) + 1));
        return vector[static_cast<std::size_t>(at)];
    };
    for (int step = 0; step < 5000; ++step) {
        const auto size = static_cast<INT_PTR>(expected.size());
        const auto at = static_cast<INT_PTR>(this->random()) % (size + 1);
        const auto count = std::min<INT_PTR>(size - at, at % 4);
        const auto here = expected.begin() + at;
        const TypeParam fresh = this->elementOf(this->random() % 50);
        // Mostly an element of the array itself, which moves when the array grows.
        const TypeParam& given = at < size && step % 3 ? array[at] : fresh;
        const TypeParam value = given;
        const std::function<void()> changes[] = {
            [&] { array.Add(given), expected.push_back(value); },
            [&] { array.InsertAt(at, given, 3), expected.insert(here, 3, value); },
            [&] { array.SetAtGrow(at, given), over(expected, at) = value; },
            [&] { array.SetAtGrow(size + 2, given), over(expected, size + 2) = value; },
            [&] { array.RemoveAt(at, count), expected.erase(here, here + count); },
            [&] { array.InsertAt(at, &array), expected.insert(here, copy.begin(), copy.end()); },
            [&] { array.InsertAt(at, &other), expected.insert(here, copy.begin(), copy.end()); },
            [&] { array.Append(array), expected.insert(expected.end(), copy.begin(), copy.end()); },
            [&] { array.SetSize(at, count * 5), expected.erase(here, expected.end()); },
            [&] { array.SetSize(at), expected.erase(here, expected.end()), array.FreeExtra(); }};
        copy = expected;
        other.Copy(array);
        changes[size > 100 ? 9 : this->random() % std::size(changes)]();
        ASSERT_EQ(Vector(array.GetData(), array.GetData() + array.GetSize()), expected) << step;
    }
}

TYPED_TEST(SequenceOf, ListAgreesWithAListAndKeepsItsPositions)
{
    using List = std::list<TypeParam>;
    CList_E<TypeParam> list(3);
    List expected;
    std::vector<std::pair<POSITION, typename List::iterator>> places;
    for (int step = 0; step < 5000; ++step) {
        const auto value = this->elementOf(this->random() % 50);
        const std::size_t at = this->random() % (places.size() + 1);
        const bool any = at < places.size();
        const auto [position, it] = any ? places[at] : std::pair{POSITION{}, expected.end()};
        const auto add = [&](POSITION made, typename List::iterator before) {
            places.emplace_back(made, expected.insert(before, value));
        };
        // Before nothing is the head, after nothing the tail.
        const std::function<void()> changes[] = {
            [&] { add(list.AddHead(value), expected.begin()); },
            [&] { add(list.AddTail(value), expected.end()); },
            [&] { add(list.InsertBefore(position, value), any ? it : expected.begin()); },
            [&] { add(list.InsertAfter(position, value), any ? std::next(it) : it); },
            [&] {
                list.RemoveAt(position), expected.erase(it), std::swap(places[at], places.back());
            }};
        const bool remove = any && step % 2;
        changes[remove ? 4 : this->random() % 4]();
        places.resize(places.size() - remove);
        for (const auto& [here, there] : places)
            ASSERT_EQ(list.GetAt(here), *there);
        const auto found = std::find(expected.begin(), expected.end(), value);
        const POSITION first = list.Find(value);
        const auto index = std::distance(expected.begin(), found);
        ASSERT_EQ(first, list.FindIndex(index)) << "none at the end";
        ASSERT_EQ(first && list.Find(value, first),
                  std::count(expected.begin(), expected.end(), value) > 1);
    }
    auto there = expected.begin();
    for (POSITION position = list.GetHeadPosition(); position;) { // walking while removing
        const POSITION here = position;
        ASSERT_EQ(list.GetNext(position), *there++);
        POSITION back = position ? position : here;
        ASSERT_EQ(list.GetPrev(back), position ? *there : *std::prev(there));
        list.RemoveAt(here);
    }
    EXPECT_TRUE(list.IsEmpty() && there == expected.end());
}

TEST(Sequences, RefuseWhatIsNotThere)
{
    using Wrong = CInvalidArgException_E*;
    CArray_E<int> array;
    array.SetSize(3);
    EXPECT_THROW(array.InsertAt(0, nullptr), Wrong);
    for (const INT_PTR index : {INT_PTR{-1}, INT_PTR{4}, PTRDIFF_MAX}) {
        EXPECT_THROW(array[index] = 1, Wrong);
        EXPECT_THROW(array.SetAt(index, 1), Wrong);
        EXPECT_THROW(array.RemoveAt(index, 0), Wrong);
        EXPECT_THROW(array.RemoveAt(2, index), Wrong);
    }
    EXPECT_THROW(std::as_const(array).GetAt(3), Wrong);
    EXPECT_THROW(array.SetAtGrow(-1, 1), Wrong);
    EXPECT_THROW(array.SetSize(-1), Wrong);
    EXPECT_THROW(array.InsertAt(-1, 1), Wrong);
    EXPECT_THROW(array.InsertAt(0, 1, -1), Wrong);
    CPtrList_E list;
    POSITION none = nullptr;
    EXPECT_THROW(list.GetHead(), Wrong);
    EXPECT_THROW(list.RemoveTail(), Wrong);
    EXPECT_THROW(list.SetAt(none, &list), Wrong);
    EXPECT_THROW(list.RemoveAt(none), Wrong);
    EXPECT_THROW(list.GetNext(none), Wrong);
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
    EXPECT_EQ(list.RemoveHead(), L"x");
    EXPECT_EQ(list.RemoveTail(), L"b");
    EXPECT_EQ(list.GetHead() + list.GetTail(), L"aa");
}

TEST(Sequences, UseTheHelpersOfTheApplication)
{
    {
        CArray_E<Handle> array;
        for (int i = 1; i <= 200; ++i)
            array.Add({i});
        EXPECT_TRUE(closed.empty()) << "growing closes nothing";
        array.RemoveAt(2, 195);
        EXPECT_EQ(closed.count(3) + closed.count(197), 2U);
        EXPECT_EQ(closed.count(2) + closed.count(198), 0U);
        CMemFile_E file;
        CDumpContext_E dc(&file);
        dc.SetDepth(1);
        array.Dump(dc);
        std::wstring text(file.GetLength() / sizeof(wchar_t), L' ');
        file.SeekToBegin();
        file.Read(text.data(), static_cast<UINT>(text.size() * sizeof(wchar_t)));
        EXPECT_NE(text.find(L"with 5 elements\n1;2;198;199;200;\n"), std::wstring::npos);
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
    assigned.InsertAt(1, 99);
    EXPECT_EQ(assigned[0].m_value + assigned[1].m_value + assigned[15].m_value, 5 + 99 + 19);
}

} // namespace
