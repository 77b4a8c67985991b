#include "sys/vxwinreg_p.h"

#include <VxMFCEmu/sys/registry.h>

#include "text/vxtranscode_p.h"

#include <QtCore/QStringList>
#include <QtCore/QVariant>

using namespace vx::detail;

namespace {

QString withoutEmptyParts(const QString& path)
{
    return path.split(QLatin1Char('/'), Qt::SkipEmptyParts).join(QLatin1Char('/'));
}

LONG removeBelow(HKEY hKey, LPCWSTR pSubKey)
{
    const RegistryLock lock(g_registryMutex);
    const QString path = registryPath(hKey, pSubKey);
    if (path.isEmpty())
        return ERROR_INVALID_HANDLE;
    removeFromRegistry(path);
    return ERROR_SUCCESS;
}

// A value moves as text, what is below the path as it is. False when there is neither.
bool move(const QString& from, const QString& to)
{
    const QStringList names = registryListing(from);
    const bool isValue = g_appRegistry.contains(from);
    if (!isValue && names.isEmpty())
        return false;
    QVector<QVariant> values;
    values.reserve(names.size());
    for (const QString& name : names)
        values.append(g_appRegistry.value(storedPath(from, name)));
    const QString text = g_appRegistry.value(from).toString();

    removeFromRegistry(from);
    if (isValue)
        storeInRegistry(to, text);
    for (int i = 0; i < names.size(); ++i)
        storeInRegistry(storedPath(to, names[i]), values[i]);
    return true;
}

LONG renameOpenKey(HKEY hKey, const QString& path, LPCWSTR pNewName)
{
    const QString from = withoutEmptyParts(path);
    const int separator = from.lastIndexOf(QLatin1Char('/'));
    if (separator < 0)
        return ERROR_ACCESS_DENIED;
    const QString to = registryPath(from.left(separator), pNewName);
    if (!move(from, to))
        return ERROR_FILE_NOT_FOUND;
    setRegistryPath(hKey, to);
    return ERROR_SUCCESS;
}

} // namespace

LONG RegDeleteKey_E(HKEY hKey, LPCWSTR pSubKey)
{
    // Intended: another number than elsewhere for what is no key.
    const bool isRemoved = pSubKey && removeBelow(hKey, pSubKey) == ERROR_SUCCESS;
    return isRemoved ? ERROR_SUCCESS : ERROR_PATH_NOT_FOUND;
}

LONG RegDeleteTree_E(HKEY hKey, LPCWSTR pSubKey) { return removeBelow(hKey, pSubKey); }

LONG RegDeleteKeyValue_E(HKEY hKey, LPCWSTR pSubKey, LPCWSTR /*pValueName*/)
{
    // Intended: the whole key goes, not the value alone; so none is guessed for null.
    return pSubKey ? removeBelow(hKey, pSubKey) : ERROR_INVALID_HANDLE;
}

LONG RegRenameKey_E(HKEY hKey, LPCWSTR pSubKeyName, LPCWSTR pNewKeyName)
{
    const RegistryLock lock(g_registryMutex);
    const QString path = registryPath(hKey);
    if (path.isEmpty())
        return ERROR_INVALID_HANDLE;
    if (!pNewKeyName || !*pNewKeyName || (pSubKeyName && !*pSubKeyName))
        return ERROR_INVALID_PARAMETER;
    if (!pSubKeyName)
        return renameOpenKey(hKey, path, pNewKeyName);
    const bool isMoved = move(registryPath(path, pSubKeyName), registryPath(path, pNewKeyName));
    return isMoved ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
}

LONG RegCopyTree_E(HKEY hKeySrc, LPCWSTR pSubKey, HKEY hKeyDest)
{
    const RegistryLock lock(g_registryMutex);
    const QString source = registryPath(hKeySrc, pSubKey);
    const QString target = registryPath(hKeyDest);
    if (source.isEmpty() || target.isEmpty())
        return ERROR_INVALID_HANDLE;
    g_appRegistry.beginGroup(source);
    const QStringList names = g_appRegistry.childKeys(); // Intended: no keys below
    g_appRegistry.endGroup();
    for (const QString& name : names)
        storeInRegistry(storedPath(target, name), g_appRegistry.value(storedPath(source, name)));
    return ERROR_SUCCESS;
}
