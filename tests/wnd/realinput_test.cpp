// Real keys, clicks, wheel turns, resizes and closes: through the X server to a window's handlers.
#include "support/test.h"
#include "support/xinput.h"

#include <X11/keysym.h>

namespace {

class InputWnd : public CWnd_E
{
public:
    void OnKeyDown(UINT nChar, UINT nRep, UINT nFlags) { Note("down", {nChar, nRep, nFlags}); }
    void OnKeyUp(UINT nChar, UINT, UINT nFlags) { Note("up", {nChar, nFlags}); }
    void OnChar(UINT nChar, UINT, UINT nFlags) { Note("char", {nChar, nFlags}); }
    void OnSysKeyDown(UINT nChar, UINT, UINT nFlags) { Note("sysdown", {nChar, nFlags}); }
    void OnSysKeyUp(UINT nChar, UINT, UINT nFlags) { Note("sysup", {nChar, nFlags}); }
    void OnSysChar(UINT nChar, UINT, UINT nFlags) { Note("syschar", {nChar, nFlags}); }
    void OnLButtonDown(UINT nFlags, CPoint_E at) { Mouse("left", nFlags, at); }
    void OnLButtonUp(UINT nFlags, CPoint_E at) { Mouse("left up", nFlags, at); }
    void OnLButtonDblClk(UINT nFlags, CPoint_E at) { Mouse("left double", nFlags, at); }
    void OnRButtonDown(UINT nFlags, CPoint_E at) { Mouse("right", nFlags, at); }
    void OnRButtonUp(UINT nFlags, CPoint_E at) { Mouse("right up", nFlags, at); }
    void OnMButtonDown(UINT nFlags, CPoint_E at) { Mouse("middle", nFlags, at); }
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint_E at)
    {
        Mouse(zDelta > 0 ? "wheel up" : "wheel down", nFlags, at);
        return TRUE;
    }
    void OnMouseMove(UINT nFlags, CPoint_E at) { Mouse("move", nFlags, at); }
    void OnSize(UINT nType, int cx, int cy)
    {
        Note("size", {static_cast<UINT>(cx), static_cast<UINT>(cy)});
        CWnd_E::OnSize(nType, cx, cy);
    }
    void OnClose()
    {
        Note("close", {});
        SetCurrentEventAccepted(false);
    }

    QStringList m_seen;

protected:
    void OnMessageMap() override;

private:
    void Note(const char* name, std::initializer_list<UINT> values)
    {
        QString line = QLatin1String(name);
        for (const UINT value : values)
            line += " %1"_q.arg(value, 0, 16);
        m_seen << line;
    }
    void Mouse(const char* name, UINT nFlags, CPoint_E at)
    {
        Note(name, {nFlags, static_cast<UINT>(at.x), static_cast<UINT>(at.y)});
    }
};

BEGIN_MESSAGE_MAP_E(InputWnd, CWnd_E)
ON_WM_KEYDOWN_E()
ON_WM_KEYUP_E()
ON_WM_CHAR_E()
ON_WM_SYSKEYDOWN_E()
ON_WM_SYSKEYUP_E()
ON_WM_SYSCHAR_E()
ON_WM_LBUTTONDOWN_E()
ON_WM_LBUTTONUP_E()
ON_WM_LBUTTONDBLCLK_E()
ON_WM_RBUTTONDOWN_E()
ON_WM_RBUTTONUP_E()
ON_WM_MBUTTONDOWN_E()
ON_WM_MOUSEWHEEL_E()
ON_WM_MOUSEMOVE_E()
ON_WM_SIZE_E()
ON_WM_CLOSE_E()
END_MESSAGE_MAP_E()

class RealInputTest : public testing::Test
{
protected:
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
TEST_F(RealInputTest, KeysAndTheirCharacters)
{
    vxtest::setKey(XK_a, true);
    expect("down 41 1 0, char 61 0");
    vxtest::setKey(XK_a, false);
    expect("up 41 8000");
    vxtest::typeKey(XK_F5);
    expect("down 74 1 0, up 74 8000");
}

TEST_F(RealInputTest, ModifiersGoIntoTheFlags)
{
    vxtest::setKey(XK_Shift_L, true);
    vxtest::setKey(XK_a, true);
    expect("down 10 1 4, down 41 1 4, char 41 4");
    vxtest::setKey(XK_a, false);
    vxtest::setKey(XK_Shift_L, false);
    expect("up 41 8004, up 10 8000");
    vxtest::setKey(XK_Alt_L, true);
    vxtest::setKey(XK_x, true);
    expect("sysdown 12 20, sysdown 58 20, syschar 78 20");
    vxtest::setKey(XK_x, false);
    vxtest::setKey(XK_Alt_L, false);
    expect("sysup 58 8020, up 12 8000");
}

TEST_F(RealInputTest, ClicksAndTheWheel)
{
    vxtest::setButton(1, true);
    vxtest::movePointer(&m_widget, {31, 42});
    vxtest::setButton(1, false);
    expect("left 1 1e 28, move 1 1f 2a, left up 0 1f 2a");
    vxtest::clickButton(1);
    expect("left double 1 1f 2a, left up 0 1f 2a");
    vxtest::clickButton(2);
    expect("middle 10 1f 2a");
    vxtest::clickButton(3);
    expect("right 2 1f 2a, right up 0 1f 2a");
    vxtest::clickButton(4);
    vxtest::clickButton(5);
    expect("wheel up 0 1f 2a, wheel down 0 1f 2a");
}

TEST_F(RealInputTest, ResizeAndClose)
{
    vxtest::resizeWindow(m_widget.winId(), {320, 240});
    expect("size 140 f0");
    vxtest::closeWindow(m_widget.winId());
    expect("close");
    EXPECT_TRUE(m_widget.isVisible()) << "the handler did not accept the close";
}

} // namespace
