/// @file dc.h
/// The device context: a painter, and the handles under which it is known.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/core/object.h>

#include <QtGui/QPainter>

class CHandleMap_E;

/// A device context. Has no meta object and no class record of its own.
class VXMFC_EXPORT CDC_E : public CObject_E
{
public:
    /// An inactive painter without a handle.
    CDC_E() = default;
    /// Detaches the handle and ends the painter.
    ~CDC_E() override;

    /// Sets the attribute handle.
    virtual void SetAttribDC(HDC hDC);
    /// Clears the attribute handle.
    virtual void ReleaseAttribDC();

    operator HDC() const { return GetSafeHdc(); }
    /// The handle; null when there is none, also for a null object pointer.
    HDC GetSafeHdc() const;
    /// The object of @p hDC: the one it is attached to, or else a temporary one that lives until
    /// DeleteTempMap(). Null for null.
    static CDC_E* FromHandle(HDC hDC);
    /// Binds @p hDC to this object, as attribute handle too; FALSE for null.
    BOOL Attach(HDC hDC);
    /// Lets the handles go and returns the first.
    HDC Detach();
    /// Destroys the temporary objects.
    static void DeleteTempMap();

private:
    QPainter m_painter;
    [[maybe_unused]] int m_x = 0;
    [[maybe_unused]] int m_y = 0;

public:
    HDC m_hDC = nullptr;
    HDC m_hAttribDC = nullptr;
};

/// The map of device contexts, made when @p bCreate is set; null while there is none.
VXMFC_EXPORT CHandleMap_E* afxMapHDC_E(BOOL bCreate = FALSE);
