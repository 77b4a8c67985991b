// What the tests of drawing share.
#pragma once

#include "support/test.h"

#include <gmock/gmock.h>

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

/// A rectangle with its corners.
struct RectRgn : CRgn_E
{
    RectRgn(int x1, int y1, int x2, int y2) { CreateRectRgn(x1, y1, x2, y2); }
};

/// A bitmap of one colour.
struct Bitmap : CBitmap_E
{
    Bitmap(int cx, int cy, const QColor& color)
    {
        CreateBitmap(cx, cy, 1, 32, nullptr);
        valueOf<QImage>(*this).fill(color);
    }
};

/// A device context on a white image.
struct Canvas
{
    QImage image{60, 50, QImage::Format_RGB32};
    CDC_E dc{&image};
    Canvas() { image.fill(Qt::white); }
};
