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
    m_lpszTemplateName = m_strTemplateName.GetString();
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
    const int nResult = RunModal();
    if (!self)
        return IDCANCEL;
    const std::exception_ptr pException = std::exchange(m_pException, nullptr);
    DestroyWindow(); // may be the end of this object
    if (pException)
        std::rethrow_exception(pException);
    return nResult == QDialog::Accepted ? IDOK : nResult == QDialog::Rejected ? IDCANCEL : nResult;
}

int CDialog_E::RunModal()
{
    const QPointer<CDialog_E> self(this);
    const OverrideArrow arrow;
    m_bModal = true;
    const int nResult = static_cast<QDialog*>(GetSafeHwnd())->exec();
    if (self)
        m_bModal = false;
    return nResult;
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

// An exception must not pass through the event loop of exec(), which leaves the dialog with a
// pointer to it.
template <typename Function>
void CDialog_E::RunHandler(const QPointer<CDialog_E>& self, Function function)
{
    vx::detail::reportExceptions([&] {
        try {
            function();
        } catch (const CException_E*) {
            throw;
        } catch (...) {
            if (!self || !m_bModal)
                throw;
            m_pException = std::current_exception();
            EndDialog(-1);
        }
    });
}

void CDialog_E::accept()
{
    RunHandler(this, [this] { OnOK(); });
}

void CDialog_E::reject()
{
    RunHandler(this, [this] { OnCancel(); });
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
    bool bConsumed = true;
    RunHandler(self, [&] { bConsumed = CWnd_E::eventFilter(watched, e); });
    if (bConsumed || !self || watched != GetSafeHwnd() || IsTemporary())
        return bConsumed;
    const bool bTopLevel = GetSafeHwnd()->isWindow();
    if (e->type() == QEvent::Close && bTopLevel)
        return OnCloseButton(e);
    if (e->type() != QEvent::KeyPress || bTopLevel)
        return false;
    e->ignore(); // on to the parent
    // A QDialog would hide itself for Escape, wherever it is.
    return static_cast<QKeyEvent*>(e)->matches(QKeySequence::Cancel);
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
