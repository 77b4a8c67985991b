/// @file windowgeometry.h
/// Where windows are, in pixels: of the screen for top-level windows, of the parent for others.
///
/// A null window gives FALSE, 0 or null, and so does a null target. Differs from Win32: the size of
/// a top-level window that is set is that of its client area, without the frame of the window
/// manager, while its position is that of the frame.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/types.h>

/// @{
/// Special windows to stand behind in SetWindowPos_E(); compared only, never followed.
inline const HWND HWND_TOP = nullptr;
inline const HWND HWND_BOTTOM = reinterpret_cast<HWND>(static_cast<UINT_PTR>(1));
inline const HWND HWND_TOPMOST = reinterpret_cast<HWND>(static_cast<INT_PTR>(-1));
inline const HWND HWND_NOTOPMOST = reinterpret_cast<HWND>(static_cast<INT_PTR>(-2));
/// @}

/// Stores the rectangle of the whole window, with its frame, in screen coordinates.
VXMFC_EXPORT BOOL GetWindowRect_E(HWND hWnd, LPRECT prc);
/// Stores the client area: left and top are 0.
VXMFC_EXPORT BOOL GetClientRect_E(HWND hWnd, LPRECT prc);

/// Resizes and moves the window; @p bRepaint schedules a repaint.
VXMFC_EXPORT BOOL MoveWindow_E(HWND hWnd, int x, int y, int cx, int cy, BOOL bRepaint);
/// The same with a rectangle; FALSE for a null one.
VXMFC_EXPORT BOOL MoveWindow_E(HWND hWnd, LPCRECT prc, BOOL bRepaint = TRUE);

/// Resizes, moves, shows or hides, and restacks, in that order, as the SWP_* flags tell.
///
/// SWP_NOACTIVATE takes the keyboard focus away from the window if it has it; SWP_SHOWWINDOW and
/// SWP_HIDEWINDOW together show and then hide. SWP_NOZORDER and SWP_NOOWNERZORDER each keep the
/// stacking order, as a null @p hWndInsertAfter does; otherwise the window goes under that sibling.
/// HWND_BOTTOM lowers the window, HWND_TOPMOST raises it once, HWND_NOTOPMOST does nothing.
VXMFC_EXPORT BOOL SetWindowPos_E(HWND hWnd, HWND hWndInsertAfter, int x, int y, int cx, int cy,
                                 UINT uFlags);

/// @{
/// Turns client coordinates into screen coordinates.
VXMFC_EXPORT BOOL ClientToScreen_E(HWND hWnd, LPPOINT ppt);
VXMFC_EXPORT BOOL ClientToScreen_E(HWND hWnd, LPRECT prc);
/// @}
/// @{
/// Turns screen coordinates into client coordinates.
VXMFC_EXPORT BOOL ScreenToClient_E(HWND hWnd, LPPOINT ppt);
VXMFC_EXPORT BOOL ScreenToClient_E(HWND hWnd, LPRECT prc);
/// @}

/// @{
/// Turns @p nCount points in client coordinates of @p hWndFrom into those of @p hWndTo; null stands
/// for the screen. The result is the distance by which they moved: x in the low, y in the high
/// word.
VXMFC_EXPORT int MapWindowPoints_E(HWND hWndFrom, HWND hWndTo, LPPOINT ppt, UINT nCount);
VXMFC_EXPORT int MapWindowPoints_E(HWND hWndFrom, HWND hWndTo, LPRECT prc);
/// @}

/// Turns dialog units into pixels: 4 units are the average character width of the dialog's font, 8
/// its height.
VXMFC_EXPORT BOOL MapDialogRect_E(HWND hDlg, LPRECT prc);

/// The window of this process at a screen position; a disabled one gives way to its parent. Null
/// when there is none.
VXMFC_EXPORT HWND WindowFromPoint_E(tagPOINT pt);

/// Dots per inch of the window's screen as fonts see them.
VXMFC_EXPORT UINT GetDpiForWindow_E(HWND hWnd);

/// The pointer's position on the screen.
VXMFC_EXPORT BOOL GetCursorPos_E(LPPOINT ppt);
/// The position of the pointer on the screen.
VXMFC_EXPORT BOOL SetCursorPos_E(int x, int y);

/// The widget that stands for the whole desktop. Owned by Qt; null before the application object.
VXMFC_EXPORT HWND GetDesktopWindow_E();
