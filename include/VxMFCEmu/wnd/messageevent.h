/// @file messageevent.h
/// The events that carry what Qt has no event for: a window message, and a message box to show.
///
/// Threads: made in any thread, delivered in the receiver's.
#pragma once

#include <VxMFCEmu/text/cstring.h>
#include <VxMFCEmu/types.h>

#include <QtCore/QEvent>
#include <QtCore/QPointer>

#include <cstddef>

class CWnd_E;

/// A window message on its way to a window, and its result on the way back.
class VXMFC_EXPORT VxWinMsgEvent : public QEvent
{
public:
    /// The type of these events.
    static constexpr QEvent::Type EventType = static_cast<QEvent::Type>(QEvent::User + 128);

    /// A message that is still to be sent.
    VxWinMsgEvent(UINT nMessage, WPARAM nWParam, LPARAM nLParam)
        : QEvent(EventType), message(nMessage), wParam(nWParam), lParam(nLParam)
    {
    }
    ~VxWinMsgEvent() override;

    /// @{
    /// Blocks of messages that are over serve for the next ones, without a trip to the heap.
    static void* operator new(std::size_t size);
    static void operator delete(void* pBlock, std::size_t size);
    /// @}

    UINT message;       ///< its number
    WPARAM wParam;      ///< depends on the message
    LPARAM lParam;      ///< depends on the message
    LRESULT result = 0; ///< written by the window that handles the message
};

/// Asks a window to show a message box with an OK button; the window's filter consumes it.
class VXMFC_EXPORT VxMsgBoxEvent : public QEvent
{
public:
    /// The type of these events.
    static constexpr QEvent::Type EventType = static_cast<QEvent::Type>(QEvent::User + 129);

    /// The text and the title of the box.
    VxMsgBoxEvent(const CString_E& strText, const CString_E& strCaption);
    ~VxMsgBoxEvent() override;

    CString_E text;    ///< what the box says
    CString_E caption; ///< its title

private:
    friend class CWnd_E;
    QPointer<CWnd_E> m_pPoster; // which waits for it, until it ends
};
