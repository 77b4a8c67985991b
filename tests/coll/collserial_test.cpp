#include "archiving.h"

namespace {

template <typename T, typename A>
void put(CArray_E<T, A>& array, unsigned i)
{
    array.Add(elementOf<T>(i));
}
template <typename T, typename A>
void put(CList_E<T, A>& list, unsigned i)
{
    list.AddTail(elementOf<T>(i));
}
template <typename K, typename AK, typename V, typename AV>
void put(CMap_E<K, AK, V, AV>& map, unsigned i)
{
    map.SetAt(elementOf<K>(i), elementOf<V>(i));
}

QByteArray storedOf(CObject_E& object)
{
    return stored([&](auto& ar) { object.Serialize(ar); });
}
int causeOfLoading(CObject_E& object, const QByteArray& bytes)
{
    return loadCause(bytes, [&](auto& ar) { object.Serialize(ar); });
}

template <typename Collection>
class Serialized : public testing::Test
{
};
using Collections =
    testing::Types<CByteArray_E, CWordArray_E, CDWordArray_E, CObArray_E, CStringArray_E, CObList_E,
                   CStringList_E, CMapWordToOb_E, CMapStringToOb_E, CMapStringToString_E,
                   CArray_E<double>, CArray_E<wchar_t>,
                   CMap_E<CString_E, LPCWSTR, LONGLONG, LONGLONG>>;
TYPED_TEST_SUITE(Serialized, Collections);

TYPED_TEST(Serialized, ComesBackAndIsNotBelievedMoreThanThereIs)
{
    for (const unsigned count : {0U, 1U, 7U}) {
        TypeParam collection, back, again;
        for (unsigned i = 0; i < count; ++i)
            put(collection, i);
        const QByteArray bytes = storedOf(collection);
        ASSERT_EQ(causeOfLoading(back, bytes), CArchiveException_E::none);
        ASSERT_EQ(back.GetCount(), count);
        // Twice, which brings each bucket of a map into its first order.
        ASSERT_EQ(causeOfLoading(again, storedOf(back)), CArchiveException_E::none);
        EXPECT_EQ(storedOf(again), bytes);
        for (int cut = 0; cut < bytes.size(); ++cut) {
            TypeParam part;
            ASSERT_EQ(causeOfLoading(part, bytes.left(cut)), CArchiveException_E::endOfFile) << cut;
        }
    }
    // No count is believed: 2 to the 32nd elements, the most there can be, and no more than ten
    // bytes of them.
    for (const char* count : {"ffffffffffff0000000001000000", "ffffffffffffffffffffffffffff"}) {
        TypeParam collection;
        const QByteArray bytes = QByteArray::fromHex(count) + QByteArray(10, '\0');
        EXPECT_EQ(causeOfLoading(collection, bytes), CArchiveException_E::endOfFile);
        EXPECT_LE(collection.GetCount(), 0x10000);
    }
}

TEST(SerializedObjects, AreTheSameInAllCollections)
{
    CByteArray_E object;
    object.Add(5);
    CObArray_E array;
    CObList_E list;
    CMapStringToOb_E map;
    array.Add(&object);
    list.AddTail(&object);
    map.SetAt(L"k", &object);
    const QByteArray bytes = stored([&](auto& ar) { ar << &array << &list << &map; });
    CObArray_E* pArray = nullptr;
    CObList_E* pList = nullptr;
    CMapStringToOb_E* pMap = nullptr;
    load(bytes, [&](auto& ar) { ar >> pArray >> pList >> pMap; });
    EXPECT_EQ(dynamic_cast<CByteArray_E&>(*pArray->GetAt(0))[0], 5);
    EXPECT_EQ(pList->GetHead(), pArray->GetAt(0));
    EXPECT_EQ((*pMap)[L"k"], pArray->GetAt(0));
    qDeleteAll(std::initializer_list<CObject_E*>{pArray->GetAt(0), pArray, pList, pMap});
}

TEST(SerializedBytes, AreThoseOfTheFormat)
{
    CWordArray_E words, back;
    words.Add(0x102);
    words.Add(3);
    CMapStringToString_E strings;
    strings.SetAt(L"k", L"v");
    CUIntArray_E uints; // what means nothing elsewhere is not written
    uints.Add(1);
    const Row<CObject_E*, const char*> rows[] = {
        {&words, "020002010300"}, {&strings, "0100fffeff016b00fffeff017600"}, {&uints, ""}};
    for (const auto& [object, bytes] : rows)
        EXPECT_EQ(storedOf(*object).toHex(), bytes);
    words.SetSize(200000); // read in several pieces
    words[199999] = 5;
    ASSERT_EQ(causeOfLoading(back, storedOf(words)), CArchiveException_E::none);
    EXPECT_EQ(std::count(back.GetData(), back.GetData() + 200000, 0), 199997);
    CStringList_E list; // what is read is added
    list.AddTail(L"a");
    causeOfLoading(list, storedOf(list));
    EXPECT_EQ(list.GetCount(), 2);
    CArray_E<std::wstring> undefined;
    EXPECT_THROW(storedOf(undefined), CNotSupportedException_E*);
    CArray_E<wchar_t> units;
    units.Add(L'\U0001F600');
    EXPECT_THROW(storedOf(units), CNotSupportedException_E*);
}

} // namespace
