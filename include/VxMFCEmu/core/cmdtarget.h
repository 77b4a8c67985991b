/// @file cmdtarget.h
#pragma once

#include <VxMFCEmu/core/object.h>

/// Base of the classes that take commands and messages.
class VXMFC_EXPORT CCmdTarget_E : public CObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CCmdTarget_E)

    CCmdTarget_E() = default;

    /// Adds a reference and returns the new count. Differs from Win32: the count is bookkeeping for
    /// its callers and deletes nothing.
    LONGLONG InternalAddRef() { return ++m_dwRef; }
    /// Takes a reference away and returns the new count; from 0 it stays 0.
    LONGLONG InternalRelease() { return m_dwRef == 0 ? 0 : --m_dwRef; }

private:
    LONGLONG m_dwRef = 0;
};
