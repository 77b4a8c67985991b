// Not part of the public interface.
#pragma once

#include <VxMFCEmu/types.h>

namespace vx::detail {

/// Whether the message has a Qt event. For others vxMsgToQEvent() gives a VxWinMsgEvent, which a
/// sender can as well put on its stack; a key press without a Qt key is given one too.
bool hasQtEvent(UINT message);

} // namespace vx::detail
