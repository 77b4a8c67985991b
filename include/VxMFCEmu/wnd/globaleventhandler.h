/// @file globaleventhandler.h
/// What exists once per process: message functions, keyboard hooks, timers, the temporary-object
/// pool, and the connections to idle time.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/wnd/timers.h>

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <map>
#include <vector>

class QTimer;

/// A message function: sees messages of the host's main windows; true consumes the message.
using VxWinMsgFn = bool (*)(tagMSG*);
/// A keyboard hook procedure: code (always 0), virtual key, key flags; above 0 consumes the key.
using HOOKPROC = LRESULT (*)(int, WPARAM, LPARAM);
/// The handle of a hook is its procedure.
using HHOOK = HOOKPROC;

/// Sees events before their windows do, and owns the temporary objects and timers.
class VXMFC_EXPORT QGlobalEventHandler : public QObject
{
    Q_OBJECT

public:
    QGlobalEventHandler() = default;

    /// Offers the events of the host's main windows to the hooks, last added first, and then to the
    /// message functions, first added first. Filters the application object only while it has any.
    bool eventFilter(QObject* watched, QEvent* e) override;

    /// Whether there is neither a message function nor a hook.
    bool IsEmptyHookChain() const { return m_hooks.isEmpty() && m_msgFns.isEmpty(); }
    /// @{
    /// Adds or removes a hook or a message function; removing gives whether it was there.
    void AppendHook(HOOKPROC proc);
    bool RemoveHook(HOOKPROC proc);
    void AppendMsgFn(VxWinMsgFn fn);
    bool RemoveMsgFn(VxWinMsgFn fn);
    /// @}

    /// Takes ownership of @p pObject until the next idle time without a running host command.
    void AppendTempObject(QObject* pObject);
    /// Deletes every object of the pool in the order in which they came.
    void RemoveTempObject();

    /// @{
    /// As SetTimer_E() and KillTimer_E().
    UINT_PTR SetTimer(QWidget* pWidget, UINT_PTR id, UINT elapse, TIMERPROC pfnTimer);
    bool KillTimer(UINT_PTR id);
    /// @}

public Q_SLOTS:
    /// Clears the pool unless the host is running a command.
    void OnEnterIdle();

private:
    void UpdateAppFilter();
    void OnTimerWindowDestroyed(QObject* pWidget);
    void OnTimerDestroyed(QObject* pTimer);
    std::map<int, QTimer*>::iterator FindTimer(const QObject* pTimer);
    bool CallHooks(const QPointer<QObject>& receiver, const tagMSG& msg) const;
    bool CallMsgFns(const QPointer<QObject>& receiver, tagMSG* pMsg) const;

    QList<HOOKPROC> m_hooks;
    QList<VxWinMsgFn> m_msgFns;
    std::vector<QPointer<QObject>> m_tempObjects;
    std::map<int, QTimer*> m_timers; // by id
    QPointer<QObject> m_pFiltered;   // the application object while it is filtered
};

/// The one handler of the process, made on first use.
VXMFC_EXPORT QGlobalEventHandler* GetGlobalEventHandler();

/// Adds @p pObject to the temporary-object pool, which owns it from then on; null is ignored.
VXMFC_EXPORT void AppendTempObjectPool(QObject* pObject);
/// Deletes the temporary objects now.
VXMFC_EXPORT void ClearTempObjectPool();

/// Calls @p pObject's slot OnEnterIdle() each time the GUI thread's event loop is about to wait. An
/// object is connected once however often it asks; without an event loop nothing happens.
VXMFC_EXPORT void ConnectIdleSlot(QObject* pObject);
/// Ends that.
VXMFC_EXPORT void DisconnectIdleSlot(QObject* pObject);

/// Adds a message function at the end of the list; null is ignored.
VXMFC_EXPORT void AppendWinMsgFn(VxWinMsgFn fn);
/// Removes it; nothing when it is not there.
VXMFC_EXPORT void RemoveWinMsgFn(VxWinMsgFn fn);

/// @{
/// A kind of hook.
inline constexpr int WH_KEYBOARD = 2;
inline constexpr int WH_GETMESSAGE = 3;
inline constexpr int WH_CALLWNDPROC = 4;
inline constexpr int WH_CBT = 5;
inline constexpr int WH_MOUSE = 7;
/// @}

/// Adds a keyboard hook and returns it as its own handle. Differs from Win32: only WH_KEYBOARD is
/// known, for the host's main windows; any other id and a null procedure give null.
VXMFC_EXPORT HHOOK SetWindowsHookEx_E(int idHook, HOOKPROC proc);
/// Removes a hook; FALSE when it was not there.
VXMFC_EXPORT BOOL UnhookWindowsHookEx_E(HHOOK hHook);
/// Always 0: the chain is walked by the library itself.
VXMFC_EXPORT LRESULT CallNextHookEx_E(HHOOK hHook, int nCode, WPARAM wParam, LPARAM lParam);
