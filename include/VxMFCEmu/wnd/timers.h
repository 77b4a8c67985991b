/// @file timers.h
/// Win32 timers over QTimer.
///
/// Differs from Win32: timer ids are process-wide. The window takes no part in the key, so that a
/// second window with the same id shares the first one's timer. A tick is sent at once when it is
/// due; it does not wait behind other messages.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/types.h>

class QWidget;

/// Called at each tick: the window, WM_TIMER, the timer's id, seconds since 1970.
using TIMERPROC = void (*)(QWidget*, UINT, UINT_PTR, DWORD);

/// Starts a timer that ticks every @p uElapse milliseconds, 10 when that is 0, until KillTimer_E()
/// or the end of the window. A tick calls @p pfnTimer, or without it sends the window WM_TIMER with
/// the id in wParam. A null window stands for the main frame. Returns the id.
///
/// Intended: an id that is running gets the new interval and nothing else; it stays with the window
/// and the procedure of the first call.
VXMFC_EXPORT UINT_PTR SetTimer_E(QWidget* pWidget, UINT_PTR nIDEvent, UINT uElapse,
                                 TIMERPROC pfnTimer);

/// Ends the timer; FALSE when there is none with this id. The window is not looked at.
VXMFC_EXPORT BOOL KillTimer_E(QWidget* pWidget, UINT_PTR nIDEvent);
