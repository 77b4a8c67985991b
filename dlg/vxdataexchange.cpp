#include <VxMFCEmu/dlg/dataexchange.h>

#include <VxMFCEmu/text/vxqstring.h>
#include <VxMFCEmu/wnd/messageevent.h>
#include <VxMFCEmu/wnd/resourceids.h>
#include <VxMFCEmu/wnd/window.h>
#include <VxMFCEmu/wnd/windowtext.h>

QWidget* CDataExchange_E::GetDlgItem(const char* pszName) const
{
    return m_pDlgWnd ? m_pDlgWnd->GetChildWidget(pszName) : nullptr;
}

QWidget* CDataExchange_E::GetDlgQWidget() const
{
    return m_pDlgWnd ? m_pDlgWnd->GetSafeHwnd() : nullptr;
}

void CDataExchange_E::Fail(const wchar_t* pszMessage) { Fail(VxQString(pszMessage)); }

void CDataExchange_E::Fail(const QString& strMessage)
{
    if (m_bSaveAndValidate && m_pLastControl) {
        // Posted, so that the box comes up when the exchange is over.
        if (m_pDlgWnd && !strMessage.isEmpty())
            m_pDlgWnd->PostEvent(new VxMsgBoxEvent(CString_E(strMessage), CString_E()), 0, true);
        m_pLastControl->setFocus(Qt::OtherFocusReason);
        SetEditSelectAll_E(m_pLastControl);
    }
    throw QStringLiteral("DataExchange Error");
}

QString GetObjectNameById(int nID) { return ToStringId(static_cast<UINT>(nID)); }
