// Message functions and keyboard hooks, which see the events of the host's main windows.
#include "support/test.h"

// The host's windows are told by the names of their classes.
class CTolmView : public QWidget
{
    Q_OBJECT
};
class VxQtCommandBar : public QWidget
{
    Q_OBJECT
};
class CTolmViewChild : public CTolmView
{
    Q_OBJECT
};

namespace {

QStringList g_calls;
std::function<void(char)> g_act; // what each of them does, told its letter
tagMSG g_last;

/// Hooks and message functions, told apart by letters.
template <char Name, LRESULT Result>
LRESULT hook(int nCode, WPARAM wParam, LPARAM lParam)
{
    g_calls << "%1 %2 %3"_q.arg(QLatin1Char(Name)).arg(wParam, 0, 16).arg(lParam, 0, 16);
    g_act(Name);
    return nCode + Result;
}
template <char Name, bool Takes>
bool function(tagMSG* pMsg)
{
    g_last = *pMsg;
    g_calls << "%1 %2"_q.arg(QLatin1Char(Name)).arg(pMsg->message, 0, 16);
    g_act(Name);
    return Takes;
}
constexpr HOOKPROC kHookA = hook<'A', 0>, kHookB = hook<'B', -1>, kHookTaking = hook<'T', 1>;
constexpr VxWinMsgFn kFnSees = function<'s', false>, kFnTakes = function<'t', true>;

struct HooksTest : testing::Test
{
    HooksTest()
    {
        g_calls.clear();
        g_act = [](char) {};
        QKeyEvent reset(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier);
        IsRepeatFilterKeyEvent(&reset); // what the tests send is never a repeat
    }
    ~HooksTest() override
    {
        removeAll();
        EXPECT_TRUE(GetGlobalEventHandler()->IsEmptyHookChain());
    }
    static void removeAll()
    {
        for (const HOOKPROC proc : {kHookA, kHookB, kHookTaking})
            UnhookWindowsHookEx_E(proc);
        RemoveWinMsgFn(kFnSees);
        RemoveWinMsgFn(kFnTakes);
    }
    /// Sends a key; whether the widget itself did not get it.
    static bool send(QWidget& widget, QEvent::Type type, int key,
                     Qt::KeyboardModifiers modifiers = {})
    {
        QKeyEvent e(type, key, modifiers);
        return QCoreApplication::sendEvent(&widget, &e) && e.isAccepted();
    }
    static std::string take() { return std::exchange(g_calls, {}).join(", "_q).toStdString(); }

    CTolmView m_view;
};

TEST_F(HooksTest, HooksAreCalledFromTheLastToTheFirstBeforeTheMessageFunctions)
{
    AppendWinMsgFn(kFnSees);
    AppendWinMsgFn(kFnTakes);
    EXPECT_EQ(SetWindowsHookEx_E(WH_KEYBOARD, kHookA), kHookA);
    EXPECT_EQ(SetWindowsHookEx_E(WH_KEYBOARD, kHookB), kHookB);
    EXPECT_TRUE(send(m_view, QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier));
    EXPECT_EQ(take(), "B 41 40001, A 41 40001, s 100, t 100");
    EXPECT_TRUE(g_last.hwnd == &m_view && g_last.time > 1600000000U);
    send(m_view, QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier);
    EXPECT_EQ(take(), "s 100, t 100") << "a held key reaches the hooks once";
    SetWindowsHookEx_E(WH_KEYBOARD, kHookTaking);
    EXPECT_TRUE(send(m_view, QEvent::KeyRelease, Qt::Key_A));
    EXPECT_EQ(take(), "T 41 80000001");
    EXPECT_TRUE(UnhookWindowsHookEx_E(kHookTaking));
    EXPECT_FALSE(UnhookWindowsHookEx_E(kHookTaking) || CallNextHookEx_E(kHookA, 0, 1, 1));
}

TEST_F(HooksTest, OnlyKeyboardHooksTheHostsOwnClassesAndEventsThatSaySomethingCount)
{
    AppendWinMsgFn(nullptr);
    EXPECT_FALSE(SetWindowsHookEx_E(WH_MOUSE, kHookTaking) ||
                 SetWindowsHookEx_E(WH_KEYBOARD, nullptr) || UnhookWindowsHookEx_E(nullptr));
    EXPECT_TRUE(GetGlobalEventHandler()->IsEmptyHookChain());

    AppendWinMsgFn(kFnTakes);
    VxQtCommandBar bar;
    CTolmViewChild derived;
    QWidget other;
    const auto press = [](QWidget& widget) { return send(widget, QEvent::KeyPress, Qt::Key_C); };
    EXPECT_TRUE(press(m_view) && press(bar));
    EXPECT_FALSE(press(derived) || press(other));
    take();
    // Of those that have a message, the first three are left out.
    for (const auto type : {QEvent::Leave, QEvent::Paint, QEvent::WindowActivate, QEvent::Close}) {
        QEvent e(type);
        EXPECT_EQ(GetGlobalEventHandler()->eventFilter(&m_view, &e), type == QEvent::Close);
    }
    EXPECT_EQ(take(), "t 10");
}

TEST_F(HooksTest, WhatIsRemovedInACallIsNotCalledAnyMoreAndNothingIsForADeletedWindow)
{
    // who acts, whether it deletes the window
    const Row<char, bool, const char*> rows[] = {{'B', false, "B 45 1, s 100"},
                                                 {'s', false, "B 46 1, A 46 1, s 100"},
                                                 {'B', true, "B 47 1"},
                                                 {'s', true, "B 48 1, A 48 1, s 100"}};
    int key = Qt::Key_E;
    for (const auto& [who, deletes, calls] : rows) {
        auto view = std::make_unique<CTolmView>();
        g_act = [&view, who = who, deletes = deletes](char name) {
            if (name == who && deletes)
                view.reset();
            else if (name == who) {
                UnhookWindowsHookEx_E(kHookA);
                RemoveWinMsgFn(kFnTakes);
            }
        };
        SetWindowsHookEx_E(WH_KEYBOARD, kHookA);
        SetWindowsHookEx_E(WH_KEYBOARD, kHookB);
        AppendWinMsgFn(kFnSees);
        AppendWinMsgFn(kFnTakes);
        send(*view, QEvent::KeyPress, key++);
        EXPECT_EQ(take(), calls);
        removeAll();
    }
}

/// Takes every key before a filter that was installed earlier sees it.
struct KeyEater : QObject
{
    bool eventFilter(QObject*, QEvent* e) override { return e->type() == QEvent::KeyPress; }
};

TEST_F(HooksTest, OneMoreFunctionDoesNotMoveTheFilterBeforeThoseOfOthers)
{
    AppendWinMsgFn(kFnSees);
    KeyEater eater;
    qApp->installEventFilter(&eater);
    AppendWinMsgFn(kFnTakes);
    EXPECT_TRUE(send(m_view, QEvent::KeyPress, Qt::Key_G));
    EXPECT_EQ(take(), "");
}

} // namespace

#include "hooks_test.moc"
