#include <VxMFCEmu/sys/criticalsection.h>

// An address taken here puts the inline function into the library, for those who look it up there.
[[gnu::used]] static int (*const kExported[])(LPCRITICAL_SECTION) = {
    InitializeCriticalSection_E, EnterCriticalSection_E, LeaveCriticalSection_E,
    DeleteCriticalSection_E};
