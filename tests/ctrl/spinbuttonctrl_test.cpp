// CSpinButtonCtrl_E over spin boxes of whole and of decimal numbers.
#include "controls.h"

#include <VxCustomUI.h>

namespace {

using namespace vxtest;

TEST(SpinButton, WholeNumbers)
{
    int lower = 0, upper = 0;
    BOOL error = TRUE;
    UDACCEL accel{0, 5}, got{};
    // clang-format off
    runSteps<CSpinButtonCtrl_E, QSpinBox>(0, {
        {UDM_SETRANGE, 0, MAKELPARAM(100, -100), 0}, {UDM_GETRANGE, MAKELONG(100, -100)},
        {UDM_SETPOS, 0, 100, 0}, {UDM_SETPOS, 0, MAKELPARAM(-8, 0), 100},
        {UDM_SETPOS32, 0, 101, -1}, {UDM_SETPOS32, 0, -101, -1}, {UDM_GETPOS, MAKELONG(-8, 0)},
        {UDM_GETPOS32, 0, at(&error), -8}, {UDM_SETRANGE32, -200000, 200000, 0},
        {UDM_GETRANGE32, at(&lower), at(&upper), 0}, {UDM_GETRANGE32, 0},
        {UDM_SETPOS32, 0, 150000, -8}, {UDM_GETPOS32, 150000}, {UDM_SETACCEL, 2, 1},
        {UDM_SETACCEL, 1, at(&accel), 1}, {"accelerated", true}, {UDM_GETACCEL, 1, at(&got), 1},
        {UDM_SETBASE, 16, 10}, {UDM_SETBASE, 1, 0}, {UDM_GETBASE, 16}, {UDM_SETBUDDY, 4711, 0},
    });
    // clang-format on
    EXPECT_EQ(std::tie(lower, upper), std::make_tuple(-200000, 200000));
    EXPECT_FALSE(error);
    EXPECT_EQ(got.nInc, 5U);
}

TEST(SpinButton, DecimalNumbers)
{
    forMadeAndFound<CSpinButtonCtrl_E, QDoubleSpinBox>(VXUDS_DOUBLE, [&](auto& spin) {
        auto* const pBox = qobject_cast<QDoubleSpinBox*>(spin.GetSafeHwnd());
        ASSERT_TRUE(pBox);
        pBox->setRange(-1.5, 9.9);
        pBox->setValue(2.9);
        spin.SetDecimals(3);
        EXPECT_EQ(spin.GetDecimals(), 3);
        const UDACCEL accel{0, 4};
        // clang-format off
        runSteps(pBox, {
            {UDM_GETRANGE, MAKELONG(9, -1)}, {UDM_GETPOS32, 2}, // cut towards zero
            {UDM_SETPOS32, 0, -2, -1}, {UDM_SETPOS32, 0, 10, -1}, {UDM_SETPOS32, 0, 3, 2},
            {"value", 3.0}, {UDM_SETACCEL, 1, at(&accel), TRUE},
            {"singleStep", 1.0}, // for whole numbers only
            {UDM_SETBASE, 16, -1}, {UDM_GETBASE, -1},
        });
        // clang-format on
    });
}

TEST(SpinButton, TextAndBuddy)
{
    forMadeAndFound<CSpinButtonCtrl_E, QSpinBox>(UDS_WRAP, [](auto& spin) {
        auto* const pBox = qobject_cast<QSpinBox*>(spin.GetSafeHwnd());
        EXPECT_NE(pBox->wrapping(), spin.IsTemporary());
        pBox->setRange(0, 1000000);
        pBox->setPrefix("No. "_q);
        spin.SetWindowText(L"123456");
        CString_E text;
        spin.GetWindowText(text);
        EXPECT_EQ(text.Compare(L"123456"), 0) << "the value alone";
        int nStart = -1, nEnd = -1;
        spin.SetSel(4, 1); // nothing without the focus or ES_NOHIDESEL
        spin.GetSel(nStart, nEnd);
        EXPECT_EQ(nStart, nEnd);
        pBox->selectAll();
        spin.GetSel(nStart, nEnd);
        EXPECT_EQ(nEnd - nStart, 6);
        QWidget home;
        const QPointer<QLineEdit> pBuddy = new QLineEdit(&home);
        const QPointer<QLineEdit> pOwn = spin.GetBuddy();
        spin.SetBuddy(nullptr);
        EXPECT_EQ(spin.GetBuddy(), pOwn);
        runSteps(pBox, {{UDM_SETBUDDY, at(pBuddy.data()), 0}, {UDM_GETBUDDY, at(pBuddy.data())}});
        EXPECT_TRUE(pOwn.isNull());
        spin.SetPos(77);
        EXPECT_EQ(pBuddy->text(), "No. 77"_q);
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

} // namespace
