// Lets the host and its plug-ins run under random input, and looks whether they stay as they are:
// no crash, nothing on standard error, no growing memory, no files left open.
#include "examples/driver/user.h"
#include "input.h"
#include "process.h"
#include "support/waiting.h"
#include "support/xinput.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>

#include <X11/keysym.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int kPaceMs = 5;
constexpr int kActsPerRound = 150;
constexpr int kTitleBar = 28; // there the user could close what all the rest lies in
constexpr int kLimitMs = 20000;
constexpr long kMayGrowKiB = 3072;
constexpr int kMayGrowFiles = 2;

class Soak
{
public:
    Soak(const QCommandLineParser& options, QTemporaryDir& scratch);

    bool run();

private:
    bool round(soak::RandomUser& user, const QPoint& settings, const QPoint& controls);
    bool backToMain();
    bool closeHost();
    bool runsOn();
    bool judge() const;

    const QCommandLineParser& m_options;
    QString m_reportPath;
    Report m_report;
    QProcess m_host;
    QByteArray m_complaints;
    QElapsedTimer m_clock;
    unsigned long m_window = 0;
    std::vector<soak::Sample> m_samples;
};

Soak::Soak(const QCommandLineParser& options, QTemporaryDir& scratch)
    : m_options(options),
      m_reportPath(scratch.filePath(QStringLiteral("report.txt"))),
      m_report(m_reportPath)
{
    m_host.setProcessChannelMode(QProcess::ForwardedOutputChannel);
    QObject::connect(&m_host, &QProcess::readyReadStandardError,
                     [this] { m_complaints += m_host.readAllStandardError(); });
}

bool Soak::runsOn() { return m_host.state() == QProcess::Running && m_complaints.isEmpty(); }

/// Closes what is open by Escape, as often as that takes.
bool Soak::backToMain()
{
    return vxtest::waitUntil(
        [this] {
            const unsigned long top = vxtest::topWindow();
            vxtest::focusWindow(top ? top : m_window);
            if (top == m_window || !runsOn())
                return true;
            vxtest::typeKey(XK_Escape);
            QThread::msleep(20);
            return false;
        },
        kLimitMs);
}

/// A slow host may still be opening what input of before has asked for.
bool Soak::closeHost()
{
    return vxtest::waitUntil(
        [this] {
            if (m_host.state() == QProcess::NotRunning)
                return true;
            const unsigned long top = vxtest::topWindow();
            if (top == m_window) {
                vxtest::closeWindow(m_window);
            } else if (top) {
                vxtest::focusWindow(top);
                vxtest::typeKey(XK_Escape);
            }
            QThread::msleep(50);
            return false;
        },
        kLimitMs);
}

bool Soak::round(soak::RandomUser& user, const QPoint& settings, const QPoint& controls)
{
    if (const int choice = user.below(4); choice < 2)
        click(choice ? settings : controls);
    int acts = 0;
    QElapsedTimer pace;
    pace.start();
    const auto actInTime = [&] {
        for (; acts < kActsPerRound && pace.hasExpired(qint64{kPaceMs} * acts); ++acts)
            user.act();
        QThread::msleep(1);
        return acts == kActsPerRound || !runsOn();
    };
    return vxtest::waitUntil(actInTime, kLimitMs) && runsOn() && backToMain() && runsOn();
}

bool Soak::run()
{
    const auto seed = m_options.value(QStringLiteral("seed")).toUInt();
    const double seconds = m_options.value(QStringLiteral("seconds")).toDouble();
    std::printf("soak: %g s with seed %u\n", seconds, seed);
    QStringList arguments{QStringLiteral("--report"), m_reportPath};
    for (const QString& plugin : m_options.values(QStringLiteral("load")))
        arguments << QStringLiteral("--load") << plugin;
    m_host.start(m_options.value(QStringLiteral("host")), arguments);
    m_window = m_host.waitForStarted() && m_report.waitFor(QStringLiteral("ready")).hasMatch()
                   ? vxtest::findWindow("Emulation demo")
                   : 0;
    if (!check(m_window, "the host is ready"))
        return false;
    const QPoint settings = m_report.geometryOf("settings").center();
    const QPoint controls = m_report.geometryOf("controls").center();
    const QPoint clear = m_report.geometryOf("clear").center();
    soak::RandomUser user(seed, m_report.geometryOf("frame").adjusted(0, kTitleBar, 0, 0));

    m_clock.start();
    bool going = true;
    while (going && !m_clock.hasExpired(static_cast<qint64>(seconds * 1000))) {
        going = round(user, settings, controls);
        click(clear); // the list of reports is meant to grow
        vxtest::waitUntil([] { return false; }, 100);
        m_samples.push_back(soak::sampleOf(m_host.processId(), double(m_clock.elapsed()) / 1000));
    }
    const QString picture = m_options.value(QStringLiteral("screenshot"));
    if (!check(going, "all windows could be closed, and the host ran on") && !picture.isEmpty())
        vxtest::screenshot().save(picture);
    const bool ended = closeHost();
    if (!ended)
        m_host.kill();
    m_host.waitForFinished();
    m_complaints += m_host.readAllStandardError();
    std::printf("soak: the host %s with %d\n",
                m_host.exitStatus() == QProcess::NormalExit ? "ended" : "crashed",
                m_host.exitCode());
    std::fputs(m_complaints.constData(), stderr);
    const bool well = m_host.exitStatus() == QProcess::NormalExit && m_host.exitCode() == 0;
    // Each of them speaks for itself, whatever the others say.
    const bool results[] = {check(ended && well, "the host ended well"),
                            check(m_complaints.isEmpty(), "nothing came on standard error"), going,
                            judge()};
    return std::count(std::begin(results), std::end(results), false) == 0;
}

template <typename Member>
long medianOf(std::vector<soak::Sample>::const_iterator from,
              std::vector<soak::Sample>::const_iterator to, Member member)
{
    std::vector<long> values;
    std::transform(from, to, std::back_inserter(values),
                   [member](const soak::Sample& sample) { return long{sample.*member}; });
    std::nth_element(values.begin(), values.begin() + long(values.size() / 2), values.end());
    return values[values.size() / 2];
}

// The first third warms caches up; of the rest, the first quarter is held against the last one.
bool Soak::judge() const
{
    if (!check(m_samples.size() >= 8, "there are samples enough"))
        return false;
    const auto warm = m_samples.begin() + long(m_samples.size() / 3);
    const long quarter = std::max<long>(1, (m_samples.end() - warm) / 4);
    const auto late = m_samples.end() - quarter;
    const auto grown = [&](auto member) {
        return medianOf(late, m_samples.end(), member) - medianOf(warm, warm + quarter, member);
    };
    const long memory = grown(&soak::Sample::residentKiB), files = grown(&soak::Sample::files);
    const double minutes = (late->seconds - warm->seconds) / 60;
    std::printf("soak: %zu rounds; resident memory %ld KiB after the first, %ld KiB warm, %ld KiB "
                "at the end: %+ld KiB in %.1f min; open files %+ld\n",
                m_samples.size(), m_samples.front().residentKiB,
                medianOf(warm, warm + quarter, &soak::Sample::residentKiB),
                m_samples.back().residentKiB, memory, minutes, files);
    // A sanitizer keeps for a while what the program gave back.
    const bool flat = m_options.isSet(QStringLiteral("instrumented")) || memory <= kMayGrowKiB;
    const bool closed = check(files <= kMayGrowFiles, "no files are left open");
    return check(flat, "memory stays as it is") && closed;
}

} // namespace

int main(int argc, char** argv)
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    QCoreApplication app(argc, argv);
    QCommandLineParser options;
    for (const char* name : {"host", "load", "seconds", "seed", "screenshot"})
        options.addOption({QLatin1String(name), QString(), QStringLiteral("value")});
    options.addOption({QStringLiteral("instrumented"), QStringLiteral("Growth is no fault.")});
    options.process(app);

    if (!vxtest::hasDisplay()) {
        std::fprintf(stderr, "vxsoak: no X display\n");
        return 2;
    }
    // Settings of the user are neither read nor changed; without a folder for its files Qt
    // complains.
    QTemporaryDir scratch;
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, scratch.path().toLocal8Bit());
    return Soak(options, scratch).run() ? 0 : 1;
}
