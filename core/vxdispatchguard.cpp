#include "core/vxdispatchguard_p.h"

namespace vx::detail {
namespace {

thread_local DispatchGuard* t_innermost = nullptr;

} // namespace

DispatchGuard::DispatchGuard(const CObject_E* pWrapper, QObject* pObject, bool bound)
    : m_pOuter(t_innermost), m_pWrapper(pWrapper), m_pObject(pObject), m_bound(bound)
{
    if (!bound)
        m_object = pObject;
    t_innermost = this;
}

DispatchGuard::~DispatchGuard() { t_innermost = m_pOuter; }

void DispatchGuard::wrapperDestroyed(const CObject_E* pWrapper)
{
    for (DispatchGuard* pGuard = t_innermost; pGuard; pGuard = pGuard->m_pOuter)
        pGuard->m_wrapperGone = pGuard->m_wrapperGone || pGuard->m_pWrapper == pWrapper;
}

void DispatchGuard::objectReleased(QObject* pObject)
{
    for (DispatchGuard* pGuard = t_innermost; pGuard; pGuard = pGuard->m_pOuter) {
        if (pGuard->m_bound && !pGuard->m_objectGone && pGuard->m_pObject == pObject) {
            pGuard->m_object = pObject;
            pGuard->m_bound = false;
        }
    }
}

void DispatchGuard::objectDestroyed(const QObject* pObject)
{
    for (DispatchGuard* pGuard = t_innermost; pGuard; pGuard = pGuard->m_pOuter) {
        if (pGuard->m_bound && pGuard->m_pObject == pObject)
            pGuard->m_objectGone = true;
    }
}

} // namespace vx::detail
