/// @file threadlocal.h
/// Objects that exist once per thread, and objects that exist once per process, made on first use.
///
/// Threads: thread-local objects from any thread; process-local ones from one thread at a time.
#pragma once

#include <VxMFCEmu/core/notrackobject.h>

#include <atomic>

/// Makes one object; the result is owned by the caller.
using VxCreateNoTrackFn = CNoTrackObject_E* (*)();

/// One thread-local object, without its type. Usually static; use CThreadLocal_E.
class VXMFC_EXPORT CThreadLocalObject_E
{
public:
    CThreadLocalObject_E() = default;
    /// Deletes the objects of all threads.
    ~CThreadLocalObject_E();
    CThreadLocalObject_E(const CThreadLocalObject_E&) = delete;
    CThreadLocalObject_E& operator=(const CThreadLocalObject_E&) = delete;

    /// The calling thread's object, made by @p pfnCreate on first use; not owned by the caller.
    /// Throws the invalid-argument exception for a null function and when no slot can be had.
    CNoTrackObject_E* GetData(VxCreateNoTrackFn pfnCreate);
    /// The calling thread's object; null when it has none yet.
    CNoTrackObject_E* GetDataNA() const;

private:
    friend class VxThreadLocalObjects;

    std::atomic<int> m_nSlot = 0;
};

/// One process-local object, without its type. Usually static; use CProcessLocal_E.
class VXMFC_EXPORT CProcessLocalObject_E
{
public:
    CProcessLocalObject_E() = default;
    ~CProcessLocalObject_E();
    CProcessLocalObject_E(const CProcessLocalObject_E&) = delete;
    CProcessLocalObject_E& operator=(const CProcessLocalObject_E&) = delete;

    /// The object, made by @p pfnCreate on first use; not owned by the caller. Throws the
    /// invalid-argument exception when it is to be made by a null function.
    CNoTrackObject_E* GetData(VxCreateNoTrackFn pfnCreate);

private:
    CNoTrackObject_E* m_pObject = nullptr;
};

/// A thread-local object of class @p T, which derives from CNoTrackObject_E.
template <typename T>
class CThreadLocal_E : public CThreadLocalObject_E
{
public:
    /// @{
    /// The object; made on first use, but by GetDataNA(), which gives null until then.
    T* GetData() { return static_cast<T*>(CThreadLocalObject_E::GetData(&CreateObject)); }
    T* GetDataNA() const { return static_cast<T*>(CThreadLocalObject_E::GetDataNA()); }
    operator T*() { return GetData(); }
    T* operator->() { return GetData(); }
    /// @}

    /// A new object.
    static CNoTrackObject_E* CreateObject() { return new T; }
};

/// A process-local object of class @p T, which derives from CNoTrackObject_E.
template <typename T>
class CProcessLocal_E : public CProcessLocalObject_E
{
public:
    /// @{
    /// The object, made on first use.
    T* GetData() { return static_cast<T*>(CProcessLocalObject_E::GetData(&CreateObject)); }
    operator T*() { return GetData(); }
    T* operator->() { return GetData(); }
    /// @}

    /// A new object.
    static CNoTrackObject_E* CreateObject() { return new T; }
};
