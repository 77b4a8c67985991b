#include "text/vxidtable_p.h"

#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QStringList>

namespace vx::detail {

QMap<UINT, QString> readIdTable(const QString& fileName, const QString& separator)
{
    if (!QFile::exists(fileName)) // cheaper than settings on it
        return {};
    QSettings file(fileName, QSettings::IniFormat);
    file.setIniCodec("UTF-8");
    QMap<UINT, QString> table;
    const QStringList keys = file.allKeys();
    for (const QString& key : keys) {
        bool isId = false;
        const UINT id = key.toUInt(&isId);
        if (isId)
            table.insert(id, file.value(key).toStringList().join(separator));
    }
    return table;
}

} // namespace vx::detail
