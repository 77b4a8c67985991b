#include <VxMFCEmu/wnd/sendmessage.h>

#include "wnd/vxcontrolproc_p.h"
#include "wnd/vxmsgtoevent_p.h"

#include <VxMFCEmu/wnd/eventtranslation.h>
#include <VxMFCEmu/wnd/messageevent.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QWidget>

LRESULT SendMessage_E(QWidget* pWidget, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!pWidget)
        return 0;
    if (!vx::detail::hasQtEvent(message)) {
        VxWinMsgEvent event(message, wParam, lParam);
        const bool sent = vx::detail::sendToUnbound(pWidget, event) ||
                          QCoreApplication::sendEvent(pWidget, &event);
        return sent ? event.result : 0;
    }
    const std::unique_ptr<QEvent> event(vxMsgToQEvent(pWidget, message, wParam, lParam));
    const bool sent = QCoreApplication::sendEvent(pWidget, event.get());
    // A virtual key without a Qt key travels as a message, and then has a result.
    return sent && event->type() == VxWinMsgEvent::EventType
               ? static_cast<const VxWinMsgEvent&>(*event).result
               : 0;
}

BOOL PostMessage_E(QWidget* pWidget, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!pWidget)
        return FALSE;
    if (vx::detail::postToControl(pWidget, message, wParam, lParam))
        return TRUE;
    QCoreApplication::postEvent(pWidget, vxMsgToQEvent(pWidget, message, wParam, lParam));
    return TRUE;
}
