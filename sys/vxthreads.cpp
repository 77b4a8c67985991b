#include <VxMFCEmu/sys/threads.h>

#include <ctime>

#include <unistd.h>

// Intended: the product wraps around at 32 bits.
void Sleep_E(DWORD dwMilliseconds) { usleep(dwMilliseconds * 1000U); }

ULONGLONG GetTickCount()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<ULONGLONG>(time.tv_sec) * 1000 +
           static_cast<ULONGLONG>(time.tv_nsec) / 1'000'000;
}

pthread_t GetCurrentThreadId() { return pthread_self(); }

DWORD GetCurrentProcessId() { return static_cast<DWORD>(getpid()); }
