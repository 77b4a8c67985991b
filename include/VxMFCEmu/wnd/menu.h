/// @file menu.h
#pragma once

#include <VxMFCEmu/core/object.h>

#include <QtCore/QPointer>
#include <QtWidgets/QMenu>

/// A menu over a `QMenu`, as far as windows need it: making, wrapping, finding.
class VXMFC_EXPORT CMenu_E : public CObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CMenu_E)

    /// An empty menu object; CreatePopupMenu() puts its menu below @p pParent.
    explicit CMenu_E(QWidget* pParent = nullptr);
    ~CMenu_E() override;

    using CObject_E::AttachDefault;
    BOOL AttachDefault(QObject* pParent) override;
    BOOL OnAttach() override;
    void OnDetach() override;

    /// Makes a new menu, owned by this object.
    BOOL CreatePopupMenu();
    /// Lets go of the menu; an owned one is deleted later by the event loop. FALSE without one.
    BOOL DestroyMenu();
    /// The menu; null for an empty object.
    HMENU GetSafeHmenu() const { return m_hMenu; }

    /// The menu object of a handle, permanent or temporary; null for null.
    static CMenu_E* FromHandle(HMENU hMenu);
    /// Empties the temporary part of the menu handle map.
    static void DeleteTempMap();

private:
    friend VXMFC_EXPORT class CHandleMap_E* afxMapHMENU_E(BOOL bCreate);

    HMENU m_hMenu = nullptr;
    QPointer<QWidget> m_pParent;
};

/// The handle map of menus; made on first request with @p bCreate, null before.
VXMFC_EXPORT class CHandleMap_E* afxMapHMENU_E(BOOL bCreate = FALSE);
