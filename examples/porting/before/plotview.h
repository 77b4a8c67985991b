#pragma once

#include "oldnames.h"

//! [view class]
class CPlotView : public CView
{
    DECLARE_DYNAMIC(CPlotView)

protected:
    virtual void OnDraw(CDC* pDC);
};
//! [view class]
