// Idle time: who is called, and the temporary objects that it ends.
#include "wnd/vxidle_p.h"

#include "core/vxqtinternals_p.h"

#include <VxMFCEmu/wnd/globaleventhandler.h>
#include <VxMFCEmu/wnd/hostwindows.h>
#include <VxMFCEmu/wnd/window.h>

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QMetaMethod>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <vector>

namespace {

const QMetaMethod& aboutToBlock()
{
    static const QMetaMethod signal =
        QMetaMethod::fromSignal(&QAbstractEventDispatcher::aboutToBlock);
    return signal;
}

QMetaMethod idleSlot(const QObject* pObject)
{
    const QMetaObject* const pMeta = pObject->metaObject();
    return pMeta->method(pMeta->indexOfSlot("OnEnterIdle()"));
}

// 0 for what can be no address, such as a truth value.
std::uintptr_t addressIn(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::VoidStar:
        return reinterpret_cast<std::uintptr_t>(value.value<void*>());
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Long:
    case QMetaType::ULong:
        return static_cast<std::uintptr_t>(value.toULongLong());
    default:
        return 0;
    }
}

// The host announces a running command through a function whose address its main frame carries.
bool isHostCommandRunning()
{
    const QWidget* const pFrame = TolmGetMainFrame();
    if (!pFrame)
        return false;
    const QVariant property = pFrame->property("IsTolmCmdActive");
    using IsActive = bool (*)();
    const auto pfnIsActive = reinterpret_cast<IsActive>(addressIn(property));
    return pfnIsActive && pfnIsActive();
}

std::vector<void (*)()>& cleanUps()
{
    static std::vector<void (*)()> functions;
    return functions;
}

} // namespace

void vx::detail::cleanUpAtIdle(void (*pfnCleanUp)())
{
    std::vector<void (*)()>& list = cleanUps();
    if (!QAbstractEventDispatcher::instance() ||
        std::find(list.cbegin(), list.cend(), pfnCleanUp) != list.cend())
        return;
    list.push_back(pfnCleanUp);
    ConnectIdleSlot(GetGlobalEventHandler());
}

void ConnectIdleSlot(QObject* pObject)
{
    QAbstractEventDispatcher* const pDispatcher = QAbstractEventDispatcher::instance();
    if (!pObject || !pDispatcher)
        return;
    const QMetaMethod slot = idleSlot(pObject);
    if (slot.isValid() && !vx::detail::isConnected(pDispatcher, aboutToBlock(), pObject, slot))
        QMetaObject::connect(pDispatcher, aboutToBlock().methodIndex(), pObject,
                             slot.methodIndex());
}

void DisconnectIdleSlot(QObject* pObject)
{
    QAbstractEventDispatcher* const pDispatcher = QAbstractEventDispatcher::instance();
    const QMetaMethod slot = pObject ? idleSlot(pObject) : QMetaMethod();
    if (auto* const pWindow = qobject_cast<CWnd_E*>(pObject))
        pWindow->m_bIdleSlot = false;
    if (pDispatcher && slot.isValid()) // without a slot it would take away other connections too
        QObject::disconnect(pDispatcher, aboutToBlock(), pObject, slot);
}

void QGlobalEventHandler::OnEnterIdle()
{
    if (isHostCommandRunning())
        return;
    // One by one, so that the rest stays listed for the next time when one throws.
    std::vector<void (*)()>& list = cleanUps();
    for (std::size_t n = list.size(); n > 0 && !list.empty(); --n) {
        void (*const pfnCleanUp)() = list.front();
        list.erase(list.begin());
        pfnCleanUp();
    }
    RemoveTempObject();
}

void QGlobalEventHandler::AppendTempObject(QObject* pObject)
{
    if (m_tempObjects.empty())
        ConnectIdleSlot(this);
    m_tempObjects.emplace_back(pObject);
}

void QGlobalEventHandler::RemoveTempObject()
{
    // Deleting an object may make new temporary ones.
    std::vector<QPointer<QObject>> objects;
    while (!m_tempObjects.empty()) {
        objects.swap(m_tempObjects);
        for (const QPointer<QObject>& object : objects)
            delete object;
        objects.clear();
    }
    m_tempObjects.swap(objects); // its room serves until the next idle time
    if (cleanUps().empty())
        DisconnectIdleSlot(this);
}

void AppendTempObjectPool(QObject* pObject)
{
    if (pObject)
        GetGlobalEventHandler()->AppendTempObject(pObject);
}

void ClearTempObjectPool() { GetGlobalEventHandler()->RemoveTempObject(); }
