// Stands in until the dump context is there.
#include <VxMFCEmu/core/object.h>
#include <VxMFCEmu/wnd/globaleventhandler.h>
#include <VxMFCEmu/wnd/resourceids.h>

#include <QtGui/QCursor>

VXMFC_EXPORT BOOL GetCursorPos_E(tagPOINT* lpPoint);

void CObject_E::Dump(CDumpContext_E&) const {}
QString ToStringId(UINT) { return {}; }
void AppendTempObjectPool(QObject*) {}
BOOL GetCursorPos_E(tagPOINT* lpPoint)
{
    if (!lpPoint)
        return FALSE;
    const QPoint at = QCursor::pos();
    *lpPoint = {at.x(), at.y()};
    return TRUE;
}
