// Critical sections, events and semaphores, beside the POSIX and std calls of the same work.
#include <VxMFCEmu/sys.h>

#include <benchmark/benchmark.h>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

#include <fcntl.h>
#include <semaphore.h>

namespace {

void CriticalSection(benchmark::State& state)
{
    CRITICAL_SECTION section;
    InitializeCriticalSection_E(&section);
    int failures = 0;
    for (auto _ : state) {
        failures += EnterCriticalSection_E(&section);
        failures += LeaveCriticalSection_E(&section);
    }
    DeleteCriticalSection_E(&section);
    if (failures != 0)
        state.SkipWithError("not entered");
}
BENCHMARK(CriticalSection);

void CriticalSection_raw(benchmark::State& state)
{
    pthread_mutex_t mutex;
    pthread_mutex_init(&mutex, nullptr);
    int failures = 0;
    for (auto _ : state) {
        failures += pthread_mutex_lock(&mutex);
        failures += pthread_mutex_unlock(&mutex);
    }
    pthread_mutex_destroy(&mutex);
    if (failures != 0)
        state.SkipWithError("not locked");
}
BENCHMARK(CriticalSection_raw);

constexpr wchar_t kName[] = L"/vxmfc-bench";

// The thread that made a semaphore counts more cheaply than the others: both are shown.
template <bool otherThread>
void Semaphore(benchmark::State& state)
{
    HANDLE semaphore = nullptr;
    const auto create = [&] { semaphore = CreateSemaphore(nullptr, 1, 10, kName); };
    if (otherThread)
        std::thread(create).join();
    else
        create();
    bool good = true;
    for (auto _ : state) {
        good &= WaitForSingleObject(semaphore, INFINITE) == WAIT_OBJECT_0;
        good &= ReleaseSemaphore(semaphore, 1, nullptr) == TRUE;
    }
    VxCloseHandle(semaphore);
    if (!good)
        state.SkipWithError("no unit");
}
BENCHMARK_TEMPLATE(Semaphore, false)->Name("Semaphore");
BENCHMARK_TEMPLATE(Semaphore, true)->Name("SemaphoreOfOther");

void Semaphore_raw(benchmark::State& state)
{
    sem_t* const semaphore = sem_open("/vxmfc-bench", O_CREAT, 0700, 1);
    int failures = 0;
    for (auto _ : state) {
        failures += sem_wait(semaphore);
        failures += sem_post(semaphore);
    }
    sem_close(semaphore);
    sem_unlink("/vxmfc-bench");
    if (failures != 0)
        state.SkipWithError("no unit");
}
BENCHMARK(Semaphore_raw);
BENCHMARK(Semaphore_raw)->Name("SemaphoreOfOther_raw");

/// The ball goes to the other thread and comes back, once in each round.
template <typename Ball>
void pingPong(benchmark::State& state)
{
    Ball there;
    Ball back;
    std::atomic<bool> over{false};
    std::thread other([&] {
        for (;;) {
            there.take();
            if (over)
                break;
            back.pass();
        }
    });
    for (auto _ : state) {
        there.pass();
        back.take();
    }
    over = true;
    there.pass();
    other.join();
}

class EventBall
{
public:
    EventBall() : m_event(CreateEvent(nullptr, FALSE, FALSE, m_name)) {}
    ~EventBall() { VxCloseHandle(m_event); }
    void pass() { SetEvent(m_event); }
    // With a time-out, since an event that is set just before the waiter sleeps does not wake it.
    void take()
    {
        while (WaitForSingleObject(m_event, 5) != WAIT_OBJECT_0) {
        }
    }

private:
    wchar_t m_name[1] = {};
    HANDLE m_event;
};

class ConditionBall
{
public:
    void pass()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_here = true;
        }
        m_condition.notify_one();
    }
    void take()
    {
        std::unique_lock lock(m_mutex);
        m_condition.wait(lock, [this] { return m_here; });
        m_here = false;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_condition;
    bool m_here = false;
};

void EventPingPong(benchmark::State& state) { pingPong<EventBall>(state); }
BENCHMARK(EventPingPong)->UseRealTime();
void EventPingPong_raw(benchmark::State& state) { pingPong<ConditionBall>(state); }
BENCHMARK(EventPingPong_raw)->UseRealTime();

} // namespace
