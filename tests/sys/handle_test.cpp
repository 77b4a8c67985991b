#include "sys/rows.h"

namespace {

constexpr wchar_t kName[] = L"same text";
constexpr wchar_t kOther[] = L"same text";

TEST(Handle, ANameIsItsAddress)
{
    const HANDLE other = CreateEvent(nullptr, FALSE, FALSE, kOther);
    for (const LPCWSTR name : {kName, LPCWSTR()}) { // Those without a name share one place.
        const HANDLE event = CreateEvent(nullptr, FALSE, FALSE, name);
        EXPECT_EQ(CreateEvent(nullptr, TRUE, TRUE, name), event);
        EXPECT_EQ(Results({GetLastError(), waitOn(event, 0), OpenEvent(0, FALSE, name) == event}),
                  Results({ERROR_ALREADY_EXISTS, WAIT_TIMEOUT, true}));
        const HANDLE mutex = CreateMutex(nullptr, FALSE, name); // takes the event's place
        EXPECT_EQ(CreateMutexEx(nullptr, name, 8, 0), mutex);
        EXPECT_EQ(Results({!OpenEvent(0, FALSE, name), GetLastError(), VxCloseHandle(event)}),
                  Results({true, ENXIO, TRUE}));
        EXPECT_EQ(OpenMutex(0, FALSE, name), mutex);
        EXPECT_EQ(Results({VxCloseHandle(mutex), !OpenMutex(0, FALSE, name), GetLastError()}),
                  Results({TRUE, true, ENOENT}));
    }
    EXPECT_EQ(OpenEvent(0, FALSE, kOther), other);
    VxCloseHandle(other);
}

void expectUseless(HANDLE h, BOOL closes)
{
    EXPECT_EQ(Results({waitOn(h, 0), waitOn(h, INFINITE), SetEvent(h), ResetEvent(h), PulseEvent(h),
                       ReleaseMutex(h), ReleaseSemaphore(h, 1, nullptr), VxCloseHandle(h)}),
              Results({WAIT_FAILED, WAIT_FAILED, FALSE, FALSE, FALSE, FALSE, FALSE, closes}));
}

TEST(Handle, OfNoObject)
{
    CMemFile_E file; // what the handle of a file points to
    for (const HANDLE handle : {HANDLE(), HANDLE(&file), INVALID_HANDLE_VALUE})
        expectUseless(handle, FALSE);
    constexpr Row<int, int, LPCWSTR> kRows[] = {
        {1, 1, nullptr}, {-1, 1, kName}, {0, 0, kOther}, {1, 2, L"/the system/refuses"}};
    forRows(kRows, [](int initial, int maximum, LPCWSTR name) {
        // What has no object cannot be given back: kept where it is not taken for a leak.
        static auto* const kept = new std::vector<HANDLE>;
        kept->push_back(CreateSemaphoreEx(nullptr, initial, maximum, name, 0, 0));
        EXPECT_EQ(OpenSemaphore(0, FALSE, 1, name), maximum == 2 ? kept->back() : nullptr);
        expectUseless(kept->back(), maximum == 2);
        EXPECT_EQ(g_mapVxHandle.remove(name), 1); // Intended: what cannot be ended stays there.
    });
}

int unitsOf(HANDLE semaphore)
{
    int units = 0;
    while (waitOn(semaphore, 0) == WAIT_OBJECT_0)
        ++units;
    return units;
}

// Closing leaves a unit behind, but not for the next one of the name.
TEST(Semaphore, ReleasesUpToANumber)
{
    // initial and greatest count, number to release; result, previous count and units then
    constexpr Row<int, int, int, BOOL, long, int> kRows[] = {
        {1, 5, 3, TRUE, 1, 3}, {2, 3, 2, FALSE, -7, 2}, {1, 5, 0, FALSE, -7, 1}};
    forRows(kRows, [](int initial, int maximum, int number, BOOL result, long before, int units) {
        const std::wstring name = semaphoreName();
        const HANDLE h = CreateSemaphore(nullptr, initial, maximum, name.c_str());
        // The thread that made it and others count on different pages.
        inThreads(1, [&](int) {
            long previous = -7;
            EXPECT_EQ(Results({ReleaseSemaphore(h, number, &previous), previous, unitsOf(h)}),
                      Results({result, before, units}));
        });
        EXPECT_EQ(Results({ReleaseSemaphore(h, 1, nullptr), unitsOf(h), VxCloseHandle(h)}),
                  Results({TRUE, 1, TRUE}));
    });
}

} // namespace
