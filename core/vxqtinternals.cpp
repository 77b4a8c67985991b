// The one file that reads Qt's private headers.
#include "core/vxqtinternals_p.h"

#include <private/qmetaobject_p.h>
#include <private/qobject_p.h>

namespace vx::detail {
namespace {

template <typename Visitor>
void visitSlotConnections(const QObject* pReceiver, Visitor visit)
{
    // GUI thread only, like everything that connects to a wrapper; Qt's lock is not reachable here.
    const auto* pData =
        QObjectPrivate::get(const_cast<QObject*>(pReceiver))->connections.loadRelaxed();
    if (!pData)
        return;
    for (const auto* pConnection = pData->senders; pConnection; pConnection = pConnection->next) {
        if (!pConnection->isSlotObject && !visit(*pConnection))
            return;
    }
}

} // namespace

std::vector<IncomingConnection> incomingConnections(const QObject* pReceiver)
{
    std::vector<IncomingConnection> result;
    visitSlotConnections(pReceiver, [&](const QObjectPrivate::Connection& connection) {
        result.push_back(
            {connection.sender,
             QMetaObjectPrivate::signal(connection.sender->metaObject(), connection.signal_index),
             pReceiver->metaObject()->method(connection.method()),
             static_cast<Qt::ConnectionType>(connection.connectionType)});
        return true;
    });
    return result;
}

bool isConnected(const QObject* pSender, const QMetaMethod& signal, const QObject* pReceiver,
                 const QMetaMethod& method)
{
    const int signalIndex = QMetaObjectPrivate::signalIndex(signal);
    bool found = false;
    visitSlotConnections(pReceiver, [&](const QObjectPrivate::Connection& connection) {
        found = connection.sender == pSender && connection.signal_index == signalIndex &&
                connection.method() == method.methodIndex();
        return !found;
    });
    return found;
}

const QVariant* dynamicProperty(const QObject* pObject, const QByteArray& name)
{
    const auto* pExtra = QObjectPrivate::get(const_cast<QObject*>(pObject))->extraData;
    if (!pExtra)
        return nullptr;
    const int nIndex = pExtra->propertyNames.indexOf(name);
    return nIndex < 0 ? nullptr : &pExtra->propertyValues.at(nIndex);
}

void setDynamicProperty(QObject* pObject, const QByteArray& name, const QVariant& value)
{
    auto* const pPrivate = QObjectPrivate::get(pObject);
    if (!pPrivate->extraData)
        pPrivate->extraData = new QObjectPrivate::ExtraData;
    auto& names = pPrivate->extraData->propertyNames;
    auto& values = pPrivate->extraData->propertyValues;
    const int nIndex = names.indexOf(name);
    if (nIndex < 0 && value.isValid()) {
        names.append(name);
        values.append(value);
    } else if (nIndex >= 0 && value.isValid()) {
        values[nIndex] = value;
    } else if (nIndex >= 0) {
        names.removeAt(nIndex);
        values.removeAt(nIndex);
    }
}

} // namespace vx::detail
