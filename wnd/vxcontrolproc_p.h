// Not part of the public interface. What a control answers to the messages of its class (EM_*,
// CB_*, PBM_*, ...) when no handler takes them.
#pragma once

#include <VxMFCEmu/types.h>
#include <VxMFCEmu/wnd/winmessages.h>

class VxWinMsgEvent;

namespace vx::detail {

/// Whether the number is one of those that control classes give a meaning to. From WM_USER on
/// applications use the same numbers for windows of their own.
constexpr bool isControlMessage(UINT message)
{
    return (message >= 0x00B0 && message <= 0x01B3) || message >= 0x0400;
}

/// The messages of a window's text.
constexpr bool isTextMessage(UINT message)
{
    return message >= WM_SETTEXT && message <= WM_GETTEXTLENGTH;
}

/// Has the functions of windowtext.h write the event's result; false for other messages.
bool answerTextMessage(QWidget* pWidget, VxWinMsgEvent& e);

/// Has a control object of the widget's own class, made for this one message, write the event's
/// result. False when the class is none of a control, and for messages that it does not know.
bool answerAsControl(QWidget* pWidget, VxWinMsgEvent& e);

/// Sends a message to a control, or one of a text to a widget, that no window is bound to, and has
/// it answered as above when neither a filter nor the widget itself writes a result. False, sending
/// nothing, for messages and widgets that need no such help.
bool sendToUnbound(QWidget* pWidget, VxWinMsgEvent& e);

/// Posts a message so that its control answers it also when no window is bound to it by then.
/// False, posting nothing, for messages and widgets that need no such help.
bool postToControl(QWidget* pWidget, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace vx::detail
