// Calls and their results, one a row, made in the order in which they stand.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include <unistd.h>

namespace vxtest {

struct ResultRow
{
    int line;
    long long result;
    long long expected;
};

inline void expectResults(std::initializer_list<ResultRow> rows)
{
    for (const ResultRow& row : rows)
        EXPECT_EQ(row.result, row.expected) << "in line " << row.line;
}

/// A name for a semaphore that no other process uses. Each call has a buffer of its own.
inline std::wstring semaphoreName() { return L"/vxmfc-test-" + std::to_wstring(getpid()); }

/// What the sanitizer reports by itself, whatever the test finds.
#if defined(__SANITIZE_THREAD__)
inline constexpr bool kThreadSanitizer = true;
#else
inline constexpr bool kThreadSanitizer = false;
#endif

} // namespace vxtest
