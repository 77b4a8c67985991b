/// @file eventtranslation.h
/// Qt events as window messages, and back.
///
/// Positions in a message are the event's local position rounded to the nearest integer, halves
/// away from zero, packed as (y << 16) | (x & 0xFFFF). Values of 32 bits fill the 64-bit arguments
/// from below, zero-extended.
///
/// Differs from Win32: key messages carry modifier flags in bits 16 to 21 of lParam; WM_CONTEXTMENU
/// carries a local position; a press of an unknown button has the message number 0xFFFFFFFF.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/types.h>

class QEvent;
class QObject;

/// Fills @p msg from an event that @p receiver gets, with its time and the cursor position. `hwnd`
/// is null when the receiver is no widget. FALSE, with @p msg untouched, for a null argument and
/// for an event that is no message.
VXMFC_EXPORT BOOL vxQEventToMsg(QObject* receiver, QEvent* e, tagMSG* msg);

/// A new event for a message to @p w, owned by the caller: a Qt event where there is one, otherwise
/// a VxWinMsgEvent. Never null; a null @p w counts as a window without size or place.
VXMFC_EXPORT QEvent* vxMsgToQEvent(const QWidget* w, UINT message, WPARAM wParam, LPARAM lParam);

/// Posts to @p w what follows from a message: WM_SETCURSOR after a mouse message unless some window
/// holds the mouse, WM_CHAR or WM_SYSCHAR for each character of a key press. TRUE for these events,
/// FALSE for others and for a null argument.
VXMFC_EXPORT BOOL TranslateMessage(QObject* w, const QEvent* e, const tagMSG* msg);
