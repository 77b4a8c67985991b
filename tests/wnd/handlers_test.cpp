// Every ON_WM_ macro: the right handler with the right arguments; what the defaults pass on.
#include "argtext.h"

namespace {

using namespace vxtest;

// clang-format off
// macro, message, handler as MFC documents it, its arguments for kW and kL ("w" a window), result
#define ENDS(H) NONE(H, DESTROY, Destroy) NONE(H, NCDESTROY, NcDestroy) NONE(H, CLOSE, Close)
// Families of handlers that differ in names and types only: macro, rest of the handler's name.
#define NONE(H, macro, name) RESULT(H, macro, name, void, 0)
#define RESULT(H, macro, name, R, value) H(macro, WM_##macro, On##name, R, (), "", value, ())
#define W32(H, macro, name, A) H(macro, WM_##macro, On##name, void, (A a), "8001fffe", 0, (a))
#define L64(H, macro, name, A) H(macro, WM_##macro, On##name, void, (A a), "ffffffff8002fffd", 0, (a))
#define W32L32(H, macro, name, A, B) H(macro, WM_##macro, On##name, void, (A a, B b), "8001fffe 8002fffd", 0, (a, b))
#define W32L64(H, macro, name, A, B) H(macro, WM_##macro, On##name, void, (A a, B b), "8001fffe ffffffff8002fffd", 0, (a, b))
#define KEY(H, macro, name) H(macro, WM_##macro, On##name, void, (UINT a, UINT b, UINT c), "8001fffe fffd 8002", 0, (a, b, c))
#define MOUSE(H, macro, name) H(macro, WM_##macro, On##name, void, (UINT a, CPoint_E b), "8001fffe (-3 -32766)", 0, (a, b))
#define BUTTON(H, macro, name) MOUSE(H, macro##DOWN, name##Down) MOUSE(H, macro##UP, name##Up) MOUSE(H, macro##DBLCLK, name##DblClk)
#define XBUTTONONE(H, macro, name, A) H(macro, WM_##macro, On##name, void, (A a, UINT b, CPoint_E c), "fffe 8001 (65533 32770)", 1, (a, b, c))
#define XBUTTON(H, macro, name, A) XBUTTONONE(H, macro##DOWN, name##Down, A) XBUTTONONE(H, macro##UP, name##Up, A) XBUTTONONE(H, macro##DBLCLK, name##DblClk, A)
#define WINDOW(P, macro, name) P(macro, WM_##macro, On##name, void, (QWidget* a), (CWnd_E* a), "w", 0, (a))
#define CODES(P, macro, name, R, value) P(macro, WM_##macro, On##name, R, (QWidget* a, UINT b, UINT c), (CWnd_E* a, UINT b, UINT c), "w fffd 8002", value, (a, b, c))
#define HANDLERS(H, P) \
    NONE(H, ENTERSIZEMOVE, EnterSizeMove) NONE(H, EXITSIZEMOVE, ExitSizeMove) NONE(H, CHILDACTIVATE, ChildActivate) \
    NONE(H, CANCELMODE, CancelMode) NONE(H, PAINT, Paint) NONE(H, NCPAINT, NcPaint) \
    NONE(H, SYSCOLORCHANGE, SysColorChange) NONE(H, MOUSELEAVE, MouseLeave) NONE(H, NCMOUSELEAVE, NcMouseLeave) \
    NONE(H, FONTCHANGE, FontChange) NONE(H, TIMECHANGE, TimeChange) NONE(H, USERCHANGED, UserChanged) \
    NONE(H, DESTROYCLIPBOARD, DestroyClipboard) NONE(H, DRAWCLIPBOARD, DrawClipboard) \
    NONE(H, CLIPBOARDUPDATE, ClipboardUpdate) NONE(H, RENDERALLFORMATS, RenderAllFormats) \
    RESULT(H, QUERYENDSESSION, QueryEndSession, BOOL, kInt) RESULT(H, QUERYOPEN, QueryOpen, BOOL, kInt) \
    RESULT(H, QUERYDRAGICON, QueryDragIcon, HCURSOR, kGiven) RESULT(H, QUERYNEWPALETTE, QueryNewPalette, BOOL, kInt) \
    RESULT(H, THEMECHANGED, ThemeChanged, LRESULT, kGiven) RESULT(H, GETDLGCODE, GetDlgCode, UINT, kUint) \
    RESULT(H, QUERYUISTATE, QueryUIState, LRESULT, kGiven) \
    W32(H, ENDSESSION, EndSession, BOOL) W32(H, ENABLE, Enable, BOOL) W32(H, ENTERMENULOOP, EnterMenuLoop, BOOL) \
    W32(H, EXITMENULOOP, ExitMenuLoop, BOOL) W32(H, COMPACTING, Compacting, UINT) \
    W32(H, RENDERFORMAT, RenderFormat, UINT) \
    L64(H, GETMINMAXINFO, GetMinMaxInfo, MINMAXINFO*) L64(H, WINDOWPOSCHANGING, WindowPosChanging, WINDOWPOS*) \
    L64(H, WINDOWPOSCHANGED, WindowPosChanged, WINDOWPOS*) L64(H, DEVMODECHANGE, DevModeChange, LPTSTR) \
    W32L32(H, SHOWWINDOW, ShowWindow, BOOL, UINT) W32L32(H, ACTIVATEAPP, ActivateApp, BOOL, DWORD) \
    W32L32(H, INPUTLANGCHANGE, InputLangChange, UINT, UINT) W32L32(H, SPOOLERSTATUS, SpoolerStatus, UINT, UINT) \
    W32L32(H, TCARD, TCard, UINT, DWORD) \
    W32L64(H, PARENTNOTIFY, ParentNotify, UINT, LPARAM) W32L64(H, SIZING, Sizing, UINT, RECT*) \
    W32L64(H, MOVING, Moving, UINT, RECT*) W32L64(H, NCCALCSIZE, NcCalcSize, BOOL, NCCALCSIZE_PARAMS*) \
    W32L64(H, STYLECHANGING, StyleChanging, int, STYLESTRUCT*) \
    W32L64(H, STYLECHANGED, StyleChanged, int, STYLESTRUCT*) W32L64(H, DRAWITEM, DrawItem, int, DRAWITEMSTRUCT*) \
    W32L64(H, MEASUREITEM, MeasureItem, int, MEASUREITEMSTRUCT*) \
    W32L64(H, DELETEITEM, DeleteItem, int, DELETEITEMSTRUCT*) W32L64(H, SYSCOMMAND, SysCommand, UINT, LPARAM) \
    W32L64(H, NEXTMENU, NextMenu, UINT, MDINEXTMENU*) W32L64(H, SETTINGCHANGE, SettingChange, UINT, LPCTSTR) \
    W32L64(H, ASKCBFORMATNAME, AskCbFormatName, UINT, LPTSTR) \
    KEY(H, KEYDOWN, KeyDown) KEY(H, KEYUP, KeyUp) KEY(H, CHAR, Char) KEY(H, DEADCHAR, DeadChar) \
    KEY(H, UNICHAR, UniChar) KEY(H, SYSKEYDOWN, SysKeyDown) KEY(H, SYSKEYUP, SysKeyUp) KEY(H, SYSCHAR, SysChar) \
    KEY(H, SYSDEADCHAR, SysDeadChar) KEY(H, HOTKEY, HotKey) \
    MOUSE(H, MOUSEMOVE, MouseMove) MOUSE(H, MOUSEHOVER, MouseHover) MOUSE(H, NCMOUSEMOVE, NcMouseMove) \
    MOUSE(H, NCMOUSEHOVER, NcMouseHover) \
    BUTTON(H, LBUTTON, LButton) BUTTON(H, RBUTTON, RButton) BUTTON(H, MBUTTON, MButton) \
    BUTTON(H, NCLBUTTON, NcLButton) BUTTON(H, NCRBUTTON, NcRButton) BUTTON(H, NCMBUTTON, NcMButton) \
    XBUTTON(H, XBUTTON, XButton, UINT) XBUTTON(H, NCXBUTTON, NcXButton, short) \
    WINDOW(P, SETFOCUS, SetFocus) WINDOW(P, KILLFOCUS, KillFocus) WINDOW(P, CAPTURECHANGED, CaptureChanged) \
    WINDOW(P, PALETTECHANGED, PaletteChanged) WINDOW(P, PALETTEISCHANGING, PaletteIsChanging) \
    CODES(P, MOUSEACTIVATE, MouseActivate, int, kInt) CODES(P, SETCURSOR, SetCursor, BOOL, kInt) \
    CODES(P, HSCROLLCLIPBOARD, HScrollClipboard, void, 0) CODES(P, VSCROLLCLIPBOARD, VScrollClipboard, void, 0) \
    H(NCCREATE, WM_NCCREATE, OnNcCreate, BOOL, (CREATESTRUCT* a), "ffffffff8002fffd", kInt, (a)) \
    P(COPYDATA, WM_COPYDATA, OnCopyData, BOOL, (QWidget* a, COPYDATASTRUCT* b), (CWnd_E* a, COPYDATASTRUCT* b), "w ffffffff8002fffd", kInt, (a, b)) \
    H(SIZE, WM_SIZE, OnSize, void, (UINT a, int b, int c), "8001fffe fffd 8002", 0, (a, b, c)) \
    H(MOVE, WM_MOVE, OnMove, void, (int a, int b), "fffd 8002", 0, (a, b)) \
    P(ACTIVATE, WM_ACTIVATE, OnActivate, void, (UINT a, QWidget* b, BOOL c), (UINT a, CWnd_E* b, BOOL c), "fffe w 8001", 0, (a, b, c)) \
    H(NCACTIVATE, WM_NCACTIVATE, OnNcActivate, BOOL, (BOOL a), "8001fffe", kInt, (a)) \
    H(ERASEBKGND, WM_ERASEBKGND, OnEraseBkgnd, BOOL, (CDC_E* a), "ffffffff8001fffe", kInt, (a)) \
    H(ICONERASEBKGND, WM_ICONERASEBKGND, OnIconEraseBkgnd, void, (CDC_E* a), "ffffffff8001fffe", 0, (a)) \
    H(COMPAREITEM, WM_COMPAREITEM, OnCompareItem, int, (int a, COMPAREITEMSTRUCT* b), "8001fffe ffffffff8002fffd", kInt, (a, b)) \
    P(CHARTOITEM, WM_CHARTOITEM, OnCharToItem, int, (UINT a, QWidget* b, UINT c), (UINT a, CWnd_E* b, UINT c), "fffe w 8001", kInt, (a, b, c)) \
    P(VKEYTOITEM, WM_VKEYTOITEM, OnVKeyToItem, int, (UINT a, QWidget* b, UINT c), (UINT a, CWnd_E* b, UINT c), "fffe w 8001", kInt, (a, b, c)) \
    H(MOUSEWHEEL, WM_MOUSEWHEEL, OnMouseWheel, BOOL, (UINT a, short b, CPoint_E c), "fffe 8001 (65533 32770)", kInt, (a, b, c)) \
    H(MOUSEHWHEEL, WM_MOUSEHWHEEL, OnMouseHWheel, void, (UINT a, short b, CPoint_E c), "fffe 8001 (65533 32770)", 0, (a, b, c)) \
    P(CONTEXTMENU, WM_CONTEXTMENU, OnContextMenu, void, (QWidget* a, CPoint_E b), (CWnd_E* a, CPoint_E b), "w (-3 -32766)", 0, (a, b)) \
    H(NCHITTEST, WM_NCHITTEST, OnNcHitTest, LRESULT, (CPoint_E a), "(-3 -32766)", kGiven, (a)) \
    P(HSCROLL, WM_HSCROLL, OnHScroll, void, (UINT a, UINT b, QAbstractSlider* c), (UINT a, UINT b, CScrollBar_E* c), "fffffffe ffff8001 w", 0, (a, b, c)) \
    P(VSCROLL, WM_VSCROLL, OnVScroll, void, (UINT a, UINT b, QAbstractSlider* c), (UINT a, UINT b, CScrollBar_E* c), "fffffffe ffff8001 w", 0, (a, b, c)) \
    H(TIMER, WM_TIMER, OnTimer, void, (UINT_PTR a), "ffffffff8001fffe", 0, (a)) \
    P(APPCOMMAND, WM_APPCOMMAND, OnAppCommand, void, (QWidget* a, UINT b, UINT c, UINT d), (CWnd_E* a, UINT b, UINT c, UINT d), "w 2 8000 fffd", 1, (a, b, c, d)) \
    H(HELPINFO, WM_HELP, OnHelpInfo, BOOL, (HELPINFO* a), "ffffffff8002fffd", kInt, (a)) \
    H(MENUSELECT, WM_MENUSELECT, OnMenuSelect, void, (UINT a, UINT b, HMENU c), "fffe 8001 ffffffff8002fffd", 0, (a, b, c)) \
    H(DROPFILES, WM_DROPFILES, OnDropFiles, void, (HDROP a), "ffffffff8001fffe", 0, (a)) \
    P(NOTIFYFORMAT, WM_NOTIFYFORMAT, OnNotifyFormat, UINT, (QWidget* a, UINT b), (CWnd_E* a, UINT b), "w 8002fffd", kUint, (a, b)) \
    H(CHANGEUISTATE, WM_CHANGEUISTATE, OnChangeUIState, void, (UINT a, UINT b), "fffe 8001", 0, (a, b)) \
    H(UPDATEUISTATE, WM_UPDATEUISTATE, OnUpdateUIState, void, (UINT a, UINT b), "fffe 8001", 0, (a, b)) \
    H(DEVICECHANGE, WM_DEVICECHANGE, OnDeviceChange, BOOL, (UINT a, DWORD_PTR b), "8001fffe ffffffff8002fffd", kInt, (a, b)) \
    H(POWERBROADCAST, WM_POWERBROADCAST, OnPowerBroadcast, UINT, (UINT a, LPARAM b), "8001fffe ffffffff8002fffd", kUint, (a, b)) \
    H(SESSIONCHANGE, WM_WTSSESSION_CHANGE, OnSessionChange, void, (UINT a, UINT b), "8001fffe 8002fffd", 0, (a, b)) \
    H(RAWINPUT, WM_INPUT, OnRawInput, void, (UINT a, HANDLE b), "fe ffffffff8002fffd", 0, (a, b)) \
    H(CHANGECBCHAIN, WM_CHANGECBCHAIN, OnChangeCbChain, void, (HWND a, HWND b), "ffffffff8001fffe ffffffff8002fffd", 0, (a, b)) \
    P(PAINTCLIPBOARD, WM_PAINTCLIPBOARD, OnPaintClipboard, void, (QWidget* a, HGLOBAL b), (CWnd_E* a, HGLOBAL b), "w ffffffff8002fffd", 0, (a, b)) \
    P(SIZECLIPBOARD, WM_SIZECLIPBOARD, OnSizeClipboard, void, (QWidget* a, HGLOBAL b), (CWnd_E* a, HGLOBAL b), "w ffffffff8002fffd", 0, (a, b))
// clang-format on

/// Counts what comes to the widget itself.
struct CountingWidget : QWidget
{
    int m_messages = 0;
    bool event(QEvent* e) override
    {
        m_messages += e->type() == VxWinMsgEvent::EventType ? 1 : 0;
        return QWidget::event(e);
    }
};

struct AllHandlersWnd : CWnd_E
{
#define DECLARE(macro, message, name, R, params, args, value, values)                              \
    R name params { return Note<R>(#name, std::tuple values); }
#define DECLARE_PAIR(macro, message, name, R, params, paramsE, args, value, values)                \
    R name params { return Note<R>(#name, std::tuple values); }                                    \
    R name##_E paramsE { return Note<R>(#name "_E", std::tuple values); }
    ENDS(DECLARE)
    HANDLERS(DECLARE, DECLARE_PAIR)

    QStringList m_seen;
    void OnMessageMap() override;
    template <typename Result, typename Args>
    Result Note(const char* name, const Args& args)
    {
        const auto text = [&](auto... values) { return callText(name, GetSafeHwnd(), values...); };
        m_seen << std::apply(text, args);
        return given<Result>(kGiven);
    }
};

struct DefaultsWnd : CWnd_E
{
    void OnMessageMap() override;
};

#define MAP(macro, ...) ON_WM_##macro##_E()
BEGIN_MESSAGE_MAP_E(AllHandlersWnd, CWnd_E)
ENDS(MAP)
HANDLERS(MAP, MAP)
END_MESSAGE_MAP_E()

BEGIN_MESSAGE_MAP_E(DefaultsWnd, CWnd_E)
HANDLERS(MAP, MAP)
END_MESSAGE_MAP_E()

// message, handler, arguments, result
#define ROW(macro, message, name, R, params, args, value, ...) {message, #name, args, value},
#define ROW_PAIR(macro, message, name, R, params, ...) ROW(macro, message, name, R, __VA_ARGS__)
constexpr Row<UINT, const char*, const char*, LRESULT> kRows[] = {ENDS(ROW)
                                                                      HANDLERS(ROW, ROW_PAIR)};

TEST(HandlersTest, EachMacroBringsItsMessageToItsHandler)
{
    CountingWidget widget;
    AllHandlersWnd window;
    window.SubclassWindow(&widget);
    const auto address = reinterpret_cast<WPARAM>(static_cast<QWidget*>(&widget));
    forRows(kRows, [&](UINT message, const char* name, const char* values, LRESULT result) {
        QString args = QLatin1String(values);
        const bool takesWindow = args.contains(u'w');
        // wParam carries the window when it is the first argument, but for this one.
        const bool isFirst = args.startsWith(u'w') && message != WM_CAPTURECHANGED;
        // Sent as it is: elsewhere keys and clicks are events.
        VxWinMsgEvent e(message, isFirst ? address : kW,
                        takesWindow && !isFirst ? static_cast<LPARAM>(address) : kL);
        QCoreApplication::sendEvent(&widget, &e);
        EXPECT_EQ(e.result, result);
        QStringList calls((QLatin1String(name) + u' ' + args).trimmed());
        if (takesWindow)
            calls << QLatin1String(name) + "_E "_q + args.replace(u'w', "E:w"_q);
        EXPECT_EQ(std::exchange(window.m_seen, {}), calls);
    });
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
        EXPECT_TRUE(std::exchange(widget.m_messages, 0) == 1 && e.result == 0) << message;
    }
}

} // namespace
