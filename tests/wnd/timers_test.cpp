// Timers with their process-wide ids, and what an update handler does to a command.
#include "support/test.h"

namespace {

using Tick = std::function<void(CWnd_E&, UINT_PTR)>;

struct TickingWnd : CWnd_E
{
    explicit TickingWnd(Tick onTick) : m_onTick(std::move(onTick)) { SubclassWindow(new QWidget); }
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override
    {
        if (message == WM_TIMER)
            m_onTick(*this, wParam);
        return message == WM_TIMER || CWnd_E::OnWndMsg(message, wParam, lParam, pResult);
    }

    const Tick m_onTick;
};

struct TimerTest : testing::Test
{
    std::vector<UINT_PTR> ticks;
    TickingWnd wnd{[this](CWnd_E&, UINT_PTR id) { ticks.push_back(id); }};
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
    EXPECT_EQ(ticks, (std::vector<UINT_PTR>{5, 5, 5}));
    EXPECT_TRUE(wnd.KillTimer(5) && !wnd.KillTimer(5) && !timer());
    SetTimer_E(widget, 6, 0, nullptr);
    EXPECT_EQ(timer()->interval(), 10);
    SetTimer_E(widget, 7, 0xFFFFFFFF, nullptr); // longer than Qt knows
    EXPECT_TRUE(KillTimer_E(nullptr, 7) && KillTimer_E(nullptr, 6));
}

// Intended: an id belongs to the process, and the first window keeps it.
TEST_F(TimerTest, WindowsShareAnId)
{
    QWidget other;
    SetTimer_E(widget, 5, 5000, nullptr);
    QTimer* const first = timer();
    EXPECT_EQ(SetTimer_E(&other, 5, 1, nullptr), 5U);
    EXPECT_TRUE(timer() == first && waitForTicks(1));
    first->stop(); // dropped when it is set again, and left with its window
    SetTimer_E(widget, 5, 1, nullptr);
    EXPECT_EQ(widget->findChildren<QTimer*>().size(), 2);
    EXPECT_TRUE(KillTimer_E(&other, 5));
    EXPECT_FALSE(first->isActive());
}

TEST_F(TimerTest, WhatATickMayDo)
{
    const Tick acts[] = {[](CWnd_E& w, UINT_PTR id) { w.KillTimer(id); },
                         [](CWnd_E& w, UINT_PTR) { delete w.GetSafeHwnd(); },
                         [](CWnd_E& w, UINT_PTR) { delete w.GetSafeHwnd()->findChild<QTimer*>(); }};
    for (const Tick& act : acts) {
        SCOPED_TRACE(&act - acts);
        int count = 0;
        TickingWnd ticking([&](CWnd_E& w, UINT_PTR id) { ++count, act(w, id); });
        const QPointer<QWidget> guard = ticking.GetSafeHwnd();
        ticking.SetTimer(5, 1);
        EXPECT_TRUE(vxtest::waitUntil([&] { return count > 0; }));
        vxtest::deliverPosted();
        delete guard;
        EXPECT_FALSE(KillTimer_E(nullptr, 5)); // nothing is left of it
    }
}

// Intended: the search for a foreign timer gives -1, which is an id like any other.
TEST_F(TimerTest, EndsWithItsWindowAndAForeignTimerThereEndsTheOneWithIdMinusOne)
{
    SetTimer_E(nullptr, 0xFFFFFFFF, 1000, nullptr);
    SetTimer_E(widget, 1, 1000, nullptr);
    SetTimer_E(new QWidget(widget), 2, 1000, nullptr);
    new QTimer(widget);
    delete widget;
    for (const UINT_PTR id : {UINT_PTR(1), UINT_PTR(2), UINT_PTR(0xFFFFFFFF)})
        EXPECT_FALSE(KillTimer_E(nullptr, id)) << id;
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
    EXPECT_TRUE(std::get<0>(g_call) == widget && std::get<1>(g_call) == WM_TIMER);
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
    CCmdUI_E(nullptr).SetText(L"nobody's");
    for (QObject* const object : std::initializer_list<QObject*>{&action, &button}) {
        CCmdUI_E ui(object);
        ui.SetText(L"图层");
        EXPECT_EQ(object->property("text"), "图层"_q);
        // Intended: only 1 enables and checks.
        for (const int value : {1, 0, 1, 2}) {
            ui.Enable(value);
            ui.SetCheck(value);
            EXPECT_TRUE(object->property("enabled") == (value == 1) &&
                        object->property("checked") == (value == 1));
        }
    }
}

} // namespace
