// Stands in until the resource names and the window layer are there.
#include <VxMFCEmu/text/resourcename.h>
#include <VxMFCEmu/wnd/globaleventhandler.h>
#include <VxMFCEmu/wnd/resourceids.h>

QString GetMfyResourceName() { return {}; }
QString ToStringId(UINT) { return {}; }
void AppendTempObjectPool(QObject*) {}
