#include <VxMFCEmu/gdi/paintdc.h>

#include "wnd/vxgeometryconvert_p.h"

#include <VxMFCEmu/wnd/window.h>

#include <QtGui/QPaintEvent>
#include <QtWidgets/QWidget>

CClientDC_E::CClientDC_E(CWnd_E* pWnd) : CDC_E(pWnd ? pWnd->GetSafeHwnd() : nullptr) {}

CPaintDC_E::CPaintDC_E(CWnd_E* pWnd) : CDC_E(pWnd ? pWnd->GetSafeHwnd() : nullptr)
{
    m_ps.hdc = this;
    Attach(m_ps.hdc); // so that the handle leads back to this object
    const QWidget* const pWidget = pWnd ? pWnd->GetSafeHwnd() : nullptr;
    if (!pWidget)
        return;
    const QEvent* const pEvent = pWnd->GetCurrentEvent();
    m_ps.rcPaint = vx::detail::toRect(pEvent && pEvent->type() == QEvent::Paint
                                          ? static_cast<const QPaintEvent*>(pEvent)->rect()
                                          : pWidget->rect());
}
