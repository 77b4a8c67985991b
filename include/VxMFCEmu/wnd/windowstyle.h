/// @file windowstyle.h
/// Window styles given as text, which a layout description leaves in the property "mfcStyle".
///
/// A style is found by a case-sensitive search in the text, so that a name is also found inside a
/// longer one: "WS_MINIMIZEBOX" holds "WS_MINIMIZE" and minimizes the window too. Qt hides a window
/// whose flags change; show it afterwards. WS_CHILD makes a Qt::SubWindow, which the Tab key does
/// not leave: take it out of the styles of single controls.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/types.h>

#include <QtCore/QString>

/// Applies the property of the widget and then those of its direct children, as far as they have
/// it: of each the dialog styles first, then the window styles. Null is ignored.
VXMFC_EXPORT void setupStyle(QWidget* pWidget);

/// Applies DS_MODALFRAME and DS_CENTER (on the parent, or on the screen the widget is on).
VXMFC_EXPORT void setupDialogStyleData(QWidget* pWidget, const QString& strStyle);

/// Applies the WS_* styles.
VXMFC_EXPORT void setupWindowStyleData(QWidget* pWidget, const QString& strStyle);
