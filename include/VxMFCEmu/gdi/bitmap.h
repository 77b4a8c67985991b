/// @file bitmap.h
/// Bitmaps.
///
/// Differs from Win32: the depths are 1, 4, 8, 16 and 32 bits; a new bitmap's pixels are undefined,
/// those handed to CreateBitmap() are not taken over; SetBitmapBits() refers to the caller's
/// memory.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/gdi/gdiobject.h>
#include <VxMFCEmu/wnd/geometry.h>

#include <QtGui/QImage>

class CDC_E;

/// The form of a bitmap.
struct tagBITMAP
{
    LONG bmType;       ///< 0
    LONG bmWidth;      ///< pixels
    LONG bmHeight;     ///< pixels
    LONG bmWidthBytes; ///< bytes from one row to the next
    WORD bmPlanes;     ///< 1
    WORD bmBitsPixel;  ///< the depth
    LPVOID bmBits;     ///< the pixels, the bitmap's or those handed to SetBitmapBits()
};
using BITMAP = tagBITMAP;    ///< its usual name
using LPBITMAP = tagBITMAP*; ///< a pointer to one

/// Sets the image format of a depth; false, leaving @p format alone, for any depth but 1, 4, 8, 16
/// and 32.
VXMFC_EXPORT bool bitDepthIsCorrrect(int bitsPerPixel, QImage::Format& format);

/// A bitmap; its handle is a `QImage`.
class VXMFC_EXPORT CBitmap_E : public CGdiObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CBitmap_E)

    /// An empty object.
    CBitmap_E() = default;

    /// FromHandle() of the base, as an object of this class.
    static CBitmap_E* FromHandle(HBITMAP hBitmap);

    /// Loads an image file of any format that Qt knows; FALSE, keeping the old bitmap, if it fails.
    BOOL LoadBitmap(LPCWSTR lpszPath);
    /// Makes a bitmap with undefined pixels: @p lpBits is not copied (intended). FALSE for a size
    /// that is not positive and for a depth that bitDepthIsCorrrect() does not know.
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitsPerPixel,
                      const void* lpBits);
    /// The same; FALSE for null.
    BOOL CreateBitmapIndirect(const tagBITMAP* pBitmap);
    /// A bitmap of 32 bits with undefined pixels; the device context is ignored.
    BOOL CreateCompatibleBitmap(CDC_E* pDC, int nWidth, int nHeight);
    /// The same.
    BOOL CreateDiscardableBitmap(CDC_E* pDC, int nWidth, int nHeight);

    /// Describes the bitmap; 0 for an empty object and for null, else 1.
    int GetBitmap(tagBITMAP* pBitmap) const;
    /// Copies up to @p dwCount bytes of the pixels. Returns the smaller of @p dwCount and width ×
    /// height × bytes per row, which is more than there are pixels for (intended). 0 for an empty
    /// object and for null.
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const;
    /// Makes the caller's memory, which must outlive the bitmap, the pixels of an image of 32 bits
    /// in the present size. Fewer bytes than that takes are copied instead, and the rest is 0.
    /// The fourth byte of a pixel means nothing. Pixels of a bitmap that a device context draws on
    /// are copied into it, 32 bits each. Returns the number of bytes used; 0 for an empty object
    /// and for null.
    DWORD SetBitmapBits(DWORD dwBytes, const void* lpBits);
    /// Width and height in pixels; (0, 0) for an empty object.
    CSize_E GetBitmapDimension() const;
    /// Changes nothing (intended) and returns GetBitmapDimension().
    CSize_E SetBitmapDimension(int nWidth, int nHeight);

protected:
    FreeHandleFn HandleDeleter() const override;
};
