// What the tests of drawing share.
#pragma once

#include "support/test.h"

#include <gmock/gmock.h>

namespace vxtest {

/// Expects that calls all return @p expected.
inline void expectAll(long long expected, std::initializer_list<long long> results)
{
    EXPECT_THAT(results, testing::Each(expected));
}

/// Expects that calls which must fail return 0, FALSE or null.
inline void expectZeros(std::initializer_list<long long> results) { expectAll(0, results); }

/// The Qt value of a GDI object.
template <typename T>
T& valueOf(const CGdiObject_E& object)
{
    return *static_cast<T*>(object.GetSafeHandle());
}

/// A device context on a white image.
struct Canvas
{
    QImage image{60, 50, QImage::Format_RGB32};
    CDC_E dc{&image};
    Canvas() { image.fill(Qt::white); }
};

} // namespace vxtest

using vxtest::Canvas;
using vxtest::expectAll;
using vxtest::expectZeros;
using vxtest::valueOf;
