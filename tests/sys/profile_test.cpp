#include "sys/rows.h"

#include <sys/fsuid.h>
#include <sys/stat.h>

namespace {

constexpr LPCWSTR kFile = L"profile.ini";

// Names are relative to a folder for the test alone.
class Profile : public testing::Test
{
protected:
    Profile() { QDir::setCurrent(m_folder.path()); }
    ~Profile() override { QDir::setCurrent(m_before); }

    static void make(const QByteArray& content, LPCWSTR name = kFile)
    {
        QFile file("./%1"_q.arg(VxQString(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    static QByteArray content() // of the profile
    {
        QFile file("profile.ini"_q);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    const QString m_before = QDir::currentPath();
    const QTemporaryDir m_folder;
};

CString_E stringOf(LPCWSTR section, LPCWSTR key, LPCWSTR file, LPCWSTR fallback = L"default")
{
    wchar_t buffer[256];
    GetPrivateProfileString_E(section, key, fallback, buffer, 256, file);
    return buffer;
}

TEST_F(Profile, ReadsStringsAndNumbers)
{
    // section, key; text and its length; number, with default 5
    constexpr Row<LPCWSTR, LPCWSTR, LPCWSTR, DWORD, INT> kRows[] = {
        {L"Opts", L"Size", L"12", 2, 12},     {L"opts", L"Size", L"14", 2, 14},
        {L"OPTS", L"Size", L"default", 7, 5}, {L"Opts", L"Word", L"abc", 3, 0},
        {L"Opts", L"List", L"", 0, 0},        {L"Opts", L"Text", L"中文 😀", 5, 0},
        {L"Out/In", L"deep", L"-1", 2, -1},   {nullptr, L"loose", L"top", 3, 0},
        {L"", L"shown", L"yes", 3, 0},        {L"Opts", nullptr, L"default", 7, 5}};
    for (const LPCWSTR file : {L"中.ini", L":beginning as a resource", kFile}) {
        make("; by hand\nloose=top\n[Opts]\nSize=12\nWord=abc\nList=a, b\nText=中文 😀\n"
             "[opts]\nSize=14\n[General]\nshown=yes\n[Out/In]\ndeep = -1 ; behind\n",
             file);
        forRows(kRows, [&](LPCWSTR section, LPCWSTR key, LPCWSTR text, DWORD length, INT number) {
            EXPECT_EQ(stringOf(section, key, file), text);
            EXPECT_EQ(GetPrivateProfileString_E(section, key, L"default", {}, 0, file), length);
            EXPECT_EQ(GetPrivateProfileInt_E(section, key, 5, file), number);
        });
    }
    EXPECT_EQ(stringOf(L"Opts", L"absent", kFile, nullptr), L"");
    wchar_t buffer[] = L"????????"; // Intended: the size given does not count.
    EXPECT_EQ(GetPrivateProfileString_E(L"Opts", L"Word", L"", buffer, 2, kFile), 3U);
    EXPECT_EQ(std::wstring(buffer, 5), std::wstring(L"abc\0?", 5));
}

TEST_F(Profile, ListsASection)
{
    make("[Opts]\nb=2\na=1\n[Opts/In]\nc=3\n[Odd]\n%25=%1\nl=x, y\ns=😀\n");
    // section, size; result and text, where '?' is what was there before
    constexpr Row<LPCWSTR, DWORD, DWORD, LPCWSTR> kRows[] = {
        {L"Opts", 8, 8, L"a=1\rb=2\r????"},  {L"Opts", 5, 3, L"a=1\rb=2\r????"},
        {L"Opts", 0, ~1U, L"a=1\r????????"}, {L"absent", 9, 0, L"????????????"},
        {nullptr, 9, 0, L"????????????"},    {L"Odd", 100, 12, L"%=%1\rl=\rs=😀\r"}};
    forRows(kRows, [](LPCWSTR section, DWORD size, DWORD result, LPCWSTR text) {
        std::wstring buffer(12, L'?');
        EXPECT_EQ(GetPrivateProfileSection_E(section, buffer.data(), size, kFile), result);
        EXPECT_EQ(buffer, text);
        EXPECT_EQ(GetPrivateProfileSection_E(section, nullptr, size, kFile), result);
    });
}

TEST_F(Profile, ListsSectionNames)
{
    make("a=1\n[Two]\na=1\n[One]\na=1\n[One/In]\na=1\n[%General]\na=1\n");
    // Intended: only a quarter of the size is cleared, and so not every separator is there.
    constexpr Row<DWORD, DWORD, LPCWSTR> kRows[] = {{64, 16, L"General-One-Two-????"},
                                                    {11, 12, L"General?One?????????"}};
    forRows(kRows, [](DWORD size, DWORD result, LPCWSTR text) {
        std::wstring buffer(20, L'?');
        EXPECT_EQ(GetPrivateProfileSectionNames_E(buffer.data(), size, kFile), result);
        std::replace(buffer.begin(), buffer.end(), L'\0', L'-');
        EXPECT_EQ(buffer, text);
        EXPECT_EQ(GetPrivateProfileSectionNames_E(nullptr, size, kFile), result);
    });
}

TEST_F(Profile, WritesStringsAndSections)
{
    make("[Opts]\nSize=12\nsize=13\nWord=abc\n[opts]\nSize=14\n[General]\nshown=yes\n");
    for (const LPCWSTR value : {L" blanks ", L"a, b; \"c\" \\ @x", L"中 😀", L""}) {
        EXPECT_TRUE(WritePrivateProfileString_E(L"Opts", L"Size", value, kFile));
        EXPECT_EQ(stringOf(L"Opts", L"Size", kFile), value);
    }
    EXPECT_TRUE(WritePrivateProfileString_E(L"Opts", L"Word", nullptr, kFile)); // deletes nothing
    EXPECT_TRUE(WritePrivateProfileString_E(nullptr, L"loose", L"中", kFile));
    constexpr LPCWSTR kLines = L"x=\"1\"\ry=2\r\rbad\rk=v=w\rq=\"a\"b\"\re=\r\nf= 3 ";
    EXPECT_TRUE(WritePrivateProfileSection_E(L"opts", kLines, kFile));
    EXPECT_TRUE(WritePrivateProfileSection_E(nullptr, L"opts=top\r", kFile));
    EXPECT_TRUE(WritePrivateProfileSection_E(L"Opts", L"=7\r", kFile)); // that is the key "Opts"
    EXPECT_EQ(content(), "[General]\nOpts=7\nloose=中\nopts=top\nshown=yes\n\n"
                         "[Opts]\nSize=\nWord=\nsize=13\n\n"
                         "[opts]\n%0Af=\" 3 \"\nSize=14\ne=\nq=ab\nx=1\ny=2\n");
}

TEST_F(Profile, KeepsStructures)
{
    make("");
    const std::string all("\0\x7F\x80\xFF,\"\\\n", 8);
    EXPECT_TRUE(WritePrivateProfileStruct_E(L"Opts", L"All", all.data(), 8, kFile));
    EXPECT_TRUE(content().contains("All=\"@ByteArray(\\0\\x7f\\x80"));
    EXPECT_TRUE(WritePrivateProfileStruct_E(L"Opts", L"Empty", nullptr, 0, kFile));
    EXPECT_FALSE(WritePrivateProfileStruct_E(L"Opts", L"Bad", nullptr, 4, kFile));
    const auto read = [](LPCWSTR key, UINT size) {
        std::string bytes(10, '?');
        const BOOL found = GetPrivateProfileStruct_E(L"Opts", key, bytes.data(), size, kFile);
        return found ? bytes : "none " + bytes;
    };
    EXPECT_EQ(read(L"All", 9), all + std::string("\0?", 2));
    EXPECT_EQ(read(L"All", 3), all.substr(0, 3) + "???????");
    EXPECT_EQ(read(L"Empty", 4), "none ??????????");
    EXPECT_FALSE(GetPrivateProfileStruct_E(L"Opts", L"All", nullptr, 4, kFile));
}

TEST_F(Profile, FilesThatAreNone)
{
    QDir().mkdir("folder.ini"_q);
    const std::wstring longName(2000, L'x'); // beside each the error of the writing functions
    const Row<LPCWSTR, int> rows[] = {{L"missing.ini", ENOENT},
                                      {L"folder.ini", 0},
                                      {nullptr, ENOENT},
                                      {longName.c_str(), ENAMETOOLONG},
                                      {L"\xD800", EILSEQ}};
    forRows(rows, [](LPCWSTR file, int error) {
        char byte = '?';
        const auto outcome = [](BOOL written) { return written ? 0 : errno; };
        EXPECT_EQ(outcome(WritePrivateProfileString_E(L"s", L"k", L"v", file)), error);
        EXPECT_EQ(outcome(WritePrivateProfileSection_E(L"s", L"k=v", file)), error);
        EXPECT_EQ(outcome(WritePrivateProfileStruct_E(L"s", L"k", &byte, 1, file)), error);
        EXPECT_EQ(stringOf(L"s", L"k", file), L"default");
        EXPECT_EQ(GetPrivateProfileSectionNames_E(nullptr, 100, file), 0U);
    });
    EXPECT_EQ(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot).join(QLatin1Char(' ')),
              "folder.ini"_q);
}

TEST_F(Profile, WhatCannotBeWrittenStaysAsItIs)
{
    make("[s]\nk=old\n");
    ASSERT_TRUE(chmod("profile.ini", 0444) == 0 && chmod(".", 0555) == 0);
    setfsuid(65534); // permissions do not bind the superuser
    EXPECT_TRUE(WritePrivateProfileString_E(L"s", L"k", L"new", kFile));
    setfsuid(geteuid());
    ASSERT_TRUE(chmod("profile.ini", 0644) == 0 && chmod(".", 0755) == 0);
    EXPECT_EQ(content(), "[s]\nk=old\n");
    make("[s]\nk=else\n"); // It is forgotten: a later reading neither tells nor writes it.
    EXPECT_EQ(stringOf(L"s", L"k", kFile), L"else");
    EXPECT_EQ(content(), "[s]\nk=else\n");
}

} // namespace
