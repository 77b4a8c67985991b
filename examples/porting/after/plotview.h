#pragma once

#include <VxMFCEmu/VxMFCEmu.h>

//! [view class]
class CPlotView : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CPlotView)

protected:
    void OnDraw(CDC_E* pDC);
    void OnPaint();
    DECLARE_MESSAGE_MAP_E()
};
//! [view class]
