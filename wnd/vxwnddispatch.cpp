// The road of one event: filter, translation, PreTranslateMessage, follow-up messages, handler.
#include <VxMFCEmu/wnd/window.h>

#include "core/vxdispatchguard_p.h"
#include "wnd/vxcontrolproc_p.h"
#include "wnd/vxeventtable_p.h"
#include "wnd/vxhandlerexception_p.h"
#include "wnd/vxpainting_p.h"
#include "wnd/vxseesmessages_p.h"
#include "wnd/vxsignatures_p.h"

#include <VxMFCEmu/dlg/messagebox.h>
#include <VxMFCEmu/wnd/eventtranslation.h>
#include <VxMFCEmu/wnd/messageevent.h>
#include <VxMFCEmu/wnd/sendmessage.h>
#include <VxMFCEmu/wnd/windowfunctions.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QWidget>

namespace {

bool showMessageBox(QObject* watched, const QEvent* e)
{
    const auto& box = static_cast<const VxMsgBoxEvent&>(*e);
    const CString_E text = box.text;
    const CString_E caption = box.caption;
    MessageBox_E(qobject_cast<QWidget*>(watched), text.GetString(), caption.GetString(), 0);
    return true;
}

bool isBefore(const std::pair<UINT, AFX_MSGMAP_ENTRY_E>& entry, UINT message)
{
    return entry.first < message;
}

// What every window handles, unless its own map says how.
const AFX_MSGMAP_ENTRY_E* baseEntry(UINT message)
{
    static const AFX_MSGMAP_ENTRY_E ncDestroy = {19, static_cast<AFX_PMSG_E>(&CWnd_E::OnNcDestroy),
                                                 nullptr};
    static const AFX_MSGMAP_ENTRY_E destroy = {19, static_cast<AFX_PMSG_E>(&CWnd_E::OnDestroy),
                                               nullptr};
    static const AFX_MSGMAP_ENTRY_E size = {
        26, vx::detail::eraseHandler<CWnd_E, void(UINT, int, int)>(&CWnd_E::OnSize), nullptr};
    switch (message) {
    case WM_NCDESTROY:
        return &ncDestroy;
    case WM_DESTROY:
        return &destroy;
    case WM_SIZE:
        return &size;
    default:
        return nullptr;
    }
}

} // namespace

bool CWnd_E::eventFilter(QObject* watched, QEvent* e)
{
    tagMSG msg;
    if (!e)
        return false;
    const bool isMessage = vx::detail::translateEvent(watched, e, &msg);
    if (!isMessage && e->type() != VxMsgBoxEvent::EventType) {
        ForgetPending(e);
        return CCmdTarget_E::eventFilter(watched, e);
    }
    // A handler may delete the window, its widget, or both.
    const vx::detail::DispatchGuard guard(this, watched, watched == GetImpQObject());
    QEvent* const previous = std::exchange(m_pCurrentEvent, e);
    const auto leave = [&] {
        if (!guard.wrapperAlive())
            return;
        ForgetPending(e);
        m_pCurrentEvent = previous;
    };
    bool consumed = false;
    try {
        consumed = isMessage ? DispatchMessage(guard, watched, e, msg) : showMessageBox(watched, e);
    } catch (...) {
        leave();
        vx::detail::handleCurrentException();
        return true;
    }
    leave();
    return consumed || !guard.objectAlive();
}

bool CWnd_E::DispatchMessage(const vx::detail::DispatchGuard& guard, QObject* watched, QEvent* e,
                             tagMSG& msg)
{
    const bool wasAccepted = e->isAccepted();
    e->setAccepted(true);
    FillIfSeen(msg);
    if (PreTranslateMessage(&msg) || !guard.objectAlive())
        return true;
    TranslateMessage(watched, e, &msg);
    if (e->type() == QEvent::Paint && guard.wrapperAlive() && guard.objectAlive() &&
        FindMsgMapEntry(WM_ERASEBKGND))
        vx::detail::eraseBackground(*this, *static_cast<QWidget*>(watched));
    LRESULT result = 0;
    const bool handled = guard.wrapperAlive() && guard.objectAlive() &&
                         OnWndMsg(msg.message, msg.wParam, msg.lParam, &result);
    // Intended: a close that a handler did not accept goes no further either.
    if (handled && (e->isAccepted() || e->type() == QEvent::Close)) {
        if (e->type() == VxWinMsgEvent::EventType)
            static_cast<VxWinMsgEvent*>(e)->result = result;
        return true;
    }
    // Intended: also after a handler has cleared the flag, for binding changes nothing for widgets.
    e->setAccepted(wasAccepted);
    return e->type() == VxWinMsgEvent::EventType && guard.wrapperAlive() && guard.objectAlive() &&
           AnswerAsControl(static_cast<VxWinMsgEvent&>(*e));
}

bool CWnd_E::AnswerAsControl(VxWinMsgEvent& e)
{
    if (vx::detail::answerTextMessage(GetSafeHwnd(), e))
        return true;
    return vx::detail::isControlMessage(e.message) &&
           (OnControlMessage(e.message, e.wParam, e.lParam, &e.result) ||
            vx::detail::answerAsControl(GetSafeHwnd(), e));
}

BOOL CWnd_E::OnControlMessage(UINT, WPARAM, LPARAM, LRESULT*) { return FALSE; }

// Only an override of PreTranslateMessage() ever looks at the time and the cursor position:
// handlers get wParam and lParam. The position costs a trip to the X server, so it is not fetched
// for nobody.
void CWnd_E::FillIfSeen(tagMSG& msg) const
{
    if (!vx::detail::seesMessages(*this))
        return;
    vx::detail::stampMessage(&msg);
}

BOOL CWnd_E::PreTranslateMessage(tagMSG*) { return FALSE; }

BOOL CWnd_E::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT result = 0;
    if (message == WM_SETCURSOR && reinterpret_cast<QWidget*>(wParam) == GetSafeHwnd() &&
        wParam != 0) {
        const Offer offer = OfferSetCursorToAncestors(wParam, lParam, pResult);
        if (offer != Offer::Refused)
            return offer == Offer::Taken ? TRUE : FALSE;
    }
    const AFX_MSGMAP_ENTRY_E* const pEntry = FindMsgMapEntry(message);
    if (!pEntry)
        return FALSE;
    const AFX_MSGMAP_ENTRY_E entry = *pEntry; // the handler may change the map
    if (!vx::detail::callHandler(this, entry, wParam, lParam, result))
        return FALSE;
    if (pResult)
        *pResult = result;
    return TRUE;
}

BOOL CWnd_E::CallWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    QEvent none(QEvent::None);
    const QPointer<CWnd_E> self(this);
    QEvent* const previous = std::exchange(m_pCurrentEvent, &none);
    const BOOL bHandled = OnWndMsg(message, wParam, lParam, pResult);
    if (self)
        m_pCurrentEvent = previous;
    return bHandled;
}

CWnd_E::Offer CWnd_E::OfferSetCursorToAncestors(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    std::vector<QPointer<QWidget>> ancestors;
    // Intended: a window of its own begins with its parent too, and so asks the window that owns
    // it.
    QWidget* pWidget = GetSafeHwnd();
    do {
        pWidget = pWidget->parentWidget();
        if (FromHandlePermanent(pWidget))
            ancestors.emplace_back(pWidget);
    } while (pWidget && !pWidget->isWindow());
    if (ancestors.empty())
        return Offer::Refused;
    const QPointer<CWnd_E> self(this);
    for (auto it = ancestors.rbegin(); it != ancestors.rend(); ++it) {
        CWnd_E* const pWindow = FromHandlePermanent(*it);
        LRESULT result = 0;
        if (pWindow && pWindow->OnWndMsg(WM_SETCURSOR, wParam, lParam, &result) && result != 0) {
            if (pResult)
                *pResult = result;
            return Offer::Taken;
        }
    }
    return self ? Offer::Refused : Offer::WindowGone;
}

void CWnd_E::AddMsgMapEntry(UINT message, unsigned long nSig, AFX_PMSG_E pfn, AFX_PMSG_E pfnE)
{
    AddMsgMapEntry(message, {nSig, pfn, pfnE});
}

void CWnd_E::AddMsgMapEntry(UINT message, const AFX_MSGMAP_ENTRY_E& entry)
{
    const auto it = std::lower_bound(m_messages.begin(), m_messages.end(), message, isBefore);
    if (it != m_messages.end() && it->first == message)
        it->second = entry;
    else
        m_messages.insert(it, {message, entry});
}

const AFX_MSGMAP_ENTRY_E* CWnd_E::FindMsgMapEntry(UINT message) const
{
    const auto it = std::lower_bound(m_messages.begin(), m_messages.end(), message, isBefore);
    return it != m_messages.end() && it->first == message ? &it->second
           : m_bBaseMap                                   ? baseEntry(message)
                                                          : nullptr;
}

LRESULT CWnd_E::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return SendMessage_E(GetSafeHwnd(), message, wParam, lParam);
}

BOOL CWnd_E::PostMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return PostMessage_E(GetSafeHwnd(), message, wParam, lParam);
}

BOOL CWnd_E::SendEvent(QEvent* e)
{
    if (!e || !GetSafeHwnd())
        return FALSE;
    QCoreApplication::sendEvent(GetSafeHwnd(), e);
    return TRUE;
}

BOOL CWnd_E::PostEvent(QEvent* e, int nPriority, bool bCompress)
{
    std::unique_ptr<QEvent> owned(e);
    if (!e || !GetSafeHwnd())
        return FALSE;
    if (bCompress) {
        const auto sameType = [e](const PendingEvent& pending) {
            return pending.type == e->type();
        };
        if (std::any_of(m_pendingEvents.cbegin(), m_pendingEvents.cend(), sameType))
            return FALSE;
        m_pendingEvents.append({e, e->type()});
        if (e->type() == VxMsgBoxEvent::EventType)
            static_cast<VxMsgBoxEvent*>(e)->m_pPoster = this;
    }
    QCoreApplication::postEvent(GetSafeHwnd(), owned.release(), nPriority);
    return TRUE;
}

void CWnd_E::ForgetPending(const QEvent* e)
{
    if (m_pendingEvents.isEmpty())
        return;
    const auto it = std::find_if(m_pendingEvents.begin(), m_pendingEvents.end(),
                                 [e](const PendingEvent& pending) { return pending.event == e; });
    if (it != m_pendingEvents.end())
        m_pendingEvents.erase(it);
}

void CWnd_E::SetCurrentEventAccepted(bool bAccepted)
{
    if (m_pCurrentEvent)
        m_pCurrentEvent->setAccepted(bAccepted);
}
