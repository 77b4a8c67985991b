// Image lists: whose bitmaps they hold, and what they count.
#include "gdi/gditest.h"

namespace {

struct ImageLists : testing::Test
{
    static QImage* imageOf(const CImageList_E& list, int i)
    {
        tagIMAGEINFO info{};
        return list.GetImageInfo(i, &info) ? static_cast<QImage*>(info.hbmImage) : nullptr;
    }
    static QColor colorOf(const CImageList_E& list, int i)
    {
        return imageOf(list, i)->pixelColor(1, 1);
    }

    Bitmap m_red{4, 4, Qt::red}, m_blue{4, 4, Qt::blue};
    CBitmap_E m_empty;
    CImageList_E m_list;
};

TEST_F(ImageLists, CreateAppendsAndRemoveCounts)
{
    expectZeros({m_list.Create(16, 16, ILC_COLOR32, 0, 4), m_list.Create(0, 0, 0, INT_MAX, 0),
                 m_list.DeleteImageList()});
    EXPECT_TRUE(m_list.Create(16, 8, ILC_COLOR32, 2, 4) && m_list.Create(16, 8, ILC_COLOR32, 1, 4));
    EXPECT_EQ(m_list.Add(&m_blue, &m_red), 3);
    tagIMAGEINFO info{};
    m_list.GetImageInfo(2, &info);
    EXPECT_EQ(CRect_E(info.rcImage), CRect_E(0, 0, 16, 8));
    expectZeros({m_list.Remove(5), m_list.SetImageCount(0)});
    EXPECT_TRUE(m_list.Remove(4)) << "Intended: one past the end";
    EXPECT_EQ(m_list.GetImageCount(), 4);
    EXPECT_TRUE(m_list.Remove(0));
    EXPECT_EQ(imageOf(m_list, 2), m_blue.m_hObject);
    EXPECT_TRUE(m_list.SetImageCount(0xFFFFFFFF));
    EXPECT_EQ(m_list.GetImageCount(), 3);
}

TEST_F(ImageLists, AddTakesTheBitmapItself)
{
    for (const auto format : {QImage::Format_RGBX8888, QImage::Format_ARGB32_Premultiplied}) {
        CBitmap_E bitmap;
        bitmap.Attach(new QImage(3, 3, format));
        valueOf<QImage>(bitmap).fill(Qt::white);
        valueOf<QImage>(bitmap).setPixelColor(1, 0, Qt::black);
        m_list.Add(&bitmap, RGB(255, 255, 255));
        EXPECT_EQ(valueOf<QImage>(bitmap).pixelColor(2, 2), QColor(Qt::transparent)) << format;
        EXPECT_EQ(valueOf<QImage>(bitmap).pixelColor(1, 0), QColor(Qt::black)) << format;
    }
    EXPECT_EQ(m_list.Add(&m_blue, &m_red), 2);
    EXPECT_EQ(imageOf(m_list, 0), nullptr) << "destroyed";
    tagIMAGEINFO info{};
    EXPECT_TRUE(m_list.GetImageInfo(2, &info));
    EXPECT_TRUE(info.hbmImage == m_blue.m_hObject && info.hbmMask == m_red.m_hObject);
    expectAll(-1, {m_list.Add(&m_empty, 0U), m_list.Add(nullptr, &m_red)});
    EXPECT_EQ(m_list.SetBkColor(RGB(9, 8, 7)), 0U) << "of the first image, which is gone";
    EXPECT_EQ(valueOf<QImage>(m_blue).pixelColor(2, 2), QColor(9, 8, 7));
    EXPECT_EQ(CImageList_E(m_list).GetImageCount(), 3);
    EXPECT_TRUE(m_list.Replace(0, &m_blue, nullptr));
    EXPECT_EQ(m_list.GetBkColor(), RGB(9, 8, 7));
}

TEST_F(ImageLists, CopiesHaveBitmapsOfTheirOwn)
{
    m_list.Add(&m_red, &m_blue);
    m_list.Add(&m_blue, &m_blue);
    CImageList_E copy;
    copy.Add(&m_blue, &m_blue);
    EXPECT_TRUE(copy.Create(&m_list));
    copy = *&copy;
    EXPECT_EQ(copy.GetImageCount(), 2);
    EXPECT_TRUE(copy.Copy(0, 1, ILCF_SWAP));
    EXPECT_TRUE(colorOf(copy, 0) == Qt::blue && colorOf(copy, 1) == Qt::red);
    EXPECT_TRUE(copy.Copy(0, 1));
    EXPECT_EQ(colorOf(copy, 0), QColor(Qt::red));
    EXPECT_NE(imageOf(copy, 0), imageOf(copy, 1));
    EXPECT_TRUE(m_list.Copy(1, &copy, 0));
    EXPECT_EQ(colorOf(m_list, 1), QColor(Qt::red));
    EXPECT_EQ(valueOf<QImage>(m_blue).pixelColor(1, 1), QColor(Qt::blue)) << "left the list";
    expectZeros({copy.Create(nullptr), m_list.Copy(1, &copy, 0, ILCF_SWAP), m_list.Copy(2, 0),
                 m_list.Copy(0, -1), m_list.Replace(0, &m_empty, nullptr)});
}

TEST_F(ImageLists, StubsDoNothing)
{
    CImageList_E& l = m_list;
    const HICON icon = &m_red;
    expectZeros({l.Create(1, 16, 1, 0U), l.Create(L"x", 16, 1, 0), l.Add(icon), l.Replace(0, icon),
                 l.SetOverlayImage(0, 1), l.Draw(nullptr, 0, {}, 0), l.DrawIndirect(nullptr),
                 l.DrawEx(nullptr, 0, {}, {}, 0, 0, 0), l.Read(nullptr), l.Write(nullptr),
                 l.BeginDrag(0, {}), l.DragMove({}), l.DragEnter(nullptr, {}), l.DragLeave(nullptr),
                 l.DragShowNolock(TRUE), l.SetDragCursorImage(0, {}), l.GetImageCount()});
    EXPECT_TRUE(!l.ExtractIcon(0) && !l.GetDragImage(nullptr, nullptr));
    l.EndDrag();
}

} // namespace
