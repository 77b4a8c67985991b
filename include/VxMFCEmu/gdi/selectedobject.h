/// @file selectedobject.h
/// What a device context remembers of the pen or brush that it selected by pointer.
///
/// `SelectObject(CPen_E*)` returns an object for the previous pen. It has to hold the value that
/// the painter had, so that selecting it again restores it, whatever was drawn between. Most often
/// the object selected before is still there and unchanged: then it is the answer, and finding that
/// out takes a comparison of two numbers and two shared values. Otherwise (the painter's first pen,
/// a pen set by value, an object that has died) the answer is a temporary object over a copy, the
/// same one for equal values, which lives until CGdiObject_E::DeleteTempMap(). So:
/// @code
/// CPen_E* const pPrevious = m_selectedPen.objectOf(m_painter.pen());
/// if (HGDIOBJ h = pPen->GetSafeHandle()) { // null and empty objects select nothing
///     m_painter.setPen(*static_cast<const QPen*>(h));
///     m_selectedPen.note(pPen);
/// }
/// return pPrevious;
/// @endcode
/// Drawing that changes the painter's pen by itself need not tell: values are compared.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/types.h>

class CBrush_E;
class CPen_E;
class QBrush;
class QPen;

namespace vx::detail {

template <typename Object, typename Value>
class SelectedObject
{
public:
    /// The object for @p current, the value that the painter has now. Never null.
    Object* objectOf(const Value& current);
    /// Notes that the value of @p pObject, which is not empty, has been selected. It may die later.
    void note(Object* pObject);

private:
    /// Whether the noted object still is what it was.
    bool isAlive();

    Object* m_pObject = nullptr;
    HGDIOBJ m_h = nullptr;
    unsigned long m_nGeneration = 0;
};

extern template class SelectedObject<CPen_E, QPen>;
extern template class SelectedObject<CBrush_E, QBrush>;
using SelectedPen = SelectedObject<CPen_E, QPen>;
using SelectedBrush = SelectedObject<CBrush_E, QBrush>;

} // namespace vx::detail
