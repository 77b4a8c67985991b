#include "filetest.h"

#include <cstdlib>
#include <cstring>

namespace {

using Lines = std::vector<std::wstring>;

constexpr UINT kReadWriteNew = CFile_E::modeReadWrite | CFile_E::modeCreate;

/// The lines, or the pieces of fewer than @p nMax characters.
Lines linesOf(CStdioFile_E& file, UINT nMax = 0)
{
    Lines lines;
    wchar_t piece[64];
    for (CString_E line; nMax ? file.ReadString(piece, nMax) != nullptr : file.ReadString(line);)
        lines.emplace_back(nMax ? piece : line.GetString());
    return lines;
}

TEST_F(FileTest, TextLines)
{
    const Row<const char*, UINT, Lines, UINT, Lines> rows[] = {
        {"", 0, {}, 8, {}},
        {"ab\r\n\r\nc\rd\r", 0, {L"ab", L"", L"c\rd\r"}, 8, {L"ab\n", L"\n", L"c\rd\r"}},
        {"ab\r\r\nc", 0, {L"ab\r", L"c"}, 8, {L"ab\r\n", L"c"}},
        {"ab\r\nc", CFile_E::typeBinary, {L"ab\r", L"c"}, 8, {L"ab\r\n", L"c"}},
        {"ab\r\ncde\n", 0, {L"ab", L"cde"}, 3, {L"ab", L"\n", L"cd", L"e\n"}},
        {"ä中😀\nx", 0, {L"ä中😀", L"x"}, 3, {L"ä中", L"😀\n", L"x"}},
        {"\uFEFFa\n\uFEFFb", 0, {L"a", L"\uFEFFb"}, 8, {L"a\n", L"\uFEFFb"}},
        {"\xEF\xBBz", 0, {L"��z"}, 8, {L"��z"}},
        // cut off by the line end, by the end of the file; overlong; a surrogate, beyond U+10FFFF
        {"\xE4\xB8\n\xF0\x9F", 0, {L"��", L"��"}, 8, {L"��\n", L"��"}},
        {"\xC0\x80\xED\xA0\x80\xF5", 0, {L"������"}, 8, {L"������"}},
    };
    for (const auto& [bytes, type, lines, nMax, pieces] : rows) {
        CStdioFile_E file(Make(bytes), CFile_E::modeRead | type);
        EXPECT_EQ(linesOf(file), lines) << bytes;
        file.SeekToBegin();
        EXPECT_EQ(linesOf(file, nMax), pieces) << bytes;
    }
}

TEST_F(FileTest, TextIsWrittenWithTheLineEndsOfItsMode)
{
    const Row<UINT, const wchar_t*, const char*> rows[] = {
        {0, L"ä\n😀\n\n", "ä\r\n😀\r\n\r\n"},
        {CFile_E::typeBinary, L"ä\n\r\n", "ä\n\r\n"},
        {0, L"\x110000\xD800\u07FF\uFFFE", "\uFFFD\uFFFD\u07FF\uFFFE"}};
    forRows(rows, [&](UINT type, const wchar_t* text, const char* bytes) {
        CStdioFile_E file(Path(), kReadWriteNew | type);
        file.WriteString(text);
        EXPECT_EQ(file.GetPosition(), std::strlen(bytes));
        EXPECT_EQ(file.GetLength(), file.GetPosition());
        EXPECT_EQ(Bytes(), bytes);
    });
    CStdioFile_E file(Path(), kReadWriteNew);
    file.Write("a\nb\r\nc", 6); // bytes have the line ends too
    file.SeekToBegin();
    char buffer[16] = {};
    EXPECT_TRUE(file.Read(buffer, 2) == 2 && file.GetPosition() == 3);
    EXPECT_EQ(file.Read(buffer + 2, 9), 4U);
    EXPECT_STREQ(buffer, "a\nb\r\nc");
}

TEST_F(FileTest, ReadingAndWritingTakeTurns)
{
    CStdioFile_E file(Path(), kReadWriteNew | CFile_E::typeBinary | CFile_E::shareDenyNone);
    file.WriteString(L"one\ntwo\nthree\n");
    file.SeekToBegin();
    CString_E line;
    EXPECT_TRUE(file.ReadString(line) && file.GetPosition() == 4);
    file.WriteString(L"TWO");
    EXPECT_TRUE(file.ReadString(line) && line.IsEmpty());
    EXPECT_EQ(file.Seek(-6, CFile_E::current), 2U);
    EXPECT_TRUE(file.ReadString(line) && line == L"e");
    file.SetLength(5); // of what has been read ahead already
    file.SeekToBegin();
    EXPECT_EQ(linesOf(file), (Lines{L"one", L"T"}));
    CFile_E other(Path(), kReadWriteNew | CFile_E::modeNoTruncate | CFile_E::shareDenyNone);
    other.SetLength(9); // what is read follows the file
    EXPECT_EQ(linesOf(file, 8).size(), 1U);
}

TEST_F(FileTest, TextFilesTellWhatTheyCannotDo)
{
    CStdioFile_E file(Make("x"), CFile_E::modeRead), out;
    CString_E line;
    wchar_t buffer[4] = L"?";
    EXPECT_FALSE(file.ReadString(nullptr, 4) || file.ReadString(buffer, 0));
    EXPECT_THROW(file.WriteString(nullptr), CInvalidArgException_E*);
    EXPECT_EQ(failureOf([&] { file.WriteString(L"y"); }).first, CFileException_E::accessDenied);
    EXPECT_EQ(failureOf([&] { out.ReadString(line); }).first, CFileException_E::invalidFile);
    file.Close();
    EXPECT_TRUE(out.Open(Path(), CFile_E::modeWrite));
    EXPECT_EQ(failureOf([&] { out.ReadString(line); }).first, CFileException_E::accessDenied);
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

/// Counts the blocks it gives out, and grows once only.
struct CountingFile : CMemFile_E
{
    CountingFile() : CMemFile_E(16) {}
    ~CountingFile() override { Close(); }
    BYTE* Alloc(SIZE_T n) override { return ++m_nBlocks, CMemFile_E::Alloc(n); }
    BYTE* Realloc(BYTE*, SIZE_T) override { return nullptr; }
    void Free(BYTE* p) override { --m_nBlocks, CMemFile_E::Free(p); }
    int m_nBlocks = 0;
};

TEST(MemFile, GrowsThroughItsClass)
{
    CountingFile counting;
    counting.SetLength(32);
    EXPECT_EQ(counting.m_nBlocks, 1);
    EXPECT_THROW(counting.SetLength(65), CMemoryException_E*);
    EXPECT_EQ(counting.GetLength(), 32U); // kept
    counting.Close();
    EXPECT_EQ(counting.m_nBlocks, 0);
}

TEST(MemFile, AttachedBlocks)
{
    BYTE fixed[4] = {1, 2, 3, 4};
    CMemFile_E file(fixed, 4);
    EXPECT_EQ(file.SeekToEnd(), 4U);
    EXPECT_THROW(file.Write("x", 1), CMemoryException_E*);
    file.Seek(-1, CFile_E::end);
    file.Write("x", 1);
    EXPECT_TRUE(file.Detach() == fixed && fixed[3] == 'x');

    auto* const pBlock = static_cast<BYTE*>(std::malloc(24));
    file.Attach(pBlock, 24, 1);
    EXPECT_EQ(file.GetLength(), 0U);
    file.Write("abcdefghijklmnopqrstuvwx", 24);
    file.Write(pBlock + 1, 3); // its own bytes, which move
    BYTE* const pMoved = file.Detach();
    EXPECT_EQ(std::memcmp(pMoved + 20, "uvwxbcd", 7), 0);
    std::free(pMoved);
    EXPECT_EQ(file.Detach(), nullptr);
}

} // namespace
