// Every exchange function in its three forms and both directions, and every check.
#include "modal.h"

#include <QtTest/QTest>

namespace {

/// A dialog with one control of each kind.
struct DdxTest : testing::Test
{
    DdxTest()
    {
        add<QCheckBox>("button");
        add<QGroupBox>("group")->setCheckable(true);
        for (const char* name : {"radioA", "radioB", "radioC"})
            add<QRadioButton>(name);
        pCombo->addItems({"Red"_q, "green"_q, "Green"_q});
        pCombo->setEditable(true);
        add<QLineEdit>("line");
        pList->addItems({"Alphabet"_q, "ALPHA"_q, "beta"_q});
        add<QScrollBar>("scroll");
        pDateTime->setDisplayFormat("yyyy-MM-dd hh:mm"_q);
        window.SubclassWindow(&widget);
    }
    template <typename Widget>
    Widget* add(const char* name)
    {
        auto* const pWidget = new Widget(&widget);
        pWidget->setObjectName(QString::fromUtf8(name));
        return pWidget;
    }
    /// The messages that are shown when @p exchange has failed twice.
    template <typename Exchange>
    QString failure(Exchange exchange)
    {
        QStringList texts;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &poll, [&texts] {
            auto* const pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (pBox && pBox->isActiveWindow()) {
                texts += pBox->text();
                pBox->close();
            }
        });
        poll.start(1);
        EXPECT_THROW(exchange(&save), QString);
        EXPECT_THROW(exchange(&save), QString);
        vxtest::deliverPosted();
        return texts.join(u'|');
    }
    /// Loads a value and looks at a property of the control, sets the property and saves: by
    /// pointer, name and id.
    template <typename Widget, typename Value, typename Exchange>
    void check(Exchange exchange, int id, const char* property, const Value& loaded,
               const QVariant& shown, const QVariant& set, const Value& saved)
    {
        const QByteArray name = ToStringId(UINT(id)).toUtf8();
        SCOPED_TRACE(name.constData());
        auto* const pControl = widget.findChild<Widget*>(QString::fromUtf8(name));
        QWidget* const pSeen = id == 1004 ? pControl->nextInFocusChain() : pControl; // radioB
        Value value = loaded;
        const auto bothWays = [&](auto control, auto none) {
            value = loaded;
            exchange(&load, control, value);
            EXPECT_EQ(value, loaded);
            EXPECT_EQ(pSeen->property(property), shown);
            pSeen->setProperty(property, set);
            exchange(&save, control, value);
            EXPECT_EQ(value, saved);
            EXPECT_EQ(save.m_pLastControl, pControl);
            exchange(&save, none, value = loaded);
            EXPECT_EQ(value, loaded);
        };
        bothWays(pControl, static_cast<Widget*>(nullptr));
        bothWays(name.constData(), "nowhere");
        bothWays(id, 1099);
        exchange(nullptr, id, value);
    }

    QDialog widget;
    CWnd_E window;
    QLineEdit* const pText = add<QLineEdit>("text");
    QComboBox* const pCombo = add<QComboBox>("combo");
    QListWidget* const pList = add<QListWidget>("list");
    QSlider* const pSlider = add<QSlider>("slider");
    QDateTimeEdit* const pDateTime = add<QDateTimeEdit>("dateTime");
    QCalendarWidget* const pCalendar = add<QCalendarWidget>("calendar");
    CDataExchange_E load{&window, FALSE}, save{&window, TRUE};
};

const QDateTime kNoon({2024, 2, 29}, {12, 0});

#define DDX(name)                                                                                  \
    [](CDataExchange_E* pDX, auto control, auto& value) { DDX_##name(pDX, control, value); }

TEST_F(DdxTest, EveryFunctionInThreeFormsBothWays)
{
    const CString_E alpha(L"alpha"), beta(L"beta"), own(L"own"), red(L"Red"), green(L"Green");
    const CString_E noon(L"2024-02-29 12:00"), nextNoon(L"2024-03-01 12:00");
    const QDateTime next = kNoon.addDays(1);
    check<QLineEdit>(DDX(Text), 1001, "text", CString_E(L"a\U0001F600"), "a\U0001F600"_q, " b "_q,
                     CString_E(L" b "));
    check<QCheckBox>(DDX(Check), 1002, "checked", 2, true, true, 1);
    check<QGroupBox>(DDX(Check), 1003, "checked", 0, false, true, 1);
    check<QRadioButton>(DDX(Radio), 1004, "checked", 1, true, true, 1);
    check<QComboBox>(DDX(CBIndex), 1005, "currentIndex", 2, 2, -1, -1);
    check<QComboBox>(DDX(CBString), 1005, "currentText", own, "own"_q, "Red"_q, red);
    check<QComboBox>(DDX(CBStringExact), 1005, "currentIndex", green, 2, 0, red);
    check<QLineEdit>(DDX(CBString), 1006, "text", own, "own"_q, "Red"_q, red);
    check<QListWidget>(DDX(LBIndex), 1007, "currentRow", 1, 1, 2, 2);
    check<QListWidget>(DDX(LBString), 1007, "currentRow", alpha, 0, 2, beta);
    check<QListWidget>(DDX(LBStringExact), 1007, "currentRow", alpha, 1, -1, CString_E());
    check<QScrollBar>(DDX(Scroll), 1008, "value", 7, 7, 8, 8);
    check<QSlider>(DDX(Slider), 1009, "value", 7, 7, 8, 8);
    check<QDateTimeEdit>(DDX(DateTimeCtrl), 1010, "dateTime", kNoon, kNoon, next, next);
    check<QDateTimeEdit>(DDX(DateTimeCtrl), 1010, "dateTime", noon, kNoon, next, nextNoon);
    check<QCalendarWidget>(DDX(MonthCalCtrl), 1011, "selectedDate", kNoon.date(), kNoon.date(),
                           next.date(), next.date());
}

TEST_F(DdxTest, NumbersAndWhatIsNone)
{
    const auto number = [this](auto loaded, const char* shown, const char* set, auto saved,
                               const char* refused) {
        check<QLineEdit>(DDX(Text), 1001, "text", loaded, QLatin1String(shown), QLatin1String(set),
                         saved);
        pText->setText(QString::fromUtf8(refused));
        auto value = loaded;
        const auto exchange = [&value](CDataExchange_E* pDX) { DDX_Text(pDX, 1001, value); };
        EXPECT_EQ(failure(exchange), "请输入正确的数值！"_q) << refused;
        EXPECT_EQ(value, loaded) << refused;
    };
    for (const char* refused : {"", " 12", "12 ", "+-1", "0x1", "1.0", "١", "2147483648"})
        number(-7, "-7", "-2147483648", INT_MIN, refused);
    number(BYTE(7), "7", "255", BYTE(255), "256");
    number(short(-7), "-7", "+32767", short(32767), "32768");
    number(7U, "7", "4294967295", UINT_MAX, "-1");
    number(-7L, "-7", "4294967296", 4294967296L, "9223372036854775808");
    number(7ULL, "7", "18446744073709551615", ULLONG_MAX, "x");
    number(-7LL, "-7", "+9223372036854775807", LLONG_MAX, "1 2");
    number(0.1F, "0.1", "1e3", 1000.0F, "1e39");
    number(1234567.0, "1.23457e+06", "-.5", -0.5, "nan");
}

TEST_F(DdxTest, TextIntoABuffer)
{
    wchar_t buffer[4] = L"abc";
    DDX_Text(&load, 1001, buffer, 4);
    EXPECT_EQ(pText->text(), "abc"_q);
    pText->setText("vwxyz"_q);
    DDX_Text(&save, "text", buffer, 4);
    EXPECT_STREQ(buffer, L"vwx");
    DDX_Text(&save, "text", buffer, 0);
    DDX_Text(&save, "text", static_cast<wchar_t*>(nullptr), 4);
}

TEST_F(DdxTest, ControlBindsOnce)
{
    CWnd_E control;
    for (const char* name : {"text", "line"}) {
        DDX_Control(&save, name, control);
        EXPECT_EQ(control.GetSafeHwnd(), pText);
        EXPECT_EQ(save.m_pLastControl, pText);
    }
}

TEST_F(DdxTest, LoadingDisturbsAControlAsLittleAsItMay)
{
    int notified = 0, value = 5;
    const auto count = [&notified] { ++notified; };
    pText->setText("5"_q);
    pText->setSelection(0, 1);
    QObject::connect(pCombo, &QComboBox::currentTextChanged, pCombo, count);
    QObject::connect(pList, &QListWidget::currentRowChanged, pList, count);
    DDX_Text(&load, pText, value);
    EXPECT_TRUE(pText->hasSelectedText()) << "the same text is not set again";
    DDX_CBIndex(&load, pCombo, value = 1);
    DDX_LBIndex(&load, pList, value);
    CString_E text(L"Green");
    DDX_CBString(&load, pCombo, text);
    DDX_LBString(&load, pList, text);
    EXPECT_EQ(pCombo->lineEdit()->cursorPosition(), 0);
    EXPECT_EQ(notified, 0);
}

TEST_F(DdxTest, WhatIsNotFoundLeavesTheVariable)
{
    add<QLineEdit>("Größe");
    ASSERT_EQ(GetObjectNameById(1098), "Größe"_q);
    CString_E text(L"kept");
    DDX_Text(&save, 1098, text);
    EXPECT_EQ(text, L"kept") << "Intended: by id a name travels as UTF-8 and is read as Latin-1";
    QRadioButton only;
    int value = 5;
    DDX_Radio(&save, &only, value);
    EXPECT_EQ(value, 5) << "the walk ends at its start";
}

using Check = std::function<void(CDataExchange_E*)>;
#define CHECK(call) [&](CDataExchange_E* pDX) { call; }

TEST_F(DdxTest, MessagesOfTheChecks)
{
    const QDateTime early = kNoon.addDays(-1);
    const QDate earlyDay = early.date();
    const Row<Check, const char*> rows[] = {
        {CHECK(DDV_MaxChars(pDX, L"abc", 3)), nullptr},
        {CHECK(DDV_MaxChars(pDX, L"abc", 0)), nullptr},
        {CHECK(DDV_MaxChars(pDX, L"abcd", 3)), "请填入不多于3个的字符。"},
        {CHECK(DDV_MinMaxInt(pDX, 5, 5, 10)), nullptr},
        {CHECK(DDV_MinMaxInt(pDX, 7, 10, 5)), nullptr},
        {CHECK(DDV_MinMaxInt(pDX, 4, -5, 3)), "请填入一个-5和3之间的整数。"},
        {CHECK(DDV_MinMaxByte(pDX, 4, 5, 255)), "请填入一个5和255之间的整数。"},
        {CHECK(DDV_MinMaxShort(pDX, 4, 5, 7)), "请填入一个5和7之间的整数。"},
        {CHECK(DDV_MinMaxLong(pDX, 4, 5, 4294967296)), "请填入一个5和4294967296之间的整数。"},
        {CHECK(DDV_MinMaxUInt(pDX, 4, 5, UINT_MAX)), "请填入一个5和4294967295之间的整数。"},
        {CHECK(DDV_MinMaxDWord(pDX, 8, 5, 7)), "请填入一个5和7之间的整数。"},
        {CHECK(DDV_MinMaxLongLong(pDX, 8, -5, 7)), "请填入一个-5和7之间的整数。"},
        {CHECK(DDV_MinMaxULongLong(pDX, 8, 5, 7)), "请填入一个5和7之间的整数。"},
        {CHECK(DDV_MinMaxFloat(pDX, 8, 0.1F, 7)), "请填入一个0.1和7之间的数字。"},
        {CHECK(DDV_MinMaxDouble(pDX, 8, 1e-7, 1.23456789)),
         "请填入一个1e-07和1.23456789之间的数字。"},
        {CHECK(DDV_MinMaxSlider(pDX, 8, 5, 7)), "请填入一个5和7之间的整数。"},
        {CHECK(DDV_MinMaxDateTime(pDX, kNoon, nullptr, &early)),
         "请填入一个和2024-02-28T12:00:00之间的日期。"},
        {CHECK(DDV_MinMaxMonth(pDX, kNoon.date(), &earlyDay, &earlyDay)),
         "请填入一个2024-02-28和2024-02-28之间的日期。"},
    };
    save.PrepareCtrl(pText);
    forRows(rows, [this](const auto& exchange, const char* message) {
        EXPECT_NO_THROW(exchange(&load)) << "loading checks nothing";
        if (message)
            EXPECT_EQ(failure(exchange), QString::fromUtf8(message));
        else
            EXPECT_NO_THROW(exchange(&save));
    });
}

TEST_F(DdxTest, ChecksLimitTheControlThatTheValueThenFits)
{
    const QDateTime low = kNoon.addDays(-1), high = kNoon.addDays(1);
    const QDate lowDay = low.date(), noonDay = kNoon.date(), highDay = high.date();
    DDV_MaxChars(&load, L"no control", 3);
    load.PrepareCtrl(pText);
    DDV_MaxChars(&load, L"\x1F600\x1F600\x1F600", 2); // two UTF-16 units each
    EXPECT_EQ(pText->maxLength(), 4);
    auto* const pSeveral = add<QTextEdit>("several");
    load.PrepareCtrl(pSeveral);
    DDV_MaxChars(&load, L"", 3);
    QTest::keyClicks(pSeveral, "abcdefg"_q);
    EXPECT_EQ(pSeveral->toPlainText(), "abc"_q);

    load.PrepareCtrl(pSlider);
    DDV_MinMaxSlider(&load, 150, 100, 200);
    DDV_MinMaxSlider(&load, 150, 200, 100); // nothing
    save.PrepareCtrl(pSlider);
    DDV_MinMaxSlider(&save, 160, 100, 200); // sets no value
    EXPECT_TRUE(pSlider->value() == 150 && pSlider->minimum() == 100);
    pDateTime->setMaximumDateTime(low);
    load.PrepareCtrl(pDateTime);
    DDV_MinMaxDateTime(&load, kNoon, &low, &high);
    EXPECT_TRUE(pDateTime->dateTime() == kNoon && pDateTime->minimumDateTime() == low);
    pCalendar->setMaximumDate(lowDay);
    load.PrepareCtrl(pCalendar);
    DDV_MinMaxMonth(&load, noonDay, &lowDay, &highDay);
    DDV_MinMaxMonth(&load, lowDay, &highDay, &lowDay); // nothing
    EXPECT_TRUE(pCalendar->selectedDate() == noonDay && pCalendar->minimumDate() == lowDay);
}

TEST_F(DdxTest, OnlyAFailureOfAControlWhenSavingShowsItsMessage)
{
    const auto fail = [](CDataExchange_E* pDX) { pDX->Fail(L"message"); };
    CDataExchange_E adrift(nullptr, TRUE);
    EXPECT_FALSE(adrift.GetDlgItem("text"));
    EXPECT_FALSE(adrift.GetDlgQWidget());
    EXPECT_THROW(save.Fail(L"no control"), QString);
    for (CDataExchange_E* const pDX : {&load, &adrift, &save}) {
        pDX->PrepareCtrl(pText);
        EXPECT_THROW(pDX->Fail(pDX == &save ? L"" : L"shows nothing"), QString);
    }
    EXPECT_EQ(widget.focusWidget(), pText);
    EXPECT_EQ(failure(fail), "message"_q);
    EXPECT_THROW(fail(&save), QString);
    QCoreApplication::removePostedEvents(&widget, VxMsgBoxEvent::EventType);
    EXPECT_EQ(failure(fail), "message"_q) << "not held up by the one that was dropped";
}

} // namespace
