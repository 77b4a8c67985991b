// The road of an event through a bound window, and messages sent and posted.
#include "support/test.h"

namespace {

/// A widget that notes the events it gets itself.
class TraceWidget : public QWidget
{
public:
    explicit TraceWidget(QStringList& trace) : m_trace(trace) {}

protected:
    void keyPressEvent(QKeyEvent* e) override
    {
        m_trace << (e->isAccepted() ? "widget key"_q : "widget ignored key"_q);
    }
    void closeEvent(QCloseEvent*) override { m_trace << "widget close"_q; }
    void wheelEvent(QWheelEvent*) override { m_trace << "widget wheel"_q; }

private:
    QStringList& m_trace;
};

class TraceWnd : public CWnd_E
{
public:
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
    void OnClose()
    {
        m_trace << "close"_q;
        SetCurrentEventAccepted(!m_bPassOn);
    }
    BOOL OnMouseWheel(UINT, short zDelta, CPoint_E)
    {
        m_trace << "wheel %1"_q.arg(zDelta);
        return !m_bPassOn;
    }
    LRESULT OnSum(WPARAM wParam, LPARAM lParam)
    {
        if (m_bPassOn)
            SetCurrentEventAccepted(false);
        return static_cast<LRESULT>(wParam) + lParam;
    }

    bool m_bConsume = false;
    bool m_bPassOn = false;
    tagMSG m_last{};

protected:
    void OnMessageMap() override;

private:
    QStringList& m_trace;
};

BEGIN_MESSAGE_MAP_E(TraceWnd, CWnd_E)
ON_WM_KEYDOWN_E()
ON_WM_CHAR_E()
ON_WM_CLOSE_E()
ON_WM_MOUSEWHEEL_E()
ON_MESSAGE_E(WM_APP + 1, &TraceWnd::OnSum)
END_MESSAGE_MAP_E()

class DispatchTest : public testing::Test
{
protected:
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
        {false, true, {}, "pre 100,key 41 1 0,widget key"}, // reaches the widget as it was
        {true, false, "a"_q, "pre 100"},                    // consumed by PreTranslateMessage
    };
    for (const auto& [consume, passOn, text, trace] : rows) {
        m_window.m_bConsume = consume;
        m_window.m_bPassOn = passOn;
        send(QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, text));
        vxtest::deliverPosted();
        EXPECT_EQ(take(), trace);
    }
}

TEST_F(DispatchTest, ACloseThatAHandlerDoesNotAcceptIsStoppedAndHiddenFromTheWidget)
{
    m_widget.show();
    take();
    m_window.m_bPassOn = true;
    EXPECT_FALSE(m_widget.close());
    EXPECT_TRUE(m_trace.endsWith("close"_q));
    m_window.m_bPassOn = false;
    EXPECT_TRUE(m_widget.close());
    EXPECT_FALSE(m_trace.contains("widget close"_q));
}

TEST_F(DispatchTest, AWheelHandlerThatGivesFalseLeavesTheWheelToTheWidget)
{
    for (const bool passOn : {false, true}) {
        m_window.m_bPassOn = passOn;
        send(QWheelEvent(QPointF(5, 6), QPointF(5, 6), QPoint(), QPoint(0, -120), Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false));
        EXPECT_EQ(take(), passOn ? "pre 20a,wheel -120,widget wheel" : "pre 20a,wheel -120");
    }
}

TEST_F(DispatchTest, AMessageThatCodeSeesIsStamped)
{
    const auto before = static_cast<DWORD>(QDateTime::currentSecsSinceEpoch());
    QCursor::setPos(33, 44);
    m_window.SendMessage(WM_APP + 7, 1, 2);
    CPoint_E cursor;
    GetCursorPos_E(&cursor);
    EXPECT_EQ(m_window.m_last.hwnd, &m_widget);
    EXPECT_GE(m_window.m_last.time, before);
    EXPECT_LE(m_window.m_last.time, before + 60);
    EXPECT_EQ(CPoint_E(m_window.m_last.pt), cursor);
}

TEST_F(DispatchTest, ResultsComeBackToTheSenderOnlyWhenTheMessageIsConsumed)
{
    EXPECT_EQ(m_window.SendMessage(WM_APP + 1, 40, 2), 42);
    EXPECT_EQ(SendMessage_E(&m_widget, WM_APP + 1, 40, -50), -10);
    m_window.m_bPassOn = true;
    EXPECT_EQ(m_window.SendMessage(WM_APP + 1, 40, 2), 0);
    EXPECT_EQ(m_window.SendMessage(WM_APP + 2, 40, 2), 0) << "no handler";
    EXPECT_EQ(SendMessage_E(nullptr, WM_APP + 1, 1, 1), 0);
    EXPECT_FALSE(PostMessage_E(nullptr, WM_APP + 1, 1, 1));
}

TEST_F(DispatchTest, AVirtualKeyWithoutAQtKeyIsSentAsAMessage)
{
    EXPECT_EQ(m_window.SendMessage(WM_KEYDOWN, 0x41, 0x20003), 0);
    EXPECT_EQ(take(), "pre 100,key 41 1 0") << "a key event has its own lParam";
    m_window.SendMessage(WM_KEYDOWN, 0x07, 0x20003);
    EXPECT_EQ(take(), "pre 100,key 7 3 2");
}

TEST_F(DispatchTest, APostedMessageArrivesThroughTheEventLoop)
{
    EXPECT_TRUE(m_window.PostMessage(WM_APP + 1, 1, 1));
    EXPECT_EQ(take(), "");
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
    CWnd_E window;
    window.SubclassWindow(&edit);
    for (const QChar c : "Ab"_q) {
        QKeyEvent e(QEvent::KeyPress, c.toUpper().unicode(), Qt::NoModifier, c);
        QCoreApplication::sendEvent(&edit, &e);
        EXPECT_TRUE(e.isAccepted());
    }
    vxtest::deliverPosted();
    EXPECT_EQ(edit.text(), "Ab"_q);
    QKeyEvent ignored(QEvent::KeyPress, Qt::Key_F7, Qt::NoModifier);
    QCoreApplication::sendEvent(&edit, &ignored);
    EXPECT_FALSE(ignored.isAccepted());

    QScrollArea area;
    CWnd_E areaWindow;
    areaWindow.SubclassWindow(&area);
    auto* const content = new QWidget;
    content->setFixedSize(400, 400);
    area.setWidget(content);
    area.resize(100, 100);
    area.show();
    EXPECT_TRUE(vxtest::waitUntil([&] { return area.verticalScrollBar()->maximum() > 0; }));
}

/// Notes that it was offered WM_SETCURSOR.
class CursorWnd : public CWnd_E
{
public:
    CursorWnd(QString& trace, QWidget* widget, char name, LRESULT nResult)
        : m_trace(trace), m_name(name), m_nResult(nResult)
    {
        SubclassWindow(widget);
    }
    LRESULT OnCursor(WPARAM, LPARAM) { return (m_trace += QLatin1Char(m_name), m_nResult); }

protected:
    void OnMessageMap() override
    {
        using ThisClass_E = CursorWnd;
        CWnd_E::OnMessageMap();
        ON_MESSAGE_E(WM_SETCURSOR, &CursorWnd::OnCursor)
    }

private:
    QString& m_trace;
    char m_name;
    LRESULT m_nResult;
};

TEST(SetCursorTest, TheOutermostWindowThatWantsTheCursorWins)
{
    // results of the top and the middle window, whether the child is a window of its own, which
    // asks those that own it all the same; who was asked, result
    const Row<LRESULT, LRESULT, bool, const char*, LRESULT> rows[] = {{0, 0, false, "tmc", 3},
                                                                      {0, 2, false, "tm", 2},
                                                                      {1, 2, false, "t", 1},
                                                                      {4, 2, true, "t", 4}};
    forRows(rows, [&](LRESULT topResult, LRESULT middleResult, bool isDialog, const char* calls,
                      LRESULT result) {
        QString trace;
        QWidget topWidget;
        auto* const middleWidget = new QWidget(&topWidget);
        auto* const childWidget = new QWidget(middleWidget, isDialog ? Qt::Dialog : Qt::Widget);
        CursorWnd top(trace, &topWidget, 't', topResult);
        CursorWnd middle(trace, middleWidget, 'm', middleResult);
        CursorWnd child(trace, childWidget, 'c', 3);
        EXPECT_EQ(child.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(childWidget)), result);
        EXPECT_EQ(trace, QLatin1String(calls));
    });
}

} // namespace
