#include "wnd/vxseesmessages_p.h"

#include <VxMFCEmu/wnd/window.h>

#include <cstring>

namespace vx::detail {
namespace {

// The function a virtual call of PreTranslateMessage() would reach, read from the virtual table as
// the Itanium C++ ABI lays it out; null on machines whose member pointers look different. Reading
// it is what makes the question cheap enough to be asked for every event.
const void* preTranslateOf(const CWnd_E& window)
{
#if defined(__x86_64__)
    BOOL (CWnd_E::*const member)(tagMSG*) = &CWnd_E::PreTranslateMessage;
    struct
    {
        std::ptrdiff_t offsetPlusOne;
        std::ptrdiff_t adjustment;
    } slot;
    static_assert(sizeof(slot) == sizeof(member));
    std::memcpy(&slot, &member, sizeof(slot));
    const char* table = nullptr;
    std::memcpy(&table, static_cast<const void*>(&window), sizeof(table));
    const void* function = nullptr;
    std::memcpy(&function, table + slot.offsetPlusOne - 1, sizeof(function));
    return function;
#else
    static_cast<void>(window);
    return nullptr;
#endif
}

const void* g_plainPreTranslate = nullptr;

} // namespace

void notePlainWindow(const CWnd_E& plain)
{
    if (!g_plainPreTranslate)
        g_plainPreTranslate = preTranslateOf(plain);
}

bool seesMessages(const CWnd_E& window)
{
    return !g_plainPreTranslate || preTranslateOf(window) != g_plainPreTranslate;
}

} // namespace vx::detail
