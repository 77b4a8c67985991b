// A plug-in with a class of its own over a Qt class of its own.
#include <VxMFCEmu/coll.h>
#include <VxMFCEmu/core.h>

#include <memory>

class Engine : public QObject
{
    Q_OBJECT
};

class DieselEngine : public Engine
{
    Q_OBJECT
};

class CEngine : public CCmdTarget_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CEngine)
};

IMPLEMENT_DYNCREATE_E(CEngine, CCmdTarget_E, Engine)

/// Known to archives as long as the plug-in is loaded.
class CEnginePart : public CObject_E
{
    DECLARE_SERIAL_E(CEnginePart)
};

IMPLEMENT_SERIAL_E(CEnginePart, CObject_E, 1)

/// The Qt class that the plug-in registers.
extern "C" Q_DECL_EXPORT const QMetaObject* pluginMetaObject() { return &Engine::staticMetaObject; }

/// Whether the registry makes the plug-in's wrapper for its Qt class and for one derived from it,
/// and the wrapper works.
extern "C" Q_DECL_EXPORT bool pluginWorks()
{
    for (const QMetaObject* meta : {&Engine::staticMetaObject, &DieselEngine::staticMetaObject}) {
        const std::unique_ptr<CObject_E> wrapper(CObject_E::FromImpMetaObject(meta));
        DieselEngine engine;
        if (!wrapper || wrapper->GetRuntimeClass() != RUNTIME_CLASS_E(CEngine) ||
            !wrapper->Attach(&engine, nullptr, true) ||
            CObject_E::GetOwner(&engine) != wrapper.get())
            return false;
    }
    return CObject_E::FromImpMetaObject(&QObject::staticMetaObject) == nullptr;
}

#include "plugin.moc"
