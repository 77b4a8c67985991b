#include "filetest.h"

#include <unistd.h>

namespace {

/// Runs a call and gives the last error, 0 for success.
template <typename Call>
LONG errorOf(Call call)
{
    SetLastError(0);
    return call() ? 0 : static_cast<LONG>(GetLastError());
}

TEST_F(FileTest, FunctionsByName)
{
    Make("x");
    Make("y", "g");
    Make("r", "readonly");
    const CString_E f = Path(), g = Path("g"), no = Path("no"), below = Path("no/f");
    const CString_E folder = Path("folder"), ro = Path("readonly");
    // in this order: each call finds what those before left
    const Row<const char*, std::function<BOOL()>, LONG> rows[] = {
        {"make", [&] { return CreateDirectory_E(folder, nullptr); }, 0},
        {"make again", [&] { return CreateDirectory_E(folder, nullptr); }, ERROR_ALREADY_EXISTS},
        {"make over file", [&] { return CreateDirectory_E(f, nullptr); }, ERROR_ALREADY_EXISTS},
        {"make below nothing", [&] { return CreateDirectory_E(below, nullptr); },
         ERROR_PATH_NOT_FOUND},
        {"make below file", [&] { return CreateDirectory_E(Path("f/d"), nullptr); },
         ERROR_PATH_NOT_FOUND},
        {"make null", [&] { return CreateDirectory_E(nullptr, nullptr); }, ERROR_PATH_NOT_FOUND},
        {"copy", [&] { return CopyFile_E(f, Path("folder/c"), TRUE); }, 0},
        {"copy again", [&] { return CopyFile_E(f, Path("folder/c"), TRUE); }, ERROR_FILE_EXISTS},
        {"copy over", [&] { return CopyFile_E(g, Path("folder\\c").ToWinSeperator(), FALSE); }, 0},
        {"copy missing", [&] { return CopyFile_E(no, g, FALSE); }, ERROR_FILE_NOT_FOUND},
        {"copy to nowhere", [&] { return CopyFile_E(f, below, FALSE); }, ERROR_PATH_NOT_FOUND},
        {"copy onto itself", [&] { return CopyFile_E(f, f, FALSE); }, ERROR_SHARING_VIOLATION},
        {"copy onto folder", [&] { return CopyFile_E(f, folder, FALSE); }, ERROR_ACCESS_DENIED},
        {"copy folder", [&] { return CopyFile_E(folder, no, FALSE); }, ERROR_ACCESS_DENIED},
        {"copy null", [&] { return CopyFile_E(nullptr, nullptr, FALSE); }, ERROR_PATH_NOT_FOUND},
        {"read-only", [&] { return SetFileAttributes_E(ro, FILE_ATTRIBUTE_READONLY); }, 0},
        {"delete read-only", [&] { return DeleteFile_E(ro); }, ERROR_ACCESS_DENIED},
        {"copy to read-only", [&] { return CopyFile_E(f, ro, FALSE); }, ERROR_ACCESS_DENIED},
        {"copy read-only", [&] { return CopyFile_E(ro, Path("ro2"), TRUE); }, 0},
        {"replace read-only", [&] { return MoveFileEx_E(f, ro, MOVEFILE_REPLACE_EXISTING); },
         ERROR_ACCESS_DENIED},
        {"writable", [&] { return SetFileAttributes_E(ro, FILE_ATTRIBUTE_NORMAL); }, 0},
        {"delete", [&] { return DeleteFile_E(ro); }, 0},
        {"delete again", [&] { return DeleteFile_E(ro); }, ERROR_FILE_NOT_FOUND},
        {"delete folder", [&] { return DeleteFile_E(folder); }, ERROR_ACCESS_DENIED},
        {"set missing", [&] { return SetFileAttributes_E(no, 0); }, ERROR_FILE_NOT_FOUND},
        {"set nowhere", [&] { return SetFileAttributes_E(below, 0); }, ERROR_PATH_NOT_FOUND},
        {"remove full", [&] { return RemoveDirectory_E(folder); }, ERROR_DIR_NOT_EMPTY},
        {"remove file", [&] { return RemoveDirectory_E(f); }, ERROR_DIRECTORY},
        {"remove missing", [&] { return RemoveDirectory_E(no); }, ERROR_FILE_NOT_FOUND},
        {"remove nowhere", [&] { return RemoveDirectory_E(below); }, ERROR_PATH_NOT_FOUND},
        {"remove below file", [&] { return RemoveDirectory_E(Path("f/d")); }, ERROR_PATH_NOT_FOUND},
        {"remove null", [&] { return RemoveDirectory_E(nullptr); }, ERROR_PATH_NOT_FOUND},
        {"move onto", [&] { return MoveFile_E(f, g); }, ERROR_ALREADY_EXISTS},
        {"move missing", [&] { return MoveFile_E(no, g); }, ERROR_FILE_NOT_FOUND},
        {"move to nowhere", [&] { return MoveFile_E(f, below); }, ERROR_PATH_NOT_FOUND},
        {"move null", [&] { return MoveFile_E(f, nullptr); }, ERROR_PATH_NOT_FOUND},
        {"replace folder", [&] { return MoveFileEx_E(f, folder, MOVEFILE_REPLACE_EXISTING); },
         ERROR_ACCESS_DENIED},
        {"replace", [&] { return MoveFileEx_E(f, g, MOVEFILE_REPLACE_EXISTING); }, 0},
        {"move folder", [&] { return MoveFile_E(folder, Path("moved")); }, 0},
        {"remove",
         [&] { return DeleteFile_E(Path("moved/c")) && RemoveDirectory_E(Path("moved")); }, 0},
    };
    for (const auto& [name, call, error] : rows)
        EXPECT_EQ(errorOf(call), error) << name;
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

TEST_F(FileTest, Attributes)
{
    ASSERT_TRUE(CreateDirectory_E(Path(".d"), nullptr));
    EXPECT_TRUE(QFile::link("/nowhere"_q, VxQString(Path("dangling"))));
    const Row<CString_E, DWORD> rows[] = {
        {Make("x"), FILE_ATTRIBUTE_NORMAL},
        {Path(".d"), FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN},
        {Path("."), FILE_ATTRIBUTE_DIRECTORY},
        {L"/dev/null", FILE_ATTRIBUTE_DEVICE},
        {Path("dangling"), INVALID_FILE_ATTRIBUTES},
        {L"", INVALID_FILE_ATTRIBUTES},
    };
    for (const auto& [name, attributes] : rows)
        EXPECT_EQ(GetFileAttributes_E(name), attributes) << VxQString(name).toStdString();
    CloseHandle_E(CreateFile_E(Path("new"), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                               FILE_ATTRIBUTE_READONLY, nullptr));
    EXPECT_EQ(GetFileAttributes_E(Path("new")), FILE_ATTRIBUTE_READONLY);
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
        {"*.", ". a"},
        {"*.txt", "a.b.txt A.TXT ab.txt ä.Txt"},
        {"a.*", "a a.b.txt A.TXT"},
        {"a?.txt", "A.TXT ab.txt"},
        {"a??.*", "a a.b.txt A.TXT ab.txt abc.dat"},
        {"?", ". a"},
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

TEST_F(FileFindTest, TellsOfFiles)
{
    Make("abc", ".hidden.txt");
    CFileStatus_E status;
    ASSERT_TRUE(CFile_E::GetStatus(Path(".hidden.txt"), status));
    CFileFind_E finder;
    std::time_t time = -1;
    FILETIME fileTime;
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_FALSE(finder.GetLastWriteTime(time));
    ASSERT_TRUE(finder.FindFile(Path("*.txt").ToWinSeperator()));
    EXPECT_TRUE(finder.GetFilePath().IsEmpty());
    EXPECT_FALSE(finder.FindNextFile()); // it is the last one
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NO_MORE_FILES));
    EXPECT_STREQ(finder.GetFileTitle().GetString(), L".hidden");
    EXPECT_STREQ(finder.GetFilePath().GetString(), Path(".hidden.txt").GetString());
    EXPECT_STREQ(finder.GetFileURL().GetString(), (L"file://" + Path(".hidden.txt")).GetString());
    EXPECT_STREQ(finder.GetRoot().GetString(), (Path("")).GetString());
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
    EXPECT_TRUE(finder.FindNextFile()); // it had been looked at before it vanished
    EXPECT_FALSE(finder.FindNextFile());
    finder.Close();
    EXPECT_EQ(finder.GetLength(), 0U);
    EXPECT_TRUE(finder.GetFileName().IsEmpty());
}

TEST_F(FileFindTest, Failures)
{
    WIN32_FIND_DATA data;
    CFileFind_E finder;
    const Row<std::function<BOOL()>, LONG> rows[] = {
        {[&] { return finder.FindFile(Path("no")); }, ERROR_FILE_NOT_FOUND},
        {[&] { return finder.FindFile(Path("no/*")); }, ERROR_PATH_NOT_FOUND},
        {[&] { return finder.FindFile(Make("x") + L"/*"); }, ERROR_PATH_NOT_FOUND},
        {[&] { return finder.FindFile(L""); }, ERROR_PATH_NOT_FOUND},
        {[&] { return finder.FindNextFile(); }, ERROR_INVALID_HANDLE},
        {[&] { return FindFirstFile_E(Path("*"), nullptr) != INVALID_HANDLE_VALUE; },
         ERROR_INVALID_PARAMETER},
        {[&] { return FindNextFile_E(INVALID_HANDLE_VALUE, &data); }, ERROR_INVALID_HANDLE},
        {[&] { return FindNextFile_E(nullptr, &data); }, ERROR_INVALID_HANDLE},
        {[&] { return FindClose_E(INVALID_HANDLE_VALUE); }, ERROR_INVALID_HANDLE},
    };
    for (const auto& [call, error] : rows)
        EXPECT_EQ(errorOf(call), error);
}

} // namespace
