#include <VxMFCEmu/coll/file.h>
#include <VxMFCEmu/core/exceptions.h>
#include <VxMFCEmu/text/vxqstring.h>

#include <QtCore/QTemporaryDir>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <thread>

namespace {

/// Cause of the file exception that @p work throws; -1 when it throws none.
template <typename Work>
int causeOf(Work work)
{
    try {
        work();
    } catch (CFileException_E* e) {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
    return -1;
}

class FileTest : public testing::Test
{
protected:
    CString_E Path(const char* name = "f") const
    {
        return CString_E(m_dir.filePath(QString::fromUtf8(name)));
    }
    CString_E Make(const QByteArray& bytes) const
    {
        QFile file{VxQString(Path())};
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return Path();
    }
    QByteArray Bytes(const char* name = "f") const
    {
        QFile file{VxQString(Path(name))};
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<none>");
    }

    QTemporaryDir m_dir;
};

TEST_F(FileTest, RecordsNameQFileAndNoFactory)
{
    const struct
    {
        const CRuntimeClass_E* pClass;
        const char* name;
    } rows[] = {{RUNTIME_CLASS_E(CFile_E), "CFile_E"},
                {RUNTIME_CLASS_E(CStdioFile_E), "CStdioFile_E"},
                {RUNTIME_CLASS_E(CMemFile_E), "CMemFile_E"}};
    for (const auto& row : rows) {
        EXPECT_STREQ(row.pClass->GetClassName(), row.name);
        EXPECT_STREQ(row.pClass->GetImpClassName(), "QFile");
        EXPECT_EQ(row.pClass->CreateObject(), nullptr);
        EXPECT_TRUE(row.pClass->IsDerivedFrom(RUNTIME_CLASS_E(CFile_E)));
    }
    CFile_E file;
    ASSERT_TRUE(file.AttachDefault(nullptr));
    EXPECT_TRUE(qobject_cast<QFile*>(file.GetImpQObject()));
}

TEST_F(FileTest, OpenModes)
{
    constexpr UINT create = CFile_E::modeCreate;
    const struct
    {
        int line;
        UINT flags;
        const char* before; // null: no file
        int cause;          // of Open(), -1 when it works
        const char* after;  // when "Z" has been written, if it may be
    } rows[] = {
        {__LINE__, CFile_E::modeRead, "abc", -1, "abc"},
        {__LINE__, CFile_E::modeRead | CFile_E::shareExclusive | CFile_E::typeBinary, "abc", -1,
         "abc"},
        {__LINE__, CFile_E::modeRead, nullptr, CFileException_E::fileNotFound, "<none>"},
        {__LINE__, CFile_E::modeWrite, nullptr, CFileException_E::fileNotFound, "<none>"},
        {__LINE__, CFile_E::modeWrite, "abc", -1, "Zbc"},
        {__LINE__, CFile_E::modeReadWrite, "abc", -1, "Zbc"},
        {__LINE__, CFile_E::modeWrite | create, "abc", -1, "Z"},
        {__LINE__, CFile_E::modeReadWrite | create, nullptr, -1, "Z"},
        {__LINE__, CFile_E::modeWrite | create | CFile_E::modeNoTruncate, "abc", -1, "Zbc"},
        {__LINE__, CFile_E::modeWrite | create | CFile_E::modeNoTruncate, nullptr, -1, "Z"},
        {__LINE__, CFile_E::modeRead | create, "abc", -1, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        QFile::remove(VxQString(Path()));
        if (row.before)
            Make(row.before);
        CFile_E file;
        CFileException_E error;
        EXPECT_EQ(file.Open(Path(), row.flags, &error), row.cause < 0);
        EXPECT_EQ(error.m_cause, std::max(row.cause, 0));
        EXPECT_EQ(causeOf([&] { CFile_E thrown(L"/nowhere/f", row.flags); }),
                  CFileException_E::fileNotFound);
        if (row.cause < 0) {
            char c;
            const UINT access = row.flags & 3U;
            EXPECT_EQ(causeOf([&] { file.Write("Z", 1); }),
                      access == CFile_E::modeRead ? CFileException_E::accessDenied : -1);
            EXPECT_EQ(causeOf([&] { file.Read(&c, 1); }),
                      access == CFile_E::modeWrite ? CFileException_E::accessDenied : -1);
            EXPECT_EQ(Bytes(), row.after); // unbuffered: there before the file is closed
        } else {
            EXPECT_EQ(error.m_lOsError, ENOENT);
            EXPECT_STREQ(error.m_strFileName.GetString(), Path().GetString());
        }
    }
}

TEST_F(FileTest, ReadsSeeksAndCuts)
{
    CFile_E file(Make("0123456789"), CFile_E::modeReadWrite);
    char buffer[16] = {};
    EXPECT_EQ(file.Read(buffer, 4), 4U);
    EXPECT_EQ(file.Seek(2, CFile_E::current), 6U);
    EXPECT_EQ(file.Read(buffer, 16), 4U);
    EXPECT_STREQ(buffer, "6789");
    EXPECT_EQ(file.Read(buffer, 16), 0U);
    EXPECT_EQ(file.Seek(-3, CFile_E::end), 7U);
    EXPECT_EQ(causeOf([&] { file.Seek(-8, CFile_E::current); }), CFileException_E::badSeek);
    EXPECT_THROW(file.Seek(0, 3), CInvalidArgException_E*);
    EXPECT_EQ(file.GetPosition(), 7U);
    file.SetLength(5);
    EXPECT_EQ(file.GetLength(), 5U);
    EXPECT_EQ(file.GetPosition(), 5U);
    file.Write("x", 1);
    EXPECT_EQ(file.SeekToEnd(), 6U);
    EXPECT_EQ(file.Seek(2, CFile_E::end), 8U);
    file.Write("y", 1);
    file.SeekToBegin();
    EXPECT_EQ(file.GetPosition(), 0U);
    file.Close();
    EXPECT_EQ(Bytes(), QByteArray("01234x\0\0y", 9));
}

TEST_F(FileTest, NamesAndReuse)
{
    CString_E dos = Path("a.b.txt");
    dos = dos.ToWinSeperator();
    CFile_E file(dos, CFile_E::modeWrite | CFile_E::modeCreate);
    EXPECT_STREQ(file.GetFilePath().GetString(), Path("a.b.txt").GetString());
    EXPECT_STREQ(file.GetFileName().GetString(), L"a.b.txt");
    EXPECT_STREQ(file.GetFileTitle().GetString(), L"a.b");
    file.Write("1", 1);
    ASSERT_TRUE(file.Open(Path("g"), CFile_E::modeWrite | CFile_E::modeCreate));
    file.Write("2", 1);
    file.Close();
    file.Close();
    EXPECT_TRUE(file.GetFilePath().IsEmpty());
    EXPECT_EQ(Bytes("a.b.txt"), "1");
    EXPECT_EQ(Bytes("g"), "2");
}

TEST_F(FileTest, ClosedFileIsInvalid)
{
    CFile_E file;
    char c = 0;
    EXPECT_EQ(causeOf([&] { file.Read(&c, 1); }), CFileException_E::invalidFile);
    EXPECT_EQ(causeOf([&] { file.Write(&c, 1); }), CFileException_E::invalidFile);
    EXPECT_EQ(causeOf([&] { file.GetLength(); }), CFileException_E::invalidFile);
    EXPECT_EQ(causeOf([&] { file.SeekToEnd(); }), CFileException_E::invalidFile);
    EXPECT_EQ(causeOf([&] { file.SetLength(1); }), CFileException_E::invalidFile);
    EXPECT_NO_THROW(file.Flush());
    EXPECT_FALSE(file.Open(nullptr, CFile_E::modeRead));
    CFileException_E error;
    EXPECT_FALSE(file.Open(CString_E(m_dir.path()), CFile_E::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException_E::accessDenied);
}

TEST_F(FileTest, FullDiskIsReported)
{
    CFile_E raw;
    if (!raw.Open(L"/dev/full", CFile_E::modeWrite))
        GTEST_SKIP() << "no /dev/full";
    EXPECT_EQ(causeOf([&] { raw.Write("x", 1); }), CFileException_E::diskFull);
    CStdioFile_E text(L"/dev/full", CFile_E::modeWrite);
    text.WriteString(L"x");
    EXPECT_EQ(causeOf([&] { text.Close(); }), CFileException_E::diskFull);
    EXPECT_EQ(causeOf([&] { text.GetLength(); }), CFileException_E::invalidFile);
}

TEST_F(FileTest, RemoveAndRename)
{
    Make("x");
    EXPECT_EQ(causeOf([&] { CFile_E::Rename(Path("no"), Path("g")); }),
              CFileException_E::fileNotFound);
    EXPECT_EQ(causeOf([&] { CFile_E::Rename(Path(), Path()); }),
              CFileException_E::genericException);
    CFile_E::Rename(Path(), Path("g"));
    EXPECT_EQ(Bytes("g"), "x");
    CFile_E::Remove(Path("g"));
    EXPECT_EQ(Bytes("g"), "<none>");
    EXPECT_EQ(causeOf([&] { CFile_E::Remove(Path("g")); }), CFileException_E::fileNotFound);
    EXPECT_EQ(causeOf([&] { CFile_E::Remove(nullptr); }), CFileException_E::fileNotFound);
}

TEST_F(FileTest, WorksInAThreadWithoutAnEventLoop)
{
    std::thread([this] {
        CFile_E(Path(), CFile_E::modeWrite | CFile_E::modeCreate).Write("t", 1);
    }).join();
    EXPECT_EQ(Bytes(), "t");
}

std::vector<std::wstring> linesOf(CStdioFile_E& file)
{
    std::vector<std::wstring> lines;
    for (CString_E line; file.ReadString(line);)
        lines.emplace_back(line.GetString());
    return lines;
}

std::vector<std::wstring> piecesOf(CStdioFile_E& file, UINT nMax)
{
    std::vector<std::wstring> pieces;
    wchar_t buffer[64];
    while (file.ReadString(buffer, nMax))
        pieces.emplace_back(buffer);
    return pieces;
}

TEST_F(FileTest, TextLines)
{
    using Lines = std::vector<std::wstring>;
    const struct
    {
        int line;
        const char* bytes;
        UINT type;
        Lines lines;
        UINT nMax;
        Lines pieces;
    } rows[] = {
        {__LINE__, "", 0, {}, 8, {}},
        {__LINE__, "ab\ncd", 0, {L"ab", L"cd"}, 8, {L"ab\n", L"cd"}},
        {__LINE__, "ab\r\n\r\nc\r", 0, {L"ab", L"", L"c\r"}, 8, {L"ab\n", L"\n", L"c\r"}},
        {__LINE__, "ab\r\nc", CFile_E::typeBinary, {L"ab\r", L"c"}, 8, {L"ab\r\n", L"c"}},
        {__LINE__, "ab\r\ncde\n", 0, {L"ab", L"cde"}, 3, {L"ab", L"\n", L"cd", L"e\n"}},
        {__LINE__, "ab\r\nc", 0, {L"ab", L"c"}, 4, {L"ab\n", L"c"}},
        {__LINE__, "ä中😀\nx", 0, {L"ä中😀", L"x"}, 3, {L"ä中", L"😀\n", L"x"}},
        {__LINE__, "\uFEFFa\n", 0, {L"a"}, 8, {L"a\n"}},
        {__LINE__, "a\xFF\n", 0, {L"a\uFFFD"}, 8, {L"a\uFFFD\n"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        CStdioFile_E file(Make(row.bytes), CFile_E::modeRead | row.type);
        EXPECT_EQ(linesOf(file), row.lines);
        file.SeekToBegin();
        EXPECT_EQ(piecesOf(file, row.nMax), row.pieces);
    }
}

TEST_F(FileTest, TextIsWrittenAsItStands)
{
    CStdioFile_E file(Path(), CFile_E::modeReadWrite | CFile_E::modeCreate);
    file.WriteString(L"\u00e4\n\U0001F600\n");
    EXPECT_THROW(file.WriteString(nullptr), CInvalidArgException_E*);
    file.Flush();
    EXPECT_EQ(Bytes(), "\u00e4\n\U0001F600\n");
    wchar_t buffer[4];
    file.SeekToBegin();
    EXPECT_EQ(file.ReadString(nullptr, 4), nullptr);
    EXPECT_EQ(file.ReadString(buffer, 0), nullptr);
    ASSERT_EQ(file.ReadString(buffer, 1), buffer);
    EXPECT_STREQ(buffer, L"");
    EXPECT_EQ(file.GetPosition(), 0U);
}

TEST(MemFile, GrowsAndReadsBack)
{
    CMemFile_E file(3);
    std::string expected;
    for (int i = 0; i < 1000; ++i) {
        const std::string piece = std::to_string(i);
        file.Write(piece.data(), static_cast<UINT>(piece.size()));
        expected += piece;
    }
    std::string actual(expected.size() + 5, '#');
    file.SeekToBegin();
    EXPECT_EQ(file.Read(actual.data(), static_cast<UINT>(actual.size())), expected.size());
    EXPECT_EQ(actual.substr(0, expected.size()), expected);
    file.SetLength(2);
    EXPECT_EQ(file.Seek(2, CFile_E::end), 4U);
    EXPECT_EQ(file.GetLength(), 2U);
    file.Write("x", 1);
    file.SeekToBegin();
    EXPECT_EQ(file.Read(actual.data(), 9), 5U);
    EXPECT_EQ(actual.substr(0, 5),
              std::string("01\0\0x", 5)); // what was cut off does not come back
    EXPECT_EQ(causeOf([&] { file.Seek(-6, CFile_E::current); }), CFileException_E::badSeek);
    EXPECT_FALSE(file.Open(L"f", CFile_E::modeRead));
    file.Close();
    EXPECT_EQ(file.GetLength(), 0U);
}

TEST(MemFile, AttachedBlocks)
{
    BYTE fixed[4] = {1, 2, 3, 4};
    CMemFile_E file(fixed, 4);
    EXPECT_EQ(file.GetLength(), 4U);
    file.SeekToEnd();
    EXPECT_THROW(file.Write("x", 1), CMemoryException_E*);
    file.Seek(-1, CFile_E::end);
    file.Write("x", 1);
    EXPECT_EQ(fixed[3], 'x');
    EXPECT_EQ(file.Detach(), fixed);

    file.Attach(static_cast<BYTE*>(std::malloc(2)), 2, 8);
    EXPECT_EQ(file.GetLength(), 0U);
    file.Write("abcdef", 6);
    EXPECT_EQ(file.GetLength(), 6U);
    BYTE* const pBlock = file.Detach();
    EXPECT_EQ(std::memcmp(pBlock, "abcdef", 6), 0);
    std::free(pBlock);
    EXPECT_EQ(file.Detach(), nullptr);
}

} // namespace
