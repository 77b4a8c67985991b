// Binding a window to its widget, and finding windows and controls again.
#include <VxMFCEmu/wnd/window.h>

#include "core/vxdispatchguard_p.h"
#include "core/vxqtinternals_p.h"
#include "wnd/vxcommandmap_p.h"
#include "wnd/vxseesmessages_p.h"

#include <VxMFCEmu/core/handlemap.h>
#include <VxMFCEmu/core/modulestate.h>
#include <VxMFCEmu/wnd/globaleventhandler.h>
#include <VxMFCEmu/wnd/resourceids.h>
#include <VxMFCEmu/wnd/windowfunctions.h>

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QScrollBar>

#include <algorithm>

IMPLEMENT_DYNCREATE_E(CWnd_E, CCmdTarget_E, QWidget)

namespace {

const QMetaMethod& updateCmdUiSignal()
{
    static const QMetaMethod signal = QMetaMethod::fromSignal(&CWnd_E::updateCmdUi);
    return signal;
}

bool hasOwnIdleSlot(const QMetaObject* pMeta)
{
    for (; pMeta != &CWnd_E::staticMetaObject; pMeta = pMeta->superClass()) {
        const bool bMethods = pMeta->methodCount() > pMeta->methodOffset();
        if (bMethods && pMeta->indexOfSlot("OnEnterIdle()") >= pMeta->methodOffset())
            return true;
    }
    return false;
}

} // namespace

CWnd_E::CWnd_E() { vx::detail::notePlainWindow(*this); }

CWnd_E::~CWnd_E()
{
    DetachAtEnd(); // before anything else: the handlers of the derived classes are gone already
    OnDestroy();
}

QWidget* CWnd_E::GetSafeHwnd() const
{
    // Whatever is attached to a window is a widget: its class record says so.
    return static_cast<QWidget*>(GetImpQObject());
}

BOOL CWnd_E::OnAttach()
{
    m_pendingEvents.clear();
    m_pCommands = nullptr; // of an earlier widget
    CWnd_E::OnDestroy();   // what lies along the edges of an earlier widget
    tagCREATESTRUCTW create{};
    create.style = m_dwStyle;
    // Intended: anything but 0 stops creation, not only -1. Both may delete this object.
    const vx::detail::DispatchGuard guard(this, GetSafeHwnd(), true);
    const auto isBound = [this, &guard] { return guard.wrapperAlive() && GetSafeHwnd(); };
    if (OnCreate(&create) != 0 || !isBound() || !InitDialog() || !isBound())
        return FALSE;
    ConnectSlotsFrom(GetSafeHwnd(), false);
    OnMessageMap();
    const auto combos = GetSafeHwnd()->findChildren<QComboBox*>();
    for (QComboBox* pCombo : combos)
        pCombo->view()->setTextElideMode(Qt::ElideNone);
    return TRUE;
}

void CWnd_E::OnMessageMap()
{
    // These replace earlier entries, as any that are made again.
    m_messages.erase(std::remove_if(m_messages.begin(), m_messages.end(),
                                    [](const auto& entry) {
                                        return entry.first == WM_NCDESTROY ||
                                               entry.first == WM_DESTROY || entry.first == WM_SIZE;
                                    }),
                     m_messages.end());
    m_bBaseMap = true;
    m_bIdleSlot = true;
    if (hasOwnIdleSlot(metaObject()) || isSignalConnected(updateCmdUiSignal()))
        ConnectIdleSlot(this);
}

// Most windows have nothing to do at idle time: they are not told of it before somebody listens.
void CWnd_E::connectNotify(const QMetaMethod& signal)
{
    if (m_bIdleSlot && signal == updateCmdUiSignal())
        ConnectIdleSlot(this);
    CCmdTarget_E::connectNotify(signal);
}

BOOL CWnd_E::SubclassWindow(QWidget* pWidget)
{
    if (!pWidget || !Attach(pWidget, pWidget->parent(), true))
        return FALSE;
    PreSubclassWindow();
    return TRUE;
}

BOOL CWnd_E::SubclassDlgItem(const char* pszName, CWnd_E* pParent)
{
    return pParent ? SubclassWindow(pParent->GetChildWidget(pszName)) : FALSE;
}

BOOL CWnd_E::SubclassDlgItem(UINT nID, CWnd_E* pParent)
{
    return pParent ? SubclassWindow(pParent->GetDlgItem(static_cast<int>(nID), nullptr)) : FALSE;
}

void CWnd_E::PreSubclassWindow() {}

CWnd_E* CWnd_E::FromHandlePermanent(QWidget* pWidget)
{
    return qobject_cast<CWnd_E*>(GetOwner(pWidget));
}

CWnd_E* CWnd_E::FromHandle(QWidget* pWidget)
{
    if (!pWidget)
        return nullptr;
    if (CWnd_E* const pPermanent = FromHandlePermanent(pWidget))
        return pPermanent;
    CObject_E* const pObject = FromImpMetaObject(pWidget->metaObject());
    auto* const pWindow = qobject_cast<CWnd_E*>(pObject);
    if (!pWindow) {
        delete pObject;
        return nullptr;
    }
    pWindow->SetTemporary();
    return pWindow->SubclassWindow(pWidget) ? pWindow : nullptr;
}

QWidget* CWnd_E::GetChildWidget(const char* pszName) const
{
    // Qt's own search takes an empty name for any child.
    if (!GetSafeHwnd() || !pszName || !*pszName)
        return nullptr;
    return vx::detail::findChildWidget(GetSafeHwnd(), QString::fromLatin1(pszName));
}

CWnd_E* CWnd_E::GetDlgItem(const char* pszName) const
{
    return FromHandle(GetChildWidget(pszName));
}

CWnd_E* CWnd_E::GetDlgItem(QWidget* pWidget) const { return FromHandle(pWidget); }

CWnd_E* CWnd_E::GetDlgItem(int nID) const { return FromHandle(GetDlgItem(nID, nullptr)); }

QWidget* CWnd_E::GetDlgItem(int nID, QWidget** ppWidget) const
{
    QWidget* const pItem = GetDlgItem_E(GetSafeHwnd(), nID);
    if (ppWidget)
        *ppWidget = pItem;
    return pItem;
}

int CWnd_E::GetDlgCtrlID() const { return GetDlgCtrlID_E(GetSafeHwnd()); }

int CWnd_E::SetDlgCtrlID(int nID)
{
    QWidget* const pWidget = GetSafeHwnd();
    if (!pWidget)
        return 0;
    const UINT nPrevious = ToCtrlId(pWidget->objectName());
    pWidget->setObjectName(ToStringId(static_cast<UINT>(nID)));
    return static_cast<int>(nPrevious);
}

CHandleMap_E* afxMapHWND_E(BOOL bCreate)
{
    AFX_MODULE_THREAD_STATE_E* const pState = AfxGetModuleThreadState_E();
    if (!pState->m_pmapHWND && bCreate) {
        pState->m_pmapHWND =
            vx::detail::makeHandleMap<CWnd_E>(RUNTIME_CLASS_E(CWnd_E), &CWnd_E::m_pImpQObject);
    }
    return pState->m_pmapHWND;
}

void CWnd_E::DeleteTempMap()
{
    if (CHandleMap_E* const pMap = afxMapHWND_E(FALSE))
        pMap->DeleteTemp();
}

void CWnd_E::OnEnterIdle() { Q_EMIT updateCmdUi(); }

void CWnd_E::DoDataExchange(CDataExchange_E*) {}
