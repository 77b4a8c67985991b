// A host program: knows nothing of the emulation library but loads plug-ins that use it.
#include "mainframe.h"

#include <QtCore/QCommandLineParser>
#include <QtWidgets/QApplication>

#include <dlfcn.h>

#include <cstdio>

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

int runWithPlugin(const QString& path, const QString& report)
{
    void* const plugin = dlopen(path.toLocal8Bit().constData(), RTLD_NOW | RTLD_LOCAL);
    if (!plugin) {
        std::fprintf(stderr, "vxdemo_host: %s\n", dlerror());
        return 2;
    }
    const auto load = reinterpret_cast<LoadFn>(requireSymbol(plugin, "VxDemoLoad"));
    const auto unload = reinterpret_cast<UnloadFn>(requireSymbol(plugin, "VxDemoUnload"));
    int result = 2;
    if (load && unload && load(report.toStdWString().c_str())) {
        result = QApplication::exec();
        unload();
    }
    dlclose(plugin);
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("VxDemo"));
    QApplication::setApplicationName(QStringLiteral("VxDemoHost"));

    QCommandLineParser options;
    options.addHelpOption();
    const QCommandLineOption plugin(QStringLiteral("load"), QStringLiteral("The plug-in to load."),
                                    QStringLiteral("so"));
    const QCommandLineOption report(QStringLiteral("report"),
                                    QStringLiteral("Where the plug-in writes what it handled."),
                                    QStringLiteral("file"));
    options.addOptions({plugin, report});
    options.process(app);

    CTolmMainFrame frame;
    frame.show();
    return runWithPlugin(options.value(plugin), options.value(report));
}
