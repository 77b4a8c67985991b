#include "support/test.h"

#include <cerrno>
#include <cstring>

namespace {

/// The exception that @p doThrow throws, null when it throws none.
std::shared_ptr<CException_E> caught(void (*doThrow)())
{
    try {
        doThrow();
    } catch (CException_E* pException) {
        return {pException, [](CException_E* p) { p->Delete(); }};
    }
    return nullptr;
}

/// What @p e writes for @p room characters, its terminator as $; "none" in front when it says so.
std::wstring messageOf(CException_E& e, UINT room)
{
    std::wstring buffer(201, L'#');
    UINT help = 77;
    const BOOL written = e.GetErrorMessage(buffer.data(), room, &help);
    EXPECT_EQ(help, 0U);
    buffer.resize(buffer.find(L'#'));
    std::replace(buffer.begin(), buffer.end(), L'\0', L'$');
    return written ? buffer : L"none" + buffer;
}

struct PlainException : CException_E
{
};

TEST(Exceptions, SharedOnesAreThrownAgainAndSurviveDelete)
{
    const Row<void (*)(), CException_E*> rows[] = {
        {&AfxThrowMemoryException_E, &_simpleMemoryException},
        {&AfxThrowNotSupportedException_E, &_simpleNotSupportedException},
        {&AfxThrowInvalidArgException_E, &_simpleInvalidArgException},
        {&AfxThrowResourceException_E, &_simpleResourceException},
        {&AfxThrowUserException_E, &_simpleUserException},
    };
    for (const auto& [doThrow, pShared] : rows)
        EXPECT_TRUE(caught(doThrow).get() == pShared && caught(doThrow).get() == pShared);
}

TEST(Exceptions, DeleteFollowsTheAutoDeleteFlag)
{
    const QPointer<CException_E> p = new PlainException;
    for (const BOOL flag : {FALSE, -1, TRUE}) {
        p->m_bAutoDelete = flag;
        p->Delete();
        ASSERT_EQ(p.isNull(), flag == TRUE);
    }
}

TEST(Exceptions, RecordsCannotTellKindsApart)
{
    const CRuntimeClass_E* const pClass = RUNTIME_CLASS_E(COleException_E);
    EXPECT_TRUE(CFileException_E().IsKindOf(pClass) && CObject_E().IsKindOf(pClass));
    EXPECT_STREQ(pClass->GetClassName(), "CObject_E");
    EXPECT_STREQ(pClass->GetImpClassName(), "QObject");
    EXPECT_EQ(pClass->GetObjectSize(), 48);
    EXPECT_EQ(CFileException_E().GetRuntimeClass(), RUNTIME_CLASS_E(CException_E));
}

TEST(Exceptions, Messages)
{
    // What throws, room for the message and the message, null when nothing is thrown. It is cut,
    // or written only as a whole; what just fits has no terminator.
    const Row<void (*)(), UINT, const wchar_t*> rows[] = {
        {[] { throw new PlainException; }, 9, L"none$"},
        {&AfxThrowUserException_E, 11, L"CException$"},
        {&AfxThrowUserException_E, 4, L"CExc"},
        {[] { CFileException_E::ThrowErrno(0, L"x"); }, 99, nullptr},
        {[] { CFileException_E::ThrowErrno(EACCES, L"x"); }, 28, L"cause: 5, error: 0, file: x\n"},
        {[] { CFileException_E::ThrowErrno(EACCES, L"x"); }, 27, L"none"},
        {[] { CFileException_E::ThrowOsError(112, nullptr); }, 99,
         L"cause: 13, error: 112, file: AFX_IDS_UNNAMED_FILE\n$"},
        {[] { AfxThrowArchiveException_E(4, L"a%d"); }, 99, L"cause: 4, file: a%d\n$"},
        {[] { AfxCheckError_E(-7L); }, 99, L"system error! error number: 4294967289$"},
        {[] { AfxCheckError_E(0x80004005L); }, 99, nullptr}, // positive in 64 bits
        {[] { AfxThrowOleDispatchException_E(3, 1U); }, 99, L"AfxThrowOleDispatchException$"},
    };
    for (const auto& [doThrow, room, message] : rows) {
        const auto p = caught(doThrow);
        ASSERT_EQ(p != nullptr, message != nullptr) << message;
        if (!p)
            continue;
        EXPECT_EQ(messageOf(*p, room), message);
        EXPECT_EQ(messageOf(*p, 0), L"none");
        EXPECT_FALSE(p->GetErrorMessage(nullptr, room));
    }
}

TEST(FileException, CausesOfErrorNumbers)
{
    const std::map<int, int> ofC = {{-1, 1}, {0, 1}, {1, 5}, {24, 4}, {36, 11}, {37, 1}};
    for (const auto& [number, cause] : ofC)
        EXPECT_EQ(CFileException_E::ErrnoToException(number), cause) << number;
    const std::map<int, int> ofWin32 = {{-1, 1}, {0, 0}, {18, 2}, {998, 1}, {999, 5}, {1000, 1}};
    for (const auto& [number, cause] : ofWin32)
        EXPECT_EQ(CFileException_E::OsErrorToException(number), cause) << number;
}

TEST(OleException, ProcessReadsTheStatusCodePosition)
{
    // Intended: the records cannot tell kinds apart, so that each counts as such an exception.
    COleException_E ole;
    ole.m_sc = 42;
    const CFileException_E file(CFileException_E::badSeek);
    const COleDispatchException_E dispatch(L"d", 0, 0xFFF0);
    const Row<const CException_E*, SCODE> rows[] = {
        {&ole, 42}, {&file, 9}, {&dispatch, 0xFFF0}, {nullptr, E_UNEXPECTED}};
    for (const auto& [pException, code] : rows)
        EXPECT_EQ(COleException_E::Process(pException), code) << code;
}

TEST(OleDispatchException, ProcessFillsTheRecord)
{
    const auto pId = caught([] { AfxThrowOleDispatchException_E(4, 0x20U); });
    COleDispatchException_E named(nullptr, 0, 9);
    named.m_strSource = L"src";
    const CFileException_E file;
    // Intended: the description of a dispatch exception is not copied.
    // exception; code, help context, source, description, help file
    const Row<const CException_E*, int, DWORD, const wchar_t*, const wchar_t*, const wchar_t*>
        rows[] = {
            {pId.get(), 4, 0x60020, nullptr, L"", L""},
            {&named, 9, 0, L"src", L"", nullptr},
            {&_simpleMemoryException, -3830, 0, nullptr, L"AFX_IDP_FAILED_MEMORY_ALLOC", nullptr},
            {&file, -3832, 0, nullptr, L"AFX_IDP_INTERNAL_FAILURE", nullptr}};
    for (const auto& [p, code, helpContext, source, description, helpFile] : rows) {
        EXCEPINFO info;
        std::memset(&info, 0xFF, sizeof(info));
        COleDispatchException_E::Process(&info, p);
        EXPECT_EQ(static_cast<short>(info.wCode), code);
        EXPECT_TRUE(info.dwHelpContext == helpContext && info.scode == 0) << code;
        EXPECT_STREQ(info.bstrSource, source) << code;
        EXPECT_STREQ(info.bstrDescription, description) << code;
        EXPECT_STREQ(info.bstrHelpFile, helpFile) << code;
        for (BSTR bstr : {info.bstrSource, info.bstrDescription, info.bstrHelpFile})
            SysFreeString_E(bstr);
    }
    COleDispatchException_E::Process(nullptr, &named);
}

TEST(Bstr, LengthCountsEmbeddedZeros)
{
    BSTR bstr = SysAllocStringLen_E(L"a\0b", 3);
    EXPECT_TRUE(SysStringLen_E(bstr) == 3 && SysStringByteLen_E(bstr) == 12);
    EXPECT_EQ(std::wstring(bstr, 4), std::wstring(L"a\0b\0", 4));
    SysFreeString_E(bstr);
    EXPECT_TRUE(!SysAllocString_E(nullptr) && SysStringLen_E(nullptr) == 0);
}

} // namespace
