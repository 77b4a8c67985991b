#include "support/test.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

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
    const Row<const CRuntimeClass_E*, const char*> rows[] = {
        {RUNTIME_CLASS_E(CFile_E), "CFile_E"},
        {RUNTIME_CLASS_E(CStdioFile_E), "CStdioFile_E"},
        {RUNTIME_CLASS_E(CMemFile_E), "CMemFile_E"}};
    for (const auto& [pClass, name] : rows) {
        EXPECT_STREQ(pClass->GetClassName(), name);
        EXPECT_STREQ(pClass->GetImpClassName(), "QFile");
        EXPECT_EQ(pClass->CreateObject(), nullptr);
        EXPECT_TRUE(pClass->IsDerivedFrom(RUNTIME_CLASS_E(CFile_E)));
    }
    CFile_E file;
    ASSERT_TRUE(file.AttachDefault(nullptr));
    EXPECT_TRUE(qobject_cast<QFile*>(file.GetImpQObject()));
}

TEST_F(FileTest, OpenModes)
{
    constexpr UINT create = CFile_E::modeCreate, keep = create | CFile_E::modeNoTruncate;
    constexpr UINT odd = CFile_E::shareExclusive | CFile_E::typeBinary;
    constexpr UINT read = CFile_E::modeRead, write = CFile_E::modeWrite;
    constexpr UINT both = CFile_E::modeReadWrite;
    // before: null for no file; after: once "Z" has been written, if it may be, null if not found
    const Row<UINT, const char*, const char*> rows[] = {
        {read, "abc", "abc"},         {read | odd, "abc", "abc"},    {read, nullptr, nullptr},
        {write, nullptr, nullptr},    {write, "abc", "Zbc"},         {both, "abc", "Zbc"},
        {write | create, "abc", "Z"}, {both | create, nullptr, "Z"}, {write | keep, "abc", "Zbc"},
        {write | keep, nullptr, "Z"}, {read | create, "abc", ""},
    };
    forRows(rows, [&](UINT mode, const char* before, const char* after) {
        QFile::remove(VxQString(Path()));
        if (before)
            Make(before);
        CFile_E file;
        CFileException_E error;
        EXPECT_EQ(file.Open(Path(), mode, &error), after != nullptr);
        EXPECT_EQ(causeOf([&] { CFile_E thrown(L"/nowhere/f", mode); }),
                  CFileException_E::fileNotFound);
        if (after) {
            char c;
            EXPECT_EQ(error.m_cause, 0);
            EXPECT_EQ(causeOf([&] { file.Write("Z", 1); }),
                      (mode & 3U) == read ? CFileException_E::accessDenied : -1);
            EXPECT_EQ(causeOf([&] { file.Read(&c, 1); }),
                      (mode & 3U) == write ? CFileException_E::accessDenied : -1);
            EXPECT_EQ(Bytes(), after); // unbuffered: there before the file is closed
        } else {
            EXPECT_EQ(error.m_cause, CFileException_E::fileNotFound);
            EXPECT_EQ(error.m_lOsError, ENOENT);
            EXPECT_STREQ(error.m_strFileName.GetString(), Path().GetString());
        }
    });
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
    const std::function<void()> uses[] = {
        [&] { file.Read(&c, 1); }, [&] { file.Write(&c, 1); }, [&] { file.GetLength(); },
        [&] { file.SeekToEnd(); }, [&] { file.SetLength(1); },
    };
    for (const auto& use : uses)
        EXPECT_EQ(causeOf(use), CFileException_E::invalidFile);
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

using Lines = std::vector<std::wstring>;

Lines linesOf(CStdioFile_E& file)
{
    Lines lines;
    for (CString_E line; file.ReadString(line);)
        lines.emplace_back(line.GetString());
    return lines;
}

Lines piecesOf(CStdioFile_E& file, UINT nMax)
{
    Lines pieces;
    for (wchar_t buffer[64]; file.ReadString(buffer, nMax);)
        pieces.emplace_back(buffer);
    return pieces;
}

TEST_F(FileTest, TextLines)
{
    const Row<const char*, UINT, Lines, UINT, Lines> rows[] = {
        {"", 0, {}, 8, {}},
        {"ab\ncd", 0, {L"ab", L"cd"}, 8, {L"ab\n", L"cd"}},
        {"ab\r\n\r\nc\r", 0, {L"ab", L"", L"c\r"}, 8, {L"ab\n", L"\n", L"c\r"}},
        {"ab\r\nc", CFile_E::typeBinary, {L"ab\r", L"c"}, 8, {L"ab\r\n", L"c"}},
        {"ab\r\ncde\n", 0, {L"ab", L"cde"}, 3, {L"ab", L"\n", L"cd", L"e\n"}},
        {"ab\r\nc", 0, {L"ab", L"c"}, 4, {L"ab\n", L"c"}},
        {"ä中😀\nx", 0, {L"ä中😀", L"x"}, 3, {L"ä中", L"😀\n", L"x"}},
        {"\uFEFFa\n", 0, {L"a"}, 8, {L"a\n"}},
        {"a\xFF\n", 0, {L"a\uFFFD"}, 8, {L"a\uFFFD\n"}},
    };
    forRows(rows,
            [&](const char* bytes, UINT type, const Lines& lines, UINT nMax, const Lines& pieces) {
                CStdioFile_E file(Make(bytes), CFile_E::modeRead | type);
                EXPECT_EQ(linesOf(file), lines);
                file.SeekToBegin();
                EXPECT_EQ(piecesOf(file, nMax), pieces);
            });
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
