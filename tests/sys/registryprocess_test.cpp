// The registry's file between processes: hosts that load the library, plain readers, killed
// writers.
#include <QtCore/QProcess>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// Killed between making its lock and writing its name into it, a writer holds up the next one for
// the 30 seconds after which Qt takes a nameless lock for stale.
constexpr int kStaleLockMs = 60000;

class RegistryProcess : public testing::Test
{
protected:
    void Start(QProcess& process, const char* commands, bool isLinked = false) const
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home.path());
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        QStringList arguments =
            QString::fromUtf8(commands).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (!isLinked)
            arguments.prepend(QStringLiteral(REGISTRY_PLUGIN));
        process.start(QString::fromUtf8(isLinked ? REGISTRY_LINKED : REGISTRY_HOST), arguments);
    }
    std::string Run(const char* commands, bool isLinked = false) const
    {
        QProcess process;
        Start(process, commands, isLinked);
        const bool isDone = process.waitForFinished(kStaleLockMs) && process.exitCode() == 0 &&
                            process.exitStatus() == QProcess::NormalExit;
        return isDone ? process.readAllStandardOutput().toStdString() : "failed";
    }
    QVariant Stored(const std::string& name, const char* file = "/Vertex/Host.ini") const
    {
        const QSettings plain(m_home.path() + QString::fromUtf8(file), QSettings::IniFormat);
        return plain.value(QStringLiteral("HKEY_CURRENT_USER/Script/") +
                           QString::fromStdString(name));
    }

    QTemporaryDir m_home;
};

TEST_F(RegistryProcess, StoresUnderTheNamesAtLoadingTime)
{
    EXPECT_EQ(Run("text a 图层 number n 7 print n -"), "type 4, 7\n");
    EXPECT_EQ(Stored("a").toString(), QStringLiteral("图层"));
    EXPECT_EQ(Run("print n - print a -"), "text 7\ntext 图层\n"); // the file holds text only
    EXPECT_EQ(Run("text a linked", true), "");
    EXPECT_EQ(Stored("a", "/Unknown Organization.ini").toString(), QStringLiteral("linked"));
}

TEST_F(RegistryProcess, TwoWritersLoseNothing)
{
    QProcess first;
    QProcess second;
    Start(first, "flushed a 100");
    Start(second, "flushed b 100");
    ASSERT_TRUE(first.waitForFinished() && second.waitForFinished());
    for (int i = 0; i < 100; ++i) {
        const std::string number = std::to_string(i);
        EXPECT_EQ(Stored("a" + number), QStringLiteral("a")) << i;
        EXPECT_EQ(Stored("b" + number), QStringLiteral("b")) << i;
    }
}

TEST_F(RegistryProcess, AKilledWriterLeavesAReadableFile)
{
    EXPECT_EQ(Run("text kept old"), "");
    for (int kill = 0; kill < 10; ++kill) {
        QProcess writer;
        Start(writer, "churn - -");
        for (int round = 0; round <= kill; ++round)
            ASSERT_TRUE(writer.canReadLine() || writer.waitForReadyRead(kStaleLockMs));
        writer.kill();
        ASSERT_TRUE(writer.waitForFinished());
        EXPECT_EQ(Stored("kept"), QStringLiteral("old"));
        for (int i = 0; i < 200; i += 199) // the file is one round's, whole
            EXPECT_EQ(Stored("churn" + std::to_string(i)), Stored("churn0"));
        EXPECT_FALSE(Stored("churn0").toString().isEmpty());
    }
    EXPECT_EQ(Run("text kept new print kept -"), "text new\n"); // not held up by a dead one's lock
    EXPECT_EQ(Stored("kept"), QStringLiteral("new"));
}

} // namespace
