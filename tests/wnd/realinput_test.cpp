// Real keys, clicks, wheel turns, resizes and closes: through the X server to a window.
#include "support/test.h"
#include "support/xinput.h"

#include <X11/keysym.h>

namespace {

/// Notes the messages that come to its handlers, with their parameters.
struct InputWnd : CWnd_E
{
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override
    {
        static const std::map<UINT, const char*> names = {
            {WM_KEYDOWN, "down"},       {WM_KEYUP, "up"},           {WM_CHAR, "char"},
            {WM_SYSKEYDOWN, "sysdown"}, {WM_SYSKEYUP, "sysup"},     {WM_SYSCHAR, "syschar"},
            {WM_LBUTTONDOWN, "left"},   {WM_LBUTTONUP, "left up"},  {WM_LBUTTONDBLCLK, "double"},
            {WM_RBUTTONDOWN, "right"},  {WM_RBUTTONUP, "right up"}, {WM_MBUTTONDOWN, "middle"},
            {WM_MOUSEWHEEL, "wheel"},   {WM_MOUSEMOVE, "move"},     {WM_SIZE, "size"},
            {WM_CLOSE, "close"}};
        const auto name = names.find(message);
        if (name == names.end())
            return CWnd_E::OnWndMsg(message, wParam, lParam, pResult);
        m_seen
            << "%1 %2 %3"_q.arg(QLatin1String(name->second)).arg(wParam, 0, 16).arg(lParam, 0, 16);
        SetCurrentEventAccepted(message != WM_CLOSE);
        return TRUE;
    }

    QStringList m_seen;
};

struct RealInputTest : testing::Test
{
    void SetUp() override
    {
        VXTEST_NEEDS_X11();
        m_widget.setGeometry(40, 50, 200, 150);
        m_window.SubclassWindow(&m_widget);
        ASSERT_TRUE(vxtest::showAndActivate(&m_widget));
        vxtest::movePointer(&m_widget, {30, 40});
        ASSERT_TRUE(vxtest::waitUntil([this] { return m_widget.underMouse(); }));
        m_widget.setFocus();
        vxtest::deliverPosted();
        m_window.m_seen.clear();
    }
    /// Waits for what is expected, so that a failure shows what came instead.
    void expect(const char* lines)
    {
        const auto seen = [this] { return m_window.m_seen.join(QLatin1String(", ")); };
        vxtest::waitUntil([&] { return seen() == QLatin1String(lines); }, 2000);
        EXPECT_EQ(seen(), QLatin1String(lines));
        m_window.m_seen.clear();
    }

    QWidget m_widget;
    InputWnd m_window;
};

// A character follows its key through the event loop, so it may come after the release.
TEST_F(RealInputTest, KeysTheirCharactersAndModifiers)
{
    vxtest::setKey(XK_a, true);
    expect("down 41 1, char 61 1");
    vxtest::setKey(XK_a, false);
    expect("up 41 80000001");
    vxtest::typeKey(XK_F5);
    expect("down 74 1, up 74 80000001");
    vxtest::setKey(XK_Shift_L, true);
    vxtest::setKey(XK_a, true);
    expect("down 10 40001, down 41 40001, char 41 40001");
    vxtest::setKey(XK_a, false);
    vxtest::setKey(XK_Shift_L, false);
    expect("up 41 80040001, up 10 80000001");
    vxtest::setKey(XK_Alt_L, true);
    vxtest::setKey(XK_x, true);
    expect("sysdown 12 200001, sysdown 58 200001, syschar 78 200001");
    vxtest::setKey(XK_x, false);
    vxtest::setKey(XK_Alt_L, false);
    expect("sysup 58 80200001, up 12 80000001");
}

TEST_F(RealInputTest, ClicksTheWheelAResizeAndAClose)
{
    vxtest::setButton(1, true);
    vxtest::movePointer(&m_widget, {31, 42});
    vxtest::setButton(1, false);
    expect("left 1 28001e, move 1 2a001f, left up 0 2a001f");
    vxtest::clickButton(1);
    expect("double 1 2a001f, left up 0 2a001f");
    vxtest::clickButton(2);
    expect("middle 10 2a001f");
    vxtest::clickButton(3);
    expect("right 2 2a001f, right up 0 2a001f");
    vxtest::clickButton(4);
    vxtest::clickButton(5);
    expect("wheel 780000 2a001f, wheel ff880000 2a001f");

    vxtest::resizeWindow(m_widget.winId(), {320, 240});
    expect("size 0 f00140");
    vxtest::closeWindow(m_widget.winId());
    expect("close 0 0");
    EXPECT_TRUE(m_widget.isVisible()) << "the close was not accepted";
}

} // namespace
