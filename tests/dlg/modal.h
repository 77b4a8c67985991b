// Works the windows of calls that do not return before their window is closed.
#pragma once

#include "support/test.h"
#include "support/xinput.h"

#include <QtCore/QScopeGuard>

/// What @p run gives; meanwhile @p act works the window of @p find, once that has the keyboard.
template <typename Run, typename Find, typename Act>
auto runAndWork(Run run, Find find, Act act)
{
    bool acted = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        auto* const pWindow = acted ? nullptr : find(); // whose dialog may be gone by then
        if (!pWindow || !pWindow->isVisible())
            return;
        acted = true;
        ASSERT_TRUE(vxtest::showAndActivate(pWindow));
        act(*pWindow);
    });
    poll.start(5);
    const auto check = qScopeGuard([&] { EXPECT_TRUE(acted); });
    return run();
}

/// The same for a message box; one that stays open is closed a while later.
template <typename Run, typename Act>
auto withBox(Run run, Act act)
{
    const auto find = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); };
    return runAndWork(run, find, [&](QMessageBox& box) {
        act(box);
        QTimer::singleShot(1000, &box, [&box] { box.done(-1); });
    });
}

constexpr auto closeBox = [](QMessageBox& box) { box.close(); };
