/// @file imagelist.h
/// Lists of images of one size: the handle and the object that wraps it.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/core/object.h>

class CHandleMap_E;

/// Wraps an image-list handle.
class VXMFC_EXPORT CImageList_E : public CObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CImageList_E)

    CImageList_E() = default;
    /// Detaches the handle.
    ~CImageList_E() override;

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
    /// Destroys the temporary objects.
    static void DeleteTempMap();

    HIMAGELIST m_hImageList = nullptr;
};

/// The map of image lists, made when @p bCreate is set; null while there is none.
VXMFC_EXPORT CHandleMap_E* afxMapHIMAGELIST_E(BOOL bCreate = FALSE);
