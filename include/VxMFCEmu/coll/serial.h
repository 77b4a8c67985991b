/// @file serial.h
/// Classes whose objects can be read from archives.
///
/// A serial class has a default constructor and overrides Serialize(). It may do without
/// `Q_OBJECT`: archives know it by the name that the macros are given.
/// @code
/// class CPart : public CObject_E { DECLARE_SERIAL_E(CPart) ... };   // header
/// IMPLEMENT_SERIAL_E(CPart, CObject_E, VERSIONABLE_SCHEMA | 2)      // source
/// @endcode
/// The schema number is written with the class. An archive with another number is refused, unless
/// the class is versionable: then its Serialize() asks CArchive_E::GetObjectSchema().
///
/// The library's own collections have their MFC names in archives, without the suffix.
///
/// Differs from MFC: a class in a plug-in is known while the plug-in is loaded; a second class of
/// the same name is not known as long as the first one is.
#pragma once

#include <VxMFCEmu/coll/archive.h>

/// Added to the schema of a class that reads its earlier forms too.
inline constexpr UINT VERSIONABLE_SCHEMA = 0x80000000U;

namespace vx::detail {
/// Throws badClass.
[[noreturn]] VXMFC_EXPORT void throwBadClass(const CArchive_E& ar);

/// @p pOb as an object of T; throws badClass when it is none.
template <typename T>
T* serialCast(const CArchive_E& ar, CObject_E* pOb)
{
    if (!pOb || pOb->GetRuntimeClass() == &T::s_classInfo)
        return static_cast<T*>(pOb);
    T* const pResult = dynamic_cast<T*>(pOb);
    if (!pResult)
        throwBadClass(ar);
    return pResult;
}
} // namespace vx::detail

/// As DECLARE_DYNCREATE_E, for a serial class.
#define DECLARE_SERIAL_E(theClass)                                                                 \
    DECLARE_DYNCREATE_E(theClass)                                                                  \
    static const AFX_CLASSINIT_E s_classInit;                                                      \
    [[maybe_unused]] friend CArchive_E& operator>>(CArchive_E& ar, theClass*& pOb)                 \
    {                                                                                              \
        pOb = vx::detail::serialCast<theClass>(ar, ar.ReadObject(RUNTIME_CLASS_E(theClass)));      \
        return ar;                                                                                 \
    }

#define VXMFC_IMPLEMENT_SERIAL(theClass, baseClass, pszName, wSchema)                              \
    VXMFC_IMPLEMENT_CREATE_OBJECT(theClass)                                                        \
    VXMFC_IMPLEMENT_RUNTIME_CLASS(theClass, baseClass::GetImpMetaObject(),                         \
                                  baseClass::GetImpMetaObject(), &theClass::CreateObject,          \
                                  baseClass::GetImpMetaList())                                     \
    const AFX_CLASSINIT_E theClass::s_classInit(                                                   \
        RUNTIME_CLASS_E(theClass), pszName, wSchema,                                               \
        [](const CObject_E* pOb) { return dynamic_cast<const theClass*>(pOb) != nullptr; });

/// In a source file: the record, the factory and the schema of a serial class. It is implemented by
/// the Qt class of its base.
#define IMPLEMENT_SERIAL_E(theClass, baseClass, wSchema)                                           \
    VXMFC_IMPLEMENT_SERIAL(theClass, baseClass, #theClass, wSchema)
