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
    const auto before = static_cast<DWORD>(QDateTime::currentSecsSinceEpoch());
    EXPECT_EQ(m_window.SendMessage(WM_APP + 1, 40, 2), 42);
    EXPECT_EQ(m_window.m_last.hwnd, &m_widget);
    EXPECT_GE(m_window.m_last.time, before) << "stamped when code sees it";
    EXPECT_EQ(SendMessage_E(&m_widget, WM_APP + 1, 40, -50), -10);
    m_window.m_bPassOn = true;
    EXPECT_EQ(m_window.SendMessage(WM_APP + 1, 40, 2), 0);
    EXPECT_EQ(m_window.SendMessage(WM_APP + 2, 40, 2), 0) << "no handler";
    EXPECT_FALSE(SendMessage_E(nullptr, WM_APP + 1, 1, 1) || PostMessage_E(nullptr, WM_APP + 1));
    take();
    EXPECT_TRUE(m_window.PostMessage(WM_APP + 1, 1, 1));
    EXPECT_EQ(take(), "") << "comes through the event loop";
    vxtest::deliverPosted();
    EXPECT_EQ(take(), "pre 8001");
}

TEST_F(DispatchTest, CompressedEventsWaitForEachOtherUntilTheDispatchIsOver)
{
    const auto message = [](WPARAM wParam) { return new VxWinMsgEvent(WM_APP + 9, wParam, 0); };
    EXPECT_TRUE(m_window.PostEvent(message(1), Qt::NormalEventPriority, true));
    EXPECT_FALSE(m_window.PostEvent(message(2), Qt::NormalEventPriority, true));
    EXPECT_TRUE(m_window.PostEvent(message(3), Qt::NormalEventPriority, false));
    vxtest::deliverPosted();
    EXPECT_EQ(take(), "pre 8009,pre 8009");
    EXPECT_EQ(m_window.m_last.wParam, 3U);
    EXPECT_TRUE(m_window.PostEvent(message(4), Qt::NormalEventPriority, true));
    CWnd_E unbound;
    EXPECT_FALSE(unbound.PostEvent(message(5), Qt::NormalEventPriority, true));
    EXPECT_FALSE(m_window.PostEvent(nullptr, 0, false));
}

TEST(DispatchOfPlainWindowsTest, BindingAWindowChangesNothingInHowAWidgetWorks)
{
    QLineEdit edit;
    CWnd_E window, areaWindow;
    window.SubclassWindow(&edit);
    const auto press = [&edit](int key, const QString& text) {
        QKeyEvent e(QEvent::KeyPress, key, Qt::NoModifier, text);
        return QCoreApplication::sendEvent(&edit, &e) && e.isAccepted();
    };
    EXPECT_TRUE(press(Qt::Key_A, "A"_q) && press(Qt::Key_B, "b"_q));
    vxtest::deliverPosted();
    EXPECT_EQ(edit.text(), "Ab"_q);
    EXPECT_FALSE(press(Qt::Key_F7, {}));

    QScrollArea area;
    areaWindow.SubclassWindow(&area);
    area.setWidget(new QWidget);
    area.widget()->setFixedSize(400, 400);
    area.resize(100, 100);
    area.show();
    EXPECT_TRUE(vxtest::waitUntil([&] { return area.verticalScrollBar()->maximum() > 0; }));
}

/// Notes that it was offered WM_SETCURSOR; it has the form with window objects alone.
struct CursorWnd : CWnd_E
{
    CursorWnd(QString& trace, char name, BOOL result)
        : m_trace(trace), m_name(name), m_result(result)
    {
    }
    BOOL OnSetCursor_E(CWnd_E*, UINT, UINT) { return (m_trace += QLatin1Char(m_name), m_result); }
    void OnMessageMap() override;

    QString& m_trace;
    const char m_name;
    const BOOL m_result;
};

BEGIN_MESSAGE_MAP_E(CursorWnd, CWnd_E)
ON_WM_SETCURSOR_E()
END_MESSAGE_MAP_E()

TEST(SetCursorTest, TheOutermostWindowThatWantsTheCursorWins)
{
    // results of the top and the middle window, whether the child is a window of its own, which
    // asks those that own it all the same; who was asked, result
    const Row<BOOL, BOOL, bool, const char*, LRESULT> rows[] = {{0, 0, false, "tmc", 3},
                                                                {0, 2, false, "tm", 2},
                                                                {1, 2, false, "t", 1},
                                                                {4, 2, true, "t", 4}};
    forRows(rows, [](BOOL topResult, BOOL middleResult, bool isDialog, const char* calls,
                     LRESULT result) {
        QString trace;
        QWidget topWidget;
        auto* const middleWidget = new QWidget(&topWidget);
        auto* const childWidget = new QWidget(middleWidget, isDialog ? Qt::Dialog : Qt::Widget);
        CursorWnd top(trace, 't', topResult), middle(trace, 'm', middleResult),
            child(trace, 'c', 3);
        top.SubclassWindow(&topWidget);
        middle.SubclassWindow(middleWidget);
        child.SubclassWindow(childWidget);
        EXPECT_EQ(child.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(childWidget)), result);
        EXPECT_EQ(trace, QLatin1String(calls));
    });
}

} // namespace
