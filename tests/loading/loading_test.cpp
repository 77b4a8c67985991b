// loading_test (library-first | plugin-first) LIBRARY PLUGIN
// Whatever is loaded first, the registry is there before any class record, a plug-in's classes
// work, and unloading leaves nothing behind.
#include <VxMFCEmu/core/runtimeclass.h>

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

using Registry = decltype(g_mapCreateMethod);

void require(bool condition, const char* what)
{
    if (condition)
        return;
    const char* error = dlerror();
    std::fprintf(stderr, "failed: %s%s%s\n", what, error ? ": " : "", error ? error : "");
    std::exit(1);
}

void* load(const char* path)
{
    void* module = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    require(module, "load a module");
    return module;
}

template <typename Symbol>
Symbol* find(void* module, const char* name)
{
    void* symbol = dlsym(module, name);
    require(symbol, name);
    return reinterpret_cast<Symbol*>(symbol);
}

bool isLoaded(const char* path)
{
    void* module = dlopen(path, RTLD_NOW | RTLD_NOLOAD);
    if (module)
        dlclose(module);
    return module;
}

void unload(void* module) { require(dlclose(module) == 0, "unload a module"); }

/// The plug-in's class is registered and works.
void usePlugin(void* plugin, const Registry& registry)
{
    const QMetaObject* meta = find<const QMetaObject*()>(plugin, "pluginMetaObject")();
    require(registry.count(meta) == 1, "the plug-in's class is registered");
    require(find<bool()>(plugin, "pluginWorks")(), "the plug-in's class works");
}

/// Library, plug-in; the library sees the plug-in go and can take it in again.
void libraryFirst(const char* libraryPath, const char* pluginPath)
{
    void* library = load(libraryPath);
    const Registry& registry = *find<Registry>(library, "g_mapCreateMethod");
    const Registry before = registry;
    auto* const classOfName =
        find<CRuntimeClass_E*(const char*)>(library, "_ZN15CRuntimeClass_E8FromNameEPKc");
    require(!before.empty(), "the library's own classes are registered");

    for (int round = 0; round < 2; ++round) {
        void* plugin = load(pluginPath);
        usePlugin(plugin, registry);
        require(classOfName("CEnginePart"), "archives know the plug-in's class");
        unload(plugin);
        require(!isLoaded(pluginPath), "the plug-in is gone");
        require(registry == before, "the registry is what it was before the plug-in");
        require(!classOfName("CEnginePart"), "archives have forgotten the plug-in's class");
    }
    unload(library);
    require(!isLoaded(libraryPath), "the library is gone");
}

/// The plug-in brings the library along; it works on when the library's own handle is given back.
void pluginFirst(const char* libraryPath, const char* pluginPath)
{
    for (int round = 0; round < 2; ++round) {
        require(!isLoaded(libraryPath), "the library is not there before the plug-in");
        void* plugin = load(pluginPath);
        void* library = load(libraryPath);
        const Registry& registry = *find<Registry>(library, "g_mapCreateMethod");
        usePlugin(plugin, registry);
        unload(library);
        usePlugin(plugin, registry);
        unload(plugin);
        require(!isLoaded(pluginPath), "the plug-in is gone");
        require(!isLoaded(libraryPath), "the library has gone with its last user");
    }
}

} // namespace

int main(int argc, char** argv)
{
    require(argc == 4, "three arguments");
    const bool first = std::strcmp(argv[1], "library-first") == 0;
    (first ? libraryFirst : pluginFirst)(argv[2], argv[3]);
}
