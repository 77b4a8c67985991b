// Archives of any bytes: graphs of objects, and values, texts and blocks as the input says. The
// first two bytes choose what is read and the size of the buffer.
#include "inputreader.h"
#include "require.h"

#include <VxMFCEmu/coll.h>
#include <VxMFCEmu/core/exceptions.h>

#include <set>
#include <vector>

namespace {

/// Deletes nothing: whatever is still there when an input has been read is deleted then.
class CNode : public CObject_E
{
    DECLARE_SERIAL_E(CNode)

    CNode() { s_alive.insert(this); }
    ~CNode() override { s_alive.erase(this); }
    void Serialize(CArchive_E& ar) override;

    static inline std::set<CNode*> s_alive;
    CString_E m_text;
    wchar_t m_character = 0;
    int m_number = 0;
    bool m_flag = false;
    CNode* m_next = nullptr;
    std::vector<CObject_E*> m_others;
};
IMPLEMENT_SERIAL_E(CNode, CObject_E, VERSIONABLE_SCHEMA | 2)

void CNode::Serialize(CArchive_E& ar)
{
    if (ar.IsStoring()) {
        ar << m_text << m_character << m_number << m_flag << m_next;
        ar.WriteCount(m_others.size());
        for (const CObject_E* const other : m_others)
            ar << other;
        return;
    }
    const UINT schema = ar.GetObjectSchema();
    VXMFC_REQUIRE(schema <= 0xFFFF);
    ar >> m_text >> m_character >> m_number >> m_flag >> m_next;
    for (DWORD_PTR count = ar.ReadCount(); count != 0; --count)
        ar >> m_others.emplace_back();
}

class CLeaf : public CNode
{
    DECLARE_SERIAL_E(CLeaf)
};
IMPLEMENT_SERIAL_E(CLeaf, CNode, 1)

/// Goes on when what is in it cannot be read.
class CLenient : public CNode
{
    DECLARE_SERIAL_E(CLenient)

    void Serialize(CArchive_E& ar) override
    {
        ar.SerializeClass(RUNTIME_CLASS_E(CNode));
        if (ar.IsStoring()) {
            ar << m_next;
            return;
        }
        try {
            ar >> m_next;
        } catch (CArchiveException_E* e) {
            e->Delete();
        }
    }
};
IMPLEMENT_SERIAL_E(CLenient, CNode, 1)

using Bytes = std::vector<BYTE>;

/// Whether @p read reads all it wants from @p bytes.
template <typename Read>
bool load(Bytes bytes, int bufferSize, Read read)
{
    CMemFile_E file(bytes.data(), static_cast<UINT>(bytes.size()));
    CArchive_E ar(&file, CArchive_E::load, bufferSize);
    try {
        read(ar);
        return true;
    } catch (CArchiveException_E* e) {
        VXMFC_REQUIRE(e->m_cause != CArchiveException_E::none);
        e->Delete();
    } catch (CNotSupportedException_E* e) {
        e->Delete();
    }
    return false;
}

Bytes store(const CObject_E* object)
{
    CMemFile_E file;
    CArchive_E ar(&file, CArchive_E::store);
    ar << object;
    ar.Close();
    Bytes bytes(file.GetLength());
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

/// What was read is written in one form only.
void readGraph(const Bytes& bytes, int bufferSize)
{
    CObject_E* object = nullptr;
    const auto read = [&](CArchive_E& ar) { ar >> object; };
    if (!load(bytes, bufferSize, read))
        return;
    const Bytes once = store(object);
    VXMFC_REQUIRE(load(once, bufferSize, read));
    VXMFC_REQUIRE(store(object) == once);
}

template <typename T>
void readValue(CArchive_E& ar)
{
    T value;
    ar >> value;
}

template <typename Collection>
void readCollection(CArchive_E& ar)
{
    Collection collection;
    collection.Serialize(ar);
}

void readAnything(CArchive_E& ar)
{
    static constexpr void (*readers[])(CArchive_E&) = {
        &readValue<BYTE>,
        &readValue<SHORT>,
        &readValue<double>,
        &readValue<long>,
        &readValue<wchar_t>,
        &readValue<CString_E>,
        &readCollection<CByteArray_E>,
        &readCollection<CObArray_E>,
        &readCollection<CStringList_E>,
        &readCollection<CMapWordToOb_E>,
        &readCollection<CMapStringToString_E>,
        [](CArchive_E& archive) { archive.ReadCount(); },
        [](CArchive_E& archive) {
            CString_E line;
            archive.ReadString(line);
        },
        [](CArchive_E& archive) {
            wchar_t line[9];
            archive.ReadString(line, 8);
        },
        [](CArchive_E& archive) {
            Bytes block(300);
            archive.EnsureRead(block.data(), archive.Read(block.data(), 300) / 2);
        },
        [](CArchive_E& archive) { archive.ReadClass(RUNTIME_CLASS_E(CNode)); },
        [](CArchive_E& archive) {
            DWORD tag = 0;
            archive.ReadClass(nullptr, nullptr, &tag);
        },
        [](CArchive_E& archive) {
            CLeaf* leaf = nullptr;
            archive >> leaf;
            VXMFC_REQUIRE(!leaf || dynamic_cast<CLeaf*>(static_cast<CObject_E*>(leaf)));
        },
        [](CArchive_E& archive) { archive.ReadObject(RUNTIME_CLASS_E(CNode)); },
        [](CArchive_E& archive) { archive.Flush(); },
    };
    for (BYTE choice;;) {
        ar >> choice;
        readers[choice % std::size(readers)](ar);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    InputReader input(data, size);
    const bool graph = input.choose(2) == 0;
    const int bufferSize = 128 + static_cast<int>(input.choose(8)) * 100;
    const std::string rest = input.takeRest();
    const Bytes bytes(rest.begin(), rest.end());
    if (graph)
        readGraph(bytes, bufferSize);
    else
        load(bytes, bufferSize, readAnything);
    while (!CNode::s_alive.empty())
        delete *CNode::s_alive.begin();
    return 0;
}
