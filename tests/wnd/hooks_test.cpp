// Message functions and keyboard hooks, which see the events of the host's main windows.
#include "support/test.h"

// The host's windows are told by the names of their classes.
class CTolmView : public QWidget
{
    Q_OBJECT
};
class CTolmMainFrame : public QWidget
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
QWidget* g_victim; // what a procedure deletes
tagMSG g_last;

LRESULT note(const char* name, WPARAM wParam, LPARAM lParam, LRESULT result)
{
    g_calls << "%1 %2 %3"_q.arg(QLatin1String(name)).arg(wParam, 0, 16).arg(lParam, 0, 16);
    return result;
}
LRESULT hookA(int, WPARAM w, LPARAM l) { return note("A", w, l, 0); }
LRESULT hookB(int, WPARAM w, LPARAM l) { return note("B", w, l, -1); }
LRESULT hookTaking(int nCode, WPARAM w, LPARAM l) { return note("taking", w, l, nCode + 1); }
LRESULT hookRemoving(int, WPARAM w, LPARAM l)
{
    UnhookWindowsHookEx_E(&hookRemoving);
    UnhookWindowsHookEx_E(&hookA);
    return note("removing", w, l, 0);
}
LRESULT hookDeleting(int, WPARAM w, LPARAM l)
{
    delete g_victim;
    return note("deleting", w, l, 0);
}
bool noteFn(const char* name, tagMSG* pMsg, bool result)
{
    g_last = *pMsg;
    g_calls << "%1 %2"_q.arg(QLatin1String(name)).arg(pMsg->message, 0, 16);
    return result;
}
bool fnSees(tagMSG* pMsg) { return noteFn("sees", pMsg, false); }
bool fnTakes(tagMSG* pMsg) { return noteFn("takes", pMsg, true); }
bool fnRemoves(tagMSG* pMsg)
{
    RemoveWinMsgFn(&fnSees);
    return noteFn("removes", pMsg, false);
}
bool fnDeletes(tagMSG* pMsg)
{
    delete g_victim;
    return noteFn("deletes", pMsg, false);
}

class HooksTest : public testing::Test
{
protected:
    void SetUp() override
    {
        g_calls.clear();
        send(m_other, QEvent::KeyRelease, Qt::Key_unknown); // never a repeat of what the tests send
        QKeyEvent reset(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier);
        IsRepeatFilterKeyEvent(&reset);
    }
    void TearDown() override
    {
        for (const HOOKPROC proc : {&hookA, &hookB, &hookTaking, &hookRemoving, &hookDeleting})
            UnhookWindowsHookEx_E(proc);
        for (const VxWinMsgFn fn : {&fnSees, &fnTakes, &fnRemoves, &fnDeletes})
            RemoveWinMsgFn(fn);
        EXPECT_TRUE(GetGlobalEventHandler()->IsEmptyHookChain());
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
    QWidget m_other;
};

TEST_F(HooksTest, HooksAreCalledFromTheLastToTheFirstBeforeTheMessageFunctions)
{
    AppendWinMsgFn(&fnSees);
    AppendWinMsgFn(&fnTakes);
    EXPECT_EQ(SetWindowsHookEx_E(WH_KEYBOARD, &hookA), &hookA);
    EXPECT_EQ(SetWindowsHookEx_E(WH_KEYBOARD, &hookB), &hookB);
    EXPECT_TRUE(send(m_view, QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier));
    EXPECT_EQ(take(), "B 41 40001, A 41 40001, sees 100, takes 100");
    EXPECT_EQ(g_last.hwnd, &m_view);
    EXPECT_GT(g_last.time, 1600000000U);
    SetWindowsHookEx_E(WH_KEYBOARD, &hookTaking);
    EXPECT_TRUE(send(m_view, QEvent::KeyRelease, Qt::Key_A));
    EXPECT_EQ(take(), "taking 41 80000001");
    EXPECT_TRUE(UnhookWindowsHookEx_E(&hookTaking));
    EXPECT_FALSE(UnhookWindowsHookEx_E(&hookTaking));
    EXPECT_EQ(CallNextHookEx_E(&hookA, 0, 1, 1), 0);
}

TEST_F(HooksTest, AHeldKeyReachesTheHooksOnceAndTheMessageFunctionsAlways)
{
    AppendWinMsgFn(&fnSees);
    SetWindowsHookEx_E(WH_KEYBOARD, &hookA);
    for (int i = 0; i < 3; ++i)
        send(m_view, QEvent::KeyPress, Qt::Key_B);
    EXPECT_EQ(take(), "A 42 1, sees 100, sees 100, sees 100");
    send(m_view, QEvent::KeyRelease, Qt::Key_B);
    send(m_view, QEvent::KeyPress, Qt::Key_B);
    EXPECT_EQ(take(), "A 42 80000001, sees 101, A 42 1, sees 100");
}

TEST_F(HooksTest, OnlyTheHostsOwnClassesCount)
{
    AppendWinMsgFn(&fnTakes);
    CTolmMainFrame frame;
    VxQtCommandBar bar;
    CTolmViewChild derived;
    const Row<QWidget*, bool> rows[] = {
        {&m_view, true}, {&frame, true}, {&bar, true}, {&derived, false}, {&m_other, false}};
    for (const auto& [widget, seen] : rows)
        EXPECT_EQ(send(*widget, QEvent::KeyPress, Qt::Key_C), seen)
            << widget->metaObject()->className();
}

TEST_F(HooksTest, EventsThatSayNothingToTheHostAreIgnored)
{
    AppendWinMsgFn(&fnTakes);
    VxWinMsgEvent message(WM_APP, 0, 0);
    EXPECT_FALSE(GetGlobalEventHandler()->eventFilter(&m_view, &message));
    for (const int type : {11, 12, 14, 24, 25, 26, 103, 104, 127, 128, int(QEvent::User)}) {
        QEvent e(static_cast<QEvent::Type>(type));
        EXPECT_FALSE(GetGlobalEventHandler()->eventFilter(&m_view, &e)) << type;
    }
    EXPECT_EQ(take(), "");
    QEvent close(QEvent::Close);
    EXPECT_TRUE(GetGlobalEventHandler()->eventFilter(&m_view, &close));
    EXPECT_EQ(take(), "takes 10");
}

TEST_F(HooksTest, OnlyKeyboardHooksAreKnown)
{
    for (const int id : {WH_MOUSE, WH_GETMESSAGE, WH_CALLWNDPROC, WH_CBT, 0, -1})
        EXPECT_EQ(SetWindowsHookEx_E(id, &hookTaking), nullptr) << id;
    EXPECT_EQ(SetWindowsHookEx_E(WH_KEYBOARD, nullptr), nullptr);
    AppendWinMsgFn(nullptr);
    EXPECT_FALSE(UnhookWindowsHookEx_E(nullptr));
    EXPECT_TRUE(GetGlobalEventHandler()->IsEmptyHookChain());
    EXPECT_FALSE(send(m_view, QEvent::KeyPress, Qt::Key_D));
    EXPECT_EQ(take(), "");
}

TEST_F(HooksTest, WhatIsRemovedInACallIsNotCalledAnyMore)
{
    SetWindowsHookEx_E(WH_KEYBOARD, &hookA);
    SetWindowsHookEx_E(WH_KEYBOARD, &hookRemoving);
    AppendWinMsgFn(&fnRemoves);
    AppendWinMsgFn(&fnSees);
    send(m_view, QEvent::KeyPress, Qt::Key_E);
    EXPECT_EQ(take(), "removing 45 1, removes 100");
}

TEST_F(HooksTest, AWindowDeletedInACallGetsNothingMore)
{
    for (const bool inHook : {true, false}) {
        auto* const view = new CTolmView;
        g_victim = view;
        if (inHook)
            SetWindowsHookEx_E(WH_KEYBOARD, &hookDeleting);
        else
            AppendWinMsgFn(&fnDeletes);
        AppendWinMsgFn(&fnSees);
        send(*view, QEvent::KeyPress, Qt::Key_F);
        EXPECT_EQ(take(), inHook ? "deleting 46 1" : "deletes 100");
        TearDown();
        SetUp();
    }
}

/// Takes every key before a filter that was installed earlier sees it.
class KeyEater : public QObject
{
    bool eventFilter(QObject*, QEvent* e) override { return e->type() == QEvent::KeyPress; }
};

TEST_F(HooksTest, OneMoreFunctionDoesNotMoveTheFilterBeforeThoseOfOthers)
{
    AppendWinMsgFn(&fnSees);
    KeyEater eater;
    qApp->installEventFilter(&eater);
    AppendWinMsgFn(&fnTakes);
    EXPECT_TRUE(send(m_view, QEvent::KeyPress, Qt::Key_G));
    EXPECT_EQ(take(), "");
}

} // namespace

#include "hooks_test.moc"
