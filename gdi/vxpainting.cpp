// Messages that hand a device context to a window's handlers.
#include "wnd/vxpainting_p.h"

#include <VxMFCEmu/gdi/dc.h>
#include <VxMFCEmu/wnd/window.h>

#include <QtWidgets/QWidget>

// Intended: the message carries the device context object itself, which is what handlers take.
void vx::detail::eraseBackground(CWnd_E& window, QWidget& widget)
{
    CDC_E dc(&widget);
    window.CallWndMsg(WM_ERASEBKGND, reinterpret_cast<WPARAM>(&dc), 0, nullptr);
}

template <UINT Kind>
LRESULT CWnd_E::OnCtlColorMessage(WPARAM wParam, LPARAM lParam)
{
    const AFX_MSGMAP_ENTRY_E* const pEntry = FindMsgMapEntry(WM_CTLCOLOR);
    if (!pEntry)
        return 0;
    const AFX_MSGMAP_ENTRY_E entry = *pEntry; // the handler may change the map
    auto* const pDC = reinterpret_cast<CDC_E*>(wParam);
    const QPointer<QWidget> control(reinterpret_cast<QWidget*>(lParam));
    const QPointer<CWnd_E> self(this);
    HBRUSH hBrush = nullptr;
    if (entry.pfn) {
        using Handler = HBRUSH (CWnd_E::*)(CDC_E*, QWidget*, UINT);
        hBrush = (this->*vx::detail::castHandler<Handler>(entry.pfn))(pDC, control, Kind);
    }
    if (entry.pfnE && self) {
        using Handler = HBRUSH (CWnd_E::*)(CDC_E*, CWnd_E*, UINT);
        hBrush =
            (this->*vx::detail::castHandler<Handler>(entry.pfnE))(pDC, FromHandle(control), Kind);
    }
    return reinterpret_cast<LRESULT>(hBrush);
}

void CWnd_E::AddCtlColorEntry(const AFX_MSGMAP_ENTRY_E& entry)
{
    const bool first = !FindMsgMapEntry(WM_CTLCOLOR);
    AddMsgMapEntry(WM_CTLCOLOR, entry);
    // One handler for seven numbers, none of which reaches a handler with its message.
    const AFX_PMSG_E handlers[] = {
        vx::detail::castHandler<AFX_PMSG_E>(&CWnd_E::OnCtlColorMessage<CTLCOLOR_MSGBOX>),
        vx::detail::castHandler<AFX_PMSG_E>(&CWnd_E::OnCtlColorMessage<CTLCOLOR_EDIT>),
        vx::detail::castHandler<AFX_PMSG_E>(&CWnd_E::OnCtlColorMessage<CTLCOLOR_LISTBOX>),
        vx::detail::castHandler<AFX_PMSG_E>(&CWnd_E::OnCtlColorMessage<CTLCOLOR_BTN>),
        vx::detail::castHandler<AFX_PMSG_E>(&CWnd_E::OnCtlColorMessage<CTLCOLOR_DLG>),
        vx::detail::castHandler<AFX_PMSG_E>(&CWnd_E::OnCtlColorMessage<CTLCOLOR_SCROLLBAR>),
        vx::detail::castHandler<AFX_PMSG_E>(&CWnd_E::OnCtlColorMessage<CTLCOLOR_STATIC>),
    };
    static_assert(std::size(handlers) == CTLCOLOR_MAX);
    static_assert(WM_CTLCOLORSTATIC - WM_CTLCOLORMSGBOX == CTLCOLOR_STATIC);
    for (UINT nKind = 0; nKind < CTLCOLOR_MAX; ++nKind)
        AddMsgMapEntry(WM_CTLCOLORMSGBOX + nKind, 14, handlers[nKind], nullptr);
    if (first)
        vx::detail::colorControls(*this);
}
