/// @file messagebox.h
/// Message boxes.
///
/// A box is modal over its owner and returns the id of the button that closed it. Escape and the
/// close button answer IDCANCEL when there is a Cancel button and IDOK when OK is the only one;
/// otherwise they do nothing. Buttons stand in Win32's order on every desktop. Text is plain, never
/// markup.
///
/// Differs from Win32: MB_HELP, MB_RIGHT, MB_RTLREADING and the desktop flags are taken and
/// ignored; every box is modal for the whole application.
///
/// Threads: GUI thread only; elsewhere, and without an application object, nothing is shown and the
/// result is 0.
#pragma once

#include <VxMFCEmu/types.h>

/// @{
/// The buttons of a box.
inline constexpr UINT MB_OK = 0x00000000;
inline constexpr UINT MB_OKCANCEL = 0x00000001;
inline constexpr UINT MB_ABORTRETRYIGNORE = 0x00000002;
inline constexpr UINT MB_YESNOCANCEL = 0x00000003;
inline constexpr UINT MB_YESNO = 0x00000004;
inline constexpr UINT MB_RETRYCANCEL = 0x00000005;
inline constexpr UINT MB_CANCELTRYCONTINUE = 0x00000006;
/// @}

/// @{
/// The icon of a box.
inline constexpr UINT MB_ICONHAND = 0x00000010;
inline constexpr UINT MB_ICONQUESTION = 0x00000020;
inline constexpr UINT MB_ICONEXCLAMATION = 0x00000030;
inline constexpr UINT MB_ICONASTERISK = 0x00000040;
inline constexpr UINT MB_USERICON = 0x00000080;
inline constexpr UINT MB_ICONWARNING = MB_ICONEXCLAMATION;
inline constexpr UINT MB_ICONERROR = MB_ICONHAND;
inline constexpr UINT MB_ICONINFORMATION = MB_ICONASTERISK;
inline constexpr UINT MB_ICONSTOP = MB_ICONHAND;
/// @}

/// @{
/// The default button of a box.
inline constexpr UINT MB_DEFBUTTON1 = 0x00000000;
inline constexpr UINT MB_DEFBUTTON2 = 0x00000100;
inline constexpr UINT MB_DEFBUTTON3 = 0x00000200;
inline constexpr UINT MB_DEFBUTTON4 = 0x00000300;
/// @}

/// @{
/// How a box behaves; mostly ignored, see the page above.
inline constexpr UINT MB_APPLMODAL = 0x00000000;
inline constexpr UINT MB_SYSTEMMODAL = 0x00001000;
inline constexpr UINT MB_TASKMODAL = 0x00002000;
inline constexpr UINT MB_HELP = 0x00004000;
inline constexpr UINT MB_NOFOCUS = 0x00008000;
inline constexpr UINT MB_SETFOREGROUND = 0x00010000;
inline constexpr UINT MB_DEFAULT_DESKTOP_ONLY = 0x00020000;
inline constexpr UINT MB_TOPMOST = 0x00040000;
inline constexpr UINT MB_RIGHT = 0x00080000;
inline constexpr UINT MB_RTLREADING = 0x00100000;
inline constexpr UINT MB_SERVICE_NOTIFICATION = 0x00200000;
/// @}

/// @{
/// A part of the type word.
inline constexpr UINT MB_TYPEMASK = 0x0000000F;
inline constexpr UINT MB_ICONMASK = 0x000000F0;
inline constexpr UINT MB_DEFMASK = 0x00000F00;
inline constexpr UINT MB_MODEMASK = 0x00003000;
inline constexpr UINT MB_MISCMASK = 0x0000C000;
/// @}

/// @{
/// The id of a button.
inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
inline constexpr int IDABORT = 3;
inline constexpr int IDRETRY = 4;
inline constexpr int IDIGNORE = 5;
inline constexpr int IDYES = 6;
inline constexpr int IDNO = 7;
inline constexpr int IDCLOSE = 8;
inline constexpr int IDHELP = 9;
inline constexpr int IDTRYAGAIN = 10;
inline constexpr int IDCONTINUE = 11;
/// @}

/// Shows @p lpText (null is empty) under the title @p lpCaption (null is "Error") over @p hWnd,
/// which may be null. Returns the id of the button; 0 for an unknown button set and when the owner
/// dies meanwhile.
VXMFC_EXPORT int MessageBox_E(QWidget* hWnd, const wchar_t* lpText, const wchar_t* lpCaption,
                              UINT uType = MB_OK);

/// The same over the active window, under the application's name. Without an icon the box gets the
/// one that its buttons suggest: a question mark for Yes and No, otherwise the warning sign. The
/// help id is ignored.
VXMFC_EXPORT int AfxMessageBox_E(const wchar_t* lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
/// The same with the text of string resource @p nIDPrompt, or "#" and the id where there is none.
VXMFC_EXPORT int AfxMessageBox_E(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = 0xFFFFFFFFU);
