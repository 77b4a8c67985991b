#include <VxMFCEmu/core/object.h>

#include "core/vxcreateregistry_p.h"

#include <cstdarg>

using vx::detail::g_mapRegistrants;

CRuntimeClass_E::CRuntimeClass_E(const QMetaObject* pMetaObject, const QMetaObject* pImpMetaObject,
                                 const QMetaObject* pBaseImpMetaObject,
                                 VxCreateObjectFn pfnCreateObject,
                                 QList<const QMetaObject*>* pImpMetaList, int nObjectSize)
    : m_pMetaObject(pMetaObject),
      m_pImpMetaObject(pImpMetaObject),
      m_pImpMetaList(pImpMetaList),
      m_pfnCreateObject(pfnCreateObject),
      m_nObjectSize(nObjectSize)
{
    const auto registerUnlessBase = [&](const QMetaObject* pMeta) {
        if (pMeta != pBaseImpMetaObject && RegisterCreateObjectMethod(pMeta, pfnCreateObject))
            g_mapRegistrants[pMeta] = this;
    };
    if (!pImpMetaList) {
        registerUnlessBase(pImpMetaObject);
        return;
    }
    for (const QMetaObject* pMeta : *pImpMetaList)
        registerUnlessBase(pMeta);
}

CRuntimeClass_E::~CRuntimeClass_E()
{
    for (auto it = g_mapRegistrants.begin(); it != g_mapRegistrants.end();) {
        if (it->second != this) {
            ++it;
            continue;
        }
        // Somebody may have put another factory in its place.
        const auto entry = g_mapCreateMethod.find(it->first);
        if (entry != g_mapCreateMethod.end() && entry->second == m_pfnCreateObject)
            g_mapCreateMethod.erase(entry);
        it = g_mapRegistrants.erase(it);
    }
    delete m_pImpMetaList;
}

CObject_E* CRuntimeClass_E::CreateObject() const
{
    return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
}

bool CRuntimeClass_E::IsDerivedFrom(const CRuntimeClass_E* pClass) const
{
    return pClass && m_pMetaObject->inherits(pClass->GetMetaObject());
}

bool CRuntimeClass_E::IsMyImpMeta(const QMetaObject* pMeta) const
{
    if (!pMeta)
        return false;
    if (!m_pImpMetaList)
        return pMeta->inherits(m_pImpMetaObject);
    return std::any_of(m_pImpMetaList->cbegin(), m_pImpMetaList->cend(),
                       [pMeta](const QMetaObject* pImp) { return pMeta->inherits(pImp); });
}

QList<const QMetaObject*>* CRuntimeClass_E::CreateMetaList(const QMetaObject* pFirst, ...)
{
    auto* pList = new QList<const QMetaObject*>;
    va_list args;
    va_start(args, pFirst);
    for (const QMetaObject* pMeta = pFirst; pMeta; pMeta = va_arg(args, const QMetaObject*))
        pList->append(pMeta);
    va_end(args);
    return pList;
}

bool CRuntimeClass_E::RegisterCreateObjectMethod(const QMetaObject* pMeta,
                                                 VxCreateObjectFn pfnCreateObject)
{
    return pMeta && pfnCreateObject && g_mapCreateMethod.emplace(pMeta, pfnCreateObject).second;
}
