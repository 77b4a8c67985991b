// Works the demo as a user would and checks what its window reported.
#include "support/xinput.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRect>
#include <QtCore/QRegularExpression>
#include <QtCore/QThread>

#include <X11/keysym.h>

#include <cstdio>
#include <functional>

namespace {

constexpr char kTitle[] = "Emulation demo";
constexpr int kLimitMs = 15000;

class Report
{
public:
    explicit Report(const QString& path) : m_path(path) { QFile::remove(path); }

    /// Waits for a line that matches; an empty match when none comes in time.
    QRegularExpressionMatch waitFor(const QString& pattern) const
    {
        const QRegularExpression expression(QStringLiteral("^%1$").arg(pattern),
                                            QRegularExpression::MultilineOption);
        QElapsedTimer clock;
        clock.start();
        QRegularExpressionMatch match;
        while (!match.hasMatch() && !clock.hasExpired(kLimitMs)) {
            QFile file(m_path);
            if (file.open(QIODevice::ReadOnly))
                match = expression.match(QString::fromUtf8(file.readAll()));
            QThread::msleep(10);
        }
        std::printf("%s  %s\n", match.hasMatch() ? "ok     " : "MISSING", qUtf8Printable(pattern));
        return match;
    }

private:
    QString m_path;
};

QRect geometryOf(const Report& report, const char* part)
{
    const QRegularExpressionMatch match = report.waitFor(
        QStringLiteral("geometry %1 (\\d+) (\\d+) (\\d+) (\\d+)").arg(QLatin1String(part)));
    return {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt(),
            match.captured(4).toInt()};
}

void click(QPoint global, unsigned button = 1)
{
    vxtest::movePointer(global);
    vxtest::clickButton(button);
}

bool drive(const Report& report, const QString& screenshot)
{
    const QRect tracker = geometryOf(report, "tracker");
    const QRect post = geometryOf(report, "post");
    const bool ready = report.waitFor(QStringLiteral("ready")).hasMatch();
    const unsigned long window = vxtest::findWindow(kTitle);
    if (!ready || !window)
        return false;
    const QPoint origin = tracker.topLeft();
    const QByteArray size = "WM_SIZE \\d+," + QByteArray::number(tracker.height() + 20);

    const std::pair<std::function<void()>, const char*> steps[] = {
        {[&] { vxtest::movePointer(origin + QPoint(20, 25)); }, "WM_MOUSEMOVE 20,25"},
        {[] {}, "WM_SETCURSOR for the tracker"},
        {[&] { click(origin + QPoint(30, 40)); }, "WM_LBUTTONDOWN 30,40 flags 1"},
        {[&] { vxtest::typeKey(XK_a); }, "WM_KEYDOWN 0x41"},
        {[] {}, "WM_CHAR 'a'"},
        {[&] { vxtest::typeKey(XK_F5); }, "WM_KEYDOWN 0x74"},
        {[&] { click(origin + QPoint(50, 60), 3); }, "WM_RBUTTONDOWN 50,60 flags 2"},
        {[&] { click(origin + QPoint(50, 60), 4); }, "WM_MOUSEWHEEL 120"},
        {[&] { click(post.center()); }, "WM_TRACKER_PING 1"},
        {[&] { vxtest::resizeWindow(window, QSize(900, 580)); }, size.constData()},
    };
    bool passed = true;
    for (const auto& [action, expected] : steps) {
        action();
        passed = report.waitFor(QLatin1String(expected)).hasMatch() && passed;
    }
    passed = vxtest::screenshot().copy(0, 0, 900, 580).save(screenshot) && passed;
    vxtest::closeWindow(window);
    return report.waitFor(QStringLiteral("WM_DESTROY")).hasMatch() && passed;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCommandLineParser options;
    for (const char* name : {"host", "load", "report", "screenshot"})
        options.addOption({QLatin1String(name), QString(), QStringLiteral("file")});
    options.process(app);

    if (!vxtest::hasDisplay()) {
        std::fprintf(stderr, "vxdemo_driver: no X display\n");
        return 2;
    }
    const QString reportPath = options.value(QStringLiteral("report"));
    const Report report(reportPath);
    QProcess host;
    host.setProcessChannelMode(QProcess::ForwardedChannels);
    host.start(options.value(QStringLiteral("host")),
               {QStringLiteral("--load"), options.value(QStringLiteral("load")),
                QStringLiteral("--report"), reportPath});
    const bool passed = drive(report, options.value(QStringLiteral("screenshot")));
    const bool ended = host.waitForFinished(kLimitMs) &&
                       host.exitStatus() == QProcess::NormalExit && host.exitCode() == 0;
    std::printf("%s  host ended\n", ended ? "ok     " : "FAILED ");
    if (!ended)
        host.kill();
    return passed && ended ? 0 : 1;
}
