#include <VxMFCEmu/gdi/selectedobject.h>

#include "gdi/vxgdihandles_p.h"

#include <VxMFCEmu/core/handlemap.h>
#include <VxMFCEmu/gdi/brush.h>
#include <VxMFCEmu/gdi/pen.h>

#include <QtGui/QBrush>
#include <QtGui/QPen>

#include <memory>
#include <unordered_map>

namespace vx::detail {

namespace {

std::size_t hashOf(const QPen& pen)
{
    return std::size_t{pen.color().rgba()} << 16U ^ static_cast<std::size_t>(pen.style()) << 8U ^
           static_cast<std::size_t>(qMax(0, pen.width()));
}

std::size_t hashOf(const QBrush& brush)
{
    return std::size_t{brush.color().rgba()} << 16U ^ static_cast<std::size_t>(brush.style());
}

/// The copies that temporary objects hold, found by value.
template <typename Object, typename Value>
class HeldValues
{
public:
    Object* objectOf(const Value& value)
    {
        const std::size_t hash = hashOf(value);
        const auto [first, last] = m_values.equal_range(hash);
        for (auto it = first; it != last; ++it) {
            // Null for a copy that an object of another class has been attached to.
            Object* const pObject =
                *it->second == value ? Object::FromHandle(it->second.get()) : nullptr;
            if (pObject)
                return pObject;
        }
        const auto it = m_values.emplace(hash, std::make_unique<Value>(value));
        lendHandle(it->second.get());
        return Object::FromHandle(it->second.get());
    }

    void clear()
    {
        for (auto& [hash, pValue] : m_values) {
            if (!reclaimHandle(pValue.get(), &freeValue<Value>))
                static_cast<void>(pValue.release());
        }
        m_values.clear();
    }

private:
    std::unordered_multimap<std::size_t, std::unique_ptr<Value>> m_values;
};

template <typename Object, typename Value>
HeldValues<Object, Value>& heldValues()
{
    static HeldValues<Object, Value> values;
    return values;
}

} // namespace

void deleteHeldValues()
{
    heldValues<CPen_E, QPen>().clear();
    heldValues<CBrush_E, QBrush>().clear();
}

template <typename Object, typename Value>
Object* SelectedObject<Object, Value>::objectOf(const Value& current)
{
    if ((m_nGeneration == gdiGeneration || isAlive()) && m_pObject &&
        *static_cast<const Value*>(m_h) == current)
        return m_pObject;
    return heldValues<Object, Value>().objectOf(current);
}

template <typename Object, typename Value>
void SelectedObject<Object, Value>::note(Object* pObject)
{
    m_pObject = pObject;
    m_h = pObject->m_hObject;
    m_nGeneration = gdiGeneration;
}

template <typename Object, typename Value>
bool SelectedObject<Object, Value>::isAlive()
{
    // Only objects that hold their handle are sure to have a value; another one may have taken the
    // place of the noted one, which is as good.
    CObject_E* const pObject = m_h ? afxMapHGDIOBJ_E(TRUE)->LookupPermanent(m_h) : nullptr;
    m_pObject = dynamic_cast<Object*>(pObject);
    m_nGeneration = gdiGeneration;
    return m_pObject;
}

template class SelectedObject<CPen_E, QPen>;
template class SelectedObject<CBrush_E, QBrush>;

} // namespace vx::detail
