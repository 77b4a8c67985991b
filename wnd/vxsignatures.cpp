#include "wnd/vxsignatures_p.h"

#include <VxMFCEmu/wnd/window.h>

#include "wnd/vxlivewidgets_p.h"

#include <array>
#include <type_traits>

namespace vx::detail {
namespace {

struct Message
{
    WPARAM wParam;
    LPARAM lParam;
};

constexpr UINT low(WPARAM value) { return static_cast<UINT>(value & 0xFFFF); }
constexpr UINT high(WPARAM value) { return static_cast<UINT>((value >> 16) & 0xFFFF); }
constexpr UINT low(LPARAM value) { return low(static_cast<WPARAM>(value)); }
constexpr UINT high(LPARAM value) { return high(static_cast<WPARAM>(value)); }
constexpr int asSigned16(UINT value) { return static_cast<short>(value); }

// How one argument of a handler is taken from a message: Type and get().
template <typename T, T (*Get)(const Message&)>
struct Arg
{
    using Type = T;
    static T get(const Message& m) { return Get(m); }
};

WPARAM takeW(const Message& m) { return m.wParam; }
LPARAM takeL(const Message& m) { return m.lParam; }
UINT takeW32(const Message& m) { return static_cast<UINT>(m.wParam); }
UINT takeL32(const Message& m) { return static_cast<UINT>(m.lParam); }
UINT takeWLo(const Message& m) { return low(m.wParam); }
UINT takeWHi(const Message& m) { return high(m.wParam); }
UINT takeLLo(const Message& m) { return low(m.lParam); }
UINT takeLHi(const Message& m) { return high(m.lParam); }
UINT takeWByte(const Message& m) { return static_cast<UINT>(m.wParam & 0xFF); }
int takeWLoSigned(const Message& m) { return asSigned16(low(m.wParam)); }
int takeWHiSigned(const Message& m) { return asSigned16(high(m.wParam)); }
UINT takeCommand(const Message& m) { return high(m.lParam) & 0x0FFF; }
UINT takeDevice(const Message& m) { return high(m.lParam) & 0xF000; }
QWidget* takeWWindow(const Message& m) { return reinterpret_cast<QWidget*>(m.wParam); }
QWidget* takeLWindow(const Message& m) { return reinterpret_cast<QWidget*>(m.lParam); }
CPoint_E takePoint(const Message& m)
{
    return {asSigned16(low(m.lParam)), static_cast<int>(m.lParam) >> 16};
}
CPoint_E takeUnsignedPoint(const Message& m)
{
    return {static_cast<int>(low(m.lParam)), static_cast<int>(high(m.lParam))};
}

using W = Arg<WPARAM, takeW>;
using L = Arg<LPARAM, takeL>;
using W32 = Arg<UINT, takeW32>;
using L32 = Arg<UINT, takeL32>;
using WLo = Arg<UINT, takeWLo>;
using WHi = Arg<UINT, takeWHi>;
using LLo = Arg<UINT, takeLLo>;
using LHi = Arg<UINT, takeLHi>;
using WByte = Arg<UINT, takeWByte>;
using WLoS = Arg<int, takeWLoSigned>;
using WHiS = Arg<int, takeWHiSigned>;
using Command = Arg<UINT, takeCommand>;
using Device = Arg<UINT, takeDevice>;
using WWnd = Arg<QWidget*, takeWWindow>;
using LWnd = Arg<QWidget*, takeLWindow>;
using Point = Arg<CPoint_E, takePoint>;
using PointU = Arg<CPoint_E, takeUnsignedPoint>;

// The form of a handler whose windows are window objects.
template <typename A>
struct WithWindows : A
{
};
template <QWidget* (*Get)(const Message&)>
struct WithWindows<Arg<QWidget*, Get>>
{
    using Type = CWnd_E*;
    // A posted message may outlive the window that it names.
    static CWnd_E* get(const Message& m) { return CWnd_E::FromHandle(liveWidgetAt(Get(m))); }
};

// What becomes of a handler's value: Type, and store(), which gives FALSE for "not handled".
struct None
{
    using Type = void;
    static constexpr LRESULT value = 0;
};
struct One
{
    using Type = void;
    static constexpr LRESULT value = 1;
};
template <typename T, bool (*Handled)(T)>
struct Value
{
    using Type = T;
    static BOOL store(T value, LRESULT& result)
    {
        if (!Handled(value))
            return FALSE;
        result = static_cast<LRESULT>(value); // int is sign-extended, UINT zero-extended
        return TRUE;
    }
};
template <typename T>
bool always(T)
{
    return true;
}
bool ifNonZero(int value) { return value != 0; }
bool ifZero(int value) { return value == 0; }

using Int = Value<int, always<int>>;
using U32 = Value<UINT, always<UINT>>;
using I64 = Value<LRESULT, always<LRESULT>>;
// Intended: a wheel handler that gives FALSE, and the reverse for signature 70, leave the event to
// the widget.
using IntUnlessZero = Value<int, ifNonZero>;
using IntUnlessSet = Value<int, ifZero>;

template <typename Result, typename... Args>
BOOL callForm(CWnd_E* pWindow, AFX_PMSG_E pfn, const Message& m, LRESULT& result)
{
    using Handler = typename Result::Type (CWnd_E::*)(typename Args::Type...);
    const auto handler = castHandler<Handler>(pfn);
    if constexpr (std::is_void_v<typename Result::Type>) {
        (pWindow->*handler)(Args::get(m)...);
        result = Result::value;
        return TRUE;
    } else {
        return Result::store((pWindow->*handler)(Args::get(m)...), result);
    }
}

using Caller = BOOL (*)(CWnd_E*, const AFX_MSGMAP_ENTRY_E&, const Message&, LRESULT&);

template <typename Result, typename... Args>
BOOL call(CWnd_E* pWindow, const AFX_MSGMAP_ENTRY_E& entry, const Message& m, LRESULT& result)
{
    if (!entry.pfnE)
        return entry.pfn ? callForm<Result, Args...>(pWindow, entry.pfn, m, result) : TRUE;
    BOOL bHandled = TRUE;
    if (entry.pfn) {
        const QPointer<CWnd_E> alive(pWindow);
        bHandled = callForm<Result, Args...>(pWindow, entry.pfn, m, result);
        if (!alive)
            return bHandled;
    }
    return callForm<Result, WithWindows<Args>...>(pWindow, entry.pfnE, m, result);
}

struct Row
{
    unsigned char numbers[5]; // the signatures that call alike; 0 for none
    Caller caller;
};

// clang-format off
constexpr Row kRows[] = {
    // signatures            result        arguments
    {{2, 3, 28, 4},          call<Int,           W>},
    {{5, 12},                call<Int,           WWnd, LLo, LHi>},
    {{6},                    call<Int,           WWnd, L>},
    {{7, 13, 87},            call<Int,           L>},
    {{10},                   call<Int,           WLo, LWnd, WHi>},
    {{11},                   call<Int,           WLo, WHi>},
    {{14, 92},               call<I64,           W, L>},
    {{16, 46, 51, 77, 84},   call<None,          W32, L>},
    {{17, 21},               call<None,          W>},
    {{18, 31},               call<None,          W, L>},
    {{19},                   call<None>},
    {{20},                   call<None,          W32>},
    {{22},                   call<None,          W32, L32>},
    {{23},                   call<None,          WLo, WHi>},
    {{24},                   call<None,          LLo, LHi>},
    {{25, 26},               call<None,          W32, LLo, LHi>},
    {{27},                   call<None,          W32, LWnd>},
    {{29},                   call<U32,           W32>},
    {{30},                   call<Int>},
    {{36},                   call<None,          WWnd>},
    {{37},                   call<None,          LWnd>},
    {{38},                   call<None,          WWnd, LLo, LHi>},
    {{39},                   call<None,          WWnd, Point>},
    {{40},                   call<None,          WWnd, L>},
    {{41, 89},               call<I64>},
    {{42},                   call<None,          WLo, LWnd, WHi>},
    {{43},                   call<None,          WLoS, WHiS, LWnd>},
    {{44},                   call<None,          WLoS, WHiS>},
    {{45, 52},               call<None,          L>},
    {{47, 55},               call<One,           W32, L>},
    {{48},                   call<Int,           W32, L>},
    {{49},                   call<U32,           Point>},
    {{50},                   call<U32>},
    {{53},                   call<None,          WLo, WHi, L>},
    {{54, 95},               call<None,          W32, Point>},
    {{56},                   call<IntUnlessZero, WLo, WHiS, PointU>},
    {{57},                   call<None,          WLo, WHiS, PointU>},
    {{70},                   call<IntUnlessSet>},
    {{71},                   call<I64,           Point>},
    {{72},                   call<U32,           WWnd, L32>},
    {{75},                   call<U32,           L>},
    {{78},                   call<One,           WWnd, Command, Device, LLo>},
    {{79},                   call<None,          WByte, L>},
    {{80},                   call<U32,           W32, L32>},
    {{81},                   call<One,           WLo, WHi, PointU>},
    {{82},                   call<One,           WLoS, WHi, PointU>},
    {{83},                   call<One,           W32, L32>},
    {{85},                   call<None,          WLo, L>},
    {{90},                   call<Int,           W32, L>},
    {{91},                   call<Int,           LHi, LLo>},
    {{93},                   call<None,          WWnd, L32>},
    {{94},                   call<U32,           W32, L>},
};
// clang-format on

constexpr std::size_t kSignatureEnd = 96;

constexpr auto indexRows()
{
    std::array<Caller, kSignatureEnd> callers{};
    for (const Row& row : kRows) {
        for (const unsigned char number : row.numbers) {
            if (number != 0)
                callers[number] = row.caller;
        }
    }
    return callers;
}

constexpr auto kCallers = indexRows();

} // namespace

BOOL callHandler(CWnd_E* pWindow, const AFX_MSGMAP_ENTRY_E& entry, WPARAM wParam, LPARAM lParam,
                 LRESULT& result)
{
    const Caller caller = entry.nSig < kCallers.size() ? kCallers[entry.nSig] : nullptr;
    if (!caller) {
        // Intended: a number without a row handles the message and calls nothing.
        result = 0;
        return TRUE;
    }
    return caller(pWindow, entry, {wParam, lParam}, result);
}

} // namespace vx::detail
