#include "support/test.h"

namespace {
using EventPtr = std::shared_ptr<QEvent>;

EventPtr mouse(QEvent::Type type, QPointF at, Qt::MouseButton button,
               Qt::MouseButtons buttons = Qt::NoButton, Qt::KeyboardModifiers mods = Qt::NoModifier)
{
    return std::make_shared<QMouseEvent>(type, at, at, QPointF(at.x() + 1000, at.y() + 1000),
                                         button, buttons, mods);
}

EventPtr key(QEvent::Type type, int code, Qt::KeyboardModifiers mods = Qt::NoModifier,
             const QString& text = QString())
{
    return std::make_shared<QKeyEvent>(type, code, mods, text);
}

EventPtr wheel(QPointF at, QPoint angle)
{
    return std::make_shared<QWheelEvent>(at, at + QPointF(500, 500), QPoint(), angle,
                                         Qt::LeftButton, Qt::ShiftModifier, Qt::NoScrollPhase,
                                         false);
}

EventPtr hover(QEvent::Type type, QPointF at, Qt::KeyboardModifiers mods)
{
    return std::make_shared<QHoverEvent>(type, at, QPointF(), mods);
}

EventPtr plain(int type) { return std::make_shared<QEvent>(static_cast<QEvent::Type>(type)); }

class Translation : public testing::Test
{
protected:
    QWidget w;
    WPARAM address() { return reinterpret_cast<WPARAM>(&w); }
};

TEST_F(Translation, GivesEveryEventItsMessage)
{
    const auto L = Qt::LeftButton, R = Qt::RightButton, M = Qt::MiddleButton, X = Qt::XButton1;
    const auto shift = Qt::ShiftModifier, control = Qt::ControlModifier, alt = Qt::AltModifier;
    using E = QEvent;
    const Row<EventPtr, WPARAM, WPARAM, LPARAM> rows[] = {
        {std::make_shared<QTimerEvent>(77), 0x113, 77, 0},
        {mouse(E::MouseButtonPress, {3, 4}, L, L, shift), 0x201, 5, 0x40003},
        {mouse(E::MouseButtonPress, {3, 4}, R, L | R, alt), 0x204, 0x23, 0x40003},
        {mouse(E::MouseButtonPress, {3, 4}, M, M, control), 0x207, 0x18, 0x40003},
        {mouse(E::MouseButtonPress, {3, 4}, X, X), 0xFFFFFFFF, 0, 0x40003},
        {mouse(E::MouseButtonRelease, {0.4, 0.5}, L), 0x202, 0, 0x10000},
        {mouse(E::MouseButtonRelease, {1.5, 2.5}, R, L), 0x205, 1, 0x30002},
        {mouse(E::MouseButtonRelease, {1, 2}, M), 0x208, 0, 0x20001},
        {mouse(E::MouseButtonRelease, {1, 2}, X), 0xFFFFFFFF, 0, 0x20001},
        {mouse(E::MouseButtonDblClick, {1, 2}, L, L), 0x203, 1, 0x20001},
        {mouse(E::MouseButtonDblClick, {1, 2}, R, R), 0x206, 2, 0x20001},
        {mouse(E::MouseButtonDblClick, {1, 2}, M, M), 0x209, 0x10, 0x20001},
        // Halves away from zero, and nothing sign-extended.
        {mouse(E::MouseMove, {-2.5, -0.5}, Qt::NoButton), 0x200, 0, 0xFFFFFFFD},
        {mouse(E::MouseMove, {-1.5, 2.4}, Qt::NoButton), 0x200, 0, 0x2FFFE},
        {mouse(E::MouseMove, {0.5, -2.5}, Qt::NoButton), 0x200, 0, 0xFFFD0001},
        {key(E::KeyPress, Qt::Key_A), 0x100, 0x41, 1},
        {key(E::KeyPress, Qt::Key_F4, alt), 0x104, 0x73, 0x200001},
        {key(E::KeyPress, Qt::Key_A, alt | shift), 0x104, 0x41, 0x240001},
        {key(E::KeyPress, Qt::Key_Exclam, control), 0x100, 0x31, 0x80001},
        {key(E::KeyPress, Qt::Key_Aring), 0x100, 0xFFFFFFFF, 1},
        {key(E::KeyRelease, Qt::Key_Return), 0x101, 0x0D, 0x80000001},
        {key(E::KeyRelease, Qt::Key_A, alt), 0x105, 0x41, 0x80200001},
        {key(E::KeyRelease, Qt::Key_unknown), 0x101, 0xFFFFFFFF, 0x80000001},
        // The modifier keys themselves: a press of Alt is held, its release is not.
        {key(E::KeyPress, Qt::Key_Alt), 0x104, 0x12, 0x200001},
        {key(E::KeyRelease, Qt::Key_Alt, alt), 0x101, 0x12, 0x80000001},
        {plain(E::Leave), 0x2A3, 0, 0},
        {std::make_shared<QPaintEvent>(QRect(1, 2, 3, 4)), 0xF, 0, 0},
        {std::make_shared<QResizeEvent>(QSize(640, 480), QSize(1, 2)), 5, 0, 0x1E00280},
        {std::make_shared<QCloseEvent>(), 0x10, 0, 0},
        {plain(E::WindowActivate), 6, 1, LPARAM(address())},
        {plain(E::WindowDeactivate), 6, 0, LPARAM(address())},
        {plain(E::ShowToParent), 0x18, 0, 0},
        {wheel({5.5, 6}, {0, 120}), 0x20A, 0x780000, 0x60006},
        {wheel({5, 6}, {0, -120}), 0x20A, 0xFF880000, 0x60005},
        {wheel({5, 6}, {-240, 120}), 0x20A, 0xFF100000, 0x60005},
        {std::make_shared<QContextMenuEvent>(QContextMenuEvent::Mouse, QPoint(7, -1),
                                             QPoint(70, 80)),
         0x7B, address(), 0xFFFF0007},
        {hover(E::HoverEnter, {3.5, 1}, shift), 0x2A1, 4, 0x10004},
        {hover(E::HoverLeave, {-1, -1}, alt), 0x2A3, 0x20, 0xFFFFFFFF},
        {std::make_shared<VxWinMsgEvent>(0xC0DE, ~WPARAM(0), LPARAM(-5)), 0xC0DE, ~WPARAM(0), -5},
    };
    for (const auto& row : rows) {
        const EventPtr event = std::get<0>(row);
        tagMSG msg{};
        ASSERT_EQ(vxQEventToMsg(&w, event.get(), &msg), TRUE);
        EXPECT_EQ(msg.hwnd, &w);
        EXPECT_EQ(std::tuple(event, msg.message, msg.wParam, msg.lParam), row);
    }
}

TEST_F(Translation, KnowsNoOtherEvent)
{
    const std::set<int> known{1,  2,  3,  4,  5,  6,  7,   11,  12,  14,
                              19, 24, 25, 26, 31, 82, 127, 128, 175, 1128};
    for (int type = 0; type < 2000; ++type) {
        if (known.count(type))
            continue;
        tagMSG msg{};
        msg.message = 4711;
        EXPECT_EQ(vxQEventToMsg(&w, plain(type).get(), &msg), FALSE) << type;
        EXPECT_EQ(msg.message, 4711U) << type;
    }
}

TEST_F(Translation, RefusesNullArguments)
{
    tagMSG msg{};
    QCloseEvent close;
    EXPECT_FALSE(vxQEventToMsg(nullptr, &close, &msg) || vxQEventToMsg(&w, nullptr, &msg) ||
                 vxQEventToMsg(&w, &close, nullptr));
    EXPECT_FALSE(TranslateMessage(nullptr, &close, &msg) || TranslateMessage(&w, nullptr, &msg) ||
                 TranslateMessage(&w, &close, nullptr));
}

TEST_F(Translation, StampsTimeAndCursorAndKnowsWhatIsNoWindow)
{
    tagMSG msg{};
    msg.hwnd = &w;
    QObject object;
    QCloseEvent close;
    QCursor::setPos(33, 44);
    const auto before = QDateTime::currentSecsSinceEpoch();
    ASSERT_TRUE(vxQEventToMsg(&object, &close, &msg));
    EXPECT_EQ(msg.hwnd, nullptr);
    EXPECT_GE(msg.time, before);
    EXPECT_LE(msg.time, QDateTime::currentSecsSinceEpoch());
    EXPECT_EQ(CPoint_E(msg.pt), CPoint_E(33, 44));
    const EventPtr release = mouse(QEvent::NonClientAreaMouseButtonRelease, {}, Qt::LeftButton);
    ASSERT_TRUE(vxQEventToMsg(&object, release.get(), &msg));
    EXPECT_EQ(msg.wParam, 2U);
}

TEST_F(Translation, TellsThePartOfTheFrame)
{
    w.setGeometry(100, 120, 200, 150);
    w.setContentsMargins(5, 6, 7, 8);
    const int top = w.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const int right = 200 - 7;
    const int bottom = 150 - 8;
    const Row<QPoint, WPARAM> rows[] = {
        {{5, top + 1}, 10},         {{5, bottom - 1}, 10},
        {{6, top + 1}, 2},          {{5, top}, 2},
        {{5, bottom}, 2},           {{-20, -20}, 2},
        {{5, bottom + 1}, 15},      {{50, bottom + 1}, 15},
        {{50, bottom}, 2},          {{right + 1, bottom + 1}, 15},
        {{right + 1, top + 1}, 11}, {{right + 1, bottom - 1}, 11},
        {{right, top + 1}, 2},      {{right + 1, top}, 2},
        {{right + 1, bottom}, 2},
    };
    for (const auto& [point, code] : rows) { // from the window's corner
        SCOPED_TRACE(testing::Message() << point.x() << ' ' << point.y());
        const QPoint at = QPoint(100, 120) + point;
        QCursor::setPos(at);
        for (const auto button : {Qt::LeftButton, Qt::RightButton}) {
            tagMSG msg{};
            const EventPtr e = mouse(QEvent::NonClientAreaMouseButtonRelease, {1, 1}, button);
            ASSERT_TRUE(vxQEventToMsg(&w, e.get(), &msg));
            EXPECT_EQ(msg.message, button == Qt::LeftButton ? 0xA2U : 0xFFFFFFFFU);
            EXPECT_EQ(msg.wParam, code);
            EXPECT_EQ(msg.lParam, (at.y() << 16) | at.x());
        }
    }
    // The right edge wins in a narrow window.
    w.setGeometry(100, 120, 4, 150);
    w.setContentsMargins(5, 0, 5, 0);
    QCursor::setPos(103, 220);
    tagMSG msg{};
    const EventPtr e = mouse(QEvent::NonClientAreaMouseButtonRelease, {}, Qt::LeftButton);
    ASSERT_TRUE(vxQEventToMsg(&w, e.get(), &msg));
    EXPECT_EQ(msg.wParam, 11U);
}

TEST_F(Translation, MakesKeyEvents)
{
    const Row<UINT, WPARAM, int, int, QString> rows[] = {
        {0x100, 0x41, QEvent::KeyPress, Qt::Key_A, "65"_q},
        {0x100, 0x30, QEvent::KeyPress, Qt::Key_ParenRight, "41"_q},
        {0x100, 0x0D, QEvent::KeyPress, Qt::Key_Return, "16777220"_q},
        {0x101, 0x0D, QEvent::KeyRelease, 0x0D, "13"_q},
        {0x101, 0x30, QEvent::KeyRelease, Qt::Key_0, "48"_q},
        {0x102, 0x61, QEvent::KeyPress, 0x61, "a"_q},
        {0x102, 0, QEvent::KeyPress, 0, QString(QChar(0))},
        {0x102, 0xFEFF, QEvent::KeyPress, 0xFEFF, QString(QChar(0xFEFF))},
        {0x102, 0x1D11E, QEvent::KeyPress, 0x1D11E, "\U0001D11E"_q},
        {0x102, 0x110000, QEvent::KeyPress, 0x110000, QString(QChar(0xFFFD))},
        {0x104, 0x78, QEvent::KeyPress, 0x78, "x"_q},
    };
    forRows(rows, [&](UINT message, WPARAM wParam, int type, int code, const QString& text) {
        for (const QWidget* target : {&w, static_cast<QWidget*>(nullptr)}) {
            const EventPtr e(vxMsgToQEvent(target, message, wParam, 0x12345678));
            ASSERT_EQ(e->type(), type);
            const auto& event = static_cast<const QKeyEvent&>(*e);
            EXPECT_EQ(event.key(), code);
            EXPECT_EQ(event.text(), text);
            EXPECT_EQ(event.modifiers(), Qt::NoModifier);
        }
    });
}

TEST_F(Translation, MakesMouseEvents)
{
    w.move(300, 200);
    QWidget child(&w);
    child.move(10, 20);
    const Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    const QEvent::Type types[] = {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                  QEvent::MouseButtonDblClick};
    for (UINT message = 0x200; message <= 0x209; ++message) {
        for (const QWidget* target : {&child, static_cast<QWidget*>(nullptr)}) {
            SCOPED_TRACE(message);
            const EventPtr e(vxMsgToQEvent(target, message, 0xFF, 0xFFFF0003)); // y is not -1
            const bool move = message == 0x200;
            const UINT place = message - 0x201;
            ASSERT_EQ(e->type(), move ? QEvent::MouseMove : types[place % 3]);
            const auto& event = static_cast<const QMouseEvent&>(*e);
            EXPECT_EQ(event.button(), move ? Qt::NoButton : buttons[place / 3]);
            EXPECT_EQ(event.buttons(), Qt::MouseButtons(event.button()));
            EXPECT_EQ(event.modifiers(), Qt::NoModifier);
            EXPECT_EQ(event.localPos(), QPointF(3, 65535));
            EXPECT_EQ(event.windowPos(), target ? QPointF(13, 65555) : event.localPos());
            EXPECT_EQ(event.screenPos(),
                      target ? QPointF(child.mapToGlobal(QPoint(3, 65535))) : event.localPos());
        }
    }
}

TEST_F(Translation, MakesResizeEvents)
{
    w.resize(70, 80);
    const EventPtr e(vxMsgToQEvent(&w, 5, 0, 0xFFFF0280));
    ASSERT_EQ(e->type(), QEvent::Resize);
    EXPECT_EQ(static_cast<QResizeEvent&>(*e).size(), QSize(640, 65535));
    EXPECT_EQ(static_cast<QResizeEvent&>(*e).oldSize(), QSize(70, 80));
    EXPECT_EQ(EventPtr(vxMsgToQEvent(nullptr, 5, 0, 1))->type(), QEvent::Resize);
}

TEST_F(Translation, CarriesOtherMessagesAsTheyAre)
{
    const auto check = [this](UINT message, WPARAM wParam) {
        SCOPED_TRACE(testing::Message() << message << ", " << wParam);
        const EventPtr e(vxMsgToQEvent(&w, message, wParam, -9));
        ASSERT_EQ(int(e->type()), 1128);
        const auto& event = static_cast<const VxWinMsgEvent&>(*e);
        EXPECT_EQ(event.message, message);
        EXPECT_EQ(event.wParam, wParam);
        EXPECT_EQ(event.lParam, -9);
        EXPECT_EQ(event.result, 0);
    };
    for (UINT message :
         {0x0U, 0x6U, 0xFU, 0x10U, 0x103U, 0x105U, 0x106U, 0x1FFU, 0x20AU, 0x400U, ~0U})
        check(message, 65);
    for (WPARAM key : {0x0UL, 0x6BUL, 0x100041UL, ~0UL, 0xFFFFFFFFUL, 0x100000041UL})
        check(0x100, key);
}

/// Notes the messages that arrive, as text.
class Recorder : public QObject
{
public:
    bool event(QEvent* e) override
    {
        if (e->type() != VxWinMsgEvent::EventType)
            return QObject::event(e);
        const auto& m = static_cast<const VxWinMsgEvent&>(*e);
        const QString sender =
            m.wParam == reinterpret_cast<WPARAM>(this) ? "self"_q : QString::number(m.wParam, 16);
        seen << "%1 %2 %3"_q.arg(m.message, 0, 16).arg(sender).arg(m.lParam, 0, 16);
        return true;
    }
    std::string translate(const EventPtr& e, BOOL expected)
    {
        tagMSG msg{};
        vxQEventToMsg(this, e.get(), &msg);
        EXPECT_EQ(TranslateMessage(this, e.get(), &msg), expected);
        EXPECT_TRUE(seen.isEmpty()) << "sent, not posted";
        vxtest::deliverPosted();
        return std::exchange(seen, {}).join("; "_q).toStdString();
    }
    QStringList seen;
};

TEST(TranslateMessage, PostsCharactersAndAsksForACursor)
{
    const auto press = [](const QString& text, Qt::KeyboardModifiers mods = Qt::NoModifier) {
        return key(QEvent::KeyPress, Qt::Key_A, mods, text);
    };
    const QChar broken[] = {QChar(0xD834), QChar(u'a'), QChar(0xDD1E), QChar(0xD834)};
    const QPointF at(1, 2);
    const Row<EventPtr, BOOL, const char*> rows[] = {
        {press("ab"_q), TRUE, "102 61 1; 102 62 1"},
        {press({}), TRUE, ""},
        {press("A"_q, Qt::ShiftModifier), TRUE, "102 41 40001"},
        {press("x"_q, Qt::AltModifier | Qt::ControlModifier), TRUE, "106 78 280001"},
        {press("\U0001D11E!"_q), TRUE, "102 1d11e 1; 102 21 1"},
        {press(QString(broken, 4)), TRUE, "102 fffd 1; 102 61 1; 102 fffd 1; 102 fffd 1"},
        {key(QEvent::KeyRelease, Qt::Key_A, {}, "a"_q), FALSE, ""},
        {mouse(QEvent::MouseMove, at, Qt::NoButton), TRUE, "20 self 2000000"},
        {mouse(QEvent::MouseButtonPress, at, Qt::LeftButton), TRUE, "20 self 2010000"},
        {mouse(QEvent::MouseButtonRelease, at, Qt::RightButton), TRUE, "20 self 2050000"},
        {mouse(QEvent::MouseButtonDblClick, at, Qt::XButton2), TRUE, "20 self ffff0000"},
        {wheel(at, {0, 120}), FALSE, ""},
        {std::make_shared<QTimerEvent>(1), FALSE, ""},
        {plain(0), FALSE, ""},
        {std::make_shared<VxWinMsgEvent>(0x201, 0, 0), FALSE, ""},
    };
    Recorder r;
    forRows(rows, [&](const EventPtr& event, BOOL translated, const char* posted) {
        EXPECT_EQ(r.translate(event, translated), posted);
    });
    QWidget grabber;
    grabber.show();
    grabber.grabMouse();
    EXPECT_EQ(r.translate(mouse(QEvent::MouseMove, at, Qt::NoButton), TRUE), "");
    grabber.releaseMouse();
}

} // namespace
