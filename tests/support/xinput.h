// Real input: keys, clicks and wheel turns that travel through the X server.
#pragma once

#include <QtCore/QPoint>
#include <QtCore/QSize>

class QWidget;

namespace vxtest {

/// Whether the tests run on an X display; tests of real input are skipped elsewhere.
bool onX11();

/// Shows @p window, waits until it is exposed and gives it the keyboard.
bool showAndActivate(QWidget* window);

/// Moves the pointer to @p local of @p widget.
void movePointer(QWidget* widget, QPoint local);
/// Presses or releases a pointer button: 1 left, 2 middle, 3 right, 4 and 5 the wheel.
void setButton(unsigned button, bool down);
void click(QWidget* widget, QPoint local, unsigned button = 1);
/// Presses or releases the key that makes @p keysym.
void setKey(unsigned long keysym, bool down);
void typeKey(unsigned long keysym);

/// Gives @p window another size from outside, as a window manager does.
void resizeWindow(QWidget* window, QSize size);
/// Asks @p window to close, as a window manager does.
void closeWindow(QWidget* window);

} // namespace vxtest

#define VXTEST_NEEDS_X11()                                                                         \
    if (!vxtest::onX11())                                                                          \
    GTEST_SKIP() << "needs an X display"
