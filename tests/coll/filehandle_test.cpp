#include "filetest.h"

namespace {

constexpr DWORD kReadWrite = GENERIC_READ | GENERIC_WRITE;

TEST_F(FileTest, HandlesOpenAndShareAsTheyAreTold)
{
    // the last error; with one other than ERROR_ALREADY_EXISTS the call fails
    constexpr DWORD kExists = ERROR_ALREADY_EXISTS, kNoFile = ERROR_FILE_NOT_FOUND;
    constexpr DWORD kBad = ERROR_INVALID_PARAMETER;
    // clang-format off
    const Row<DWORD, DWORD, bool, DWORD, const char*> rows[] = {
        {CREATE_NEW, kReadWrite, false, 0, ""},
        {CREATE_NEW, kReadWrite, true, ERROR_FILE_EXISTS, "abc"},
        {CREATE_ALWAYS, GENERIC_ALL, true, kExists, ""}, {OPEN_EXISTING, 0, true, 0, "abc"},
        {CREATE_ALWAYS, GENERIC_READ, true, kExists, ""},
        {OPEN_ALWAYS, kReadWrite, false, 0, ""}, {OPEN_ALWAYS, kReadWrite, true, kExists, "abc"},
        {TRUNCATE_EXISTING, kReadWrite, false, kNoFile, "<none>"},
        {TRUNCATE_EXISTING, GENERIC_WRITE, true, 0, ""},
        {TRUNCATE_EXISTING, GENERIC_READ, true, kBad, "abc"}, {6, kReadWrite, true, kBad, "abc"},
    };
    // clang-format on
    for (const auto& [disposition, access, exists, error, bytes] : rows) {
        SCOPED_TRACE(testing::Message() << disposition << " " << access << " " << exists);
        QFile::remove(VxQString(Path()));
        if (exists)
            Make("abc");
        const HANDLE h = Open(access, disposition);
        EXPECT_EQ(GetLastError(), error);
        const bool opens = error == 0 || error == kExists, writes = access & ~GENERIC_READ;
        EXPECT_EQ(h != INVALID_HANDLE_VALUE, opens);
        EXPECT_EQ(Bytes(), bytes);
        EXPECT_EQ(WriteFile_E(h, "12", 2, nullptr, nullptr), opens && writes);
        EXPECT_TRUE(CloseHandle_E(h) == opens && !CloseHandle_E(h));
    }
    const HANDLE first = Open(GENERIC_READ, OPEN_ALWAYS, FILE_SHARE_READ);
    EXPECT_EQ(Open(kReadWrite, OPEN_EXISTING, FILE_SHARE_READ), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_SHARING_VIOLATION));
    EXPECT_TRUE(CloseHandle_E(Open(0))); // asking only is always allowed
    EXPECT_TRUE(CloseHandle_E(first));
}

TEST_F(FileTest, HandlesReadAndWrite)
{
    const HANDLE h = Open(kReadWrite, CREATE_NEW);
    DWORD done = 9, high = 0;
    char buffer[8] = {};
    OVERLAPPED where = {};
    LARGE_INTEGER number = {}, size = {};
    EXPECT_TRUE(WriteFile_E(h, "hello", 5, &done, nullptr) && done == 5 && FlushFileBuffers_E(h));
    EXPECT_EQ(SetFilePointer_E(h, -4, nullptr, FILE_END), 1U);
    EXPECT_TRUE(ReadFile_E(h, buffer, 2, &done, nullptr));
    where.Offset = 4;
    EXPECT_TRUE(ReadFile_E(h, buffer + 2, 5, &done, &where) && done == 1);
    EXPECT_STREQ(buffer, "elo");
    EXPECT_TRUE(ReadFile_E(h, buffer, 8, &done, nullptr) && done == 0); // the end is no failure
    where.OffsetHigh = 1;
    number.QuadPart = 0x1FFFFFFFF;
    EXPECT_EQ(errorOf([&] { return ReadFile_E(h, buffer, 8, &done, &where); }), ERROR_HANDLE_EOF);
    EXPECT_EQ(errorOf([&] { return ReadFile_E(h, nullptr, 1, &done, nullptr); }), ERROR_NOACCESS);
    EXPECT_TRUE(SetFilePointerEx_E(h, number, nullptr, FILE_BEGIN) && SetEndOfFile_E(h));
    EXPECT_TRUE(GetFileSizeEx_E(h, &size) && size.QuadPart == 0x1FFFFFFFF && size.HighPart == 1);
    EXPECT_TRUE(GetFileSize_E(h, &high) == INVALID_FILE_SIZE && high == 1);
    EXPECT_EQ(GetLastError(), 0U); // these are the bits of the size
    EXPECT_EQ(SetFilePointer_E(h, 5, nullptr, FILE_CURRENT), INVALID_SET_FILE_POINTER); // lost bits
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    EXPECT_TRUE(SetFilePointerEx_E(h, {}, &number, FILE_CURRENT) && number.QuadPart == 0x1FFFFFFFF);
    LONG distanceHigh = 1;
    EXPECT_TRUE(SetFilePointer_E(h, 7, &distanceHigh, FILE_BEGIN) == 7 && distanceHigh == 1);
    EXPECT_TRUE(CloseHandle_E(h));
}

TEST_F(FileTest, BadHandles)
{
    DWORD n = 0;
    char c = 0;
    const HANDLE gone = Open(GENERIC_READ, OPEN_ALWAYS);
    EXPECT_EQ(errorOf([&] { return WriteFile_E(gone, &c, 1, &n, nullptr); }), ERROR_ACCESS_DENIED);
    EXPECT_EQ(errorOf([&] { return SetEndOfFile_E(gone); }), ERROR_ACCESS_DENIED);
    EXPECT_EQ(errorOf([&] { return FlushFileBuffers_E(gone); }), ERROR_ACCESS_DENIED);
    EXPECT_TRUE(CloseHandle_E(gone));
    for (const HANDLE h : {HANDLE{}, INVALID_HANDLE_VALUE, gone, static_cast<HANDLE>(&n)}) {
        EXPECT_EQ(errorOf([&] { return ReadFile_E(h, &c, 1, &n, nullptr); }), ERROR_INVALID_HANDLE);
        EXPECT_EQ(SetFilePointer_E(h, 0, nullptr, FILE_BEGIN), INVALID_SET_FILE_POINTER);
        EXPECT_EQ(GetFileSize_E(h, nullptr), INVALID_FILE_SIZE);
        EXPECT_EQ(errorOf([&] { return CloseHandle_E(h); }), ERROR_INVALID_HANDLE);
    }
}

TEST_F(FileTest, AFileIsAHandleAndAHandleAFile)
{
    auto pFile = std::make_unique<CFile_E>();
    pFile->Open(Make("abc"), CFile_E::modeRead);
    HANDLE h = *pFile;
    EXPECT_TRUE(GetFileSize_E(h, nullptr) == 3 && CloseHandle_E(h));
    EXPECT_EQ(pFile->m_hFile, CFile_E::hFileNull) << "closed, not deleted";
    pFile->Open(Path(), CFile_E::modeRead);
    EXPECT_EQ(GetFileSize_E(h, nullptr), 3U);
    pFile.reset();
    EXPECT_EQ(GetFileSize_E(h, nullptr), INVALID_FILE_SIZE);

    h = Open();
    EXPECT_EQ(static_cast<HANDLE>(*static_cast<CFile_E*>(h)), h);
    EXPECT_EQ(CFile_E(h).GetFileName(), L"f");
    CFile_E file(h); // still open
    EXPECT_EQ(file.GetLength(), 3U);
    file.Close();
    EXPECT_FALSE(CloseHandle_E(h));
    EXPECT_EQ(failureOf([&] { CFile_E none(h); }),
              Failure(CFileException_E::invalidFile, ERROR_INVALID_HANDLE));
    EXPECT_EQ(CFile_E(0).m_hFile, 0); // a descriptor
}

TEST_F(FileTest, HandlesDeleteOnClose)
{
    for (const bool bRenamed : {false, true}) {
        const HANDLE h =
            Open(kReadWrite, CREATE_ALWAYS, FILE_SHARE_READ, FILE_FLAG_DELETE_ON_CLOSE);
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
