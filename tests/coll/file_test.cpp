#include "filetest.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using E = CFileException_E;
using F = CFile_E;

constexpr UINT kRead = F::modeRead, kWrite = F::modeWrite, kBoth = F::modeReadWrite;
constexpr UINT kCreate = F::modeCreate, kKeep = F::modeCreate | F::modeNoTruncate;
constexpr Failure kDenied{E::accessDenied, ERROR_ACCESS_DENIED};
constexpr Failure kClosed{E::invalidFile, ERROR_INVALID_HANDLE};
constexpr Failure kMissing{E::fileNotFound, ERROR_FILE_NOT_FOUND};
constexpr Failure kNoFolder{E::badPath, ERROR_PATH_NOT_FOUND};
constexpr Failure kBadSeek{E::badSeek, ERROR_NEGATIVE_SEEK};
constexpr Failure kFull{E::diskFull, ERROR_DISK_FULL};
constexpr Failure kShared{E::sharingViolation, ERROR_SHARING_VIOLATION};
constexpr Failure kBadNumber{E::genericException, ERROR_INVALID_PARAMETER};
constexpr Failure kLocked{E::lockViolation, ERROR_LOCK_VIOLATION};

TEST_F(FileTest, IsOverAQFile)
{
    for (const auto* pClass : {RUNTIME_CLASS_E(CFile_E), RUNTIME_CLASS_E(CStdioFile_E)})
        EXPECT_STREQ(pClass->GetImpClassName(), "QFile");
    EXPECT_EQ(RUNTIME_CLASS_E(CFile_E)->CreateObject(), nullptr);
    CFile_E file(Make("abc"), kRead);
    EXPECT_EQ(qobject_cast<QFile*>(file.GetImpQObject())->handle(), file.m_hFile);
}

TEST_F(FileTest, OpenModes)
{
    constexpr UINT odd = F::shareExclusive | F::typeBinary | F::osWriteThrough;
    // before: null for no file; after: once "Z" has been written, if it may be, null if not found
    const Row<UINT, const char*, const char*> rows[] = {
        {kRead, "abc", "abc"},          {kRead | odd, "abc", "abc"},
        {kRead, nullptr, nullptr},      {kWrite, nullptr, nullptr},
        {kWrite, "abc", "Zbc"},         {kBoth, "abc", "Zbc"},
        {kWrite | kCreate, "abc", "Z"}, {kBoth | kCreate, nullptr, "Z"},
        {kWrite | kKeep, "abc", "Zbc"}, {kWrite | kKeep, nullptr, "Z"},
        {kRead | kCreate, "abc", ""},
    };
    forRows(rows, [&](UINT mode, const char* before, const char* after) {
        QFile::remove(VxQString(Path()));
        if (before)
            Make(before);
        CFile_E file;
        CFileException_E error;
        EXPECT_EQ(file.Open(Path(), mode, &error), after != nullptr);
        if (after) {
            char c;
            EXPECT_EQ(failureOf([&] { file.Write("Z", 1); }),
                      (mode & 3U) == kRead ? kDenied : kNoFailure);
            EXPECT_EQ(failureOf([&] { file.Read(&c, 1); }),
                      (mode & 3U) == kWrite ? kDenied : kNoFailure);
            EXPECT_EQ(Bytes(), after); // unbuffered: there before the file is closed
        } else {
            EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
            EXPECT_EQ(Failure(error.m_cause, error.m_lOsError), kMissing);
            EXPECT_STREQ(error.m_strFileName.GetString(), Path().GetString());
        }
    });
}

TEST_F(FileTest, ReadsSeeksAndCuts)
{
    CFile_E file(Make("0123456789"), kBoth);
    char buffer[16] = {};
    EXPECT_EQ(file.Read(buffer, 4), 4U);
    EXPECT_EQ(file.Seek(2, F::current), 6U);
    EXPECT_EQ(file.Read(buffer, 16), 4U);
    EXPECT_STREQ(buffer, "6789");
    EXPECT_EQ(file.Read(buffer, 16), 0U);
    EXPECT_EQ(file.Seek(-3, F::end), 7U);
    EXPECT_EQ(failureOf([&] { file.Seek(-8, F::current); }), kBadSeek);
    EXPECT_THROW(file.Seek(0, 3), CInvalidArgException_E*);
    EXPECT_THROW(file.Write(nullptr, 1), CInvalidArgException_E*);
    EXPECT_EQ(file.GetPosition(), 7U);
    file.SetLength(5);
    EXPECT_EQ(file.GetLength(), 5U);
    EXPECT_EQ(file.GetPosition(), 5U);
    file.Write("x", 1);
    EXPECT_EQ(file.SeekToEnd(), 6U);
    EXPECT_EQ(file.Seek(2, F::end), 8U);
    file.Write("y", 1);
    file.SeekToBegin();
    EXPECT_EQ(file.GetPosition(), 0U);
    EXPECT_EQ(Bytes(), QByteArray("01234x\0\0y", 9));
    constexpr LONGLONG far = (5LL << 30) + 3;
    file.Seek(far, F::begin);
    file.Write("end", 3);
    EXPECT_EQ(file.GetLength(), static_cast<ULONGLONG>(far + 3));
    file.Seek(-2, F::end);
    EXPECT_EQ(file.Read(buffer, 4), 2U);
    EXPECT_EQ(std::string(buffer, 2), "nd");
}

TEST_F(FileTest, NamesAndReuse)
{
    CFile_E file(Path("a.b.txt").ToWinSeperator(), kWrite | kCreate);
    EXPECT_STREQ(file.GetFilePath().GetString(), Path("a.b.txt").GetString());
    EXPECT_STREQ(file.GetFileName().GetString(), L"a.b.txt");
    EXPECT_STREQ(file.GetFileTitle().GetString(), L"a.b");
    file.Write("1", 1);
    ASSERT_TRUE(file.Open(Path("g"), kWrite | kCreate));
    file.Write("2", 1);
    file.Close();
    file.Close();
    EXPECT_TRUE(file.GetFilePath().IsEmpty());
    EXPECT_EQ(Bytes("a.b.txt") + Bytes("g"), "12");
}

TEST_F(FileTest, DescriptorsAndDuplicates)
{
    const int fd = ::open(Make("abcdef").Utf8Ptr(), O_RDWR | O_CLOEXEC);
    char c = 0;
    {
        CFile_E file(fd);
        EXPECT_EQ(file.m_hFile, fd);
        const std::unique_ptr<CFile_E> pCopy(file.Duplicate());
        EXPECT_NE(pCopy->m_hFile, fd);
        file.Read(&c, 1);
        pCopy->Read(&c, 1);
        EXPECT_EQ(c, 'b');
        EXPECT_EQ(file.GetPosition(), 2U);
    }
    EXPECT_EQ(::read(fd, &c, 1), 1); // not closed: it is the caller's
    CFile_E(fd).Close();
    EXPECT_EQ(::read(fd, &c, 1), -1);
    EXPECT_EQ(CFile_E(F::hFileNull).m_hFile, F::hFileNull);
}

TEST_F(FileTest, EveryFailureHasItsCause)
{
    Make("x");
    SetFileAttributes_E(Make("x", "locked"), FILE_ATTRIBUTE_READONLY);
    const std::string endless(300, 'n');
    const Row<const char*, UINT, Failure> opened[] = {
        {"no", kRead, kMissing},
        {"no/f", kRead, kNoFolder},
        {"no/f", kWrite | kCreate, kNoFolder},
        {"f/below", kWrite | kCreate, kNoFolder},
        {".", kRead, kDenied},
        {".", kWrite | kCreate, kDenied},
        {"locked", kWrite, kDenied},
        {"locked", kRead | kCreate, kDenied},
        {endless.c_str(), kRead, {E::badPath, ERROR_FILENAME_EXCED_RANGE}},
    };
    forRows(opened, [&](const char* name, UINT mode, const Failure& failure) {
        EXPECT_EQ(failureOf([&] { CFile_E file(Path(name), mode); }), failure);
    });
    EXPECT_EQ(failureOf([] { CFile_E file(nullptr, kRead); }), kNoFolder);
    EXPECT_EQ(failureOf([&] { CFile_E::Remove(Path("no/f")); }), kNoFolder);
    EXPECT_EQ(failureOf([&] { CFile_E::SetStatus(Path("no"), {}); }), kMissing);
    EXPECT_EQ(failureOf([&] { CFile_E::Rename(Path(), Path("locked")); }),
              Failure(E::accessDenied, ERROR_ALREADY_EXISTS));
    EXPECT_EQ(Bytes() + Bytes("locked"), "xx");

    CFile_E closed;
    char c = 0;
    const std::function<void()> uses[] = {
        [&] { closed.Read(&c, 1); },       [&] { closed.Write(&c, 1); },
        [&] { closed.GetLength(); },       [&] { closed.SeekToEnd(); },
        [&] { closed.SetLength(1); },      [&] { closed.LockRange(0, 1); },
        [&] { delete closed.Duplicate(); }};
    for (const auto& use : uses)
        EXPECT_EQ(failureOf(use), kClosed);
    EXPECT_NO_THROW(closed.Flush());
}

TEST_F(FileTest, TooManyOpenFiles)
{
    rlimit limit;
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &limit), 0);
    const CString_E path = Make("x");
    const int lowest = ::dup(0);
    ::close(lowest);
    const rlimit low = {static_cast<rlim_t>(lowest), limit.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &low), 0);
    const Failure failure = failureOf([&] { CFile_E file(path, kRead); });
    ::setrlimit(RLIMIT_NOFILE, &limit);
    EXPECT_EQ(failure, Failure(E::tooManyOpenFiles, ERROR_TOO_MANY_OPEN_FILES));
}

TEST_F(FileTest, FullDisk)
{
    CFile_E raw(L"/dev/full", kWrite);
    EXPECT_EQ(failureOf([&] { raw.Write("x", 1); }), kFull);
    CStdioFile_E text(L"/dev/full", kWrite);
    text.WriteString(L"x");
    EXPECT_EQ(failureOf([&] { text.Close(); }), kFull);
    EXPECT_EQ(failureOf([&] { text.GetLength(); }), kClosed);

    const QByteArray folder = VxQString(Path("small")).toUtf8();
    ASSERT_TRUE(CreateDirectory_E(Path("small"), nullptr));
    if (::mount("tmpfs", folder.constData(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "cannot mount a small file system";
    const QByteArray block(40'000, 'b');
    Make(block, "small/kept");
    Make(QByteArray(40'000, 'n'), "new");
    EXPECT_EQ(failureOf([&] { CFile_E(Path("small/f"), kWrite | kCreate).Write(block, 40'000); }),
              kFull);
    CFile_E::Remove(Path("small/f"));
    EXPECT_FALSE(CopyFile_E(Path("new"), Path("small/kept"), FALSE));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_DISK_FULL));
    EXPECT_EQ(failureOf([&] { CFile_E::Rename(Path("new"), Path("small/f")); }), kFull);
    EXPECT_EQ(Bytes("new").size(), block.size());
    EXPECT_EQ(Bytes("small/kept"), block);
    EXPECT_EQ(QDir(VxQString(Path("small"))).count(),
              3U); // with "." and "..": nothing is left over
    CFile_E::Remove(Path("small/kept"));
    CFile_E::Rename(Path("new"), Path("small/moved")); // to another file system
    EXPECT_EQ(Bytes("small/moved").size(), block.size());
    EXPECT_EQ(Bytes("new"), "<none>");
    EXPECT_FALSE(MoveFileEx_E(Path("small/moved"), Path("back"), MOVEFILE_REPLACE_EXISTING));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NOT_SAME_DEVICE));
    ::umount(folder.constData());
}

TEST_F(FileTest, VanishedFileIsStillOpen)
{
    CFile_E file(Make("abc"), kBoth);
    CFile_E::Remove(Path());
    file.SeekToEnd();
    file.Write("d", 1);
    CFileStatus_E status;
    EXPECT_FALSE(CFile_E::GetStatus(Path(), status));
    EXPECT_TRUE(file.GetStatus(status));
    EXPECT_EQ(status.m_size, 4U);
}

TEST_F(FileTest, Sharing)
{
    constexpr UINT none = F::shareDenyNone, noWrite = F::shareDenyWrite, noRead = F::shareDenyRead;
    constexpr UINT exclusive = F::shareExclusive;
    // the first opening, the second, whether that succeeds; the other way round it is the same
    // clang-format off
    const Row<UINT, UINT, bool> rows[] = {
        {kRead | none, kRead | none, true}, {kBoth | none, kBoth | none, true},
        {kWrite | none, kWrite | none, true}, {kRead | none, kWrite | none, true},
        {kRead | noWrite, kRead | noWrite, true}, {kRead | noWrite, kRead | none, true},
        {kRead | noWrite, kWrite | none, false}, {kRead | noWrite, kBoth | none, false},
        {kWrite | noWrite, kRead | none, true}, {kWrite | noWrite, kWrite | none, false},
        {kWrite | noRead, kWrite | none, true}, {kWrite | noRead, kRead | none, false},
        {kRead | exclusive, kRead | none, false}, {kRead, kRead | none, false},
        {kWrite | exclusive, kWrite | none, false},
    };
    // clang-format on
    forRows(rows, [&](UINT first, UINT second, bool opens) {
        for (int turn = 0; turn < 2; ++turn, std::swap(first, second)) {
            auto pFile = std::make_unique<CFile_E>(Make("abc"), first);
            const auto open = [&, mode = second] { CFile_E other(Path(), mode); };
            EXPECT_EQ(failureOf(open), opens ? kNoFailure : kShared);
            Failure elsewhere; // what another thread finds
            std::thread([&] { elsewhere = failureOf(open); }).join();
            EXPECT_EQ(elsewhere, opens ? kNoFailure : kShared);
            pFile.reset();
            EXPECT_EQ(failureOf(open), kNoFailure);
        }
    });
}

TEST_F(FileTest, SharingSeesOtherProcessesAndKeepsTheFile)
{
    CFile_E file(Make("abc"), kRead | F::shareDenyWrite);
    const CString_E path = Path();
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(failureOf([&] { CFile_E other(path, kWrite | kCreate | F::shareDenyNone); }).first);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(WEXITSTATUS(status), static_cast<int>(E::sharingViolation));
    EXPECT_EQ(failureOf([&] { CFile_E other(path, kRead | kCreate | F::shareDenyNone); }), kShared);
    EXPECT_EQ(Bytes(), "abc");
    const std::unique_ptr<CFile_E> pCopy(file.Duplicate());
    file.Close();
    EXPECT_EQ(failureOf([&] { CFile_E other(path, kWrite | F::shareDenyNone); }), kShared);
    pCopy->Close();
    EXPECT_EQ(failureOf([&] { CFile_E other(path, kWrite | F::shareDenyNone); }), kNoFailure);
}

TEST_F(FileTest, ClosingEndsSharingForForkedProcessesToo)
{
    auto pFile = std::make_unique<CStdioFile_E>(Make("abc"), kBoth);
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    const auto open = [&] { CFile_E other(Path(), kRead); };
    char c = 0;
    const pid_t child = ::fork();
    if (child == 0) { // has the file open until the pipe closes
        ::close(ends[1]);
        ::_exit(static_cast<int>(::read(ends[0], &c, 1)));
    }
    EXPECT_EQ(failureOf(open), kShared);
    pFile.reset();
    EXPECT_EQ(failureOf(open), kNoFailure);
    ::close(ends[0]);
    ::close(ends[1]);
    EXPECT_EQ(::waitpid(child, nullptr, 0), child);
}

TEST_F(FileTest, Ranges)
{
    constexpr ULONGLONG all = ~0ULL;
    constexpr ULONGLONG far = 6ULL << 30U;
    CFile_E first(Make("0123456789"), kBoth | F::shareDenyNone);
    CFile_E second(Path(), kBoth | F::shareDenyNone);
    first.LockRange(2, 3);
    first.LockRange(far, 8);
    first.LockRange(5, 0); // nothing
    const Row<ULONGLONG, ULONGLONG, Failure> rows[] = {
        {0, 2, kNoFailure}, {0, 3, kLocked},       {4, 1, kLocked},      {5, 1, kNoFailure},
        {0, all, kLocked},  {far + 7, 1, kLocked}, {all, 1, kBadNumber}, {far + 8, 1, kNoFailure}};
    forRows(rows, [&](ULONGLONG pos, ULONGLONG count, const Failure& expected) {
        EXPECT_EQ(failureOf([&] { second.LockRange(pos, count); }), expected);
        if (expected == kNoFailure)
            second.UnlockRange(pos, count);
    });
    EXPECT_EQ(failureOf([&] { first.LockRange(4, 9); }), kLocked); // its own too
    EXPECT_EQ(failureOf([&] { first.UnlockRange(2, 2); }).second, ERROR_NOT_LOCKED);
    first.UnlockRange(2, 3);
    second.LockRange(0, 5);
    first.Close();
    second.LockRange(5, all - 5);
    EXPECT_EQ(failureOf([&] { CFile_E third(Path(), kBoth | F::shareDenyNone); }), kNoFailure);
}

TEST_F(FileTest, Status)
{
    CFileStatus_E status;
    ASSERT_TRUE(CFile_E::GetStatus(Make("abc", ".h.txt"), status));
    EXPECT_EQ(status.m_attribute, F::hidden);
    EXPECT_EQ(status.m_size, 3U);
    EXPECT_STREQ(status.m_szFullName, Path(".h.txt").GetString());
    EXPECT_NEAR(static_cast<double>(status.m_ctime), static_cast<double>(std::time(nullptr)), 60);

    status.m_attribute = F::readOnly;
    status.m_mtime = 1'000'000'000;
    status.m_atime = 0;
    CFile_E::SetStatus(Path(".h.txt"), status);
    CFileStatus_E changed;
    ASSERT_TRUE(CFile_E(Path(".h.txt"), kRead).GetStatus(changed));
    EXPECT_EQ(changed.m_mtime, 1'000'000'000);
    EXPECT_GT(changed.m_atime, 1'500'000'000); // 0 leaves it
    EXPECT_EQ(changed.m_attribute, F::readOnly | F::hidden);
    EXPECT_EQ(changed.m_ctime, status.m_ctime);
    status.m_attribute = F::normal;
    CFile_E::SetStatus(Path(".h.txt"), status);
    EXPECT_EQ(failureOf([&] { CFile_E file(Path(".h.txt"), kWrite); }), kNoFailure);

    ASSERT_TRUE(CFile_E::GetStatus(CString_E(m_dir.path()), status));
    EXPECT_EQ(status.m_attribute, F::directory);
    EXPECT_FALSE(CFile_E::GetStatus(nullptr, status));
    EXPECT_EQ(status.m_szFullName[0], L'\0');
}

} // namespace
