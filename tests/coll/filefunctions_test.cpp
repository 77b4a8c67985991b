#include "filetest.h"

#include <fcntl.h>
#include <unistd.h>

namespace {

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
constexpr Call Lock = [](auto* a, auto*) { return SetFileAttributes_E(a, CFile_E::readOnly); };
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
    // in this order: each call finds what those before it left
    // clang-format off
    const Row<Call, const char*, const char*, LONG> rows[] = {
        {Mkdir, "d", "", 0}, {Mkdir, "f", "", kExists}, {Mkdir, "no/d", "", kNoPath},
        {Copy, "f", "d/c", 0}, {Copy, "f", "d/c", kIsFile}, {CopyOver, "g", "d\\c", 0},
        {Copy, "no", "n", kNoFile}, {CopyOver, "f", "f", kShared}, {CopyOver, "f", "d", kDenied},
        {CopyOver, "d", "no", kDenied}, {Lock, "ro", "", 0}, {Erase, "ro", "", kDenied},
        {CopyOver, "f", "ro", kDenied}, {Copy, "ro", "ro2", 0}, {MoveOver, "f", "ro", kDenied},
        {Unlock, "ro", "", 0}, {Erase, "ro", "", 0}, {Erase, "ro", "", kNoFile},
        {Erase, "d", "", kDenied}, {Unlock, "no", "", kNoFile}, {Rmdir, "d", "", kFull},
        {Rmdir, "f", "", kNoDir}, {Rmdir, "no/d", "", kNoPath}, {Move, "f", "g", kExists},
        {Move, "no", "g", kNoFile}, {Move, "f", "no/f", kNoPath}, {MoveOver, "f", "d", kDenied},
        {MoveOver, "f", "g", 0}, {Move, "d", "moved", 0}, {Erase, "moved/c", "", 0},
        {Rmdir, "moved", "", 0},
    };
    // clang-format on
    forRows(rows, [this](Call call, const char* from, const char* to, LONG error) {
        EXPECT_EQ(errorOf([&] { return call(Path(from), Path(to)); }), error);
    });
    EXPECT_EQ(errorOf([] { return CreateDirectory_E(nullptr, nullptr); }), kNoPath);
    EXPECT_EQ(errorOf([] { return CopyFile_E(nullptr, nullptr, TRUE); }), kNoPath);
    EXPECT_EQ(errorOf([this] { return MoveFile_E(Path("g"), nullptr); }), kNoPath);
    EXPECT_EQ(QDir(m_dir.path()).entryList(QDir::Files).join(QLatin1Char(' ')), "g ro2"_q);
    EXPECT_EQ(Bytes("g"), "x");
    CreateDirectory_E(Path(".d"), nullptr);
    CloseHandle_E(Open(GENERIC_WRITE, CREATE_NEW, 0, FILE_ATTRIBUTE_READONLY, "locked"));
    EXPECT_EQ(GetFileAttributes_E(Path("g")), DWORD{FILE_ATTRIBUTE_NORMAL});
    EXPECT_EQ(GetFileAttributes_E(Path("locked")), DWORD{FILE_ATTRIBUTE_READONLY});
    EXPECT_EQ(GetFileAttributes_E(Path(".d")),
              DWORD{FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN});
    EXPECT_EQ(GetFileAttributes_E(L"/dev/null"), DWORD{FILE_ATTRIBUTE_DEVICE});
    EXPECT_EQ(GetFileAttributes_E(L""), INVALID_FILE_ATTRIBUTES);
}

TEST_F(FileTest, CopiesOfAllKinds)
{
    CFileStatus_E status;
    CFile_E::GetStatus(Make("new"), status);
    status.m_mtime = 1'000'000'000;
    CFile_E::SetStatus(Path(), status);
    const std::string longest(255, 'n'); // none beside it may be longer
    for (const char* const name : {"target", longest.c_str()}) {
        QFile::remove(VxQString(Path("link")));
        Make("old", name);
        QFile::link(VxQString(Path(name)), VxQString(Path("link")));
        EXPECT_TRUE(CopyFile_E(Path(), Path("link"), FALSE));
        EXPECT_EQ(Bytes(name), "new");
        EXPECT_TRUE(CFile_E::GetStatus(Path(name), status) && status.m_mtime == 1'000'000'000);
    }
    CFile_E open(Path("target"), CFile_E::modeRead | CFile_E::shareDenyWrite);
    EXPECT_EQ(errorOf([&] { return CopyFile_E(Path(), Path("target"), FALSE); }), kShared);
    EXPECT_TRUE(CopyFile_E(L"/proc/self/status", Path("status"), FALSE)); // of no size
    EXPECT_TRUE(Bytes("status").startsWith("Name:"));
    QFile::link(VxQString(Path("nothing")), VxQString(Path("to nothing")));
    EXPECT_TRUE(CopyFile_E(Path(), Path("to nothing"), FALSE));
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
}

/// The names that a search finds, with blanks between.
std::string found(const CString_E& pattern)
{
    QStringList names;
    CFileFind_E finder;
    for (BOOL bMore = finder.FindFile(pattern); bMore;) {
        bMore = finder.FindNextFile();
        names += VxQString(finder.GetFileName());
    }
    return names.join(QLatin1Char(' ')).toStdString();
}

TEST_F(FileTest, Wildcards)
{
    for (const char* name : {"a", "A.TXT", "ab.txt", "a.b.txt", "abc.dat", "ä.Txt", "x.t", "b."})
        Make("x", name);
    // clang-format off
    const Row<const char*, const char*> rows[] = {
        {"*.*", ". .. a a.b.txt A.TXT ab.txt abc.dat b. x.t ä.Txt"}, {"*.", ". .. a"},
        {"*.txt", "a.b.txt A.TXT ab.txt ä.Txt"}, {"a.*", "a a.b.txt A.TXT"},
        {"a??.*", "a a.b.txt A.TXT ab.txt abc.dat"}, {"?", "a"}, {"Ä.tXT", "ä.Txt"},
        {"*b*", "a.b.txt ab.txt abc.dat b."}, {"*.t??", "a.b.txt A.TXT ab.txt x.t ä.Txt"},
    };
    // clang-format on
    for (const auto& [pattern, names] : rows)
        EXPECT_EQ(found(Path(pattern)), names) << pattern;
    const QByteArray name = QFile::encodeName(m_dir.path()) + "/a\xFF.txt";
    ::close(::open(name.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    EXPECT_EQ(found(Path("a?.txt")), "A.TXT ab.txt a\uFFFD.txt") << "a name that is no text";
    EXPECT_EQ(::unlink(name.constData()), 0); // the folder would stay
}

TEST_F(FileTest, FindersTellOfFiles)
{
    Make("abc", ".hidden.txt");
    CFileStatus_E status;
    CFile_E::GetStatus(Path(".hidden.txt"), status);
    CFileFind_E finder;
    std::time_t time = -1;
    FILETIME fileTime;
    EXPECT_EQ(errorOf([&] { return finder.FindNextFile(); }), ERROR_INVALID_HANDLE);
    ASSERT_TRUE(finder.FindFile(Path("*.txt").ToWinSeperator()));
    EXPECT_TRUE(finder.GetFilePath().IsEmpty() && !finder.GetLastWriteTime(time));
    EXPECT_EQ(errorOf([&] { return finder.FindNextFile(); }), ERROR_NO_MORE_FILES); // the last one
    EXPECT_EQ(finder.GetFileTitle(), L".hidden");
    EXPECT_EQ(finder.GetFilePath(), Path(".hidden.txt"));
    EXPECT_EQ(finder.GetFileURL(), L"file://" + Path(".hidden.txt"));
    EXPECT_TRUE(finder.IsHidden() && !finder.IsDirectory() && finder.GetLength() == 3);
    EXPECT_TRUE(finder.GetLastWriteTime(time) && time == status.m_mtime);
    EXPECT_TRUE(finder.GetCreationTime(&fileTime));
    const auto ticks =
        static_cast<LONGLONG>(fileTime.dwHighDateTime) << 32 | fileTime.dwLowDateTime;
    EXPECT_EQ(ticks / 10'000'000 - 11'644'473'600, status.m_ctime);
    EXPECT_TRUE(finder.FindFile(Path("*")) && finder.FindNextFile() && finder.IsDots());
    CFile_E::Remove(Path(".hidden.txt"));
    EXPECT_TRUE(!finder.FindNextFile() && finder.GetFileName() == L".."); // only that is left
}

TEST_F(FileTest, FailuresOfFinders)
{
    WIN32_FIND_DATA data;
    CFileFind_E finder;
    EXPECT_EQ(errorOf([&] { return finder.FindFile(Path("no")); }), kNoFile);
    EXPECT_EQ(errorOf([&] { return finder.FindFile(Path("no/*")); }), kNoPath);
    EXPECT_EQ(errorOf([&] { return finder.FindFile(Make("x") + L"/*"); }), kNoPath);
    EXPECT_EQ(errorOf([&] { return finder.FindFile(L""); }), kNoPath);
    EXPECT_EQ(FindFirstFile_E(Path("*"), nullptr), INVALID_HANDLE_VALUE);
    const HANDLE hEnded = FindFirstFile_E(Path("*"), &data);
    EXPECT_EQ(errorOf([&] { return FindNextFile_E(hEnded, nullptr); }), ERROR_INVALID_PARAMETER);
    EXPECT_TRUE(FindClose_E(hEnded));
    for (const HANDLE h : {hEnded, INVALID_HANDLE_VALUE}) {
        EXPECT_EQ(errorOf([&] { return FindNextFile_E(h, &data); }), ERROR_INVALID_HANDLE);
        EXPECT_EQ(errorOf([&] { return FindClose_E(h); }), ERROR_INVALID_HANDLE);
    }
}

} // namespace
