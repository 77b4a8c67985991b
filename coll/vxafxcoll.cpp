// The class records of the ready collections.
#include <VxMFCEmu/coll/arrays.h>
#include <VxMFCEmu/coll/lists.h>
#include <VxMFCEmu/coll/maps.h>

IMPLEMENT_DYNCREATE_E(CByteArray_E, CObject_E, QObject)
IMPLEMENT_DYNCREATE_E(CWordArray_E, CObject_E, QObject)
IMPLEMENT_DYNCREATE_E(CDWordArray_E, CObject_E, QObject)
IMPLEMENT_DYNAMIC_E(CUIntArray_E, CObject_E, QObject)
IMPLEMENT_DYNAMIC_E(CPtrArray_E, CObject_E, QObject)
IMPLEMENT_DYNCREATE_E(CObArray_E, CObject_E, QObject)
IMPLEMENT_DYNCREATE_E(CStringArray_E, CObject_E, QObject)

IMPLEMENT_DYNAMIC_E(CPtrList_E, CObject_E, QObject)
IMPLEMENT_DYNCREATE_E(CObList_E, CObject_E, QObject)
IMPLEMENT_DYNCREATE_E(CStringList_E, CObject_E, QObject)

IMPLEMENT_DYNAMIC_E(CMapPtrToWord_E, CObject_E, QObject)
IMPLEMENT_DYNAMIC_E(CMapWordToPtr_E, CObject_E, QObject)
IMPLEMENT_DYNCREATE_E(CMapWordToOb_E, CObject_E, QObject)
IMPLEMENT_DYNAMIC_E(CMapStringToPtr_E, CObject_E, QObject)
IMPLEMENT_DYNCREATE_E(CMapStringToOb_E, CObject_E, QObject)
IMPLEMENT_DYNCREATE_E(CMapStringToString_E, CObject_E, QObject)
