#include <VxMFCEmu/wnd/messageevent.h>

VxWinMsgEvent::~VxWinMsgEvent() = default;
VxMsgBoxEvent::~VxMsgBoxEvent() = default;
