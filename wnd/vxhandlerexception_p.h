// Not part of the public interface. What becomes of an exception that a handler lets out.
#pragma once

#include <VxMFCEmu/core/exceptions.h>

namespace vx::detail {

/// Calls @p function and shows the message of an MFC exception that it throws, as MFC does for
/// commands and messages. Other exceptions pass.
template <typename Function>
void reportExceptions(Function function)
{
    constexpr UINT kIconExclamation = 0x30;
    try {
        function();
    } catch (CException_E* pException) {
        pException->ReportError(kIconExclamation);
        pException->Delete();
    }
}

} // namespace vx::detail
