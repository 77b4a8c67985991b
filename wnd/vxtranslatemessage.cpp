#include <VxMFCEmu/wnd/eventtranslation.h>
#include <VxMFCEmu/wnd/input.h>
#include <VxMFCEmu/wnd/messageevent.h>
#include <VxMFCEmu/wnd/winmessages.h>

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

namespace {

void post(QObject* receiver, UINT message, WPARAM wParam, LPARAM lParam)
{
    QCoreApplication::postEvent(receiver, new VxWinMsgEvent(message, wParam, lParam));
}

void postSetCursor(QObject* w, const tagMSG& msg)
{
    if (!QWidget::mouseGrabber())
        post(w, WM_SETCURSOR, reinterpret_cast<WPARAM>(w), msg.message << 16);
}

/// The code point at @p i, which is left on its last unit.
uint codePointAt(const QString& text, int& i)
{
    const QChar unit = text.at(i);
    if (!unit.isSurrogate())
        return unit.unicode();
    if (unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
        return QChar::surrogateToUcs4(unit, text.at(++i));
    return QChar::ReplacementCharacter;
}

void postCharacters(QObject* w, const QKeyEvent& e)
{
    const UINT flags = qt_kb_flag_2_flag(static_cast<UINT>(e.modifiers()));
    const UINT message = flags & MK_ALT ? WM_SYSCHAR : WM_CHAR;
    const QString text = e.text();
    for (int i = 0; i < text.size(); ++i)
        post(w, message, codePointAt(text, i), (flags << 16) | 1U);
}

} // namespace

BOOL TranslateMessage(QObject* w, const QEvent* e, const tagMSG* msg)
{
    if (!w || !e || !msg)
        return FALSE;
    switch (e->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        postSetCursor(w, *msg);
        return TRUE;
    case QEvent::KeyPress:
        postCharacters(w, static_cast<const QKeyEvent&>(*e));
        return TRUE;
    default:
        return FALSE;
    }
}
