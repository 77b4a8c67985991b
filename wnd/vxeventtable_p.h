// Not part of the public interface.
//
// The road of an event, stage by stage, for those who need only part of it.
#pragma once

#include <VxMFCEmu/types.h>

class QEvent;
class QObject;

namespace vx::detail {

/// Fills message, wParam, lParam and hwnd of @p msg; false as vxQEventToMsg() says. Asks nothing of
/// the X server but for releases in a window's frame, which have no position of their own.
bool translateEvent(QObject* receiver, QEvent* e, tagMSG* msg);

/// Fills time and pt of @p msg. The cursor position may cost a round trip to the X server.
void stampMessage(tagMSG* msg);

/// Whether the message has a Qt event. For others vxMsgToQEvent() gives a VxWinMsgEvent, which a
/// sender can as well put on its stack; a key press without a Qt key is given one too.
bool hasQtEvent(UINT message);

} // namespace vx::detail
