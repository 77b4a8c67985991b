// Real input: keys, clicks and wheel turns that travel through the X server; windows worked from
// outside, as a window manager does.
#pragma once

#include <QtCore/QPoint>
#include <QtCore/QSize>
#include <QtGui/QImage>

class QWidget;

namespace vxtest {

bool hasDisplay();
/// Whether the tests run on an X display; tests of real input are skipped elsewhere.
bool onX11();

/// Shows @p window, waits until it is exposed and gives it the keyboard.
bool showAndActivate(QWidget* window);

void movePointer(QPoint global);
/// Moves the pointer to @p local of @p widget.
void movePointer(const QWidget* widget, QPoint local);
/// Presses or releases a pointer button: 1 left, 2 middle, 3 right, 4 and 5 the wheel.
void setButton(unsigned button, bool down);
void clickButton(unsigned button);
/// Presses or releases the key that makes @p keysym.
void setKey(unsigned long keysym, bool down);
void typeKey(unsigned long keysym);

/// The top-level X window with this title; 0 when there is none.
unsigned long findWindow(const char* title);
/// The visible top-level X window that lies over all others; 0 when there is none.
unsigned long topWindow();
/// Gives @p window the keyboard.
void focusWindow(unsigned long window);
void resizeWindow(unsigned long window, QSize size);
/// Asks @p window to close.
void closeWindow(unsigned long window);
QImage screenshot();

} // namespace vxtest

#define VXTEST_NEEDS_X11()                                                                         \
    if (!vxtest::onX11())                                                                          \
    GTEST_SKIP() << "needs an X display"
