#include "support/test.h"

#include <cinttypes>
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

std::wstring address(const void* p)
{
    wchar_t text[32];
    std::swprintf(text, std::size(text), L"$%016" PRIXPTR, reinterpret_cast<std::uintptr_t>(p));
    return text;
}

TEST(DumpContext, WritesValues)
{
    using Dump = std::function<void(CDumpContext_E&)>;
    const CObject_E object;
    const Row<Dump, std::wstring> rows[] = {
        {[](auto& dc) { dc << L"a\nb"; }, L"a\nb"},
        {[](auto& dc) { dc << static_cast<const wchar_t*>(nullptr); }, L"NULL"},
        {[](auto& dc) { dc << static_cast<const char*>(nullptr); }, L"(NULL)"},
        {[](auto& dc) { dc << std::string(600, 'n').c_str(); }, std::wstring(512, L'n')},
        {[](auto& dc) { dc << static_cast<BYTE>(200) << L' '; }, L"20032"},
        {[](auto& dc) { dc << static_cast<WORD>(65535) << 4000000000U; }, L"655354000000000"},
        {[](auto& dc) { dc << -7 << INT_PTR(LONG_MIN); }, L"-7-9223372036854775808"},
        {[](auto& dc) { dc << ULLONG_MAX; }, L"18446744073709551615"},
        {[](auto& dc) { dc << 0.5F << -0.25; }, L"0.500000-0.250000000000000"},
        {[](auto& dc) { dc.DumpAsHex(static_cast<BYTE>(0xA)); }, L"0x0a"},
        {[](auto& dc) { dc.DumpAsHex(static_cast<WORD>(0xAB)); }, L"0x00ab"},
        {[](auto& dc) { dc.DumpAsHex(-1); }, L"0xffffffff"},
        {[](auto& dc) { dc.DumpAsHex(0xABCU); }, L"0x00000abc"},
        {[](auto& dc) { dc.DumpAsHex(-2LL); }, L"0xfffffffffffffffe"},
        {[](auto& dc) { dc.DumpAsHex(UINT_PTR(0x1F)); }, L"0x000000000000001f"},
        {[&](auto& dc) { dc << static_cast<const void*>(&object); }, address(&object)},
        {[&](auto& dc) { dc << &object; }, L"Unable to dump object in static release builds"},
        {[](auto& dc) { dc << static_cast<const CObject_E*>(nullptr); }, L"NULL"},
        {[&](auto& dc) { object.Dump(dc); }, L"a CObject_E at " + address(&object)},
    };
    for (const auto& [dump, expected] : rows)
        EXPECT_EQ(dumped(dump), expected);
}

TEST(DumpContext, HexDumpWritesRows)
{
    BYTE bytes[] = {0x00, 0x0F, 0xFF, 0x80, 0x7F};
    EXPECT_EQ(dumped([&](auto& dc) { dc.HexDump(L"%p:", bytes, 5, 2); }),
              address(bytes).substr(1) + L": 00 0F\n" + address(bytes + 2).substr(1) +
                  L": FF 80\n" + address(bytes + 4).substr(1) + L": 7F\n");
    EXPECT_EQ(dumped([&](auto& dc) { dc.HexDump(L"", bytes, 2, 2); }), L" 00 0F\n");
    CDumpContext_E dc;
    EXPECT_THROW(dc.HexDump(nullptr, bytes, 1, 1), CInvalidArgException_E*);
    EXPECT_THROW(dc.HexDump(L"", nullptr, 1, 1), CInvalidArgException_E*);
    EXPECT_THROW(dc.HexDump(L"", bytes, 0, 1), CInvalidArgException_E*);
    EXPECT_THROW(dc.HexDump(L"", bytes, 1, 0), CInvalidArgException_E*);
}

TEST(DumpContext, WithoutAFileNothingHappens)
{
    CDumpContext_E dc;
    dc.OutputString(nullptr);
    dc << L"x" << 1;
    dc.Flush();
    EXPECT_THROW(dumped([](auto& withFile) { withFile.OutputString(nullptr); }), CUserException_E*);
}

TEST(MemoryState, TakesWhatTheSystemSays)
{
    CMemoryState_E before;
    EXPECT_EQ(before.GetPhysicalMemory() + before.GetVirtualMemory(), 0);
    try {
        before.Checkpoint();
    } catch (const std::out_of_range&) {
        GTEST_SKIP() << "the address space of this process does not fit an int";
    }
    EXPECT_GT(before.GetPhysicalMemory(), 1000);
    EXPECT_GT(before.GetVirtualMemory(), before.GetPhysicalMemory());
    const std::vector<char> block(64U << 20, 'x');
    CMemoryState_E after;
    after.Checkpoint();
    CMemoryState_E change;
    EXPECT_TRUE(change.Difference(before, after));
    EXPECT_NEAR(static_cast<double>(change.GetPhysicalMemory()), 65536.0, 8192.0);
    EXPECT_TRUE(change.Difference(after, after));
    EXPECT_EQ(change.GetPhysicalMemory(), 0);
}

TEST(MemoryState, DumpsOneRecord)
{
    static QString seen;
    seen.clear();
    const auto previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { seen += text + u'|'; });
    CMemoryState_E().DumpStatistics();
    qInstallMessageHandler(previous);
    EXPECT_EQ(seen.toStdString(),
              "Physical Memory changed:  0  KB.  Virtual Memory changed:  0  KB.|");
}

/// A copy of the helper below x/bin, with a folder for its log.
class LogTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        QDir(m_dir.path()).mkpath("x/bin"_q);
        QDir(m_dir.path()).mkpath("x/Common"_q);
        ASSERT_TRUE(QFile::copy(QStringLiteral(VXTEST_LOG_HELPER), m_root + "/bin/app"_q));
    }
    QByteArray Run(const QStringList& arguments) const
    {
        QProcess process;
        process.start(m_root + "/bin/app"_q, arguments);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
        return process.readAllStandardOutput();
    }
    QString Log() const
    {
        QFile file(m_logPath);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll());
    }

    QTemporaryDir m_dir;
    QString m_root = QFileInfo(m_dir.path()).canonicalFilePath() + "/x"_q;
    QString m_logPath = m_root + "/Common/Plok.log"_q;
};

TEST_F(LogTest, FoldersLieAroundTheExecutable)
{
    const QByteArray root = m_root.toUtf8();
    EXPECT_EQ(Run({"folders"_q}), root + "/bin\n" + root + "\n");
}

TEST_F(LogTest, StaticObjectsLogWhileTheyDie)
{
    Run({"exit"_q});
    const QString log = Log();
    EXPECT_EQ(log.count(u'\n'), 2);
    EXPECT_TRUE(log.endsWith("] last\n"_q)) << log.toStdString();
}

TEST_F(LogTest, AppendsTimedLinesAndKeepsTextAsItIs)
{
    const QString odd = "%1 %2 %s \u00e9\u4e2d\U0001F600"_q;
    Run({"text"_q, odd});
    Run({"text"_q, "two"_q});
    const QStringList lines = Log().split(u'\n');
    ASSERT_EQ(lines.size(), 3);
    const QRegularExpression line(
        "^\\[(\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d) (\\S+)\\] (.*)$"_q);
    const auto match = line.match(lines[0]);
    ASSERT_TRUE(match.hasMatch()) << lines[0].toStdString();
    EXPECT_EQ(match.captured(3), odd);
    const auto time = QDateTime::fromString(match.captured(1), "yyyy-MM-dd hh:mm:ss"_q);
    EXPECT_LT(std::abs(time.secsTo(QDateTime::currentDateTime())), 60);
    EXPECT_EQ(match.captured(2), time.toString("ddd"_q));
    EXPECT_TRUE(lines[1].endsWith("] two"_q));
}

TEST_F(LogTest, LinesOfThreadsNeverInterleave)
{
    constexpr int threads = 8;
    constexpr int count = 100;
    Run({"threads"_q, QString::number(threads), QString::number(count)});
    const QRegularExpression line(
        "^\\[[^\\]]+\\] thread (\\d+) line (\\d+) abcdefghijklmnopqrstuvwxyz$"_q);
    std::vector<int> next(threads, 0);
    for (const QString& text : Log().split(u'\n', Qt::SkipEmptyParts)) {
        const auto match = line.match(text);
        ASSERT_TRUE(match.hasMatch()) << text.toStdString();
        EXPECT_EQ(match.captured(2).toInt(), next.at(match.captured(1).toUInt())++);
    }
    EXPECT_EQ(next, std::vector<int>(threads, count));
}

TEST_F(LogTest, FileThatWasRotatedAwayIsMadeAnew)
{
    Run({"rotate"_q, m_logPath});
    EXPECT_TRUE(Log().endsWith("] two\n"_q));
    EXPECT_EQ(Log().count(u'\n'), 1);
    EXPECT_EQ(QFileInfo(m_logPath + ".old"_q).size(), QFileInfo(m_logPath).size());
}

TEST_F(LogTest, FolderIsNeverMade)
{
    QDir(m_root + "/Common"_q).removeRecursively();
    Run({"text"_q, "lost"_q});
    EXPECT_FALSE(QFileInfo::exists(m_root + "/Common"_q));
}

} // namespace
