#include "support/test.h"

namespace {

// So many bytes kept and zeros behind them.
void expectBlock(void* block, SIZE_T kept, SIZE_T size)
{
    const std::string expected = std::string(kept, 'k') + std::string(size - kept, '\0');
    EXPECT_EQ(std::string(static_cast<const char*>(block), size), expected);
}

// Global and local memory are held to the same.
TEST(Memory, IsZeroFilledAndKeptByReAlloc)
{
    constexpr Row<void* (*)(UINT, SIZE_T), void* (*)(void*, SIZE_T, UINT), void* (*)(void*)>
        kFamilies[] = {{GlobalAlloc_E, GlobalReAlloc_E, GlobalFree_E},
                       {LocalAlloc_E, LocalReAlloc_E, LocalFree_E}};
    constexpr Row<SIZE_T, SIZE_T> kSizes[] = {{16, 100000}, {100, 0}, {0, 4096}};
    forRows(kFamilies, [&](auto* alloc, auto* realloc, auto* free) {
        forRows(kSizes, [&](SIZE_T from, SIZE_T to) {
            void* const old = alloc(GMEM_FIXED, from);
            expectBlock(old, 0, from);
            std::memset(old, 'k', from);
            EXPECT_EQ(realloc(old, SIZE_MAX, 0), nullptr); // and keeps the old block
            void* const block = realloc(old, to, 0);
            EXPECT_NE(block, nullptr);
            expectBlock(block, std::min(from, to), to);
            EXPECT_EQ(free(block), nullptr);
        });
        EXPECT_EQ(alloc(0, SIZE_MAX), nullptr);
    });
}

} // namespace
