#include <VxMFCEmu/gdi/bitmap.h>

#include "gdi/vxdcdevice_p.h"
#include "gdi/vxgdiobject_p.h"

#include <VxMFCEmu/text/vxqstring.h>

#include <cstring>

IMPLEMENT_DYNAMIC_E(CBitmap_E, CGdiObject_E, QObject)

namespace {

using vx::detail::valueOf;

struct DepthRow
{
    int bitsPerPixel;
    QImage::Format format;
};

constexpr DepthRow kDepths[] = {
    {1, QImage::Format_Mono},   {4, QImage::Format_Indexed8},  {8, QImage::Format_Grayscale8},
    {16, QImage::Format_RGB16}, {32, QImage::Format_RGBX8888},
};

/// An image on the heap; null for one that has no pixels.
QImage* heapImage(QImage image) { return image.isNull() ? nullptr : new QImage(std::move(image)); }

/// An image of 32 bits with the first @p nBytes from @p pBits; the others are 0.
QImage imageOfCopy(const QSize& size, const void* pBits, std::size_t nBytes)
{
    QImage image(size, QImage::Format_RGBX8888);
    image.fill(0);
    std::memcpy(image.bits(), pBits, nBytes);
    return image;
}

} // namespace

bool bitDepthIsCorrrect(int bitsPerPixel, QImage::Format& format)
{
    for (const DepthRow& row : kDepths) {
        if (row.bitsPerPixel == bitsPerPixel) {
            format = row.format;
            return true;
        }
    }
    return false;
}

CBitmap_E* CBitmap_E::FromHandle(HBITMAP hBitmap)
{
    return vx::detail::gdiObjectFromHandle<CBitmap_E>(hBitmap);
}

BOOL CBitmap_E::LoadBitmap(LPCWSTR lpszPath)
{
    return lpszPath ? Attach(heapImage(QImage(VxQString(lpszPath)))) : FALSE;
}

BOOL CBitmap_E::CreateBitmap(int nWidth, int nHeight, UINT, UINT nBitsPerPixel, const void*)
{
    QImage::Format format = QImage::Format_Invalid;
    if (!bitDepthIsCorrrect(static_cast<int>(nBitsPerPixel), format))
        return FALSE;
    return Attach(heapImage(QImage(nWidth, nHeight, format)));
}

BOOL CBitmap_E::CreateBitmapIndirect(const tagBITMAP* pBitmap)
{
    return pBitmap ? CreateBitmap(pBitmap->bmWidth, pBitmap->bmHeight, pBitmap->bmPlanes,
                                  pBitmap->bmBitsPixel, pBitmap->bmBits)
                   : FALSE;
}

BOOL CBitmap_E::CreateCompatibleBitmap(CDC_E*, int nWidth, int nHeight)
{
    return CreateBitmap(nWidth, nHeight, 1, 32, nullptr);
}

BOOL CBitmap_E::CreateDiscardableBitmap(CDC_E* pDC, int nWidth, int nHeight)
{
    return CreateCompatibleBitmap(pDC, nWidth, nHeight);
}

int CBitmap_E::GetBitmap(tagBITMAP* pBitmap) const
{
    auto* const pImage = valueOf<QImage>(this);
    if (!pImage || !pBitmap)
        return 0;
    *pBitmap = {0,
                pImage->width(),
                pImage->height(),
                pImage->bytesPerLine(),
                1,
                static_cast<WORD>(pImage->depth()),
                const_cast<uchar*>(pImage->constBits())}; // bits() would copy a caller's buffer
    return 1;
}

DWORD CBitmap_E::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const
{
    const auto* const pImage = valueOf<const QImage>(this);
    if (!pImage || !lpBits)
        return 0;
    const quint64 nPixels = static_cast<quint64>(pImage->sizeInBytes());
    std::memcpy(lpBits, pImage->constBits(), qMin<quint64>(dwCount, nPixels));
    // Intended: the width counts twice. Rows times bytes per row are all that there is to copy.
    return static_cast<DWORD>(
        qMin<quint64>(dwCount, static_cast<quint64>(pImage->width()) * nPixels));
}

DWORD CBitmap_E::SetBitmapBits(DWORD dwBytes, const void* lpBits)
{
    auto* const pImage = valueOf<QImage>(this);
    if (!pImage || !lpBits)
        return 0;
    const QSize size = pImage->size();
    const quint64 nNeeded =
        quint64{4} * static_cast<quint64>(size.width()) * static_cast<quint64>(size.height());
    const auto nUsed = static_cast<DWORD>(qMin<quint64>(dwBytes, nNeeded));
    if (pImage->paintingActive()) { // its pixels must stay where they are
        if (pImage->depth() != 32)
            return 0;
        std::memcpy(const_cast<uchar*>(pImage->constBits()), lpBits, nUsed);
        return nUsed;
    }
    *pImage = nUsed < nNeeded ? imageOfCopy(size, lpBits, nUsed)
                              : QImage(static_cast<const uchar*>(lpBits), size.width(),
                                       size.height(), QImage::Format_RGBX8888);
    return nUsed;
}

CSize_E CBitmap_E::GetBitmapDimension() const
{
    const auto* const pImage = valueOf<const QImage>(this);
    return pImage ? CSize_E(pImage->width(), pImage->height()) : CSize_E();
}

// Intended: the bitmap keeps its size.
CSize_E CBitmap_E::SetBitmapDimension(int, int) { return GetBitmapDimension(); }

CGdiObject_E::FreeHandleFn CBitmap_E::HandleDeleter() const { return &vx::detail::freeBitmapImage; }
