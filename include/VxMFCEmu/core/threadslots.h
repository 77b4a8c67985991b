/// @file threadslots.h
/// The table of thread-local slots: every thread has its own value in each slot.
///
/// What ends with a thread: nothing. Its values stay with the table until their slot is freed,
/// their module's values are deleted or the table goes.
///
/// Threads: any, at the same time.
#pragma once

#include <VxMFCEmu/core/notrackobject.h>
#include <VxMFCEmu/core/simplelist.h>
#include <VxMFCEmu/sys/criticalsection.h>

#include <atomic>
#include <vector>

struct CSlotData_E;

/// The values of one thread.
struct CThreadData_E : CNoTrackObject_E
{
    CThreadData_E* pNext = nullptr; ///< link of the table's list
    int nCount = 0;                 ///< number of entries in @c pData
    void** pData = nullptr;         ///< one value a slot, `CNoTrackObject_E*` each
};

/// The table of thread-local slots.
class VXMFC_EXPORT CThreadSlotData_E
{
public:
    /// Throws the memory exception when the system has no thread-local storage left.
    CThreadSlotData_E();
    /// Deletes the values of all threads.
    ~CThreadSlotData_E();
    CThreadSlotData_E(const CThreadSlotData_E&) = delete;
    CThreadSlotData_E& operator=(const CThreadSlotData_E&) = delete;

    /// A slot of one's own, never 0. Throws the memory exception when there is no room.
    int AllocSlot();
    /// Deletes every thread's value and gives the slot back; a number that is no slot is ignored.
    void FreeSlot(int nSlot);
    /// The calling thread's value, owned by the table; null when there is none.
    void* GetThreadValue(int nSlot);
    /// Sets the calling thread's value, a `CNoTrackObject_E*` that the table owns from then on; the
    /// value before it is not deleted. A number that is no slot is ignored. Throws the memory
    /// exception when there is no room; the value then stays the caller's.
    void SetValue(int nSlot, void* pValue);
    /// Gives the used slots without a module to @p hInst.
    void AssignInstance(HINSTANCE hInst);
    /// Deletes the values in the slots of @p hInst, in all slots for null: those of every thread,
    /// or only the calling thread's.
    void DeleteValues(HINSTANCE hInst, BOOL bAll);
    /// The same for the thread of one record.
    void DeleteValues(CThreadData_E* pData, HINSTANCE hInst);

private:
    class Lock;
    using Values = std::vector<CNoTrackObject_E*>;

    bool IsSlot(int nSlot) const { return nSlot > 0 && nSlot < m_nMax; }
    CThreadData_E* FirstRecord() const { return static_cast<CThreadData_E*>(m_list.GetHead()); }
    CThreadData_E* CurrentRecord() const;
    int FindFreeSlot() const;
    void GrowTable();
    void GrowRecord(CThreadData_E* pData) const;
    void TakeValues(CThreadData_E* pData, HINSTANCE hInst, Values& values);
    void DropIfEmpty(CThreadData_E* pData);
    void FreeRecord(CThreadData_E* pData);
    bool DeleteAllRecords();

    DWORD m_tlsIndex;
    int m_nAlloc = 0;
    int m_nRover = 1;
    int m_nMax = 1;
    CSlotData_E* m_pSlotData = nullptr;
    CSimpleList_E m_list;
    CRITICAL_SECTION m_sect;
};

/// The slot table of the process; null until it is first needed.
extern VXMFC_EXPORT std::atomic<CThreadSlotData_E*> _afxThreadData;
/// How many users the slot table has; see AfxTlsAddRef_E().
extern VXMFC_EXPORT std::atomic<LONG> _afxTlsRef;

/// AssignInstance() of the slot table, if there is one.
VXMFC_EXPORT void AfxInitLocalData_E(HINSTANCE hInst);
/// DeleteValues() of the slot table, if there is one.
VXMFC_EXPORT void AfxTermLocalData_E(HINSTANCE hInst, BOOL bAll = FALSE);
/// Counts one more user of the slot table.
VXMFC_EXPORT void AfxTlsAddRef_E();
/// Counts one user less, never below 0, and destroys the slot table at 0, also when there was none.
/// No other thread may be using thread-local objects then.
VXMFC_EXPORT void AfxTlsRelease_E();
