#include <VxMFCEmu/text/resourcename.h>

#include "text/vxresourcename_p.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <deque>
#include <mutex>
#include <string>
#include <string_view>

#include <climits>
#include <dlfcn.h>
#include <link.h>
#include <unistd.h>
#include <unwind.h>

namespace {

constexpr int kMaxFrames = 16;
// Intended: a fixed list, whatever file this code sits in.
constexpr std::array<std::string_view, 3> kLibraries = {"VxMFCEmu", "VxArxEmu", "VxCustomUI"};
constexpr std::string_view kPrefix = "lib";

bool startsWith(std::string_view text, std::string_view prefix)
{
    return text.substr(0, prefix.size()) == prefix;
}

std::string_view withoutPrefix(std::string_view name)
{
    return startsWith(name, kPrefix) ? name.substr(kPrefix.size()) : name;
}

bool isLibraryName(std::string_view name)
{
    return std::find(kLibraries.begin(), kLibraries.end(), withoutPrefix(name)) != kLibraries.end();
}

std::string_view baseName(std::string_view path)
{
    const std::string_view file = path.substr(path.rfind('/') + 1);
    return withoutPrefix(file.substr(0, file.find('.')));
}

std::string executablePath()
{
    char path[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    std::string_view text(path, length > 0 ? static_cast<std::size_t>(length) : 0);
    constexpr std::string_view kDeleted = " (deleted)"; // replaced on disk since the start
    if (text.size() > kDeleted.size() && text.substr(text.size() - kDeleted.size()) == kDeleted)
        text.remove_suffix(kDeleted.size());
    return std::string(text);
}

struct Module
{
    const link_map* map;
    std::string path; // as the loader has it; empty for the main program
    QString name;
    bool isOurs;
};

// What was found out about modules. An entry counts only while the loader's own record still has
// the same path, so that a module unloaded and another one loaded in its place are told apart.
class ModuleCache
{
public:
    const Module& find(const link_map* map)
    {
        const std::lock_guard lock(m_mutex);
        for (const Module& module : m_modules) {
            if (module.map == map && module.path == map->l_name)
                return module;
        }
        return m_modules.emplace_back(describe(map));
    }

private:
    static Module describe(const link_map* map)
    {
        const std::string path = map->l_name;
        const std::string file = path.empty() ? executablePath() : path;
        const std::string_view name = baseName(file);
        return {map, path, QString::fromLocal8Bit(name.data(), static_cast<int>(name.size())),
                isLibraryName(name)};
    }

    std::mutex m_mutex;
    std::deque<Module> m_modules; // references stay valid
};

const link_map* mapOfAddress(void* address)
{
#if defined(DLFO_STRUCT_HAS_EH_DBASE)
    dl_find_object found;
    return _dl_find_object(address, &found) == 0 ? found.dlfo_link_map : nullptr;
#else
    Dl_info info;
    void* map = nullptr;
    return dladdr1(address, &info, &map, RTLD_DL_LINKMAP) != 0 ? static_cast<const link_map*>(map)
                                                               : nullptr;
#endif
}

const Module* moduleOfAddress(std::uintptr_t address)
{
    static ModuleCache cache;
    const link_map* const map = mapOfAddress(reinterpret_cast<void*>(address));
    return map ? &cache.find(map) : nullptr;
}

struct Walk
{
    int frames = 0;
    const Module* foreign = nullptr;
};

_Unwind_Reason_Code visitFrame(_Unwind_Context* context, void* argument)
{
    auto& walk = *static_cast<Walk*>(argument);
    int isExact = 0;
    const std::uintptr_t ip = _Unwind_GetIPInfo(context, &isExact);
    // A return address may lie behind the last instruction of the caller.
    const Module* const module = ip ? moduleOfAddress(isExact ? ip : ip - 1) : nullptr;
    if (module && !module->isOurs)
        walk.foreign = module;
    return walk.foreign || ++walk.frames == kMaxFrames ? _URC_END_OF_STACK : _URC_NO_REASON;
}

} // namespace

QString GetMfyResourceName()
{
    Walk walk;
    _Unwind_Backtrace(&visitFrame, &walk);
    return walk.foreign ? walk.foreign->name : QString();
}

QString vx::detail::resourceNameFrom(const void* pReturnAddress)
{
    const Module* const module =
        moduleOfAddress(reinterpret_cast<std::uintptr_t>(pReturnAddress) - 1);
    return module && !module->isOurs ? module->name : GetMfyResourceName();
}

bool isCurrentLibrary(const QString& strModule)
{
    const QByteArray name = strModule.toUtf8();
    return isLibraryName({name.constData(), static_cast<std::size_t>(name.size())});
}
