#include <VxMFCEmu/gdi/imagelist.h>

#include "gdi/vxgdihandles_p.h"

#include <VxMFCEmu/gdi/bitmap.h>
#include <VxMFCEmu/gdi/colorref.h>

#include <algorithm>
#include <utility>

namespace {

using vx::detail::handleOf;
using vx::detail::valueOf;

/// Makes the pixels in the mask colour transparent, in a format of 32 bits with alpha.
void maskOut(QImage& image, COLORREF crMask)
{
    const bool bFits = image.format() == QImage::Format_ARGB32 ||
                       image.format() == QImage::Format_ARGB32_Premultiplied ||
                       image.format() == QImage::Format_RGBA8888;
    if (!bFits && image.paintingActive())
        return; // selected into a device context: its pixels must stay where they are
    if (!bFits) {
        // By way of a format that knows no fourth byte, which Qt would take for alpha.
        if (!image.hasAlphaChannel())
            image = image.convertToFormat(QImage::Format_RGB32);
        image = image.convertToFormat(QImage::Format_RGBA8888);
    }
    QImage mask(1, 1, image.format());
    mask.fill(vx::detail::toQColor(crMask));
    const auto pixelOf = [](const QImage& from, int y) {
        return reinterpret_cast<const quint32*>(from.constScanLine(y));
    };
    const quint32 masked = *pixelOf(mask, 0);
    for (int y = 0; y < image.height(); ++y) {
        auto* const pRow = reinterpret_cast<quint32*>(image.scanLine(y));
        // A transparent pixel is 0 in each of the three formats.
        std::replace(pRow, pRow + image.width(), masked, quint32{0});
    }
}

} // namespace

CImageList_E::CImageList_E() = default;

CImageList_E::CImageList_E(const CImageList_E& other) : CObject_E() { Assign(other); }

CImageList_E& CImageList_E::operator=(const CImageList_E& other)
{
    Assign(other);
    return *this;
}

BOOL CImageList_E::DeleteImageList()
{
    m_images.clear();
    return Detach() != nullptr;
}

BOOL CImageList_E::Create(int cx, int cy, UINT, int nInitial, int)
{
    constexpr int kMaxInitial = 1 << 16;
    if (nInitial < 1 || nInitial > kMaxInitial)
        return FALSE;
    for (int i = 0; i < nInitial; ++i) {
        auto pBitmap = std::make_shared<CBitmap_E>();
        pBitmap->CreateBitmap(cx, cy, 1, 32, nullptr);
        Append({pBitmap.get(), nullptr, pBitmap});
    }
    return TRUE;
}

BOOL CImageList_E::Create(CImageList_E* pImageList)
{
    if (!pImageList)
        return FALSE;
    Assign(*pImageList);
    return TRUE;
}

BOOL CImageList_E::Create(UINT, int, int, COLORREF) { return FALSE; }

BOOL CImageList_E::Create(LPCWSTR, int, int, COLORREF) { return FALSE; }

int CImageList_E::Add(CBitmap_E* pbmImage, COLORREF crMask)
{
    auto* const pImage = valueOf<QImage>(pbmImage);
    if (!pImage)
        return -1;
    maskOut(*pImage, crMask);
    return Append({pbmImage, nullptr, nullptr});
}

int CImageList_E::Add(CBitmap_E* pbmImage, CBitmap_E* pbmMask)
{
    return pbmImage ? Append({pbmImage, pbmMask, nullptr}) : -1;
}

BOOL CImageList_E::Replace(int nImage, CBitmap_E* pbmImage, CBitmap_E* pbmMask)
{
    Image* const pEntry = At(nImage);
    if (!pEntry || !handleOf(pbmImage))
        return FALSE;
    // Our own bitmap stays ours.
    *pEntry = {pbmImage, pbmMask, pEntry->owned.get() == pbmImage ? pEntry->owned : nullptr};
    return TRUE;
}

BOOL CImageList_E::Remove(int nImage)
{
    // Intended: one past the last image is taken too.
    if (nImage < 0 || nImage > GetImageCount())
        return FALSE;
    if (At(nImage))
        m_images.erase(m_images.begin() + nImage);
    return TRUE;
}

BOOL CImageList_E::Copy(int iDst, int iSrc, UINT uFlags) { return Copy(iDst, this, iSrc, uFlags); }

BOOL CImageList_E::Copy(int iDst, CImageList_E* pSrc, int iSrc, UINT uFlags)
{
    Image* const pTo = At(iDst);
    Image* const pFrom = pSrc ? pSrc->At(iSrc) : nullptr;
    if (!pTo || !pFrom || (uFlags == ILCF_SWAP && pSrc != this))
        return FALSE;
    if (uFlags == ILCF_SWAP)
        std::swap(*pTo, *pFrom);
    else
        *pTo = CopyOf(*pFrom);
    return TRUE;
}

int CImageList_E::GetImageCount() const { return static_cast<int>(m_images.size()); }

BOOL CImageList_E::SetImageCount(UINT uNewCount)
{
    // Intended: the count stays. Room is a matter of speed only, so that it can have a limit.
    constexpr UINT kMaxReserved = 1U << 16U;
    if (uNewCount == 0)
        return FALSE;
    m_images.reserve(qMin(uNewCount, kMaxReserved));
    return TRUE;
}

BOOL CImageList_E::GetImageInfo(int nImage, tagIMAGEINFO* pImageInfo) const
{
    const Image* const pEntry = At(nImage);
    const auto* const pImage = pEntry ? valueOf<const QImage>(pEntry->bitmap) : nullptr;
    if (!pImage || !pImageInfo)
        return FALSE;
    *pImageInfo = {pEntry->bitmap->m_hObject,
                   handleOf(pEntry->mask),
                   0,
                   0,
                   {0, 0, pImage->width(), pImage->height()}};
    return TRUE;
}

COLORREF CImageList_E::SetBkColor(COLORREF cr)
{
    const COLORREF crBefore = GetBkColor();
    for (const Image& entry : m_images) {
        if (auto* const pImage = valueOf<QImage>(entry.bitmap))
            pImage->fill(vx::detail::toQColor(cr));
    }
    return crBefore;
}

COLORREF CImageList_E::GetBkColor() const
{
    const auto* const pImage =
        m_images.empty() ? nullptr : valueOf<const QImage>(m_images.front().bitmap);
    return pImage && !pImage->isNull() ? vx::detail::toColorRef(pImage->pixelColor(0, 0)) : 0;
}

CImageList_E::Image CImageList_E::CopyOf(const Image& image)
{
    auto pBitmap = std::make_shared<CBitmap_E>();
    if (const auto* const pImage = valueOf<const QImage>(image.bitmap))
        pBitmap->Attach(new QImage(pImage->copy()));
    return {pBitmap.get(), image.mask, pBitmap};
}

const CImageList_E::Image* CImageList_E::At(int nImage) const
{
    return nImage >= 0 && nImage < GetImageCount() ? &m_images[static_cast<std::size_t>(nImage)]
                                                   : nullptr;
}

CImageList_E::Image* CImageList_E::At(int nImage)
{
    return const_cast<Image*>(std::as_const(*this).At(nImage));
}

int CImageList_E::Append(const Image& image)
{
    m_images.push_back(image);
    if (!m_hImageList)
        Attach(this);
    return GetImageCount() - 1;
}

void CImageList_E::Assign(const CImageList_E& other)
{
    if (&other == this)
        return;
    m_images.clear();
    for (const Image& image : other.m_images)
        Append(CopyOf(image));
}
