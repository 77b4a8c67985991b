// Not part of the public interface. Where the wrapped object stands inside a wrapper.
#pragma once

#include <VxMFCEmu/core/handlemap.h>

struct VxObjectLayout
{
    /// Offset of the implementation object's pointer: the handle field of a window.
    static std::size_t impQObject()
    {
        return vx::detail::offsetOfMember(&CObject_E::m_pImpQObject);
    }
};
