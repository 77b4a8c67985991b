#include "support/test.h"

#include <locale.h>

namespace {

TEST(Utf8, InvalidTextThrows)
{
    for (const QByteArray row : {"a\x80", "\xC1\xBF", "ok \xE4", "\xE0\x9F\xBF", "\xE4(\xAD",
                                 "\xED\xA0\x80", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xFF"}) {
        CString_E kept(L"kept");
        EXPECT_THROW(kept = row.constData(), std::range_error) << row.constData();
        EXPECT_EQ(kept, L"kept");
    }
}

TEST(Utf8, UnencodableTextThrowsAndKeepsTheEarlierConversion)
{
    for (const wchar_t code : {0xD800, 0xDFFF, 0x110000, -1}) {
        CString_E s(L"0123456789abcdef\u4E2D");
        const char* const before = s.Utf8Ptr();
        s += code;
        EXPECT_THROW(s.Utf8Ptr(), std::range_error) << code;
        EXPECT_STREQ(before, "0123456789abcdef\u4E2D");
    }
}

// Random texts of every width, long enough for the fast paths and their seams.
TEST(Utf8, RoundTripsAndAgreesWithQt)
{
    std::mt19937 random(1);
    constexpr uint kLimits[] = {0x80, 0x800, 0x10000, 0x110000};
    for (int round = 0; round < 3000; ++round) {
        std::wstring text;
        const auto widest = random() % 4;
        for (std::size_t n = random() % 90; text.size() < n;) {
            const uint code =
                1 + static_cast<uint>(random()) % (kLimits[random() % (widest + 1)] - 1);
            if (code - 0xD800U >= 0x800U)
                text.push_back(static_cast<wchar_t>(code));
        }
        const CString_E s(text.c_str());
        const auto expected = QString::fromUcs4(reinterpret_cast<const uint*>(text.data()),
                                                static_cast<int>(text.size()));
        EXPECT_EQ(VxQString(s), expected);
        const bool marked = !text.empty() && text[0] == 0xFEFF; // which Qt swallows
        EXPECT_EQ(CString_E(expected), s.Mid(marked ? 1 : 0));
        EXPECT_TRUE(marked || QByteArray(s.Utf8Ptr()) == expected.toUtf8());
        EXPECT_EQ(CString_E(s.Utf8Ptr()), s);
    }
}

TEST(QStringConversion, OddTexts)
{
    const ushort lone[] = {0xD83D, 'a', 0xDE00, 0xD83D, 0xDE00, 0xD83D};
    EXPECT_EQ(CString_E(QString::fromUtf16(lone, 6)), L"\uFFFDa\uFFFD\U0001F600\uFFFD");
    EXPECT_TRUE(VxQString(static_cast<const wchar_t*>(nullptr)).isEmpty());
    VxQString q(L"a");
    q += CString_E(L"\u00E9");
    q += L"z";
    EXPECT_EQ(q, "a\u00E9z"_q);
    q = CString_E(L"\U0001F600");
    EXPECT_EQ(q.size(), 2);
}

TEST(Locale, ConvertsAndPutsThePresentLocaleBack)
{
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(WideCharToMultiByte_E(L"\u4E2D!", "C.UTF-8"), "\u4E2D!");
    EXPECT_EQ(MultiByteToWideChar_E("\u4E2D!", "C.UTF-8"), L"\u4E2D!");
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
    EXPECT_EQ(WideCharToMultiByte_E(L"\u4E2D", "C"), ""); // no encoding for it
    EXPECT_EQ(MultiByteToWideChar_E("\xE4\xB8", "C.UTF-8"), L"");
    std::setlocale(LC_ALL, "C.UTF-8");
    EXPECT_EQ(_W2A(L"\u4E2D"), "\u4E2D"); // "chs" is unknown: the present locale converts
    EXPECT_EQ(WideCharToMultiByte_E(L"\u4E2D", nullptr), "\u4E2D");
    std::setlocale(LC_ALL, "C");
    EXPECT_THROW(_W2A(nullptr), std::logic_error);
    EXPECT_THROW(_wtof(nullptr), std::logic_error);
    EXPECT_EQ(_wtof(L" -12.5e1mm"), -125.0);
}

// What one thread converts in leaves the others and the process alone.
TEST(Locale, ThreadsDoNotMeet)
{
    std::setlocale(LC_ALL, "C");
    const auto convert = [](const char* locale, const std::string& expected) {
        for (int i = 0; i < 2000; ++i) {
            EXPECT_EQ(WideCharToMultiByte_E(L"\u4E2D", locale), expected);
            EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
        }
    };
    std::thread other(convert, "C.UTF-8", "\u4E2D");
    convert("chs", "");
    other.join();

    const locale_t own = newlocale(LC_ALL_MASK, "C.UTF-8", nullptr);
    const locale_t before = uselocale(own);
    EXPECT_EQ(WideCharToMultiByte_E(L"\u4E2D", "C"), "\u4E2D"); // setlocale() does not reach here
    EXPECT_EQ(uselocale(before), own);
    freelocale(own);
}

TEST(Locale, LongTexts)
{
    for (const std::size_t length : {170U, 171U, 1023U, 1024U, 5000U}) {
        const std::wstring text(length, L'\u4E2D');
        const std::string bytes = WideCharToMultiByte_E(text, "C.UTF-8");
        EXPECT_EQ(bytes.size(), 3 * length);
        EXPECT_EQ(MultiByteToWideChar_E(bytes, "C.UTF-8"), text);
    }
}

} // namespace
