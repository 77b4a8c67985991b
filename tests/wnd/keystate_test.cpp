#include "support/test.h"
#include "support/xinput.h"

#include <X11/keysym.h>

namespace {

// The keys that every PC keyboard layout has: first virtual key, count, first key symbol.
using KeyRange = Row<int, int, unsigned long>;
const KeyRange keyRanges[] = {
    {0x08, 2, XK_BackSpace},   {0x0D, 1, XK_Return},       {0x10, 1, XK_Shift_L},
    {0x10, 1, XK_Shift_R},     {0x11, 1, XK_Control_L},    {0x11, 1, XK_Control_R},
    {0x12, 1, XK_Alt_L},       {0x12, 1, XK_Alt_R},        {0x13, 1, XK_Pause},
    {0x1B, 1, XK_Escape},      {0x20, 1, XK_space},        {0x21, 2, XK_Prior},
    {0x23, 1, XK_End},         {0x24, 1, XK_Home},         {0x25, 4, XK_Left},
    {0x2A, 1, XK_Print},       {0x2D, 1, XK_Insert},       {0x2E, 1, XK_Delete},
    {0x30, 10, XK_0},          {0x41, 16, XK_A},           {0x52, 9, XK_R},
    {0x70, 12, XK_F1},         {0xBA, 1, XK_semicolon},    {0xBA, 1, XK_colon},
    {0xBB, 1, XK_plus},        {0xBB, 1, XK_equal},        {0xBC, 1, XK_comma},
    {0xBC, 1, XK_less},        {0xBD, 1, XK_minus},        {0xBD, 1, XK_underscore},
    {0xBE, 1, XK_period},      {0xBE, 1, XK_greater},      {0xBF, 1, XK_slash},
    {0xBF, 1, XK_question},    {0xC0, 1, XK_grave},        {0xC0, 1, XK_asciitilde},
    {0xDB, 1, XK_bracketleft}, {0xDB, 1, XK_braceleft},    {0xDC, 1, XK_backslash},
    {0xDC, 1, XK_bar},         {0xDD, 1, XK_bracketright}, {0xDD, 1, XK_braceright},
    {0xDE, 1, XK_apostrophe},  {0xDE, 1, XK_quotedbl}};

unsigned state(int vk) { return static_cast<unsigned short>(GetKeyState_E(vk)); }

/// Keeps a key down for the length of a scope.
class HeldKey
{
public:
    explicit HeldKey(unsigned long keysym) : m_keysym(keysym) { vxtest::setKey(m_keysym, true); }
    Q_DISABLE_COPY_MOVE(HeldKey)
    ~HeldKey() { vxtest::setKey(m_keysym, false); }

private:
    unsigned long m_keysym;
};

TEST(KeyState, FollowsRealKeys)
{
    VXTEST_NEEDS_X11();
    for (const auto& [first, count, keysym] : keyRanges) {
        for (int i = 0; i < count; ++i) {
            const int vk = first + i;
            EXPECT_EQ(state(vk), 0U) << vk;
            {
                const HeldKey held(keysym + static_cast<unsigned>(i));
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
