#pragma once

#include "plotdocument.h"
#include "plotfile.h"
#include "settings.h"

#include <map>
#include <memory>

/// Shows one of the plots that the profile file names: the wheel zooms around the pointer, the left
/// button drags, the right one turns to the next plot.
class CPlotWnd : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CPlotWnd)

    /// Shows plot number @p nPlot; false when there is no such plot.
    bool Open(int nPlot);
    /// Puts what is shown into a document.
    void Store(CPlotDocument& document) const;
    /// Shows what a document has.
    void Show(const CPlotDocument& document);

    void SetLook(const PlotLook& look);
    const PlotLook& Look() const { return m_look; }
    /// Shows the whole plot.
    void Fit();

    int ItemCount() const { return static_cast<int>(m_plot.Items().size()); }
    int ZoomPercent() const;
    /// Sends the parent a line for its report.
    void ReportZoom();

    void OnPaint();
    BOOL OnEraseBkgnd(CDC_E* pDC);
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint_E point);
    void OnRButtonDown(UINT nFlags, CPoint_E point);
    void OnLButtonDown(UINT nFlags, CPoint_E point);
    void OnMouseMove(UINT nFlags, CPoint_E point);

    DECLARE_MESSAGE_MAP_E()

private:
    double FittingScale() const;
    double Scale() const { return FittingScale() * m_dZoom; }
    CPoint_E ToWindow(CPoint_E point) const;
    CPen_E* Pen(CDC_E& dc, int nIndex, int nLineType);
    void DrawGrid(CDC_E& dc) const;
    void DrawTitle(CDC_E& dc) const;
    void DrawItem(CDC_E& dc, const PlotItem& item);
    void DrawRegion(CDC_E& dc, const PlotItem& item, const std::vector<CPoint_E>& corners) const;
    void DrawArc(CDC_E& dc, const PlotItem& item) const;
    void DrawLabel(CDC_E& dc, const PlotItem& item) const;

    PlotLook m_look;
    CPlotFile m_plot;
    int m_nPlot = 0;
    CRect_E m_rcBounds;
    double m_dZoom = 1;
    CPoint_E m_ptCentre; // in plotter units, shown in the middle
    CPoint_E m_ptDragged;
    std::map<std::pair<int, int>, std::unique_ptr<CPen_E>> m_pens;
};
