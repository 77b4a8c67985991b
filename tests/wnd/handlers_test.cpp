// Every ON_WM_ macro: the right handler with the right arguments; what the defaults pass on; the
// two forms.
#include <VxMFCEmu/VxMFCEmu.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QAbstractSlider>

#include <gtest/gtest.h>

namespace {

constexpr WPARAM kW = 0xFFFFFFFF8001FFFE;
constexpr LPARAM kL = static_cast<LPARAM>(0xFFFFFFFF8002FFFD);

// macro, message, handler as MFC documents it, its arguments for kW and kL ("w" a window), result
// clang-format off
#define ENDS(H) \
    H(DESTROY, WM_DESTROY, OnDestroy, void, (), "", 0, ()) \
    H(NCDESTROY, WM_NCDESTROY, OnNcDestroy, void, (), "", 0, ()) \
    H(CLOSE, WM_CLOSE, OnClose, void, (), "", 0, ())
#define HANDLERS(H, P) \
    H(NCCREATE, WM_NCCREATE, OnNcCreate, BOOL, (CREATESTRUCT* a), "ffffffff8002fffd", 7, (a)) \
    H(QUERYENDSESSION, WM_QUERYENDSESSION, OnQueryEndSession, BOOL, (), "", 7, ()) \
    H(ENDSESSION, WM_ENDSESSION, OnEndSession, void, (BOOL a), "8001fffe", 0, (a)) \
    H(QUERYOPEN, WM_QUERYOPEN, OnQueryOpen, BOOL, (), "", 7, ()) \
    H(PARENTNOTIFY, WM_PARENTNOTIFY, OnParentNotify, void, (UINT a, LPARAM b), "8001fffe ffffffff8002fffd", 0, (a, b)) \
    P(COPYDATA, WM_COPYDATA, OnCopyData, BOOL, (QWidget* a, COPYDATASTRUCT* b), (CWnd_E* a, COPYDATASTRUCT* b), "w ffffffff8002fffd", 7, (a, b)) \
    H(SIZE, WM_SIZE, OnSize, void, (UINT a, int b, int c), "8001fffe fffd 8002", 0, (a, b, c)) \
    H(SIZING, WM_SIZING, OnSizing, void, (UINT a, RECT* b), "8001fffe ffffffff8002fffd", 0, (a, b)) \
    H(MOVE, WM_MOVE, OnMove, void, (int a, int b), "fffd 8002", 0, (a, b)) \
    H(MOVING, WM_MOVING, OnMoving, void, (UINT a, RECT* b), "8001fffe ffffffff8002fffd", 0, (a, b)) \
    H(SHOWWINDOW, WM_SHOWWINDOW, OnShowWindow, void, (BOOL a, UINT b), "8001fffe 8002fffd", 0, (a, b)) \
    H(ENABLE, WM_ENABLE, OnEnable, void, (BOOL a), "8001fffe", 0, (a)) \
    H(GETMINMAXINFO, WM_GETMINMAXINFO, OnGetMinMaxInfo, void, (MINMAXINFO* a), "ffffffff8002fffd", 0, (a)) \
    H(WINDOWPOSCHANGING, WM_WINDOWPOSCHANGING, OnWindowPosChanging, void, (WINDOWPOS* a), "ffffffff8002fffd", 0, (a)) \
    H(WINDOWPOSCHANGED, WM_WINDOWPOSCHANGED, OnWindowPosChanged, void, (WINDOWPOS* a), "ffffffff8002fffd", 0, (a)) \
    H(NCCALCSIZE, WM_NCCALCSIZE, OnNcCalcSize, void, (BOOL a, NCCALCSIZE_PARAMS* b), "8001fffe ffffffff8002fffd", 0, (a, b)) \
    H(STYLECHANGING, WM_STYLECHANGING, OnStyleChanging, void, (int a, STYLESTRUCT* b), "8001fffe ffffffff8002fffd", 0, (a, b)) \
    H(STYLECHANGED, WM_STYLECHANGED, OnStyleChanged, void, (int a, STYLESTRUCT* b), "8001fffe ffffffff8002fffd", 0, (a, b)) \
    H(ENTERSIZEMOVE, WM_ENTERSIZEMOVE, OnEnterSizeMove, void, (), "", 0, ()) \
    H(EXITSIZEMOVE, WM_EXITSIZEMOVE, OnExitSizeMove, void, (), "", 0, ()) \
    P(ACTIVATE, WM_ACTIVATE, OnActivate, void, (UINT a, QWidget* b, BOOL c), (UINT a, CWnd_E* b, BOOL c), "fffe w 8001", 0, (a, b, c)) \
    H(ACTIVATEAPP, WM_ACTIVATEAPP, OnActivateApp, void, (BOOL a, DWORD b), "8001fffe 8002fffd", 0, (a, b)) \
    P(MOUSEACTIVATE, WM_MOUSEACTIVATE, OnMouseActivate, int, (QWidget* a, UINT b, UINT c), (CWnd_E* a, UINT b, UINT c), "w fffd 8002", 7, (a, b, c)) \
    H(CHILDACTIVATE, WM_CHILDACTIVATE, OnChildActivate, void, (), "", 0, ()) \
    H(NCACTIVATE, WM_NCACTIVATE, OnNcActivate, BOOL, (BOOL a), "8001fffe", 7, (a)) \
    P(SETFOCUS, WM_SETFOCUS, OnSetFocus, void, (QWidget* a), (CWnd_E* a), "w", 0, (a)) \
    P(KILLFOCUS, WM_KILLFOCUS, OnKillFocus, void, (QWidget* a), (CWnd_E* a), "w", 0, (a)) \
    P(CAPTURECHANGED, WM_CAPTURECHANGED, OnCaptureChanged, void, (QWidget* a), (CWnd_E* a), "w", 0, (a)) \
    H(CANCELMODE, WM_CANCELMODE, OnCancelMode, void, (), "", 0, ()) \
    H(PAINT, WM_PAINT, OnPaint, void, (), "", 0, ()) \
    H(ERASEBKGND, WM_ERASEBKGND, OnEraseBkgnd, BOOL, (CDC_E* a), "ffffffff8001fffe", 7, (a)) \
    H(ICONERASEBKGND, WM_ICONERASEBKGND, OnIconEraseBkgnd, void, (CDC_E* a), "ffffffff8001fffe", 0, (a)) \
    H(NCPAINT, WM_NCPAINT, OnNcPaint, void, (), "", 0, ()) \
    H(QUERYDRAGICON, WM_QUERYDRAGICON, OnQueryDragIcon, HCURSOR, (), "", 7, ()) \
    H(DRAWITEM, WM_DRAWITEM, OnDrawItem, void, (int a, DRAWITEMSTRUCT* b), "8001fffe ffffffff8002fffd", 0, (a, b)) \
    H(MEASUREITEM, WM_MEASUREITEM, OnMeasureItem, void, (int a, MEASUREITEMSTRUCT* b), "8001fffe ffffffff8002fffd", 0, (a, b)) \
    H(COMPAREITEM, WM_COMPAREITEM, OnCompareItem, int, (int a, COMPAREITEMSTRUCT* b), "8001fffe ffffffff8002fffd", 7, (a, b)) \
    H(DELETEITEM, WM_DELETEITEM, OnDeleteItem, void, (int a, DELETEITEMSTRUCT* b), "8001fffe ffffffff8002fffd", 0, (a, b)) \
    P(PALETTECHANGED, WM_PALETTECHANGED, OnPaletteChanged, void, (QWidget* a), (CWnd_E* a), "w", 0, (a)) \
    P(PALETTEISCHANGING, WM_PALETTEISCHANGING, OnPaletteIsChanging, void, (QWidget* a), (CWnd_E* a), "w", 0, (a)) \
    H(QUERYNEWPALETTE, WM_QUERYNEWPALETTE, OnQueryNewPalette, BOOL, (), "", 7, ()) \
    H(SYSCOLORCHANGE, WM_SYSCOLORCHANGE, OnSysColorChange, void, (), "", 0, ()) \
    H(THEMECHANGED, WM_THEMECHANGED, OnThemeChanged, LRESULT, (), "", 7, ()) \
    H(KEYDOWN, WM_KEYDOWN, OnKeyDown, void, (UINT a, UINT b, UINT c), "8001fffe fffd 8002", 0, (a, b, c)) \
    H(KEYUP, WM_KEYUP, OnKeyUp, void, (UINT a, UINT b, UINT c), "8001fffe fffd 8002", 0, (a, b, c)) \
    H(CHAR, WM_CHAR, OnChar, void, (UINT a, UINT b, UINT c), "8001fffe fffd 8002", 0, (a, b, c)) \
    H(DEADCHAR, WM_DEADCHAR, OnDeadChar, void, (UINT a, UINT b, UINT c), "8001fffe fffd 8002", 0, (a, b, c)) \
    H(UNICHAR, WM_UNICHAR, OnUniChar, void, (UINT a, UINT b, UINT c), "8001fffe fffd 8002", 0, (a, b, c)) \
    H(SYSKEYDOWN, WM_SYSKEYDOWN, OnSysKeyDown, void, (UINT a, UINT b, UINT c), "8001fffe fffd 8002", 0, (a, b, c)) \
    H(SYSKEYUP, WM_SYSKEYUP, OnSysKeyUp, void, (UINT a, UINT b, UINT c), "8001fffe fffd 8002", 0, (a, b, c)) \
    H(SYSCHAR, WM_SYSCHAR, OnSysChar, void, (UINT a, UINT b, UINT c), "8001fffe fffd 8002", 0, (a, b, c)) \
    H(SYSDEADCHAR, WM_SYSDEADCHAR, OnSysDeadChar, void, (UINT a, UINT b, UINT c), "8001fffe fffd 8002", 0, (a, b, c)) \
    H(HOTKEY, WM_HOTKEY, OnHotKey, void, (UINT a, UINT b, UINT c), "8001fffe fffd 8002", 0, (a, b, c)) \
    H(GETDLGCODE, WM_GETDLGCODE, OnGetDlgCode, UINT, (), "", 7, ()) \
    P(CHARTOITEM, WM_CHARTOITEM, OnCharToItem, int, (UINT a, QWidget* b, UINT c), (UINT a, CWnd_E* b, UINT c), "fffe w 8001", 7, (a, b, c)) \
    P(VKEYTOITEM, WM_VKEYTOITEM, OnVKeyToItem, int, (UINT a, QWidget* b, UINT c), (UINT a, CWnd_E* b, UINT c), "fffe w 8001", 7, (a, b, c)) \
    H(INPUTLANGCHANGE, WM_INPUTLANGCHANGE, OnInputLangChange, void, (UINT a, UINT b), "8001fffe 8002fffd", 0, (a, b)) \
    H(MOUSEMOVE, WM_MOUSEMOVE, OnMouseMove, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(LBUTTONDOWN, WM_LBUTTONDOWN, OnLButtonDown, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(LBUTTONUP, WM_LBUTTONUP, OnLButtonUp, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(LBUTTONDBLCLK, WM_LBUTTONDBLCLK, OnLButtonDblClk, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(RBUTTONDOWN, WM_RBUTTONDOWN, OnRButtonDown, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(RBUTTONUP, WM_RBUTTONUP, OnRButtonUp, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(RBUTTONDBLCLK, WM_RBUTTONDBLCLK, OnRButtonDblClk, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(MBUTTONDOWN, WM_MBUTTONDOWN, OnMButtonDown, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(MBUTTONUP, WM_MBUTTONUP, OnMButtonUp, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(MBUTTONDBLCLK, WM_MBUTTONDBLCLK, OnMButtonDblClk, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(XBUTTONDOWN, WM_XBUTTONDOWN, OnXButtonDown, void, (UINT a, UINT b, CPoint_E c), "fffe 8001 (65533 32770)", 1, (a, b, c)) \
    H(XBUTTONUP, WM_XBUTTONUP, OnXButtonUp, void, (UINT a, UINT b, CPoint_E c), "fffe 8001 (65533 32770)", 1, (a, b, c)) \
    H(XBUTTONDBLCLK, WM_XBUTTONDBLCLK, OnXButtonDblClk, void, (UINT a, UINT b, CPoint_E c), "fffe 8001 (65533 32770)", 1, (a, b, c)) \
    H(MOUSEWHEEL, WM_MOUSEWHEEL, OnMouseWheel, BOOL, (UINT a, short b, CPoint_E c), "fffe 8001 (65533 32770)", 7, (a, b, c)) \
    H(MOUSEHWHEEL, WM_MOUSEHWHEEL, OnMouseHWheel, void, (UINT a, short b, CPoint_E c), "fffe 8001 (65533 32770)", 0, (a, b, c)) \
    H(MOUSEHOVER, WM_MOUSEHOVER, OnMouseHover, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(MOUSELEAVE, WM_MOUSELEAVE, OnMouseLeave, void, (), "", 0, ()) \
    P(SETCURSOR, WM_SETCURSOR, OnSetCursor, BOOL, (QWidget* a, UINT b, UINT c), (CWnd_E* a, UINT b, UINT c), "w fffd 8002", 7, (a, b, c)) \
    P(CONTEXTMENU, WM_CONTEXTMENU, OnContextMenu, void, (QWidget* a, CPoint_E b), (CWnd_E* a, CPoint_E b), "w (-3 -32766)", 0, (a, b)) \
    H(NCHITTEST, WM_NCHITTEST, OnNcHitTest, LRESULT, (CPoint_E a), "(-3 -32766)", 7, (a)) \
    H(NCMOUSEMOVE, WM_NCMOUSEMOVE, OnNcMouseMove, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(NCMOUSEHOVER, WM_NCMOUSEHOVER, OnNcMouseHover, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(NCMOUSELEAVE, WM_NCMOUSELEAVE, OnNcMouseLeave, void, (), "", 0, ()) \
    H(NCLBUTTONDOWN, WM_NCLBUTTONDOWN, OnNcLButtonDown, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(NCLBUTTONUP, WM_NCLBUTTONUP, OnNcLButtonUp, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(NCLBUTTONDBLCLK, WM_NCLBUTTONDBLCLK, OnNcLButtonDblClk, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(NCRBUTTONDOWN, WM_NCRBUTTONDOWN, OnNcRButtonDown, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(NCRBUTTONUP, WM_NCRBUTTONUP, OnNcRButtonUp, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(NCRBUTTONDBLCLK, WM_NCRBUTTONDBLCLK, OnNcRButtonDblClk, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(NCMBUTTONDOWN, WM_NCMBUTTONDOWN, OnNcMButtonDown, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(NCMBUTTONUP, WM_NCMBUTTONUP, OnNcMButtonUp, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(NCMBUTTONDBLCLK, WM_NCMBUTTONDBLCLK, OnNcMButtonDblClk, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b)) \
    H(NCXBUTTONDOWN, WM_NCXBUTTONDOWN, OnNcXButtonDown, void, (short a, UINT b, CPoint_E c), "fffe 8001 (65533 32770)", 1, (a, b, c)) \
    H(NCXBUTTONUP, WM_NCXBUTTONUP, OnNcXButtonUp, void, (short a, UINT b, CPoint_E c), "fffe 8001 (65533 32770)", 1, (a, b, c)) \
    H(NCXBUTTONDBLCLK, WM_NCXBUTTONDBLCLK, OnNcXButtonDblClk, void, (short a, UINT b, CPoint_E c), "fffe 8001 (65533 32770)", 1, (a, b, c)) \
    P(HSCROLL, WM_HSCROLL, OnHScroll, void, (UINT a, UINT b, QAbstractSlider* c), (UINT a, UINT b, CScrollBar_E* c), "fffffffe ffff8001 w", 0, (a, b, c)) \
    P(VSCROLL, WM_VSCROLL, OnVScroll, void, (UINT a, UINT b, QAbstractSlider* c), (UINT a, UINT b, CScrollBar_E* c), "fffffffe ffff8001 w", 0, (a, b, c)) \
    H(TIMER, WM_TIMER, OnTimer, void, (UINT_PTR a), "ffffffff8001fffe", 0, (a)) \
    H(SYSCOMMAND, WM_SYSCOMMAND, OnSysCommand, void, (UINT a, LPARAM b), "8001fffe ffffffff8002fffd", 0, (a, b)) \
    P(APPCOMMAND, WM_APPCOMMAND, OnAppCommand, void, (QWidget* a, UINT b, UINT c, UINT d), (CWnd_E* a, UINT b, UINT c, UINT d), "w 2 8000 fffd", 1, (a, b, c, d)) \
    H(HELPINFO, WM_HELP, OnHelpInfo, BOOL, (HELPINFO* a), "ffffffff8002fffd", 7, (a)) \
    H(MENUSELECT, WM_MENUSELECT, OnMenuSelect, void, (UINT a, UINT b, HMENU c), "fffe 8001 ffffffff8002fffd", 0, (a, b, c)) \
    H(ENTERMENULOOP, WM_ENTERMENULOOP, OnEnterMenuLoop, void, (BOOL a), "8001fffe", 0, (a)) \
    H(EXITMENULOOP, WM_EXITMENULOOP, OnExitMenuLoop, void, (BOOL a), "8001fffe", 0, (a)) \
    H(NEXTMENU, WM_NEXTMENU, OnNextMenu, void, (UINT a, MDINEXTMENU* b), "8001fffe ffffffff8002fffd", 0, (a, b)) \
    H(DROPFILES, WM_DROPFILES, OnDropFiles, void, (HDROP a), "ffffffff8001fffe", 0, (a)) \
    P(NOTIFYFORMAT, WM_NOTIFYFORMAT, OnNotifyFormat, UINT, (QWidget* a, UINT b), (CWnd_E* a, UINT b), "w 8002fffd", 7, (a, b)) \
    H(QUERYUISTATE, WM_QUERYUISTATE, OnQueryUIState, LRESULT, (), "", 7, ()) \
    H(CHANGEUISTATE, WM_CHANGEUISTATE, OnChangeUIState, void, (UINT a, UINT b), "fffe 8001", 0, (a, b)) \
    H(UPDATEUISTATE, WM_UPDATEUISTATE, OnUpdateUIState, void, (UINT a, UINT b), "fffe 8001", 0, (a, b)) \
    H(SETTINGCHANGE, WM_SETTINGCHANGE, OnSettingChange, void, (UINT a, LPCTSTR b), "8001fffe ffffffff8002fffd", 0, (a, b)) \
    H(DEVMODECHANGE, WM_DEVMODECHANGE, OnDevModeChange, void, (LPTSTR a), "ffffffff8002fffd", 0, (a)) \
    H(DEVICECHANGE, WM_DEVICECHANGE, OnDeviceChange, BOOL, (UINT a, DWORD_PTR b), "8001fffe ffffffff8002fffd", 7, (a, b)) \
    H(FONTCHANGE, WM_FONTCHANGE, OnFontChange, void, (), "", 0, ()) \
    H(TIMECHANGE, WM_TIMECHANGE, OnTimeChange, void, (), "", 0, ()) \
    H(COMPACTING, WM_COMPACTING, OnCompacting, void, (UINT a), "8001fffe", 0, (a)) \
    H(SPOOLERSTATUS, WM_SPOOLERSTATUS, OnSpoolerStatus, void, (UINT a, UINT b), "8001fffe 8002fffd", 0, (a, b)) \
    H(POWERBROADCAST, WM_POWERBROADCAST, OnPowerBroadcast, UINT, (UINT a, LPARAM b), "8001fffe ffffffff8002fffd", 7, (a, b)) \
    H(USERCHANGED, WM_USERCHANGED, OnUserChanged, void, (), "", 0, ()) \
    H(SESSIONCHANGE, WM_WTSSESSION_CHANGE, OnSessionChange, void, (UINT a, UINT b), "8001fffe 8002fffd", 0, (a, b)) \
    H(TCARD, WM_TCARD, OnTCard, void, (UINT a, DWORD b), "8001fffe 8002fffd", 0, (a, b)) \
    H(RAWINPUT, WM_INPUT, OnRawInput, void, (UINT a, HANDLE b), "fe ffffffff8002fffd", 0, (a, b)) \
    H(DESTROYCLIPBOARD, WM_DESTROYCLIPBOARD, OnDestroyClipboard, void, (), "", 0, ()) \
    H(DRAWCLIPBOARD, WM_DRAWCLIPBOARD, OnDrawClipboard, void, (), "", 0, ()) \
    H(CLIPBOARDUPDATE, WM_CLIPBOARDUPDATE, OnClipboardUpdate, void, (), "", 0, ()) \
    H(RENDERFORMAT, WM_RENDERFORMAT, OnRenderFormat, void, (UINT a), "8001fffe", 0, (a)) \
    H(RENDERALLFORMATS, WM_RENDERALLFORMATS, OnRenderAllFormats, void, (), "", 0, ()) \
    H(ASKCBFORMATNAME, WM_ASKCBFORMATNAME, OnAskCbFormatName, void, (UINT a, LPTSTR b), "8001fffe ffffffff8002fffd", 0, (a, b)) \
    H(CHANGECBCHAIN, WM_CHANGECBCHAIN, OnChangeCbChain, void, (HWND a, HWND b), "ffffffff8001fffe ffffffff8002fffd", 0, (a, b)) \
    P(PAINTCLIPBOARD, WM_PAINTCLIPBOARD, OnPaintClipboard, void, (QWidget* a, HGLOBAL b), (CWnd_E* a, HGLOBAL b), "w ffffffff8002fffd", 0, (a, b)) \
    P(SIZECLIPBOARD, WM_SIZECLIPBOARD, OnSizeClipboard, void, (QWidget* a, HGLOBAL b), (CWnd_E* a, HGLOBAL b), "w ffffffff8002fffd", 0, (a, b)) \
    P(HSCROLLCLIPBOARD, WM_HSCROLLCLIPBOARD, OnHScrollClipboard, void, (QWidget* a, UINT b, UINT c), (CWnd_E* a, UINT b, UINT c), "w fffd 8002", 0, (a, b, c)) \
    P(VSCROLLCLIPBOARD, WM_VSCROLLCLIPBOARD, OnVScrollClipboard, void, (QWidget* a, UINT b, UINT c), (CWnd_E* a, UINT b, UINT c), "w fffd 8002", 0, (a, b, c))
// clang-format on

/// Counts what comes to the widget itself.
class CountingWidget : public QWidget
{
public:
    int m_messages = 0;

protected:
    bool event(QEvent* e) override
    {
        m_messages += e->type() == VxWinMsgEvent::EventType ? 1 : 0;
        return QWidget::event(e);
    }
};

class AllHandlersWnd : public CWnd_E
{
public:
#define DECLARE(macro, message, name, result, params, args, value, values)                         \
    result name params { return Note<result>(#name, Texts values); }
#define DECLARE_PAIR(macro, message, name, result, params, paramsE, args, value, values)           \
    result name params { return Note<result>(#name, Texts values); }                               \
    result name##_E paramsE { return Note<result>(#name "_E", Texts values); }
    ENDS(DECLARE)
    HANDLERS(DECLARE, DECLARE_PAIR)

    QStringList m_seen;

protected:
    void OnMessageMap() override;

private:
    /// An argument as text: a number by its size, a window by the mark of the one that was sent.
    struct Text
    {
        template <typename T>
        Text(T v) : number(static_cast<quint64>(v) & (~quint64{0} >> (64 - 8 * sizeof(T))))
        {
        }
        template <typename T>
        Text(T* v) : number(reinterpret_cast<quint64>(v)), isWindow(std::is_base_of_v<QWidget, T>)
        {
        }
        Text(QAbstractSlider* v) : Text(static_cast<QWidget*>(v)) {}
        Text(CWnd_E* v) : Text(v ? v->GetSafeHwnd() : nullptr) {}
        Text(CScrollBar_E* v) : Text(reinterpret_cast<CWnd_E*>(v)) {}
        Text(CPoint_E v) : point(QStringLiteral("(%1 %2)").arg(v.x).arg(v.y)) {}
        quint64 number = 0;
        bool isWindow = false;
        QString point;
    };

    struct Texts : std::vector<Text>
    {
        template <typename... Args>
        explicit Texts(Args... args) : std::vector<Text>({Text(args)...})
        {
        }
    };

    template <typename Result>
    Result Note(const char* name, const Texts& args)
    {
        QStringList words(QString::fromLatin1(name));
        for (const Text& arg : args) {
            const bool isOwn =
                arg.isWindow && arg.number == reinterpret_cast<quint64>(GetSafeHwnd());
            words << (isOwn                ? QStringLiteral("w")
                      : arg.point.isNull() ? QString::number(arg.number, 16)
                                           : arg.point);
        }
        m_seen << words.join(QLatin1Char(' '));
        if constexpr (std::is_pointer_v<Result>)
            return reinterpret_cast<Result>(std::uintptr_t{7});
        else if constexpr (!std::is_void_v<Result>)
            return 7;
    }
};

class DefaultsWnd : public CWnd_E
{
    DECLARE_MESSAGE_MAP_E()
};

#define MAP(macro, ...) ON_WM_##macro##_E()
BEGIN_MESSAGE_MAP_E(AllHandlersWnd, CWnd_E)
ENDS(MAP)
HANDLERS(MAP, MAP)
END_MESSAGE_MAP_E()

BEGIN_MESSAGE_MAP_E(DefaultsWnd, CWnd_E)
HANDLERS(MAP, MAP)
END_MESSAGE_MAP_E()

struct Row
{
    UINT message;
    const char* name;
    const char* args;
    LRESULT result;
    int windowAt; // 0 none, 1 in wParam, 2 in lParam
    bool isPair;
};

/// Which parameter carries the window: wParam when it is the first one, except where lParam has it.
constexpr int windowAt(UINT message, const char* args)
{
    return args[0] == 'w' && message != WM_CAPTURECHANGED ? 1 : 2;
}

#define ROW(macro, message, name, result, params, args, value, values)                             \
    {message, #name, args, value, 0, false},
#define ROW_PAIR(macro, message, name, result, params, paramsE, args, value, values)               \
    {message, #name, args, value, windowAt(message, args), true},
const Row rows[] = {ENDS(ROW) HANDLERS(ROW, ROW_PAIR)};

TEST(HandlersTest, EachMacroBringsItsMessageToItsHandler)
{
    CountingWidget widget;
    AllHandlersWnd window;
    window.SubclassWindow(&widget);
    const auto address = reinterpret_cast<WPARAM>(static_cast<QWidget*>(&widget));
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const WPARAM wParam = row.windowAt == 1 ? address : kW;
        const LPARAM lParam = row.windowAt == 2 ? static_cast<LPARAM>(address) : kL;
        // Sent as it is: elsewhere keys and clicks are events.
        VxWinMsgEvent e(row.message, wParam, lParam);
        QCoreApplication::sendEvent(&widget, &e);
        EXPECT_EQ(e.result, row.result);
        const auto line = [&row](const char* suffix) {
            return QStringLiteral("%1%2 %3")
                .arg(QLatin1String(row.name), QLatin1String(suffix), QLatin1String(row.args))
                .trimmed();
        };
        EXPECT_EQ(std::exchange(window.m_seen, {}),
                  row.isPair ? QStringList({line(""), line("_E")}) : QStringList(line("")));
    }
    EXPECT_EQ(widget.m_messages, 0) << "handled messages end at the handler";
}

TEST(HandlersTest, EachDefaultLeavesItsMessageToTheWidget)
{
    CountingWidget widget;
    DefaultsWnd window;
    window.SubclassWindow(&widget);
#define MESSAGE_OF(macro, message, ...) message,
    for (const UINT message : {HANDLERS(MESSAGE_OF, MESSAGE_OF)}) {
        VxWinMsgEvent e(message, 0, 0);
        QCoreApplication::sendEvent(&widget, &e);
        EXPECT_EQ(std::exchange(widget.m_messages, 0), 1) << message;
        EXPECT_EQ(e.result, 0) << message;
    }
}

/// Writes the plain form of a handler, the form with window objects, or both.
template <bool Plain, bool WithObjects>
class FormsWnd;
#define FORMS(plain, withObjects, body)                                                            \
    template <>                                                                                    \
    class FormsWnd<plain, withObjects> : public CWnd_E                                             \
    {                                                                                              \
    public:                                                                                        \
        QString m_seen;                                                                            \
        body protected : void OnMessageMap() override                                              \
        {                                                                                          \
            using ThisClass_E = FormsWnd;                                                          \
            CWnd_E::OnMessageMap();                                                                \
            ON_WM_SETCURSOR_E()                                                                    \
        }                                                                                          \
    };
#define PLAIN                                                                                      \
    BOOL OnSetCursor(QWidget*, UINT, UINT)                                                         \
    {                                                                                              \
        m_seen += QLatin1String("plain ");                                                         \
        return 2;                                                                                  \
    }
#define OBJECTS                                                                                    \
    BOOL OnSetCursor_E(CWnd_E*, UINT, UINT)                                                        \
    {                                                                                              \
        m_seen += QLatin1String("objects ");                                                       \
        return 3;                                                                                  \
    }
FORMS(true, false, PLAIN)
FORMS(false, true, OBJECTS)
FORMS(true, true, PLAIN OBJECTS)

template <bool Plain, bool WithObjects>
void expectForms(const char* seen, LRESULT result)
{
    CountingWidget widget;
    FormsWnd<Plain, WithObjects> window;
    window.SubclassWindow(&widget);
    EXPECT_EQ(window.SendMessage(WM_SETCURSOR, 0, 0), result);
    EXPECT_EQ(window.m_seen, QLatin1String(seen));
    EXPECT_EQ(widget.m_messages, 0);
}

TEST(HandlersTest, AWindowMayWriteEitherFormOrBoth)
{
    expectForms<true, false>("plain ", 2);
    expectForms<false, true>("objects ", 3);
    expectForms<true, true>("plain objects ", 3);
}

} // namespace
