#include <VxMFCEmu/core/lasterror.h>
#include <VxMFCEmu/sys.h>

#include "support/waiting.h"
#include "sys/rows.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <fstream>
#include <functional>
#include <thread>
#include <vector>

namespace {

using vxtest::expectResults;
using vxtest::semaphoreName;

// Far beyond what any of these waits takes, short enough to end a test that hangs.
constexpr DWORD kLong = 30000;

constexpr wchar_t kEvent[] = L"event";
constexpr wchar_t kBack[] = L"back";
constexpr wchar_t kMutex[] = L"mutex";

void inThreads(int count, const std::function<void(int)>& work)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i)
        threads.emplace_back(work, i);
    for (std::thread& thread : threads)
        thread.join();
}

/// Waits for an event again and again: one that is set just before the waiter sleeps does not wake
/// it.
bool waitForEvent(HANDLE event)
{
    for (DWORD waited = 0; waited < kLong; waited += 20) {
        if (WaitForSingleObject(event, 20) == WAIT_OBJECT_0)
            return true;
    }
    return false;
}

TEST(Event, Results)
{
    const HANDLE automatic = CreateEvent(nullptr, FALSE, 7, kEvent);
    const HANDLE manual = CreateEventEx(nullptr, kBack, 0, 0);
    expectResults({
        {__LINE__, WaitForSingleObject(nullptr, 0), WAIT_FAILED},
        {__LINE__, WaitForSingleObject(automatic, INFINITE), WAIT_OBJECT_0},
        {__LINE__, WaitForSingleObject(automatic, 0), WAIT_TIMEOUT},
        {__LINE__, SetEvent(automatic) + SetEvent(automatic), 2},
        {__LINE__, WaitForSingleObject(automatic, kLong), WAIT_OBJECT_0},
        {__LINE__, WaitForSingleObject(automatic, 0), WAIT_TIMEOUT}, // both sets are gone
        {__LINE__, PulseEvent(automatic), FALSE},                    // Intended.
        {__LINE__, WaitForSingleObject(automatic, 0), WAIT_TIMEOUT},
        {__LINE__, WaitForSingleObject(manual, INFINITE), WAIT_OBJECT_0},
        {__LINE__, WaitForSingleObject(manual, kLong), WAIT_OBJECT_0},
        {__LINE__, ResetEvent(manual), FALSE}, // Intended.
        {__LINE__, WaitForSingleObject(manual, 0), WAIT_TIMEOUT},
        {__LINE__, GetLastError(), ETIMEDOUT},
        {__LINE__, SetEvent(nullptr) + ResetEvent(nullptr) + PulseEvent(nullptr), FALSE},
        {__LINE__, ReleaseMutex(manual) + ReleaseSemaphore(manual, 1, nullptr), FALSE},
    });
    VxCloseHandle(automatic);
    VxCloseHandle(manual);
}

TEST(Waiting, HasADeadline)
{
    const std::wstring name = vxtest::semaphoreName();
    const HANDLE handles[] = {CreateEvent(nullptr, TRUE, FALSE, kEvent),
                              CreateMutexEx(nullptr, kMutex, 4, 0),
                              CreateSemaphore(nullptr, 0, 1, name.c_str())};
    for (const HANDLE h : handles) {
        for (const DWORD limit : {0U, 1U, 60U}) {
            const ULONGLONG start = GetTickCount();
            EXPECT_EQ(WaitForSingleObject(h, limit), WAIT_TIMEOUT);
            EXPECT_EQ(GetLastError(), static_cast<DWORD>(ETIMEDOUT));
            const ULONGLONG waited = GetTickCount() - start;
            EXPECT_GE(waited + 5, limit);
            EXPECT_LT(waited, kLong / 2);
        }
    }
    expectResults({{__LINE__, ReleaseMutex(handles[1]), TRUE},
                   {__LINE__, ReleaseMutex(nullptr), FALSE},
                   {__LINE__, ReleaseSemaphore(handles[2], 1, nullptr), TRUE},
                   {__LINE__, (SetLastError(99), WaitForSingleObject(handles[1], 60)), 0},
                   {__LINE__, WaitForSingleObject(handles[2], 60), WAIT_OBJECT_0},
                   {__LINE__, GetLastError(), 99},
                   {__LINE__, ReleaseMutex(handles[1]), TRUE}});
    for (const HANDLE h : handles)
        EXPECT_EQ(VxCloseHandle(h), TRUE);
}

TEST(Waiting, AMutexLetsOneThreadInAtATime)
{
    const HANDLE mutex = CreateMutex(nullptr, FALSE, kMutex);
    long count = 0;
    inThreads(4, [&](int thread) {
        for (int i = 0; i < 10000; ++i) {
            EXPECT_EQ(WaitForSingleObject(mutex, thread % 2 == 0 ? INFINITE : kLong), 0U);
            ++count;
            EXPECT_EQ(ReleaseMutex(mutex), TRUE);
        }
    });
    EXPECT_EQ(count, 40000);
    EXPECT_EQ(VxCloseHandle(mutex), TRUE);
}

// A full ring of items: the count may not lose a unit, or a release fails or a wait hangs.
TEST(Waiting, SemaphoresHandOverItems)
{
    constexpr int kRoom = 3;
    constexpr int kItems = 10000;
    const std::wstring fullName = vxtest::semaphoreName() + L"-full";
    const std::wstring freeName = vxtest::semaphoreName() + L"-free";
    const HANDLE full = CreateSemaphore(nullptr, 0, kRoom, fullName.c_str());
    const HANDLE free = CreateSemaphore(nullptr, kRoom, kRoom, freeName.c_str());
    const HANDLE mutex = CreateMutex(nullptr, FALSE, kMutex);
    std::vector<int> ring;
    std::atomic<long> sum{0};
    inThreads(4, [&](int thread) {
        const bool produces = thread % 2 == 0;
        for (int i = 1; i <= kItems; ++i) {
            ASSERT_EQ(WaitForSingleObject(produces ? free : full, kLong), WAIT_OBJECT_0);
            ASSERT_EQ(WaitForSingleObject(mutex, kLong), WAIT_OBJECT_0);
            if (produces) {
                ring.push_back(i);
            } else if (!ring.empty()) {
                sum += ring.back();
                ring.pop_back();
            }
            EXPECT_LE(ring.size(), static_cast<std::size_t>(kRoom));
            ASSERT_EQ(ReleaseMutex(mutex), TRUE);
            ASSERT_EQ(ReleaseSemaphore(produces ? full : free, 1, nullptr), TRUE);
        }
    });
    EXPECT_EQ(sum, long{kItems} * (kItems + 1));
    for (const HANDLE h : {full, free, mutex})
        EXPECT_EQ(VxCloseHandle(h), TRUE);
}

// The item itself is guarded by nothing but the events.
TEST(Waiting, EventsHandOverItems)
{
    constexpr int kItems = 3000;
    const HANDLE there = CreateEvent(nullptr, FALSE, FALSE, kEvent);
    const HANDLE back = CreateEvent(nullptr, FALSE, FALSE, kBack);
    long item = 0;
    long sum = 0;
    std::thread consumer([&] {
        for (int i = 1; i <= kItems && waitForEvent(there); ++i) {
            sum += item;
            SetEvent(back);
        }
    });
    for (int i = 1; i <= kItems; ++i) {
        item = i;
        EXPECT_EQ(SetEvent(there), TRUE);
        ASSERT_TRUE(waitForEvent(back));
    }
    consumer.join();
    EXPECT_EQ(sum, long{kItems} * (kItems + 1) / 2);
    VxCloseHandle(there);
    VxCloseHandle(back);
}

TEST(Waiting, AnEventWakesSleepers)
{
    for (const BOOL manual : {FALSE, TRUE}) {
        const HANDLE event = CreateEvent(nullptr, manual, FALSE, kEvent);
        std::atomic<int> awake{0};
        std::thread sleepers([&] {
            inThreads(3, [&](int thread) {
                const DWORD limit = thread == 0 ? kLong : INFINITE;
                EXPECT_EQ(WaitForSingleObject(event, limit), WAIT_OBJECT_0);
                ++awake;
            });
        });
        // Again and again, as a sleeper that just found the event not set misses this time.
        EXPECT_TRUE(vxtest::waitUntil(
            [&] {
                SetEvent(event);
                return awake == 3;
            },
            static_cast<int>(kLong)));
        sleepers.join();
        VxCloseHandle(event);
    }
}

bool isAsleep(pid_t thread)
{
    std::ifstream stat("/proc/self/task/" + std::to_string(thread) + "/stat");
    const std::string text((std::istreambuf_iterator<char>(stat)), {});
    return text.find(") S ") != std::string::npos;
}

// The sleeper outlives its handle; a semaphore lets one go.
TEST(Waiting, ClosingUnderASleeper)
{
    const std::wstring name = semaphoreName();
    struct SleepRow
    {
        HANDLE handle;
        DWORD limit;
        DWORD result;
    };
    std::vector<SleepRow> rows = {
        {CreateEvent(nullptr, FALSE, FALSE, kEvent), 300, WAIT_TIMEOUT},
        {CreateSemaphore(nullptr, 0, 5, name.c_str()), INFINITE, WAIT_OBJECT_0},
    };
    if (!vxtest::kThreadSanitizer) // it reports the end of a mutex that is locked
        rows.push_back({CreateMutex(nullptr, TRUE, kMutex), 300, WAIT_TIMEOUT});
    for (const SleepRow& row : rows) {
        std::atomic<pid_t> thread{0};
        std::thread sleeper([&] {
            thread = gettid();
            EXPECT_EQ(WaitForSingleObject(row.handle, row.limit), row.result);
        });
        EXPECT_TRUE(vxtest::waitUntil([&] { return thread != 0 && isAsleep(thread); }));
        EXPECT_EQ(VxCloseHandle(row.handle), TRUE);
        sleeper.join();
    }
    g_mapVxHandle.remove(kMutex); // Intended: a locked mutex stays in the map.
}

} // namespace
