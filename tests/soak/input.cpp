#include "input.h"

#include "support/xinput.h"

#include <X11/keysym.h>

#include <iterator>

namespace soak {
namespace {

constexpr unsigned long kKeys[] = {
    XK_a,      XK_b,         XK_Z,      XK_1,      XK_5,    XK_space, XK_period, XK_Tab,
    XK_Return, XK_Left,      XK_Right,  XK_Up,     XK_Down, XK_Home,  XK_End,    XK_Prior,
    XK_Next,   XK_BackSpace, XK_Delete, XK_Escape, XK_F2,   XK_F5,    XK_Menu};
// Not those that close or hide the host's own window.
constexpr unsigned long kKeysWithControl[] = {XK_a, XK_c, XK_v, XK_x, XK_z, XK_Home, XK_End};

} // namespace

int RandomUser::below(int limit)
{
    return std::uniform_int_distribution<int>(0, limit - 1)(m_random);
}

QPoint RandomUser::place()
{
    return m_area.topLeft() + QPoint(below(m_area.width()), below(m_area.height()));
}

void RandomUser::move() { vxtest::movePointer(place()); }

void RandomUser::click()
{
    move();
    const unsigned button = below(4) ? 1 : static_cast<unsigned>(2 + below(2));
    for (int times = below(4) ? 1 : 2; times > 0; --times)
        vxtest::clickButton(button);
}

void RandomUser::drag()
{
    move();
    vxtest::setButton(1, true);
    for (int i = below(5); i >= 0; --i)
        move();
    vxtest::setButton(1, false);
}

void RandomUser::turnWheel()
{
    move();
    vxtest::clickButton(static_cast<unsigned>(4 + below(2)));
}

void RandomUser::type() { vxtest::typeKey(kKeys[below(static_cast<int>(std::size(kKeys)))]); }

void RandomUser::typeWithControl()
{
    vxtest::setKey(XK_Control_L, true);
    vxtest::typeKey(kKeysWithControl[below(static_cast<int>(std::size(kKeysWithControl)))]);
    vxtest::setKey(XK_Control_L, false);
}

void RandomUser::focusTop()
{
    if (const unsigned long window = vxtest::topWindow())
        vxtest::focusWindow(window);
}

void RandomUser::act()
{
    using Act = void (RandomUser::*)();
    static constexpr Act kActs[] = {
        &RandomUser::move,    &RandomUser::click,     &RandomUser::click,
        &RandomUser::drag,    &RandomUser::turnWheel, &RandomUser::type,
        &RandomUser::type,    &RandomUser::type,      &RandomUser::typeWithControl,
        &RandomUser::focusTop};
    (this->*kActs[below(static_cast<int>(std::size(kActs)))])();
}

} // namespace soak
