// The registry's file between processes: hosts that load the library, plain readers, killed
// writers.
#include "support/test.h"

namespace {

// Killed between making its lock and writing its name into it, a writer holds up the next one for
// the 30 seconds after which Qt takes a nameless lock for stale.
constexpr int kStaleLockMs = 60000;

const QStringList kHost = {REGISTRY_HOST ""_q, REGISTRY_PLUGIN ""_q};

class RegistryProcess : public testing::Test
{
protected:
    void Start(QProcess& process, const QString& commands, QStringList line = kHost) const
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME"_q, m_home.path());
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        line += commands.split(QLatin1Char(' '));
        process.start(line.takeFirst(), line);
    }
    QString Run(const QString& commands, const QStringList& host = kHost) const
    {
        QProcess process;
        Start(process, commands, host);
        EXPECT_TRUE(process.waitForFinished(kStaleLockMs) && process.exitCode() == 0);
        return QString::fromUtf8(process.readAllStandardOutput());
    }
    QString Stored(const QString& name, const QString& file = "/Vertex/Host.ini"_q) const
    {
        const QSettings plain(m_home.path() + file, QSettings::IniFormat);
        return plain.value("HKEY_CURRENT_USER/Script/"_q + name).toString();
    }

    QTemporaryDir m_home;
};

TEST_F(RegistryProcess, StoresUnderTheNamesAtLoadingTime)
{
    EXPECT_EQ(Run("text a 图层 number n 65 print n -"_q), "4: A\n"_q);
    EXPECT_EQ(Stored("a"_q), "图层"_q);
    EXPECT_EQ(Run("print n - print a -"_q), "1: 65\n1: 图层\n"_q); // the file holds text only
    Run("text a linked"_q, {REGISTRY_LINKED ""_q});
    EXPECT_EQ(Stored("a"_q, "/Unknown Organization.ini"_q), "linked"_q);
}

TEST_F(RegistryProcess, TwoWritersLoseNothing)
{
    QProcess other;
    Start(other, "rounds a 50"_q);
    Run("rounds b 50"_q);
    ASSERT_TRUE(other.waitForFinished(kStaleLockMs));
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(Stored("a%1"_q.arg(i)) + Stored("b%1"_q.arg(i)), "4949"_q) << i;
}

TEST_F(RegistryProcess, AKilledWriterLeavesAReadableFile)
{
    Run("text kept old"_q);
    for (int kill = 0; kill < 10; ++kill) {
        QProcess writer;
        Start(writer, "rounds n 1000000"_q);
        for (int round = 0; round <= kill; ++round)
            ASSERT_TRUE(writer.canReadLine() || writer.waitForReadyRead(kStaleLockMs));
        writer.kill();
        writer.waitForFinished();
        EXPECT_EQ(Stored("kept"_q), "old"_q);
        EXPECT_TRUE(!Stored("n0"_q).isEmpty() && Stored("n0"_q) == Stored("n99"_q));
    }
    Run("text kept new"_q); // not held up by a dead one's lock
    EXPECT_EQ(Stored("kept"_q), "new"_q);
}

} // namespace
