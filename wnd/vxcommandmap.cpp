#include "wnd/vxcommandmap_p.h"

#include "wnd/vxhandlerexception_p.h"

#include <VxMFCEmu/wnd/cmdui.h>
#include <VxMFCEmu/wnd/window.h>

#include <QtCore/QMetaMethod>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAction>
#include <QtWidgets/QMenu>

#include <algorithm>

namespace vx::detail {
namespace {

constexpr int kSearchIntervalMs = 100;

// A command of a message map takes the place of what a dialog does with its OK and Cancel buttons.
void disconnectSlot(QAbstractButton* pButton, const CWnd_E* pWindow, const char* pszSlot)
{
    const QMetaObject* const pMeta = pWindow->metaObject();
    const int nSlot = pMeta->indexOfSlot(pszSlot);
    if (nSlot >= 0)
        QObject::disconnect(pButton, QMetaMethod::fromSignal(&QAbstractButton::clicked), pWindow,
                            pMeta->method(nSlot));
}

QAction* actionNamed(const QList<QAction*>& actions, const QString& strName)
{
    for (QAction* const pAction : actions) {
        if (pAction->objectName() == strName)
            return pAction;
        const QMenu* const pMenu = pAction->menu();
        if (QAction* const pFound = pMenu ? actionNamed(pMenu->actions(), strName) : nullptr)
            return pFound;
    }
    return nullptr;
}

// Below the window, or shown by what is: by menus and tool buttons whose actions belong elsewhere.
QAction* findAction(const QWidget& window, const QString& strName)
{
    if (auto* const pChild = window.findChild<QAction*>(strName))
        return pChild;
    if (QAction* const pOwn = actionNamed(window.actions(), strName))
        return pOwn;
    const auto widgets = window.findChildren<QWidget*>();
    for (const QWidget* const pWidget : widgets) {
        if (QAction* const pShown = actionNamed(pWidget->actions(), strName))
            return pShown;
    }
    return nullptr;
}

} // namespace

CommandMap::CommandMap(CWnd_E* pWindow) : m_pWindow(pWindow)
{
    connect(pWindow, &CWnd_E::updateCmdUi, this, &CommandMap::OnUpdateCmdUi);
}

void CommandMap::Add(const QString& strName, VxCommandEntry_E entry, AFX_PMSG_E pfn, UINT nID)
{
    const bool bUpdate = entry == VxCommandEntry_E::Update;
    const auto it = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& other) {
        return other.strName == strName && other.IsUpdate() == bUpdate;
    });
    if (it != m_entries.end()) {
        it->entry = entry;
        it->pfn = pfn;
        it->nID = nID;
        it->bFailed = false;
        return;
    }
    m_entries.push_back({strName, entry, pfn, nID, nullptr, false});
    FindObject(m_entries.back());
}

void CommandMap::FindObject(Entry& entry)
{
    const QWidget* const pWidget = m_pWindow->GetSafeHwnd();
    if (!pWidget)
        return;
    auto* const pButton = pWidget->findChild<QAbstractButton*>(entry.strName);
    if (entry.entry != VxCommandEntry_E::Click || !pButton)
        entry.pObject = findAction(*pWidget, entry.strName);
    if (!entry.pObject)
        entry.pObject = pButton;
    if (entry.pObject && !entry.IsUpdate())
        ConnectObject(entry);
}

void CommandMap::ConnectObject(const Entry& entry)
{
    // The entry may move, and be replaced; its name stays.
    const auto run = [this, strName = entry.strName] { RunCommand(strName); };
    if (auto* const pAction = qobject_cast<QAction*>(entry.pObject)) {
        connect(pAction, &QAction::triggered, this, run);
    } else if (auto* const pButton = qobject_cast<QAbstractButton*>(entry.pObject)) {
        disconnectSlot(pButton, m_pWindow, "accept()");
        disconnectSlot(pButton, m_pWindow, "reject()");
        connect(pButton, &QAbstractButton::clicked, this, run);
    }
}

void CommandMap::RunCommand(const QString& strName)
{
    const auto it = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& entry) {
        return !entry.IsUpdate() && entry.strName == strName;
    });
    if (!m_pWindow->GetSafeHwnd())
        return;
    // The handler may delete the window, and this map with it.
    CWnd_E* const pWindow = m_pWindow;
    const Entry entry = *it;
    callGuarded([pWindow, &entry] {
        if (entry.entry == VxCommandEntry_E::RangeCommand)
            (pWindow->*castHandler<void (CWnd_E::*)(UINT)>(entry.pfn))(entry.nID);
        else
            (pWindow->*entry.pfn)();
    });
}

// A handler may run an event loop of its own, which is idle in its turn.
void CommandMap::OnUpdateCmdUi()
{
    if (!m_pWindow->GetSafeHwnd() || m_bUpdating)
        return;
    const QPointer<CommandMap> self(this);
    m_bUpdating = true;
    UpdateEntries();
    if (self)
        m_bUpdating = false;
}

void CommandMap::UpdateEntries()
{
    const bool bSearch = !m_lastSearch.isValid() || m_lastSearch.hasExpired(kSearchIntervalMs);
    if (bSearch)
        m_lastSearch.start();
    const QPointer<CommandMap> self(this);
    // By index: a handler may add entries, or delete the window.
    for (std::size_t i = 0; self && i < m_entries.size(); ++i) {
        Entry& entry = m_entries[i];
        if (!entry.pObject && bSearch)
            FindObject(entry);
        if (!entry.pObject || !entry.IsUpdate() || entry.bFailed)
            continue;
        CCmdUI_E cmdUI(entry.pObject);
        const auto pfn = castHandler<void (CWnd_E::*)(CCmdUI_E*)>(entry.pfn);
        const bool bDone =
            callGuarded([pWindow = m_pWindow, pfn, &cmdUI] { (pWindow->*pfn)(&cmdUI); });
        if (self && !bDone) // once is enough: it would be reported at every idle time
            m_entries[i].bFailed = true;
    }
}

} // namespace vx::detail

void CWnd_E::AddCmdMapRange(UINT nFirst, UINT nLast, VxCommandEntry_E entry, AFX_PMSG_E pfn)
{
    const QMap<UINT, QString>& ids = GetResourceIDMap();
    for (auto it = ids.lowerBound(nFirst); it != ids.end() && it.key() <= nLast; ++it)
        AddCmdMapEntry(it.value(), entry, pfn, it.key());
}

void CWnd_E::AddCmdMapEntry(const QString& strName, VxCommandEntry_E entry, AFX_PMSG_E pfn,
                            UINT nID)
{
    if (strName.isEmpty() || !pfn)
        return;
    if (!m_pCommands)
        m_pCommands = std::make_unique<vx::detail::CommandMap>(this);
    m_pCommands->Add(strName, entry, pfn, nID);
}
