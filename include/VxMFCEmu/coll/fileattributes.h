/// @file fileattributes.h
/// The attributes of files, and what a search for files tells of one. Win32 names and values.
///
/// Differs from Win32: READONLY is a file that nobody may write, HIDDEN a name that begins with a
/// dot; DIRECTORY and DEVICE are as the system has them, and what has none of these is NORMAL.
#pragma once

#include <VxMFCEmu/types.h>

/// @{
/// An attribute of a file or folder; those that the page above does not tell of are never set.
inline constexpr DWORD FILE_ATTRIBUTE_READONLY = 0x00000001;
inline constexpr DWORD FILE_ATTRIBUTE_HIDDEN = 0x00000002;
inline constexpr DWORD FILE_ATTRIBUTE_SYSTEM = 0x00000004;
inline constexpr DWORD FILE_ATTRIBUTE_DIRECTORY = 0x00000010;
inline constexpr DWORD FILE_ATTRIBUTE_ARCHIVE = 0x00000020;
inline constexpr DWORD FILE_ATTRIBUTE_DEVICE = 0x00000040;
inline constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x00000080;
inline constexpr DWORD FILE_ATTRIBUTE_TEMPORARY = 0x00000100;
inline constexpr DWORD FILE_ATTRIBUTE_SPARSE_FILE = 0x00000200;
inline constexpr DWORD FILE_ATTRIBUTE_REPARSE_POINT = 0x00000400;
inline constexpr DWORD FILE_ATTRIBUTE_COMPRESSED = 0x00000800;
inline constexpr DWORD FILE_ATTRIBUTE_OFFLINE = 0x00001000;
/// @}

/// What GetFileAttributes_E() returns on failure.
inline constexpr DWORD INVALID_FILE_ATTRIBUTES = 0xFFFFFFFF;

/// A file or folder that a search found.
struct _WIN32_FIND_DATAW
{
    DWORD dwFileAttributes;       ///< FILE_ATTRIBUTE_* values, never 0
    FILETIME ftCreationTime;      ///< of its last change where no such time is kept
    FILETIME ftLastAccessTime;    ///< of the last reading
    FILETIME ftLastWriteTime;     ///< of the last writing
    DWORD nFileSizeHigh;          ///< upper half of the size in bytes; 0 for a folder
    DWORD nFileSizeLow;           ///< lower half of the size
    DWORD dwReserved0;            ///< always 0
    DWORD dwReserved1;            ///< always 0
    WCHAR cFileName[260];         ///< the name without its folder, cut to 259 characters
    WCHAR cAlternateFileName[14]; ///< always empty
};
/// @{
/// Another name of the record, or a pointer to one.
using WIN32_FIND_DATA = _WIN32_FIND_DATAW;
using WIN32_FIND_DATAW = _WIN32_FIND_DATAW;
using LPWIN32_FIND_DATA = _WIN32_FIND_DATAW*;
using LPWIN32_FIND_DATAW = _WIN32_FIND_DATAW*;
/// @}
