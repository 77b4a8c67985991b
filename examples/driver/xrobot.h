// Keys, clicks, window sizes and pictures, straight from the X server.
#pragma once

#include <QtCore/QPoint>
#include <QtCore/QSize>
#include <QtGui/QImage>

#include <memory>

struct _XDisplay;

class XRobot
{
public:
    XRobot();

    bool isConnected() const { return m_display != nullptr; }
    void move(QPoint global);
    void click(QPoint global, unsigned button = 1);
    void type(unsigned long keysym);
    /// Resizes the top-level window with this title; false when there is none.
    bool resizeWindow(const char* title, QSize size);
    /// Asks that window to close, as a window manager would.
    bool closeWindow(const char* title);
    QImage screenshot();

private:
    unsigned long findWindow(const char* title);

    std::unique_ptr<_XDisplay, int (*)(_XDisplay*)> m_display;
};
