#include "plotview.h"

// clang-format off
//! [view source]
IMPLEMENT_DYNAMIC(CPlotView, CView)

void CPlotView::OnDraw(CDC* pDC)
{
    CRect rcClient;
    GetClientRect(&rcClient);
    pDC->FillSolidRect(&rcClient, RGB(255, 255, 255));

    CPen pen(PS_SOLID, 1, RGB(192, 0, 0));
    CBrush brush(RGB(255, 224, 160));
    CPen* pOldPen = pDC->SelectObject(&pen);
    CBrush* pOldBrush = pDC->SelectObject(&brush);
    pDC->Rectangle(10, 10, 60, 40);
    pDC->Ellipse(70, 10, 120, 40);
    pDC->MoveTo(10, 50);
    pDC->LineTo(120, 50);
    pDC->SelectObject(pOldPen);
    pDC->SelectObject(pOldBrush);

    CRect rcTitle(10, 60, 120, 90);
    pDC->SetTextColor(RGB(0, 0, 128));
    pDC->SetBkMode(TRANSPARENT);
    pDC->DrawText(_T("Plot"), -1, &rcTitle, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}
//! [view source]
