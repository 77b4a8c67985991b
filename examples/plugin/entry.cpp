// What the host calls.
#include "trackerpanel.h"

#include <QtCore/QCoreApplication>

namespace {

QPointer<CTrackerPanel> g_panel;

} // namespace

extern "C" Q_DECL_EXPORT int VxDemoLoad(const wchar_t* reportPath)
{
    g_panel = new CTrackerPanel(reportPath);
    if (g_panel->CreateInView())
        return TRUE;
    delete g_panel;
    return FALSE;
}

extern "C" Q_DECL_EXPORT void VxDemoUnload()
{
    if (g_panel)
        g_panel->DestroyWindow();
    ClearTempObjectPool();
    // Widgets hold texts and functions of this plug-in, so they must be gone before its code is.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
