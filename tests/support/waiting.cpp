#include "support/waiting.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>

namespace vxtest {

bool waitUntil(const std::function<bool()>& done, int limitMs)
{
    QElapsedTimer clock;
    clock.start();
    while (!done()) {
        if (clock.hasExpired(limitMs))
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

void deliverPosted()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace vxtest
