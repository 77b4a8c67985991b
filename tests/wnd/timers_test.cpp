// Timers with their process-wide ids, and what an update handler does to a command.
#include "support/test.h"

namespace {

class TickingWnd : public CWnd_E
{
public:
    explicit TickingWnd(std::function<void(TickingWnd&, UINT_PTR)> onTick)
        : m_onTick(std::move(onTick))
    {
        SubclassWindow(new QWidget);
    }
    void OnTimer(UINT_PTR id) { m_onTick(*this, id); }

protected:
    void OnMessageMap() override
    {
        using ThisClass_E = TickingWnd;
        CWnd_E::OnMessageMap();
        ON_WM_TIMER_E()
    }

private:
    std::function<void(TickingWnd&, UINT_PTR)> m_onTick;
};

struct TimerTest : testing::Test
{
    std::vector<UINT_PTR> ticks;
    TickingWnd wnd{[this](TickingWnd&, UINT_PTR id) { ticks.push_back(id); }};
    QPointer<QWidget> widget = wnd.GetSafeHwnd();

    ~TimerTest() override { delete widget; }
    bool waitForTicks(std::size_t n)
    {
        return vxtest::waitUntil([this, n] { return ticks.size() >= n; });
    }
    QTimer* timer() const { return widget->findChild<QTimer*>(); }
};

TEST_F(TimerTest, TicksAtItsIntervalUntilItIsKilled)
{
    QElapsedTimer elapsed;
    elapsed.start();
    EXPECT_EQ(wnd.SetTimer(5, 40), 5U);
    ASSERT_TRUE(waitForTicks(3));
    EXPECT_GE(elapsed.elapsed(), 3 * 40 - 10); // Qt's coarse timers may be early by a twentieth
    EXPECT_LT(elapsed.elapsed(), 2000);
    EXPECT_EQ(ticks, (std::vector<UINT_PTR>{5, 5, 5}));
    EXPECT_TRUE(wnd.KillTimer(5));
    EXPECT_FALSE(wnd.KillTimer(5));
    EXPECT_FALSE(timer());
    SetTimer_E(widget, 6, 0, nullptr);
    EXPECT_EQ(timer()->interval(), 10);
    SetTimer_E(widget, 7, 0xFFFFFFFF, nullptr); // longer than Qt knows
    EXPECT_TRUE(KillTimer_E(nullptr, 7) && KillTimer_E(nullptr, 6));
}

// Intended: an id belongs to the process, and the first window keeps it.
TEST_F(TimerTest, WindowsShareAnId)
{
    TickingWnd other([](TickingWnd&, UINT_PTR) { FAIL() << "the timer is another window's"; });
    const std::unique_ptr<QWidget> otherWidget(other.GetSafeHwnd());
    SetTimer_E(widget, 5, 5000, nullptr);
    QTimer* const first = timer();
    EXPECT_EQ(SetTimer_E(otherWidget.get(), 5, 1, nullptr), 5U);
    EXPECT_EQ(timer(), first);
    EXPECT_TRUE(waitForTicks(1));
    first->stop(); // dropped when it is set again, and left with its window
    SetTimer_E(widget, 5, 1, nullptr);
    EXPECT_EQ(widget->findChildren<QTimer*>().size(), 2);
    EXPECT_TRUE(KillTimer_E(otherWidget.get(), 5));
    EXPECT_FALSE(first->isActive());
}

TEST_F(TimerTest, WhatATickMayDo)
{
    using Tick = std::function<void(TickingWnd&, UINT_PTR)>;
    const Row<const char*, Tick> rows[] = {
        {"kill", [](TickingWnd& w, UINT_PTR id) { w.KillTimer(id); }},
        {"delete the widget", [](TickingWnd& w, UINT_PTR) { delete w.GetSafeHwnd(); }},
        {"destroy", [](TickingWnd& w, UINT_PTR) { w.DestroyWindow(); }},
        {"delete the timer",
         [](TickingWnd& w, UINT_PTR) { delete w.GetSafeHwnd()->findChild<QTimer*>(); }},
    };
    for (const auto& [name, act] : rows) {
        SCOPED_TRACE(name);
        int count = 0;
        TickingWnd ticking(
            [&count, act = act](TickingWnd& w, UINT_PTR id) { ++count, act(w, id); });
        const QPointer<QWidget> guard = ticking.GetSafeHwnd();
        ticking.SetTimer(5, 1);
        EXPECT_TRUE(vxtest::waitUntil([&] { return count > 0; }));
        vxtest::deliverPosted();
        delete guard;
        EXPECT_FALSE(KillTimer_E(nullptr, 5)); // nothing is left of it
    }
}

TEST_F(TimerTest, EndsWithItsWindow)
{
    SetTimer_E(widget, 1, 1000, nullptr);
    SetTimer_E(new QWidget(widget), 2, 1000, nullptr);
    delete widget;
    EXPECT_FALSE(KillTimer_E(nullptr, 1) || KillTimer_E(nullptr, 2));
}

// Intended: the search for a foreign timer gives -1, which is an id like any other.
TEST_F(TimerTest, AForeignTimerEndsTheOneWithIdMinusOne)
{
    SetTimer_E(nullptr, 0xFFFFFFFF, 1000, nullptr);
    SetTimer_E(widget, 1, 1000, nullptr);
    new QTimer(widget);
    delete widget;
    EXPECT_FALSE(KillTimer_E(nullptr, 0xFFFFFFFF));
}

TEST_F(TimerTest, AThousandAtOnce)
{
    for (UINT_PTR id = 1; id <= 1000; ++id)
        wnd.SetTimer(id, 1);
    EXPECT_TRUE(vxtest::waitUntil(
        [this] { return std::set<UINT_PTR>(ticks.begin(), ticks.end()).size() == 1000; }));
    delete widget;
    EXPECT_FALSE(KillTimer_E(nullptr, 500));
}

std::tuple<QWidget*, UINT, UINT_PTR, DWORD> g_call;

TEST_F(TimerTest, CallsAProcedureInstead)
{
    const auto proc = [](QWidget* w, UINT message, UINT_PTR id, DWORD time) {
        g_call = {w, message, id, time};
    };
    SetTimer_E(widget, 9, 1, proc);
    EXPECT_TRUE(vxtest::waitUntil([] { return std::get<2>(g_call) == 9; }));
    KillTimer_E(nullptr, 9);
    EXPECT_EQ(std::get<0>(g_call), widget);
    EXPECT_EQ(std::get<1>(g_call), WM_TIMER);
    EXPECT_NEAR(std::get<3>(g_call), static_cast<double>(QDateTime::currentSecsSinceEpoch()), 2);
    EXPECT_TRUE(ticks.empty());
    SetTimer_E(nullptr, 10, 1, proc); // there is no main frame here
    EXPECT_TRUE(vxtest::waitUntil([] { return std::get<2>(g_call) == 10; }));
    EXPECT_FALSE(std::get<0>(g_call));
    KillTimer_E(nullptr, 10);
}

TEST(CmdUITest, SetsActionsAndButtons)
{
    QAction action(nullptr);
    QPushButton button;
    action.setCheckable(true);
    button.setCheckable(true);
    QObject neither;
    for (QObject* object : {static_cast<QObject*>(&action), static_cast<QObject*>(&button),
                            &neither, static_cast<QObject*>(nullptr)}) {
        CCmdUI_E ui(object);
        // Intended: only 1 enables and checks.
        for (const int value : {1, 0, 1, 2}) {
            ui.Enable(value);
            ui.SetCheck(value);
            if (object && object != &neither) {
                EXPECT_EQ(object->property("enabled").toBool(), value == 1) << value;
                EXPECT_EQ(object->property("checked").toBool(), value == 1) << value;
            }
        }
        ui.SetText(L"图层");
    }
    EXPECT_EQ(action.text(), "图层"_q);
    EXPECT_EQ(button.text(), "图层"_q);
}

} // namespace
