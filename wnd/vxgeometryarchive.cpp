#include <VxMFCEmu/coll/archive.h>
#include <VxMFCEmu/wnd/geometry.h>

CArchive_E& operator<<(CArchive_E& ar, tagPOINT point) { return ar << point.x << point.y; }

CArchive_E& operator<<(CArchive_E& ar, tagSIZE size) { return ar << size.cx << size.cy; }

CArchive_E& operator<<(CArchive_E& ar, const tagRECT& rect)
{
    return ar << rect.left << rect.top << rect.right << rect.bottom;
}

CArchive_E& operator>>(CArchive_E& ar, tagPOINT& point) { return ar >> point.x >> point.y; }

CArchive_E& operator>>(CArchive_E& ar, tagSIZE& size) { return ar >> size.cx >> size.cy; }

CArchive_E& operator>>(CArchive_E& ar, tagRECT& rect)
{
    return ar >> rect.left >> rect.top >> rect.right >> rect.bottom;
}
