#include "archiving.h"

namespace {

using Cause = CArchiveException_E;

/// Knows its class by the macros alone.
class CNode : public CObject_E
{
    DECLARE_SERIAL_E(CNode)

    explicit CNode(int n = 0, CNode* pChild = nullptr) : m_n(n), m_pChild(pChild) { ++s_nAlive; }
    ~CNode() override { --s_nAlive, delete m_pChild; }
    void Serialize(CArchive_E& ar) override
    {
        if (ar.IsStoring())
            ar << m_n << m_pChild << m_pLink;
        else
            ar >> m_n >> m_pChild >> m_pLink;
    }

    static inline int s_nAlive = 0;
    int m_n;
    CNode* m_pChild;
    CObject_E* m_pLink = nullptr;
};
IMPLEMENT_SERIAL_E(CNode, CObject_E, 1)

class CSubNode : public CNode
{
    DECLARE_SERIAL_E(CSubNode)
};
IMPLEMENT_SERIAL_E(CSubNode, CNode, 1)

class CEmpty : public CObject_E
{
    Q_OBJECT
    DECLARE_SERIAL_E(CEmpty)
};
IMPLEMENT_SERIAL_E(CEmpty, CObject_E, 0)

/// Notes the schemas that it sees: its own, once only, and that of its base.
class CVersioned : public CEmpty
{
    Q_OBJECT
    DECLARE_SERIAL_E(CVersioned)

    void Serialize(CArchive_E& ar) override
    {
        s_schemas = {ar.GetObjectSchema(), ar.GetObjectSchema()};
        ar.SerializeClass(RUNTIME_CLASS_E(CEmpty));
        s_schemas.push_back(ar.GetObjectSchema());
    }
    static inline std::vector<UINT> s_schemas;
};
IMPLEMENT_SERIAL_E(CVersioned, CEmpty, VERSIONABLE_SCHEMA | 3)

/// Goes on when its child cannot be read.
class CLenient : public CObject_E
{
    DECLARE_SERIAL_E(CLenient)

    void Serialize(CArchive_E& ar) override
    {
        EXPECT_EQ(causeOf([&] { ar.ReadObject(nullptr); }), Cause::badClass);
        ar.ReadObject(nullptr);
    }
};
IMPLEMENT_SERIAL_E(CLenient, CObject_E, 1)

// Each object is its class, its number, its child and its link; numbered as they come.
constexpr char kFamily[] = "FFFF 0100 0500 434E6F6465"         // 1: CNode with schema 1
                           " 01000000"                         // 2: an object
                           " 0180 02000000"                    // 3: its child, of class 1
                           " FFFF 0100 0800 4353 75624E6F6465" // 4: CSubNode
                           " 03000000 0000 0300"               // 5: without child, linked to 3
                           " 0200"                             // 3 is linked to 2
                           " 0500";                            // 2 is linked to 5

CNode* readNode(CArchive_E& ar)
{
    CNode* pNode = nullptr;
    ar >> pNode;
    return pNode;
}

TEST(Serial, ACyclicGraphHasItsFormAndComesBack)
{
    auto pFirst = std::make_unique<CNode>(1, new CNode(2, new CSubNode));
    CNode *pSecond = pFirst->m_pChild, *pThird = pSecond->m_pChild;
    pThird->m_n = 3;
    pFirst->m_pLink = pThird;
    pSecond->m_pLink = pFirst.get();
    pThird->m_pLink = pSecond;
    const QByteArray bytes = stored([&](auto& ar) { ar << pFirst.get(); });
    EXPECT_EQ(bytes, hex(kFamily));
    EXPECT_EQ(load(bytes, [&](auto& ar) { pFirst.reset(readNode(ar)); }), 0);
    pSecond = pFirst->m_pChild;
    pThird = pSecond->m_pChild;
    EXPECT_TRUE(pFirst->m_n == 1 && pSecond->m_n == 2 && pThird->m_n == 3);
    EXPECT_EQ(pThird->GetRuntimeClass(), RUNTIME_CLASS_E(CSubNode));
    EXPECT_EQ(pFirst->m_pLink, pThird);
    EXPECT_EQ(pSecond->m_pLink, pFirst.get());
    EXPECT_EQ(pThird->m_pLink, pSecond);
    for (int cut = 0; cut < bytes.size(); ++cut)
        EXPECT_EQ(loadCause(bytes.left(cut), readNode), Cause::endOfFile) << cut;
    EXPECT_EQ(CNode::s_nAlive, 3) << "a cut stream leaves nothing";
}

TEST(Serial, WhatIsNoGraphOfTheseClassesIsRefused)
{
    // Wrong classes, CLenient too, which only its object shows; wrong indices: 1 is the mapped
    // object; links to a class and of an object's class; and one that is right.
    // clang-format off
    static const Row<const char*, int> rows[] = {
        {"FFFF 0200 0500 434E6F6465", Cause::badSchema}, {"FFFF 0100 0000", Cause::badClass},
        {"FFFF 0100 0600 434E6F646500", Cause::badClass}, {"FFFF 0100 FFFF", Cause::badClass},
        {"FFFF 0100 0400 434E6F64", Cause::badClass},
        {"FFFF 0000 0600 43456D707479", Cause::badClass},
        {"FFFF 0100 0800 434C656E69656E74", Cause::badClass}, {"0100", Cause::badClass},
        {"0200", Cause::badIndex}, {"0080", Cause::badIndex}, {"0180", Cause::badIndex},
        {"FF7F FFFFFFFF", Cause::badIndex}, {"FF7F FFFFFF7F", Cause::badIndex},
        {"FFFF 0100 0500 434E6F6465 00000000 0000 0200", Cause::badIndex},
        {"FFFF 0100 0500 434E6F6465 00000000 0380", Cause::badIndex},
        {"FFFF 0100 0500 434E6F6465 00000000 0000 FFFF 0000 0600 43456D707479", Cause::none},
    };
    // clang-format on
    CEmpty mapped;
    forRows(rows, [&](const char* digits, int cause) {
        std::unique_ptr<CObject_E> pLink;
        const auto reading = [&](auto& ar) {
            ar.MapObject(&mapped);
            const std::unique_ptr<CNode> pNode(readNode(ar));
            pLink.reset(pNode->m_pLink);
        };
        EXPECT_EQ(loadCause(hex(digits), reading), cause);
    });
    // Nothing refers to what could not be read: a CLenient, whose child, a node with number 4, has
    // a child of no known class.
    const QByteArray bytes = hex("FFFF 0100 0800 434C656E69656E74 FFFF 0100 0500 434E6F6465"
                                 " 00000000 FFFF 0100 0000 0400");
    EXPECT_EQ(loadCause(bytes, [](auto& ar) { ar.ReadObject(nullptr); }), Cause::badIndex);
    EXPECT_EQ(CNode::s_nAlive, 0);
}

TEST(Serial, NullAndAskedForClasses)
{
    CSubNode sub;
    const QByteArray bytes =
        stored([&](auto& ar) { ar << static_cast<CObject_E*>(nullptr) << &sub << &sub << &sub; });
    load(bytes, [](auto& ar) {
        EXPECT_EQ(readNode(ar), nullptr);
        const std::unique_ptr<CNode> pNode(readNode(ar));
        EXPECT_EQ(ar.ReadObject(RUNTIME_CLASS_E(CSubNode)), pNode.get());
        EXPECT_EQ(causeOf([&] { ar.ReadObject(RUNTIME_CLASS_E(CLenient)); }), Cause::badClass);
        EXPECT_THROW(ar.ReadObject(RUNTIME_CLASS_E(CObject_E)), CNotSupportedException_E*);
    });
    const auto readEmpty = [](auto& ar) { ar.ReadObject(RUNTIME_CLASS_E(CEmpty)); };
    EXPECT_EQ(loadCause(hex(kFamily), readEmpty), Cause::badClass);
    const CObject_E plain;
    stored([&](auto& ar) {
        ar.MapObject(nullptr); // nothing
        EXPECT_THROW(ar.WriteClass(nullptr), CInvalidArgException_E*);
        EXPECT_THROW(ar << &plain, CNotSupportedException_E*);
        EXPECT_THROW(RUNTIME_CLASS_E(CWnd_E)->Store(ar), CNotSupportedException_E*);
    });
}

TEST(Serial, TagsGrowAtTheirLimit)
{
    // The class has the first number that is given, the first object the next one, and so on.
    static const Row<DWORD, const char*, const char*> rows[] = {
        {0x7FFD, "FDFF", "FE7F"},
        {0x7FFE, "FEFF", "FF7F FF7F0000"},
        {0x7FFF, "FF7F FF7F0080", "FF7F 00800000"}};
    forRows(rows, [](DWORD first, const char* classTag, const char* objectTag) {
        std::vector<CObject_E> mapped(first - 1);
        const auto map = [&](auto& ar) {
            for (const CObject_E& object : mapped)
                ar.MapObject(&object);
        };
        const CEmpty one, two;
        const QByteArray bytes = stored([&](auto& ar) {
            ar.SetStoreParams();
            map(ar);
            ar << &one << &two << &one << &mapped[1];
        });
        EXPECT_EQ(bytes, hex("FFFF 0000 0600 43456D707479") + hex(classTag) + hex(objectTag) +
                             hex("0200"));
        load(bytes, [&](auto& ar) {
            ar.SetLoadParams();
            map(ar);
            const std::unique_ptr<CObject_E> pOne(ar.ReadObject(nullptr));
            const std::unique_ptr<CObject_E> pTwo(ar.ReadObject(nullptr));
            EXPECT_EQ(ar.ReadObject(nullptr), pOne.get());
            EXPECT_EQ(ar.ReadObject(nullptr), &mapped[1]);
        });
    });
}

TEST(Serial, AVersionableClassReadsItsOlderForms)
{
    const CVersioned present;
    QByteArray bytes = stored([&](auto& ar) { ar << &present << &present; });
    // Class 1, object 2, and in it class 3.
    EXPECT_EQ(bytes, hex("FFFF 0300 0A00 4356657273696F6E6564 FFFF 0000 0600 43456D707479 0200"));
    bytes[2] = 1;
    bytes.replace(bytes.size() - 2, 2, hex("0180 0380"));
    load(bytes, [](auto& ar) {
        for (int i = 0; i < 2; ++i) {
            delete ar.ReadObject(RUNTIME_CLASS_E(CVersioned));
            EXPECT_EQ(CVersioned::s_schemas, (std::vector<UINT>{1, ~0U, 0}));
        }
    });
}

TEST(Serial, EndlessNestingIsRefused)
{
    if (vxtest::kThreadSanitizer)
        GTEST_SKIP() << "ThreadSanitizer keeps no stack of more than 65535 frames";
    constexpr int kCount = 200000;
    const auto drop = [](CNode* pTop) {
        while (pTop)
            delete std::exchange(pTop, std::exchange(pTop->m_pChild, nullptr));
    };
    const auto test = [&] {
        // The deepest that can be stored can be loaded.
        for (int nDepth = 250, nCause = Cause::none; nCause == Cause::none; nDepth += nDepth / 2) {
            ASSERT_LT(nDepth, kCount);
            CNode* pTop = nullptr;
            for (int i = 0; i < nDepth; ++i)
                pTop = new CNode(i, pTop);
            const QByteArray bytes =
                stored([&](auto& ar) { nCause = causeOf([&] { ar << pTop; }); });
            drop(std::exchange(pTop, nullptr));
            if (nCause == Cause::none)
                load(bytes, [&](auto& ar) { ar >> pTop; });
            else
                EXPECT_EQ(nCause, Cause::genericException);
            drop(pTop);
        }
        const QByteArray endless = hex("00000000 0180").repeated(kCount);
        EXPECT_EQ(loadCause(hex("FFFF 0100 0500 434E6F6465") + endless, readNode),
                  Cause::genericException);
        EXPECT_EQ(CNode::s_nAlive, 0);
    };
    test();
    std::thread(test).join();
}

TEST(Serial, NamesBelongToTheFirstAndWhileItIsThere)
{
    EXPECT_EQ(CRuntimeClass_E::FromName("CNode"), RUNTIME_CLASS_E(CNode));
    EXPECT_EQ(CRuntimeClass_E::FromName(L"CEmpty"), RUNTIME_CLASS_E(CEmpty));
    EXPECT_EQ(CRuntimeClass_E::FromName(static_cast<const char*>(nullptr)), nullptr);
    CRuntimeClass_E record(&CEmpty::staticMetaObject, CEmpty::GetImpMetaObject(),
                           CEmpty::GetImpMetaObject(), &CEmpty::CreateObject, nullptr, 1);
    const auto isAny = [](const CObject_E*) { return true; };
    {
        const AFX_CLASSINIT_E second(&record, "CNode", 9, isAny);
        const AFX_CLASSINIT_E other(&record, "COther", 9, isAny);
        EXPECT_EQ(CRuntimeClass_E::FromName("CNode"), RUNTIME_CLASS_E(CNode));
        EXPECT_EQ(CRuntimeClass_E::FromName("COther"), &record);
        const std::unique_ptr<CObject_E> pMade(CRuntimeClass_E::CreateObject("COther"));
        EXPECT_TRUE(dynamic_cast<CEmpty*>(pMade.get()));
    }
    EXPECT_EQ(CRuntimeClass_E::FromName("CNode"), RUNTIME_CLASS_E(CNode));
    EXPECT_EQ(CRuntimeClass_E::CreateObject("COther"), nullptr);
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

QByteArray storedOf(CObject_E& object)
{
    return stored([&](auto& ar) { object.Serialize(ar); });
}
int causeOfLoading(CObject_E& object, const QByteArray& bytes)
{
    return loadCause(bytes, [&](auto& ar) { object.Serialize(ar); });
}

template <typename Collection>
class SerializedOf : public testing::Test
{
};
using Collections =
    testing::Types<CByteArray_E, CWordArray_E, CDWordArray_E, CObArray_E, CStringArray_E, CObList_E,
                   CStringList_E, CMapWordToOb_E, CMapStringToOb_E, CMapStringToString_E,
                   CArray_E<double>, CArray_E<wchar_t>,
                   CMap_E<CString_E, LPCWSTR, LONGLONG, LONGLONG>>;
TYPED_TEST_SUITE(SerializedOf, Collections);

TYPED_TEST(SerializedOf, ComesBackAndIsNotBelievedMoreThanThereIs)
{
    for (const unsigned count : {0U, 1U, 7U}) {
        TypeParam collection, back, again;
        for (unsigned i = 0; i < count; ++i)
            put(collection, i);
        const QByteArray bytes = storedOf(collection);
        ASSERT_EQ(causeOfLoading(back, bytes), Cause::none);
        ASSERT_EQ(back.GetCount(), count);
        // Twice, which brings each bucket of a map into its first order.
        ASSERT_EQ(causeOfLoading(again, storedOf(back)), Cause::none);
        EXPECT_EQ(storedOf(again), bytes);
        for (int cut = 0; cut < bytes.size(); ++cut) {
            TypeParam part;
            ASSERT_EQ(causeOfLoading(part, bytes.left(cut)), Cause::endOfFile) << cut;
        }
    }
    // No count is believed: 2 to the 32nd elements, the most there can be, and no more than ten
    // bytes of them.
    for (const char* count : {"ffffffffffff0000000001000000", "ffffffffffffffffffffffffffff"}) {
        TypeParam collection;
        const QByteArray bytes = QByteArray::fromHex(count) + QByteArray(10, '\0');
        EXPECT_EQ(causeOfLoading(collection, bytes), Cause::endOfFile);
        EXPECT_LE(collection.GetCount(), 0x10000);
    }
}

TEST(Serialized, ObjectsAreTheSameInAllCollections)
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

TEST(Serialized, BytesAreThoseOfTheFormat)
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
    ASSERT_EQ(causeOfLoading(back, storedOf(words)), Cause::none);
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

#include "serial_test.moc"
