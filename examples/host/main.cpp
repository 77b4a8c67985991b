// A host program: knows nothing of the emulation library but loads plug-ins that use it.
#include "mainframe.h"

#include <QtCore/QCommandLineParser>
#include <QtWidgets/QApplication>

#include <dlfcn.h>

#include <cstdio>
#include <list>
#include <memory>

namespace {

using LoadFn = int (*)(const wchar_t* reportPath);
using UnloadFn = void (*)();

void* requireSymbol(void* plugin, const char* name)
{
    void* const symbol = dlsym(plugin, name);
    if (!symbol)
        std::fprintf(stderr, "vxdemo_host: the plug-in has no %s: %s\n", name, dlerror());
    return symbol;
}

/// A loaded plug-in; unloaded with its object.
class Plugin
{
public:
    bool load(const QString& path, const QString& report)
    {
        m_module.reset(dlopen(path.toLocal8Bit().constData(), RTLD_NOW | RTLD_LOCAL));
        if (!m_module) {
            std::fprintf(stderr, "vxdemo_host: %s\n", dlerror());
            return false;
        }
        const auto load = reinterpret_cast<LoadFn>(requireSymbol(m_module.get(), "VxDemoLoad"));
        const auto unload =
            reinterpret_cast<UnloadFn>(requireSymbol(m_module.get(), "VxDemoUnload"));
        if (!load || !unload || !load(report.toStdWString().c_str()))
            return false;
        m_unload = unload;
        return true;
    }

    ~Plugin()
    {
        if (m_unload)
            m_unload();
    }

    Plugin() = default;
    Q_DISABLE_COPY_MOVE(Plugin)

private:
    std::unique_ptr<void, int (*)(void*)> m_module{nullptr, &dlclose};
    UnloadFn m_unload = nullptr;
};

int runWithPlugins(const QStringList& paths, const QString& report)
{
    std::list<Plugin> plugins;
    for (const QString& path : paths)
        if (!plugins.emplace_back().load(path, report))
            return 2;
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("VxDemo"));
    QApplication::setApplicationName(QStringLiteral("VxDemoHost"));

    QCommandLineParser options;
    options.addHelpOption();
    const QCommandLineOption plugin(QStringLiteral("load"),
                                    QStringLiteral("A plug-in to load; may be repeated."),
                                    QStringLiteral("so"));
    const QCommandLineOption report(QStringLiteral("report"),
                                    QStringLiteral("Where the plug-in writes what it handled."),
                                    QStringLiteral("file"));
    options.addOptions({plugin, report});
    options.process(app);

    CTolmMainFrame frame;
    frame.show();
    return runWithPlugins(options.values(plugin), options.value(report));
}
