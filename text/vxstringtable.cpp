#include "text/vxstringtable_p.h"

#include <VxMFCEmu/text/resourcename.h>

#include <QtCore/QHash>
#include <QtCore/QSettings>
#include <QtCore/QStringList>

#include <mutex>

namespace vx::detail {
namespace {

using StringTable = QHash<UINT, QString>;

StringTable readTable(const QString& strName)
{
    QSettings file(QLatin1String(":/") + strName + QLatin1Char('/') + strName +
                       QLatin1String("Strings"),
                   QSettings::IniFormat);
    file.setIniCodec("UTF-8");
    StringTable table;
    const QStringList keys = file.allKeys();
    for (const QString& key : keys) {
        bool isId = false;
        const UINT id = key.toUInt(&isId);
        // A text with commas that is not quoted reads as a list.
        if (isId)
            table.insert(id, file.value(key).toStringList().join(QLatin1String(", ")));
    }
    return table;
}

struct Tables
{
    std::mutex mutex;
    QHash<QString, StringTable> byName;
};

Tables& tables()
{
    static Tables instance;
    return instance;
}

} // namespace

std::optional<QString> findTableString(UINT nID)
{
    const QString strName = GetMfyResourceName();
    Tables& all = tables();
    const std::lock_guard lock(all.mutex);
    StringTable& table = all.byName[strName];
    // An empty one is tried again: its plug-in's resources may come later.
    if (table.isEmpty())
        table = readTable(strName);
    const auto it = table.constFind(nID);
    return it == table.cend() ? std::nullopt : std::optional(*it);
}

} // namespace vx::detail
