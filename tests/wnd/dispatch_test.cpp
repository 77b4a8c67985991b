// The road of an event through a bound window, and messages sent and posted.
#include "support/test.h"

namespace {

/// A widget that notes the events it gets itself.
struct TraceWidget : QWidget
{
    explicit TraceWidget(QStringList& trace) : m_trace(trace) {}
    void keyPressEvent(QKeyEvent* e) override { m_trace << "widget key %1"_q.arg(e->isAccepted()); }
    void closeEvent(QCloseEvent*) override { m_trace << "widget close"_q; }
    void wheelEvent(QWheelEvent*) override { m_trace << "widget wheel"_q; }

    QStringList& m_trace;
};

struct TraceWnd : CWnd_E
{
    explicit TraceWnd(QStringList& trace) : m_trace(trace) {}
    BOOL PreTranslateMessage(tagMSG* pMsg) override
    {
        m_trace << "pre %1"_q.arg(pMsg->message, 0, 16);
        m_last = *pMsg;
        return m_bConsume;
    }
    void OnKeyDown(UINT nChar, UINT nRep, UINT nFlags)
    {
        m_trace << "key %1 %2 %3"_q.arg(nChar, 0, 16).arg(nRep).arg(nFlags);
        if (m_bPassOn)
            CWnd_E::OnKeyDown(nChar, nRep, nFlags);
    }
    void OnChar(UINT nChar, UINT, UINT) { m_trace << "char %1"_q.arg(nChar, 0, 16); }
    void OnClose() { SetCurrentEventAccepted(!m_bPassOn); }
    BOOL OnMouseWheel(UINT, short zDelta, CPoint_E)
    {
        m_trace << "wheel %1"_q.arg(zDelta);
        return !m_bPassOn;
    }
    LRESULT OnSum(WPARAM wParam, LPARAM lParam)
    {
        SetCurrentEventAccepted(!m_bPassOn);
        return static_cast<LRESULT>(wParam) + lParam;
    }
    void OnMessageMap() override;

    QStringList& m_trace;
    bool m_bConsume = false;
    bool m_bPassOn = false;
    tagMSG m_last{};
};

BEGIN_MESSAGE_MAP_E(TraceWnd, CWnd_E)
ON_WM_KEYDOWN_E()
ON_WM_CHAR_E()
ON_WM_CLOSE_E()
ON_WM_MOUSEWHEEL_E()
ON_MESSAGE_E(WM_APP + 1, &TraceWnd::OnSum)
END_MESSAGE_MAP_E()

struct DispatchTest : testing::Test
{
    DispatchTest() { m_window.SubclassWindow(&m_widget); }

    std::string take() { return std::exchange(m_trace, {}).join(u',').toStdString(); }
    bool send(QEvent&& e) { return QCoreApplication::sendEvent(&m_widget, &e); }

    QStringList m_trace;
    TraceWidget m_widget{m_trace};
    TraceWnd m_window{m_trace};
};

TEST_F(DispatchTest, AKeyEndsWithTheFirstThatTakesIt)
{
    const Row<bool, bool, QString, const char*> rows[] = {
        {false, false, "ab"_q, "pre 100,key 41 1 0,pre 102,char 61,pre 102,char 62"},
        {false, true, {}, "pre 100,key 41 1 0,widget key 1"}, // reaches the widget as it was
        {true, false, "a"_q, "pre 100"},                      // consumed by PreTranslateMessage
    };
    for (const auto& [consume, passOn, text, trace] : rows) {
        m_window.m_bConsume = consume;
        m_window.m_bPassOn = passOn;
        send(QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, text));
        vxtest::deliverPosted();
        EXPECT_EQ(take(), trace);
    }
    m_window.m_bConsume = m_window.m_bPassOn = false;
    EXPECT_EQ(m_window.SendMessage(WM_KEYDOWN, 0x41, 0x20003), 0);
    EXPECT_EQ(take(), "pre 100,key 41 1 0") << "a key event has its own lParam";
    m_window.SendMessage(WM_KEYDOWN, 0x07, 0x20003);
    EXPECT_EQ(take(), "pre 100,key 7 3 2") << "without a Qt key it is sent as a message";
}

TEST_F(DispatchTest, ACloseIsHiddenFromTheWidgetAndAWheelOnlyWhenItsHandlerGivesTrue)
{
    for (const bool passOn : {true, false}) {
        m_window.m_bPassOn = passOn;
        m_widget.show();
        take();
        EXPECT_EQ(m_widget.close(), !passOn);
        EXPECT_TRUE(m_trace.contains("pre 10"_q) && !m_trace.contains("widget close"_q));
        take();
        send(QWheelEvent(QPointF(5, 6), QPointF(5, 6), QPoint(), QPoint(0, -120), Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false));
        EXPECT_EQ(take(), passOn ? "pre 20a,wheel -120,widget wheel" : "pre 20a,wheel -120");
    }
}

TEST_F(DispatchTest, ResultsComeBackToTheSenderOnlyWhenTheMessageIsConsumed)
{
    EXPECT_EQ(m_window.SendMessage(WM_APP + 1, 40, 2), 42);
    const tagMSG& last = m_window.m_last;
    EXPECT_TRUE(last.hwnd == &m_widget && last.time > 1600000000U) << "stamped when code sees it";
    m_window.m_bPassOn = true; // and the other has no handler
    EXPECT_FALSE(m_window.SendMessage(WM_APP + 1, 40, 2) || m_window.SendMessage(WM_APP + 2, 1));
    EXPECT_FALSE(SendMessage_E(nullptr, WM_APP + 1, 1, 1) || PostMessage_E(nullptr, WM_APP + 1));
    take();
    EXPECT_TRUE(m_window.PostMessage(WM_APP + 1, 1, 1) && m_trace.isEmpty());
    vxtest::deliverPosted();
    EXPECT_EQ(take(), "pre 8001");
}

TEST_F(DispatchTest, CompressedEventsWaitForEachOtherUntilTheDispatchIsOver)
{
    const auto message = [](WPARAM wParam) { return new VxWinMsgEvent(WM_APP + 9, wParam, 0); };
    EXPECT_TRUE(m_window.PostEvent(message(1), 0, true));
    EXPECT_FALSE(m_window.PostEvent(message(2), 0, true));
    EXPECT_TRUE(m_window.PostEvent(message(3), 0, false));
    vxtest::deliverPosted();
    EXPECT_TRUE(take() == "pre 8009,pre 8009" && m_window.m_last.wParam == 3);
    EXPECT_TRUE(m_window.PostEvent(message(4), 0, true));
    EXPECT_FALSE(CWnd_E().PostEvent(message(5), 0, true) || m_window.PostEvent(nullptr, 0, false));
}

/// Counts how often WM_SETCURSOR was offered; it has the form with window objects alone.
struct CursorWnd : CWnd_E
{
    CursorWnd(QWidget* pWidget, BOOL result) : m_result(result) { SubclassWindow(pWidget); }
    BOOL OnSetCursor_E(CWnd_E*, UINT, UINT) { return (++s_nOffers, m_result); }
    void OnMessageMap() override;

    static inline int s_nOffers = 0;
    const BOOL m_result;
};

BEGIN_MESSAGE_MAP_E(CursorWnd, CWnd_E)
ON_WM_SETCURSOR_E()
END_MESSAGE_MAP_E()

TEST(SetCursorTest, TheOutermostWindowThatWantsTheCursorWins)
{
    // results of the top and the middle window, whether the child is a window of its own, which
    // asks those that own it all the same; how many were asked, result
    const Row<BOOL, BOOL, bool, int, LRESULT> rows[] = {
        {0, 0, false, 3, 3}, {0, 2, false, 2, 2}, {1, 2, false, 1, 1}, {4, 2, true, 1, 4}};
    forRows(rows, [](BOOL topResult, BOOL middleResult, bool isDialog, int offers, LRESULT result) {
        QWidget topWidget;
        auto* const middleWidget = new QWidget(&topWidget);
        auto* const childWidget = new QWidget(middleWidget, isDialog ? Qt::Dialog : Qt::Widget);
        CursorWnd top(&topWidget, topResult), middle(middleWidget, middleResult),
            child(childWidget, 3);
        EXPECT_EQ(child.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(childWidget)), result);
        EXPECT_EQ(std::exchange(CursorWnd::s_nOffers, 0), offers);
    });
}

} // namespace
