// What a window does with a message that nobody handles: it leaves the event to the widget.
#include <VxMFCEmu/wnd/window.h>

void CWnd_E::PassOn() { SetCurrentEventAccepted(false); }

template <typename Result>
Result CWnd_E::PassOn(Result result)
{
    PassOn();
    return result;
}

// Life of the window
BOOL CWnd_E::OnNcCreate(CREATESTRUCT*) { return PassOn<BOOL>(TRUE); }
BOOL CWnd_E::OnQueryEndSession() { return PassOn<BOOL>(TRUE); }
void CWnd_E::OnEndSession(BOOL) { PassOn(); }
BOOL CWnd_E::OnQueryOpen() { return PassOn<BOOL>(TRUE); }
void CWnd_E::OnParentNotify(UINT, LPARAM) { PassOn(); }
BOOL CWnd_E::OnCopyData(QWidget*, COPYDATASTRUCT*) { return PassOn<BOOL>(FALSE); }
BOOL CWnd_E::OnCopyData_E(CWnd_E*, COPYDATASTRUCT*) { return PassOn<BOOL>(FALSE); }

// Size, place and show
void CWnd_E::OnSize(UINT, int, int) { PassOn(); }
void CWnd_E::OnSizing(UINT, RECT*) { PassOn(); }
void CWnd_E::OnMove(int, int) { PassOn(); }
void CWnd_E::OnMoving(UINT, RECT*) { PassOn(); }
void CWnd_E::OnShowWindow(BOOL, UINT) { PassOn(); }
void CWnd_E::OnEnable(BOOL) { PassOn(); }
void CWnd_E::OnGetMinMaxInfo(MINMAXINFO*) { PassOn(); }
void CWnd_E::OnWindowPosChanging(WINDOWPOS*) { PassOn(); }
void CWnd_E::OnWindowPosChanged(WINDOWPOS*) { PassOn(); }
void CWnd_E::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) { PassOn(); }
void CWnd_E::OnStyleChanging(int, STYLESTRUCT*) { PassOn(); }
void CWnd_E::OnStyleChanged(int, STYLESTRUCT*) { PassOn(); }
void CWnd_E::OnEnterSizeMove() { PassOn(); }
void CWnd_E::OnExitSizeMove() { PassOn(); }

// Activation and focus
void CWnd_E::OnActivate(UINT, QWidget*, BOOL) { PassOn(); }
void CWnd_E::OnActivate_E(UINT, CWnd_E*, BOOL) { PassOn(); }
void CWnd_E::OnActivateApp(BOOL, DWORD) { PassOn(); }
int CWnd_E::OnMouseActivate(QWidget*, UINT, UINT) { return PassOn<int>(MA_ACTIVATE); }
int CWnd_E::OnMouseActivate_E(CWnd_E*, UINT, UINT) { return PassOn<int>(MA_ACTIVATE); }
void CWnd_E::OnChildActivate() { PassOn(); }
BOOL CWnd_E::OnNcActivate(BOOL) { return PassOn<BOOL>(TRUE); }
void CWnd_E::OnSetFocus(QWidget*) { PassOn(); }
void CWnd_E::OnSetFocus_E(CWnd_E*) { PassOn(); }
void CWnd_E::OnKillFocus(QWidget*) { PassOn(); }
void CWnd_E::OnKillFocus_E(CWnd_E*) { PassOn(); }
void CWnd_E::OnCaptureChanged(QWidget*) { PassOn(); }
void CWnd_E::OnCaptureChanged_E(CWnd_E*) { PassOn(); }
void CWnd_E::OnCancelMode() { PassOn(); }

// Painting
void CWnd_E::OnPaint() { PassOn(); }
HBRUSH CWnd_E::OnCtlColor(CDC_E*, QWidget*, UINT) { return PassOn<HBRUSH>(nullptr); }
HBRUSH CWnd_E::OnCtlColor_E(CDC_E*, CWnd_E*, UINT) { return PassOn<HBRUSH>(nullptr); }
BOOL CWnd_E::OnEraseBkgnd(CDC_E*) { return PassOn<BOOL>(FALSE); }
void CWnd_E::OnIconEraseBkgnd(CDC_E*) { PassOn(); }
void CWnd_E::OnNcPaint() { PassOn(); }
HCURSOR CWnd_E::OnQueryDragIcon() { return PassOn<HCURSOR>(nullptr); }
void CWnd_E::OnDrawItem(int, DRAWITEMSTRUCT*) { PassOn(); }
void CWnd_E::OnMeasureItem(int, MEASUREITEMSTRUCT*) { PassOn(); }
int CWnd_E::OnCompareItem(int, COMPAREITEMSTRUCT*) { return PassOn<int>(0); }
void CWnd_E::OnDeleteItem(int, DELETEITEMSTRUCT*) { PassOn(); }
void CWnd_E::OnPaletteChanged(QWidget*) { PassOn(); }
void CWnd_E::OnPaletteChanged_E(CWnd_E*) { PassOn(); }
void CWnd_E::OnPaletteIsChanging(QWidget*) { PassOn(); }
void CWnd_E::OnPaletteIsChanging_E(CWnd_E*) { PassOn(); }
BOOL CWnd_E::OnQueryNewPalette() { return PassOn<BOOL>(FALSE); }
void CWnd_E::OnSysColorChange() { PassOn(); }
LRESULT CWnd_E::OnThemeChanged() { return PassOn<LRESULT>(0); }

// Keyboard
void CWnd_E::OnKeyDown(UINT, UINT, UINT) { PassOn(); }
void CWnd_E::OnKeyUp(UINT, UINT, UINT) { PassOn(); }
void CWnd_E::OnChar(UINT, UINT, UINT) { PassOn(); }
void CWnd_E::OnDeadChar(UINT, UINT, UINT) { PassOn(); }
void CWnd_E::OnUniChar(UINT, UINT, UINT) { PassOn(); }
void CWnd_E::OnSysKeyDown(UINT, UINT, UINT) { PassOn(); }
void CWnd_E::OnSysKeyUp(UINT, UINT, UINT) { PassOn(); }
void CWnd_E::OnSysChar(UINT, UINT, UINT) { PassOn(); }
void CWnd_E::OnSysDeadChar(UINT, UINT, UINT) { PassOn(); }
void CWnd_E::OnHotKey(UINT, UINT, UINT) { PassOn(); }
UINT CWnd_E::OnGetDlgCode() { return PassOn<UINT>(0U); }
int CWnd_E::OnCharToItem(UINT, QWidget*, UINT) { return PassOn<int>(-1); }
int CWnd_E::OnCharToItem_E(UINT, CWnd_E*, UINT) { return PassOn<int>(-1); }
int CWnd_E::OnVKeyToItem(UINT, QWidget*, UINT) { return PassOn<int>(-1); }
int CWnd_E::OnVKeyToItem_E(UINT, CWnd_E*, UINT) { return PassOn<int>(-1); }
void CWnd_E::OnInputLangChange(UINT, UINT) { PassOn(); }

// Mouse
void CWnd_E::OnMouseMove(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnLButtonDown(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnLButtonUp(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnLButtonDblClk(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnRButtonDown(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnRButtonUp(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnRButtonDblClk(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnMButtonDown(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnMButtonUp(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnMButtonDblClk(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnXButtonDown(UINT, UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnXButtonUp(UINT, UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnXButtonDblClk(UINT, UINT, CPoint_E) { PassOn(); }
BOOL CWnd_E::OnMouseWheel(UINT, short, CPoint_E) { return PassOn<BOOL>(FALSE); }
void CWnd_E::OnMouseHWheel(UINT, short, CPoint_E) { PassOn(); }
void CWnd_E::OnMouseHover(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnMouseLeave() { PassOn(); }
BOOL CWnd_E::OnSetCursor(QWidget*, UINT, UINT) { return PassOn<BOOL>(FALSE); }
BOOL CWnd_E::OnSetCursor_E(CWnd_E*, UINT, UINT) { return PassOn<BOOL>(FALSE); }
void CWnd_E::OnContextMenu(QWidget*, CPoint_E) { PassOn(); }
void CWnd_E::OnContextMenu_E(CWnd_E*, CPoint_E) { PassOn(); }
LRESULT CWnd_E::OnNcHitTest(CPoint_E) { return PassOn<LRESULT>(HTCLIENT); }
void CWnd_E::OnNcMouseMove(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnNcMouseHover(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnNcMouseLeave() { PassOn(); }
void CWnd_E::OnNcLButtonDown(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnNcLButtonUp(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnNcLButtonDblClk(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnNcRButtonDown(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnNcRButtonUp(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnNcRButtonDblClk(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnNcMButtonDown(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnNcMButtonUp(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnNcMButtonDblClk(UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnNcXButtonDown(short, UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnNcXButtonUp(short, UINT, CPoint_E) { PassOn(); }
void CWnd_E::OnNcXButtonDblClk(short, UINT, CPoint_E) { PassOn(); }

// Scrolling, timers and commands
void CWnd_E::OnHScroll(UINT, UINT, QAbstractSlider*) { PassOn(); }
void CWnd_E::OnHScroll_E(UINT, UINT, CScrollBar_E*) { PassOn(); }
void CWnd_E::OnVScroll(UINT, UINT, QAbstractSlider*) { PassOn(); }
void CWnd_E::OnVScroll_E(UINT, UINT, CScrollBar_E*) { PassOn(); }
void CWnd_E::OnTimer(UINT_PTR) { PassOn(); }
void CWnd_E::OnSysCommand(UINT, LPARAM) { PassOn(); }
void CWnd_E::OnAppCommand(QWidget*, UINT, UINT, UINT) { PassOn(); }
void CWnd_E::OnAppCommand_E(CWnd_E*, UINT, UINT, UINT) { PassOn(); }
BOOL CWnd_E::OnHelpInfo(HELPINFO*) { return PassOn<BOOL>(FALSE); }
void CWnd_E::OnMenuSelect(UINT, UINT, HMENU) { PassOn(); }
void CWnd_E::OnEnterMenuLoop(BOOL) { PassOn(); }
void CWnd_E::OnExitMenuLoop(BOOL) { PassOn(); }
void CWnd_E::OnNextMenu(UINT, MDINEXTMENU*) { PassOn(); }
void CWnd_E::OnDropFiles(HDROP) { PassOn(); }
UINT CWnd_E::OnNotifyFormat(QWidget*, UINT) { return PassOn<UINT>(0U); }
UINT CWnd_E::OnNotifyFormat_E(CWnd_E*, UINT) { return PassOn<UINT>(0U); }
LRESULT CWnd_E::OnQueryUIState() { return PassOn<LRESULT>(0); }
void CWnd_E::OnChangeUIState(UINT, UINT) { PassOn(); }
void CWnd_E::OnUpdateUIState(UINT, UINT) { PassOn(); }

// System
void CWnd_E::OnSettingChange(UINT, LPCTSTR) { PassOn(); }
void CWnd_E::OnDevModeChange(LPTSTR) { PassOn(); }
BOOL CWnd_E::OnDeviceChange(UINT, DWORD_PTR) { return PassOn<BOOL>(TRUE); }
void CWnd_E::OnFontChange() { PassOn(); }
void CWnd_E::OnTimeChange() { PassOn(); }
void CWnd_E::OnCompacting(UINT) { PassOn(); }
void CWnd_E::OnSpoolerStatus(UINT, UINT) { PassOn(); }
UINT CWnd_E::OnPowerBroadcast(UINT, LPARAM) { return PassOn<UINT>(1U); }
void CWnd_E::OnUserChanged() { PassOn(); }
void CWnd_E::OnSessionChange(UINT, UINT) { PassOn(); }
void CWnd_E::OnTCard(UINT, DWORD) { PassOn(); }
void CWnd_E::OnRawInput(UINT, HANDLE) { PassOn(); }

// Clipboard
void CWnd_E::OnDestroyClipboard() { PassOn(); }
void CWnd_E::OnDrawClipboard() { PassOn(); }
void CWnd_E::OnClipboardUpdate() { PassOn(); }
void CWnd_E::OnRenderFormat(UINT) { PassOn(); }
void CWnd_E::OnRenderAllFormats() { PassOn(); }
void CWnd_E::OnAskCbFormatName(UINT, LPTSTR) { PassOn(); }
void CWnd_E::OnChangeCbChain(HWND, HWND) { PassOn(); }
void CWnd_E::OnPaintClipboard(QWidget*, HGLOBAL) { PassOn(); }
void CWnd_E::OnPaintClipboard_E(CWnd_E*, HGLOBAL) { PassOn(); }
void CWnd_E::OnSizeClipboard(QWidget*, HGLOBAL) { PassOn(); }
void CWnd_E::OnSizeClipboard_E(CWnd_E*, HGLOBAL) { PassOn(); }
void CWnd_E::OnHScrollClipboard(QWidget*, UINT, UINT) { PassOn(); }
void CWnd_E::OnHScrollClipboard_E(CWnd_E*, UINT, UINT) { PassOn(); }
void CWnd_E::OnVScrollClipboard(QWidget*, UINT, UINT) { PassOn(); }
void CWnd_E::OnVScrollClipboard_E(CWnd_E*, UINT, UINT) { PassOn(); }
