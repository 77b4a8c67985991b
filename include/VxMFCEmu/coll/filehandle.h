/// @file filehandle.h
/// Handles of files.
///
/// Differs from Win32: a file handle is a CFile_E*, to be closed with CloseHandle_E(); events,
/// mutexes and semaphores are closed with VxCloseHandle().
///
/// Threads: any; a file is used by one thread at a time.
#pragma once

#include <VxMFCEmu/sys/securityattributes.h>

inline constexpr DWORD GENERIC_READ = 0x80000000;
inline constexpr DWORD GENERIC_WRITE = 0x40000000;
inline constexpr DWORD GENERIC_EXECUTE = 0x20000000;
inline constexpr DWORD GENERIC_ALL = 0x10000000;

inline constexpr DWORD FILE_SHARE_READ = 0x00000001;
inline constexpr DWORD FILE_SHARE_WRITE = 0x00000002;
inline constexpr DWORD FILE_SHARE_DELETE = 0x00000004;

inline constexpr DWORD CREATE_NEW = 1;
inline constexpr DWORD CREATE_ALWAYS = 2;
inline constexpr DWORD OPEN_EXISTING = 3;
inline constexpr DWORD OPEN_ALWAYS = 4;
inline constexpr DWORD TRUNCATE_EXISTING = 5;

/// What CreateFile_E() returns on failure.
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(INT_PTR{-1});

/// Opens or makes a file and returns a CFile_E*, owned by the caller until CloseHandle_E();
/// INVALID_HANDLE_VALUE on failure, with the system's error number as last error. After
/// CREATE_ALWAYS and OPEN_ALWAYS the last error is ERROR_ALREADY_EXISTS when the file was there
/// before, otherwise success leaves 0.
///
/// Differs from Win32: share mode, attributes, flags and template are ignored; without any access
/// the file is opened for reading; folders cannot be opened.
VXMFC_EXPORT HANDLE CreateFile_E(LPCWSTR lpFileName, DWORD dwDesiredAccess, DWORD dwShareMode,
                                 LPSECURITY_ATTRIBUTES pAttributes, DWORD dwCreationDisposition,
                                 DWORD dwFlagsAndAttributes, HANDLE hTemplateFile);
/// Closes a file and deletes its CFile_E. FALSE for null and INVALID_HANDLE_VALUE, otherwise TRUE,
/// also when the closing fails. The handle must come from CreateFile_E().
VXMFC_EXPORT BOOL CloseHandle_E(HANDLE hFile);
