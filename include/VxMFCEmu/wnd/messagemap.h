/// @file messagemap.h
/// Message maps: which member of a window class handles which message.
///
/// @code
/// class CCanvas : public CWnd_E {
///     void OnLButtonDown(UINT, CPoint_E);
///     LRESULT OnResult(WPARAM, LPARAM);
///     DECLARE_MESSAGE_MAP_E()
/// };
///
/// BEGIN_MESSAGE_MAP_E(CCanvas, CWnd_E)
///     ON_WM_LBUTTONDOWN_E()
///     ON_MESSAGE_E(WM_APP + 1, &CCanvas::OnResult)
/// END_MESSAGE_MAP_E()
/// @endcode
///
/// A handler has exactly the signature that MFC documents for it; another one does not compile. A
/// handler that takes a window comes in two forms: `OnSetFocus(QWidget*)` and
/// `OnSetFocus_E(CWnd_E*)`. A class writes the one it likes, or both; the second form is called
/// last and its result counts.
///
/// Differs from MFC: a number has one entry per window, the last one registered; there is no way to
/// the base class's handler but calling it; the maps are filled when the window is attached.
#pragma once

#include <VxMFCEmu/types.h>

#include <cstring>

class CWnd_E;

/// A handler without its signature.
using AFX_PMSG_E = void (CWnd_E::*)();

/// One entry of a window's message map.
struct AFX_MSGMAP_ENTRY_E
{
    unsigned long nSig = 0;    ///< number of the signature, which says how arguments are unpacked
    AFX_PMSG_E pfn = nullptr;  ///< takes `QWidget*` for windows, or has no windows at all
    AFX_PMSG_E pfnE = nullptr; ///< takes `CWnd_E*` for windows; null when there is none
};

namespace vx::detail {

template <typename Class, typename Fn>
struct Member;
template <typename Class, typename Result, typename... Args>
struct Member<Class, Result(Args...)>
{
    using Type = Result (Class::*)(Args...);
};

/// A handler under another signature. GCC warns of the plain cast between pointers to member, and
/// an application's message map is compiled with the application's warnings.
template <typename To, typename From>
To castHandler(From pfn)
{
    static_assert(sizeof(To) == sizeof(From));
    To result;
    std::memcpy(&result, &pfn, sizeof(result));
    return result;
}

/// Takes the signature off a handler of @p Class, which must have the signature @p Fn.
template <typename Class, typename Fn>
AFX_PMSG_E eraseHandler(typename Member<Class, Fn>::Type pfn)
{
    return castHandler<AFX_PMSG_E>(static_cast<typename Member<CWnd_E, Fn>::Type>(pfn));
}

/// The entry of a handler with two forms. A form that is still CWnd_E's own default is left out
/// when the class wrote the other one: the default would pass the event on although it was handled.
inline AFX_MSGMAP_ENTRY_E pairEntry(unsigned long nSig, AFX_PMSG_E pfn, AFX_PMSG_E pfnDefault,
                                    AFX_PMSG_E pfnE, AFX_PMSG_E pfnDefaultE)
{
    const bool own = pfn != pfnDefault;
    const bool ownE = pfnE != pfnDefaultE;
    return {nSig, own || !ownE ? pfn : nullptr, ownE ? pfnE : nullptr};
}

} // namespace vx::detail

/// In a class body: declares the message map. Leaves the access at `protected`.
#define DECLARE_MESSAGE_MAP_E()                                                                    \
protected:                                                                                         \
    void OnMessageMap() override;

/// In a source file: begins the message map of @p theClass, which continues that of @p baseClass.
#define BEGIN_MESSAGE_MAP_E(theClass, baseClass)                                                   \
    void theClass::OnMessageMap()                                                                  \
    {                                                                                              \
        using ThisClass_E [[maybe_unused]] = theClass;                                             \
        baseClass::OnMessageMap();

/// Ends the message map.
#define END_MESSAGE_MAP_E() }

/// Any message, to `LRESULT handler(WPARAM, LPARAM)`.
#define ON_MESSAGE_E(message, memberFn)                                                            \
    this->AddMsgMapEntry(message, 14,                                                              \
                         vx::detail::eraseHandler<ThisClass_E, LRESULT(WPARAM, LPARAM)>(memberFn), \
                         nullptr);
/// A message whose number is known at run time only, held in @p variable.
#define ON_REGISTERED_MESSAGE_E(variable, memberFn) ON_MESSAGE_E(variable, memberFn)

#define VXMFC_ON_WM(message, nSig, handler, ...)                                                   \
    this->AddMsgMapEntry(                                                                          \
        message, nSig, vx::detail::eraseHandler<ThisClass_E, __VA_ARGS__>(&ThisClass_E::handler),  \
        nullptr);

#define VXMFC_PAIR_ENTRY(nSig, handler, fn, fnE)                                                   \
    vx::detail::pairEntry(                                                                         \
        nSig, vx::detail::eraseHandler<ThisClass_E, VXMFC_UNPACK fn>(&ThisClass_E::handler),       \
        vx::detail::eraseHandler<CWnd_E, VXMFC_UNPACK fn>(&CWnd_E::handler),                       \
        vx::detail::eraseHandler<ThisClass_E, VXMFC_UNPACK fnE>(&ThisClass_E::handler##_E),        \
        vx::detail::eraseHandler<CWnd_E, VXMFC_UNPACK fnE>(&CWnd_E::handler##_E))
#define VXMFC_ON_WM_PAIR(message, nSig, handler, fn, fnE)                                          \
    this->AddMsgMapEntry(message, VXMFC_PAIR_ENTRY(nSig, handler, fn, fnE));
#define VXMFC_ON_CTLCOLOR(handler, fn, fnE)                                                        \
    this->AddCtlColorEntry(VXMFC_PAIR_ENTRY(0, handler, fn, fnE));
#define VXMFC_UNPACK(...) __VA_ARGS__

// clang-format off

/// @{
/// A message map's entry for a message of the window's life; the handler is the member it names.
#define ON_WM_CREATE_E() VXMFC_ON_WM(WM_CREATE, 13, OnCreate, int(CREATESTRUCT*))
#define ON_WM_DESTROY_E() VXMFC_ON_WM(WM_DESTROY, 19, OnDestroy, void())
#define ON_WM_NCDESTROY_E() VXMFC_ON_WM(WM_NCDESTROY, 19, OnNcDestroy, void())
#define ON_WM_NCCREATE_E() VXMFC_ON_WM(WM_NCCREATE, 7, OnNcCreate, BOOL(CREATESTRUCT*))
#define ON_WM_CLOSE_E() VXMFC_ON_WM(WM_CLOSE, 19, OnClose, void())
#define ON_WM_QUERYENDSESSION_E() VXMFC_ON_WM(WM_QUERYENDSESSION, 30, OnQueryEndSession, BOOL())
#define ON_WM_ENDSESSION_E() VXMFC_ON_WM(WM_ENDSESSION, 20, OnEndSession, void(BOOL))
#define ON_WM_QUERYOPEN_E() VXMFC_ON_WM(WM_QUERYOPEN, 30, OnQueryOpen, BOOL())
#define ON_WM_PARENTNOTIFY_E() VXMFC_ON_WM(WM_PARENTNOTIFY, 46, OnParentNotify, void(UINT, LPARAM))
#define ON_WM_COPYDATA_E() VXMFC_ON_WM_PAIR(WM_COPYDATA, 6, OnCopyData, (BOOL(QWidget*, COPYDATASTRUCT*)), (BOOL(CWnd_E*, COPYDATASTRUCT*)))
/// @}

/// @{
/// A message map's entry for a message of size, place and show; the handler is the member it names.
#define ON_WM_SIZE_E() VXMFC_ON_WM(WM_SIZE, 26, OnSize, void(UINT, int, int))
#define ON_WM_SIZING_E() VXMFC_ON_WM(WM_SIZING, 51, OnSizing, void(UINT, RECT*))
#define ON_WM_MOVE_E() VXMFC_ON_WM(WM_MOVE, 24, OnMove, void(int, int))
#define ON_WM_MOVING_E() VXMFC_ON_WM(WM_MOVING, 51, OnMoving, void(UINT, RECT*))
#define ON_WM_SHOWWINDOW_E() VXMFC_ON_WM(WM_SHOWWINDOW, 22, OnShowWindow, void(BOOL, UINT))
#define ON_WM_ENABLE_E() VXMFC_ON_WM(WM_ENABLE, 20, OnEnable, void(BOOL))
#define ON_WM_GETMINMAXINFO_E() VXMFC_ON_WM(WM_GETMINMAXINFO, 45, OnGetMinMaxInfo, void(MINMAXINFO*))
#define ON_WM_WINDOWPOSCHANGING_E() VXMFC_ON_WM(WM_WINDOWPOSCHANGING, 45, OnWindowPosChanging, void(WINDOWPOS*))
#define ON_WM_WINDOWPOSCHANGED_E() VXMFC_ON_WM(WM_WINDOWPOSCHANGED, 45, OnWindowPosChanged, void(WINDOWPOS*))
#define ON_WM_NCCALCSIZE_E() VXMFC_ON_WM(WM_NCCALCSIZE, 46, OnNcCalcSize, void(BOOL, NCCALCSIZE_PARAMS*))
#define ON_WM_STYLECHANGING_E() VXMFC_ON_WM(WM_STYLECHANGING, 46, OnStyleChanging, void(int, STYLESTRUCT*))
#define ON_WM_STYLECHANGED_E() VXMFC_ON_WM(WM_STYLECHANGED, 46, OnStyleChanged, void(int, STYLESTRUCT*))
#define ON_WM_ENTERSIZEMOVE_E() VXMFC_ON_WM(WM_ENTERSIZEMOVE, 19, OnEnterSizeMove, void())
#define ON_WM_EXITSIZEMOVE_E() VXMFC_ON_WM(WM_EXITSIZEMOVE, 19, OnExitSizeMove, void())
/// @}

/// @{
/// A message map's entry for a message of activation and focus; the handler is the member it names.
#define ON_WM_ACTIVATE_E() VXMFC_ON_WM_PAIR(WM_ACTIVATE, 42, OnActivate, (void(UINT, QWidget*, BOOL)), (void(UINT, CWnd_E*, BOOL)))
#define ON_WM_ACTIVATEAPP_E() VXMFC_ON_WM(WM_ACTIVATEAPP, 22, OnActivateApp, void(BOOL, DWORD))
#define ON_WM_MOUSEACTIVATE_E() VXMFC_ON_WM_PAIR(WM_MOUSEACTIVATE, 12, OnMouseActivate, (int(QWidget*, UINT, UINT)), (int(CWnd_E*, UINT, UINT)))
#define ON_WM_CHILDACTIVATE_E() VXMFC_ON_WM(WM_CHILDACTIVATE, 19, OnChildActivate, void())
#define ON_WM_NCACTIVATE_E() VXMFC_ON_WM(WM_NCACTIVATE, 2, OnNcActivate, BOOL(BOOL))
#define ON_WM_SETFOCUS_E() VXMFC_ON_WM_PAIR(WM_SETFOCUS, 36, OnSetFocus, (void(QWidget*)), (void(CWnd_E*)))
#define ON_WM_KILLFOCUS_E() VXMFC_ON_WM_PAIR(WM_KILLFOCUS, 36, OnKillFocus, (void(QWidget*)), (void(CWnd_E*)))
#define ON_WM_CAPTURECHANGED_E() VXMFC_ON_WM_PAIR(WM_CAPTURECHANGED, 37, OnCaptureChanged, (void(QWidget*)), (void(CWnd_E*)))
#define ON_WM_CANCELMODE_E() VXMFC_ON_WM(WM_CANCELMODE, 19, OnCancelMode, void())
/// @}

/// @{
/// A message map's entry for a message of painting; the handler is the member it names.
#define ON_WM_PAINT_E() VXMFC_ON_WM(WM_PAINT, 19, OnPaint, void())
#define ON_WM_ERASEBKGND_E() VXMFC_ON_WM(WM_ERASEBKGND, 28, OnEraseBkgnd, BOOL(CDC_E*))
#define ON_WM_CTLCOLOR_E() VXMFC_ON_CTLCOLOR(OnCtlColor, (HBRUSH(CDC_E*, QWidget*, UINT)), (HBRUSH(CDC_E*, CWnd_E*, UINT)))
#define ON_WM_ICONERASEBKGND_E() VXMFC_ON_WM(WM_ICONERASEBKGND, 17, OnIconEraseBkgnd, void(CDC_E*))
#define ON_WM_NCPAINT_E() VXMFC_ON_WM(WM_NCPAINT, 19, OnNcPaint, void())
#define ON_WM_QUERYDRAGICON_E() VXMFC_ON_WM(WM_QUERYDRAGICON, 41, OnQueryDragIcon, HCURSOR())
#define ON_WM_DRAWITEM_E() VXMFC_ON_WM(WM_DRAWITEM, 46, OnDrawItem, void(int, DRAWITEMSTRUCT*))
#define ON_WM_MEASUREITEM_E() VXMFC_ON_WM(WM_MEASUREITEM, 46, OnMeasureItem, void(int, MEASUREITEMSTRUCT*))
#define ON_WM_COMPAREITEM_E() VXMFC_ON_WM(WM_COMPAREITEM, 48, OnCompareItem, int(int, COMPAREITEMSTRUCT*))
#define ON_WM_DELETEITEM_E() VXMFC_ON_WM(WM_DELETEITEM, 46, OnDeleteItem, void(int, DELETEITEMSTRUCT*))
#define ON_WM_PALETTECHANGED_E() VXMFC_ON_WM_PAIR(WM_PALETTECHANGED, 36, OnPaletteChanged, (void(QWidget*)), (void(CWnd_E*)))
#define ON_WM_PALETTEISCHANGING_E() VXMFC_ON_WM_PAIR(WM_PALETTEISCHANGING, 36, OnPaletteIsChanging, (void(QWidget*)), (void(CWnd_E*)))
#define ON_WM_QUERYNEWPALETTE_E() VXMFC_ON_WM(WM_QUERYNEWPALETTE, 30, OnQueryNewPalette, BOOL())
#define ON_WM_SYSCOLORCHANGE_E() VXMFC_ON_WM(WM_SYSCOLORCHANGE, 19, OnSysColorChange, void())
#define ON_WM_THEMECHANGED_E() VXMFC_ON_WM(WM_THEMECHANGED, 89, OnThemeChanged, LRESULT())
/// @}

/// @{
/// A message map's entry for a message of the keyboard; the handler is the member it names.
#define ON_WM_KEYDOWN_E() VXMFC_ON_WM(WM_KEYDOWN, 25, OnKeyDown, void(UINT, UINT, UINT))
#define ON_WM_KEYUP_E() VXMFC_ON_WM(WM_KEYUP, 25, OnKeyUp, void(UINT, UINT, UINT))
#define ON_WM_CHAR_E() VXMFC_ON_WM(WM_CHAR, 25, OnChar, void(UINT, UINT, UINT))
#define ON_WM_DEADCHAR_E() VXMFC_ON_WM(WM_DEADCHAR, 25, OnDeadChar, void(UINT, UINT, UINT))
#define ON_WM_UNICHAR_E() VXMFC_ON_WM(WM_UNICHAR, 25, OnUniChar, void(UINT, UINT, UINT))
#define ON_WM_SYSKEYDOWN_E() VXMFC_ON_WM(WM_SYSKEYDOWN, 25, OnSysKeyDown, void(UINT, UINT, UINT))
#define ON_WM_SYSKEYUP_E() VXMFC_ON_WM(WM_SYSKEYUP, 25, OnSysKeyUp, void(UINT, UINT, UINT))
#define ON_WM_SYSCHAR_E() VXMFC_ON_WM(WM_SYSCHAR, 25, OnSysChar, void(UINT, UINT, UINT))
#define ON_WM_SYSDEADCHAR_E() VXMFC_ON_WM(WM_SYSDEADCHAR, 25, OnSysDeadChar, void(UINT, UINT, UINT))
#define ON_WM_HOTKEY_E() VXMFC_ON_WM(WM_HOTKEY, 25, OnHotKey, void(UINT, UINT, UINT))
#define ON_WM_GETDLGCODE_E() VXMFC_ON_WM(WM_GETDLGCODE, 50, OnGetDlgCode, UINT())
#define ON_WM_CHARTOITEM_E() VXMFC_ON_WM_PAIR(WM_CHARTOITEM, 10, OnCharToItem, (int(UINT, QWidget*, UINT)), (int(UINT, CWnd_E*, UINT)))
#define ON_WM_VKEYTOITEM_E() VXMFC_ON_WM_PAIR(WM_VKEYTOITEM, 10, OnVKeyToItem, (int(UINT, QWidget*, UINT)), (int(UINT, CWnd_E*, UINT)))
#define ON_WM_INPUTLANGCHANGE_E() VXMFC_ON_WM(WM_INPUTLANGCHANGE, 22, OnInputLangChange, void(UINT, UINT))
/// @}

/// @{
/// A message map's entry for a message of the mouse; the handler is the member it names.
#define ON_WM_MOUSEMOVE_E() VXMFC_ON_WM(WM_MOUSEMOVE, 54, OnMouseMove, void(UINT, CPoint_E))
#define ON_WM_LBUTTONDOWN_E() VXMFC_ON_WM(WM_LBUTTONDOWN, 54, OnLButtonDown, void(UINT, CPoint_E))
#define ON_WM_LBUTTONUP_E() VXMFC_ON_WM(WM_LBUTTONUP, 54, OnLButtonUp, void(UINT, CPoint_E))
#define ON_WM_LBUTTONDBLCLK_E() VXMFC_ON_WM(WM_LBUTTONDBLCLK, 54, OnLButtonDblClk, void(UINT, CPoint_E))
#define ON_WM_RBUTTONDOWN_E() VXMFC_ON_WM(WM_RBUTTONDOWN, 54, OnRButtonDown, void(UINT, CPoint_E))
#define ON_WM_RBUTTONUP_E() VXMFC_ON_WM(WM_RBUTTONUP, 54, OnRButtonUp, void(UINT, CPoint_E))
#define ON_WM_RBUTTONDBLCLK_E() VXMFC_ON_WM(WM_RBUTTONDBLCLK, 54, OnRButtonDblClk, void(UINT, CPoint_E))
#define ON_WM_MBUTTONDOWN_E() VXMFC_ON_WM(WM_MBUTTONDOWN, 54, OnMButtonDown, void(UINT, CPoint_E))
#define ON_WM_MBUTTONUP_E() VXMFC_ON_WM(WM_MBUTTONUP, 54, OnMButtonUp, void(UINT, CPoint_E))
#define ON_WM_MBUTTONDBLCLK_E() VXMFC_ON_WM(WM_MBUTTONDBLCLK, 54, OnMButtonDblClk, void(UINT, CPoint_E))
#define ON_WM_XBUTTONDOWN_E() VXMFC_ON_WM(WM_XBUTTONDOWN, 81, OnXButtonDown, void(UINT, UINT, CPoint_E))
#define ON_WM_XBUTTONUP_E() VXMFC_ON_WM(WM_XBUTTONUP, 81, OnXButtonUp, void(UINT, UINT, CPoint_E))
#define ON_WM_XBUTTONDBLCLK_E() VXMFC_ON_WM(WM_XBUTTONDBLCLK, 81, OnXButtonDblClk, void(UINT, UINT, CPoint_E))
#define ON_WM_MOUSEWHEEL_E() VXMFC_ON_WM(WM_MOUSEWHEEL, 56, OnMouseWheel, BOOL(UINT, short, CPoint_E))
#define ON_WM_MOUSEHWHEEL_E() VXMFC_ON_WM(WM_MOUSEHWHEEL, 57, OnMouseHWheel, void(UINT, short, CPoint_E))
#define ON_WM_MOUSEHOVER_E() VXMFC_ON_WM(WM_MOUSEHOVER, 54, OnMouseHover, void(UINT, CPoint_E))
#define ON_WM_MOUSELEAVE_E() VXMFC_ON_WM(WM_MOUSELEAVE, 19, OnMouseLeave, void())
#define ON_WM_SETCURSOR_E() VXMFC_ON_WM_PAIR(WM_SETCURSOR, 5, OnSetCursor, (BOOL(QWidget*, UINT, UINT)), (BOOL(CWnd_E*, UINT, UINT)))
#define ON_WM_CONTEXTMENU_E() VXMFC_ON_WM_PAIR(WM_CONTEXTMENU, 39, OnContextMenu, (void(QWidget*, CPoint_E)), (void(CWnd_E*, CPoint_E)))
#define ON_WM_NCHITTEST_E() VXMFC_ON_WM(WM_NCHITTEST, 71, OnNcHitTest, LRESULT(CPoint_E))
#define ON_WM_NCMOUSEMOVE_E() VXMFC_ON_WM(WM_NCMOUSEMOVE, 54, OnNcMouseMove, void(UINT, CPoint_E))
#define ON_WM_NCMOUSEHOVER_E() VXMFC_ON_WM(WM_NCMOUSEHOVER, 54, OnNcMouseHover, void(UINT, CPoint_E))
#define ON_WM_NCMOUSELEAVE_E() VXMFC_ON_WM(WM_NCMOUSELEAVE, 19, OnNcMouseLeave, void())
#define ON_WM_NCLBUTTONDOWN_E() VXMFC_ON_WM(WM_NCLBUTTONDOWN, 54, OnNcLButtonDown, void(UINT, CPoint_E))
#define ON_WM_NCLBUTTONUP_E() VXMFC_ON_WM(WM_NCLBUTTONUP, 54, OnNcLButtonUp, void(UINT, CPoint_E))
#define ON_WM_NCLBUTTONDBLCLK_E() VXMFC_ON_WM(WM_NCLBUTTONDBLCLK, 54, OnNcLButtonDblClk, void(UINT, CPoint_E))
#define ON_WM_NCRBUTTONDOWN_E() VXMFC_ON_WM(WM_NCRBUTTONDOWN, 54, OnNcRButtonDown, void(UINT, CPoint_E))
#define ON_WM_NCRBUTTONUP_E() VXMFC_ON_WM(WM_NCRBUTTONUP, 54, OnNcRButtonUp, void(UINT, CPoint_E))
#define ON_WM_NCRBUTTONDBLCLK_E() VXMFC_ON_WM(WM_NCRBUTTONDBLCLK, 54, OnNcRButtonDblClk, void(UINT, CPoint_E))
#define ON_WM_NCMBUTTONDOWN_E() VXMFC_ON_WM(WM_NCMBUTTONDOWN, 54, OnNcMButtonDown, void(UINT, CPoint_E))
#define ON_WM_NCMBUTTONUP_E() VXMFC_ON_WM(WM_NCMBUTTONUP, 54, OnNcMButtonUp, void(UINT, CPoint_E))
#define ON_WM_NCMBUTTONDBLCLK_E() VXMFC_ON_WM(WM_NCMBUTTONDBLCLK, 54, OnNcMButtonDblClk, void(UINT, CPoint_E))
#define ON_WM_NCXBUTTONDOWN_E() VXMFC_ON_WM(WM_NCXBUTTONDOWN, 82, OnNcXButtonDown, void(short, UINT, CPoint_E))
#define ON_WM_NCXBUTTONUP_E() VXMFC_ON_WM(WM_NCXBUTTONUP, 82, OnNcXButtonUp, void(short, UINT, CPoint_E))
#define ON_WM_NCXBUTTONDBLCLK_E() VXMFC_ON_WM(WM_NCXBUTTONDBLCLK, 82, OnNcXButtonDblClk, void(short, UINT, CPoint_E))
/// @}

/// @{
/// A message map's entry for a message of scrolling, timers and commands; the handler is the member it names.
#define ON_WM_HSCROLL_E() VXMFC_ON_WM_PAIR(WM_HSCROLL, 43, OnHScroll, (void(UINT, UINT, QAbstractSlider*)), (void(UINT, UINT, CScrollBar_E*)))
#define ON_WM_VSCROLL_E() VXMFC_ON_WM_PAIR(WM_VSCROLL, 43, OnVScroll, (void(UINT, UINT, QAbstractSlider*)), (void(UINT, UINT, CScrollBar_E*)))
#define ON_WM_TIMER_E() VXMFC_ON_WM(WM_TIMER, 17, OnTimer, void(UINT_PTR))
#define ON_WM_SYSCOMMAND_E() VXMFC_ON_WM(WM_SYSCOMMAND, 46, OnSysCommand, void(UINT, LPARAM))
#define ON_WM_APPCOMMAND_E() VXMFC_ON_WM_PAIR(WM_APPCOMMAND, 78, OnAppCommand, (void(QWidget*, UINT, UINT, UINT)), (void(CWnd_E*, UINT, UINT, UINT)))
#define ON_WM_HELPINFO_E() VXMFC_ON_WM(WM_HELP, 7, OnHelpInfo, BOOL(HELPINFO*))
#define ON_WM_MENUSELECT_E() VXMFC_ON_WM(WM_MENUSELECT, 53, OnMenuSelect, void(UINT, UINT, HMENU))
#define ON_WM_ENTERMENULOOP_E() VXMFC_ON_WM(WM_ENTERMENULOOP, 20, OnEnterMenuLoop, void(BOOL))
#define ON_WM_EXITMENULOOP_E() VXMFC_ON_WM(WM_EXITMENULOOP, 20, OnExitMenuLoop, void(BOOL))
#define ON_WM_NEXTMENU_E() VXMFC_ON_WM(WM_NEXTMENU, 84, OnNextMenu, void(UINT, MDINEXTMENU*))
#define ON_WM_DROPFILES_E() VXMFC_ON_WM(WM_DROPFILES, 17, OnDropFiles, void(HDROP))
#define ON_WM_NOTIFYFORMAT_E() VXMFC_ON_WM_PAIR(WM_NOTIFYFORMAT, 72, OnNotifyFormat, (UINT(QWidget*, UINT)), (UINT(CWnd_E*, UINT)))
#define ON_WM_QUERYUISTATE_E() VXMFC_ON_WM(WM_QUERYUISTATE, 89, OnQueryUIState, LRESULT())
#define ON_WM_CHANGEUISTATE_E() VXMFC_ON_WM(WM_CHANGEUISTATE, 23, OnChangeUIState, void(UINT, UINT))
#define ON_WM_UPDATEUISTATE_E() VXMFC_ON_WM(WM_UPDATEUISTATE, 23, OnUpdateUIState, void(UINT, UINT))
/// @}

/// @{
/// A message map's entry for a message of the system; the handler is the member it names.
#define ON_WM_SETTINGCHANGE_E() VXMFC_ON_WM(WM_SETTINGCHANGE, 46, OnSettingChange, void(UINT, LPCTSTR))
#define ON_WM_DEVMODECHANGE_E() VXMFC_ON_WM(WM_DEVMODECHANGE, 45, OnDevModeChange, void(LPTSTR))
#define ON_WM_DEVICECHANGE_E() VXMFC_ON_WM(WM_DEVICECHANGE, 48, OnDeviceChange, BOOL(UINT, DWORD_PTR))
#define ON_WM_FONTCHANGE_E() VXMFC_ON_WM(WM_FONTCHANGE, 19, OnFontChange, void())
#define ON_WM_TIMECHANGE_E() VXMFC_ON_WM(WM_TIMECHANGE, 19, OnTimeChange, void())
#define ON_WM_COMPACTING_E() VXMFC_ON_WM(WM_COMPACTING, 20, OnCompacting, void(UINT))
#define ON_WM_SPOOLERSTATUS_E() VXMFC_ON_WM(WM_SPOOLERSTATUS, 22, OnSpoolerStatus, void(UINT, UINT))
#define ON_WM_POWERBROADCAST_E() VXMFC_ON_WM(WM_POWERBROADCAST, 94, OnPowerBroadcast, UINT(UINT, LPARAM))
#define ON_WM_USERCHANGED_E() VXMFC_ON_WM(WM_USERCHANGED, 19, OnUserChanged, void())
#define ON_WM_SESSIONCHANGE_E() VXMFC_ON_WM(WM_WTSSESSION_CHANGE, 22, OnSessionChange, void(UINT, UINT))
#define ON_WM_TCARD_E() VXMFC_ON_WM(WM_TCARD, 22, OnTCard, void(UINT, DWORD))
#define ON_WM_RAWINPUT_E() VXMFC_ON_WM(WM_INPUT, 79, OnRawInput, void(UINT, HANDLE))
/// @}

/// @{
/// A message map's entry for a message of the clipboard; the handler is the member it names.
#define ON_WM_DESTROYCLIPBOARD_E() VXMFC_ON_WM(WM_DESTROYCLIPBOARD, 19, OnDestroyClipboard, void())
#define ON_WM_DRAWCLIPBOARD_E() VXMFC_ON_WM(WM_DRAWCLIPBOARD, 19, OnDrawClipboard, void())
#define ON_WM_CLIPBOARDUPDATE_E() VXMFC_ON_WM(WM_CLIPBOARDUPDATE, 19, OnClipboardUpdate, void())
#define ON_WM_RENDERFORMAT_E() VXMFC_ON_WM(WM_RENDERFORMAT, 20, OnRenderFormat, void(UINT))
#define ON_WM_RENDERALLFORMATS_E() VXMFC_ON_WM(WM_RENDERALLFORMATS, 19, OnRenderAllFormats, void())
#define ON_WM_ASKCBFORMATNAME_E() VXMFC_ON_WM(WM_ASKCBFORMATNAME, 46, OnAskCbFormatName, void(UINT, LPTSTR))
#define ON_WM_CHANGECBCHAIN_E() VXMFC_ON_WM(WM_CHANGECBCHAIN, 18, OnChangeCbChain, void(HWND, HWND))
#define ON_WM_PAINTCLIPBOARD_E() VXMFC_ON_WM_PAIR(WM_PAINTCLIPBOARD, 40, OnPaintClipboard, (void(QWidget*, HGLOBAL)), (void(CWnd_E*, HGLOBAL)))
#define ON_WM_SIZECLIPBOARD_E() VXMFC_ON_WM_PAIR(WM_SIZECLIPBOARD, 40, OnSizeClipboard, (void(QWidget*, HGLOBAL)), (void(CWnd_E*, HGLOBAL)))
#define ON_WM_HSCROLLCLIPBOARD_E() VXMFC_ON_WM_PAIR(WM_HSCROLLCLIPBOARD, 38, OnHScrollClipboard, (void(QWidget*, UINT, UINT)), (void(CWnd_E*, UINT, UINT)))
#define ON_WM_VSCROLLCLIPBOARD_E() VXMFC_ON_WM_PAIR(WM_VSCROLLCLIPBOARD, 38, OnVScrollClipboard, (void(QWidget*, UINT, UINT)), (void(CWnd_E*, UINT, UINT)))
/// @}
// clang-format on
