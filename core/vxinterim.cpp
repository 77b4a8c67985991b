// Stands in until the dump context is there.
#include <VxMFCEmu/core/object.h>
#include <VxMFCEmu/wnd/globaleventhandler.h>
#include <VxMFCEmu/wnd/resourceids.h>

void CObject_E::Dump(CDumpContext_E&) const {}
QString ToStringId(UINT) { return {}; }
void AppendTempObjectPool(QObject*) {}
