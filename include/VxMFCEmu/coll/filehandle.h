/// @file filehandle.h
/// Files by handle.
///
/// Failure is FALSE, or the value that is stated, with the Win32 error number as last error. What
/// is no handle of an open file, a closed one too, is ERROR_INVALID_HANDLE.
///
/// Differs from Win32: a file handle is a CFile_E*, to be closed with CloseHandle_E(); events,
/// mutexes and semaphores are closed with VxCloseHandle(). Nothing is done in the background: the
/// record for overlapped work only says where in the file.
///
/// Threads: any; a file is used by one thread at a time.
#pragma once

#include <VxMFCEmu/coll/fileattributes.h>
#include <VxMFCEmu/sys/securityattributes.h>

/// @{
/// An access for CreateFile_E(): GENERIC_ALL reads and writes, GENERIC_EXECUTE counts as none.
inline constexpr DWORD GENERIC_READ = 0x80000000;
inline constexpr DWORD GENERIC_WRITE = 0x40000000;
inline constexpr DWORD GENERIC_EXECUTE = 0x20000000;
inline constexpr DWORD GENERIC_ALL = 0x10000000;
/// @}

/// @{
/// What others may do with an open file. Deleting is never forbidden.
inline constexpr DWORD FILE_SHARE_READ = 0x00000001;
inline constexpr DWORD FILE_SHARE_WRITE = 0x00000002;
inline constexpr DWORD FILE_SHARE_DELETE = 0x00000004;
/// @}

inline constexpr DWORD CREATE_NEW = 1;        ///< ERROR_FILE_EXISTS for a file that is there
inline constexpr DWORD CREATE_ALWAYS = 2;     ///< empties a file that is there
inline constexpr DWORD OPEN_EXISTING = 3;     ///< ERROR_FILE_NOT_FOUND without a file
inline constexpr DWORD OPEN_ALWAYS = 4;       ///< makes a file where there is none
inline constexpr DWORD TRUNCATE_EXISTING = 5; ///< empties it; needs GENERIC_WRITE

/// A flag of CreateFile_E(): writing returns when the bytes are on the disk.
inline constexpr DWORD FILE_FLAG_WRITE_THROUGH = 0x80000000;
/// A flag of CreateFile_E(): closing the handle deletes the file that it opened, unless another one
/// has its name meanwhile.
inline constexpr DWORD FILE_FLAG_DELETE_ON_CLOSE = 0x04000000;
/// @{
/// A flag of CreateFile_E() that is ignored.
inline constexpr DWORD FILE_FLAG_OVERLAPPED = 0x40000000;
inline constexpr DWORD FILE_FLAG_NO_BUFFERING = 0x20000000;
inline constexpr DWORD FILE_FLAG_RANDOM_ACCESS = 0x10000000;
inline constexpr DWORD FILE_FLAG_SEQUENTIAL_SCAN = 0x08000000;
inline constexpr DWORD FILE_FLAG_BACKUP_SEMANTICS = 0x02000000;
inline constexpr DWORD FILE_FLAG_POSIX_SEMANTICS = 0x01000000;
inline constexpr DWORD FILE_FLAG_OPEN_REPARSE_POINT = 0x00200000;
/// @}

/// @{
/// What SetFilePointer_E() counts from.
inline constexpr DWORD FILE_BEGIN = 0;
inline constexpr DWORD FILE_CURRENT = 1;
inline constexpr DWORD FILE_END = 2;
/// @}

/// @{
/// A failure of SetFilePointer_E() or GetFileSize_E(), unless the last error is NO_ERROR.
inline constexpr DWORD INVALID_SET_FILE_POINTER = 0xFFFFFFFF;
inline constexpr DWORD INVALID_FILE_SIZE = 0xFFFFFFFF;
/// @}

/// What CreateFile_E() returns on failure.
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(INT_PTR{-1});

/// A number of 64 bits and its halves.
union _LARGE_INTEGER
{
    __extension__ struct
    {
        DWORD LowPart; ///< bits 0 to 31
        LONG HighPart; ///< bits 32 to 63, with the sign
    };
    /// The halves.
    struct
    {
        DWORD LowPart; ///< bits 0 to 31
        LONG HighPart; ///< bits 32 to 63, with the sign
    } u;               ///< the halves once more
    LONGLONG QuadPart; ///< all bits
};
/// @{
/// Another name of the number, or a pointer to one.
using LARGE_INTEGER = _LARGE_INTEGER;
using PLARGE_INTEGER = _LARGE_INTEGER*;
/// @}

/// Where in the file to read or write.
struct _OVERLAPPED
{
    ULONG_PTR Internal;     ///< not used
    ULONG_PTR InternalHigh; ///< set to the number of bytes read or written
    DWORD Offset;           ///< lower half of the position in bytes
    DWORD OffsetHigh;       ///< upper half of it
    HANDLE hEvent;          ///< not used
};
/// @{
/// Another name of the record, or a pointer to one.
using OVERLAPPED = _OVERLAPPED;
using LPOVERLAPPED = _OVERLAPPED*;
/// @}

/// Opens or makes a file and returns a CFile_E*, owned by the caller until CloseHandle_E();
/// INVALID_HANDLE_VALUE on failure. After CREATE_ALWAYS and OPEN_ALWAYS the last error is
/// ERROR_ALREADY_EXISTS when the file was there before, otherwise success leaves 0. Sharing is
/// as in file.h.
///
/// Differs from Win32: of attributes and flags only FILE_ATTRIBUTE_READONLY, for a file that is
/// made, FILE_FLAG_WRITE_THROUGH and FILE_FLAG_DELETE_ON_CLOSE count; the template is ignored;
/// without any access the file is opened for reading, whatever others forbid; folders cannot be
/// opened (ERROR_ACCESS_DENIED).
VXMFC_EXPORT HANDLE CreateFile_E(LPCWSTR lpFileName, DWORD dwDesiredAccess, DWORD dwShareMode,
                                 LPSECURITY_ATTRIBUTES pAttributes, DWORD dwCreationDisposition,
                                 DWORD dwFlagsAndAttributes, HANDLE hTemplateFile);
/// Closes a file and deletes its CFile_E; one that is the caller's own object is closed only. TRUE
/// also when the closing fails.
VXMFC_EXPORT BOOL CloseHandle_E(HANDLE hFile);

/// Reads up to a number of bytes and stores how many, fewer only at the end of the file: 0 behind
/// it, which is FALSE with ERROR_HANDLE_EOF when @p lpOverlapped says where to read.
VXMFC_EXPORT BOOL ReadFile_E(HANDLE hFile, LPVOID lpBuffer, DWORD nNumberOfBytesToRead,
                             LPDWORD lpNumberOfBytesRead, LPOVERLAPPED lpOverlapped);
/// Writes bytes and stores how many, also on failure.
VXMFC_EXPORT BOOL WriteFile_E(HANDLE hFile, LPCVOID lpBuffer, DWORD nNumberOfBytesToWrite,
                              LPDWORD lpNumberOfBytesWritten, LPOVERLAPPED lpOverlapped);
/// Moves the position and returns its lower half, storing the upper one. INVALID_SET_FILE_POINTER
/// on failure; the position may end with these bits as well, then the last error is NO_ERROR.
/// Without @p lpDistanceToMoveHigh the distance is signed, and a position beyond 32 bits is
/// ERROR_INVALID_PARAMETER.
VXMFC_EXPORT DWORD SetFilePointer_E(HANDLE hFile, LONG lDistanceToMove, PLONG lpDistanceToMoveHigh,
                                    DWORD dwMoveMethod);
/// Moves the position and stores it, if @p lpNewFilePointer is given.
VXMFC_EXPORT BOOL SetFilePointerEx_E(HANDLE hFile, LARGE_INTEGER liDistanceToMove,
                                     PLARGE_INTEGER lpNewFilePointer, DWORD dwMoveMethod);
/// The lower half of the length, storing the upper one; INVALID_FILE_SIZE on failure; the length
/// may end with these bits as well, then the last error is NO_ERROR.
VXMFC_EXPORT DWORD GetFileSize_E(HANDLE hFile, LPDWORD lpFileSizeHigh);
/// Stores the length in bytes; null is ERROR_INVALID_PARAMETER.
VXMFC_EXPORT BOOL GetFileSizeEx_E(HANDLE hFile, PLARGE_INTEGER lpFileSize);
/// Cuts or extends the file to the position.
VXMFC_EXPORT BOOL SetEndOfFile_E(HANDLE hFile);
/// Returns when what was written is on the disk: ERROR_ACCESS_DENIED for a file that is only read.
VXMFC_EXPORT BOOL FlushFileBuffers_E(HANDLE hFile);
