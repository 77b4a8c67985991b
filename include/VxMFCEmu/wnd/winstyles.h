/// @file winstyles.h
/// Window and control styles, and the commands and flags that show and place windows, under their
/// Win32 names and with their Win32 values.
#pragma once

#include <VxMFCEmu/types.h>

/// @{
/// A window style.
inline constexpr DWORD WS_OVERLAPPED = 0x00000000;
inline constexpr DWORD WS_POPUP = 0x80000000;
inline constexpr DWORD WS_CHILD = 0x40000000;
inline constexpr DWORD WS_MINIMIZE = 0x20000000;
inline constexpr DWORD WS_VISIBLE = 0x10000000;
inline constexpr DWORD WS_DISABLED = 0x08000000;
inline constexpr DWORD WS_CLIPSIBLINGS = 0x04000000;
inline constexpr DWORD WS_CLIPCHILDREN = 0x02000000;
inline constexpr DWORD WS_MAXIMIZE = 0x01000000;
inline constexpr DWORD WS_CAPTION = 0x00C00000;
inline constexpr DWORD WS_BORDER = 0x00800000;
inline constexpr DWORD WS_DLGFRAME = 0x00400000;
inline constexpr DWORD WS_VSCROLL = 0x00200000;
inline constexpr DWORD WS_HSCROLL = 0x00100000;
inline constexpr DWORD WS_SYSMENU = 0x00080000;
inline constexpr DWORD WS_THICKFRAME = 0x00040000;
inline constexpr DWORD WS_GROUP = 0x00020000;
inline constexpr DWORD WS_TABSTOP = 0x00010000;
inline constexpr DWORD WS_MINIMIZEBOX = 0x00020000;
inline constexpr DWORD WS_MAXIMIZEBOX = 0x00010000;
inline constexpr DWORD WS_TILED = WS_OVERLAPPED;
inline constexpr DWORD WS_ICONIC = WS_MINIMIZE;
inline constexpr DWORD WS_SIZEBOX = WS_THICKFRAME;
inline constexpr DWORD WS_OVERLAPPEDWINDOW =
    WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX;
inline constexpr DWORD WS_TILEDWINDOW = WS_OVERLAPPEDWINDOW;
inline constexpr DWORD WS_POPUPWINDOW = WS_POPUP | WS_BORDER | WS_SYSMENU;
inline constexpr DWORD WS_CHILDWINDOW = WS_CHILD;
/// @}

/// @{
/// An extended window style.
inline constexpr DWORD WS_EX_LEFT = 0x00000000;
inline constexpr DWORD WS_EX_LTRREADING = 0x00000000;
inline constexpr DWORD WS_EX_RIGHTSCROLLBAR = 0x00000000;
inline constexpr DWORD WS_EX_DLGMODALFRAME = 0x00000001;
inline constexpr DWORD WS_EX_NOPARENTNOTIFY = 0x00000004;
inline constexpr DWORD WS_EX_TOPMOST = 0x00000008;
inline constexpr DWORD WS_EX_ACCEPTFILES = 0x00000010;
inline constexpr DWORD WS_EX_TRANSPARENT = 0x00000020;
inline constexpr DWORD WS_EX_MDICHILD = 0x00000040;
inline constexpr DWORD WS_EX_TOOLWINDOW = 0x00000080;
inline constexpr DWORD WS_EX_WINDOWEDGE = 0x00000100;
inline constexpr DWORD WS_EX_CLIENTEDGE = 0x00000200;
inline constexpr DWORD WS_EX_CONTEXTHELP = 0x00000400;
inline constexpr DWORD WS_EX_RIGHT = 0x00001000;
inline constexpr DWORD WS_EX_RTLREADING = 0x00002000;
inline constexpr DWORD WS_EX_LEFTSCROLLBAR = 0x00004000;
inline constexpr DWORD WS_EX_CONTROLPARENT = 0x00010000;
inline constexpr DWORD WS_EX_STATICEDGE = 0x00020000;
inline constexpr DWORD WS_EX_APPWINDOW = 0x00040000;
inline constexpr DWORD WS_EX_LAYERED = 0x00080000;
inline constexpr DWORD WS_EX_NOINHERITLAYOUT = 0x00100000;
inline constexpr DWORD WS_EX_NOREDIRECTIONBITMAP = 0x00200000;
inline constexpr DWORD WS_EX_LAYOUTRTL = 0x00400000;
inline constexpr DWORD WS_EX_COMPOSITED = 0x02000000;
inline constexpr DWORD WS_EX_NOACTIVATE = 0x08000000;
inline constexpr DWORD WS_EX_OVERLAPPEDWINDOW = WS_EX_WINDOWEDGE | WS_EX_CLIENTEDGE;
inline constexpr DWORD WS_EX_PALETTEWINDOW = WS_EX_WINDOWEDGE | WS_EX_TOOLWINDOW | WS_EX_TOPMOST;
/// @}

/// @{
/// A dialog style.
inline constexpr DWORD DS_ABSALIGN = 0x00000001;
inline constexpr DWORD DS_SYSMODAL = 0x00000002;
inline constexpr DWORD DS_3DLOOK = 0x00000004;
inline constexpr DWORD DS_FIXEDSYS = 0x00000008;
inline constexpr DWORD DS_NOFAILCREATE = 0x00000010;
inline constexpr DWORD DS_LOCALEDIT = 0x00000020;
inline constexpr DWORD DS_SETFONT = 0x00000040;
inline constexpr DWORD DS_MODALFRAME = 0x00000080;
inline constexpr DWORD DS_NOIDLEMSG = 0x00000100;
inline constexpr DWORD DS_SETFOREGROUND = 0x00000200;
inline constexpr DWORD DS_CONTROL = 0x00000400;
inline constexpr DWORD DS_CENTER = 0x00000800;
inline constexpr DWORD DS_CENTERMOUSE = 0x00001000;
inline constexpr DWORD DS_CONTEXTHELP = 0x00002000;
inline constexpr DWORD DS_SHELLFONT = DS_SETFONT | DS_FIXEDSYS;
/// @}

/// @{
/// A style of edit controls.
inline constexpr DWORD ES_LEFT = 0x00000000;
inline constexpr DWORD ES_CENTER = 0x00000001;
inline constexpr DWORD ES_RIGHT = 0x00000002;
inline constexpr DWORD ES_MULTILINE = 0x00000004;
inline constexpr DWORD ES_UPPERCASE = 0x00000008;
inline constexpr DWORD ES_LOWERCASE = 0x00000010;
inline constexpr DWORD ES_PASSWORD = 0x00000020;
inline constexpr DWORD ES_AUTOVSCROLL = 0x00000040;
inline constexpr DWORD ES_AUTOHSCROLL = 0x00000080;
inline constexpr DWORD ES_NOHIDESEL = 0x00000100;
inline constexpr DWORD ES_OEMCONVERT = 0x00000400;
inline constexpr DWORD ES_READONLY = 0x00000800;
inline constexpr DWORD ES_WANTRETURN = 0x00001000;
inline constexpr DWORD ES_NUMBER = 0x00002000;
/// @}

/// @{
/// A style of buttons.
inline constexpr DWORD BS_PUSHBUTTON = 0x00000000;
inline constexpr DWORD BS_DEFPUSHBUTTON = 0x00000001;
inline constexpr DWORD BS_CHECKBOX = 0x00000002;
inline constexpr DWORD BS_AUTOCHECKBOX = 0x00000003;
inline constexpr DWORD BS_RADIOBUTTON = 0x00000004;
inline constexpr DWORD BS_3STATE = 0x00000005;
inline constexpr DWORD BS_AUTO3STATE = 0x00000006;
inline constexpr DWORD BS_GROUPBOX = 0x00000007;
inline constexpr DWORD BS_USERBUTTON = 0x00000008;
inline constexpr DWORD BS_AUTORADIOBUTTON = 0x00000009;
inline constexpr DWORD BS_PUSHBOX = 0x0000000A;
inline constexpr DWORD BS_OWNERDRAW = 0x0000000B;
inline constexpr DWORD BS_TYPEMASK = 0x0000000F;
inline constexpr DWORD BS_LEFTTEXT = 0x00000020;
inline constexpr DWORD BS_RIGHTBUTTON = BS_LEFTTEXT;
inline constexpr DWORD BS_TEXT = 0x00000000;
inline constexpr DWORD BS_ICON = 0x00000040;
inline constexpr DWORD BS_BITMAP = 0x00000080;
inline constexpr DWORD BS_LEFT = 0x00000100;
inline constexpr DWORD BS_RIGHT = 0x00000200;
inline constexpr DWORD BS_CENTER = 0x00000300;
inline constexpr DWORD BS_TOP = 0x00000400;
inline constexpr DWORD BS_BOTTOM = 0x00000800;
inline constexpr DWORD BS_VCENTER = 0x00000C00;
inline constexpr DWORD BS_PUSHLIKE = 0x00001000;
inline constexpr DWORD BS_MULTILINE = 0x00002000;
inline constexpr DWORD BS_NOTIFY = 0x00004000;
inline constexpr DWORD BS_FLAT = 0x00008000;
/// @}

/// @{
/// A style of combo boxes.
inline constexpr DWORD CBS_SIMPLE = 0x00000001;
inline constexpr DWORD CBS_DROPDOWN = 0x00000002;
inline constexpr DWORD CBS_DROPDOWNLIST = 0x00000003;
inline constexpr DWORD CBS_OWNERDRAWFIXED = 0x00000010;
inline constexpr DWORD CBS_OWNERDRAWVARIABLE = 0x00000020;
inline constexpr DWORD CBS_AUTOHSCROLL = 0x00000040;
inline constexpr DWORD CBS_OEMCONVERT = 0x00000080;
inline constexpr DWORD CBS_SORT = 0x00000100;
inline constexpr DWORD CBS_HASSTRINGS = 0x00000200;
inline constexpr DWORD CBS_NOINTEGRALHEIGHT = 0x00000400;
inline constexpr DWORD CBS_DISABLENOSCROLL = 0x00000800;
inline constexpr DWORD CBS_UPPERCASE = 0x00002000;
inline constexpr DWORD CBS_LOWERCASE = 0x00004000;
/// @}

/// @{
/// A style of list boxes.
inline constexpr DWORD LBS_NOTIFY = 0x00000001;
inline constexpr DWORD LBS_SORT = 0x00000002;
inline constexpr DWORD LBS_NOREDRAW = 0x00000004;
inline constexpr DWORD LBS_MULTIPLESEL = 0x00000008;
inline constexpr DWORD LBS_OWNERDRAWFIXED = 0x00000010;
inline constexpr DWORD LBS_OWNERDRAWVARIABLE = 0x00000020;
inline constexpr DWORD LBS_HASSTRINGS = 0x00000040;
inline constexpr DWORD LBS_USETABSTOPS = 0x00000080;
inline constexpr DWORD LBS_NOINTEGRALHEIGHT = 0x00000100;
inline constexpr DWORD LBS_MULTICOLUMN = 0x00000200;
inline constexpr DWORD LBS_WANTKEYBOARDINPUT = 0x00000400;
inline constexpr DWORD LBS_EXTENDEDSEL = 0x00000800;
inline constexpr DWORD LBS_DISABLENOSCROLL = 0x00001000;
inline constexpr DWORD LBS_NODATA = 0x00002000;
inline constexpr DWORD LBS_NOSEL = 0x00004000;
inline constexpr DWORD LBS_COMBOBOX = 0x00008000;
inline constexpr DWORD LBS_STANDARD = LBS_NOTIFY | LBS_SORT | WS_VSCROLL | WS_BORDER;
/// @}

/// @{
/// A style of static controls.
inline constexpr DWORD SS_LEFT = 0x00000000;
inline constexpr DWORD SS_CENTER = 0x00000001;
inline constexpr DWORD SS_RIGHT = 0x00000002;
inline constexpr DWORD SS_ICON = 0x00000003;
inline constexpr DWORD SS_BLACKRECT = 0x00000004;
inline constexpr DWORD SS_GRAYRECT = 0x00000005;
inline constexpr DWORD SS_WHITERECT = 0x00000006;
inline constexpr DWORD SS_BLACKFRAME = 0x00000007;
inline constexpr DWORD SS_GRAYFRAME = 0x00000008;
inline constexpr DWORD SS_WHITEFRAME = 0x00000009;
inline constexpr DWORD SS_USERITEM = 0x0000000A;
inline constexpr DWORD SS_SIMPLE = 0x0000000B;
inline constexpr DWORD SS_LEFTNOWORDWRAP = 0x0000000C;
inline constexpr DWORD SS_OWNERDRAW = 0x0000000D;
inline constexpr DWORD SS_BITMAP = 0x0000000E;
inline constexpr DWORD SS_ENHMETAFILE = 0x0000000F;
inline constexpr DWORD SS_ETCHEDHORZ = 0x00000010;
inline constexpr DWORD SS_ETCHEDVERT = 0x00000011;
inline constexpr DWORD SS_ETCHEDFRAME = 0x00000012;
inline constexpr DWORD SS_TYPEMASK = 0x0000001F;
inline constexpr DWORD SS_REALSIZECONTROL = 0x00000040;
inline constexpr DWORD SS_NOPREFIX = 0x00000080;
inline constexpr DWORD SS_NOTIFY = 0x00000100;
inline constexpr DWORD SS_CENTERIMAGE = 0x00000200;
inline constexpr DWORD SS_RIGHTJUST = 0x00000400;
inline constexpr DWORD SS_REALSIZEIMAGE = 0x00000800;
inline constexpr DWORD SS_SUNKEN = 0x00001000;
inline constexpr DWORD SS_EDITCONTROL = 0x00002000;
inline constexpr DWORD SS_ENDELLIPSIS = 0x00004000;
inline constexpr DWORD SS_PATHELLIPSIS = 0x00008000;
inline constexpr DWORD SS_WORDELLIPSIS = 0x0000C000;
inline constexpr DWORD SS_ELLIPSISMASK = 0x0000C000;
/// @}

/// @{
/// A style of scroll bar controls.
inline constexpr DWORD SBS_HORZ = 0x00000000;
inline constexpr DWORD SBS_VERT = 0x00000001;
inline constexpr DWORD SBS_TOPALIGN = 0x00000002;
inline constexpr DWORD SBS_LEFTALIGN = 0x00000002;
inline constexpr DWORD SBS_BOTTOMALIGN = 0x00000004;
inline constexpr DWORD SBS_RIGHTALIGN = 0x00000004;
inline constexpr DWORD SBS_SIZEBOXTOPLEFTALIGN = 0x00000002;
inline constexpr DWORD SBS_SIZEBOXBOTTOMRIGHTALIGN = 0x00000004;
inline constexpr DWORD SBS_SIZEBOX = 0x00000008;
inline constexpr DWORD SBS_SIZEGRIP = 0x00000010;
/// @}

/// @{
/// A style of progress bars.
inline constexpr DWORD PBS_SMOOTH = 0x00000001;
inline constexpr DWORD PBS_VERTICAL = 0x00000004;
inline constexpr DWORD PBS_MARQUEE = 0x00000008;
inline constexpr DWORD PBS_SMOOTHREVERSE = 0x00000010;
/// @}

/// @{
/// A style of sliders.
inline constexpr DWORD TBS_HORZ = 0x00000000;
inline constexpr DWORD TBS_BOTTOM = 0x00000000;
inline constexpr DWORD TBS_RIGHT = 0x00000000;
inline constexpr DWORD TBS_AUTOTICKS = 0x00000001;
inline constexpr DWORD TBS_VERT = 0x00000002;
inline constexpr DWORD TBS_TOP = 0x00000004;
inline constexpr DWORD TBS_LEFT = 0x00000004;
inline constexpr DWORD TBS_BOTH = 0x00000008;
inline constexpr DWORD TBS_NOTICKS = 0x00000010;
inline constexpr DWORD TBS_ENABLESELRANGE = 0x00000020;
inline constexpr DWORD TBS_FIXEDLENGTH = 0x00000040;
inline constexpr DWORD TBS_NOTHUMB = 0x00000080;
inline constexpr DWORD TBS_TOOLTIPS = 0x00000100;
inline constexpr DWORD TBS_REVERSED = 0x00000200;
inline constexpr DWORD TBS_DOWNISLEFT = 0x00000400;
/// @}

/// @{
/// A style of spin buttons.
inline constexpr DWORD UDS_WRAP = 0x00000001;
inline constexpr DWORD UDS_SETBUDDYINT = 0x00000002;
inline constexpr DWORD UDS_ALIGNRIGHT = 0x00000004;
inline constexpr DWORD UDS_ALIGNLEFT = 0x00000008;
inline constexpr DWORD UDS_AUTOBUDDY = 0x00000010;
inline constexpr DWORD UDS_ARROWKEYS = 0x00000020;
inline constexpr DWORD UDS_HORZ = 0x00000040;
inline constexpr DWORD UDS_NOTHOUSANDS = 0x00000080;
inline constexpr DWORD UDS_HOTTRACK = 0x00000100;
/// @}

/// @{
/// A style of date and time controls.
inline constexpr DWORD DTS_SHORTDATEFORMAT = 0x00000000;
inline constexpr DWORD DTS_UPDOWN = 0x00000001;
inline constexpr DWORD DTS_SHOWNONE = 0x00000002;
inline constexpr DWORD DTS_LONGDATEFORMAT = 0x00000004;
inline constexpr DWORD DTS_TIMEFORMAT = 0x00000009;
inline constexpr DWORD DTS_SHORTDATECENTURYFORMAT = 0x0000000C;
inline constexpr DWORD DTS_APPCANPARSE = 0x00000010;
inline constexpr DWORD DTS_RIGHTALIGN = 0x00000020;
/// @}

/// @{
/// A style of all common controls.
inline constexpr DWORD CCS_TOP = 0x00000001;
inline constexpr DWORD CCS_NOMOVEY = 0x00000002;
inline constexpr DWORD CCS_BOTTOM = 0x00000003;
inline constexpr DWORD CCS_NORESIZE = 0x00000004;
inline constexpr DWORD CCS_NOPARENTALIGN = 0x00000008;
inline constexpr DWORD CCS_ADJUSTABLE = 0x00000020;
inline constexpr DWORD CCS_NODIVIDER = 0x00000040;
inline constexpr DWORD CCS_VERT = 0x00000080;
/// @}

/// @{
/// A style of a window class.
inline constexpr DWORD CS_VREDRAW = 0x00000001;
inline constexpr DWORD CS_HREDRAW = 0x00000002;
inline constexpr DWORD CS_DBLCLKS = 0x00000008;
inline constexpr DWORD CS_OWNDC = 0x00000020;
inline constexpr DWORD CS_CLASSDC = 0x00000040;
inline constexpr DWORD CS_PARENTDC = 0x00000080;
inline constexpr DWORD CS_NOCLOSE = 0x00000200;
inline constexpr DWORD CS_SAVEBITS = 0x00000800;
inline constexpr DWORD CS_BYTEALIGNCLIENT = 0x00001000;
inline constexpr DWORD CS_BYTEALIGNWINDOW = 0x00002000;
inline constexpr DWORD CS_GLOBALCLASS = 0x00004000;
inline constexpr DWORD CS_IME = 0x00010000;
inline constexpr DWORD CS_DROPSHADOW = 0x00020000;
/// @}

/// @{
/// A command of ShowWindow_E().
inline constexpr int SW_HIDE = 0;
inline constexpr int SW_SHOWNORMAL = 1;
inline constexpr int SW_NORMAL = 1;
inline constexpr int SW_SHOWMINIMIZED = 2;
inline constexpr int SW_SHOWMAXIMIZED = 3;
inline constexpr int SW_MAXIMIZE = 3;
inline constexpr int SW_SHOWNOACTIVATE = 4;
inline constexpr int SW_SHOW = 5;
inline constexpr int SW_MINIMIZE = 6;
inline constexpr int SW_SHOWMINNOACTIVE = 7;
inline constexpr int SW_SHOWNA = 8;
inline constexpr int SW_RESTORE = 9;
inline constexpr int SW_SHOWDEFAULT = 10;
inline constexpr int SW_FORCEMINIMIZE = 11;
inline constexpr int SW_MAX = 11;
/// @}

/// @{
/// A reason in the lParam of WM_SHOWWINDOW.
inline constexpr int SW_PARENTCLOSING = 1;
inline constexpr int SW_OTHERZOOM = 2;
inline constexpr int SW_PARENTOPENING = 3;
inline constexpr int SW_OTHERUNZOOM = 4;
/// @}

/// @{
/// A flag of SetWindowPos_E().
inline constexpr UINT SWP_NOSIZE = 0x0001;
inline constexpr UINT SWP_NOMOVE = 0x0002;
inline constexpr UINT SWP_NOZORDER = 0x0004;
inline constexpr UINT SWP_NOREDRAW = 0x0008;
inline constexpr UINT SWP_NOACTIVATE = 0x0010;
inline constexpr UINT SWP_FRAMECHANGED = 0x0020;
inline constexpr UINT SWP_SHOWWINDOW = 0x0040;
inline constexpr UINT SWP_HIDEWINDOW = 0x0080;
inline constexpr UINT SWP_NOCOPYBITS = 0x0100;
inline constexpr UINT SWP_NOOWNERZORDER = 0x0200;
inline constexpr UINT SWP_NOSENDCHANGING = 0x0400;
inline constexpr UINT SWP_DRAWFRAME = SWP_FRAMECHANGED;
inline constexpr UINT SWP_NOREPOSITION = SWP_NOOWNERZORDER;
inline constexpr UINT SWP_DEFERERASE = 0x2000;
inline constexpr UINT SWP_ASYNCWINDOWPOS = 0x4000;
/// @}
