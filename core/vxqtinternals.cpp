// The one file that reads Qt's private headers.
#include "core/vxqtinternals_p.h"

#include <private/qabstractspinbox_p.h>
#include <private/qmetaobject_p.h>
#include <private/qobject_p.h>
#include <private/qsettings_p.h>

#include <QtWidgets/QWidget>

#include <algorithm>
#include <mutex>
#include <utility>

namespace vx::detail {
namespace {

// The files of a store are private even in the private header; an explicit instantiation may name
// them all the same.
using SettingsFiles = QVector<QConfFile*> QConfFileSettingsPrivate::*;
SettingsFiles settingsFiles();
template <SettingsFiles pMember>
struct SettingsFilesAccess
{
    friend SettingsFiles settingsFiles() { return pMember; }
};
template struct SettingsFilesAccess<&QConfFileSettingsPrivate::confFiles>;

// UndefinedBehaviorSanitizer would want type information that Qt does not export.
__attribute__((no_sanitize("vptr"))) const QVector<QConfFile*>& filesOf(const QSettings& settings)
{
    const auto* pPrivate = QObjectPrivate::get(const_cast<QSettings*>(&settings));
    return static_cast<const QConfFileSettingsPrivate*>(pPrivate)->*settingsFiles();
}

bool hasUnreadSections(QConfFile* pFile)
{
    const std::lock_guard lock(pFile->mutex);
    return !pFile->unparsedIniSections.isEmpty();
}

// Names that the library has set share their text, so that most comparisons end at once.
int indexOf(const QList<QByteArray>& names, const QByteArray& name)
{
    for (int i = 0; i < names.size(); ++i) {
        if (names[i].constData() == name.constData() || names[i] == name)
            return i;
    }
    return -1;
}

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

QWidget* findChildWidget(const QObject* pParent, const QString& strName)
{
    const QObjectList& children = pParent->children();
    for (QObject* const pChild : children) {
        const auto* pExtra = QObjectPrivate::get(pChild)->extraData;
        if (pExtra && pChild->isWidgetType() && pExtra->objectName == strName)
            return static_cast<QWidget*>(pChild);
    }
    for (const QObject* const pChild : children) {
        if (QWidget* const pFound = findChildWidget(pChild, strName))
            return pFound;
    }
    return nullptr;
}

const QVariant* dynamicProperty(const QObject* pObject, const QByteArray& name)
{
    const auto* pExtra = QObjectPrivate::get(const_cast<QObject*>(pObject))->extraData;
    if (!pExtra)
        return nullptr;
    const int nIndex = indexOf(pExtra->propertyNames, name);
    return nIndex < 0 ? nullptr : &pExtra->propertyValues.at(nIndex);
}

void setDynamicProperty(QObject* pObject, const QByteArray& name, const QVariant& value)
{
    auto* const pPrivate = QObjectPrivate::get(pObject);
    if (!pPrivate->extraData)
        pPrivate->extraData = new QObjectPrivate::ExtraData;
    auto& names = pPrivate->extraData->propertyNames;
    auto& values = pPrivate->extraData->propertyValues;
    const int nIndex = indexOf(names, name);
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

// UndefinedBehaviorSanitizer would want type information that Qt does not export.
__attribute__((no_sanitize("vptr"))) void forgetLineEdit(QAbstractSpinBox* pBox)
{
    static_cast<QAbstractSpinBoxPrivate*>(QObjectPrivate::get(pBox))->edit = nullptr;
}

void forgetUnsaved(const QSettings& settings)
{
    for (QConfFile* pFile : filesOf(settings)) {
        const std::lock_guard lock(pFile->mutex);
        pFile->addedKeys.clear();
        pFile->removedKeys.clear();
        pFile->size = 0; // such a record is not kept for the next store
    }
}

struct SettingsContents::Files
{
    struct File
    {
        ParsedSettingsMap originalKeys;
        ParsedSettingsMap addedKeys;
        ParsedSettingsMap removedKeys;
    };
    std::vector<File> files;
};

SettingsContents::SettingsContents() = default;
SettingsContents::~SettingsContents() = default;

void SettingsContents::Take(const QSettings& settings)
{
    const auto& files = filesOf(settings);
    // Reading a value may have its section moved to the keys. When all are there, it changes
    // nothing.
    if (std::any_of(files.begin(), files.end(), hasUnreadSections))
        settings.allKeys();
    auto pTaken = std::make_unique<Files>();
    for (QConfFile* pFile : files) {
        const std::lock_guard lock(pFile->mutex);
        pTaken->files.push_back({pFile->originalKeys, pFile->addedKeys, pFile->removedKeys});
    }
    m_pFiles = std::move(pTaken);
}

void SettingsContents::Drop() { m_pFiles.reset(); }

bool SettingsContents::IsOf(const QSettings& settings) const
{
    if (!m_pFiles)
        return false;
    const auto isSame = [](QConfFile* pFile, const Files::File& taken) {
        const std::lock_guard lock(pFile->mutex);
        return pFile->unparsedIniSections.isEmpty() &&
               pFile->originalKeys.isSharedWith(taken.originalKeys) &&
               pFile->addedKeys.isSharedWith(taken.addedKeys) &&
               pFile->removedKeys.isSharedWith(taken.removedKeys);
    };
    const auto& files = filesOf(settings);
    return std::equal(files.begin(), files.end(), m_pFiles->files.begin(), m_pFiles->files.end(),
                      isSame);
}

} // namespace vx::detail
