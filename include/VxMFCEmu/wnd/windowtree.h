/// @file windowtree.h
/// Parents, children and controls.
///
/// A null window gives FALSE, 0 or null.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/types.h>

/// The parent that the window was bound with (property "parent") if that is a live widget,
/// otherwise the widget's own parent.
VXMFC_EXPORT HWND GetParent_E(HWND hWnd);

/// Moves the window below another parent, or to the top level for null, and returns the parent it
/// had. Position and visibility stay. Null, and no change, when the new parent is the window itself
/// or inside it.
VXMFC_EXPORT HWND SetParent_E(HWND hWndChild, HWND hWndNewParent);

/// The child that is stacked above the others; windows of their own do not count.
VXMFC_EXPORT HWND GetTopWindow_E(HWND hWnd);

/// Whether @p hWnd is inside @p hWndParent, at any depth within one top-level window.
VXMFC_EXPORT BOOL IsChild_E(HWND hWndParent, HWND hWnd);

/// The descendant whose object name the calling plug-in's id map has for @p nID; null for an id
/// that is not there. Differs from Win32, which looks among the direct children only.
VXMFC_EXPORT HWND GetDlgItem_E(HWND hDlg, int nID);

/// The id of the window's object name; 0 when the map does not have it.
VXMFC_EXPORT int GetDlgCtrlID_E(HWND hWnd);
