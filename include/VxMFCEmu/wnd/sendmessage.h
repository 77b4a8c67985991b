/// @file sendmessage.h
/// Sending and posting messages.
///
/// A message becomes the Qt event of the same meaning where one exists: WM_SIZE, the key messages
/// and the client-area mouse messages. Any other travels as a VxWinMsgEvent.
///
/// Differs from Win32: key and mouse messages sent always give 0. WM_KEYDOWN is mapped from the
/// virtual key to a Qt key, WM_KEYUP carries its wParam as the Qt key as it stands. Both are
/// intended.
#pragma once

#include <VxMFCEmu/types.h>

/// Sends a message and waits for it. The handler's result; 0 when nothing handled it and for null.
VXMFC_EXPORT LRESULT SendMessage_E(QWidget* pWidget, UINT message, WPARAM wParam = 0,
                                   LPARAM lParam = 0);
/// Posts a message, to be delivered by the event loop. FALSE for null.
VXMFC_EXPORT BOOL PostMessage_E(QWidget* pWidget, UINT message, WPARAM wParam = 0,
                                LPARAM lParam = 0);
