#include <VxMFCEmu/sys/registry.h>

#include <QtCore/QSettings>
#include <QtCore/QVariant>

#include <gtest/gtest.h>

#include <functional>
#include <thread>

namespace {

template <typename T>
const BYTE* bytes(const T* data)
{
    return reinterpret_cast<const BYTE*>(data);
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

    QVariant Stored(const QString& name) const
    {
        return m_plain.value(QStringLiteral("HKEY_CURRENT_USER/K/") + name);
    }
    void Store(const QString& name, const QVariant& value)
    {
        m_plain.setValue(QStringLiteral("HKEY_CURRENT_USER/K/") + name, value);
    }
    QStringList Everything() const { return m_plain.allKeys(); }

    QSettings m_plain;
    HKEY m_hKey = nullptr;
};

TEST_F(Registry, PathsOfKeys)
{
    const struct
    {
        HKEY root;
        const char* subKey;
        const char* stored;
    } rows[] = {
        {HKEY_CLASSES_ROOT, ".dwg", "HKEY_CLASSES_ROOT/.dwg/v"},
        {HKEY_CURRENT_USER, "Software\\A\\B", "HKEY_CURRENT_USER/Software/A/B/v"},
        {HKEY_LOCAL_MACHINE, "a/b", "HKEY_LOCAL_MACHINE/a/b/v"},
        {HKEY_USERS, "", "HKEY_USERS/v"},
        {HKEY_PERFORMANCE_DATA, nullptr, "HKEY_PERFORMANCE_DATA/v"},
        {HKEY_PERFORMANCE_TEXT, "\\a\\\\b\\", "HKEY_PERFORMANCE_TEXT/a/b/v"},
        {HKEY_PERFORMANCE_NLSTEXT, "图层", "HKEY_PERFORMANCE_NLSTEXT/图层/v"},
        {HKEY_CURRENT_CONFIG, "a", "HKEY_CURRENT_CONFIG/a/v"},
        {HKEY_DYN_DATA, "a", "HKEY_DYN_DATA/a/v"},
        {HKEY_CURRENT_USER_LOCAL_SETTINGS, "a", "HKEY_CURRENT_USER_LOCAL_SETTINGS/a/v"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.stored);
        HKEY opened = nullptr;
        HKEY created = nullptr;
        DWORD disposition = 77;
        const std::wstring name = QString::fromUtf8(row.subKey).toStdWString();
        EXPECT_EQ(RegOpenKeyA_E(row.root, row.subKey, &opened), ERROR_SUCCESS);
        EXPECT_EQ(RegCreateKeyExW_E(row.root, row.subKey ? name.c_str() : nullptr, 0, nullptr, 0, 0,
                                    nullptr, &created, &disposition),
                  ERROR_SUCCESS);
        EXPECT_EQ(disposition, 77U);
        EXPECT_TRUE(Everything().isEmpty());
        RegSetValueExA_E(opened, "v", 0, REG_SZ, bytes("text"), 0);
        EXPECT_EQ(Everything(), QStringList(QString::fromUtf8(row.stored)));
        char text[10] = {};
        EXPECT_EQ(RegQueryValueExW_E(created, L"v", nullptr, nullptr, reinterpret_cast<BYTE*>(text),
                                     nullptr),
                  0);
        EXPECT_STREQ(text, "text");
        EXPECT_EQ(RegOpenKeyW_E(opened, L"a", &created), ERROR_FILE_NOT_FOUND);
        EXPECT_EQ(RegCreateKey_E(opened, L"a", &created), ERROR_INVALID_HANDLE);
        EXPECT_EQ(RegDeleteTree_E(row.root, nullptr), ERROR_SUCCESS);
        EXPECT_EQ(RegCloseKey_E(opened) + RegCloseKey_E(created) + RegCloseKey_E(row.root), 0);
        EXPECT_EQ(RegCloseKey_E(opened), ERROR_INVALID_HANDLE);
    }
}

TEST_F(Registry, ValuesOfAllTypes)
{
    const DWORD seven = 7;
    const ULONGLONG large = 0x123456789ABCDEFULL;
    const struct
    {
        DWORD type;
        const void* data;
        DWORD typeBack; // 99: nothing is written
        DWORD sizeBack;
        std::string dataBack;
    } rows[] = {
        {REG_SZ, L"图层 1", REG_SZ, 9, "图层 1"},
        {REG_EXPAND_SZ, L"%TEMP%", REG_SZ, 7, "%TEMP%"},
        {REG_SZ, L"", REG_SZ, 1, ""},
        {REG_SZ, nullptr, REG_SZ, 1, ""},
        {REG_DWORD, &seven, REG_DWORD, 4, "\x07"},
        {REG_QWORD, &large, REG_QWORD, 8, "\xEF\xCD\xAB\x89\x67\x45\x23\x01"},
        {REG_BINARY, &seven, 99, 99, "?"},
        {REG_MULTI_SZ, L"a", 99, 99, "?"},
        {REG_NONE, nullptr, 99, 99, "?"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.dataBack + std::to_string(row.type));
        m_plain.clear();
        EXPECT_EQ(RegSetKeyValue_E(m_hKey, L"unused", L"n\\图", row.type, row.data, 0), 0);
        DWORD type = 99;
        DWORD size = 99;
        char data[20] = "?";
        EXPECT_EQ(RegGetValue_E(m_hKey, L"n\\图", L"unused", 0, &type, nullptr, &size), 0);
        EXPECT_EQ(RegGetValue_E(m_hKey, L"n\\图", nullptr, 0, nullptr, data, nullptr), 0);
        EXPECT_EQ(type, row.typeBack);
        EXPECT_EQ(size, row.sizeBack);
        EXPECT_EQ(data, row.dataBack);
        EXPECT_EQ(Stored(QStringLiteral("n/图")).isValid(), row.typeBack != 99);
    }
    EXPECT_EQ(RegSetValueExA_E(m_hKey, "n", 0, REG_DWORD, nullptr, 4), ERROR_INVALID_HANDLE);
}

TEST_F(Registry, DefaultAndEmptyNames)
{
    EXPECT_EQ(RegSetValue_E(m_hKey, nullptr, REG_SZ, L"默认", 0), ERROR_SUCCESS);
    EXPECT_EQ(Stored(QStringLiteral("Default")), QStringLiteral("默认"));
    RegSetValueExA_E(m_hKey, "", 0, REG_SZ, bytes("empty"), 0);
    EXPECT_EQ(Stored(QString()), QStringLiteral("empty"));
    char narrow[20];
    wchar_t wide[20];
    LONG size = 0;
    EXPECT_EQ(RegQueryValueA_E(m_hKey, nullptr, narrow, &size), ERROR_SUCCESS);
    EXPECT_STREQ(narrow, "默认");
    EXPECT_EQ(size, 7);
    EXPECT_EQ(RegQueryValueW_E(m_hKey, nullptr, wide, &size), ERROR_SUCCESS);
    EXPECT_STREQ(wide, L"默认");
    EXPECT_EQ(size, 12);
    EXPECT_EQ(RegQueryValueW_E(m_hKey, L"missing", wide, &size), ERROR_SUCCESS);
    EXPECT_EQ(size, 12);
    EXPECT_EQ(RegDeleteValue_E(m_hKey, nullptr), ERROR_SUCCESS);
    EXPECT_EQ(RegQueryValueA_E(m_hKey, nullptr, narrow, &size), ERROR_SUCCESS);
    EXPECT_STREQ(narrow, ""); // still there, as an empty text
    EXPECT_EQ(size, 1);
}

TEST_F(Registry, HandlesThatAreNone)
{
    HKEY closed = nullptr;
    RegOpenCurrentUser_E(0, &closed);
    RegCloseKey_E(closed);
    Store(QStringLiteral("a"), 1);
    VALENT value = {};
    DWORD size = 99;
    const std::function<LONG(HKEY)> calls[] = {
        [](HKEY h) { return RegCloseKey_E(h); },
        [](HKEY h) { return RegSetValueExA_E(h, "a", 0, REG_SZ, bytes("x"), 2); },
        [](HKEY h) { return RegSetValueExW_E(h, L"a", 0, REG_SZ, bytes(L"x"), 8); },
        [](HKEY h) { return RegSetValueExW_E(h, L"a", 0, REG_BINARY, bytes(L"x"), 8); },
        [&](HKEY h) { return RegQueryValueExA_E(h, "a", nullptr, &size, nullptr, &size); },
        [&](HKEY h) { return RegQueryValueExW_E(h, L"a", nullptr, &size, nullptr, &size); },
        [](HKEY h) { return RegQueryValueA_E(h, "a", nullptr, nullptr); },
        [](HKEY h) { return RegQueryValueW_E(h, L"a", nullptr, nullptr); },
        [&](HKEY h) { return RegQueryMultipleValues_E(h, &value, 1, nullptr, &size); },
        [&](HKEY h) { return RegEnumKey_E(h, 0, nullptr, &size); },
        [](HKEY h) { return RegEnumValue_E(h, 0, nullptr, {}, {}, {}, {}, {}); },
        [&](HKEY h) { return RegQueryInfoKey_E(h, {}, {}, {}, {}, {}, {}, &size, {}, {}, {}, {}); },
        [](HKEY h) { return RegDeleteValue_E(h, L"a"); },
        [](HKEY h) { return RegDeleteKey_E(h, L"a"); },
        [](HKEY h) { return RegDeleteTree_E(h, L"a"); },
        [](HKEY h) { return RegDeleteKeyValue_E(h, L"a", L"b"); },
        [](HKEY h) { return RegRenameKey_E(h, L"a", L"b"); },
        [](HKEY h) { return RegCopyTree_E(h, L"a", HKEY_USERS); },
        [](HKEY h) { return RegCopyTree_E(HKEY_CURRENT_USER, L"K", h); },
        [](HKEY h) { return RegCreateKey_E(h, L"a", &h); },
    };
    for (HKEY hKey : {HKEY(), closed, HKEY(&value), HKEY(0x80000001UL), HKEY(~0UL), HKEY(1UL)}) {
        for (const auto& call : calls) {
            const bool isDeleteKey = &call == &calls[13];
            EXPECT_EQ(call(hKey), isDeleteKey ? ERROR_PATH_NOT_FOUND : ERROR_INVALID_HANDLE)
                << &call - calls;
        }
        EXPECT_EQ(RegOpenKeyExW_E(hKey, L"a", 0, 0, &closed), ERROR_FILE_NOT_FOUND);
    }
    EXPECT_EQ(size, 99U);
    EXPECT_EQ(Everything().size(), 1);
    EXPECT_EQ(RegFlushKey_E(HKEY(1UL)) + RegDisablePredefinedCache_E(), ERROR_SUCCESS);
    EXPECT_EQ(RegOpenKeyA_E(HKEY_USERS, "a", nullptr), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(RegOpenUserClassesRoot_E(nullptr, 0, 0, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(RegDeleteKey_E(m_hKey, nullptr), ERROR_PATH_NOT_FOUND);
    EXPECT_EQ(RegDeleteKeyValue_E(m_hKey, nullptr, L"a"), ERROR_INVALID_HANDLE);
}

TEST_F(Registry, RootsAndDeletedKeys)
{
    RegSetValueExA_E(HKEY_CURRENT_USER, "r", 0, REG_SZ, bytes("root"), 0);
    EXPECT_EQ(Everything(), QStringList(QStringLiteral("HKEY_CURRENT_USER/r")));
    const auto rest = [&](LONG result) {
        EXPECT_EQ(result, ERROR_SUCCESS);
        const int count = Everything().size();
        for (const char* name : {"S/a", "S/b/c", "T"})
            Store(QString::fromUtf8(name), 1);
        return count;
    };
    rest(0);
    EXPECT_EQ(rest(RegDeleteKey_E(m_hKey, L"S")), 2);
    EXPECT_EQ(rest(RegDeleteKeyValue_E(m_hKey, L"S", L"a")), 2); // the whole of S
    EXPECT_EQ(rest(RegDeleteTree_E(m_hKey, L"S\\b")), 3);
    EXPECT_EQ(rest(RegDeleteTree_E(m_hKey, nullptr)), 1);
    EXPECT_EQ(rest(RegDeleteKey_E(HKEY_CURRENT_USER, L"K\\T")), 3);
}

TEST_F(Registry, OpensTheRootsOfUserAndClasses)
{
    const std::pair<LONG (*)(PHKEY), const char*> rows[] = {
        {[](PHKEY out) { return RegOpenCurrentUser_E(0, out); }, "HKEY_CURRENT_USER/v"},
        {[](PHKEY out) { return RegOpenUserClassesRoot_E(nullptr, 0, 0, out); },
         "HKEY_CLASSES_ROOT/v"},
    };
    for (const auto& [open, stored] : rows) {
        HKEY hRoot = nullptr;
        EXPECT_EQ(open(&hRoot), ERROR_SUCCESS);
        RegSetValueExA_E(hRoot, "v", 0, REG_SZ, bytes(stored), 0);
        EXPECT_EQ(m_plain.value(QLatin1String(stored)), QLatin1String(stored));
        EXPECT_EQ(RegCloseKey_E(hRoot), ERROR_SUCCESS);
    }
}

TEST_F(Registry, RenamesAndCopies)
{
    for (const char* name : {"S", "S/a", "S/b/c"})
        Store(QString::fromUtf8(name), 7U);
    EXPECT_EQ(RegRenameKey_E(m_hKey, L"S", L"S\\b"), ERROR_SUCCESS); // into itself
    EXPECT_EQ(Stored(QStringLiteral("S/b")), QVariant(QStringLiteral("7")));
    EXPECT_EQ(Stored(QStringLiteral("S/b/b/c")), QVariant(7U));
    EXPECT_EQ(Everything().size(), 3);
    EXPECT_EQ(RegCopyTree_E(m_hKey, L"S\\b", HKEY_USERS), ERROR_SUCCESS);
    EXPECT_EQ(Everything().size(), 4); // not what is in keys below
    EXPECT_EQ(m_plain.value(QStringLiteral("HKEY_USERS/a")), QVariant(7U));
    EXPECT_EQ(RegRenameKey_E(m_hKey, nullptr, L"L"), ERROR_SUCCESS); // the handle stays good
    EXPECT_TRUE(m_plain.contains(QStringLiteral("HKEY_CURRENT_USER/L/S/b/a")));
    EXPECT_EQ(RegCopyTree_E(m_hKey, L"S/b", m_hKey), ERROR_SUCCESS);
    EXPECT_TRUE(m_plain.contains(QStringLiteral("HKEY_CURRENT_USER/L/a")));
    EXPECT_EQ(RegSetValueExA_E(HKEY_USERS, "x", 0, REG_SZ, bytes("1"), 0), ERROR_SUCCESS);
    EXPECT_EQ(RegSetValueExA_E(HKEY_USERS, "y", 0, REG_SZ, bytes("2"), 0), ERROR_SUCCESS);
    EXPECT_EQ(RegRenameKey_E(HKEY_USERS, L"x", L"y"), ERROR_SUCCESS); // overwrites
    EXPECT_EQ(m_plain.value(QStringLiteral("HKEY_USERS/y")), QVariant(QStringLiteral("1")));
    EXPECT_EQ(RegRenameKey_E(m_hKey, L"missing", L"x"), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(RegRenameKey_E(m_hKey, L"S", nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(RegRenameKey_E(HKEY_USERS, nullptr, L"x"), ERROR_ACCESS_DENIED);
}

TEST_F(Registry, QueriesMultipleValues)
{
    Store(QStringLiteral("text"), QStringLiteral("abc"));
    Store(QStringLiteral("Default"), 7U);
    wchar_t name[] = L"text";
    VALENT values[2] = {{name, 0, 0, 0}, {nullptr, 0, 0, 0}};
    wchar_t buffer[4];
    DWORD size = 11;
    EXPECT_EQ(RegQueryMultipleValues_E(m_hKey, values, 2, buffer, &size), ERROR_MORE_DATA);
    EXPECT_EQ(size, 12U);
    EXPECT_EQ(values[0].ve_valueptr, 0U);
    EXPECT_EQ(RegQueryMultipleValues_E(m_hKey, values, 2, buffer, &size), ERROR_SUCCESS);
    EXPECT_STREQ(reinterpret_cast<char*>(values[0].ve_valueptr), "abc");
    EXPECT_EQ(values[0].ve_valuelen, 4U);
    EXPECT_EQ(values[1].ve_type, REG_DWORD);
    EXPECT_EQ(*reinterpret_cast<DWORD*>(values[1].ve_valueptr), 7U);
    name[0] = L'n';
    EXPECT_EQ(RegQueryMultipleValues_E(m_hKey, values, 2, buffer, &size), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(RegQueryMultipleValues_E(m_hKey, nullptr, 2, buffer, &size), ERROR_INVALID_PARAMETER);
}

TEST_F(Registry, ThreadsShareIt)
{
    const auto use = [this](const wchar_t* name) {
        for (DWORD i = 0; i < 2000; ++i) {
            HKEY hKey = nullptr;
            RegOpenKeyExW_E(HKEY_USERS, L"图层", 0, 0, &hKey);
            EXPECT_EQ(RegSetValueExW_E(hKey, name, 0, REG_DWORD, reinterpret_cast<BYTE*>(&i), 4),
                      0);
            RegSetValueExW_E(m_hKey, name, 0, REG_SZ, nullptr, 0);
            wchar_t first[9];
            EXPECT_EQ(RegEnumKey_E(hKey, 0, first, nullptr), ERROR_SUCCESS);
            DWORD read = 0;
            RegQueryValueExW_E(hKey, name, nullptr, nullptr, reinterpret_cast<BYTE*>(&read),
                               nullptr);
            EXPECT_EQ(read, i);
            // Short and long in turn, so that the length may change while it is asked for.
            const std::string text(i % 2 * 5000, 'x');
            RegSetValueExA_E(m_hKey, "text", 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                             0);
            char buffer[5001];
            LONG nLength = 0;
            RegQueryValueA_E(m_hKey, "text", buffer, &nLength);
            EXPECT_EQ(static_cast<LONG>(std::strlen(buffer)) + 1, nLength);
            EXPECT_EQ(RegCloseKey_E(hKey), ERROR_SUCCESS);
        }
    };
    std::thread other(use, L"other");
    use(L"one");
    other.join();
}

} // namespace
