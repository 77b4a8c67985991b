#include <VxMFCEmu/sys.h>

#include "sys/rows.h"

#include <gtest/gtest.h>

#include <climits>
#include <thread>

namespace {

TEST(MulDiv, CutsOff)
{
    struct
    {
        int line, number, numerator, denominator, result;
    } const rows[] = {
        {__LINE__, 7, 1, 2, 3},
        {__LINE__, -7, 1, 2, -3},
        {__LINE__, 7, 1, -2, -3},
        {__LINE__, INT_MAX, 3, 4, 1610612735},
        {__LINE__, 0x40000000, 4, 1, -1},
        {__LINE__, INT_MIN, 1, -1, -1},
        {__LINE__, INT_MIN, INT_MIN, INT_MIN, INT_MIN},
        {__LINE__, INT_MIN, 2, 1, 0}, // Intended: below the range the low 32 bits are left.
        {__LINE__, INT_MIN, 3, 2, INT_MIN / 2 * -1},
    };
    for (const auto& row : rows)
        EXPECT_EQ(MulDiv_E(row.number, row.numerator, row.denominator), row.result) << row.line;
    // Intended: not caught.
    volatile int zero = 0;
    EXPECT_DEATH(zero = MulDiv_E(1, 1, zero), "");
}

TEST(PointerChecks, LookAtNoMemory)
{
    wchar_t memory = 0;
    vxtest::expectResults({{__LINE__, IsBadReadPtr_E(&memory, 1000), FALSE},
                           {__LINE__, IsBadReadPtr_E(&memory, 0), TRUE}, // Intended.
                           {__LINE__, IsBadReadPtr_E(nullptr, 1), TRUE},
                           {__LINE__, IsBadWritePtr_E(&memory, 0), FALSE},
                           {__LINE__, IsBadWritePtr_E(nullptr, 0), TRUE}, // Intended.
                           {__LINE__, IsBadStringPtr_E(&memory, 1000), FALSE},
                           {__LINE__, IsBadStringPtr_E(nullptr, 1), TRUE},
                           {__LINE__, IsBadStringPtr_E(nullptr, 0), FALSE}});
}

TEST(Threads, SleepingAndTicks)
{
    struct
    {
        DWORD sleep;
        ULONGLONG atLeast;
    } const rows[] = {{0, 0}, {30, 30}, {4294968, 0}}; // Intended: the last one wraps around.
    for (const auto& [sleep, atLeast] : rows) {
        const ULONGLONG start = GetTickCount();
        Sleep_E(sleep);
        const ULONGLONG slept = GetTickCount() - start;
        EXPECT_GE(slept + 1, atLeast);
        EXPECT_LT(slept, 20000U);
    }
}

TEST(Threads, Ids)
{
    EXPECT_EQ(GetCurrentThreadId(), pthread_self());
    std::thread([main = GetCurrentThreadId()] { EXPECT_NE(GetCurrentThreadId(), main); }).join();
    EXPECT_EQ(GetCurrentProcessId(), static_cast<DWORD>(getpid()));
}

} // namespace
