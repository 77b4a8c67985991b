#include "support/test.h"

namespace {

void setStyle(QWidget& widget, const char* style)
{
    widget.setProperty("mfcStyle", QString::fromLatin1(style));
}

} // namespace

TEST(WindowStyle, FlagsAndStates)
{
    constexpr Qt::WindowFlags none;
    const Row<const char*, Qt::WindowFlags, Qt::WindowStates> rows[] = {
        {"WS_MAXIMIZE", none, Qt::WindowMaximized},
        {"WS_ICONIC", none, Qt::WindowMinimized},
        {"WS_MINIMIZEBOX", Qt::WindowMinimizeButtonHint, Qt::WindowMinimized},
        {"WS_MAXIMIZEBOX", Qt::WindowMaximizeButtonHint, Qt::WindowMaximized},
        {"WS_MAXIMIZE|WS_ICONIC", none, Qt::WindowMinimized},
        {"WS_THICKFRAME", Qt::Window, {}},
        {"WS_SIZEBOX", Qt::Window, {}},
        {"WS_DLGFRAME", Qt::Window, {}},
        {"WS_CHILDWINDOW", Qt::SubWindow, {}},
        {"WS_CHILD|WS_POPUP", none, {}},
        {"WS_POPUP", Qt::FramelessWindowHint, {}},
        {"WS_POPUP|WS_CAPTION", none, {}},
        {"WS_POPUPWINDOW", Qt::FramelessWindowHint | Qt::Dialog | Qt::WindowSystemMenuHint, {}},
        {"ws_popup", none, {}},
        {"", none, {}},
    };
    forRows(rows, [&](const char* style, Qt::WindowFlags flags, Qt::WindowStates states) {
        // A child starts without flags of its own.
        QWidget parent;
        auto* const pChild = new QWidget(&parent);
        const Qt::WindowFlags before = pChild->windowFlags();
        setStyle(*pChild, style);
        setupStyle(pChild);
        EXPECT_EQ(int(pChild->windowFlags()), int(before | flags));
        EXPECT_EQ(int(pChild->windowState()), int(states));
    });
}

TEST(WindowStyle, StateOfTheWidget)
{
    QWidget parent;
    auto* const pChild = new QWidget(&parent);
    pChild->hide();
    setStyle(*pChild, "WS_DISABLED|WS_VISIBLE|WS_BORDER|DS_MODALFRAME");
    setupStyle(pChild);
    EXPECT_FALSE(pChild->isEnabled());
    EXPECT_FALSE(pChild->isHidden());
    EXPECT_EQ(pChild->styleSheet(), "border: 1px solid black;"_q);
    EXPECT_EQ(pChild->windowModality(), Qt::ApplicationModal);
}

TEST(WindowStyle, DirectChildrenOnly)
{
    QWidget top;
    auto* const pFirst = new QWidget(&top);
    auto* const pSecond = new QWidget(&top);
    auto* const pGrandChild = new QWidget(pFirst);
    new QObject(&top);
    setStyle(*pFirst, "WS_DISABLED|WS_SIZEBOX"); // moves it behind the second in the list
    setStyle(*pSecond, "WS_DISABLED");
    setStyle(*pGrandChild, "WS_BORDER");
    setupStyle(&top); // without a style of its own
    EXPECT_FALSE(pFirst->isEnabled() || pSecond->isEnabled());
    EXPECT_TRUE(top.isEnabled());
    EXPECT_EQ(pGrandChild->styleSheet(), QString());
    setupStyle(nullptr);
    setupDialogStyleData(nullptr, "DS_CENTER"_q);
    setupWindowStyleData(nullptr, "WS_VISIBLE"_q);
}

TEST(WindowStyle, Centre)
{
    QWidget parent;
    parent.setGeometry(100, 50, 301, 200);
    auto* const pChild = new QWidget(&parent);
    pChild->resize(51, 40);
    setupDialogStyleData(pChild, "DS_CENTER"_q);
    // (100 + 400) / 2 - 51 / 2, (50 + 249) / 2 - 40 / 2, in the coordinates of the parent's own
    // place.
    EXPECT_EQ(pChild->pos(), QPoint(225, 129));

    QWidget alone;
    alone.resize(100, 80);
    alone.move(1, 1);
    setupDialogStyleData(&alone, "DS_CENTERMOUSE"_q); // holds DS_CENTER
    const QPoint middle = QGuiApplication::primaryScreen()->geometry().center();
    EXPECT_EQ(alone.pos(), middle - QPoint(50, 40));
}
