#include "support/xinput.h"

#include "support/waiting.h"

#include <QtGui/QGuiApplication>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

#include <memory>

namespace vxtest {
namespace {

Display* display()
{
    static const std::unique_ptr<Display, int (*)(Display*)> connection(XOpenDisplay(nullptr),
                                                                        &XCloseDisplay);
    return connection.get();
}

} // namespace

bool onX11() { return QGuiApplication::platformName() == QLatin1String("xcb") && display(); }

bool showAndActivate(QWidget* window)
{
    window->show();
    window->activateWindow();
    window->raise();
    return waitUntil([window] { return window->isActiveWindow() && window->isVisible(); });
}

void movePointer(QWidget* widget, QPoint local)
{
    const QPoint global = widget->mapToGlobal(local);
    XTestFakeMotionEvent(display(), -1, global.x(), global.y(), CurrentTime);
    XSync(display(), False);
}

void setButton(unsigned button, bool down)
{
    XTestFakeButtonEvent(display(), button, down ? True : False, CurrentTime);
    XSync(display(), False);
}

void click(QWidget* widget, QPoint local, unsigned button)
{
    movePointer(widget, local);
    setButton(button, true);
    setButton(button, false);
}

void setKey(unsigned long keysym, bool down)
{
    XTestFakeKeyEvent(display(), XKeysymToKeycode(display(), keysym), down ? True : False,
                      CurrentTime);
    XSync(display(), False);
}

void typeKey(unsigned long keysym)
{
    setKey(keysym, true);
    setKey(keysym, false);
}

void resizeWindow(QWidget* window, QSize size)
{
    XResizeWindow(display(), window->winId(), static_cast<unsigned>(size.width()),
                  static_cast<unsigned>(size.height()));
    XSync(display(), False);
}

void closeWindow(QWidget* window)
{
    XEvent e{};
    e.xclient.type = ClientMessage;
    e.xclient.window = window->winId();
    e.xclient.message_type = XInternAtom(display(), "WM_PROTOCOLS", False);
    e.xclient.format = 32;
    e.xclient.data.l[0] = static_cast<long>(XInternAtom(display(), "WM_DELETE_WINDOW", False));
    XSendEvent(display(), window->winId(), False, NoEventMask, &e);
    XSync(display(), False);
}

} // namespace vxtest
