#include "coll/vxfilehandles_p.h"

#include <mutex>
#include <shared_mutex>
#include <unordered_map>

namespace {

struct Handles
{
    std::shared_mutex mutex;
    std::unordered_map<HANDLE, std::pair<CFile_E*, bool>> files;
};

/// Never destroyed: static files of an application may go later than this library's objects.
Handles& handles()
{
    static auto* const all = new Handles;
    return *all;
}

} // namespace

namespace vx::detail {

void rememberFileHandle(CFile_E* pFile, bool bOwned)
{
    Handles& all = handles();
    const std::unique_lock<std::shared_mutex> guard(all.mutex);
    all.files.try_emplace(pFile, pFile, bOwned);
}

void forgetFileHandle(CFile_E* pFile)
{
    Handles& all = handles();
    const std::unique_lock<std::shared_mutex> guard(all.mutex);
    all.files.erase(pFile);
}

CFile_E* fileOfHandle(HANDLE hFile)
{
    bool bOwned;
    return fileOfHandle(hFile, bOwned);
}

CFile_E* fileOfHandle(HANDLE hFile, bool& bOwned)
{
    Handles& all = handles();
    const std::shared_lock<std::shared_mutex> guard(all.mutex);
    const auto found = all.files.find(hFile);
    if (found == all.files.end())
        return nullptr;
    bOwned = found->second.second;
    return found->second.first;
}

} // namespace vx::detail
