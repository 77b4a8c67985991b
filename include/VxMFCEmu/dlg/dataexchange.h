/// @file dataexchange.h
/// One run of a dialog's data exchange: what CWnd_E::UpdateData() hands to DoDataExchange().
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/text/cstring.h>
#include <VxMFCEmu/types.h>

#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

class CWnd_E;

/// One run of data exchange.
class VXMFC_EXPORT CDataExchange_E
{
public:
    /// A run of @p pDlgWnd, from controls to variables for TRUE.
    CDataExchange_E(CWnd_E* pDlgWnd, BOOL bSaveAndValidate)
        : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd)
    {
    }

    /// The dialog's control of this name, at any depth; null when there is none.
    QWidget* GetDlgItem(const char* pszName) const;
    /// The dialog's own widget; null while it is unbound.
    QWidget* GetDlgQWidget() const;
    /// Makes @p pCtrl the control that a failure is about.
    void PrepareCtrl(QWidget* pCtrl) { m_pLastControl = pCtrl; }
    /// @{
    /// Ends the exchange by throwing the QString "DataExchange Error", which UpdateData() catches.
    /// When saving, the current control gets the focus and its text is selected, and the dialog
    /// will show @p pszMessage unless it is null or empty, or another one is still to be shown.
    [[noreturn]] void Fail(const wchar_t* pszMessage = nullptr);
    [[noreturn]] void Fail(const QString& strMessage);
    /// @}

    BOOL m_bSaveAndValidate; ///< controls to variables when not 0
    CWnd_E* m_pDlgWnd;       ///< may be null; then no control is found

    /// The control of the latest exchange function; null before the first and when it is gone.
    QPointer<QWidget> m_pLastControl;
};

/// The object name of control @p nID in the calling plug-in's id map; empty when it has none.
VXMFC_EXPORT QString GetObjectNameById(int nID);
