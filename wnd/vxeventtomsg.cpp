#include "wnd/vxeventtable_p.h"

#include <VxMFCEmu/wnd/eventtranslation.h>
#include <VxMFCEmu/wnd/input.h>
#include <VxMFCEmu/wnd/messageevent.h>
#include <VxMFCEmu/wnd/wincodes.h>
#include <VxMFCEmu/wnd/windowgeometry.h>
#include <VxMFCEmu/wnd/winmessages.h>

#include "wnd/vxrowindex_p.h"

#include <QtCore/QDateTime>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace vx::detail {
namespace {

void set(tagMSG& msg, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    msg.message = message;
    msg.wParam = wParam;
    msg.lParam = lParam;
}

LPARAM pack(long x, long y)
{
    return (static_cast<UINT>(y) << 16) | (static_cast<UINT>(x) & 0xFFFFU);
}

// Halves away from zero; Qt's own rounding takes -2.5 to -2, and std::lround() is a call.
long rounded(double value)
{
    const double bounded = std::clamp(value, -2147483648.0, 2147483647.0);
    const int whole = static_cast<int>(bounded);
    const double rest = bounded - whole;
    return rest >= 0.5 ? whole + 1L : rest <= -0.5 ? whole - 1L : whole;
}

LPARAM pack(const QPointF& point) { return pack(rounded(point.x()), rounded(point.y())); }

UINT keyFlags(const QInputEvent& e) { return qt_kb_flag_2_flag(static_cast<UINT>(e.modifiers())); }

template <UINT Message>
void plain(QObject*, const QEvent&, tagMSG& msg)
{
    set(msg, Message);
}

void timer(QObject*, const QEvent& e, tagMSG& msg)
{
    set(msg, WM_TIMER, static_cast<UINT>(static_cast<const QTimerEvent&>(e).timerId()));
}

constexpr UINT noMessage = 0xFFFFFFFF;

template <UINT LeftMessage>
UINT buttonMessage(Qt::MouseButton button)
{
    static_assert(WM_RBUTTONDOWN - WM_LBUTTONDOWN == 3 && WM_MBUTTONDOWN - WM_LBUTTONDOWN == 6);
    switch (button) {
    case Qt::LeftButton:
        return LeftMessage;
    case Qt::RightButton:
        return LeftMessage + 3;
    case Qt::MiddleButton:
        return LeftMessage + 6;
    default:
        return noMessage;
    }
}

void mouse(UINT message, const QMouseEvent& e, tagMSG& msg)
{
    const UINT flags = keyFlags(e) | qt_mouse_flag_2_flag(static_cast<UINT>(e.buttons()));
    set(msg, message, flags, pack(e.localPos()));
}

template <UINT LeftMessage>
void mouseButton(QObject*, const QEvent& e, tagMSG& msg)
{
    const auto& event = static_cast<const QMouseEvent&>(e);
    mouse(buttonMessage<LeftMessage>(event.button()), event, msg);
}

void mouseMove(QObject*, const QEvent& e, tagMSG& msg)
{
    mouse(WM_MOUSEMOVE, static_cast<const QMouseEvent&>(e), msg);
}

template <UINT Message, UINT AltMessage, UINT Transition>
void key(QObject*, const QEvent& e, tagMSG& msg)
{
    const auto& event = static_cast<const QKeyEvent&>(e);
    // Not keyFlags(): a key event corrects its modifiers for the modifier key that it reports.
    const UINT flags = qt_kb_flag_2_flag(static_cast<UINT>(event.modifiers()));
    set(msg, flags & MK_ALT ? AltMessage : Message,
        static_cast<UINT>(qt_key_to_ansi_vk(event.key())), (flags << 16) | Transition);
}

void resize(QObject*, const QEvent& e, tagMSG& msg)
{
    const QSize size = static_cast<const QResizeEvent&>(e).size();
    set(msg, WM_SIZE, 0,
        (static_cast<UINT>(size.height()) << 16) | static_cast<UINT>(size.width()));
}

template <UINT State>
void activate(QObject* receiver, const QEvent&, tagMSG& msg)
{
    set(msg, WM_ACTIVATE, State, reinterpret_cast<LPARAM>(receiver));
}

void wheel(QObject*, const QEvent& e, tagMSG& msg)
{
    const auto& event = static_cast<const QWheelEvent&>(e);
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    const int delta = event.delta(); // of the axis that turned; angleDelta() would leave the choice
    QT_WARNING_POP
    set(msg, WM_MOUSEWHEEL, static_cast<UINT>(delta) << 16, pack(event.position()));
}

void contextMenu(QObject* receiver, const QEvent& e, tagMSG& msg)
{
    // Intended: the position is local, unlike that of Win32.
    const QPoint at = static_cast<const QContextMenuEvent&>(e).pos();
    set(msg, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(receiver), pack(at.x(), at.y()));
}

template <UINT Message>
void hover(QObject*, const QEvent& e, tagMSG& msg)
{
    const auto& event = static_cast<const QHoverEvent&>(e);
    set(msg, Message, keyFlags(event), pack(event.posF()));
}

/// Which part of the frame of @p w the cursor is on; the caption for what is no widget.
UINT hitTest(const QWidget* w, const tagPOINT& cursor)
{
    if (!w)
        return HTCAPTION;
    const QMargins margins = w->contentsMargins();
    const int left = w->x() + margins.left();
    const int top = w->y() + w->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, w);
    const int right = w->x() + w->width() - margins.right();
    const int bottom = w->y() + w->height() - margins.bottom();
    const bool beside = cursor.y > top && cursor.y < bottom;
    if (beside && cursor.x > right)
        return HTRIGHT;
    if (cursor.y > bottom)
        return HTBOTTOM;
    return beside && cursor.x <= left ? HTLEFT : HTCAPTION;
}

void frameRelease(QObject* receiver, const QEvent& e, tagMSG& msg)
{
    tagPOINT cursor{};
    GetCursorPos_E(&cursor);
    const bool left = static_cast<const QMouseEvent&>(e).button() == Qt::LeftButton;
    set(msg, left ? WM_NCLBUTTONUP : noMessage, hitTest(qobject_cast<QWidget*>(receiver), cursor),
        pack(cursor.x, cursor.y));
}

void message(QObject*, const QEvent& e, tagMSG& msg)
{
    const auto& event = static_cast<const VxWinMsgEvent&>(e);
    set(msg, event.message, event.wParam, event.lParam);
}

struct EventRow
{
    QEvent::Type id;
    void (*fill)(QObject* receiver, const QEvent& e, tagMSG& msg);
};

// clang-format off
constexpr EventRow eventRows[] = {
    {QEvent::Timer,                           &timer},
    {QEvent::MouseButtonPress,                &mouseButton<WM_LBUTTONDOWN>},
    {QEvent::MouseButtonRelease,              &mouseButton<WM_LBUTTONUP>},
    {QEvent::MouseButtonDblClick,             &mouseButton<WM_LBUTTONDBLCLK>},
    {QEvent::MouseMove,                       &mouseMove},
    {QEvent::KeyPress,                        &key<WM_KEYDOWN, WM_SYSKEYDOWN, 0x00000001>},
    {QEvent::KeyRelease,                      &key<WM_KEYUP, WM_SYSKEYUP, 0x80000001>},
    {QEvent::Leave,                           &plain<WM_MOUSELEAVE>},
    {QEvent::Paint,                           &plain<WM_PAINT>},
    {QEvent::Resize,                          &resize},
    {QEvent::Close,                           &plain<WM_CLOSE>},
    {QEvent::WindowActivate,                  &activate<WA_ACTIVE>},
    {QEvent::WindowDeactivate,                &activate<WA_INACTIVE>},
    {QEvent::ShowToParent,                    &plain<WM_SHOWWINDOW>},
    {QEvent::Wheel,                           &wheel},
    {QEvent::ContextMenu,                     &contextMenu},
    {QEvent::HoverEnter,                      &hover<WM_MOUSEHOVER>},
    {QEvent::HoverLeave,                      &hover<WM_MOUSELEAVE>},
    {QEvent::NonClientAreaMouseButtonRelease, &frameRelease},
};
// clang-format on
static_assert(std::size(eventRows) == 19); // and the message event, whose type is above the index
constexpr auto rowOfType = indexRows<256>(eventRows);

} // namespace

bool translateEvent(QObject* receiver, QEvent* e, tagMSG* msg)
{
    if (!receiver || !e || !msg)
        return false;
    const auto type = static_cast<std::size_t>(e->type());
    if (type < rowOfType.size()) {
        if (rowOfType[type] == 0)
            return false;
        eventRows[rowOfType[type] - 1].fill(receiver, *e, *msg);
    } else if (type == VxWinMsgEvent::EventType) {
        message(receiver, *e, *msg);
    } else {
        return false;
    }
    msg->hwnd = receiver->isWidgetType() ? static_cast<QWidget*>(receiver) : nullptr;
    return true;
}

void stampMessage(tagMSG* msg)
{
    // The clock of QDateTime without its time zone, which costs more than the rest of a message.
    msg->time = static_cast<DWORD>(QDateTime::currentMSecsSinceEpoch() / 1000);
    GetCursorPos_E(&msg->pt);
}

} // namespace vx::detail

BOOL vxQEventToMsg(QObject* receiver, QEvent* e, tagMSG* msg)
{
    if (!vx::detail::translateEvent(receiver, e, msg))
        return FALSE;
    vx::detail::stampMessage(msg);
    return TRUE;
}
