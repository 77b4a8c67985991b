/// @file exceptions.h
/// The exception classes and the functions that throw them.
///
/// Every exception is thrown as a pointer; the catcher calls CException_E::Delete(). The five
/// simple exceptions are shared objects of the process, which Delete() leaves alone.
///
/// Differs from Win32: run-time class records cannot tell the classes of this family apart, because
/// they have CObject_E's meta object; catch by type instead.
///
/// Threads: an exception belongs to the thread that threw it, except the shared ones.
#pragma once

#include <VxMFCEmu/core/bstr.h>
#include <VxMFCEmu/core/object.h>
#include <VxMFCEmu/text/cstring.h>

#include <QtCore/QException>

/// What an automation call reports about its failure.
struct tagEXCEPINFO
{
    WORD wCode;                                  ///< the code of the failure
    WORD wReserved;                              ///< 0 from Process()
    BSTR bstrSource;                             ///< owned by the record's user, like the next two
    BSTR bstrDescription;                        ///< empty rather than null from Process()
    BSTR bstrHelpFile;                           ///< null when there is no help
    DWORD dwHelpContext;                         ///< 0 for none
    void* pvReserved;                            ///< null from Process()
    HRESULT (*pfnDeferredFillIn)(tagEXCEPINFO*); ///< null from Process()
    SCODE scode;                                 ///< 0 from Process(): wCode tells
};
/// The same record.
using EXCEPINFO = tagEXCEPINFO;

/// @{
/// A status code of failure, which is negative.
inline constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001U);
inline constexpr HRESULT E_UNEXPECTED = static_cast<HRESULT>(0x8000FFFFU);
inline constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000EU);
/// @}

/// Base of the family.
class VXMFC_EXPORT CException_E : public QException, public CObject_E
{
    DECLARE_DYNAMIC_E(CException_E)

    CException_E() : CException_E(TRUE) {}
    /// Unless @p bAutoDelete is positive, Delete() leaves the object alone.
    explicit CException_E(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}
    ~CException_E() override = 0;

    /// Copies the message, of at most @p nMaxError characters, and sets the help context, when
    /// asked for, to 0 unless a class says otherwise. FALSE when there is no message or no buffer;
    /// the base has none and writes an empty string. A message that fills the buffer has no
    /// terminator.
    virtual BOOL GetErrorMessage(wchar_t* lpszError, UINT nMaxError,
                                 UINT* pnHelpContext = nullptr) const;
    /// Forwards to the const one.
    virtual BOOL GetErrorMessage(wchar_t* lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr);
    /// Shows the message, or else the text of string resource @p nMessageID, in a message box of
    /// type @p nType and returns its result.
    virtual int ReportError(UINT nType = 0, UINT nMessageID = 0);

    /// Deletes the object when it deletes itself.
    void Delete();

    BOOL m_bAutoDelete; ///< whether Delete() deletes: above 0
};

/// An exception that is known by a string resource.
class VXMFC_EXPORT CSimpleException_E : public CException_E
{
public:
    /// One that Delete() deletes.
    CSimpleException_E() = default;
    /// See CException_E for @p bAutoDelete; the number of the resource is only kept.
    explicit CSimpleException_E(BOOL bAutoDelete, UINT nResourceID = 0)
        : CException_E(bAutoDelete), m_nResourceID(nResourceID)
    {
    }
    ~CSimpleException_E() override;

    using CException_E::GetErrorMessage;
    /// Differs from Win32: the message is one fixed text whatever the resource.
    BOOL GetErrorMessage(wchar_t* lpszError, UINT nMaxError,
                         UINT* pnHelpContext = nullptr) const override;

private:
    void InitString() const;

    mutable BOOL m_bInitialized = FALSE;
    mutable BOOL m_bLoaded = FALSE;
    mutable wchar_t m_szMessage[128] = {};
    [[maybe_unused]] UINT m_nResourceID = 0;
};

/// Memory is out.
class VXMFC_EXPORT CMemoryException_E : public CSimpleException_E
{
public:
    using CSimpleException_E::CSimpleException_E;
    ~CMemoryException_E() override;
};

/// What was asked for is not there.
class VXMFC_EXPORT CNotSupportedException_E : public CSimpleException_E
{
public:
    using CSimpleException_E::CSimpleException_E;
    ~CNotSupportedException_E() override;
};

/// An argument is none that the function takes.
class VXMFC_EXPORT CInvalidArgException_E : public CSimpleException_E
{
public:
    using CSimpleException_E::CSimpleException_E;
    ~CInvalidArgException_E() override;
};

/// A resource was not found or could not be made.
class VXMFC_EXPORT CResourceException_E : public CSimpleException_E
{
public:
    using CSimpleException_E::CSimpleException_E;
    ~CResourceException_E() override;
};

/// Stops what the user asked for, once the user has been told.
class VXMFC_EXPORT CUserException_E : public CSimpleException_E
{
public:
    using CSimpleException_E::CSimpleException_E;
    ~CUserException_E() override;
};

/// @{
/// A shared exception, there before the static objects of the program are made.
extern VXMFC_EXPORT CNotSupportedException_E _simpleNotSupportedException;
extern VXMFC_EXPORT CResourceException_E _simpleResourceException;
extern VXMFC_EXPORT CMemoryException_E _simpleMemoryException;
extern VXMFC_EXPORT CUserException_E _simpleUserException;
extern VXMFC_EXPORT CInvalidArgException_E _simpleInvalidArgException;
/// @}

/// A failure of a file operation.
class VXMFC_EXPORT CFileException_E : public CException_E
{
public:
    /// The values of m_cause.
    enum
    {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    /// Null @p lpszFileName is an empty name.
    explicit CFileException_E(int cause = none, LONG lOsError = -1,
                              const wchar_t* lpszFileName = nullptr)
        : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszFileName)
    {
    }
    ~CFileException_E() override;

    using CException_E::GetErrorMessage;
    /// Copies nothing and returns FALSE when the message is longer than @p nMaxError.
    BOOL GetErrorMessage(wchar_t* lpszError, UINT nMaxError,
                         UINT* pnHelpContext = nullptr) const override;

    /// The cause for a C library error number; genericException for one outside its table.
    static int ErrnoToException(int nErrno);
    /// The cause for a Win32 error number; none for 0, genericException for an unknown one.
    static int OsErrorToException(LONG lOsError);
    /// Throws the exception for a C library error number, with OS error 0; 0 throws nothing.
    static void ThrowErrno(int nErrno, const wchar_t* lpszFileName = nullptr);
    /// Throws the exception for a Win32 error number; 0 throws nothing.
    static void ThrowOsError(LONG lOsError, const wchar_t* lpszFileName = nullptr);

    int m_cause;             ///< what kind of failure
    LONG m_lOsError;         ///< the Win32 error number; -1 when none was given
    CString_E m_strFileName; ///< of the file; empty when it is not known
};

/// A failure of reading or writing an archive.
class VXMFC_EXPORT CArchiveException_E : public CException_E
{
public:
    /// The values of m_cause.
    enum
    {
        none,
        genericException,
        readOnly,
        endOfFile,
        writeOnly,
        badIndex,
        badClass,
        badSchema,
        bufferFull
    };

    /// Null @p lpszArchiveName is an empty name.
    explicit CArchiveException_E(int cause = none, const wchar_t* lpszArchiveName = nullptr)
        : m_cause(cause), m_strFileName(lpszArchiveName)
    {
    }
    ~CArchiveException_E() override;

    using CException_E::GetErrorMessage;
    /// Copies nothing and returns FALSE when the message is longer than @p nMaxError.
    BOOL GetErrorMessage(wchar_t* lpszError, UINT nMaxError,
                         UINT* pnHelpContext = nullptr) const override;

    int m_cause;             ///< what kind of failure
    CString_E m_strFileName; ///< of the archive; empty when it is not known
};

/// A failure that a status code describes.
class VXMFC_EXPORT COleException_E : public CException_E
{
    DECLARE_DYNAMIC_E(COleException_E)

    COleException_E() = default;
    ~COleException_E() override;

    using CException_E::GetErrorMessage;
    BOOL GetErrorMessage(wchar_t* lpszError, UINT nMaxError,
                         UINT* pnHelpContext = nullptr) const override;

    /// The status code for an exception. Differs from Win32: the class records cannot tell kinds
    /// apart, so this is what stands in the place of the status code, which is the first data
    /// member that the exception's class adds to CException_E and must be at least four bytes (of a
    /// dispatch exception its code, of a file exception its cause); E_UNEXPECTED for null. Not for
    /// an exception whose class adds no member.
    static SCODE Process(const CException_E* pAnyException);

    SCODE m_sc = 0; ///< the status code
};

/// A failure of an automation call.
class VXMFC_EXPORT COleDispatchException_E : public CException_E
{
public:
    /// A help id other than 0 becomes the help context plus 0x60000. Null @p lpszDescription is
    /// none.
    explicit COleDispatchException_E(const wchar_t* lpszDescription, UINT nHelpID, WORD wCode);
    ~COleDispatchException_E() override;

    using CException_E::GetErrorMessage;
    /// Copies the description; TRUE also when it is empty.
    BOOL GetErrorMessage(wchar_t* lpszError, UINT nMaxError,
                         UINT* pnHelpContext = nullptr) const override;

    /// Fills @p pInfo, whatever it held before, for @p pAnyException; its strings are owned by the
    /// caller (SysFreeString_E()). Null @p pInfo is ignored. Differs from Win32: the description of
    /// a dispatch exception is not copied, the record's is empty.
    static void Process(EXCEPINFO* pInfo, const CException_E* pAnyException);

    WORD m_wCode;               ///< the code of the failure
    CString_E m_strDescription; ///< the message
    DWORD m_dwHelpContext;      ///< 0 for none
    CString_E m_strHelpFile;    ///< empty until it is set
    CString_E m_strSource;      ///< empty until it is set

private:
    LONGLONG m_scError = 0;
};

static_assert(sizeof(CException_E) == 40 && sizeof(CFileException_E) == 88 &&
              sizeof(CArchiveException_E) == 88 && sizeof(COleException_E) == 48 &&
              sizeof(COleDispatchException_E) == 184);

/// @{
/// Throws the shared exception of that kind.
[[noreturn]] VXMFC_EXPORT void AfxThrowMemoryException_E();
[[noreturn]] VXMFC_EXPORT void AfxThrowNotSupportedException_E();
[[noreturn]] VXMFC_EXPORT void AfxThrowInvalidArgException_E();
[[noreturn]] VXMFC_EXPORT void AfxThrowResourceException_E();
[[noreturn]] VXMFC_EXPORT void AfxThrowUserException_E();
/// @}
/// Throws a new file exception, which its catcher deletes. CFileException_E::ThrowOsError() finds
/// the cause itself.
[[noreturn]] VXMFC_EXPORT void AfxThrowFileException_E(int cause, LONG lOsError = -1,
                                                       const wchar_t* lpszFileName = nullptr);
/// Throws a new archive exception, which its catcher deletes.
[[noreturn]] VXMFC_EXPORT void AfxThrowArchiveException_E(int cause,
                                                          const wchar_t* lpszArchiveName = nullptr);
/// @{
/// Throws a new exception with a status code, of which 32 bits are kept; its catcher deletes it.
[[noreturn]] VXMFC_EXPORT void AfxThrowOleException_E(int sc);
[[noreturn]] VXMFC_EXPORT void AfxThrowOleException_E(long sc);
/// @}
/// Throws for a negative status code. Differs from Win32: `long` has 64 bits, so a failure code
/// must come sign-extended.
VXMFC_EXPORT void AfxCheckError_E(long sc);
/// Throws a new dispatch exception, which its catcher deletes; the arguments are those of its
/// constructor.
[[noreturn]] VXMFC_EXPORT void
AfxThrowOleDispatchException_E(WORD wCode, const wchar_t* lpszDescription, UINT nHelpID = 0);
/// Differs from Win32: the description is one fixed text whatever @p nDescriptionID, which only
/// stands in for @p nHelpID when that is 0xFFFFFFFF.
[[noreturn]] VXMFC_EXPORT void AfxThrowOleDispatchException_E(WORD wCode, UINT nDescriptionID,
                                                              UINT nHelpID = 0xFFFFFFFFU);
