// Texts and rows of tests.
#pragma once

#include <QtCore/QString>

#include <gtest/gtest.h>

#include <tuple>

namespace vxtest {

inline QString operator""_q(const char* text, std::size_t length)
{
    return QString::fromUtf8(text, static_cast<int>(length));
}

/// A row of a table; the loop over the table names its cells.
template <typename... Cells>
using Row = std::tuple<Cells...>;

} // namespace vxtest

/// Puts the cells of a row before each failure in the scope.
#define VXTEST_TRACE_ROW(row) SCOPED_TRACE(testing::PrintToString(row))
