// Which messages reach a control, by which road, and which do not.
#include "controls.h"

namespace {

using namespace vxtest;

enum class Bound
{
    Not,
    Plainly,
    ByItsClass,
    ByOwnHandler
};

/// A control with a handler of its own for a message of its class.
class OwnProgress : public CProgressCtrl_E
{
public:
    LRESULT OnSetPos(WPARAM wParam, LPARAM) { return m_nSeen = static_cast<int>(wParam); }
    LRESULT OnUser(WPARAM, LPARAM) { return 99; }
    int m_nSeen = -1;
    DECLARE_MESSAGE_MAP_E()
};

BEGIN_MESSAGE_MAP_E(OwnProgress, CProgressCtrl_E)
ON_MESSAGE_E(PBM_SETPOS, &OwnProgress::OnSetPos)
ON_MESSAGE_E(WM_USER + 500, &OwnProgress::OnUser)
END_MESSAGE_MAP_E()

struct MessagesTest : testing::TestWithParam<Bound>
{
    MessagesTest()
    {
        const Bound bound = GetParam();
        bar->setValue(1);
        window.reset(bound == Bound::Plainly      ? new CWnd_E
                     : bound == Bound::ByItsClass ? new CProgressCtrl_E
                     : own                        ? new OwnProgress
                                                  : nullptr);
        if (window)
            window->SubclassWindow(bar);
    }
    ~MessagesTest() override { delete bar; }
    const bool own = GetParam() == Bound::ByOwnHandler;
    QPointer<QProgressBar> bar = new QProgressBar;
    std::unique_ptr<CWnd_E> window;
};
INSTANTIATE_TEST_SUITE_P(Controls, MessagesTest,
                         testing::Values(Bound::Not, Bound::Plainly, Bound::ByItsClass,
                                         Bound::ByOwnHandler));

TEST_P(MessagesTest, AHandlerTakesThemThenTheControl)
{
    // clang-format off
    runSteps(bar, {
        {PBM_SETPOS, 40, own ? 40 : 1}, {"value", own ? 1 : 40}, {PBM_GETPOS, own ? 1 : 40},
        {WM_USER + 500, own ? 99 : 0}, // no message of the class
        {WM_APP + 1, 0}, {WM_COMMAND, 1, 0}, {PBM_GETRANGE, 100},
    });
    // clang-format on
    EXPECT_EQ(CObject_E::GetOwner(bar), window.get()) << "nobody else was bound";
}

TEST_P(MessagesTest, PostedOnesArriveInTheirOrderFromAnyThread)
{
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
        EXPECT_TRUE(waitUntil([&] { return bar->value() == (own ? 6 : 505); }));
    }
    EXPECT_EQ(own ? static_cast<OwnProgress&>(*window).m_nSeen : 500, 500);
}

TEST_P(MessagesTest, WhatDeletesTheWidgetMeanwhile)
{
    for (const bool withItsWindow : {false, true}) {
        if (withItsWindow) {
            bar = new QProgressBar;
            if (window)
                window->SubclassWindow(bar);
        }
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

TEST_P(MessagesTest, WhatIsPostedToAWidgetThatIsGone)
{
    EXPECT_TRUE(PostMessage_E(bar, PBM_SETPOS, 40));
    EXPECT_TRUE(PostMessage_E(bar, WM_USER + 500));
    delete bar.data();
    deliverPosted();
    EXPECT_EQ(own ? static_cast<OwnProgress&>(*window).m_nSeen : -1, -1);
}

TEST_P(MessagesTest, WhatIsPostedWhileTheBindingChanges)
{
    PostMessage_E(bar, PBM_SETPOS, 40);
    window.reset();
    CProgressCtrl_E other;
    other.SubclassWindow(bar);
    PostMessage_E(bar, PBM_DELTAPOS, 2);
    other.Detach();
    deliverPosted();
    EXPECT_EQ(bar->value(), 42);
}

/// Records the numbers of the messages that come.
class UserWnd : public CWnd_E
{
public:
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override
    {
        if (message < WM_USER)
            return CWnd_E::OnWndMsg(message, wParam, lParam, pResult);
        m_seen << message;
        *pResult = 5;
        return TRUE;
    }
    QList<UINT> m_seen;
};

TEST(Messages, NumbersOfTheirOwnInPlainWindows)
{
    QWidget widget;
    QDialog dialog;
    for (QWidget* const pWidget : {&widget, static_cast<QWidget*>(&dialog)}) {
        EXPECT_EQ(SendMessage_E(pWidget, PBM_SETPOS, 1), 0);
        EXPECT_TRUE(PostMessage_E(pWidget, PBM_SETPOS, 1));
        UserWnd window;
        window.SubclassWindow(pWidget);
        EXPECT_EQ(SendMessage_E(pWidget, PBM_SETPOS, 1), 5);
        EXPECT_TRUE(PostMessage_E(pWidget, WM_USER + 7));
        deliverPosted();
        EXPECT_EQ(window.m_seen, QList<UINT>({PBM_SETPOS, PBM_SETPOS, WM_USER + 7}));
    }
    EXPECT_EQ(SendMessage_E(nullptr, PBM_SETPOS, 1), 0);
    EXPECT_FALSE(PostMessage_E(nullptr, PBM_SETPOS, 1));
}

TEST(Messages, OfTexts)
{
    for (const bool bound : {false, true}) {
        QDialog dialog;
        QLineEdit line;
        const Row<QWidget*, const wchar_t*, const char*> rows[] = {
            {&dialog, L"Title", "Title"}, {&line, nullptr, ""}, {&line, L"text", "text"}};
        forRows(rows, [&](QWidget* pWidget, const wchar_t* set, const char* got) {
            CWnd_E window;
            if (bound)
                window.SubclassWindow(pWidget);
            wchar_t buffer[8] = L"";
            const QString text = QString::fromLatin1(got);
            // clang-format off
            runSteps(pWidget, {
                {WM_SETTEXT, 0, at(set), TRUE}, {WM_GETTEXT, 8, at(buffer), text.size()},
                {buffer, text}, {WM_GETTEXTLENGTH, text.size()}, {WM_GETTEXT, 8, 0},
            });
            // clang-format on
        });
    }
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
    EXPECT_EQ(SendMessage_E(&bar, PBM_SETPOS, 9), 77);
    EXPECT_LT(bar.value(), 9);
    CProgressCtrl_E control;
    control.SubclassWindow(&bar);
    EXPECT_LT(SendMessage_E(&bar, PBM_SETPOS, 9), 77);
    EXPECT_EQ(bar.value(), 9);
}

} // namespace
