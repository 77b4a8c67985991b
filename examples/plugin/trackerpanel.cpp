#include "trackerpanel.h"

#include "resource.h"
#include "settingsdialog.h"

#include <QtCore/QTimer>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolButton>

namespace {

constexpr int nTrackerHeight = 110;
constexpr int nReportsWidth = 256;
constexpr int nMaxReports = 1000;
constexpr int nStatusIds[] = {ID_VIEW_GRID, ID_VIEW_LABELS, ID_VIEW_FIT, ID_INDICATOR_ITEMS,
                              ID_INDICATOR_ZOOM};

template <typename Button>
Button* makeButton(int nID, const QString& strText, QWidget* pParent)
{
    auto* const pButton = new Button(pParent);
    pButton->setObjectName(ToStringId(static_cast<UINT>(nID)));
    pButton->setText(strText);
    return pButton;
}

CString_E formatted(UINT nFormatID, int nValue)
{
    CString_E strText;
    strText.Format(nFormatID, nValue);
    return strText;
}

/// Whether it succeeds; if not, the user is told why.
template <typename Function>
bool succeeds(Function function)
{
    try {
        function();
        return true;
    } catch (CException_E* e) {
        e->ReportError();
        e->Delete();
        return false;
    }
}

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
ON_BN_CLICKED_E(IDC_POST, &CTrackerPanel::OnPost)
ON_BN_CLICKED_E(IDC_CLEAR, &CTrackerPanel::OnClear)
ON_BN_CLICKED_E(IDC_SETTINGS, &CTrackerPanel::OnSettings)
ON_BN_CLICKED_E(IDC_CONTROLS, &CTrackerPanel::OnControls)
ON_BN_CLICKED_E(IDC_SAVE, &CTrackerPanel::OnSave)
ON_BN_CLICKED_E(IDC_OPEN, &CTrackerPanel::OnOpen)
ON_COMMAND_E(ID_VIEW_GRID, &CTrackerPanel::OnViewGrid)
ON_COMMAND_E(ID_VIEW_LABELS, &CTrackerPanel::OnViewLabels)
ON_COMMAND_E(ID_VIEW_FIT, &CTrackerPanel::OnViewFit)
ON_UPDATE_COMMAND_UI_E(ID_VIEW_GRID, &CTrackerPanel::OnUpdateViewGrid)
ON_UPDATE_COMMAND_UI_E(ID_VIEW_LABELS, &CTrackerPanel::OnUpdateViewLabels)
ON_UPDATE_COMMAND_UI_E(ID_VIEW_FIT, &CTrackerPanel::OnUpdateViewFit)
ON_UPDATE_COMMAND_UI_E(ID_INDICATOR_ITEMS, &CTrackerPanel::OnUpdateItems)
ON_UPDATE_COMMAND_UI_E(ID_INDICATOR_ZOOM, &CTrackerPanel::OnUpdateZoom)
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
    // After the update handlers, which the message map has connected.
    connect(this, &CWnd_E::updateCmdUi, this, &CTrackerPanel::ReportStatus);
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

    auto* const pReports = new QListWidget(pPanel);
    pReports->setFixedWidth(nReportsWidth);
    pReports->setUniformItemSizes(true); // or each new report would measure all the others
    pReports->setObjectName(ToStringId(IDC_REPORTS));
    m_wndTracker.Create(pPanel);
    QWidget* const pTracker = m_wndTracker.GetSafeHwnd();
    pTracker->setFocusPolicy(Qt::StrongFocus);
    pTracker->setAutoFillBackground(true);
    const CString_E strColour = ProfileText(L"Tracker", L"Background", L"white");
    pTracker->setPalette(QPalette(QColor(VxQString(strColour))));

    pTracker->setFixedHeight(nTrackerHeight);
    m_wndPlot.Create(pPanel);
    m_wndPlot.SetLook(m_settings.Look());
    m_wndPlot.Open(0);

    auto* const pGrid = new QGridLayout(pPanel);
    pGrid->addWidget(m_wndPlot.GetSafeHwnd(), 0, 0);
    pGrid->addWidget(pTracker, 1, 0, 3, 1);
    pGrid->addWidget(pReports, 0, 1, 1, 2);
    pGrid->addWidget(makeButton<QPushButton>(IDC_POST, QStringLiteral("Post a message"), pPanel), 1,
                     1);
    pGrid->addWidget(makeButton<QPushButton>(IDC_CLEAR, QStringLiteral("Clear"), pPanel), 1, 2);
    pGrid->addWidget(
        makeButton<QPushButton>(IDC_SETTINGS, QStringLiteral("Plot settings..."), pPanel), 2, 1);
    pGrid->addWidget(makeButton<QPushButton>(IDC_CONTROLS, QStringLiteral("Controls..."), pPanel),
                     2, 2);
    pGrid->addWidget(makeButton<QPushButton>(IDC_SAVE, QStringLiteral("Save the plot"), pPanel), 3,
                     1);
    pGrid->addWidget(makeButton<QPushButton>(IDC_OPEN, QStringLiteral("Open it"), pPanel), 3, 2);
    pGrid->addWidget(MakeStatusLine(), 4, 0, 1, 3);
    pGrid->setColumnStretch(0, 1);

    CString_E strReady;
    strReady.LoadString(IDS_READY);
    SetDlgItemText(IDC_STATUS, strReady);
}

QWidget* CTrackerPanel::MakeStatusLine()
{
    auto* const pLine = new QStatusBar(GetSafeHwnd());
    pLine->setSizeGripEnabled(false);
    auto* const pStatus = new QLabel(pLine);
    pStatus->setObjectName(ToStringId(IDC_STATUS));
    pLine->addWidget(pStatus, 1);
    for (const int nID : nStatusIds) {
        auto* const pButton = makeButton<QToolButton>(nID, QString(), pLine);
        pButton->setAutoRaise(true);
        pButton->setCheckable(nID == ID_VIEW_GRID || nID == ID_VIEW_LABELS);
        pButton->setAttribute(Qt::WA_TransparentForMouseEvents, nID >= ID_INDICATOR_ITEMS);
        pLine->addPermanentWidget(pButton);
    }
    SetDlgItemText(ID_VIEW_LABELS, L"Labels");
    SetDlgItemText(ID_VIEW_FIT, L"Fit");
    return pLine;
}

LRESULT CTrackerPanel::OnReport(WPARAM, LPARAM lParam)
{
    const CString_E& strLine = *reinterpret_cast<const CString_E*>(lParam);
    auto* const pReports = qobject_cast<QListWidget*>(GetDlgItem(IDC_REPORTS, nullptr));
    if (!pReports)
        return FALSE;
    pReports->addItem(VxQString(strLine));
    if (pReports->count() > nMaxReports)
        delete pReports->takeItem(0);
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

void CTrackerPanel::OnSettings()
{
    CSettingsDialog dlg(this);
    dlg.m_look = m_settings.Look();
    ReportShown(dlg, L"settings",
                {IDC_TITLE, IDC_PAPER, IDC_SPACING, IDC_GRID, IDC_LABELS, IDC_FINE, IDC_DEFAULTS,
                 IDOK, IDCANCEL});
    const bool bAccepted = dlg.DoModal() == IDOK;
    WriteReport(bAccepted ? L"settings accepted" : L"settings cancelled");
    if (bAccepted)
        SetLook(dlg.m_look);
    ReportLook();
}

void CTrackerPanel::OnControls()
{
    if (!m_wndControls.GetSafeHwnd() && !m_wndControls.Create(GetSafeHwnd()))
        return;
    m_wndControls.ShowWindow(SW_SHOW);
    m_wndControls.SetActiveWindow();
    ReportShown(m_wndControls, L"controls",
                {IDC_NAME, IDC_SIZE, IDC_PORTRAIT, IDC_FRAME, IDC_VIEW, IDC_COPIES, IDC_WEIGHT,
                 IDC_DATE, IDC_HIDDEN, IDC_LINETYPE, IDC_SCALE, IDC_LAYERS, IDC_NOTES, IDC_PAN,
                 IDC_FILL, IDC_PLOT, IDCANCEL});
}

void CTrackerPanel::OnSave()
{
    CPlotDocument document;
    m_wndPlot.Store(document);
    const bool bSaved = succeeds([&document] { SaveDocument(document, DocumentPath()); });
    CString_E strLine;
    strLine.Format(bSaved ? L"saved %d items" : L"could not save", m_wndPlot.ItemCount());
    WriteReport(strLine);
}

void CTrackerPanel::OnOpen()
{
    std::unique_ptr<CPlotDocument> pDocument;
    if (!succeeds([&pDocument] { pDocument = OpenDocument(DocumentPath()); }) || !pDocument)
        return WriteReport(L"could not open");
    m_wndPlot.Show(*pDocument);
    m_wndPlot.ReportZoom();
}

// When it is on the screen.
void CTrackerPanel::ReportShown(CDialog_E& dlg, const CString_E& strName, std::vector<int> ids)
{
    QTimer::singleShot(0, &dlg, [this, &dlg, strName, ids] {
        for (const int nID : ids)
            WriteGeometry(CString_E(ToStringId(static_cast<UINT>(nID))),
                          dlg.GetDlgItem(nID, nullptr));
        WriteGeometry(strName + L"Dialog", dlg);
        WriteReport(strName + L" shown");
    });
}

void CTrackerPanel::SetLook(const PlotLook& look)
{
    m_settings.SetLook(look);
    m_wndPlot.SetLook(look);
}

void CTrackerPanel::OnViewGrid()
{
    PlotLook look = m_wndPlot.Look();
    look.bGrid = !look.bGrid;
    SetLook(look);
}

void CTrackerPanel::OnViewLabels()
{
    PlotLook look = m_wndPlot.Look();
    look.bLabels = !look.bLabels;
    SetLook(look);
}

void CTrackerPanel::OnViewFit() { m_wndPlot.Fit(); }

void CTrackerPanel::OnUpdateViewGrid(CCmdUI_E* pCmdUI)
{
    pCmdUI->SetCheck(m_wndPlot.Look().bGrid);
    pCmdUI->SetText(formatted(IDS_GRID, m_wndPlot.Look().nSpacing));
}

void CTrackerPanel::OnUpdateViewLabels(CCmdUI_E* pCmdUI)
{
    pCmdUI->SetCheck(m_wndPlot.Look().bLabels);
}

void CTrackerPanel::OnUpdateViewFit(CCmdUI_E* pCmdUI)
{
    pCmdUI->Enable(m_wndPlot.ZoomPercent() != 100);
}

void CTrackerPanel::OnUpdateItems(CCmdUI_E* pCmdUI)
{
    pCmdUI->SetText(formatted(IDS_ITEMS, m_wndPlot.ItemCount()));
}

void CTrackerPanel::OnUpdateZoom(CCmdUI_E* pCmdUI)
{
    pCmdUI->SetText(formatted(IDS_ZOOM, m_wndPlot.ZoomPercent()));
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
    WriteGeometry(L"clear", GetDlgItem(IDC_CLEAR, nullptr));
    WriteGeometry(L"settings", GetDlgItem(IDC_SETTINGS, nullptr));
    WriteGeometry(L"controls", GetDlgItem(IDC_CONTROLS, nullptr));
    WriteGeometry(L"save", GetDlgItem(IDC_SAVE, nullptr));
    WriteGeometry(L"open", GetDlgItem(IDC_OPEN, nullptr));
    WriteGeometry(L"grid", GetDlgItem(ID_VIEW_GRID, nullptr));
    WriteGeometry(L"labels", GetDlgItem(ID_VIEW_LABELS, nullptr));
    WriteGeometry(L"fit", GetDlgItem(ID_VIEW_FIT, nullptr));
    CString_E strRun;
    strRun.Format(L"run %d, tracker on %s", m_settings.Number(L"Runs"),
                  ProfileText(L"Tracker", L"Background", L"white").GetString());
    WriteReport(strRun);
    m_wndPlot.ReportZoom();
    ReportLook();
    WriteReport(L"ready");
}

// As the registry has it.
void CTrackerPanel::ReportLook() const
{
    const PlotLook look = m_settings.Look();
    CString_E strLine;
    strLine.Format(L"stored: title '%s', paper %d, grid %d of %d mm, labels %d, lines %d",
                   look.strTitle.GetString(), look.nPaper, look.bGrid, look.nSpacing, look.bLabels,
                   look.nLines);
    WriteReport(strLine);
}

// As the buttons of the status line show it.
void CTrackerPanel::ReportStatus()
{
    CString_E strStatus;
    for (const int nID : nStatusIds) {
        CString_E strText;
        GetDlgItemText(nID, strText);
        strStatus += (strStatus.IsEmpty() ? L"status: " : L", ") + strText;
        if (IsDlgButtonChecked(nID) == BST_CHECKED)
            strStatus += L" on";
        const QWidget* const pButton = GetDlgItem(nID, nullptr);
        if (pButton && !pButton->isEnabled())
            strStatus += L" off";
    }
    if (strStatus == m_strStatus)
        return;
    m_strStatus = strStatus;
    WriteReport(strStatus);
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
    if (!file.Open(m_strReportPath, CFile_E::modeWrite | CFile_E::modeCreate |
                                        CFile_E::modeNoTruncate | CFile_E::typeBinary))
        return;
    file.SeekToEnd();
    file.WriteString(strLine + L"\n");
    file.Close();
}
