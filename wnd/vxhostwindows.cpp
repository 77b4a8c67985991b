#include <VxMFCEmu/wnd/hostwindows.h>

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMdiSubWindow>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace {

bool isMainFrame(const QWidget* pWidget)
{
    return pWidget && pWidget->isWindow() &&
           pWidget->objectName() == QLatin1String("CTolmMainFrame");
}

} // namespace

QWidget* TolmGetMainFrame()
{
    if (!qApp)
        return nullptr;
    // Listing the top-level widgets walks every widget of the process; the frame hardly changes.
    static QPointer<QWidget> pFrame;
    if (!isMainFrame(pFrame)) {
        const QWidgetList windows = QApplication::topLevelWidgets();
        const auto it = std::find_if(windows.begin(), windows.end(), isMainFrame);
        pFrame = it != windows.end() ? *it : nullptr;
    }
    return pFrame;
}

QWidget* TolmGetViewWindow()
{
    const QWidget* const pFrame = TolmGetMainFrame();
    const QMdiArea* const pArea =
        pFrame ? pFrame->findChild<QMdiArea*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
    return pArea ? pArea->activeSubWindow() : nullptr;
}
