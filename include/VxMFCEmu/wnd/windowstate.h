/// @file windowstate.h
/// Whether windows exist, are visible, enabled, active, have the focus or the pointer.
///
/// A null window gives FALSE or null.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/types.h>

/// Shows (SW_SHOWNORMAL, SW_SHOW) or hides (SW_HIDE) the window; every other command does nothing.
/// TRUE for a window. Differs from Win32, which returns whether the window was visible.
///
/// A top-level window keeps its position while hidden, in the property "lastPos", and gets it back.
/// Showing a top-level window that is not the active one runs the event loop once.
VXMFC_EXPORT BOOL ShowWindow_E(HWND hWnd, int nCmdShow);

/// Whether the address is that of a live widget; it is safe to ask for one that has been deleted. A
/// new widget at the same address is taken for the old one.
VXMFC_EXPORT BOOL IsWindow_E(HWND hWnd);
/// Whether the window and all its parents are shown.
VXMFC_EXPORT BOOL IsWindowVisible_E(HWND hWnd);
/// Whether the window itself is enabled; a disabled parent does not count.
VXMFC_EXPORT BOOL IsWindowEnabled_E(HWND hWnd);
/// Enables or disables the window; TRUE when it was disabled before.
VXMFC_EXPORT BOOL EnableWindow_E(HWND hWnd, BOOL bEnable);
/// Minimizes the window; it is neither closed nor destroyed.
VXMFC_EXPORT BOOL CloseWindow_E(HWND hWnd);
/// Paints the window now. Differs from Win32: also what is not invalid.
VXMFC_EXPORT BOOL UpdateWindow_E(HWND hWnd);

/// Gives the window the keyboard focus and activates its top-level window; returns the window that
/// had the focus. Null takes the focus away and returns null (differs from Win32, which returns the
/// window that had it). The window manager may delay the activation, and the focus with it.
VXMFC_EXPORT HWND SetFocus_E(HWND hWnd);
/// The window of this process with the keyboard focus.
VXMFC_EXPORT HWND GetFocus_E();

/// Activates the window's top-level window and returns the one that was active; null does nothing.
/// The window manager may delay the activation.
VXMFC_EXPORT HWND SetActiveWindow_E(HWND hWnd);
/// The active top-level window of this process.
VXMFC_EXPORT HWND GetActiveWindow_E();

/// Sends all mouse input to the window and returns the one that had the capture; null does nothing.
VXMFC_EXPORT HWND SetCapture_E(HWND hWnd);
/// The window with the mouse capture.
VXMFC_EXPORT HWND GetCapture_E();
/// Ends the capture; TRUE also when there was none.
VXMFC_EXPORT BOOL ReleaseCapture_E();
