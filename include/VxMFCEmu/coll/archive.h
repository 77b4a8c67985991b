/// @file archive.h
/// Binary archives of values and of graphs of objects.
///
/// An archive writes to a file or reads from one, through a buffer; until it is flushed, closed or
/// destroyed the file lacks the buffer's bytes. Numbers are little-endian. The forms of counts,
/// texts, objects and classes are those that MFC documents, so that archives can be exchanged:
/// - a text has its length in front and is written as UTF-16; texts of 8-bit characters are read
///   too, as UTF-8 or, when they are not valid UTF-8, as Latin-1;
/// - an object is written once, as its class and what its Serialize() writes; every further time as
///   its number. Classes have a name and a schema number, see serial.h.
///
/// Differs from MFC: `long` has 8 bytes in memory and in the archive, LONG and DWORD have 4.
/// A character beyond U+FFFF is two UTF-16 code units in the archive.
///
/// Failures throw a CArchiveException_E, and let those of the file pass: readOnly and writeOnly for
/// the wrong direction, endOfFile where bytes are missing, badIndex, badClass and badSchema for
/// what an archive of the program's classes does not have, genericException for a closed archive
/// and one whose file has refused a part, for a text longer than a string can be, and for objects
/// nested too deeply for the stack; writing refuses them before they are too deep for reading.
/// Memory is taken only as the bytes come in. An object whose reading fails is deleted; those that
/// it had been handed before belong to whoever stored them.
///
/// Threads: an archive is used by one thread at a time; any thread may have its own.
#pragma once

#include <VxMFCEmu/coll/file.h>

#include <cstring>
#include <memory>
#include <type_traits>

namespace vx::detail {
class ArchiveTables;
}

/// Writes values and objects to a file or reads them from one.
class VXMFC_EXPORT CArchive_E
{
public:
    /// The direction, and options to it.
    enum Mode
    {
        store = 0,
        load = 1,
        bNoFlushOnDelete = 2, ///< the destructor drops what is in the buffer
        bNoByteSwap = 4       ///< always so
    };

    /// An archive on an open file, external to it. A buffer @p lpBuf of at least 128 bytes is used
    /// and owned by the caller; otherwise the archive makes its own, of as many bytes at least.
    /// A null file throws the invalid-argument exception.
    CArchive_E(CFile_E* pFile, UINT nMode, int nBufSize = 4096, void* lpBuf = nullptr);
    /// Closes the archive, without an exception. After a failed write the rest is dropped.
    ~CArchive_E();
    Q_DISABLE_COPY_MOVE(CArchive_E)

    /// @{
    /// The direction: every archive has exactly one.
    bool IsLoading() const { return (m_nMode & load) != 0; }
    bool IsStoring() const { return !IsLoading(); }
    /// @}
    /// Always false: numbers are little-endian in memory and in the archive.
    bool IsByteSwapping() const { return false; }
    /// Whether the buffer has neither bytes to be read nor bytes to be written.
    bool IsBufferEmpty() const
    {
        return m_pRead == m_pReadEnd && (!m_pWrite || m_pWrite == m_pBuffer);
    }
    /// The file, owned by the caller of the constructor; null once closed.
    CFile_E* GetFile() const { return m_pFile; }

    /// Reads up to @p nMax bytes and returns their number, fewer only at the end of the file.
    UINT Read(void* lpBuf, UINT nMax);
    /// Reads @p nCount bytes; throws endOfFile when there are fewer.
    void EnsureRead(void* lpBuf, UINT nCount);
    /// Writes @p nMax bytes.
    void Write(const void* lpBuf, UINT nMax);
    /// Hands what is in the buffer to the file; when loading, moves the file back to what has not
    /// been read.
    void Flush();
    /// Flushes and lets go of the file, which stays open. Again does nothing.
    void Close();
    /// Lets go of the file, without an exception; what is in the buffer is dropped.
    void Abort() noexcept;

    /// @{
    /// A count of elements: 2 bytes, 6 from 0xFFFF on, 14 from 0xFFFFFFFF on.
    void WriteCount(DWORD_PTR dwCount);
    DWORD_PTR ReadCount();
    /// @}

    /// Writes a text as UTF-16 code units, with neither length nor end.
    void WriteString(const wchar_t* lpsz);
    /// Reads UTF-16 up to the end of the line, "\n", "\r" or "\r\n", which is taken and not stored,
    /// or up to @p nMax characters, and terminates them: the buffer has room for one more. Null at
    /// the end of the file and for a null buffer.
    wchar_t* ReadString(wchar_t* lpsz, UINT nMax);
    /// Reads a line without its end; FALSE, and empty, at the end of the file.
    BOOL ReadString(CString_E& rString);

    /// @{
    /// Writes the bytes of a number, the lowest first.
    CArchive_E& operator<<(BYTE by) { return Put(by); }
    CArchive_E& operator<<(char ch) { return Put(ch); }
    CArchive_E& operator<<(signed char ch) { return Put(ch); }
    CArchive_E& operator<<(short w) { return Put(w); }
    CArchive_E& operator<<(WORD w) { return Put(w); }
    CArchive_E& operator<<(int i) { return Put(i); }
    CArchive_E& operator<<(UINT u) { return Put(u); }
    CArchive_E& operator<<(long l) { return Put(l); }
    CArchive_E& operator<<(unsigned long ul) { return Put(ul); }
    CArchive_E& operator<<(LONGLONG n) { return Put(n); }
    CArchive_E& operator<<(ULONGLONG n) { return Put(n); }
    CArchive_E& operator<<(float f) { return Put(f); }
    CArchive_E& operator<<(double d) { return Put(d); }
    /// @}
    /// One byte, 0 or 1. A template so that no pointer is written as a bool.
    template <typename Bool, std::enable_if_t<std::is_same_v<Bool, bool>, int> = 0>
    CArchive_E& operator<<(Bool b)
    {
        return Put(static_cast<BYTE>(b));
    }
    /// One or two UTF-16 code units; what is no character becomes U+FFFD.
    CArchive_E& operator<<(wchar_t ch)
    {
        return static_cast<UINT>(ch) < 0x10000 ? Put(static_cast<WORD>(ch)) : PutSupplementary(ch);
    }
    /// Writes a text as UTF-16 with its length in front.
    CArchive_E& operator<<(const CString_E& str);

    /// @{
    /// Reads the bytes of a number; one that is cut off throws endOfFile.
    CArchive_E& operator>>(BYTE& by) { return Get(by); }
    CArchive_E& operator>>(char& ch) { return Get(ch); }
    CArchive_E& operator>>(signed char& ch) { return Get(ch); }
    CArchive_E& operator>>(short& w) { return Get(w); }
    CArchive_E& operator>>(WORD& w) { return Get(w); }
    CArchive_E& operator>>(int& i) { return Get(i); }
    CArchive_E& operator>>(UINT& u) { return Get(u); }
    CArchive_E& operator>>(long& l) { return Get(l); }
    CArchive_E& operator>>(unsigned long& ul) { return Get(ul); }
    CArchive_E& operator>>(LONGLONG& n) { return Get(n); }
    CArchive_E& operator>>(ULONGLONG& n) { return Get(n); }
    CArchive_E& operator>>(float& f) { return Get(f); }
    CArchive_E& operator>>(double& d) { return Get(d); }
    /// @}
    /// Any byte but 0 is true.
    CArchive_E& operator>>(bool& b)
    {
        BYTE by;
        Get(by);
        b = by != 0;
        return *this;
    }
    /// A pair of surrogates is one character; a lone one stays as it is.
    CArchive_E& operator>>(wchar_t& ch);
    /// Reads a text of 8-bit or UTF-16 units; after a failure the string may be cut short.
    CArchive_E& operator>>(CString_E& str);

    /// Writes an object, its class before it at its first time; null is written as such. Throws the
    /// not-supported exception for an object whose class is not serial.
    void WriteObject(const CObject_E* pOb);
    /// Reads an object that WriteObject() wrote. A new one, owned by the caller, the first time;
    /// the same one again each further time. Null was written as such. Throws badClass when the
    /// object is not of @p pClassRefRequested, which may be null for any class, and the
    /// not-supported exception when that class is not serial.
    CObject_E* ReadObject(const CRuntimeClass_E* pClassRefRequested);
    /// Writes a class as WriteObject() does.
    void WriteClass(const CRuntimeClass_E* pClassRef);
    /// Reads a class, checking it as ReadObject() does. Its schema goes to @p pSchema, when null to
    /// GetObjectSchema(). With @p pObTag it may be no class but an object written before: then
    /// null, with the object's number. Without, that throws badIndex.
    CRuntimeClass_E* ReadClass(const CRuntimeClass_E* pClassRefRequested = nullptr,
                               UINT* pSchema = nullptr, DWORD* pObTag = nullptr);
    /// Writes the class, or reads it and sets its schema: for the version of a base class.
    void SerializeClass(const CRuntimeClass_E* pClassRef);
    /// Enters an object that is not in the archive, so that those in it can refer to it: in the
    /// same place when storing and when loading. Stays owned by the caller.
    void MapObject(const CObject_E* pOb);
    /// The schema of the object being read. Intended: only the first call for an object tells,
    /// further ones give 0xFFFFFFFF.
    UINT GetObjectSchema();
    /// Sets what the next GetObjectSchema() tells.
    void SetObjectSchema(UINT nSchema) { m_nObjectSchema = nSchema; }
    /// @{
    /// Makes room for so many objects before any is loaded or stored. Differs from MFC: this is the
    /// whole meaning, the tables grow by doubling.
    void SetLoadParams(UINT nGrowBy = 1024);
    void SetStoreParams(UINT nHashSize = 2053, UINT nBlockSize = 128);
    /// @}

    /// The document that is being stored or loaded, for its objects; the archive does not use it.
    CObject_E* m_pDocument = nullptr;
    /// The path of the file, given to exceptions.
    CString_E m_strFileName;

private:
    struct LoadingObject;

    template <typename T>
    CArchive_E& Put(T value)
    {
        if (static_cast<std::size_t>(m_pWriteEnd - m_pWrite) < sizeof value)
            MakeRoom();
        std::memcpy(m_pWrite, &value, sizeof value);
        m_pWrite += sizeof value;
        return *this;
    }
    template <typename T>
    CArchive_E& Get(T& value)
    {
        if (static_cast<std::size_t>(m_pReadEnd - m_pRead) < sizeof value)
            Require(sizeof value);
        std::memcpy(&value, m_pRead, sizeof value);
        m_pRead += sizeof value;
        return *this;
    }
    template <typename T>
    T Get()
    {
        T value;
        Get(value);
        return value;
    }

    [[noreturn]] void Throw(int cause) const;
    void CheckOpen() const;
    void CheckStoring() const;
    void CheckLoading() const;
    std::size_t BytesLeft() const { return static_cast<std::size_t>(m_pReadEnd - m_pRead); }
    /// Empties the buffer of what is to be written.
    void MakeRoom();
    void WriteFile(const void* lpBuf, UINT nCount);
    /// Reads until the buffer has @p nBytes, at most a small value; whether they are there.
    bool Fill(std::size_t nBytes);
    void Require(std::size_t nBytes);

    CArchive_E& PutSupplementary(wchar_t ch);
    void PutUnits(const wchar_t* pText, std::size_t nLength);
    ULONGLONG GetStringLength(bool& bWide);
    void GetUnits(CString_E& str, std::size_t nUnits);
    void GetNarrow(CString_E& str, std::size_t nBytes);
    bool GetLineCharacter(wchar_t& ch);

    vx::detail::ArchiveTables& Tables();
    void Remember(const void* pKey);
    void Enter(void* pLoaded, UINT nSchema = 0, bool bClass = false);
    void PutIndex(DWORD nIndex, bool bClass);
    CRuntimeClass_E* GetNewClass(UINT& nSchema);
    CRuntimeClass_E* GetKnownClass(DWORD nIndex, UINT& nSchema);
    CObject_E* GetKnownObject(DWORD nIndex, const CRuntimeClass_E* pClassRefRequested);
    void CheckKind(const CObject_E* pOb, const CRuntimeClass_E* pClassRefRequested);

    // Apart for reading and writing: in the wrong direction both are null, and the slow way tells.
    BYTE* m_pRead = nullptr;
    BYTE* m_pReadEnd = nullptr;
    BYTE* m_pWrite = nullptr;
    BYTE* m_pWriteEnd = nullptr;
    BYTE* m_pBuffer;
    std::size_t m_nBufferSize;
    CFile_E* m_pFile;
    UINT m_nMode;
    UINT m_nObjectSchema = ~0U;
    bool m_bWriteFailed = false;
    std::unique_ptr<BYTE[]> m_pOwnBuffer;
    std::unique_ptr<vx::detail::ArchiveTables> m_pTables;
};

/// CArchive_E::WriteObject().
inline CArchive_E& operator<<(CArchive_E& ar, const CObject_E* pOb)
{
    ar.WriteObject(pOb);
    return ar;
}
/// @{
/// CArchive_E::ReadObject() for any class: a new object is owned by the caller.
inline CArchive_E& operator>>(CArchive_E& ar, CObject_E*& pOb)
{
    pOb = ar.ReadObject(nullptr);
    return ar;
}
inline CArchive_E& operator>>(CArchive_E& ar, const CObject_E*& pOb)
{
    pOb = ar.ReadObject(nullptr);
    return ar;
}
/// @}
