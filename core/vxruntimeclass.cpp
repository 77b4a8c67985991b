#include <VxMFCEmu/core/object.h>

#include <cstdarg>

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
        if (pMeta != pBaseImpMetaObject)
            RegisterCreateObjectMethod(pMeta, pfnCreateObject);
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
    UnregisterFrom(m_pImpMetaObject);
    if (m_pImpMetaList) {
        for (const QMetaObject* pMeta : *m_pImpMetaList)
            UnregisterFrom(pMeta);
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
    return pfnCreateObject && g_mapCreateMethod.emplace(pMeta, pfnCreateObject).second;
}

void CRuntimeClass_E::UnregisterFrom(const QMetaObject* pMeta) const
{
    const auto it = g_mapCreateMethod.find(pMeta);
    if (it != g_mapCreateMethod.end() && it->second == m_pfnCreateObject)
        g_mapCreateMethod.erase(it);
}
