// A folder of settings for one program alone.
#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <unistd.h>

namespace vxtest {

/// To be called first in main(): the library opens its settings before that, so the program starts
/// over with an empty folder beside it as the user's folder of settings.
inline void usePrivateSettings(char** argv)
{
    constexpr char kDone[] = "VXTEST_PRIVATE_SETTINGS";
    if (qEnvironmentVariableIsSet(kDone))
        return;
    const QString program = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    const QString folder = program + QStringLiteral(".settings");
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder));
    qputenv(kDone, "1");
    execv(QFile::encodeName(program).constData(), argv);
    qFatal("cannot start again");
}

} // namespace vxtest
