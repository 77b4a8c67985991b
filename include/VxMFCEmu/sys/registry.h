/// @file registry.h
/// The registry functions, over one settings file of the application.
///
/// Every root lives in the user's INI file that `QSettings` chooses for the organization and
/// application names which `QCoreApplication` has when this library is loaded: name the
/// application first. Linked directly, the library is loaded before `main`, the names are empty,
/// and the file is that of "Unknown Organization". A key is a group of settings, a value a setting;
/// paths are those of `QSettings`, with "/" for each backslash.
///
/// Differs from Win32:
/// - Nothing is shared with other programs, but for what `QSettings` falls back on: the files of
///   the organization and of the system are read too.
/// - Keys and values are case-sensitive.
/// - A value is the setting at key, "/" and name: a "/" in a name leads into a key, a value and a
///   key of one name are deleted together, and an empty name is not that of the default value.
/// - Sub-keys can be opened below predefined roots only. Elsewhere a root stands for its key.
/// - A key exists as long as there is a value in it or below: opening one that is not there
///   succeeds, and creating one stores nothing.
/// - Texts and numbers of 32 and 64 bits are stored, other types are not. REG_EXPAND_SZ comes back
///   as REG_SZ.
/// - Numbers come back as such from the process that wrote them. The file holds text: once it has
///   been read, by a later run or because another program changed it, they come back as REG_SZ.
/// - Queries write texts in the narrow form and look at no buffer sizes; a missing value is no
///   error.
/// - Enumeration walks all values of a key and of all keys below it; a name is a path relative to
///   the key. RegEnumValue_E() gives the texts of the values, not their names. Texts come without
///   a terminator.
/// - Deleting a value stores an empty text under its name.
///
/// Narrow names and texts that come in are UTF-8. The wide forms of the opening and querying
/// functions pass their names through WideCharToMultiByte_E() in locale "chs": a name that
/// the process's locale cannot encode comes out empty as a whole, which makes a sub-key the root
/// itself; in a locale that is not UTF-8 only ASCII gets through.
///
/// A handle that is neither a predefined root nor open gives ERROR_INVALID_HANDLE, with
/// RegDeleteKey_E() ERROR_PATH_NOT_FOUND, and nothing is touched. Writes reach the file when
/// `QSettings` writes it: at the next turn of the event loop, in RegFlushKey_E() and at exit. Its
/// errors are not reported.
///
/// Threads: any. A call is not interrupted by another one's change of the store, RegRenameKey_E()
/// and RegCopyTree_E() included. What another thread than the one that loaded the library has
/// stored is in the file after RegFlushKey_E(), a later change or the end of the program.
#pragma once

#include <VxMFCEmu/sys/registrytypes.h>

#include <type_traits>

// ---- Keys ----

/// Opens @p pSubKey below a predefined root into @p phkResult, owned by the caller until
/// RegCloseKey_E(). Null and "" are the root itself. ERROR_FILE_NOT_FOUND, writing nothing, for any
/// other @p hKey, open keys included, and for a null @p phkResult.
VXMFC_EXPORT LONG RegOpenKeyExA_E(HKEY hKey, LPCSTR pSubKey, DWORD ulOptions, REGSAM samDesired,
                                  PHKEY phkResult);
/// The same.
VXMFC_EXPORT LONG RegOpenKeyExW_E(HKEY hKey, LPCWSTR pSubKey, DWORD ulOptions, REGSAM samDesired,
                                  PHKEY phkResult);
/// The same.
VXMFC_EXPORT LONG RegOpenKeyA_E(HKEY hKey, LPCSTR pSubKey, PHKEY phkResult);
/// The same.
VXMFC_EXPORT LONG RegOpenKeyW_E(HKEY hKey, LPCWSTR pSubKey, PHKEY phkResult);

/// As RegOpenKeyExA_E(), but ERROR_INVALID_HANDLE where that fails. Nothing is stored, and the
/// disposition is not written.
VXMFC_EXPORT LONG RegCreateKeyExA_E(HKEY hKey, LPCSTR pSubKey, DWORD dwReserved, LPCSTR pClass,
                                    DWORD dwOptions, REGSAM samDesired, const void* pSecurity,
                                    PHKEY phkResult, LPDWORD pdwDisposition);
/// The same.
VXMFC_EXPORT LONG RegCreateKeyExW_E(HKEY hKey, LPCWSTR pSubKey, DWORD dwReserved, LPCWSTR pClass,
                                    DWORD dwOptions, REGSAM samDesired, const void* pSecurity,
                                    PHKEY phkResult, LPDWORD pdwDisposition);
/// The same.
VXMFC_EXPORT LONG RegCreateKey_E(HKEY hKey, LPCWSTR pSubKey, PHKEY phkResult);

/// A key for HKEY_CURRENT_USER, owned by the caller until RegCloseKey_E().
/// ERROR_INVALID_PARAMETER for a null @p phkResult.
VXMFC_EXPORT LONG RegOpenCurrentUser_E(REGSAM samDesired, PHKEY phkResult);
/// The same for HKEY_CLASSES_ROOT.
VXMFC_EXPORT LONG RegOpenUserClassesRoot_E(HANDLE hToken, DWORD dwOptions, REGSAM samDesired,
                                           PHKEY phkResult);

/// Closes an open key. Predefined roots stay open.
VXMFC_EXPORT LONG RegCloseKey_E(HKEY hKey);
/// Writes the file, and reads what others have written to it, whatever the key. Always 0.
VXMFC_EXPORT LONG RegFlushKey_E(HKEY hKey);
/// Does nothing. Always 0.
VXMFC_EXPORT LONG RegDisablePredefinedCache_E();

// ---- Values ----

/// Stores a value. Texts are read to their terminator, numbers with all their bytes: @p cbData is
/// not looked at. Types other than REG_SZ, REG_EXPAND_SZ, REG_DWORD and REG_QWORD store nothing,
/// and that is no error. A null name is that of the default value, "Default". A null @p pData is an
/// empty text; as a number it gives ERROR_INVALID_HANDLE.
VXMFC_EXPORT LONG RegSetValueExA_E(HKEY hKey, LPCSTR pValueName, DWORD dwReserved, DWORD dwType,
                                   const BYTE* pData, DWORD cbData);
/// The same for wide names and texts, which are stored as they are.
VXMFC_EXPORT LONG RegSetValueExW_E(HKEY hKey, LPCWSTR pValueName, DWORD dwReserved, DWORD dwType,
                                   const BYTE* pData, DWORD cbData);
/// The same. Differs from Win32: @p pSubKey is the name of the value.
VXMFC_EXPORT LONG RegSetValue_E(HKEY hKey, LPCWSTR pSubKey, DWORD dwType, LPCWSTR pData,
                                DWORD cbData);
/// The same. Differs from Win32: @p pSubKey is not looked at.
VXMFC_EXPORT LONG RegSetKeyValue_E(HKEY hKey, LPCWSTR pSubKey, LPCWSTR pValueName, DWORD dwType,
                                   LPCVOID pData, DWORD cbData);

/// Writes type, data and size in bytes of a value, each where the pointer is not null. Texts are
/// narrow, their size counts the terminator. A null name is that of the default value.
/// Differs from Win32: 0, with nothing written, for a missing value; the size on entry is not
/// looked at, so ask for it with a null @p pData first.
VXMFC_EXPORT LONG RegQueryValueExA_E(HKEY hKey, LPCSTR pValueName, LPDWORD pReserved,
                                     LPDWORD pdwType, BYTE* pData, LPDWORD pcbData);
/// The same for a wide name. Differs from Win32: texts come back narrow all the same.
VXMFC_EXPORT LONG RegQueryValueExW_E(HKEY hKey, LPCWSTR pValueName, LPDWORD pReserved,
                                     LPDWORD pdwType, BYTE* pData, LPDWORD pcbData);
/// The same. Differs from Win32: @p pSubKey is the name of the value; @p pValue and the flags are
/// not looked at.
VXMFC_EXPORT LONG RegGetValue_E(HKEY hKey, LPCWSTR pSubKey, LPCWSTR pValue, DWORD dwFlags,
                                LPDWORD pdwType, LPVOID pData, LPDWORD pcbData);
/// The same. Differs from Win32: @p pSubKey is the name of the value, and a number gives its bytes.
VXMFC_EXPORT LONG RegQueryValueA_E(HKEY hKey, LPCSTR pSubKey, LPSTR pData, PLONG pcbData);
/// The same, as wide text; its size in bytes, terminator included.
VXMFC_EXPORT LONG RegQueryValueW_E(HKEY hKey, LPCWSTR pSubKey, LPWSTR pData, PLONG pcbData);

/// Looks up @p nValues values and puts their data, as RegQueryValueExW_E() gives them, into
/// @p pValueBuf, each at a multiple of 8 bytes from its start; @p pdwTotalSize holds the size of
/// the buffer in bytes and receives the one needed. ERROR_MORE_DATA when the buffer is null or too
/// small, ERROR_FILE_NOT_FOUND for a missing value, ERROR_INVALID_PARAMETER for a null @p pValues
/// or @p pdwTotalSize.
VXMFC_EXPORT LONG RegQueryMultipleValues_E(HKEY hKey, PVALENT pValues, DWORD nValues,
                                           LPWSTR pValueBuf, LPDWORD pdwTotalSize);

// ---- Enumeration ----

/// Writes the name of value number @p dwIndex in the key or below it, a path relative to the key,
/// and its length in characters; nulls are left out. ERROR_PATH_NOT_FOUND behind the last one.
/// Differs from Win32: the end is not ERROR_NO_MORE_ITEMS; values, not keys, are enumerated; no
/// terminator is written, and the size of
/// the buffer is not looked at.
VXMFC_EXPORT LONG RegEnumKeyEx_E(HKEY hKey, DWORD dwIndex, LPWSTR pName, LPDWORD pcchName,
                                 LPDWORD pReserved, LPWSTR pClass, LPDWORD pcchClass,
                                 PFILETIME pftLastWriteTime);
/// The same.
VXMFC_EXPORT LONG RegEnumKey_E(HKEY hKey, DWORD dwIndex, LPWSTR pName, LPDWORD pcchName);
/// The same with the size of the buffer by value, as Win32 has it; it is not looked at.
template <typename Size, typename = std::enable_if_t<std::is_integral_v<Size>>>
LONG RegEnumKey_E(HKEY hKey, DWORD dwIndex, LPWSTR pName, Size)
{
    return RegEnumKey_E(hKey, dwIndex, pName, LPDWORD());
}
/// Writes the text of the same value, and its length in characters, with the same results. Differs
/// from Win32: it is the text that goes into @p pValueName, and nothing is written to @p pdwType,
/// @p pData and
/// @p pcbData.
VXMFC_EXPORT LONG RegEnumValue_E(HKEY hKey, DWORD dwIndex, LPWSTR pValueName, LPDWORD pcchValueName,
                                 LPDWORD pReserved, LPDWORD pdwType, BYTE* pData, LPDWORD pcbData);
/// Counts the values in the key and below it, and measures their longest name and text in 16-bit
/// units; nulls are left out. Differs from Win32: the other outputs are not written.
VXMFC_EXPORT LONG RegQueryInfoKey_E(HKEY hKey, LPWSTR pClass, LPDWORD pcchClass, LPDWORD pReserved,
                                    LPDWORD pcSubKeys, LPDWORD pcbMaxSubKeyLen,
                                    LPDWORD pcbMaxClassLen, LPDWORD pcValues,
                                    LPDWORD pcbMaxValueNameLen, LPDWORD pcbMaxValueLen,
                                    LPDWORD pcbSecurityDescriptor, PFILETIME pftLastWriteTime);

// ---- Deleting, renaming, copying ----

/// Differs from Win32: stores an empty text under the name, so that a query finds a REG_SZ of one
/// byte.
VXMFC_EXPORT LONG RegDeleteValue_E(HKEY hKey, LPCWSTR pValueName);
/// Deletes the key @p pSubKey and all below it; "" is @p hKey itself. ERROR_PATH_NOT_FOUND for a
/// @p hKey that is no key and a null @p pSubKey. Differs from Win32: a missing key is no error.
VXMFC_EXPORT LONG RegDeleteKey_E(HKEY hKey, LPCWSTR pSubKey);
/// The same; a null @p pSubKey is @p hKey itself, and a null @p hKey gives ERROR_INVALID_HANDLE.
VXMFC_EXPORT LONG RegDeleteTree_E(HKEY hKey, LPCWSTR pSubKey);
/// Differs from Win32: deletes the whole key @p pSubKey; @p pValueName is not looked at. A null
/// @p pSubKey deletes nothing and gives ERROR_INVALID_HANDLE.
VXMFC_EXPORT LONG RegDeleteKeyValue_E(HKEY hKey, LPCWSTR pSubKey, LPCWSTR pValueName);

/// Renames the value or key @p pSubKeyName below @p hKey, all below it included; null renames the
/// open key @p hKey itself. ERROR_FILE_NOT_FOUND when nothing has the old name, ERROR_ACCESS_DENIED
/// for a root, ERROR_INVALID_PARAMETER for a null or empty new name or an empty old one. Differs
/// from Win32: a value of that name is renamed too, and becomes text; the new name may lead into
/// other keys, and what is there is overwritten.
VXMFC_EXPORT LONG RegRenameKey_E(HKEY hKey, LPCWSTR pSubKeyName, LPCWSTR pNewKeyName);
/// Copies the values of the key @p pSubKey below @p hKeySrc into @p hKeyDest; null and "" are
/// @p hKeySrc itself. Differs from Win32: keys below it are not copied.
VXMFC_EXPORT LONG RegCopyTree_E(HKEY hKeySrc, LPCWSTR pSubKey, HKEY hKeyDest);
