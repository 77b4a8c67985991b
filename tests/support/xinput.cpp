#include "support/xinput.h"

#include "support/waiting.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

namespace vxtest {
namespace {

Display* display()
{
    static const std::unique_ptr<Display, int (*)(Display*)> connection(XOpenDisplay(nullptr),
                                                                        &XCloseDisplay);
    return connection.get();
}

// Windows of others may be gone before a request for them arrives.
class IgnoreErrors
{
public:
    IgnoreErrors() : m_previous(XSetErrorHandler([](Display*, XErrorEvent*) { return 0; })) {}
    ~IgnoreErrors()
    {
        XSync(display(), False);
        XSetErrorHandler(m_previous);
    }
    Q_DISABLE_COPY_MOVE(IgnoreErrors)

private:
    XErrorHandler m_previous;
};

// From the lowest to the one over all others.
std::vector<Window> topLevelWindows()
{
    Window root = 0, parent = 0;
    Window* children = nullptr;
    unsigned count = 0;
    if (!XQueryTree(display(), DefaultRootWindow(display()), &root, &parent, &children, &count))
        return {};
    std::vector<Window> windows(children, children + count);
    XFree(children);
    return windows;
}

} // namespace

bool hasDisplay() { return display() != nullptr; }

bool onX11() { return QGuiApplication::platformName() == QLatin1String("xcb") && hasDisplay(); }

bool showAndActivate(QWidget* window)
{
    window->show();
    window->activateWindow();
    window->raise();
    return waitUntil([window] { return window->isActiveWindow() && window->isVisible(); });
}

void movePointer(QPoint global)
{
    XTestFakeMotionEvent(display(), -1, global.x(), global.y(), CurrentTime);
    XSync(display(), False);
}

void movePointer(const QWidget* widget, QPoint local) { movePointer(widget->mapToGlobal(local)); }

void setButton(unsigned button, bool down)
{
    XTestFakeButtonEvent(display(), button, down ? True : False, CurrentTime);
    XSync(display(), False);
}

void clickButton(unsigned button)
{
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

unsigned long findWindow(const char* title)
{
    const IgnoreErrors ignore;
    for (const Window window : topLevelWindows()) {
        char* name = nullptr;
        const bool named = XFetchName(display(), window, &name) && name;
        const bool found = named && std::strcmp(name, title) == 0;
        if (named)
            XFree(name);
        if (found)
            return window;
    }
    return 0;
}

unsigned long topWindow()
{
    const IgnoreErrors ignore;
    const std::vector<Window> windows = topLevelWindows();
    const auto top = std::find_if(windows.rbegin(), windows.rend(), [](Window window) {
        XWindowAttributes state;
        return XGetWindowAttributes(display(), window, &state) && state.map_state == IsViewable;
    });
    return top != windows.rend() ? *top : 0;
}

void focusWindow(unsigned long window)
{
    const IgnoreErrors ignore;
    XSetInputFocus(display(), window, RevertToPointerRoot, CurrentTime);
}

void resizeWindow(unsigned long window, QSize size)
{
    XResizeWindow(display(), window, static_cast<unsigned>(size.width()),
                  static_cast<unsigned>(size.height()));
    XSync(display(), False);
}

void closeWindow(unsigned long window)
{
    const IgnoreErrors ignore;
    XEvent e{};
    e.xclient.type = ClientMessage;
    e.xclient.window = window;
    e.xclient.message_type = XInternAtom(display(), "WM_PROTOCOLS", False);
    e.xclient.format = 32;
    e.xclient.data.l[0] = static_cast<long>(XInternAtom(display(), "WM_DELETE_WINDOW", False));
    XSendEvent(display(), window, False, NoEventMask, &e);
    XSync(display(), False);
}

QImage screenshot()
{
    XWindowAttributes screen;
    XGetWindowAttributes(display(), DefaultRootWindow(display()), &screen);
    XImage* const grab = XGetImage(display(), DefaultRootWindow(display()), 0, 0,
                                   static_cast<unsigned>(screen.width),
                                   static_cast<unsigned>(screen.height), AllPlanes, ZPixmap);
    if (!grab)
        return {};
    QImage copy = QImage(reinterpret_cast<const uchar*>(grab->data), screen.width, screen.height,
                         grab->bytes_per_line, QImage::Format_RGB32)
                      .copy();
    XDestroyImage(grab);
    return copy;
}

} // namespace vxtest
