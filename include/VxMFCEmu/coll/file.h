/// @file file.h
/// Files on disk.
///
/// Failures throw a CFileException_E: its OS error is the Win32 error number, its cause the one
/// that OsErrorToException() gives for it, its name that of the file. Using a file that is not open
/// throws one with the cause invalidFile. Only Open() and the GetStatus() that takes a
/// name report by their results.
///
/// File names may be separated by "/" or "\".
///
/// Sharing: each open file carries open-file-description locks (`F_OFD_SETLK`) far beyond any data
/// that tell what it does and what it forbids. They are seen by every process that opens files with
/// this library, through CFile_E or CreateFile_E(), and go with the file; other programs do not
/// notice them. A file system without locks is taken as it is.
///
/// Differs from Win32:
/// - What is locked or not shared can still be read, written, deleted and renamed by other means.
/// - Two processes that open a file at the same moment in ways that exclude each other may both be
///   refused.
///
/// Threads: a file is used by one thread at a time; any thread may have its own.
#pragma once

#include <VxMFCEmu/core/object.h>
#include <VxMFCEmu/text/cstring.h>

#include <atomic>
#include <ctime>
#include <memory>
#include <type_traits>
#include <vector>

class CFileException_E;
class QFile;

/// What is known of a file.
///
/// Differs from MFC: the times are seconds since 1970, 0 for none.
struct VXMFC_EXPORT CFileStatus_E
{
    /// The room of m_szFullName, in characters with the terminator.
    static constexpr std::size_t kMaxPath = 4096;

    std::time_t m_ctime = 0; ///< of its making; of its last change where no such time is kept
    std::time_t m_mtime = 0; ///< of the last writing
    std::time_t m_atime = 0; ///< of the last reading
    ULONGLONG m_size = 0;    ///< in bytes
    BYTE m_attribute = 0;    ///< values of CFile_E::Attribute
    wchar_t m_szFullName[kMaxPath] = {}; ///< the absolute path
};

/// A file of bytes, unbuffered.
///
/// Its QFile is open on the same descriptor, for Qt functions that want one; the bytes of the
/// members here pass it by.
class VXMFC_EXPORT CFile_E : public CObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CFile_E)

    /// How Open() opens; one access mode, one share mode, and any of the others.
    enum OpenFlags : UINT
    {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,    ///< as shareExclusive
        shareExclusive = 0x0010, ///< nobody else opens it
        shareDenyWrite = 0x0020, ///< nobody else opens it to write
        shareDenyRead = 0x0030,  ///< nobody else opens it to read
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,  ///< always so
        modeCreate = 0x1000,     ///< makes the file; one that is there is emptied
        modeNoTruncate = 0x2000, ///< with modeCreate: one that is there is kept
        typeText = 0x4000,
        typeBinary = 0x8000,
        osNoBuffer = 0x10000,      ///< ignored
        osWriteThrough = 0x20000,  ///< writing returns when the bytes are on the disk
        osRandomAccess = 0x40000,  ///< ignored
        osSequentialScan = 0x80000 ///< ignored
    };
    /// What Seek() counts from.
    enum SeekPosition : UINT
    {
        begin = 0,
        current = 1,
        end = 2
    };
    /// What CFileStatus_E::m_attribute is made of.
    ///
    /// Differs from Win32: a file is readOnly when nobody may write it, and hidden when its name
    /// begins with a dot; the others but directory and device are never set.
#ifdef __clang__
#    pragma clang diagnostic push
#    pragma clang diagnostic ignored "-Wshadow" // the C library has a function of such a name
#endif
    enum Attribute : BYTE
    {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        system = 0x04,
        volume = 0x08,
        directory = 0x10,
        archive = 0x20,
        device = 0x40
    };
#ifdef __clang__
#    pragma clang diagnostic pop
#endif

    /// What m_hFile is while no file is open.
    static constexpr INT_PTR hFileNull = -1;

    CFile_E();
    /// Works on an open descriptor, which stays open when the object is destroyed; Close() closes
    /// it.
    explicit CFile_E(INT_PTR hFile);
    /// Works on the file of a handle such as one from CreateFile_E(), which stays open when the
    /// object is destroyed; Close() closes it. What is no handle of an open file throws the
    /// exception with the cause invalidFile. A template, so that a literal 0 is a descriptor.
    template <typename Handle, typename = std::enable_if_t<std::is_same_v<Handle, HANDLE>>>
    explicit CFile_E(Handle hFile) : CFile_E()
    {
        AdoptHandle(hFile);
    }
    /// Opens a file or throws a CFileException_E.
    CFile_E(const wchar_t* lpszFileName, UINT nOpenFlags);
    /// Closes the file, without an exception.
    ~CFile_E() override;

    /// Makes a closed QFile below @p pParent and attaches it as owned.
    BOOL AttachDefault(QObject* pParent) override;

    /// The handle for functions such as ReadFile_E(): the object itself, as long as it lives;
    /// INVALID_HANDLE_VALUE while no file is open.
    operator HANDLE() const;

    /// Opens a file, closing one that it opened before. FALSE, filling @p pError if there is one,
    /// on failure, with the Win32 error number as last error.
    virtual BOOL Open(const wchar_t* lpszFileName, UINT nOpenFlags,
                      CFileException_E* pError = nullptr);
    /// A new object for the same open file, owned by the caller: position and locks are common.
    virtual CFile_E* Duplicate() const;
    /// Reads up to @p nCount bytes and returns their number, fewer only at the end of the file.
    virtual UINT Read(void* lpBuf, UINT nCount);
    /// Writes @p nCount bytes.
    virtual void Write(const void* lpBuf, UINT nCount);
    /// Moves to @p lOff bytes from @p nFrom and returns the new position, which may lie beyond the
    /// end.
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    /// The position, in bytes from the start of the file.
    virtual ULONGLONG GetPosition() const;
    /// The length in bytes.
    virtual ULONGLONG GetLength() const;
    /// Cuts or extends the file, with zeros, and moves to its new end.
    virtual void SetLength(ULONGLONG dwNewLen);
    /// Locks a range, which may lie beyond the end; one that overlaps a locked one is a lock
    /// violation, and an empty one overlaps none. Differs from Win32: reading and writing do not
    /// look at locks, and a file opened only for reading locks out only those that are not.
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    /// Unlocks a range that is exactly one that was locked.
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    /// Hands what is buffered to the system.
    virtual void Flush();
    /// Closes the file; one that is not open is left alone.
    virtual void Close();
    /// Closes the file, without an exception.
    virtual void Abort();

    /// Moves to the first byte.
    void SeekToBegin() { Seek(0, begin); }
    /// Moves behind the last byte and returns the length.
    ULONGLONG SeekToEnd() { return Seek(0, end); }

    /// Name of the file without its folder; empty when none is open.
    virtual CString_E GetFileName() const;
    /// The same without the extension.
    virtual CString_E GetFileTitle() const;
    /// Absolute path of the file; empty when none is open.
    virtual CString_E GetFilePath() const { return m_strFileName; }
    /// Sets what the three functions above tell.
    virtual void SetFilePath(const wchar_t* lpszNewName) { m_strFileName = lpszNewName; }

    /// What is known of the open file.
    virtual BOOL GetStatus(CFileStatus_E& rStatus) const;
    /// What is known of a file or folder; FALSE, and everything empty, when there is none.
    static BOOL GetStatus(const wchar_t* lpszFileName, CFileStatus_E& rStatus);
    /// Sets attributes and, where they are not 0, the times of the last reading and writing.
    /// Differs from Win32: of the attributes only readOnly can be set, and m_ctime cannot.
    static void SetStatus(const wchar_t* lpszFileName, const CFileStatus_E& status);
    /// Deletes a file.
    static void Remove(const wchar_t* lpszFileName);
    /// Renames or moves a file or folder; there must be none of the new name.
    static void Rename(const wchar_t* lpszOldName, const wchar_t* lpszNewName);

    /// Descriptor of the open file, hFileNull while there is none.
    INT_PTR m_hFile = hFileNull;

protected:
    /// The descriptor; throws when no file is open.
    int Descriptor() const;
    /// Throws for a Win32 error number, not for 0.
    void Check(LONG lOsError) const;
    /// Opens the file and gives back the Win32 error number, 0 for success.
    LONG OpenFile(const wchar_t* lpszFileName, UINT nOpenFlags);
    /// Takes an open descriptor, closed at the end with @p bCloseOnDelete.
    void Adopt(int fd, bool bCloseOnDelete);
    /// Takes the file of a handle, which Close() closes.
    void AdoptHandle(HANDLE hFile);
    /// What Open() returns for a Win32 error number, filling @p pError if there is one.
    static BOOL ReportOpen(LONG lOsError, const wchar_t* lpszFileName, CFileException_E* pError);
    /// Lets the descriptor go, which is closed unless somebody else does; the error of closing.
    LONG ReleaseFile(bool bClose);
    /// Lets others open and lock the file before it is closed, even while a forked process still
    /// has it; with duplicates, the last one does.
    void ReleaseLocks();
    /// Binds @p pFile to another descriptor of the same file.
    void DuplicateTo(CFile_E* pFile) const;

    CString_E m_strFileName;       ///< the absolute path, or what SetFilePath() was given
    bool m_bCloseOnDelete = false; ///< whether the destructor closes the descriptor

private:
    struct Range
    {
        ULONGLONG first;
        ULONGLONG count;
    };
    std::vector<Range> m_ranges;                          // what is locked
    mutable std::shared_ptr<std::atomic<int>> m_pSharers; // counts duplicates; null without any
    HANDLE m_hBorrowed = nullptr;                         // the handle whose descriptor this is
    int m_nProcess = 0;                                   // where the descriptor was taken
    mutable bool m_bIsHandle = false;
};
