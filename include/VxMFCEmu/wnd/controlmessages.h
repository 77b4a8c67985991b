/// @file controlmessages.h
/// Messages to the standard controls, their notification codes and results, under their Win32 names
/// and with their Win32 values.
#pragma once

#include <VxMFCEmu/types.h>

/// @{
/// A message to an edit control.
inline constexpr UINT EM_GETSEL = 0x00B0;
inline constexpr UINT EM_SETSEL = 0x00B1;
inline constexpr UINT EM_GETRECT = 0x00B2;
inline constexpr UINT EM_SETRECT = 0x00B3;
inline constexpr UINT EM_SETRECTNP = 0x00B4;
inline constexpr UINT EM_SCROLL = 0x00B5;
inline constexpr UINT EM_LINESCROLL = 0x00B6;
inline constexpr UINT EM_SCROLLCARET = 0x00B7;
inline constexpr UINT EM_GETMODIFY = 0x00B8;
inline constexpr UINT EM_SETMODIFY = 0x00B9;
inline constexpr UINT EM_GETLINECOUNT = 0x00BA;
inline constexpr UINT EM_LINEINDEX = 0x00BB;
inline constexpr UINT EM_SETHANDLE = 0x00BC;
inline constexpr UINT EM_GETHANDLE = 0x00BD;
inline constexpr UINT EM_GETTHUMB = 0x00BE;
inline constexpr UINT EM_LINELENGTH = 0x00C1;
inline constexpr UINT EM_REPLACESEL = 0x00C2;
inline constexpr UINT EM_GETLINE = 0x00C4;
inline constexpr UINT EM_SETLIMITTEXT = 0x00C5;
inline constexpr UINT EM_CANUNDO = 0x00C6;
inline constexpr UINT EM_UNDO = 0x00C7;
inline constexpr UINT EM_FMTLINES = 0x00C8;
inline constexpr UINT EM_LINEFROMCHAR = 0x00C9;
inline constexpr UINT EM_SETTABSTOPS = 0x00CB;
inline constexpr UINT EM_SETPASSWORDCHAR = 0x00CC;
inline constexpr UINT EM_EMPTYUNDOBUFFER = 0x00CD;
inline constexpr UINT EM_GETFIRSTVISIBLELINE = 0x00CE;
inline constexpr UINT EM_SETREADONLY = 0x00CF;
inline constexpr UINT EM_SETWORDBREAKPROC = 0x00D0;
inline constexpr UINT EM_GETWORDBREAKPROC = 0x00D1;
inline constexpr UINT EM_GETPASSWORDCHAR = 0x00D2;
inline constexpr UINT EM_SETMARGINS = 0x00D3;
inline constexpr UINT EM_GETMARGINS = 0x00D4;
inline constexpr UINT EM_GETLIMITTEXT = 0x00D5;
inline constexpr UINT EM_POSFROMCHAR = 0x00D6;
inline constexpr UINT EM_CHARFROMPOS = 0x00D7;
inline constexpr UINT EM_SETIMESTATUS = 0x00D8;
inline constexpr UINT EM_GETIMESTATUS = 0x00D9;
inline constexpr UINT EM_LIMITTEXT = 0x00C5;
inline constexpr UINT EM_SETCUEBANNER = 0x1501;
inline constexpr UINT EM_GETCUEBANNER = 0x1502;
inline constexpr UINT EM_SHOWBALLOONTIP = 0x1503;
inline constexpr UINT EM_HIDEBALLOONTIP = 0x1504;
/// @}

/// @{
/// A margin of an edit control.
inline constexpr UINT EC_LEFTMARGIN = 0x0001;
inline constexpr UINT EC_RIGHTMARGIN = 0x0002;
inline constexpr UINT EC_USEFONTINFO = 0xFFFF;
/// @}

/// @{
/// An icon of a balloon tip.
inline constexpr int TTI_NONE = 0;
inline constexpr int TTI_INFO = 1;
inline constexpr int TTI_WARNING = 2;
inline constexpr int TTI_ERROR = 3;
/// @}

/// @{
/// A message to a button.
inline constexpr UINT BM_GETCHECK = 0x00F0;
inline constexpr UINT BM_SETCHECK = 0x00F1;
inline constexpr UINT BM_GETSTATE = 0x00F2;
inline constexpr UINT BM_SETSTATE = 0x00F3;
inline constexpr UINT BM_SETSTYLE = 0x00F4;
inline constexpr UINT BM_CLICK = 0x00F5;
inline constexpr UINT BM_GETIMAGE = 0x00F6;
inline constexpr UINT BM_SETIMAGE = 0x00F7;
inline constexpr UINT BM_SETDONTCLICK = 0x00F8;
/// @}

/// @{
/// A state of a button.
inline constexpr int BST_UNCHECKED = 0x0000;
inline constexpr int BST_CHECKED = 0x0001;
inline constexpr int BST_INDETERMINATE = 0x0002;
inline constexpr int BST_PUSHED = 0x0004;
inline constexpr int BST_FOCUS = 0x0008;
inline constexpr int BST_HOT = 0x0200;
/// @}

/// @{
/// A message to a static control.
inline constexpr UINT STM_SETICON = 0x0170;
inline constexpr UINT STM_GETICON = 0x0171;
inline constexpr UINT STM_SETIMAGE = 0x0172;
inline constexpr UINT STM_GETIMAGE = 0x0173;
/// @}

/// @{
/// A kind of image of buttons and static controls.
inline constexpr UINT IMAGE_BITMAP = 0;
inline constexpr UINT IMAGE_ICON = 1;
inline constexpr UINT IMAGE_CURSOR = 2;
inline constexpr UINT IMAGE_ENHMETAFILE = 3;
/// @}

/// @{
/// A message to a scroll bar control.
inline constexpr UINT SBM_SETPOS = 0x00E0;
inline constexpr UINT SBM_GETPOS = 0x00E1;
inline constexpr UINT SBM_SETRANGE = 0x00E2;
inline constexpr UINT SBM_GETRANGE = 0x00E3;
inline constexpr UINT SBM_ENABLE_ARROWS = 0x00E4;
inline constexpr UINT SBM_SETRANGEREDRAW = 0x00E6;
inline constexpr UINT SBM_SETSCROLLINFO = 0x00E9;
inline constexpr UINT SBM_GETSCROLLINFO = 0x00EA;
inline constexpr UINT SBM_GETSCROLLBARINFO = 0x00EB;
/// @}

/// @{
/// A message to a dialog.
inline constexpr UINT DM_GETDEFID = 0x0400;
inline constexpr UINT DM_SETDEFID = 0x0401;
inline constexpr UINT DM_REPOSITION = 0x0402;
/// @}

/// @{
/// A message to a combo box.
inline constexpr UINT CB_GETEDITSEL = 0x0140;
inline constexpr UINT CB_LIMITTEXT = 0x0141;
inline constexpr UINT CB_SETEDITSEL = 0x0142;
inline constexpr UINT CB_ADDSTRING = 0x0143;
inline constexpr UINT CB_DELETESTRING = 0x0144;
inline constexpr UINT CB_DIR = 0x0145;
inline constexpr UINT CB_GETCOUNT = 0x0146;
inline constexpr UINT CB_GETCURSEL = 0x0147;
inline constexpr UINT CB_GETLBTEXT = 0x0148;
inline constexpr UINT CB_GETLBTEXTLEN = 0x0149;
inline constexpr UINT CB_INSERTSTRING = 0x014A;
inline constexpr UINT CB_RESETCONTENT = 0x014B;
inline constexpr UINT CB_FINDSTRING = 0x014C;
inline constexpr UINT CB_SELECTSTRING = 0x014D;
inline constexpr UINT CB_SETCURSEL = 0x014E;
inline constexpr UINT CB_SHOWDROPDOWN = 0x014F;
inline constexpr UINT CB_GETITEMDATA = 0x0150;
inline constexpr UINT CB_SETITEMDATA = 0x0151;
inline constexpr UINT CB_GETDROPPEDCONTROLRECT = 0x0152;
inline constexpr UINT CB_SETITEMHEIGHT = 0x0153;
inline constexpr UINT CB_GETITEMHEIGHT = 0x0154;
inline constexpr UINT CB_SETEXTENDEDUI = 0x0155;
inline constexpr UINT CB_GETEXTENDEDUI = 0x0156;
inline constexpr UINT CB_GETDROPPEDSTATE = 0x0157;
inline constexpr UINT CB_FINDSTRINGEXACT = 0x0158;
inline constexpr UINT CB_SETLOCALE = 0x0159;
inline constexpr UINT CB_GETLOCALE = 0x015A;
inline constexpr UINT CB_GETTOPINDEX = 0x015B;
inline constexpr UINT CB_SETTOPINDEX = 0x015C;
inline constexpr UINT CB_GETHORIZONTALEXTENT = 0x015D;
inline constexpr UINT CB_SETHORIZONTALEXTENT = 0x015E;
inline constexpr UINT CB_GETDROPPEDWIDTH = 0x015F;
inline constexpr UINT CB_SETDROPPEDWIDTH = 0x0160;
inline constexpr UINT CB_INITSTORAGE = 0x0161;
inline constexpr UINT CB_GETCOMBOBOXINFO = 0x0164;
inline constexpr UINT CB_SETMINVISIBLE = 0x1701;
inline constexpr UINT CB_GETMINVISIBLE = 0x1702;
inline constexpr UINT CB_SETCUEBANNER = 0x1703;
inline constexpr UINT CB_GETCUEBANNER = 0x1704;
/// @}

/// @{
/// A result of a combo box.
inline constexpr int CB_OKAY = 0;
inline constexpr int CB_ERR = -1;
inline constexpr int CB_ERRSPACE = -2;
/// @}

/// @{
/// A message to a list box.
inline constexpr UINT LB_ADDSTRING = 0x0180;
inline constexpr UINT LB_INSERTSTRING = 0x0181;
inline constexpr UINT LB_DELETESTRING = 0x0182;
inline constexpr UINT LB_SELITEMRANGEEX = 0x0183;
inline constexpr UINT LB_RESETCONTENT = 0x0184;
inline constexpr UINT LB_SETSEL = 0x0185;
inline constexpr UINT LB_SETCURSEL = 0x0186;
inline constexpr UINT LB_GETSEL = 0x0187;
inline constexpr UINT LB_GETCURSEL = 0x0188;
inline constexpr UINT LB_GETTEXT = 0x0189;
inline constexpr UINT LB_GETTEXTLEN = 0x018A;
inline constexpr UINT LB_GETCOUNT = 0x018B;
inline constexpr UINT LB_SELECTSTRING = 0x018C;
inline constexpr UINT LB_DIR = 0x018D;
inline constexpr UINT LB_GETTOPINDEX = 0x018E;
inline constexpr UINT LB_FINDSTRING = 0x018F;
inline constexpr UINT LB_GETSELCOUNT = 0x0190;
inline constexpr UINT LB_GETSELITEMS = 0x0191;
inline constexpr UINT LB_SETTABSTOPS = 0x0192;
inline constexpr UINT LB_GETHORIZONTALEXTENT = 0x0193;
inline constexpr UINT LB_SETHORIZONTALEXTENT = 0x0194;
inline constexpr UINT LB_SETCOLUMNWIDTH = 0x0195;
inline constexpr UINT LB_ADDFILE = 0x0196;
inline constexpr UINT LB_SETTOPINDEX = 0x0197;
inline constexpr UINT LB_GETITEMRECT = 0x0198;
inline constexpr UINT LB_GETITEMDATA = 0x0199;
inline constexpr UINT LB_SETITEMDATA = 0x019A;
inline constexpr UINT LB_SELITEMRANGE = 0x019B;
inline constexpr UINT LB_SETANCHORINDEX = 0x019C;
inline constexpr UINT LB_GETANCHORINDEX = 0x019D;
inline constexpr UINT LB_SETCARETINDEX = 0x019E;
inline constexpr UINT LB_GETCARETINDEX = 0x019F;
inline constexpr UINT LB_SETITEMHEIGHT = 0x01A0;
inline constexpr UINT LB_GETITEMHEIGHT = 0x01A1;
inline constexpr UINT LB_FINDSTRINGEXACT = 0x01A2;
inline constexpr UINT LB_SETLOCALE = 0x01A5;
inline constexpr UINT LB_GETLOCALE = 0x01A6;
inline constexpr UINT LB_SETCOUNT = 0x01A7;
inline constexpr UINT LB_INITSTORAGE = 0x01A8;
inline constexpr UINT LB_ITEMFROMPOINT = 0x01A9;
inline constexpr UINT LB_GETLISTBOXINFO = 0x01B2;
/// @}

/// @{
/// A result of a list box.
inline constexpr int LB_OKAY = 0;
inline constexpr int LB_ERR = -1;
inline constexpr int LB_ERRSPACE = -2;
/// @}

/// @{
/// A message to a progress bar.
inline constexpr UINT PBM_SETRANGE = 0x0401;
inline constexpr UINT PBM_SETPOS = 0x0402;
inline constexpr UINT PBM_DELTAPOS = 0x0403;
inline constexpr UINT PBM_SETSTEP = 0x0404;
inline constexpr UINT PBM_STEPIT = 0x0405;
inline constexpr UINT PBM_SETRANGE32 = 0x0406;
inline constexpr UINT PBM_GETRANGE = 0x0407;
inline constexpr UINT PBM_GETPOS = 0x0408;
inline constexpr UINT PBM_SETBARCOLOR = 0x0409;
inline constexpr UINT PBM_SETMARQUEE = 0x040A;
inline constexpr UINT PBM_GETSTEP = 0x040D;
inline constexpr UINT PBM_GETBKCOLOR = 0x040E;
inline constexpr UINT PBM_GETBARCOLOR = 0x040F;
inline constexpr UINT PBM_SETSTATE = 0x0410;
inline constexpr UINT PBM_GETSTATE = 0x0411;
inline constexpr UINT PBM_SETBKCOLOR = 0x2001;
/// @}

/// @{
/// A message to a slider.
inline constexpr UINT TBM_GETPOS = 0x0400;
inline constexpr UINT TBM_GETRANGEMIN = 0x0401;
inline constexpr UINT TBM_GETRANGEMAX = 0x0402;
inline constexpr UINT TBM_GETTIC = 0x0403;
inline constexpr UINT TBM_SETTIC = 0x0404;
inline constexpr UINT TBM_SETPOS = 0x0405;
inline constexpr UINT TBM_SETRANGE = 0x0406;
inline constexpr UINT TBM_SETRANGEMIN = 0x0407;
inline constexpr UINT TBM_SETRANGEMAX = 0x0408;
inline constexpr UINT TBM_CLEARTICS = 0x0409;
inline constexpr UINT TBM_SETSEL = 0x040A;
inline constexpr UINT TBM_SETSELSTART = 0x040B;
inline constexpr UINT TBM_SETSELEND = 0x040C;
inline constexpr UINT TBM_GETPTICS = 0x040E;
inline constexpr UINT TBM_GETTICPOS = 0x040F;
inline constexpr UINT TBM_GETNUMTICS = 0x0410;
inline constexpr UINT TBM_GETSELSTART = 0x0411;
inline constexpr UINT TBM_GETSELEND = 0x0412;
inline constexpr UINT TBM_CLEARSEL = 0x0413;
inline constexpr UINT TBM_SETTICFREQ = 0x0414;
inline constexpr UINT TBM_SETPAGESIZE = 0x0415;
inline constexpr UINT TBM_GETPAGESIZE = 0x0416;
inline constexpr UINT TBM_SETLINESIZE = 0x0417;
inline constexpr UINT TBM_GETLINESIZE = 0x0418;
inline constexpr UINT TBM_GETTHUMBRECT = 0x0419;
inline constexpr UINT TBM_GETCHANNELRECT = 0x041A;
inline constexpr UINT TBM_SETTHUMBLENGTH = 0x041B;
inline constexpr UINT TBM_GETTHUMBLENGTH = 0x041C;
inline constexpr UINT TBM_SETTOOLTIPS = 0x041D;
inline constexpr UINT TBM_GETTOOLTIPS = 0x041E;
inline constexpr UINT TBM_SETTIPSIDE = 0x041F;
inline constexpr UINT TBM_SETBUDDY = 0x0420;
inline constexpr UINT TBM_GETBUDDY = 0x0421;
inline constexpr UINT TBM_SETPOSNOTIFY = 0x0422;
/// @}

/// @{
/// A message to a spin button.
inline constexpr UINT UDM_SETRANGE = 0x0465;
inline constexpr UINT UDM_GETRANGE = 0x0466;
inline constexpr UINT UDM_SETPOS = 0x0467;
inline constexpr UINT UDM_GETPOS = 0x0468;
inline constexpr UINT UDM_SETBUDDY = 0x0469;
inline constexpr UINT UDM_GETBUDDY = 0x046A;
inline constexpr UINT UDM_SETACCEL = 0x046B;
inline constexpr UINT UDM_GETACCEL = 0x046C;
inline constexpr UINT UDM_SETBASE = 0x046D;
inline constexpr UINT UDM_GETBASE = 0x046E;
inline constexpr UINT UDM_SETRANGE32 = 0x046F;
inline constexpr UINT UDM_GETRANGE32 = 0x0470;
inline constexpr UINT UDM_SETPOS32 = 0x0471;
inline constexpr UINT UDM_GETPOS32 = 0x0472;
/// @}

/// @{
/// A message to a date and time control.
inline constexpr UINT DTM_GETSYSTEMTIME = 0x1001;
inline constexpr UINT DTM_SETSYSTEMTIME = 0x1002;
inline constexpr UINT DTM_GETRANGE = 0x1003;
inline constexpr UINT DTM_SETRANGE = 0x1004;
inline constexpr UINT DTM_SETMCCOLOR = 0x1006;
inline constexpr UINT DTM_GETMCCOLOR = 0x1007;
inline constexpr UINT DTM_GETMONTHCAL = 0x1008;
inline constexpr UINT DTM_SETMCFONT = 0x1009;
inline constexpr UINT DTM_GETMCFONT = 0x100A;
inline constexpr UINT DTM_SETMCSTYLE = 0x100B;
inline constexpr UINT DTM_GETMCSTYLE = 0x100C;
inline constexpr UINT DTM_CLOSEMONTHCAL = 0x100D;
inline constexpr UINT DTM_GETDATETIMEPICKERINFO = 0x100E;
inline constexpr UINT DTM_GETIDEALSIZE = 0x100F;
inline constexpr UINT DTM_SETFORMAT = 0x1032;
/// @}

/// @{
/// A result of a date and time control.
inline constexpr int GDT_ERROR = -1;
inline constexpr int GDT_VALID = 0;
inline constexpr int GDT_NONE = 1;
/// @}

/// @{
/// A limit that DTM_GETRANGE and DTM_SETRANGE carry.
inline constexpr DWORD GDTR_MIN = 1;
inline constexpr DWORD GDTR_MAX = 2;
/// @}

/// @{
/// A notification code of a button.
inline constexpr UINT BN_CLICKED = 0;
inline constexpr UINT BN_PAINT = 1;
inline constexpr UINT BN_HILITE = 2;
inline constexpr UINT BN_UNHILITE = 3;
inline constexpr UINT BN_DISABLE = 4;
inline constexpr UINT BN_DOUBLECLICKED = 5;
inline constexpr UINT BN_PUSHED = 2;
inline constexpr UINT BN_UNPUSHED = 3;
inline constexpr UINT BN_DBLCLK = 5;
inline constexpr UINT BN_SETFOCUS = 6;
inline constexpr UINT BN_KILLFOCUS = 7;
/// @}

/// @{
/// A notification code of an edit control.
inline constexpr UINT EN_SETFOCUS = 0x0100;
inline constexpr UINT EN_KILLFOCUS = 0x0200;
inline constexpr UINT EN_CHANGE = 0x0300;
inline constexpr UINT EN_UPDATE = 0x0400;
inline constexpr UINT EN_ERRSPACE = 0x0500;
inline constexpr UINT EN_MAXTEXT = 0x0501;
inline constexpr UINT EN_HSCROLL = 0x0601;
inline constexpr UINT EN_VSCROLL = 0x0602;
inline constexpr UINT EN_ALIGN_LTR_EC = 0x0700;
inline constexpr UINT EN_ALIGN_RTL_EC = 0x0701;
/// @}

/// @{
/// A notification code of a static control.
inline constexpr UINT STN_CLICKED = 0;
inline constexpr UINT STN_DBLCLK = 1;
inline constexpr UINT STN_ENABLE = 2;
inline constexpr UINT STN_DISABLE = 3;
/// @}

/// @{
/// A notification code of a combo box.
inline constexpr UINT CBN_SELCHANGE = 1;
inline constexpr UINT CBN_DBLCLK = 2;
inline constexpr UINT CBN_SETFOCUS = 3;
inline constexpr UINT CBN_KILLFOCUS = 4;
inline constexpr UINT CBN_EDITCHANGE = 5;
inline constexpr UINT CBN_EDITUPDATE = 6;
inline constexpr UINT CBN_DROPDOWN = 7;
inline constexpr UINT CBN_CLOSEUP = 8;
inline constexpr UINT CBN_SELENDOK = 9;
inline constexpr UINT CBN_SELENDCANCEL = 10;
/// @}

/// @{
/// A notification code of a list box.
inline constexpr UINT LBN_SELCHANGE = 1;
inline constexpr UINT LBN_DBLCLK = 2;
inline constexpr UINT LBN_SELCANCEL = 3;
inline constexpr UINT LBN_SETFOCUS = 4;
inline constexpr UINT LBN_KILLFOCUS = 5;
/// @}

/// @{
/// An error that a combo or list box notifies of.
inline constexpr int CBN_ERRSPACE = -1;
inline constexpr int LBN_ERRSPACE = -2;
/// @}

/// @{
/// What happened to a slider, in WM_HSCROLL and WM_VSCROLL.
inline constexpr int TB_LINEUP = 0;
inline constexpr int TB_LINEDOWN = 1;
inline constexpr int TB_PAGEUP = 2;
inline constexpr int TB_PAGEDOWN = 3;
inline constexpr int TB_THUMBPOSITION = 4;
inline constexpr int TB_THUMBTRACK = 5;
inline constexpr int TB_TOP = 6;
inline constexpr int TB_BOTTOM = 7;
inline constexpr int TB_ENDTRACK = 8;
/// @}
