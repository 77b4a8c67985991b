// Stands in until the dump context, the exceptions and the resource names are there.
#include "core/vxthrow_p.h"

#include <VxMFCEmu/core/object.h>
#include <VxMFCEmu/text/resourcename.h>
#include <VxMFCEmu/wnd/globaleventhandler.h>
#include <VxMFCEmu/wnd/resourceids.h>

void CObject_E::Dump(CDumpContext_E&) const {}
QString GetMfyResourceName() { return {}; }
QString ToStringId(UINT) { return {}; }
void AppendTempObjectPool(QObject*) {}
void AfxThrowMemoryException_E() { throw std::bad_alloc(); }
void AfxThrowInvalidArgException_E() { throw std::invalid_argument("invalid argument"); }
