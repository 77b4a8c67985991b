// A user without sense: clicks, drags, wheel turns and keys, wherever and whatever.
#pragma once

#include <QtCore/QRect>

#include <random>

namespace soak {

class RandomUser
{
public:
    /// All that it does with the pointer, it does in @p area.
    RandomUser(unsigned seed, QRect area) : m_random(seed), m_area(area) {}

    void act();
    int below(int limit);

private:
    QPoint place();
    void move();
    void click();
    void drag();
    void turnWheel();
    void type();
    void typeWithControl();
    void focusTop();

    std::mt19937 m_random;
    QRect m_area;
};

} // namespace soak
