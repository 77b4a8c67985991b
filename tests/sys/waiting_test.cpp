#include "sys/rows.h"

#include <fstream>

namespace {

// Far beyond what any of these waits takes, short enough to end a test that hangs.
constexpr DWORD kLong = 30000;

constexpr wchar_t kEvent[] = L"event";
constexpr wchar_t kMutex[] = L"mutex";

void closeAll(std::initializer_list<HANDLE> handles)
{
    for (const HANDLE h : handles)
        EXPECT_EQ(VxCloseHandle(h), TRUE);
}

TEST(Event, Results)
{
    HANDLE h = CreateEvent(nullptr, FALSE, 7, kEvent);
    EXPECT_EQ(Results({waitOn(h, INFINITE), waitOn(h, 0)}), Results({WAIT_OBJECT_0, WAIT_TIMEOUT}));
    // Two sets are one signal. Intended: pulsing and resetting give FALSE.
    EXPECT_EQ(Results({SetEvent(h), SetEvent(h), waitOn(h, kLong), waitOn(h, 0), PulseEvent(h),
                       waitOn(h, 0)}),
              Results({TRUE, TRUE, WAIT_OBJECT_0, WAIT_TIMEOUT, FALSE, WAIT_TIMEOUT}));
    closeAll({h});
    h = CreateEventEx(nullptr, kEvent, 0, 0); // a manual one, and set
    EXPECT_EQ(Results({waitOn(h, INFINITE), waitOn(h, kLong), ResetEvent(h), waitOn(h, 0)}),
              Results({WAIT_OBJECT_0, WAIT_OBJECT_0, FALSE, WAIT_TIMEOUT}));
    closeAll({h});
}

TEST(Waiting, HasADeadline)
{
    const std::wstring name = semaphoreName();
    const HANDLE event = CreateEvent(nullptr, TRUE, FALSE, kEvent);
    const HANDLE mutex = CreateMutexEx(nullptr, kMutex, 4, 0);
    const HANDLE semaphore = CreateSemaphore(nullptr, 0, 1, name.c_str());
    for (const HANDLE h : {event, mutex, semaphore}) {
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(Results({waitOn(h, 0), waitOn(h, 60), GetLastError()}),
                  Results({WAIT_TIMEOUT, WAIT_TIMEOUT, ETIMEDOUT}));
        EXPECT_TRUE(timer.elapsed() >= 55 && timer.elapsed() < kLong / 2) << timer.elapsed();
    }
    SetLastError(99);
    EXPECT_EQ(
        Results({ReleaseMutex(mutex), ReleaseSemaphore(semaphore, 1, nullptr), waitOn(mutex, 60),
                 waitOn(semaphore, 60), GetLastError(), ReleaseMutex(mutex)}),
        Results({TRUE, TRUE, WAIT_OBJECT_0, WAIT_OBJECT_0, 99, TRUE}));
    closeAll({event, mutex, semaphore});
}

// The count may not lose a unit, or a release fails or a wait hangs. More threads than have a page
// of their own to count on.
TEST(Waiting, SemaphoresHandOverItems)
{
    constexpr int kRoom = 3;
    const std::wstring fullName = semaphoreName() + L"-full", freeName = semaphoreName() + L"-free";
    const HANDLE full = CreateSemaphore(nullptr, 0, kRoom, fullName.c_str());
    const HANDLE free = CreateSemaphore(nullptr, kRoom, kRoom, freeName.c_str());
    std::atomic<int> items{0};
    inThreads(6, [&](int thread) {
        const bool produces = thread % 2 == 0;
        for (int i = 0; i < 7000; ++i) {
            ASSERT_EQ(waitOn(produces ? free : full, kLong), WAIT_OBJECT_0);
            const int there = produces ? ++items : --items;
            EXPECT_TRUE(there >= 0 && there <= kRoom) << there;
            ASSERT_EQ(ReleaseSemaphore(produces ? full : free, 1, nullptr), TRUE);
        }
    });
    closeAll({full, free});
}

// What is written before an event is set is guarded by nothing else.
TEST(Waiting, AnEventWakesSleepers)
{
    int written = 0;
    for (int round = 1; round <= 100; ++round) {
        const HANDLE event = CreateEvent(nullptr, round % 2, FALSE, kEvent);
        std::atomic<int> awake{0};
        inThreads(4, [&](int thread) {
            if (thread < 3) {
                EXPECT_EQ(waitOn(event, thread == 0 ? kLong : INFINITE), WAIT_OBJECT_0);
                EXPECT_EQ(written, round);
                ++awake;
                return;
            }
            written = round;
            // Again and again, as a sleeper that just found the event not set misses this time.
            for (; awake < 3; std::this_thread::yield())
                EXPECT_EQ(SetEvent(event), TRUE);
        });
        closeAll({event});
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
    std::vector<Row<HANDLE, DWORD, DWORD>> rows = {
        {CreateEvent(nullptr, FALSE, FALSE, kEvent), 1000, WAIT_TIMEOUT},
        {CreateSemaphore(nullptr, 0, 5, name.c_str()), INFINITE, WAIT_OBJECT_0}};
    if (!vxtest::kThreadSanitizer) // it reports the end of a mutex that is locked
        rows.emplace_back(CreateMutex(nullptr, TRUE, kMutex), 1000, WAIT_TIMEOUT);
    forRows(rows, [](HANDLE handle, DWORD limit, DWORD result) {
        std::atomic<pid_t> thread{0};
        std::thread sleeper([&] {
            thread = gettid();
            EXPECT_EQ(waitOn(handle, limit), result);
            thread = 0;
        });
        EXPECT_TRUE(vxtest::waitUntil([&] { return thread != 0 && isAsleep(thread); }));
        closeAll({handle});
        EXPECT_TRUE(thread != 0 || result == WAIT_OBJECT_0) << "closing waited for the sleeper";
        sleeper.join();
    });
    // Intended: a locked mutex stays in the map.
    EXPECT_EQ(g_mapVxHandle.remove(kMutex), vxtest::kThreadSanitizer ? 0 : 1);
}

} // namespace
