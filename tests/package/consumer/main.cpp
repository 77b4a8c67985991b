// Built against the installed tree: binds a wrapper of the library to an object of Qt.
#include <VxMFCEmu/VxMFCEmu.h>

#include <cstdio>
#include <cstring>

int main()
{
    if (std::strcmp(VXMFC_VERSION_STRING, PACKAGE_VERSION) != 0) {
        std::fprintf(stderr, "headers are %s, package is %s\n", VXMFC_VERSION_STRING,
                     PACKAGE_VERSION);
        return 1;
    }
    QObject object;
    CCmdTarget_E target;
    const bool bound = target.Attach(&object, nullptr, true) &&
                       CObject_E::GetOwner(&object) == &target &&
                       target.IsKindOf(RUNTIME_CLASS_E(CCmdTarget_E));
    target.Detach();
    if (!bound || CObject_E::GetOwner(&object) != nullptr) {
        std::fputs("binding a wrapper failed\n", stderr);
        return 1;
    }
    return 0;
}
