/// @file filefunctions.h
/// Files and folders by name.
///
/// Failure is FALSE, or the value that is stated, with the Win32 error number as last error; a null
/// or empty name is ERROR_PATH_NOT_FOUND. Names may be separated by "/" or "\".
///
/// Differs from Win32: names are case-sensitive, except those that FindFirstFile_E() looks for; a
/// file that is open can be deleted and renamed.
///
/// Threads: any; a search is used by one thread at a time.
#pragma once

#include <VxMFCEmu/coll/fileattributes.h>
#include <VxMFCEmu/sys/securityattributes.h>

/// @{
/// A flag of MoveFileEx_E().
inline constexpr DWORD MOVEFILE_REPLACE_EXISTING = 0x00000001;
inline constexpr DWORD MOVEFILE_COPY_ALLOWED = 0x00000002;
inline constexpr DWORD MOVEFILE_DELAY_UNTIL_REBOOT = 0x00000004; ///< ERROR_NOT_SUPPORTED
inline constexpr DWORD MOVEFILE_WRITE_THROUGH = 0x00000008;      ///< ignored
/// @}

/// Deletes a file: ERROR_ACCESS_DENIED for a folder and for a read-only file.
VXMFC_EXPORT BOOL DeleteFile_E(LPCWSTR lpFileName);
/// Renames or moves a file or folder: ERROR_ALREADY_EXISTS when there is one of the new name. A
/// file goes to another file system too, where the old one stays when it cannot be deleted; a
/// folder does not: ERROR_NOT_SAME_DEVICE.
VXMFC_EXPORT BOOL MoveFile_E(LPCWSTR lpExistingFileName, LPCWSTR lpNewFileName);
/// The same with flags: MOVEFILE_REPLACE_EXISTING replaces a file, not a folder; only
/// MOVEFILE_COPY_ALLOWED lets a file go to another file system. MOVEFILE_DELAY_UNTIL_REBOOT is
/// ERROR_NOT_SUPPORTED; others are ignored.
VXMFC_EXPORT BOOL MoveFileEx_E(LPCWSTR lpExistingFileName, LPCWSTR lpNewFileName, DWORD dwFlags);
/// Copies a file with its attributes and the time of its last writing. ERROR_FILE_EXISTS when there
/// is a file of the new name and @p bFailIfExists is set. When the copying fails, a file of the new
/// name is what it was, unless its folder lets nobody make a file: then it is written in place.
VXMFC_EXPORT BOOL CopyFile_E(LPCWSTR lpExistingFileName, LPCWSTR lpNewFileName, BOOL bFailIfExists);
/// The attributes of a file or folder; INVALID_FILE_ATTRIBUTES on failure.
VXMFC_EXPORT DWORD GetFileAttributes_E(LPCWSTR lpFileName);
/// Sets or clears READONLY of a file. Differs from Win32: the others are ignored, and so is
/// READONLY of a folder.
VXMFC_EXPORT BOOL SetFileAttributes_E(LPCWSTR lpFileName, DWORD dwFileAttributes);
/// Makes a folder: ERROR_ALREADY_EXISTS when there is something of this name, ERROR_PATH_NOT_FOUND
/// without the folder around it.
VXMFC_EXPORT BOOL CreateDirectory_E(LPCWSTR lpPathName, LPSECURITY_ATTRIBUTES pAttributes);
/// Deletes an empty folder: ERROR_DIR_NOT_EMPTY for another, ERROR_DIRECTORY for a file.
VXMFC_EXPORT BOOL RemoveDirectory_E(LPCWSTR lpPathName);

/// Begins a search, ended with FindClose_E(), and gives the first file; filefind.h has the
/// wildcards. INVALID_HANDLE_VALUE with ERROR_FILE_NOT_FOUND when there is none.
VXMFC_EXPORT HANDLE FindFirstFile_E(LPCWSTR lpFileName, LPWIN32_FIND_DATA lpFindFileData);
/// Gives the next file; FALSE with ERROR_NO_MORE_FILES after the last one.
VXMFC_EXPORT BOOL FindNextFile_E(HANDLE hFindFile, LPWIN32_FIND_DATA lpFindFileData);
/// Ends a search. For both, what is no handle of a search, an ended one too, is
/// ERROR_INVALID_HANDLE.
VXMFC_EXPORT BOOL FindClose_E(HANDLE hFindFile);
