// The X headers define macros such as KeyPress, so nothing of Qt may be included after them.
#include <VxMFCEmu/wnd/input.h>

#include "wnd/vxrowindex_p.h"

#include <X11/Xlib.h>
#include <X11/keysym.h>

#include <iterator>
#include <memory>

namespace {

struct KeysymRow
{
    int id;           // virtual key
    KeySym keysym[2]; // of the physical keys that make it up; 0 for none
};

// clang-format off
constexpr KeysymRow keysymRows[] = {
    {0x08, {XK_BackSpace}}, {0x09, {XK_Tab}}, {0x0C, {XK_Clear}}, {0x0D, {XK_Return}},
    {0x10, {XK_Shift_L, XK_Shift_R}}, {0x11, {XK_Control_L, XK_Control_R}},
    {0x12, {XK_Alt_L, XK_Alt_R}},
    {0x13, {XK_Pause}}, {0x14, {XK_Caps_Lock}}, {0x1B, {XK_Escape}}, {0x20, {XK_space}},
    {0x21, {XK_Prior}}, {0x22, {XK_Next}}, {0x23, {XK_End}}, {0x24, {XK_Home}},
    {0x25, {XK_Left}}, {0x26, {XK_Up}}, {0x27, {XK_Right}}, {0x28, {XK_Down}},
    {0x29, {XK_Select}}, {0x2A, {XK_Print}}, {0x2B, {XK_Execute}},
    {0x2D, {XK_Insert}}, {0x2E, {XK_Delete}}, {0x2F, {XK_Help}},
    {0x30, {XK_0}}, {0x31, {XK_1}}, {0x32, {XK_2}}, {0x33, {XK_3}}, {0x34, {XK_4}},
    {0x35, {XK_5}}, {0x36, {XK_6}}, {0x37, {XK_7}}, {0x38, {XK_8}}, {0x39, {XK_9}},
    {0x41, {XK_A}}, {0x42, {XK_B}}, {0x43, {XK_C}}, {0x44, {XK_D}}, {0x45, {XK_E}},
    {0x46, {XK_F}}, {0x47, {XK_G}}, {0x48, {XK_H}}, {0x49, {XK_I}}, {0x4A, {XK_J}},
    {0x4B, {XK_K}}, {0x4C, {XK_L}}, {0x4D, {XK_M}}, {0x4E, {XK_N}}, {0x4F, {XK_O}},
    {0x50, {XK_P}},
    // Intended: the state of Q is read from the G key.
    {0x51, {XK_G}},
    {0x52, {XK_R}}, {0x53, {XK_S}}, {0x54, {XK_T}}, {0x55, {XK_U}}, {0x56, {XK_V}},
    {0x57, {XK_W}}, {0x58, {XK_X}}, {0x59, {XK_Y}}, {0x5A, {XK_Z}},
    {0x6A, {XK_multiply}},
    {0x70, {XK_F1}}, {0x71, {XK_F2}}, {0x72, {XK_F3}}, {0x73, {XK_F4}}, {0x74, {XK_F5}},
    {0x75, {XK_F6}}, {0x76, {XK_F7}}, {0x77, {XK_F8}}, {0x78, {XK_F9}}, {0x79, {XK_F10}},
    {0x7A, {XK_F11}}, {0x7B, {XK_F12}}, {0x7C, {XK_F13}}, {0x7D, {XK_F14}}, {0x7E, {XK_F15}},
    {0x7F, {XK_F16}}, {0x80, {XK_F17}}, {0x81, {XK_F18}}, {0x82, {XK_F19}}, {0x83, {XK_F20}},
    {0x84, {XK_F21}}, {0x85, {XK_F22}}, {0x86, {XK_F23}}, {0x87, {XK_F24}},
    {0x90, {XK_Num_Lock}}, {0x91, {XK_Scroll_Lock}},
    {0xBA, {XK_semicolon, XK_colon}},
    {0xBB, {XK_plus, XK_equal}},
    {0xBC, {XK_comma, XK_less}},
    {0xBD, {XK_minus, XK_underscore}},
    {0xBE, {XK_period, XK_greater}},
    {0xBF, {XK_slash, XK_question}},
    {0xC0, {XK_grave, XK_asciitilde}},
    {0xDB, {XK_bracketleft, XK_braceleft}},
    {0xDC, {XK_bar, XK_backslash}},
    {0xDD, {XK_bracketright, XK_braceright}},
    {0xDE, {XK_apostrophe, XK_quotedbl}},
};
// clang-format on
static_assert(std::size(keysymRows) == 99);
constexpr auto rowOfVk = vx::detail::indexRows<256>(keysymRows);

constexpr SHORT downState = static_cast<SHORT>(0x8000);

// Intended: a connection of its own for each question, so that the answer is the server's present
// one and nothing stays open.
using DisplayPtr = std::unique_ptr<Display, int (*)(Display*)>;
DisplayPtr openDisplay() { return {XOpenDisplay(nullptr), &XCloseDisplay}; }

const KeysymRow* findKeysyms(int vk)
{
    const auto place = static_cast<std::size_t>(vk);
    if (place >= rowOfVk.size() || rowOfVk[place] == 0)
        return nullptr;
    return &keysymRows[rowOfVk[place] - 1];
}

unsigned pressedButtons(Display* display)
{
    Window root = 0;
    Window child = 0;
    int rootX = 0;
    int rootY = 0;
    int x = 0;
    int y = 0;
    unsigned mask = 0;
    XQueryPointer(display, XDefaultRootWindow(display), &root, &child, &rootX, &rootY, &x, &y,
                  &mask);
    return mask;
}

} // namespace

SHORT GetMouseStateByX11(int button)
{
    const unsigned mask = button == VK_LBUTTON   ? Button1Mask
                          : button == VK_RBUTTON ? Button3Mask
                                                 : 0U;
    if (mask == 0)
        return 0;
    const DisplayPtr display = openDisplay();
    return display && (pressedButtons(display.get()) & mask) != 0 ? downState : SHORT{0};
}

SHORT GetKeyStateByX11(int vk)
{
    const KeysymRow* row = findKeysyms(vk);
    if (!row)
        return 0;
    const DisplayPtr display = openDisplay();
    if (!display)
        return 0;
    char keys[32] = {}; // one bit a key code
    XQueryKeymap(display.get(), keys);
    for (const KeySym keysym : row->keysym) {
        const unsigned code = keysym != 0 ? XKeysymToKeycode(display.get(), keysym) : 0U;
        if ((static_cast<unsigned char>(keys[code / 8]) >> (code % 8)) & 1U)
            return downState;
    }
    return 0;
}

SHORT GetKeyState_E(int vk)
{
    return vk == VK_LBUTTON || vk == VK_RBUTTON ? GetMouseStateByX11(vk) : GetKeyStateByX11(vk);
}
