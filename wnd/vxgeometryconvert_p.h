// Private: points and rectangles from Qt and back. Qt's rectangles count right and bottom in.
#pragma once

#include <VxMFCEmu/wnd/rectfunctions.h>

#include <QtCore/QPoint>
#include <QtCore/QRect>

namespace vx::detail {

inline tagPOINT toPoint(const QPoint& pt) { return {pt.x(), pt.y()}; }
inline QPoint fromPoint(const tagPOINT& pt) { return {pt.x, pt.y}; }
inline tagRECT toRect(const QRect& rc)
{
    return {rc.left(), rc.top(), wrappingAdd(rc.right(), 1), wrappingAdd(rc.bottom(), 1)};
}
/// The pixels of @p rc: its right and bottom are exclusive, those of the result are not.
inline QRect fromRect(const tagRECT& rc)
{
    return {QPoint(rc.left, rc.top), QPoint(wrappingSub(rc.right, 1), wrappingSub(rc.bottom, 1))};
}

} // namespace vx::detail
