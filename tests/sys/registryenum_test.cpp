// Enumeration gives what a fresh listing would, whoever has changed the settings meanwhile.
#include <VxMFCEmu/sys/registry.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QSettings>

#include <gtest/gtest.h>

namespace {

QString wide(const wchar_t* text, DWORD length)
{
    return QString::fromWCharArray(text, static_cast<int>(length));
}

class RegistryEnum : public testing::Test
{
protected:
    RegistryEnum() : m_plain(QSettings::IniFormat, QSettings::UserScope, QString(), QString())
    {
        m_plain.clear();
        RegOpenKeyExA_E(HKEY_USERS, "E", 0, 0, &m_hKey);
    }
    ~RegistryEnum() override { RegCloseKey_E(m_hKey); }

    QString Name(DWORD index) const
    {
        wchar_t name[100];
        DWORD length = 0;
        return RegEnumKeyEx_E(m_hKey, index, name, &length, nullptr, nullptr, nullptr, nullptr) == 0
                   ? wide(name, length)
                   : QString();
    }
    QString Text(DWORD index) const
    {
        wchar_t text[100];
        DWORD length = 0;
        return RegEnumValue_E(m_hKey, index, text, &length, nullptr, nullptr, nullptr, nullptr) == 0
                   ? wide(text, length)
                   : QString();
    }
    // The whole enumeration beside a plain listing.
    void ExpectFresh(const char* after)
    {
        SCOPED_TRACE(after);
        m_plain.beginGroup(QStringLiteral("HKEY_USERS/E"));
        const QStringList names = m_plain.allKeys();
        for (int i = 0; i < names.size(); ++i) {
            EXPECT_EQ(Name(static_cast<DWORD>(i)), names[i]);
            EXPECT_EQ(Text(static_cast<DWORD>(i)), m_plain.value(names[i]).toString());
        }
        m_plain.endGroup();
        const auto count = static_cast<DWORD>(names.size());
        for (const DWORD behind : {count, count + 1, 0xFFFFFFFFU}) {
            EXPECT_EQ(RegEnumKey_E(m_hKey, behind, nullptr, nullptr), ERROR_PATH_NOT_FOUND);
            EXPECT_EQ(RegEnumValue_E(m_hKey, behind, nullptr, nullptr, nullptr, nullptr, nullptr,
                                     nullptr),
                      ERROR_PATH_NOT_FOUND);
        }
    }
    void Set(const wchar_t* name, const wchar_t* text) const
    {
        RegSetValue_E(m_hKey, name, REG_SZ, text, 0);
    }

    QSettings m_plain;
    HKEY m_hKey = nullptr;
};

TEST_F(RegistryEnum, SeesEveryChange)
{
    ExpectFresh("nothing");
    Set(L"b", L"1");
    Set(L"Sub\\图层", L"2");
    Set(L"d", L"3");
    ExpectFresh("own writes");
    EXPECT_EQ(Name(0), QStringLiteral("Sub/图层"));
    Set(L"a", L"4");
    ExpectFresh("own write");
    m_plain.setValue(QStringLiteral("HKEY_USERS/E/c"), 5);
    ExpectFresh("another store's write");
    m_plain.setValue(QStringLiteral("HKEY_USERS/E/c"), 6);
    ExpectFresh("another store's change of a value");
    m_plain.remove(QStringLiteral("HKEY_USERS/E/Sub"));
    ExpectFresh("another store's removal");
    RegFlushKey_E(nullptr);
    ExpectFresh("writing the file");
    m_plain.remove(QStringLiteral("HKEY_USERS/E/a"));
    ExpectFresh("a removal from what the file holds");

    for (const char* const other : {"[HKEY_USERS]\nE\\x=1\nE\\y=2\n[A]\nb=1\n", "[B]\nb=1\n",
                                    "[HKEY_USERS]\nE\\a%5Cb=7\nE\\a\\b=8\n", ""}) {
        m_plain.sync();
        QFile file(m_plain.fileName()); // as another process does
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(other);
        file.close();
        m_plain.sync();
        ExpectFresh(other);
        ExpectFresh("the same again");
    }
}

TEST_F(RegistryEnum, IsLinear)
{
    constexpr int kCount = 10000;
    for (int i = 0; i < kCount; ++i)
        m_plain.setValue(QStringLiteral("HKEY_USERS/E/%1").arg(i, 5, 10, QLatin1Char('0')), i);
    m_plain.setValue(QStringLiteral("Elsewhere/a"), 1);
    m_plain.sync();
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < kCount; ++i)
        ASSERT_EQ(Name(static_cast<DWORD>(i)).toInt() + Text(static_cast<DWORD>(i)).toInt(), 2 * i);
    EXPECT_LT(timer.elapsed(), 2000); // a listing for each takes a hundred times that
    EXPECT_TRUE(Name(kCount).isNull());

    m_plain.setValue(QStringLiteral("HKEY_USERS/E/😀😀😀"), QStringLiteral("😀😀😀😀"));
    DWORD count = 0;
    DWORD longestName = 0;
    DWORD longestText = 0;
    EXPECT_EQ(RegQueryInfoKey_E(m_hKey, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                &count, &longestName, &longestText, nullptr, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(count, 10001U);
    EXPECT_EQ(longestName, 6U); // Intended: UTF-16 units
    EXPECT_EQ(longestText, 8U);
    EXPECT_EQ(RegQueryInfoKey_E(m_hKey, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                nullptr, nullptr, nullptr, nullptr, nullptr),
              ERROR_SUCCESS);
}

TEST_F(RegistryEnum, WritesNoTerminator)
{
    Set(L"name", L"text");
    wchar_t buffer[] = L"????????";
    EXPECT_EQ(RegEnumKey_E(m_hKey, 0, buffer, 0), ERROR_SUCCESS);
    EXPECT_STREQ(buffer, L"name????");
    EXPECT_EQ(RegEnumValue_E(m_hKey, 0, buffer, nullptr, nullptr, nullptr, nullptr, nullptr), 0);
    EXPECT_STREQ(buffer, L"text????");
}

} // namespace
