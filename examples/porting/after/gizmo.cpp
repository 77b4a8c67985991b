#include "resource.h"

#include <VxMFCEmu/VxMFCEmu.h>

#include <QtCore/QCoreApplication>

// clang-format off
//! [plug-in]
class CGizmoFrame : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CGizmoFrame)

    void PostNcDestroy() override { delete this; }
};

IMPLEMENT_DYNAMIC_E(CGizmoFrame, CWnd_E, QWidget)

static QPointer<CGizmoFrame> g_pFrame;

extern "C" Q_DECL_EXPORT BOOL GizmoOpen()
{
    CString_E strTitle;
    strTitle.LoadString(IDS_GIZMO);

    g_pFrame = new CGizmoFrame;
    if (!g_pFrame->Create(WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect_E(0, 0, 200, 100), nullptr))
        return FALSE;
    g_pFrame->SetWindowText(strTitle);
    return TRUE;
}

extern "C" Q_DECL_EXPORT void GizmoClose()
{
    if (g_pFrame)
        g_pFrame->DestroyWindow();
    ClearTempObjectPool();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
//! [plug-in]

#include "gizmo.moc"
