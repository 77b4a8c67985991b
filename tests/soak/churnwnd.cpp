#include "churnwnd.h"

#include <QtWidgets/QWidget>

#include <iterator>
#include <thread>

namespace {

constexpr UINT_PTR nMainTimer = 1;
constexpr UINT_PTR nFirstTimer = 100;
constexpr int nTimers = 8;
constexpr UINT nTickMs = 10;
constexpr UINT WM_COUNT = WM_APP + 7;
constexpr DWORD dwControl = WS_CHILD | WS_VISIBLE | WS_TABSTOP;

CRect_E row(int nRow) { return {8, 8 + nRow * 26, 132, 30 + nRow * 26}; }

} // namespace

IMPLEMENT_DYNAMIC_E(CChurnWnd, CWnd_E, QWidget)

BEGIN_MESSAGE_MAP_E(CChurnWnd, CWnd_E)
ON_WM_TIMER_E()
ON_WM_PAINT_E()
ON_MESSAGE_E(WM_COUNT, &CChurnWnd::OnCount)
END_MESSAGE_MAP_E()

BOOL CChurnWnd::CreateInFrame()
{
    if (!Create(WS_CHILD, CRect_E(680, 70, 820, 280), TolmGetMainFrame()))
        return FALSE;
    ShowWindow(SW_SHOW);
    return SetTimer(nMainTimer, nTickMs) == nMainTimer;
}

void CChurnWnd::OnTimer(UINT_PTR nIDEvent)
{
    using Job = void (CChurnWnd::*)();
    static constexpr Job kJobs[] = {
        &CChurnWnd::MakeControls, &CChurnWnd::UseControls, &CChurnWnd::WrapAll,
        &CChurnWnd::OpenDialog,   &CChurnWnd::StartTimers, &CChurnWnd::Draw,
        &CChurnWnd::SendAndPost,  &CChurnWnd::UseRegistry, &CChurnWnd::MeetThread,
        &CChurnWnd::StopTimers,   &CChurnWnd::CloseDialog};
    if (nIDEvent == nMainTimer)
        (this->*kJobs[m_nTicks++ % std::size(kJobs)])();
}

void CChurnWnd::OnPaint()
{
    CPaintDC_E dc(this);
    CBrush_E brush(RGB(m_nTicks % 256, 160, 120));
    CRect_E rect;
    GetClientRect(&rect);
    dc.FillRect(&rect, &brush);
}

LRESULT CChurnWnd::OnCount(WPARAM wParam, LPARAM)
{
    m_nCounted += wParam;
    return static_cast<LRESULT>(m_nCounted);
}

void CChurnWnd::MakeControls()
{
    m_controls.clear();
    const auto add = [this](auto pControl, auto... args) {
        if (pControl->Create(args...))
            m_controls.push_back(std::move(pControl));
    };
    CWnd_E* const pThis = this;
    add(std::make_unique<CButton_E>(), L"Churn", dwControl, row(0), pThis, 1U);
    add(std::make_unique<CEdit_E>(), dwControl, row(1), pThis, 2U);
    add(std::make_unique<CListBox_E>(), dwControl, row(2), pThis, 3U);
    add(std::make_unique<CComboBox_E>(), dwControl | CBS_DROPDOWNLIST, row(3), pThis, 4U);
    add(std::make_unique<CSliderCtrl_E>(), dwControl, row(4), pThis, 5U);
    add(std::make_unique<CSpinButtonCtrl_E>(), dwControl, row(5), pThis, 6U);
    add(std::make_unique<CDateTimeCtrl_E>(), dwControl, row(6), pThis, 7U);
}

void CChurnWnd::UseControls()
{
    CString_E strText;
    for (const auto& pControl : m_controls) {
        strText.Format(L"%u of %u", m_nTicks, static_cast<unsigned>(m_controls.size()));
        pControl->SetWindowText(strText);
        pControl->GetWindowText(strText);
        if (auto* const pList = qobject_cast<CListBox_E*>(pControl.get()))
            for (int i = 0; i < 50; ++i)
                pList->AddString(strText);
        if (auto* const pCombo = qobject_cast<CComboBox_E*>(pControl.get()))
            for (int i = 0; i < 50; ++i)
                pCombo->AddString(strText);
    }
}

// Temporary wrappers for all that has none, of the host's and of other plug-ins' as well.
void CChurnWnd::WrapAll()
{
    const auto widgets = TolmGetMainFrame()->findChildren<QWidget*>();
    CRect_E rect;
    for (QWidget* const pWidget : widgets)
        CWnd_E::FromHandle(pWidget)->GetWindowRect(&rect);
}

void CChurnWnd::OpenDialog()
{
    m_pDialog = std::make_unique<CDialog_E>();
    if (m_pDialog->Create(GetSafeHwnd()))
        m_pDialog->ShowWindow(SW_SHOW);
}

void CChurnWnd::CloseDialog()
{
    if (m_pDialog)
        m_pDialog->DestroyWindow();
    m_pDialog.reset();
}

void CChurnWnd::StartTimers()
{
    for (int i = 0; i < nTimers; ++i)
        SetTimer(nFirstTimer + static_cast<UINT_PTR>(i), static_cast<UINT>(2 + i));
}

void CChurnWnd::StopTimers()
{
    for (int i = 0; i < nTimers; ++i)
        KillTimer(nFirstTimer + static_cast<UINT_PTR>(i));
    InvalidateRect(nullptr);
}

void CChurnWnd::Draw()
{
    CDC_E dc;
    CBitmap_E bitmap;
    dc.CreateCompatibleDC(nullptr);
    bitmap.CreateCompatibleBitmap(&dc, 200, 100);
    CBitmap_E* const pOldBitmap = dc.SelectObject(&bitmap);
    CFont_E font;
    font.CreateFont(12, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, 0, 0, 0, 0, 0, L"DejaVu Sans");
    const QFont oldFont = dc.SelectObject(&font);
    for (int i = 0; i < 20; ++i) {
        CPen_E pen(PS_SOLID, 1 + i % 3, RGB(i * 12, 0, 80));
        CPen_E* const pOldPen = dc.SelectObject(&pen);
        dc.MoveTo(0, i * 5);
        dc.LineTo(200, 100 - i * 5);
        dc.SelectObject(pOldPen);
    }
    dc.TextOut(4, 4, L"churn", 5);
    dc.SelectObject(oldFont);
    dc.SelectObject(pOldBitmap);
}

void CChurnWnd::SendAndPost()
{
    for (int i = 0; i < 20; ++i) {
        SendMessage(WM_COUNT, 1);
        PostMessage(WM_COUNT, 1);
    }
}

void CChurnWnd::UseRegistry()
{
    HKEY hKey = nullptr;
    if (RegCreateKey_E(HKEY_CURRENT_USER, L"Software\\VxDemo\\Churn", &hKey) != ERROR_SUCCESS)
        return;
    const DWORD dwTicks = m_nTicks;
    CString_E strName;
    strName.Format(L"Value%u", m_nTicks % 10);
    RegSetValueExW_E(hKey, strName, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&dwTicks),
                     sizeof dwTicks);
    RegCloseKey_E(hKey);
}

void CChurnWnd::MeetThread()
{
    const HANDLE hEvent = CreateEvent(nullptr, TRUE, FALSE, nullptr);
    std::thread thread([hEvent] { SetEvent(hEvent); });
    WaitForSingleObject(hEvent, 1000);
    thread.join();
    VxCloseHandle(hEvent);
}
