#include "support/test.h"

#include <cerrno>
#include <stdexcept>

namespace {

struct Deleter
{
    void operator()(CException_E* p) const { p->Delete(); }
};

/// What @p doThrow throws, if it is an Exception.
template <typename Exception, typename Throw>
std::unique_ptr<Exception, Deleter> caught(Throw doThrow)
{
    try {
        doThrow();
    } catch (Exception* pException) {
        return std::unique_ptr<Exception, Deleter>(pException);
    }
    throw std::logic_error("nothing was thrown");
}

std::wstring messageOf(CException_E& e, UINT room = 200)
{
    std::wstring buffer(room + 1, L'\0');
    UINT help = 77;
    if (!e.GetErrorMessage(buffer.data(), room, &help))
        return L"<none>";
    EXPECT_EQ(help, 0U);
    return buffer.c_str();
}

struct PlainException : CException_E
{
    explicit PlainException(BOOL bAutoDelete = TRUE) : CException_E(bAutoDelete) {}
    ~PlainException() override { ++s_deaths; }
    static inline int s_deaths = 0;
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
    for (int round = 0; round < 2; ++round) {
        for (const auto& [doThrow, pExpected] : rows) {
            EXPECT_EQ(caught<CSimpleException_E>(doThrow).get(), pExpected);
            EXPECT_EQ(messageOf(*pExpected), L"CException");
        }
    }
    EXPECT_THROW(caught<CMemoryException_E>(&AfxThrowUserException_E), CUserException_E*);
}

TEST(Exceptions, DeleteFollowsTheAutoDeleteFlag)
{
    PlainException::s_deaths = 0;
    auto* const p = new PlainException(FALSE);
    for (const BOOL flag : {FALSE, -1, TRUE}) {
        EXPECT_EQ(PlainException::s_deaths, 0);
        p->m_bAutoDelete = flag;
        p->Delete();
    }
    EXPECT_EQ(PlainException::s_deaths, 1);
}

TEST(Exceptions, RecordsCannotTellKindsApart)
{
    const std::unique_ptr<CException_E, Deleter> pFile(new CFileException_E);
    const CObject_E plain;
    for (const CRuntimeClass_E* pClass :
         {RUNTIME_CLASS_E(CException_E), RUNTIME_CLASS_E(COleException_E)}) {
        EXPECT_TRUE(pFile->IsKindOf(pClass));
        EXPECT_TRUE(plain.IsKindOf(pClass));
        EXPECT_STREQ(pClass->GetClassName(), "CObject_E");
        EXPECT_STREQ(pClass->GetImpClassName(), "QObject");
    }
    EXPECT_EQ(pFile->GetRuntimeClass(), RUNTIME_CLASS_E(CException_E));
    EXPECT_EQ(RUNTIME_CLASS_E(COleException_E)->GetObjectSize(), 48);
}

TEST(Exceptions, SimpleMessageIsCutWithoutATerminatorAndTheBaseHasNone)
{
    std::wstring buffer(12, L'#');
    EXPECT_TRUE(_simpleUserException.GetErrorMessage(buffer.data(), 4));
    EXPECT_EQ(buffer, L"CExc########");
    EXPECT_FALSE(_simpleUserException.GetErrorMessage(nullptr, 4) ||
                 _simpleUserException.GetErrorMessage(buffer.data(), 0));
    PlainException e;
    UINT help = 5;
    EXPECT_FALSE(e.GetErrorMessage(buffer.data(), 4, &help));
    EXPECT_STREQ(buffer.c_str(), L"");
    EXPECT_EQ(help, 0U);
    EXPECT_FALSE(e.GetErrorMessage(nullptr, 0, nullptr));
}

TEST(FileException, CausesOfErrorNumbers)
{
    const std::map<int, int> special = {{1, 5},   {2, 2},  {5, 10}, {9, 6},   {13, 5},
                                        {22, 10}, {23, 2}, {24, 4}, {28, 13}, {36, 11}};
    for (int n = -2; n < 200; ++n) {
        const auto it = special.find(n);
        EXPECT_EQ(CFileException_E::ErrnoToException(n), it == special.end() ? 1 : it->second) << n;
    }
    const std::map<int, int> some = {{0, 0},   {18, 2},   {267, 3},  {113, 4},     {999, 5},
                                     {193, 6}, {145, 7},  {62, 8},   {132, 9},     {997, 10},
                                     {32, 11}, {167, 12}, {112, 13}, {38, 14},     {1, 1},
                                     {998, 1}, {1000, 1}, {-1, 1},   {INT_MIN, 1}, {INT_MAX, 1}};
    for (const auto& [number, cause] : some)
        EXPECT_EQ(CFileException_E::OsErrorToException(number), cause) << number;
    int count = 0; // of those with a cause of their own
    for (int n = 0; n < 1010; ++n)
        count += CFileException_E::OsErrorToException(n) != CFileException_E::genericException;
    EXPECT_EQ(count, 79);
}

TEST(FileException, ThrowsFromErrorNumbers)
{
    const auto pErrno =
        caught<CFileException_E>([] { CFileException_E::ThrowErrno(EACCES, L"a.txt"); });
    EXPECT_EQ(pErrno->m_cause, CFileException_E::accessDenied);
    EXPECT_EQ(pErrno->m_lOsError, 0);
    EXPECT_STREQ(pErrno->m_strFileName.GetString(), L"a.txt");
    const auto pOs = caught<CFileException_E>([] { CFileException_E::ThrowOsError(112, nullptr); });
    EXPECT_EQ(pOs->m_cause, CFileException_E::diskFull);
    EXPECT_EQ(pOs->m_lOsError, 112);
    EXPECT_NO_THROW(CFileException_E::ThrowErrno(0, L"a"));
    EXPECT_NO_THROW(CFileException_E::ThrowOsError(0, L"a"));
}

TEST(FileException, MessageIsCopiedWholeOrNotAtAll)
{
    CFileException_E file(2, 7, L"x.dat");
    const std::wstring text = L"cause: 2, error: 7, file: x.dat\n";
    const auto length = static_cast<UINT>(text.size());
    EXPECT_EQ(messageOf(file), text);
    EXPECT_EQ(messageOf(file, length), text);
    std::wstring untouched(40, L'#');
    EXPECT_FALSE(file.GetErrorMessage(untouched.data(), length - 1));
    EXPECT_EQ(untouched, std::wstring(40, L'#'));
    // Just fits: all of the text and nothing behind it.
    EXPECT_TRUE(file.GetErrorMessage(untouched.data(), length));
    EXPECT_EQ(untouched, text + std::wstring(40 - length, L'#'));

    CFileException_E unnamed(1, 0);
    EXPECT_EQ(messageOf(unnamed), L"cause: 1, error: 0, file: AFX_IDS_UNNAMED_FILE\n");
    const auto pArchive =
        caught<CArchiveException_E>([] { AfxThrowArchiveException_E(4, L"a%d"); });
    EXPECT_EQ(messageOf(*pArchive), L"cause: 4, file: a%d\n");
    EXPECT_EQ(messageOf(*pArchive, 5), L"<none>");
}

TEST(OleException, CarriesItsStatusCode)
{
    const auto pInt = caught<COleException_E>([] { AfxThrowOleException_E(-5); });
    EXPECT_EQ(pInt->m_sc, -5);
    EXPECT_EQ(messageOf(*pInt), L"system error! error number: 4294967291");
    const auto pLong = caught<COleException_E>([] { AfxCheckError_E(-7L); });
    EXPECT_EQ(pLong->m_sc, -7);
    EXPECT_NO_THROW(AfxCheckError_E(0));
    EXPECT_NO_THROW(AfxCheckError_E(0x80004005L)); // positive in 64 bits
}

TEST(OleException, ProcessReadsTheStatusCodePosition)
{
    COleException_E ole;
    ole.m_sc = 42;
    const CFileException_E file(CFileException_E::badSeek);
    const CArchiveException_E archive(CArchiveException_E::badClass);
    const COleDispatchException_E dispatch(L"d", 0, 0xFFF0);
    const Row<const CException_E*, SCODE> rows[] = {
        {&ole, 42}, {&file, 9}, {&archive, 6}, {&dispatch, 0xFFF0}, {nullptr, E_UNEXPECTED}};
    for (const auto& [pException, code] : rows)
        EXPECT_EQ(COleException_E::Process(pException), code) << code;
}

TEST(OleDispatchException, HelpContextAndDescription)
{
    const auto pText =
        caught<COleDispatchException_E>([] { AfxThrowOleDispatchException_E(3, L"why", 0x10); });
    const auto pId = caught<COleDispatchException_E>(
        [] { AfxThrowOleDispatchException_E(3, 0x20U, 0xFFFFFFFFU); });
    EXPECT_EQ(pText->m_wCode, 3);
    EXPECT_EQ(pText->m_dwHelpContext, 0x60010U);
    EXPECT_EQ(pId->m_dwHelpContext, 0x60020U);
    EXPECT_EQ(messageOf(*pText), L"why");
    EXPECT_EQ(messageOf(*pId), L"AfxThrowOleDispatchException");
    EXPECT_EQ(COleDispatchException_E(nullptr, 0, 1).m_dwHelpContext, 0U);
}

struct Info : EXCEPINFO
{
    explicit Info(const CException_E* p) { COleDispatchException_E::Process(this, p); }
    Q_DISABLE_COPY_MOVE(Info)
    ~Info()
    {
        for (BSTR bstr : {bstrSource, bstrDescription, bstrHelpFile})
            SysFreeString_E(bstr);
    }
};

TEST(OleDispatchException, ProcessFillsTheRecord)
{
    COleDispatchException_E e(L"left out", 1, 9);
    e.m_strSource = L"src";
    const Info info(&e);
    EXPECT_EQ(info.wCode, 9);
    EXPECT_EQ(info.dwHelpContext, 0x60001U);
    EXPECT_EQ(info.scode, 0);
    EXPECT_STREQ(info.bstrSource, L"src");
    EXPECT_STREQ(info.bstrDescription, L""); // the description is not copied
    EXPECT_STREQ(info.bstrHelpFile, L"");    // there is a help context
    EXPECT_EQ(SysStringLen_E(info.bstrSource), 3U);
    EXPECT_EQ(SysStringByteLen_E(info.bstrSource), 12U);

    const Info memory(&_simpleMemoryException);
    EXPECT_STREQ(memory.bstrDescription, L"AFX_IDP_FAILED_MEMORY_ALLOC");
    EXPECT_EQ(static_cast<short>(memory.wCode), -3830);
    EXPECT_EQ(memory.bstrHelpFile, nullptr);
    const CFileException_E file;
    const Info other(&file);
    EXPECT_STREQ(other.bstrDescription, L"AFX_IDP_INTERNAL_FAILURE");
    EXPECT_EQ(static_cast<short>(other.wCode), -3832);
    COleDispatchException_E::Process(nullptr, &e);
}

TEST(Bstr, LengthCountsEmbeddedZeros)
{
    BSTR bstr = SysAllocStringLen_E(L"a\0b", 3);
    EXPECT_EQ(SysStringLen_E(bstr), 3U);
    EXPECT_EQ(std::wstring(bstr, 4), std::wstring(L"a\0b\0", 4));
    SysFreeString_E(bstr);
    EXPECT_EQ(SysAllocString_E(nullptr), nullptr);
    EXPECT_EQ(SysStringLen_E(nullptr), 0U);
    SysFreeString_E(nullptr);
}

} // namespace
