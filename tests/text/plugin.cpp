// A plug-in: asks the library in its own name.
#include <VxMFCEmu/core.h>
#include <VxMFCEmu/text.h>

namespace {

QString s_nameInFactory;

CObject_E* makeNothing()
{
    s_nameInFactory = GetMfyResourceName();
    return nullptr;
}

} // namespace

extern "C" {

Q_DECL_EXPORT void pluginName(QString* result) { *result = GetMfyResourceName(); }

Q_DECL_EXPORT void pluginCallBack(void (*callback)())
{
    callback();
    s_nameInFactory.clear();
}

Q_DECL_EXPORT BOOL pluginLoad(CString_E* text, UINT id)
{
    const BOOL found = text->LoadString(id);
    return found == text->LoadString(nullptr, id, 0) ? found : -1;
}

// The results keep the calls from being tail calls, which would hide the plug-in.
Q_DECL_EXPORT int pluginFormat(CString_E* text, UINT id)
{
    text->Format(id, 3, L"nine");
    text->AppendFormat(id, 4, L"ten");
    return text->GetLength();
}

/// A factory that the library is to call: the plug-in is nearer on the stack than who asked for it.
Q_DECL_EXPORT VxCreateObjectFn pluginFactory() { return &makeNothing; }
Q_DECL_EXPORT QString* pluginNameInFactory() { return &s_nameInFactory; }
}
