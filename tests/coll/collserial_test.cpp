#include "collectiontest.h"

namespace {

/// The objects of the collections: byte arrays, as long as their number says.
CObject_E* objectOf(unsigned number)
{
    auto* const object = new CByteArray_E;
    object->SetSize(number);
    return object;
}

template <typename Element>
Element storedOf(unsigned number)
{
    if constexpr (std::is_same_v<Element, CObject_E*>)
        return objectOf(number);
    else
        return elementOf<Element>(number);
}

template <typename Element>
std::string described(const Element& element)
{
    if constexpr (std::is_same_v<Element, CString_E>)
        return element.Utf8Ptr();
    else if constexpr (std::is_same_v<Element, CObject_E*>)
        return element ? "object " + std::to_string(dynamic_cast<CByteArray_E&>(*element).GetSize())
                       : "null";
    else
        return std::to_string(element);
}
void drop(CObject_E* object) { delete object; }
template <typename Element>
void drop(const Element&)
{
}

template <typename T, typename A>
void fill(CArray_E<T, A>& array, unsigned count)
{
    for (unsigned i = 0; i < count; ++i)
        array.Add(storedOf<T>(i));
}
template <typename T, typename A>
void fill(CList_E<T, A>& list, unsigned count)
{
    for (unsigned i = 0; i < count; ++i)
        list.AddTail(storedOf<T>(i));
}
template <typename K, typename AK, typename V, typename AV>
void fill(CMap_E<K, AK, V, AV>& map, unsigned count)
{
    for (unsigned i = 0; i < count; ++i)
        map.SetAt(storedOf<K>(i), storedOf<V>(2 * i));
}

/// Describes the elements and ends the objects among them.
template <typename T, typename A>
std::vector<std::string> takeOut(CArray_E<T, A>& array)
{
    std::vector<std::string> result;
    for (INT_PTR i = 0; i < array.GetSize(); ++i) {
        result.push_back(described(array[i]));
        drop(array[i]);
    }
    array.RemoveAll();
    return result;
}
template <typename T, typename A>
std::vector<std::string> takeOut(CList_E<T, A>& list)
{
    std::vector<std::string> result;
    while (!list.IsEmpty()) {
        const T element = list.RemoveHead();
        result.push_back(described(element));
        drop(element);
    }
    return result;
}
template <typename K, typename AK, typename V, typename AV>
std::vector<std::string> takeOut(CMap_E<K, AK, V, AV>& map)
{
    std::set<std::string> result;
    for (auto* pair = map.PGetFirstAssoc(); pair; pair = map.PGetNextAssoc(pair)) {
        result.insert(described(pair->key) + " = " + described(pair->value));
        drop(pair->value);
    }
    map.RemoveAll();
    return {result.begin(), result.end()};
}

std::string stored(CObject_E& object)
{
    CMemFile_E file;
    CArchive_E ar(&file, CArchive_E::store);
    object.Serialize(ar);
    ar.Close();
    std::string bytes(file.GetLength(), ' ');
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

/// The cause of the archive exception that reading throws; none without one.
int load(CObject_E& object, std::string bytes)
{
    CMemFile_E file(reinterpret_cast<BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
    CArchive_E ar(&file, CArchive_E::load);
    try {
        object.Serialize(ar);
    } catch (CArchiveException_E* exception) {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return CArchiveException_E::none;
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
    for (const unsigned count : {0U, 1U, 7U, 70000U}) {
        if (std::is_base_of_v<CMapWordToOb_E, TypeParam> && count > 0xFFFF)
            continue; // there are not as many words
        TypeParam collection, back;
        fill(collection, count);
        const std::string bytes = stored(collection);
        const auto expected = takeOut(collection);
        ASSERT_EQ(load(back, bytes), CArchiveException_E::none);
        ASSERT_EQ(takeOut(back), expected);
        for (std::size_t cut = 0; count <= 7 && cut < bytes.size(); ++cut) {
            ASSERT_EQ(load(back, bytes.substr(0, cut)), CArchiveException_E::endOfFile) << cut;
            takeOut(back);
        }
    }
}

TYPED_TEST(Serialized, BelievesNoCount)
{
    using namespace std::string_literals;
    // 2 to the 32nd elements, the most there can be, and no more than ten bytes of them.
    const std::string counts[] = {"\xFF\xFF\xFF\xFF\xFF\xFF\0\0\0\0\1\0\0\0"s,
                                  "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s};
    for (const std::string& count : counts) {
        TypeParam collection;
        EXPECT_EQ(load(collection, count + std::string(10, '\0')), CArchiveException_E::endOfFile);
        EXPECT_LE(collection.GetCount(), 0x10000);
        takeOut(collection);
    }
}

TEST(SerializedBytes, AreThoseOfTheFormat)
{
    CByteArray_E bytes;
    bytes.Add(0xFE);
    EXPECT_EQ(QByteArray::fromStdString(stored(bytes)).toHex(), "0100fe");
    CWordArray_E words;
    words.Add(0x102);
    words.Add(3);
    EXPECT_EQ(QByteArray::fromStdString(stored(words)).toHex(), "020002010300");
    CDWordArray_E dwords;
    dwords.Add(0x01020304);
    EXPECT_EQ(QByteArray::fromStdString(stored(dwords)).toHex(), "010004030201");
    CMapStringToString_E map;
    map.SetAt(L"k", L"v");
    EXPECT_EQ(QByteArray::fromStdString(stored(map)).toHex(), "0100fffeff016b00fffeff017600");
    CMapWordToOb_E objects;
    objects.SetAt(7, nullptr);
    EXPECT_EQ(QByteArray::fromStdString(stored(objects)).toHex(), "010007000000");
}

TEST(SerializedBytes, AreNoneOfWhatMeansNothingElsewhere)
{
    CUIntArray_E numbers;
    numbers.Add(1);
    CPtrList_E pointers;
    pointers.AddTail(&numbers);
    CMapStringToPtr_E map;
    map.SetAt(L"k", &numbers);
    for (CObject_E* object : {static_cast<CObject_E*>(&numbers), static_cast<CObject_E*>(&pointers),
                              static_cast<CObject_E*>(&map)})
        EXPECT_EQ(stored(*object), "") << object->GetClassName();
    CArray_E<Counted> counted;
    EXPECT_THROW(stored(counted), CNotSupportedException_E*);
}

TEST(SerializedBytes, OfAListAreAddedToWhatIsThere)
{
    CStringList_E list;
    list.AddTail(L"a");
    ASSERT_EQ(load(list, stored(list)), CArchiveException_E::none);
    EXPECT_EQ(takeOut(list), (std::vector<std::string>{"a", "a"}));
}

TEST(ReadyCollections, AreMadeByTheirRecords)
{
    const CRuntimeClass_E* const serial[] = {
        RUNTIME_CLASS_E(CByteArray_E),     RUNTIME_CLASS_E(CWordArray_E),
        RUNTIME_CLASS_E(CDWordArray_E),    RUNTIME_CLASS_E(CObArray_E),
        RUNTIME_CLASS_E(CStringArray_E),   RUNTIME_CLASS_E(CObList_E),
        RUNTIME_CLASS_E(CStringList_E),    RUNTIME_CLASS_E(CMapWordToOb_E),
        RUNTIME_CLASS_E(CMapStringToOb_E), RUNTIME_CLASS_E(CMapStringToString_E)};
    for (const CRuntimeClass_E* record : serial) {
        const std::unique_ptr<CObject_E> object(record->CreateObject());
        ASSERT_NE(object, nullptr) << record->GetClassName();
        EXPECT_EQ(object->GetRuntimeClass(), record);
        EXPECT_EQ(object->IsKindOf(RUNTIME_CLASS_E(CObArray_E)),
                  record == RUNTIME_CLASS_E(CObArray_E));
    }
    for (const CRuntimeClass_E* record :
         {RUNTIME_CLASS_E(CUIntArray_E), RUNTIME_CLASS_E(CPtrArray_E), RUNTIME_CLASS_E(CPtrList_E),
          RUNTIME_CLASS_E(CMapPtrToWord_E), RUNTIME_CLASS_E(CMapWordToPtr_E),
          RUNTIME_CLASS_E(CMapStringToPtr_E)})
        EXPECT_EQ(record->CreateObject(), nullptr) << record->GetClassName();
}

} // namespace
