// Works the demo as a user would and checks what its window reported.
#include "xrobot.h"

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

QRect rectOf(const QRegularExpressionMatch& match)
{
    return {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt(),
            match.captured(4).toInt()};
}

bool drive(XRobot& robot, const Report& report, const QString& screenshot)
{
    const QRect tracker =
        rectOf(report.waitFor(QStringLiteral("geometry tracker (\\d+) (\\d+) (\\d+) (\\d+)")));
    const QRect post =
        rectOf(report.waitFor(QStringLiteral("geometry post (\\d+) (\\d+) (\\d+) (\\d+)")));
    if (!report.waitFor(QStringLiteral("ready")).hasMatch())
        return false;

    const struct
    {
        std::function<void()> action;
        QString expected;
    } steps[] = {
        {[&] { robot.move(tracker.topLeft() + QPoint(20, 25)); },
         QStringLiteral("WM_MOUSEMOVE 20,25")},
        {[] {}, QStringLiteral("WM_SETCURSOR for the tracker")},
        {[&] { robot.click(tracker.topLeft() + QPoint(30, 40)); },
         QStringLiteral("WM_LBUTTONDOWN 30,40 flags 1")},
        {[&] { robot.type(XK_a); }, QStringLiteral("WM_KEYDOWN 0x41")},
        {[] {}, QStringLiteral("WM_CHAR 'a'")},
        {[&] { robot.type(XK_F5); }, QStringLiteral("WM_KEYDOWN 0x74")},
        {[&] { robot.click(tracker.topLeft() + QPoint(50, 60), 3); },
         QStringLiteral("WM_RBUTTONDOWN 50,60 flags 2")},
        {[&] { robot.click(tracker.topLeft() + QPoint(50, 60), 4); },
         QStringLiteral("WM_MOUSEWHEEL 120")},
        {[&] { robot.click(post.center()); }, QStringLiteral("WM_TRACKER_PING 1")},
        {[&] {
             robot.resizeWindow(kTitle, {900, 580});
         },
         QStringLiteral("WM_SIZE \\d+,%1").arg(tracker.height() + 20)},
    };
    bool passed = true;
    for (const auto& step : steps) {
        step.action();
        passed = report.waitFor(step.expected).hasMatch() && passed;
    }
    passed = robot.screenshot().copy(0, 0, 900, 580).save(screenshot) && passed;
    passed = robot.closeWindow(kTitle) && passed;
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

    XRobot robot;
    if (!robot.isConnected()) {
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
    const bool passed = drive(robot, report, options.value(QStringLiteral("screenshot")));
    const bool ended = host.waitForFinished(kLimitMs) &&
                       host.exitStatus() == QProcess::NormalExit && host.exitCode() == 0;
    std::printf("%s  host ended\n", ended ? "ok     " : "FAILED ");
    if (!ended)
        host.kill();
    return passed && ended ? 0 : 1;
}
