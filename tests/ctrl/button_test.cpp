#include "controls.h"
#include "support/xinput.h"

#include <QtTest/QSignalSpy>

namespace {

using namespace vxtest;

TEST(Button, StyleAndCheckOfMadeAndFoundButtons)
{
    CWnd_E window;
    ASSERT_TRUE(window.Create(static_cast<QWidget*>(nullptr)));
    QWidget* const pParent = window;
    auto* const pThree = new QCheckBox(pParent);
    pThree->setTristate(true);
    // What the form has; the style asked for, the widget's class and style, and what SetCheck() of
    // 1, 2, 3, -1 and 0 leaves, one after the other.
    const Row<QWidget*, DWORD, const char*, DWORD, const char*> rows[] = {
        {nullptr, BS_PUSHBUTTON, "QPushButton", 0, "00000"},
        {nullptr, BS_DEFPUSHBUTTON | BS_FLAT, "QPushButton", 0x8001, "00000"},
        {nullptr, BS_CHECKBOX, "QCheckBox", 3, "11110"},
        {nullptr, BS_AUTOCHECKBOX, "QCheckBox", 3, "11110"},
        {nullptr, BS_3STATE, "QCheckBox", 5, "12220"},
        {nullptr, BS_AUTO3STATE, "QCheckBox", 6, "12220"},
        {nullptr, BS_RADIOBUTTON, "QRadioButton", 4, "11111"},
        {nullptr, BS_AUTORADIOBUTTON, "QRadioButton", 9, "11111"},
        {nullptr, BS_GROUPBOX, "QGroupBox", 7, "00000"},
        {nullptr, BS_OWNERDRAW, "QPushButton", 0xB, "00000"},
        {pThree, 0, "QCheckBox", BS_AUTOCHECKBOX, "11110"},
        {new QRadioButton(pParent), 0, "QRadioButton", BS_RADIOBUTTON, "11111"},
        {new QGroupBox(pParent), 0, "QGroupBox", BS_GROUPBOX, "00000"},
        {new QToolButton(pParent), 0, "QToolButton", 0, "00000"},
    };
    forRows(rows, [&](QWidget* pFound, DWORD dwStyle, const char* pszClass, DWORD set,
                      const char* pszStates) {
        CButton_E made;
        ASSERT_TRUE(pFound || made.Create(L"", dwStyle, kPlace, &window, 0xFFFF) == 1);
        QWidget* const pWidget = pFound ? pFound : made;
        auto* const pButton = qobject_cast<CButton_E*>(CWnd_E::FromHandle(pWidget));
        ASSERT_TRUE(pButton);
        EXPECT_STREQ(pWidget->metaObject()->className(), pszClass);
        EXPECT_EQ(pButton->GetStyle(), set);
        EXPECT_EQ(pButton->GetButtonStyle(), set);
        EXPECT_EQ(pWidget->property("flat").toBool(), set == 0x8001);
        pButton->SetWindowText(L"&Text");
        EXPECT_EQ(pWidget->property(set == BS_GROUPBOX ? "title" : "text"), "&Text"_q);
        for (const int nSet : {1, 2, 3, -1, 0}) {
            const Steps check = {{BM_SETCHECK, nSet, 0}, {BM_GETCHECK, *pszStates++ - '0'}};
            runSteps(pWidget, check);
        }
    });
    CButton_E found;
    ASSERT_TRUE(found.SubclassWindow(pThree));
    found.SetButtonStyle(BS_AUTO3STATE);
    found.SetCheck(2);
    EXPECT_EQ(pThree->checkState(), Qt::PartiallyChecked);
    found.SendMessage(BM_SETSTYLE, BS_RADIOBUTTON | BS_LEFTTEXT);
    EXPECT_EQ(found.GetButtonStyle(), BS_AUTO3STATE | BS_LEFTTEXT);
    ClearTempObjectPool();
}

TEST(Button, CheckInAGroupAndClick)
{
    QWidget parent;
    CButton_E radios[2];
    for (CButton_E& radio : radios) {
        ASSERT_TRUE(radio.Create(L"", BS_AUTORADIOBUTTON, kPlace, &parent));
        radio.SetCheck(1);
    }
    EXPECT_EQ(radios[0].GetCheck(), 0);
    radios[1].SetCheck(0);
    EXPECT_EQ(radios[1].GetCheck(), 1) << "one of a group stays checked";
    const QSignalSpy clicks(radios[1].GetSafeHwnd(), SIGNAL(clicked()));
    radios[0].Click();
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
    ASSERT_TRUE(button.Create(L"&Go", 0, kPlace, static_cast<QWidget*>(nullptr)));
    EXPECT_EQ(button.GetSafeHwnd()->geometry(), QRect(10, 20, 100, 30));
    EXPECT_EQ(button.GetSafeHwnd()->property("text"), "&Go"_q);
    checkImages(button, BM_SETIMAGE, BM_GETIMAGE);
    tagSIZE size{};
    EXPECT_TRUE(button.GetIdealSize(&size) && size.cx > 0 && !button.GetIdealSize(nullptr));
}

TEST(Button, RealClicksAndFocus)
{
    VXTEST_NEEDS_X11();
    QWidget window;
    CButton_E box;
    CButton_E push;
    ASSERT_TRUE(box.Create(L"three", BS_AUTO3STATE | WS_VISIBLE, kPlace, &window));
    ASSERT_TRUE(push.Create(L"push", WS_VISIBLE, {5, 50, 105, 80}, &window));
    ASSERT_TRUE(showAndActivate(&window));
    for (const int nState : {2, 1, 0}) {
        movePointer(box.GetSafeHwnd(), {10, 15});
        clickButton(1);
        EXPECT_TRUE(waitUntil([&] { return box.GetCheck() == nState; })) << nState;
    }
    push.SetState(TRUE);
    EXPECT_EQ(push.GetState(), 8U);
    EXPECT_EQ(box.SendMessage(BM_GETSTATE), 0);
    push.SendMessage(BM_SETSTATE, FALSE);
    EXPECT_EQ(push.GetState(), 0U);
}

} // namespace
