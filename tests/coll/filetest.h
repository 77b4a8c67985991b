// What the tests of files share: a folder of their own, and what a failure says.
#pragma once

#include "support/test.h"

#include <QtCore/QTemporaryDir>

/// Cause and Win32 error number of a file exception; {-1, -1} for none.
using Failure = std::pair<int, LONG>;
inline constexpr Failure kNoFailure{-1, -1};

/// The file exception that @p work throws.
template <typename Work>
Failure failureOf(Work work)
{
    try {
        work();
    } catch (CFileException_E* e) {
        const Failure failure(e->m_cause, e->m_lOsError);
        e->Delete();
        return failure;
    }
    return kNoFailure;
}

/// The last error of a call that fails, -1 if it sets none; 0 for success.
template <typename Call>
LONG errorOf(Call call)
{
    SetLastError(static_cast<DWORD>(-1));
    return call() ? 0 : static_cast<LONG>(GetLastError());
}

class FileTest : public testing::Test
{
protected:
    CString_E Path(const char* name = "f") const
    {
        return CString_E(m_dir.filePath(QString::fromUtf8(name)));
    }
    CString_E Make(const QByteArray& bytes, const char* name = "f") const
    {
        QFile file{VxQString(Path(name))};
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return Path(name);
    }
    QByteArray Bytes(const char* name = "f") const
    {
        QFile file{VxQString(Path(name))};
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<none>");
    }

    HANDLE Open(DWORD access = GENERIC_READ, DWORD disposition = OPEN_EXISTING, DWORD share = 0,
                DWORD flags = 0, const char* name = "f") const
    {
        return CreateFile_E(Path(name), access, share, nullptr, disposition, flags, nullptr);
    }

    QTemporaryDir m_dir;
};
