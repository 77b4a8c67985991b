// The road of an event through a bound window, and messages sent and posted.
#include <VxMFCEmu/VxMFCEmu.h>

#include "support/waiting.h"

#include <QtGui/QCloseEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

#include <gtest/gtest.h>

namespace {

/// A widget that notes the events it gets itself.
class TraceWidget : public QWidget
{
public:
    explicit TraceWidget(QStringList& trace, QWidget* parent = nullptr)
        : QWidget(parent), m_trace(trace)
    {
    }

protected:
    void keyPressEvent(QKeyEvent* e) override
    {
        m_trace << (e->isAccepted() ? QStringLiteral("widget key")
                                    : QStringLiteral("widget ignored key"));
    }
    void closeEvent(QCloseEvent*) override { m_trace << QStringLiteral("widget close"); }
    void wheelEvent(QWheelEvent*) override { m_trace << QStringLiteral("widget wheel"); }

private:
    QStringList& m_trace;
};

class TraceWnd : public CWnd_E
{
public:
    explicit TraceWnd(QStringList& trace) : m_trace(trace) {}

    BOOL PreTranslateMessage(tagMSG* pMsg) override
    {
        m_trace << QStringLiteral("pre %1").arg(pMsg->message, 0, 16);
        m_last = *pMsg;
        return m_bConsume;
    }
    void OnKeyDown(UINT nChar, UINT nRep, UINT nFlags)
    {
        m_trace << QStringLiteral("key %1 %2 %3").arg(nChar, 0, 16).arg(nRep).arg(nFlags);
        if (m_bPassOn)
            CWnd_E::OnKeyDown(nChar, nRep, nFlags);
    }
    void OnChar(UINT nChar, UINT, UINT) { m_trace << QStringLiteral("char %1").arg(nChar, 0, 16); }
    void OnClose()
    {
        m_trace << QStringLiteral("close");
        SetCurrentEventAccepted(!m_bPassOn);
    }
    BOOL OnMouseWheel(UINT, short zDelta, CPoint_E)
    {
        m_trace << QStringLiteral("wheel %1").arg(zDelta);
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
    DispatchTest() : m_widget(m_trace), m_window(m_trace) { m_window.SubclassWindow(&m_widget); }

    QStringList take() { return std::exchange(m_trace, {}); }
    static QStringList list(std::initializer_list<const char*> lines)
    {
        QStringList result;
        for (const char* line : lines)
            result << QLatin1String(line);
        return result;
    }
    void press(int key, const QString& text)
    {
        QKeyEvent e(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&m_widget, &e);
    }

    QStringList m_trace;
    TraceWidget m_widget;
    TraceWnd m_window;
};

TEST_F(DispatchTest, AHandledKeyIsConsumedAndItsCharactersFollow)
{
    press(Qt::Key_A, QStringLiteral("ab"));
    vxtest::deliverPosted();
    EXPECT_EQ(take(), list({"pre 100", "key 41 1 0", "pre 102", "char 61", "pre 102", "char 62"}));
}

TEST_F(DispatchTest, AClearedAcceptedFlagLetsTheEventReachTheWidgetAsItWas)
{
    m_window.m_bPassOn = true;
    press(Qt::Key_A, {});
    EXPECT_EQ(take(), list({"pre 100", "key 41 1 0", "widget key"}));
}

TEST_F(DispatchTest, PreTranslateMessageConsumesBeforeAnythingElse)
{
    m_window.m_bConsume = true;
    press(Qt::Key_A, QStringLiteral("a"));
    vxtest::deliverPosted();
    EXPECT_EQ(take(), list({"pre 100"}));
}

TEST_F(DispatchTest, ACloseThatAHandlerDoesNotAcceptIsStoppedAndHiddenFromTheWidget)
{
    m_widget.show();
    take();
    m_window.m_bPassOn = true;
    EXPECT_FALSE(m_widget.close());
    EXPECT_TRUE(take().endsWith(QStringLiteral("close")));
    m_window.m_bPassOn = false;
    EXPECT_TRUE(m_widget.close());
    EXPECT_FALSE(m_trace.contains(QStringLiteral("widget close")));
}

TEST_F(DispatchTest, AWheelHandlerThatGivesFalseLeavesTheWheelToTheWidget)
{
    for (const bool passOn : {false, true}) {
        m_window.m_bPassOn = passOn;
        QWheelEvent e(QPointF(5, 6), QPointF(5, 6), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&m_widget, &e);
        EXPECT_EQ(take(), passOn ? list({"pre 20a", "wheel -120", "widget wheel"})
                                 : list({"pre 20a", "wheel -120"}));
    }
}

TEST_F(DispatchTest, AMessageThatCodeSeesIsStamped)
{
    const auto before = static_cast<DWORD>(QDateTime::currentSecsSinceEpoch());
    QCursor::setPos(33, 44);
    m_window.SendMessage(WM_APP + 7, 1, 2);
    tagPOINT cursor{};
    GetCursorPos_E(&cursor);
    EXPECT_EQ(m_window.m_last.hwnd, &m_widget);
    EXPECT_GE(m_window.m_last.time, before);
    EXPECT_LE(m_window.m_last.time, before + 60);
    EXPECT_EQ(m_window.m_last.pt.x, cursor.x);
    EXPECT_EQ(m_window.m_last.pt.y, cursor.y);
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
    EXPECT_EQ(take(), list({"pre 100", "key 41 1 0"})) << "a key event has its own lParam";
    m_window.SendMessage(WM_KEYDOWN, 0x07, 0x20003);
    EXPECT_EQ(take(), list({"pre 100", "key 7 3 2"}));
}

TEST_F(DispatchTest, APostedMessageArrivesThroughTheEventLoop)
{
    EXPECT_TRUE(m_window.PostMessage(WM_APP + 1, 1, 1));
    EXPECT_TRUE(take().isEmpty());
    vxtest::deliverPosted();
    EXPECT_EQ(take(), list({"pre 8001"}));
}

TEST_F(DispatchTest, CompressedEventsWaitForEachOtherUntilTheDispatchIsOver)
{
    const auto message = [](WPARAM wParam) { return new VxWinMsgEvent(WM_APP + 9, wParam, 0); };
    EXPECT_TRUE(m_window.PostEvent(message(1), Qt::NormalEventPriority, true));
    EXPECT_FALSE(m_window.PostEvent(message(2), Qt::NormalEventPriority, true));
    EXPECT_TRUE(m_window.PostEvent(message(3), Qt::NormalEventPriority, false));
    vxtest::deliverPosted();
    EXPECT_EQ(take(), list({"pre 8009", "pre 8009"}));
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
    for (const QChar c : QStringLiteral("Ab")) {
        QKeyEvent e(QEvent::KeyPress, c.toUpper().unicode(), Qt::NoModifier, c);
        QCoreApplication::sendEvent(&edit, &e);
        EXPECT_TRUE(e.isAccepted());
    }
    vxtest::deliverPosted();
    EXPECT_EQ(edit.text(), QStringLiteral("Ab"));
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

/// Notes the order in which windows are offered WM_SETCURSOR.
class CursorWnd : public CWnd_E
{
public:
    CursorWnd(QStringList& trace, const char* name, LRESULT nResult)
        : m_trace(trace), m_name(QLatin1String(name)), m_nResult(nResult)
    {
    }
    LRESULT OnCursor(WPARAM, LPARAM)
    {
        m_trace << m_name;
        return m_nResult;
    }

protected:
    void OnMessageMap() override
    {
        using ThisClass_E = CursorWnd;
        CWnd_E::OnMessageMap();
        ON_MESSAGE_E(WM_SETCURSOR, &CursorWnd::OnCursor)
    }

private:
    QStringList& m_trace;
    QString m_name;
    LRESULT m_nResult;
};

TEST(SetCursorTest, TheOutermostWindowThatWantsTheCursorWins)
{
    const struct
    {
        LRESULT top, middle;
        const char* calls;
        LRESULT result;
    } rows[] = {{0, 0, "top middle child", 3}, {0, 2, "top middle", 2}, {1, 2, "top", 1}};
    for (const auto& row : rows) {
        QStringList trace;
        QWidget topWidget;
        auto* const middleWidget = new QWidget(&topWidget);
        auto* const childWidget = new QWidget(middleWidget);
        CursorWnd top(trace, "top", row.top), middle(trace, "middle", row.middle),
            child(trace, "child", 3);
        top.SubclassWindow(&topWidget);
        middle.SubclassWindow(middleWidget);
        child.SubclassWindow(childWidget);
        EXPECT_EQ(child.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(childWidget)),
                  row.result);
        EXPECT_EQ(trace.join(QLatin1Char(' ')), QLatin1String(row.calls));
    }
}

TEST(SetCursorTest, AWindowOfItsOwnAsksTheWindowThatOwnsIt)
{
    QStringList trace;
    QWidget ownerWidget;
    QWidget dialogWidget(&ownerWidget, Qt::Dialog);
    CursorWnd owner(trace, "owner", 4), dialog(trace, "dialog", 3);
    owner.SubclassWindow(&ownerWidget);
    dialog.SubclassWindow(&dialogWidget);
    EXPECT_EQ(dialog.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(dialog.GetSafeHwnd())), 4);
    EXPECT_EQ(trace, QStringList(QStringLiteral("owner")));
}

} // namespace
