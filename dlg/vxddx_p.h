// Not part of the public interface. What every exchange function begins with.
#pragma once

#include <VxMFCEmu/dlg/dataexchange.h>

namespace vx::detail {

/// Makes @p pControl the current control; false when there is nothing to do.
inline bool beginExchange(CDataExchange_E* pDX, QWidget* pControl)
{
    if (pDX)
        pDX->PrepareCtrl(pControl);
    return pDX && pControl;
}

} // namespace vx::detail
