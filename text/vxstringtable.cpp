#include "text/vxstringtable_p.h"

#include "text/vxidtable_p.h"

#include <VxMFCEmu/text/resourcename.h>

#include <QtCore/QHash>

#include <mutex>

namespace vx::detail {
namespace {

using StringTable = QMap<UINT, QString>;

StringTable readTable(const QString& strName)
{
    return readIdTable(QStringLiteral(":/%1/%1Strings").arg(strName), QStringLiteral(", "));
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
