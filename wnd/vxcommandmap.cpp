#include "wnd/vxcommandmap_p.h"

#include "wnd/vxhandlerexception_p.h"

#include <VxMFCEmu/wnd/cmdui.h>
#include <VxMFCEmu/wnd/window.h>

#include <QtCore/QMetaMethod>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAction>

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

} // namespace

CommandMap::CommandMap(CWnd_E* pWindow) : m_pWindow(pWindow)
{
    connect(pWindow, &CWnd_E::updateCmdUi, this, &CommandMap::OnUpdateCmdUi);
}

void CommandMap::Add(const QString& strName, VxCommandEntry_E entry, AFX_PMSG_E pfn)
{
    const bool bUpdate = entry == VxCommandEntry_E::Update;
    const auto it = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& other) {
        return other.strName == strName && other.IsUpdate() == bUpdate;
    });
    if (it != m_entries.end()) {
        it->pfn = pfn;
        return;
    }
    m_entries.push_back({strName, entry, pfn, nullptr});
    FindObject(m_entries.back());
}

void CommandMap::FindObject(Entry& entry)
{
    const QWidget* const pWidget = m_pWindow->GetSafeHwnd();
    if (!pWidget)
        return;
    auto* const pButton = pWidget->findChild<QAbstractButton*>(entry.strName);
    if (entry.entry != VxCommandEntry_E::Click || !pButton)
        entry.pObject = pWidget->findChild<QAction*>(entry.strName);
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
    const AFX_PMSG_E pfn = it->pfn;
    reportExceptions([pWindow, pfn] { (pWindow->*pfn)(); });
}

void CommandMap::OnUpdateCmdUi()
{
    if (!m_pWindow->GetSafeHwnd())
        return;
    const bool bSearch = !m_lastSearch.isValid() || m_lastSearch.hasExpired(kSearchIntervalMs);
    if (bSearch)
        m_lastSearch.start();
    const QPointer<CommandMap> self(this);
    // By index: a handler may add entries, or delete the window.
    for (std::size_t i = 0; self && i < m_entries.size(); ++i) {
        Entry& entry = m_entries[i];
        if (!entry.pObject && bSearch)
            FindObject(entry);
        if (!entry.pObject || !entry.IsUpdate())
            continue;
        CCmdUI_E cmdUI(entry.pObject);
        const auto pfn = castHandler<void (CWnd_E::*)(CCmdUI_E*)>(entry.pfn);
        reportExceptions([pWindow = m_pWindow, pfn, &cmdUI] { (pWindow->*pfn)(&cmdUI); });
    }
}

} // namespace vx::detail

void CWnd_E::AddCmdMapEntry(const QString& strName, VxCommandEntry_E entry, AFX_PMSG_E pfn)
{
    if (strName.isEmpty() || !pfn)
        return;
    if (!m_pCommands)
        m_pCommands = std::make_unique<vx::detail::CommandMap>(this);
    m_pCommands->Add(strName, entry, pfn);
}
