// What the tests of the collections have in common: elements by number.
#pragma once

#include "support/test.h"

namespace vxtest {

/// An element that is no plain bytes, is counted while it lives, and shows whether it was copied.
class Counted
{
public:
    Counted() : Counted(0) {}
    explicit Counted(int value) : m_p(std::make_unique<int>(value)) { ++s_nAlive; }
    Counted(const Counted& other) : Counted(*other.m_p) {}
    Counted& operator=(const Counted& other)
    {
        return m_p = std::make_unique<int>(*other.m_p), *this;
    }
    ~Counted() { --s_nAlive; }
    bool operator==(const Counted& other) const { return *m_p == *other.m_p; }
    operator int() const { return *m_p; }
    static inline int s_nAlive = 0;

private:
    std::unique_ptr<int> m_p;
};

template <typename Element>
Element elementOf(std::size_t number)
{
    if constexpr (std::is_same_v<Element, CString_E>) {
        CString_E text;
        text.Format(L"element %u", static_cast<unsigned>(number));
        return text;
    } else if constexpr (std::is_pointer_v<Element>) {
        return reinterpret_cast<Element>(number * 16);
    } else {
        return Element(static_cast<int>(number));
    }
}

} // namespace vxtest

using vxtest::Counted;
using vxtest::elementOf;
