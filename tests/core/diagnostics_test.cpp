#include "support/test.h"

#include <stdexcept>

namespace {

/// What dumping writes.
template <typename Dump>
std::wstring dumped(Dump dump)
{
    CMemFile_E file;
    CDumpContext_E dc(&file);
    dump(dc);
    dc.Flush();
    std::wstring text(file.GetLength() / sizeof(wchar_t), L'\0');
    file.SeekToBegin();
    file.Read(text.data(), static_cast<UINT>(file.GetLength()));
    return text;
}

const auto shown = [](auto... values) {
    return dumped([&](auto& dc) { ((dc << values << L"|"), ...); });
};
const auto hex = [](auto... values) {
    return dumped([&](auto& dc) { ((dc.DumpAsHex(values) << L"|"), ...); });
};

std::wstring address(const void* p)
{
    const auto number = reinterpret_cast<quintptr>(p);
    return L'$' + QString::number(number, 16).toUpper().rightJustified(16, u'0').toStdWString();
}

TEST(DumpContext, WritesValues)
{
    const CObject_E object;
    const CObject_E* const none = nullptr;
    const wchar_t* const noText = nullptr;
    const char* const noBytes = nullptr;
    EXPECT_EQ(shown(L"a\nb", noText, "n", none, noBytes), L"a\nb|NULL|n|NULL|(NULL)|");
    EXPECT_EQ(shown(std::string(600, 'n').c_str()), std::wstring(512, L'n') + L'|');
    EXPECT_EQ(shown(BYTE(200), L' ', WORD(65535), 4000000000U, 0.5F, -0.25),
              L"200|32|65535|4000000000|0.500000|-0.250000000000000|");
    EXPECT_EQ(shown(-7, INT_PTR(LONG_MIN), ULLONG_MAX),
              L"-7|-9223372036854775808|18446744073709551615|");
    EXPECT_EQ(hex(BYTE(0xA), WORD(0xAB), -1, 0xABCU), L"0x0a|0x00ab|0xffffffff|0x00000abc|");
    EXPECT_EQ(hex(-2LL, UINT_PTR(0x1F)), L"0xfffffffffffffffe|0x000000000000001f|");
    EXPECT_EQ(shown(static_cast<const void*>(&object), &object),
              address(&object) + L"|Unable to dump object in static release builds|");
    EXPECT_EQ(dumped([&](auto& dc) { object.Dump(dc); }), L"a CObject_E at " + address(&object));
}

TEST(DumpContext, HexDumpWritesRows)
{
    BYTE bytes[] = {0x00, 0x0F, 0xFF, 0x80, 0x7F};
    EXPECT_EQ(dumped([&](auto& dc) { dc.HexDump(L"%p:", bytes, 5, 2); }),
              address(bytes).substr(1) + L": 00 0F\n" + address(bytes + 2).substr(1) +
                  L": FF 80\n" + address(bytes + 4).substr(1) + L": 7F\n");
    CDumpContext_E dc;
    EXPECT_THROW(dc.HexDump(L"", nullptr, 1, 1), CInvalidArgException_E*);
    EXPECT_THROW(dc.HexDump(L"", bytes, 1, 0), CInvalidArgException_E*);
    EXPECT_THROW(dumped([](auto& withFile) { withFile.OutputString(nullptr); }), CUserException_E*);
    dc << L"x" << 1; // without a file nothing happens
    dc.Flush();
}

TEST(MemoryState, TakesWhatTheSystemSaysAndDumpsIt)
{
    static QString seen;
    const auto previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { seen += text + u'|'; });
    CMemoryState_E before, after, change;
    change.DumpStatistics();
    qInstallMessageHandler(previous);
    EXPECT_EQ(seen, "Physical Memory changed:  0  KB.  Virtual Memory changed:  0  KB.|"_q);
    try {
        before.Checkpoint();
    } catch (const std::out_of_range&) {
        GTEST_SKIP() << "the address space of this process does not fit an int";
    }
    const QByteArray block(64 << 20, 'x'); // made in Qt, where no compiler can leave it out
    after.Checkpoint();
    EXPECT_TRUE(change.Difference(before, after));
    EXPECT_NEAR(static_cast<double>(change.GetPhysicalMemory()), 65536.0, 8192.0);
    EXPECT_TRUE(change.Difference(after, after) && change.GetPhysicalMemory() == 0);
}

/// The texts of a log, whose lines begin with the time.
QStringList textsOf(const QString& logPath)
{
    QFile file(logPath);
    file.open(QIODevice::ReadOnly);
    const QRegularExpression line(
        "^\\[\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d [^ ]+\\] (.*)\n$"_q);
    QStringList texts;
    while (!file.atEnd())
        texts += line.match(QString::fromUtf8(file.readLine())).captured(1);
    return texts;
}

TEST(Log, LiesBesideTheExecutablesAndItsLinesNeverInterleave)
{
    const QTemporaryDir dir;
    const QString root = QFileInfo(dir.path()).canonicalFilePath() + "/x"_q;
    const QString program = root + "/bin/app"_q, log = root + "/Common/Plok.log"_q;
    const QString odd = "%1 %2 %s \u00e9\u4e2d\U0001F600"_q;
    QDir().mkpath(root + "/bin"_q);
    QFile::copy(QStringLiteral(VXTEST_LOG_HELPER), program);
    QProcess::execute(program, {odd, log});
    EXPECT_FALSE(QFileInfo::exists(log)) << "its folder is never made";

    QDir().mkpath(root + "/Common"_q);
    EXPECT_EQ(QProcess::execute(program, {odd, log}), 0);
    EXPECT_EQ(textsOf(log + ".old"_q), (QStringList{odd, root + "/bin"_q, root}));
    QStringList texts = textsOf(log);
    EXPECT_EQ(texts.takeLast(), "last"_q);
    std::vector<int> next(8, 0);
    for (const QString& text : texts) {
        const int thread = text.section(u' ', 1, 1).toInt();
        EXPECT_EQ(text, "thread %1 line %2 abcdefghijklmnopqrstuvwxyz"_q.arg(thread).arg(
                            next.at(static_cast<std::size_t>(thread))++));
    }
    EXPECT_EQ(next, std::vector<int>(8, 100));
}

} // namespace
