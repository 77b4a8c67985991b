#include "support/test.h"

namespace {

TEST(Tls, EachThreadHasItsOwnValueUntilTheSlotIsFreed)
{
    const DWORD slot = TlsAlloc_E();
    const auto use = [slot] {
        int own = 0;
        EXPECT_EQ(TlsGetValue_E(slot), nullptr);
        EXPECT_EQ(TlsSetValue_E(slot, &own), 0); // Intended: 0 means success.
        EXPECT_EQ(TlsGetValue_E(slot), &own);
        return TlsGetValue_E(slot);
    };
    void* const mine = use();
    std::thread(use).join();
    EXPECT_EQ(TlsGetValue_E(slot), mine);
    EXPECT_EQ(TlsFree_E(slot), TRUE);
    for (const DWORD none : {slot, TLS_OUT_OF_INDEXES}) {
        EXPECT_EQ(TlsFree_E(none), FALSE);
        EXPECT_EQ(TlsGetValue_E(none), nullptr);
        EXPECT_NE(TlsSetValue_E(none, nullptr), 0);
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
