#include <VxMFCEmu/core/object.h>

#include "core/vxdispatchguard_p.h"
#include "core/vxqtinternals_p.h"

#include <VxMFCEmu/wnd/globaleventhandler.h>
#include <VxMFCEmu/wnd/resourceids.h>

CRuntimeClass_E CObject_E::s_classInfo(&CObject_E::staticMetaObject, CObject_E::GetImpMetaObject(),
                                       nullptr, nullptr, CObject_E::GetImpMetaList(),
                                       static_cast<int>(sizeof(CObject_E)));

namespace {

const QByteArray& ownerProperty()
{
    static const QByteArray name = QByteArrayLiteral("owner");
    return name;
}

const QByteArray& parentProperty()
{
    static const QByteArray name = QByteArrayLiteral("parent");
    return name;
}

// By indices, looked up once: other connections put both signatures together each time.
void connectDestroyed(const QObject* pImp, const CObject_E* pWrapper)
{
    static const int nSignal = QMetaMethod::fromSignal(&QObject::destroyed).methodIndex();
    static const int nSlot = CObject_E::staticMetaObject.indexOfSlot("OnImpDestroy()");
    QMetaObject::connect(pImp, nSignal, pWrapper, nSlot, Qt::UniqueConnection);
}

QVariant addressOf(const QObject* pObject)
{
    return QVariant(static_cast<qlonglong>(reinterpret_cast<std::intptr_t>(pObject)));
}

} // namespace

CObject_E::CObject_E() = default;

CObject_E::~CObject_E()
{
    vx::detail::DispatchGuard::wrapperDestroyed(this);
    DetachAtEnd();
}

void CObject_E::DetachAtEnd()
{
    SetObjectFlag(EndingFlag, true);
    Detach();
}

BOOL CObject_E::AttachDefault(QObject* pParent)
{
    return Attach(new QObject(pParent), pParent, false);
}

BOOL CObject_E::OnAttach() { return TRUE; }

void CObject_E::OnDetach() {}

void CObject_E::ConnectSlotsFrom(QObject* pFrom, bool bKeepOld)
{
    if (!pFrom)
        return;
    for (const auto& incoming : vx::detail::incomingConnections(pFrom)) {
        QMetaMethod slot;
        if (!FindSlotMethod(QString::fromLatin1(incoming.method.name()), slot) ||
            !QMetaObject::checkConnectArgs(incoming.signal, slot))
            continue;
        const auto type = static_cast<Qt::ConnectionType>(incoming.type | Qt::UniqueConnection);
        if (connect(incoming.sender, incoming.signal, this, slot, type) && !bKeepOld)
            disconnect(incoming.sender, incoming.signal, pFrom, incoming.method);
    }
}

CRuntimeClass_E* CObject_E::GetRuntimeClass() const { return &s_classInfo; }

void CObject_E::Serialize(CArchive_E&) {}

QObject* CObject_E::SetImpQObject(QObject* pImp) { return std::exchange(m_pImpQObject, pImp); }

BOOL CObject_E::Attach(QObject* pImp, QObject* pParent, bool bExternal)
{
    if (!pImp)
        return FALSE;
    if (!GetRuntimeClass()->IsMyImpMeta(pImp->metaObject())) {
        if (!bExternal)
            delete pImp;
        return FALSE;
    }
    if (pImp == m_pImpQObject)
        SetObjectFlag(ExternalFlag, true); // bound again, it must not be deleted for being let go
    Detach();
    // A temporary wrapper gives way: it would otherwise handle the events of the same object too.
    if (CObject_E* pOther = GetOwner(pImp); pOther && pOther->IsTemporary())
        pOther->Detach();
    SetObjectFlag(ExternalFlag, bExternal);
    m_pImpQObject = pImp;
    vx::detail::setDynamicProperty(pImp, ownerProperty(), addressOf(this));
    vx::detail::setDynamicProperty(pImp, parentProperty(), addressOf(pParent));
    pImp->installEventFilter(this);
    connectDestroyed(pImp, this);
    // What is called there may delete this object.
    const vx::detail::DispatchGuard guard(this, pImp, true);
    const BOOL bAttached = OnAttach();
    if (!guard.wrapperAlive())
        return FALSE;
    if (!bAttached)
        Detach();
    return bAttached;
}

void CObject_E::Detach()
{
    QObject* const pImp = m_pImpQObject;
    if (!pImp)
        return;
    vx::detail::DispatchGuard::objectReleased(pImp);
    if ((m_nObjectFlags & EndingFlag) == 0)
        disconnect(pImp, nullptr, this, nullptr);
    pImp->removeEventFilter(this);
    // Another wrapper may have taken the object over meanwhile; its binding stays.
    if (GetOwner(pImp) == this) {
        vx::detail::setDynamicProperty(pImp, ownerProperty(), QVariant());
        vx::detail::setDynamicProperty(pImp, parentProperty(), QVariant());
    }
    m_pImpQObject = nullptr;
    if (IsExternalImpObj())
        SetObjectFlag(ExternalFlag, false);
    else
        pImp->deleteLater();
    // The destructor means the base's own.
    OnDetach(); // NOLINT(clang-analyzer-optin.cplusplus.VirtualCall)
}

void CObject_E::SetTemporary()
{
    SetObjectFlag(TemporaryFlag, true);
    AppendTempObjectPool(this);
}

bool CObject_E::IsKindOf(const CRuntimeClass_E* pClass) const
{
    return pClass && metaObject()->inherits(pClass->GetMetaObject());
}

bool CObject_E::IsKindOf(const char* pszClassName) const
{
    return const_cast<CObject_E*>(this)->qt_metacast(pszClassName) != nullptr;
}

BOOL CObject_E::FindSlotMethod(const QString& strName, QMetaMethod& method) const
{
    const QByteArray name = strName.toUtf8();
    const QMetaObject* const pMeta = metaObject();
    for (int i = 0; i < pMeta->methodCount(); ++i) {
        const QMetaMethod candidate = pMeta->method(i);
        if (candidate.methodType() == QMetaMethod::Slot && candidate.name() == name) {
            method = candidate;
            return TRUE;
        }
    }
    return FALSE;
}

const QMetaObject* CObject_E::GetImpMetaObject() { return &QObject::staticMetaObject; }

QList<const QMetaObject*>* CObject_E::GetImpMetaList() { return nullptr; }

CObject_E* CObject_E::FromImpMetaObject(const QMetaObject* pMeta)
{
    for (; pMeta; pMeta = pMeta->superClass()) {
        if (const auto it = g_mapCreateMethod.find(pMeta); it != g_mapCreateMethod.end())
            return it->second();
    }
    return nullptr;
}

CObject_E* CObject_E::GetOwner(QObject* pObject)
{
    if (!pObject)
        return nullptr;
    const QVariant* const pOwner = vx::detail::dynamicProperty(pObject, ownerProperty());
    return pOwner ? reinterpret_cast<CObject_E*>(static_cast<std::intptr_t>(pOwner->toLongLong()))
                  : nullptr;
}

QMetaObject::Connection CObject_E::Connect(const QObject* pSender, const char* pszSignal,
                                           const QObject* pReceiver, const char* pszMethod,
                                           const QObject*, Qt::ConnectionType type)
{
    if (!pSender || !pszSignal || !pReceiver || !pszMethod)
        return {};
    disconnect(pSender, pszSignal, pReceiver, nullptr);
    return connect(pSender, pszSignal, pReceiver, pszMethod, type);
}

QMetaObject::Connection CObject_E::Connect(UINT nID, const char* pszSignal,
                                           const QObject* pReceiver, const char* pszMethod,
                                           const QObject* pParent, Qt::ConnectionType type)
{
    const QString strName = ToStringId(nID);
    // Qt's search takes an empty name for any child.
    if (!pParent || strName.isEmpty())
        return {};
    return Connect(pParent->findChild<QObject*>(strName), pszSignal, pReceiver, pszMethod, nullptr,
                   type);
}

void CObject_E::OnImpDestroy()
{
    vx::detail::DispatchGuard::objectDestroyed(m_pImpQObject);
    m_pImpQObject = nullptr;
    SetObjectFlag(ExternalFlag, false);
}

void CObject_E::SetObjectFlag(UINT flag, bool on)
{
    m_nObjectFlags = on ? (m_nObjectFlags | flag) : (m_nObjectFlags & ~flag);
}
