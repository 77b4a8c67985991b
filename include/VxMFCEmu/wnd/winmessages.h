/// @file winmessages.h
/// Window message numbers, under their Win32 names and with their Win32 values.
#pragma once

#include <VxMFCEmu/types.h>

/// @{
/// A message about the life, state or text of a window, or of what is around it.
inline constexpr UINT WM_NULL = 0x0000;
inline constexpr UINT WM_CREATE = 0x0001;
inline constexpr UINT WM_DESTROY = 0x0002;
inline constexpr UINT WM_MOVE = 0x0003;
inline constexpr UINT WM_SIZE = 0x0005;
inline constexpr UINT WM_ACTIVATE = 0x0006;
inline constexpr UINT WM_SETFOCUS = 0x0007;
inline constexpr UINT WM_KILLFOCUS = 0x0008;
inline constexpr UINT WM_ENABLE = 0x000A;
inline constexpr UINT WM_SETREDRAW = 0x000B;
inline constexpr UINT WM_SETTEXT = 0x000C;
inline constexpr UINT WM_GETTEXT = 0x000D;
inline constexpr UINT WM_GETTEXTLENGTH = 0x000E;
inline constexpr UINT WM_PAINT = 0x000F;
inline constexpr UINT WM_CLOSE = 0x0010;
inline constexpr UINT WM_QUERYENDSESSION = 0x0011;
inline constexpr UINT WM_QUIT = 0x0012;
inline constexpr UINT WM_QUERYOPEN = 0x0013;
inline constexpr UINT WM_ERASEBKGND = 0x0014;
inline constexpr UINT WM_SYSCOLORCHANGE = 0x0015;
inline constexpr UINT WM_ENDSESSION = 0x0016;
inline constexpr UINT WM_SHOWWINDOW = 0x0018;
inline constexpr UINT WM_WININICHANGE = 0x001A;
inline constexpr UINT WM_SETTINGCHANGE = 0x001A;
inline constexpr UINT WM_DEVMODECHANGE = 0x001B;
inline constexpr UINT WM_ACTIVATEAPP = 0x001C;
inline constexpr UINT WM_FONTCHANGE = 0x001D;
inline constexpr UINT WM_TIMECHANGE = 0x001E;
inline constexpr UINT WM_CANCELMODE = 0x001F;
inline constexpr UINT WM_SETCURSOR = 0x0020;
inline constexpr UINT WM_MOUSEACTIVATE = 0x0021;
inline constexpr UINT WM_CHILDACTIVATE = 0x0022;
inline constexpr UINT WM_QUEUESYNC = 0x0023;
inline constexpr UINT WM_GETMINMAXINFO = 0x0024;
inline constexpr UINT WM_PAINTICON = 0x0026;
inline constexpr UINT WM_ICONERASEBKGND = 0x0027;
inline constexpr UINT WM_NEXTDLGCTL = 0x0028;
inline constexpr UINT WM_SPOOLERSTATUS = 0x002A;
inline constexpr UINT WM_DRAWITEM = 0x002B;
inline constexpr UINT WM_MEASUREITEM = 0x002C;
inline constexpr UINT WM_DELETEITEM = 0x002D;
inline constexpr UINT WM_VKEYTOITEM = 0x002E;
inline constexpr UINT WM_CHARTOITEM = 0x002F;
inline constexpr UINT WM_SETFONT = 0x0030;
inline constexpr UINT WM_GETFONT = 0x0031;
inline constexpr UINT WM_SETHOTKEY = 0x0032;
inline constexpr UINT WM_GETHOTKEY = 0x0033;
inline constexpr UINT WM_QUERYDRAGICON = 0x0037;
inline constexpr UINT WM_COMPAREITEM = 0x0039;
inline constexpr UINT WM_GETOBJECT = 0x003D;
inline constexpr UINT WM_COMPACTING = 0x0041;
inline constexpr UINT WM_COMMNOTIFY = 0x0044;
inline constexpr UINT WM_WINDOWPOSCHANGING = 0x0046;
inline constexpr UINT WM_WINDOWPOSCHANGED = 0x0047;
inline constexpr UINT WM_POWER = 0x0048;
inline constexpr UINT WM_COPYDATA = 0x004A;
inline constexpr UINT WM_CANCELJOURNAL = 0x004B;
inline constexpr UINT WM_NOTIFY = 0x004E;
inline constexpr UINT WM_INPUTLANGCHANGEREQUEST = 0x0050;
inline constexpr UINT WM_INPUTLANGCHANGE = 0x0051;
inline constexpr UINT WM_TCARD = 0x0052;
inline constexpr UINT WM_HELP = 0x0053;
inline constexpr UINT WM_USERCHANGED = 0x0054;
inline constexpr UINT WM_NOTIFYFORMAT = 0x0055;
inline constexpr UINT WM_CONTEXTMENU = 0x007B;
inline constexpr UINT WM_STYLECHANGING = 0x007C;
inline constexpr UINT WM_STYLECHANGED = 0x007D;
inline constexpr UINT WM_DISPLAYCHANGE = 0x007E;
inline constexpr UINT WM_GETICON = 0x007F;
inline constexpr UINT WM_SETICON = 0x0080;
/// @}

/// @{
/// A message about what lies outside the client area.
inline constexpr UINT WM_NCCREATE = 0x0081;
inline constexpr UINT WM_NCDESTROY = 0x0082;
inline constexpr UINT WM_NCCALCSIZE = 0x0083;
inline constexpr UINT WM_NCHITTEST = 0x0084;
inline constexpr UINT WM_NCPAINT = 0x0085;
inline constexpr UINT WM_NCACTIVATE = 0x0086;
inline constexpr UINT WM_GETDLGCODE = 0x0087;
inline constexpr UINT WM_SYNCPAINT = 0x0088;
inline constexpr UINT WM_NCMOUSEMOVE = 0x00A0;
inline constexpr UINT WM_NCLBUTTONDOWN = 0x00A1;
inline constexpr UINT WM_NCLBUTTONUP = 0x00A2;
inline constexpr UINT WM_NCLBUTTONDBLCLK = 0x00A3;
inline constexpr UINT WM_NCRBUTTONDOWN = 0x00A4;
inline constexpr UINT WM_NCRBUTTONUP = 0x00A5;
inline constexpr UINT WM_NCRBUTTONDBLCLK = 0x00A6;
inline constexpr UINT WM_NCMBUTTONDOWN = 0x00A7;
inline constexpr UINT WM_NCMBUTTONUP = 0x00A8;
inline constexpr UINT WM_NCMBUTTONDBLCLK = 0x00A9;
inline constexpr UINT WM_NCXBUTTONDOWN = 0x00AB;
inline constexpr UINT WM_NCXBUTTONUP = 0x00AC;
inline constexpr UINT WM_NCXBUTTONDBLCLK = 0x00AD;
/// @}

/// @{
/// A message of the keyboard or of raw input.
inline constexpr UINT WM_INPUT_DEVICE_CHANGE = 0x00FE;
inline constexpr UINT WM_INPUT = 0x00FF;
inline constexpr UINT WM_KEYFIRST = 0x0100;
inline constexpr UINT WM_KEYDOWN = 0x0100;
inline constexpr UINT WM_KEYUP = 0x0101;
inline constexpr UINT WM_CHAR = 0x0102;
inline constexpr UINT WM_DEADCHAR = 0x0103;
inline constexpr UINT WM_SYSKEYDOWN = 0x0104;
inline constexpr UINT WM_SYSKEYUP = 0x0105;
inline constexpr UINT WM_SYSCHAR = 0x0106;
inline constexpr UINT WM_SYSDEADCHAR = 0x0107;
inline constexpr UINT WM_UNICHAR = 0x0109;
inline constexpr UINT WM_KEYLAST = 0x0109;
inline constexpr UINT WM_IME_STARTCOMPOSITION = 0x010D;
inline constexpr UINT WM_IME_ENDCOMPOSITION = 0x010E;
inline constexpr UINT WM_IME_COMPOSITION = 0x010F;
inline constexpr UINT WM_IME_KEYLAST = 0x010F;
/// @}

/// @{
/// A message of dialogs, commands, scrolling or menus.
inline constexpr UINT WM_INITDIALOG = 0x0110;
inline constexpr UINT WM_COMMAND = 0x0111;
inline constexpr UINT WM_SYSCOMMAND = 0x0112;
inline constexpr UINT WM_TIMER = 0x0113;
inline constexpr UINT WM_HSCROLL = 0x0114;
inline constexpr UINT WM_VSCROLL = 0x0115;
inline constexpr UINT WM_INITMENU = 0x0116;
inline constexpr UINT WM_INITMENUPOPUP = 0x0117;
inline constexpr UINT WM_GESTURE = 0x0119;
inline constexpr UINT WM_GESTURENOTIFY = 0x011A;
inline constexpr UINT WM_MENUSELECT = 0x011F;
inline constexpr UINT WM_MENUCHAR = 0x0120;
inline constexpr UINT WM_ENTERIDLE = 0x0121;
inline constexpr UINT WM_MENURBUTTONUP = 0x0122;
inline constexpr UINT WM_MENUDRAG = 0x0123;
inline constexpr UINT WM_MENUGETOBJECT = 0x0124;
inline constexpr UINT WM_UNINITMENUPOPUP = 0x0125;
inline constexpr UINT WM_MENUCOMMAND = 0x0126;
inline constexpr UINT WM_CHANGEUISTATE = 0x0127;
inline constexpr UINT WM_UPDATEUISTATE = 0x0128;
inline constexpr UINT WM_QUERYUISTATE = 0x0129;
/// @}
/// @{
/// Names the handler of the seven messages below in a message map; is never sent.
inline constexpr UINT WM_CTLCOLOR = 0x0019;
inline constexpr UINT WM_CTLCOLORMSGBOX = 0x0132;
inline constexpr UINT WM_CTLCOLOREDIT = 0x0133;
inline constexpr UINT WM_CTLCOLORLISTBOX = 0x0134;
inline constexpr UINT WM_CTLCOLORBTN = 0x0135;
inline constexpr UINT WM_CTLCOLORDLG = 0x0136;
inline constexpr UINT WM_CTLCOLORSCROLLBAR = 0x0137;
inline constexpr UINT WM_CTLCOLORSTATIC = 0x0138;
/// @}

/// @{
/// A message of the mouse.
inline constexpr UINT WM_MOUSEFIRST = 0x0200;
inline constexpr UINT WM_MOUSEMOVE = 0x0200;
inline constexpr UINT WM_LBUTTONDOWN = 0x0201;
inline constexpr UINT WM_LBUTTONUP = 0x0202;
inline constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
inline constexpr UINT WM_RBUTTONDOWN = 0x0204;
inline constexpr UINT WM_RBUTTONUP = 0x0205;
inline constexpr UINT WM_RBUTTONDBLCLK = 0x0206;
inline constexpr UINT WM_MBUTTONDOWN = 0x0207;
inline constexpr UINT WM_MBUTTONUP = 0x0208;
inline constexpr UINT WM_MBUTTONDBLCLK = 0x0209;
inline constexpr UINT WM_MOUSEWHEEL = 0x020A;
inline constexpr UINT WM_XBUTTONDOWN = 0x020B;
inline constexpr UINT WM_XBUTTONUP = 0x020C;
inline constexpr UINT WM_XBUTTONDBLCLK = 0x020D;
inline constexpr UINT WM_MOUSEHWHEEL = 0x020E;
inline constexpr UINT WM_MOUSELAST = 0x020E;
/// @}

/// @{
/// A message of menu loops, of sizing and of frames with many documents.
inline constexpr UINT WM_PARENTNOTIFY = 0x0210;
inline constexpr UINT WM_ENTERMENULOOP = 0x0211;
inline constexpr UINT WM_EXITMENULOOP = 0x0212;
inline constexpr UINT WM_NEXTMENU = 0x0213;
inline constexpr UINT WM_SIZING = 0x0214;
inline constexpr UINT WM_CAPTURECHANGED = 0x0215;
inline constexpr UINT WM_MOVING = 0x0216;
inline constexpr UINT WM_POWERBROADCAST = 0x0218;
inline constexpr UINT WM_DEVICECHANGE = 0x0219;
inline constexpr UINT WM_MDICREATE = 0x0220;
inline constexpr UINT WM_MDIDESTROY = 0x0221;
inline constexpr UINT WM_MDIACTIVATE = 0x0222;
inline constexpr UINT WM_MDIRESTORE = 0x0223;
inline constexpr UINT WM_MDINEXT = 0x0224;
inline constexpr UINT WM_MDIMAXIMIZE = 0x0225;
inline constexpr UINT WM_MDITILE = 0x0226;
inline constexpr UINT WM_MDICASCADE = 0x0227;
inline constexpr UINT WM_MDIICONARRANGE = 0x0228;
inline constexpr UINT WM_MDIGETACTIVE = 0x0229;
inline constexpr UINT WM_MDISETMENU = 0x0230;
inline constexpr UINT WM_ENTERSIZEMOVE = 0x0231;
inline constexpr UINT WM_EXITSIZEMOVE = 0x0232;
inline constexpr UINT WM_DROPFILES = 0x0233;
inline constexpr UINT WM_MDIREFRESHMENU = 0x0234;
/// @}

/// @{
/// A message of touch and pointer devices.
inline constexpr UINT WM_POINTERDEVICECHANGE = 0x0238;
inline constexpr UINT WM_POINTERDEVICEINRANGE = 0x0239;
inline constexpr UINT WM_POINTERDEVICEOUTOFRANGE = 0x023A;
inline constexpr UINT WM_TOUCH = 0x0240;
inline constexpr UINT WM_NCPOINTERUPDATE = 0x0241;
inline constexpr UINT WM_NCPOINTERDOWN = 0x0242;
inline constexpr UINT WM_NCPOINTERUP = 0x0243;
inline constexpr UINT WM_POINTERUPDATE = 0x0245;
inline constexpr UINT WM_POINTERDOWN = 0x0246;
inline constexpr UINT WM_POINTERUP = 0x0247;
inline constexpr UINT WM_POINTERENTER = 0x0249;
inline constexpr UINT WM_POINTERLEAVE = 0x024A;
inline constexpr UINT WM_POINTERACTIVATE = 0x024B;
inline constexpr UINT WM_POINTERCAPTURECHANGED = 0x024C;
inline constexpr UINT WM_TOUCHHITTESTING = 0x024D;
inline constexpr UINT WM_POINTERWHEEL = 0x024E;
inline constexpr UINT WM_POINTERHWHEEL = 0x024F;
inline constexpr UINT WM_POINTERROUTEDTO = 0x0251;
inline constexpr UINT WM_POINTERROUTEDAWAY = 0x0252;
inline constexpr UINT WM_POINTERROUTEDRELEASED = 0x0253;
/// @}

/// @{
/// A message of input methods, hovering, sessions or resolution.
inline constexpr UINT WM_IME_SETCONTEXT = 0x0281;
inline constexpr UINT WM_IME_NOTIFY = 0x0282;
inline constexpr UINT WM_IME_CONTROL = 0x0283;
inline constexpr UINT WM_IME_COMPOSITIONFULL = 0x0284;
inline constexpr UINT WM_IME_SELECT = 0x0285;
inline constexpr UINT WM_IME_CHAR = 0x0286;
inline constexpr UINT WM_IME_REQUEST = 0x0288;
inline constexpr UINT WM_IME_KEYDOWN = 0x0290;
inline constexpr UINT WM_IME_KEYUP = 0x0291;
inline constexpr UINT WM_NCMOUSEHOVER = 0x02A0;
inline constexpr UINT WM_MOUSEHOVER = 0x02A1;
inline constexpr UINT WM_NCMOUSELEAVE = 0x02A2;
inline constexpr UINT WM_MOUSELEAVE = 0x02A3;
inline constexpr UINT WM_WTSSESSION_CHANGE = 0x02B1;
inline constexpr UINT WM_TABLET_FIRST = 0x02C0;
inline constexpr UINT WM_TABLET_LAST = 0x02DF;
inline constexpr UINT WM_DPICHANGED = 0x02E0;
inline constexpr UINT WM_DPICHANGED_BEFOREPARENT = 0x02E2;
inline constexpr UINT WM_DPICHANGED_AFTERPARENT = 0x02E3;
inline constexpr UINT WM_GETDPISCALEDSIZE = 0x02E4;
/// @}

/// @{
/// A message of the clipboard, of palettes or of printing.
inline constexpr UINT WM_CUT = 0x0300;
inline constexpr UINT WM_COPY = 0x0301;
inline constexpr UINT WM_PASTE = 0x0302;
inline constexpr UINT WM_CLEAR = 0x0303;
inline constexpr UINT WM_UNDO = 0x0304;
inline constexpr UINT WM_RENDERFORMAT = 0x0305;
inline constexpr UINT WM_RENDERALLFORMATS = 0x0306;
inline constexpr UINT WM_DESTROYCLIPBOARD = 0x0307;
inline constexpr UINT WM_DRAWCLIPBOARD = 0x0308;
inline constexpr UINT WM_PAINTCLIPBOARD = 0x0309;
inline constexpr UINT WM_VSCROLLCLIPBOARD = 0x030A;
inline constexpr UINT WM_SIZECLIPBOARD = 0x030B;
inline constexpr UINT WM_ASKCBFORMATNAME = 0x030C;
inline constexpr UINT WM_CHANGECBCHAIN = 0x030D;
inline constexpr UINT WM_HSCROLLCLIPBOARD = 0x030E;
inline constexpr UINT WM_QUERYNEWPALETTE = 0x030F;
inline constexpr UINT WM_PALETTEISCHANGING = 0x0310;
inline constexpr UINT WM_PALETTECHANGED = 0x0311;
inline constexpr UINT WM_HOTKEY = 0x0312;
inline constexpr UINT WM_PRINT = 0x0317;
inline constexpr UINT WM_PRINTCLIENT = 0x0318;
inline constexpr UINT WM_APPCOMMAND = 0x0319;
inline constexpr UINT WM_THEMECHANGED = 0x031A;
inline constexpr UINT WM_CLIPBOARDUPDATE = 0x031D;
inline constexpr UINT WM_DWMCOMPOSITIONCHANGED = 0x031E;
inline constexpr UINT WM_DWMNCRENDERINGCHANGED = 0x031F;
inline constexpr UINT WM_DWMCOLORIZATIONCOLORCHANGED = 0x0320;
inline constexpr UINT WM_DWMWINDOWMAXIMIZEDCHANGE = 0x0321;
inline constexpr UINT WM_DWMSENDICONICTHUMBNAIL = 0x0323;
inline constexpr UINT WM_DWMSENDICONICLIVEPREVIEWBITMAP = 0x0326;
inline constexpr UINT WM_GETTITLEBARINFOEX = 0x033F;
inline constexpr UINT WM_HANDHELDFIRST = 0x0358;
inline constexpr UINT WM_HANDHELDLAST = 0x035F;
/// @}

/// @{
/// A message of MFC's own.
inline constexpr UINT WM_AFXFIRST = 0x0360;
inline constexpr UINT WM_QUERYAFXWNDPROC = 0x0360;
inline constexpr UINT WM_SIZEPARENT = 0x0361;
inline constexpr UINT WM_SETMESSAGESTRING = 0x0362;
inline constexpr UINT WM_IDLEUPDATECMDUI = 0x0363;
inline constexpr UINT WM_INITIALUPDATE = 0x0364;
inline constexpr UINT WM_COMMANDHELP = 0x0365;
inline constexpr UINT WM_HELPHITTEST = 0x0366;
inline constexpr UINT WM_EXITHELPMODE = 0x0367;
inline constexpr UINT WM_RECALCPARENT = 0x0368;
inline constexpr UINT WM_SIZECHILD = 0x0369;
inline constexpr UINT WM_KICKIDLE = 0x036A;
inline constexpr UINT WM_QUERYCENTERWND = 0x036B;
inline constexpr UINT WM_DISABLEMODAL = 0x036C;
inline constexpr UINT WM_FLOATSTATUS = 0x036D;
inline constexpr UINT WM_ACTIVATETOPLEVEL = 0x036E;
inline constexpr UINT WM_AFXLAST = 0x037F;
inline constexpr UINT WM_PENWINFIRST = 0x0380;
inline constexpr UINT WM_PENWINLAST = 0x038F;
/// @}

/// @{
/// Where the message numbers of window classes or of applications start.
inline constexpr UINT WM_USER = 0x0400;
inline constexpr UINT WM_APP = 0x8000;
/// @}
