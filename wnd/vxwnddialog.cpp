// Where windows meet dialogs: the only source of this folder that knows their classes.
#include <VxMFCEmu/wnd/window.h>

#include <VxMFCEmu/core/exceptions.h>
#include <VxMFCEmu/dlg/dataexchange.h>
#include <VxMFCEmu/dlg/dialog.h>

namespace {

/// The result of @p function; FALSE when it throws, whatever it throws.
template <typename Function>
BOOL falseIfItThrows(Function function)
{
    try {
        return function();
    } catch (CException_E* pException) {
        pException->Delete();
    } catch (...) { // NOLINT(bugprone-empty-catch): the result tells
    }
    return FALSE;
}

} // namespace

BOOL CWnd_E::InitDialog()
{
    auto* const pDialog = qobject_cast<CDialog_E*>(this);
    if (!pDialog || IsTemporary())
        return TRUE;
    return falseIfItThrows([pDialog] {
        if (!pDialog->IsExternalImpObj())
            pDialog->SetupUI();
        return pDialog->OnInitDialog();
    });
}

BOOL CWnd_E::UpdateData(BOOL bSaveAndValidate)
{
    return falseIfItThrows([this, bSaveAndValidate] {
        CDataExchange_E exchange(this, bSaveAndValidate);
        DoDataExchange(&exchange);
        return TRUE;
    });
}
