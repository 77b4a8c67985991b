#include "filetest.h"

#include <fcntl.h>
#include <unistd.h>

namespace {

/// Runs a call and gives the last error, 0 for success.
template <typename Call>
LONG errorOf(Call call)
{
    SetLastError(0);
    return call() ? 0 : static_cast<LONG>(GetLastError());
}

using Call = BOOL (*)(const wchar_t*, const wchar_t*);

constexpr Call Mkdir = [](auto* a, auto*) { return CreateDirectory_E(a, nullptr); };
constexpr Call Rmdir = [](auto* a, auto*) { return RemoveDirectory_E(a); };
constexpr Call Erase = [](auto* a, auto*) { return DeleteFile_E(a); };
constexpr Call Copy = [](auto* a, auto* b) { return CopyFile_E(a, b, TRUE); };
constexpr Call CopyOver = [](auto* a, auto* b) { return CopyFile_E(a, b, FALSE); };
constexpr Call Move = [](auto* a, auto* b) { return MoveFile_E(a, b); };
constexpr Call MoveOver = [](auto* a, auto* b) {
    return MoveFileEx_E(a, b, MOVEFILE_REPLACE_EXISTING);
};
constexpr Call Lock = [](auto* a, auto*) {
    return SetFileAttributes_E(a, FILE_ATTRIBUTE_READONLY);
};
constexpr Call Unlock = [](auto* a, auto*) { return SetFileAttributes_E(a, 0); };

constexpr LONG kNoFile = ERROR_FILE_NOT_FOUND, kNoPath = ERROR_PATH_NOT_FOUND;
constexpr LONG kDenied = ERROR_ACCESS_DENIED, kShared = ERROR_SHARING_VIOLATION;
constexpr LONG kExists = ERROR_ALREADY_EXISTS, kIsFile = ERROR_FILE_EXISTS;
constexpr LONG kNoDir = ERROR_DIRECTORY, kFull = ERROR_DIR_NOT_EMPTY;

TEST_F(FileTest, FunctionsByName)
{
    Make("x");
    Make("y", "g");
    Make("r", "ro");
    // in this order: each call finds what those before it left; an empty name stands for null
    // clang-format off
    const Row<Call, const char*, const char*, LONG> rows[] = {
        {Mkdir, "d", "", 0}, {Mkdir, "d", "", kExists}, {Mkdir, "f", "", kExists},
        {Mkdir, "no/d", "", kNoPath}, {Mkdir, "f/d", "", kNoPath}, {Mkdir, "", "", kNoPath},
        {Copy, "f", "d/c", 0}, {Copy, "f", "d/c", kIsFile}, {CopyOver, "g", "d\\c", 0},
        {Copy, "no", "n", kNoFile}, {Copy, "f", "no/f", kNoPath}, {Copy, "", "", kNoPath},
        {CopyOver, "f", "f", kShared}, {CopyOver, "f", "d", kDenied},
        {CopyOver, "d", "no", kDenied}, {Lock, "ro", "", 0}, {Erase, "ro", "", kDenied},
        {CopyOver, "f", "ro", kDenied}, {Copy, "ro", "ro2", 0}, {MoveOver, "f", "ro", kDenied},
        {Unlock, "ro", "", 0}, {Erase, "ro", "", 0}, {Erase, "ro", "", kNoFile},
        {Erase, "d", "", kDenied}, {Erase, "", "", kNoPath}, {Unlock, "no", "", kNoFile},
        {Unlock, "no/f", "", kNoPath}, {Rmdir, "d", "", kFull}, {Rmdir, "f", "", kNoDir},
        {Rmdir, "no", "", kNoFile}, {Rmdir, "no/d", "", kNoPath}, {Rmdir, "f/d", "", kNoPath},
        {Move, "f", "g", kExists}, {Move, "f", "f", kExists}, {Move, "no", "g", kNoFile},
        {Move, "f", "no/f", kNoPath}, {Move, "f", "", kNoPath}, {MoveOver, "f", "d", kDenied},
        {MoveOver, "f", "g", 0}, {Move, "d", "moved", 0}, {Erase, "moved/c", "", 0},
        {Rmdir, "moved", "", 0},
    };
    // clang-format on
    int number = 0;
    for (const auto& [call, name, to, error] : rows) {
        const CString_E a = Path(name), b = Path(to);
        SetLastError(0);
        EXPECT_EQ(call(*name ? a.GetString() : nullptr, *to ? b.GetString() : nullptr), error == 0);
        EXPECT_TRUE(error == 0 || GetLastError() == static_cast<DWORD>(error)) << "row " << number;
        ++number;
    }
    EXPECT_EQ(QDir(m_dir.path()).entryList(QDir::Files).join(QLatin1Char(' ')), "g ro2"_q);
    EXPECT_EQ(Bytes("g"), "x");
    EXPECT_EQ(GetFileAttributes_E(Path("ro2")), FILE_ATTRIBUTE_READONLY);
}

TEST_F(FileTest, CopiesKeepTimesAndLinks)
{
    CFileStatus_E status;
    ASSERT_TRUE(CFile_E::GetStatus(Make("new"), status));
    status.m_mtime = 1'000'000'000;
    CFile_E::SetStatus(Path(), status);
    Make("old", "target");
    ASSERT_TRUE(QFile::link(VxQString(Path("target")), VxQString(Path("link"))));
    EXPECT_TRUE(CopyFile_E(Path(), Path("link"), FALSE));
    EXPECT_EQ(Bytes("target"), "new");
    EXPECT_TRUE(CFile_E::GetStatus(Path("target"), status));
    EXPECT_EQ(status.m_mtime, 1'000'000'000);
    CFile_E open(Path("target"), CFile_E::modeRead | CFile_E::shareDenyWrite);
    EXPECT_EQ(errorOf([&] { return CopyFile_E(Path(), Path("target"), FALSE); }),
              ERROR_SHARING_VIOLATION);
}

TEST_F(FileTest, CopiesOfUnusualFiles)
{
    const std::string longest(255, 'n');
    EXPECT_TRUE(CopyFile_E(Make("new"), Make("old", longest.c_str()), FALSE));
    EXPECT_EQ(Bytes(longest.c_str()), "new");
    EXPECT_TRUE(CopyFile_E(L"/proc/self/status", Path("status"), FALSE));
    EXPECT_TRUE(Bytes("status").startsWith("Name:"));
    ASSERT_TRUE(QFile::link(VxQString(Path("nothing")), VxQString(Path("link"))));
    EXPECT_FALSE(CopyFile_E(L"/proc/self/mem", Path("link"), FALSE)); // cannot be read at 0
    EXPECT_EQ(Bytes("nothing"), "<none>");
    EXPECT_TRUE(CopyFile_E(Path(), Path("link"), FALSE));
    EXPECT_EQ(Bytes("nothing"), "new");
}

TEST_F(FileTest, MovesOverAnotherLink)
{
    const QByteArray name = VxQString(Make("x")).toUtf8();
    ASSERT_EQ(::link(name.constData(), (name + "2").constData()), 0);
    EXPECT_TRUE(MoveOver(Path(), Path("./f"))); // one link, written in two ways
    EXPECT_EQ(Bytes(), "x");
    EXPECT_TRUE(MoveOver(Path(), Path("f2")));
    EXPECT_EQ(Bytes() + Bytes("f2"), "<none>x");
    EXPECT_EQ(
        errorOf([&] { return MoveFileEx_E(Path("f2"), Path("f"), MOVEFILE_DELAY_UNTIL_REBOOT); }),
        ERROR_NOT_SUPPORTED);
}

TEST_F(FileTest, Attributes)
{
    CreateDirectory_E(Path(".d"), nullptr);
    CloseHandle_E(CreateFile_E(Path("locked"), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                               FILE_ATTRIBUTE_READONLY, nullptr));
    const Row<CString_E, DWORD> rows[] = {
        {Make("x"), FILE_ATTRIBUTE_NORMAL},
        {Path("locked"), FILE_ATTRIBUTE_READONLY},
        {Path(".d"), FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN},
        {Path("."), FILE_ATTRIBUTE_DIRECTORY},
        {L"/dev/null", FILE_ATTRIBUTE_DEVICE},
        {L"", INVALID_FILE_ATTRIBUTES}};
    for (const auto& [name, attributes] : rows)
        EXPECT_EQ(GetFileAttributes_E(name), attributes) << VxQString(name).toStdString();
}

class FileFindTest : public FileTest
{
protected:
    /// The names that a search finds, with blanks between.
    std::string Find(const char* pattern)
    {
        QStringList names;
        CFileFind_E finder;
        for (BOOL bMore = finder.FindFile(Path(pattern)); bMore;) {
            bMore = finder.FindNextFile();
            names += VxQString(finder.GetFileName());
        }
        return names.join(QLatin1Char(' ')).toStdString();
    }
};

TEST_F(FileFindTest, Wildcards)
{
    for (const char* name : {"a", "A.TXT", "ab.txt", "a.b.txt", "abc.dat", "ä.Txt", "x.t", "b."})
        Make("x", name);
    const Row<const char*, const char*> rows[] = {
        {"*", ". .. a a.b.txt A.TXT ab.txt abc.dat b. x.t ä.Txt"},
        {"*.*", ". .. a a.b.txt A.TXT ab.txt abc.dat b. x.t ä.Txt"},
        {"*.", ". .. a"},
        {"*.txt", "a.b.txt A.TXT ab.txt ä.Txt"},
        {"a.*", "a a.b.txt A.TXT"},
        {"a?.txt", "A.TXT ab.txt"},
        {"a??.*", "a a.b.txt A.TXT ab.txt abc.dat"},
        {"?", "a"},
        {"?.txt", "A.TXT ä.Txt"},
        {"Ä.tXT", "ä.Txt"},
        {"*b*", "a.b.txt ab.txt abc.dat b."},
        {"*.t??", "a.b.txt A.TXT ab.txt x.t ä.Txt"},
        {"*.b.*", "a.b.txt"},
        {"no*", ""},
    };
    for (const auto& [pattern, names] : rows)
        EXPECT_EQ(Find(pattern), names) << pattern;
}

TEST_F(FileFindTest, NamesThatAreNoText)
{
    const QByteArray name = QFile::encodeName(m_dir.path()) + "/a\xFF.txt";
    ::close(::open(name.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    EXPECT_EQ(Find("*.txt"), "a\uFFFD.txt");
    EXPECT_EQ(::unlink(name.constData()), 0); // the folder would stay
}

TEST_F(FileFindTest, TellsOfFiles)
{
    Make("abc", ".hidden.txt");
    CFileStatus_E status;
    ASSERT_TRUE(CFile_E::GetStatus(Path(".hidden.txt"), status));
    CFileFind_E finder;
    std::time_t time = -1;
    FILETIME fileTime;
    EXPECT_FALSE(finder.GetLastWriteTime(time));
    ASSERT_TRUE(finder.FindFile(Path("*.txt").ToWinSeperator()));
    EXPECT_TRUE(finder.GetFilePath().IsEmpty());
    EXPECT_FALSE(finder.FindNextFile()); // it is the last one
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NO_MORE_FILES));
    EXPECT_STREQ(finder.GetFileTitle().GetString(), L".hidden");
    EXPECT_STREQ(finder.GetFilePath().GetString(), Path(".hidden.txt").GetString());
    EXPECT_STREQ(finder.GetFileURL().GetString(), (L"file://" + Path(".hidden.txt")).GetString());
    EXPECT_STREQ(finder.GetRoot().GetString(), (Path("") + L"/").GetString());
    EXPECT_EQ(finder.GetLength(), 3U);
    EXPECT_TRUE(finder.IsHidden());
    EXPECT_FALSE(finder.IsDirectory() || finder.IsReadOnly() || finder.IsNormal() ||
                 finder.IsDots());
    EXPECT_TRUE(finder.GetLastWriteTime(time));
    EXPECT_EQ(time, status.m_mtime);
    EXPECT_TRUE(finder.GetCreationTime(&fileTime));
    EXPECT_EQ((static_cast<LONGLONG>(fileTime.dwHighDateTime) << 32 | fileTime.dwLowDateTime) /
                      10'000'000 -
                  11'644'473'600,
              status.m_ctime);
    EXPECT_FALSE(finder.GetLastAccessTime(nullptr));
    ASSERT_TRUE(finder.FindFile(Path("*")));
    EXPECT_TRUE(finder.FindNextFile());
    EXPECT_TRUE(finder.IsDots() && finder.IsDirectory());
    CFile_E::Remove(Path(".hidden.txt"));
    EXPECT_FALSE(finder.FindNextFile()); // only ".." is left
    EXPECT_STREQ(finder.GetFileName().GetString(), L"..");
    finder.Close();
    EXPECT_EQ(finder.GetLength(), 0U);
    EXPECT_TRUE(finder.GetFileName().IsEmpty());
}

TEST_F(FileFindTest, Failures)
{
    WIN32_FIND_DATA data;
    CFileFind_E finder;
    const HANDLE hEnded = FindFirstFile_E(Path("*"), &data);
    EXPECT_EQ(errorOf([&] { return FindNextFile_E(hEnded, nullptr); }), ERROR_INVALID_PARAMETER);
    EXPECT_TRUE(FindClose_E(hEnded));
    const Row<std::function<BOOL()>, LONG> rows[] = {
        {[&] { return finder.FindFile(Path("no")); }, kNoFile},
        {[&] { return finder.FindFile(Path("no/*")); }, kNoPath},
        {[&] { return finder.FindFile(Make("x") + L"/*"); }, kNoPath},
        {[&] { return finder.FindFile(L""); }, kNoPath},
        {[&] { return finder.FindNextFile(); }, ERROR_INVALID_HANDLE},
        {[&] { return FindNextFile_E(INVALID_HANDLE_VALUE, &data); }, ERROR_INVALID_HANDLE},
        {[&] { return FindNextFile_E(hEnded, &data); }, ERROR_INVALID_HANDLE},
        {[&] { return FindNextFile_E(&data, &data); }, ERROR_INVALID_HANDLE},
        {[&] { return FindClose_E(hEnded); }, ERROR_INVALID_HANDLE},
        {[&] { return FindClose_E(nullptr); }, ERROR_INVALID_HANDLE}};
    for (const auto& [call, error] : rows)
        EXPECT_EQ(errorOf(call), error);
}

} // namespace
