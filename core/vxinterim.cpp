// Stands in until the dump context is there.
#include <VxMFCEmu/core/object.h>
#include <VxMFCEmu/wnd/globaleventhandler.h>

void CObject_E::Dump(CDumpContext_E&) const {}
void AppendTempObjectPool(QObject*) {}
