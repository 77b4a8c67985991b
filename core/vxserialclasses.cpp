#include "core/vxserialclasses_p.h"

#include <VxMFCEmu/core/object.h>
#include <VxMFCEmu/text/vxqstring.h>

#include <map>
#include <mutex>

namespace {

// Plug-ins may come and go while another thread reads an archive.
std::mutex mutex;

// Equal names stay in the order in which they came. They are made before the first class enters
// itself, by static initialisers that come later.
__attribute__((init_priority(101))) std::multimap<std::string_view, const AFX_CLASSINIT_E*> byName;
__attribute__((init_priority(101))) std::map<const CRuntimeClass_E*, const AFX_CLASSINIT_E*>
    byClass;

} // namespace

AFX_CLASSINIT_E::AFX_CLASSINIT_E(CRuntimeClass_E* pNewClass, const char* pszName, UINT wSchema,
                                 bool (*pfnIsInstance)(const CObject_E*))
    : m_pClass(pNewClass), m_pszName(pszName), m_pfnIsInstance(pfnIsInstance)
{
    pNewClass->m_wSchema = wSchema;
    const std::lock_guard lock(mutex);
    byName.emplace(pszName, this);
    byClass.emplace(pNewClass, this);
}

AFX_CLASSINIT_E::~AFX_CLASSINIT_E()
{
    const std::lock_guard lock(mutex);
    const auto [first, last] = byName.equal_range(m_pszName);
    for (auto it = first; it != last; ++it) {
        if (it->second == this) {
            byName.erase(it);
            break;
        }
    }
    if (const auto it = byClass.find(m_pClass); it != byClass.end() && it->second == this)
        byClass.erase(it);
}

const AFX_CLASSINIT_E* vx::detail::serialEntry(const CRuntimeClass_E* pClass)
{
    const std::lock_guard lock(mutex);
    const auto it = byClass.find(pClass);
    return it != byClass.end() ? it->second : nullptr;
}

CRuntimeClass_E* vx::detail::serialClass(std::string_view name)
{
    const std::lock_guard lock(mutex);
    const auto it = byName.lower_bound(name);
    return it != byName.end() && it->first == name ? it->second->m_pClass : nullptr;
}

CRuntimeClass_E* CRuntimeClass_E::FromName(const char* lpszClassName)
{
    return lpszClassName ? vx::detail::serialClass(lpszClassName) : nullptr;
}

CRuntimeClass_E* CRuntimeClass_E::FromName(const wchar_t* lpszClassName)
{
    return lpszClassName ? FromName(VxQString(lpszClassName).toUtf8().constData()) : nullptr;
}

CObject_E* CRuntimeClass_E::CreateObject(const char* lpszClassName)
{
    const CRuntimeClass_E* const pClass = FromName(lpszClassName);
    return pClass ? pClass->CreateObject() : nullptr;
}
