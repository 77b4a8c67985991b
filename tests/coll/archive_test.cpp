#include "archiving.h"

namespace {

using Cause = CArchiveException_E;

template <typename T>
void expectForm(const T& value, const char* digits)
{
    SCOPED_TRACE(digits);
    const QByteArray bytes = hex(digits);
    EXPECT_EQ(stored([&](CArchive_E& ar) { ar << value; }), bytes);
    T read{};
    const auto reading = [&](CArchive_E& ar) { ar >> read; };
    EXPECT_EQ(load(bytes, reading), 0);
    EXPECT_EQ(read, value);
    for (int cut = 0; cut < bytes.size(); ++cut)
        EXPECT_EQ(loadCause(bytes.left(cut), reading), Cause::endOfFile) << cut;
}

TEST(Archive, EachBaseTypeHasItsForm)
{
    expectForm(BYTE{0xFE}, "FE");
    expectForm('a', "61");
    expectForm(static_cast<signed char>(-2), "FE");
    expectForm(SHORT{-2}, "FEFF");
    expectForm(WORD{0x1234}, "3412");
    expectForm(LONG{-2}, "FEFFFFFF");
    expectForm(DWORD{0x12345678}, "78563412");
    expectForm(-2L, "FEFFFFFFFFFFFFFF");
    expectForm(0x123456789ABCDEF0UL, "F0DEBC9A78563412");
    expectForm(LONGLONG{-2}, "FEFFFFFFFFFFFFFF");
    expectForm(ULONGLONG{1} << 63, "0000000000000080");
    expectForm(-2.0F, "000000C0");
    expectForm(1.0, "000000000000F03F");
    expectForm(true, "01");
    expectForm(false, "00");
    expectForm(L'\xFFFD', "FDFF");
    expectForm(CPoint_E(1, -2), "01000000 FEFFFFFF");
    expectForm(CSize_E(3, -4), "03000000 FCFFFFFF");
    expectForm(CRect_E(1, 2, 3, -4), "01000000 02000000 03000000 FCFFFFFF");
    bool b = false;
    load(hex("02"), [&](CArchive_E& ar) { ar >> b; });
    EXPECT_TRUE(b);
}

TEST(Archive, WideCharactersAreUtf16)
{
    static const Row<std::wstring, const char*> rows[] = {
        {L"\U0001F600", "3DD8 00DE"},
        {L"\U0010FFFF", "FFDB FFDF"},
        {{static_cast<wchar_t>(0xD83D), L'a'}, "3DD8 6100"}, // a lone surrogate
        {{static_cast<wchar_t>(0xD83D)}, "3DD8"},            // at the end of the file
    };
    forRows(rows, [](const std::wstring& text, const char* digits) {
        EXPECT_EQ(stored([&](CArchive_E& ar) {
                      for (const wchar_t ch : text)
                          ar << ch;
                  }),
                  hex(digits));
        load(hex(digits), [&](CArchive_E& ar) {
            for (const wchar_t expected : text) {
                wchar_t ch = 0;
                ar >> ch;
                EXPECT_EQ(ch, expected);
            }
        });
    });
    EXPECT_EQ(stored([](CArchive_E& ar) { ar << static_cast<wchar_t>(0x110000) << wchar_t(-1); }),
              hex("FDFF FDFF"));
}

TEST(Archive, CountsHaveThreeForms)
{
    static const Row<DWORD_PTR, const char*> rows[] = {
        {0, "0000"},
        {0xFFFE, "FEFF"},
        {0xFFFF, "FFFF FFFF0000"},
        {0xFFFFFFFE, "FFFF FEFFFFFF"},
        {0xFFFFFFFF, "FFFF FFFFFFFF FFFFFFFF00000000"},
        {0x100000000, "FFFF FFFFFFFF 0000000001000000"},
    };
    forRows(rows, [](DWORD_PTR count, const char* digits) {
        EXPECT_EQ(stored([&](CArchive_E& ar) { ar.WriteCount(count); }), hex(digits));
        DWORD_PTR read = 1;
        const auto reading = [&](CArchive_E& ar) { read = ar.ReadCount(); };
        EXPECT_EQ(load(hex(digits), reading), 0);
        EXPECT_EQ(read, count);
        EXPECT_EQ(loadCause(hex(digits).chopped(1), reading), Cause::endOfFile);
    });
}

TEST(Archive, StringsAreWrittenWide)
{
    expectForm(CString_E(), "FF FEFF 00");
    expectForm(CString_E(L"A\x00E9"), "FF FEFF 02 4100 E900");
    expectForm(CString_E(L"\U0001F600"), "FF FEFF 02 3DD8 00DE");
    static const Row<int, const char*> rows[] = {
        {254, "FF FEFF FE"},
        {255, "FF FEFF FF FF00"},
        {0xFFFD, "FF FEFF FF FDFF"},
        {0xFFFE, "FF FEFF FF FFFF FEFF0000"}, // the mark of wide text is no length
        {0x10001, "FF FEFF FF FFFF 01000100"},
    };
    forRows(rows, [](int length, const char* digits) {
        const CString_E text(L'x', length);
        const QByteArray bytes = stored([&](CArchive_E& ar) { ar << text; });
        EXPECT_EQ(bytes, hex(digits) + QByteArray("x\0", 2).repeated(length));
        CString_E read;
        EXPECT_EQ(load(bytes, [&](CArchive_E& ar) { ar >> read; }), 0);
        EXPECT_TRUE(read == text);
    });
}

TEST(Archive, PairsMayLieAcrossTheBuffersEnd)
{
    for (int offset = 0; offset < 5; ++offset) {
        const CString_E text(CString_E(L'x', offset) + CString_E(L'\U0001F600', 700) + L"y");
        const auto writing = [&](CArchive_E& ar) { ar << text; };
        const QByteArray bytes = stored(writing, 131);
        EXPECT_EQ(bytes, stored(writing));
        CString_E read;
        load(
            bytes, [&](CArchive_E& ar) { ar >> read; }, 131);
        EXPECT_TRUE(read == text) << offset;
    }
}

TEST(Archive, StringsOfEachFormAreRead)
{
    static const Row<const char*, const wchar_t*> rows[] = {
        {"00", L""},
        {"03 61 C3A9", L"a\x00E9"}, // UTF-8
        {"02 61 E9", L"a\x00E9"},   // otherwise Latin-1
        {"FF 0200 6162", L"ab"},
        {"FF FFFF 02000000 6162", L"ab"},
        {"FF FFFF FFFFFFFF 0200000000000000 6162", L"ab"},
        {"FF FEFF FF 0100 6100", L"a"},
        {"FF FEFF FF FFFF 01000000 6100", L"a"},
        {"FF FEFF FF FFFF FFFFFFFF 0100000000000000 6100", L"a"},
    };
    forRows(rows, [](const char* digits, const wchar_t* text) {
        CString_E read(L"old");
        EXPECT_EQ(load(hex(digits), [&](CArchive_E& ar) { ar >> read; }), 0);
        EXPECT_STREQ(read.GetString(), text);
    });
    // Far more than there is: nothing is allocated for it.
    static const Row<const char*, int> hostile[] = {
        {"FF FFFF FFFFFF7F 61", Cause::endOfFile},
        {"FF FEFF FF FFFF FFFFFF7F 6100", Cause::endOfFile},
        {"FF FFFF 00000080 61", Cause::genericException},
        {"FF FFFF FFFFFFFF FFFFFFFFFFFFFFFF 61", Cause::genericException},
    };
    forRows(hostile, [](const char* digits, int cause) {
        CString_E read;
        EXPECT_EQ(loadCause(hex(digits), [&](CArchive_E& ar) { ar >> read; }), cause);
    });
}

TEST(Archive, LinesAreReadAsWritten)
{
    const QByteArray bytes =
        stored([](CArchive_E& ar) { ar.WriteString(L"ab\r\n\nc\rd\U0001F600"); });
    EXPECT_EQ(bytes, hex("6100 6200 0D00 0A00 0A00 6300 0D00 6400 3DD8 00DE"));
    load(bytes, [](CArchive_E& ar) {
        CString_E line;
        for (const wchar_t* const expected : {L"ab", L"", L"c", L"d\U0001F600"}) {
            EXPECT_TRUE(ar.ReadString(line));
            EXPECT_STREQ(line.GetString(), expected);
        }
        EXPECT_FALSE(ar.ReadString(line));
        EXPECT_TRUE(line.IsEmpty());
    });
    load(bytes, [](CArchive_E& ar) {
        wchar_t buffer[4] = L"???";
        EXPECT_EQ(ar.ReadString(nullptr, 3), nullptr);
        for (const wchar_t* const expected : {L"a", L"b", L"", L"c"})
            EXPECT_STREQ(ar.ReadString(buffer, *expected == L'a' ? 1 : 3), expected);
        EXPECT_STREQ(ar.ReadString(buffer, 3), L"d\U0001F600");
        EXPECT_STREQ(ar.ReadString(buffer, 0), L"");
        EXPECT_EQ(ar.ReadString(buffer, 3), nullptr);
    });
}

TEST(Archive, BlocksPassTheBufferInAnySize)
{
    std::mt19937 random(7);
    QByteArray expected;
    std::vector<UINT> sizes(300);
    for (UINT& size : sizes)
        size = static_cast<UINT>(random() % (random() % 4 == 0 ? 1000 : 20));
    const auto writing = [&](CArchive_E& ar) {
        expected.clear();
        for (const UINT size : sizes) {
            const QByteArray block(static_cast<int>(size), static_cast<char>(random()));
            ar.Write(block.constData(), size);
            ar << size;
            expected += block + QByteArray(reinterpret_cast<const char*>(&size), sizeof size);
        }
    };
    const QByteArray bytes = stored(writing, 128);
    EXPECT_EQ(bytes, expected);
    load(
        bytes,
        [&](CArchive_E& ar) {
            QByteArray read;
            for (const UINT size : sizes) {
                QByteArray block(static_cast<int>(size), '?');
                EXPECT_EQ(ar.Read(block.data(), size), size);
                UINT again = 0;
                ar >> again;
                EXPECT_EQ(again, size);
                read += block + QByteArray(reinterpret_cast<const char*>(&size), sizeof size);
            }
            EXPECT_EQ(read, expected);
            char rest[500];
            EXPECT_EQ(ar.Read(rest, sizeof rest), 0U);
            EXPECT_EQ(causeOf([&] { ar.EnsureRead(rest, 1); }), Cause::endOfFile);
        },
        128);
}

TEST(Archive, WrongUseThrows)
{
    CMemFile_E file;
    file.SetFilePath(L"/folder/a");
    CArchive_E storing(&file, CArchive_E::store);
    CArchive_E loading(&file, CArchive_E::load);
    CArchive_E closed(&file, CArchive_E::store);
    closed.Close();
    closed.Close();
    EXPECT_EQ(closed.GetFile(), nullptr);
    int n = 0;
    CString_E text;
    const std::function<void(CArchive_E&)> writes[] = {
        [](CArchive_E& ar) { ar << 1; },
        [](CArchive_E& ar) { ar << L'\U0001F600'; },
        [](CArchive_E& ar) { ar << CString_E(L"a"); },
        [&](CArchive_E& ar) { ar.Write(&n, 0); },
        [](CArchive_E& ar) { ar.WriteString(L""); },
        [](CArchive_E& ar) { ar.WriteObject(nullptr); },
        [](CArchive_E& ar) { ar.WriteClass(nullptr); },
    };
    const std::function<void(CArchive_E&)> reads[] = {
        [&](CArchive_E& ar) { ar >> n; },
        [&](CArchive_E& ar) { ar >> text; },
        [&](CArchive_E& ar) { ar.Read(&n, 0); },
        [&](CArchive_E& ar) { ar.ReadString(text); },
        [](CArchive_E& ar) { ar.ReadObject(nullptr); },
        [](CArchive_E& ar) { ar.ReadClass(nullptr); },
    };
    for (const auto& write : writes) {
        EXPECT_EQ(causeOf([&] { write(loading); }), Cause::readOnly);
        EXPECT_EQ(causeOf([&] { write(closed); }), Cause::genericException);
    }
    for (const auto& read : reads)
        EXPECT_EQ(causeOf([&] { read(storing); }), Cause::writeOnly);
    EXPECT_THROW(storing.Write(nullptr, 1), CInvalidArgException_E*);
    EXPECT_THROW(storing.WriteString(nullptr), CInvalidArgException_E*);
    EXPECT_THROW(loading.Read(nullptr, 1), CInvalidArgException_E*);
    EXPECT_THROW(CArchive_E(nullptr, CArchive_E::store), CInvalidArgException_E*);
    try {
        loading >> n;
        ADD_FAILURE();
    } catch (CArchiveException_E* e) {
        EXPECT_EQ(e->m_cause, Cause::endOfFile);
        EXPECT_STREQ(e->m_strFileName.GetString(), L"/folder/a");
        e->Delete();
    }
}

TEST(Archive, TheBufferReachesTheFileWhenToldTo)
{
    CMemFile_E file;
    {
        BYTE buffer[128] = {};
        CArchive_E ar(&file, CArchive_E::store | CArchive_E::bNoFlushOnDelete, 128, buffer);
        EXPECT_TRUE(ar.IsBufferEmpty());
        ar << WORD{0x0201};
        EXPECT_FALSE(ar.IsBufferEmpty());
        EXPECT_EQ(buffer[1], 2);
        EXPECT_EQ(file.GetLength(), 0U);
        ar.Flush();
        EXPECT_EQ(file.GetLength(), 2U);
        ar << BYTE{3};
    }
    EXPECT_EQ(file.GetLength(), 2U);
    CArchive_E(&file, CArchive_E::store) << BYTE{4};
    EXPECT_EQ(file.GetLength(), 3U);
    {
        CArchive_E aborted(&file, CArchive_E::store);
        aborted << 5;
        aborted.Abort();
    }
    EXPECT_EQ(file.GetLength(), 3U);

    file.SeekToBegin();
    CArchive_E ar(&file, CArchive_E::load);
    BYTE by = 0;
    ar >> by;
    EXPECT_FALSE(ar.IsBufferEmpty());
    ar.Flush(); // the rest is left to others
    EXPECT_TRUE(ar.IsBufferEmpty());
    EXPECT_EQ(file.GetPosition(), 1U);
    ar >> by;
    EXPECT_EQ(by, 2);
}

TEST(Archive, AFullDiskIsTold)
{
    const std::vector<char> block(100000);
    static const Row<UINT, void (CArchive_E::*)()> rows[] = {
        {1, &CArchive_E::Flush},
        {1, &CArchive_E::Close},
        {100000, &CArchive_E::Flush}, // past the buffer
    };
    for (const auto& [size, finish] : rows) {
        CFile_E file(L"/dev/full", CFile_E::modeWrite);
        CArchive_E ar(&file, CArchive_E::store);
        try {
            ar.Write(block.data(), size);
            (ar.*finish)();
            ADD_FAILURE() << size;
        } catch (CFileException_E* e) {
            EXPECT_EQ(e->m_cause, CFileException_E::diskFull);
            e->Delete();
        }
    }
    CFile_E file(L"/dev/full", CFile_E::modeWrite);
    CArchive_E(&file, CArchive_E::store) << 1; // its destructor is silent
}

} // namespace
