#include "sys/vxwinreg_p.h"

#include <VxMFCEmu/sys/registry.h>

#include "core/vxqtinternals_p.h"
#include "text/vxtranscode_p.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <algorithm>

namespace vx::detail {
namespace {

// Lists a group once for a whole enumeration, where a listing for each index would take a time that
// grows with the square of their number. A listing holds as long as the contents of the store are
// the very same; who has changed them does not matter.
class Listings
{
public:
    QStringList Of(const QString& path)
    {
        if (m_contents.IsOf(g_appRegistry)) {
            const auto found = m_listings.constFind(path);
            if (found != m_listings.cend())
                return *found;
        } else {
            m_listings.clear();
            m_contents.Take(g_appRegistry); // first: a change meanwhile makes the listing outdated
        }
        m_isEmpty = false;
        return *m_listings.insert(path, Read(path));
    }

    void Forget()
    {
        if (m_isEmpty) // mostly: writes come in rows
            return;
        m_listings.clear();
        m_contents.Drop();
        m_isEmpty = true;
    }

private:
    static QStringList Read(const QString& path)
    {
        g_appRegistry.beginGroup(path);
        QStringList names = g_appRegistry.allKeys();
        g_appRegistry.endGroup();
        return names;
    }

    bool m_isEmpty = true;
    QHash<QString, QStringList> m_listings;
    SettingsContents m_contents;
};

Listings g_listings;

QString textAt(const QString& path, const QString& name)
{
    return g_appRegistry.value(storedPath(path, name)).toString();
}

// Intended: no terminator, and whatever room the caller says there is.
void giveText(const QString& text, LPWSTR pBuffer, LPDWORD pLength)
{
    const std::wstring wide = qStringToWide(text);
    if (pBuffer)
        std::copy(wide.begin(), wide.end(), pBuffer);
    if (pLength)
        *pLength = static_cast<DWORD>(wide.size());
}

// Gives what @p textOf makes of path and name number @p dwIndex.
template <typename TextOf>
LONG enumerate(HKEY hKey, DWORD dwIndex, LPWSTR pBuffer, LPDWORD pLength, TextOf textOf)
{
    const RegistryLock lock(g_registryMutex);
    const QString path = registryPath(hKey);
    if (path.isEmpty())
        return ERROR_INVALID_HANDLE;
    const QStringList names = registryListing(path);
    if (dwIndex >= static_cast<DWORD>(names.size()))
        return ERROR_PATH_NOT_FOUND;
    giveText(textOf(path, names.at(static_cast<int>(dwIndex))), pBuffer, pLength);
    return ERROR_SUCCESS;
}

void giveCount(LPDWORD pOutput, int count)
{
    if (pOutput)
        *pOutput = static_cast<DWORD>(count);
}

} // namespace

QStringList registryListing(const QString& path) { return g_listings.Of(path); }
void forgetRegistryListings() { g_listings.Forget(); }

} // namespace vx::detail

using namespace vx::detail;

LONG RegEnumKeyEx_E(HKEY hKey, DWORD dwIndex, LPWSTR pName, LPDWORD pcchName, LPDWORD /*pReserved*/,
                    LPWSTR /*pClass*/, LPDWORD /*pcchClass*/, PFILETIME /*pftLastWriteTime*/)
{
    // Intended: the names of values.
    return enumerate(hKey, dwIndex, pName, pcchName,
                     [](const QString&, const QString& name) { return name; });
}

LONG RegEnumKey_E(HKEY hKey, DWORD dwIndex, LPWSTR pName, LPDWORD pcchName)
{
    return RegEnumKeyEx_E(hKey, dwIndex, pName, pcchName, nullptr, nullptr, nullptr, nullptr);
}

LONG RegEnumValue_E(HKEY hKey, DWORD dwIndex, LPWSTR pValueName, LPDWORD pcchValueName,
                    LPDWORD /*pReserved*/, LPDWORD /*pdwType*/, BYTE* /*pData*/,
                    LPDWORD /*pcbData*/)
{
    // Intended: the text of the value, in place of its name.
    return enumerate(hKey, dwIndex, pValueName, pcchValueName, textAt);
}

LONG RegQueryInfoKey_E(HKEY hKey, LPWSTR /*pClass*/, LPDWORD /*pcchClass*/, LPDWORD /*pReserved*/,
                       LPDWORD /*pcSubKeys*/, LPDWORD /*pcbMaxSubKeyLen*/,
                       LPDWORD /*pcbMaxClassLen*/, LPDWORD pcValues, LPDWORD pcbMaxValueNameLen,
                       LPDWORD pcbMaxValueLen, LPDWORD /*pcbSecurityDescriptor*/,
                       PFILETIME /*pftLastWriteTime*/)
{
    const RegistryLock lock(g_registryMutex);
    const QString path = registryPath(hKey);
    if (path.isEmpty())
        return ERROR_INVALID_HANDLE;
    const QStringList names = registryListing(path);
    int longestName = 0;
    int longestText = 0;
    for (const QString& name : names) {
        longestName = std::max(longestName, name.size());
        longestText = std::max(longestText, textAt(path, name).size());
    }
    giveCount(pcValues, names.size());
    giveCount(pcbMaxValueNameLen, longestName);
    giveCount(pcbMaxValueLen, longestText);
    return ERROR_SUCCESS;
}
