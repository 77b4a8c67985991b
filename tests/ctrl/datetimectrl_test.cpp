// CDateTimeCtrl_E over date and time fields.
#include "controls.h"

namespace {

using namespace vxtest;

constexpr SYSTEMTIME date(WORD year, WORD month, WORD day)
{
    return {year, month, 9, day, 1, 2, 3, 4};
}

TEST(DateTime, ByMessages)
{
    SYSTEMTIME leapDay = date(2024, 2, 29), none = date(2023, 2, 29), got = date(0, 0, 0);
    SYSTEMTIME range[] = {date(2020, 1, 2), date(2023, 12, 30)}, gotRange[2] = {};
    SIZE size{};
    // clang-format off
    runSteps<CDateTimeCtrl_E, QDateTimeEdit, QDateEdit>(0, {
        {DTM_SETSYSTEMTIME, GDT_VALID, at(&leapDay), TRUE},
        {DTM_SETSYSTEMTIME, GDT_VALID, at(&none), TRUE}, // Intended: TRUE all the same
        {DTM_SETSYSTEMTIME, GDT_NONE, at(&leapDay), FALSE}, {DTM_SETSYSTEMTIME, GDT_VALID, FALSE},
        {DTM_GETSYSTEMTIME, 0, at(&got), GDT_VALID},
        {DTM_GETRANGE, 0, at(gotRange), 0}, {DTM_SETRANGE, GDTR_MIN | GDTR_MAX, at(range), TRUE},
        {DTM_GETRANGE, 0, at(gotRange), GDTR_MIN | GDTR_MAX},
        {DTM_SETRANGE, GDTR_MIN, at(&none), FALSE}, {DTM_SETRANGE, GDTR_MAX, at(range), TRUE},
        {DTM_GETRANGE, GDTR_MAX}, {DTM_SETRANGE, GDTR_MAX, TRUE}, {DTM_GETRANGE, 0},
        {DTM_GETIDEALSIZE, 0, at(&size), TRUE}, {DTM_GETIDEALSIZE, FALSE},
    });
    // clang-format on
    EXPECT_EQ(std::tie(got.wYear, got.wMonth, got.wDay),
              std::tie(leapDay.wYear, leapDay.wMonth, leapDay.wDay));
    EXPECT_EQ(std::tie(got.wDayOfWeek, got.wMilliseconds), std::make_tuple(9, 4)) << "left alone";
    EXPECT_EQ(gotRange[0].wYear + gotRange[1].wDay, 2020 + 30);
}

TEST(DateTime, Formats)
{
    // clang-format off
    const Row<const wchar_t*, const char*> rows[] = {
        {L"d.M.yyy y", "9.2.2024 24"}, {L"dddddd MMM", "Friday Feb"}, {L"hh:m tt", "03:4 PM"},
        {L"gg HHHH:mm:ss", "15:04:05"}, {L"HH 'o''clock, a z'", "15 o'clock, a z"},
        {L"yyyy z", "2024 z"}, {L"HH 'open", "15 open"},
    };
    // clang-format on
    forMadeAndFound<CDateTimeCtrl_E, QDateTimeEdit>(0, [&](CDateTimeCtrl_E& control) {
        auto* const pEdit = qobject_cast<QDateTimeEdit*>(control.GetSafeHwnd());
        EXPECT_TRUE(pEdit->calendarPopup());
        pEdit->setLocale(QLocale::c());
        pEdit->setDateTime({{2024, 2, 9}, {15, 4, 5}});
        forRows(rows, [&](const wchar_t* format, const char* shown) {
            EXPECT_TRUE(control.SetFormat(format));
            EXPECT_EQ(pEdit->text().trimmed(), QString::fromLatin1(shown));
        });
        SYSTEMTIME day = date(2024, 3, 1);
        EXPECT_TRUE(control.SetTime(&day)); // while the hour shows alone
        EXPECT_EQ(pEdit->date(), QDate(2024, 3, 1));
        EXPECT_EQ(control.GetRange(nullptr, nullptr), 0U) << "nor narrowed to that date";
        EXPECT_FALSE(control.SetFormat(L"'no date'"));
        EXPECT_EQ(pEdit->text(), "15 open"_q);
        EXPECT_TRUE(control.SetFormat(nullptr));
        EXPECT_EQ(pEdit->displayFormat(), QLocale::c().dateFormat(QLocale::ShortFormat));
    });
}

TEST(DateTime, StylesOfWhatIsMade)
{
    QWidget parent;
    for (const DWORD style : {DTS_LONGDATEFORMAT, DTS_TIMEFORMAT, DTS_UPDOWN}) {
        CDateTimeCtrl_E control;
        ASSERT_TRUE(control.Create(style, kPlace, &parent));
        auto* const pEdit = qobject_cast<QDateTimeEdit*>(control.GetSafeHwnd());
        EXPECT_EQ(pEdit->displayedSections().testFlag(QDateTimeEdit::HourSection),
                  style == DTS_TIMEFORMAT);
        EXPECT_EQ(pEdit->calendarPopup(), !(style & DTS_UPDOWN));
    }
}

} // namespace
