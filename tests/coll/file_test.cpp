#include "filetest.h"

#include <fcntl.h>
#include <sys/mount.h>
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

TEST_F(FileTest, OpenModes)
{
    constexpr UINT odd = F::shareExclusive | F::typeBinary | F::osWriteThrough;
    // before: null for no file; after: once "Z" has been written, if it may be
    const Row<UINT, const char*, const char*> rows[] = {
        {kRead, "abc", "abc"},          {kWrite, "abc", "Zbc"},
        {kBoth | odd, "abc", "Zbc"},    {kRead | kCreate, "abc", ""},
        {kWrite | kCreate, "abc", "Z"}, {kWrite | kKeep, "abc", "Zbc"},
        {kWrite | kKeep, nullptr, "Z"}};
    forRows(rows, [&](UINT mode, const char* before, const char* after) {
        QFile::remove(VxQString(Path()));
        if (before)
            Make(before);
        CFile_E file(Path(), mode);
        const bool writes = (mode & (kWrite | kBoth)) != 0;
        EXPECT_EQ(failureOf([&] { file.Write("Z", 1); }), writes ? kNoFailure : kDenied);
        EXPECT_EQ(Bytes(), after); // unbuffered: there before the file is closed
    });
}

void useAsAnyOther(CFile_E& file)
{
    SCOPED_TRACE(typeid(file).name());
    using Wrong = CInvalidArgException_E*;
    char buffer[16] = {};
    file.Write("0123456789", 10);
    file.SeekToBegin();
    EXPECT_TRUE(file.Read(buffer, 4) == 4 && file.Seek(2, F::current) == 6);
    EXPECT_EQ(file.Read(buffer, 16), 4U);
    EXPECT_STREQ(buffer, "6789");
    EXPECT_EQ(file.Read(buffer, 16), 0U);
    EXPECT_EQ(file.Seek(-3, F::end), 7U);
    EXPECT_EQ(failureOf([&] { file.Seek(-8, F::current); }), kBadSeek);
    EXPECT_THROW(file.Seek(0, 3), Wrong);
    EXPECT_THROW(file.Read(nullptr, 1), Wrong);
    file.SetLength(5);
    EXPECT_TRUE(file.GetLength() == 5 && file.GetPosition() == 5);
    EXPECT_THROW(file.Write(nullptr, 1), Wrong);
    file.Write("x", 1);
    EXPECT_TRUE(file.SeekToEnd() == 6 && file.Seek(2, F::end) == 8);
    file.Write("y", 1);
    file.SeekToBegin();
    EXPECT_EQ(file.Read(buffer, 16), 9U);
    EXPECT_EQ(std::string(buffer, 9), std::string("01234x\0\0y", 9)); // cut off stays away
}

TEST_F(FileTest, EveryKindReadsSeeksAndCuts)
{
    using None = CNotSupportedException_E*;
    CFile_E file(Path(), kBoth | kCreate);
    CStdioFile_E text(Path("t"), kBoth | kCreate | F::typeBinary);
    CMemFile_E memory;
    for (CFile_E* const pFile : std::initializer_list<CFile_E*>{&file, &text, &memory}) {
        useAsAnyOther(*pFile);
        CFileStatus_E status;
        EXPECT_TRUE(pFile->GetStatus(status) && status.m_size == 9);
    }
    EXPECT_THROW(text.LockRange(0, 1), None);
    EXPECT_THROW(delete memory.Duplicate(), None);
    EXPECT_EQ(failureOf([&] { file.SetLength(~0ULL); }), kBadNumber);
}

TEST_F(FileTest, NamesAndAnotherOpening)
{
    char c = 0;
    CFile_E file(Path("a.b.txt").ToWinSeperator(), kWrite | kCreate);
    EXPECT_EQ(file.GetFilePath(), Path("a.b.txt"));
    EXPECT_EQ(file.GetFileName() + L" " + file.GetFileTitle(), L"a.b.txt a.b");
    file.Write("1", 1);
    EXPECT_EQ(failureOf([&] { file.Read(&c, 1); }), kDenied);
    EXPECT_TRUE(file.Open(Path("g"), kWrite | kCreate));
    file.Write("2", 1);
    file.Close();
    file.Close();
    EXPECT_TRUE(file.GetFilePath().IsEmpty());
    EXPECT_EQ(Bytes("a.b.txt") + Bytes("g"), "12");
}

TEST_F(FileTest, DescriptorsAndDuplicates)
{
    char c = 0;
    const int fd = ::open(Make("abcdef").Utf8Ptr(), O_RDWR | O_CLOEXEC);
    {
        CFile_E file(fd);
        EXPECT_EQ(qobject_cast<QFile*>(file.GetImpQObject())->handle(), fd);
        const std::unique_ptr<CFile_E> pCopy(file.Duplicate());
        EXPECT_NE(pCopy->m_hFile, fd);
        file.Read(&c, 1);
        pCopy->Read(&c, 1);
        EXPECT_TRUE(c == 'b' && file.GetPosition() == 2);
    }
    EXPECT_EQ(::read(fd, &c, 1), 1); // not closed: it is the caller's
    CFile_E(fd).Close();
    EXPECT_EQ(::read(fd, &c, 1), -1);
}

TEST_F(FileTest, EveryFailureHasItsCause)
{
    Make("x");
    SetFileAttributes_E(Make("x", "locked"), FILE_ATTRIBUTE_READONLY);
    // clang-format off
    const Row<const char*, UINT, Failure> opened[] = {
        {"no", kRead, kMissing}, {"no/f", kWrite | kCreate, kNoFolder},
        {"f/below", kWrite | kCreate, kNoFolder}, {".", kRead, kDenied},
        {".", kWrite | kCreate, kDenied}, {"locked", kWrite, kDenied},
        {"locked", kRead | kCreate, kDenied},
    };
    // clang-format on
    forRows(opened, [&](const char* name, UINT mode, const Failure& failure) {
        CFileException_E e;
        EXPECT_EQ(failureOf([&] { CStdioFile_E file(Path(name), mode); }), failure);
        EXPECT_EQ(errorOf([&] { return CFile_E().Open(Path(name), mode, &e); }), failure.second);
        EXPECT_TRUE(Failure(e.m_cause, e.m_lOsError) == failure && e.m_strFileName == Path(name));
    });
    EXPECT_EQ(failureOf([] { CFile_E file(nullptr, kRead); }), kNoFolder);
    const std::string endless(300, 'n');
    EXPECT_EQ(failureOf([&] { CFile_E file(Path(endless.c_str()), kRead); }),
              Failure(E::badPath, ERROR_FILENAME_EXCED_RANGE));
    EXPECT_EQ(failureOf([&] { CFile_E::Remove(Path("no/f")); }), kNoFolder);
    EXPECT_EQ(failureOf([&] { CFile_E::SetStatus(Path("no"), {}); }), kMissing);
    EXPECT_EQ(failureOf([&] { CFile_E::Rename(Path(), Path("locked")); }),
              Failure(E::accessDenied, ERROR_ALREADY_EXISTS));
    EXPECT_EQ(Bytes() + Bytes("locked"), "xx");

    CFile_E closed;
    char c = 0;
    EXPECT_EQ(failureOf([&] { closed.Read(&c, 1); }), kClosed);
    EXPECT_EQ(failureOf([&] { closed.Flush(), closed.LockRange(0, 1); }), kClosed);
    EXPECT_EQ(failureOf([&] { CStdioFile_E().Write(&c, 1); }), kClosed);
}

TEST_F(FileTest, FullDisk)
{
    EXPECT_EQ(failureOf([] { CFile_E(L"/dev/full", kWrite).Write("x", 1); }), kFull);
    CStdioFile_E text(L"/dev/full", kWrite), flushed(L"/dev/full", kWrite);
    text.WriteString(L"x");
    EXPECT_EQ(failureOf([&] { text.Close(); }), kFull);
    flushed.WriteString(L"x");
    EXPECT_EQ(failureOf([&] { flushed.Flush(); }), kFull);

    const QString folder = VxQString(Path("small"));
    CreateDirectory_E(Path("small"), nullptr);
    if (::mount("tmpfs", qPrintable(folder), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "cannot mount a small file system";
    const QByteArray block(40'000, 'b');
    Make(block, "small/kept");
    Make(QByteArray(40'000, 'n'), "new");
    EXPECT_EQ(failureOf([&] { CFile_E(Path("small/f"), kWrite | kCreate).Write(block, 40'000); }),
              kFull);
    CFile_E::Remove(Path("small/f"));
    EXPECT_EQ(errorOf([&] { return CopyFile_E(Path("new"), Path("small/kept"), FALSE); }),
              ERROR_DISK_FULL);
    EXPECT_EQ(failureOf([&] { CFile_E::Rename(Path("new"), Path("small/f")); }), kFull);
    EXPECT_TRUE(Bytes("new").size() == block.size() && Bytes("small/kept") == block);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList("kept"_q));
    CFile_E::Remove(Path("small/kept"));
    CFile_E::Rename(Path("new"), Path("small/moved")); // to another file system
    EXPECT_TRUE(Bytes("small/moved").size() == block.size() && Bytes("new") == "<none>");
    ::umount(qPrintable(folder));
}

TEST_F(FileTest, Sharing)
{
    constexpr UINT none = F::shareDenyNone, noWrite = F::shareDenyWrite, noRead = F::shareDenyRead;
    constexpr UINT exclusive = F::shareExclusive;
    // the first opening, the second, whether that succeeds; the other way round it is the same
    // clang-format off
    const Row<UINT, UINT, bool> rows[] = {
        {kBoth | none, kBoth | none, true}, {kWrite | none, kWrite | none, true},
        {kRead | noWrite, kRead | noWrite, true}, {kRead | noWrite, kWrite | none, false},
        {kWrite | noWrite, kRead | none, true}, {kWrite | noWrite, kWrite | none, false},
        {kWrite | noRead, kWrite | none, true}, {kWrite | noRead, kRead | none, false},
        {kRead | exclusive, kRead | none, false}, {kRead, kRead | none, false},
    };
    // clang-format on
    forRows(rows, [&](UINT first, UINT second, bool opens) {
        for (int turn = 0; turn < 2; ++turn, std::swap(first, second)) {
            auto pFile = std::make_unique<CFile_E>(Make("abc"), first);
            const auto open = [&, mode = second] { CFile_E other(Path(), mode); };
            Failure here = failureOf(open), elsewhere; // what another thread finds
            std::thread([&] { elsewhere = failureOf(open); }).join();
            EXPECT_EQ(here, opens ? kNoFailure : kShared);
            EXPECT_EQ(elsewhere, here);
            pFile.reset();
            EXPECT_EQ(failureOf(open), kNoFailure);
        }
    });
}

TEST_F(FileTest, SharingSeesOtherProcessesAndKeepsTheFile)
{
    const auto open = [path = Make("abc")](UINT mode) {
        return failureOf([&] { CFile_E other(path, mode | F::shareDenyNone); });
    };
    CFile_E file(Path(), kRead | F::shareDenyWrite);
    CStdioFile_E text(Path(), kRead | F::shareDenyWrite);
    int ends[2], status = 0;
    ASSERT_EQ(::pipe(ends), 0);
    pid_t child = ::fork();
    if (child == 0)
        ::_exit(open(kWrite | kCreate).first);
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(WEXITSTATUS(status), kShared.first);
    EXPECT_TRUE(open(kRead | kCreate) == kShared && Bytes() == "abc");
    const std::unique_ptr<CFile_E> pCopy(file.Duplicate());
    child = ::fork();
    if (child == 0) { // has the files open until the pipe closes
        ::close(ends[1]);
        ::_exit(static_cast<int>(::read(ends[0], &status, 1)));
    }
    text.Close();
    file.Close();
    EXPECT_EQ(open(kWrite), kShared);
    pCopy->Close();
    EXPECT_EQ(open(kWrite), kNoFailure) << "a forked process shares nothing";
    ::close(ends[0]);
    ::close(ends[1]);
    EXPECT_EQ(::waitpid(child, nullptr, 0), child);
}

TEST_F(FileTest, Ranges)
{
    constexpr ULONGLONG all = ~0ULL;
    CFile_E first(Make("0123456789"), kBoth | F::shareDenyNone);
    CFile_E second(Path(), kBoth | F::shareDenyNone);
    first.LockRange(2, 3);
    for (const ULONGLONG pos : {3U, 8U})
        first.LockRange(pos, 0); // nothing
    const Row<ULONGLONG, ULONGLONG, Failure> rows[] = {{0, 2, kNoFailure}, {0, 3, kLocked},
                                                       {4, 1, kLocked},    {5, 1, kNoFailure},
                                                       {0, all, kLocked},  {all, 1, kBadNumber}};
    forRows(rows, [&](ULONGLONG pos, ULONGLONG count, const Failure& expected) {
        EXPECT_EQ(failureOf([&] { second.LockRange(pos, count); }), expected);
        if (expected == kNoFailure)
            second.UnlockRange(pos, count);
    });
    EXPECT_EQ(failureOf([&] { first.LockRange(4, 9); }), kLocked); // its own too
    EXPECT_EQ(failureOf([&] { first.UnlockRange(2, 2); }).second, ERROR_NOT_LOCKED);
    first.UnlockRange(2, 3);
    second.LockRange(0, 5);
    first.LockRange(7, 3);
    EXPECT_TRUE(first.Open(Path(), kBoth | F::shareDenyNone));
    first.LockRange(7, 1); // what it had locked is forgotten
    first.Close();
    second.LockRange(5, all - 5);
}

TEST_F(FileTest, Status)
{
    CFileStatus_E status;
    ASSERT_TRUE(CFile_E::GetStatus(Make("abc", ".h.txt"), status));
    EXPECT_TRUE(status.m_szFullName == Path(".h.txt") && status.m_size == 3);
    EXPECT_LT(std::abs(status.m_ctime - std::time(nullptr)), 60);
    status.m_attribute = F::readOnly;
    status.m_mtime = 1'000'000'000;
    status.m_atime = 0;
    CFile_E::SetStatus(Path(".h.txt"), status);
    CFileStatus_E changed;
    ASSERT_TRUE(CFile_E(Path(".h.txt"), kRead).GetStatus(changed));
    EXPECT_EQ(changed.m_mtime, 1'000'000'000);
    EXPECT_GT(changed.m_atime, 1'500'000'000); // 0 leaves it
    EXPECT_EQ(changed.m_attribute, F::readOnly | F::hidden);
    status.m_attribute = F::normal;
    CFile_E::SetStatus(Path(".h.txt"), status);
    CFile_E file(Path(".h.txt"), kRead);
    CFile_E::Remove(Path(".h.txt"));
    EXPECT_FALSE(CFile_E::GetStatus(Path(".h.txt"), status));
    EXPECT_TRUE(file.GetStatus(status) && status.m_size == 3) << "vanished, but open";
    EXPECT_TRUE(!CFile_E::GetStatus(nullptr, status) && !status.m_szFullName[0]);
}

} // namespace
