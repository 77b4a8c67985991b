#include <VxMFCEmu/gdi.h>

namespace {

class ImageLists : public testing::Test
{
public:
    ImageLists()
    {
        for (CBitmap_E* pBitmap : {&m_red, &m_blue}) {
            pBitmap->CreateBitmap(4, 4, 1, 32, nullptr);
            imageOf(*pBitmap).fill(pBitmap == &m_red ? Qt::red : Qt::blue);
        }
    }
    static QImage& imageOf(const CBitmap_E& bitmap)
    {
        return *static_cast<QImage*>(bitmap.GetSafeHandle());
    }
    static HBITMAP bitmapOf(const CImageList_E& list, int i)
    {
        tagIMAGEINFO info{};
        return list.GetImageInfo(i, &info) ? info.hbmImage : nullptr;
    }
    static QColor colorOf(const CImageList_E& list, int i)
    {
        auto* const pImage = static_cast<QImage*>(bitmapOf(list, i));
        return pImage ? pImage->pixelColor(1, 1) : QColor();
    }

    CBitmap_E m_red;
    CBitmap_E m_blue;
    CBitmap_E m_empty;
    CImageList_E m_list;
};

TEST_F(ImageLists, CreateAppendsNewBitmaps)
{
    EXPECT_FALSE(m_list.Create(16, 16, ILC_COLOR32, 0, 4));
    EXPECT_EQ(m_list.GetSafeHandle(), nullptr);
    EXPECT_TRUE(m_list.Create(16, 8, ILC_COLOR32, 2, 4));
    EXPECT_TRUE(m_list.Create(16, 8, ILC_COLOR32, 1, 4));
    EXPECT_EQ(m_list.GetImageCount(), 3);
    EXPECT_EQ(CImageList_E::FromHandle(m_list), &m_list);
    tagIMAGEINFO info{};
    EXPECT_TRUE(m_list.GetImageInfo(2, &info));
    EXPECT_EQ(CRect_E(info.rcImage), CRect_E(0, 0, 16, 8));
    EXPECT_EQ(info.hbmMask, nullptr);
    EXPECT_TRUE(m_list.DeleteImageList());
    EXPECT_FALSE(m_list.DeleteImageList());
    EXPECT_EQ(m_list.GetImageCount(), 0);
}

TEST_F(ImageLists, AddTakesTheBitmapItself)
{
    imageOf(m_red).setPixelColor(0, 0, QColor(1, 2, 3));
    EXPECT_EQ(m_list.Add(&m_red, RGB(255, 0, 0)), 0);
    EXPECT_EQ(imageOf(m_red).pixelColor(0, 0), QColor(1, 2, 3));
    EXPECT_EQ(imageOf(m_red).pixelColor(3, 3), QColor(Qt::transparent)) << "in the caller's bitmap";
    EXPECT_EQ(m_list.Add(&m_blue, &m_red), 1);
    EXPECT_EQ(m_list.Add(&m_empty, RGB(0, 0, 0)), -1);
    EXPECT_EQ(m_list.Add(nullptr, &m_red), -1);
    EXPECT_EQ(m_list.Add(static_cast<CBitmap_E*>(nullptr), RGB(0, 0, 0)), -1);
    tagIMAGEINFO info{};
    EXPECT_TRUE(m_list.GetImageInfo(1, &info));
    EXPECT_EQ(info.hbmImage, m_blue.m_hObject);
    EXPECT_EQ(info.hbmMask, m_red.m_hObject);

    for (const auto format : {QImage::Format_RGB16, QImage::Format_ARGB32, QImage::Format_RGB32,
                              QImage::Format_ARGB32_Premultiplied, QImage::Format_Grayscale8}) {
        CBitmap_E bitmap;
        bitmap.Attach(new QImage(3, 3, format));
        imageOf(bitmap).fill(Qt::white);
        imageOf(bitmap).setPixelColor(1, 0, Qt::black);
        m_list.Add(&bitmap, RGB(255, 255, 255));
        EXPECT_EQ(imageOf(bitmap).pixelColor(2, 2), QColor(Qt::transparent)) << format;
        EXPECT_EQ(imageOf(bitmap).pixelColor(1, 0), QColor(Qt::black)) << format;
    }
}

TEST_F(ImageLists, DestroyedBitmapsAreEmptyImages)
{
    {
        CBitmap_E bitmap;
        bitmap.CreateCompatibleBitmap(nullptr, 2, 2);
        m_list.Add(&bitmap, &bitmap);
    }
    EXPECT_EQ(m_list.GetImageCount(), 1);
    EXPECT_EQ(bitmapOf(m_list, 0), nullptr);
    EXPECT_EQ(m_list.SetBkColor(RGB(1, 1, 1)), 0U);
    CImageList_E copy(m_list);
    EXPECT_EQ(copy.GetImageCount(), 1);
    EXPECT_TRUE(m_list.Replace(0, &m_blue, nullptr));
    EXPECT_EQ(m_list.GetBkColor(), RGB(0, 0, 255));
}

TEST_F(ImageLists, RemoveAndCounts)
{
    m_list.Add(&m_red, &m_blue);
    m_list.Add(&m_blue, &m_red);
    EXPECT_FALSE(m_list.Remove(-1));
    EXPECT_FALSE(m_list.Remove(3));
    EXPECT_TRUE(m_list.Remove(2)) << "one past the end";
    EXPECT_EQ(m_list.GetImageCount(), 2);
    EXPECT_TRUE(m_list.Remove(0));
    EXPECT_EQ(bitmapOf(m_list, 0), m_blue.m_hObject);
    EXPECT_FALSE(m_list.SetImageCount(0));
    EXPECT_TRUE(m_list.SetImageCount(0xFFFFFFFF));
    EXPECT_EQ(m_list.GetImageCount(), 1);
    EXPECT_EQ(m_list.SetBkColor(RGB(9, 8, 7)), RGB(0, 0, 255));
    EXPECT_EQ(imageOf(m_blue).pixelColor(2, 2), QColor(9, 8, 7));
    EXPECT_EQ(m_list.GetBkColor(), RGB(9, 8, 7));
    EXPECT_EQ(CImageList_E().GetBkColor(), 0U);
}

TEST_F(ImageLists, CopiesHaveBitmapsOfTheirOwn)
{
    m_list.Add(&m_red, &m_blue);
    m_list.Add(&m_blue, &m_blue);
    CImageList_E copy;
    copy.Add(&m_blue, &m_blue);
    EXPECT_TRUE(copy.Create(&m_list));
    EXPECT_FALSE(copy.Create(nullptr));
    copy = *&copy;
    EXPECT_EQ(copy.GetImageCount(), 2);
    EXPECT_NE(bitmapOf(copy, 0), m_red.m_hObject);
    EXPECT_TRUE(copy.Copy(0, 1, ILCF_SWAP));
    EXPECT_EQ(colorOf(copy, 0), QColor(Qt::blue));
    EXPECT_EQ(colorOf(copy, 1), QColor(Qt::red));
    EXPECT_TRUE(copy.Copy(0, 1));
    EXPECT_EQ(colorOf(copy, 0), QColor(Qt::red));
    EXPECT_EQ(colorOf(copy, 1), QColor(Qt::red));
    EXPECT_NE(bitmapOf(copy, 0), bitmapOf(copy, 1));
    EXPECT_TRUE(m_list.Copy(1, &copy, 0));
    EXPECT_EQ(colorOf(m_list, 1), QColor(Qt::red));
    EXPECT_EQ(imageOf(m_blue).pixelColor(1, 1), QColor(Qt::blue))
        << "the image goes, not its bitmap";
    EXPECT_FALSE(m_list.Copy(1, &copy, 0, ILCF_SWAP));
    EXPECT_FALSE(m_list.Copy(1, nullptr, 0));
    EXPECT_FALSE(m_list.Copy(2, 0));
    EXPECT_FALSE(m_list.Copy(0, -1));
    EXPECT_FALSE(m_list.Replace(2, &m_red, nullptr));
    EXPECT_FALSE(m_list.Replace(0, &m_empty, nullptr));
    EXPECT_FALSE(m_list.Replace(0, nullptr, nullptr));
    EXPECT_FALSE(m_list.GetImageInfo(0, nullptr));
}

TEST_F(ImageLists, StubsDoNothing)
{
    m_list.Add(&m_red, &m_blue);
    CImageList_E& l = m_list;
    EXPECT_FALSE(l.Create(1, 16, 1, RGB(0, 0, 0)) || l.Create(L"x", 16, 1, RGB(0, 0, 0)) ||
                 l.Add(static_cast<HICON>(&m_red)) || l.Replace(0, static_cast<HICON>(&m_red)) ||
                 l.ExtractIcon(0) || l.SetOverlayImage(0, 1) || l.Draw(nullptr, 0, {0, 0}, 0) ||
                 l.DrawEx(nullptr, 0, {0, 0}, {1, 1}, 0, 0, 0) || l.DrawIndirect(nullptr) ||
                 l.Read(nullptr) || l.Write(nullptr) || l.BeginDrag(0, {0, 0}) ||
                 l.DragMove({0, 0}) || l.DragEnter(nullptr, {0, 0}) || l.DragLeave(nullptr) ||
                 l.DragShowNolock(TRUE) || l.SetDragCursorImage(0, {0, 0}) ||
                 l.GetDragImage(nullptr, nullptr));
    l.EndDrag();
    EXPECT_EQ(l.GetImageCount(), 1);
}

} // namespace
