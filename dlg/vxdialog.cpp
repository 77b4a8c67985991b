#include <VxMFCEmu/dlg/dialog.h>

#include "dlg/vxdialogform_p.h"
#include "wnd/vxhandlerexception_p.h"

#include <VxMFCEmu/dlg/messagebox.h>
#include <VxMFCEmu/text/resourcename.h>
#include <VxMFCEmu/text/vxqstring.h>
#include <VxMFCEmu/wnd/resourceids.h>
#include <VxMFCEmu/wnd/virtualkeys.h>

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

IMPLEMENT_DYNCREATE_E(CDialog_E, CWnd_E, QDialog)

namespace {

QWidget* widgetOf(const CWnd_E* pWindow) { return pWindow ? pWindow->GetSafeHwnd() : nullptr; }

class OverrideArrow
{
public:
    OverrideArrow() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~OverrideArrow() { QApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(OverrideArrow)
};

// For a dialog that exec() was torn out of: it still knows its event loop, which is gone, and would
// end it when it is hidden in its own way. Hidden already, it is left alone.
void hideWithoutLoop(QDialog& dialog)
{
    dialog.QWidget::setVisible(false);
    dialog.setAttribute(Qt::WA_ShowModal, false);
}

void connectButton(CDialog_E* pDialog, const char* pszName, const char* pszSlot)
{
    QWidget* const pButton = pDialog->GetChildWidget(pszName);
    if (pButton && pButton->metaObject()->indexOfSignal("clicked()") >= 0)
        QObject::connect(pButton, SIGNAL(clicked()), pDialog, pszSlot, Qt::UniqueConnection);
}

} // namespace

CDialog_E::CDialog_E(QWidget* pParent) : m_pParentWidget(pParent) {}

CDialog_E::CDialog_E(const wchar_t* lpszTemplateName, CWnd_E* pParent)
{
    SetTemplate(VxQString(lpszTemplateName), pParent);
}

CDialog_E::CDialog_E(UINT nIDTemplate, CWnd_E* pParent)
{
    SetTemplate(ToStringId(nIDTemplate), pParent);
}

CDialog_E::~CDialog_E() = default;

// The form is that of the plug-in which names it, whoever makes the dialog later.
void CDialog_E::SetTemplate(const QString& strName, CWnd_E* pParent)
{
    m_pParentWidget = widgetOf(pParent);
    m_strTemplateName = strName;
    m_lpszTemplateName = strName.isEmpty() ? nullptr : m_strTemplateName.GetString();
    m_strForm = strName.isEmpty() ? QString()
                                  : QStringLiteral(":/%1/%2.ui").arg(GetMfyResourceName(), strName);
}

BOOL CDialog_E::AttachDefault(QWidget* pParent)
{
    const auto [pDialog, bShow] = vx::detail::buildDialog(m_strForm, pParent);
    m_bShown = bShow;
    return Attach(pDialog, pParent, false);
}

BOOL CDialog_E::Create(UINT nIDTemplate, CWnd_E* pParent)
{
    SetTemplate(ToStringId(nIDTemplate), pParent);
    return CreateModeless();
}

BOOL CDialog_E::Create(const wchar_t* lpszTemplateName, CWnd_E* pParent)
{
    SetTemplate(VxQString(lpszTemplateName), pParent);
    return CreateModeless();
}

BOOL CDialog_E::CreateModeless()
{
    if (!CWnd_E::Create(m_pParentWidget))
        return FALSE;
    if (m_bShown)
        ShowWindow(SW_SHOW);
    return TRUE;
}

int CDialog_E::DoModal()
{
    if (!CWnd_E::Create(m_pParentWidget))
        return IDABORT;
    const QPointer<CDialog_E> self(this);
    vx::detail::ModalLoop loop([self] {
        if (self)
            self->EndDialog(-1);
    });
    const int nResult = RunModal(loop);
    if (!self)
        return IDCANCEL;
    DestroyWindow(); // may be the end of this object
    loop.rethrow();
    return nResult == QDialog::Accepted ? IDOK : nResult == QDialog::Rejected ? IDCANCEL : nResult;
}

int CDialog_E::RunModal(vx::detail::ModalLoop& loop)
{
    const QPointer<QDialog> pDialog(static_cast<QDialog*>(GetSafeHwnd()));
    const OverrideArrow arrow;
    try {
        return pDialog->exec();
    } catch (...) { // of code that the library does not call, such as a slot
        loop.keepCurrentException();
        if (pDialog)
            hideWithoutLoop(*pDialog);
        return -1;
    }
}

BOOL CDialog_E::OnInitDialog()
{
    if (UpdateData(FALSE))
        return TRUE;
    EndDialog(-1);
    return FALSE;
}

void CDialog_E::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog_E::OnCancel() { EndDialog(IDCANCEL); }

BOOL CDialog_E::OnCmdMsg(UINT, int, void*, AFX_CMDHANDLERINFO_E*) { return FALSE; }

void CDialog_E::EndDialog(int nResult)
{
    auto* const pDialog = static_cast<QDialog*>(GetSafeHwnd());
    if (!pDialog)
        return;
    // Hiding a dialog is what ends it, and Qt would not hide one that is hidden already.
    pDialog->setAttribute(Qt::WA_WState_Hidden, false);
    if (nResult == IDOK)
        pDialog->accept();
    else if (nResult == IDCANCEL)
        pDialog->reject();
    else
        pDialog->done(nResult);
}

void CDialog_E::accept()
{
    vx::detail::callGuarded([this] { OnOK(); });
}

void CDialog_E::reject()
{
    vx::detail::callGuarded([this] { OnCancel(); });
}

BOOL CDialog_E::PreTranslateMessage(tagMSG* pMsg)
{
    const QWidget* const pWidget = GetSafeHwnd();
    if (!pWidget)
        return TRUE;
    if (!pMsg || pMsg->message != WM_KEYDOWN || pMsg->wParam != VK_ESCAPE || !pWidget->isWindow() ||
        IsTemporary())
        return FALSE;
    reject();
    return TRUE;
}

bool CDialog_E::eventFilter(QObject* watched, QEvent* e)
{
    const QPointer<CDialog_E> self(this);
    const bool bConsumed = CWnd_E::eventFilter(watched, e);
    if (bConsumed || !self || watched != GetSafeHwnd() || IsTemporary())
        return bConsumed;
    const bool bTopLevel = GetSafeHwnd()->isWindow();
    if (e->type() == QEvent::Close && bTopLevel)
        return OnCloseButton(e);
    if (e->type() != QEvent::KeyPress || bTopLevel)
        return false;
    e->ignore(); // on to the parent
    // A QDialog would hide itself for Escape and click a button for Enter, wherever it is, and so
    // would the parent after it.
    const auto* const pKey = static_cast<QKeyEvent*>(e);
    return pKey->matches(QKeySequence::Cancel) || pKey->key() == Qt::Key_Return ||
           pKey->key() == Qt::Key_Enter;
}

bool CDialog_E::OnCloseButton(QEvent* e)
{
    const QPointer<QWidget> pWidget(GetSafeHwnd());
    if (!pWidget->isVisible())
        return false;
    reject();
    e->setAccepted(!pWidget || !pWidget->isVisible());
    return true;
}

void CDialog_E::ConnectSlotsFrom(QObject* pFrom, bool bKeepOld)
{
    if (IsTemporary())
        return;
    CWnd_E::ConnectSlotsFrom(pFrom, bKeepOld);
    connectButton(this, "OK", SLOT(accept()));
    connectButton(this, "Cancel", SLOT(reject()));
}
