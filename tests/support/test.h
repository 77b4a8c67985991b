// What every test of the library includes: the library, the test framework, Qt, texts and rows.
#pragma once

#include <VxMFCEmu/VxMFCEmu.h>

#include "support/waiting.h"

#include <QtWidgets/QtWidgets>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <thread>
#include <tuple>

inline void PrintTo(const QString& text, std::ostream* out) { *out << text.toStdString(); }

namespace vxtest {

inline QString operator""_q(const char* text, std::size_t length)
{
    return QString::fromUtf8(text, static_cast<int>(length));
}

/// What the sanitizer reports by itself, whatever the test finds.
#if defined(__SANITIZE_THREAD__)
inline constexpr bool kThreadSanitizer = true;
#else
inline constexpr bool kThreadSanitizer = false;
#endif

/// A row of a table of cases.
template <typename... Cells>
using Row = std::tuple<Cells...>;

/// Calls @p check with the cells of each row; a failure says which row it was.
template <typename Rows, typename Check>
void forRows(const Rows& rows, const Check& check)
{
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row));
        std::apply(check, row);
    }
}

/// Calls @p work in so many threads at once, with their numbers.
inline void inThreads(int count, const std::function<void(int)>& work)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i)
        threads.emplace_back(work, i);
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace vxtest

using vxtest::operator""_q;
using vxtest::forRows;
using vxtest::inThreads;
using vxtest::Row;
