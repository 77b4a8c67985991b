/// @file messagestructs.h
/// The records that messages point to, under their Win32 names.
#pragma once

#include <VxMFCEmu/types.h>

/// WM_GETMINMAXINFO: limits of a window's size and place.
struct tagMINMAXINFO
{
    POINT ptReserved;     ///< not used
    POINT ptMaxSize;      ///< size when maximised
    POINT ptMaxPosition;  ///< place when maximised
    POINT ptMinTrackSize; ///< smallest size
    POINT ptMaxTrackSize; ///< largest size
};
using MINMAXINFO = tagMINMAXINFO;    ///< its usual name
using LPMINMAXINFO = tagMINMAXINFO*; ///< a pointer to one

/// WM_WINDOWPOSCHANGING and WM_WINDOWPOSCHANGED.
struct tagWINDOWPOS
{
    HWND hwnd;            ///< the window
    HWND hwndInsertAfter; ///< the window above it
    int x;                ///< left edge
    int y;                ///< top edge
    int cx;               ///< width
    int cy;               ///< height
    UINT flags;           ///< SWP_*
};
using WINDOWPOS = tagWINDOWPOS;    ///< its usual name
using LPWINDOWPOS = tagWINDOWPOS*; ///< a pointer to one

/// WM_NCCALCSIZE.
struct tagNCCALCSIZE_PARAMS
{
    RECT rgrc[3];     ///< new, old and old client rectangle
    WINDOWPOS* lppos; ///< size and place
};
using NCCALCSIZE_PARAMS = tagNCCALCSIZE_PARAMS;    ///< its usual name
using LPNCCALCSIZE_PARAMS = tagNCCALCSIZE_PARAMS*; ///< a pointer to one

/// WM_STYLECHANGING and WM_STYLECHANGED.
struct tagSTYLESTRUCT
{
    DWORD styleOld; ///< before
    DWORD styleNew; ///< after
};
using STYLESTRUCT = tagSTYLESTRUCT;    ///< its usual name
using LPSTYLESTRUCT = tagSTYLESTRUCT*; ///< a pointer to one

/// WM_COPYDATA.
struct tagCOPYDATASTRUCT
{
    ULONG_PTR dwData; ///< the sender's number
    DWORD cbData;     ///< bytes in lpData
    LPVOID lpData;    ///< the sender's data
};
using COPYDATASTRUCT = tagCOPYDATASTRUCT;   ///< its usual name
using PCOPYDATASTRUCT = tagCOPYDATASTRUCT*; ///< a pointer to one

/// WM_HELP.
struct tagHELPINFO
{
    UINT cbSize;           ///< size of this record
    int iContextType;      ///< window or menu
    int iCtrlId;           ///< id of the control
    HANDLE hItemHandle;    ///< the control
    DWORD_PTR dwContextId; ///< help id
    POINT MousePos;        ///< on the screen
};
using HELPINFO = tagHELPINFO;    ///< its usual name
using LPHELPINFO = tagHELPINFO*; ///< a pointer to one

/// WM_NEXTMENU.
struct tagMDINEXTMENU
{
    HMENU hmenuIn;   ///< the present menu
    HMENU hmenuNext; ///< the next menu
    HWND hwndNext;   ///< its window
};
using MDINEXTMENU = tagMDINEXTMENU;    ///< its usual name
using LPMDINEXTMENU = tagMDINEXTMENU*; ///< a pointer to one

/// WM_DRAWITEM: one item of an owner-drawn control.
struct tagDRAWITEMSTRUCT
{
    UINT CtlType;       ///< kind of control
    UINT CtlID;         ///< id of the control
    UINT itemID;        ///< index of the item
    UINT itemAction;    ///< what to draw
    UINT itemState;     ///< how the item looks
    HWND hwndItem;      ///< the control
    HDC hDC;            ///< to draw with
    RECT rcItem;        ///< where to draw
    ULONG_PTR itemData; ///< the item's data
};
using DRAWITEMSTRUCT = tagDRAWITEMSTRUCT;    ///< its usual name
using LPDRAWITEMSTRUCT = tagDRAWITEMSTRUCT*; ///< a pointer to one

/// WM_MEASUREITEM.
struct tagMEASUREITEMSTRUCT
{
    UINT CtlType;       ///< kind of control
    UINT CtlID;         ///< id of the control
    UINT itemID;        ///< index of the item
    UINT itemWidth;     ///< pixels
    UINT itemHeight;    ///< pixels
    ULONG_PTR itemData; ///< the item's data
};
using MEASUREITEMSTRUCT = tagMEASUREITEMSTRUCT;    ///< its usual name
using LPMEASUREITEMSTRUCT = tagMEASUREITEMSTRUCT*; ///< a pointer to one

/// WM_COMPAREITEM.
struct tagCOMPAREITEMSTRUCT
{
    UINT CtlType;        ///< kind of control
    UINT CtlID;          ///< id of the control
    HWND hwndItem;       ///< the control
    UINT itemID1;        ///< index of the first item
    ULONG_PTR itemData1; ///< its data
    UINT itemID2;        ///< index of the second item
    ULONG_PTR itemData2; ///< its data
    DWORD dwLocaleId;    ///< how to compare
};
using COMPAREITEMSTRUCT = tagCOMPAREITEMSTRUCT;    ///< its usual name
using LPCOMPAREITEMSTRUCT = tagCOMPAREITEMSTRUCT*; ///< a pointer to one

/// WM_DELETEITEM.
struct tagDELETEITEMSTRUCT
{
    UINT CtlType;       ///< kind of control
    UINT CtlID;         ///< id of the control
    UINT itemID;        ///< index of the item
    HWND hwndItem;      ///< the control
    ULONG_PTR itemData; ///< the item's data
};
using DELETEITEMSTRUCT = tagDELETEITEMSTRUCT;    ///< its usual name
using LPDELETEITEMSTRUCT = tagDELETEITEMSTRUCT*; ///< a pointer to one

/// SBM_SETSCROLLINFO and SBM_GETSCROLLINFO.
struct tagSCROLLINFO
{
    UINT cbSize;   ///< not looked at
    UINT fMask;    ///< SIF_* of the members that count
    int nMin;      ///< lowest position
    int nMax;      ///< highest position
    UINT nPage;    ///< the positions from nMax - nPage + 2 on cannot be scrolled to
    int nPos;      ///< the position
    int nTrackPos; ///< only read
};
using SCROLLINFO = tagSCROLLINFO;           ///< its usual name
using LPSCROLLINFO = tagSCROLLINFO*;        ///< a pointer to one
using LPCSCROLLINFO = const tagSCROLLINFO*; ///< a pointer to a constant one

/// UDM_SETACCEL and UDM_GETACCEL.
struct _UDACCEL
{
    UINT nSec; ///< seconds for which a button is held
    UINT nInc; ///< step from then on
};
using UDACCEL = _UDACCEL;    ///< its usual name
using LPUDACCEL = _UDACCEL*; ///< a pointer to one

/// Head of every WM_NOTIFY record.
struct tagNMHDR
{
    HWND hwndFrom;   ///< the sender
    UINT_PTR idFrom; ///< its id
    UINT code;       ///< the notification
};
using NMHDR = tagNMHDR;    ///< its usual name
using LPNMHDR = tagNMHDR*; ///< a pointer to one
