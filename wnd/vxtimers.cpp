#include <VxMFCEmu/wnd/timers.h>

#include "wnd/vxhandlerexception_p.h"

#include <VxMFCEmu/wnd/globaleventhandler.h>
#include <VxMFCEmu/wnd/hostwindows.h>
#include <VxMFCEmu/wnd/winmessages.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace {

constexpr int kShortest = 10; // milliseconds, for an interval of 0

void tick(QWidget* pWidget, UINT_PTR id, TIMERPROC pfnTimer)
{
    if (pfnTimer) {
        // Seconds since 1970 are the same in every time zone, whose lookup would cost more than all
        // the rest of a tick.
        const qint64 now = QDateTime::currentSecsSinceEpoch();
        vx::detail::callGuarded([&] { pfnTimer(pWidget, WM_TIMER, id, static_cast<DWORD>(now)); });
    } else if (pWidget) {
        QTimerEvent event(static_cast<int>(id));
        QCoreApplication::sendEvent(pWidget, &event);
    }
}

} // namespace

UINT_PTR QGlobalEventHandler::SetTimer(QWidget* pWidget, UINT_PTR id, UINT elapse,
                                       TIMERPROC pfnTimer)
{
    const int interval =
        elapse == 0 ? kShortest : static_cast<int>(std::min<UINT>(elapse, INT_MAX));
    const auto it = m_timers.find(static_cast<int>(id));
    if (it != m_timers.end() && it->second->isActive()) {
        if (it->second->interval() != interval)
            it->second->setInterval(interval);
        return id;
    }
    if (it != m_timers.end())
        m_timers.erase(it); // somebody stopped it; it stays with its window
    if (!pWidget)
        pWidget = TolmGetMainFrame();
    auto* const pTimer = new QTimer(pWidget ? static_cast<QObject*>(pWidget) : this);
    m_timers[static_cast<int>(id)] = pTimer;
    connect(pTimer, &QTimer::timeout, pTimer,
            [window = QPointer<QWidget>(pWidget), id, pfnTimer] { tick(window, id, pfnTimer); });
    // Whoever deletes a window's children deletes its timers.
    connect(pTimer, &QObject::destroyed, this, &QGlobalEventHandler::OnTimerDestroyed);
    if (pWidget) {
        connect(pWidget, &QObject::destroyed, this, &QGlobalEventHandler::OnTimerWindowDestroyed,
                Qt::UniqueConnection);
    }
    pTimer->start(interval);
    return id;
}

bool QGlobalEventHandler::KillTimer(UINT_PTR id)
{
    const auto it = m_timers.find(static_cast<int>(id));
    if (it == m_timers.end())
        return false;
    QTimer* const pTimer = it->second;
    m_timers.erase(it);
    delete pTimer;
    return true;
}

// The window's children are still there when it says that it ends.
void QGlobalEventHandler::OnTimerWindowDestroyed(QObject* pWidget)
{
    const auto timers = pWidget->findChildren<QTimer*>();
    for (const QTimer* pTimer : timers) {
        const auto it = FindTimer(pTimer);
        // Intended: -1 for a timer of somebody else's, which ends the one with that id.
        KillTimer(static_cast<UINT_PTR>(it == m_timers.end() ? -1 : it->first));
    }
}

void QGlobalEventHandler::OnTimerDestroyed(QObject* pTimer)
{
    if (const auto it = FindTimer(pTimer); it != m_timers.end())
        m_timers.erase(it);
}

std::map<int, QTimer*>::iterator QGlobalEventHandler::FindTimer(const QObject* pTimer)
{
    return std::find_if(m_timers.begin(), m_timers.end(),
                        [pTimer](const auto& entry) { return entry.second == pTimer; });
}

UINT_PTR SetTimer_E(QWidget* pWidget, UINT_PTR nIDEvent, UINT uElapse, TIMERPROC pfnTimer)
{
    return GetGlobalEventHandler()->SetTimer(pWidget, nIDEvent, uElapse, pfnTimer);
}

BOOL KillTimer_E(QWidget*, UINT_PTR nIDEvent)
{
    return GetGlobalEventHandler()->KillTimer(nIDEvent) ? TRUE : FALSE;
}
