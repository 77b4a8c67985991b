/// @file errorcodes.h
/// The error numbers that system functions return. Win32 names and values.
#pragma once

#include <VxMFCEmu/types.h>

/// @{
/// An error number.
inline constexpr LONG ERROR_SUCCESS = 0;
inline constexpr LONG NO_ERROR = 0;
inline constexpr LONG ERROR_INVALID_FUNCTION = 1;
inline constexpr LONG ERROR_FILE_NOT_FOUND = 2;
inline constexpr LONG ERROR_PATH_NOT_FOUND = 3;
inline constexpr LONG ERROR_TOO_MANY_OPEN_FILES = 4;
inline constexpr LONG ERROR_ACCESS_DENIED = 5;
inline constexpr LONG ERROR_INVALID_HANDLE = 6;
inline constexpr LONG ERROR_NOT_ENOUGH_MEMORY = 8;
inline constexpr LONG ERROR_INVALID_DATA = 13;
inline constexpr LONG ERROR_OUTOFMEMORY = 14;
inline constexpr LONG ERROR_CURRENT_DIRECTORY = 16;
inline constexpr LONG ERROR_NOT_SAME_DEVICE = 17;
inline constexpr LONG ERROR_NO_MORE_FILES = 18;
inline constexpr LONG ERROR_WRITE_PROTECT = 19;
inline constexpr LONG ERROR_NOT_READY = 21;
inline constexpr LONG ERROR_CRC = 23;
inline constexpr LONG ERROR_SEEK = 25;
inline constexpr LONG ERROR_WRITE_FAULT = 29;
inline constexpr LONG ERROR_READ_FAULT = 30;
inline constexpr LONG ERROR_GEN_FAILURE = 31;
inline constexpr LONG ERROR_SHARING_VIOLATION = 32;
inline constexpr LONG ERROR_LOCK_VIOLATION = 33;
inline constexpr LONG ERROR_HANDLE_EOF = 38;
inline constexpr LONG ERROR_HANDLE_DISK_FULL = 39;
inline constexpr LONG ERROR_NOT_SUPPORTED = 50;
inline constexpr LONG ERROR_FILE_EXISTS = 80;
inline constexpr LONG ERROR_INVALID_PARAMETER = 87;
inline constexpr LONG ERROR_BROKEN_PIPE = 109;
inline constexpr LONG ERROR_DISK_FULL = 112;
inline constexpr LONG ERROR_CALL_NOT_IMPLEMENTED = 120;
inline constexpr LONG ERROR_INSUFFICIENT_BUFFER = 122;
inline constexpr LONG ERROR_INVALID_NAME = 123;
inline constexpr LONG ERROR_MOD_NOT_FOUND = 126;
inline constexpr LONG ERROR_PROC_NOT_FOUND = 127;
inline constexpr LONG ERROR_NEGATIVE_SEEK = 131;
inline constexpr LONG ERROR_DIR_NOT_EMPTY = 145;
inline constexpr LONG ERROR_NOT_LOCKED = 158;
inline constexpr LONG ERROR_BAD_PATHNAME = 161;
inline constexpr LONG ERROR_BUSY = 170;
inline constexpr LONG ERROR_ALREADY_EXISTS = 183;
inline constexpr LONG ERROR_FILENAME_EXCED_RANGE = 206;
inline constexpr LONG ERROR_MORE_DATA = 234;
inline constexpr LONG ERROR_NO_MORE_ITEMS = 259;
inline constexpr LONG ERROR_DIRECTORY = 267;
inline constexpr LONG ERROR_NOT_OWNER = 288;
inline constexpr LONG ERROR_TOO_MANY_POSTS = 298;
inline constexpr LONG ERROR_OPERATION_ABORTED = 995;
inline constexpr LONG ERROR_NOACCESS = 998;
inline constexpr LONG ERROR_BADDB = 1009;
inline constexpr LONG ERROR_BADKEY = 1010;
inline constexpr LONG ERROR_CANTOPEN = 1011;
inline constexpr LONG ERROR_CANTREAD = 1012;
inline constexpr LONG ERROR_CANTWRITE = 1013;
inline constexpr LONG ERROR_KEY_DELETED = 1018;
inline constexpr LONG ERROR_CANCELLED = 1223;
inline constexpr LONG ERROR_TIMEOUT = 1460;
inline constexpr LONG ERROR_CANT_RESOLVE_FILENAME = 1921;
/// @}
