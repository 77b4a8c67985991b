#include <VxMFCEmu/wnd/resourceids.h>

#include "text/vxidtable_p.h"
#include "text/vxresourcename_p.h"

#include <VxMFCEmu/text/resourcename.h>

#include <QtCore/QHash>

#include <map>

namespace {

struct ResourceIds
{
    QMap<UINT, QString> names;
    QHash<QString, UINT> ids; // of each name the lowest
};

void load(const QString& strResource, ResourceIds& ids)
{
    ids.names =
        vx::detail::readIdTable(QStringLiteral(":/%1/%1IDs").arg(strResource), QStringLiteral(","));
    for (auto it = ids.names.cbegin(); it != ids.names.cend(); ++it) {
        if (!ids.ids.contains(it.value()))
            ids.ids.insert(it.value(), it.key());
    }
}

// The caller's name is found in the functions below themselves: each frame in between costs.
const ResourceIds& idsOf(const QString& strResource)
{
    static std::map<QString, ResourceIds> all;
    static QString strLast; // one plug-in asks for many ids, each time by the same text
    static const ResourceIds* pLast = nullptr;
    if (pLast && strLast.isSharedWith(strResource))
        return *pLast;
    ResourceIds& ids = all[strResource];
    if (ids.names.isEmpty())
        load(strResource, ids);
    if (!ids.names.isEmpty()) { // tried again while it is empty
        strLast = strResource;
        pLast = &ids;
    }
    return ids;
}

} // namespace

const QMap<UINT, QString>& GetResourceIDMap() { return idsOf(GetMfyResourceName()).names; }

QString ToStringId(UINT nID)
{
    return idsOf(vx::detail::resourceNameFrom(__builtin_return_address(0))).names.value(nID);
}

UINT ToCtrlId(const QString& strName) { return idsOf(GetMfyResourceName()).ids.value(strName); }
