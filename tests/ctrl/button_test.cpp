#include "support/test.h"
#include "support/xinput.h"

#include <QtTest/QSignalSpy>

namespace {

constexpr tagRECT kRect{5, 6, 105, 36};

QPixmap redPixmap()
{
    QPixmap pixmap(12, 10);
    pixmap.fill(Qt::red);
    return pixmap;
}

LPARAM handleOf(const void* p) { return static_cast<LPARAM>(reinterpret_cast<std::intptr_t>(p)); }

} // namespace

TEST(Button, StyleChoosesTheWidgetThatIsMade)
{
    QWidget parent;
    const Row<DWORD, const char*, DWORD> rows[] = {
        {BS_PUSHBUTTON, "QPushButton", 0},
        {BS_DEFPUSHBUTTON, "QPushButton", 1},
        {BS_CHECKBOX, "QCheckBox", 3},
        {BS_AUTOCHECKBOX, "QCheckBox", 3},
        {BS_3STATE, "QCheckBox", 5},
        {BS_AUTO3STATE, "QCheckBox", 6},
        {BS_RADIOBUTTON, "QRadioButton", 4},
        {BS_AUTORADIOBUTTON, "QRadioButton", 9},
        {BS_GROUPBOX, "QGroupBox", 7},
        {BS_USERBUTTON, "QPushButton", 8},
        {BS_OWNERDRAW | BS_FLAT | WS_VISIBLE, "QPushButton", 0x1000800B},
    };
    forRows(rows, [&](DWORD dwStyle, const char* name, DWORD made) {
        CButton_E button;
        ASSERT_TRUE(button.Create(L"&Text", dwStyle, kRect, &parent));
        const QWidget* const pWidget = button.GetSafeHwnd();
        EXPECT_STREQ(pWidget->metaObject()->className(), name);
        EXPECT_EQ(button.GetStyle(), made);
        EXPECT_EQ(button.GetButtonStyle(), made & 0xFFFF);
        EXPECT_EQ(pWidget->geometry(), QRect(5, 6, 100, 30));
        EXPECT_EQ(pWidget->property(made == BS_GROUPBOX ? "title" : "text"), "&Text"_q);
        EXPECT_EQ(pWidget->property("tristate").toBool(), made == 5 || made == 6);
        EXPECT_EQ(pWidget->property("flat").toBool(), (dwStyle & BS_FLAT) != 0);
        button.SetWindowText(nullptr);
        EXPECT_EQ(button.GetWindowTextLength(), 0);
    });
    CButton_E button;
    CWnd_E window;
    window.AttachDefault(&parent);
    EXPECT_TRUE(button.Create(nullptr, BS_GROUPBOX, kRect, &window, 0xFFFF));
    EXPECT_EQ(button.GetParent(), &window);
}

TEST(Button, FoundWidgetGivesTheStyle)
{
    QCheckBox three;
    three.setTristate(true);
    const Row<std::shared_ptr<QWidget>, DWORD> rows[] = {
        {std::make_shared<QCheckBox>(), BS_AUTOCHECKBOX},
        {std::make_shared<QRadioButton>(), BS_RADIOBUTTON},
        {std::make_shared<QGroupBox>(), BS_GROUPBOX},
        {std::make_shared<QPushButton>(), 0U},
        {std::make_shared<QToolButton>(), 0U},
        {std::shared_ptr<QWidget>(&three, [](QWidget*) {}), BS_AUTOCHECKBOX},
    };
    forRows(rows, [](const std::shared_ptr<QWidget>& pWidget, DWORD dwStyle) {
        const auto* const pButton = qobject_cast<CButton_E*>(CWnd_E::FromHandle(pWidget.get()));
        ASSERT_TRUE(pButton);
        EXPECT_EQ(pButton->GetStyle(), dwStyle);
    });
    CWnd_E::DeleteTempMap();
}

TEST(Button, Check)
{
    QWidget parent;
    // What SetCheck() of 1, 2, 3, -1 and 0 leaves, one after the other.
    const Row<DWORD, const char*> rows[] = {
        {BS_AUTOCHECKBOX, "11110"},    {BS_3STATE, "12220"},   {BS_AUTO3STATE, "12220"},
        {BS_AUTORADIOBUTTON, "11110"}, {BS_GROUPBOX, "00000"}, {BS_PUSHBUTTON, "00000"},
    };
    constexpr int kSet[] = {1, 2, 3, -1, 0};
    forRows(rows, [&](DWORD dwStyle, const char* pszStates) {
        CButton_E button;
        ASSERT_TRUE(button.Create(L"", dwStyle, kRect, &parent));
        for (std::size_t i = 0; i < std::size(kSet); ++i) {
            button.SetCheck(kSet[i]);
            EXPECT_EQ(button.GetCheck(), pszStates[i] - '0') << kSet[i];
        }
        for (std::size_t i = 0; i < std::size(kSet); ++i) {
            button.SendMessage(BM_SETCHECK, static_cast<WPARAM>(kSet[i]));
            EXPECT_EQ(button.SendMessage(BM_GETCHECK), pszStates[i] - '0') << kSet[i];
        }
    });
    QCheckBox three;
    three.setTristate(true);
    CButton_E found;
    found.SubclassWindow(&three);
    found.SetCheck(2); // two states, as far as the style tells
    EXPECT_EQ(three.checkState(), Qt::Checked);
    found.SetButtonStyle(BS_AUTO3STATE);
    found.SetCheck(2);
    EXPECT_EQ(three.checkState(), Qt::PartiallyChecked);
    found.SendMessage(BM_SETSTYLE, BS_RADIOBUTTON | BS_LEFTTEXT);
    EXPECT_EQ(found.GetButtonStyle(), BS_AUTO3STATE | BS_LEFTTEXT);
    EXPECT_EQ(three.layoutDirection(), Qt::RightToLeft);
}

TEST(Button, UncheckInAGroupAndClick)
{
    QWidget parent;
    CButton_E radios[2];
    for (CButton_E& radio : radios)
        ASSERT_TRUE(radio.Create(L"", BS_AUTORADIOBUTTON, kRect, &parent));
    radios[0].SetCheck(1);
    radios[1].SetCheck(1);
    EXPECT_EQ(radios[0].GetCheck(), 0);
    radios[1].SetCheck(0);
    EXPECT_EQ(radios[1].GetCheck(), 0);
    const QSignalSpy clicks(radios[1].GetSafeHwnd(), SIGNAL(clicked()));
    radios[1].SetCheck(1);
    EXPECT_EQ(clicks.count(), 0);
    radios[0].Click();
    radios[1].SendMessage(BM_CLICK);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(radios[1].GetCheck(), 1);
}

TEST(Button, Images)
{
    CButton_E button;
    ASSERT_TRUE(button.Create(L"", 0, kRect, static_cast<QWidget*>(nullptr)));
    const QPixmap red = redPixmap();
    EXPECT_TRUE(button.GetBitmap().isNull() && button.GetIcon().isNull());
    EXPECT_TRUE(button.SetBitmap(red).isNull());
    EXPECT_EQ(button.GetBitmap().size(), red.size());
    const QIcon icon(red);
    button.SetIcon(icon);
    EXPECT_EQ(button.GetIcon().cacheKey(), icon.cacheKey());
    EXPECT_EQ(button.SetIcon(QIcon()).cacheKey(), icon.cacheKey());

    QImage image = red.toImage();
    EXPECT_EQ(button.SendMessage(BM_SETIMAGE, IMAGE_BITMAP, handleOf(&image)), 0);
    EXPECT_EQ(button.GetBitmap().toImage().pixelColor(3, 3), QColor(Qt::red));
    EXPECT_EQ(button.SendMessage(BM_GETIMAGE, IMAGE_BITMAP), handleOf(&image));
    EXPECT_EQ(button.SendMessage(BM_SETIMAGE, IMAGE_BITMAP, 0), handleOf(&image));
    EXPECT_EQ(button.SendMessage(BM_GETIMAGE, IMAGE_BITMAP), 0);
    EXPECT_TRUE(button.GetBitmap().isNull());
    button.SendMessage(BM_SETIMAGE, IMAGE_ICON, handleOf(&icon));
    EXPECT_EQ(button.GetIcon().cacheKey(), icon.cacheKey());
    EXPECT_EQ(button.SendMessage(BM_SETIMAGE, IMAGE_ENHMETAFILE, handleOf(&icon)), 0);
    tagSIZE size{};
    EXPECT_TRUE(button.GetIdealSize(&size) && size.cx > 0);
    EXPECT_FALSE(button.GetIdealSize(nullptr));
}

TEST(Button, NoWidgetAndOtherClasses)
{
    CButton_E none;
    CButton_E destroyed;
    CButton_E group;
    auto pWidget = std::make_unique<QCheckBox>();
    ASSERT_TRUE(destroyed.SubclassWindow(pWidget.get()));
    pWidget.reset();
    QGroupBox box;
    ASSERT_TRUE(group.SubclassWindow(&box));
    QLineEdit edit;
    EXPECT_FALSE(none.SubclassWindow(&edit));
    for (CButton_E* const pButton : {&none, &destroyed, &group}) {
        pButton->SetCheck(1);
        pButton->SetState(TRUE);
        pButton->Click();
        pButton->SetIcon(QIcon(redPixmap()));
        pButton->SetBitmap(redPixmap());
        EXPECT_EQ(pButton->GetCheck(), 0);
        EXPECT_EQ(pButton->GetState(), 0U);
        EXPECT_TRUE(pButton->GetIcon().isNull() && pButton->GetBitmap().isNull());
        EXPECT_EQ(pButton->SendMessage(BM_SETIMAGE, IMAGE_ICON, 0), 0);
    }
    none.SetButtonStyle(BS_AUTO3STATE);
    EXPECT_EQ(none.GetButtonStyle(), 0U);
}

TEST(Button, RealClicksAndFocus)
{
    VXTEST_NEEDS_X11();
    QWidget window;
    window.resize(200, 100);
    CButton_E box;
    CButton_E push;
    ASSERT_TRUE(box.Create(L"three", BS_AUTO3STATE | WS_VISIBLE, kRect, &window));
    ASSERT_TRUE(push.Create(L"push", WS_VISIBLE, {5, 50, 105, 80}, &window));
    ASSERT_TRUE(vxtest::showAndActivate(&window));
    for (const int nState : {2, 1, 0}) {
        vxtest::movePointer(box.GetSafeHwnd(), {10, 15});
        vxtest::clickButton(1);
        EXPECT_TRUE(vxtest::waitUntil([&] { return box.GetCheck() == nState; })) << nState;
    }
    push.SetState(TRUE);
    EXPECT_EQ(push.GetState(), static_cast<UINT>(BST_FOCUS));
    EXPECT_EQ(box.SendMessage(BM_GETSTATE), 0);
    push.SendMessage(BM_SETSTATE, FALSE);
    EXPECT_EQ(push.GetState(), 0U);
}
