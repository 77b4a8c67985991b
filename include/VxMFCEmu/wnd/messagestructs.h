/// @file messagestructs.h
/// The records that messages point to, under their Win32 names.
#pragma once

#include <VxMFCEmu/types.h>

/// WM_GETMINMAXINFO: limits of a window's size and place.
struct tagMINMAXINFO
{
    POINT ptReserved;
    POINT ptMaxSize;
    POINT ptMaxPosition;
    POINT ptMinTrackSize;
    POINT ptMaxTrackSize;
};
using MINMAXINFO = tagMINMAXINFO;
using LPMINMAXINFO = tagMINMAXINFO*;

/// WM_WINDOWPOSCHANGING and WM_WINDOWPOSCHANGED.
struct tagWINDOWPOS
{
    HWND hwnd;
    HWND hwndInsertAfter;
    int x;
    int y;
    int cx;
    int cy;
    UINT flags;
};
using WINDOWPOS = tagWINDOWPOS;
using LPWINDOWPOS = tagWINDOWPOS*;

/// WM_NCCALCSIZE.
struct tagNCCALCSIZE_PARAMS
{
    RECT rgrc[3];
    WINDOWPOS* lppos;
};
using NCCALCSIZE_PARAMS = tagNCCALCSIZE_PARAMS;
using LPNCCALCSIZE_PARAMS = tagNCCALCSIZE_PARAMS*;

/// WM_STYLECHANGING and WM_STYLECHANGED.
struct tagSTYLESTRUCT
{
    DWORD styleOld;
    DWORD styleNew;
};
using STYLESTRUCT = tagSTYLESTRUCT;
using LPSTYLESTRUCT = tagSTYLESTRUCT*;

/// WM_COPYDATA.
struct tagCOPYDATASTRUCT
{
    ULONG_PTR dwData;
    DWORD cbData; ///< bytes in lpData
    LPVOID lpData;
};
using COPYDATASTRUCT = tagCOPYDATASTRUCT;
using PCOPYDATASTRUCT = tagCOPYDATASTRUCT*;

/// WM_HELP.
struct tagHELPINFO
{
    UINT cbSize;
    int iContextType;
    int iCtrlId;
    HANDLE hItemHandle;
    DWORD_PTR dwContextId;
    POINT MousePos;
};
using HELPINFO = tagHELPINFO;
using LPHELPINFO = tagHELPINFO*;

/// WM_NEXTMENU.
struct tagMDINEXTMENU
{
    HMENU hmenuIn;
    HMENU hmenuNext;
    HWND hwndNext;
};
using MDINEXTMENU = tagMDINEXTMENU;
using LPMDINEXTMENU = tagMDINEXTMENU*;

/// WM_DRAWITEM: one item of an owner-drawn control.
struct tagDRAWITEMSTRUCT
{
    UINT CtlType;
    UINT CtlID;
    UINT itemID;
    UINT itemAction;
    UINT itemState;
    HWND hwndItem;
    HDC hDC;
    RECT rcItem;
    ULONG_PTR itemData;
};
using DRAWITEMSTRUCT = tagDRAWITEMSTRUCT;
using LPDRAWITEMSTRUCT = tagDRAWITEMSTRUCT*;

/// WM_MEASUREITEM.
struct tagMEASUREITEMSTRUCT
{
    UINT CtlType;
    UINT CtlID;
    UINT itemID;
    UINT itemWidth;
    UINT itemHeight;
    ULONG_PTR itemData;
};
using MEASUREITEMSTRUCT = tagMEASUREITEMSTRUCT;
using LPMEASUREITEMSTRUCT = tagMEASUREITEMSTRUCT*;

/// WM_COMPAREITEM.
struct tagCOMPAREITEMSTRUCT
{
    UINT CtlType;
    UINT CtlID;
    HWND hwndItem;
    UINT itemID1;
    ULONG_PTR itemData1;
    UINT itemID2;
    ULONG_PTR itemData2;
    DWORD dwLocaleId;
};
using COMPAREITEMSTRUCT = tagCOMPAREITEMSTRUCT;
using LPCOMPAREITEMSTRUCT = tagCOMPAREITEMSTRUCT*;

/// WM_DELETEITEM.
struct tagDELETEITEMSTRUCT
{
    UINT CtlType;
    UINT CtlID;
    UINT itemID;
    HWND hwndItem;
    ULONG_PTR itemData;
};
using DELETEITEMSTRUCT = tagDELETEITEMSTRUCT;
using LPDELETEITEMSTRUCT = tagDELETEITEMSTRUCT*;

/// SBM_SETSCROLLINFO and SBM_GETSCROLLINFO.
struct tagSCROLLINFO
{
    UINT cbSize; ///< not looked at
    UINT fMask;  ///< SIF_* of the members that count
    int nMin;
    int nMax;
    UINT nPage; ///< the positions from nMax - nPage + 2 on cannot be scrolled to
    int nPos;
    int nTrackPos; ///< only read
};
using SCROLLINFO = tagSCROLLINFO;
using LPSCROLLINFO = tagSCROLLINFO*;
using LPCSCROLLINFO = const tagSCROLLINFO*;

/// UDM_SETACCEL and UDM_GETACCEL.
struct _UDACCEL
{
    UINT nSec; ///< seconds for which a button is held
    UINT nInc; ///< step from then on
};
using UDACCEL = _UDACCEL;
using LPUDACCEL = _UDACCEL*;

/// Head of every WM_NOTIFY record.
struct tagNMHDR
{
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
};
using NMHDR = tagNMHDR;
using LPNMHDR = tagNMHDR*;
