#include "sys/rows.h"

namespace {

TEST(MulDiv, CutsOff)
{
    EXPECT_EQ(Results({MulDiv_E(7, 1, 2), MulDiv_E(-7, 1, 2), MulDiv_E(7, 1, -2)}),
              Results({3, -3, -3}));
    EXPECT_EQ(
        Results({MulDiv_E(INT_MAX, 3, 4), MulDiv_E(0x40000000, 4, 1), MulDiv_E(INT_MIN, 1, -1)}),
        Results({1610612735, -1, -1}));
    // Intended: below the range the low 32 bits are left.
    EXPECT_EQ(Results({MulDiv_E(INT_MIN, 2, 1), MulDiv_E(INT_MIN, 3, 2)}),
              Results({0, 0x40000000}));
    volatile int zero = 0;
    EXPECT_DEATH(zero = MulDiv_E(1, 1, zero), ""); // Intended: not caught.
}

// Intended: reading of no bytes is bad, and writing of none to null.
TEST(PointerChecks, LookAtNoMemory)
{
    wchar_t memory = 0;
    EXPECT_EQ(Results({IsBadReadPtr_E(&memory, 1000), IsBadReadPtr_E(&memory, 0),
                       IsBadReadPtr_E(nullptr, 1), IsBadWritePtr_E(&memory, 0),
                       IsBadWritePtr_E(nullptr, 0), IsBadStringPtr_E(&memory, 1000),
                       IsBadStringPtr_E(nullptr, 1), IsBadStringPtr_E(nullptr, 0)}),
              Results({FALSE, TRUE, TRUE, FALSE, TRUE, FALSE, TRUE, FALSE}));
}

TEST(Threads, SleepingAndIds)
{
    // Intended: the last one wraps around.
    constexpr Row<DWORD, ULONGLONG> kRows[] = {{0, 0}, {30, 30}, {4294968, 0}};
    forRows(kRows, [](DWORD sleep, ULONGLONG atLeast) {
        const ULONGLONG start = GetTickCount();
        Sleep_E(sleep);
        const ULONGLONG slept = GetTickCount() - start;
        EXPECT_GE(slept + 1, atLeast);
        EXPECT_LT(slept, 20000U);
    });
    EXPECT_EQ(GetCurrentThreadId(), pthread_self());
    EXPECT_EQ(GetCurrentProcessId(), static_cast<DWORD>(getpid()));
}

} // namespace
