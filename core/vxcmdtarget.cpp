#include <VxMFCEmu/core/cmdtarget.h>

IMPLEMENT_DYNAMIC_E(CCmdTarget_E, CObject_E, QObject)
