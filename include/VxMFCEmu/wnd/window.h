/// @file window.h
/// CWnd_E: the MFC window interface over a widget.
///
/// A CWnd_E is bound to one widget and is neither its parent nor its child. It owns the widget when
/// it made it (Create, AttachDefault) and lets it live when it was given it (SubclassWindow,
/// FromHandle). The widget's events pass through the window's event filter, which turns them into
/// messages for the handlers of its message map (see messagemap.h) before the widget itself sees
/// them.
///
/// Differs from MFC: DestroyWindow() hides the widget, and an owned one is deleted later by the
/// event loop; a non-zero result of OnCreate(), not only -1, makes creation fail; binding a window
/// to a widget changes nothing in how the widget works until a handler is written.
///
/// Members that have a free function of the same name behave as it does, for the bound widget;
/// unbound windows give the result for a null handle.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/core/cmdtarget.h>
#include <VxMFCEmu/text/cstring.h>
#include <VxMFCEmu/wnd/commandmap.h>
#include <VxMFCEmu/wnd/geometry.h>
#include <VxMFCEmu/wnd/messagemap.h>
#include <VxMFCEmu/wnd/messagestructs.h>
#include <VxMFCEmu/wnd/timers.h>
#include <VxMFCEmu/wnd/wincodes.h>
#include <VxMFCEmu/wnd/winmessages.h>
#include <VxMFCEmu/wnd/winstyles.h>

#include <QtCore/QEvent>
#include <QtCore/QPointer>

#include <memory>
#include <utility>
#include <vector>

QT_BEGIN_NAMESPACE
class QAbstractSlider;
class QMenuBar;
class QScrollBar;
QT_END_NAMESPACE

namespace vx::detail {
class CommandMap;
class DispatchGuard;
} // namespace vx::detail

class CDC_E;
class CDataExchange_E;
class CMenu_E;
class CScrollBar_E;
class VxWinMsgEvent;

/// A window: the base of dialogs and controls.
class VXMFC_EXPORT CWnd_E : public CCmdTarget_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CWnd_E)

    CWnd_E();
    ~CWnd_E() override;

    // Binding

    /// Hands the window to OnCreate(), takes over the widget's incoming connections, fills the
    /// message map. FALSE when OnCreate() gives anything but 0.
    BOOL OnAttach() override;
    using CCmdTarget_E::AttachDefault;

protected:
    /// Fills the message map; runs once per attachment. A derived class calls its base's first.
    virtual void OnMessageMap();

public:
    /// Makes a plain widget below @p pParent that follows the pointer, and attaches it as owned.
    virtual BOOL AttachDefault(QWidget* pParent);
    /// For code that builds the window's content; empty here.
    virtual void SetupUI();
    /// Lays out what lies along the window's edges: its menu bar and scroll bars.
    virtual void RecalcLayout();
    /// Makes the window's widget below @p pParent, or below the host's main frame when that is
    /// null.
    virtual BOOL Create(QWidget* pParent);
    /// The same with a WS_* style word: WS_VISIBLE shows, WS_VSCROLL and WS_HSCROLL add scroll
    /// bars.
    BOOL Create(UINT dwStyle, QWidget* pParent);
    /// The same, placed at @p rect, in the parent's coordinates.
    BOOL Create(UINT dwStyle, const tagRECT& rect, QWidget* pParent);
    /// Hides the window and sends it and its children WM_DESTROY and WM_NCDESTROY. The window may
    /// be gone afterwards (`delete this` in PostNcDestroy()).
    virtual BOOL DestroyWindow();
    /// Called as the last thing of a window's life; empty here.
    virtual void PostNcDestroy();
    /// Sees each message before it is dispatched; TRUE consumes it. FALSE here.
    virtual BOOL PreTranslateMessage(tagMSG* pMsg);
    /// Calls the handler of a message; TRUE when there is one. @p pResult may be null.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Moves data between members and controls (see dlg/ddx.h); empty here.
    virtual void DoDataExchange(CDataExchange_E* pDX);
    /// Runs DoDataExchange(), from the controls to the members for TRUE. FALSE when it throws, as
    /// it does for invalid input.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    /// Shows the entries of one menu in the window's menu bar, which the window owns; the menu
    /// stays its owner's. Null takes the menu bar away. FALSE without a widget.
    virtual BOOL SetMenu(CMenu_E* pMenu);
    /// Shows each menu under its own title; an empty list takes the menu bar away.
    virtual BOOL SetMenu(QList<CMenu_E*> menus);
    /// Called before SubclassWindow() returns; empty here.
    virtual void PreSubclassWindow();
    /// @{
    /// As GetWindowText_E() and SetWindowText_E(), for this window.
    virtual void GetWindowText(CString_E& rString);
    virtual void SetWindowText(const wchar_t* lpszString);
    /// @}
    /// The scroll bar control that stands in for the window's own; null here.
    virtual CScrollBar_E* GetScrollBarCtrl(int nBar) const;
    /// Called when the window is attached; anything but 0 makes creation fail.
    virtual int OnCreate(tagCREATESTRUCTW* pCreate);

    /// Binds a widget that lives on its own; it is not deleted with the window.
    BOOL SubclassWindow(QWidget* pWidget);
    /// Binds the descendant of @p pParent with this object name; FALSE when there is none.
    BOOL SubclassDlgItem(const char* pszName, CWnd_E* pParent);
    /// The same by the name that the calling plug-in's id map has for @p nID.
    BOOL SubclassDlgItem(UINT nID, CWnd_E* pParent);

    /// The bound widget; null while unbound.
    QWidget* GetSafeHwnd() const;
    /// GetSafeHwnd().
    operator HWND() const { return GetSafeHwnd(); }

    /// The window bound to a widget; null when there is none.
    static CWnd_E* FromHandlePermanent(QWidget* pWidget);
    /// The window bound to a widget, or a temporary one that lives until the next idle time.
    static CWnd_E* FromHandle(QWidget* pWidget);
    /// Empties the temporary part of the window handle map.
    static void DeleteTempMap();

    // Messages

    /// @{
    /// Adds or replaces the entry of a message; see messagemap.h for the checked way to do so.
    void AddMsgMapEntry(UINT message, unsigned long nSig, AFX_PMSG_E pfn, AFX_PMSG_E pfnE);
    void AddMsgMapEntry(UINT message, const AFX_MSGMAP_ENTRY_E& entry);
    /// @}
    /// Has @p entry answer WM_CTLCOLORMSGBOX to WM_CTLCOLORSTATIC, and sends the window the one of
    /// each of its controls before that is painted. See ON_WM_CTLCOLOR_E.
    void AddCtlColorEntry(const AFX_MSGMAP_ENTRY_E& entry);
    /// OnWndMsg() aside from the current event: whatever the handler does to the accepted flag is
    /// lost.
    BOOL CallWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Adds or replaces the handler of a command, or of its state; see commandmap.h for the checked
    /// way to do so. An empty name adds nothing.
    void AddCmdMapEntry(const QString& strName, VxCommandEntry_E entry, AFX_PMSG_E pfn,
                        UINT nID = 0);
    /// The same for all ids of a range that the calling plug-in's id map has.
    void AddCmdMapRange(UINT nFirst, UINT nLast, VxCommandEntry_E entry, AFX_PMSG_E pfn);
    /// A control's own answer to a message that no handler took (EM_*, CB_*, ...); TRUE when it has
    /// one. FALSE here.
    virtual BOOL OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// @{
    /// As SendMessage_E() and PostMessage_E(), to this window.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    /// @}
    /// Sends @p e, which stays the caller's, to the widget; FALSE without one.
    BOOL SendEvent(QEvent* e);
    /// Posts @p e, which is owned by the event loop from then on, also on failure. With @p
    /// bCompress it is dropped, giving FALSE, while one of its type posted this way has not been
    /// dispatched yet.
    /// An event that another filter swallows counts as undispatched until the window is bound anew.
    BOOL PostEvent(QEvent* e, int nPriority, bool bCompress);
    /// Sets the accepted flag of the event being dispatched to this window; a handler that clears
    /// it lets the event go on to the widget.
    void SetCurrentEventAccepted(bool bAccepted);
    /// The event being dispatched to this window; null outside of message handlers.
    QEvent* GetCurrentEvent() const { return m_pCurrentEvent; }
    /// Turns the widget's events into messages; see the page above.
    bool eventFilter(QObject* watched, QEvent* e) override;

    // Controls

    /// The descendant with this object name; null for a null or empty name.
    QWidget* GetChildWidget(const char* pszName) const;
    /// @{
    /// FromHandle() of the descendant with this object name, of a widget, or of the control with
    /// this id; null when there is none.
    CWnd_E* GetDlgItem(const char* pszName) const;
    CWnd_E* GetDlgItem(QWidget* pWidget) const;
    CWnd_E* GetDlgItem(int nID) const;
    /// @}
    /// The widget of the control with this id, also stored in @p ppWidget unless that is null; null
    /// when there is none.
    QWidget* GetDlgItem(int nID, QWidget** ppWidget) const;
    /// As the function of this name with the suffix `_E`, for this window.
    int GetDlgCtrlID() const;
    /// Renames the widget to the name of @p nID and returns the id it had; an unknown id clears the
    /// name.
    int SetDlgCtrlID(int nID);
    /// @{
    /// As the function of this name with the suffix `_E`, for this window.
    BOOL SetDlgItemText(int nID, const wchar_t* lpszString);
    BOOL SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE);
    int GetDlgItemText(int nID, wchar_t* lpszString, int nMaxCount) const;
    int GetDlgItemText(int nID, CString_E& rString) const;
    UINT GetDlgItemInt(int nID, BOOL* pbTranslated = nullptr, BOOL bSigned = TRUE) const;
    UINT IsDlgButtonChecked(int nID) const;
    void CheckDlgButton(int nID, UINT nCheck);
    void CheckRadioButton(int nFirst, int nLast, int nCheck);
    /// @}

    // State, text and place

    /// @{
    /// As the function of this name with the suffix `_E`, for this window.
    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const;
    BOOL IsWindowEnabled() const;
    BOOL EnableWindow(BOOL bEnable = TRUE);
    BOOL CloseWindow();
    BOOL UpdateWindow();
    /// @}
    /// Shows a modal message box over this window and returns the id of the button that ended it.
    /// The types are the MB_* values; without a caption it is "Error".
    int MessageBox(const wchar_t* lpszText, const wchar_t* lpszCaption = nullptr, UINT nType = 0);
    /// Schedules a repaint of the whole window. Differs from Win32: WM_ERASEBKGND is sent whatever
    /// @p bErase, since Qt paints what lies under the window anew, over the former contents.
    void Invalidate(BOOL bErase = TRUE);
    /// Schedules a repaint of a rectangle, of the whole window for null.
    void InvalidateRect(const tagRECT* pRect, BOOL bErase = TRUE);
    /// Centres the window on @p pOther, or on its parent, or on its screen.
    void CenterWindow(CWnd_E* pOther = nullptr);
    /// @{
    /// As the function of this name with the suffix `_E`, for this window.
    int GetWindowText(wchar_t* lpszString, int nMaxCount) const;
    int GetWindowTextLength() const;
    /// @}
    /// The style bits that the window was created with, and that it found at its widget.
    DWORD GetStyle() const { return m_dwStyle; }
    /// @{
    /// As the function of this name with the suffix `_E`, for this window.
    BOOL GetWindowRect(tagRECT* pRect) const;
    BOOL GetClientRect(tagRECT* pRect) const;
    BOOL MoveWindow(int x, int y, int cx, int cy, BOOL bRepaint = TRUE);
    BOOL MoveWindow(const tagRECT* pRect, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd_E* pInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    BOOL ClientToScreen(tagPOINT* pPoint) const;
    BOOL ClientToScreen(tagRECT* pRect) const;
    BOOL ScreenToClient(tagPOINT* pPoint) const;
    BOOL ScreenToClient(tagRECT* pRect) const;
    int MapWindowPoints(CWnd_E* pTo, tagPOINT* pPoints, UINT nCount) const;
    int MapWindowPoints(CWnd_E* pTo, tagRECT* pRect) const;
    BOOL MapDialogRect(tagRECT* pRect) const;
    UINT GetDpiForWindow() const;
    /// @}

    // Other windows

    /// @{
    /// As the function of this name with the suffix `_E`, with FromHandle() of its result.
    CWnd_E* GetParent() const;
    CWnd_E* SetParent(CWnd_E* pNewParent);
    CWnd_E* GetTopWindow() const;
    /// @}
    /// As the function of this name with the suffix `_E`, for this window.
    BOOL IsChild(const CWnd_E* pWnd) const;
    /// @{
    /// As the function of this name with the suffix `_E`, with FromHandle() of its result.
    CWnd_E* SetFocus();
    CWnd_E* SetActiveWindow();
    CWnd_E* SetCapture();
    static CWnd_E* GetFocus();
    static CWnd_E* GetActiveWindow();
    static CWnd_E* GetCapture();
    static CWnd_E* GetDesktopWindow();
    static CWnd_E* WindowFromPoint(tagPOINT point);
    /// @}

    // Scroll bars: made by ShowScrollBar(), owned by the window, along its right and bottom edges.
    // Each use of one sends the window WM_HSCROLL or WM_VSCROLL.

    /// @{
    /// Shows, hides or enables the scroll bar SB_HORZ, SB_VERT or both.
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);
    BOOL EnableScrollBar(int nBar, UINT nArrowFlags = 0);
    /// @}
    /// Sets the range; nothing without that scroll bar.
    void SetScrollRange(int nBar, int nMin, int nMax, BOOL bRedraw = TRUE);
    /// Gives the range; 0 and 0 without that scroll bar.
    void GetScrollRange(int nBar, int* pMin, int* pMax) const;
    /// Sets the position without sending a message and returns the previous one.
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    /// The position; 0 without that scroll bar.
    int GetScrollPos(int nBar) const;

    /// @{
    /// SetTimer_E() and KillTimer_E() for this window.
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT uElapse, TIMERPROC pfnTimer = nullptr);
    BOOL KillTimer(UINT_PTR nIDEvent);
    /// @}

Q_SIGNALS:
    /// For applications; the library does not emit it.
    void timeOut(unsigned long nIDEvent);
    /// Emitted each time the event loop is about to wait; command-UI updates hang on it.
    void updateCmdUi();

public Q_SLOTS:
    /// Emits updateCmdUi().
    void OnEnterIdle();

public:
    // Message handlers. These defaults clear the current event's accepted flag, so that the event
    // goes on to the widget; call them to have a message handled in the widget's own way.

    // Life of the window
    /// Takes away the scroll bars and the menu bar.
    void OnDestroy();
    /// Closes the native window of an owned widget, detaches the widget and calls PostNcDestroy().
    void OnNcDestroy();
    /// Lets the event go on to the widget.
    BOOL OnNcCreate(CREATESTRUCT* pCreate);
    /// Destroys the window.
    void OnClose();
    /// @{
    /// Lets the event go on to the widget.
    BOOL OnQueryEndSession();
    void OnEndSession(BOOL bEnding);
    BOOL OnQueryOpen();
    void OnParentNotify(UINT nMessage, LPARAM lParam);
    BOOL OnCopyData(QWidget* pWnd, COPYDATASTRUCT* pData);
    BOOL OnCopyData_E(CWnd_E* pWnd, COPYDATASTRUCT* pData);
    /// @}

    // Size, place and show
    /// @{
    /// Lets the event go on to the widget.
    void OnSize(UINT nType, int cx, int cy);
    void OnSizing(UINT nSide, RECT* pRect);
    void OnMove(int x, int y);
    void OnMoving(UINT nSide, RECT* pRect);
    void OnShowWindow(BOOL bShow, UINT nStatus);
    void OnEnable(BOOL bEnable);
    void OnGetMinMaxInfo(MINMAXINFO* pInfo);
    void OnWindowPosChanging(WINDOWPOS* pPos);
    void OnWindowPosChanged(WINDOWPOS* pPos);
    void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* pParams);
    void OnStyleChanging(int nStyleType, STYLESTRUCT* pStyle);
    void OnStyleChanged(int nStyleType, STYLESTRUCT* pStyle);
    void OnEnterSizeMove();
    void OnExitSizeMove();
    /// @}

    // Activation and focus
    /// @{
    /// Lets the event go on to the widget.
    void OnActivate(UINT nState, QWidget* pWndOther, BOOL bMinimized);
    void OnActivate_E(UINT nState, CWnd_E* pWndOther, BOOL bMinimized);
    void OnActivateApp(BOOL bActive, DWORD dwThreadID);
    int OnMouseActivate(QWidget* pDesktopWnd, UINT nHitTest, UINT nMessage);
    int OnMouseActivate_E(CWnd_E* pDesktopWnd, UINT nHitTest, UINT nMessage);
    void OnChildActivate();
    BOOL OnNcActivate(BOOL bActive);
    void OnSetFocus(QWidget* pOldWnd);
    void OnSetFocus_E(CWnd_E* pOldWnd);
    void OnKillFocus(QWidget* pNewWnd);
    void OnKillFocus_E(CWnd_E* pNewWnd);
    void OnCaptureChanged(QWidget* pWnd);
    void OnCaptureChanged_E(CWnd_E* pWnd);
    void OnCancelMode();
    /// @}

    // Painting
    /// @{
    /// Lets the event go on to the widget.
    void OnPaint();
    HBRUSH OnCtlColor(CDC_E* pDC, QWidget* pWnd, UINT nCtlColor);
    HBRUSH OnCtlColor_E(CDC_E* pDC, CWnd_E* pWnd, UINT nCtlColor);
    BOOL OnEraseBkgnd(CDC_E* pDC);
    void OnIconEraseBkgnd(CDC_E* pDC);
    void OnNcPaint();
    HCURSOR OnQueryDragIcon();
    void OnDrawItem(int nIDCtl, DRAWITEMSTRUCT* pDraw);
    void OnMeasureItem(int nIDCtl, MEASUREITEMSTRUCT* pMeasure);
    int OnCompareItem(int nIDCtl, COMPAREITEMSTRUCT* pCompare);
    void OnDeleteItem(int nIDCtl, DELETEITEMSTRUCT* pDelete);
    void OnPaletteChanged(QWidget* pFocusWnd);
    void OnPaletteChanged_E(CWnd_E* pFocusWnd);
    void OnPaletteIsChanging(QWidget* pRealizeWnd);
    void OnPaletteIsChanging_E(CWnd_E* pRealizeWnd);
    BOOL OnQueryNewPalette();
    void OnSysColorChange();
    LRESULT OnThemeChanged();
    /// @}

    // Keyboard
    /// @{
    /// Lets the event go on to the widget.
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnDeadChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnUniChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSysKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSysDeadChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnHotKey(UINT nHotKeyId, UINT nKey1, UINT nKey2);
    UINT OnGetDlgCode();
    int OnCharToItem(UINT nKey, QWidget* pListBox, UINT nIndex);
    int OnCharToItem_E(UINT nKey, CWnd_E* pListBox, UINT nIndex);
    int OnVKeyToItem(UINT nKey, QWidget* pListBox, UINT nIndex);
    int OnVKeyToItem_E(UINT nKey, CWnd_E* pListBox, UINT nIndex);
    void OnInputLangChange(UINT nCharSet, UINT nLocaleId);
    /// @}

    // Mouse
    /// @{
    /// Lets the event go on to the widget.
    void OnMouseMove(UINT nFlags, CPoint_E point);
    void OnLButtonDown(UINT nFlags, CPoint_E point);
    void OnLButtonUp(UINT nFlags, CPoint_E point);
    void OnLButtonDblClk(UINT nFlags, CPoint_E point);
    void OnRButtonDown(UINT nFlags, CPoint_E point);
    void OnRButtonUp(UINT nFlags, CPoint_E point);
    void OnRButtonDblClk(UINT nFlags, CPoint_E point);
    void OnMButtonDown(UINT nFlags, CPoint_E point);
    void OnMButtonUp(UINT nFlags, CPoint_E point);
    void OnMButtonDblClk(UINT nFlags, CPoint_E point);
    void OnXButtonDown(UINT nFlags, UINT nButton, CPoint_E point);
    void OnXButtonUp(UINT nFlags, UINT nButton, CPoint_E point);
    void OnXButtonDblClk(UINT nFlags, UINT nButton, CPoint_E point);
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint_E point);
    void OnMouseHWheel(UINT nFlags, short zDelta, CPoint_E point);
    void OnMouseHover(UINT nFlags, CPoint_E point);
    void OnMouseLeave();
    BOOL OnSetCursor(QWidget* pWnd, UINT nHitTest, UINT nMessage);
    BOOL OnSetCursor_E(CWnd_E* pWnd, UINT nHitTest, UINT nMessage);
    void OnContextMenu(QWidget* pWnd, CPoint_E pos);
    void OnContextMenu_E(CWnd_E* pWnd, CPoint_E pos);
    LRESULT OnNcHitTest(CPoint_E point);
    void OnNcMouseMove(UINT nHitTest, CPoint_E point);
    void OnNcMouseHover(UINT nHitTest, CPoint_E point);
    void OnNcMouseLeave();
    void OnNcLButtonDown(UINT nHitTest, CPoint_E point);
    void OnNcLButtonUp(UINT nHitTest, CPoint_E point);
    void OnNcLButtonDblClk(UINT nHitTest, CPoint_E point);
    void OnNcRButtonDown(UINT nHitTest, CPoint_E point);
    void OnNcRButtonUp(UINT nHitTest, CPoint_E point);
    void OnNcRButtonDblClk(UINT nHitTest, CPoint_E point);
    void OnNcMButtonDown(UINT nHitTest, CPoint_E point);
    void OnNcMButtonUp(UINT nHitTest, CPoint_E point);
    void OnNcMButtonDblClk(UINT nHitTest, CPoint_E point);
    void OnNcXButtonDown(short nHitTest, UINT nButton, CPoint_E point);
    void OnNcXButtonUp(short nHitTest, UINT nButton, CPoint_E point);
    void OnNcXButtonDblClk(short nHitTest, UINT nButton, CPoint_E point);
    /// @}

    // Scrolling, timers and commands
    /// @{
    /// Lets the event go on to the widget.
    void OnHScroll(UINT nSBCode, UINT nPos, QAbstractSlider* pScrollBar);
    void OnHScroll_E(UINT nSBCode, UINT nPos, CScrollBar_E* pScrollBar);
    void OnVScroll(UINT nSBCode, UINT nPos, QAbstractSlider* pScrollBar);
    void OnVScroll_E(UINT nSBCode, UINT nPos, CScrollBar_E* pScrollBar);
    void OnTimer(UINT_PTR nIDEvent);
    void OnSysCommand(UINT nID, LPARAM lParam);
    void OnAppCommand(QWidget* pWnd, UINT nCmd, UINT nDevice, UINT nKey);
    void OnAppCommand_E(CWnd_E* pWnd, UINT nCmd, UINT nDevice, UINT nKey);
    BOOL OnHelpInfo(HELPINFO* pHelpInfo);
    void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    void OnEnterMenuLoop(BOOL bIsTrackPopupMenu);
    void OnExitMenuLoop(BOOL bIsTrackPopupMenu);
    void OnNextMenu(UINT nKey, MDINEXTMENU* pNextMenu);
    void OnDropFiles(HDROP hDropInfo);
    UINT OnNotifyFormat(QWidget* pWnd, UINT nCommand);
    UINT OnNotifyFormat_E(CWnd_E* pWnd, UINT nCommand);
    LRESULT OnQueryUIState();
    void OnChangeUIState(UINT nAction, UINT nUIElement);
    void OnUpdateUIState(UINT nAction, UINT nUIElement);
    /// @}

    // System
    /// @{
    /// Lets the event go on to the widget.
    void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    void OnDevModeChange(LPTSTR lpDeviceName);
    BOOL OnDeviceChange(UINT nEventType, DWORD_PTR dwData);
    void OnFontChange();
    void OnTimeChange();
    void OnCompacting(UINT nCpuTime);
    void OnSpoolerStatus(UINT nStatus, UINT nJobs);
    UINT OnPowerBroadcast(UINT nPowerEvent, LPARAM nEventData);
    void OnUserChanged();
    void OnSessionChange(UINT nSessionState, UINT nId);
    void OnTCard(UINT idAction, DWORD dwActionData);
    void OnRawInput(UINT nInputCode, HANDLE hRawInput);
    /// @}

    // Clipboard
    /// @{
    /// Lets the event go on to the widget.
    void OnDestroyClipboard();
    void OnDrawClipboard();
    void OnClipboardUpdate();
    void OnRenderFormat(UINT nFormat);
    void OnRenderAllFormats();
    void OnAskCbFormatName(UINT nMaxCount, LPTSTR lpszString);
    void OnChangeCbChain(HWND hWndRemove, HWND hWndAfter);
    void OnPaintClipboard(QWidget* pClipAppWnd, HGLOBAL hPaintStruct);
    void OnPaintClipboard_E(CWnd_E* pClipAppWnd, HGLOBAL hPaintStruct);
    void OnSizeClipboard(QWidget* pClipAppWnd, HGLOBAL hRect);
    void OnSizeClipboard_E(CWnd_E* pClipAppWnd, HGLOBAL hRect);
    void OnHScrollClipboard(QWidget* pClipAppWnd, UINT nSBCode, UINT nPos);
    void OnHScrollClipboard_E(CWnd_E* pClipAppWnd, UINT nSBCode, UINT nPos);
    void OnVScrollClipboard(QWidget* pClipAppWnd, UINT nSBCode, UINT nPos);
    void OnVScrollClipboard_E(CWnd_E* pClipAppWnd, UINT nSBCode, UINT nPos);
    /// @}

protected:
    /// Follows the idle times from the first listener of updateCmdUi() on.
    void connectNotify(const QMetaMethod& signal) override;

    /// The style bits that the window was created with, and that it found at its widget.
    UINT m_dwStyle = 0;

private:
    friend class VxMsgBoxEvent;
    struct PendingEvent
    {
        QEvent* event;
        QEvent::Type
            type; // of its own: an event that others consumed or dropped is not touched again
    };

    using MessageEntries = std::vector<std::pair<UINT, AFX_MSGMAP_ENTRY_E>>;

    /// Null when there is no entry of that message.
    const AFX_MSGMAP_ENTRY_E* FindMsgMapEntry(UINT message) const;
    template <typename Result>
    Result PassOn(Result result);
    void PassOn();
    Q_DECL_HIDDEN bool DispatchMessage(const vx::detail::DispatchGuard& guard, QObject* watched,
                                       QEvent* e, tagMSG& msg);
    Q_DECL_HIDDEN bool AnswerAsControl(VxWinMsgEvent& e);
    enum class Offer
    {
        Taken,
        Refused,
        WindowGone
    };
    Offer OfferSetCursorToAncestors(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    void FillIfSeen(tagMSG& msg) const;
    template <UINT Kind>
    LRESULT OnCtlColorMessage(WPARAM wParam, LPARAM lParam);
    void ForgetPending(const QEvent* e);
    BOOL InitDialog();
    QScrollBar* OwnScrollBar(int nBar) const;
    QScrollBar* MakeScrollBar(int nBar);
    QMenuBar* MakeMenuBar();
    static void DropEdge(QWidget* pBar);
    template <typename Bar>
    static void RemoveEdge(QPointer<Bar>& bar)
    {
        DropEdge(bar);
        bar = nullptr;
    }
    void ShowAsStyled();

    friend VXMFC_EXPORT void DisconnectIdleSlot(QObject* pObject);
    QEvent* m_pCurrentEvent = nullptr;
    QList<PendingEvent> m_pendingEvents;
    MessageEntries m_messages; // in the order of their numbers; what every window has is elsewhere
    bool m_bBaseMap = false;
    bool m_bIdleSlot = false; // to be connected to idle time when somebody listens
    QPointer<QScrollBar> m_pHScrollBar;
    QPointer<QScrollBar> m_pVScrollBar;
    QPointer<QMenuBar> m_pMenuBar;
    std::unique_ptr<vx::detail::CommandMap> m_pCommands; // only while there are entries
};

/// The handle map of windows; made on first request with @p bCreate, null before.
VXMFC_EXPORT class CHandleMap_E* afxMapHWND_E(BOOL bCreate = FALSE);

/// Hides a window and tells it and its children, from the top down, that it ends: each permanent
/// CWnd_E gets WM_DESTROY before its children and WM_NCDESTROY after them. The widget itself is
/// deleted later, and only when its CWnd_E owns it. FALSE for null; nothing for a window that is
/// just being destroyed.
VXMFC_EXPORT BOOL DestroyWindow_E(QWidget* pWidget);
