/// @file object.h
/// The root of every emulated class: a `QObject` that wraps the Qt object doing the work.
///
/// The wrapped object is the *implementation object*. It carries two dynamic properties: "owner",
/// the address of its wrapper, and "parent", the address of the parent it was attached with.
///
/// Ownership has three kinds. *Owned*: the wrapper schedules the implementation object for deletion
/// when it lets go of it. *External*: it never deletes it. *Temporary*: the wrapper itself belongs
/// to the temporary-object pool and goes at the next idle time.
///
/// Threads: GUI thread only, except where a derived class says otherwise.
#pragma once

#include <VxMFCEmu/core/runtimeclass.h>

#include <QtCore/QObject>

class CArchive_E;
class CDumpContext_E;
class CHandleMap_E;

/// The root: a wrapper of one Qt object.
class VXMFC_EXPORT CObject_E : public QObject
{
    Q_OBJECT

public:
    CObject_E();
    /// Detaches; see Detach().
    ~CObject_E() override;

    /// The record of this class; derived ones have theirs from the macros.
    static CRuntimeClass_E s_classInfo;

    /// Makes the class's default implementation object below @p pParent and attaches it as owned.
    virtual BOOL AttachDefault(QObject* pParent);
    /// Called when an implementation object has been attached; FALSE makes Attach() fail.
    virtual BOOL OnAttach();
    /// Called when the implementation object has been let go.
    virtual void OnDetach();
    /// Takes over the connections into @p pFrom: each one whose receiving method has a slot of the
    /// same name and fitting arguments here is made to this object, and unless @p bKeepOld is set
    /// the old one is removed. Connections to functors and to pointers to member are left alone.
    virtual void ConnectSlotsFrom(QObject* pFrom, bool bKeepOld);
    /// The record of this object's class.
    virtual CRuntimeClass_E* GetRuntimeClass() const;
    /// Reads or writes the object; the base does nothing.
    virtual void Serialize(CArchive_E& ar);
    /// Writes "a ", the class name, " at " and the address.
    virtual void Dump(CDumpContext_E& dc) const;

    /// The implementation object; null while detached. Owned as IsExternalImpObj() tells.
    QObject* GetImpQObject() const { return m_pImpQObject; }
    /// Stores @p pImp without any of Attach()'s work and returns the previous one.
    QObject* SetImpQObject(QObject* pImp);
    /// Binds @p pImp with @p pParent as its "parent"; an earlier one is detached first, and so is a
    /// temporary wrapper of @p pImp. FALSE for null, for an object of a Qt class that cannot
    /// implement this class (deleted unless @p bExternal) and when OnAttach() refuses.
    BOOL Attach(QObject* pImp, QObject* pParent, bool bExternal);
    /// Lets go of the implementation object; an owned one is deleted later by the event loop. Where
    /// another wrapper has been bound to it meanwhile, that binding stays.
    void Detach();

    /// Hands this object to the temporary-object pool, which deletes it at idle time.
    void SetTemporary();
    /// Whether this wrapper belongs to the temporary-object pool.
    bool IsTemporary() const { return (m_nObjectFlags & TemporaryFlag) != 0; }
    /// Whether Detach() leaves the implementation object alive.
    bool IsExternalImpObj() const { return (m_nObjectFlags & ExternalFlag) != 0; }

    /// Whether archives can hold objects of this class.
    bool IsSerializable() const { return GetRuntimeClass()->m_wSchema != VX_NO_SCHEMA; }
    /// Whether this object is of the class or of one derived from it; false for null.
    bool IsKindOf(const CRuntimeClass_E* pClass) const;
    /// The same by class name, as `qt_metacast` knows it; false for null.
    bool IsKindOf(const char* pszClassName) const;
    /// Name of the class that the meta object gives.
    const char* GetClassName() const { return metaObject()->className(); }
    /// Finds the first slot named exactly @p strName; FALSE, leaving @p method alone, if there is
    /// none.
    BOOL FindSlotMethod(const QString& strName, QMetaMethod& method) const;

    /// The Qt class that implements this class.
    static const QMetaObject* GetImpMetaObject();
    /// The Qt classes that this class is registered for, a new list owned by the caller; null when
    /// GetImpMetaObject() is the only one.
    static QList<const QMetaObject*>* GetImpMetaList();
    /// A new wrapper, owned by the caller, for the nearest registered class of @p pMeta's chain;
    /// null when none is registered.
    static CObject_E* FromImpMetaObject(const QMetaObject* pMeta);
    /// The wrapper that @p pObject is bound to; null for null and for an unbound object.
    static CObject_E* GetOwner(QObject* pObject);

    /// Replaces every connection from @p pSender's signal to @p pReceiver by one to @p pszMethod.
    /// The fifth argument is ignored.
    static QMetaObject::Connection Connect(const QObject* pSender, const char* pszSignal,
                                           const QObject* pReceiver, const char* pszMethod,
                                           const QObject* pIgnored = nullptr,
                                           Qt::ConnectionType type = Qt::AutoConnection);
    /// The same with the descendant of @p pParent that has the control id @p nID as sender; an
    /// invalid connection when there is none.
    static QMetaObject::Connection Connect(UINT nID, const char* pszSignal,
                                           const QObject* pReceiver, const char* pszMethod,
                                           const QObject* pParent,
                                           Qt::ConnectionType type = Qt::AutoConnection);

public Q_SLOTS:
    /// Forgets an implementation object that somebody else is destroying.
    void OnImpDestroy();

protected:
    /// Detach() for destructors: the connections end with the object.
    void DetachAtEnd();

private:
    // A window's handle is this pointer.
    friend VXMFC_EXPORT CHandleMap_E* afxMapHWND_E(BOOL bCreate);
    static constexpr UINT ExternalFlag = 1;
    static constexpr UINT TemporaryFlag = 2;
    static constexpr UINT EndingFlag = 4;

    void SetObjectFlag(UINT flag, bool on);

    QObject* m_pImpQObject = nullptr;
    UINT m_nObjectFlags = 0;
};
