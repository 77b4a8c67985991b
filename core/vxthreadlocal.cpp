#include <VxMFCEmu/core/threadlocal.h>

#include <VxMFCEmu/core/exceptions.h>

#include <VxMFCEmu/core/threadslots.h>

#include <algorithm>
#include <memory>
#include <mutex>
#include <new>
#include <utility>
#include <vector>

std::atomic<CThreadSlotData_E*> _afxThreadData = nullptr;
std::atomic<LONG> _afxTlsRef = 0;

/// Guards the making and the end of the slot table, and knows the objects that hold a slot of it:
/// they let go of their slots when the table goes, so that a later table starts afresh.
class VxThreadLocalObjects
{
public:
    VxThreadLocalObjects() = default;
    ~VxThreadLocalObjects() { DestroyTable(); }
    Q_DISABLE_COPY_MOVE(VxThreadLocalObjects)

    /// The slot of @p object, allocated on first use.
    int ObtainSlot(CThreadLocalObject_E& object)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (const int nSlot = object.m_nSlot)
            return nSlot;
        if (!_afxThreadData)
            _afxThreadData = new (m_afxThreadData) CThreadSlotData_E;
        m_objects.push_back(&object);
        const int nSlot = _afxThreadData.load()->AllocSlot();
        if (nSlot == 0)
            AfxThrowInvalidArgException_E();
        object.m_nSlot = nSlot;
        return nSlot;
    }

    void ReleaseSlot(CThreadLocalObject_E& object)
    {
        int nSlot = 0;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_objects.erase(std::remove(m_objects.begin(), m_objects.end(), &object),
                            m_objects.end());
            nSlot = object.m_nSlot.exchange(0);
        }
        // Outside the lock: the destructors of the values may use thread-local objects.
        if (CThreadSlotData_E* const pData = _afxThreadData; nSlot != 0 && pData)
            pData->FreeSlot(nSlot);
    }

    void Release()
    {
        LONG count = _afxTlsRef;
        while (count > 0 && !_afxTlsRef.compare_exchange_weak(count, count - 1)) {
        }
        if (count <= 1)
            DestroyTable();
    }

private:
    void DestroyTable()
    {
        CThreadSlotData_E* const pData = _afxThreadData;
        if (!pData)
            return;
        // Outside the lock and while the table is still known: the destructors of the values may
        // use thread-local objects.
        pData->~CThreadSlotData_E();
        const std::lock_guard<std::mutex> lock(m_mutex);
        for (CThreadLocalObject_E* const pObject : std::exchange(m_objects, {}))
            pObject->m_nSlot = 0;
        _afxThreadData = nullptr;
    }

    std::mutex m_mutex;
    std::vector<CThreadLocalObject_E*> m_objects;
    alignas(CThreadSlotData_E) unsigned char m_afxThreadData[sizeof(CThreadSlotData_E)];
};

namespace {

// Thread-local objects of other units, static ones among them, use this: it is made before them and
// goes after them whatever order the linker puts the units in.
__attribute__((init_priority(101))) VxThreadLocalObjects g_threadLocalObjects;

} // namespace

CThreadLocalObject_E::~CThreadLocalObject_E() { g_threadLocalObjects.ReleaseSlot(*this); }

CNoTrackObject_E* CThreadLocalObject_E::GetData(VxCreateNoTrackFn pfnCreate)
{
    if (!pfnCreate)
        AfxThrowInvalidArgException_E();
    int nSlot = m_nSlot;
    if (nSlot == 0)
        nSlot = g_threadLocalObjects.ObtainSlot(*this);
    CThreadSlotData_E* const pData = _afxThreadData;
    if (void* const pValue = pData->GetThreadValue(nSlot))
        return static_cast<CNoTrackObject_E*>(pValue);
    std::unique_ptr<CNoTrackObject_E> pNew(pfnCreate());
    pData->SetValue(nSlot, pNew.get());
    return pNew.release();
}

CNoTrackObject_E* CThreadLocalObject_E::GetDataNA() const
{
    CThreadSlotData_E* const pData = _afxThreadData;
    const int nSlot = m_nSlot;
    return nSlot != 0 && pData ? static_cast<CNoTrackObject_E*>(pData->GetThreadValue(nSlot))
                               : nullptr;
}

CProcessLocalObject_E::~CProcessLocalObject_E() { delete m_pObject; }

CNoTrackObject_E* CProcessLocalObject_E::GetData(VxCreateNoTrackFn pfnCreate)
{
    if (!m_pObject) {
        if (!pfnCreate)
            AfxThrowInvalidArgException_E();
        m_pObject = pfnCreate();
    }
    return m_pObject;
}

void AfxInitLocalData_E(HINSTANCE hInst)
{
    if (CThreadSlotData_E* const pData = _afxThreadData)
        pData->AssignInstance(hInst);
}

void AfxTermLocalData_E(HINSTANCE hInst, BOOL bAll)
{
    if (CThreadSlotData_E* const pData = _afxThreadData)
        pData->DeleteValues(hInst, bAll);
}

void AfxTlsAddRef_E() { ++_afxTlsRef; }

void AfxTlsRelease_E() { g_threadLocalObjects.Release(); }
