/// @file imagelist.h
/// Lists of images.
///
/// Differs from Win32: a list refers to the bitmaps that are added to it, it does not copy them. A
/// bitmap that has been destroyed stays in the list as an empty image. Drawing, dragging and
/// storing lists is not done; draw the bitmaps.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/core/object.h>

#include <QtCore/QPointer>

#include <memory>
#include <vector>

/// @{
/// A kind of image list.
inline constexpr UINT ILC_MASK = 0x0001;
inline constexpr UINT ILC_COLOR = 0x0000;
inline constexpr UINT ILC_COLORDDB = 0x00FE;
inline constexpr UINT ILC_COLOR4 = 0x0004;
inline constexpr UINT ILC_COLOR8 = 0x0008;
inline constexpr UINT ILC_COLOR16 = 0x0010;
inline constexpr UINT ILC_COLOR24 = 0x0018;
inline constexpr UINT ILC_COLOR32 = 0x0020;
/// @}

/// @{
/// Whether images move or trade places.
inline constexpr UINT ILCF_MOVE = 0;
inline constexpr UINT ILCF_SWAP = 1;
/// @}

/// @{
/// A style of drawing an image.
inline constexpr UINT ILD_NORMAL = 0x0000;
inline constexpr UINT ILD_TRANSPARENT = 0x0001;
inline constexpr UINT ILD_BLEND25 = 0x0002;
inline constexpr UINT ILD_BLEND50 = 0x0004;
inline constexpr UINT ILD_MASK = 0x0010;
inline constexpr UINT ILD_IMAGE = 0x0020;
/// @}

class CArchive_E;
class CBitmap_E;
class CDC_E;
class CHandleMap_E;
class CWnd_E;
struct tagIMAGELISTDRAWPARAMS;

/// Where an image of a list is.
struct tagIMAGEINFO
{
    HBITMAP hbmImage; ///< the image's bitmap, owned by its object
    HBITMAP hbmMask;  ///< the mask's, null when it was added without
    int Unused1;      ///< not used
    int Unused2;      ///< not used
    tagRECT rcImage;  ///< the whole bitmap
};
using IMAGEINFO = tagIMAGEINFO; ///< its usual name

/// An ordered list of bitmaps. A list that has been created is its own handle.
class VXMFC_EXPORT CImageList_E : public CObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CImageList_E)

    /// An empty object.
    CImageList_E();
    /// A list of copies of the images of @p other.
    CImageList_E(const CImageList_E& other);
    /// Becomes a list of copies of the images.
    CImageList_E& operator=(const CImageList_E& other);
    /// Detaches the handle; the bitmaps that Create() and copying made go with the list.
    ~CImageList_E() override;

    /// GetSafeHandle().
    operator HIMAGELIST() const { return GetSafeHandle(); }
    /// The handle; null when there is none, also for a null object pointer.
    HIMAGELIST GetSafeHandle() const;
    /// The object of @p h: the one it is attached to, or else a temporary one that lives until
    /// DeleteTempMap(). Null for null.
    static CImageList_E* FromHandle(HIMAGELIST h);
    /// The object that @p h is attached to; null when there is none.
    static CImageList_E* FromHandlePermanent(HIMAGELIST h);
    /// Binds @p h to this object; FALSE for null.
    BOOL Attach(HIMAGELIST h);
    /// Lets the handle go and returns it.
    HIMAGELIST Detach();
    /// Drops the images and the handle; FALSE when there is none.
    BOOL DeleteImageList();
    /// Destroys the temporary objects.
    static void DeleteTempMap();

    /// Appends @p nInitial new bitmaps of 32 bits with undefined pixels; FALSE for less than one
    /// and for more than 65536.
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    /// Makes this a list of copies of the images of @p pImageList; FALSE for null.
    BOOL Create(CImageList_E* pImageList);
    /// Always FALSE, as are all members that say so below.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    /// Always FALSE.
    BOOL Create(LPCWSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);

    /// Appends @p pbmImage itself, which the caller keeps alive, after making every pixel in the
    /// mask colour transparent in the caller's bitmap (intended). A bitmap without alpha becomes
    /// one with it; while it is selected into a device context, it is left as it is. Returns the
    /// new image's index; -1 for a null or empty bitmap.
    int Add(CBitmap_E* pbmImage, COLORREF crMask);
    /// Appends @p pbmImage itself; the mask is kept for GetImageInfo(). -1 for a null bitmap.
    int Add(CBitmap_E* pbmImage, CBitmap_E* pbmMask);
    /// Always 0.
    int Add(HICON hIcon);
    /// Puts other bitmaps in the place of image @p nImage; FALSE without that image, and for a null
    /// or empty bitmap.
    BOOL Replace(int nImage, CBitmap_E* pbmImage, CBitmap_E* pbmMask);
    /// Always 0.
    int Replace(int nImage, HICON hIcon);
    /// Removes an image; FALSE for a negative index and for one above the count. The count itself
    /// is taken and removes nothing (intended).
    BOOL Remove(int nImage);
    /// Copies image @p iSrc over image @p iDst, or exchanges the two for ILCF_SWAP; FALSE without
    /// those images.
    BOOL Copy(int iDst, int iSrc, UINT uFlags = ILCF_MOVE);
    /// The same from another list; FALSE for null, and for ILCF_SWAP between two lists.
    BOOL Copy(int iDst, CImageList_E* pSrc, int iSrc, UINT uFlags = ILCF_MOVE);

    /// The number of images.
    int GetImageCount() const;
    /// Makes room for @p uNewCount images without changing their number (intended); FALSE for 0.
    BOOL SetImageCount(UINT uNewCount);
    /// Where image @p nImage is; FALSE without that image, for one whose bitmap is gone or empty,
    /// and for null.
    BOOL GetImageInfo(int nImage, tagIMAGEINFO* pImageInfo) const;
    /// Fills every image with the colour (intended); returns what GetBkColor() did.
    COLORREF SetBkColor(COLORREF cr);
    /// The colour of the first image's first pixel; 0 without one.
    COLORREF GetBkColor() const;

    // Not done: FALSE, 0 or null.
    /// @{
    /// Not done: FALSE, 0 or null.
    HICON ExtractIcon(int nImage);
    BOOL SetOverlayImage(int nImage, int nOverlay);
    BOOL Draw(CDC_E* pDC, int nImage, tagPOINT pt, UINT nStyle);
    BOOL DrawEx(CDC_E* pDC, int nImage, tagPOINT pt, tagSIZE sz, COLORREF clrBk, COLORREF clrFg,
                UINT nStyle);
    BOOL DrawIndirect(tagIMAGELISTDRAWPARAMS* pimldp);
    BOOL Read(CArchive_E* pArchive);
    BOOL Write(CArchive_E* pArchive);
    BOOL BeginDrag(int nImage, tagPOINT ptHotSpot);
    static void EndDrag();
    static BOOL DragMove(tagPOINT pt);
    static BOOL DragEnter(CWnd_E* pWndLock, tagPOINT point);
    static BOOL DragLeave(CWnd_E* pWndLock);
    static BOOL DragShowNolock(BOOL bShow);
    BOOL SetDragCursorImage(int nDrag, tagPOINT ptHotSpot);
    static CImageList_E* GetDragImage(tagPOINT* lpPoint, tagPOINT* lpPointHotSpot);
    /// @}

    /// The handle.
    HIMAGELIST m_hImageList = nullptr;

private:
    struct Image
    {
        QPointer<CBitmap_E> bitmap;
        QPointer<CBitmap_E> mask;
        std::shared_ptr<CBitmap_E> owned; ///< of a bitmap that the list made
    };
    static Image CopyOf(const Image& image);
    const Image* At(int nImage) const;
    Image* At(int nImage);
    int Append(const Image& image);
    void Assign(const CImageList_E& other);

    std::vector<Image> m_images;
};

/// The map of image lists, made when @p bCreate is set; null while there is none.
VXMFC_EXPORT CHandleMap_E* afxMapHIMAGELIST_E(BOOL bCreate = FALSE);
