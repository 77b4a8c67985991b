// The class records of the ready collections.
#include <VxMFCEmu/coll/arrays.h>
#include <VxMFCEmu/coll/lists.h>
#include <VxMFCEmu/coll/maps.h>

IMPLEMENT_SERIAL_E(CByteArray_E, CObject_E, 0)
IMPLEMENT_SERIAL_E(CWordArray_E, CObject_E, 0)
IMPLEMENT_SERIAL_E(CDWordArray_E, CObject_E, 0)
IMPLEMENT_DYNAMIC_E(CUIntArray_E, CObject_E, QObject)
IMPLEMENT_DYNAMIC_E(CPtrArray_E, CObject_E, QObject)
IMPLEMENT_SERIAL_E(CObArray_E, CObject_E, 0)
IMPLEMENT_SERIAL_E(CStringArray_E, CObject_E, 0)

IMPLEMENT_DYNAMIC_E(CPtrList_E, CObject_E, QObject)
IMPLEMENT_SERIAL_E(CObList_E, CObject_E, 0)
IMPLEMENT_SERIAL_E(CStringList_E, CObject_E, 0)

IMPLEMENT_DYNAMIC_E(CMapPtrToWord_E, CObject_E, QObject)
IMPLEMENT_DYNAMIC_E(CMapWordToPtr_E, CObject_E, QObject)
IMPLEMENT_SERIAL_E(CMapWordToOb_E, CObject_E, 0)
IMPLEMENT_DYNAMIC_E(CMapStringToPtr_E, CObject_E, QObject)
IMPLEMENT_SERIAL_E(CMapStringToOb_E, CObject_E, 0)
IMPLEMENT_SERIAL_E(CMapStringToString_E, CObject_E, 0)
