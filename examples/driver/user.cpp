#include "user.h"

#include "support/waiting.h"
#include "support/xinput.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QThread>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int kLimitMs = 15000;

} // namespace

Report::Report(const QString& path) : m_path(path) { QFile::remove(path); }

void Report::startOver() { m_start = QFile(m_path).size(); }

int Report::lineCount() const { return textFrom(m_start).count(QLatin1Char('\n')); }

QRegularExpressionMatch Report::waitFor(const QString& pattern) const
{
    return waitFor(pattern, m_start);
}

QRegularExpressionMatch Report::waitFor(const QString& pattern, qint64 start) const
{
    const QRegularExpression expression(QStringLiteral("^%1\n").arg(pattern),
                                        QRegularExpression::MultilineOption);
    QElapsedTimer clock;
    clock.start();
    QRegularExpressionMatch match;
    while (!match.hasMatch() && !clock.hasExpired(kLimitMs)) {
        for (auto all = expression.globalMatch(textFrom(start)); all.hasNext();)
            match = all.next();
        QThread::msleep(10);
    }
    std::printf("%s  %s\n", match.hasMatch() ? "ok     " : "MISSING", qUtf8Printable(pattern));
    if (!match.hasMatch())
        std::printf("instead came:\n%s", qUtf8Printable(textFrom(start)));
    return match;
}

QRect Report::geometryOf(const char* part) const
{
    const QRegularExpressionMatch match = waitFor(
        QStringLiteral("geometry %1 (\\d+) (\\d+) (\\d+) (\\d+)").arg(QLatin1String(part)), 0);
    return {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt(),
            match.captured(4).toInt()};
}

QString Report::textFrom(qint64 start) const
{
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) && file.seek(start) ? QString::fromUtf8(file.readAll())
                                                              : QString();
}

void click(QPoint global, unsigned button)
{
    vxtest::movePointer(global);
    vxtest::clickButton(button);
}

bool perform(Report& report, const Steps& steps)
{
    return std::all_of(steps.begin(), steps.end(), [&](const auto& step) {
        if (step.first) {
            report.startOver();
            step.first();
        }
        return report.waitFor(step.second).hasMatch();
    });
}

bool check(bool passed, const char* what)
{
    std::printf("%s  %s\n", passed ? "ok     " : "FAILED ", what);
    return passed;
}

void typeText(const char* text)
{
    for (; *text; ++text)
        vxtest::typeKey(static_cast<unsigned char>(*text)); // Latin 1 is its own keysyms
}

void typeKeys(std::initializer_list<unsigned long> keysyms)
{
    for (const unsigned long keysym : keysyms)
        vxtest::typeKey(keysym);
}

unsigned long waitForWindowOver(unsigned long below)
{
    unsigned long top = below;
    if (!vxtest::waitUntil([&] { return (top = vxtest::topWindow()) != below; }) || !top)
        return 0;
    vxtest::focusWindow(top);
    return top;
}

void savePicture(const QString& path, const QRect& area)
{
    QImage picture = vxtest::screenshot();
    vxtest::waitUntil([&] {
        QThread::msleep(100);
        const QImage previous = std::exchange(picture, vxtest::screenshot());
        return picture == previous;
    });
    picture.copy(area).save(path);
}
