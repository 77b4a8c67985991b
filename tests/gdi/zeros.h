#pragma once
#include <gtest/gtest.h>

/// Expects that calls which must fail return 0, FALSE or null.
inline void expectZeros(std::initializer_list<long long> results)
{
    for (auto it = results.begin(); it != results.end(); ++it)
        EXPECT_EQ(*it, 0) << "result " << it - results.begin();
}
