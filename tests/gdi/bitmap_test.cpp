#include <VxMFCEmu/gdi.h>

namespace {

QImage& imageOf(const CBitmap_E& bitmap) { return *static_cast<QImage*>(bitmap.GetSafeHandle()); }

TEST(Bitmaps, AreMadeInTheKnownDepths)
{
    CBitmap_E bitmap;
    const tagBITMAP form{0, 5, 3, 0, 1, 16, nullptr};
    ASSERT_TRUE(bitmap.CreateBitmapIndirect(&form));
    tagBITMAP out{};
    EXPECT_EQ(bitmap.GetBitmap(&out), 1);
    EXPECT_EQ(std::make_tuple(out.bmType, out.bmWidth, out.bmHeight, out.bmWidthBytes, out.bmPlanes,
                              out.bmBitsPixel, out.bmBits),
              std::make_tuple(0, 5, 3, 12, WORD{1}, WORD{16},
                              static_cast<void*>(imageOf(bitmap).bits())));

    HGDIOBJ const h = bitmap;
    EXPECT_FALSE(bitmap.CreateBitmap(16, 16, 1, 24, &out));
    EXPECT_FALSE(bitmap.CreateBitmap(0, 16, 1, 32, nullptr));
    EXPECT_FALSE(bitmap.CreateCompatibleBitmap(nullptr, 4, -4));
    EXPECT_FALSE(bitmap.CreateBitmapIndirect(nullptr));
    EXPECT_FALSE(bitmap.LoadBitmap(nullptr));
    EXPECT_FALSE(bitmap.LoadBitmap(L"/no/such/file.png"));
    EXPECT_EQ(bitmap.m_hObject, h);
    EXPECT_EQ(bitmap.GetBitmap(nullptr), 0);

    CBitmap_E discardable;
    EXPECT_TRUE(discardable.CreateDiscardableBitmap(nullptr, 2, 2));
    EXPECT_EQ(imageOf(discardable).format(), QImage::Format_RGBX8888);
}

TEST(Bitmaps, AreLoadedFromFilesOfAnyFormat)
{
    QTemporaryDir folder;
    QImage image(3, 2, QImage::Format_ARGB32);
    image.fill(QColor(1, 2, 3));
    for (const char* suffix : {"png", "bmp", "ppm"}) {
        const QString path = folder.filePath(QStringLiteral("ä.%1").arg(QLatin1String(suffix)));
        ASSERT_TRUE(image.save(path));
        CBitmap_E bitmap;
        EXPECT_TRUE(bitmap.LoadBitmap(path.toStdWString().c_str())) << suffix;
        EXPECT_EQ(imageOf(bitmap).pixelColor(2, 1), QColor(1, 2, 3)) << suffix;
    }
}

TEST(Bitmaps, BitsAreCountedTwiceAndCopiedOnce)
{
    CBitmap_E bitmap;
    bitmap.CreateBitmap(4, 2, 1, 32, nullptr);
    imageOf(bitmap).fill(QColor(10, 20, 30));
    std::vector<BYTE> bits(200, 0xEE);
    EXPECT_EQ(bitmap.GetBitmapBits(6, bits.data()), 6U);
    EXPECT_EQ(bits[5], 20);
    EXPECT_EQ(bits[6], 0xEE);
    EXPECT_EQ(bitmap.GetBitmapBits(200, bits.data()), 128U) << "4 x 2 x 16";
    EXPECT_EQ(bits[31], 255);
    EXPECT_EQ(bits[32], 0xEE) << "there are 32";
    EXPECT_EQ(bitmap.GetBitmapBits(10, nullptr), 0U);
    EXPECT_EQ(CBitmap_E().GetBitmapBits(10, bits.data()), 0U);
}

TEST(Bitmaps, SetBitsReferToTheCallersMemory)
{
    CBitmap_E bitmap;
    bitmap.CreateBitmap(2, 2, 1, 8, nullptr);
    std::vector<quint32> bits(4, 0xFF030201);
    EXPECT_EQ(bitmap.SetBitmapBits(100, bits.data()), 16U);
    EXPECT_EQ(imageOf(bitmap).pixelColor(1, 1), QColor(1, 2, 3));
    bits[3] = 0xFF060504;
    EXPECT_EQ(imageOf(bitmap).pixelColor(1, 1), QColor(4, 5, 6));
    const std::vector<quint32> few(2, 0xFF090807);
    EXPECT_EQ(bitmap.SetBitmapBits(8, few.data()), 8U) << "fewer than the image takes";
    EXPECT_EQ(imageOf(bitmap).pixelColor(1, 0), QColor(7, 8, 9));
    EXPECT_EQ(imageOf(bitmap).pixelColor(1, 1), QColor(Qt::black));
    EXPECT_EQ(bitmap.SetBitmapBits(16, nullptr), 0U);
    EXPECT_EQ(CBitmap_E().SetBitmapBits(16, bits.data()), 0U);
}

TEST(Bitmaps, DimensionStays)
{
    CBitmap_E bitmap;
    EXPECT_EQ(bitmap.SetBitmapDimension(1, 1), CSize_E(0, 0));
    bitmap.CreateCompatibleBitmap(nullptr, 7, 9);
    EXPECT_EQ(bitmap.SetBitmapDimension(70, 90), CSize_E(7, 9));
    EXPECT_EQ(bitmap.GetBitmapDimension(), CSize_E(7, 9));
}

} // namespace
