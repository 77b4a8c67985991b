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

struct Fixture
{
    explicit Fixture(Bound bound)
    {
        bar->setValue(1);
        if (bound == Bound::Plainly)
            window = std::make_unique<CWnd_E>();
        else if (bound == Bound::ByItsClass)
            window = std::make_unique<CProgressCtrl_E>();
        else if (bound == Bound::ByOwnHandler)
            window = std::make_unique<OwnProgress>();
        if (window)
            window->SubclassWindow(bar);
    }
    ~Fixture() { delete bar; }
    QPointer<QProgressBar> bar = new QProgressBar;
    std::unique_ptr<CWnd_E> window;
};

struct MessagesTest : testing::TestWithParam<Bound>
{
};
INSTANTIATE_TEST_SUITE_P(Controls, MessagesTest,
                         testing::Values(Bound::Not, Bound::Plainly, Bound::ByItsClass,
                                         Bound::ByOwnHandler));

TEST_P(MessagesTest, AHandlerTakesThemThenTheControl)
{
    Fixture fixture(GetParam());
    const bool own = GetParam() == Bound::ByOwnHandler;
    EXPECT_EQ(SendMessage_E(fixture.bar, PBM_SETPOS, 40), own ? 40 : 1);
    EXPECT_EQ(fixture.bar->value(), own ? 1 : 40);
    EXPECT_EQ(SendMessage_E(fixture.bar, PBM_GETPOS), own ? 1 : 40);
    EXPECT_EQ(SendMessage_E(fixture.bar, WM_USER + 500), own ? 99 : 0) << "no message of the class";
    EXPECT_EQ(SendMessage_E(fixture.bar, WM_APP + 1), 0);
    EXPECT_EQ(SendMessage_E(fixture.bar, WM_COMMAND, 1), 0);
    EXPECT_EQ(SendMessage_E(fixture.bar, PBM_GETRANGE, FALSE), 100);
    EXPECT_EQ(CObject_E::GetOwner(fixture.bar), fixture.window.get()) << "nobody else was bound";
}

TEST_P(MessagesTest, PostedOnesArriveInTheirOrderFromAnyThread)
{
    for (const bool elsewhere : {false, true}) {
        Fixture fixture(GetParam());
        const auto post = [bar = fixture.bar.data()] {
            EXPECT_TRUE(PostMessage_E(bar, PBM_SETRANGE32, 0, 1000));
            EXPECT_TRUE(PostMessage_E(bar, PBM_SETPOS, 500));
            EXPECT_TRUE(PostMessage_E(bar, PBM_DELTAPOS, 5));
        };
        if (elsewhere)
            std::thread(post).join();
        else
            post();
        EXPECT_EQ(fixture.bar->value(), 1) << "not yet";
        const bool own = GetParam() == Bound::ByOwnHandler;
        EXPECT_TRUE(waitUntil([&] { return fixture.bar->value() == (own ? 6 : 505); }));
        EXPECT_EQ(own ? static_cast<OwnProgress&>(*fixture.window).m_nSeen : 500, 500);
    }
}

TEST_P(MessagesTest, WhatDeletesTheWidgetMeanwhile)
{
    for (const bool withItsWindow : {false, true}) {
        Fixture fixture(GetParam());
        QTimer::singleShot(0, qApp, [&] {
            delete fixture.bar.data();
            if (withItsWindow)
                fixture.window.reset();
        });
        // Setting the position lets the timer fire.
        SendMessage_E(fixture.bar, PBM_SETPOS, 40);
        EXPECT_EQ(fixture.bar.isNull(), GetParam() != Bound::ByOwnHandler);
        EXPECT_TRUE(waitUntil([&] { return fixture.bar.isNull(); }));
    }
}

TEST_P(MessagesTest, WhatIsPostedToAWidgetThatIsGone)
{
    Fixture fixture(GetParam());
    EXPECT_TRUE(PostMessage_E(fixture.bar, PBM_SETPOS, 40));
    EXPECT_TRUE(PostMessage_E(fixture.bar, WM_USER + 500));
    delete fixture.bar.data();
    deliverPosted();
    auto* const pOwn = dynamic_cast<OwnProgress*>(fixture.window.get());
    EXPECT_EQ(pOwn ? pOwn->m_nSeen : -1, -1);
}

TEST_P(MessagesTest, WhatIsPostedWhileTheBindingChanges)
{
    Fixture fixture(GetParam());
    PostMessage_E(fixture.bar, PBM_SETPOS, 40);
    fixture.window.reset();
    CProgressCtrl_E other;
    other.SubclassWindow(fixture.bar);
    PostMessage_E(fixture.bar, PBM_DELTAPOS, 2);
    other.Detach();
    deliverPosted();
    EXPECT_EQ(fixture.bar->value(), 42);
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
        QComboBox fixed;
        fixed.addItems({"a"_q, "other"_q});
        const auto pSpin = std::make_unique<QSpinBox>();
        pSpin->setSuffix("%"_q);
        QDialog dialog;
        QLineEdit line;
        const Row<QWidget*, const wchar_t*, LRESULT, const wchar_t*> rows[] = {
            {&fixed, L"other", TRUE, L"other"}, {&fixed, L"none", CB_ERR, L"other"},
            {pSpin.get(), L"42", TRUE, L"42"},  {&dialog, L"Title", TRUE, L"Title"},
            {&line, nullptr, TRUE, L""},        {&line, L"text", TRUE, L"text"},
        };
        forRows(rows, [&](QWidget* pWidget, const wchar_t* set, LRESULT done, const wchar_t* got) {
            CWnd_E window;
            if (bound)
                window.SubclassWindow(pWidget);
            wchar_t buffer[8] = L"";
            EXPECT_EQ(SendMessage_E(pWidget, WM_SETTEXT, 0, at(set)), done);
            EXPECT_EQ(SendMessage_E(pWidget, WM_GETTEXT, 8, at(buffer)),
                      static_cast<LRESULT>(std::wcslen(got)));
            EXPECT_STREQ(buffer, got);
            EXPECT_EQ(SendMessage_E(pWidget, WM_GETTEXTLENGTH), CString_E(got).GetLength());
            EXPECT_EQ(SendMessage_E(pWidget, WM_GETTEXT, 8, 0), 0);
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
