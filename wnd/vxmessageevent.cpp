#include <VxMFCEmu/wnd/messageevent.h>

#include <QtCore/QCoreApplication>

VxWinMsgEvent::~VxWinMsgEvent() = default;

namespace {

// Messages that are still posted when the library is unloaded: their destructors go with it.
struct PostedMessages
{
    ~PostedMessages()
    {
        if (!QCoreApplication::instance())
            return;
        QCoreApplication::removePostedEvents(nullptr, VxWinMsgEvent::EventType);
        QCoreApplication::removePostedEvents(nullptr, VxMsgBoxEvent::EventType);
    }
} postedMessages;

} // namespace
VxMsgBoxEvent::~VxMsgBoxEvent() = default;
