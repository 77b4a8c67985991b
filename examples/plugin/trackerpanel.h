#pragma once

#include "controlspage.h"
#include "plotwnd.h"
#include "settings.h"
#include "trackerwnd.h"

class CTrackerPanel;

/// The host's drawing, watched for its size so that the panel can follow it.
class CDrawingWnd : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CDrawingWnd)

    explicit CDrawingWnd(CTrackerPanel& panel) : m_panel(panel) {}
    void OnSize(UINT nType, int cx, int cy);

    DECLARE_MESSAGE_MAP_E()

private:
    CTrackerPanel& m_panel;
};

/// The plug-in's window: a plot, the tracker, the list of what they reported, some buttons and a
/// status line that follows the plot. A plot can be saved and opened again.
class CTrackerPanel : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CTrackerPanel)

    explicit CTrackerPanel(const CString_E& strReportPath);

    /// Builds the panel inside the host's drawing.
    BOOL CreateInView();
    /// Fills a drawing of this size but for a margin.
    void FillDrawing(int cx, int cy);

    void SetupUI() override;
    void PostNcDestroy() override;
    void OnDestroy();
    LRESULT OnReport(WPARAM wParam, LPARAM lParam);

    void OnPost();
    void OnClear();
    void OnSettings();
    void OnControls();
    void OnSave();
    void OnOpen();
    void OnViewGrid();
    void OnViewLabels();
    void OnViewFit();
    void OnUpdateViewGrid(CCmdUI_E* pCmdUI);
    void OnUpdateViewLabels(CCmdUI_E* pCmdUI);
    void OnUpdateViewFit(CCmdUI_E* pCmdUI);
    void OnUpdateItems(CCmdUI_E* pCmdUI);
    void OnUpdateZoom(CCmdUI_E* pCmdUI);

    DECLARE_MESSAGE_MAP_E()

private:
    QWidget* MakeStatusLine();
    void SetLook(const PlotLook& look);
    void WriteReport(const CString_E& strLine) const;
    void WriteGeometry(const wchar_t* lpszName, QWidget* pWidget) const;
    void ReportReady();
    void ReportLook() const;
    void ReportShown(CDialog_E& dlg, const CString_E& strName, std::vector<int> ids);
    void ReportStatus();

    CDrawingWnd m_wndDrawing;
    CPlotWnd m_wndPlot;
    CTrackerWnd m_wndTracker;
    CControlsPage m_wndControls;
    CTrackerSettings m_settings;
    CString_E m_strReportPath;
    CString_E m_strStatus; // as reported last
};
