// What the kernel knows of a running process.
#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <unistd.h>

namespace soak {

struct Sample
{
    double seconds;
    long residentKiB;
    int files;
};

inline Sample sampleOf(qint64 pid, double seconds)
{
    const QString folder = QStringLiteral("/proc/%1/").arg(pid);
    QFile statm(folder + QStringLiteral("statm"));
    long pages = 0;
    if (statm.open(QIODevice::ReadOnly))
        pages = statm.readAll().split(' ').value(1).toLong();
    const QDir files(folder + QStringLiteral("fd"));
    return {seconds, pages * sysconf(_SC_PAGESIZE) / 1024,
            static_cast<int>(files.entryList(QDir::Files | QDir::System).size())};
}

} // namespace soak
