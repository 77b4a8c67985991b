#include "archiving.h"

namespace {

CByteArray_E objects[7];

template <typename Element>
Element elementOf(unsigned number)
{
    if constexpr (std::is_same_v<Element, CObject_E*>)
        return &objects[number % 7];
    else if constexpr (std::is_same_v<Element, CString_E>)
        return QString::number(number);
    else
        return static_cast<Element>(number);
}

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

/// Ends the objects that were read.
template <typename T, typename A>
void end(CArray_E<T, A>& array)
{
    if constexpr (std::is_same_v<T, CObject_E*>)
        qDeleteAll(array.GetData(), array.GetData() + array.GetSize());
}
template <typename T, typename A>
void end(CList_E<T, A>& list)
{
    if constexpr (std::is_same_v<T, CObject_E*>)
        while (!list.IsEmpty())
            delete list.RemoveHead();
}
template <typename K, typename AK, typename V, typename AV>
void end(CMap_E<K, AK, V, AV>& map)
{
    if constexpr (std::is_same_v<V, CObject_E*>)
        for (auto* pair = map.PGetFirstAssoc(); pair; pair = map.PGetNextAssoc(pair))
            delete pair->value;
}

QByteArray storedOf(CObject_E& object)
{
    return stored([&](CArchive_E& ar) { object.Serialize(ar); });
}
int causeOfLoading(CObject_E& object, const QByteArray& bytes)
{
    return loadCause(bytes, [&](CArchive_E& ar) { object.Serialize(ar); });
}

template <typename Collection>
class Serialized : public testing::Test
{
};
using Collections =
    testing::Types<CByteArray_E, CWordArray_E, CDWordArray_E, CObArray_E, CStringArray_E, CObList_E,
                   CStringList_E, CMapWordToOb_E, CMapStringToOb_E, CMapStringToString_E,
                   CArray_E<double>, CMap_E<CString_E, LPCWSTR, LONGLONG, LONGLONG>>;
TYPED_TEST_SUITE(Serialized, Collections);

TYPED_TEST(Serialized, ComesBackAndCannotBeCutShort)
{
    for (int i = 0; i < 7; ++i)
        objects[i].SetSize(i);
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
        end(back);
        end(again);
        for (int cut = 0; cut < bytes.size(); ++cut) {
            TypeParam part;
            ASSERT_EQ(causeOfLoading(part, bytes.left(cut)), CArchiveException_E::endOfFile) << cut;
            end(part);
        }
    }
}

TYPED_TEST(Serialized, BelievesNoCount)
{
    // 2 to the 32nd elements, the most there can be, and no more than ten bytes of them.
    for (const char* count : {"ffffffffffff0000000001000000", "ffffffffffffffffffffffffffff"}) {
        TypeParam collection;
        const QByteArray bytes = QByteArray::fromHex(count) + QByteArray(10, '\0');
        EXPECT_EQ(causeOfLoading(collection, bytes), CArchiveException_E::endOfFile);
        EXPECT_LE(collection.GetCount(), 0x10000);
    }
}

TEST(SerializedBytes, AreThoseOfTheFormat)
{
    CWordArray_E words, back;
    for (const WORD word : {0x102, 3})
        words.Add(word);
    CDWordArray_E dwords;
    dwords.Add(0x01020304);
    CMapStringToString_E strings;
    strings.SetAt(L"k", L"v");
    CMapWordToOb_E noObjects;
    noObjects.SetAt(7, nullptr);
    CUIntArray_E uints; // what means nothing elsewhere is not written
    uints.Add(1);
    CMapStringToPtr_E pointers;
    pointers.SetAt(L"k", &words);
    const Row<CObject_E*, const char*> rows[] = {{&words, "020002010300"},
                                                 {&dwords, "010004030201"},
                                                 {&strings, "0100fffeff016b00fffeff017600"},
                                                 {&noObjects, "010007000000"},
                                                 {&uints, ""},
                                                 {&pointers, ""}};
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
}

} // namespace
