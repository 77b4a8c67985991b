#include "support/test.h"

namespace {

constexpr const wchar_t* kNull = nullptr;

/// What came out, and what should have.
using Text = std::pair<CString_E, CString_E>;
using Number = std::pair<int, int>;

template <typename Rows>
void check(const Rows& rows)
{
    for (std::size_t i = 0; i < std::size(rows); ++i)
        EXPECT_EQ(rows[i].first, rows[i].second) << "row " << i;
}

TEST(CString, ConstructionAndAssignment)
{
    const Text rows[] = {
        {CString_E(kNull), L""},    {CString_E(static_cast<const char*>(nullptr)), L""},
        {CString_E(kNull, 3), L""}, {CString_E(L"abc", -1), L""},
        {CString_E(L'x', -1), L""}, {CString_E(_T(__FILE__)), __FILE__}};
    check(rows);
    CString_E s;
    EXPECT_EQ(s = L'c', L"c");
    EXPECT_EQ(s = reinterpret_cast<const unsigned char*>("\u00E9"), L"\u00E9");
    EXPECT_EQ(s = kNull, L"");
    s = "q"_q;
    s += L'1';
    s += L"23";
    s += kNull;
    s += "4"_q;
    s += CString_E(L"5");
    s += "\u00E9";
    s.AppendChar(L'!');
    EXPECT_EQ(s, L"q12345\u00E9!");
    s = L"self";
    s += s.GetString();
    EXPECT_EQ(s, L"selfself");
}

TEST(CString, Access)
{
    CString_E s(L"abc");
    EXPECT_EQ(s[2L], L'c');
    EXPECT_THROW(s[3U], std::out_of_range);
    s.SetAt(1, L'x');
    for (const int index : {-1, 3, INT_MIN, INT_MAX}) {
        EXPECT_THROW(s.GetAt(index), std::out_of_range) << index;
        s.SetAt(index, L'y');
    }
    EXPECT_STREQ(s, L"axc");
}

TEST(CString, Utf8CacheIsNewEachTimeAndItsOwn)
{
    CString_E s(L"\u4E2Dx");
    const auto first = reinterpret_cast<std::uintptr_t>(s.Utf8Ptr());
    const char* const second = s.Utf8Ptr();
    EXPECT_NE(first, reinterpret_cast<std::uintptr_t>(second));
    const CString_E copy(s);
    EXPECT_NE(copy.Utf8Ptr(), second);
    CString_E moved(std::move(s));
    EXPECT_STREQ(moved.Utf8Ptr(), "\u4E2Dx");
    moved.CleanUtf8Mem();
    EXPECT_STREQ(moved, "\u4E2Dx");
}

TEST(CString, Operators)
{
    const CString_E a(L"alpha");
    const CString_E b(L"beta");
    EXPECT_TRUE(a < b && b > a && a <= a && b >= a && L"b" > a && a < L"b");
    EXPECT_TRUE(L"alpha" == a && a == "alpha" && a == "alpha"_q && CString_E(L"c") == L'c');
    EXPECT_TRUE(CString_E() == kNull && a != kNull);
    EXPECT_TRUE(CString_E(L"a\0b", 3) != L"a");
    EXPECT_EQ(L"<" + a + L'|' + b + "\u00E9" + ">"_q + kNull, L"<alpha|beta\u00E9>");
    EXPECT_EQ(L'c' + a, L"calpha");
    CString_E s(L"self");
    EXPECT_EQ(std::move(s) + s.GetString(), L"selfself");
}

TEST(CString, Comparison)
{
    // order with and without case
    const Row<const wchar_t*, const wchar_t*, int, int> rows[] = {
        {L"", kNull, 0, 0},       {L"a", kNull, 1, 1}, {L"abc", L"ABC", 1, 0},
        {L"ABC", L"abd", -1, -1}, {L"Z", L"a", -1, 1}, {L"ab", L"ABC", 1, -1},
        {L"😀", L"\uFFFD", 1, 1}};
    const auto sign = [](int n) { return (n > 0) - (n < 0); };
    forRows(rows, [&](const wchar_t* left, const wchar_t* right, int order, int orderNoCase) {
        EXPECT_EQ(sign(CString_E(left).Compare(right)), order);
        EXPECT_EQ(sign(CString_E(left).CompareNoCase(right)), orderNoCase);
    });
    EXPECT_NE(CString_E(L"A").Collate(L"a"), 0);
    EXPECT_EQ(CString_E(L"A").CollateNoCase(L"a"), 0);
    EXPECT_GT(CString_E(L"a").Collate(kNull), 0);
}

TEST(CString, Extraction)
{
    const CString_E s(L"abc");
    const Text parts[] = {{s.Mid(-1), L"abc"}, {s.Mid(1), L"bc"},    {s.Mid(4), L""},
                          {s.Mid(-1, 2), L""}, {s.Mid(2, -1), L"c"}, {s.Mid(1, 9), L"bc"},
                          {s.Mid(4, 1), L""},  {s.Left(-3), L""},    {s.Left(100), L"abc"},
                          {s.Right(-3), L""},  {s.Right(2), L"bc"},  {s.Right(100), L"abc"}};
    check(parts);
    const Text spans[] = {{s.SpanIncluding(L"ba"), L"ab"},
                          {s.SpanIncluding(L"abcd"), L"abc"},
                          {s.SpanIncluding(kNull), L""},
                          {s.SpanExcluding(L"xc"), L"ab"},
                          {s.SpanExcluding(kNull), L"abc"}};
    check(spans);
}

TEST(CString, Tokens)
{
    const auto tokens = [](const wchar_t* text, const wchar_t* separators) {
        CString_E all;
        for (int start = 0; start != -1;)
            all += L"<" + CString_E(text).Tokenize(separators, start) + L">";
        return all;
    };
    EXPECT_EQ(tokens(L"%First Second#Third", L"% #"), L"<First><Second><Third><>");
    EXPECT_EQ(tokens(L";;", L";"), L"<>");
    EXPECT_EQ(tokens(L"a b", kNull), L"<a b><>");
    int start = 0;
    EXPECT_EQ(CString_E(L"a;b").Tokenize(L";", start), L"a");
    EXPECT_EQ(start, 2);
    start = -5;
    EXPECT_EQ(CString_E(L"a").Tokenize(L";", start), L"");
    EXPECT_EQ(start, -1);
}

TEST(CString, Searching)
{
    const CString_E s(L"abcabc\U0001F600");
    const Number rows[] = {
        {s.Find(L'b', 2), 4},     {s.Find(L'a', -1), -1},   {s.Find(L"bc", 2), 4},
        {s.Find(L""), -1},        {s.Find(kNull), -1},      {s.Find(L"a", 99), -1},
        {s.Find(L"a", -1), -1},   {s.ReverseFind(L'a'), 3}, {s.ReverseFind(L'x'), -1},
        {s.FindOneOf(L"xcb"), 1}, {s.FindOneOf(kNull), -1}, {s.Find(L'\U0001F600'), 6}};
    check(rows);
}

TEST(CString, Changing)
{
    const auto replace = [](const wchar_t* old, const wchar_t* to) {
        return [=](CString_E& s) { return s.Replace(old, to); };
    };
    using Change = std::function<int(CString_E&)>;
    const Row<const wchar_t*, Change, int, const wchar_t*> rows[] = {
        {L"aXa", [](CString_E& s) { return s.Replace(L'a', L'b'); }, 2, L"bXb"},
        {L"aaaa", replace(L"aa", L"a"), 2, L"aa"},
        {L"a-b-c", replace(L"-", L"::"), 2, L"a::b::c"},
        {L"a-b", replace(L"-", L"::"), 1, L"a::b"},
        {L"abcabc", replace(L"abc", kNull), 2, L""},
        {L"abc", replace(kNull, L"x"), 0, L"abc"},
        {L"abab", [](CString_E& s) { return s.Replace(L"a", s.GetString()); }, 2, L"ababbababb"},
        {L"banana", [](CString_E& s) { return s.Remove(L'a'); }, 3, L"bnn"},
        {L"ac", [](CString_E& s) { return s.Insert(1, L'b'); }, 3, L"abc"},
        {L"ac", [](CString_E& s) { return s.Insert(0, kNull); }, 2, L"ac"},
        {L"abcd", [](CString_E& s) { return s.Delete(1, 99); }, 1, L"a"},
        {L"abcd", [](CString_E& s) { return s.Delete(4, 1); }, 4, L"abcd"},
        {L"abcd", [](CString_E& s) { return s.Delete(1, -1); }, 4, L"abcd"},
        {L"aBc", [](CString_E& s) { return s.MakeUpper().GetLength(); }, 3, L"ABC"},
        {L"aBc", [](CString_E& s) { return s.MakeLower().GetLength(); }, 3, L"abc"},
        {L"ab😀", [](CString_E& s) { return s.MakeReverse().GetLength(); }, 3, L"😀ba"}};
    forRows(rows,
            [&](const wchar_t* text, const Change& change, int result, const wchar_t* expected) {
                CString_E s(text);
                EXPECT_EQ(change(s), result);
                EXPECT_EQ(s, expected);
            });
    CString_E s(L"ab\0abab", 7);
    EXPECT_EQ(s.Replace(L"ab", s.GetString() + 1), 3) << "its own second character";
    EXPECT_EQ(s, CString_E(L"b\0bb", 4));
    for (const int index : {-1, 5}) {
        EXPECT_THROW(s.Insert(index, L"x"), std::out_of_range);
        EXPECT_THROW(s.Delete(index, 1), std::out_of_range);
    }
}

TEST(CString, TrimmingAndSeparators)
{
    CString_E own = L"xabx";
    EXPECT_EQ(own.Trim(own.GetString() + 3), L"ab") << "its own end as the set";
    const auto text = [](const wchar_t* p) { return CString_E(p); };
    const Text trimmed[] = {{text(L" \t").Trim(), L""},
                            {text(L"xyaxy").Trim(L"yx"), L"a"},
                            {text(L" a ").Trim(kNull), L" a "},
                            {CString_E(L"\0a\0", 3).Trim(L'\0'), L"a"},
                            {text(L"a\f \r\n\t").TrimRight(), L"a\f"},
                            {text(L" \t\r\n\va\r").TrimLeft(), L"\va\r"},
                            {text(L"xax").TrimLeft(L'x'), L"ax"},
                            {text(L"xax").TrimRight(L'x'), L"xa"}};
    check(trimmed);
    const Text rows[] = {{text(L"a\r\nb\r").ToUnixReturn(), L"a\nb\r"},
                         {text(L"a/b\\c").ToUnixSeperator(), L"a/b/c"},
                         {text(L"a/b\\c").ToWinSeperator(), L"a\\b\\c"},
                         {text(L"a\nb\r\n").ToWinReturn(), L"a\r\nb\r\r\n"}};
    check(rows);
}

TEST(CString, Buffers)
{
    CString_E s;
    wcscpy(s.GetBuffer(20), L"written behind");
    EXPECT_EQ(s.GetLength(), 0);
    s.ReleaseBuffer();
    EXPECT_EQ(s, L"written behind");
    s = L"a";
    wcscpy(s.GetBuffer(30), L"written once");
    s.GetBuffer(500); // a second buffer keeps what was written through the first
    s.ReleaseBuffer();
    EXPECT_EQ(s, L"written once");
    std::fill_n(s.GetBuffer(40), 40, L'x'); // to the last place, without an end
    s.ReleaseBuffer();
    EXPECT_EQ(s, CString_E(L'x', 40));
    s = L"abcdef";
    s.ReleaseBuffer(7);
    s.ReleaseBuffer(-2);
    EXPECT_EQ(s, L"abcdef");
    s.GetBuffer()[2] = L'\0';
    s.ReleaseBuffer(6);
    EXPECT_EQ(s, L"ab");
    wcscpy(s.GetBuffer(9), L"longer");
    s.ReleaseBuffer(6); // beyond the length that it had
    EXPECT_EQ(s, L"lo");
    s.ReleaseBuffer();
    EXPECT_EQ(s, L"longer");
    s.ReleaseBuffer(4);
    EXPECT_EQ(s, L"long");
    EXPECT_EQ(s.GetBufferSetLength(8)[7], L'\0');
    EXPECT_EQ(s.GetLength(), 8);
    s.GetBufferSetLength(-1);
    s.GetBuffer(-1);
    EXPECT_TRUE(s.IsEmpty());
}

} // namespace
