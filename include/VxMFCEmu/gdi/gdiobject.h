/// @file gdiobject.h
/// The base of the GDI objects: a handle and the object that wraps it.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/core/object.h>

class CHandleMap_E;

/// Wraps a GDI handle, the address of a Qt value object.
class VXMFC_EXPORT CGdiObject_E : public CObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CGdiObject_E)

    CGdiObject_E() = default;
    /// Detaches the handle.
    ~CGdiObject_E() override;

    operator HGDIOBJ() const { return GetSafeHandle(); }
    /// The handle; null when there is none, also for a null object pointer.
    HGDIOBJ GetSafeHandle() const;
    /// The object of @p h: the one it is attached to, or else a temporary one that lives until
    /// DeleteTempMap(). Null for null.
    static CGdiObject_E* FromHandle(HGDIOBJ h);
    /// Binds @p h to this object; FALSE for null.
    BOOL Attach(HGDIOBJ h);
    /// Lets the handle go and returns it.
    HGDIOBJ Detach();
    /// Destroys the temporary objects.
    static void DeleteTempMap();

    HGDIOBJ m_hObject = nullptr;
};

/// The map of GDI objects, made when @p bCreate is set; null while there is none.
VXMFC_EXPORT CHandleMap_E* afxMapHGDIOBJ_E(BOOL bCreate = FALSE);
