#include "trackerpanel.h"

#include "resource.h"

#include <QtCore/QTimer>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>

namespace {

constexpr int nTrackerHeight = 110;
constexpr int nReportsWidth = 256;

} // namespace

IMPLEMENT_DYNAMIC_E(CDrawingWnd, CWnd_E, QWidget)

BEGIN_MESSAGE_MAP_E(CDrawingWnd, CWnd_E)
ON_WM_SIZE_E()
END_MESSAGE_MAP_E()

void CDrawingWnd::OnSize(UINT nType, int cx, int cy)
{
    m_panel.FillDrawing(cx, cy);
    CWnd_E::OnSize(nType, cx, cy);
}

IMPLEMENT_DYNAMIC_E(CTrackerPanel, CWnd_E, QWidget)

BEGIN_MESSAGE_MAP_E(CTrackerPanel, CWnd_E)
ON_WM_DESTROY_E()
ON_MESSAGE_E(WM_TRACKER_REPORT, &CTrackerPanel::OnReport)
CObject_E::Connect(IDC_POST, SIGNAL(clicked()), this, SLOT(OnPost()), GetSafeHwnd());
CObject_E::Connect(IDC_CLEAR, SIGNAL(clicked()), this, SLOT(OnClear()), GetSafeHwnd());
END_MESSAGE_MAP_E()

CTrackerPanel::CTrackerPanel(const CString_E& strReportPath)
    : m_wndDrawing(*this), m_strReportPath(strReportPath)
{
}

BOOL CTrackerPanel::CreateInView()
{
    CWnd_E* const pView = CWnd_E::FromHandle(TolmGetViewWindow());
    if (!pView || !m_wndDrawing.SubclassDlgItem("CTolmView", pView) ||
        !Create(WS_CHILD, m_wndDrawing.GetSafeHwnd()))
        return FALSE;
    m_settings.RestorePlace();
    m_settings.SetNumber(L"Runs", m_settings.Number(L"Runs") + 1);
    CRect_E rect;
    m_wndDrawing.GetClientRect(&rect);
    FillDrawing(rect.Width(), rect.Height());
    SetupUI();
    OnMessageMap(); // the buttons exist now
    ShowWindow(SW_SHOW);
    QTimer::singleShot(0, this, [this] { ReportReady(); });
    return TRUE;
}

void CTrackerPanel::FillDrawing(int cx, int cy)
{
    constexpr int nMargin = 16;
    MoveWindow(CRect_E(nMargin, nMargin, cx - nMargin, cy - nMargin));
}

void CTrackerPanel::SetupUI()
{
    CString_E strTitle;
    strTitle.LoadString(IDS_TITLE);
    SetWindowText(strTitle);
    QWidget* const pPanel = GetSafeHwnd();
    pPanel->setAutoFillBackground(true);

    auto* const pStatus = new QLabel(pPanel);
    pStatus->setObjectName(ToStringId(IDC_STATUS));
    pStatus->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* const pReports = new QListWidget(pPanel);
    pReports->setFixedWidth(nReportsWidth);
    pReports->setObjectName(ToStringId(IDC_REPORTS));
    auto* const pPost = new QPushButton(QStringLiteral("Post a message"), pPanel);
    pPost->setObjectName(ToStringId(IDC_POST));
    auto* const pClear = new QPushButton(QStringLiteral("Clear"), pPanel);
    pClear->setObjectName(ToStringId(IDC_CLEAR));

    m_wndTracker.Create(pPanel);
    QWidget* const pTracker = m_wndTracker.GetSafeHwnd();
    pTracker->setFocusPolicy(Qt::StrongFocus);
    pTracker->setAutoFillBackground(true);
    const CString_E strColour = ProfileText(L"Tracker", L"Background", L"white");
    pTracker->setPalette(QPalette(QColor(VxQString(strColour))));

    pTracker->setFixedHeight(nTrackerHeight);
    m_wndPlot.Create(pPanel);
    m_wndPlot.Open(0);

    auto* const pGrid = new QGridLayout(pPanel);
    pGrid->addWidget(m_wndPlot.GetSafeHwnd(), 0, 0);
    pGrid->addWidget(pTracker, 1, 0, 2, 1);
    pGrid->addWidget(pReports, 0, 1, 1, 2);
    pGrid->addWidget(pPost, 1, 1);
    pGrid->addWidget(pClear, 1, 2);
    pGrid->addWidget(pStatus, 2, 1, 1, 2);
    pGrid->setColumnStretch(0, 1);

    CString_E strReady;
    strReady.LoadString(IDS_READY);
    SetDlgItemText(IDC_STATUS, strReady);
}

LRESULT CTrackerPanel::OnReport(WPARAM, LPARAM lParam)
{
    const CString_E& strLine = *reinterpret_cast<const CString_E*>(lParam);
    auto* const pReports = qobject_cast<QListWidget*>(GetDlgItem(IDC_REPORTS, nullptr));
    if (!pReports)
        return FALSE;
    pReports->addItem(VxQString(strLine));
    pReports->scrollToBottom();
    WriteReport(strLine);
    return TRUE;
}

void CTrackerPanel::OnPost()
{
    const int nPosted = m_settings.Number(L"Posted") + 1;
    m_settings.SetNumber(L"Posted", nPosted);
    m_wndTracker.PostMessage(WM_TRACKER_PING, static_cast<WPARAM>(nPosted));
    CString_E strText;
    strText.Format(IDS_POSTED, nPosted);
    SetDlgItemText(IDC_STATUS, strText);
}

void CTrackerPanel::OnClear()
{
    if (auto* const pReports = qobject_cast<QListWidget*>(GetDlgItem(IDC_REPORTS, nullptr)))
        pReports->clear();
}

void CTrackerPanel::OnDestroy()
{
    m_settings.SavePlace();
    WriteReport(L"WM_DESTROY");
    CWnd_E::OnDestroy();
}

void CTrackerPanel::PostNcDestroy() { delete this; }

// Tells a driver where to click: name and global rectangle of what it needs.
void CTrackerPanel::ReportReady()
{
    WriteGeometry(L"frame", TolmGetMainFrame());
    WriteGeometry(L"plot", m_wndPlot);
    WriteGeometry(L"tracker", m_wndTracker);
    WriteGeometry(L"post", GetDlgItem(IDC_POST, nullptr));
    CString_E strRun;
    strRun.Format(L"run %d, tracker on %s", m_settings.Number(L"Runs"),
                  ProfileText(L"Tracker", L"Background", L"white").GetString());
    WriteReport(strRun);
    m_wndPlot.ReportZoom();
    WriteReport(L"ready");
}

void CTrackerPanel::WriteGeometry(const wchar_t* lpszName, QWidget* pWidget) const
{
    CRect_E rect;
    GetWindowRect_E(pWidget, &rect);
    CString_E strLine;
    strLine.Format(L"geometry %s %d %d %d %d", lpszName, rect.left, rect.top, rect.Width(),
                   rect.Height());
    WriteReport(strLine);
}

void CTrackerPanel::WriteReport(const CString_E& strLine) const
{
    if (m_strReportPath.IsEmpty())
        return;
    CStdioFile_E file;
    if (!file.Open(m_strReportPath,
                   CFile_E::modeWrite | CFile_E::modeCreate | CFile_E::modeNoTruncate))
        return;
    file.SeekToEnd();
    file.WriteString(strLine + L"\n");
    file.Close();
}
