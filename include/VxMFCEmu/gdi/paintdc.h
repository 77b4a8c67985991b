/// @file paintdc.h
/// Device contexts of windows: for painting, and for drawing at any time.
///
/// Differs from Win32: what holds for a device context over a widget (see dc.h) holds for both; a
/// CPaintDC_E outside of a paint message is a CClientDC_E. Nothing has to be validated: the paint
/// event does that.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/gdi/dc.h>

/// What is to be painted.
struct tagPAINTSTRUCT
{
    HDC hdc;              ///< the CDC_E
    BOOL fErase;          ///< FALSE: the background has been erased
    tagRECT rcPaint;      ///< the bounding rectangle of what needs painting
    BOOL fRestore;        ///< not used
    BOOL fIncUpdate;      ///< not used
    BYTE rgbReserved[32]; ///< not used
};
using PAINTSTRUCT = tagPAINTSTRUCT;    ///< its usual name
using LPPAINTSTRUCT = tagPAINTSTRUCT*; ///< a pointer to one

/// Draws in the client area of a window: at once inside of a paint message, else when it is
/// destroyed.
class VXMFC_EXPORT CClientDC_E : public CDC_E
{
public:
    /// Null and unbound windows give an inactive painter.
    explicit CClientDC_E(CWnd_E* pWnd);
    /// The same of a widget.
    explicit CClientDC_E(QWidget* pWidget) : CDC_E(pWidget) {}
};

/// Draws in the client area of a window from its OnPaint() handler.
class VXMFC_EXPORT CPaintDC_E : public CDC_E
{
public:
    /// Null and unbound windows give an inactive painter.
    explicit CPaintDC_E(CWnd_E* pWnd);

    tagPAINTSTRUCT m_ps{}; ///< CDC_E::FromHandle() of its hdc is this object
};
