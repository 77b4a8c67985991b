/// @file messageevent.h
/// The events that carry what Qt has no event for: a window message, and a message box to show.
///
/// Threads: made in any thread, delivered in the receiver's.
#pragma once

#include <VxMFCEmu/types.h>

#include <QtCore/QEvent>

/// A window message on its way to a window, and its result on the way back.
class VXMFC_EXPORT VxWinMsgEvent : public QEvent
{
public:
    static constexpr QEvent::Type EventType = static_cast<QEvent::Type>(QEvent::User + 128);

    VxWinMsgEvent(UINT nMessage, WPARAM nWParam, LPARAM nLParam)
        : QEvent(EventType), message(nMessage), wParam(nWParam), lParam(nLParam)
    {
    }
    ~VxWinMsgEvent() override;

    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    LRESULT result = 0; ///< written by the window that handles the message
};
