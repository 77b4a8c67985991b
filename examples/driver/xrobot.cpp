#include "xrobot.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>

#include <cstring>

XRobot::XRobot() : m_display(XOpenDisplay(nullptr), &XCloseDisplay) {}

void XRobot::move(QPoint global)
{
    XTestFakeMotionEvent(m_display.get(), -1, global.x(), global.y(), CurrentTime);
    XSync(m_display.get(), False);
}

void XRobot::click(QPoint global, unsigned button)
{
    move(global);
    XTestFakeButtonEvent(m_display.get(), button, True, CurrentTime);
    XTestFakeButtonEvent(m_display.get(), button, False, CurrentTime);
    XSync(m_display.get(), False);
}

void XRobot::type(unsigned long keysym)
{
    const unsigned code = XKeysymToKeycode(m_display.get(), keysym);
    XTestFakeKeyEvent(m_display.get(), code, True, CurrentTime);
    XTestFakeKeyEvent(m_display.get(), code, False, CurrentTime);
    XSync(m_display.get(), False);
}

unsigned long XRobot::findWindow(const char* title)
{
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned count = 0;
    unsigned long found = 0;
    if (!XQueryTree(m_display.get(), DefaultRootWindow(m_display.get()), &root, &parent, &children,
                    &count))
        return 0;
    for (unsigned i = 0; i < count && !found; ++i) {
        char* name = nullptr;
        if (XFetchName(m_display.get(), children[i], &name) && name) {
            if (std::strcmp(name, title) == 0)
                found = children[i];
            XFree(name);
        }
    }
    XFree(children);
    return found;
}

bool XRobot::resizeWindow(const char* title, QSize size)
{
    const Window window = findWindow(title);
    if (!window)
        return false;
    XResizeWindow(m_display.get(), window, static_cast<unsigned>(size.width()),
                  static_cast<unsigned>(size.height()));
    XSync(m_display.get(), False);
    return true;
}

bool XRobot::closeWindow(const char* title)
{
    const Window window = findWindow(title);
    if (!window)
        return false;
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(m_display.get(), "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] =
        static_cast<long>(XInternAtom(m_display.get(), "WM_DELETE_WINDOW", False));
    event.xclient.data.l[1] = CurrentTime;
    XSendEvent(m_display.get(), window, False, NoEventMask, &event);
    XSync(m_display.get(), False);
    return true;
}

QImage XRobot::screenshot()
{
    const int screen = DefaultScreen(m_display.get());
    const int width = DisplayWidth(m_display.get(), screen);
    const int height = DisplayHeight(m_display.get(), screen);
    XImage* const grab =
        XGetImage(m_display.get(), DefaultRootWindow(m_display.get()), 0, 0,
                  static_cast<unsigned>(width), static_cast<unsigned>(height), AllPlanes, ZPixmap);
    if (!grab)
        return {};
    const QImage view(reinterpret_cast<const uchar*>(grab->data), width, height,
                      grab->bytes_per_line, QImage::Format_RGB32);
    QImage copy = view.copy();
    XDestroyImage(grab);
    return copy;
}
