#include "controlspage.h"

#include "trackerwnd.h"
#include "ui_controls.h"

#include <QtCore/QSignalBlocker>

#include <cstdarg>

namespace {

constexpr DWORD dwControl = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
constexpr CSize_E sizeSample(40, 14);

struct LineType
{
    const wchar_t* lpszName;
    int nPen;
};
constexpr LineType kLineTypes[] = {{L"Continuous", PS_SOLID},
                                   {L"Hidden", PS_DASH},
                                   {L"Centre", PS_DASHDOT},
                                   {L"Phantom", PS_DASHDOTDOT}};

template <typename Box>
void setStrings(Box& box, std::initializer_list<const wchar_t*> strings)
{
    box.ResetContent();
    for (const wchar_t* const lpszString : strings)
        box.AddString(lpszString);
}

CString_E textOf(CWnd_E& window)
{
    CString_E strText;
    window.GetWindowText(strText);
    return strText;
}

CString_E selectedIn(const CListBox_E& list)
{
    CString_E strText;
    list.GetText(list.GetCurSel(), strText);
    return strText;
}

CString_E dateIn(const CDateTimeCtrl_E& control)
{
    _SYSTEMTIME date{};
    control.GetTime(&date);
    CString_E strDate;
    strDate.Format(L"%04d-%02d-%02d", date.wYear, date.wMonth, date.wDay);
    return strDate;
}

} // namespace

CControlsForm::CControlsForm(QWidget* pParent) : QDialog(pParent) { Ui::controls().setupUi(this); }

IMPLEMENT_DYNAMIC_E(CControlsPage, CDialog_E, QDialog)

BEGIN_MESSAGE_MAP_E(CControlsPage, CDialog_E)
ON_BN_CLICKED_E(IDC_FILL, &CControlsPage::OnFill)
ON_BN_CLICKED_E(IDC_PLOT, &CControlsPage::OnPlot)
END_MESSAGE_MAP_E()

BOOL CControlsPage::AttachDefault(QWidget* pParent)
{
    return Attach(new CControlsForm(pParent), pParent, false);
}

void CControlsPage::DoDataExchange(CDataExchange_E* pDX)
{
    CDialog_E::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_NAME, m_wndName);
    DDX_Control(pDX, IDC_SIZE, m_wndSize);
    DDX_Control(pDX, IDC_FRAME, m_wndFrame);
    DDX_Control(pDX, IDC_VIEW, m_wndView);
    DDX_Control(pDX, IDC_COPIES, m_wndCopies);
    DDX_Control(pDX, IDC_WEIGHT, m_wndWeight);
    DDX_Control(pDX, IDC_DATE, m_wndDate);
    DDX_Control(pDX, IDC_SUMMARY, m_wndSummary);
    DDX_Control(pDX, IDC_PLOT, m_wndPlot);
}

BOOL CControlsPage::OnInitDialog()
{
    if (!CDialog_E::OnInitDialog() || !m_wndLandscape.SubclassDlgItem(IDC_LANDSCAPE, this) ||
        !m_wndPortrait.SubclassDlgItem(IDC_PORTRAIT, this))
        return FALSE;
    MakeOutput();
    ConnectOutput();
    LayOut();
    m_wndCopies.SetRange32(1, 99);
    m_wndWeight.SetRange(0, 100);
    m_wndWeight.SetPageSize(10);
    m_wndDate.SetFormat(L"yyyy-MM-dd");
    FillSheet();
    FillOutput();
    return TRUE;
}

// Layouts place what is made here, so that the rectangles do not count.
void CControlsPage::MakeOutput()
{
    const CRect_E rect;
    m_wndOutput.Create(L"Output", WS_CHILD | WS_VISIBLE | BS_GROUPBOX, rect, this, IDC_OUTPUT);
    CWnd_E* const pGroup = &m_wndOutput;
    m_wndHidden.Create(L"&Hidden lines", dwControl | BS_AUTO3STATE, rect, pGroup, IDC_HIDDEN);
    m_wndLineType.Create(dwControl | CBS_DROPDOWNLIST, rect, pGroup, IDC_LINETYPE);
    m_wndScale.Create(dwControl | VXUDS_DOUBLE, rect, pGroup, IDC_SCALE);
    m_wndLayers.Create(dwControl, rect, pGroup, IDC_LAYERS);
    m_wndNotes.Create(dwControl | ES_MULTILINE | ES_WANTRETURN, rect, pGroup, IDC_NOTES);
    m_wndPan.Create(dwControl | SBS_HORZ, rect, pGroup, IDC_PAN);
    m_wndProgress.Create(WS_CHILD | WS_VISIBLE, rect, pGroup, IDC_PROGRESS);
    m_wndCaption.Create(L"Notifications", WS_CHILD | WS_VISIBLE, rect, this);
    m_wndNotices.Create(dwControl, rect, this, IDC_NOTICES);

    const SCROLLINFO info = {sizeof(SCROLLINFO), SIF_RANGE | SIF_PAGE, 0, 100, 20, 0, 0};
    m_wndPan.SetScrollInfo(&info);
    m_wndScale.SetRange32(0, 50);
    m_wndProgress.SetStep(25);
    DrawLineTypes();
}

void CControlsPage::ConnectOutput()
{
    QWidget* const pPage = GetSafeHwnd();
    Connect(IDC_HIDDEN, SIGNAL(clicked()), this, SLOT(OnBnClickedHidden()), pPage);
    Connect(IDC_LINETYPE, SIGNAL(currentIndexChanged(int)), this, SLOT(OnCbnSelchangeLineType()),
            pPage);
    Connect(IDC_SCALE, SIGNAL(valueChanged(double)), this, SLOT(OnDeltaposScale()), pPage);
    Connect(IDC_LAYERS, SIGNAL(itemChanged(QListWidgetItem*)), this,
            SLOT(OnCheckLayer(QListWidgetItem*)), pPage);
    Connect(IDC_NOTES, SIGNAL(textChanged()), this, SLOT(OnEnChangeNotes()), pPage);
    Connect(IDC_PAN, SIGNAL(valueChanged(int)), this, SLOT(OnHScrollPan()), pPage);
}

void CControlsPage::LayOut()
{
    auto* const pRows = new QFormLayout(m_wndOutput);
    pRows->setHorizontalSpacing(12);
    pRows->setVerticalSpacing(10);
    pRows->addRow(QString(), m_wndHidden);
    pRows->addRow(QStringLiteral("Line &type"), m_wndLineType);
    pRows->addRow(QStringLiteral("Sca&le 1:"), m_wndScale);
    pRows->addRow(QStringLiteral("La&yers"), m_wndLayers);
    pRows->addRow(QStringLiteral("&Revisions"), m_wndNotes);
    pRows->addRow(QStringLiteral("&Pan"), m_wndPan);
    pRows->addRow(QStringLiteral("Progress"), m_wndProgress);
    auto* const pNotices = new QVBoxLayout;
    pNotices->setSpacing(4);
    pNotices->addWidget(m_wndCaption);
    pNotices->addWidget(m_wndNotices, 1);
    auto* const pColumns = GetSafeHwnd()->findChild<QHBoxLayout*>(QStringLiteral("columns"));
    pColumns->addWidget(m_wndOutput);
    pColumns->addLayout(pNotices);
    for (int i = 0; i < pColumns->count(); ++i)
        pColumns->setStretch(i, 1);
}

// Draws a sample of each line into the bitmaps of the image list.
void CControlsPage::DrawLineTypes()
{
    constexpr int nTypes = static_cast<int>(std::size(kLineTypes));
    m_lineTypes.DeleteImageList();
    m_lineTypes.Create(sizeSample.cx, sizeSample.cy, ILC_COLOR32, nTypes, 0);
    for (int i = 0; i < nTypes; ++i) {
        IMAGEINFO info;
        m_lineTypes.GetImageInfo(i, &info);
        CPen_E pen(kLineTypes[i].nPen, 1, RGB(0, 0, 0));
        CDC_E dc;
        dc.CreateCompatibleDC(nullptr);
        dc.SelectObject(CBitmap_E::FromHandle(info.hbmImage));
        dc.FillSolidRect(0, 0, sizeSample.cx, sizeSample.cy, RGB(255, 255, 255));
        dc.SelectObject(&pen);
        dc.MoveTo(2, sizeSample.cy / 2);
        dc.LineTo(sizeSample.cx - 3, sizeSample.cy / 2);
    }
    m_wndLineType.SetImageList(&m_lineTypes);
    qobject_cast<QComboBox*>(m_wndLineType)->setIconSize({sizeSample.cx, sizeSample.cy});
}

// Combo boxes say nothing of what a program sets, nor do textEdited() and clicked(). The other
// signals tell of every change, so that the functions which fill the controls hold them back.
void CControlsPage::FillSheet()
{
    const QSignalBlocker quiet[] = {
        QSignalBlocker(m_wndView.GetSafeHwnd()), QSignalBlocker(m_wndCopies.GetSafeHwnd()),
        QSignalBlocker(m_wndWeight.GetSafeHwnd()), QSignalBlocker(m_wndDate.GetSafeHwnd())};
    m_wndName.SetWindowText(L"Gearbox housing");
    setStrings(m_wndSize, {L"A4", L"A3", L"A2", L"A1", L"A0"});
    m_wndSize.SelectString(-1, L"a2");
    CheckRadioButton(IDC_LANDSCAPE, IDC_PORTRAIT, IDC_LANDSCAPE);
    m_wndFrame.SetCheck(BST_CHECKED);
    setStrings(m_wndView, {L"Front", L"Top", L"Left side", L"Isometric"});
    m_wndView.SetCurSel(0);
    m_wndCopies.SetPos32(2);
    m_wndWeight.SetPos(35);
    _SYSTEMTIME date{};
    date.wYear = 2024;
    date.wMonth = 3;
    date.wDay = 14;
    m_wndDate.SetTime(&date);
    m_wndSummary.SetWindowText(L"Filled in from the office standard.");
}

void CControlsPage::FillOutput()
{
    const QSignalBlocker quiet[] = {
        QSignalBlocker(m_wndScale.GetSafeHwnd()), QSignalBlocker(m_wndLayers.GetSafeHwnd()),
        QSignalBlocker(m_wndNotes.GetSafeHwnd()), QSignalBlocker(m_wndPan.GetSafeHwnd())};
    m_wndHidden.SetCheck(BST_INDETERMINATE);
    m_wndLineType.ResetContent();
    for (const LineType& type : kLineTypes) {
        CString_E strName(type.lpszName);
        COMBOBOXEXITEM item{};
        item.mask = CBEIF_TEXT | CBEIF_IMAGE;
        item.iItem = -1;
        item.pszText = strName.GetBuffer();
        item.iImage = m_wndLineType.GetCount();
        m_wndLineType.InsertItem(&item);
    }
    m_wndLineType.SetCurSel(0);
    m_wndScale.SetWindowText(L"2.50");
    setStrings(m_wndLayers, {L"Outline", L"Dimensions", L"Hatching", L"Construction"});
    m_wndLayers.SetCheck(0, BST_CHECKED);
    m_wndLayers.SetCheck(1, BST_CHECKED);
    m_wndNotes.SetWindowText(L"A  First issue\nB  Wider bearing seat");
    m_wndPan.SetScrollPos(40);
    m_wndProgress.SetPos(0);
    m_wndPlot.EnableWindow();
}

void CControlsPage::OnFill()
{
    FillSheet();
    FillOutput();
    SendReport(*this, L"filled: " + State());
}

void CControlsPage::OnPlot()
{
    m_wndProgress.StepIt();
    CString_E strSummary;
    strSummary.Format(L"Plotting %s, %d %%", textOf(m_wndName).GetString(), m_wndProgress.GetPos());
    m_wndSummary.SetWindowText(strSummary);
    m_wndPlot.EnableWindow(m_wndProgress.GetPos() < 100);
    Notify(L"BN_CLICKED plot");
    SendReport(*this, L"plotting: " + State());
}

CString_E CControlsPage::State()
{
    CString_E strSheet;
    strSheet.Format(L"%s, %s, portrait %d, frame %d, %s, copies %d, weight %d, %s",
                    textOf(m_wndName).GetString(), textOf(m_wndSize).GetString(),
                    m_wndPortrait.GetCheck(), m_wndFrame.GetCheck(),
                    selectedIn(m_wndView).GetString(), m_wndCopies.GetPos32(), m_wndWeight.GetPos(),
                    dateIn(m_wndDate).GetString());
    CString_E strOutput;
    strOutput.Format(L"; hidden %d, %s, 1:%s, layers ", m_wndHidden.GetCheck(),
                     textOf(m_wndLineType).GetString(), textOf(m_wndScale).GetString());
    for (int i = 0; i < m_wndLayers.GetCount(); ++i)
        strOutput += m_wndLayers.GetCheck(i) ? L'1' : L'0';
    strOutput.AppendFormat(L", %d lines, pan %d, progress %d", m_wndNotes.GetLineCount(),
                           m_wndPan.GetScrollPos(), m_wndProgress.GetPos());
    return strSheet + strOutput;
}

void CControlsPage::Notify(const wchar_t* lpszFormat, ...)
{
    CString_E strLine;
    va_list args;
    va_start(args, lpszFormat);
    strLine.FormatV(lpszFormat, args);
    va_end(args);
    m_wndNotices.SetTopIndex(m_wndNotices.AddString(strLine));
    SendReport(*this, strLine);
}

void CControlsPage::OnEnChangeName()
{
    Notify(L"EN_CHANGE name '%s'", textOf(m_wndName).GetString());
}

void CControlsPage::OnCbnSelchangeSize()
{
    Notify(L"CBN_SELCHANGE size %s", textOf(m_wndSize).GetString());
}

void CControlsPage::OnBnClickedOrientation()
{
    Notify(L"BN_CLICKED %s", m_wndPortrait.GetCheck() ? L"portrait" : L"landscape");
}

void CControlsPage::OnBnClickedFrame() { Notify(L"BN_CLICKED frame %d", m_wndFrame.GetCheck()); }

void CControlsPage::OnLbnSelchangeView()
{
    Notify(L"LBN_SELCHANGE view %s", selectedIn(m_wndView).GetString());
}

void CControlsPage::OnDeltaposCopies()
{
    Notify(L"UDN_DELTAPOS copies %d", m_wndCopies.GetPos32());
}

void CControlsPage::OnHScrollWeight() { Notify(L"WM_HSCROLL weight %d", m_wndWeight.GetPos()); }

void CControlsPage::OnDatetimechangeDate()
{
    Notify(L"DTN_DATETIMECHANGE %s", dateIn(m_wndDate).GetString());
}

void CControlsPage::OnBnClickedHidden() { Notify(L"BN_CLICKED hidden %d", m_wndHidden.GetCheck()); }

void CControlsPage::OnCbnSelchangeLineType()
{
    Notify(L"CBN_SELCHANGE line type %s", textOf(m_wndLineType).GetString());
}

void CControlsPage::OnDeltaposScale()
{
    Notify(L"UDN_DELTAPOS scale %s", textOf(m_wndScale).GetString());
}

void CControlsPage::OnCheckLayer(QListWidgetItem* pItem)
{
    const int nLayer = pItem->listWidget()->row(pItem);
    Notify(L"CLBN_CHKCHANGE layer %d is %d", nLayer, m_wndLayers.GetCheck(nLayer));
}

void CControlsPage::OnEnChangeNotes()
{
    Notify(L"EN_CHANGE notes, %d characters", m_wndNotes.GetWindowTextLength());
}

void CControlsPage::OnHScrollPan() { Notify(L"WM_HSCROLL pan %d", m_wndPan.GetScrollPos()); }

void CControlsPage::OnCancel()
{
    Notify(L"controls closed");
    DestroyWindow();
}
