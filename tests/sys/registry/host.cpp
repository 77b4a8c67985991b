// registry_host PLUGIN COMMAND...: names the application, then loads the plug-in and with it the
// library, as a host does. registry_linked COMMAND...: has the library from the start.
#include <QtCore/QCoreApplication>

#include <dlfcn.h>

extern "C" int runScript(int argc, char** argv);

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Vertex"));
    QCoreApplication::setApplicationName(QStringLiteral("Host"));
#ifdef LINKED
    return runScript(argc - 1, argv + 1);
#else
    void* const plugin = argc > 1 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : nullptr;
    void* const script = plugin ? dlsym(plugin, "runScript") : nullptr;
    return script ? reinterpret_cast<decltype(&runScript)>(script)(argc - 2, argv + 2) : 2;
#endif
}
