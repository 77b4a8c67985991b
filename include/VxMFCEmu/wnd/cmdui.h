/// @file cmdui.h
/// The state of a command's menu action or button, as an update handler sets it.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/types.h>

#include <QtCore/QPointer>

/// Handed to update handlers. Each member does nothing when the object is neither a QAction nor a
/// QAbstractButton.
class VXMFC_EXPORT CCmdUI_E
{
public:
    CCmdUI_E() = default;
    /// For the action or button @p pObject, which stays the caller's.
    explicit CCmdUI_E(QObject* pObject) : m_pObject(pObject) {}
    virtual ~CCmdUI_E();

    /// Enables for 1. Intended: disables for every other value, not only for 0.
    virtual void Enable(BOOL bOn = TRUE);
    /// Checks for 1. Intended: 2 (indeterminate) unchecks as 0 does.
    virtual void SetCheck(int nCheck = 1);
    /// Checks for any value but 0.
    virtual void SetRadio(BOOL bOn = TRUE);
    /// Sets the text; null counts as empty.
    virtual void SetText(const wchar_t* pszText);

    QPointer<QObject> m_pObject; ///< null as well when it is gone
};
