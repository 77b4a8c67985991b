// Not part of the public interface. The classes that archives know.
#pragma once

#include <VxMFCEmu/core/runtimeclass.h>

#include <string_view>

namespace vx::detail {

/// The class that was entered first by that name; null when none was.
CRuntimeClass_E* serialClass(std::string_view name);
/// What pClass was entered with; null when it was not.
const AFX_CLASSINIT_E* serialEntry(const CRuntimeClass_E* pClass);

} // namespace vx::detail
