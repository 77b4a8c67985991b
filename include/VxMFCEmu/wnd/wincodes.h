/// @file wincodes.h
/// What the parameters of window messages and functions are made of: hit-test results, scroll
/// codes, sizes, activation, system commands, window relations, menu flags. Win32 names and values.
#pragma once

#include <VxMFCEmu/types.h>

/// @{
/// A hit-test result.
inline constexpr int HTERROR = -2;
inline constexpr int HTTRANSPARENT = -1;
inline constexpr int HTNOWHERE = 0;
inline constexpr int HTCLIENT = 1;
inline constexpr int HTCAPTION = 2;
inline constexpr int HTSYSMENU = 3;
inline constexpr int HTGROWBOX = 4;
inline constexpr int HTSIZE = 4;
inline constexpr int HTMENU = 5;
inline constexpr int HTHSCROLL = 6;
inline constexpr int HTVSCROLL = 7;
inline constexpr int HTMINBUTTON = 8;
inline constexpr int HTREDUCE = 8;
inline constexpr int HTMAXBUTTON = 9;
inline constexpr int HTZOOM = 9;
inline constexpr int HTLEFT = 10;
inline constexpr int HTSIZEFIRST = 10;
inline constexpr int HTRIGHT = 11;
inline constexpr int HTTOP = 12;
inline constexpr int HTTOPLEFT = 13;
inline constexpr int HTTOPRIGHT = 14;
inline constexpr int HTBOTTOM = 15;
inline constexpr int HTBOTTOMLEFT = 16;
inline constexpr int HTBOTTOMRIGHT = 17;
inline constexpr int HTSIZELAST = 17;
inline constexpr int HTBORDER = 18;
inline constexpr int HTOBJECT = 19;
inline constexpr int HTCLOSE = 20;
inline constexpr int HTHELP = 21;
/// @}

/// @{
/// A scroll bar of a window.
inline constexpr int SB_HORZ = 0;
inline constexpr int SB_VERT = 1;
inline constexpr int SB_CTL = 2;
inline constexpr int SB_BOTH = 3;
/// @}

/// @{
/// What happened to a scroll bar, in WM_HSCROLL and WM_VSCROLL.
inline constexpr int SB_LINEUP = 0;
inline constexpr int SB_LINELEFT = 0;
inline constexpr int SB_LINEDOWN = 1;
inline constexpr int SB_LINERIGHT = 1;
inline constexpr int SB_PAGEUP = 2;
inline constexpr int SB_PAGELEFT = 2;
inline constexpr int SB_PAGEDOWN = 3;
inline constexpr int SB_PAGERIGHT = 3;
inline constexpr int SB_THUMBPOSITION = 4;
inline constexpr int SB_THUMBTRACK = 5;
inline constexpr int SB_TOP = 6;
inline constexpr int SB_LEFT = 6;
inline constexpr int SB_BOTTOM = 7;
inline constexpr int SB_RIGHT = 7;
inline constexpr int SB_ENDSCROLL = 8;
/// @}

/// @{
/// Arrows of EnableScrollBar_E().
inline constexpr UINT ESB_ENABLE_BOTH = 0;
inline constexpr UINT ESB_DISABLE_LEFT = 1;
inline constexpr UINT ESB_DISABLE_UP = 1;
inline constexpr UINT ESB_DISABLE_LTUP = 1;
inline constexpr UINT ESB_DISABLE_RIGHT = 2;
inline constexpr UINT ESB_DISABLE_DOWN = 2;
inline constexpr UINT ESB_DISABLE_RTDN = 2;
inline constexpr UINT ESB_DISABLE_BOTH = 3;
/// @}

/// @{
/// A member of a scroll info that counts.
inline constexpr UINT SIF_RANGE = 0x0001;
inline constexpr UINT SIF_PAGE = 0x0002;
inline constexpr UINT SIF_POS = 0x0004;
inline constexpr UINT SIF_DISABLENOSCROLL = 0x0008;
inline constexpr UINT SIF_TRACKPOS = 0x0010;
inline constexpr UINT SIF_ALL = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_TRACKPOS;
/// @}

/// @{
/// A kind of size in WM_SIZE.
inline constexpr UINT SIZE_RESTORED = 0;
inline constexpr UINT SIZE_MINIMIZED = 1;
inline constexpr UINT SIZE_MAXIMIZED = 2;
inline constexpr UINT SIZE_MAXSHOW = 3;
inline constexpr UINT SIZE_MAXHIDE = 4;
/// @}

/// @{
/// An edge in WM_SIZING.
inline constexpr UINT WMSZ_LEFT = 1;
inline constexpr UINT WMSZ_RIGHT = 2;
inline constexpr UINT WMSZ_TOP = 3;
inline constexpr UINT WMSZ_TOPLEFT = 4;
inline constexpr UINT WMSZ_TOPRIGHT = 5;
inline constexpr UINT WMSZ_BOTTOM = 6;
inline constexpr UINT WMSZ_BOTTOMLEFT = 7;
inline constexpr UINT WMSZ_BOTTOMRIGHT = 8;
/// @}

/// @{
/// An activation in WM_ACTIVATE.
inline constexpr UINT WA_INACTIVE = 0;
inline constexpr UINT WA_ACTIVE = 1;
inline constexpr UINT WA_CLICKACTIVE = 2;
/// @}

/// @{
/// A result of WM_MOUSEACTIVATE.
inline constexpr int MA_ACTIVATE = 1;
inline constexpr int MA_ACTIVATEANDEAT = 2;
inline constexpr int MA_NOACTIVATE = 3;
inline constexpr int MA_NOACTIVATEANDEAT = 4;
/// @}

/// @{
/// A system command.
inline constexpr UINT SC_SIZE = 0xF000;
inline constexpr UINT SC_MOVE = 0xF010;
inline constexpr UINT SC_MINIMIZE = 0xF020;
inline constexpr UINT SC_ICON = 0xF020;
inline constexpr UINT SC_MAXIMIZE = 0xF030;
inline constexpr UINT SC_ZOOM = 0xF030;
inline constexpr UINT SC_NEXTWINDOW = 0xF040;
inline constexpr UINT SC_PREVWINDOW = 0xF050;
inline constexpr UINT SC_CLOSE = 0xF060;
inline constexpr UINT SC_VSCROLL = 0xF070;
inline constexpr UINT SC_HSCROLL = 0xF080;
inline constexpr UINT SC_MOUSEMENU = 0xF090;
inline constexpr UINT SC_KEYMENU = 0xF100;
inline constexpr UINT SC_ARRANGE = 0xF110;
inline constexpr UINT SC_RESTORE = 0xF120;
inline constexpr UINT SC_TASKLIST = 0xF130;
inline constexpr UINT SC_SCREENSAVE = 0xF140;
inline constexpr UINT SC_HOTKEY = 0xF150;
inline constexpr UINT SC_DEFAULT = 0xF160;
inline constexpr UINT SC_MONITORPOWER = 0xF170;
inline constexpr UINT SC_CONTEXTHELP = 0xF180;
inline constexpr UINT SC_SEPARATOR = 0xF00F;
/// @}

/// @{
/// A value stored with a window.
inline constexpr int GWL_WNDPROC = -4;
inline constexpr int GWL_HINSTANCE = -6;
inline constexpr int GWL_HWNDPARENT = -8;
inline constexpr int GWL_ID = -12;
inline constexpr int GWL_STYLE = -16;
inline constexpr int GWL_EXSTYLE = -20;
inline constexpr int GWL_USERDATA = -21;
inline constexpr int GWLP_WNDPROC = -4;
inline constexpr int GWLP_HINSTANCE = -6;
inline constexpr int GWLP_HWNDPARENT = -8;
inline constexpr int GWLP_ID = -12;
inline constexpr int GWLP_USERDATA = -21;
inline constexpr int DWL_MSGRESULT = 0;
inline constexpr int DWL_DLGPROC = 4;
inline constexpr int DWL_USER = 8;
/// @}

/// @{
/// A relation to another window.
inline constexpr UINT GW_HWNDFIRST = 0;
inline constexpr UINT GW_HWNDLAST = 1;
inline constexpr UINT GW_HWNDNEXT = 2;
inline constexpr UINT GW_HWNDPREV = 3;
inline constexpr UINT GW_OWNER = 4;
inline constexpr UINT GW_CHILD = 5;
inline constexpr UINT GW_ENABLEDPOPUP = 6;
/// @}

/// @{
/// A kind of ancestor.
inline constexpr UINT GA_PARENT = 1;
inline constexpr UINT GA_ROOT = 2;
inline constexpr UINT GA_ROOTOWNER = 3;
/// @}

/// @{
/// A kind of icon in WM_SETICON.
inline constexpr int ICON_SMALL = 0;
inline constexpr int ICON_BIG = 1;
inline constexpr int ICON_SMALL2 = 2;
/// @}

/// @{
/// An answer to WM_GETDLGCODE.
inline constexpr int DLGC_WANTARROWS = 0x0001;
inline constexpr int DLGC_WANTTAB = 0x0002;
inline constexpr int DLGC_WANTALLKEYS = 0x0004;
inline constexpr int DLGC_WANTMESSAGE = 0x0004;
inline constexpr int DLGC_HASSETSEL = 0x0008;
inline constexpr int DLGC_DEFPUSHBUTTON = 0x0010;
inline constexpr int DLGC_UNDEFPUSHBUTTON = 0x0020;
inline constexpr int DLGC_RADIOBUTTON = 0x0040;
inline constexpr int DLGC_WANTCHARS = 0x0080;
inline constexpr int DLGC_STATIC = 0x0100;
inline constexpr int DLGC_BUTTON = 0x2000;
/// @}

/// @{
/// A kind of control in WM_CTLCOLOR*.
inline constexpr UINT CTLCOLOR_MSGBOX = 0;
inline constexpr UINT CTLCOLOR_EDIT = 1;
inline constexpr UINT CTLCOLOR_LISTBOX = 2;
inline constexpr UINT CTLCOLOR_BTN = 3;
inline constexpr UINT CTLCOLOR_DLG = 4;
inline constexpr UINT CTLCOLOR_SCROLLBAR = 5;
inline constexpr UINT CTLCOLOR_STATIC = 6;
inline constexpr UINT CTLCOLOR_MAX = 7;
/// @}

/// @{
/// A menu flag.
inline constexpr UINT MF_INSERT = 0x00000000;
inline constexpr UINT MF_CHANGE = 0x00000080;
inline constexpr UINT MF_APPEND = 0x00000100;
inline constexpr UINT MF_DELETE = 0x00000200;
inline constexpr UINT MF_REMOVE = 0x00001000;
inline constexpr UINT MF_BYCOMMAND = 0x00000000;
inline constexpr UINT MF_BYPOSITION = 0x00000400;
inline constexpr UINT MF_SEPARATOR = 0x00000800;
inline constexpr UINT MF_ENABLED = 0x00000000;
inline constexpr UINT MF_GRAYED = 0x00000001;
inline constexpr UINT MF_DISABLED = 0x00000002;
inline constexpr UINT MF_UNCHECKED = 0x00000000;
inline constexpr UINT MF_CHECKED = 0x00000008;
inline constexpr UINT MF_USECHECKBITMAPS = 0x00000200;
inline constexpr UINT MF_STRING = 0x00000000;
inline constexpr UINT MF_BITMAP = 0x00000004;
inline constexpr UINT MF_OWNERDRAW = 0x00000100;
inline constexpr UINT MF_POPUP = 0x00000010;
inline constexpr UINT MF_MENUBARBREAK = 0x00000020;
inline constexpr UINT MF_MENUBREAK = 0x00000040;
inline constexpr UINT MF_UNHILITE = 0x00000000;
inline constexpr UINT MF_HILITE = 0x00000080;
inline constexpr UINT MF_DEFAULT = 0x00001000;
inline constexpr UINT MF_SYSMENU = 0x00002000;
inline constexpr UINT MF_HELP = 0x00004000;
inline constexpr UINT MF_RIGHTJUSTIFY = 0x00004000;
inline constexpr UINT MF_MOUSESELECT = 0x00008000;
inline constexpr UINT MF_END = 0x00000080;
/// @}

/// @{
/// A flag of pop-up menus.
inline constexpr UINT TPM_LEFTBUTTON = 0x0000;
inline constexpr UINT TPM_RIGHTBUTTON = 0x0002;
inline constexpr UINT TPM_LEFTALIGN = 0x0000;
inline constexpr UINT TPM_CENTERALIGN = 0x0004;
inline constexpr UINT TPM_RIGHTALIGN = 0x0008;
inline constexpr UINT TPM_TOPALIGN = 0x0000;
inline constexpr UINT TPM_VCENTERALIGN = 0x0010;
inline constexpr UINT TPM_BOTTOMALIGN = 0x0020;
inline constexpr UINT TPM_HORIZONTAL = 0x0000;
inline constexpr UINT TPM_VERTICAL = 0x0040;
inline constexpr UINT TPM_NONOTIFY = 0x0080;
inline constexpr UINT TPM_RETURNCMD = 0x0100;
inline constexpr UINT TPM_RECURSE = 0x0001;
/// @}

/// @{
/// A flag of PeekMessage_E().
inline constexpr UINT PM_NOREMOVE = 0x0000;
inline constexpr UINT PM_REMOVE = 0x0001;
inline constexpr UINT PM_NOYIELD = 0x0002;
/// @}

/// @{
/// A flag of RedrawWindow_E().
inline constexpr UINT RDW_INVALIDATE = 0x0001;
inline constexpr UINT RDW_INTERNALPAINT = 0x0002;
inline constexpr UINT RDW_ERASE = 0x0004;
inline constexpr UINT RDW_VALIDATE = 0x0008;
inline constexpr UINT RDW_NOINTERNALPAINT = 0x0010;
inline constexpr UINT RDW_NOERASE = 0x0020;
inline constexpr UINT RDW_NOCHILDREN = 0x0040;
inline constexpr UINT RDW_ALLCHILDREN = 0x0080;
inline constexpr UINT RDW_UPDATENOW = 0x0100;
inline constexpr UINT RDW_ERASENOW = 0x0200;
inline constexpr UINT RDW_FRAME = 0x0400;
inline constexpr UINT RDW_NOFRAME = 0x0800;
/// @}

/// A position that the window manager chooses.
inline constexpr int CW_USEDEFAULT = static_cast<int>(0x80000000U);
