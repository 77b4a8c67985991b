#include <VxMFCEmu/sys/memory.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace {

// Global and local memory are held to the same rows.
struct Family
{
    const char* name;
    void* (*alloc)(UINT, SIZE_T);
    void* (*realloc)(void*, SIZE_T, UINT);
    void* (*free)(void*);
};

class Memory : public testing::TestWithParam<Family>
{
};

bool isZero(const void* p, std::size_t from, std::size_t to)
{
    const auto* const bytes = static_cast<const unsigned char*>(p);
    return std::all_of(bytes + from, bytes + to, [](unsigned char byte) { return byte == 0; });
}

TEST_P(Memory, BlocksAreZeroFilledWhateverTheFlags)
{
    for (const UINT flags : {GMEM_FIXED, GMEM_MOVEABLE, GHND, 0xFFFFFFFFU}) {
        void* const dirty = GetParam().alloc(flags, 100);
        std::memset(dirty, 0xAB, 100);
        GetParam().free(dirty);
        void* const block = GetParam().alloc(flags, 100);
        EXPECT_TRUE(isZero(block, 0, 100)) << flags;
        EXPECT_EQ(GetParam().free(block), nullptr);
    }
}

TEST_P(Memory, OddSizes)
{
    void* const empty = GetParam().alloc(0, 0);
    EXPECT_NE(empty, nullptr);
    GetParam().free(empty);
    EXPECT_EQ(GetParam().alloc(0, SIZE_MAX), nullptr);
    EXPECT_EQ(GetParam().free(nullptr), nullptr);
}

TEST_P(Memory, ReAllocKeepsWhatFitsAndZeroFillsTheRest)
{
    struct Row
    {
        int line;
        SIZE_T from;
        SIZE_T to;
    };
    const Row rows[] = {{__LINE__, 16, 100000}, {__LINE__, 24, 25}, {__LINE__, 100, 100},
                        {__LINE__, 100, 7},     {__LINE__, 1, 40},  {__LINE__, 50, 0},
                        {__LINE__, 300000, 8},  {__LINE__, 0, 4096}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.line);
        void* const old = GetParam().alloc(0, row.from);
        std::memset(old, 0x5C, row.from);
        auto* const block = static_cast<unsigned char*>(GetParam().realloc(old, row.to, 0));
        ASSERT_NE(block, nullptr);
        const SIZE_T kept = std::min(row.from, row.to);
        EXPECT_EQ(std::count(block, block + kept, 0x5C), static_cast<std::ptrdiff_t>(kept));
        EXPECT_TRUE(isZero(block, kept, row.to));
        GetParam().free(block);
    }
}

TEST_P(Memory, ReAllocOfNullAllocatesAndAFailedOneKeepsTheOldBlock)
{
    auto* const block = static_cast<char*>(GetParam().realloc(nullptr, 10, 0));
    ASSERT_NE(block, nullptr);
    EXPECT_TRUE(isZero(block, 0, 10));
    std::strcpy(block, "kept");
    EXPECT_EQ(GetParam().realloc(block, SIZE_MAX, 0), nullptr);
    EXPECT_STREQ(block, "kept");
    GetParam().free(block);
}

INSTANTIATE_TEST_SUITE_P(
    , Memory,
    testing::Values(Family{"Global", GlobalAlloc_E, GlobalReAlloc_E, GlobalFree_E},
                    Family{"Local", LocalAlloc_E, LocalReAlloc_E, LocalFree_E}),
    [](const auto& row) { return row.param.name; });

TEST(GlobalMemory, AHandleIsTheAddress)
{
    const HGLOBAL h = GlobalAlloc_E(GHND, 4);
    EXPECT_EQ(GlobalLock_E(h), h);
    EXPECT_EQ(GlobalHandle_E(h), h);
    EXPECT_EQ(GlobalUnlock_E(h), TRUE);
    EXPECT_EQ(GlobalUnlock_E(h), TRUE) << "there is no lock count";
    GlobalFree_E(h);
    EXPECT_EQ(GlobalLock_E(nullptr), nullptr);
}

} // namespace
