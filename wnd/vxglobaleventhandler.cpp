// Message functions and keyboard hooks for the host's main windows.
#include <VxMFCEmu/wnd/globaleventhandler.h>

#include "wnd/vxeventtable_p.h"

#include <VxMFCEmu/wnd/input.h>

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>

#include <algorithm>
#include <cstring>

namespace {

constexpr int kIgnoredEvents[] = {11, 12, 14, 24, 25, 26, 103, 104, 127, 128, 1128};
constexpr const char* kHostClasses[] = {"CTolmView", "CTolmMainFrame", "VxQtCommandBar"};

bool isIgnored(QEvent::Type type)
{
    return std::find(std::begin(kIgnoredEvents), std::end(kIgnoredEvents), type) !=
           std::end(kIgnoredEvents);
}

bool isHostWindow(const QObject* pObject)
{
    const char* const name = pObject->metaObject()->className();
    return std::any_of(std::begin(kHostClasses), std::end(kHostClasses),
                       [name](const char* host) { return std::strcmp(name, host) == 0; });
}

} // namespace

QGlobalEventHandler* GetGlobalEventHandler()
{
    static QGlobalEventHandler handler;
    return &handler;
}

bool QGlobalEventHandler::eventFilter(QObject* watched, QEvent* e)
{
    if (!watched || !e || IsEmptyHookChain() || isIgnored(e->type()) || !isHostWindow(watched))
        return false;
    tagMSG msg;
    if (!vx::detail::translateEvent(watched, e, &msg))
        return false;
    const QPointer<QObject> receiver(watched); // any of the functions may delete it
    const bool isKey = e->type() == QEvent::KeyPress || e->type() == QEvent::KeyRelease;
    if (isKey && !IsRepeatFilterKeyEvent(static_cast<QKeyEvent*>(e)) && CallHooks(receiver, msg))
        return true;
    return CallMsgFns(receiver, &msg);
}

// Both walk a copy of their list, since a function may change the list, and call nothing that has
// been removed meanwhile. An event whose receiver is gone is consumed.

bool QGlobalEventHandler::CallHooks(const QPointer<QObject>& receiver, const tagMSG& msg) const
{
    const QList<HOOKPROC> hooks = m_hooks;
    return std::any_of(hooks.crbegin(), hooks.crend(), [&](HOOKPROC proc) {
        return (m_hooks.contains(proc) && proc(0, msg.wParam, msg.lParam) > 0) || !receiver;
    });
}

bool QGlobalEventHandler::CallMsgFns(const QPointer<QObject>& receiver, tagMSG* pMsg) const
{
    const QList<VxWinMsgFn> fns = m_msgFns;
    // Hooks see neither time nor cursor position; without a message function nobody does.
    if (!fns.isEmpty())
        vx::detail::stampMessage(pMsg);
    return std::any_of(fns.cbegin(), fns.cend(), [&](VxWinMsgFn fn) {
        return (m_msgFns.contains(fn) && fn(pMsg)) || !receiver;
    });
}

void QGlobalEventHandler::AppendHook(HOOKPROC proc)
{
    m_hooks.append(proc);
    UpdateAppFilter();
}

bool QGlobalEventHandler::RemoveHook(HOOKPROC proc)
{
    const bool removed = m_hooks.removeOne(proc);
    UpdateAppFilter();
    return removed;
}

void QGlobalEventHandler::AppendMsgFn(VxWinMsgFn fn)
{
    m_msgFns.append(fn);
    UpdateAppFilter();
}

bool QGlobalEventHandler::RemoveMsgFn(VxWinMsgFn fn)
{
    const bool removed = m_msgFns.removeOne(fn);
    UpdateAppFilter();
    return removed;
}

void QGlobalEventHandler::UpdateAppFilter()
{
    QCoreApplication* const pApp = QCoreApplication::instance();
    if (!pApp)
        return;
    // Installing it once more would move it before the filters that came after it.
    if (IsEmptyHookChain())
        pApp->removeEventFilter(this);
    else if (m_pFiltered != pApp)
        pApp->installEventFilter(this);
    m_pFiltered = IsEmptyHookChain() ? nullptr : pApp;
}

void AppendWinMsgFn(VxWinMsgFn fn)
{
    if (fn)
        GetGlobalEventHandler()->AppendMsgFn(fn);
}

void RemoveWinMsgFn(VxWinMsgFn fn) { GetGlobalEventHandler()->RemoveMsgFn(fn); }

HHOOK SetWindowsHookEx_E(int idHook, HOOKPROC proc)
{
    if (idHook != WH_KEYBOARD || !proc)
        return nullptr;
    GetGlobalEventHandler()->AppendHook(proc);
    return proc;
}

BOOL UnhookWindowsHookEx_E(HHOOK hHook)
{
    return GetGlobalEventHandler()->RemoveHook(hHook) ? TRUE : FALSE;
}

LRESULT CallNextHookEx_E(HHOOK, int, WPARAM, LPARAM) { return 0; }
