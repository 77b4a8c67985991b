#include "sys/vxwinreg_p.h"

#include <VxMFCEmu/sys/registry.h>
#include <VxMFCEmu/text/conversions.h>

#include "text/vxtranscode_p.h"

#include <QtCore/QVariant>

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <utility>
#include <vector>

using namespace vx::detail;

namespace {

template <typename Value, typename Output>
void give(Output* pOutput, Value value)
{
    if (pOutput)
        *pOutput = static_cast<Output>(value);
}

QString narrowText(const BYTE* pText)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(pText));
}

QString wideText(const BYTE* pText)
{
    return wideToQString(reinterpret_cast<const wchar_t*>(pText));
}

template <typename Number>
Number numberAt(const BYTE* pData)
{
    Number number = 0;
    std::memcpy(&number, pData, sizeof number);
    return number;
}

// Null when nothing is to be stored.
QVariant toStore(DWORD dwType, const BYTE* pData, QString (*textAt)(const BYTE*))
{
    switch (dwType) {
    case REG_SZ:
    case REG_EXPAND_SZ:
        return pData ? textAt(pData) : QString(QLatin1String(""));
    case REG_DWORD:
        return numberAt<uint>(pData);
    case REG_QWORD:
        return numberAt<qulonglong>(pData);
    default:
        return {};
    }
}

// Where a value is stored; empty for what is no key.
QString valuePath(HKEY hKey, LPCSTR pName) { return registryPath(hKey, pName ? pName : "Default"); }
QString valuePath(HKEY hKey, LPCWSTR pName)
{
    return registryPath(hKey, pName ? pName : L"Default");
}

LONG setValue(const QString& path, DWORD dwType, const BYTE* pData, QString (*textAt)(const BYTE*))
{
    if (path.isEmpty() || (!pData && (dwType == REG_DWORD || dwType == REG_QWORD)))
        return ERROR_INVALID_HANDLE;
    const QVariant value = toStore(dwType, pData, textAt);
    if (value.isValid()) // Intended: the other types are no error
        storeInRegistry(path, value);
    return ERROR_SUCCESS;
}

struct Output
{
    LPDWORD pdwType;
    BYTE* pData;
    LPDWORD pcbData;
};

void giveData(const Output& output, DWORD dwType, const void* pData, std::size_t size)
{
    give(output.pdwType, dwType);
    if (output.pData)
        std::memcpy(output.pData, pData, size); // Intended: whatever room the caller says there is
    give(output.pcbData, size);
}

// Every locale leaves ASCII as it is, and most texts are: straight into the caller's buffer. False
// for a text with other characters, or with an end within, which stays for the conversion.
bool giveAsciiText(const Output& output, const QString& text)
{
    ushort all = 0;
    bool hasEnd = false;
    for (const QChar ch : text) {
        all = static_cast<ushort>(all | ch.unicode());
        hasEnd = hasEnd || ch.isNull();
    }
    if (all > 0x7F || hasEnd)
        return false;
    give(output.pdwType, REG_SZ);
    if (output.pData) {
        BYTE* const pEnd = std::transform(text.cbegin(), text.cend(), output.pData,
                                          [](QChar ch) { return static_cast<BYTE>(ch.unicode()); });
        *pEnd = 0;
    }
    give(output.pcbData, text.size() + 1);
    return true;
}

template <typename Number>
void giveNumber(const Output& output, DWORD dwType, Number number)
{
    giveData(output, dwType, &number, sizeof number);
}

void giveValue(const Output& output, const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::UInt:
        giveNumber(output, REG_DWORD, value.toUInt());
        break;
    case QMetaType::ULongLong:
        giveNumber(output, REG_QWORD, value.toULongLong());
        break;
    case QMetaType::QString: {
        const QString text = value.toString();
        if (giveAsciiText(output, text))
            break;
        const std::string narrow = WideCharToMultiByte_E(qStringToWide(text), kSimplifiedChinese);
        giveData(output, REG_SZ, narrow.c_str(), narrow.size() + 1);
        break;
    }
    default: // Intended: a missing value is no error
        break;
    }
}

LONG queryValue(const QString& path, const Output& output)
{
    if (path.isEmpty())
        return ERROR_INVALID_HANDLE;
    giveValue(output, g_appRegistry.value(path));
    return ERROR_SUCCESS;
}

QString queryPath(HKEY hKey, LPCWSTR pValueName)
{
    return pValueName ? narrowRegistryPath(hKey, pValueName) : valuePath(hKey, LPCWSTR());
}

// The data as RegQueryValueExA_E() gives them, and a terminator in any case.
std::vector<BYTE> dataOf(HKEY hKey, LPCSTR pName, LONG& result)
{
    // Held for both steps, or the value may have grown in between.
    const RegistryLock lock(g_registryMutex);
    const QString path = valuePath(hKey, pName);
    DWORD size = 0;
    result = queryValue(path, {nullptr, nullptr, &size});
    std::vector<BYTE> data(size + std::size_t(1));
    if (size > 0)
        result = queryValue(path, {nullptr, data.data(), nullptr});
    data.resize(size);
    return data;
}

} // namespace

LONG RegSetValueExA_E(HKEY hKey, LPCSTR pValueName, DWORD /*dwReserved*/, DWORD dwType,
                      const BYTE* pData, DWORD /*cbData*/)
{
    const RegistryLock lock(g_registryMutex);
    return setValue(valuePath(hKey, pValueName), dwType, pData, narrowText);
}

LONG RegSetValueExW_E(HKEY hKey, LPCWSTR pValueName, DWORD /*dwReserved*/, DWORD dwType,
                      const BYTE* pData, DWORD /*cbData*/)
{
    const RegistryLock lock(g_registryMutex);
    return setValue(valuePath(hKey, pValueName), dwType, pData, wideText);
}

LONG RegSetValue_E(HKEY hKey, LPCWSTR pSubKey, DWORD dwType, LPCWSTR pData, DWORD cbData)
{
    return RegSetValueExW_E(hKey, pSubKey, 0, dwType, reinterpret_cast<const BYTE*>(pData), cbData);
}

LONG RegSetKeyValue_E(HKEY hKey, LPCWSTR /*pSubKey*/, LPCWSTR pValueName, DWORD dwType,
                      LPCVOID pData, DWORD cbData)
{
    return RegSetValueExW_E(hKey, pValueName, 0, dwType, static_cast<const BYTE*>(pData), cbData);
}

LONG RegQueryValueExA_E(HKEY hKey, LPCSTR pValueName, LPDWORD /*pReserved*/, LPDWORD pdwType,
                        BYTE* pData, LPDWORD pcbData)
{
    const RegistryLock lock(g_registryMutex);
    return queryValue(valuePath(hKey, pValueName), {pdwType, pData, pcbData});
}

LONG RegQueryValueExW_E(HKEY hKey, LPCWSTR pValueName, LPDWORD /*pReserved*/, LPDWORD pdwType,
                        BYTE* pData, LPDWORD pcbData)
{
    const RegistryLock lock(g_registryMutex);
    return queryValue(queryPath(hKey, pValueName), {pdwType, pData, pcbData});
}

LONG RegGetValue_E(HKEY hKey, LPCWSTR pSubKey, LPCWSTR /*pValue*/, DWORD /*dwFlags*/,
                   LPDWORD pdwType, LPVOID pData, LPDWORD pcbData)
{
    return RegQueryValueExW_E(hKey, pSubKey, nullptr, pdwType, static_cast<BYTE*>(pData), pcbData);
}

LONG RegQueryValueA_E(HKEY hKey, LPCSTR pSubKey, LPSTR pData, PLONG pcbData)
{
    LONG result = ERROR_SUCCESS;
    const std::vector<BYTE> data = dataOf(hKey, pSubKey, result);
    if (data.empty())
        return result;
    if (pData)
        std::memcpy(pData, data.data(), data.size());
    give(pcbData, data.size());
    return result;
}

LONG RegQueryValueW_E(HKEY hKey, LPCWSTR pSubKey, LPWSTR pData, PLONG pcbData)
{
    LONG result = ERROR_SUCCESS;
    const std::string name = pSubKey ? _W2A(pSubKey) : std::string();
    const std::vector<BYTE> data = dataOf(hKey, pSubKey ? name.c_str() : nullptr, result);
    if (data.empty())
        return result;
    const std::string narrow(data.begin(), data.end());
    const std::wstring text = MultiByteToWideChar_E(narrow, kSimplifiedChinese);
    if (pData)
        std::wmemcpy(pData, text.c_str(), text.size() + 1);
    give(pcbData, (text.size() + 1) * sizeof(wchar_t));
    return result;
}

LONG RegQueryMultipleValues_E(HKEY hKey, PVALENT pValues, DWORD nValues, LPWSTR pValueBuf,
                              LPDWORD pdwTotalSize)
{
    constexpr std::size_t kAlignment = 8;
    const RegistryLock lock(g_registryMutex);
    if (registryPath(hKey).isEmpty())
        return ERROR_INVALID_HANDLE;
    if (!pValues || !pdwTotalSize)
        return ERROR_INVALID_PARAMETER;
    std::vector<BYTE> data;
    std::vector<VALENT> found(pValues, pValues + nValues);
    for (VALENT& value : found) {
        DWORD size = 0;
        const QString path = queryPath(hKey, value.ve_valuename);
        queryValue(path, {&value.ve_type, nullptr, &size});
        if (size == 0)
            return ERROR_FILE_NOT_FOUND;
        const std::size_t offset = (data.size() + kAlignment - 1) / kAlignment * kAlignment;
        data.resize(offset + size);
        queryValue(path, {nullptr, data.data() + offset, nullptr});
        value.ve_valuelen = size;
        value.ve_valueptr = reinterpret_cast<DWORD_PTR>(pValueBuf) + offset;
    }
    const DWORD room = std::exchange(*pdwTotalSize, static_cast<DWORD>(data.size()));
    if (room < data.size() || (!pValueBuf && !data.empty()))
        return ERROR_MORE_DATA;
    std::copy(data.begin(), data.end(), reinterpret_cast<BYTE*>(pValueBuf));
    std::copy(found.begin(), found.end(), pValues);
    return ERROR_SUCCESS;
}

LONG RegDeleteValue_E(HKEY hKey, LPCWSTR pValueName)
{
    // Intended: the value stays, as an empty text.
    return RegSetValueExW_E(hKey, pValueName, 0, REG_SZ, nullptr, 0);
}
