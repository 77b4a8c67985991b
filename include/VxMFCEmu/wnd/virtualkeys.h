/// @file virtualkeys.h
/// Virtual keys and the key and button state of mouse messages, under their Win32 names and with
/// their Win32 values. Digits and capital letters are their own virtual keys: '0' to '9', 'A' to
/// 'Z'.
#pragma once

#include <VxMFCEmu/types.h>

/// @{
/// The virtual key of a mouse button.
inline constexpr int VK_LBUTTON = 0x01;
inline constexpr int VK_RBUTTON = 0x02;
inline constexpr int VK_CANCEL = 0x03;
inline constexpr int VK_MBUTTON = 0x04;
inline constexpr int VK_XBUTTON1 = 0x05;
inline constexpr int VK_XBUTTON2 = 0x06;
/// @}

/// @{
/// An editing or modifier key.
inline constexpr int VK_BACK = 0x08;
inline constexpr int VK_TAB = 0x09;
inline constexpr int VK_CLEAR = 0x0C;
inline constexpr int VK_RETURN = 0x0D;
inline constexpr int VK_SHIFT = 0x10;
inline constexpr int VK_CONTROL = 0x11;
inline constexpr int VK_MENU = 0x12;
inline constexpr int VK_PAUSE = 0x13;
inline constexpr int VK_CAPITAL = 0x14;
/// @}

/// @{
/// A key of input methods, and Escape.
inline constexpr int VK_KANA = 0x15;
inline constexpr int VK_HANGEUL = 0x15;
inline constexpr int VK_HANGUL = 0x15;
inline constexpr int VK_IME_ON = 0x16;
inline constexpr int VK_JUNJA = 0x17;
inline constexpr int VK_FINAL = 0x18;
inline constexpr int VK_HANJA = 0x19;
inline constexpr int VK_KANJI = 0x19;
inline constexpr int VK_IME_OFF = 0x1A;
inline constexpr int VK_ESCAPE = 0x1B;
inline constexpr int VK_CONVERT = 0x1C;
inline constexpr int VK_NONCONVERT = 0x1D;
inline constexpr int VK_ACCEPT = 0x1E;
inline constexpr int VK_MODECHANGE = 0x1F;
/// @}

/// @{
/// A key that moves about or edits.
inline constexpr int VK_SPACE = 0x20;
inline constexpr int VK_PRIOR = 0x21;
inline constexpr int VK_NEXT = 0x22;
inline constexpr int VK_END = 0x23;
inline constexpr int VK_HOME = 0x24;
inline constexpr int VK_LEFT = 0x25;
inline constexpr int VK_UP = 0x26;
inline constexpr int VK_RIGHT = 0x27;
inline constexpr int VK_DOWN = 0x28;
inline constexpr int VK_SELECT = 0x29;
inline constexpr int VK_PRINT = 0x2A;
inline constexpr int VK_EXECUTE = 0x2B;
inline constexpr int VK_SNAPSHOT = 0x2C;
inline constexpr int VK_INSERT = 0x2D;
inline constexpr int VK_DELETE = 0x2E;
inline constexpr int VK_HELP = 0x2F;
/// @}

/// @{
/// A system key.
inline constexpr int VK_LWIN = 0x5B;
inline constexpr int VK_RWIN = 0x5C;
inline constexpr int VK_APPS = 0x5D;
inline constexpr int VK_SLEEP = 0x5F;
/// @}

/// @{
/// A key of the number pad.
inline constexpr int VK_NUMPAD0 = 0x60;
inline constexpr int VK_NUMPAD1 = 0x61;
inline constexpr int VK_NUMPAD2 = 0x62;
inline constexpr int VK_NUMPAD3 = 0x63;
inline constexpr int VK_NUMPAD4 = 0x64;
inline constexpr int VK_NUMPAD5 = 0x65;
inline constexpr int VK_NUMPAD6 = 0x66;
inline constexpr int VK_NUMPAD7 = 0x67;
inline constexpr int VK_NUMPAD8 = 0x68;
inline constexpr int VK_NUMPAD9 = 0x69;
inline constexpr int VK_MULTIPLY = 0x6A;
inline constexpr int VK_ADD = 0x6B;
inline constexpr int VK_SEPARATOR = 0x6C;
inline constexpr int VK_SUBTRACT = 0x6D;
inline constexpr int VK_DECIMAL = 0x6E;
inline constexpr int VK_DIVIDE = 0x6F;
/// @}

/// @{
/// A function key.
inline constexpr int VK_F1 = 0x70;
inline constexpr int VK_F2 = 0x71;
inline constexpr int VK_F3 = 0x72;
inline constexpr int VK_F4 = 0x73;
inline constexpr int VK_F5 = 0x74;
inline constexpr int VK_F6 = 0x75;
inline constexpr int VK_F7 = 0x76;
inline constexpr int VK_F8 = 0x77;
inline constexpr int VK_F9 = 0x78;
inline constexpr int VK_F10 = 0x79;
inline constexpr int VK_F11 = 0x7A;
inline constexpr int VK_F12 = 0x7B;
inline constexpr int VK_F13 = 0x7C;
inline constexpr int VK_F14 = 0x7D;
inline constexpr int VK_F15 = 0x7E;
inline constexpr int VK_F16 = 0x7F;
inline constexpr int VK_F17 = 0x80;
inline constexpr int VK_F18 = 0x81;
inline constexpr int VK_F19 = 0x82;
inline constexpr int VK_F20 = 0x83;
inline constexpr int VK_F21 = 0x84;
inline constexpr int VK_F22 = 0x85;
inline constexpr int VK_F23 = 0x86;
inline constexpr int VK_F24 = 0x87;
/// @}

/// @{
/// A lock key, or a modifier key of one side.
inline constexpr int VK_NUMLOCK = 0x90;
inline constexpr int VK_SCROLL = 0x91;
inline constexpr int VK_OEM_NEC_EQUAL = 0x92;
inline constexpr int VK_LSHIFT = 0xA0;
inline constexpr int VK_RSHIFT = 0xA1;
inline constexpr int VK_LCONTROL = 0xA2;
inline constexpr int VK_RCONTROL = 0xA3;
inline constexpr int VK_LMENU = 0xA4;
inline constexpr int VK_RMENU = 0xA5;
/// @}

/// @{
/// A browser, media or launch key.
inline constexpr int VK_BROWSER_BACK = 0xA6;
inline constexpr int VK_BROWSER_FORWARD = 0xA7;
inline constexpr int VK_BROWSER_REFRESH = 0xA8;
inline constexpr int VK_BROWSER_STOP = 0xA9;
inline constexpr int VK_BROWSER_SEARCH = 0xAA;
inline constexpr int VK_BROWSER_FAVORITES = 0xAB;
inline constexpr int VK_BROWSER_HOME = 0xAC;
inline constexpr int VK_VOLUME_MUTE = 0xAD;
inline constexpr int VK_VOLUME_DOWN = 0xAE;
inline constexpr int VK_VOLUME_UP = 0xAF;
inline constexpr int VK_MEDIA_NEXT_TRACK = 0xB0;
inline constexpr int VK_MEDIA_PREV_TRACK = 0xB1;
inline constexpr int VK_MEDIA_STOP = 0xB2;
inline constexpr int VK_MEDIA_PLAY_PAUSE = 0xB3;
inline constexpr int VK_LAUNCH_MAIL = 0xB4;
inline constexpr int VK_LAUNCH_MEDIA_SELECT = 0xB5;
inline constexpr int VK_LAUNCH_APP1 = 0xB6;
inline constexpr int VK_LAUNCH_APP2 = 0xB7;
/// @}

/// @{
/// A key whose character depends on the layout.
inline constexpr int VK_OEM_1 = 0xBA;
inline constexpr int VK_OEM_PLUS = 0xBB;
inline constexpr int VK_OEM_COMMA = 0xBC;
inline constexpr int VK_OEM_MINUS = 0xBD;
inline constexpr int VK_OEM_PERIOD = 0xBE;
inline constexpr int VK_OEM_2 = 0xBF;
inline constexpr int VK_OEM_3 = 0xC0;
inline constexpr int VK_OEM_4 = 0xDB;
inline constexpr int VK_OEM_5 = 0xDC;
inline constexpr int VK_OEM_6 = 0xDD;
inline constexpr int VK_OEM_7 = 0xDE;
inline constexpr int VK_OEM_8 = 0xDF;
inline constexpr int VK_OEM_AX = 0xE1;
inline constexpr int VK_OEM_102 = 0xE2;
inline constexpr int VK_ICO_HELP = 0xE3;
inline constexpr int VK_ICO_00 = 0xE4;
/// @}

/// @{
/// One of the other keys.
inline constexpr int VK_PROCESSKEY = 0xE5;
inline constexpr int VK_ICO_CLEAR = 0xE6;
inline constexpr int VK_PACKET = 0xE7;
inline constexpr int VK_OEM_RESET = 0xE9;
inline constexpr int VK_OEM_JUMP = 0xEA;
inline constexpr int VK_OEM_PA1 = 0xEB;
inline constexpr int VK_OEM_PA2 = 0xEC;
inline constexpr int VK_OEM_PA3 = 0xED;
inline constexpr int VK_OEM_WSCTRL = 0xEE;
inline constexpr int VK_OEM_CUSEL = 0xEF;
inline constexpr int VK_OEM_ATTN = 0xF0;
inline constexpr int VK_OEM_FINISH = 0xF1;
inline constexpr int VK_OEM_COPY = 0xF2;
inline constexpr int VK_OEM_AUTO = 0xF3;
inline constexpr int VK_OEM_ENLW = 0xF4;
inline constexpr int VK_OEM_BACKTAB = 0xF5;
inline constexpr int VK_ATTN = 0xF6;
inline constexpr int VK_CRSEL = 0xF7;
inline constexpr int VK_EXSEL = 0xF8;
inline constexpr int VK_EREOF = 0xF9;
inline constexpr int VK_PLAY = 0xFA;
inline constexpr int VK_ZOOM = 0xFB;
inline constexpr int VK_NONAME = 0xFC;
inline constexpr int VK_PA1 = 0xFD;
inline constexpr int VK_OEM_CLEAR = 0xFE;
/// @}

/// @{
/// A key or button that is held, in a mouse message.
inline constexpr UINT MK_LBUTTON = 0x0001;
inline constexpr UINT MK_RBUTTON = 0x0002;
inline constexpr UINT MK_SHIFT = 0x0004;
inline constexpr UINT MK_CONTROL = 0x0008;
inline constexpr UINT MK_MBUTTON = 0x0010;
inline constexpr UINT MK_XBUTTON1 = 0x0020;
inline constexpr UINT MK_XBUTTON2 = 0x0040;
/// @}

/// @{
/// An extra button in the high half of wParam.
inline constexpr UINT XBUTTON1 = 0x0001;
inline constexpr UINT XBUTTON2 = 0x0002;
/// @}

/// One notch of a mouse wheel.
inline constexpr int WHEEL_DELTA = 120;

/// @{
/// A flag of a key in the high half of lParam.
inline constexpr UINT KF_EXTENDED = 0x0100;
inline constexpr UINT KF_DLGMODE = 0x0800;
inline constexpr UINT KF_MENUMODE = 0x1000;
inline constexpr UINT KF_ALTDOWN = 0x2000;
inline constexpr UINT KF_REPEAT = 0x4000;
inline constexpr UINT KF_UP = 0x8000;
/// @}

/// @{
/// A kind of MapVirtualKey_E().
inline constexpr UINT MAPVK_VK_TO_VSC = 0;
inline constexpr UINT MAPVK_VSC_TO_VK = 1;
inline constexpr UINT MAPVK_VK_TO_CHAR = 2;
inline constexpr UINT MAPVK_VSC_TO_VK_EX = 3;
inline constexpr UINT MAPVK_VK_TO_VSC_EX = 4;
/// @}
