#include "gdi/vxgdihandles_p.h"

#include <QtCore/QVarLengthArray>

#include <unordered_map>

namespace vx::detail {

unsigned long gdiGeneration = 0;

namespace {

struct Row
{
    FreeHandleFn pfnFree = nullptr;
    QVarLengthArray<CGdiObject_E*, 1> holders; // the last one is whom the handle map knows
};

// Objects with static storage let go of their handles at unload, later than most, and the state
// with the handle maps ends their temporary ones after that: this is still there then.
__attribute__((init_priority(101))) std::unordered_map<HGDIOBJ, Row> rows;

void keep(HGDIOBJ) {}

} // namespace

void holdHandle(HGDIOBJ h, CGdiObject_E* pHolder, FreeHandleFn pfnFree)
{
    Row& row = rows[h];
    // An address can come back with a value of another type.
    if (pfnFree && row.holders.isEmpty() && row.pfnFree != &keep)
        row.pfnFree = pfnFree;
    row.holders.append(pHolder);
}

CGdiObject_E* releaseHandle(HGDIOBJ h, CGdiObject_E* pHolder)
{
    const auto it = rows.find(h);
    if (it == rows.end())
        return nullptr;
    auto& holders = it->second.holders;
    if (const int nIndex = holders.indexOf(pHolder); nIndex >= 0)
        holders.remove(nIndex);
    if (!holders.isEmpty())
        return holders.last();
    if (!it->second.pfnFree)
        rows.erase(it);
    return nullptr;
}

bool isSharedHandle(HGDIOBJ h)
{
    const auto it = rows.find(h);
    return it != rows.end() && it->second.holders.size() > 1;
}

void freeUnheldHandle(HGDIOBJ h, FreeHandleFn pfnFree)
{
    if (const auto it = rows.find(h); it != rows.end()) {
        if (!it->second.holders.isEmpty() || it->second.pfnFree == &keep)
            return;
        pfnFree = it->second.pfnFree;
        rows.erase(it);
    }
    if (pfnFree)
        pfnFree(h);
}

void lendHandle(HGDIOBJ h) { rows[h] = {&keep, {}}; }

bool reclaimHandle(HGDIOBJ h, FreeHandleFn pfnFree)
{
    const auto it = rows.find(h);
    if (it == rows.end())
        return true;
    if (!it->second.holders.isEmpty()) {
        it->second.pfnFree = pfnFree;
        return false;
    }
    rows.erase(it);
    return true;
}

} // namespace vx::detail
