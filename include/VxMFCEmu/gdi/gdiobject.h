/// @file gdiobject.h
/// The base of the GDI objects: a handle and the object that wraps it.
///
/// A handle is the address of a Qt value on the heap: `QPen`, `QBrush`, `QImage`, `QRegion` or
/// `QFont`. It belongs to the objects it is attached to, mostly one; a region can be shared through
/// CRgn_E::CopyRgn(). DeleteObject(), and with it the destructor, frees the value when the last of
/// them lets go, as the type it was made with, whatever the class of the object. A value whose type
/// no object knows is never freed. A *temporary* object, which FromHandle() makes for a handle that
/// no object is attached to, lives until DeleteTempMap() and takes nothing along when it goes.
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
    /// Deletes the handle.
    ~CGdiObject_E() override;

    /// GetSafeHandle().
    operator HGDIOBJ() const { return GetSafeHandle(); }
    /// The handle; null when there is none, also for a null object pointer.
    HGDIOBJ GetSafeHandle() const;
    /// The object of @p h: the one it is attached to, or else a temporary one that lives until
    /// DeleteTempMap(). Null for null. The derived classes' functions of this name give an object
    /// of their class, or null when @p h is attached to one of another.
    static CGdiObject_E* FromHandle(HGDIOBJ h);
    /// Binds @p h to this object; FALSE for null. The handle it had is let go, not freed.
    BOOL Attach(HGDIOBJ h);
    /// Lets the handle go, without freeing it, and returns it.
    HGDIOBJ Detach();
    /// Detaches the handle and frees it unless another object is attached to it too. FALSE for an
    /// empty object.
    BOOL DeleteObject();
    /// Always 0.
    int GetObject(int nCount, LPVOID pObject) const;
    /// Destroys the temporary objects.
    static void DeleteTempMap();

    /// The handle.
    HGDIOBJ m_hObject = nullptr;

protected:
    /// Frees a value of one type of Qt.
    using FreeHandleFn = void (*)(HGDIOBJ);
    /// What frees a handle of this class; null when the class does not tell the type of the value.
    virtual FreeHandleFn HandleDeleter() const;
};

/// The map of GDI objects, made when @p bCreate is set; null while there is none.
VXMFC_EXPORT CHandleMap_E* afxMapHGDIOBJ_E(BOOL bCreate = FALSE);
