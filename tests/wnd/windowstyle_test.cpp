#include "support/test.h"

TEST(WindowStyle, FlagsAndStates)
{
    constexpr Qt::WindowFlags none;
    const Row<QString, Qt::WindowFlags, Qt::WindowStates> rows[] = {
        // A name is also found inside a longer one.
        {"WS_MINIMIZEBOX"_q, Qt::WindowMinimizeButtonHint, Qt::WindowMinimized},
        {"WS_MAXIMIZEBOX"_q, Qt::WindowMaximizeButtonHint, Qt::WindowMaximized},
        {"WS_MAXIMIZE|WS_ICONIC"_q, none, Qt::WindowMinimized},
        {"WS_THICKFRAME"_q, Qt::Window, {}},
        {"WS_DLGFRAME"_q, Qt::Window, {}},
        {"WS_CHILDWINDOW"_q, Qt::SubWindow, {}},
        {"WS_CHILD|WS_POPUP"_q, none, {}},
        {"WS_POPUP"_q, Qt::FramelessWindowHint, {}},
        {"WS_POPUPWINDOW"_q, Qt::FramelessWindowHint | Qt::Dialog | Qt::WindowSystemMenuHint, {}},
        {"ws_popup"_q, none, {}}};
    forRows(rows, [&](const QString& style, Qt::WindowFlags flags, Qt::WindowStates states) {
        // A child starts without flags of its own.
        QWidget parent;
        auto* const pChild = new QWidget(&parent);
        const Qt::WindowFlags before = pChild->windowFlags();
        pChild->setProperty("mfcStyle", style);
        setupStyle(pChild);
        EXPECT_EQ(int(pChild->windowFlags()), int(before | flags));
        EXPECT_EQ(int(pChild->windowState()), int(states));
    });
}

TEST(WindowStyle, AppliesToAWidgetAndItsDirectChildren)
{
    QWidget top;
    auto* const pFirst = new QWidget(&top);
    auto* const pSecond = new QWidget(&top);
    auto* const pGrandChild = new QWidget(pFirst);
    pFirst->setProperty("mfcStyle", "WS_DISABLED|WS_SIZEBOX"_q); // moves it behind the second
    pSecond->setProperty("mfcStyle", "WS_DISABLED|WS_VISIBLE|WS_BORDER|DS_MODALFRAME"_q);
    pGrandChild->setProperty("mfcStyle", "WS_DISABLED"_q);
    pSecond->hide();
    setupStyle(&top); // without a style of its own
    EXPECT_TRUE(top.isEnabled() && !pFirst->isEnabled() && !pSecond->isEnabled());
    EXPECT_TRUE(!pSecond->isHidden() && pGrandChild->isEnabledTo(pFirst));
    EXPECT_EQ(pSecond->styleSheet(), "border: 1px solid black;"_q);
    EXPECT_EQ(pSecond->windowModality(), Qt::ApplicationModal);
    setupStyle(nullptr);
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
    alone.setGeometry(1, 1, 100, 80);
    setupDialogStyleData(&alone, "DS_CENTERMOUSE"_q); // holds DS_CENTER
    const QPoint middle = QGuiApplication::primaryScreen()->geometry().center();
    EXPECT_EQ(alone.pos(), middle - QPoint(50, 40));
}
