#include "support/test.h"

#include <cfloat>
#include <clocale>

namespace {

template <typename... Args>
CString_E formatted(const wchar_t* format, Args... args)
{
    CString_E s;
    s.Format(format, args...);
    return s;
}

// Combinations of flags with some widths and precisions, for one conversion and its values.
template <typename Value>
void compareWithSwprintf(const wchar_t* conversion, std::initializer_list<Value> values,
                         unsigned combinations = 32)
{
    for (unsigned flags = 0; flags < combinations; ++flags) {
        std::wstring start = L"<%";
        for (unsigned bit = 0; bit < 5; ++bit) {
            if (flags & (1U << bit))
                start += L"-+ #0"[bit];
        }
        for (const wchar_t* width : {L"", L"1", L"9", L"30"}) {
            for (const wchar_t* precision : {L"", L".", L".0", L".1", L".4", L".17", L".40"}) {
                const std::wstring format = start + width + precision + conversion + L">";
                for (const Value value : values) {
                    wchar_t expected[1024];
                    std::swprintf(expected, std::size(expected), format.c_str(), value);
                    ASSERT_EQ(formatted(format.c_str(), value), expected)
                        << CString_E(format.c_str()).Utf8Ptr();
                }
            }
        }
    }
}

TEST(Format, AgreesWithSwprintf)
{
    for (const wchar_t* conversion : {L"d", L"i", L"hd"})
        compareWithSwprintf(conversion, {0, 1, -1, 42, -70000, INT_MAX, INT_MIN});
    for (const wchar_t* conversion : {L"u", L"o", L"x", L"X", L"hu", L"hx"})
        compareWithSwprintf(conversion, {0U, 1U, 8U, 0xBEEFU, 70000U, UINT_MAX});
    compareWithSwprintf(L"ls", {L"", L"a", L"\u4E2D\U0001F600xyz"}, 2);
    compareWithSwprintf(L"lld", {0LL, 5LL, LLONG_MAX, LLONG_MIN});
    compareWithSwprintf(L"llX", {0ULL, 5ULL, ULLONG_MAX});
    for (const wchar_t* conversion : {L"f", L"F", L"e", L"E", L"g", L"G", L"a", L"A", L"lf"})
        compareWithSwprintf(conversion,
                            {0.0, -0.0, 1.0, -1.5, 0.1, 2.5, 9.9999996, 123456.789, 1e6, 1e-5, 1e22,
                             DBL_MAX, DBL_MIN, 5e-324, -HUGE_VAL, std::nan(""), -std::nan("")});
}

TEST(Format, WindowsConversions)
{
    const wchar_t* const wide = L"w\u00EFde";
    const char* const narrow = "n\u00E4rrow";
    const void* const null = nullptr;
    EXPECT_EQ(formatted(L"%s %ls %ws %S %hs", wide, wide, wide, narrow, narrow),
              L"w\u00EFde w\u00EFde w\u00EFde n\u00E4rrow n\u00E4rrow");
    EXPECT_EQ(formatted(L"%lS|%hS|%.2S|%8.3S|", wide, narrow, narrow, narrow),
              L"w\u00EFde|n\u00E4rrow|n\u00E4|     n\u00E4r|");
    EXPECT_EQ(formatted(L"%S", "a\xFF\xE4\xB8z"), L"a\uFFFD\uFFFD\uFFFDz");
    EXPECT_EQ(formatted(L"%c%C%lc%hc%3c|%-3C|", 0x4E2D, 'n', 0x1F600, 0xE9, 'r', 'l'),
              L"\u4E2Dn\U0001F600\uFFFD  r|l  |");
    EXPECT_EQ(formatted(L"%s %S %.3s %9hs", null, null, null, null),
              L"(null) (null) (nu    (null)");
    EXPECT_EQ(
        formatted(L"%I64d %I32d %Iu %I64X %lld", LLONG_MIN, -7, ~0UL, 0xABCDEF012345ULL, -1LL),
        L"-9223372036854775808 -7 18446744073709551615 ABCDEF012345 -1");
    EXPECT_EQ(formatted(L"%ld %lu %ld", LONG{-5}, DWORD{0xFFFFFFFF}, -7L), L"-5 4294967295 -7");
    EXPECT_EQ(formatted(L"%20p", reinterpret_cast<void*>(0xBEEF)), L"    000000000000BEEF");
    EXPECT_EQ(formatted(L"%*d|%*d|%.*f|%.*f", 5, 42, -5, 42, 1, 2.25, -1, 2.25),
              L"   42|42   |2.2|2.250000");
    const wchar_t unterminated[] = {L'a', L'b', L'c'};
    EXPECT_EQ(formatted(L"%.3s", unterminated), L"abc");
}

TEST(Format, WhatIsNoConversionPrintsItself)
{
    EXPECT_EQ(formatted(L"100%% %k %-5.2y %n %I64 |%", 1), L"100% %k %-5.2y %n %I64 |%");
    EXPECT_EQ(formatted(L"%zu %d", 7), L"%zu 7");
    EXPECT_EQ(formatted(nullptr), L"");
    EXPECT_EQ(formatted(L"%99999999999d", 1).GetLength(), 1'000'000);
}

TEST(Format, ArgumentsMayLieInTheTextItself)
{
    CString_E s(L"abc");
    s.Format(L"%s-%s", s.GetString(), s.GetString());
    EXPECT_EQ(s, L"abc-abc");
    s.AppendFormat(L"%s", s.GetString());
    EXPECT_EQ(s, L"abc-abcabc-abc");
}

TEST(Format, IgnoresTheProcessLocale)
{
    // Made by the build, since few machines have one.
    const QByteArray before = qgetenv("LOCPATH");
    qputenv("LOCPATH", TEXT_LOCALE_DIR);
    const bool hasComma = std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
    before.isNull() ? qunsetenv("LOCPATH") : qputenv("LOCPATH", before);
    if (!hasComma && *TEXT_LOCALE_DIR == '\0')
        GTEST_SKIP() << "no locale with a decimal comma: the sources of locales are not installed";
    ASSERT_TRUE(hasComma);
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(formatted(L"%.1f %#.1f %a", 1.5, 1.5, 1.5), L"1.5 1.5 0x1.8p+0");
    std::setlocale(LC_NUMERIC, "C");
}

} // namespace
