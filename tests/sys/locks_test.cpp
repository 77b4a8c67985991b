// Critical sections, mutexes, reader/writer locks, and condition variables.
#include "sys/rows.h"

namespace {

template <typename Lock>
struct Way
{
    int (*acquire)(Lock*), (*release)(Lock*); // 0 is success
    bool writes;
};

// Four threads take the two ways in turn. What a writer has half done, nobody may see.
template <typename Lock>
void expectApart(Lock* lock, const Way<Lock>& even, const Way<Lock>& odd)
{
    long first = 0, second = 0;
    inThreads(4, [&](int thread) {
        const Way<Lock>& way = thread % 2 == 0 ? even : odd;
        for (int i = 0; i < 10000; ++i) {
            EXPECT_EQ(way.acquire(lock), 0);
            if (way.writes)
                ++first;
            EXPECT_EQ(first, second + way.writes);
            if (way.writes)
                ++second;
            EXPECT_EQ(way.release(lock), 0);
        }
    });
    EXPECT_EQ(second, 20000 * (even.writes + odd.writes));
}

TEST(Locks, LetOneThreadInAtATime)
{
    CRITICAL_SECTION section;
    EXPECT_EQ(InitializeCriticalSection_E(&section), 0);
    const Way<CRITICAL_SECTION> entering{EnterCriticalSection_E, LeaveCriticalSection_E, true};
    expectApart(&section, entering, entering);
    EXPECT_EQ(DeleteCriticalSection_E(&section), 0);
    const HANDLE mutex = CreateMutex(nullptr, FALSE, L"mutex");
    const auto release = [](HANDLE h) { return ReleaseMutex(h) - TRUE; };
    expectApart(mutex, {[](HANDLE h) { return int(waitOn(h, INFINITE)); }, release, true},
                {[](HANDLE h) { return int(waitOn(h, 30000)); }, release, true});
    EXPECT_EQ(VxCloseHandle(mutex), TRUE);
}

// Intended: 0 is success, but 1 a failure of a sleep.
TEST(Locks, OfNull)
{
    EXPECT_EQ(EnterCriticalSection_E(nullptr), EINVAL);
    for (const auto call : {AcquireSRWLockExclusive, AcquireSRWLockShared, ReleaseSRWLockShared})
        EXPECT_EQ(call(nullptr), EINVAL);
    EXPECT_EQ(WakeConditionVariable(nullptr), EINVAL);
    CONDITION_VARIABLE condition = CONDITION_VARIABLE_INIT;
    CRITICAL_SECTION section = PTHREAD_MUTEX_INITIALIZER;
    EXPECT_EQ(SleepConditionVariableCS(nullptr, &section, 0), 1);
    EXPECT_EQ(SleepConditionVariableCS(&condition, nullptr, 0), 1);
}

// Intended: each release destroys the lock. The sanitizer drops what it knows of a lock that is
// destroyed, and then reports races between those whom the lock still keeps apart.
TEST(SRWLock, WorksOnAfterItsRelease)
{
    if (vxtest::kThreadSanitizer)
        GTEST_SKIP() << "the sanitizer reports every lock that is used after it was destroyed";
    SRWLOCK lock;
    EXPECT_EQ(InitializeSRWLock(&lock), 0);
    expectApart(&lock, {AcquireSRWLockExclusive, ReleaseSRWLockExclusive, true},
                {AcquireSRWLockShared, ReleaseSRWLockShared, false});
    lock = SRWLOCK_INIT;
    EXPECT_EQ(TryAcquireSRWLockExclusive(&lock), 0);
    EXPECT_EQ(TryAcquireSRWLockShared(&lock), EBUSY);
    EXPECT_EQ(AcquireSRWLockExclusive(&lock), EDEADLK);
    EXPECT_EQ(ReleaseSRWLockExclusive(&lock), 0);
    EXPECT_EQ(TryAcquireSRWLockShared(&lock), 0);
    EXPECT_EQ(TryAcquireSRWLockExclusive(&lock), EBUSY);
    EXPECT_EQ(ReleaseSRWLockShared(&lock), 0);

    CONDITION_VARIABLE condition;
    EXPECT_EQ(InitializeConditionVariable(&condition), 0);
    std::atomic<int> result{-1};
    std::thread sleeper([&] {
        SRWLOCK own = SRWLOCK_INIT; // the sleep leaves no lock behind
        AcquireSRWLockExclusive(&own);
        result = SleepConditionVariableSRW(&condition, &own, INFINITE, 0);
    });
    while (result < 0)
        WakeAllConditionVariable(&condition);
    sleeper.join();
    EXPECT_EQ(result, 0);
}

// Intended: 1 is a time-out, 0 a wake-up.
TEST(ConditionVariable, SleepsUntilWokenOrTheTimeIsOver)
{
    CONDITION_VARIABLE condition = CONDITION_VARIABLE_INIT;
    CRITICAL_SECTION section = PTHREAD_MUTEX_INITIALIZER;
    EnterCriticalSection_E(&section);
    EXPECT_EQ(SleepConditionVariableCS(&condition, &section, 20), 1);
    for (const auto wake : {WakeConditionVariable, WakeAllConditionVariable}) {
        bool passed = false;
        std::thread other([&] {
            EnterCriticalSection_E(&section);
            passed = true;
            EXPECT_EQ(wake(&condition), 0);
            LeaveCriticalSection_E(&section);
        });
        const DWORD limit = wake == WakeConditionVariable ? 60000 : INFINITE;
        while (!passed)
            EXPECT_EQ(SleepConditionVariableCS(&condition, &section, limit), 0);
        other.join();
    }
    LeaveCriticalSection_E(&section);
}

} // namespace
