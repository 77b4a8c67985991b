#include "core/vxcreateregistry_p.h"

// Class records are built by static initialisers of many units, in whatever order the linker puts
// them; the priority makes the registry the first object of the library and the last to go.
__attribute__((init_priority(101))) std::map<const QMetaObject*, VxCreateObjectFn, std::less<>>
    g_mapCreateMethod;

namespace vx::detail {

__attribute__((init_priority(101)))
std::map<const QMetaObject*, const CRuntimeClass_E*, std::less<>>
    g_mapRegistrants;

} // namespace vx::detail
