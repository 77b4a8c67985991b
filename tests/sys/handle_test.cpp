#include "sys/rows.h"

namespace {

constexpr wchar_t kName[] = L"same text";
constexpr wchar_t kOther[] = L"same text";

TEST(Handle, ANameIsItsAddress)
{
    const HANDLE event = CreateEvent(nullptr, FALSE, FALSE, kName);
    const HANDLE other = CreateEvent(nullptr, FALSE, FALSE, kOther);
    EXPECT_NE(event, other);
    EXPECT_EQ(CreateEvent(nullptr, TRUE, TRUE, kName), event);
    EXPECT_EQ(Results({GetLastError(), waitOn(event, 0)}),
              Results({ERROR_ALREADY_EXISTS, WAIT_TIMEOUT}));
    EXPECT_EQ(OpenEvent(0, FALSE, kName), event);
    EXPECT_EQ(Results({!OpenMutex(0, FALSE, kName), GetLastError()}), Results({true, ENXIO}));
    EXPECT_EQ(VxCloseHandle(event), TRUE);
    EXPECT_EQ(Results({!OpenEvent(0, FALSE, kName), GetLastError()}), Results({true, ENOENT}));
    EXPECT_EQ(OpenEvent(0, FALSE, kOther), other);
    VxCloseHandle(other);
}

TEST(Handle, UnnamedObjectsShareOnePlace)
{
    const HANDLE mutex = CreateMutex(nullptr, FALSE, nullptr);
    EXPECT_EQ(CreateMutexEx(nullptr, nullptr, 8, 0), mutex);
    const HANDLE event = CreateEventEx(nullptr, nullptr, 0, 0);
    EXPECT_EQ(Results({GetLastError(), !OpenMutex(0, FALSE, nullptr)}), Results({ENXIO, true}));
    EXPECT_EQ(VxCloseHandle(mutex), TRUE);
    EXPECT_EQ(OpenEvent(0, FALSE, nullptr), event);
    EXPECT_EQ(VxCloseHandle(event), TRUE);
}

void expectUseless(HANDLE h, BOOL closes)
{
    EXPECT_EQ(Results({waitOn(h, 0), waitOn(h, INFINITE)}), Results({WAIT_FAILED, WAIT_FAILED}));
    EXPECT_EQ(Results({SetEvent(h), ResetEvent(h), PulseEvent(h), ReleaseMutex(h),
                       ReleaseSemaphore(h, 1, nullptr), VxCloseHandle(h)}),
              Results({FALSE, FALSE, FALSE, FALSE, FALSE, closes}));
}

TEST(Handle, OfNoObject)
{
    CMemFile_E file; // what the handle of a file points to
    for (const HANDLE handle : {HANDLE(), HANDLE(&file), INVALID_HANDLE_VALUE})
        expectUseless(handle, FALSE);
    // The last two the system refuses.
    constexpr Row<int, int, LPCWSTR> kRows[] = {
        {1, 1, nullptr}, {-1, 1, kName}, {0, 0, kOther}, {1, 2, L""}, {1, 2, L"/two/parts"}};
    forRows(kRows, [](int initial, int maximum, LPCWSTR name) {
        const bool isOne = maximum == 2;
        // What has no object cannot be given back: kept where it is not taken for a leak.
        static auto* const kept = new std::vector<HANDLE>;
        kept->push_back(CreateSemaphoreEx(nullptr, initial, maximum, name, 0, 0));
        EXPECT_EQ(OpenSemaphore(0, FALSE, 1, name), isOne ? kept->back() : nullptr);
        expectUseless(kept->back(), isOne);
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

TEST(Semaphore, ReleasesUpToANumber)
{
    // initial and greatest count, number to release; result, previous count and units then
    constexpr Row<int, int, int, BOOL, long, int> kRows[] = {
        {1, 5, 3, TRUE, 1, 3},   {2, 5, 1, TRUE, 2, 3},   {0, 5, 2, TRUE, 0, 2},
        {4, 5, 1, TRUE, 4, 5},   {2, 3, 2, FALSE, -7, 2}, {3, 2, 1, FALSE, -7, 3},
        {1, 5, 0, FALSE, -7, 1}, {1, 5, -1, FALSE, -7, 1}};
    forRows(kRows, [](int initial, int maximum, int number, BOOL result, long before, int units) {
        const std::wstring name = semaphoreName();
        const HANDLE h = CreateSemaphore(nullptr, initial, maximum, name.c_str());
        const auto use = [&] {
            long previous = -7;
            EXPECT_EQ(Results({ReleaseSemaphore(h, number, &previous), previous, unitsOf(h)}),
                      Results({result, before, units}));
        };
        // The thread that made it and others count on different pages.
        if (initial % 2 == 0)
            use();
        else
            std::thread(use).join();
        EXPECT_EQ(Results({ReleaseSemaphore(h, 1, nullptr), unitsOf(h), VxCloseHandle(h)}),
                  Results({TRUE, 1, TRUE}));
    });
}

TEST(Semaphore, ClosingGivesALastUnitAndTheName)
{
    const std::wstring first = semaphoreName();
    const std::wstring second = semaphoreName();
    const HANDLE closed = CreateSemaphore(nullptr, 0, 5, first.c_str());
    const HANDLE shared = CreateSemaphore(nullptr, 3, 5, second.c_str());
    EXPECT_EQ(Results({unitsOf(shared), VxCloseHandle(closed), unitsOf(shared)}),
              Results({0, TRUE, 1})); // the system has none at first
    const HANDLE fresh = CreateSemaphore(nullptr, 2, 5, first.c_str());
    EXPECT_EQ(Results({unitsOf(fresh), VxCloseHandle(shared), VxCloseHandle(fresh)}),
              Results({2, TRUE, TRUE}));
}

} // namespace
