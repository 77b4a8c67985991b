// Stands in until the window layer is there.
#include <VxMFCEmu/wnd/globaleventhandler.h>
#include <VxMFCEmu/wnd/resourceids.h>

QString ToStringId(UINT) { return {}; }
void AppendTempObjectPool(QObject*) {}
