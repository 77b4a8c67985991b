#include <VxMFCEmu/core/threadslots.h>

#include <VxMFCEmu/core/exceptions.h>

#include <VxMFCEmu/core/memberoffset.h>
#include <VxMFCEmu/sys/memory.h>
#include <VxMFCEmu/sys/tls.h>

#include <climits>
#include <memory>

struct CSlotData_E
{
    DWORD dwFlags;
    HINSTANCE hInst;
};

namespace {

constexpr DWORD kSlotUsed = 1;
constexpr int kGrowBy = 32;

// The byte size of @p count elements; sizes end at 32 bits.
SIZE_T checkedSize(int count, SIZE_T elementSize)
{
    const SIZE_T size = static_cast<SIZE_T>(count) * elementSize;
    if (count < 0 || size > UINT_MAX)
        AfxThrowMemoryException_E();
    return size;
}

template <typename Values>
void deleteAll(const Values& values)
{
    for (CNoTrackObject_E* const pValue : values)
        delete pValue;
}

} // namespace

class CThreadSlotData_E::Lock
{
public:
    explicit Lock(CRITICAL_SECTION& section) : m_section(section)
    {
        EnterCriticalSection_E(&m_section);
    }
    ~Lock() { LeaveCriticalSection_E(&m_section); }
    Q_DISABLE_COPY_MOVE(Lock)

private:
    CRITICAL_SECTION& m_section;
};

CThreadSlotData_E::CThreadSlotData_E()
    : m_tlsIndex(TlsAlloc_E()), m_list(vx::detail::offsetOfMember(&CThreadData_E::pNext))
{
    if (m_tlsIndex == TLS_OUT_OF_INDEXES)
        AfxThrowMemoryException_E();
    InitializeCriticalSection_E(&m_sect);
}

CThreadSlotData_E::~CThreadSlotData_E()
{
    // A destructor may store values again; as with POSIX keys that ends after a few rounds.
    for (int i = 0; i < PTHREAD_DESTRUCTOR_ITERATIONS && DeleteAllRecords(); ++i) {
    }
    TlsFree_E(m_tlsIndex);
    m_tlsIndex = TLS_OUT_OF_INDEXES;
    GlobalUnlock_E(GlobalHandle_E(m_pSlotData));
    GlobalFree_E(GlobalHandle_E(m_pSlotData));
    DeleteCriticalSection_E(&m_sect);
}

int CThreadSlotData_E::AllocSlot()
{
    const Lock lock(m_sect);
    int nSlot = FindFreeSlot();
    if (nSlot >= m_nAlloc) {
        nSlot = qMax(m_nAlloc, 1);
        GrowTable();
    }
    // Intended: the module of the slot's former user stays.
    m_pSlotData[nSlot].dwFlags |= kSlotUsed;
    m_nRover = nSlot + 1;
    m_nMax = qMax(m_nMax, nSlot + 1);
    return nSlot;
}

void CThreadSlotData_E::FreeSlot(int nSlot)
{
    Values values;
    {
        const Lock lock(m_sect);
        if (!IsSlot(nSlot))
            return;
        for (CThreadData_E* pData = FirstRecord(); pData; pData = pData->pNext) {
            if (nSlot < pData->nCount) {
                values.push_back(static_cast<CNoTrackObject_E*>(pData->pData[nSlot]));
                pData->pData[nSlot] = nullptr;
            }
        }
        m_pSlotData[nSlot].dwFlags &= ~kSlotUsed;
    }
    // Outside the lock, here and below: a destructor may use thread-local objects itself.
    deleteAll(values);
}

void* CThreadSlotData_E::GetThreadValue(int nSlot)
{
    const Lock lock(m_sect);
    const CThreadData_E* const pData = CurrentRecord();
    return pData && nSlot > 0 && nSlot < pData->nCount ? pData->pData[nSlot] : nullptr;
}

void CThreadSlotData_E::SetValue(int nSlot, void* pValue)
{
    const Lock lock(m_sect);
    if (!IsSlot(nSlot))
        return;
    CThreadData_E* pData = CurrentRecord();
    if (!pData) {
        auto pNew = std::make_unique<CThreadData_E>();
        GrowRecord(pNew.get());
        if (TlsSetValue_E(m_tlsIndex, pNew.get()) != 0) {
            LocalFree_E(pNew->pData);
            AfxThrowMemoryException_E();
        }
        pData = pNew.release();
        m_list.AddHead(pData);
    } else if (nSlot >= pData->nCount && pValue) {
        GrowRecord(pData);
    }
    if (nSlot < pData->nCount)
        pData->pData[nSlot] = pValue;
}

void CThreadSlotData_E::AssignInstance(HINSTANCE hInst)
{
    const Lock lock(m_sect);
    for (int i = 1; i < m_nMax; ++i) {
        CSlotData_E& slot = m_pSlotData[i];
        if ((slot.dwFlags & kSlotUsed) && !slot.hInst)
            slot.hInst = hInst;
    }
}

void CThreadSlotData_E::DeleteValues(HINSTANCE hInst, BOOL bAll)
{
    Values values;
    {
        const Lock lock(m_sect);
        CThreadData_E* pData = bAll ? FirstRecord() : CurrentRecord();
        while (pData) {
            CThreadData_E* const pNext = bAll ? pData->pNext : nullptr;
            TakeValues(pData, hInst, values);
            DropIfEmpty(pData);
            pData = pNext;
        }
    }
    deleteAll(values);
}

void CThreadSlotData_E::DeleteValues(CThreadData_E* pData, HINSTANCE hInst)
{
    if (!pData)
        return;
    Values values;
    {
        const Lock lock(m_sect);
        TakeValues(pData, hInst, values);
        DropIfEmpty(pData);
    }
    deleteAll(values);
}

CThreadData_E* CThreadSlotData_E::CurrentRecord() const
{
    return static_cast<CThreadData_E*>(TlsGetValue_E(m_tlsIndex));
}

int CThreadSlotData_E::FindFreeSlot() const
{
    const auto isFree = [this](int nSlot) { return !(m_pSlotData[nSlot].dwFlags & kSlotUsed); };
    if (m_nRover < m_nAlloc && isFree(m_nRover))
        return m_nRover;
    int nSlot = 1;
    while (nSlot < m_nAlloc && !isFree(nSlot))
        ++nSlot;
    return nSlot;
}

void CThreadSlotData_E::GrowTable()
{
    const int nAlloc = m_nAlloc + kGrowBy;
    const SIZE_T size = checkedSize(nAlloc, sizeof(CSlotData_E));
    const HGLOBAL hOld = GlobalHandle_E(m_pSlotData);
    GlobalUnlock_E(hOld);
    const HGLOBAL hNew = hOld ? GlobalReAlloc_E(hOld, size, GMEM_MOVEABLE | GMEM_SHARE)
                              : GlobalAlloc_E(GMEM_MOVEABLE, size);
    if (!hNew) {
        GlobalLock_E(hOld);
        AfxThrowMemoryException_E();
    }
    m_pSlotData = static_cast<CSlotData_E*>(GlobalLock_E(hNew));
    std::fill(m_pSlotData + m_nAlloc, m_pSlotData + nAlloc, CSlotData_E{});
    m_nAlloc = nAlloc;
}

void CThreadSlotData_E::GrowRecord(CThreadData_E* pData) const
{
    const SIZE_T size = checkedSize(m_nMax, sizeof(void*));
    void* const pNew = pData->pData ? LocalReAlloc_E(pData->pData, size, LMEM_MOVEABLE)
                                    : LocalAlloc_E(LMEM_FIXED, size);
    if (!pNew)
        AfxThrowMemoryException_E();
    pData->pData = static_cast<void**>(pNew);
    std::fill(pData->pData + pData->nCount, pData->pData + m_nMax, nullptr);
    pData->nCount = m_nMax;
}

void CThreadSlotData_E::TakeValues(CThreadData_E* pData, HINSTANCE hInst, Values& values)
{
    for (int i = 1; i < pData->nCount; ++i) {
        if (pData->pData[i] && (!hInst || m_pSlotData[i].hInst == hInst))
            values.push_back(
                static_cast<CNoTrackObject_E*>(std::exchange(pData->pData[i], nullptr)));
    }
}

void CThreadSlotData_E::DropIfEmpty(CThreadData_E* pData)
{
    if (std::any_of(pData->pData, pData->pData + pData->nCount,
                    [](void* p) { return p != nullptr; }))
        return;
    if (pData == CurrentRecord()) {
        TlsSetValue_E(m_tlsIndex, nullptr);
        FreeRecord(pData);
        return;
    }
    // Its own thread still finds the record through its storage, which only that thread can clear.
    LocalFree_E(std::exchange(pData->pData, nullptr));
    pData->nCount = 0;
}

void CThreadSlotData_E::FreeRecord(CThreadData_E* pData)
{
    m_list.Remove(pData);
    LocalFree_E(pData->pData);
    delete pData;
}

bool CThreadSlotData_E::DeleteAllRecords()
{
    Values values;
    {
        const Lock lock(m_sect);
        while (CThreadData_E* const pData = FirstRecord()) {
            TakeValues(pData, nullptr, values);
            FreeRecord(pData);
        }
        TlsSetValue_E(m_tlsIndex, nullptr);
    }
    deleteAll(values);
    return !values.empty();
}
