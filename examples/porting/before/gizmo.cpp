#include "oldnames.h"
#include "resource.h"

// clang-format off
//! [plug-in]
static AFX_EXTENSION_MODULE GizmoDLL = { NULL, NULL };

extern "C" int APIENTRY DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID)
{
    if (dwReason == DLL_PROCESS_ATTACH)
    {
        if (!AfxInitExtensionModule(GizmoDLL, hInstance))
            return 0;
        new CDynLinkLibrary(GizmoDLL);
    }
    else if (dwReason == DLL_PROCESS_DETACH)
    {
        AfxTermExtensionModule(GizmoDLL);
    }
    return 1;
}

static CFrameWnd* g_pFrame = NULL;

extern "C" __declspec(dllexport) BOOL GizmoOpen()
{
    CString strTitle;
    strTitle.LoadString(IDS_GIZMO);

    g_pFrame = new CFrameWnd;
    return g_pFrame->Create(NULL, strTitle, WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 200, 100));
}

extern "C" __declspec(dllexport) void GizmoClose()
{
    g_pFrame->DestroyWindow();
}
//! [plug-in]
