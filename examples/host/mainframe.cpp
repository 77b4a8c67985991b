#include "mainframe.h"

#include <QtCore/QVariant>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMdiSubWindow>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QVBoxLayout>

namespace {

bool isCommandRunning() { return false; }

} // namespace

CTolmMainFrame::CTolmMainFrame()
{
    setObjectName(QStringLiteral("CTolmMainFrame"));
    setWindowTitle(QStringLiteral("Emulation demo"));
    setProperty("IsTolmCmdActive",
                QVariant(static_cast<qulonglong>(reinterpret_cast<quintptr>(&isCommandRunning))));
    auto* const area = new QMdiArea(this);
    setCentralWidget(area);
    auto* const view = new CTolmView;
    view->setObjectName(QStringLiteral("CTolmView"));
    QMdiSubWindow* const sub = area->addSubWindow(view);
    sub->setWindowTitle(QStringLiteral("Drawing 1"));
    sub->showMaximized();
    statusBar()->showMessage(QStringLiteral("Plug-in windows live in the drawing."));
    resize(860, 560);
}
