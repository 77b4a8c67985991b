#include "sys/vxwinreg_p.h"

#include <VxMFCEmu/sys/registry.h>
#include <VxMFCEmu/text/conversions.h>

#include "text/vxtranscode_p.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <string>
#include <unordered_set>

// Intended: the names as they stand when the library is loaded, later ones do not count.
QSettings g_appRegistry(QSettings::IniFormat, QSettings::UserScope,
                        QCoreApplication::organizationName(), QCoreApplication::applicationName());

namespace vx::detail {

std::mutex g_registryMutex;

namespace {

struct Root
{
    DWORD handle; // sign-extended in an HKEY
    const char* component;
};

// clang-format off
constexpr Root kRoots[] = {
    {0x80000000, "HKEY_CLASSES_ROOT"},
    {0x80000001, "HKEY_CURRENT_USER"},
    {0x80000002, "HKEY_LOCAL_MACHINE"},
    {0x80000003, "HKEY_USERS"},
    {0x80000004, "HKEY_PERFORMANCE_DATA"},
    {0x80000050, "HKEY_PERFORMANCE_TEXT"},
    {0x80000060, "HKEY_PERFORMANCE_NLSTEXT"},
    {0x80000005, "HKEY_CURRENT_CONFIG"},
    {0x80000006, "HKEY_DYN_DATA"},
    {0x80000007, "HKEY_CURRENT_USER_LOCAL_SETTINGS"},
};
// clang-format on
static_assert(std::size(kRoots) == 10);

constexpr ULONG_PTR kRootBits = 0xFFFFFFFF00000000UL;

// Empty for what is no root.
QString rootComponent(HKEY hKey)
{
    const auto value = reinterpret_cast<ULONG_PTR>(hKey);
    if ((value & kRootBits) != kRootBits)
        return {};
    for (const Root& root : kRoots) {
        if (value == (kRootBits | root.handle))
            return QLatin1String(root.component);
    }
    return {};
}

struct Key
{
    QString path;
};

// What an HKEY may point to: a handle is looked up before it is read, so a closed one is an error.
class OpenKeys
{
public:
    ~OpenKeys()
    {
        for (const Key* pKey : m_keys)
            delete pKey;
    }

    HKEY Open(const QString& path)
    {
        const RegistryLock lock(g_registryMutex);
        return *m_keys.insert(new Key{path}).first;
    }
    bool Close(HKEY hKey)
    {
        Key* const pKey = static_cast<Key*>(hKey);
        const RegistryLock lock(g_registryMutex);
        if (m_keys.erase(pKey) == 0)
            return false;
        m_pLast = nullptr;
        delete pKey;
        return true;
    }
    // What @p make makes of the path of a root or an open key; empty for other handles. It may
    // build its result in the text that it is handed, which has room from earlier paths: the store
    // seldom keeps one.
    template <typename Make>
    QString PathOf(HKEY hKey, Make make)
    {
        if (const QString root = rootComponent(hKey); !root.isEmpty()) {
            QString room;
            return make(root, room);
        }
        const Key* const pKey = Find(hKey);
        return pKey ? make(pKey->path, m_room) : QString();
    }
    void SetPath(HKEY hKey, const QString& path)
    {
        if (Key* const pKey = Find(hKey))
            pKey->path = path;
    }

private:
    Key* Find(HKEY hKey)
    {
        if (!hKey || hKey != m_pLast) {
            const auto found = m_keys.find(static_cast<Key*>(hKey));
            m_pLast = found == m_keys.end() ? nullptr : *found;
        }
        return m_pLast;
    }

    QString m_room;
    Key* m_pLast = nullptr; // calls for one key come in rows
    std::unordered_set<Key*> m_keys;
};

OpenKeys g_openKeys;

// Most names: in one go. False when the name is not all ASCII.
template <typename Char>
bool joinAscii(const QString& path, const Char* pName, QString& result)
{
    const std::size_t length = pName ? std::char_traits<Char>::length(pName) : 0;
    result.resize(path.size() + 1 + static_cast<int>(length));
    QChar* pOut = std::copy(path.cbegin(), path.cend(), result.begin());
    *pOut++ = QLatin1Char('/');
    for (std::size_t i = 0; i < length; ++i) {
        const Char ch = pName[i];
        if ((ch & 0x7F) != ch)
            return false;
        *pOut++ = QLatin1Char(ch == '\\' ? '/' : static_cast<char>(ch));
    }
    return true;
}

// With a name in UTF-8.
QString joined(const QString& path, LPCSTR pName, QString& room)
{
    return joinAscii(path, pName, room) ? room : registryPath(path, QString::fromUtf8(pName));
}

QString joined(const QString& path, LPCWSTR pName, QString& room)
{
    return joinAscii(path, pName, room) ? room : registryPath(path, wideToQString(pName));
}

// False for what is no root.
bool openBelowRoot(HKEY hKey, LPCSTR pSubKey, PHKEY phkResult)
{
    QString path = rootComponent(hKey);
    if (path.isEmpty() || !phkResult)
        return false;
    if (QString room; pSubKey && *pSubKey)
        path = joined(path, pSubKey, room);
    *phkResult = g_openKeys.Open(path);
    return true;
}

LONG openRoot(HKEY hRoot, PHKEY phkResult)
{
    return openBelowRoot(hRoot, nullptr, phkResult) ? ERROR_SUCCESS : ERROR_INVALID_PARAMETER;
}

std::string narrowName(LPCWSTR pName) { return pName ? _W2A(pName) : std::string(); }

} // namespace

QString registryPath(HKEY hKey)
{
    return g_openKeys.PathOf(hKey, [](const QString& path, QString&) { return path; });
}

void setRegistryPath(HKEY hKey, const QString& path) { g_openKeys.SetPath(hKey, path); }

QString registryPath(const QString& path, QString name)
{
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    QString result;
    result.reserve(path.size() + 1 + name.size());
    return result.append(path).append(QLatin1Char('/')).append(name);
}

QString registryPath(const QString& path, LPCWSTR pName)
{
    QString room;
    return joined(path, pName, room);
}

QString registryPath(HKEY hKey, LPCWSTR pName)
{
    return g_openKeys.PathOf(
        hKey, [pName](const QString& path, QString& room) { return joined(path, pName, room); });
}

QString registryPath(HKEY hKey, LPCSTR pName)
{
    return g_openKeys.PathOf(
        hKey, [pName](const QString& path, QString& room) { return joined(path, pName, room); });
}

QString narrowRegistryPath(HKEY hKey, LPCWSTR pName)
{
    return g_openKeys.PathOf(hKey, [pName](const QString& path, QString& room) {
        if (joinAscii(path, pName, room)) // every locale leaves ASCII as it is
            return room;
        return joined(path, _W2A(pName).c_str(), room);
    });
}

void storeInRegistry(const QString& key, const QVariant& value)
{
    forgetRegistryListings();
    g_appRegistry.setValue(key, value);
}

void removeFromRegistry(const QString& key)
{
    forgetRegistryListings();
    g_appRegistry.remove(key);
}

} // namespace vx::detail

using namespace vx::detail;

LONG RegOpenKeyExA_E(HKEY hKey, LPCSTR pSubKey, DWORD /*ulOptions*/, REGSAM /*samDesired*/,
                     PHKEY phkResult)
{
    return openBelowRoot(hKey, pSubKey, phkResult) ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
}

LONG RegOpenKeyExW_E(HKEY hKey, LPCWSTR pSubKey, DWORD ulOptions, REGSAM samDesired,
                     PHKEY phkResult)
{
    return RegOpenKeyExA_E(hKey, narrowName(pSubKey).c_str(), ulOptions, samDesired, phkResult);
}

LONG RegOpenKeyA_E(HKEY hKey, LPCSTR pSubKey, PHKEY phkResult)
{
    return RegOpenKeyExA_E(hKey, pSubKey, 0, 0, phkResult);
}

LONG RegOpenKeyW_E(HKEY hKey, LPCWSTR pSubKey, PHKEY phkResult)
{
    return RegOpenKeyA_E(hKey, narrowName(pSubKey).c_str(), phkResult);
}

LONG RegCreateKeyExA_E(HKEY hKey, LPCSTR pSubKey, DWORD /*dwReserved*/, LPCSTR /*pClass*/,
                       DWORD /*dwOptions*/, REGSAM /*samDesired*/, const void* /*pSecurity*/,
                       PHKEY phkResult, LPDWORD /*pdwDisposition*/)
{
    // Intended: another number than that of a failed open.
    return openBelowRoot(hKey, pSubKey, phkResult) ? ERROR_SUCCESS : ERROR_INVALID_HANDLE;
}

LONG RegCreateKeyExW_E(HKEY hKey, LPCWSTR pSubKey, DWORD dwReserved, LPCWSTR pClass,
                       DWORD dwOptions, REGSAM samDesired, const void* pSecurity, PHKEY phkResult,
                       LPDWORD pdwDisposition)
{
    return RegCreateKeyExA_E(hKey, narrowName(pSubKey).c_str(), dwReserved,
                             narrowName(pClass).c_str(), dwOptions, samDesired, pSecurity,
                             phkResult, pdwDisposition);
}

LONG RegCreateKey_E(HKEY hKey, LPCWSTR pSubKey, PHKEY phkResult)
{
    return RegCreateKeyExW_E(hKey, pSubKey, 0, nullptr, 0, 0, nullptr, phkResult, nullptr);
}

LONG RegOpenCurrentUser_E(REGSAM /*samDesired*/, PHKEY phkResult)
{
    return openRoot(HKEY_CURRENT_USER, phkResult);
}

LONG RegOpenUserClassesRoot_E(HANDLE /*hToken*/, DWORD /*dwOptions*/, REGSAM /*samDesired*/,
                              PHKEY phkResult)
{
    return openRoot(HKEY_CLASSES_ROOT, phkResult);
}

LONG RegCloseKey_E(HKEY hKey)
{
    const bool isDone = !rootComponent(hKey).isEmpty() || g_openKeys.Close(hKey);
    return isDone ? ERROR_SUCCESS : ERROR_INVALID_HANDLE;
}

LONG RegFlushKey_E(HKEY /*hKey*/)
{
    const RegistryLock lock(g_registryMutex);
    forgetRegistryListings();
    g_appRegistry.sync();
    return ERROR_SUCCESS;
}

LONG RegDisablePredefinedCache_E() { return ERROR_SUCCESS; }
