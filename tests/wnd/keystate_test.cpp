#include "support/test.h"
#include "support/xinput.h"

#include <X11/keysym.h>

namespace {

// Keys that every PC keyboard layout has: first virtual key, count, first key symbol.
using KeyRange = Row<int, int, unsigned long>;
const KeyRange keyRanges[] = {
    {0x0D, 1, XK_Return}, {0x10, 1, XK_Shift_L},  {0x10, 1, XK_Shift_R}, {0x11, 1, XK_Control_R},
    {0x12, 1, XK_Alt_L},  {0x1B, 1, XK_Escape},   {0x20, 1, XK_space},   {0x25, 4, XK_Left},
    {0x2E, 1, XK_Delete}, {0x30, 10, XK_0},       {0x41, 16, XK_A},      {0x52, 9, XK_R},
    {0x70, 12, XK_F1},    {0xBA, 1, XK_semicolon}};

unsigned state(int vk) { return static_cast<unsigned short>(GetKeyState_E(vk)); }

/// Keeps a key down for the length of a scope.
struct HeldKey
{
    explicit HeldKey(unsigned long keysym) : m_keysym(keysym) { vxtest::setKey(m_keysym, true); }
    Q_DISABLE_COPY_MOVE(HeldKey)
    ~HeldKey() { vxtest::setKey(m_keysym, false); }

    const unsigned long m_keysym;
};

TEST(KeyState, FollowsRealKeysAndNoToggle)
{
    VXTEST_NEEDS_X11();
    forRows(keyRanges, [](int first, int count, unsigned long keysym) {
        for (int vk = first; vk < first + count; ++vk, ++keysym) {
            EXPECT_EQ(state(vk), 0U) << vk;
            const HeldKey held(keysym);
            EXPECT_EQ(state(vk), 0x8000U) << vk;
            EXPECT_LT(GetKeyStateByX11(vk), 0) << vk;
        }
    });
    vxtest::typeKey(XK_Caps_Lock);
    EXPECT_EQ(state(VK_CAPITAL), 0U);
    vxtest::typeKey(XK_Caps_Lock);
    // Intended: the state of Q is read from the G key.
    const HeldKey held(XK_G);
    for (int vk = -1; vk < 300; ++vk)
        EXPECT_EQ(state(vk), vk == 'G' || vk == 'Q' ? 0x8000U : 0U) << vk;
}

TEST(KeyState, FollowsTheLeftAndRightButtonWhileThereIsADisplay)
{
    VXTEST_NEEDS_X11();
    for (unsigned button = 1; button <= 3; ++button) {
        vxtest::setButton(button, true);
        EXPECT_EQ(state(VK_LBUTTON), button == 1 ? 0x8000U : 0U);
        EXPECT_EQ(state(VK_RBUTTON), button == 3 ? 0x8000U : 0U);
        EXPECT_EQ(GetMouseStateByX11(1) < 0, button == 1);
        EXPECT_EQ(GetMouseStateByX11(2) < 0, button == 3);
        EXPECT_FALSE(GetMouseStateByX11(3) || GetMouseStateByX11(0) ||
                     GetKeyStateByX11(VK_LBUTTON));
        vxtest::setButton(button, false);
    }
    EXPECT_FALSE(state(VK_LBUTTON) || state(VK_RBUTTON));

    // Without a display everything is up.
    const QByteArray display = qgetenv("DISPLAY");
    vxtest::setButton(1, true);
    const HeldKey held(XK_A);
    qputenv("DISPLAY", ":64999");
    EXPECT_FALSE(state('A') || state(VK_LBUTTON));
    qputenv("DISPLAY", display);
    vxtest::setButton(1, false);
}

} // namespace
