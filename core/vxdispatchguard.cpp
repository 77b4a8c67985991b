#include "core/vxdispatchguard_p.h"

namespace vx::detail {

void DispatchGuard::wrapperDestroyed(const CObject_E* pWrapper)
{
    for (DispatchGuard* pGuard = s_pInnermost; pGuard; pGuard = pGuard->m_pOuter)
        pGuard->m_wrapperGone = pGuard->m_wrapperGone || pGuard->m_pWrapper == pWrapper;
}

void DispatchGuard::objectReleased(QObject* pObject)
{
    for (DispatchGuard* pGuard = s_pInnermost; pGuard; pGuard = pGuard->m_pOuter) {
        if (pGuard->m_bound && !pGuard->m_objectGone && pGuard->m_pObject == pObject) {
            pGuard->m_object = pObject;
            pGuard->m_bound = false;
        }
    }
}

void DispatchGuard::objectDestroyed(const QObject* pObject)
{
    for (DispatchGuard* pGuard = s_pInnermost; pGuard; pGuard = pGuard->m_pOuter) {
        if (pGuard->m_bound && pGuard->m_pObject == pObject)
            pGuard->m_objectGone = true;
    }
}

} // namespace vx::detail
