// A plug-in: asks the library in its own name. The results keep the calls from being tail calls,
// which would hide the plug-in.
#include <VxMFCEmu/text.h>

extern "C" {

Q_DECL_EXPORT void pluginName(QString* result) { *result = GetMfyResourceName(); }

Q_DECL_EXPORT int pluginCallBack(int (*callback)()) { return callback() + 1; }

Q_DECL_EXPORT BOOL pluginLoad(CString_E* text, UINT id)
{
    const BOOL found = text->LoadString(id);
    return found == text->LoadString(nullptr, id, 0) ? found : -1;
}

Q_DECL_EXPORT int pluginFormat(CString_E* text, UINT id)
{
    text->Format(id, 3, L"nine");
    text->AppendFormat(id, 4, L"ten");
    return text->GetLength();
}
}
