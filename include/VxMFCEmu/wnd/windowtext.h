/// @file windowtext.h
/// The text of windows, and the text and state of dialog controls found by id.
///
/// What the text is depends on the widget: of buttons, labels and edits what they show, of
/// number spin boxes the plain value,
/// of group boxes the title, of combo boxes the current text, of all others the window title.
///
/// A null window, and a control that is not there, give FALSE or 0. Lengths count code points,
/// without the terminator. Differs from Win32: lines end in "\n".
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/types.h>

class CString_E;

/// Sets the text; null as empty. A spin box of numbers takes 0 for what is none. A combo box
/// selects the item with exactly this text, without a signal; FALSE when it has none and cannot be
/// edited.
VXMFC_EXPORT BOOL SetWindowText_E(HWND hWnd, LPCWSTR pszText);
/// Stores the text, empty for a null window, and returns its length.
VXMFC_EXPORT int GetWindowText_E(HWND hWnd, CString_E& strText);
/// Stores at most @p nMaxCount characters with the terminator and returns the number without it; 0,
/// storing nothing, for a null buffer or no room.
VXMFC_EXPORT int GetWindowText_E(HWND hWnd, LPWSTR pszText, int nMaxCount);
/// The number of characters of the text.
VXMFC_EXPORT int GetWindowTextLength_E(HWND hWnd);

/// The same for the control @p nID of a dialog.
VXMFC_EXPORT BOOL SetDlgItemText_E(HWND hDlg, int nID, LPCWSTR pszText);
/// @{
/// The text of the control @p nID, as GetWindowText_E() gives it.
VXMFC_EXPORT int GetDlgItemText_E(HWND hDlg, int nID, CString_E& strText);
VXMFC_EXPORT int GetDlgItemText_E(HWND hDlg, int nID, LPWSTR pszText, int nMaxCount);
/// @}

/// Sets a control's text to a decimal number, negative if @p bSigned is set and the highest bit is.
VXMFC_EXPORT BOOL SetDlgItemInt_E(HWND hDlg, int nID, UINT nValue, BOOL bSigned = TRUE);
/// Reads a decimal number from the start of a control's text, after white space and up to the first
/// other character; a minus sign counts if @p bSigned is set. Without digits, or out of range, 0
/// and FALSE in @p pTranslated, which may be null.
VXMFC_EXPORT UINT GetDlgItemInt_E(HWND hDlg, int nID, LPBOOL pTranslated = nullptr,
                                  BOOL bSigned = TRUE);

/// BST_CHECKED, BST_INDETERMINATE or BST_UNCHECKED, also for what is no button.
VXMFC_EXPORT UINT IsDlgButtonChecked_E(HWND hDlg, int nIDButton);
/// Checks, half checks or unchecks a button as BST_* tells; a button without a third state is
/// checked instead. No click is reported. FALSE when there is no such button.
VXMFC_EXPORT BOOL CheckDlgButton_E(HWND hDlg, int nIDButton, UINT uCheck);
/// Checks one button and unchecks the others with ids from first to last.
VXMFC_EXPORT BOOL CheckRadioButton_E(HWND hDlg, int nIDFirstButton, int nIDLastButton,
                                     int nIDCheckButton);

/// Limits what can be typed into a line edit, an editable combo box or a spin box; 0 is no limit.
/// FALSE for other widgets. Differs from Win32: a longer text that is there is cut.
VXMFC_EXPORT BOOL SetEditLimitText_E(HWND hWnd, int nMax);

/// Selects the whole text of an edit, an editable combo box or a spin box. FALSE for other widgets.
VXMFC_EXPORT BOOL SetEditSelectAll_E(HWND hWnd);

/// Enables or disables the scroll bars that SB_HORZ, SB_VERT, SB_BOTH or SB_CTL (the window itself)
/// names. Differs from Win32: both arrows of a bar go together; it is disabled by ESB_DISABLE_BOTH
/// only. FALSE when nothing changed.
VXMFC_EXPORT BOOL EnableScrollBar_E(HWND hWnd, UINT uSBFlags, UINT uArrows);
