#include "archiving.h"
#include "filetest.h"

namespace {

using Cause = CArchiveException_E;

/// Written and read as a count.
struct Count
{
    DWORD_PTR n = 1;
    bool operator==(Count other) const { return n == other.n; }
};
CArchive_E& operator<<(CArchive_E& ar, Count count) { return ar.WriteCount(count.n), ar; }
CArchive_E& operator>>(CArchive_E& ar, Count& count) { return count.n = ar.ReadCount(), ar; }

/// @p value is written as @p bytes, read from them through a small buffer, and from fewer not.
template <typename T>
void expectForm(const T& value, const QByteArray& bytes, int nCuts = 99)
{
    SCOPED_TRACE(bytes.left(20).toHex().constData());
    EXPECT_EQ(stored([&](auto& ar) { ar << value; }, 131), bytes);
    T read{};
    const auto reading = [&](auto& ar) { ar >> read; };
    EXPECT_EQ(load(bytes, reading, 131), 0);
    EXPECT_TRUE(read == value);
    for (int cut = 0; cut < std::min(nCuts, bytes.size()); ++cut)
        EXPECT_EQ(loadCause(bytes.left(cut), reading), Cause::endOfFile) << cut;
}

TEST(Archive, EachTypeHasItsForm)
{
    expectForm('a', hex("61"));
    expectForm(WORD{0x1234}, hex("3412"));
    expectForm(-2, hex("FEFFFFFF"));
    expectForm(-2L, hex("FEFFFFFFFFFFFFFF"));
    expectForm(-2.0F, hex("000000C0"));
    expectForm(1.0, hex("000000000000F03F"));
    expectForm(true, hex("01"));
    expectForm(CPoint_E(1, -2), hex("01000000 FEFFFFFF"));
    expectForm(CRect_E(1, 2, 3, -4), hex("01000000 02000000 03000000 FCFFFFFF"));
    expectForm(Count{0xFFFE}, hex("FEFF"));
    expectForm(Count{0xFFFF}, hex("FFFF FFFF0000"));
    expectForm(Count{0xFFFFFFFF}, hex("FFFF FFFFFFFF FFFFFFFF00000000"));
    // UTF-16; a high surrogate at the end of the file stays alone.
    expectForm(static_cast<wchar_t>(0xD83D), hex("3DD8"));
    expectForm(L'\U0010FFFF', hex("FFDB FFDF"), 2);
    EXPECT_EQ(stored([](auto& ar) { ar << static_cast<wchar_t>(0x110000); }), hex("FDFF"));
}

TEST(Archive, StringsAreWrittenWide)
{
    // 0xFFFE, the mark of wide text, is no length; the length counts units.
    // clang-format off
    static const Row<const char*, wchar_t, int> rows[] = {
        {"FF FEFF FE", L'x', 254}, {"FF FEFF FF FF00", L'x', 255},
        {"FF FEFF FF FDFF", L'x', 0xFFFD}, {"FF FEFF FF FFFF FEFF0000", L'x', 0xFFFE},
        {"FF FEFF FF 7805", L'\U0001F600', 700},
    };
    // clang-format on
    forRows(rows, [](const char* prefix, wchar_t ch, int count) {
        const QByteArray unit = ch == L'x' ? hex("7800") : hex("3DD8 00DE");
        expectForm(CString_E(ch, count), hex(prefix) + unit.repeated(count), 13);
    });
}

TEST(Archive, StringsOfEachFormAreRead)
{
    // Narrow text is UTF-8, otherwise Latin-1. Of far more than there is, no memory is taken.
    // clang-format off
    static const Row<const char*, const wchar_t*, int> rows[] = {
        {"03 61 C3A9", L"a\x00E9", 0}, {"02 61 E9", L"a\x00E9", 0}, {"FF 0200 6162", L"ab", 0},
        {"FF FFFF FFFFFFFF 0200000000000000 6162", L"ab", 0},
        {"FF FEFF FF FFFF FFFFFFFF 0100000000000000 6100", L"a", 0},
        {"FF FEFF 03 6100 3DD8 6200", L"a\xD83D\x0062", 0},
        {"FF FFFF FFFFFF7F 61", L"", Cause::endOfFile},
        {"FF FEFF FF FFFF FFFFFF7F 6100", L"a", Cause::endOfFile},
        {"FF FFFF 00000080 61", L"old", Cause::genericException},
    };
    // clang-format on
    forRows(rows, [](const char* digits, const wchar_t* text, int cause) {
        CString_E read(L"old");
        EXPECT_EQ(loadCause(hex(digits), [&](auto& ar) { ar >> read; }), cause);
        EXPECT_STREQ(read.GetString(), text);
    });
}

TEST(Archive, LinesAreReadAsWritten)
{
    const QByteArray bytes = stored([](auto& ar) { ar.WriteString(L"ab\r\n\nc\rd\U0001F600"); });
    EXPECT_EQ(bytes, hex("6100 6200 0D00 0A00 0A00 6300 0D00 6400 3DD8 00DE"));
    load(bytes, [](auto& ar) {
        CString_E line;
        for (const wchar_t* const expected : {L"ab", L"", L"c", L"d\U0001F600"})
            EXPECT_TRUE(ar.ReadString(line) && line == expected);
        EXPECT_FALSE(ar.ReadString(line) || !line.IsEmpty());
    });
    load(bytes, [](auto& ar) {
        wchar_t buffer[4] = L"???";
        for (const wchar_t* const expected : {L"a", L"b", L"", L"c", L"d\U0001F600"})
            EXPECT_STREQ(ar.ReadString(buffer, *expected == L'a' ? 1 : 3), expected);
        EXPECT_EQ(ar.ReadString(buffer, 3), nullptr);
    });
}

TEST(Archive, BlocksPassTheBufferInAnySize)
{
    QByteArray bytes, read(44850, '\0'); // in blocks of 0 to 299 bytes, small ones and large ones
    for (int i = 0; i < read.size(); ++i)
        bytes += static_cast<char>(i % 251);
    const auto size = [](UINT i) { return i * 7 % 300; };
    const auto writing = [&](auto& ar) {
        for (UINT i = 0, from = 0; i < 300; from += size(i++))
            ar.Write(bytes.data() + from, size(i));
    };
    const auto reading = [&](auto& ar) {
        for (UINT i = 0, from = 0; i < 300; from += size(i++))
            EXPECT_EQ(ar.Read(read.data() + from, size(i)), size(i));
        ar.EnsureRead(read.data(), 1);
    };
    EXPECT_EQ(stored(writing, 128), bytes);
    EXPECT_EQ(causeOf([&] { load(bytes, reading, 128); }), Cause::endOfFile);
    EXPECT_EQ(read, bytes);
}

TEST(Archive, WrongUseThrows)
{
    CMemFile_E file;
    CArchive_E storing(&file, CArchive_E::store), loading(&file, CArchive_E::load);
    CArchive_E closed(&file, CArchive_E::store);
    closed.Close();
    int n = 0;
    CString_E text;
    EXPECT_EQ(causeOf([&] { closed << 1; }), Cause::genericException);
    EXPECT_EQ(causeOf([&] { loading << 1; }), Cause::readOnly);
    EXPECT_EQ(causeOf([&] { loading.WriteObject(nullptr); }), Cause::readOnly);
    EXPECT_EQ(causeOf([&] { storing >> n; }), Cause::writeOnly);
    EXPECT_EQ(causeOf([&] { storing.ReadString(text); }), Cause::writeOnly);
    EXPECT_THROW(storing.Write(nullptr, 1), CInvalidArgException_E*);
    EXPECT_THROW(loading.Read(nullptr, 1), CInvalidArgException_E*);
    EXPECT_THROW(CArchive_E(nullptr, CArchive_E::store), CInvalidArgException_E*);
}

TEST(Archive, TheBufferReachesTheFileWhenToldTo)
{
    CMemFile_E file;
    BYTE buffer[128] = {}, by = 0;
    {
        CArchive_E ar(&file, CArchive_E::store | CArchive_E::bNoFlushOnDelete, 128, buffer);
        ar << WORD{0x0201};
        EXPECT_TRUE(!ar.IsBufferEmpty() && buffer[1] == 2 && file.GetLength() == 0);
        ar.Flush();
        EXPECT_TRUE(ar.IsBufferEmpty() && file.GetLength() == 2);
        ar << BYTE{3};
    }
    EXPECT_EQ(file.GetLength(), 2U);
    CArchive_E(&file, CArchive_E::store) << BYTE{4};
    (CArchive_E(&file, CArchive_E::store) << 5).Abort();
    EXPECT_EQ(file.GetLength(), 3U);

    file.SeekToBegin();
    CArchive_E ar(&file, CArchive_E::load);
    ar >> by;
    ar.Flush(); // the rest is left to others
    EXPECT_TRUE(ar.IsBufferEmpty() && file.GetPosition() == 1);
}

TEST(Archive, AFullDiskIsTold)
{
    CFile_E file(L"/dev/full", CFile_E::modeWrite);
    const auto fill = [&](auto use) {
        CArchive_E ar(&file, CArchive_E::store);
        EXPECT_EQ(failureOf([&] { use(ar << 1); }).first, CFileException_E::diskFull);
        EXPECT_EQ(causeOf([&] { ar.Flush(); }), Cause::genericException) << "nobody knows the rest";
    };
    fill([](auto& ar) { ar.Flush(); });
    fill([](auto& ar) { ar.Close(); });
    fill([](auto& ar) { ar.Write(std::vector<char>(100000).data(), 100000); }); // past the buffer
    CArchive_E(&file, CArchive_E::store) << 1; // its destructor is silent
}

} // namespace
