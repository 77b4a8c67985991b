// Not part of the public interface. The commands of one window.
#pragma once

#include <VxMFCEmu/wnd/commandmap.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <vector>

namespace vx::detail {

/// Connects entries to their actions and buttons as soon as these exist, and updates them.
class CommandMap : public QObject
{
public:
    explicit CommandMap(CWnd_E* pWindow);

    void Add(const QString& strName, VxCommandEntry_E entry, AFX_PMSG_E pfn, UINT nID);

private:
    struct Entry
    {
        QString strName;
        VxCommandEntry_E entry;
        AFX_PMSG_E pfn;
        UINT nID;                  // for a range
        QPointer<QObject> pObject; // null until it is found, and when it is gone
        bool bFailed;              // an update handler that let out an exception

        bool IsUpdate() const { return entry == VxCommandEntry_E::Update; }
    };

    void OnUpdateCmdUi();
    void UpdateEntries();
    void FindObject(Entry& entry);
    void ConnectObject(const Entry& entry);
    void RunCommand(const QString& strName);

    CWnd_E* const m_pWindow;
    std::vector<Entry> m_entries;
    QElapsedTimer m_lastSearch;
    bool m_bUpdating = false;
};

} // namespace vx::detail
