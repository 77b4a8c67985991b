/// @file stdiofile.h
/// Files of text lines.
///
/// Text is UTF-8. A byte that is no part of a character is read as U+FFFD, and what is no code
/// point is written as U+FFFD. A byte order mark at the start of the file is skipped by the reading
/// of strings; none is written. No character ends the file, 0x1A (Ctrl+Z) neither.
///
/// With typeText, and without typeBinary, lines end as on Windows: every "\n" is written as "\r\n",
/// and "\r\n" is read as "\n", bytes as well as strings. With typeBinary everything stands as it
/// is.
///
/// Positions and lengths count the bytes of the file. Reading goes on behind an end that the file
/// has outgrown.
///
/// Threads: a file is used by one thread at a time; any thread may have its own.
#pragma once

#include <VxMFCEmu/coll/file.h>

#include <cstdio>
#include <memory>
#include <string>

/// A buffered file of text lines.
class VXMFC_EXPORT CStdioFile_E : public CFile_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CStdioFile_E)

    CStdioFile_E();
    /// Works on an open stream, as text; it stays open when the object is destroyed, Close() closes
    /// it. Null throws the exception with the cause invalidFile.
    explicit CStdioFile_E(std::FILE* pOpenStream);
    /// Opens a file or throws a CFileException_E.
    CStdioFile_E(const wchar_t* lpszFileName, UINT nOpenFlags);
    ~CStdioFile_E() override;

    BOOL Open(const wchar_t* lpszFileName, UINT nOpenFlags,
              CFileException_E* pError = nullptr) override;
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG dwNewLen) override;
    void Flush() override;
    void Close() override;
    void Abort() override;
    /// @{
    /// Throws the not-supported exception.
    CFile_E* Duplicate() const override;
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    /// @}

    /// Reads up to @p nMax - 1 characters, up to the end of the line with its "\n", and terminates
    /// them. Null at the end of the file and for a null or empty buffer, otherwise @p lpsz.
    virtual wchar_t* ReadString(wchar_t* lpsz, UINT nMax);
    /// Reads a line without its end; FALSE, and empty, at the end of the file. One that no string
    /// can hold throws the memory exception.
    virtual BOOL ReadString(CString_E& rString);
    /// Writes text; null throws the invalid-argument exception.
    virtual void WriteString(const wchar_t* lpsz);

    /// The stream of the open file; null while there is none.
    std::FILE* m_pStream = nullptr;

private:
    enum class Use
    {
        None,
        Reading,
        Writing
    };

    std::FILE& Stream() const;
    std::FILE& StreamFor(Use use);
    std::FILE& TextStream();
    void CheckStream(bool bGood) const;
    void CheckRead(bool bGood);
    int CloseStream();
    int NextByte();
    int NextCharacter();
    void WriteBytes(const char* pBytes, std::size_t nCount);

    Use m_use = Use::None; // the last one since the position was set
    bool m_bText = true;
    bool m_bAtStart = false;
    std::string m_text; // what is being written
    std::unique_ptr<char[]> m_pBuffer;
    char* m_pLine = nullptr; // what is being read, from the C library's heap
    std::size_t m_nLine = 0;
};
