/// @file dialog.h
/// CDialog_E: a dialog over a QDialog, modal or modeless.
///
/// The template names a Qt Designer form among the resources of the plug-in that makes the dialog:
/// ":/R/NAME.ui", R being its resource base name. Without such a form the dialog starts empty; a
/// derived class fills it in SetupUI() or OnInitDialog(), or makes the widget itself in
/// AttachDefault(). Buttons named "OK" and "Cancel" call OnOK() and OnCancel(), as do Escape and
/// the window's close button for the latter.
///
/// Differs from MFC: OnInitDialog() runs while the widget is attached, before the message map is
/// filled, and FALSE makes Create() and DoModal() fail; EndDialog() called there does not keep
/// DoModal() from showing the dialog; EndDialog(0) ends it with IDCANCEL.
///
/// Any other exception than MFC's that comes out of a handler while a modal dialog runs ends the
/// innermost one and comes out of its DoModal(). Hiding a modal dialog ends it, as in Qt.
///
/// A temporary dialog, which FromHandle() makes for a QDialog of somebody else's, leaves it as it
/// is.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/wnd/window.h>

#include <QtWidgets/QDialog>

namespace vx::detail {
class ModalLoop;
} // namespace vx::detail

/// The handler that OnCmdMsg() found, for whoever asked only for it.
struct AFX_CMDHANDLERINFO_E
{
    CCmdTarget_E* pTarget; ///< whose handler it is
    AFX_PMSG_E pmf;        ///< the handler
};

/// A dialog.
class VXMFC_EXPORT CDialog_E : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CDialog_E)

    /// @p pParent is the parent of a modal dialog; the host's main frame when null.
    explicit CDialog_E(QWidget* pParent = nullptr);
    /// @{
    /// A dialog after the template with this name or id, which are kept; @p pParent is the parent
    /// of a modal one.
    explicit CDialog_E(const wchar_t* lpszTemplateName, CWnd_E* pParent = nullptr);
    explicit CDialog_E(UINT nIDTemplate, CWnd_E* pParent = nullptr);
    /// @}
    ~CDialog_E() override;

    /// Builds the template's form, or an empty QDialog, below @p pParent and attaches it as owned.
    /// FALSE for a form that cannot be read.
    BOOL AttachDefault(QWidget* pParent) override;
    using CWnd_E::AttachDefault;
    // CWnd_E's forms with a style stay hidden: `Create(IDD_GAUGE, NULL)` would fit two functions.
    BOOL Create(QWidget* pParent) override { return CWnd_E::Create(pParent); }
    /// @{
    /// Makes a modeless dialog, which is shown only if the form's style has WS_VISIBLE.
    virtual BOOL Create(UINT nIDTemplate, CWnd_E* pParent = nullptr);
    virtual BOOL Create(const wchar_t* lpszTemplateName, CWnd_E* pParent = nullptr);
    /// @}
    /// Makes the dialog, runs it until it is ended and destroys it. Returns what EndDialog() was
    /// called with (IDCANCEL for 0, and when the widget is deleted meanwhile), or IDABORT when the
    /// dialog could not be made.
    virtual int DoModal();
    /// Loads the controls with UpdateData(). FALSE, and an exception, make creation fail.
    virtual BOOL OnInitDialog();
    /// Saves the controls with UpdateData() and ends the dialog when they are valid.
    virtual void OnOK();
    /// Ends the dialog with IDCANCEL.
    virtual void OnCancel();
    /// FALSE here.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO_E* pHandlerInfo);

    /// Ends a modal dialog and hides a modeless one. Nothing without a widget.
    void EndDialog(int nResult);

    BOOL PreTranslateMessage(tagMSG* pMsg) override;
    /// Keys and the close button of the dialog, besides what CWnd_E does.
    bool eventFilter(QObject* watched, QEvent* e) override;
    void ConnectSlotsFrom(QObject* pFrom, bool bKeepOld) override;

public Q_SLOTS:
    /// @{
    /// What `QDialog` does when it is closed: as OnOK() and OnCancel().
    void accept();
    void reject();
    /// @}

protected:
    QPointer<QWidget> m_pParentWidget;           ///< of a modal dialog
    const wchar_t* m_lpszTemplateName = nullptr; ///< null without a template

private:
    void SetTemplate(const QString& strName, CWnd_E* pParent);
    BOOL CreateModeless();
    int RunModal(vx::detail::ModalLoop& loop);
    bool OnCloseButton(QEvent* e);

    CString_E m_strTemplateName;
    QString m_strForm;     // path of the form; empty without a template
    bool m_bShown = false; // by the style of its form
};
