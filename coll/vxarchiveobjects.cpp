#include <VxMFCEmu/coll/serial.h>

#include "coll/vxarchivetables_p.h"
#include "coll/vxstackroom_p.h"
#include "core/vxserialclasses_p.h"

#include <VxMFCEmu/core/exceptions.h>

#include <utility>

using vx::detail::ArchiveTables;

namespace {

constexpr WORD kNullTag = 0;
constexpr WORD kNewClassTag = 0xFFFF;
constexpr WORD kClassTag = 0x8000;
constexpr DWORD kBigClassTag = 0x80000000;
constexpr WORD kBigObjectTag = 0x7FFF;
constexpr DWORD kMaxIndex = 0x3FFFFFFE;
constexpr WORD kMaxClassName = 1023;

} // namespace

/// An object while it is read. Unless that goes well, it is deleted, and neither it nor what it
/// read can be referred to any more: it may have deleted that with itself.
struct CArchive_E::LoadingObject
{
    LoadingObject(CArchive_E& archive, CObject_E* pNew)
        : ar(archive),
          pOb(pNew),
          nFirst(ar.Tables().loaded.size()),
          nOuterSchema(ar.m_nObjectSchema)
    {
    }
    ~LoadingObject()
    {
        ar.m_nObjectSchema = nOuterSchema;
        if (!pOb)
            return;
        ar.m_pTables->fail(nFirst);
        delete pOb;
    }
    Q_DISABLE_COPY_MOVE(LoadingObject)

    CArchive_E& ar;
    CObject_E* pOb;
    std::size_t nFirst;
    UINT nOuterSchema;
};

namespace {

/// An object while it is written. What is written must be read again, which takes more of the
/// stack: writing is refused first.
class StoringObject
{
public:
    explicit StoringObject(ArchiveTables& tables) : m_tables(tables)
    {
        if (m_tables.depth++ == 0)
            m_tables.stackAtFirst = vx::detail::stackLeft();
    }
    ~StoringObject() { --m_tables.depth; }
    Q_DISABLE_COPY_MOVE(StoringObject)

    bool isTooDeep() const
    {
        const std::size_t first = m_tables.stackAtFirst;
        const std::size_t used = first - std::min(first, vx::detail::stackLeft());
        return vx::detail::stackIsLow() || m_tables.depth > first / kLeastOfReading ||
               used > first / kReadingToWriting;
    }

private:
    static constexpr std::size_t kLeastOfReading = 512; // bytes for an object in an object
    static constexpr std::size_t kReadingToWriting = 6;

    ArchiveTables& m_tables;
};

} // namespace

void CArchive_E::WriteObject(const CObject_E* pOb)
{
    CheckStoring();
    if (!pOb) {
        Put(kNullTag);
        return;
    }
    if (const DWORD nIndex = Tables().numbers.find(pOb); nIndex != 0) {
        PutIndex(nIndex, false);
        return;
    }
    const StoringObject storing(Tables());
    if (storing.isTooDeep())
        Throw(CArchiveException_E::genericException);
    WriteClass(pOb->GetRuntimeClass());
    Remember(pOb);
    const_cast<CObject_E*>(pOb)->Serialize(*this);
}

void CArchive_E::WriteClass(const CRuntimeClass_E* pClassRef)
{
    CheckStoring();
    if (!pClassRef)
        AfxThrowInvalidArgException_E();
    ArchiveTables& tables = Tables();
    if (pClassRef != tables.pLastClass) {
        if (pClassRef->m_wSchema == VX_NO_SCHEMA)
            AfxThrowNotSupportedException_E();
        const DWORD nIndex = tables.numbers.find(pClassRef);
        if (nIndex == 0) {
            Put(kNewClassTag);
            pClassRef->Store(*this);
            Remember(pClassRef);
            return;
        }
        tables.pLastClass = pClassRef;
        tables.nLastClass = nIndex;
    }
    PutIndex(tables.nLastClass, true);
}

void CArchive_E::PutIndex(DWORD nIndex, bool bClass)
{
    if (nIndex < kBigObjectTag)
        Put(static_cast<WORD>(bClass ? kClassTag | nIndex : nIndex));
    else
        Put(kBigObjectTag).Put(bClass ? kBigClassTag | nIndex : nIndex);
}

void CArchive_E::Remember(const void* pKey)
{
    ArchiveTables& tables = Tables();
    if (tables.nNext >= kMaxIndex)
        Throw(CArchiveException_E::badIndex);
    tables.numbers.set(pKey, tables.nNext++);
}

CObject_E* CArchive_E::ReadObject(const CRuntimeClass_E* pClassRefRequested)
{
    UINT nSchema = 0;
    DWORD nIndex = 0;
    const CRuntimeClass_E* const pClassRef = ReadClass(pClassRefRequested, &nSchema, &nIndex);
    if (!pClassRef)
        return GetKnownObject(nIndex, pClassRefRequested);
    if (vx::detail::stackIsLow())
        Throw(CArchiveException_E::genericException);
    LoadingObject loading(*this, pClassRef->CreateObject());
    if (!loading.pOb)
        AfxThrowMemoryException_E();
    if (pClassRef != pClassRefRequested)
        CheckKind(loading.pOb, pClassRefRequested);
    Enter(loading.pOb);
    m_nObjectSchema = nSchema;
    loading.pOb->Serialize(*this);
    return std::exchange(loading.pOb, nullptr);
}

CRuntimeClass_E* CArchive_E::ReadClass(const CRuntimeClass_E* pClassRefRequested, UINT* pSchema,
                                       DWORD* pObTag)
{
    CheckLoading();
    if (pClassRefRequested && pClassRefRequested->m_wSchema == VX_NO_SCHEMA)
        AfxThrowNotSupportedException_E();
    const WORD wTag = Get<WORD>();
    const DWORD nTag = wTag == kBigObjectTag
                           ? Get<DWORD>()
                           : static_cast<DWORD>((wTag & kClassTag) << 16 | (wTag & ~kClassTag));
    if ((nTag & kBigClassTag) == 0) {
        if (!pObTag)
            Throw(CArchiveException_E::badIndex);
        *pObTag = nTag;
        return nullptr;
    }
    UINT nSchema = 0;
    CRuntimeClass_E* const pClassRef =
        wTag == kNewClassTag ? GetNewClass(nSchema) : GetKnownClass(nTag & ~kBigClassTag, nSchema);
    if (pClassRefRequested && pClassRef != pClassRefRequested &&
        !pClassRef->IsDerivedFrom(pClassRefRequested))
        Throw(CArchiveException_E::badClass);
    (pSchema ? *pSchema : m_nObjectSchema) = nSchema;
    if (pObTag)
        *pObTag = nTag;
    return pClassRef;
}

CRuntimeClass_E* CArchive_E::GetNewClass(UINT& nSchema)
{
    CRuntimeClass_E* const pClassRef = CRuntimeClass_E::Load(*this, &nSchema);
    if (!pClassRef)
        Throw(CArchiveException_E::badClass);
    if ((pClassRef->m_wSchema & VERSIONABLE_SCHEMA) == 0 && pClassRef->m_wSchema != nSchema)
        Throw(CArchiveException_E::badSchema);
    Enter(pClassRef, nSchema, true);
    return pClassRef;
}

CRuntimeClass_E* CArchive_E::GetKnownClass(DWORD nIndex, UINT& nSchema)
{
    const auto& loaded = Tables().loaded;
    if (nIndex >= loaded.size() || loaded[nIndex].kind != ArchiveTables::Kind::classRecord)
        Throw(CArchiveException_E::badIndex);
    nSchema = loaded[nIndex].nSchema;
    return static_cast<CRuntimeClass_E*>(loaded[nIndex].p);
}

CObject_E* CArchive_E::GetKnownObject(DWORD nIndex, const CRuntimeClass_E* pClassRefRequested)
{
    const auto& loaded = Tables().loaded;
    if (nIndex >= loaded.size() || loaded[nIndex].kind != ArchiveTables::Kind::object)
        Throw(CArchiveException_E::badIndex);
    auto* const pOb = static_cast<CObject_E*>(loaded[nIndex].p);
    if (pOb)
        CheckKind(pOb, pClassRefRequested);
    return pOb;
}

void CArchive_E::CheckKind(const CObject_E* pOb, const CRuntimeClass_E* pClassRefRequested)
{
    if (!pClassRefRequested || pOb->GetRuntimeClass() == pClassRefRequested)
        return;
    if (!pOb->IsKindOf(pClassRefRequested))
        Throw(CArchiveException_E::badClass);
    // That holds for a class without Q_OBJECT too early.
    ArchiveTables& tables = Tables();
    if (pClassRefRequested != tables.pLastRequested) {
        tables.pLastEntry = vx::detail::serialEntry(pClassRefRequested);
        tables.pLastRequested = pClassRefRequested;
    }
    if (tables.pLastEntry && !tables.pLastEntry->m_pfnIsInstance(pOb))
        Throw(CArchiveException_E::badClass);
}

void CArchive_E::Enter(void* pLoaded, UINT nSchema, bool bClass)
{
    auto& loaded = Tables().loaded;
    if (loaded.size() >= kMaxIndex)
        Throw(CArchiveException_E::badIndex);
    loaded.push_back({pLoaded, nSchema,
                      bClass ? ArchiveTables::Kind::classRecord : ArchiveTables::Kind::object});
}

void CArchive_E::SerializeClass(const CRuntimeClass_E* pClassRef)
{
    if (IsStoring())
        WriteClass(pClassRef);
    else
        ReadClass(pClassRef);
}

void CArchive_E::MapObject(const CObject_E* pOb)
{
    CheckOpen();
    if (!pOb)
        return;
    if (IsStoring())
        Remember(pOb);
    else
        Enter(const_cast<CObject_E*>(pOb));
}

UINT CArchive_E::GetObjectSchema() { return std::exchange(m_nObjectSchema, ~0U); }

void CArchive_E::SetLoadParams(UINT nGrowBy) { Tables().loaded.reserve(nGrowBy); }

void CArchive_E::SetStoreParams(UINT nHashSize, UINT) { Tables().numbers.reserve(nHashSize); }

ArchiveTables& CArchive_E::Tables()
{
    if (!m_pTables)
        m_pTables = std::make_unique<ArchiveTables>();
    return *m_pTables;
}

void CRuntimeClass_E::Store(CArchive_E& ar) const
{
    const AFX_CLASSINIT_E* const pEntry = vx::detail::serialEntry(this);
    if (!pEntry)
        AfxThrowNotSupportedException_E();
    const auto nLength = static_cast<WORD>(std::strlen(pEntry->m_pszName));
    ar << static_cast<WORD>(m_wSchema) << nLength;
    ar.Write(pEntry->m_pszName, nLength);
}

CRuntimeClass_E* CRuntimeClass_E::Load(CArchive_E& ar, UINT* pwSchemaNum)
{
    WORD wSchema = 0;
    WORD nLength = 0;
    ar >> wSchema >> nLength;
    if (pwSchemaNum)
        *pwSchemaNum = wSchema;
    if (nLength > kMaxClassName)
        return nullptr;
    char name[kMaxClassName];
    ar.EnsureRead(name, nLength);
    return vx::detail::serialClass({name, nLength});
}

void vx::detail::throwBadClass(const CArchive_E& ar)
{
    AfxThrowArchiveException_E(CArchiveException_E::badClass, ar.m_strFileName);
}
