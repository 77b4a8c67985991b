/// @file dumpcontext.h
/// Diagnostic output into a file.
///
/// Text goes out as its wide characters, without a terminator. Without a file nothing is written.
///
/// Differs from Win32: there is no debugger to fall back on, and objects are not dumped through
/// `<<`.
#pragma once

#include <VxMFCEmu/text/cstring.h>
#include <VxMFCEmu/types.h>

class CFile_E;
class CObject_E;

/// Diagnostic output into a file.
class VXMFC_EXPORT CDumpContext_E
{
public:
    /// Writes into @p pFile, which may be null and must outlive this; owned by the caller.
    explicit CDumpContext_E(CFile_E* pFile = nullptr) : m_pFile(pFile) {}
    Q_DISABLE_COPY_MOVE(CDumpContext_E)

    /// @{
    /// How deep objects are dumped: above 0, collections write their elements too.
    int GetDepth() const { return m_nDepth; }
    void SetDepth(int nDepth) { m_nDepth = nDepth; }
    /// @}

    /// Flushes the file.
    void Flush();
    /// Writes text; throws the user exception for null, when there is a file.
    void OutputString(const wchar_t* lpsz);
    /// Writes @p nBytes bytes in rows of @p nWidth; each row begins with @p lpszLine formatted with
    /// the row's address. Throws the invalid-argument exception for a null pointer and for counts
    /// below 1.
    void HexDump(const wchar_t* lpszLine, BYTE* pby, int nBytes, int nWidth);

    /// Null is written as "NULL".
    CDumpContext_E& operator<<(const wchar_t* lpsz);
    /// Written as wide text, at most 512 characters, converted by libc's current locale; null is
    /// written as "(NULL)".
    CDumpContext_E& operator<<(const char* lpsz);
    /// Written as the text is.
    CDumpContext_E& operator<<(const CString_E& str) { return *this << str.GetString(); }
    /// Null is written as "NULL", any object as one fixed text.
    CDumpContext_E& operator<<(const CObject_E* pOb);
    /// @{
    /// Written in text form.
    CDumpContext_E& operator<<(const void* p);
    CDumpContext_E& operator<<(unsigned char value);
    CDumpContext_E& operator<<(unsigned short value);
    CDumpContext_E& operator<<(unsigned int value);
    CDumpContext_E& operator<<(int value);
    CDumpContext_E& operator<<(long long value);
    CDumpContext_E& operator<<(unsigned long long value);
    /// @}
    /// @{
    /// Counts and sizes (`INT_PTR`, `UINT_PTR`), which would fit every number above.
    CDumpContext_E& operator<<(long value) { return *this << static_cast<long long>(value); }
    CDumpContext_E& operator<<(unsigned long value)
    {
        return *this << static_cast<unsigned long long>(value);
    }
    CDumpContext_E& operator<<(float value);
    CDumpContext_E& operator<<(double value);
    /// @}

    /// @{
    /// Writes "0x" and all hexadecimal digits of the type.
    CDumpContext_E& DumpAsHex(unsigned char value);
    CDumpContext_E& DumpAsHex(unsigned short value);
    CDumpContext_E& DumpAsHex(int value);
    CDumpContext_E& DumpAsHex(unsigned int value);
    CDumpContext_E& DumpAsHex(long long value);
    CDumpContext_E& DumpAsHex(unsigned long long value);
    CDumpContext_E& DumpAsHex(long value) { return DumpAsHex(static_cast<long long>(value)); }
    CDumpContext_E& DumpAsHex(unsigned long value)
    {
        return DumpAsHex(static_cast<unsigned long long>(value));
    }
    /// @}

private:
    template <typename Value>
    CDumpContext_E& Print(const wchar_t* lpszFormat, Value value);

    int m_nDepth = 0;
    CFile_E* m_pFile;
};
