// Not part of the public interface. The connections into an object, which Qt itself does not show.
#pragma once

#include <QtCore/QMetaMethod>

#include <vector>

namespace vx::detail {

struct IncomingConnection
{
    QObject* sender;
    QMetaMethod signal;
    QMetaMethod method;
    Qt::ConnectionType type;
};

/// The connections whose receiver is @p pReceiver, in the order of its sender list, without those to
/// functors and pointers to member. Read once, so that the caller may change them while walking.
std::vector<IncomingConnection> incomingConnections(const QObject* pReceiver);

/// Whether @p signal of @p pSender is connected to @p method of @p pReceiver. Looks at the receiver's
/// side: the sender may have thousands of receivers, where Qt::UniqueConnection walks them all.
bool isConnected(const QObject* pSender, const QMetaMethod& signal, const QObject* pReceiver,
                 const QMetaMethod& method);

} // namespace vx::detail
