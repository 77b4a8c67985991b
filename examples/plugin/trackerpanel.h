#pragma once

#include "trackerwnd.h"

/// The plug-in's window: the tracker, the list of what it reported, and two buttons.
class CTrackerPanel : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CTrackerPanel)

    explicit CTrackerPanel(const CString_E& strReportPath) : m_strReportPath(strReportPath) {}

    /// Builds the panel inside the host's drawing.
    BOOL CreateInView();

    void SetupUI() override;
    void PostNcDestroy() override;
    void OnDestroy();
    LRESULT OnReport(WPARAM wParam, LPARAM lParam);

public Q_SLOTS:
    void OnPost();
    void OnClear();

protected:
    void OnMessageMap() override;

private:
    void WriteReport(const CString_E& strLine) const;
    void WriteGeometry(const wchar_t* lpszName, QWidget* pWidget) const;
    void ReportReady();

    CTrackerWnd m_wndTracker;
    CString_E m_strReportPath;
    UINT m_nPosted = 0;
};
