#include <VxMFCEmu/wnd/resourceids.h>

#include <VxMFCEmu/text/resourcename.h>

#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtCore/QSettings>
#include <QtCore/QStringList>

#include <map>

namespace {

struct ResourceIds
{
    QMap<UINT, QString> names;
    QHash<QString, UINT> ids; // of each name the lowest
};

void load(const QString& strResource, ResourceIds& ids)
{
    const QString strPath = QStringLiteral(":/%1/%1IDs").arg(strResource);
    if (!QFile::exists(strPath))
        return;
    QSettings settings(strPath, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    const QStringList keys = settings.allKeys();
    for (const QString& strKey : keys) {
        bool isNumber = false;
        const UINT nID = strKey.toUInt(&isNumber);
        // A value with a comma arrives as a list.
        if (isNumber)
            ids.names.insert(nID, settings.value(strKey).toStringList().join(QLatin1Char(',')));
    }
    for (auto it = ids.names.cbegin(); it != ids.names.cend(); ++it) {
        if (!ids.ids.contains(it.value()))
            ids.ids.insert(it.value(), it.key());
    }
}

// The caller's name is found in the functions below themselves: each frame in between costs.
const ResourceIds& idsOf(const QString& strResource)
{
    static std::map<QString, ResourceIds> all;
    ResourceIds& ids = all[strResource];
    if (ids.names.isEmpty())
        load(strResource, ids);
    return ids;
}

} // namespace

const QMap<UINT, QString>& GetResourceIDMap() { return idsOf(GetMfyResourceName()).names; }

QString ToStringId(UINT nID) { return idsOf(GetMfyResourceName()).names.value(nID); }

UINT ToCtrlId(const QString& strName) { return idsOf(GetMfyResourceName()).ids.value(strName); }
