#include "sys/rows.h"

namespace {

const BYTE* bytes(const void* data) { return static_cast<const BYTE*>(data); }

LONG enumText(HKEY hKey, DWORD index, LPWSTR text, LPDWORD length)
{
    return RegEnumValue_E(hKey, index, text, length, {}, {}, {}, {});
}

class Registry : public testing::Test
{
protected:
    Registry() : m_plain(QSettings::IniFormat, QSettings::UserScope, QString(), QString())
    {
        m_plain.clear();
        RegOpenKeyExA_E(HKEY_CURRENT_USER, "K", 0, KEY_READ, &m_hKey);
    }
    ~Registry() override { EXPECT_EQ(RegCloseKey_E(m_hKey), ERROR_SUCCESS); }

    void Store(const QString& name, const QVariant& value = 7U)
    {
        m_plain.setValue(m_path + name, value);
    }
    // "name=number" or "name='text'" of all that is stored; what is in K without its path.
    QString Everything() const
    {
        QStringList all;
        for (const QString& name : m_plain.allKeys()) {
            const QVariant value = m_plain.value(name);
            const QString format = value.type() == QVariant::String ? "%1='%2'"_q : "%1=%2"_q;
            all += format.arg(name, value.toString()).remove(m_path);
        }
        return all.join(QLatin1Char(' '));
    }
    QStringList Listed(LONG (*list)(HKEY, DWORD, LPWSTR, LPDWORD)) const
    {
        for (QStringList all;;) {
            const auto index = static_cast<DWORD>(all.size());
            std::wstring text(100, L'?');
            DWORD length = 0;
            if (const LONG result = list(m_hKey, index, text.data(), &length); result != 0) {
                EXPECT_EQ(result, ERROR_PATH_NOT_FOUND);
                return all;
            }
            EXPECT_EQ(text[length], L'?'); // Intended: no terminator.
            all += QString::fromStdWString(text.substr(0, length));
        }
    }

    const QString m_path = "HKEY_CURRENT_USER/K/"_q;
    QSettings m_plain;
    HKEY m_hKey = nullptr;
};

TEST_F(Registry, PathsOfKeys)
{
    const Row<HKEY, const char*, const char*> rows[] = {
        {HKEY_CURRENT_USER, "Software\\A\\B", "HKEY_CURRENT_USER/Software/A/B"},
        {HKEY_LOCAL_MACHINE, "a/b", "HKEY_LOCAL_MACHINE/a/b"},
        {HKEY_USERS, "", "HKEY_USERS"},
        {HKEY_PERFORMANCE_DATA, nullptr, "HKEY_PERFORMANCE_DATA"},
        {HKEY_PERFORMANCE_TEXT, "\\a\\\\b\\", "HKEY_PERFORMANCE_TEXT/a/b"},
        {HKEY_CURRENT_USER_LOCAL_SETTINGS, "图层", "HKEY_CURRENT_USER_LOCAL_SETTINGS/图层"}};
    forRows(rows, [&](HKEY hRoot, const char* subKey, const char* path) {
        HKEY hOpened = nullptr, hCreated = nullptr;
        const std::wstring wide = QString::fromUtf8(subKey).toStdWString();
        EXPECT_EQ(RegOpenKeyA_E(hRoot, subKey, &hOpened), ERROR_SUCCESS);
        EXPECT_EQ(RegCreateKey_E(hRoot, subKey ? wide.c_str() : nullptr, &hCreated), ERROR_SUCCESS);
        EXPECT_EQ(Everything(), QString());
        RegSetValueExA_E(hOpened, "v", 0, REG_SZ, bytes("1"), 0);
        RegSetValueExA_E(hCreated, "w", 0, REG_SZ, bytes("2"), 0);
        EXPECT_EQ(Everything(), "%1/v='1' %1/w='2'"_q.arg(QString::fromUtf8(path)));
        EXPECT_EQ(RegOpenKeyW_E(hOpened, L"a", &hRoot), ERROR_FILE_NOT_FOUND);
        m_plain.clear();
        EXPECT_EQ(RegCloseKey_E(hOpened) + RegCloseKey_E(hCreated), 0);
    });
    HKEY hKeys[2] = {};
    EXPECT_EQ(RegOpenCurrentUser_E(0, &hKeys[0]), ERROR_SUCCESS);
    EXPECT_EQ(RegOpenUserClassesRoot_E(nullptr, 0, 0, &hKeys[1]), ERROR_SUCCESS);
    for (const HKEY hKey : hKeys)
        EXPECT_EQ(RegSetValue_E(hKey, L"v", REG_SZ, nullptr, 0) + RegCloseKey_E(hKey), 0);
    EXPECT_EQ(Everything(), "HKEY_CLASSES_ROOT/v='' HKEY_CURRENT_USER/v=''"_q);
}

TEST_F(Registry, ValuesOfAllTypes)
{
    const ULONGLONG large = 0x23456789ABCDEFULL;
    // type and data; type, size and data read back, where 99 and "?" were there before
    const Row<DWORD, const void*, DWORD, DWORD, std::string> rows[] = {
        {REG_SZ, L"图层 1", REG_SZ, 9, "图层 1"},
        {REG_EXPAND_SZ, L"%TEMP%", REG_SZ, 7, "%TEMP%"},
        {REG_DWORD, &large, REG_DWORD, 4, "\xEF\xCD\xAB\x89"},
        {REG_QWORD, &large, REG_QWORD, 8, "\xEF\xCD\xAB\x89\x67\x45\x23"},
        {REG_BINARY, &large, 99, 99, "?"}};
    forRows(rows, [this](DWORD type, auto* value, DWORD typeBack, DWORD sizeBack, auto& dataBack) {
        m_plain.clear();
        EXPECT_EQ(RegSetKeyValue_E(m_hKey, L"unused", L"n\\图", type, value, 0), 0);
        DWORD readType = 99, size = 99;
        char data[20] = "?";
        EXPECT_EQ(RegGetValue_E(m_hKey, L"n\\图", L"unused", 0, &readType, data, &size), 0);
        EXPECT_EQ(Results({readType, size}), Results({typeBack, sizeBack}));
        EXPECT_EQ(data, dataBack);
        EXPECT_EQ(Everything().startsWith("n/图="_q), typeBack != 99);
    });
    EXPECT_EQ(RegSetValueExA_E(m_hKey, "n", 0, REG_DWORD, nullptr, 4), ERROR_INVALID_HANDLE);
}

TEST_F(Registry, DefaultAndEmptyNames)
{
    EXPECT_EQ(RegSetValue_E(m_hKey, nullptr, REG_SZ, L"默认", 0), ERROR_SUCCESS);
    RegSetValueExA_E(m_hKey, "", 0, REG_SZ, bytes("empty"), 0);
    EXPECT_EQ(Everything(), "HKEY_CURRENT_USER/K='empty' Default='默认'"_q);
    char narrow[20];
    wchar_t wide[20];
    LONG size = 0, wideSize = 0;
    EXPECT_EQ(RegQueryValueA_E(m_hKey, nullptr, narrow, &size), 0);
    EXPECT_EQ(RegQueryValueW_E(m_hKey, nullptr, wide, &wideSize), 0);
    EXPECT_EQ(RegQueryValueW_E(m_hKey, L"missing", wide, &wideSize), 0);
    EXPECT_TRUE(size == 7 && wideSize == 12);
    EXPECT_STREQ(narrow, "默认");
    EXPECT_STREQ(wide, L"默认");
    EXPECT_EQ(RegDeleteValue_E(m_hKey, nullptr), ERROR_SUCCESS);
    RegQueryValueA_E(m_hKey, nullptr, narrow, &size);
    EXPECT_STREQ(narrow, ""); // Intended: still there, as an empty text.
}

TEST_F(Registry, HandlesThatAreNone)
{
    HKEY hClosed = nullptr;
    RegOpenCurrentUser_E(0, &hClosed);
    RegCloseKey_E(hClosed);
    Store("a"_q);
    VALENT value = {};
    DWORD size = 99;
    for (HKEY h : {HKEY(), hClosed, HKEY(&value), HKEY(0x80000001UL)}) {
        EXPECT_EQ(Results({RegCloseKey_E(h), RegCreateKey_E(h, L"a", &hClosed),
                           RegSetValueExA_E(h, "a", 0, REG_SZ, bytes("x"), 2),
                           RegQueryValueExW_E(h, L"a", nullptr, &size, nullptr, &size),
                           RegQueryValueA_E(h, "a", nullptr, nullptr),
                           RegQueryMultipleValues_E(h, &value, 1, nullptr, &size),
                           enumText(h, 0, nullptr, &size),
                           RegQueryInfoKey_E(h, {}, {}, {}, {}, {}, {}, &size, {}, {}, {}, {}),
                           RegDeleteTree_E(h, L"a"), RegRenameKey_E(h, L"a", L"b"),
                           RegCopyTree_E(h, L"a", HKEY_USERS), RegCopyTree_E(m_hKey, L"", h)}),
                  Results(12, ERROR_INVALID_HANDLE));
        EXPECT_EQ(RegDeleteKey_E(h, L"a"), ERROR_PATH_NOT_FOUND);
        EXPECT_EQ(RegOpenKeyExW_E(h, L"a", 0, 0, &hClosed), ERROR_FILE_NOT_FOUND);
    }
    EXPECT_EQ(size, 99U);
    EXPECT_EQ(Everything(), "a=7"_q);
    EXPECT_EQ(RegOpenCurrentUser_E(0, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(RegDeleteKeyValue_E(m_hKey, nullptr, L"a"), ERROR_INVALID_HANDLE);
}

TEST_F(Registry, DeletesRenamesAndCopies)
{
    const HKEY h = m_hKey;
    constexpr char kAll[] = "S=7 S/a=7 S/b/c=7 T=7";
    const Row<std::function<LONG()>, LONG, const char*> rows[] = {
        {[] { return RegDeleteKey_E(HKEY_CURRENT_USER, L"K\\T"); }, 0, "S=7 S/a=7 S/b/c=7"},
        // Intended: the whole of S.
        {[h] { return RegDeleteKeyValue_E(h, L"S", L"a"); }, 0, "T=7"},
        {[h] { return RegRenameKey_E(h, L"S", L"S\\b"); }, 0, "S/b='7' S/b/a=7 S/b/b/c=7 T=7"},
        {[h] { return RegRenameKey_E(h, L"S", L"T"); }, 0, "T='7' T/a=7 T/b/c=7"}, // overwrites
        // Intended: nothing of the keys below.
        {[h] { return RegCopyTree_E(h, L"S", h); }, 0, "S=7 S/a=7 S/b/c=7 T=7 a=7"},
        {[h] { return RegRenameKey_E(h, L"no", L"x"); }, ERROR_FILE_NOT_FOUND, kAll},
        {[h] { return RegRenameKey_E(h, L"S", nullptr); }, ERROR_INVALID_PARAMETER, kAll},
        {[] { return RegRenameKey_E(HKEY_USERS, nullptr, L"x"); }, ERROR_ACCESS_DENIED, kAll},
        // The handle stays good.
        {[h] { return RegRenameKey_E(h, nullptr, L"L") + RegDeleteKey_E(h, L"S"); }, 0,
         "HKEY_CURRENT_USER/L/T=7"}};
    for (const auto& [call, result, left] : rows) {
        m_plain.clear();
        for (const char* name : {"S", "S/a", "S/b/c", "T"})
            Store(QLatin1String(name));
        EXPECT_EQ(call(), result) << left;
        EXPECT_EQ(Everything(), QLatin1String(left));
    }
}

TEST_F(Registry, QueriesMultipleValues)
{
    Store("text"_q, "abc"_q);
    Store("Default"_q);
    wchar_t name[] = L"text";
    VALENT values[2] = {{name, 0, 0, 0}, {nullptr, 0, 0, 0}};
    wchar_t buffer[4];
    DWORD size = 11;
    EXPECT_EQ(RegQueryMultipleValues_E(m_hKey, values, 2, buffer, &size), ERROR_MORE_DATA);
    EXPECT_TRUE(size == 12 && values[0].ve_valueptr == 0);
    EXPECT_EQ(RegQueryMultipleValues_E(m_hKey, values, 2, buffer, &size), ERROR_SUCCESS);
    EXPECT_STREQ(reinterpret_cast<char*>(values[0].ve_valueptr), "abc");
    EXPECT_EQ(*reinterpret_cast<DWORD*>(values[1].ve_valueptr), 7U);
    name[0] = L'n';
    EXPECT_EQ(RegQueryMultipleValues_E(m_hKey, values, 2, buffer, &size), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(RegQueryMultipleValues_E(m_hKey, nullptr, 2, buffer, &size), ERROR_INVALID_PARAMETER);
}

// Whoever has changed the settings meanwhile.
TEST_F(Registry, EnumeratesWhatAFreshListingGives)
{
    const auto elsewhere = [this](const char* content) { // as another process does
        m_plain.sync();
        QFile file(m_plain.fileName());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) >= 0 && file.flush());
        m_plain.sync();
    };
    const std::function<void()> changes[] = {
        [] {},
        [this] { RegSetValue_E(m_hKey, L"Sub\\图层", REG_SZ, L"2", 0); },
        [this] { Store("c"_q, 5); },
        [] { RegFlushKey_E(nullptr); },
        [this] { m_plain.remove("HKEY_CURRENT_USER/K/c"_q); }, // from what the file holds
        [&] { elsewhere("[HKEY_CURRENT_USER]\nK\\x=1\nK\\y=2\n[A]\nb=1\n"); },
        [&] { elsewhere("[HKEY_CURRENT_USER]\nK\\a%5Cb=7\nK\\a\\b=8\n"); }};
    for (const auto& change : changes) {
        change();
        const QStringList names = Listed(RegEnumKey_E);
        m_plain.beginGroup("HKEY_CURRENT_USER/K"_q);
        EXPECT_EQ(names, m_plain.allKeys()) << &change - changes;
        for (int i = 0; i < names.size(); ++i)
            EXPECT_EQ(Listed(enumText).value(i), m_plain.value(names[i]).toString());
        m_plain.endGroup();
    }
}

TEST_F(Registry, EnumeratesInLinearTime)
{
    for (int i = 10000; i < 20000; ++i)
        Store(QString::number(i), i);
    const ULONGLONG start = GetTickCount();
    EXPECT_EQ(Listed(RegEnumKey_E), Listed(enumText));
    EXPECT_LT(GetTickCount() - start, 2000U); // a listing for each takes a hundred times that
    Store("😀😀😀"_q, "😀😀😀😀"_q);
    Store("ﬀ"_q, "last"_q);
    DWORD n[3] = {}; // Intended: the greatest lengths are in UTF-16 units.
    EXPECT_EQ(RegQueryInfoKey_E(m_hKey, {}, {}, {}, {}, {}, {}, n, n + 1, n + 2, {}, {}), 0);
    EXPECT_EQ(Results(n, n + 3), Results({10002, 6, 8}));
}

TEST_F(Registry, ThreadsShareIt)
{
    inThreads(2, [this](int) {
        for (DWORD i = 0; i < 2000; ++i) {
            HKEY hKey = nullptr;
            RegOpenKeyExW_E(HKEY_CURRENT_USER, L"K", 0, 0, &hKey);
            DWORD number = 0;
            RegSetValueExW_E(hKey, L"number", 0, REG_DWORD, bytes(&i), 4);
            RegGetValue_E(hKey, L"number", nullptr, 0, nullptr, &number, nullptr);
            EXPECT_LT(number, 2000U);
            // Short and long in turn, so that the length may change while it is asked for.
            const std::string text(i % 2 * 5000, 'x');
            RegSetValueExA_E(m_hKey, "text", 0, REG_SZ, bytes(text.c_str()), 0);
            char buffer[5001];
            LONG length = 0;
            RegQueryValueA_E(m_hKey, "text", buffer, &length);
            EXPECT_EQ(std::string(buffer).size() + 1, static_cast<std::size_t>(length));
            EXPECT_EQ(RegEnumKey_E(hKey, 0, nullptr, nullptr) + RegCloseKey_E(hKey), 0);
        }
    });
}

} // namespace
