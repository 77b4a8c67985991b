#include "collectiontest.h"

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
std::vector<Element> contents(const CArray_E<Element>& array)
{
    std::vector<Element> result;
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        result.push_back(array[i]);
    return result;
}

template <typename Element>
class ArrayOf : public testing::Test
{
};
using Elements = testing::Types<int, CString_E, Counted>;
TYPED_TEST_SUITE(ArrayOf, Elements);

TYPED_TEST(ArrayOf, AgreesWithAVector)
{
    {
        CArray_E<TypeParam> array, other;
        std::vector<TypeParam> expected;
        std::mt19937 random(11);
        for (int step = 0; step < 4000; ++step) {
            const auto value = elementOf<TypeParam>(random());
            const auto size = static_cast<int>(expected.size());
            const int at = static_cast<int>(random()) % (size + 3);
            const int place = std::abs(at) % (size + 1);
            const int count = std::min(static_cast<int>(random() % 4), size - place);
            const auto here = expected.begin() + place;
            switch (random() % (size > 100 ? 11U : 8U)) {
            case 0:
                ASSERT_EQ(array.Add(value), size);
                expected.push_back(value);
                break;
            case 1: // an element of the array itself
                ASSERT_EQ(array.Add(size ? array[size / 2] : value), size);
                expected.push_back(size ? TypeParam(expected[expected.size() / 2]) : value);
                break;
            case 2:
                array.InsertAt(place, size ? array[0] : value, 3);
                expected.insert(here, 3, size ? TypeParam(expected[0]) : value);
                break;
            case 3:
                array.SetAtGrow(std::abs(at), size ? array[size - 1] : value);
                expected.resize(std::max(expected.size(), std::size_t(std::abs(at)) + 1));
                expected[std::size_t(std::abs(at))] =
                    size ? expected[std::size_t(size) - 1] : value;
                break;
            case 4:
                array.RemoveAt(place, count);
                expected.erase(here, here + count);
                break;
            case 5:
                array.SetSize(std::abs(at), static_cast<INT_PTR>(random() % 20));
                expected.resize(std::size_t(std::abs(at)));
                break;
            case 6:
                other.Copy(array);
                other.FreeExtra();
                array.InsertAt(place, step % 2 ? &array : &other);
                expected = contents(other);
                expected.insert(expected.begin() + place, other.GetData(), other.GetData() + size);
                break;
            case 7:
                ASSERT_EQ(array.Append(array), size);
                for (int i = 0; i < size; ++i)
                    expected.push_back(TypeParam(expected[std::size_t(i)]));
                break;
            default: // keeps it small
                array.RemoveAt(size / 4, size / 2);
                expected.erase(expected.begin() + size / 4, expected.begin() + size / 4 + size / 2);
            }
            ASSERT_EQ(contents(array), expected) << step;
            ASSERT_EQ(array.GetUpperBound(), static_cast<INT_PTR>(expected.size()) - 1);
        }
    }
    EXPECT_EQ(Counted::s_nAlive, 0);
}

TEST(Array, WrongIndexesAndSizes)
{
    CArray_E<int> array;
    array.SetSize(3);
    const auto& constant = array;
    const std::function<void()> wrong[] = {
        [&] { array[3] = 1; },
        [&] { array[-1] = 1; },
        [&] { static_cast<void>(constant[3]); },
        [&] { static_cast<void>(constant.GetAt(-1)); },
        [&] { array.ElementAt(PTRDIFF_MAX) = 1; },
        [&] { array.SetAt(3, 1); },
        [&] { array.SetAtGrow(-1, 1); },
        [&] { array.SetSize(-1); },
        [&] { array.InsertAt(-1, 1); },
        [&] { array.InsertAt(0, 1, -1); },
        [&] { array.InsertAt(0, nullptr); },
        [&] { array.RemoveAt(-1); },
        [&] { array.RemoveAt(0, -1); },
        [&] { array.RemoveAt(2, 2); },
        [&] { array.RemoveAt(4, 0); },
        [&] { array.RemoveAt(2, PTRDIFF_MAX); },
    };
    for (const auto& call : wrong)
        EXPECT_THROW(call(), CInvalidArgException_E*) << &call - wrong;
    const std::function<void()> tooMuch[] = {
        [&] { array.SetSize(PTRDIFF_MAX / 2); },
        [&] { array.SetAtGrow(PTRDIFF_MAX, 1); },
        [&] { array.InsertAt(1, 1, PTRDIFF_MAX); },
    };
    for (const auto& call : tooMuch)
        EXPECT_THROW(call(), CMemoryException_E*) << &call - tooMuch;
    EXPECT_EQ(contents(array), std::vector<int>(3)) << "left alone, and zero by default";
    array.RemoveAt(3, 0);
    array.InsertAt(5, 7, 2);
    EXPECT_EQ(contents(array), (std::vector<int>{0, 0, 0, 0, 0, 7, 7}));
    array.RemoveAll();
    EXPECT_EQ(array.GetData(), nullptr);
    EXPECT_TRUE(array.IsEmpty());
}

TEST(Array, GrowsByTheLeastAmountAskedFor)
{
    CArray_E<int, int> array;
    array.SetSize(1, 1000);
    const int* const data = array.GetData();
    for (int i = 1; i < 1000; ++i)
        array.Add(i);
    EXPECT_EQ(array.GetData(), data);
    EXPECT_EQ(array[999], 999);
}

TEST(Array, ElementsThatAreOnlyAssigned)
{
    CArray_E<AssignedOnly, int> array;
    for (int i = 0; i < 20; ++i)
        array.Add(i);
    array.RemoveAt(0, 5);
    array.InsertAt(1, 99);
    EXPECT_EQ(array[0].m_value, 5);
    EXPECT_EQ(array[1].m_value, 99);
    EXPECT_EQ(array[15].m_value, 19);
    EXPECT_EQ(array[15].GetClassName(), std::string("CObject_E"));
}

} // namespace

// A handle that the collections close, as an application may ask for with its own helper.
struct Handle
{
    int number;
};
static std::multiset<int> closed;
template <>
void DestructElements<Handle>(Handle* pElements, INT_PTR nCount)
{
    for (; nCount > 0; --nCount)
        closed.insert(pElements++->number);
}
template <>
void CopyElements<Handle>(Handle* pDest, const Handle* pSrc, INT_PTR nCount)
{
    for (; nCount > 0; --nCount)
        pDest++->number = -pSrc++->number;
}
template <>
void DumpElements<Handle>(CDumpContext_E& dc, const Handle* pElements, INT_PTR nCount)
{
    for (; nCount > 0; --nCount)
        dc << pElements++->number << L";";
}

TEST(Array, UsesTheHelpersOfTheApplication)
{
    {
        CArray_E<Handle> array, copy;
        for (int i = 1; i <= 9; ++i)
            array.Add({i});
        EXPECT_TRUE(closed.empty()) << "growing closes nothing";
        array.RemoveAt(2, 3);
        EXPECT_EQ(closed, (std::multiset<int>{3, 4, 5}));
        copy.Append(array);
        EXPECT_EQ(copy[5].number, -9);
        CMemFile_E file;
        CDumpContext_E dc(&file);
        dc.SetDepth(1);
        array.Dump(dc);
        std::wstring text(file.GetLength() / sizeof(wchar_t), L' ');
        file.SeekToBegin();
        file.Read(text.data(), static_cast<UINT>(text.size() * sizeof(wchar_t)));
        EXPECT_NE(text.find(L"with 6 elements\n1;2;6;7;8;9;\n"), std::wstring::npos);
    }
    EXPECT_EQ(closed.size(), 3U + 6U + 6U);
    closed.clear();
    CList_E<Handle> list;
    list.AddTail({1});
    list.AddTail({2});
    list.RemoveHead();
    EXPECT_EQ(closed, std::multiset<int>{1});
    CMap_E<int, int, Handle, const Handle&> map;
    map.SetAt(5, {50});
    map.RemoveAll();
    EXPECT_EQ(closed.count(50), 1U);
}
