/// @file registrytypes.h
/// What the registry functions take and give: predefined roots, access rights, types, options.
/// Win32 names and values.
#pragma once

#include <VxMFCEmu/sys/errorcodes.h>
#include <VxMFCEmu/types.h>

/// @{
/// A type of the registry functions.
using PHKEY = HKEY*;
using REGSAM = DWORD;
using LSTATUS = LONG;
/// @}

/// @{
/// A predefined root: always open, and not to be closed.
inline const HKEY HKEY_CLASSES_ROOT = reinterpret_cast<HKEY>(0xFFFFFFFF80000000UL);
inline const HKEY HKEY_CURRENT_USER = reinterpret_cast<HKEY>(0xFFFFFFFF80000001UL);
inline const HKEY HKEY_LOCAL_MACHINE = reinterpret_cast<HKEY>(0xFFFFFFFF80000002UL);
inline const HKEY HKEY_USERS = reinterpret_cast<HKEY>(0xFFFFFFFF80000003UL);
inline const HKEY HKEY_PERFORMANCE_DATA = reinterpret_cast<HKEY>(0xFFFFFFFF80000004UL);
inline const HKEY HKEY_PERFORMANCE_TEXT = reinterpret_cast<HKEY>(0xFFFFFFFF80000050UL);
inline const HKEY HKEY_PERFORMANCE_NLSTEXT = reinterpret_cast<HKEY>(0xFFFFFFFF80000060UL);
inline const HKEY HKEY_CURRENT_CONFIG = reinterpret_cast<HKEY>(0xFFFFFFFF80000005UL);
inline const HKEY HKEY_DYN_DATA = reinterpret_cast<HKEY>(0xFFFFFFFF80000006UL);
inline const HKEY HKEY_CURRENT_USER_LOCAL_SETTINGS = reinterpret_cast<HKEY>(0xFFFFFFFF80000007UL);
/// @}

/// @{
/// An access right.
inline constexpr REGSAM KEY_QUERY_VALUE = 0x0001;
inline constexpr REGSAM KEY_SET_VALUE = 0x0002;
inline constexpr REGSAM KEY_CREATE_SUB_KEY = 0x0004;
inline constexpr REGSAM KEY_ENUMERATE_SUB_KEYS = 0x0008;
inline constexpr REGSAM KEY_NOTIFY = 0x0010;
inline constexpr REGSAM KEY_CREATE_LINK = 0x0020;
inline constexpr REGSAM KEY_WOW64_64KEY = 0x0100;
inline constexpr REGSAM KEY_WOW64_32KEY = 0x0200;
inline constexpr REGSAM KEY_WOW64_RES = 0x0300;
inline constexpr REGSAM KEY_READ = 0x20019;
inline constexpr REGSAM KEY_WRITE = 0x20006;
inline constexpr REGSAM KEY_EXECUTE = 0x20019;
inline constexpr REGSAM KEY_ALL_ACCESS = 0xF003F;
/// @}

/// @{
/// A type of value.
inline constexpr DWORD REG_NONE = 0;
inline constexpr DWORD REG_SZ = 1;
inline constexpr DWORD REG_EXPAND_SZ = 2;
inline constexpr DWORD REG_BINARY = 3;
inline constexpr DWORD REG_DWORD = 4;
inline constexpr DWORD REG_DWORD_LITTLE_ENDIAN = 4;
inline constexpr DWORD REG_DWORD_BIG_ENDIAN = 5;
inline constexpr DWORD REG_LINK = 6;
inline constexpr DWORD REG_MULTI_SZ = 7;
inline constexpr DWORD REG_RESOURCE_LIST = 8;
inline constexpr DWORD REG_FULL_RESOURCE_DESCRIPTOR = 9;
inline constexpr DWORD REG_RESOURCE_REQUIREMENTS_LIST = 10;
inline constexpr DWORD REG_QWORD = 11;
inline constexpr DWORD REG_QWORD_LITTLE_ENDIAN = 11;
/// @}

/// @{
/// An option of a key.
inline constexpr DWORD REG_OPTION_RESERVED = 0;
inline constexpr DWORD REG_OPTION_NON_VOLATILE = 0;
inline constexpr DWORD REG_OPTION_VOLATILE = 1;
inline constexpr DWORD REG_OPTION_CREATE_LINK = 2;
inline constexpr DWORD REG_OPTION_BACKUP_RESTORE = 4;
inline constexpr DWORD REG_OPTION_OPEN_LINK = 8;
/// @}

/// @{
/// A disposition of RegCreateKeyExW_E(), which writes neither.
inline constexpr DWORD REG_CREATED_NEW_KEY = 1;
inline constexpr DWORD REG_OPENED_EXISTING_KEY = 2;
/// @}

/// @{
/// A flag of RegGetValue_E(), which looks at none.
inline constexpr DWORD RRF_RT_REG_NONE = 0x00000001;
inline constexpr DWORD RRF_RT_REG_SZ = 0x00000002;
inline constexpr DWORD RRF_RT_REG_EXPAND_SZ = 0x00000004;
inline constexpr DWORD RRF_RT_REG_BINARY = 0x00000008;
inline constexpr DWORD RRF_RT_REG_DWORD = 0x00000010;
inline constexpr DWORD RRF_RT_REG_MULTI_SZ = 0x00000020;
inline constexpr DWORD RRF_RT_REG_QWORD = 0x00000040;
inline constexpr DWORD RRF_RT_DWORD = RRF_RT_REG_BINARY | RRF_RT_REG_DWORD;
inline constexpr DWORD RRF_RT_QWORD = RRF_RT_REG_BINARY | RRF_RT_REG_QWORD;
inline constexpr DWORD RRF_RT_ANY = 0x0000FFFF;
inline constexpr DWORD RRF_NOEXPAND = 0x10000000;
inline constexpr DWORD RRF_ZEROONFAILURE = 0x20000000;
/// @}

/// One value that RegQueryMultipleValues_E() looks up.
struct value_entW
{
    LPWSTR ve_valuename;   ///< in: its name; null for the default value
    DWORD ve_valuelen;     ///< out: size of its data in bytes
    DWORD_PTR ve_valueptr; ///< out: address of its data in the caller's buffer
    DWORD ve_type;         ///< out: its type
};
using VALENTW = value_entW;   ///< its usual name
using PVALENTW = value_entW*; ///< a pointer to one
using VALENT = value_entW;    ///< its usual name
using PVALENT = value_entW*;  ///< a pointer to one
