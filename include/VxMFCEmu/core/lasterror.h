/// @file lasterror.h
/// The last-error code and the texts of system messages.
///
/// Differs from Win32: the last error is the thread's `errno` itself, so every libc call may change
/// it. It is a Win32 number after functions that say so, as those for files do, otherwise what libc
/// left. System messages have one fixed form.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

#include <cstdarg>

/// @{
/// A flag of the message functions.
inline constexpr DWORD FORMAT_MESSAGE_ALLOCATE_BUFFER = 0x00000100;
inline constexpr DWORD FORMAT_MESSAGE_IGNORE_INSERTS = 0x00000200;
inline constexpr DWORD FORMAT_MESSAGE_FROM_STRING = 0x00000400;
inline constexpr DWORD FORMAT_MESSAGE_FROM_HMODULE = 0x00000800;
inline constexpr DWORD FORMAT_MESSAGE_FROM_SYSTEM = 0x00001000;
inline constexpr DWORD FORMAT_MESSAGE_ARGUMENT_ARRAY = 0x00002000;
inline constexpr DWORD FORMAT_MESSAGE_MAX_WIDTH_MASK = 0x000000FF;
/// @}

/// The calling thread's `errno`.
VXMFC_EXPORT DWORD GetLastError();
/// Stores @p dwErrCode into the calling thread's `errno`.
VXMFC_EXPORT void SetLastError(DWORD dwErrCode);

/// Copies a message into the caller's buffer and returns the number of characters copied. With a
/// null @p lpSource the message is "system error! error number: " and @p dwMessageId; otherwise
/// @p lpSource is wide text that is copied as it stands. A text longer than @p nSize is cut to
/// @p nSize - 1 characters. 0, writing nothing, with FORMAT_MESSAGE_ALLOCATE_BUFFER, a null buffer
/// or size 0.
///
/// Differs from Win32: inserts are not expanded; the other flags, the language and the arguments
/// are ignored; a text of exactly @p nSize characters is copied whole, and its terminator follows
/// at @p lpBuffer[nSize]: give a size one below the room there is.
VXMFC_EXPORT DWORD FormatMessage_E(DWORD dwFlags, const void* lpSource, DWORD dwMessageId,
                                   DWORD dwLanguageId, wchar_t* lpBuffer, DWORD nSize,
                                   va_list* Arguments);
/// The same into a new buffer of 1024 characters, stored in @p lpBuffer, which the caller frees
/// with `free` or `LocalFree_E`; longer text is cut. 0, storing nothing, without
/// FORMAT_MESSAGE_ALLOCATE_BUFFER, for a null @p lpBuffer and when memory is out.
VXMFC_EXPORT DWORD FormatMessage_E(DWORD dwFlags, const void* lpSource, DWORD dwMessageId,
                                   DWORD dwLanguageId, wchar_t** lpBuffer, DWORD nSize,
                                   va_list* Arguments);
