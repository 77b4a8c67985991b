/// @file file.h
/// Files on disk, text files and files in memory.
///
/// Failures throw a CFileException_E whose OS error is the `errno` of the call that failed; using a
/// file that is not open throws one with the cause invalidFile. Only Open() reports by its result.
///
/// File names may be separated by "/" or "\".
///
/// Differs from Win32: the share flags are taken and not enforced, files are shared as the system
/// shares them.
///
/// Threads: a file is used by one thread at a time; any thread may have its own.
#pragma once

#include <VxMFCEmu/core/object.h>
#include <VxMFCEmu/text/cstring.h>

#include <QtCore/QIODevice>

class CFileException_E;
class QFile;

/// A file of bytes, unbuffered.
class VXMFC_EXPORT CFile_E : public CObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CFile_E)

    /// How Open() opens; one access mode, and any of the others.
    enum OpenFlags : UINT
    {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,  ///< always so
        modeCreate = 0x1000,     ///< makes the file; one that is there is emptied
        modeNoTruncate = 0x2000, ///< with modeCreate: one that is there is kept
        typeText = 0x4000,
        typeBinary = 0x8000,
        osNoBuffer = 0x10000,
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000
    };
    /// What Seek() counts from.
    enum SeekPosition : UINT
    {
        begin = 0,
        current = 1,
        end = 2
    };

    CFile_E();
    /// Opens a file or throws a CFileException_E.
    CFile_E(const wchar_t* lpszFileName, UINT nOpenFlags);
    /// Closes the file, without an exception.
    ~CFile_E() override;

    /// Makes a closed QFile below @p pParent and attaches it as owned.
    BOOL AttachDefault(QObject* pParent) override;

    /// Opens a file, closing one that is open. FALSE, filling @p pError if there is one, on
    /// failure.
    virtual BOOL Open(const wchar_t* lpszFileName, UINT nOpenFlags,
                      CFileException_E* pError = nullptr);
    /// Reads up to @p nCount bytes and returns their number, fewer only at the end of the file.
    virtual UINT Read(void* lpBuf, UINT nCount);
    /// Writes @p nCount bytes.
    virtual void Write(const void* lpBuf, UINT nCount);
    /// Moves to @p lOff bytes from @p nFrom and returns the new position, which may lie beyond the
    /// end.
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    /// Cuts or extends the file, with zeros, and moves to its new end.
    virtual void SetLength(ULONGLONG dwNewLen);
    /// Hands what is buffered to the system.
    virtual void Flush();
    /// Closes the file; one that is not open is left alone.
    virtual void Close();
    /// Closes the file, without an exception.
    virtual void Abort();

    void SeekToBegin() { Seek(0, begin); }
    ULONGLONG SeekToEnd() { return Seek(0, end); }

    /// Name of the file without its folder; empty when none is open.
    virtual CString_E GetFileName() const;
    /// The same without the extension.
    virtual CString_E GetFileTitle() const;
    /// Absolute path of the file; empty when none is open.
    virtual CString_E GetFilePath() const { return m_strFileName; }
    /// Sets what the three functions above tell.
    virtual void SetFilePath(const wchar_t* lpszNewName) { m_strFileName = lpszNewName; }

    /// Deletes a file.
    static void Remove(const wchar_t* lpszFileName);
    /// Renames or moves a file; there must be none of the new name.
    static void Rename(const wchar_t* lpszOldName, const wchar_t* lpszNewName);

protected:
    /// What Open() does, with @p extra added to the mode of the QFile.
    BOOL OpenFile(const wchar_t* lpszFileName, UINT nOpenFlags, CFileException_E* pError,
                  QIODevice::OpenMode extra);
    /// The open file; throws when there is none or it cannot be used for @p mode.
    QFile& File(QIODevice::OpenMode mode = QIODevice::NotOpen) const;
    [[noreturn]] void ThrowError(int nErrno) const;

    CString_E m_strFileName;

private:
    QFile* FileOrNull() const;
};

/// A file of UTF-8 text lines, buffered.
///
/// With typeText, and without typeBinary, "\r\n" is read as "\n". Differs from Win32: "\n" is
/// written as it stands; a byte order mark at the start of the file is skipped by the reading of
/// strings.
class VXMFC_EXPORT CStdioFile_E : public CFile_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CStdioFile_E)

    CStdioFile_E();
    /// Opens a file or throws a CFileException_E.
    CStdioFile_E(const wchar_t* lpszFileName, UINT nOpenFlags);
    ~CStdioFile_E() override;

    BOOL Open(const wchar_t* lpszFileName, UINT nOpenFlags,
              CFileException_E* pError = nullptr) override;

    /// Reads up to @p nMax - 1 characters, up to the end of the line with its "\n", and terminates
    /// them. Null at the end of the file and for a null or empty buffer, otherwise @p lpsz.
    virtual wchar_t* ReadString(wchar_t* lpsz, UINT nMax);
    /// Reads a line without its end; FALSE, and empty, at the end of the file.
    virtual BOOL ReadString(CString_E& rString);
    /// Writes text; null throws the invalid-argument exception.
    virtual void WriteString(const wchar_t* lpsz);

private:
    QByteArray ReadLine(qint64 nMaxBytes);

    bool m_bText = true;
};

/// A file in a block of memory that grows as it is written.
///
/// Its QFile only stands for it and is never opened.
class VXMFC_EXPORT CMemFile_E : public CFile_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CMemFile_E)

    /// Starts empty and grows in steps of @p nGrowBytes bytes.
    explicit CMemFile_E(UINT nGrowBytes = 1024);
    /// Works on the caller's block; see Attach().
    CMemFile_E(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    /// Frees the block, unless it was attached.
    ~CMemFile_E() override;

    using CFile_E::Attach;
    /// Takes a block in place of the present one. With @p nGrowBytes 0 its bytes are the file, and
    /// it cannot grow; otherwise the file is empty, and the block must come from `malloc`, for it
    /// may be moved. Either way it is owned by the caller, who gets it back from Detach().
    void Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    /// Closes the file and returns its block, owned by the caller (`free`); null when there is
    /// none.
    BYTE* Detach();

    /// Differs from a file on disk: always FALSE, a file in memory is open without it.
    BOOL Open(const wchar_t* lpszFileName, UINT nOpenFlags,
              CFileException_E* pError = nullptr) override;
    UINT Read(void* lpBuf, UINT nCount) override;
    /// Throws the memory exception when the block cannot grow.
    void Write(const void* lpBuf, UINT nCount) override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetPosition() const override { return m_nPosition; }
    ULONGLONG GetLength() const override { return m_nFileSize; }
    void SetLength(ULONGLONG dwNewLen) override;
    void Flush() override {}
    /// Lets the block go and starts empty.
    void Close() override;
    void Abort() override { Close(); }

private:
    void GrowFile(std::size_t nNewSize);

    BYTE* m_lpBuffer = nullptr;
    std::size_t m_nBufferSize = 0;
    std::size_t m_nFileSize = 0;
    std::size_t m_nPosition = 0;
    UINT m_nGrowBytes;
    bool m_bAutoDelete = true;
};
