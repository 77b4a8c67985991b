#include <VxMFCEmu/sys/profile.h>

#include "core/vxqtinternals_p.h"

#include <VxMFCEmu/text/vxqstring.h>

#include <QtCore/QSettings>
#include <QtCore/QStringBuilder>
#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <limits>

#include <unistd.h>

namespace {

QString pathOf(LPCWSTR lpFileName)
{
    const QString name = VxQString(lpFileName);
    // Qt has resources under such names.
    return name.startsWith(QLatin1Char(':')) ? QLatin1String("./") + name : name;
}

/// The file during one call.
class Profile : public QSettings
{
public:
    explicit Profile(LPCWSTR lpFileName) : QSettings(pathOf(lpFileName), QSettings::IniFormat)
    {
        setIniCodec("UTF-8");
    }
};

/// What was set is written at its end, or forgotten: a later call would write it.
class WrittenProfile : public Profile
{
public:
    using Profile::Profile;
    ~WrittenProfile() override
    {
        sync();
        if (status() != NoError)
            vx::detail::forgetUnsaved(*this);
    }
};

QString keyPath(LPCWSTR lpSection, const QString& key)
{
    return QString(VxQString(lpSection)) % QLatin1Char('/') % key;
}

QString keyPath(LPCWSTR lpSection, LPCWSTR lpKey) { return keyPath(lpSection, VxQString(lpKey)); }

/// Writing changes files, and never creates one.
bool exists(LPCWSTR lpFileName)
{
    std::array<char, 1024> name{};
    const std::size_t length =
        std::wcstombs(name.data(), lpFileName ? lpFileName : L"", name.size());
    if (length == static_cast<std::size_t>(-1))
        return false;
    if (length == name.size()) { // not terminated
        errno = ENAMETOOLONG;
        return false;
    }
    return access(name.data(), F_OK) == 0;
}

/// Writes @p text without a zero behind it, unless there is no buffer; returns its length.
DWORD putText(LPWSTR lpBuffer, DWORD nPosition, const QString& text)
{
    const CString_E wide(text);
    const auto length = static_cast<DWORD>(wide.GetLength());
    if (lpBuffer)
        std::wmemcpy(lpBuffer + nPosition, wide.GetString(), length);
    return length;
}

} // namespace

DWORD GetPrivateProfileString_E(LPCWSTR lpSection, LPCWSTR lpKey, LPCWSTR lpDefault,
                                LPWSTR lpBuffer, DWORD /*nSize*/, LPCWSTR lpFileName)
{
    const Profile file(lpFileName);
    // Intended: a list gives an empty text, not the default.
    const QString value = file.value(keyPath(lpSection, lpKey), VxQString(lpDefault)).toString();
    if (lpBuffer) // Intended: however small it is
        std::wcscpy(lpBuffer, CString_E(value).GetString());
    return static_cast<DWORD>(value.length());
}

INT GetPrivateProfileInt_E(LPCWSTR lpSection, LPCWSTR lpKey, INT nDefault, LPCWSTR lpFileName)
{
    const Profile file(lpFileName);
    return file.value(keyPath(lpSection, lpKey), nDefault).toInt();
}

DWORD GetPrivateProfileSection_E(LPCWSTR lpSection, LPWSTR lpBuffer, DWORD nSize,
                                 LPCWSTR lpFileName)
{
    WrittenProfile file(lpFileName);
    file.beginGroup(VxQString(lpSection));
    DWORD nPosition = 0;
    const QStringList keys = file.childKeys();
    for (const QString& key : keys) {
        nPosition +=
            putText(lpBuffer, nPosition,
                    key % QLatin1Char('=') % file.value(key).toString() % QLatin1Char('\r'));
        if (nPosition > nSize)
            return nSize - 2; // Intended: without regard to what has been written
    }
    return nPosition;
}

DWORD GetPrivateProfileSectionNames_E(LPWSTR lpBuffer, DWORD nSize, LPCWSTR lpFileName)
{
    if (lpBuffer)
        std::memset(lpBuffer, 0, nSize); // Intended: bytes, not characters
    const Profile file(lpFileName);
    DWORD nPosition = 0;
    const QStringList names = file.childGroups();
    for (const QString& name : names) {
        nPosition += putText(lpBuffer, nPosition, name) + 1;
        if (nSize < nPosition)
            break;
    }
    return nPosition;
}

BOOL GetPrivateProfileStruct_E(LPCWSTR lpSection, LPCWSTR lpKey, LPVOID lpStruct, UINT nSize,
                               LPCWSTR lpFileName)
{
    const Profile file(lpFileName);
    const QByteArray bytes = file.value(keyPath(lpSection, lpKey)).toByteArray();
    if (bytes.isEmpty() || !lpStruct)
        return FALSE;
    const std::size_t stored = std::min<std::size_t>(nSize, static_cast<std::size_t>(bytes.size()));
    std::memcpy(lpStruct, bytes.constData(), stored);
    std::memset(static_cast<char*>(lpStruct) + stored, 0, nSize - stored);
    return TRUE;
}

BOOL WritePrivateProfileString_E(LPCWSTR lpSection, LPCWSTR lpKey, LPCWSTR lpValue,
                                 LPCWSTR lpFileName)
{
    if (!exists(lpFileName))
        return FALSE;
    WrittenProfile file(lpFileName);
    file.beginGroup(VxQString(lpSection));
    file.setValue(VxQString(lpKey), QString(VxQString(lpValue)));
    return TRUE;
}

BOOL WritePrivateProfileSection_E(LPCWSTR lpSection, LPCWSTR lpLines, LPCWSTR lpFileName)
{
    if (!exists(lpFileName))
        return FALSE;
    WrittenProfile file(lpFileName);
    const QStringList lines = VxQString(lpLines).split(QLatin1Char('\r'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        QStringList parts = line.split(QLatin1Char('='));
        if (parts.size() == 2)
            file.setValue(keyPath(lpSection, parts[0]), parts[1].remove(QLatin1Char('"')));
    }
    return TRUE;
}

BOOL WritePrivateProfileStruct_E(LPCWSTR lpSection, LPCWSTR lpKey, LPCVOID lpStruct, UINT nSize,
                                 LPCWSTR lpFileName)
{
    constexpr auto kMaxSize = static_cast<UINT>(std::numeric_limits<int>::max());
    if ((!lpStruct && nSize != 0) || nSize > kMaxSize || !exists(lpFileName))
        return FALSE;
    WrittenProfile file(lpFileName);
    file.setValue(keyPath(lpSection, lpKey),
                  QByteArray(static_cast<const char*>(lpStruct), static_cast<int>(nSize)));
    return TRUE;
}
