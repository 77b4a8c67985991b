#include "collectiontest.h"

namespace {

template <typename Element>
std::vector<Element> contents(const CList_E<Element>& list)
{
    std::vector<Element> result, backward;
    for (POSITION position = list.GetHeadPosition(); position;)
        result.push_back(list.GetNext(position));
    for (POSITION position = list.GetTailPosition(); position;)
        backward.insert(backward.begin(), list.GetPrev(position));
    EXPECT_EQ(result, backward);
    return result;
}

template <typename Element>
class ListOf : public testing::Test
{
};
using Elements = testing::Types<int, CString_E, Counted>;
TYPED_TEST_SUITE(ListOf, Elements);

TYPED_TEST(ListOf, AgreesWithAListAndKeepsItsPositions)
{
    using List = std::list<TypeParam>;
    {
        CList_E<TypeParam> list(3);
        List expected;
        std::vector<std::pair<POSITION, typename List::iterator>> places;
        std::mt19937 random(13);
        const auto enter = [&](POSITION position, typename List::iterator it) {
            places.emplace_back(position, it);
        };
        for (int step = 0; step < 6000; ++step) {
            const auto value = elementOf<TypeParam>(random() % 50);
            const std::size_t at = random() % (places.size() + 1);
            const auto [position, it] =
                at < places.size() ? places[at] : std::pair{POSITION{}, expected.end()};
            switch (random() % 9) {
            case 0:
                enter(list.AddHead(value), expected.insert(expected.begin(), value));
                break;
            case 1:
                enter(list.AddTail(value), expected.insert(expected.end(), value));
                break;
            case 2: // before nothing: the head
                enter(list.InsertBefore(position, value),
                      expected.insert(position ? it : expected.begin(), value));
                break;
            case 3: // after nothing: the tail
                enter(list.InsertAfter(position, value),
                      expected.insert(position ? std::next(it) : expected.end(), value));
                break;
            case 4:
                if (position) {
                    list.SetAt(position, value);
                    *it = value;
                }
                break;
            default:
                if (position) {
                    list.RemoveAt(position);
                    expected.erase(it);
                    places.erase(places.begin() + static_cast<std::ptrdiff_t>(at));
                }
            }
            ASSERT_EQ(list.GetCount(), static_cast<INT_PTR>(expected.size()));
            for (const auto& [here, there] : places)
                ASSERT_EQ(list.GetAt(here), *there);
            const auto found = std::find(expected.begin(), expected.end(), value);
            const POSITION first = list.Find(value);
            ASSERT_EQ(first != nullptr, found != expected.end());
            ASSERT_EQ(first, list.FindIndex(first ? std::distance(expected.begin(), found) : -1));
            ASSERT_EQ(first && list.Find(value, first),
                      std::count(expected.begin(), expected.end(), value) > 1);
        }
        EXPECT_EQ(contents(list), std::vector<TypeParam>(expected.begin(), expected.end()));
    }
    EXPECT_EQ(Counted::s_nAlive, 0);
}

TEST(List, EndsAndWholeLists)
{
    CStringList_E list, other;
    for (const wchar_t* text : {L"b", L"c"})
        list.AddTail(text);
    other.AddTail(L"a");
    other.AddHead(list.GetTail());
    EXPECT_EQ(contents(other), (std::vector<CString_E>{L"c", L"a"}));
    list.AddHead(&other);
    list.AddTail(&list);
    EXPECT_EQ(contents(list),
              (std::vector<CString_E>{L"c", L"a", L"b", L"c", L"c", L"a", L"b", L"c"}));
    list.RemoveAll();
    list.AddTail(&other);
    list.AddHead(&list);
    EXPECT_EQ(contents(list), (std::vector<CString_E>{L"c", L"a", L"c", L"a"}));
    EXPECT_EQ(list.RemoveHead(), L"c");
    EXPECT_EQ(list.RemoveTail(), L"a");
    EXPECT_EQ(list.GetHead() + list.GetTail(), L"ac");
    for (POSITION position = list.GetHeadPosition(); position;) { // walking while removing
        const POSITION here = position;
        list.GetNext(position);
        list.RemoveAt(here);
    }
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetTailPosition(), nullptr);
}

TEST(List, NoPositionAndNoElement)
{
    CList_E<int, int> list;
    POSITION none = nullptr;
    const std::function<void()> wrong[] = {
        [&] { list.GetHead(); },
        [&] { list.GetTail(); },
        [&] { list.RemoveHead(); },
        [&] { list.RemoveTail(); },
        [&] { list.GetAt(none); },
        [&] { list.SetAt(none, 1); },
        [&] { list.RemoveAt(none); },
        [&] { list.GetNext(none); },
        [&] { list.GetPrev(none); },
        [&] { list.AddTail(static_cast<CList_E<int, int>*>(nullptr)); },
    };
    for (const auto& call : wrong)
        EXPECT_THROW(call(), CInvalidArgException_E*) << &call - wrong;
    list.AddTail(1);
    for (const INT_PTR index : {-1, 1, 2})
        EXPECT_EQ(list.FindIndex(index), nullptr);
}

} // namespace
