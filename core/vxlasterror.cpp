#include <VxMFCEmu/core/lasterror.h>

#include <cerrno>

DWORD GetLastError() { return static_cast<DWORD>(errno); }

void SetLastError(DWORD dwErrCode) { errno = static_cast<int>(dwErrCode); }
