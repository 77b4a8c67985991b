#include <VxMFCEmu/wnd/menu.h>

#include <VxMFCEmu/core/handlemap.h>
#include <VxMFCEmu/core/modulestate.h>

IMPLEMENT_DYNAMIC_E(CMenu_E, CObject_E, QMenu)

CMenu_E::CMenu_E(QWidget* pParent) : m_pParent(pParent) {}

CMenu_E::~CMenu_E() { DestroyMenu(); }

BOOL CMenu_E::AttachDefault(QObject* pParent)
{
    return Attach(new QMenu(qobject_cast<QWidget*>(pParent)), pParent, false);
}

BOOL CMenu_E::OnAttach()
{
    m_hMenu = static_cast<QMenu*>(GetImpQObject());
    afxMapHMENU_E(TRUE)->SetPermanent(m_hMenu, this);
    connect(m_hMenu, &QObject::destroyed, this, &CMenu_E::OnDetach);
    return TRUE;
}

void CMenu_E::OnDetach()
{
    CHandleMap_E* const pMap = afxMapHMENU_E(FALSE);
    if (pMap && pMap->LookupPermanent(m_hMenu) == this)
        pMap->RemoveHandle(m_hMenu);
    m_hMenu = nullptr;
}

BOOL CMenu_E::CreatePopupMenu() { return AttachDefault(m_pParent.data()); }

BOOL CMenu_E::DestroyMenu()
{
    if (!GetImpQObject())
        return FALSE;
    Detach();
    return TRUE;
}

CMenu_E* CMenu_E::FromHandle(HMENU hMenu)
{
    return static_cast<CMenu_E*>(afxMapHMENU_E(TRUE)->FromHandle(hMenu));
}

void CMenu_E::DeleteTempMap()
{
    if (CHandleMap_E* const pMap = afxMapHMENU_E(FALSE))
        pMap->DeleteTemp();
}

CHandleMap_E* afxMapHMENU_E(BOOL bCreate)
{
    AFX_MODULE_THREAD_STATE_E* const pState = AfxGetModuleThreadState_E();
    if (!pState->m_pmapHMENU && bCreate) {
        pState->m_pmapHMENU =
            vx::detail::makeHandleMap<CMenu_E>(RUNTIME_CLASS_E(CMenu_E), &CMenu_E::m_hMenu);
    }
    return pState->m_pmapHMENU;
}
