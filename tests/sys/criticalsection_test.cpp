#include <VxMFCEmu/sys/criticalsection.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <thread>
#include <vector>

namespace {

TEST(CriticalSection, LetsOneThreadInAtATime)
{
    CRITICAL_SECTION section;
    ASSERT_EQ(InitializeCriticalSection_E(&section), 0);
    long count = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int j = 0; j < 20000; ++j) {
                EXPECT_EQ(EnterCriticalSection_E(&section), 0);
                ++count;
                EXPECT_EQ(LeaveCriticalSection_E(&section), 0);
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(count, 80000);
    EXPECT_EQ(DeleteCriticalSection_E(&section), 0);
}

TEST(CriticalSection, NullIsAnError)
{
    for (const auto call : {InitializeCriticalSection_E, EnterCriticalSection_E,
                            LeaveCriticalSection_E, DeleteCriticalSection_E})
        EXPECT_EQ(call(nullptr), EINVAL);
}

} // namespace
