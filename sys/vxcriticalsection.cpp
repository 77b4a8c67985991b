#include <VxMFCEmu/sys/criticalsection.h>

#include <cerrno>

int InitializeCriticalSection_E(LPCRITICAL_SECTION pSection)
{
    return pSection ? pthread_mutex_init(pSection, nullptr) : EINVAL;
}

int EnterCriticalSection_E(LPCRITICAL_SECTION pSection)
{
    return pSection ? pthread_mutex_lock(pSection) : EINVAL;
}

int LeaveCriticalSection_E(LPCRITICAL_SECTION pSection)
{
    return pSection ? pthread_mutex_unlock(pSection) : EINVAL;
}

int DeleteCriticalSection_E(LPCRITICAL_SECTION pSection)
{
    return pSection ? pthread_mutex_destroy(pSection) : EINVAL;
}
