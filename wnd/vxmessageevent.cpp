#include <VxMFCEmu/wnd/messageevent.h>

VxWinMsgEvent::~VxWinMsgEvent() = default;
