// Not part of the public interface. Beside the dynamic-creation registry: who made its entries.
#pragma once

#include <VxMFCEmu/core/runtimeclass.h>

namespace vx::detail {

/// The class record that entered a Qt class; none for a factory that was registered by itself.
/// Exists as long as the registry.
extern std::map<const QMetaObject*, const CRuntimeClass_E*, std::less<>> g_mapRegistrants;

} // namespace vx::detail
