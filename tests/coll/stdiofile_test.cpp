#include "filetest.h"

#include <cstdlib>
#include <cstring>

namespace {

using Lines = std::vector<std::wstring>;

constexpr UINT kReadWriteNew = CFile_E::modeReadWrite | CFile_E::modeCreate;

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
        {"ab\r\r\nc\rd\n", 0, {L"ab\r", L"c\rd"}, 8, {L"ab\r\n", L"c\rd\n"}},
        {"ab\r\nc", CFile_E::typeBinary, {L"ab\r", L"c"}, 8, {L"ab\r\n", L"c"}},
        {"ab\r\ncde\n", 0, {L"ab", L"cde"}, 3, {L"ab", L"\n", L"cd", L"e\n"}},
        {"ab\r\nc", 0, {L"ab", L"c"}, 4, {L"ab\n", L"c"}},
        {"ä中😀\nx", 0, {L"ä中😀", L"x"}, 3, {L"ä中", L"😀\n", L"x"}},
        {"\uFEFFa\n\uFEFFb", 0, {L"a", L"\uFEFFb"}, 8, {L"a\n", L"\uFEFFb"}},
        {"\xEF\xBBz", 0, {L"��z"}, 8, {L"��z"}},
        {"a\xFF\n", 0, {L"a�"}, 8, {L"a�\n"}},
        // cut off by the line end and by the end of the file; overlong; a surrogate, beyond
        // U+10FFFF
        {"\xE4\xB8\n\xF0\x9F", 0, {L"��", L"��"}, 8, {L"��\n", L"��"}},
        {"\xC0\x80\xE0\x80\x80", 0, {L"�����"}, 8, {L"�����"}},
        {"\xED\xA0\x80\xF5", 0, {L"����"}, 8, {L"����"}},
        {"a\032b\n", 0, {L"a\032b"}, 8, {L"a\032b\n"}},
    };
    forRows(rows,
            [&](const char* bytes, UINT type, const Lines& lines, UINT nMax, const Lines& pieces) {
                CStdioFile_E file(Make(bytes), CFile_E::modeRead | type);
                EXPECT_EQ(linesOf(file), lines);
                file.SeekToBegin();
                EXPECT_EQ(piecesOf(file, nMax), pieces);
            });
}

TEST_F(FileTest, TextIsWrittenWithTheLineEndsOfItsMode)
{
    const Row<UINT, const wchar_t*, const char*> rows[] = {
        {0, L"ä\n😀\n\n", "ä\r\n😀\r\n\r\n"},
        {0, L"a\r\n\r", "a\r\r\n\r"},
        {CFile_E::typeBinary, L"ä\n\r\n", "ä\n\r\n"},
        {0, L"\x110000\xD800\u07FF\uFFFE", "\uFFFD\uFFFD\u07FF\uFFFE"},
    };
    forRows(rows, [&](UINT type, const wchar_t* text, const char* bytes) {
        CStdioFile_E file(Path(), kReadWriteNew | type);
        file.WriteString(text);
        EXPECT_EQ(file.GetPosition(), std::strlen(bytes));
        EXPECT_EQ(file.GetLength(), std::strlen(bytes));
        EXPECT_EQ(Bytes(), bytes);
    });
}

TEST_F(FileTest, BytesHaveTheLineEndsToo)
{
    CStdioFile_E file(Path(), kReadWriteNew);
    file.Write("a\nb\r\nc", 6);
    EXPECT_EQ(file.Seek(0, CFile_E::begin), 0U);
    char buffer[16] = {};
    EXPECT_EQ(file.Read(buffer, 2), 2U);
    EXPECT_EQ(file.GetPosition(), 3U);
    EXPECT_EQ(file.Read(buffer + 2, 9), 4U);
    EXPECT_STREQ(buffer, "a\nb\r\nc");
}

TEST_F(FileTest, ReadingAndWritingTakeTurns)
{
    CStdioFile_E file(Path(), kReadWriteNew | CFile_E::typeBinary);
    file.WriteString(L"one\ntwo\nthree\n");
    file.SeekToBegin();
    CString_E line;
    ASSERT_TRUE(file.ReadString(line));
    EXPECT_EQ(file.GetPosition(), 4U);
    file.WriteString(L"TWO");
    ASSERT_TRUE(file.ReadString(line));
    EXPECT_TRUE(line.IsEmpty());
    EXPECT_EQ(file.Seek(-6, CFile_E::current), 2U);
    ASSERT_TRUE(file.ReadString(line));
    EXPECT_STREQ(line.GetString(), L"e");
    EXPECT_EQ(failureOf([&] { file.Seek(-99, CFile_E::end); }).first, CFileException_E::badSeek);
    file.SetLength(5);
    file.WriteString(L"!");
    file.Close();
    EXPECT_EQ(Bytes(), "one\nT!");
}

TEST_F(FileTest, ReadingFollowsTheFile)
{
    CStdioFile_E file(Make("one\ntwo\n"), CFile_E::modeReadWrite | CFile_E::shareDenyNone);
    CString_E line;
    EXPECT_TRUE(file.ReadString(line));
    file.SetLength(5); // of what has been read ahead already
    file.SeekToBegin();
    EXPECT_EQ(linesOf(file), (Lines{L"one", L"t"}));
    CFile_E(Path(), CFile_E::modeWrite | CFile_E::shareDenyNone).SetLength(9); // the file grows
    EXPECT_EQ(piecesOf(file, 8).size(), 1U);
    char byte;
    EXPECT_EQ(file.Read(&byte, 1), 0U);
    CFile_E(Path(), CFile_E::modeWrite | CFile_E::shareDenyNone).SetLength(10);
    EXPECT_EQ(file.Read(&byte, 1), 1U);
}

TEST_F(FileTest, TextFilesTellWhatTheyCannotDo)
{
    CStdioFile_E file(Make("x"), CFile_E::modeRead);
    wchar_t buffer[4];
    EXPECT_EQ(file.ReadString(nullptr, 4), nullptr);
    EXPECT_EQ(file.ReadString(buffer, 0), nullptr);
    ASSERT_EQ(file.ReadString(buffer, 1), buffer);
    EXPECT_STREQ(buffer, L"");
    EXPECT_EQ(file.GetPosition(), 0U);
    EXPECT_THROW(file.WriteString(nullptr), CInvalidArgException_E*);
    EXPECT_THROW(delete file.Duplicate(), CNotSupportedException_E*);
    EXPECT_THROW(file.LockRange(0, 1), CNotSupportedException_E*);
    EXPECT_EQ(failureOf([&] { file.WriteString(L"y"); }).first, CFileException_E::accessDenied);
    file.Close();
    CString_E line;
    EXPECT_EQ(failureOf([&] { file.ReadString(line); }).first, CFileException_E::invalidFile);
    CStdioFile_E out(Path(), CFile_E::modeWrite);
    EXPECT_EQ(failureOf([&] { out.ReadString(line); }).first, CFileException_E::accessDenied);
    EXPECT_EQ(Bytes(), "x");
}

TEST_F(FileTest, OpenStreams)
{
    std::FILE* const pStream = std::tmpfile();
    CStdioFile_E(pStream).WriteString(L"a\n");
    EXPECT_EQ(std::ftell(pStream), 3); // still open
    std::fputs("b\n", pStream);
    CStdioFile_E stream(pStream);
    stream.SeekToBegin();
    std::fputs("A", pStream); // the program's own, between
    EXPECT_EQ(linesOf(stream), (Lines{L"", L"b"}));
    stream.Close();
    EXPECT_EQ(failureOf([] { CStdioFile_E file(static_cast<std::FILE*>(nullptr)); }).first,
              CFileException_E::invalidFile);
}

/// Counts what it gets and gives back, and grows up to a limit.
class CountingFile : public CMemFile_E
{
public:
    using CMemFile_E::CMemFile_E;
    ~CountingFile() override { Close(); }

    int m_nBlocks = 0;
    SIZE_T m_nLimit = 64;

protected:
    BYTE* Alloc(SIZE_T nBytes) override { return ++m_nBlocks, CMemFile_E::Alloc(nBytes); }
    BYTE* Realloc(BYTE* lpMem, SIZE_T nBytes) override
    {
        return nBytes > m_nLimit ? nullptr : CMemFile_E::Realloc(lpMem, nBytes);
    }
    void Free(BYTE* lpMem) override { --m_nBlocks, CMemFile_E::Free(lpMem); }
};

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
    EXPECT_EQ(actual, expected + "#####");
    file.SetLength(2);
    EXPECT_EQ(file.GetPosition(), 2U);
    EXPECT_EQ(file.Seek(2, CFile_E::end), 4U);
    file.Write("x", 1);
    file.SeekToBegin();
    EXPECT_EQ(file.Read(actual.data(), 9), 5U);
    EXPECT_EQ(actual.substr(0, 5), std::string("01\0\0x", 5)); // what was cut off stays away
    EXPECT_EQ(failureOf([&] { file.Seek(-6, CFile_E::current); }).first, CFileException_E::badSeek);
    EXPECT_FALSE(file.Open(L"f", CFile_E::modeRead));
    EXPECT_THROW(file.LockRange(0, 1), CNotSupportedException_E*);
}

TEST(MemFile, WritesOfItsOwnBlock)
{
    CMemFile_E file;
    file.Write("abcd", 4);
    BYTE* const pBlock = file.Detach();
    file.Attach(pBlock, 4, 1);
    file.Write("abcd", 4);
    file.Write(pBlock + 1, 3); // and moves
    BYTE* const pMoved = file.Detach();
    EXPECT_EQ(std::memcmp(pMoved, "abcdbcd", 7), 0);
    std::free(pMoved);
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

TEST(MemFile, MemoryComesFromTheDerivedClass)
{
    CountingFile file(16);
    file.Write("0123456789abcdef0123456789abcdef", 32);
    EXPECT_EQ(file.m_nBlocks, 1);
    EXPECT_THROW(file.SetLength(65), CMemoryException_E*);
    EXPECT_EQ(file.GetLength(), 32U); // kept
    file.Close();
    EXPECT_EQ(file.m_nBlocks, 0);
}

} // namespace
