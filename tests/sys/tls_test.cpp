#include <VxMFCEmu/sys/tls.h>

#include <gtest/gtest.h>

#include <set>
#include <thread>

namespace {

TEST(Tls, EachThreadHasItsOwnValue)
{
    const DWORD slot = TlsAlloc_E();
    ASSERT_NE(slot, TLS_OUT_OF_INDEXES);
    int mine = 0;
    int theirs = 0;
    EXPECT_EQ(TlsGetValue_E(slot), nullptr);
    // Intended: 0 means success.
    EXPECT_EQ(TlsSetValue_E(slot, &mine), 0);
    std::thread([&] {
        EXPECT_EQ(TlsGetValue_E(slot), nullptr);
        EXPECT_EQ(TlsSetValue_E(slot, &theirs), 0);
        EXPECT_EQ(TlsGetValue_E(slot), &theirs);
    }).join();
    EXPECT_EQ(TlsGetValue_E(slot), &mine);
    EXPECT_EQ(TlsFree_E(slot), TRUE);
}

TEST(Tls, ASlotThatDoesNotExist)
{
    const DWORD freed = TlsAlloc_E();
    int value = 0;
    TlsSetValue_E(freed, &value);
    EXPECT_EQ(TlsFree_E(freed), TRUE);
    for (const DWORD slot : {freed, TLS_OUT_OF_INDEXES}) {
        EXPECT_EQ(TlsFree_E(slot), FALSE);
        EXPECT_EQ(TlsGetValue_E(slot), nullptr);
        EXPECT_NE(TlsSetValue_E(slot, nullptr), 0);
    }
}

TEST(Tls, RunsOutWithAFailureValue)
{
    std::set<DWORD> slots;
    DWORD slot = 0;
    while ((slot = TlsAlloc_E()) != TLS_OUT_OF_INDEXES)
        ASSERT_TRUE(slots.insert(slot).second);
    EXPECT_FALSE(slots.empty());
    for (const DWORD used : slots)
        EXPECT_EQ(TlsFree_E(used), TRUE);
}

} // namespace
