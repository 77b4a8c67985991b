// Every exchange function in its three forms and both directions, and every check.
#include "support/test.h"

#include <QtTest/QTest>

namespace {

/// A dialog with one control of each kind, and the message that it is asked to show.
struct Form : QObject
{
    Form()
    {
        add<QLineEdit>("text");
        add<QCheckBox>("button");
        add<QGroupBox>("group")->setCheckable(true);
        for (const char* name : {"radioA", "radioB", "radioC"})
            add<QRadioButton>(name);
        add<QComboBox>("combo")->addItems({"Red"_q, "green"_q, "Green"_q});
        combo()->setEditable(true);
        add<QLineEdit>("line");
        add<QListWidget>("list")->addItems({"Alphabet"_q, "ALPHA"_q, "beta"_q});
        add<QScrollBar>("scroll");
        add<QSlider>("slider");
        add<QDateTimeEdit>("dateTime")->setDisplayFormat("yyyy-MM-dd hh:mm"_q);
        add<QCalendarWidget>("calendar");
        window.SubclassWindow(&widget);
        widget.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* e) override
    {
        if (e->type() != VxMsgBoxEvent::EventType)
            return false;
        messages += VxQString(static_cast<VxMsgBoxEvent*>(e)->text);
        return true;
    }
    template <typename Widget>
    Widget* add(const char* name)
    {
        auto* const pWidget = new Widget(&widget);
        pWidget->setObjectName(QLatin1String(name));
        return pWidget;
    }
    QComboBox* combo() const { return widget.findChild<QComboBox*>("combo"_q); }
    /// The message with which @p exchange fails when saving; empty when it does not.
    template <typename Exchange>
    QString failure(Exchange exchange, BOOL save = TRUE)
    {
        CDataExchange_E dx(&window, save);
        try {
            exchange(&dx);
        } catch (const QString& thrown) {
            EXPECT_EQ(thrown, "DataExchange Error"_q);
            vxtest::deliverPosted();
            EXPECT_EQ(messages.size(), 1);
            return messages.join(u'|');
        }
        return {};
    }

    QDialog widget;
    CWnd_E window;
    QStringList messages;
};

const QDateTime kNoon({2024, 2, 29}, {12, 0});
const QString kWrongNumber = "请输入正确的数值！"_q;

/// Loads a value and looks at a property of the control, sets the property and saves: by pointer,
/// name and id.
template <typename Widget, typename Value, typename Exchange>
void checkExchange(Exchange exchange, int id, const char* property, const Value& loaded,
                   const QVariant& shown, const QVariant& set, const Value& saved)
{
    const QByteArray name = ToStringId(UINT(id)).toUtf8();
    for (const char* form : {"pointer", "name", "id"}) {
        SCOPED_TRACE(std::string(name.constData()) + " by " + form);
        Form dialog;
        auto* const pControl = dialog.widget.findChild<Widget*>(QString::fromUtf8(name));
        ASSERT_TRUE(pControl);
        const auto run = [&](BOOL save, Value& value) {
            CDataExchange_E dx(&dialog.window, save);
            if (*form == 'p')
                exchange(&dx, pControl, value);
            else if (*form == 'n')
                exchange(&dx, name.constData(), value);
            else
                exchange(&dx, id, value);
            EXPECT_EQ(dx.m_pLastControl, pControl);
            exchange(&dx, static_cast<Widget*>(nullptr), value);
            exchange(&dx, "nowhere", value);
            exchange(&dx, 1099, value);
            exchange(nullptr, id, value);
        };
        Value value = loaded;
        QWidget* const pSeen =
            qobject_cast<QRadioButton*>(pControl) ? pControl->nextInFocusChain() : pControl;
        run(FALSE, value);
        EXPECT_EQ(pSeen->property(property), shown);
        EXPECT_EQ(value, loaded);
        pSeen->setProperty(property, set);
        run(TRUE, value);
        EXPECT_EQ(value, saved);
    }
}

#define EXCHANGE(name)                                                                             \
    [](CDataExchange_E* pDX, auto control, auto& value) { name(pDX, control, value); }

TEST(Ddx, EveryFunctionInThreeFormsBothWays)
{
    const CString_E none;
    const auto text = EXCHANGE(DDX_Text);
    checkExchange<QLineEdit>(text, 1001, "text", CString_E(L"a\U0001F600"), "a\U0001F600"_q,
                             " b "_q, CString_E(L" b "));
    checkExchange<QLineEdit>(text, 1001, "text", BYTE(7), "7"_q, "255"_q, BYTE(255));
    checkExchange<QLineEdit>(text, 1001, "text", short(-7), "-7"_q, "+32767"_q, short(32767));
    checkExchange<QLineEdit>(text, 1001, "text", -7, "-7"_q, "-2147483648"_q, INT_MIN);
    checkExchange<QLineEdit>(text, 1001, "text", 7U, "7"_q, "4294967295"_q, UINT_MAX);
    checkExchange<QLineEdit>(text, 1001, "text", -7L, "-7"_q, "4294967296"_q, 4294967296L);
    checkExchange<QLineEdit>(text, 1001, "text", 7UL, "7"_q, "010"_q, 10UL);
    checkExchange<QLineEdit>(text, 1001, "text", -7LL, "-7"_q, "9223372036854775807"_q, LLONG_MAX);
    checkExchange<QLineEdit>(text, 1001, "text", 7ULL, "7"_q, "18446744073709551615"_q, ULLONG_MAX);
    checkExchange<QLineEdit>(text, 1001, "text", 0.1F, "0.1"_q, "1e3"_q, 1000.0F);
    checkExchange<QLineEdit>(text, 1001, "text", 1234567.0, "1.23457e+06"_q, "-.5"_q, -0.5);
    checkExchange<QCheckBox>(EXCHANGE(DDX_Check), 1002, "checked", 2, true, true, 1);
    checkExchange<QGroupBox>(EXCHANGE(DDX_Check), 1003, "checked", 0, false, true, 1);
    checkExchange<QRadioButton>(EXCHANGE(DDX_Radio), 1004, "checked", 1, true, true, 1);
    checkExchange<QComboBox>(EXCHANGE(DDX_CBIndex), 1005, "currentIndex", 2, 2, -1, -1);
    for (int i = 0; i < 2; ++i) {
        const auto combo = [i](CDataExchange_E* pDX, auto control, auto& value) {
            i == 0 ? DDX_CBString(pDX, control, value) : DDX_CBStringExact(pDX, control, value);
        };
        checkExchange<QComboBox>(combo, 1005, "currentText", CString_E(L"own"), "own"_q, "x"_q,
                                 CString_E(L"x"));
        checkExchange<QComboBox>(combo, 1005, "currentIndex", CString_E(L"Green"), 2, 0,
                                 CString_E(L"Red"));
    }
    checkExchange<QLineEdit>(EXCHANGE(DDX_CBString), 1006, "text", CString_E(L"a"), "a"_q, "b"_q,
                             CString_E(L"b"));
    checkExchange<QListWidget>(EXCHANGE(DDX_LBIndex), 1007, "currentRow", 1, 1, 2, 2);
    checkExchange<QListWidget>(EXCHANGE(DDX_LBString), 1007, "currentRow", CString_E(L"alpha"), 0,
                               2, CString_E(L"beta"));
    checkExchange<QListWidget>(EXCHANGE(DDX_LBStringExact), 1007, "currentRow", CString_E(L"alpha"),
                               1, -1, none);
    checkExchange<QScrollBar>(EXCHANGE(DDX_Scroll), 1008, "value", 7, 7, 8, 8);
    checkExchange<QSlider>(EXCHANGE(DDX_Slider), 1009, "value", 7, 7, 8, 8);
    const auto dateTime = EXCHANGE(DDX_DateTimeCtrl);
    checkExchange<QDateTimeEdit>(dateTime, 1010, "dateTime", kNoon, kNoon, kNoon.addDays(1),
                                 kNoon.addDays(1));
    checkExchange<QDateTimeEdit>(dateTime, 1010, "dateTime", CString_E(L"2024-02-29 12:00"), kNoon,
                                 kNoon.addDays(1), CString_E(L"2024-03-01 12:00"));
    checkExchange<QCalendarWidget>(EXCHANGE(DDX_MonthCalCtrl), 1011, "selectedDate", kNoon.date(),
                                   kNoon.date(), kNoon.date().addDays(1), kNoon.date().addDays(1));
}

TEST(Ddx, TextIntoABuffer)
{
    Form form;
    wchar_t buffer[4] = L"abc";
    CDataExchange_E load(&form.window, FALSE);
    DDX_Text(&load, 1001, buffer, 4);
    auto* const pEdit = form.widget.findChild<QLineEdit*>("text"_q);
    EXPECT_EQ(pEdit->text(), "abc"_q);
    pEdit->setText("vwxyz"_q);
    CDataExchange_E save(&form.window, TRUE);
    DDX_Text(&save, "text", buffer, 4);
    EXPECT_STREQ(buffer, L"vwx");
    DDX_Text(&save, "text", buffer, 0);
    DDX_Text(&save, "text", static_cast<wchar_t*>(nullptr), 4);
}

TEST(Ddx, ControlBindsOnceInEitherDirection)
{
    for (const BOOL save : {FALSE, TRUE}) {
        Form form;
        CWnd_E control;
        CDataExchange_E dx(&form.window, save);
        DDX_Control(&dx, 1001, control);
        EXPECT_EQ(control.GetSafeHwnd(), form.window.GetChildWidget("text"));
        EXPECT_EQ(dx.m_pLastControl, control.GetSafeHwnd());
        DDX_Control(&dx, "line", control);
        EXPECT_EQ(control.GetSafeHwnd(), form.window.GetChildWidget("text"));
        EXPECT_EQ(dx.m_pLastControl, control.GetSafeHwnd());
    }
}

template <typename Number>
QString failureOf(const QString& text)
{
    Form form;
    form.widget.findChild<QLineEdit*>("text"_q)->setText(text);
    Number value = 42;
    const QString message = form.failure([&](CDataExchange_E* pDX) { DDX_Text(pDX, 1001, value); });
    EXPECT_EQ(message.isEmpty(), value != Number(42)) << text.toStdString();
    return message;
}

TEST(Ddx, WhatIsNoNumber)
{
    for (const char* text : {"", " 12", "12 ", "1 2", "+-1", "--1", "0x1", "1.0", "١"})
        EXPECT_EQ(failureOf<int>(QString::fromUtf8(text)), kWrongNumber) << text;
    EXPECT_EQ(failureOf<BYTE>("256"_q), kWrongNumber);
    EXPECT_EQ(failureOf<short>("32768"_q), kWrongNumber);
    EXPECT_EQ(failureOf<int>("2147483648"_q), kWrongNumber);
    EXPECT_EQ(failureOf<UINT>("-1"_q), kWrongNumber);
    EXPECT_EQ(failureOf<long>("9223372036854775808"_q), kWrongNumber);
    EXPECT_EQ(failureOf<float>("1e39"_q), kWrongNumber);
    EXPECT_EQ(failureOf<double>("nan"_q), kWrongNumber);
    EXPECT_EQ(failureOf<double>("1,5"_q), kWrongNumber);
}

TEST(Ddx, LoadingDisturbsAControlAsLittleAsItMay)
{
    Form form;
    int notified = 0;
    const auto count = [&notified] { ++notified; };
    auto* const pEdit = form.widget.findChild<QLineEdit*>("text"_q);
    auto* const pList = form.widget.findChild<QListWidget*>("list"_q);
    pEdit->setText("5"_q);
    pEdit->setSelection(0, 1);
    QObject::connect(form.combo(), &QComboBox::currentTextChanged, pEdit, count);
    QObject::connect(pList, &QListWidget::currentRowChanged, pEdit, count);
    CDataExchange_E dx(&form.window, FALSE);
    int value = 5;
    CString_E text(L"Green");
    DDX_Text(&dx, pEdit, value);
    EXPECT_TRUE(pEdit->hasSelectedText()) << "the same text is not set again";
    value = 1;
    DDX_CBIndex(&dx, form.combo(), value);
    DDX_LBIndex(&dx, pList, value);
    DDX_CBString(&dx, form.combo(), text);
    EXPECT_EQ(form.combo()->lineEdit()->cursorPosition(), 0);
    EXPECT_EQ(notified, 0);
}

// Intended: by id a name travels as UTF-8 and is read as Latin-1.
TEST(Ddx, NamesOutsideAsciiAreNotFoundById)
{
    Form form;
    form.add<QLineEdit>("x")->setObjectName("Größe"_q);
    ASSERT_EQ(GetObjectNameById(1098), "Größe"_q);
    CDataExchange_E save(&form.window, TRUE);
    CString_E text(L"kept");
    DDX_Text(&save, 1098, text);
    EXPECT_EQ(text, L"kept");
}

TEST(Ddx, RadioWalkEndsAtItsStart)
{
    QRadioButton only;
    CWnd_E window;
    CDataExchange_E save(&window, TRUE);
    int value = 5;
    DDX_Radio(&save, &only, value);
    EXPECT_EQ(value, 5);
}

#define CHECK(call) [](CDataExchange_E* pDX) { call; }

TEST(Ddv, Messages)
{
    const QDateTime early = kNoon.addDays(-1);
    const QDate earlyDay = early.date();
    const Row<std::function<void(CDataExchange_E*)>, const char*> rows[] = {
        {CHECK(DDV_MaxChars(pDX, L"abc", 3)), ""},
        {CHECK(DDV_MaxChars(pDX, L"abc", 0)), ""},
        {CHECK(DDV_MaxChars(pDX, L"abcd", 3)), "请填入不多于3个的字符。"},
        {CHECK(DDV_MinMaxInt(pDX, 5, 5, 10)), ""},
        {CHECK(DDV_MinMaxInt(pDX, 10, 5, 10)), ""},
        {CHECK(DDV_MinMaxInt(pDX, 50, 10, 5)), ""},
        {CHECK(DDV_MinMaxInt(pDX, 4, -5, 3)), "请填入一个-5和3之间的整数。"},
        {CHECK(DDV_MinMaxByte(pDX, 4, 5, 255)), "请填入一个5和255之间的整数。"},
        {CHECK(DDV_MinMaxShort(pDX, 4, 5, 7)), "请填入一个5和7之间的整数。"},
        {CHECK(DDV_MinMaxLong(pDX, 4, 5, 4294967296)), "请填入一个5和4294967296之间的整数。"},
        {CHECK(DDV_MinMaxUInt(pDX, 4, 5, UINT_MAX)), "请填入一个5和4294967295之间的整数。"},
        {CHECK(DDV_MinMaxDWord(pDX, 8, 5, 7)), "请填入一个5和7之间的整数。"},
        {CHECK(DDV_MinMaxLongLong(pDX, 8, -5, 7)), "请填入一个-5和7之间的整数。"},
        {CHECK(DDV_MinMaxULongLong(pDX, 8, 5, 7)), "请填入一个5和7之间的整数。"},
        {CHECK(DDV_MinMaxFloat(pDX, 8, 0.1F, 7)), "请填入一个0.1和7之间的数字。"},
        {CHECK(DDV_MinMaxDouble(pDX, 8, 0.1, 1e-7)), ""},
        {CHECK(DDV_MinMaxDouble(pDX, 8, 1e-7, 1.23456789)),
         "请填入一个1e-07和1.23456789之间的数字。"},
        {CHECK(DDV_MinMaxSlider(pDX, 8, 5, 7)), "请填入一个5和7之间的整数。"},
        {[=](auto* pDX) { DDV_MinMaxDateTime(pDX, kNoon, &early, nullptr); }, ""},
        {[=](auto* pDX) { DDV_MinMaxDateTime(pDX, kNoon, nullptr, &early); },
         "请填入一个和2024-02-28T12:00:00之间的日期。"},
        {[=](auto* pDX) { DDV_MinMaxMonth(pDX, kNoon.date(), &earlyDay, &earlyDay); },
         "请填入一个2024-02-28和2024-02-28之间的日期。"},
    };
    for (const auto& [check, message] : rows) {
        Form form;
        const auto checkOf = [&check = check](CDataExchange_E* pDX) {
            CString_E text;
            DDX_Text(pDX, 1001, text);
            check(pDX);
        };
        EXPECT_EQ(form.failure(checkOf), QString::fromUtf8(message));
        EXPECT_EQ(form.failure(checkOf, FALSE), QString()) << "loading checks nothing";
    }
}

TEST(Ddv, LimitsAnEditOfSeveralLines)
{
    Form form;
    QTextEdit several(&form.widget);
    CDataExchange_E dx(&form.window, FALSE);
    dx.PrepareCtrl(&several);
    DDV_MaxChars(&dx, L"", 3);
    QTest::keyClicks(&several, QStringLiteral("abcdefg"));
    EXPECT_EQ(several.toPlainText(), "abc"_q);
}

TEST(Ddv, LimitsTheControl)
{
    for (const BOOL save : {FALSE, TRUE}) {
        Form form;
        CDataExchange_E dx(&form.window, save);
        CString_E text;
        DDX_Text(&dx, 1001, text);
        DDV_MaxChars(&dx, text, 3);
        EXPECT_EQ(form.widget.findChild<QLineEdit*>("text"_q)->maxLength(), 3);
        auto* const pSlider = form.widget.findChild<QSlider*>("slider"_q);
        pSlider->setRange(0, save ? 200 : 99);
        pSlider->setValue(150);
        int position = 150;
        DDX_Slider(&dx, pSlider, position);
        DDV_MinMaxSlider(&dx, DWORD(position), 100, 200);
        EXPECT_EQ(pSlider->minimum(), 100);
        EXPECT_EQ(pSlider->value(), 150);
    }
}

TEST(Ddv, LoadsWithinTheNewLimits)
{
    Form form;
    CDataExchange_E dx(&form.window, FALSE);
    auto* const pText = form.widget.findChild<QLineEdit*>("text"_q);
    pText->setMaxLength(3);
    CString_E text = L"\x1F600\x1F600\x1F600"; // two UTF-16 units each
    DDV_MaxChars(&dx, text, 2);                // the control is not yet known
    dx.PrepareCtrl(pText);
    DDV_MaxChars(&dx, text, 2);
    DDX_Text(&dx, pText, text);
    EXPECT_EQ(pText->text(), "\U0001F600\U0001F600"_q) << "no character is cut through";

    auto* const pEdit = form.widget.findChild<QDateTimeEdit*>("dateTime"_q);
    auto* const pCalendar = form.widget.findChild<QCalendarWidget*>("calendar"_q);
    const QDateTime from(QDate(2026, 1, 1), QTime()), to(QDate(2027, 12, 31), QTime());
    const QDate first = from.date(), last = to.date();
    pEdit->setDateTimeRange(from.addYears(-2), from.addDays(-1));
    pCalendar->setDateRange(first.addYears(-2), first.addDays(-1));
    QDateTime moment(QDate(2026, 6, 1), QTime(12, 0));
    QDate day = moment.date();
    DDX_DateTimeCtrl(&dx, pEdit, moment);
    DDV_MinMaxDateTime(&dx, moment, &from, &to);
    DDV_MinMaxDateTime(&dx, moment, &to, &from); // an empty range changes nothing
    EXPECT_EQ(pEdit->dateTime(), moment);
    EXPECT_EQ(pEdit->minimumDateTime(), from);
    DDX_MonthCalCtrl(&dx, pCalendar, day);
    DDV_MinMaxMonth(&dx, day, &first, &last);
    DDV_MinMaxMonth(&dx, day, &last, &first);
    EXPECT_EQ(pCalendar->selectedDate(), day);
    EXPECT_EQ(pCalendar->maximumDate(), last);
}

TEST(DataExchange, AMessageThatWasDroppedDoesNotHoldUpTheNext)
{
    Form form;
    const auto fail = [](CDataExchange_E* pDX) {
        pDX->PrepareCtrl(pDX->GetDlgItem("text"));
        pDX->Fail(L"message");
    };
    CDataExchange_E dx(&form.window, TRUE);
    EXPECT_THROW(fail(&dx), QString);
    QCoreApplication::removePostedEvents(&form.widget, VxMsgBoxEvent::EventType);
    EXPECT_EQ(form.failure(fail), "message"_q);
}

TEST(DataExchange, FailWithoutAControlOrAMessageShowsNothing)
{
    Form form;
    for (const BOOL save : {FALSE, TRUE}) {
        CDataExchange_E dx(&form.window, save);
        if (!save)
            dx.PrepareCtrl(form.window.GetChildWidget("text"));
        EXPECT_THROW(dx.Fail(L"message"), QString);
        dx.PrepareCtrl(form.window.GetChildWidget("text"));
        EXPECT_THROW(dx.Fail(), QString);
    }
    vxtest::deliverPosted();
    EXPECT_EQ(form.messages, QStringList());
    CDataExchange_E adrift(nullptr, TRUE);
    EXPECT_FALSE(adrift.GetDlgItem("text"));
    EXPECT_FALSE(adrift.GetDlgQWidget());
    EXPECT_THROW(adrift.Fail(L"message"), QString);
}

} // namespace
