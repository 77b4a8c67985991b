#include <VxMFCEmu/coll/file.h>
#include <VxMFCEmu/coll/filehandle.h>
#include <VxMFCEmu/core/lasterror.h>
#include <VxMFCEmu/sys/handle.h>

#include <QtCore/QTemporaryDir>

#include <cerrno>

namespace {

TEST(FileHandle, Dispositions)
{
    constexpr DWORD kReadWrite = GENERIC_READ | GENERIC_WRITE;
    struct
    {
        int line;
        DWORD disposition, access;
        bool exists;
        int error; ///< the last error; with one other than ERROR_ALREADY_EXISTS the call fails
        qint64 size;
    } const rows[] = {
        {__LINE__, CREATE_NEW, kReadWrite, false, 0, 0},
        {__LINE__, CREATE_NEW, kReadWrite, true, EEXIST, 3},
        {__LINE__, CREATE_ALWAYS, GENERIC_WRITE, false, 0, 0},
        {__LINE__, CREATE_ALWAYS, GENERIC_ALL, true, ERROR_ALREADY_EXISTS, 0},
        {__LINE__, OPEN_EXISTING, GENERIC_READ, false, ENOENT, 0},
        {__LINE__, OPEN_EXISTING, GENERIC_READ, true, 0, 3},
        {__LINE__, OPEN_EXISTING, 0, true, 0, 3},
        {__LINE__, OPEN_ALWAYS, kReadWrite, false, 0, 0},
        {__LINE__, OPEN_ALWAYS, kReadWrite, true, ERROR_ALREADY_EXISTS, 3},
        {__LINE__, TRUNCATE_EXISTING, kReadWrite, false, ENOENT, 0},
        {__LINE__, TRUNCATE_EXISTING, kReadWrite, true, 0, 0},
        {__LINE__, TRUNCATE_EXISTING, GENERIC_READ, true, EINVAL, 3},
        {__LINE__, 0, kReadWrite, true, EINVAL, 3},
        {__LINE__, 6, kReadWrite, true, EINVAL, 3},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const QTemporaryDir dir;
        QFile file(dir.filePath(QStringLiteral("f")));
        if (row.exists) {
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write("abc");
            file.close();
        }
        const CString_E name(file.fileName());
        const HANDLE h =
            CreateFile_E(name.GetString(), row.access, 0, nullptr, row.disposition, 0, nullptr);
        EXPECT_EQ(GetLastError(), static_cast<DWORD>(row.error));
        const bool opens = row.error == 0 || row.error == static_cast<int>(ERROR_ALREADY_EXISTS);
        ASSERT_EQ(h != INVALID_HANDLE_VALUE, opens);
        EXPECT_EQ(file.size(), row.size);
        if (opens && (row.access & GENERIC_WRITE) != 0)
            static_cast<CFile_E*>(h)->Write("12", 2);
        EXPECT_EQ(CloseHandle_E(h), opens);
    }
}

TEST(FileHandle, BadOnes)
{
    EXPECT_EQ(CreateFile_E(nullptr, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr),
              INVALID_HANDLE_VALUE);
    EXPECT_EQ(CreateFile_E(L"", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr),
              INVALID_HANDLE_VALUE);
    EXPECT_EQ(CreateFile_E(L"/", GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr),
              INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(EACCES));
    EXPECT_EQ(CloseHandle_E(nullptr), FALSE);
}

} // namespace
