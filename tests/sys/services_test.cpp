// Small services: arithmetic, checks of pointers, threads and their values.
#include "sys/rows.h"

namespace {

TEST(MulDiv, CutsOff)
{
    EXPECT_EQ(MulDiv_E(-7, 1, 2), -3);
    EXPECT_EQ(MulDiv_E(INT_MAX, 3, 4), 1610612735);
    EXPECT_EQ(MulDiv_E(0x40000000, 4, 1), -1);
    EXPECT_EQ(MulDiv_E(INT_MIN, 3, 2), 0x40000000); // Intended: the low 32 bits are left.
    volatile int zero = 0;
    EXPECT_DEATH(zero = MulDiv_E(1, 1, zero), ""); // Intended: not caught.
}

// Intended: reading of no bytes is bad, and writing of none to null.
TEST(PointerChecks, LookAtNoMemory)
{
    wchar_t memory = 0;
    EXPECT_EQ(Results({IsBadReadPtr_E(&memory, 1000), IsBadReadPtr_E(&memory, 0),
                       IsBadReadPtr_E(nullptr, 1), IsBadWritePtr_E(&memory, 0),
                       IsBadWritePtr_E(nullptr, 0), IsBadStringPtr_E(nullptr, 0)}),
              Results({FALSE, TRUE, TRUE, FALSE, TRUE, FALSE}));
}

TEST(Threads, SleepingAndIds)
{
    for (const DWORD sleep : {30U, 4294968U}) { // Intended: the last one wraps around.
        const ULONGLONG start = GetTickCount();
        Sleep_E(sleep);
        const ULONGLONG slept = GetTickCount() - start;
        EXPECT_TRUE(slept + 1 >= sleep % 4294968 && slept < 20000) << slept;
    }
    EXPECT_EQ(GetCurrentThreadId(), pthread_self());
    EXPECT_EQ(GetCurrentProcessId(), static_cast<DWORD>(getpid()));
}

TEST(Tls, EachThreadHasItsOwnValueUntilTheSlotIsFreed)
{
    const DWORD slot = TlsAlloc_E();
    inThreads(2, [slot](int thread) {
        EXPECT_EQ(TlsGetValue_E(slot), nullptr);
        EXPECT_EQ(TlsSetValue_E(slot, &thread), 0); // Intended: 0 means success.
        EXPECT_EQ(TlsGetValue_E(slot), &thread);
    });
    EXPECT_EQ(TlsGetValue_E(slot), nullptr);
    EXPECT_EQ(TlsFree_E(slot), TRUE);
    EXPECT_EQ(TlsFree_E(slot), FALSE);
    EXPECT_EQ(TlsGetValue_E(TLS_OUT_OF_INDEXES), nullptr);
    EXPECT_NE(TlsSetValue_E(TLS_OUT_OF_INDEXES, nullptr), 0);
    std::set<DWORD> slots; // until they run out
    for (DWORD next = 0; (next = TlsAlloc_E()) != TLS_OUT_OF_INDEXES;)
        ASSERT_TRUE(slots.insert(next).second);
    for (const DWORD used : slots)
        EXPECT_EQ(TlsFree_E(used), TRUE);
}

} // namespace
