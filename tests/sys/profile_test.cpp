#include <VxMFCEmu/sys.h>
#include <VxMFCEmu/text.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>

#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char kByHand[] = "; by hand\n"
                           "loose=top\n"
                           "[Opts]\n"
                           "# no comment: a key\n"
                           "Size=12\n"
                           "size=13\n"
                           "Word=abc\n"
                           "Minus = -5 ; behind\n"
                           "Hex=0x1F\n"
                           "Large=4294967303\n"
                           "List=a, b\n"
                           "Quoted=\"a, b; c\"\n"
                           "Text=\xE4\xB8\xAD\xE6\x96\x87 \xF0\x9F\x98\x80\n"
                           "Zero=a\\0b\n"
                           "None=\n"
                           "[opts]\n"
                           "Size=14\n"
                           "[General]\n"
                           "shown=yes\n"
                           "[%General]\n"
                           "shown=no\n"
                           "[%U4E2D]\n"
                           "%U6587=name\n"
                           "[Out/In]\n"
                           "deep=1\n";

class Profile : public testing::Test
{
protected:
    CString_E make(const QByteArray& content, const char* name = "profile.ini")
    {
        const QString path = m_folder.filePath(QString::fromUtf8(name));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        return CString_E(path);
    }
    CString_E path(const char* name) const { return {m_folder.filePath(QString::fromUtf8(name))}; }

    static QByteArray contentOf(const CString_E& path)
    {
        QFile file{VxQString(path)};
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    QTemporaryDir m_folder;
};

CString_E stringOf(LPCWSTR section, LPCWSTR key, LPCWSTR file, LPCWSTR fallback = L"default")
{
    std::wstring buffer(256, L'?');
    GetPrivateProfileString_E(section, key, fallback, buffer.data(), 256, file);
    return buffer.c_str();
}

CString_E sectionOf(LPCWSTR section, LPCWSTR file)
{
    std::wstring buffer(1000, L'\0');
    const DWORD length = GetPrivateProfileSection_E(section, buffer.data(), 1000, file);
    EXPECT_EQ(buffer.find(L'\0'), length);
    return buffer.c_str();
}

TEST_F(Profile, ReadsStringsAndNumbers)
{
    const QByteArray unixEnds(kByHand);
    const CString_E files[] = {make(unixEnds),
                               make(QByteArray(unixEnds).replace("\n", "\r\n"), "windows.ini"),
                               make("\xEF\xBB\xBF" + unixEnds, "\xE4\xB8\xAD.ini")};
    const struct
    {
        int line;
        LPCWSTR section;
        LPCWSTR key;
        LPCWSTR text;
        DWORD length;
        INT number; // with default 5
    } rows[] = {
        {__LINE__, L"Opts", L"Size", L"12", 2, 12},
        {__LINE__, L"Opts", L"size", L"13", 2, 13},
        {__LINE__, L"opts", L"Size", L"14", 2, 14},
        {__LINE__, L"OPTS", L"Size", L"default", 7, 5},
        {__LINE__, L"Opts", L"Word", L"abc", 3, 0},
        {__LINE__, L"Opts", L"Minus", L"-5", 2, -5},
        {__LINE__, L"Opts", L"Hex", L"0x1F", 4, 0},
        {__LINE__, L"Opts", L"Large", L"4294967303", 10, 7},
        {__LINE__, L"Opts", L"List", L"", 0, 0},
        {__LINE__, L"Opts", L"Quoted", L"a, b; c", 7, 0},
        {__LINE__, L"Opts", L"Text", L"\u4E2D\u6587 \U0001F600", 5, 0},
        {__LINE__, L"Opts", L"Zero", L"a", 3, 0},
        {__LINE__, L"Opts", L"None", L"", 0, 0},
        {__LINE__, L"Opts", L"absent", L"default", 7, 5},
        {__LINE__, L"\u4E2D", L"\u6587", L"name", 4, 0},
        {__LINE__, L"Out/In", L"deep", L"1", 1, 1},
        {__LINE__, L"", L"loose", L"top", 3, 0},
        {__LINE__, nullptr, L"loose", L"top", 3, 0},
        {__LINE__, L"", L"shown", L"yes", 3, 0},
        {__LINE__, L"General", L"shown", L"no", 2, 0},
        {__LINE__, L"Opts", nullptr, L"default", 7, 5},
        {__LINE__, nullptr, nullptr, L"default", 7, 5},
    };
    for (const CString_E& file : files) {
        for (const auto& row : rows) {
            SCOPED_TRACE(testing::Message() << file.Utf8Ptr() << ", line " << row.line);
            EXPECT_EQ(stringOf(row.section, row.key, file), row.text);
            EXPECT_EQ(GetPrivateProfileString_E(row.section, row.key, L"default", nullptr, 0, file),
                      row.length);
            EXPECT_EQ(GetPrivateProfileInt_E(row.section, row.key, 5, file), row.number);
        }
        EXPECT_EQ(stringOf(L"Opts", L"absent", file, nullptr), L"");
    }
}

TEST_F(Profile, StringsIgnoreTheBufferSize)
{
    const CString_E file = make("[Opts]\nName=whole value\n");
    wchar_t buffer[] = L"????????????????";
    EXPECT_EQ(GetPrivateProfileString_E(L"Opts", L"Name", L"", buffer, 3, file), 11U);
    EXPECT_EQ(std::wstring(buffer, 13), std::wstring(L"whole value\0?", 13));
}

TEST_F(Profile, ListsASection)
{
    const CString_E file = make("[Opts]\nb=2\na=1\n[Opts/In]\nc=3\n[Odd]\n%25=%1\nl=x, y\n"
                                "s=\xF0\x9F\x98\x80\n");
    const struct
    {
        int line;
        LPCWSTR section;
        DWORD size;
        DWORD result;
        LPCWSTR text; // '?' is what was there before
    } rows[] = {
        {__LINE__, L"Opts", 100, 8, L"a=1\rb=2\r??"},
        {__LINE__, L"Opts", 8, 8, L"a=1\rb=2\r??"},
        {__LINE__, L"Opts", 5, 3, L"a=1\rb=2\r??"},
        {__LINE__, L"Opts", 4, 2, L"a=1\rb=2\r??"},
        {__LINE__, L"Opts", 3, 1, L"a=1\r??????"},
        {__LINE__, L"Opts", 0, ~1U, L"a=1\r??????"},
        {__LINE__, L"absent", 100, 0, L"??????????"},
        {__LINE__, nullptr, 100, 0, L"??????????"},
        {__LINE__, L"Odd", 100, 12, L"%=%1\rl=\rs=\U0001F600\r"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        std::wstring buffer(20, L'?');
        const std::wstring expected = row.text + std::wstring(20 - std::wcslen(row.text), L'?');
        EXPECT_EQ(GetPrivateProfileSection_E(row.section, buffer.data(), row.size, file),
                  row.result);
        EXPECT_EQ(buffer, expected);
        EXPECT_EQ(GetPrivateProfileSection_E(row.section, nullptr, row.size, file), row.result);
    }
}

TEST_F(Profile, ListsSectionNames)
{
    const CString_E file = make("a=1\n[Two]\na=1\n[One]\na=1\n[One/In]\na=1\n[%General]\na=1\n");
    const std::wstring all(L"General\0One\0Two\0", 16);
    const struct
    {
        DWORD size;
        DWORD result;
    } rows[] = {{100, 16}, {16, 16}, {15, 16}, {12, 16}, {11, 12}, {8, 12}, {7, 8}, {0, 8}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.size);
        std::wstring buffer(30, L'?');
        EXPECT_EQ(GetPrivateProfileSectionNames_E(buffer.data(), row.size, file), row.result);
        for (std::size_t i = 0; i < buffer.size(); ++i) {
            // Only a quarter was cleared, and so not every separator is there.
            const bool isName = i < row.result && all[i];
            EXPECT_EQ(buffer[i], isName ? all[i] : i < row.size / 4 ? L'\0' : L'?') << i;
        }
        EXPECT_EQ(GetPrivateProfileSectionNames_E(nullptr, row.size, file), row.result);
    }
}

TEST_F(Profile, WritesStrings)
{
    const CString_E file = make(kByHand);
    for (const LPCWSTR value :
         {L"1", L" blanks ", L"a, b; \"c\" \\ @x", L"\u4E2D \U0001F600", L""}) {
        EXPECT_TRUE(WritePrivateProfileString_E(L"Opts", L"New", value, file));
        EXPECT_EQ(stringOf(L"Opts", L"New", file), value);
    }
    EXPECT_TRUE(WritePrivateProfileString_E(L"Opts", L"Size", nullptr, file)); // deletes nothing
    EXPECT_EQ(stringOf(L"Opts", L"Size", file), L"");
    EXPECT_EQ(stringOf(L"Opts", L"size", file), L"13");
    EXPECT_TRUE(WritePrivateProfileString_E(L"Opts", nullptr, nullptr, file));
    EXPECT_EQ(stringOf(L"Opts", L"Word", file), L"abc");
    EXPECT_TRUE(WritePrivateProfileString_E(nullptr, L"loose", L"new", file));
    EXPECT_TRUE(WritePrivateProfileString_E(L"Opts", L"Text", L"\u4E2D", file));
    const QByteArray content = contentOf(file);
    EXPECT_TRUE(content.contains("[General]\nloose=new\n")) << content.constData();
    EXPECT_TRUE(content.contains("\nText=\xE4\xB8\xAD\n")) << content.constData();
}

TEST_F(Profile, WritesSectionsLineByLine)
{
    const CString_E file = make("[Opts]\nkept=old\nx=old\n");
    EXPECT_TRUE(WritePrivateProfileSection_E(
        L"Opts", L"x=\"1\"\ry=2\r\rbad\rk=v=w\rq=\"a\"b\"\re=\r\nf= 3 ", file));
    EXPECT_EQ(sectionOf(L"Opts", file), L"\nf= 3 \re=\rkept=old\rq=ab\rx=1\ry=2\r");
    EXPECT_TRUE(WritePrivateProfileSection_E(nullptr, sectionOf(L"Opts", file), file));
    EXPECT_EQ(sectionOf(L"", file), sectionOf(L"Opts", file));
    EXPECT_TRUE(WritePrivateProfileSection_E(L"Opts", nullptr, file));
    EXPECT_TRUE(WritePrivateProfileSection_E(L"Opts", L"=7\r", file)); // "Opts/" is the key "Opts"
    EXPECT_EQ(stringOf(L"", L"Opts", file), L"7");
}

TEST_F(Profile, KeepsStructures)
{
    const CString_E file = make("[Opts]\nText=\xE4\xB8\xAD\nNone=\n");
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all.push_back(static_cast<char>(byte));
    EXPECT_TRUE(WritePrivateProfileStruct_E(L"Opts", L"All", all.data(), 256, file));
    EXPECT_TRUE(contentOf(file).contains("All=\"@ByteArray(\\0\\x1\\x2"));
    EXPECT_TRUE(WritePrivateProfileStruct_E(nullptr, nullptr, all.data(), 4, file));
    EXPECT_TRUE(WritePrivateProfileStruct_E(L"Opts", L"Empty", nullptr, 0, file));
    EXPECT_FALSE(WritePrivateProfileStruct_E(L"Opts", L"Bad", nullptr, 4, file));
    EXPECT_FALSE(WritePrivateProfileStruct_E(L"Opts", L"Bad", all.data(), ~0U, file));
    const struct
    {
        int line;
        LPCWSTR key;
        UINT size;
        BOOL result;
        std::string bytes;
    } rows[] = {
        {__LINE__, L"All", 256, TRUE, all},
        {__LINE__, L"All", 3, TRUE, std::string("\0\1\2", 3)},
        {__LINE__, L"All", 0, TRUE, ""},
        {__LINE__, L"All", 258, TRUE, all + std::string(2, '\0')},
        {__LINE__, L"Text", 4, TRUE, std::string("\xE4\xB8\xAD\0", 4)},
        {__LINE__, L"None", 4, FALSE, ""},
        {__LINE__, L"Empty", 4, FALSE, ""},
        {__LINE__, L"Bad", 4, FALSE, ""},
        {__LINE__, nullptr, 4, FALSE, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        std::string bytes(300, '?');
        EXPECT_EQ(GetPrivateProfileStruct_E(L"Opts", row.key, bytes.data(), row.size, file),
                  row.result);
        EXPECT_EQ(bytes, row.bytes + std::string(300 - row.bytes.size(), '?'));
    }
    EXPECT_FALSE(GetPrivateProfileStruct_E(L"Opts", L"All", nullptr, 4, file));
}

// Each way to write, and each to read, with a name that is not that of a readable file.
TEST_F(Profile, FilesThatAreNone)
{
    QDir(m_folder.path()).mkdir(QStringLiteral("folder.ini"));
    const CString_E longName = CString_E(L'x', 2000);
    const struct
    {
        CString_E file;
        BOOL written;
        int error;
    } rows[] = {
        {path("missing.ini"), FALSE, ENOENT},
        {path("missing/x.ini"), FALSE, ENOENT},
        {path("folder.ini"), TRUE, 0},
        {CString_E(), FALSE, ENOENT},
        {longName, FALSE, ENAMETOOLONG},
        {CString_E(static_cast<wchar_t>(0xD800)), FALSE, EILSEQ},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.file.GetLength() < 100 ? VxQString(row.file).toStdString() : "long");
        const LPCWSTR file = row.file.IsEmpty() ? nullptr : row.file.GetString();
        int errors[3] = {};
        const auto result = [&errors](int call, BOOL written) {
            errors[call] = written ? 0 : errno;
            return written;
        };
        EXPECT_EQ(result(0, WritePrivateProfileString_E(L"s", L"k", L"v", file)), row.written);
        EXPECT_EQ(result(1, WritePrivateProfileSection_E(L"s", L"k=v", file)), row.written);
        EXPECT_EQ(result(2, WritePrivateProfileStruct_E(L"s", L"k", "v", 1, file)), row.written);
        EXPECT_THAT(errors, testing::Each(row.error));
        char byte = '?';
        EXPECT_EQ(stringOf(L"s", L"k", file), L"default");
        EXPECT_EQ(GetPrivateProfileInt_E(L"s", L"k", 5, file), 5);
        EXPECT_EQ(GetPrivateProfileSection_E(L"s", nullptr, 100, file), 0U);
        EXPECT_EQ(GetPrivateProfileSectionNames_E(nullptr, 100, file), 0U);
        EXPECT_FALSE(GetPrivateProfileStruct_E(L"s", L"k", &byte, 1, file));
        EXPECT_EQ(byte, '?');
    }
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList(QStringLiteral("folder.ini")));
}

TEST_F(Profile, WhatCannotBeWrittenStaysAsItIs)
{
    const CString_E file = make("[s]\nk=old\n");
    ASSERT_EQ(chmod(file.Utf8Ptr(), 0444), 0);
    const QByteArray folder = m_folder.path().toUtf8();
    ASSERT_EQ(chmod(folder.constData(), 0555), 0);
    setfsuid(65534); // permissions do not bind the superuser
    const BOOL written = WritePrivateProfileString_E(L"s", L"k", L"new", file);
    setfsuid(geteuid());
    ASSERT_EQ(chmod(folder.constData(), 0755), 0);
    EXPECT_TRUE(written);
    EXPECT_EQ(contentOf(file), "[s]\nk=old\n");
}

TEST_F(Profile, RelativeNamesStartAtTheCurrentDirectory)
{
    make("[s]\nk=here\n", "here.ini");
    const QString before = QDir::currentPath();
    QDir::setCurrent(m_folder.path());
    EXPECT_EQ(stringOf(L"s", L"k", L"here.ini"), L"here");
    EXPECT_TRUE(WritePrivateProfileString_E(L"s", L"k", L"new", L"./here.ini"));
    QDir::setCurrent(before);
    EXPECT_EQ(stringOf(L"s", L"k", path("here.ini")), L"new");
}

TEST_F(Profile, TenThousandKeys)
{
    CString_E lines;
    for (int i = 0; i < 10'000; ++i)
        lines.AppendFormat(L"key%05d=value %d\r", i, i);
    const CString_E file = make("");
    EXPECT_TRUE(WritePrivateProfileSection_E(L"Many", lines, file));
    std::wstring buffer(static_cast<std::size_t>(lines.GetLength()), L'?');
    const auto length = static_cast<DWORD>(buffer.size());
    EXPECT_EQ(GetPrivateProfileSection_E(L"Many", buffer.data(), length, file), length);
    EXPECT_EQ(buffer, lines.GetString());
    EXPECT_EQ(stringOf(L"Many", L"key09999", file), L"value 9999");
}

} // namespace
