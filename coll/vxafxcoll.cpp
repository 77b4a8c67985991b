// The class records of the ready collections.
#include <VxMFCEmu/coll/arrays.h>
#include <VxMFCEmu/coll/lists.h>
#include <VxMFCEmu/coll/maps.h>

/// Archives know the class by the name that it has in MFC's.
#define IMPLEMENT_SERIAL_AS(name) VXMFC_IMPLEMENT_SERIAL(name##_E, CObject_E, #name, 0)

IMPLEMENT_SERIAL_AS(CByteArray)
IMPLEMENT_SERIAL_AS(CWordArray)
IMPLEMENT_SERIAL_AS(CDWordArray)
IMPLEMENT_DYNAMIC_E(CUIntArray_E, CObject_E, QObject)
IMPLEMENT_DYNAMIC_E(CPtrArray_E, CObject_E, QObject)
IMPLEMENT_SERIAL_AS(CObArray)
IMPLEMENT_SERIAL_AS(CStringArray)

IMPLEMENT_DYNAMIC_E(CPtrList_E, CObject_E, QObject)
IMPLEMENT_SERIAL_AS(CObList)
IMPLEMENT_SERIAL_AS(CStringList)

IMPLEMENT_DYNAMIC_E(CMapPtrToWord_E, CObject_E, QObject)
IMPLEMENT_DYNAMIC_E(CMapWordToPtr_E, CObject_E, QObject)
IMPLEMENT_SERIAL_AS(CMapWordToOb)
IMPLEMENT_DYNAMIC_E(CMapStringToPtr_E, CObject_E, QObject)
IMPLEMENT_SERIAL_AS(CMapStringToOb)
IMPLEMENT_SERIAL_AS(CMapStringToString)
