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

constexpr char kByHand[] =
    "; by hand\nloose=top\n[Opts]\nSize=12\nsize=13\nWord=abc\nMinus = -5 ; behind\nHex=0x1F\n"
    "Large=4294967303\nList=a, b\nQuoted=\"a, b; c\"\nNone=\nZero=a\\0b\n"
    "Text=\xE4\xB8\xAD\xE6\x96\x87 \xF0\x9F\x98\x80\n[opts]\nSize=14\n[General]\nshown=yes\n"
    "[%General]\nshown=no\n[%U4E2D]\n%U6587=name\n[Out/In]\ndeep=1\n";

class Profile : public testing::Test
{
protected:
    CString_E path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    CString_E make(const QByteArray& content, const char* name = "profile.ini")
    {
        const CString_E result = path(name);
        QFile file{VxQString(result)};
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        return result;
    }
    static QByteArray contentOf(const CString_E& path)
    {
        QFile file{VxQString(path)};
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    QTemporaryDir m_folder;
};

CString_E stringOf(LPCWSTR section, LPCWSTR key, LPCWSTR file, LPCWSTR fallback = L"default")
{
    wchar_t buffer[256];
    GetPrivateProfileString_E(section, key, fallback, buffer, 256, file);
    return buffer;
}

CString_E sectionOf(LPCWSTR section, LPCWSTR file)
{
    wchar_t buffer[256] = {};
    GetPrivateProfileSection_E(section, buffer, 256, file);
    return buffer;
}

TEST_F(Profile, ReadsStringsAndNumbers)
{
    const struct
    {
        LPCWSTR section, key, text;
        DWORD length;
        INT number; // with default 5
    } rows[] = {
        {L"Opts", L"Size", L"12", 2, 12},
        {L"Opts", L"size", L"13", 2, 13},
        {L"opts", L"Size", L"14", 2, 14},
        {L"OPTS", L"Size", L"default", 7, 5},
        {L"Opts", L"Word", L"abc", 3, 0},
        {L"Opts", L"Minus", L"-5", 2, -5},
        {L"Opts", L"Hex", L"0x1F", 4, 0},
        {L"Opts", L"Large", L"4294967303", 10, 7},
        {L"Opts", L"List", L"", 0, 0},
        {L"Opts", L"Quoted", L"a, b; c", 7, 0},
        {L"Opts", L"None", L"", 0, 0},
        {L"Opts", L"Zero", L"a", 3, 0},
        {L"Opts", L"Text", L"\u4E2D\u6587 \U0001F600", 5, 0},
        {L"\u4E2D", L"\u6587", L"name", 4, 0},
        {L"Out/In", L"deep", L"1", 1, 1},
        {nullptr, L"loose", L"top", 3, 0},
        {L"", L"shown", L"yes", 3, 0},
        {L"General", L"shown", L"no", 2, 0},
        {L"Opts", nullptr, L"default", 7, 5},
        {nullptr, nullptr, L"default", 7, 5},
    };
    const QByteArray unixEnds(kByHand);
    for (const CString_E& file :
         {make(unixEnds), make(QByteArray(unixEnds).replace("\n", "\r\n"), "windows.ini"),
          make("\xEF\xBB\xBF" + unixEnds, "\xE4\xB8\xAD.ini")}) {
        for (const auto& row : rows) {
            SCOPED_TRACE(testing::Message()
                         << file.Utf8Ptr() << ": " << CString_E(row.section).Utf8Ptr() << '/'
                         << CString_E(row.key).Utf8Ptr());
            EXPECT_EQ(stringOf(row.section, row.key, file), row.text);
            EXPECT_EQ(GetPrivateProfileString_E(row.section, row.key, L"default", nullptr, 0, file),
                      row.length);
            EXPECT_EQ(GetPrivateProfileInt_E(row.section, row.key, 5, file), row.number);
        }
        EXPECT_EQ(stringOf(L"Opts", L"absent", file, nullptr), L"");
        wchar_t buffer[] = L"????????"; // the size given does not count
        EXPECT_EQ(GetPrivateProfileString_E(L"Opts", L"Word", L"", buffer, 2, file), 3U);
        EXPECT_EQ(std::wstring(buffer, 5), std::wstring(L"abc\0?", 5));
    }
}

TEST_F(Profile, ListsASection)
{
    const CString_E file = make("[Opts]\nb=2\na=1\n[Opts/In]\nc=3\n[Odd]\n%25=%1\nl=x, y\n"
                                "s=\xF0\x9F\x98\x80\n");
    const struct
    {
        LPCWSTR section;
        DWORD size, result;
        LPCWSTR text; // '?' is what was there before
    } rows[] = {
        {L"Opts", 100, 8, L"a=1\rb=2\r????"},
        {L"Opts", 8, 8, L"a=1\rb=2\r????"},
        {L"Opts", 5, 3, L"a=1\rb=2\r????"},
        {L"Opts", 4, 2, L"a=1\rb=2\r????"},
        {L"Opts", 3, 1, L"a=1\r????????"},
        {L"Opts", 0, ~1U, L"a=1\r????????"},
        {L"absent", 9, 0, L"????????????"},
        {nullptr, 9, 0, L"????????????"},
        {L"Odd", 100, 12, L"%=%1\rl=\rs=\U0001F600\r"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << CString_E(row.section).Utf8Ptr() << ' ' << row.size);
        std::wstring buffer(12, L'?');
        EXPECT_EQ(GetPrivateProfileSection_E(row.section, buffer.data(), row.size, file),
                  row.result);
        EXPECT_EQ(buffer, row.text);
        EXPECT_EQ(GetPrivateProfileSection_E(row.section, nullptr, row.size, file), row.result);
    }
}

TEST_F(Profile, ListsSectionNames)
{
    const CString_E file = make("a=1\n[Two]\na=1\n[One]\na=1\n[One/In]\na=1\n[%General]\na=1\n");
    const std::wstring all(L"General\0One\0Two\0", 16);
    const DWORD rows[][2] = {{100, 16}, {16, 16}, {15, 16}, {12, 16}, {11, 12}, {7, 8}, {0, 8}};
    for (const auto& [size, result] : rows) {
        std::wstring buffer(30, L'?');
        EXPECT_EQ(GetPrivateProfileSectionNames_E(buffer.data(), size, file), result);
        for (std::size_t i = 0; i < buffer.size(); ++i) {
            // Only a quarter was cleared, and so not every separator is there.
            const bool isName = i < result && all[i];
            EXPECT_EQ(buffer[i], isName ? all[i] : i < size / 4 ? L'\0' : L'?') << size << ' ' << i;
        }
        EXPECT_EQ(GetPrivateProfileSectionNames_E(nullptr, size, file), result);
    }
}

TEST_F(Profile, WritesStringsAndSections)
{
    const CString_E file = make(kByHand);
    for (const LPCWSTR value : {L" blanks ", L"a, b; \"c\" \\ @x", L"\u4E2D \U0001F600", L""}) {
        EXPECT_TRUE(WritePrivateProfileString_E(L"Opts", L"Size", value, file));
        EXPECT_EQ(stringOf(L"Opts", L"Size", file), value);
    }
    EXPECT_TRUE(WritePrivateProfileString_E(L"Opts", L"Word", nullptr, file)); // deletes nothing
    EXPECT_TRUE(WritePrivateProfileString_E(L"Opts", nullptr, nullptr, file));
    EXPECT_EQ(stringOf(L"Opts", L"Word", file), L"");
    EXPECT_EQ(stringOf(L"Opts", L"size", file), L"13");
    EXPECT_TRUE(WritePrivateProfileString_E(nullptr, L"loose", L"\u4E2D", file));
    EXPECT_TRUE(contentOf(file).contains("[General]\nloose=\xE4\xB8\xAD\n"));

    const LPCWSTR lines = L"x=\"1\"\ry=2\r\rbad\rk=v=w\rq=\"a\"b\"\re=\r\nf= 3 ";
    EXPECT_TRUE(WritePrivateProfileSection_E(L"opts", lines, file));
    EXPECT_EQ(sectionOf(L"opts", file), L"\nf= 3 \rSize=14\re=\rq=ab\rx=1\ry=2\r");
    EXPECT_TRUE(WritePrivateProfileSection_E(L"opts", nullptr, file));
    EXPECT_TRUE(WritePrivateProfileSection_E(nullptr, L"opts=top\r", file));
    EXPECT_TRUE(WritePrivateProfileSection_E(L"Opts", L"=7\r", file)); // "Opts/" is the key "Opts"
    EXPECT_EQ(sectionOf(L"", file), L"Opts=7\rloose=\u4E2D\ropts=top\rshown=yes\r");
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
        LPCWSTR key;
        UINT size;
        BOOL result;
        std::string bytes;
    } rows[] = {
        {L"All", 256, TRUE, all},
        {L"All", 258, TRUE, all + std::string(2, '\0')},
        {L"All", 3, TRUE, std::string("\0\1\2", 3)},
        {L"Text", 4, TRUE, std::string("\xE4\xB8\xAD\0", 4)},
        {L"None", 4, FALSE, ""},
        {L"Empty", 4, FALSE, ""},
        {L"Bad", 4, FALSE, ""},
        {nullptr, 4, FALSE, ""},
    };
    for (const auto& row : rows) {
        std::string bytes(300, '?');
        EXPECT_EQ(GetPrivateProfileStruct_E(L"Opts", row.key, bytes.data(), row.size, file),
                  row.result);
        EXPECT_EQ(bytes, row.bytes + std::string(300 - row.bytes.size(), '?'));
    }
    EXPECT_FALSE(GetPrivateProfileStruct_E(L"Opts", L"All", nullptr, 4, file));
}

TEST_F(Profile, FilesThatAreNone)
{
    QDir(m_folder.path()).mkdir(QStringLiteral("folder.ini"));
    const struct
    {
        CString_E file;
        int error; // of the writing functions
    } rows[] = {
        {path("missing.ini"), ENOENT},
        {path("missing/x.ini"), ENOENT},
        {path("folder.ini"), 0},
        {CString_E(), ENOENT},
        {CString_E(L'x', 2000), ENAMETOOLONG},
        {CString_E(static_cast<wchar_t>(0xD800)), EILSEQ},
    };
    for (const auto& row : rows) {
        const LPCWSTR file = row.file.IsEmpty() ? nullptr : row.file.GetString();
        char byte = '?';
        const auto outcome = [](BOOL written) { return written ? 0 : errno; };
        EXPECT_EQ(outcome(WritePrivateProfileString_E(L"s", L"k", L"v", file)), row.error);
        EXPECT_EQ(outcome(WritePrivateProfileSection_E(L"s", L"k=v", file)), row.error);
        EXPECT_EQ(outcome(WritePrivateProfileStruct_E(L"s", L"k", &byte, 1, file)), row.error);
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
    const QByteArray folder = m_folder.path().toUtf8();
    ASSERT_TRUE(chmod(file.Utf8Ptr(), 0444) == 0 && chmod(folder.constData(), 0555) == 0);
    setfsuid(65534); // permissions do not bind the superuser
    EXPECT_TRUE(WritePrivateProfileString_E(L"s", L"k", L"new", file));
    setfsuid(geteuid());
    ASSERT_EQ(chmod(folder.constData(), 0755), 0);
    EXPECT_EQ(contentOf(file), "[s]\nk=old\n");
    // It is forgotten: a later reading neither tells nor writes it.
    ASSERT_EQ(chmod(file.Utf8Ptr(), 0644), 0);
    make("[s]\nk=else\n");
    EXPECT_EQ(stringOf(L"s", L"k", file), L"else");
    EXPECT_EQ(contentOf(file), "[s]\nk=else\n");
}

TEST_F(Profile, TenThousandKeysByARelativeName)
{
    CString_E lines;
    for (int i = 0; i < 10'000; ++i)
        lines.AppendFormat(L"key%05d=value %d\r", i, i);
    const CString_E file = make("");
    const QString before = QDir::currentPath();
    QDir::setCurrent(m_folder.path());
    EXPECT_TRUE(WritePrivateProfileSection_E(L"Many", lines, L"./profile.ini"));
    QDir::setCurrent(before);
    std::wstring buffer(static_cast<std::size_t>(lines.GetLength()), L'?');
    const auto length = static_cast<DWORD>(buffer.size());
    EXPECT_EQ(GetPrivateProfileSection_E(L"Many", buffer.data(), length, file), length);
    EXPECT_EQ(buffer, lines.GetString());
    EXPECT_EQ(stringOf(L"Many", L"key09999", file), L"value 9999");
}

} // namespace
