// Which messages reach a control, by which road, and which do not.
#include "controls.h"

namespace {

using namespace vxtest;

/// A window that takes one message of a class and one of no class itself.
template <typename Base>
class Own : public Base
{
public:
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override
    {
        if (message != PBM_SETPOS && message != WM_USER + 500)
            return Base::OnWndMsg(message, wParam, lParam, pResult);
        m_seen << message;
        *pResult = 99;
        return TRUE;
    }
    QList<UINT> m_seen;
};
using OwnProgress = Own<CProgressCtrl_E>;

template <typename Window>
CWnd_E* make()
{
    return new Window;
}

/// A widget that nothing is bound to, or a plain window, a control or one with handlers of its own.
struct MessagesTest : testing::TestWithParam<CWnd_E* (*)()>
{
    MessagesTest()
    {
        bar->setValue(1);
        if (window)
            window->SubclassWindow(bar);
    }
    ~MessagesTest() override { delete bar; }
    QPointer<QProgressBar> bar = new QProgressBar;
    std::unique_ptr<CWnd_E> window{GetParam()()};
    const OwnProgress* const own = dynamic_cast<OwnProgress*>(window.get());
};
INSTANTIATE_TEST_SUITE_P(Controls, MessagesTest,
                         testing::Values([]() -> CWnd_E* { return nullptr; }, make<CWnd_E>,
                                         make<CProgressCtrl_E>, make<OwnProgress>));

TEST_P(MessagesTest, SentAndPosted)
{
    // clang-format off
    runSteps(bar, {
        {PBM_SETPOS, 40, own ? 99 : 1}, {"value", own ? 1 : 40}, {PBM_GETPOS, own ? 1 : 40},
        {WM_USER + 500, own ? 99 : 0}, // no message of the class
    });
    // clang-format on
    EXPECT_EQ(CObject_E::GetOwner(bar), window.get()) << "nobody else was bound";

    const auto post = [pBar = bar.data()] {
        EXPECT_TRUE(PostMessage_E(pBar, PBM_SETRANGE32, 0, 1000));
        EXPECT_TRUE(PostMessage_E(pBar, PBM_SETPOS, 500));
        EXPECT_TRUE(PostMessage_E(pBar, PBM_DELTAPOS, 5));
    };
    for (const bool elsewhere : {false, true}) {
        bar->setValue(1);
        if (elsewhere)
            std::thread(post).join();
        else
            post();
        EXPECT_EQ(bar->value(), 1) << "not yet";
        EXPECT_TRUE(waitUntil([&] { return bar->value() == (own ? 6 : 505); })) << "in their order";
    }
    EXPECT_TRUE(PostMessage_E(bar, PBM_SETPOS, 40));
    EXPECT_TRUE(PostMessage_E(bar, WM_USER + 500));
    delete bar.data();
    deliverPosted();
    EXPECT_EQ(own ? own->m_seen.size() : 4, 4);
}

TEST_P(MessagesTest, WhatDeletesTheWidgetMeanwhile)
{
    for (const bool withItsWindow : {false, true}) {
        if (withItsWindow)
            bar = new QProgressBar;
        if (window)
            window->SubclassWindow(bar);
        QTimer::singleShot(0, qApp, [this, withItsWindow] {
            delete bar.data();
            if (withItsWindow)
                window.reset();
        });
        SendMessage_E(bar, PBM_SETPOS, 40); // lets the timer fire
        EXPECT_EQ(bar.isNull(), !own);
        EXPECT_TRUE(waitUntil([&] { return bar.isNull(); }));
    }
}

TEST(Messages, NumbersOfControlsAtPlainWindows)
{
    QDialog dialog;
    EXPECT_EQ(SendMessage_E(&dialog, PBM_SETPOS, 1), 0);
    EXPECT_TRUE(PostMessage_E(&dialog, PBM_SETPOS, 1));
    Own<CWnd_E> window;
    window.SubclassWindow(&dialog);
    EXPECT_EQ(SendMessage_E(&dialog, PBM_SETPOS, 1), 99);
    EXPECT_TRUE(PostMessage_E(&dialog, WM_USER + 500));
    deliverPosted();
    EXPECT_EQ(window.m_seen, QList<UINT>({PBM_SETPOS, PBM_SETPOS, WM_USER + 500}));
}

/// A widget that knows a message itself.
class KnowingBar : public QProgressBar
{
protected:
    bool event(QEvent* e) override
    {
        if (e->type() != VxWinMsgEvent::EventType)
            return QProgressBar::event(e);
        static_cast<VxWinMsgEvent*>(e)->result = 77;
        return true;
    }
};

TEST(Messages, TheWidgetItselfComesFirstWhenNothingIsBound)
{
    KnowingBar bar;
    runSteps(&bar, {{PBM_SETPOS, 9, 77}, {"value", -1}});
    CProgressCtrl_E control;
    control.SubclassWindow(&bar);
    runSteps(&bar, {{PBM_SETPOS, 9, -1}, {"value", 9}});
}

} // namespace
