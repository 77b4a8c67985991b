#include "support/xinput.h"

#include <VxMFCEmu/wnd/input.h>

#include <QtCore/QByteArray>

#include <gtest/gtest.h>

#include <X11/keysym.h>

namespace {

struct KeyRange
{
    int line;
    int vk;
    int count;
    unsigned long keysym;
};

// The keys that every PC keyboard layout has.
// clang-format off
const KeyRange keyRanges[] = {
    {__LINE__, 0x08, 2, XK_BackSpace},  {__LINE__, 0x0D, 1, XK_Return},
    {__LINE__, 0x10, 1, XK_Shift_L},    {__LINE__, 0x10, 1, XK_Shift_R},
    {__LINE__, 0x11, 1, XK_Control_L},  {__LINE__, 0x11, 1, XK_Control_R},
    {__LINE__, 0x12, 1, XK_Alt_L},      {__LINE__, 0x12, 1, XK_Alt_R},
    {__LINE__, 0x13, 1, XK_Pause},      {__LINE__, 0x1B, 1, XK_Escape},
    {__LINE__, 0x20, 1, XK_space},      {__LINE__, 0x21, 2, XK_Prior},
    {__LINE__, 0x23, 1, XK_End},        {__LINE__, 0x24, 1, XK_Home},
    {__LINE__, 0x25, 4, XK_Left},       {__LINE__, 0x2A, 1, XK_Print},
    {__LINE__, 0x2D, 1, XK_Insert},     {__LINE__, 0x2E, 1, XK_Delete},
    {__LINE__, 0x30, 10, XK_0},         {__LINE__, 0x41, 16, XK_A},
    {__LINE__, 0x52, 9, XK_R},          {__LINE__, 0x70, 12, XK_F1},
    {__LINE__, 0xBA, 1, XK_semicolon},  {__LINE__, 0xBA, 1, XK_colon},
    {__LINE__, 0xBB, 1, XK_plus},       {__LINE__, 0xBB, 1, XK_equal},
    {__LINE__, 0xBC, 1, XK_comma},      {__LINE__, 0xBC, 1, XK_less},
    {__LINE__, 0xBD, 1, XK_minus},      {__LINE__, 0xBD, 1, XK_underscore},
    {__LINE__, 0xBE, 1, XK_period},     {__LINE__, 0xBE, 1, XK_greater},
    {__LINE__, 0xBF, 1, XK_slash},      {__LINE__, 0xBF, 1, XK_question},
    {__LINE__, 0xC0, 1, XK_grave},      {__LINE__, 0xC0, 1, XK_asciitilde},
    {__LINE__, 0xDB, 1, XK_bracketleft},  {__LINE__, 0xDB, 1, XK_braceleft},
    {__LINE__, 0xDC, 1, XK_backslash},    {__LINE__, 0xDC, 1, XK_bar},
    {__LINE__, 0xDD, 1, XK_bracketright}, {__LINE__, 0xDD, 1, XK_braceright},
    {__LINE__, 0xDE, 1, XK_apostrophe},   {__LINE__, 0xDE, 1, XK_quotedbl},
};
// clang-format on

unsigned state(int vk) { return static_cast<unsigned short>(GetKeyState_E(vk)); }

/// Keeps a key down for the length of a scope.
class HeldKey
{
public:
    explicit HeldKey(unsigned long keysym) : m_keysym(keysym) { vxtest::setKey(m_keysym, true); }
    ~HeldKey() { vxtest::setKey(m_keysym, false); }
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;

private:
    unsigned long m_keysym;
};

TEST(KeyState, FollowsRealKeys)
{
    VXTEST_NEEDS_X11();
    for (const KeyRange& range : keyRanges) {
        testing::ScopedTrace trace(__FILE__, range.line, "key");
        for (int i = 0; i < range.count; ++i) {
            const int vk = range.vk + i;
            EXPECT_EQ(state(vk), 0U) << vk;
            {
                const HeldKey held(range.keysym + static_cast<unsigned>(i));
                EXPECT_EQ(state(vk), 0x8000U) << vk;
                EXPECT_LT(GetKeyStateByX11(vk), 0) << vk;
            }
            EXPECT_EQ(state(vk), 0U) << vk;
        }
    }
}

TEST(KeyState, OfQIsReadFromTheGKey)
{
    VXTEST_NEEDS_X11();
    {
        const HeldKey held(XK_Q);
        EXPECT_EQ(state('Q'), 0U);
        EXPECT_EQ(state('G'), 0U);
    }
    const HeldKey held(XK_G);
    EXPECT_EQ(state('Q'), 0x8000U);
    EXPECT_EQ(state('G'), 0x8000U);
}

TEST(KeyState, ReportsNoToggleAndNoOtherKey)
{
    VXTEST_NEEDS_X11();
    vxtest::typeKey(XK_Caps_Lock);
    EXPECT_EQ(state(VK_CAPITAL), 0U);
    vxtest::typeKey(XK_Caps_Lock);
    const HeldKey held(XK_Print);
    for (int vk = -1; vk < 300; ++vk)
        EXPECT_EQ(state(vk), vk == VK_PRINT ? 0x8000U : 0U) << vk;
}

TEST(KeyState, FollowsTheLeftAndRightButton)
{
    VXTEST_NEEDS_X11();
    for (unsigned button = 1; button <= 3; ++button) {
        vxtest::setButton(button, true);
        EXPECT_EQ(state(VK_LBUTTON), button == 1 ? 0x8000U : 0U);
        EXPECT_EQ(state(VK_RBUTTON), button == 3 ? 0x8000U : 0U);
        EXPECT_EQ(state(VK_MBUTTON), 0U); // has no key and is no button here
        EXPECT_EQ(GetMouseStateByX11(1) < 0, button == 1);
        EXPECT_EQ(GetMouseStateByX11(2) < 0, button == 3);
        EXPECT_EQ(GetMouseStateByX11(3), 0);
        EXPECT_EQ(GetMouseStateByX11(0), 0);
        EXPECT_EQ(GetKeyStateByX11(VK_LBUTTON), 0);
        vxtest::setButton(button, false);
    }
    EXPECT_EQ(state(VK_LBUTTON), 0U);
    EXPECT_EQ(state(VK_RBUTTON), 0U);
}

TEST(KeyState, IsUpWithoutADisplay)
{
    const QByteArray display = qgetenv("DISPLAY");
    const bool onX11 = vxtest::onX11();
    if (onX11)
        vxtest::setKey(XK_A, true);
    qputenv("DISPLAY", ":64999");
    EXPECT_EQ(state('A'), 0U);
    EXPECT_EQ(state(VK_LBUTTON), 0U);
    if (display.isNull())
        qunsetenv("DISPLAY");
    else
        qputenv("DISPLAY", display);
    if (onX11)
        vxtest::setKey(XK_A, false);
}

} // namespace
