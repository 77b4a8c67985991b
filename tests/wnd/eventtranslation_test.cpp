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

EventPtr plain(int type) { return std::make_shared<QEvent>(static_cast<QEvent::Type>(type)); }

/// The message of a button that is released on the frame of @p receiver.
tagMSG releaseOnFrame(QObject& receiver, Qt::MouseButton button = Qt::LeftButton)
{
    tagMSG msg{};
    const EventPtr e = mouse(QEvent::NonClientAreaMouseButtonRelease, {1, 1}, button);
    EXPECT_TRUE(vxQEventToMsg(&receiver, e.get(), &msg));
    return msg;
}

struct Translation : testing::Test
{
    QWidget w;
    const WPARAM address = reinterpret_cast<WPARAM>(&w);
};

TEST_F(Translation, GivesEveryEventItsMessage)
{
    // Presses, moves, wheel turns, keys and sizes of the plain kind: see the tests of real input.
    const auto L = Qt::LeftButton, R = Qt::RightButton, X = Qt::XButton1;
    const auto shift = Qt::ShiftModifier, control = Qt::ControlModifier, alt = Qt::AltModifier;
    const QPointF at(3, 4);
    using E = QEvent;
    const Row<EventPtr, WPARAM, WPARAM, LPARAM> rows[] = {
        {std::make_shared<QTimerEvent>(77), 0x113, 77, 0},
        {mouse(E::MouseButtonPress, at, R, L | R, alt), 0x204, 0x23, 0x40003},
        {mouse(E::MouseButtonPress, at, X, X), 0xFFFFFFFF, 0, 0x40003},
        // Halves away from zero, and nothing sign-extended.
        {mouse(E::MouseButtonRelease, {0.4, 0.5}, L), 0x202, 0, 0x10000},
        {mouse(E::MouseMove, {-2.5, -0.5}, Qt::NoButton), 0x200, 0, 0xFFFFFFFD},
        {key(E::KeyPress, Qt::Key_Exclam, control), 0x100, 0x31, 0x80001},
        {key(E::KeyPress, Qt::Key_Aring), 0x100, 0xFFFFFFFF, 1},
        // The modifier keys themselves: a press of Alt is held, its release is not.
        {key(E::KeyPress, Qt::Key_Alt), 0x104, 0x12, 0x200001},
        {key(E::KeyRelease, Qt::Key_Alt, alt), 0x101, 0x12, 0x80000001},
        {plain(E::Leave), 0x2A3, 0, 0},
        {plain(E::WindowActivate), 6, 1, LPARAM(address)},
        {plain(E::ShowToParent), 0x18, 0, 0},
        {std::make_shared<QContextMenuEvent>(QContextMenuEvent::Mouse, QPoint(7, -1),
                                             QPoint(70, 80)),
         0x7B, address, 0xFFFF0007},
        {std::make_shared<QHoverEvent>(E::HoverEnter, QPointF(3.5, 1), at, shift), 0x2A1, 4,
         0x10004},
        {std::make_shared<VxWinMsgEvent>(0xC0DE, ~WPARAM(0), LPARAM(-5)), 0xC0DE, ~WPARAM(0), -5}};
    for (const auto& row : rows) {
        const EventPtr event = std::get<0>(row);
        tagMSG msg{};
        EXPECT_TRUE(vxQEventToMsg(&w, event.get(), &msg) && msg.hwnd == &w);
        EXPECT_EQ(std::tuple(event, msg.message, msg.wParam, msg.lParam), row);
    }
}

TEST_F(Translation, KnowsNoOtherEventAndNoNullArgumentsAndStampsTimeAndCursor)
{
    tagMSG msg{};
    msg.message = 4711;
    for (const int type : {0, 8, 10, 13, 129, 255, 256, 1127, 1129})
        EXPECT_FALSE(vxQEventToMsg(&w, plain(type).get(), &msg)) << type;
    QCloseEvent close;
    EXPECT_FALSE(vxQEventToMsg(nullptr, &close, &msg) || vxQEventToMsg(&w, nullptr, &msg) ||
                 vxQEventToMsg(&w, &close, nullptr));
    EXPECT_FALSE(TranslateMessage(nullptr, &close, &msg) || msg.message != 4711);

    // What is no window has none, and its frame no parts.
    QObject object;
    msg.hwnd = &w;
    EXPECT_TRUE(SetCursorPos_E(33, 44));
    ASSERT_TRUE(vxQEventToMsg(&object, plain(QEvent::Close).get(), &msg));
    EXPECT_TRUE(!msg.hwnd && CPoint_E(msg.pt) == CPoint_E(33, 44));
    EXPECT_TRUE(msg.time > 1600000000U); // seconds since 1970
    EXPECT_EQ(releaseOnFrame(object).wParam, 2U);
}

TEST_F(Translation, TellsThePartOfTheFrame)
{
    w.setGeometry(100, 120, 200, 150);
    w.setContentsMargins(5, 6, 7, 8);
    const int top = w.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const int right = 200 - 7, bottom = 150 - 8;
    const Row<int, int, WPARAM> rows[] = {
        {5, top + 1, 10},         {5, bottom - 1, 10}, {6, top + 1, 2},     {5, top, 2},
        {right + 1, top + 1, 11}, {right, top + 1, 2}, {5, bottom + 1, 15}, {50, bottom, 2}};
    forRows(rows, [&](int x, int y, WPARAM code) { // from the window's corner
        QCursor::setPos(x += 100, y += 120);
        const tagMSG msg = releaseOnFrame(w);
        EXPECT_TRUE(msg.message == 0xA2 && msg.wParam == code && msg.lParam == (y << 16 | x));
    });
    EXPECT_EQ(releaseOnFrame(w, Qt::RightButton).message, ~0U);
}

TEST_F(Translation, MakesKeyEvents)
{
    const Row<UINT, WPARAM, int, int, QString> rows[] = {
        {0x100, 0x30, QEvent::KeyPress, Qt::Key_ParenRight, "41"_q},
        {0x101, 0x0D, QEvent::KeyRelease, 0x0D, "13"_q},
        {0x102, 0, QEvent::KeyPress, 0, QString(QChar(0))},
        {0x102, 0xFEFF, QEvent::KeyPress, 0xFEFF, QString(QChar(0xFEFF))},
        {0x102, 0x1D11E, QEvent::KeyPress, 0x1D11E, "\U0001D11E"_q},
        {0x102, 0x110000, QEvent::KeyPress, 0x110000, QString(QChar(0xFFFD))},
        {0x104, 0x78, QEvent::KeyPress, 0x78, "x"_q}};
    forRows(rows, [](UINT message, WPARAM wParam, int type, int code, const QString& text) {
        const EventPtr e(vxMsgToQEvent(nullptr, message, wParam, 0x12345678));
        ASSERT_EQ(e->type(), type);
        const auto& event = static_cast<const QKeyEvent&>(*e);
        EXPECT_TRUE(event.key() == code && !event.modifiers());
        EXPECT_EQ(event.text(), text);
    });
}

TEST_F(Translation, MakesMouseEvents)
{
    w.move(300, 200);
    QWidget child(&w);
    child.move(10, 20);
    const QPoint at(3, 65535);
    const Qt::MouseButton buttons[] = {Qt::NoButton, Qt::LeftButton, Qt::RightButton,
                                       Qt::MiddleButton};
    const QEvent::Type types[] = {QEvent::MouseButtonDblClick, QEvent::MouseButtonPress,
                                  QEvent::MouseButtonRelease};
    for (UINT message = 0x200; message <= 0x209; ++message) {
        for (const QWidget* target : {&child, static_cast<QWidget*>(nullptr)}) {
            SCOPED_TRACE(message);
            const EventPtr e(vxMsgToQEvent(target, message, 0xFF, 0xFFFF0003)); // y is not -1
            const UINT place = message - 0x200;
            ASSERT_EQ(e->type(), place == 0 ? QEvent::MouseMove : types[place % 3]);
            const auto& event = static_cast<const QMouseEvent&>(*e);
            EXPECT_EQ(event.button(), buttons[(place + 2) / 3]);
            EXPECT_EQ(event.buttons(), Qt::MouseButtons(event.button()));
            EXPECT_TRUE(!event.modifiers() && event.localPos() == at);
            EXPECT_EQ(event.windowPos(), target ? child.mapTo(&w, at) : at);
            EXPECT_EQ(event.screenPos(), target ? child.mapToGlobal(at) : at);
        }
    }
}

TEST_F(Translation, MakesResizeEventsAndCarriesOtherMessagesAsTheyAre)
{
    w.resize(70, 80);
    const EventPtr resize(vxMsgToQEvent(&w, 5, 0, 0xFFFF0280));
    ASSERT_EQ(resize->type(), QEvent::Resize);
    EXPECT_EQ(static_cast<QResizeEvent&>(*resize).size(), QSize(640, 65535));
    EXPECT_EQ(static_cast<QResizeEvent&>(*resize).oldSize(), QSize(70, 80));
    const Row<UINT, WPARAM> others[] = {
        {0x20A, 65}, {~0U, 65}, {0x100, 0x6B}, {0x100, 0x100000041}};
    forRows(others, [this](UINT message, WPARAM wParam) {
        const EventPtr e(vxMsgToQEvent(&w, message, wParam, -9));
        ASSERT_EQ(int(e->type()), 1128);
        const auto& event = static_cast<const VxWinMsgEvent&>(*e);
        EXPECT_TRUE(event.message == message && event.wParam == wParam && event.lParam == -9);
    });
}

/// Notes the messages that arrive, as text.
struct Recorder : QObject
{
    bool event(QEvent* e) override
    {
        if (e->type() != VxWinMsgEvent::EventType)
            return QObject::event(e);
        const auto& m = static_cast<const VxWinMsgEvent&>(*e);
        const WPARAM wParam = m.wParam == reinterpret_cast<WPARAM>(this) ? 0x5E1F : m.wParam;
        seen << "%1 %2 %3"_q.arg(m.message, 0, 16).arg(wParam, 0, 16).arg(m.lParam, 0, 16);
        return true;
    }
    void expect(const EventPtr& e, BOOL translated, const char* posted)
    {
        tagMSG msg{};
        vxQEventToMsg(this, e.get(), &msg);
        EXPECT_EQ(TranslateMessage(this, e.get(), &msg), translated);
        EXPECT_TRUE(seen.isEmpty()) << "sent, not posted";
        vxtest::deliverPosted();
        EXPECT_EQ(std::exchange(seen, {}).join("; "_q), QLatin1String(posted));
    }
    QStringList seen;
};

TEST(TranslateMessage, PostsCharactersAndAsksForACursor)
{
    const auto press = [](const QString& text, Qt::KeyboardModifiers mods = Qt::NoModifier) {
        return key(QEvent::KeyPress, Qt::Key_A, mods, text);
    };
    const auto broken = QString::fromUtf16(u"\xD834"
                                           u"a\xDD1E\xD834");
    const QPointF at(1, 2);
    const Row<EventPtr, BOOL, const char*> rows[] = {
        {press("x"_q, Qt::AltModifier | Qt::ControlModifier), TRUE, "106 78 280001"},
        {press("\U0001D11E!"_q), TRUE, "102 1d11e 1; 102 21 1"},
        {press(broken), TRUE, "102 fffd 1; 102 61 1; 102 fffd 1; 102 fffd 1"},
        {key(QEvent::KeyRelease, Qt::Key_A, {}, "a"_q), FALSE, ""},
        {mouse(QEvent::MouseMove, at, Qt::NoButton), TRUE, "20 5e1f 2000000"},
        {mouse(QEvent::MouseButtonRelease, at, Qt::RightButton), TRUE, "20 5e1f 2050000"},
        {mouse(QEvent::MouseButtonDblClick, at, Qt::XButton2), TRUE, "20 5e1f ffff0000"},
        {std::make_shared<VxWinMsgEvent>(0x201, 0, 0), FALSE, ""}};
    Recorder r;
    forRows(rows, [&r](const auto&... cells) { r.expect(cells...); });
    QWidget grabber;
    grabber.show();
    grabber.grabMouse();
    r.expect(mouse(QEvent::MouseMove, at, Qt::NoButton), TRUE, "");
    grabber.releaseMouse();
}

} // namespace
