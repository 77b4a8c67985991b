#include <VxMFCEmu/coll.h>
#include <VxMFCEmu/core/lasterror.h>
#include <VxMFCEmu/sys.h>

#include "sys/rows.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <thread>

namespace {

using vxtest::expectResults;
using vxtest::semaphoreName;

constexpr wchar_t kName[] = L"same text";
constexpr wchar_t kOther[] = L"same text";
const HANDLE kNone = nullptr;

TEST(Handle, ANameIsItsAddress)
{
    const HANDLE event = CreateEvent(nullptr, FALSE, FALSE, kName);
    const HANDLE other = CreateEvent(nullptr, FALSE, FALSE, kOther);
    ASSERT_NE(event, kNone);
    EXPECT_NE(event, other);
    expectResults({{__LINE__, CreateEvent(nullptr, TRUE, TRUE, kName) == event, true},
                   {__LINE__, GetLastError(), ERROR_ALREADY_EXISTS},
                   {__LINE__, WaitForSingleObject(event, 0), WAIT_TIMEOUT},
                   {__LINE__, OpenEvent(0, FALSE, kName) == event, true},
                   {__LINE__, OpenMutex(0, FALSE, kName) == kNone, true},
                   {__LINE__, GetLastError(), ENXIO},
                   {__LINE__, VxCloseHandle(event), TRUE},
                   {__LINE__, OpenEvent(0, FALSE, kName) == kNone, true},
                   {__LINE__, GetLastError(), ENOENT},
                   {__LINE__, OpenEvent(0, FALSE, kOther) == other, true},
                   {__LINE__, VxCloseHandle(other), TRUE},
                   {__LINE__, VxCloseHandle(nullptr), FALSE}});
}

TEST(Handle, UnnamedObjectsShareOnePlace)
{
    const HANDLE mutex = CreateMutex(nullptr, FALSE, nullptr);
    EXPECT_EQ(CreateMutexEx(nullptr, nullptr, 8, 0), mutex);
    EXPECT_EQ(GetLastError(), ERROR_ALREADY_EXISTS);
    const HANDLE event = CreateEventEx(nullptr, nullptr, 0, 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ENXIO));
    expectResults({{__LINE__, OpenMutex(0, FALSE, nullptr) == kNone, true},
                   {__LINE__, OpenEvent(0, FALSE, nullptr) == event, true},
                   {__LINE__, VxCloseHandle(mutex), TRUE},
                   {__LINE__, OpenEvent(0, FALSE, nullptr) == event, true},
                   {__LINE__, VxCloseHandle(event), TRUE}});
}

TEST(Handle, OfNoObject)
{
    struct
    {
        int initial, maximum;
        const wchar_t* name;
    } const rows[] = {{1, 1, nullptr}, {-1, 1, kName}, {0, 0, kOther}};
    // Such a record cannot be given back: kept where it is not taken for a leak.
    static HANDLE kept[std::size(rows)];
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const auto& [initial, maximum, name] = rows[i];
        const HANDLE h = kept[i] = CreateSemaphoreEx(nullptr, initial, maximum, name, 0, 0);
        ASSERT_NE(h, kNone);
        expectResults({{__LINE__, WaitForSingleObject(h, 0), WAIT_FAILED},
                       {__LINE__, WaitForSingleObject(h, INFINITE), WAIT_FAILED},
                       {__LINE__, ReleaseSemaphore(h, 1, nullptr), FALSE},
                       {__LINE__, SetEvent(h), FALSE},
                       {__LINE__, ReleaseMutex(h), FALSE},
                       {__LINE__, OpenSemaphore(0, FALSE, 1, name) == kNone, true},
                       {__LINE__, VxCloseHandle(h), FALSE},
                       {__LINE__, g_mapVxHandle.remove(name) == 1, true}});
    }
}

// Intended: what cannot be destroyed is freed and stays in the map. The tests take it out again.
TEST(Handle, OfAFileIsOfNoKind)
{
    CMemFile_E file; // what the handle of a file points to
    for (const HANDLE handle : {HANDLE(&file), INVALID_HANDLE_VALUE}) {
        expectResults({{__LINE__, WaitForSingleObject(handle, 0), WAIT_FAILED},
                       {__LINE__, SetEvent(handle), FALSE},
                       {__LINE__, ReleaseMutex(handle), FALSE},
                       {__LINE__, ReleaseSemaphore(handle, 1, nullptr), FALSE},
                       {__LINE__, VxCloseHandle(handle), FALSE}});
    }
}

TEST(Handle, ASemaphoreThatTheSystemRefuses)
{
    for (const wchar_t* const name : {L"", L"/two/parts"}) {
        const HANDLE h = CreateSemaphore(nullptr, 1, 2, name);
        EXPECT_EQ(OpenSemaphore(0, FALSE, 2, name), h);
        expectResults({{__LINE__, WaitForSingleObject(h, 0), WAIT_FAILED},
                       {__LINE__, WaitForSingleObject(h, INFINITE), WAIT_FAILED},
                       {__LINE__, ReleaseSemaphore(h, 1, nullptr), FALSE},
                       {__LINE__, VxCloseHandle(h), TRUE},
                       {__LINE__, g_mapVxHandle.remove(name) == 1, true}});
    }
}

TEST(Handle, ALockedMutexStaysInTheMap)
{
    if (vxtest::kThreadSanitizer)
        GTEST_SKIP() << "the sanitizer reports every mutex that is destroyed while it is locked";
    const HANDLE h = CreateMutex(nullptr, TRUE, kName);
    EXPECT_EQ(VxCloseHandle(h), TRUE);
    EXPECT_EQ(g_mapVxHandle.remove(kName), 1);
}

int unitsOf(HANDLE semaphore)
{
    int units = 0;
    while (WaitForSingleObject(semaphore, 0) == WAIT_OBJECT_0)
        ++units;
    return units;
}

TEST(Semaphore, ReleasesUpToANumber)
{
    struct
    {
        int line, initial, maximum, number;
        BOOL result;
        long previous;
        int units;
    } const rows[] = {
        {__LINE__, 1, 5, 3, TRUE, 1, 3},   {__LINE__, 2, 5, 1, TRUE, 2, 3},
        {__LINE__, 0, 5, 2, TRUE, 0, 2},   {__LINE__, 4, 5, 1, TRUE, 4, 5},
        {__LINE__, 2, 3, 2, FALSE, -7, 2}, {__LINE__, 3, 2, 1, FALSE, -7, 3},
        {__LINE__, 1, 5, 0, FALSE, -7, 1}, {__LINE__, 1, 5, -1, FALSE, -7, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const std::wstring name = semaphoreName();
        const HANDLE h = CreateSemaphore(nullptr, row.initial, row.maximum, name.c_str());
        const auto use = [&] {
            long previous = -7;
            EXPECT_EQ(ReleaseSemaphore(h, row.number, &previous), row.result);
            EXPECT_EQ(previous, row.previous);
            EXPECT_EQ(unitsOf(h), row.units);
        };
        // The thread that made it and others count on different pages.
        if (row.line % 2 == 0)
            use();
        else
            std::thread(use).join();
        EXPECT_EQ(ReleaseSemaphore(h, 1, nullptr), TRUE);
        EXPECT_EQ(unitsOf(h), 1);
        EXPECT_EQ(VxCloseHandle(h), TRUE);
    }
}

TEST(Semaphore, ClosingGivesALastUnitAndTheName)
{
    const std::wstring first = semaphoreName();
    const std::wstring second = semaphoreName();
    const HANDLE closed = CreateSemaphore(nullptr, 0, 5, first.c_str());
    const HANDLE shared = CreateSemaphore(nullptr, 3, 5, second.c_str());
    EXPECT_EQ(WaitForSingleObject(shared, 0), WAIT_TIMEOUT) << "the system has no unit";
    EXPECT_EQ(VxCloseHandle(closed), TRUE);
    EXPECT_EQ(unitsOf(shared), 1);
    const HANDLE fresh = CreateSemaphore(nullptr, 2, 5, first.c_str());
    EXPECT_EQ(unitsOf(fresh), 2);
    EXPECT_EQ(VxCloseHandle(shared), TRUE);
    EXPECT_EQ(VxCloseHandle(fresh), TRUE);
}

} // namespace
