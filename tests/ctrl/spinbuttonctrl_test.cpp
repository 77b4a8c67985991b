// CSpinButtonCtrl_E over spin boxes of whole and of decimal numbers.
#include "controls.h"
#include "support/xinput.h"

#include <VxCustomUI.h>

#include <X11/keysym.h>

namespace {

using namespace vxtest;

TEST(SpinButton, WholeNumbersByMessages)
{
    static int lower, upper;
    static BOOL error;
    static UDACCEL accel[2] = {{0, 5}, {2, 50}};
    static UDACCEL got;
    // clang-format off
    runSteps<CSpinButtonCtrl_E, QSpinBox, VxCUISpinBox>(0, {
        {UDM_SETRANGE, 0, MAKELPARAM(100, -100), 0}, {UDM_GETRANGE, 0, 0, MAKELONG(100, -100)}, {UDM_SETPOS, 0, 7, 0}, {UDM_SETPOS, 0, MAKELPARAM(-8, 0), 7},
        {UDM_SETPOS32, 0, 101, -1}, {UDM_SETPOS32, 0, -101, -1}, {UDM_GETPOS, 0, 0, MAKELONG(-8, 0)}, {UDM_GETPOS32, 0, at(&error), -8},
        {UDM_SETRANGE32, WPARAM(-200000), 200000, 0}, {UDM_GETRANGE32, WPARAM(at(&lower)), at(&upper), 0}, {UDM_GETRANGE32, 0, 0, 0},
        {UDM_SETPOS32, 0, 150000, -8}, {UDM_GETPOS32, 0, 0, 150000}, {UDM_SETACCEL, 2, at(accel), 1}, {UDM_SETACCEL, 2, 0, 1}, {UDM_SETACCEL, 0, at(accel), 1},
        {UDM_GETACCEL, 1, at(&got), 1}, {UDM_GETACCEL, 5, 0, 1}, {UDM_SETBASE, 16, 0, 10}, {UDM_SETBASE, 1, 0, 0}, {UDM_GETBASE, 0, 0, 16},
        {UDM_SETBUDDY, 4711, 0, 0},
    });
    // clang-format on
    EXPECT_EQ(std::tie(lower, upper), std::make_tuple(-200000, 200000));
    EXPECT_FALSE(error);
    EXPECT_EQ(got.nInc, 5U);
}

TEST(SpinButton, DecimalNumbers)
{
    forMadeAndFound<CSpinButtonCtrl_E, QDoubleSpinBox, VxCUIDoubleSpinBox>(
        0x200, [](CSpinButtonCtrl_E& spin) {
            auto* const pBox = qobject_cast<QDoubleSpinBox*>(spin.GetSafeHwnd());
            ASSERT_TRUE(pBox);
            pBox->setRange(-1.5, 9.9);
            int lower = 0, upper = 0;
            spin.GetRange32(lower, upper);
            EXPECT_EQ(std::tie(lower, upper), std::make_tuple(-1, 9)) << "cut towards zero";
            pBox->setValue(2.9);
            EXPECT_EQ(spin.GetPos(), 2);
            EXPECT_EQ(spin.SetPos(-2), -1);
            EXPECT_EQ(spin.SetPos32(10), -1);
            EXPECT_EQ(spin.SetPos32(3), 2);
            EXPECT_EQ(pBox->value(), 3.0);
            const UDACCEL accel{0, 4};
            EXPECT_TRUE(spin.SetAccel(1, &accel));
            EXPECT_TRUE(pBox->isAccelerated());
            EXPECT_EQ(pBox->singleStep(), 1.0) << "for whole numbers only";
            EXPECT_EQ(spin.SetBase(16), -1);
            EXPECT_EQ(spin.GetBase(), -1);
            spin.SetDecimals(3);
            EXPECT_EQ(spin.GetDecimals(), 3);
            spin.SetWindowText(L"2.125");
            EXPECT_EQ(pBox->value(), 2.125);
            CString_E text;
            spin.GetWindowText(text);
            EXPECT_EQ(text.Compare(L"2.125"), 0);
            spin.SetRange32(INT_MIN, INT_MAX);
            spin.SetWindowText(L"no number");
            EXPECT_EQ(pBox->value(), 0.0);
        });
}

TEST(SpinButton, TextSelectionAndBuddy)
{
    forMadeAndFound<CSpinButtonCtrl_E, QSpinBox, VxCUISpinBox>(
        ES_NOHIDESEL, [](CSpinButtonCtrl_E& spin) {
            auto* const pBox = qobject_cast<QSpinBox*>(spin.GetSafeHwnd());
            pBox->setRange(0, 10000);
            pBox->setPrefix("No. "_q);
            spin.SetWindowText(L"1234");
            CString_E text;
            spin.GetWindowText(text);
            EXPECT_EQ(text.Compare(L"1234"), 0) << "the value alone";
            wchar_t buffer[8] = L"";
            EXPECT_EQ(spin.GetWindowText(buffer, 8), spin.GetWindowTextLength());
            EXPECT_STREQ(buffer, L"1234");
            spin.SetWindowText(L"1e3");
            EXPECT_EQ(pBox->value(), 0);
            spin.SetWindowText(nullptr);
            EXPECT_EQ(pBox->value(), 0);
            EXPECT_EQ(spin.GetDecimals(), 0);

            pBox->setPrefix({});
            pBox->setValue(1234);
            const bool made = !spin.IsTemporary();
            const Row<int, int, int, int> rows[] = {
                {1, 3, 1, 3},  {0, -1, 0, 4},      {-1, 2, 4, 4},
                {2, 2, 2, 2},  {3, 1, 1, 3},       {0, INT_MAX, 0, 4},
                {-2, 3, 0, 4}, {INT_MAX, 0, 0, 4}, {4, INT_MIN, 0, 4},
            };
            forRows(rows, [&](int from, int to, int start, int end) {
                spin.SetSel(from, to);
                int gotStart = -1, gotEnd = -1;
                spin.GetSel(gotStart, gotEnd);
                if (made)
                    EXPECT_EQ(std::tie(gotStart, gotEnd), std::tie(start, end));
                else
                    EXPECT_EQ(gotStart, gotEnd) << "nothing without the focus or ES_NOHIDESEL";
            });

            QWidget home;
            const QPointer<QLineEdit> pBuddy = new QLineEdit(&home);
            const QPointer<QLineEdit> pOwn = spin.GetBuddy();
            spin.SetBuddy(nullptr);
            EXPECT_EQ(spin.GetBuddy(), pOwn);
            EXPECT_EQ(spin.SendMessage(UDM_SETBUDDY, WPARAM(at(pBuddy.data()))), 0);
            EXPECT_EQ(spin.SendMessage(UDM_GETBUDDY), at(pBuddy.data()));
            EXPECT_EQ(pBuddy->parentWidget(), pBox);
            EXPECT_TRUE(pOwn.isNull());
            spin.SetPos(77);
            EXPECT_EQ(pBuddy->text(), "77"_q);
            QSpinBox other;
            spin.SetBuddy(other.findChild<QLineEdit*>());
            EXPECT_EQ(spin.GetBuddy(), pBuddy);
        });
}

TEST(SpinButton, BuddiesThatGoAndThatCannotBe)
{
    QLineEdit around;
    auto* const pBox = new VxCUISpinBox(&around);
    CSpinButtonCtrl_E spin;
    ASSERT_TRUE(spin.SubclassWindow(pBox));
    const QPointer<QLineEdit> pOwn = pBox->lineEdit();
    spin.SetBuddy(&around);
    EXPECT_EQ(spin.GetBuddy(), pOwn);
    for (const bool inside : {true, false}) {
        auto pEdit = std::make_unique<CEdit_E>();
        ASSERT_TRUE(pEdit->Create(0, kPlace, &around));
        QPointer<QLineEdit> pBuddy = qobject_cast<QLineEdit*>(pEdit->GetSafeHwnd());
        spin.SetBuddy(pEdit.get());
        spin.SetBuddy(pBuddy);
        EXPECT_EQ(spin.GetBuddy(), pBuddy);
        if (!inside)
            pBuddy->setParent(nullptr);
        delete pBuddy;
        ASSERT_TRUE(spin.GetBuddy());
        EXPECT_EQ(spin.GetBuddy()->parentWidget(), pBox);
        EXPECT_EQ(spin.GetBuddy()->text(), QString::number(spin.GetPos()));
        pBox->resize(50, 20);
        spin.SetPos(inside ? 7 : 9);
        EXPECT_EQ(spin.GetBuddy()->text(), inside ? "7"_q : "9"_q);
        deliverPosted();
        EXPECT_EQ(pBox->findChildren<QLineEdit*>().size(), 1);
    }
    spin.SetBuddy(new QLineEdit);
    pBox->setLineEdit(new QLineEdit);
    deliverPosted();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(pBox->findChildren<QLineEdit*>().size(), 1);
    spin.SetBuddy(new QLineEdit);
    delete pBox; // with its buddy
    EXPECT_FALSE(spin.GetBuddy());
}

TEST(SpinButton, DatesAreNoNumbers)
{
    QDateEdit date;
    CSpinButtonCtrl_E spin;
    spin.SetImpQObject(&date);
    const QLineEdit* const pOwn = date.findChild<QLineEdit*>();
    UDACCEL accel{0, 5};
    QLineEdit edit;
    spin.SetBuddy(&edit);
    EXPECT_EQ(date.findChild<QLineEdit*>(), pOwn);
    EXPECT_FALSE(spin.SetAccel(1, &accel) || spin.GetBuddy() || date.isAccelerated());
    spin.SetImpQObject(nullptr);
}

TEST(SpinButton, WithoutAUsableWidget)
{
    forUnusable<CSpinButtonCtrl_E>([](CSpinButtonCtrl_E& spin) {
        int first = 1, second = 2;
        BOOL error = FALSE;
        QLineEdit edit;
        UDACCEL accel{1, 1};
        CString_E text = L"left over";
        spin.SetRange(1, 2);
        spin.GetRange(first, second);
        EXPECT_EQ(first | second, 0);
        EXPECT_EQ(spin.GetRange(), 0U);
        EXPECT_EQ(spin.SetPos(0), -1);
        EXPECT_EQ(spin.GetPos32(&error), -1);
        EXPECT_TRUE(error);
        EXPECT_FALSE(spin.SetAccel(1, &accel) || spin.GetAccel(1, &accel));
        EXPECT_EQ(spin.SetBase(10), -1);
        spin.SetBuddy(&edit);
        spin.SetSel(0, -1);
        spin.GetSel(first, second);
        spin.SetDecimals(2);
        EXPECT_EQ(first | second | spin.GetDecimals(), 0);
        spin.SetWindowText(L"5");
        spin.GetWindowText(text);
        EXPECT_TRUE(text.IsEmpty() && !spin.GetBuddy());
    });
}

TEST(SpinButton, RealSpinning)
{
    VXTEST_NEEDS_X11();
    QDialog form;
    CSpinButtonCtrl_E spin;
    ASSERT_TRUE(spin.Create(WS_VISIBLE | UDS_WRAP, kPlace, &form));
    spin.SetRange(0, 50);
    ASSERT_TRUE(showAndActivate(&form));
    auto* const pBox = qobject_cast<QSpinBox*>(spin.GetSafeHwnd());
    spin.SetFocus();
    QStyleOptionSpinBox option;
    option.initFrom(pBox);
    option.subControls = QStyle::SC_All;
    movePointer(pBox, pBox->style()
                          ->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, pBox)
                          .center());
    clickButton(1);
    EXPECT_TRUE(waitUntil([&] { return spin.GetPos() == 1; })) << spin.GetPos();
    spin.SetPos(0);
    typeKey(XK_Down); // repeats itself when the release is late
    EXPECT_TRUE(waitUntil([&] { return spin.GetPos() > 25; })) << spin.GetPos();
    spin.SetSel(0, -1);
    typeKey(XK_2);
    typeKey(XK_3);
    EXPECT_TRUE(waitUntil([&] { return spin.GetPos() == 23; })) << spin.GetPos();
}

} // namespace
