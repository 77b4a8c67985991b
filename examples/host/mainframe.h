// The host's windows, under the names by which the emulation library knows them.
#pragma once

#include <QtWidgets/QMainWindow>

class CTolmView : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;
};

class CTolmMainFrame : public QMainWindow
{
    Q_OBJECT
public:
    CTolmMainFrame();
};
