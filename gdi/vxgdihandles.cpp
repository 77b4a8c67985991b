#include "gdi/vxgdihandles_p.h"

#include <unordered_map>

namespace vx::detail {

unsigned long gdiGeneration = 0;

namespace {

struct Row
{
    FreeHandleFn pfnFree = nullptr;
    int nHolders = 0;
};

// Objects with static storage let go of their handles at unload, later than most.
__attribute__((init_priority(102))) std::unordered_map<HGDIOBJ, Row> rows;

void keep(HGDIOBJ) {}

} // namespace

void holdHandle(HGDIOBJ h, FreeHandleFn pfnFree)
{
    Row& row = rows[h];
    // An address can come back with a value of another type.
    if (pfnFree && row.nHolders == 0 && row.pfnFree != &keep)
        row.pfnFree = pfnFree;
    ++row.nHolders;
}

void releaseHandle(HGDIOBJ h)
{
    const auto it = rows.find(h);
    if (it == rows.end())
        return;
    if (it->second.nHolders > 0)
        --it->second.nHolders;
    if (it->second.nHolders == 0 && !it->second.pfnFree)
        rows.erase(it);
}

bool isSharedHandle(HGDIOBJ h)
{
    const auto it = rows.find(h);
    return it != rows.end() && it->second.nHolders > 1;
}

void freeUnheldHandle(HGDIOBJ h, FreeHandleFn pfnFree)
{
    if (const auto it = rows.find(h); it != rows.end()) {
        if (it->second.nHolders > 0 || it->second.pfnFree == &keep)
            return;
        pfnFree = it->second.pfnFree;
        rows.erase(it);
    }
    if (pfnFree)
        pfnFree(h);
}

void lendHandle(HGDIOBJ h) { rows[h] = {&keep, 0}; }

bool reclaimHandle(HGDIOBJ h, FreeHandleFn pfnFree)
{
    const auto it = rows.find(h);
    if (it == rows.end())
        return true;
    if (it->second.nHolders > 0) {
        it->second.pfnFree = pfnFree;
        return false;
    }
    rows.erase(it);
    return true;
}

} // namespace vx::detail
