// What a user does, and what the demo's window reports of it.
#pragma once

#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtCore/QRegularExpression>
#include <QtCore/QString>

#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

class Report
{
public:
    explicit Report(const QString& path);

    /// Lines that are there by now count no more.
    void startOver();
    /// How many lines count.
    int lineCount() const;
    /// Waits for a line that matches and gives the last one; an empty match when none comes in
    /// time.
    QRegularExpressionMatch waitFor(const QString& pattern) const;
    /// Global rectangle of a part, of which it may have been told at any time.
    QRect geometryOf(const char* part) const;

private:
    QString textFrom(qint64 start) const;
    QRegularExpressionMatch waitFor(const QString& pattern, qint64 start) const;

    QString m_path;
    qint64 m_start = 0;
};

/// What to do, and what is to be reported from then on; nothing to do asks for another line.
using Steps = std::vector<std::pair<std::function<void()>, QString>>;

/// Up to the first step without its line.
bool perform(Report& report, const Steps& steps);
bool check(bool passed, const char* what);

void click(QPoint global, unsigned button = 1);
void typeText(const char* text);
void typeKeys(std::initializer_list<unsigned long> keysyms);

/// Waits until a window other than @p below lies over all and gives it the keyboard, as a window
/// manager would; 0 when none does.
unsigned long waitForWindowOver(unsigned long below);
/// Saves a part of the screen when it shows no more changes.
void savePicture(const QString& path, const QRect& area);
