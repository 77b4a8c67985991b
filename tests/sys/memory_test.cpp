#include "support/test.h"

namespace {

// Global and local memory are held to the same.
TEST(Memory, IsZeroFilledAndKeptByReAlloc)
{
    constexpr Row<void* (*)(UINT, SIZE_T), void* (*)(void*, SIZE_T, UINT), void* (*)(void*)>
        kFamilies[] = {{GlobalAlloc_E, GlobalReAlloc_E, GlobalFree_E},
                       {LocalAlloc_E, LocalReAlloc_E, LocalFree_E}};
    forRows(kFamilies, [](auto* alloc, auto* realloc, auto* free) {
        const auto old = static_cast<char*>(alloc(GMEM_FIXED, 100));
        EXPECT_EQ(std::count(old, old + 100, '\0'), 100);
        std::fill_n(old, 100, 'k');
        EXPECT_EQ(realloc(old, SIZE_MAX, 0), nullptr); // and keeps the old block
        const auto block = static_cast<char*>(realloc(old, 100000, 0));
        EXPECT_EQ(std::count(block, block + 100, 'k'), 100);
        EXPECT_EQ(std::count(block + 100, block + 100000, '\0'), 99900);
        void* const empty = realloc(block, 0, 0);
        EXPECT_NE(empty, nullptr);
        EXPECT_EQ(free(empty), nullptr);
        EXPECT_EQ(alloc(0, SIZE_MAX), nullptr);
    });
}

} // namespace
