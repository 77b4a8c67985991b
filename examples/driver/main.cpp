// Works the demo as a user would and checks what its window reported.
#include "controls.h"
#include "support/waiting.h"
#include "support/xinput.h"
#include "user.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtCore/QTemporaryDir>
#include <QtGui/QColor>

#include <X11/keysym.h>

#include <cstdio>

namespace {

constexpr char kTitle[] = "Emulation demo";
constexpr int kLimitMs = 15000;
constexpr QSize kLaterSize(900, 580);
constexpr QRect kWindow(QPoint(0, 0), kLaterSize);

/// Enters a value that the dialog does not take, and then one in its place.
bool correctSpacing(unsigned long dialog, const QString& picture)
{
    typeText("300");
    vxtest::typeKey(XK_Return);
    const unsigned long box = waitForWindowOver(dialog);
    if (!check(box, "a message box is over the settings"))
        return false;
    savePicture(picture, kWindow);
    vxtest::typeKey(XK_Return);
    if (!check(waitForWindowOver(box) == dialog, "the message box is closed"))
        return false;
    typeText("25"); // the refused text is selected
    return true;
}

/// Gives the settings new values by keys alone, and leaves them in all the other ways.
bool useSettings(Report& report, unsigned long window, const QString& pictures)
{
    const QPoint button = report.geometryOf("settings").center();
    const QPoint grid = report.geometryOf("grid").center();
    const QRect plot = report.geometryOf("plot");
    const QString stored =
        QStringLiteral("stored: title 'gears', paper 1, grid 1 of 25 mm, labels 0, lines 1");
    const QString status =
        QStringLiteral("status: Grid 25 mm%1, Labels, Fit off, 108 items, 100 %");
    const QString shown = QStringLiteral("settings shown");
    const auto open = [&] { click(button); };

    const auto enterAll = [&] {
        const unsigned long dialog = waitForWindowOver(window);
        typeText("gears");
        typeKeys({XK_Tab, XK_Down, XK_Tab, XK_space, XK_Tab});
        const bool corrected = correctSpacing(dialog, pictures.arg(QStringLiteral("box")));
        typeKeys({XK_Tab, XK_space, XK_Tab, XK_Right});
        return corrected;
    };
    const auto isPaperBlue = [corner = plot.bottomRight() - QPoint(8, 8)] {
        return vxtest::screenshot().pixelColor(corner) == QColor(16, 46, 92);
    };
    const auto clickDefaultsAndCancel = [&] {
        waitForWindowOver(window);
        savePicture(pictures.arg(QStringLiteral("settings")), kWindow);
        click(report.geometryOf("defaultsButton").center());
        click(report.geometryOf("Cancel").center());
    };
    const auto typeAndEscape = [&] {
        waitForWindowOver(window);
        typeKeys({XK_x, XK_Escape});
    };
    const auto clickOk = [&] {
        waitForWindowOver(window);
        click(report.geometryOf("OK").center());
    };
    return perform(report, {{open, shown}}) && enterAll() &&
           perform(report,
                   {{[] { vxtest::typeKey(XK_Return); }, QStringLiteral("settings accepted")},
                    {nullptr, stored},
                    {nullptr, status.arg(QStringLiteral(" on"))}}) &&
           check(vxtest::waitUntil(isPaperBlue), "the paper is blue") &&
           perform(report, {{open, shown},
                            {clickDefaultsAndCancel, QStringLiteral("settings cancelled")},
                            {nullptr, stored},
                            {open, shown},
                            {typeAndEscape, QStringLiteral("settings cancelled")},
                            {nullptr, stored},
                            {open, shown},
                            {clickOk, QStringLiteral("settings accepted")},
                            {nullptr, stored},
                            {[&] { click(grid); }, status.arg(QString())},
                            {[&] { click(grid); }, status.arg(QStringLiteral(" on"))}});
}

/// Uses the tracker and the plot as a user would.
bool useTracker(Report& report, unsigned long window)
{
    const QRect tracker = report.geometryOf("tracker");
    const QPoint origin = tracker.topLeft();
    const QPoint plot = report.geometryOf("plot").center();
    const QPoint post = report.geometryOf("post").center();
    const QPoint save = report.geometryOf("save").center();
    const QPoint open = report.geometryOf("open").center();
    const QPoint fit = report.geometryOf("fit").center();
    const int growth = kLaterSize.width() - report.geometryOf("frame").width();
    return perform(
        report,
        {{[&] { vxtest::movePointer(origin + QPoint(20, 25)); },
          QStringLiteral("WM_MOUSEMOVE 20,25")},
         {nullptr, QStringLiteral("WM_SETCURSOR for the tracker")},
         {[&] { click(origin + QPoint(30, 40)); }, QStringLiteral("WM_LBUTTONDOWN 30,40 flags 1")},
         {[] { vxtest::typeKey(XK_a); }, QStringLiteral("WM_KEYDOWN 0x41")},
         {nullptr, QStringLiteral("WM_CHAR 'a'")},
         {[] { vxtest::typeKey(XK_F5); }, QStringLiteral("WM_KEYDOWN 0x74")},
         {[&] { click(origin + QPoint(50, 60), 3); },
          QStringLiteral("WM_RBUTTONDOWN 50,60 flags 2")},
         {[&] { click(origin + QPoint(50, 60), 4); }, QStringLiteral("WM_MOUSEWHEEL 120")},
         {[&] { click(post); }, QStringLiteral("WM_TRACKER_PING 1")},
         {[&] { click(plot + QPoint(60, -40), 4); }, QStringLiteral("plot of \\d+ items at 125 %")},
         {nullptr, QStringLiteral("status: .*, Fit, 108 items, 125 %")},
         {[&] { click(plot + QPoint(60, -40), 5); }, QStringLiteral("plot of \\d+ items at 100 %")},
         {nullptr, QStringLiteral("status: .*, Fit off, 108 items, 100 %")},
         {[&] { click(plot, 4); }, QStringLiteral("plot of \\d+ items at 125 %")},
         {[&] { click(fit); }, QStringLiteral("status: .*, Fit off, 108 items, 100 %")},
         {[&] { click(plot, 3); }, QStringLiteral("plot of 44 items at 100 %")},
         {[&] { click(plot + QPoint(40, 0), 3); }, // elsewhere, or it is a double click
          QStringLiteral("plot of 108 items at 100 %")},
         {[&] { click(plot, 4); }, QStringLiteral("plot of 108 items at 125 %")},
         {[&] { click(save); }, QStringLiteral("saved 108 items")},
         {[&] { click(plot + QPoint(-40, 0), 3); }, QStringLiteral("plot of 44 items at 100 %")},
         {[&] { click(open); }, QStringLiteral("plot of 108 items at 125 %")},
         {[&] { click(fit); }, QStringLiteral("status: .*, Fit off, 108 items, 100 %")},
         {[&] { vxtest::resizeWindow(window, kLaterSize); },
          QStringLiteral("WM_SIZE %1,\\d+").arg(tracker.width() + growth)}});
}

// The places that are clicked are those from before the window is resized.
bool firstRun(Report& report, unsigned long window, const QString& pictures)
{
    return perform(report, {{nullptr, QStringLiteral("run 1, tracker on #E6EEF8")},
                            {nullptr, QStringLiteral("stored: title '', paper 0, grid 0 of 20 mm, "
                                                     "labels 1, lines 0")}}) &&
           useSettings(report, window, pictures) &&
           useControls(report, window, pictures.arg(QStringLiteral("controls"))) &&
           useTracker(report, window);
}

/// The second run finds the window and the saved plot as the first one left them, and the registry
/// counts on.
bool secondRun(Report& report, unsigned long, const QString&)
{
    const bool sameSize =
        check(report.geometryOf("frame").size() == kLaterSize, "the window has its size again");
    const QPoint post = report.geometryOf("post").center();
    const QPoint open = report.geometryOf("open").center();
    const QPoint labels = report.geometryOf("labels").center();
    return perform(report,
                   {{nullptr, QStringLiteral("run 2, tracker on #E6EEF8")},
                    {nullptr, QStringLiteral("stored: title 'gears', paper 1, grid 1 of 25 mm, "
                                             "labels 0, lines 1")},
                    {nullptr, QStringLiteral("status: Grid 25 mm on, Labels, Fit off, .*")},
                    {[&] { click(post); }, QStringLiteral("WM_TRACKER_PING 2")},
                    {[&] { click(open); }, QStringLiteral("plot of 108 items at 125 %")},
                    {[&] { click(labels); },
                     QStringLiteral("status: Grid 25 mm on, Labels on, .*")}}) &&
           sameSize;
}

/// Starts the host with its plug-in, works it, and ends it by its close button.
using Use = bool (*)(Report& report, unsigned long window, const QString& pictures);

bool runHost(const QCommandLineParser& options, Use use)
{
    const QString reportPath = options.value(QStringLiteral("report"));
    Report report(reportPath);
    const QString picture = options.value(QStringLiteral("screenshot"));
    // Beside it are those of the dialogs.
    QString pictures = picture;
    pictures.insert(pictures.lastIndexOf(QLatin1Char('.')), QStringLiteral("-%1"));
    QProcess host;
    host.setProcessChannelMode(QProcess::ForwardedChannels);
    host.start(options.value(QStringLiteral("host")),
               {QStringLiteral("--load"), options.value(QStringLiteral("load")),
                QStringLiteral("--report"), reportPath});
    bool passed = report.waitFor(QStringLiteral("ready")).hasMatch();
    const unsigned long window = passed ? vxtest::findWindow(kTitle) : 0;
    passed = window && use(report, window, pictures);
    if (window) {
        vxtest::screenshot().copy(kWindow).save(picture);
        vxtest::closeWindow(window);
        passed = report.waitFor(QStringLiteral("WM_DESTROY")).hasMatch() && passed;
    }
    const bool ended = host.waitForFinished(kLimitMs) &&
                       host.exitStatus() == QProcess::NormalExit && host.exitCode() == 0;
    check(ended, "host ended");
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
    return runHost(options, &firstRun) && runHost(options, &secondRun) ? 0 : 1;
}
