// Critical sections, reader/writer locks, mutexes, and condition variables.
#include "sys/rows.h"

namespace {

// Intended: each release destroys the lock. The sanitizer drops what it knows of a lock that is
// destroyed, and then reports races between those whom the lock still keeps apart.
#define SKIP_UNDER_THREAD_SANITIZER()                                                              \
    if (vxtest::kThreadSanitizer)                                                                  \
    GTEST_SKIP() << "the sanitizer reports every lock that is used after it was destroyed"

template <typename Lock>
struct Way
{
    int (*acquire)(Lock*), (*release)(Lock*); // 0 is success
    bool writes;
};

// Four threads take the ways in turn. What a writer has half done, nobody may see.
template <typename Lock>
void expectApart(Lock* lock, long written, std::initializer_list<Way<Lock>> ways)
{
    long first = 0;
    long second = 0;
    inThreads(4, [&](int thread) {
        const auto& [acquire, release, writes] = ways.begin()[thread % ways.size()];
        for (int i = 0; i < 10000; ++i) {
            EXPECT_EQ(acquire(lock), 0);
            if (writes)
                ++first;
            EXPECT_EQ(first, second + writes);
            if (writes)
                ++second;
            EXPECT_EQ(release(lock), 0);
        }
    });
    EXPECT_EQ(second, written);
}

TEST(CriticalSection, LetsOneThreadInAtATime)
{
    CRITICAL_SECTION section;
    EXPECT_EQ(InitializeCriticalSection_E(&section), 0);
    expectApart(&section, 40000, {{EnterCriticalSection_E, LeaveCriticalSection_E, true}});
    EXPECT_EQ(DeleteCriticalSection_E(&section), 0);
    for (const auto call : {InitializeCriticalSection_E, EnterCriticalSection_E,
                            LeaveCriticalSection_E, DeleteCriticalSection_E})
        EXPECT_EQ(call(nullptr), EINVAL);
}

TEST(Mutex, LetsOneThreadInAtATime)
{
    const HANDLE mutex = CreateMutex(nullptr, FALSE, L"mutex");
    const auto release = [](HANDLE h) { return ReleaseMutex(h) - TRUE; };
    expectApart(mutex, 40000,
                {{[](HANDLE h) { return int(waitOn(h, INFINITE)); }, release, true},
                 {[](HANDLE h) { return int(waitOn(h, 30000)); }, release, true}});
    EXPECT_EQ(VxCloseHandle(mutex), TRUE);
}

TEST(SRWLock, KeepsWritersApart)
{
    SKIP_UNDER_THREAD_SANITIZER();
    SRWLOCK lock;
    EXPECT_EQ(InitializeSRWLock(&lock), 0);
    expectApart(&lock, 20000,
                {{AcquireSRWLockExclusive, ReleaseSRWLockExclusive, true},
                 {AcquireSRWLockShared, ReleaseSRWLockShared, false}});
}

// Intended: 0 is success.
TEST(SRWLock, Results)
{
    SKIP_UNDER_THREAD_SANITIZER();
    SRWLOCK lock = SRWLOCK_INIT;
    const auto other = [&lock](int (*call)(PSRWLOCK)) {
        int result = -1;
        std::thread([&] { result = call(&lock); }).join();
        return result;
    };
    EXPECT_EQ(Results({TryAcquireSRWLockExclusive(&lock), other(TryAcquireSRWLockShared),
                       AcquireSRWLockExclusive(&lock), ReleaseSRWLockExclusive(&lock)}),
              Results({0, EBUSY, EDEADLK, 0}));
    EXPECT_EQ(Results({TryAcquireSRWLockShared(&lock), AcquireSRWLockShared(&lock),
                       ReleaseSRWLockShared(&lock), other(TryAcquireSRWLockExclusive),
                       ReleaseSRWLockShared(&lock), other(TryAcquireSRWLockExclusive)}),
              Results({0, 0, 0, EBUSY, 0, 0}));
    for (const auto call :
         {InitializeSRWLock, AcquireSRWLockExclusive, AcquireSRWLockShared, ReleaseSRWLockShared,
          TryAcquireSRWLockExclusive, TryAcquireSRWLockShared, ReleaseSRWLockExclusive})
        EXPECT_EQ(call(nullptr), EINVAL);
}

// Intended: 1 is a time-out or a failure, 0 a wake-up.
TEST(ConditionVariable, SleepsUntilWokenOrTheTimeIsOver)
{
    CONDITION_VARIABLE condition = CONDITION_VARIABLE_INIT;
    CRITICAL_SECTION section = PTHREAD_MUTEX_INITIALIZER;
    for (const auto wake : {WakeConditionVariable, WakeAllConditionVariable}) {
        const DWORD limit = wake == WakeConditionVariable ? 60000 : INFINITE;
        bool passed = false;
        EnterCriticalSection_E(&section);
        std::thread other([&] {
            EnterCriticalSection_E(&section);
            passed = true;
            EXPECT_EQ(wake(&condition), 0);
            LeaveCriticalSection_E(&section);
        });
        while (!passed)
            EXPECT_EQ(SleepConditionVariableCS(&condition, &section, limit), 0);
        LeaveCriticalSection_E(&section);
        other.join();
        EXPECT_EQ(wake(nullptr), EINVAL);
    }
    EnterCriticalSection_E(&section);
    EXPECT_EQ(Results({SleepConditionVariableCS(&condition, &section, 20),
                       SleepConditionVariableCS(nullptr, &section, 0),
                       SleepConditionVariableCS(&condition, nullptr, 0)}),
              Results({1, 1, 1}));
    LeaveCriticalSection_E(&section);
    EXPECT_EQ(InitializeConditionVariable(nullptr), EINVAL);
}

TEST(ConditionVariable, SleepsWithALock)
{
    SKIP_UNDER_THREAD_SANITIZER();
    CONDITION_VARIABLE condition;
    EXPECT_EQ(InitializeConditionVariable(&condition), 0);
    std::atomic<int> result{-1};
    const auto sleep = [&](DWORD limit) {
        SRWLOCK lock = SRWLOCK_INIT; // each its own: the sleep leaves no lock behind
        AcquireSRWLockExclusive(&lock);
        result = SleepConditionVariableSRW(&condition, &lock, limit, 0);
    };
    sleep(20);
    EXPECT_EQ(result.exchange(-1), 1);
    std::thread sleeper(sleep, INFINITE);
    while (result < 0)
        WakeAllConditionVariable(&condition);
    sleeper.join();
    EXPECT_EQ(result, 0);
}

} // namespace
