// Works the demo as a user would and checks what its window reported.
#include "support/xinput.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRect>
#include <QtCore/QRegularExpression>
#include <QtCore/QSize>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>

#include <X11/keysym.h>

#include <cstdio>
#include <functional>
#include <utility>
#include <vector>

namespace {

constexpr char kTitle[] = "Emulation demo";
constexpr int kLimitMs = 15000;
constexpr QSize kLaterSize(900, 580);

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

using Steps = std::vector<std::pair<std::function<void()>, QString>>;

bool perform(const Report& report, const Steps& steps)
{
    bool passed = true;
    for (const auto& [action, expected] : steps) {
        action();
        passed = report.waitFor(expected).hasMatch() && passed;
    }
    return passed;
}

/// Uses the tracker as a user would.
bool useTracker(const Report& report, unsigned long window)
{
    const QRect tracker = geometryOf(report, "tracker");
    const QPoint origin = tracker.topLeft();
    const QPoint plot = geometryOf(report, "plot").center();
    const QPoint post = geometryOf(report, "post").center();
    const int growth = kLaterSize.width() - geometryOf(report, "frame").width();
    return perform(
        report,
        {{[] {}, QStringLiteral("run 1, tracker on #E6EEF8")},
         {[&] { vxtest::movePointer(origin + QPoint(20, 25)); },
          QStringLiteral("WM_MOUSEMOVE 20,25")},
         {[] {}, QStringLiteral("WM_SETCURSOR for the tracker")},
         {[&] { click(origin + QPoint(30, 40)); }, QStringLiteral("WM_LBUTTONDOWN 30,40 flags 1")},
         {[] { vxtest::typeKey(XK_a); }, QStringLiteral("WM_KEYDOWN 0x41")},
         {[] {}, QStringLiteral("WM_CHAR 'a'")},
         {[] { vxtest::typeKey(XK_F5); }, QStringLiteral("WM_KEYDOWN 0x74")},
         {[&] { click(origin + QPoint(50, 60), 3); },
          QStringLiteral("WM_RBUTTONDOWN 50,60 flags 2")},
         {[&] { click(origin + QPoint(50, 60), 4); }, QStringLiteral("WM_MOUSEWHEEL 120")},
         {[&] { click(post); }, QStringLiteral("WM_TRACKER_PING 1")},
         {[&] { click(plot + QPoint(60, -40), 4); }, QStringLiteral("plot of \\d+ items at 125 %")},
         {[&] { click(plot + QPoint(60, -40), 5); }, QStringLiteral("plot of \\d+ items at 100 %")},
         {[&] { click(plot, 3); }, QStringLiteral("plot of 44 items at 100 %")},
         {[&] { click(plot, 3); }, QStringLiteral("plot of 108 items at 100 %")},
         {[&] { vxtest::resizeWindow(window, kLaterSize); },
          QStringLiteral("WM_SIZE %1,\\d+").arg(tracker.width() + growth)}});
}

/// The second run finds the window as the first one left it, and the registry counts on.
bool findAgain(const Report& report, unsigned long)
{
    const bool sameSize = geometryOf(report, "frame").size() == kLaterSize;
    std::printf("%s  the window has its size again\n", sameSize ? "ok     " : "FAILED ");
    const QPoint post = geometryOf(report, "post").center();
    return perform(report, {{[] {}, QStringLiteral("run 2, tracker on #E6EEF8")},
                            {[&] { click(post); }, QStringLiteral("WM_TRACKER_PING 2")}}) &&
           sameSize;
}

/// Starts the host with its plug-in, works it, and ends it by its close button.
bool runHost(const QCommandLineParser& options, bool (*use)(const Report&, unsigned long))
{
    const QString reportPath = options.value(QStringLiteral("report"));
    const Report report(reportPath);
    QProcess host;
    host.setProcessChannelMode(QProcess::ForwardedChannels);
    host.start(options.value(QStringLiteral("host")),
               {QStringLiteral("--load"), options.value(QStringLiteral("load")),
                QStringLiteral("--report"), reportPath});
    bool passed = report.waitFor(QStringLiteral("ready")).hasMatch();
    const unsigned long window = passed ? vxtest::findWindow(kTitle) : 0;
    passed = window && use(report, window);
    if (window) {
        vxtest::screenshot()
            .copy(QRect(QPoint(0, 0), kLaterSize))
            .save(options.value(QStringLiteral("screenshot")));
        vxtest::closeWindow(window);
        passed = report.waitFor(QStringLiteral("WM_DESTROY")).hasMatch() && passed;
    }
    const bool ended = host.waitForFinished(kLimitMs) &&
                       host.exitStatus() == QProcess::NormalExit && host.exitCode() == 0;
    std::printf("%s  host ended\n", ended ? "ok     " : "FAILED ");
    if (!ended)
        host.kill();
    return passed && ended;
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
    // Settings of the user are neither read nor changed.
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    return runHost(options, &useTracker) && runHost(options, &findAgain) ? 0 : 1;
}
