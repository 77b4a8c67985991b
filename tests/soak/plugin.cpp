// What the host calls.
#include "churnwnd.h"

#include <QtCore/QCoreApplication>

namespace {

std::unique_ptr<CChurnWnd> g_wnd;

} // namespace

extern "C" Q_DECL_EXPORT int VxDemoLoad(const wchar_t*)
{
    g_wnd = std::make_unique<CChurnWnd>();
    return g_wnd->CreateInFrame();
}

extern "C" Q_DECL_EXPORT void VxDemoUnload()
{
    g_wnd->DestroyWindow();
    g_wnd.reset();
    ClearTempObjectPool();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
