// Not part of the public interface. What Qt keeps of an object and does not show, or shows slowly.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMetaMethod>

#include <memory>
#include <vector>

class QAbstractSpinBox;
class QSettings;
class QWidget;

namespace vx::detail {

struct IncomingConnection
{
    QObject* sender;
    QMetaMethod signal;
    QMetaMethod method;
    Qt::ConnectionType type;
};

/// The connections whose receiver is @p pReceiver, in the order of its sender list, without those
/// to functors and pointers to member. Read once, so that the caller may change them while walking.
std::vector<IncomingConnection> incomingConnections(const QObject* pReceiver);

/// Whether @p signal of @p pSender is connected to @p method of @p pReceiver. Looks at the
/// receiver's side: the sender may have thousands of receivers, where Qt::UniqueConnection walks
/// them all.
bool isConnected(const QObject* pSender, const QMetaMethod& signal, const QObject* pReceiver,
                 const QMetaMethod& method);

/// What `findChild<QWidget*>(strName)` finds for a name that is not empty. That one casts each
/// child and copies its name before the two are compared.
QWidget* findChildWidget(const QObject* pParent, const QString& strName);

/// The dynamic property of this name; null when there is none. QObject::property() compares the
/// name with every property that the object's class declares first, at a dozen times the cost.
const QVariant* dynamicProperty(const QObject* pObject, const QByteArray& name);

/// Sets the dynamic property of this name, or takes it away when @p value is invalid. Neither
/// compares the name with the class's properties nor sends the object an event of the change.
void setDynamicProperty(QObject* pObject, const QByteArray& name, const QVariant& value);

/// Has a spin box give up its line edit, which is being destroyed, without deleting it. It needs a
/// new one at once.
void forgetLineEdit(QAbstractSpinBox* pBox);

/// Drops what could not be written to the file of a store, and what is remembered of it.
void forgetUnsaved(const QSettings& settings);

/// The contents of a store of INI settings at one moment, to find out cheaply whether they have
/// changed, whoever did it: stores of one file in one process share them.
///
/// They are kept in implicitly shared maps. A copy of such a map is never changed, and it keeps its
/// data alive; so a store whose maps are still shared with the copies has not been written to,
/// cleared or read from its file since.
class SettingsContents
{
public:
    SettingsContents();
    ~SettingsContents();
    SettingsContents(const SettingsContents&) = delete;
    SettingsContents& operator=(const SettingsContents&) = delete;

    void Take(const QSettings& settings);
    /// Spares the store the copying of what is shared at its next change.
    void Drop();
    /// False as well when nothing has been taken.
    bool IsOf(const QSettings& settings) const;

private:
    struct Files;
    std::unique_ptr<const Files> m_pFiles;
};

} // namespace vx::detail
