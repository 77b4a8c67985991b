// Stands in until the dump context and the resource names are there.
#include <VxMFCEmu/core/object.h>
#include <VxMFCEmu/text/resourcename.h>
#include <VxMFCEmu/wnd/globaleventhandler.h>

void CObject_E::Dump(CDumpContext_E&) const {}
QString GetMfyResourceName() { return {}; }
void AppendTempObjectPool(QObject*) {}
