#include <VxMFCEmu/wnd/input.h>

#include "wnd/vxkeytable_p.h"

#include <QtCore/QChar>
#include <QtGui/QKeyEvent>

using namespace vx::detail;

UINT qt_kb_flag_2_flag(UINT modifiers)
{
    return (modifiers & Qt::ShiftModifier ? MK_SHIFT : 0U) |
           (modifiers & Qt::ControlModifier ? MK_CONTROL : 0U) |
           (modifiers & Qt::AltModifier ? MK_ALT : 0U);
}

UINT qt_mouse_flag_2_flag(UINT buttons)
{
    return (buttons & Qt::LeftButton ? MK_LBUTTON : 0U) |
           (buttons & Qt::RightButton ? MK_RBUTTON : 0U) |
           (buttons & Qt::MiddleButton ? MK_MBUTTON : 0U);
}

// Intended: keyboard flags are not turned back.
Qt::KeyboardModifiers mfc_flag_2_qt_kb_flag(UINT) { return Qt::NoModifier; }

Qt::MouseButtons mfc_flag_2_qt_mouse_flag(UINT flags)
{
    Qt::MouseButtons buttons;
    buttons.setFlag(Qt::LeftButton, flags & MK_LBUTTON);
    buttons.setFlag(Qt::RightButton, flags & MK_RBUTTON);
    buttons.setFlag(Qt::MiddleButton, flags & MK_MBUTTON);
    return buttons;
}

int qt_key_to_ansi_vk(int key)
{
    const KeyRow* row = findKeyRow(key);
    return row ? row->vk : -1;
}

int ansi_vk_to_qt_key(int vk)
{
    const auto place = static_cast<std::size_t>(vk);
    return place < keyByVk.size() ? keyByVk[place] : -1;
}

BOOL IsRepeatFilterKeyEvent(QKeyEvent* e)
{
    // What is compared is all that need be kept of the last event.
    static struct
    {
        int key = Qt::Key_unknown;
        QEvent::Type type = QEvent::KeyPress;
        Qt::KeyboardModifiers modifiers;
    } last;

    if (!e)
        return FALSE;
    if (e->key() == last.key && e->type() == last.type && e->modifiers() == last.modifiers)
        return TRUE;
    last = {e->key(), e->type(), e->modifiers()};
    return FALSE;
}

UINT MapVirtualKey_E(UINT code, UINT)
{
    const bool control = code == 0x08 || code == 0x09 || code == 0x0A || code == 0x0D;
    const bool printable = code >= 0x20 && code <= 0x7E;
    return control || printable ? code : 0;
}

SHORT VkKeyScan_E(wchar_t ch)
{
    return static_cast<SHORT>(QChar(static_cast<ushort>(ch)).toUpper().unicode());
}
