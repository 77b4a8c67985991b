/// @file runtimeclass.h
/// Class records and the dynamic-creation registry.
///
/// The identity of a class is its `QMetaObject`. A class record pairs it with the Qt class that
/// does the work and, for classes that can be made at run time, a factory. The registry maps Qt
/// classes to factories, so that a wrapper can be made for a Qt object that came from elsewhere.
///
/// A class gets its record from two macros, the same for this library and for applications:
/// @code
/// class CGauge : public CWnd_E { Q_OBJECT DECLARE_DYNCREATE_E(CGauge) ... };   // header
/// IMPLEMENT_DYNCREATE_E(CGauge, CWnd_E, QProgressBar)                          // source
/// @endcode
///
/// Differs from Win32: a class without `Q_OBJECT` has its nearest base's meta object, and
/// `IsKindOf` cannot tell it from that base. This is intended.
///
/// Threads: GUI thread only; records are built and destroyed by static initialisers.
#pragma once

#include <VxMFCEmu/types.h>

#include <QtCore/QList>
#include <QtCore/QMetaObject>

#include <map>

class CArchive_E;
class CObject_E;

/// The schema number of a class that cannot be read from an archive.
inline constexpr UINT VX_NO_SCHEMA = 0xFFFF;

/// Makes one object of a class; the result is owned by the caller.
using VxCreateObjectFn = CObject_E* (*)();

/// The dynamic-creation registry: Qt class to factory. It exists before any class record.
extern VXMFC_EXPORT std::map<const QMetaObject*, VxCreateObjectFn, std::less<>> g_mapCreateMethod;

/// The record of one class, held by the class as its static member `s_classInfo`.
class VXMFC_EXPORT CRuntimeClass_E
{
public:
    /// Stores the record and registers @p pfnCreateObject for @p pImpMetaObject, or for each entry
    /// of @p pImpMetaList when there is one; a Qt class equal to @p pBaseImpMetaObject is left out.
    /// Takes ownership of the list. @p nObjectSize is the size of one instance in bytes.
    CRuntimeClass_E(const QMetaObject* pMetaObject, const QMetaObject* pImpMetaObject,
                    const QMetaObject* pBaseImpMetaObject, VxCreateObjectFn pfnCreateObject,
                    QList<const QMetaObject*>* pImpMetaList, int nObjectSize);
    /// Takes what this record registered out of the registry: the factory's code may be about to be
    /// unloaded. Entries made by others stay, of the same factory too.
    ~CRuntimeClass_E();
    Q_DISABLE_COPY_MOVE(CRuntimeClass_E)

    /// The class's own meta object.
    const QMetaObject* GetMetaObject() const { return m_pMetaObject; }
    /// The Qt class that implements it.
    const QMetaObject* GetImpMetaObject() const { return m_pImpMetaObject; }
    /// Name of the class, of its base for a class without `Q_OBJECT`.
    const char* GetClassName() const { return m_pMetaObject->className(); }
    /// Name of the implementing Qt class.
    const char* GetImpClassName() const { return m_pImpMetaObject->className(); }
    /// Size of one instance in bytes.
    int GetObjectSize() const { return m_nObjectSize; }
    /// Makes a new object, owned by the caller; null when the class has no factory.
    CObject_E* CreateObject() const;
    /// The same of the class that is registered as @p lpszClassName, null also when none is.
    static CObject_E* CreateObject(const char* lpszClassName);
    /// Whether this class is @p pClass or derives from it; false for null.
    bool IsDerivedFrom(const CRuntimeClass_E* pClass) const;
    /// Whether an object of Qt class @p pMeta can implement this class; false for null.
    bool IsMyImpMeta(const QMetaObject* pMeta) const;

    /// A new list, owned by the caller, of every argument up to the first null one, which must be
    /// there.
    static QList<const QMetaObject*>* CreateMetaList(const QMetaObject* pFirst, ...);
    /// Enters a factory for a Qt class. Returns false, changing nothing, for a null factory and for
    /// a class that has one already: the first registration wins.
    static bool RegisterCreateObjectMethod(const QMetaObject* pMeta,
                                           VxCreateObjectFn pfnCreateObject);

    /// @{
    /// The class that is registered for archives by that name, the first of several; null for null
    /// and when there is none. Any thread may ask.
    static CRuntimeClass_E* FromName(const char* lpszClassName);
    static CRuntimeClass_E* FromName(const wchar_t* lpszClassName);
    /// @}
    /// Writes schema and name as an archive has them. Throws the not-supported exception for a
    /// class without a name in archives.
    void Store(CArchive_E& ar) const;
    /// Reads what Store() wrote, the schema into @p pwSchemaNum; null when no class is registered
    /// by that name.
    static CRuntimeClass_E* Load(CArchive_E& ar, UINT* pwSchemaNum);

private:
    const QMetaObject* m_pMetaObject;
    const QMetaObject* m_pImpMetaObject;
    QList<const QMetaObject*>* m_pImpMetaList;
    VxCreateObjectFn m_pfnCreateObject;
    int m_nObjectSize;

public:
    /// The number of the class's form in archives, perhaps with VERSIONABLE_SCHEMA; VX_NO_SCHEMA
    /// for a class that is not serial.
    UINT m_wSchema = VX_NO_SCHEMA;
};

/// Enters a class for archives: by its name in them, with its schema. Whoever was first has the
/// name; the entry goes with this object, for the code of the class may be about to be unloaded.
struct VXMFC_EXPORT AFX_CLASSINIT_E
{
    /// @p pfnIsInstance tells objects of the class, which the meta object of one without `Q_OBJECT`
    /// cannot.
    AFX_CLASSINIT_E(CRuntimeClass_E* pNewClass, const char* pszName, UINT wSchema,
                    bool (*pfnIsInstance)(const CObject_E*));
    ~AFX_CLASSINIT_E();
    Q_DISABLE_COPY_MOVE(AFX_CLASSINIT_E)

    CRuntimeClass_E* const m_pClass; ///< the record of the class
    const char* const m_pszName;     ///< its name in archives, text of the module that enters it
    bool (*const m_pfnIsInstance)(const CObject_E*); ///< tells objects of the class
};

/// The class record of a class.
#define RUNTIME_CLASS_E(theClass) (&theClass::s_classInfo)

/// In a class body: the members every class with a record has. Leaves the access at `public`.
#define DECLARE_DYNAMIC_E(theClass)                                                                \
public:                                                                                            \
    static CRuntimeClass_E s_classInfo;                                                            \
    CRuntimeClass_E* GetRuntimeClass() const override;                                             \
    static const QMetaObject* GetImpMetaObject();                                                  \
    static QList<const QMetaObject*>* GetImpMetaList();

/// As DECLARE_DYNAMIC_E, for a class with a default constructor that can be made at run time.
#define DECLARE_DYNCREATE_E(theClass)                                                              \
    DECLARE_DYNAMIC_E(theClass)                                                                    \
    static CObject_E* CreateObject();

#define VXMFC_IMPLEMENT_RUNTIME_CLASS(theClass, pBaseImp, pImp, pfnCreate, pList)                  \
    CRuntimeClass_E* theClass::GetRuntimeClass() const { return &theClass::s_classInfo; }          \
    const QMetaObject* theClass::GetImpMetaObject() { return pImp; }                               \
    QList<const QMetaObject*>* theClass::GetImpMetaList() { return pList; }                        \
    CRuntimeClass_E theClass::s_classInfo(                                                         \
        &theClass::staticMetaObject, theClass::GetImpMetaObject(), pBaseImp, pfnCreate,            \
        theClass::GetImpMetaList(), static_cast<int>(sizeof(theClass)));

#define VXMFC_IMPLEMENT_CREATE_OBJECT(theClass)                                                    \
    CObject_E* theClass::CreateObject() { return new theClass; }

/// In a source file: the record of a class that cannot be made at run time.
#define IMPLEMENT_DYNAMIC_E(theClass, baseClass, qtClass)                                          \
    VXMFC_IMPLEMENT_RUNTIME_CLASS(theClass, baseClass::GetImpMetaObject(),                         \
                                  &qtClass::staticMetaObject, nullptr, nullptr)

/// In a source file: the record and the factory of a class over one Qt class.
#define IMPLEMENT_DYNCREATE_E(theClass, baseClass, qtClass)                                        \
    VXMFC_IMPLEMENT_CREATE_OBJECT(theClass)                                                        \
    VXMFC_IMPLEMENT_RUNTIME_CLASS(theClass, baseClass::GetImpMetaObject(),                         \
                                  &qtClass::staticMetaObject, &theClass::CreateObject, nullptr)

/// As IMPLEMENT_DYNCREATE_E, for a class that several Qt classes can implement: the meta objects
/// follow @p qtClass, which is the one that GetImpMetaObject() names.
#define IMPLEMENT_DYNCREATE_LIST_E(theClass, baseClass, qtClass, ...)                              \
    VXMFC_IMPLEMENT_CREATE_OBJECT(theClass)                                                        \
    VXMFC_IMPLEMENT_RUNTIME_CLASS(                                                                 \
        theClass, baseClass::GetImpMetaObject(), &qtClass::staticMetaObject,                       \
        &theClass::CreateObject,                                                                   \
        CRuntimeClass_E::CreateMetaList(__VA_ARGS__, static_cast<const QMetaObject*>(nullptr)))
