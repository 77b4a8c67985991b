#include <VxMFCEmu/coll/file.h>
#include <VxMFCEmu/core/dumpcontext.h>
#include <VxMFCEmu/core/exceptions.h>
#include <VxMFCEmu/core/memorystate.h>

#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>

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
    const CObject_E object;
    const struct
    {
        int line;
        std::wstring actual;
        std::wstring expected;
    } rows[] = {
        {__LINE__, dumped([](auto& dc) { dc << L"a\nb"; }), L"a\nb"},
        {__LINE__, dumped([](auto& dc) { dc << static_cast<const wchar_t*>(nullptr); }), L"NULL"},
        {__LINE__, dumped([](auto& dc) { dc << static_cast<const char*>(nullptr); }), L"(NULL)"},
        {__LINE__, dumped([](auto& dc) { dc << std::string(600, 'n').c_str(); }),
         std::wstring(512, L'n')},
        {__LINE__, dumped([](auto& dc) { dc << static_cast<BYTE>(200) << L' '; }), L"20032"},
        {__LINE__, dumped([](auto& dc) { dc << static_cast<WORD>(65535); }), L"65535"},
        {__LINE__, dumped([](auto& dc) { dc << 4000000000U; }), L"4000000000"},
        {__LINE__, dumped([](auto& dc) { dc << -7; }), L"-7"},
        {__LINE__, dumped([](auto& dc) { dc << INT_PTR(LONG_MIN); }), L"-9223372036854775808"},
        {__LINE__, dumped([](auto& dc) { dc << ULLONG_MAX; }), L"18446744073709551615"},
        {__LINE__, dumped([](auto& dc) { dc << 0.5F; }), L"0.500000"},
        {__LINE__, dumped([](auto& dc) { dc << -0.25; }), L"-0.250000000000000"},
        {__LINE__, dumped([](auto& dc) { dc.DumpAsHex(static_cast<BYTE>(0xA)); }), L"0x0a"},
        {__LINE__, dumped([](auto& dc) { dc.DumpAsHex(static_cast<WORD>(0xAB)); }), L"0x00ab"},
        {__LINE__, dumped([](auto& dc) { dc.DumpAsHex(-1); }), L"0xffffffff"},
        {__LINE__, dumped([](auto& dc) { dc.DumpAsHex(0xABCU); }), L"0x00000abc"},
        {__LINE__, dumped([](auto& dc) { dc.DumpAsHex(-2LL); }), L"0xfffffffffffffffe"},
        {__LINE__, dumped([](auto& dc) { dc.DumpAsHex(UINT_PTR(0x1F)); }), L"0x000000000000001f"},
        {__LINE__, dumped([&](auto& dc) { dc << static_cast<const void*>(&object); }),
         address(&object)},
        {__LINE__, dumped([&](auto& dc) { dc << &object; }),
         L"Unable to dump object in static release builds"},
        {__LINE__, dumped([](auto& dc) { dc << static_cast<const CObject_E*>(nullptr); }), L"NULL"},
        {__LINE__, dumped([&](auto& dc) { object.Dump(dc); }),
         L"a CObject_E at " + address(&object)},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.actual, row.expected) << "line " << row.line;
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

QString g_debugText;

TEST(MemoryState, DumpsOneRecord)
{
    const auto previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
            g_debugText += text + u'|';
        });
    CMemoryState_E().DumpStatistics();
    qInstallMessageHandler(previous);
    EXPECT_EQ(g_debugText.toStdString(),
              "Physical Memory changed:  0  KB.  Virtual Memory changed:  0  KB.|");
}

/// A copy of the helper below x/bin, with a folder for its log.
class LogTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        QDir(m_dir.path()).mkpath(QStringLiteral("x/bin"));
        QDir(m_dir.path()).mkpath(QStringLiteral("x/Common"));
        ASSERT_TRUE(
            QFile::copy(QStringLiteral(VXTEST_LOG_HELPER), m_root + QStringLiteral("/bin/app")));
    }
    QByteArray Run(const QStringList& arguments) const
    {
        QProcess process;
        process.start(m_root + QStringLiteral("/bin/app"), arguments);
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
    QString m_root = QFileInfo(m_dir.path()).canonicalFilePath() + QStringLiteral("/x");
    QString m_logPath = m_root + QStringLiteral("/Common/Plok.log");
};

TEST_F(LogTest, FoldersLieAroundTheExecutable)
{
    const QByteArray root = m_root.toUtf8();
    EXPECT_EQ(Run({QStringLiteral("folders")}), root + "/bin\n" + root + "\n");
}

TEST_F(LogTest, StaticObjectsLogWhileTheyDie)
{
    Run({QStringLiteral("exit")});
    const QString log = Log();
    EXPECT_EQ(log.count(u'\n'), 2);
    EXPECT_TRUE(log.endsWith(QStringLiteral("] last\n"))) << log.toStdString();
}

TEST_F(LogTest, AppendsTimedLinesAndKeepsTextAsItIs)
{
    const QString odd = QStringLiteral("%1 %2 %s \u00e9\u4e2d\U0001F600");
    Run({QStringLiteral("text"), odd});
    Run({QStringLiteral("text"), QStringLiteral("two")});
    const QStringList lines = Log().split(u'\n');
    ASSERT_EQ(lines.size(), 3);
    const QRegularExpression line(
        QStringLiteral("^\\[(\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d) (\\S+)\\] (.*)$"));
    const auto match = line.match(lines[0]);
    ASSERT_TRUE(match.hasMatch()) << lines[0].toStdString();
    EXPECT_EQ(match.captured(3), odd);
    const auto time =
        QDateTime::fromString(match.captured(1), QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    EXPECT_LT(std::abs(time.secsTo(QDateTime::currentDateTime())), 60);
    EXPECT_EQ(match.captured(2), time.toString(QStringLiteral("ddd")));
    EXPECT_TRUE(lines[1].endsWith(QStringLiteral("] two")));
}

TEST_F(LogTest, LinesOfThreadsNeverInterleave)
{
    constexpr int threads = 8;
    constexpr int count = 100;
    Run({QStringLiteral("threads"), QString::number(threads), QString::number(count)});
    const QRegularExpression line(
        QStringLiteral("^\\[[^\\]]+\\] thread (\\d+) line (\\d+) abcdefghijklmnopqrstuvwxyz$"));
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
    Run({QStringLiteral("rotate"), m_logPath});
    EXPECT_TRUE(Log().endsWith(QStringLiteral("] two\n")));
    EXPECT_EQ(Log().count(u'\n'), 1);
    EXPECT_EQ(QFileInfo(m_logPath + QStringLiteral(".old")).size(), QFileInfo(m_logPath).size());
}

TEST_F(LogTest, FolderIsNeverMade)
{
    QDir(m_root + QStringLiteral("/Common")).removeRecursively();
    Run({QStringLiteral("text"), QStringLiteral("lost")});
    EXPECT_FALSE(QFileInfo::exists(m_root + QStringLiteral("/Common")));
}

} // namespace
