// Not part of the public interface. The registry's store and its open keys.
#pragma once

#include <VxMFCEmu/sys/registrytypes.h>

#include <QtCore/QSettings>

#include <mutex>

extern QSettings g_appRegistry;

namespace vx::detail {

/// Held by the functions of the registry that use keys or the store, neither of which is made for
/// two threads at once. What follows here wants it held.
extern std::mutex g_registryMutex;
using RegistryLock = std::lock_guard<std::mutex>;

/// The path of a predefined root or of an open key; empty for every other handle.
QString registryPath(HKEY hKey);
/// Makes an open key go by another path.
void setRegistryPath(HKEY hKey, const QString& path);

/// Path and sub-key or value name in one, with "/" for each backslash of the name. Null is empty.
QString registryPath(const QString& path, QString name);
QString registryPath(const QString& path, LPCWSTR pName);
/// The same for a handle; empty for what is no key.
QString registryPath(HKEY hKey, LPCWSTR pName);
/// The same of a name in UTF-8.
QString registryPath(HKEY hKey, LPCSTR pName);
/// The same of a name that is to pass through the narrow form in locale "chs".
QString narrowRegistryPath(HKEY hKey, LPCWSTR pName);

/// Path and a name that the store has listed, which keeps its backslashes.
inline QString storedPath(const QString& path, const QString& name)
{
    return path + QLatin1Char('/') + name;
}

/// What `QSettings::allKeys()` lists in the group @p path.
QStringList registryListing(const QString& path);
/// To be called before a write of this library: remembered listings share the store's contents, and
/// it would copy them.
void forgetRegistryListings();

/// All writes of this library.
void storeInRegistry(const QString& key, const QVariant& value);
void removeFromRegistry(const QString& key);

} // namespace vx::detail
