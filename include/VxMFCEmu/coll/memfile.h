/// @file memfile.h
/// Files in memory.
///
/// Threads: a file is used by one thread at a time.
#pragma once

#include <VxMFCEmu/coll/file.h>

/// A file in a block of memory that grows as it is written.
///
/// Its QFile only stands for it and is never opened, and m_hFile stays hFileNull.
class VXMFC_EXPORT CMemFile_E : public CFile_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CMemFile_E)

    /// Starts empty. The block grows to a multiple of @p nGrowBytes bytes, at least doubling.
    explicit CMemFile_E(UINT nGrowBytes = 1024);
    /// Works on the caller's block; see Attach().
    CMemFile_E(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    /// Frees the block, unless it was attached.
    ~CMemFile_E() override;

    using CFile_E::Attach;
    /// Takes a block in place of the present one. With @p nGrowBytes 0 its bytes are the file, and
    /// it cannot grow; otherwise the file is empty, and the block must come from Alloc(), for it
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
    /// Cuts or extends the file, with zeros; a position beyond the new end moves there.
    void SetLength(ULONGLONG dwNewLen) override;
    void Flush() override {}
    /// Lets the block go and starts empty.
    void Close() override;
    void Abort() override { Close(); }
    using CFile_E::GetStatus;
    /// Gives the length and the name; there are no times.
    BOOL GetStatus(CFileStatus_E& rStatus) const override;
    /// @{
    /// Throws the not-supported exception.
    CFile_E* Duplicate() const override;
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    /// @}

protected:
    /// @{
    /// Where the block comes from and goes to; by default the C library's heap. Null means that
    /// memory is out. A class that overrides these calls Close() in its destructor.
    virtual BYTE* Alloc(SIZE_T nBytes);
    virtual BYTE* Realloc(BYTE* lpMem, SIZE_T nBytes);
    virtual void Free(BYTE* lpMem);
    /// @}
    /// Copies between the block and the caller's memory.
    virtual BYTE* Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes);
    /// Makes room for @p dwNewLen bytes or throws the memory exception.
    virtual void GrowFile(SIZE_T dwNewLen);

    UINT m_nGrowBytes;          ///< the step of growing in bytes; 0 when the file cannot grow
    SIZE_T m_nPosition = 0;     ///< in bytes, perhaps beyond the end
    SIZE_T m_nBufferSize = 0;   ///< the room of the block in bytes
    SIZE_T m_nFileSize = 0;     ///< the length of the file in bytes
    BYTE* m_lpBuffer = nullptr; ///< the block; null while there is none
    bool m_bAutoDelete = true;  ///< whether Close() frees the block
};
