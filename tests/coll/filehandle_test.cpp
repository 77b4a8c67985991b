#include "filetest.h"

namespace {

constexpr DWORD kReadWrite = GENERIC_READ | GENERIC_WRITE;

DWORD lastError(LONG lOsError) { return static_cast<DWORD>(lOsError); }

TEST_F(FileTest, Dispositions)
{
    // the last error; with one other than ERROR_ALREADY_EXISTS the call fails
    constexpr LONG kExists = ERROR_ALREADY_EXISTS, kNoFile = ERROR_FILE_NOT_FOUND;
    constexpr LONG kBad = ERROR_INVALID_PARAMETER;
    // clang-format off
    const Row<DWORD, DWORD, bool, LONG, const char*> rows[] = {
        {CREATE_NEW, kReadWrite, false, 0, ""},
        {CREATE_NEW, kReadWrite, true, ERROR_FILE_EXISTS, "abc"},
        {CREATE_ALWAYS, GENERIC_WRITE, false, 0, ""},
        {CREATE_ALWAYS, GENERIC_ALL, true, kExists, ""},
        {CREATE_ALWAYS, GENERIC_READ, true, kExists, ""},
        {OPEN_EXISTING, GENERIC_READ, false, kNoFile, "<none>"},
        {OPEN_EXISTING, GENERIC_READ, true, 0, "abc"}, {OPEN_EXISTING, 0, true, 0, "abc"},
        {OPEN_ALWAYS, kReadWrite, false, 0, ""}, {OPEN_ALWAYS, kReadWrite, true, kExists, "abc"},
        {TRUNCATE_EXISTING, kReadWrite, false, kNoFile, "<none>"},
        {TRUNCATE_EXISTING, kReadWrite, true, 0, ""},
        {TRUNCATE_EXISTING, GENERIC_READ, true, kBad, "abc"}, {0, kReadWrite, true, kBad, "abc"},
        {6, kReadWrite, true, kBad, "abc"},
    };
    // clang-format on
    forRows(rows, [&](DWORD disposition, DWORD access, bool exists, LONG error, const char* bytes) {
        QFile::remove(VxQString(Path()));
        if (exists)
            Make("abc");
        const HANDLE h = CreateFile_E(Path(), access, 0, nullptr, disposition, 0, nullptr);
        EXPECT_EQ(GetLastError(), lastError(error));
        const bool opens = error == 0 || error == ERROR_ALREADY_EXISTS;
        EXPECT_EQ(h != INVALID_HANDLE_VALUE, opens);
        EXPECT_EQ(Bytes(), bytes);
        EXPECT_EQ(WriteFile_E(h, "12", 2, nullptr, nullptr),
                  opens && (access & (GENERIC_WRITE | GENERIC_ALL)) != 0);
        EXPECT_EQ(CloseHandle_E(h), opens);
        EXPECT_FALSE(CloseHandle_E(h));
    });
}

TEST_F(FileTest, HandlesShareAsTheyAreTold)
{
    Make("abc");
    const auto open = [&](DWORD access, DWORD share) {
        return CreateFile_E(Path(), access, share, nullptr, OPEN_EXISTING, 0, nullptr);
    };
    const HANDLE first = open(GENERIC_READ, FILE_SHARE_READ);
    EXPECT_EQ(open(kReadWrite, FILE_SHARE_READ | FILE_SHARE_WRITE), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), lastError(ERROR_SHARING_VIOLATION));
    EXPECT_TRUE(CloseHandle_E(open(GENERIC_READ, FILE_SHARE_READ)));
    EXPECT_TRUE(CloseHandle_E(open(0, 0))); // asking only is always allowed
    EXPECT_TRUE(CloseHandle_E(first));
}

TEST_F(FileTest, ReadsAndWritesByHandle)
{
    const HANDLE h = CreateFile_E(Path(), kReadWrite, 0, nullptr, CREATE_NEW, 0, nullptr);
    DWORD done = 9, high = 0;
    char buffer[8] = {};
    EXPECT_TRUE(WriteFile_E(h, "hello", 5, &done, nullptr) && FlushFileBuffers_E(h));
    EXPECT_EQ(done, 5U);
    EXPECT_EQ(SetFilePointer_E(h, -4, nullptr, FILE_END), 1U);
    EXPECT_TRUE(ReadFile_E(h, buffer, 2, &done, nullptr));
    OVERLAPPED where = {};
    where.Offset = 4;
    EXPECT_TRUE(ReadFile_E(h, buffer + 2, 5, &done, &where));
    EXPECT_STREQ(buffer, "elo");
    EXPECT_EQ(done, 1U);
    EXPECT_TRUE(ReadFile_E(h, buffer, 8, &done, nullptr)); // the end is no failure
    EXPECT_EQ(done, 0U);
    where.OffsetHigh = 1;
    EXPECT_FALSE(ReadFile_E(h, buffer, 8, &done, &where));
    EXPECT_EQ(GetLastError(), lastError(ERROR_HANDLE_EOF));
    EXPECT_FALSE(ReadFile_E(h, nullptr, 1, &done, nullptr));
    EXPECT_EQ(GetLastError(), lastError(ERROR_NOACCESS));
    LARGE_INTEGER number = {};
    number.QuadPart = 0x1FFFFFFFF;
    EXPECT_TRUE(SetFilePointerEx_E(h, number, nullptr, FILE_BEGIN) && SetEndOfFile_E(h));
    EXPECT_TRUE(GetFileSizeEx_E(h, &number));
    EXPECT_EQ(number.QuadPart, 0x1FFFFFFFF);
    EXPECT_EQ(number.HighPart, 1);
    EXPECT_EQ(GetFileSize_E(h, &high), INVALID_FILE_SIZE);
    EXPECT_EQ(GetLastError(), 0U); // these are the bits of the size
    EXPECT_EQ(high, 1U);
    EXPECT_EQ(SetFilePointer_E(h, 0, nullptr, FILE_CURRENT), INVALID_SET_FILE_POINTER);
    EXPECT_EQ(GetLastError(), lastError(ERROR_INVALID_PARAMETER)); // they are lost
    EXPECT_EQ(SetFilePointer_E(h, -1, nullptr, FILE_BEGIN), INVALID_SET_FILE_POINTER);
    EXPECT_EQ(GetLastError(), lastError(ERROR_NEGATIVE_SEEK));
    EXPECT_TRUE(CloseHandle_E(h));
}

TEST_F(FileTest, BadHandles)
{
    const HANDLE gone =
        CreateFile_E(Make("x"), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    DWORD n = 0;
    char c = 0;
    LARGE_INTEGER zero = {};
    const std::function<bool(HANDLE)> calls[] = {
        [&](HANDLE h) { return WriteFile_E(h, &c, 1, &n, nullptr); },
        [&](HANDLE h) { return SetEndOfFile_E(h); },
        [&](HANDLE h) { return FlushFileBuffers_E(h); },
        [&](HANDLE h) { return ReadFile_E(h, &c, 1, &n, nullptr); },
        [&](HANDLE h) { return SetFilePointer_E(h, 0, nullptr, 0) != INVALID_SET_FILE_POINTER; },
        [&](HANDLE h) { return SetFilePointerEx_E(h, zero, nullptr, FILE_BEGIN); },
        [&](HANDLE h) { return GetFileSize_E(h, nullptr) != INVALID_FILE_SIZE; },
        [&](HANDLE h) { return GetFileSizeEx_E(h, &zero); },
        [&](HANDLE h) { return CloseHandle_E(h); },
    };
    int number = 0;
    for (const auto& call : calls) {
        const bool works = number++ > 2; // the first ones need the right to write
        EXPECT_EQ(call(gone), works) << number;
        EXPECT_TRUE(works || GetLastError() == lastError(ERROR_ACCESS_DENIED)) << number;
    }
    for (const HANDLE h : {HANDLE{}, INVALID_HANDLE_VALUE, gone, static_cast<HANDLE>(&n)}) {
        for (const auto& call : calls) {
            SetLastError(0);
            EXPECT_FALSE(call(h));
            EXPECT_EQ(GetLastError(), lastError(ERROR_INVALID_HANDLE));
        }
    }
}

TEST_F(FileTest, AFileIsAHandle)
{
    auto pFile = std::make_unique<CFile_E>();
    EXPECT_EQ(static_cast<HANDLE>(*pFile), INVALID_HANDLE_VALUE);
    pFile->Open(Make("abc"), CFile_E::modeRead);
    HANDLE h = *pFile;
    EXPECT_EQ(GetFileSize_E(h, nullptr), 3U);
    EXPECT_TRUE(CloseHandle_E(h)); // closed, not deleted
    EXPECT_EQ(pFile->m_hFile, CFile_E::hFileNull);
    pFile->Open(Path(), CFile_E::modeRead);
    EXPECT_EQ(GetFileSize_E(h, nullptr), 3U);
    pFile.reset();
    EXPECT_EQ(GetFileSize_E(h, nullptr), INVALID_FILE_SIZE);
    h = CreateFile_E(Path(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(static_cast<HANDLE>(*static_cast<CFile_E*>(h)), h);
    EXPECT_TRUE(CloseHandle_E(h)); // deleted all the same
}

TEST_F(FileTest, AHandleIsAFile)
{
    const HANDLE h = CreateFile_E(Make("abc"), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(CFile_E(h).GetLength(), 3U);
    CFile_E file(h); // still open
    EXPECT_STREQ(file.GetFileName().GetString(), L"f");
    file.Close();
    EXPECT_FALSE(CloseHandle_E(h));
    for (const HANDLE bad : {h, INVALID_HANDLE_VALUE, HANDLE{}})
        EXPECT_EQ(failureOf([&] { CFile_E none(bad); }),
                  Failure(CFileException_E::invalidFile, ERROR_INVALID_HANDLE));
    EXPECT_EQ(CFile_E(0).m_hFile, 0); // a descriptor
}

TEST_F(FileTest, DeletesOnClose)
{
    for (const bool bRenamed : {false, true}) {
        const HANDLE h = CreateFile_E(Path(), kReadWrite, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                                      FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        EXPECT_EQ(Bytes(), "");
        if (bRenamed) {
            EXPECT_TRUE(MoveFile_E(Path(), Path("moved")));
            Make("another");
        }
        EXPECT_TRUE(CloseHandle_E(h));
        EXPECT_EQ(Bytes(), bRenamed ? "another" : "<none>");
    }
}

} // namespace
