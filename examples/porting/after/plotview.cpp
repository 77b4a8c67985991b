#include "plotview.h"

// clang-format off
//! [view source]
IMPLEMENT_DYNAMIC_E(CPlotView, CWnd_E, QWidget)

BEGIN_MESSAGE_MAP_E(CPlotView, CWnd_E)
    ON_WM_PAINT_E()
END_MESSAGE_MAP_E()

void CPlotView::OnPaint()
{
    CPaintDC_E dc(this);
    OnDraw(&dc);
}

void CPlotView::OnDraw(CDC_E* pDC)
{
    CRect_E rcClient;
    GetClientRect(&rcClient);
    pDC->FillSolidRect(&rcClient, RGB(255, 255, 255));

    CPen_E pen(PS_SOLID, 1, RGB(192, 0, 0));
    CBrush_E brush(RGB(255, 224, 160));
    CPen_E* pOldPen = pDC->SelectObject(&pen);
    CBrush_E* pOldBrush = pDC->SelectObject(&brush);
    pDC->Rectangle(10, 10, 60, 40);
    pDC->Ellipse(CRect_E(70, 10, 120, 40)); // with four numbers the last two are width and height
    pDC->MoveTo(10, 50);
    pDC->LineTo(120, 50);
    pDC->SelectObject(pOldPen);
    pDC->SelectObject(pOldBrush);

    CRect_E rcTitle(10, 60, 120, 90);
    pDC->SetTextColor(RGB(0, 0, 128));
    pDC->SetBkMode(TRANSPARENT);
    pDC->DrawText(_T("Plot"), -1, &rcTitle, ToQtTextFlag(DT_CENTER | DT_VCENTER | DT_SINGLELINE));
}
//! [view source]
