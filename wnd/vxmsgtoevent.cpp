#include "wnd/vxmsgtoevent_p.h"

#include <VxMFCEmu/wnd/eventtranslation.h>
#include <VxMFCEmu/wnd/input.h>
#include <VxMFCEmu/wnd/messageevent.h>
#include <VxMFCEmu/wnd/winmessages.h>

#include "wnd/vxrowindex_p.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QWidget>

namespace vx::detail {
namespace {

// Makes the event of a message; null where the message has none with these arguments.
using EventMaker = QEvent* (*)(const QWidget* w, WPARAM wParam, LPARAM lParam);

QPoint pointOf(LPARAM lParam)
{
    const auto bits = static_cast<std::uint64_t>(lParam);
    return {LOWORD(bits), HIWORD(bits)};
}

QEvent* size(const QWidget* w, WPARAM, LPARAM lParam)
{
    const QPoint extent = pointOf(lParam);
    return new QResizeEvent({extent.x(), extent.y()}, w ? w->size() : QSize());
}

QEvent* keyDown(const QWidget*, WPARAM wParam, LPARAM)
{
    const int key = wParam < 256 ? ansi_vk_to_qt_key(static_cast<int>(wParam)) : -1;
    if (key == -1)
        return nullptr;
    return new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, QString::number(key));
}

// Intended: unlike a press, a release takes wParam for the Qt key itself.
QEvent* keyUp(const QWidget*, WPARAM wParam, LPARAM)
{
    return new QKeyEvent(QEvent::KeyRelease, static_cast<int>(wParam), Qt::NoModifier,
                         QString::number(wParam));
}

QString textOf(WPARAM character)
{
    if (character > QChar::LastValidCodePoint)
        return QString(QChar(QChar::ReplacementCharacter));
    const auto ucs4 = static_cast<uint>(character);
    if (!QChar::requiresSurrogates(ucs4))
        return QString(QChar(ucs4));
    const QChar pair[] = {QChar(QChar::highSurrogate(ucs4)), QChar(QChar::lowSurrogate(ucs4))};
    return QString(pair, 2);
}

QEvent* character(const QWidget*, WPARAM wParam, LPARAM)
{
    return new QKeyEvent(QEvent::KeyPress, static_cast<int>(wParam), Qt::NoModifier,
                         textOf(wParam));
}

template <QEvent::Type Type, Qt::MouseButton Button>
QEvent* mouse(const QWidget* w, WPARAM, LPARAM lParam)
{
    // All three positions are given: Qt would ask the X server for one that is missing.
    const QPoint local = pointOf(lParam);
    const QPoint inWindow = w ? w->mapTo(w->window(), local) : local;
    const QPoint onScreen = w ? w->mapToGlobal(local) : local;
    // Intended: the button counts as held even in its own release.
    return new QMouseEvent(Type, local, inWindow, onScreen, Button, Button, Qt::NoModifier);
}

struct MessageRow
{
    UINT id;
    EventMaker make;
};

// clang-format off
constexpr MessageRow messageRows[] = {
    {WM_SIZE,          &size},
    {WM_KEYDOWN,       &keyDown},
    {WM_KEYUP,         &keyUp},
    {WM_CHAR,          &character},
    {WM_SYSKEYDOWN,    &character},
    {WM_MOUSEMOVE,     &mouse<QEvent::MouseMove,           Qt::NoButton>},
    {WM_LBUTTONDOWN,   &mouse<QEvent::MouseButtonPress,    Qt::LeftButton>},
    {WM_LBUTTONUP,     &mouse<QEvent::MouseButtonRelease,  Qt::LeftButton>},
    {WM_LBUTTONDBLCLK, &mouse<QEvent::MouseButtonDblClick, Qt::LeftButton>},
    {WM_RBUTTONDOWN,   &mouse<QEvent::MouseButtonPress,    Qt::RightButton>},
    {WM_RBUTTONUP,     &mouse<QEvent::MouseButtonRelease,  Qt::RightButton>},
    {WM_RBUTTONDBLCLK, &mouse<QEvent::MouseButtonDblClick, Qt::RightButton>},
    {WM_MBUTTONDOWN,   &mouse<QEvent::MouseButtonPress,    Qt::MiddleButton>},
    {WM_MBUTTONUP,     &mouse<QEvent::MouseButtonRelease,  Qt::MiddleButton>},
    {WM_MBUTTONDBLCLK, &mouse<QEvent::MouseButtonDblClick, Qt::MiddleButton>},
};
// clang-format on
static_assert(std::size(messageRows) == 15);
constexpr auto rowOfMessage = indexRows<WM_MBUTTONDBLCLK + 1>(messageRows);

} // namespace

bool hasQtEvent(UINT message)
{
    return message < rowOfMessage.size() && rowOfMessage[message] != 0;
}

} // namespace vx::detail

QEvent* vxMsgToQEvent(const QWidget* w, UINT message, WPARAM wParam, LPARAM lParam)
{
    using namespace vx::detail;
    if (hasQtEvent(message))
        if (QEvent* e = messageRows[rowOfMessage[message] - 1].make(w, wParam, lParam))
            return e;
    return new VxWinMsgEvent(message, wParam, lParam);
}
