// Compiled once for each CASE: only the handlers of case 0 have the signatures that MFC documents.
#include <VxMFCEmu/wnd/window.h>

class HandlerWnd : public CWnd_E
{
public:
#if CASE == 0
    void OnSize(UINT nType, int cx, int cy);
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint_E point);
    void OnSetFocus_E(CWnd_E* pOldWnd);
    LRESULT OnResult(WPARAM wParam, LPARAM lParam);
#elif CASE == 1 // one argument too few
    void OnSize(UINT nType, int cx);
#elif CASE == 2 // an argument of another type, to which the right one would convert
    void OnSize(UINT nType, UINT cx, UINT cy);
#elif CASE == 3 // another result
    void OnMouseWheel(UINT nFlags, short zDelta, CPoint_E point);
#elif CASE == 4 // the form with window objects, with a widget
    void OnSetFocus_E(QWidget* pOldWnd);
#elif CASE == 5 // a message of the application's own
    LRESULT OnResult(WPARAM wParam);
#endif
    DECLARE_MESSAGE_MAP_E()
};

BEGIN_MESSAGE_MAP_E(HandlerWnd, CWnd_E)
ON_WM_SIZE_E()
ON_WM_MOUSEWHEEL_E()
ON_WM_SETFOCUS_E()
#if CASE == 0 || CASE == 5
ON_MESSAGE_E(WM_APP, &HandlerWnd::OnResult)
#endif
END_MESSAGE_MAP_E()
