// Stands in until the dump context and the resource names are there.
#include <VxMFCEmu/core/object.h>
#include <VxMFCEmu/text/resourcename.h>
#include <VxMFCEmu/wnd/globaleventhandler.h>
#include <VxMFCEmu/wnd/resourceids.h>

void CObject_E::Dump(CDumpContext_E&) const {}
QString GetMfyResourceName() { return {}; }
QString ToStringId(UINT) { return {}; }
void AppendTempObjectPool(QObject*) {}
