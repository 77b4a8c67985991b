/// @file input.h
/// Keys, buttons and modifiers, as Qt, as messages and as virtual keys number them, and the present
/// state of keyboard and mouse.
///
/// Differs from Win32: the modifier flags that travel in a key message's lParam (bits 16 to 21) are
/// this library's own layout, not scan codes; no toggle state is ever reported; map types and shift
/// states are ignored.
///
/// Threads: the tables are constant; IsRepeatFilterKeyEvent() is for the GUI thread only.
#pragma once

#include <VxMFCEmu/types.h>
#include <VxMFCEmu/wnd/virtualkeys.h>

#include <QtCore/qnamespace.h>

class QKeyEvent;

/// Keyboard flag: Alt is held.
inline constexpr UINT MK_ALT = 0x0020;

/// Keyboard flags of a set of `Qt::KeyboardModifier`: MK_SHIFT, MK_CONTROL, MK_ALT; others are
/// dropped.
VXMFC_EXPORT UINT qt_kb_flag_2_flag(UINT modifiers);
/// Mouse flags of a set of `Qt::MouseButton`: MK_LBUTTON, MK_RBUTTON, MK_MBUTTON; others are
/// dropped.
VXMFC_EXPORT UINT qt_mouse_flag_2_flag(UINT buttons);
/// Always `Qt::NoModifier`.
VXMFC_EXPORT Qt::KeyboardModifiers mfc_flag_2_qt_kb_flag(UINT flags);
/// The buttons of a word of mouse flags; the reverse of qt_mouse_flag_2_flag().
VXMFC_EXPORT Qt::MouseButtons mfc_flag_2_qt_mouse_flag(UINT flags);

/// The virtual key of a `Qt::Key`; -1 when it has none.
VXMFC_EXPORT int qt_key_to_ansi_vk(int key);
/// The lowest `Qt::Key` with this virtual key, so the shifted digits come before the digits; -1
/// when there is none.
VXMFC_EXPORT int ansi_vk_to_qt_key(int vk);

/// Whether @p e says the same (key, type, modifiers) as the last key event asked about: a key held
/// down. Otherwise @p e becomes the last one. FALSE for null.
VXMFC_EXPORT BOOL IsRepeatFilterKeyEvent(QKeyEvent* e);

/// 0x8000 while a key or the left or right button (VK_LBUTTON, VK_RBUTTON) is down, else 0; 0
/// without an X display. As a SHORT, so both `& 0x8000` and `< 0` tell it. Asks the X server each
/// time.
VXMFC_EXPORT SHORT GetKeyState_E(int vk);
/// The same for keys only.
VXMFC_EXPORT SHORT GetKeyStateByX11(int vk);
/// The same for buttons only: 1 left, 2 right; any other is never down.
VXMFC_EXPORT SHORT GetMouseStateByX11(int button);

/// The code itself where it is a printable ASCII character or backspace, tab, line feed or return,
/// else 0. The map type is ignored.
VXMFC_EXPORT UINT MapVirtualKey_E(UINT code, UINT type);
/// The upper-case form of the low 16 bits of @p ch, without a shift state.
VXMFC_EXPORT SHORT VkKeyScan_E(wchar_t ch);
