// Reader/writer locks and condition variables.
#include <VxMFCEmu/sys.h>

#include "support/waiting.h"
#include "sys/rows.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <functional>
#include <thread>

namespace {

using vxtest::expectResults;

int inOtherThread(int (*call)(PSRWLOCK), PSRWLOCK lock)
{
    int result = -1;
    std::thread([&] { result = call(lock); }).join();
    return result;
}

// Intended: each release destroys the lock. The sanitizer drops what it knows of a lock that is
// destroyed, and then reports races between those whom the lock still keeps apart.
#define SKIP_UNDER_THREAD_SANITIZER()                                                              \
    if (vxtest::kThreadSanitizer)                                                                  \
    GTEST_SKIP() << "the sanitizer reports every lock that is used after it was destroyed"

TEST(SRWLock, Results)
{
    SKIP_UNDER_THREAD_SANITIZER();
    SRWLOCK lock = SRWLOCK_INIT;
    expectResults({{__LINE__, TryAcquireSRWLockExclusive(&lock), 0}, // Intended: 0 is success.
                   {__LINE__, inOtherThread(TryAcquireSRWLockShared, &lock), EBUSY},
                   {__LINE__, AcquireSRWLockExclusive(&lock), EDEADLK},
                   {__LINE__, ReleaseSRWLockExclusive(&lock), 0},
                   {__LINE__, TryAcquireSRWLockShared(&lock), 0},
                   {__LINE__, AcquireSRWLockShared(&lock), 0},
                   {__LINE__, ReleaseSRWLockShared(&lock), 0},
                   {__LINE__, inOtherThread(TryAcquireSRWLockExclusive, &lock), EBUSY},
                   {__LINE__, ReleaseSRWLockShared(&lock), 0},
                   {__LINE__, TryAcquireSRWLockExclusive(&lock), 0},
                   {__LINE__, ReleaseSRWLockExclusive(&lock), 0},
                   {__LINE__, InitializeSRWLock(&lock), 0}});
    for (const auto call :
         {InitializeSRWLock, AcquireSRWLockExclusive, AcquireSRWLockShared, ReleaseSRWLockShared,
          TryAcquireSRWLockExclusive, TryAcquireSRWLockShared, ReleaseSRWLockExclusive})
        EXPECT_EQ(call(nullptr), EINVAL);
}

TEST(SRWLock, KeepsWritersApart)
{
    SKIP_UNDER_THREAD_SANITIZER();
    SRWLOCK lock;
    ASSERT_EQ(InitializeSRWLock(&lock), 0);
    long first = 0;
    long second = 0;
    const auto work = [&](bool writes) {
        for (int i = 0; i < 20000; ++i) {
            EXPECT_EQ((writes ? AcquireSRWLockExclusive : AcquireSRWLockShared)(&lock), 0);
            first += writes;
            EXPECT_EQ(first, second + writes);
            second += writes;
            EXPECT_EQ((writes ? ReleaseSRWLockExclusive : ReleaseSRWLockShared)(&lock), 0);
        }
    };
    std::thread threads[] = {std::thread(work, true), std::thread(work, true),
                             std::thread(work, false), std::thread(work, false)};
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(first, 40000);
}

// Intended: 1 is a time-out or a failure, 0 a wake-up.
TEST(ConditionVariable, SleepsWithASection)
{
    CONDITION_VARIABLE condition = CONDITION_VARIABLE_INIT;
    CRITICAL_SECTION section;
    InitializeCriticalSection_E(&section);
    EnterCriticalSection_E(&section);
    expectResults({{__LINE__, SleepConditionVariableCS(&condition, &section, 0), 1},
                   {__LINE__, SleepConditionVariableCS(&condition, &section, 20), 1},
                   {__LINE__, SleepConditionVariableCS(nullptr, &section, 0), 1},
                   {__LINE__, SleepConditionVariableCS(&condition, nullptr, 0), 1},
                   {__LINE__, InitializeConditionVariable(nullptr), EINVAL},
                   {__LINE__, WakeConditionVariable(nullptr), EINVAL},
                   {__LINE__, WakeAllConditionVariable(nullptr), EINVAL}});
    bool passed = false;
    std::thread other([&] {
        EnterCriticalSection_E(&section);
        passed = true;
        EXPECT_EQ(WakeConditionVariable(&condition), 0);
        LeaveCriticalSection_E(&section);
    });
    while (!passed)
        ASSERT_EQ(SleepConditionVariableCS(&condition, &section, 60000), 0);
    LeaveCriticalSection_E(&section);
    other.join();
    EXPECT_EQ(DeleteCriticalSection_E(&section), 0);
}

TEST(ConditionVariable, SleepsWithALock)
{
    SKIP_UNDER_THREAD_SANITIZER();
    CONDITION_VARIABLE condition;
    ASSERT_EQ(InitializeConditionVariable(&condition), 0);
    const auto sleep = [&](DWORD limit) {
        SRWLOCK lock = SRWLOCK_INIT; // each its own: the sleep leaves no lock behind
        AcquireSRWLockExclusive(&lock);
        return SleepConditionVariableSRW(&condition, &lock, limit, 0);
    };
    EXPECT_EQ(sleep(20), 1);
    std::atomic<int> result{-1};
    std::thread sleeper([&] { result = sleep(INFINITE); });
    EXPECT_TRUE(vxtest::waitUntil([&] {
        WakeAllConditionVariable(&condition);
        return result >= 0;
    }));
    sleeper.join();
    EXPECT_EQ(result, 0);
}

} // namespace
